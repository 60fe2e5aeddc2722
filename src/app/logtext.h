/// The fixed log lines of start-up.
#pragma once

namespace LogText {

inline constexpr char NoDataFolder[] = "no folder for the program's files can be used\n";
inline constexpr char InitLanguageManagerError[] = "init language manager error\n";
inline constexpr char InitFunctionManagerError[] = "init function manager error\n";
inline constexpr char NewProtocolThread[] = "new protocol thread\n";
inline constexpr char InitProtocolThread[] = "init protocol thread\n";
inline constexpr char InitProtocolThreadError[] = "init protocol thread error\n";
inline constexpr char InitProtocolStart[] = "init protocol start\n";
inline constexpr char FfmpegTool[] = "ffmpeg:%s\n";
inline constexpr char NewWidget[] = "new Widget\n";
inline constexpr char NewMainWidgetError[] = "new main widget error\n";

} // namespace LogText
