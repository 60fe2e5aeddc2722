#include "keynames.h"

#include <algorithm>
#include <array>

namespace KeyNames {

namespace {

struct Row
{
    const char *name;
    quint8 code;
};

constexpr char Undefined[] = "undefine"; // as the stored configurations spell it

// The first row with a code names it: 79 reads back as "PageDown", which it shares with "RightArrow".
// Some values depart from the standard usages on purpose, since the panel expects them so: "PageUp" is 78 (no
// name has 75) and "PageDown" 79; "@" and "!" stand one below their keypad usages.
constexpr std::array Table{
    Row{"Windows", 227},
    Row{"Alt", 226},
    Row{"Left Ctrl", 224},
    Row{"Right Ctrl", 228},
    Row{"Left Shift", 225},
    Row{"Right Shift", 229},
    Row{"Alt gr", 230},
    Row{"Enter", 40},
    Row{"Space", 44},
    Row{"Caps Lock", 57},
    Row{"Delete", 42},
    Row{"Delete Forward", 76},
    Row{"Tab", 43},
    Row{"ESC", 41},
    Row{"Home", 74},
    Row{"PrintScreen", 70},
    Row{"Scroll Lock", 71},
    Row{"Pause", 72},
    Row{"Insert", 73},
    Row{"PageUp", 78},
    Row{"PageDown", 79},
    Row{"RightArrow", 79},
    Row{"LeftArrow", 80},
    Row{"DownArrow", 81},
    Row{"UpArrow", 82},
    Row{"Num Lock", 83},
    Row{"F1", 58},
    Row{"F2", 59},
    Row{"F3", 60},
    Row{"F4", 61},
    Row{"F5", 62},
    Row{"F6", 63},
    Row{"F7", 64},
    Row{"F8", 65},
    Row{"F9", 66},
    Row{"F10", 67},
    Row{"F11", 68},
    Row{"F12", 69},
    Row{"END", 77},
    Row{"A", 4},
    Row{"B", 5},
    Row{"C", 6},
    Row{"D", 7},
    Row{"E", 8},
    Row{"F", 9},
    Row{"G", 10},
    Row{"H", 11},
    Row{"I", 12},
    Row{"J", 13},
    Row{"K", 14},
    Row{"L", 15},
    Row{"M", 16},
    Row{"N", 17},
    Row{"O", 18},
    Row{"P", 19},
    Row{"Q", 20},
    Row{"R", 21},
    Row{"S", 22},
    Row{"T", 23},
    Row{"U", 24},
    Row{"V", 25},
    Row{"W", 26},
    Row{"X", 27},
    Row{"Y", 28},
    Row{"Z", 29},
    Row{"1", 30},
    Row{"2", 31},
    Row{"3", 32},
    Row{"4", 33},
    Row{"5", 34},
    Row{"6", 35},
    Row{"7", 36},
    Row{"8", 37},
    Row{"9", 38},
    Row{"0", 39},
    Row{"-", 45},
    Row{"+", 46},
    Row{"[", 47},
    Row{"]", 48},
    Row{"\\", 49},
    Row{";", 51},
    Row{"'", 52},
    Row{"~", 53},
    Row{",", 54},
    Row{".", 55},
    Row{"/", 56},
    Row{"^", 195},
    Row{"%", 196},
    Row{"<", 197},
    Row{">", 198},
    Row{"&", 199},
    Row{"&&", 200},
    Row{"|", 201},
    Row{"||", 202},
    Row{":", 203},
    Row{"#", 204},
    Row{"@", 205},
    Row{"!", 206},
};

} // namespace

quint8 code(const QString &name)
{
    const auto row = std::ranges::find_if(Table, [&](const Row &r) { return name == QLatin1String(r.name); });
    return row != Table.end() ? row->code : quint8{0};
}

QString name(quint8 code)
{
    const auto row = std::ranges::find(Table, code, &Row::code);
    return QLatin1String(row != Table.end() ? row->name : Undefined);
}

QStringList all()
{
    QStringList names;
    for (const Row &row : Table)
        names.append(QLatin1String(row.name));
    return names;
}

} // namespace KeyNames
