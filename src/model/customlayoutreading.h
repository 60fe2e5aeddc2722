/// Reading of one group of "customLayout.ini", which people and other programs may have written, too.
#pragma once

#include "model/customlayouts.h"

#include <QStringList>

class QSettings;
class QVariant;

namespace vorlinmodel {

/// What a group holds, and what is wrong with it.
struct CustomLayoutReading
{
    CustomLayout layout;
    QStringList problems; ///< plain sentences; empty when all is well
};

/// @p settings: inside the group.
CustomLayoutReading readCustomLayoutGroup(const QSettings &settings, int layoutId);

/// @return a layout's name out of its entry; a comma in it makes a list of that.
QString customLayoutName(const QVariant &entry);

/// @return the id that a group is named after (FirstCustomLayout to LargestCustomLayout), else 0.
int customLayoutIdOf(const QString &group);

/// @return "Group "%1" ..." when the name looks like one of a custom layout, and is none; else nothing.
QString customLayoutGroupProblem(const QString &group);

} // namespace vorlinmodel
