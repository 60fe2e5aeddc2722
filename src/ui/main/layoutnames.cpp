#include "layoutnames.h"

#include "base/language.h"
#include "model/customlayouts.h"

#include <QCoreApplication>

QString layoutName(int layoutId, const QString &ownName, const vorlindesk::LanguageManager &language)
{
    constexpr int standardLayoutText = 11;
    if (layoutId == StandardLayoutId)
        return language.Text(standardLayoutText);
    if (!ownName.trimmed().isEmpty())
        return ownName;
    return QCoreApplication::translate("LayoutPage", "Layout %1").arg(layoutId);
}

QString layoutName(int layoutId, const vorlindesk::LanguageManager &language)
{
    const auto layout = layoutId == StandardLayoutId ? std::nullopt : vorlinmodel::loadCustomLayout(layoutId);
    return layoutName(layoutId, layout ? layout->name : QString(), language);
}
