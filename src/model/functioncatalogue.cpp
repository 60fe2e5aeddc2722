#include "model/functioncatalogue.h"

#include "model/functionids.h"

#include <algorithm>
#include <array>

namespace vorlinmodel::FunctionCatalogue {

namespace {

struct Row
{
    int fid;
    int textId;
    const char *icon;
};

// 11 and 12 (previous and next page) have texts but are deliberately absent here.
constexpr std::array Functions = {
    Row{MULTIPLE_ACTIONS_FID, 37, ":/icon/function_icon/Multi_act_90x84.png"},
    Row{5, 38, ":/icon/function_icon/Play_Stop_90x84.png"},
    Row{6, 39, ":/icon/function_icon/Volume_up_90x84.png"},
    Row{7, 40, ":/icon/function_icon/Volume_down_90x84.png"},
    Row{8, 41, ":/icon/function_icon/Mute_90x84.png"},
    Row{9, 42, ":/icon/function_icon/Previous_paragraph_90x84.png"},
    Row{10, 43, ":/icon/function_icon/Next_paragraph_90x84.png"},
    Row{13, 46, ":/icon/function_icon/Brightness_90x84.png"},
    Row{14, 47, ":/icon/function_icon/Brightnessdown_90x84.png"},
};

constexpr std::array Shortcuts = {
    Row{TEXT_OUTPUT_FID, 48, ":/icon/shortcut_icon/Hot_Key_90x84.png"},
    Row{KEY_COMBINATION_FID, 49, ":/icon/shortcut_icon/Hot_Key_Compund_Key_90x84.png"},
    Row{CHILDREN_PAGE_FID, 102, ":/icon/Hot_Key_Children_Key.png"},
    Row{RETURN_MAIN_FID, 103, ":/icon/Hot_Key_Children_Back.png"},
    Row{TIME_DELAY_FID, 101, ":/icon/Time_delay.png"},
};

constexpr std::array TextOnly = {
    Row{HOME_PAGE_FID, 34, ""},
    Row{OPEN_FILE_FID, 35, ""},
    Row{OPEN_WEB_FID, 36, ""},
    Row{11, 44, ""},
    Row{12, 45, ""},
};

constexpr std::array EmptyContentIcons = {
    Row{TEXT_OUTPUT_FID, 0, ":/icon/shortcut_icon/text_output_empty.png"},
    Row{KEY_COMBINATION_FID, 0, ":/icon/shortcut_icon/key_combination_empty.png"},
    Row{CHILDREN_PAGE_FID, 0, ":/icon/child_page_empty.png"},
    Row{MULTIPLE_ACTIONS_FID, 0, ":/icon/function_icon/multi_act_empty.png"},
};

template <typename List>
const Row *rowOf(const List &list, int fid)
{
    const auto row = std::find_if(list.begin(), list.end(), [fid](const Row &r) { return r.fid == fid; });
    return row == list.end() ? nullptr : &*row;
}

template <typename List>
int fidAt(const List &list, int position)
{
    if (position < 0 || position >= int(list.size()))
        return 0;
    return list[size_t(position)].fid;
}

QString iconOf(const Row *row)
{
    return row ? QString::fromLatin1(row->icon) : QString();
}

int textIdOf(const Row *row)
{
    return row ? row->textId : 0;
}

} // namespace

int functionCount()
{
    return int(Functions.size());
}

int functionFid(int position)
{
    return fidAt(Functions, position);
}

QString functionIcon(int fid)
{
    return iconOf(rowOf(Functions, fid));
}

int shortcutCount()
{
    return int(Shortcuts.size());
}

int shortcutFid(int position)
{
    return fidAt(Shortcuts, position);
}

int shortcutTextId(int fid)
{
    return textIdOf(rowOf(Shortcuts, fid));
}

QString shortcutIcon(int fid)
{
    return iconOf(rowOf(Shortcuts, fid));
}

QString defaultIcon(int fid)
{
    return fid < TEXT_OUTPUT_FID ? functionIcon(fid) : shortcutIcon(fid);
}

int textId(int fid)
{
    for (const Row *row : {rowOf(Functions, fid), rowOf(Shortcuts, fid), rowOf(TextOnly, fid)}) {
        if (row)
            return row->textId;
    }
    return 0;
}

QString withContentIcon(int fid, const QString &image)
{
    const Row *empty = rowOf(EmptyContentIcons, fid);
    return empty && image == QLatin1String(empty->icon) ? defaultIcon(fid) : image;
}

} // namespace vorlinmodel::FunctionCatalogue
