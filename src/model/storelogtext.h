/// Log lines of the key attribute store, its loader and its commands. Other tools read them: blanks and
/// spelling stay as they are.
#pragma once

namespace vorlinmodel::LogText {

// Records
inline constexpr char CreateKey[] = "-createKeyAttr-lid:%d pageid:%d kid:%d fid:%d";
inline constexpr char KeyExists[] = "lid:%d pageid:%d kid:%d  fid:%d keyattribute exist\n";
inline constexpr char NewRecord[] = "new key_atttribute_t ok-lid:%d pageid:%d kid:%d fid:%d";
inline constexpr char SetFunction[] = "set fid lid:%d pageid:%d kid:%d fid:%d\n";
inline constexpr char SetRecord[] = "set record lid:%d pageid:%d kid:%d fid:%d\n";
inline constexpr char NoRecords[] = "mKeyAttributeMap size=0\n";
inline constexpr char DeletedKey[] = "------------delete key_attr[%d][%d][%d]";

inline constexpr char SetDisplayMode[] = "set display mode lid:%d pageid:%d kid:%d value:%d\n";
inline constexpr char SetImageEffects[] = "set image effects lid:%d pageid:%d kid:%d value:%d\n";
inline constexpr char SetTitleAlignment[] = "set title align mode lid:%d pageid:%d kid:%d value:%d\n";
inline constexpr char SetTitleFontSize[] = "set title font size lid:%d pageid:%d kid:%d value:%d\n";
inline constexpr char SetTitleColour[] = "set title font color lid:%d pageid:%d kid:%d r:%d g:%d b:%d\n";
inline constexpr char SetTitle[] = "set title lid:%d pageid:%d kid:%d image:%s\n";
inline constexpr char SetUrlOrPath[] = "set urlorpath lid:%d pageid:%d kid:%d UrlOrPath:%s\n";
inline constexpr char SetKeyCombination[] = "set urlorpath lid:%d pageid:%d kid:%d keycombination:%s\n";
inline constexpr char SetCustomImage[] = "set custom image lid:%d pageid:%d kid:%d image:%s\n";
inline constexpr char SetCustomVideo[] = "set custom video lid:%d pageid:%d kid:%d image:%s\n";

inline constexpr char GetCustomImage[] = "FunctionManager::getCustomImage lid:%d pageid:%d kid:%d\n";
inline constexpr char GetDefaultImage[] = "FunctionManager::getDefaultImage lid:%d pageid:%d kid:%d\n";
inline constexpr char GetTitleText[] = "FunctionManager::getTitleText lid:%d pageid:%d kid:%d\n";
inline constexpr char GetAllAttribute[] = "FunctionManager::getAllAttribute lid:%d pageid:%d kid:%d\n";
inline constexpr char RecordText[] = "-----pKeyAttr:%s\n";

inline constexpr char CustomDisplayImage[] = "--2--strImage=[%s]\n";
inline constexpr char DisplayImage[] = "nDisplayImageType[%d]/strImage=[%s]\n";

inline constexpr char FileCreated[] = "文件创建成功";
inline constexpr char FileNotCreated[] = "create %s error:%s\n";

// Loading from the panel
inline constexpr char HexDump[] = "%s";
inline constexpr char ReadScript[] = "----------_READ_Script-----";
inline constexpr char ReadScriptFinished[] = "----------_READ_Script-----finished";
inline constexpr char BadLength[] = "config data length (%d) error\n";
inline constexpr char NoKeys[] = "device key is empty Layoutid[%d] Pageid[%d]\n";
inline constexpr char ApplicationLength[] = "application length:0x%08x(%d)\n";
inline constexpr char SavePage[] = "saveAllKeyAttrByDevconfig Layoutid:%d Pageid:%d,nBufferLen=%d \n";
inline constexpr char KeyCount[] = "--------nKeyCount=[%d],[%d]";
inline constexpr char RecordKey[] = "stKeyid-1- Layoutid:%d Pageid:%d,nKeyoutId=%d \n";
inline constexpr char BadKeyId[] = "Error keyid Layoutid:%d Pageid:%d,nKeyoutId=%d \n";
inline constexpr char ApplyRecord[] = "setKeyAttrByProtoKeyConfig lid:%d pageid:%d kid:%d nDisplaymode:%d\n";
inline constexpr char CombinationCodes[] = "-----tmpAdditonal[%d][%d][%d][%d]\n";
inline constexpr char OutputText[] = "------------pKeyAttr->strAppOrUrl=%s";
inline constexpr char RecordApplied[] =
    "set image effects lid:%d pageid:%d kid:%d mFId:%d strTitle[%s] strAppOrUrl[%s]\n";
inline constexpr char KeyAttribute[] = "-----------MD_FUNCTION_CODE_KEY_ATTRIBUTE-----";
inline constexpr char SaveAttribute[] =
    "saveKeyAttrByDevconfig Layoutid[%d] Pageid[%d] Keyid[%d] nAttrbuteid[%d]\n";
inline constexpr char PictureName[] = "-------------strFileName=[%s][%d]\n";
inline constexpr char PicturePath[] = "-------------strPath=[%s]\n";
inline constexpr char RemoveFailed[] = "remove failed:%s";
inline constexpr char PictureNotSaved[] = "----save -image failed[%s]-------\n";
inline constexpr char Received[] = "mRecvTotalKeyCount[%d]-mRecvCurKeyCount[%d]\n";

// Action lists
inline constexpr char ListBytes[] = "-----getall-------byteArry=%s";
inline constexpr char ListCounted[] = "-----available-------byteArry=%s";
inline constexpr char ListAction[] = "----action=%d %d %s";
inline constexpr char ListNotStored[] = "写入失败:%s";

// Commands
inline constexpr char ExecCommand[] = "execCommand Layoutid:%d Pageid:%d Keyid:%d fid:%d \n";
inline constexpr char HomePageOk[] = "open home page ok";
inline constexpr char HomePageFail[] = "open home page fail";
inline constexpr char OpenOk[] = "open %s ok\n";
inline constexpr char OpenFail[] = "open %s fail\n";

} // namespace vorlinmodel::LogText
