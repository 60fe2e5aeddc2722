/// Looks of the virtual panel's window.
#pragma once

#include <QColor>

namespace PanelStyle {

extern const char *const Window;  ///< style sheet
extern const char *const Plugged; ///< style sheet of the state label
extern const char *const Unplugged;
extern const char *const Calm; ///< style sheet of the count of violations: none
extern const char *const Alarm;

constexpr int KeyGap = 14; // pixels between two LCDs
constexpr int BezelMargin = 26;
constexpr int KeyRadius = 10;
constexpr int BezelRadius = 24;

const QColor Highlight(0, 160, 255);

} // namespace PanelStyle
