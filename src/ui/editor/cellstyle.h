/// Style sheets of the cells of a grid. Fixed texts: other tools compare them.
#pragma once

namespace CellStyle {

/// Until a key of the grid has been clicked.
inline constexpr char Untouched[] = "background-color: rgb(255, 255, 255);\nborder:1px "
                                    "solid;\nborder-radius: 10px;\nborder-color: rgb(108, 0, 0);";
inline constexpr char Selected[] = "background-color: rgb(0, 160, 255);\nborder:1px solid;\nborder-radius: "
                                   "10px;\nborder-color: rgb(0, 160, 255);";
inline constexpr char NotSelected[] =
    "background-color: rgb(108, 108, 108);\nborder:1px solid;\nborder-radius: "
    "10px;\nborder-color: rgb(108, 108, 108);";

inline constexpr char Icon[] = "border:1px solid;\nborder-radius: 10px;\nbackground-color: rgb(51, 51, "
                               "51);\nborder-color: rgb(51, 51, 51);";
inline constexpr char SelectedIcon[] = "border:1px solid;\nborder-radius: 10px;\nbackground-color: rgb(0, "
                                       "160, 255);\nborder-color: rgb(51, 51, 51);";

inline constexpr char Menu[] = "QMenu {background-color: rgb(36, 36, 36);color: white;border: 1px solid "
                               "rgb(108, 108, 108);padding: 4px;}"
                               "QMenu::item {padding: 6px 24px;}"
                               "QMenu::item:selected {background-color: rgb(0, 160, 255);}";

} // namespace CellStyle
