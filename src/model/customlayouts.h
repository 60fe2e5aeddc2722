/// Custom layouts of "devConfig/customLayout.ini": which physical keys form a logical one.
#pragma once

#include <QString>
#include <QVector>
#include <optional>

namespace vorlinmodel {

struct CustomLayoutKey
{
    quint32 mask = 0;      ///< bit (p - 1) for each physical key p (1 to 15) that the key covers
    int firstPhysical = 0; ///< from the first and last item of "phyid"; 0 when missing
    int lastPhysical = 0;
};

struct CustomLayout
{
    int layoutId = 0;
    QString name;
    QVector<CustomLayoutKey> keys; ///< logical keys 1 to n, in order
};

/// Ids of the custom layouts in the file, ascending; the standard layout (1) is not among them.
QVector<int> customLayoutIds();

/// Reads the group "layout_%1"; at most 15 keys are taken, whatever "num" says. Nothing when there is no such
/// group.
std::optional<CustomLayout> loadCustomLayout(int layoutId);

} // namespace vorlinmodel
