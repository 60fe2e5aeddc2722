/// How the attribute editor and its parts look, beside what all windows share.
#pragma once

namespace AttributeStyle {

inline constexpr int Gap = 4;        // pixels between what belongs together
inline constexpr int RowGap = 6;     // between rows
inline constexpr int ColumnGap = 10; // between columns

inline constexpr char Page[] = "QWidget {background-color: rgb(51, 51, 51);color: white;}";

// Comes behind the shared styles. A line edit inside another field must not get a frame of its own.
inline constexpr char Parts[] =
    "QComboBox QLineEdit, QSpinBox QLineEdit {border: none;padding: 0px;}"
    "QComboBox:editable {padding: 3px 0px 3px 4px;}"
    "QComboBox::drop-down {border: none;width: 15px;}"
    "QPushButton {padding: 4px 5px;}"
    "QPushButton[segment=\"true\"] {padding: 4px 3px;}"
    "QPushButton:checked {background-color: rgb(0, 160, 255);border-color: rgb(0, 160, 255);}"
    "#colourPalette {border: 1px solid rgb(108, 108, 108);}"
    "QSlider::groove:horizontal {height: 4px;background: rgb(92, 92, 92);border-radius: 2px;}"
    "QSlider::sub-page:horizontal {background: rgb(0, 160, 255);border-radius: 2px;}"
    "QSlider::handle:horizontal {width: 14px;margin: -5px 0px;border-radius: 7px;background: white;}"
    "QSlider::handle:horizontal:focus {background: rgb(0, 160, 255);border: 1px solid white;}";

inline constexpr char Header[] = "font-weight: bold;";
inline constexpr char Aside[] = "color: rgb(170, 170, 170);";
inline constexpr char Problem[] = "color: rgb(255, 120, 120);";
inline constexpr char Notice[] = "color: rgb(255, 190, 90);";
inline constexpr char MarkedField[] =
    "QLineEdit, QPlainTextEdit, QLineEdit:focus, QPlainTextEdit:focus {border-color: rgb(255, 90, 90);}";

} // namespace AttributeStyle
