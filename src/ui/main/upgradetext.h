/// Fixed log lines, fixed texts and style sheets of the upgrade dialog and the network settings dialog. Odd
/// spellings are wanted: people and scripts look for these lines, and the manual shows these texts.
#pragma once

namespace UpgradeText {

inline constexpr char Selected[] = "HIDUpgradeDialog::onSelectButtonClicked %s\n";
inline constexpr char Ready[] = "----222---------mIsTimerUpdateFinished=%s";
inline constexpr char TimerOut[] = "onSlotTimerUpdateOut mIsTimerUpdateFinished[%d]\n";
inline constexpr char Available[] = "---------------updateAvailable---nResult=%d";
inline constexpr char Timeout[] = "set timeout %d ms\n";
inline constexpr char Backup[] = "Configuration saved before the upgrade: %s\n";
inline constexpr char NoBackup[] = "The configuration could not be saved before the upgrade\n";

// The same in every language.
inline constexpr char BusyTitle[] = "Title";
inline constexpr char Busy[] = "The upgrade is in progresss";
inline constexpr char CloseTitle[] = "Information";
inline constexpr char CloseQuestion[] = "In upgrading, confirm that you want to cancel";
inline constexpr char SetHidPath[] = "Set Hid Path";
inline constexpr char SetTimeout[] = "Set Timeout";

inline constexpr char DialogStyle[] = "background-color: rgb(51, 51, 51);";
inline constexpr char FieldStyle[] = "background-color: rgb(255, 255, 255);";
inline constexpr char LabelStyle[] = "color: rgb(255, 255, 255);\n";
inline constexpr char MessageFont[] =
    "font: 10pt \"Arial\";"; // here, since the window's style has a font, too
inline constexpr char BarStyle[] =
    "QProgressBar {background-color: rgb(36, 36, 36);color: white;border: 1px solid rgb(108, 108, 108);"
    "border-radius: 4px;text-align: center;}"
    "QProgressBar::chunk {background-color: rgb(0, 160, 255);border-radius: 3px;}";

} // namespace UpgradeText

namespace NetworkText {

inline constexpr char IpAddress[] = "onSetBtnClicked--strIPAddr[%s]\n";
inline constexpr char Netmask[] = "onSetBtnClicked--strNetmask[%s]\n";
inline constexpr char Gateway[] = "onSetBtnClicked--strGatwary[%s]\n";
inline constexpr char FactorySet[] = "onFactorySetBtnClicked";

// The same in every language.
inline constexpr char IpAddressLabel[] = "IP Addr";
inline constexpr char NetmaskLabel[] = "Netmask";
inline constexpr char GatewayLabel[] = "Gatwary";
inline constexpr char SetButton[] = "立即设置";            // set now
inline constexpr char FactorySetButton[] = "恢复出厂设置"; // restore factory settings

inline constexpr char OctetStyle[] = "background-color: white; font-size: 14px;";
inline constexpr char DotStyle[] = "font-size: 18px; font-weight: bold;color: white;";
inline constexpr char DialogStyle[] = "background-color: rgb(51, 51, 51);";
inline constexpr char LabelStyle[] = "color: white; font-size: 14px;";
inline constexpr char ButtonStyle[] = "background-color: #007bff; color: white; font: bold 14px;";
// The native frame would lay its shine over the colour.
inline constexpr char ButtonShape[] = "border: none; border-radius: 4px;";

} // namespace NetworkText
