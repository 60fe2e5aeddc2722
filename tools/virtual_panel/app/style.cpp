#include "style.h"

namespace PanelStyle {

const char *const Window = R"(
QWidget { font-family: Arial; font-size: 13px; }
QWidget#panelWindow { background-color: rgb(51, 51, 51); color: white; }
QLabel { color: rgb(225, 225, 225); }
QPushButton { color: white; background-color: rgb(76, 76, 78); border: none; border-radius: 6px; padding: 6px 14px; }
QPushButton:hover { background-color: rgb(92, 92, 95); }
QPushButton:pressed, QPushButton:checked { background-color: rgb(0, 160, 255); }
QPushButton:disabled { color: rgb(130, 130, 130); background-color: rgb(62, 62, 63); }
QPlainTextEdit { background-color: rgb(30, 30, 31); color: rgb(210, 210, 210); border: none; border-radius: 8px;
                 padding: 6px; font-family: monospace; font-size: 12px; }
QScrollBar:vertical { background: transparent; width: 10px; }
QScrollBar::handle:vertical { background: rgb(90, 90, 92); border-radius: 5px; min-height: 24px; }
QScrollBar::add-line, QScrollBar::sub-line { height: 0; width: 0; }
)";

const char *const Plugged =
    "color: rgb(20, 30, 20); background-color: rgb(96, 211, 120); border-radius: 9px; "
    "padding: 2px 10px; font-weight: bold;";
const char *const Unplugged =
    "color: rgb(230, 230, 230); background-color: rgb(108, 108, 108); border-radius: 9px; "
    "padding: 2px 10px; font-weight: bold;";
const char *const Calm = "color: rgb(150, 150, 150);";
const char *const Alarm = "color: rgb(255, 105, 97); font-weight: bold;";

} // namespace PanelStyle
