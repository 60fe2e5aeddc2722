/// Custom layouts of "devConfig/customLayout.ini": which physical keys form a logical one.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>
#include <optional>

namespace vorlinmodel {

class LayoutGrouping;

constexpr int MaxCustomLayouts = 20;
constexpr int FirstCustomLayout = 2;     ///< 1 is the standard layout
constexpr int LargestCustomLayout = 254; ///< travels in one byte; 255 as a home layout is a query

struct CustomLayoutKey
{
    quint32 mask = 0; ///< bit (p - 1) for each physical key p (1 to 15); 0 when the file has no valid one
    int firstPhysical = 0; ///< from the first and last item of "phyid", else from the mask; 0 when unknown
    int lastPhysical = 0;
    bool operator==(const CustomLayoutKey &) const = default;
};

struct CustomLayout
{
    int layoutId = 0;
    QString name;
    QVector<CustomLayoutKey> keys;     ///< logical keys 1 to n, in order
    QString background;                ///< file name in layoutPictureFolder(); empty: none
    QVector<int> backgroundPages;      ///< pages (1 to 16) that show it, ascending
    bool backgroundOnEmptyKeys = true; ///< also on keys that have no function otherwise
    bool operator==(const CustomLayout &) const = default;
};

CustomLayout customLayoutOf(int layoutId, const QString &name, const LayoutGrouping &grouping);
LayoutGrouping groupingOf(const CustomLayout &layout);

/// Ids of the custom layouts in the file, ascending; the standard layout (1) is not among them.
QVector<int> customLayoutIds();

/// Their names by id, in one reading of the file: each opening of a full file costs a millisecond.
QMap<int, QString> customLayoutNames();

/// Reads the group "layout_%1"; at most 15 keys are taken, whatever "num" says. A key whose mask is no
/// rectangle or overlaps an earlier key's counts as empty, so that the numbers of the others stay. Nothing
/// when there is no such group.
std::optional<CustomLayout> loadCustomLayout(int layoutId);

struct CustomLayouts
{
    QMap<int, CustomLayout> byId; ///< each as loadCustomLayout() reads it
    QStringList problems; ///< what is wrong in the file, one plain sentence each, naming layout and key
};
/// All of the file, in one reading.
CustomLayouts loadCustomLayouts();

/// Replaces the group of the layout; other groups, and entries of this one that are not ours, stay. When it
/// has problems the file is copied aside first. @return false, the file as it was, when it cannot be written.
bool saveCustomLayout(const CustomLayout &layout);

/// Removes the group; the same about problems and failures.
bool removeCustomLayout(int layoutId);

/// Copies the file aside ("customLayout.ini.before", then with growing numbers), unless it is as the newest
/// copy; the newest ten stay. @return false when that fails; true also when there is no file.
bool keepCustomLayoutFile();

QString layoutPictureFolder(); ///< devConfig + "/layouts"

/// Removes the backgrounds that neither the file nor one of its copies names; none when one of these cannot
/// be read, or there is no file. Only while nobody can undo his way back to them.
void removeUnusedLayoutPictures();

} // namespace vorlinmodel
