#include "storedlayouts.h"

#include "layoutnames.h"

QVector<int> StoredLayouts::ids()
{
    return QVector<int>{StandardLayoutId} + read().byId.keys().toVector();
}

const vorlinmodel::CustomLayout *StoredLayouts::find(int layoutId)
{
    const auto &layouts = read().byId;
    const auto found = layouts.constFind(layoutId);
    return found == layouts.constEnd() ? nullptr : &*found;
}

const vorlinmodel::CustomLayouts &StoredLayouts::read()
{
    if (!mRead)
        mRead = vorlinmodel::loadCustomLayouts();
    return *mRead;
}
