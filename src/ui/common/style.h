/// Colours and style sheets that several windows share.
#pragma once

#include <QColor>

namespace Style {

inline constexpr QRgb PageBackground = qRgb(51, 51, 51);
inline constexpr QRgb Highlight = qRgb(0, 160, 255);
inline constexpr QRgb InactiveCell = qRgb(108, 108, 108);

inline constexpr char Window[] = "background-color:rgb(255,255,255)";
inline constexpr char MainFrame[] =
    "#mainframe, #mainframe QLabel {background-color: rgb(51, 51, 51);color: white;}";
inline constexpr char StatusFrame[] =
    "#statusframe, #statusframe QLabel {background-color: rgb(40, 40, 40);color: white;}";

inline constexpr char MessageBox[] =
    "QMessageBox {background-color: rgb(51, 51, 51);} "
    "QMessageBox QLabel {color: white;background-color: transparent;} "
    "QMessageBox QPushButton {background-color: rgb(70, 70, 70);color: white;border: 1px solid rgb(108, 108, 108);"
    "border-radius: 4px;padding: 6px 16px;min-width: 60px;} "
    "QMessageBox QPushButton:hover, QMessageBox QPushButton:focus {border-color: rgb(0, 160, 255);} ";

// What people type and choose in, on a dark page.
inline constexpr char Fields[] =
    "QLineEdit, QPlainTextEdit, QSpinBox, QComboBox, QListWidget, QListView {background-color: rgb(36, 36, 36);"
    "color: white;border: 1px solid rgb(92, 92, 92);border-radius: 4px;padding: 3px 6px;"
    "selection-background-color: rgb(0, 160, 255);selection-color: white;}"
    "QLineEdit:focus, QPlainTextEdit:focus, QSpinBox:focus, QComboBox:focus, QListWidget:focus, QListView:focus"
    " {border-color: rgb(0, 160, 255);}"
    "QLineEdit:disabled, QPlainTextEdit:disabled, QSpinBox:disabled, QComboBox:disabled"
    " {color: rgb(108, 108, 108);border-color: rgb(70, 70, 70);}"
    "QComboBox QAbstractItemView {background-color: rgb(36, 36, 36);color: white;"
    "selection-background-color: rgb(0, 160, 255);}"
    "QToolTip {background-color: rgb(36, 36, 36);color: white;border: 1px solid rgb(108, 108, 108);}";

// All frames carry the same kind of button.
inline constexpr char Button[] =
    "QPushButton {background-color: rgb(70, 70, 70);color: white;border: 1px solid rgb(108, 108, 108);"
    "border-radius: 4px;padding: 6px 16px;}"
    "QPushButton:hover, QPushButton:focus {border-color: rgb(0, 160, 255);}"
    "QPushButton:pressed {background-color: rgb(0, 160, 255);}"
    "QPushButton:disabled {color: rgb(108, 108, 108);border-color: rgb(80, 80, 80);}";

} // namespace Style
