/// The fixed log lines of the main window.
#pragma once

namespace LogText {

inline constexpr char SetupStatusFrameError[] = "setup status frame error\n";
inline constexpr char SetupIconListFrameError[] = "setup icon list frame error\n";
inline constexpr char SetupFunctionTabFrameError[] = "setup function tab frame error\n";
inline constexpr char SetupMainFrameError[] = "setup main frame error\n";

inline constexpr char SelectPage[] = "select id:%d\n";
inline constexpr char SetupFunctionConfigError[] = "setup function config widget error\n";
inline constexpr char SetupLayoutPageError[] = "setup pannel layout config widget error\n";
inline constexpr char SetupPictureUploadError[] = "setup picture upload widget error\n";
inline constexpr char SetupSystemSettingsError[] = "setup  system config widget error\n"; // two blanks

inline constexpr char FirstSync[] = "----------------mIsFirstSync=%d\n";
inline constexpr char StartAutoSync[] = "-------------------start auto----sync devinfo--------";
inline constexpr char SyncDevInfo[] = "----------------slotSyncDevInfo\n";
inline constexpr char ProtocolSendResult[] = "--------------slotDealProtocolSendResult-----nResult=[%d]\n";
inline constexpr char RefreshAll[] = "--refreshall key ui-nLayoutId[%d]-nPageId[%d]\n";

inline constexpr char ShowWaitingDialog[] = "-----showWaitingDialog---------nRequestId=[%d]\n";
inline constexpr char SetShowTime[] = "--------------setShowTime-----_requestId[%d]\n";
inline constexpr char StopSpinner[] = "--------------stop-----_requestId[%d]\n";

inline constexpr char ReceiveStart[] = "------------dealRecvData---start---nBufferLen=[%d]\n";
inline constexpr char ReceiveEnd[] = "--------------dealRecvData-----end--\n";
inline constexpr char KeyAttribute[] =
    "----saveKeyAttrByDevconfig Layoutid[%d] Pageid[%d] Keyid[%d] nAttrbuteid[%d]\n";
inline constexpr char KeyImages[] = "--recv key image-nTotal[%d]-nRecvNum[%d]\n";
inline constexpr char DeleteCustomLayout[] = "----------------sigDeleteCustomPanelLayout\n";
inline constexpr char LcdLight[] = "--------------MD_FUNCTION_CODE_LCD_LIGHT-----light:%d %d\n";
inline constexpr char HomeLayoutReceived[] = "--------------MD_FUNCTION_CODE_HOME_LAYOUT-----\n";
inline constexpr char SystemType[] = "--------------MD_FUNCTION_CODE_SYSTEM_TYPE-----type:%d\n";

inline constexpr char HomePageOk[] = "open home page ok";
inline constexpr char HomePageFail[] = "open home page fail";
inline constexpr char OpenOk[] = "open %s ok\n";
inline constexpr char OpenFail[] = "open %s fail\n";

// Not asked for by anybody, but what a person who reads the log looks for first.
inline constexpr char HardwareVersion[] = "Hardware version of the panel: %s\n";
inline constexpr char SoftwareVersion[] = "Software version of the panel: %s\n";
inline constexpr char ReadRequested[] = "Reading the configuration of the panel\n";
inline constexpr char ReadFinished[] = "Configuration read: %d keys on %d pages\n";
inline constexpr char ReadGivenUp[] =
    "The configuration was not read to its end: %d of %d keys on %d pages\n";
inline constexpr char ReadAgain[] =
    "The link to the panel was interrupted, its configuration is read again\n";
inline constexpr char TextStaysOnClipboard[] =
    "Ctrl+V cannot be pressed here, the text stays on the clipboard\n";
inline constexpr char KeysNotSaved[] = "The keys could not be written to the disk at the end\n";
inline constexpr char SetupDialogError[] = "The dialog %s could not be set up\n";
inline constexpr char PanelReset[] = "The panel is cleared, and the computer: %d; saved before in [%s]\n";
inline constexpr char NoWorkerThread[] = "No thread for a received message (%s), it is handled in between\n";

} // namespace LogText
