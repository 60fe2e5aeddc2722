/// Every fixed text that the protocol layer writes into the log or into the upgrade dialog. Odd spellings and
/// double blanks are wanted: people and scripts look for these lines.
#pragma once

namespace ProtocolText {

// Sending
inline constexpr char RequestOk[] = "send request  ok\n";
inline constexpr char RequestError[] = "send request  error\n";
inline constexpr char MessageLength[] = "----nProtoLen=[%d]\n";
inline constexpr char BlockSent[] = "transfer %d block data\n";
inline constexpr char BlockFailed[] = "transfer %d block data error\n";
inline constexpr char TransferCancelled[] = "transfer cancelled after %d of %d blocks\n";

// Receiving
inline constexpr char ReplyTimeout[] = "recv function code:0x%02x subcode:0x%02x timeout\n";
inline constexpr char ReplyCode[] = "function code:0x%02x\n";
inline constexpr char ReplyLength[] = "length:0x%08x(%d)\n";
inline constexpr char ReplySubcode[] = "subcode:0x%02x\n";
inline constexpr char KeyDataShort[] = "key attribute data length (%d) error\n";
inline constexpr char ApplicationCode[] = "application function code:0x%02x\n";
inline constexpr char ApplicationLength[] = "application length:0x%08x(%d)\n";
inline constexpr char KeyCommand[] = "receiveCommand Layoutid:%d Pageid:%d Keyid:%d,nAttrbuteid[%d]\n";
inline constexpr char Reassembling[] = "-------read ------------------mRecvProtoBufferLen=[%d]\n";
inline constexpr char ReassemblyTooLong[] = "received message of more than %d bytes dropped\n";
inline constexpr char ReassemblyCut[] = "incomplete received message of %d bytes dropped\n";

// Key events
inline constexpr char ExecCommand[] = "execCommand Layoutid:%d Pageid:%d Keyid:%d fid:%d \n";
inline constexpr char ExecCommandText[] = "-sigDealExecCommand-strUrlOrPath=[%s] \n";

// Thread
inline constexpr char InitOk[] = "Initialize the hid successfully\n";
inline constexpr char InitFailed[] = "Failed to initialize the hid\n";
inline constexpr char StopTimedOut[] = "the protocol thread did not end within %d ms\n";
inline constexpr char RequestCancelled[] = "request of kind %d cancelled before it was sent\n";
inline constexpr char NewDevicePath[] = "new hidpath:%s\n";
inline constexpr char NewBlockDelay[] = "set timeout %d ms\n";

// Requests, one line each
inline constexpr char KeyAttribute[] = "ProtocolThread::process MD_FUNCTION_CODE_KEY_ATTRIBUTE Layoutid:%d "
                                       "pageid:%d keyid:%d fid:%d attrbuteid:%d timeout:%d\n";
inline constexpr char HardwareVersion[] = "ProtocolThread::process MD_FUNCTION_CODE_HARDWARE_VERSION \n";
inline constexpr char SoftwareVersion[] = "ProtocolThread::process MD_FUNCTION_CODE_SOFTWARE_VERSION \n";
inline constexpr char ReadVersion[] = "processReadDevVersion isSoft:%d\n";
inline constexpr char ConfigFile[] = "ProtocolThread::process MD_FUNCTION_CODE_CONFIGFILE \n";
inline constexpr char SelectPage[] =
    "ProtocolThread::process MD_FUNCTION_CODE_SELECT_PAGE Layoutid:%d pageid:%d\n";
inline constexpr char SelectPageDetail[] = "processSelectPage layoutid:%d, pageid:%d\n";
inline constexpr char ReadConfigFile[] =
    "ProtocolThread::process MD_FUNCTION_CODE_READ_CONFIGFILE Layoutid:%d pageid:%d\n";
inline constexpr char ReadConfigFileDetail[] = "processReadDeviceAllKeyboard layoutid:%d, pageid:%d\n";
inline constexpr char Upgrade[] = "ProtocolThread::process MD_FUNCTION_CODE_UPGRADE upgrade:%s\n";
inline constexpr char CustomLayoutSet[] = "ProtocolThread::process MD_FUNCTION_CODE_CUSTOMLAYOUT_SET \n";
inline constexpr char CustomLayoutSetDetail[] = "processCustomLayoutSet layoutid:%d, pageid:%d\n";
inline constexpr char CustomLayoutDel[] = "ProtocolThread::process MD_FUNCTION_CODE_CUSTOMLAYOUT_DEL \n";
inline constexpr char CustomLayoutDelDetail[] = "processCustomLayoutDel layoutid:%d, pageid:%d\n";
inline constexpr char DelConfigFile[] =
    "ProtocolThread::process MD_FUNCTION_CODE_DEL_CONFIGFILE Layoutid:%d pageid:%d\n";
inline constexpr char LcdLight[] = "ProtocolThread::process MD_FUNCTION_CODE_LCD_LIGHT  lcd light:%d\n";
inline constexpr char LcdLightQuery[] = "processGetDevLcdLight\n";
inline constexpr char LcdLightSet[] = "processSetDevLcdLight layoutid:%d, pageid:%d\n";
inline constexpr char HomeLayout[] = "ProtocolThread::process MD_FUNCTION_CODE_HOME_LAYOUT %d\n";
inline constexpr char HomeLayoutQuery[] = "processGetHomeLayoutInfo\n";
inline constexpr char SystemType[] = "ProtocolThread::process MD_FUNCTION_CODE_SYSTEM_TYPE  :%d\n";
inline constexpr char SystemTypeDetail[] = "processSetUserSystemType layoutid:%d\n";
inline constexpr char UploadFile[] = "ProtocolThread::process MD_FUNCTION_CODE_UPLOAD_FILE \n";
inline constexpr char UnknownKind[] =
    "ProtocolThread::process Functioncode:%d Layoutid:%d keyid:%d fid:%d attrbuteid:%d\n";

// Operations on files and layouts
inline constexpr char NoConfigFile[] = "no configuration file to send: none was written or read yet\n";
inline constexpr char NoUploadFile[] = "upload %s error: %s\n";
inline constexpr char NoCustomLayout[] = "custom layout %d does not exist\n";
inline constexpr char CustomLayoutTitle[] = "------nNum/strTitle=%d/%s\n";
inline constexpr char CustomLayoutKey[] = "------key_no/keyf_no/keye_no=%d/%d/%d\n";

// Key attributes
inline constexpr char NoKeyRecord[] = "no key attribute record lid:%d pageid:%d kid:%d\n";
inline constexpr char ImageEffects[] = "processImageEffectsAttribute nImageEffects:%d\n";
inline constexpr char DisplayMode[] = "processDisplayModeAttribute nDisplaymode:%d\n";
inline constexpr char TitleAlignment[] = "processTitleAlignmentAttribute nTitleAlignment:%d\n";
inline constexpr char Title[] = "processTitleAttribute strTitle:%s\n";
inline constexpr char TitleFontSize[] = "processTitleFontSizeAttribute nTitleFontSize:%d\n";
inline constexpr char FunctionId[] = "processFunctionIdAttribute fid:%d\n";
inline constexpr char AppOrUrl[] = "processAppOrUrlAttribute strAppOrUrl:%s\n";
inline constexpr char TextOutput[] = "processTextOutputAttribute strText:%s\n";
inline constexpr char TitleColour[] = "processDisplayModeAttribute color r:%d g:%d b:%d\n";
inline constexpr char ClearKey[] = "processClearKeyAttribute layoutid:%d, pageid:%d, keyid:%d\n";
inline constexpr char KeyCodes[] = "--------nKey1[%02X] nKey2[%02X] nKey3[%02X] nKey4[%02X] ";
inline constexpr char KeyCombination[] = "processKeyCombinationAttribute KeyCombination:%s\n";
inline constexpr char MultiActions[] = "processKeyMultiActionsAttribute layoutid:%d, pageid:%d\n";
inline constexpr char MultiActionKey[] = "KeyInfo:%d/%d/%d\n";
inline constexpr char MultiActionStep[] = "  Action:fid:%d delay:%d url:%s\n";
inline constexpr char MultiActionItem[] = "-----fid-------byteArryItem=%d %s\n";
inline constexpr char MultiActionAll[] = "-----all-------byteArry=%s\n";
inline constexpr char MultiActionCut[] = "action %d of lid:%d pageid:%d kid:%d is cut to 128 bytes\n";
inline constexpr char NoPicture[] = "no picture to send lid:%d pageid:%d kid:%d\n";
inline constexpr char NotAVideo[] = "not a file";
inline constexpr char NoVideo[] = "no video to send [%s]: %s\n";

// Firmware upgrade: lines for the log, then those for the dialog
inline constexpr char UpgradeDelay[] = "milliseconds:%d\n";
inline constexpr char UpgradeEnded[] = "the upgrade ended at the step: %s\n";
inline constexpr char UpgradeTransferBegins[] = "begin transfer upgrade file\n";
inline constexpr char UpgradeTransferOk[] = "transfer upgrade file success";
inline constexpr char UpgradeFile[] = "upgrade file:%s  timeout:%d ms";
inline constexpr char UpgradeOpenFailed[] = "open %s error";
inline constexpr char UpgradeOpened[] = "open %s";
inline constexpr char UpgradeFileSize[] = "filesize: %d filecrc16:0x%04x";
inline constexpr char UpgradeHidOpen[] = "open the hid success";
inline constexpr char UpgradeRequestError[] = "send request upgrade error";
inline constexpr char UpgradeRequestOk[] = "send upgrade request ok";
inline constexpr char UpgradeRequestFailed[] = "Failed to request upgrade";
inline constexpr char UpgradeResponseError[] = "receive upgrade response error";
inline constexpr char UpgradeResponseOk[] = "receive upgrade response success";
inline constexpr char UpgradeReplyCode[] = "function code:0x%02x";
inline constexpr char UpgradeReplyLength[] = "length:0x%08x(%d)";
inline constexpr char UpgradeReplySubcode[] = "subcode:0x%02x";
inline constexpr char UpgradeRequested[] = "request upgrade success";
inline constexpr char EraseRequestError[] = "send ereasue request error";
inline constexpr char EraseRequestOk[] = "send ereasue request ok";
inline constexpr char EraseResponseError[] = "receive ereasue response error";
inline constexpr char EraseResponseOk[] = "receive ereasue response success";
inline constexpr char UpgradeBlockOk[] = "transfer %d block data ok";
inline constexpr char UpgradeTransferError[] = "transfer upgrade file error";
inline constexpr char UpgradeTransferFailed[] = "Failed to transfer upgrade data";
inline constexpr char UpgradeTransferred[] = "transfer upgrade data success";
inline constexpr char CrcBegin[] = "begin receive crc16";
inline constexpr char CrcError[] = "receive crc16 error";
inline constexpr char CrcFailed[] = "Failed to receive crc";
inline constexpr char CrcReceived[] = "receive crc16:0x%04x";
inline constexpr char CrcBoth[] = "file crc:0x%04x  receive crc:0x%04x";
inline constexpr char CrcEqual[] = "check crc success";
inline constexpr char CrcDifferent[] = "check crc fail";
inline constexpr char UpgradeDone[] = "upgrade success";
inline constexpr char UpgradeRestart[] = "please wait for device restart!";
inline constexpr char UpgradeStatusError[] = "send upgrade status error";

} // namespace ProtocolText
