/// Fixed texts of this layer: names of log files, and the formats of its log lines.
#pragma once

namespace vorlindesk::LogText {

inline constexpr char InfoTag[] = "[Info]";
inline constexpr char WarnTag[] = "[Warn]";
inline constexpr char ErrorTag[] = "[Error]";
inline constexpr char DebugTag[] = "[debug]";

inline constexpr char FileName[] = "application_%08d.log"; // the date as yyyyMMdd
inline constexpr char FileWildcard[] = "application_????????.log";
inline constexpr char DateFormat[] = "yyyyMMdd";
inline constexpr int DatePosition = 12; // of the date in FileName
inline constexpr int DateLength = 8;

inline constexpr char CannotOpen[] = "cannot open the log file %s\n";

inline constexpr char OperatingSystem[] = "OS:%s\n";
inline constexpr char Kernel[] = "Kernel:%s\n";
inline constexpr char KernelVersion[] = "Kernel Version:%s\n";
inline constexpr char CpuArchitecture[] = "CPU Architecture:%s\n";
inline constexpr char BuildAbi[] = "Build ABI:%s\n";

inline constexpr char CreatePathSuccess[] = "createPath %s success\n";
inline constexpr char CreatePathFail[] = "createPath %s fail\n";
inline constexpr char CreateRuntimePath[] = "CreateRuntimePath %d  %s\n"; // the two blanks are wanted
inline constexpr char NoUsableFolder[] = "no folder to write to: %s\n";

inline constexpr char DeviceRecord[] = "strIniFile:%s strDevicePath:%s ver:%d\n";
inline constexpr char IniDamaged[] = "%s is damaged, kept aside as %s\n";
inline constexpr char IniNotKept[] = "%s is damaged, and could not be kept aside as %s\n";
inline constexpr char IniUnreadable[] = "%s cannot be read\n";
inline constexpr char IniNotWritten[] = "%s cannot be written\n";

inline constexpr char SetLanguage[] = "setLang settings=%d\n";
inline constexpr char NoTranslation[] = "cannot load the translation %s\n";

} // namespace vorlindesk::LogText
