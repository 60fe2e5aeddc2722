/// How the editor of multiple actions looks, beside what all windows share.
#pragma once

namespace StepStyle {

inline constexpr char Page[] =
    "MultiActionWidget {background-color: rgb(51, 51, 51);}"
    "MultiActionWidget QLabel {color: white;background-color: transparent;}"
    "MultiActionWidget #steps {padding: 2px;outline: none;}"
    "MultiActionWidget #steps QLineEdit, MultiActionWidget #steps QSpinBox {padding: 4px 6px;}"
    "MultiActionWidget #steps QSpinBox QLineEdit {border: none;padding: 0px;}"
    "MultiActionWidget #steps QPlainTextEdit {padding: 0px 2px;}"
    "MultiActionWidget #steps QPushButton {padding: 5px 8px;text-align: left;"
    "background-color: rgb(36, 36, 36);border-color: rgb(92, 92, 92);}"
    "MultiActionWidget #steps QPushButton:focus {border-color: rgb(0, 160, 255);}"
    "MultiActionWidget QToolButton {background-color: rgb(70, 70, 70);color: white;"
    "border: 1px solid rgb(108, 108, 108);border-radius: 4px;padding: 2px;}"
    "MultiActionWidget QToolButton:hover, MultiActionWidget QToolButton:focus {border-color: rgb(0, 160, "
    "255);}"
    "MultiActionWidget QToolButton:pressed {background-color: rgb(0, 160, 255);}"
    "#keyChoice {background-color: rgb(51, 51, 51);border: 1px solid rgb(108, 108, 108);}"
    "#keyChoice QComboBox::drop-down {border: none;width: 18px;}";

inline constexpr char Title[] = "font-weight: bold;";
inline constexpr char Fault[] = "color: rgb(255, 96, 96);";
inline constexpr char Counter[] = "color: rgb(170, 170, 170);";
inline constexpr char FaultCounter[] = "color: rgb(255, 96, 96);font-weight: bold;";
inline constexpr char DropLine[] = "background-color: rgb(0, 160, 255);border-radius: 1px;";

} // namespace StepStyle
