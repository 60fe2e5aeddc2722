/// Colours and style sheets that several windows share.
#pragma once

#include <QColor>

namespace Style {

inline constexpr QRgb PageBackground = qRgb(51, 51, 51);
inline constexpr QRgb Highlight = qRgb(0, 160, 255);
inline constexpr QRgb InactiveCell = qRgb(108, 108, 108);

// For the window alone: without the name, every widget in it would get the colour.
inline constexpr char Window[] = "#mainwindow {background-color:rgb(255,255,255)}";
inline constexpr char MainFrame[] =
    "#mainframe, #mainframe QLabel {background-color: rgb(51, 51, 51);color: white;}";
// Its border and background are its own; this is the rest.
inline constexpr char HomeButton[] = "#homeButton {color: white;padding: 8px 24px;margin: 8px 0 0 8px;}"
                                     "#homeButton:hover, #homeButton:focus {color: rgb(0, 160, 255);}";
// Context menus, wherever they open.
inline constexpr char Menu[] =
    "QMenu {background-color: rgb(36, 36, 36);color: white;border: 1px solid rgb(108, 108, 108);}"
    "QMenu::item {padding: 6px 24px;}"
    "QMenu::item:selected {background-color: rgb(0, 160, 255);}"
    "QMenu::item:disabled {color: rgb(108, 108, 108);}"
    "QMenu::separator {height: 1px;background-color: rgb(70, 70, 70);}";
// The whole window's.
inline constexpr char ScrollBars[] =
    "QScrollBar:vertical {background-color: transparent;width: 10px;margin: 0px;}"
    "QScrollBar:horizontal {background-color: transparent;height: 10px;margin: 0px;}"
    "QScrollBar::handle {background-color: rgb(92, 92, 92);border-radius: 4px;min-height: 20px;min-width: "
    "20px;}"
    "QScrollBar::handle:hover {background-color: rgb(108, 108, 108);}"
    "QScrollBar::add-line, QScrollBar::sub-line {width: 0px;height: 0px;}"
    "QScrollBar::add-page, QScrollBar::sub-page {background-color: transparent;}";
// The pages beside the editor.
inline constexpr char Page[] =
    "QLabel, QRadioButton {color: white;font-size: 14px;}"
    "QRadioButton::indicator {width: 14px;height: 14px;border: 2px solid rgb(160, 160, 160);border-radius: "
    "9px;}"
    "QRadioButton::indicator:checked {background-color: rgb(0, 160, 255);border-color: white;}"
    "QRadioButton:focus, QCheckBox:focus {color: rgb(0, 160, 255);}"
    "QCheckBox {color: white;font-size: 14px;}"
    "QCheckBox::indicator {width: 14px;height: 14px;border: 2px solid rgb(160, 160, 160);border-radius: 3px;}"
    "QCheckBox::indicator:checked {background-color: rgb(0, 160, 255);border-color: white;}"
    "QLineEdit, QListWidget, QPushButton {font-size: 14px;}"
    "#caption {font-size: 20px;}"
    "QListWidget::item {padding: 8px 4px;}"
    "QListWidget::item:selected {background-color: rgb(0, 160, 255);color: white;}";
inline constexpr char Slider[] =
    "QSlider::groove:horizontal {background-color: rgb(92, 92, 92);height: 4px;border-radius: 2px;}"
    "QSlider::sub-page:horizontal {background-color: rgb(0, 160, 255);border-radius: 2px;}"
    "QSlider::sub-page:horizontal:disabled {background-color: rgb(92, 92, 92);}"
    "QSlider::handle:horizontal {background-color: white;width: 14px;margin: -5px 0;border-radius: 7px;}"
    "QSlider::handle:horizontal:focus {background-color: rgb(0, 160, 255);border: 1px solid white;}"
    "QSlider::handle:horizontal:disabled {background-color: rgb(108, 108, 108);}";
inline constexpr char StatusFrame[] =
    "#statusframe, #statusframe QLabel {background-color: rgb(40, 40, 40);color: white;font-size: 13px;}";
inline constexpr char FuncTabFrame[] =
    "#functabframe {background-color: rgb(46, 46, 46);}"
    "FrameIconButton {background-color: rgb(58, 58, 58);border-radius: 4px;}"
    "FrameIconButton:hover, FrameIconButton:focus {background-color: rgb(78, 78, 78);}";
inline constexpr char GalleryFrame[] =
    "#galleryframe, #galleryframe QLabel {background-color: rgb(46, 46, 46);color: white;}"
    "#galleryframe QLabel, #galleryframe QListView, #galleryframe QPushButton {font-size: 13px;}"
    "#galleryframe QPushButton {padding: 5px 8px;}";

inline constexpr char MessageBox[] =
    "QMessageBox {background-color: rgb(51, 51, 51);} "
    "QMessageBox QLabel {color: white;background-color: transparent;} "
    "QMessageBox QPushButton {background-color: rgb(70, 70, 70);color: white;border: 1px solid rgb(108, 108, "
    "108);"
    "border-radius: 4px;padding: 6px 16px;min-width: 60px;} "
    "QMessageBox QPushButton:hover, QMessageBox QPushButton:focus {border-color: rgb(0, 160, 255);} ";

// What people type and choose in, on a dark page.
inline constexpr char Fields[] =
    "QLineEdit, QPlainTextEdit, QSpinBox, QComboBox, QListWidget, QListView {background-color: rgb(36, 36, "
    "36);"
    "color: white;border: 1px solid rgb(92, 92, 92);border-radius: 4px;padding: 3px 6px;"
    "selection-background-color: rgb(0, 160, 255);selection-color: white;}"
    "QLineEdit:focus, QPlainTextEdit:focus, QSpinBox:focus, QComboBox:focus, QListWidget:focus, "
    "QListView:focus"
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
