#include "model/customlayouts.h"

#include "base/paths.h"
#include "base/systemsettings.h"
#include "model/keyid.h"

#include <QStringList>
#include <QVariant>
#include <algorithm>

namespace vorlinmodel {

namespace {

constexpr quint32 AllPhysicalKeys = 0x7FFF; // bits 0 to 14

/// A hand-written text with a comma in it is read as a list.
QString textOf(const QVariant &value)
{
    return value.toStringList().join(QLatin1String(", "));
}

quint32 maskOf(const QVariant &value)
{
    bool isNumber = false;
    const uint mask = textOf(value).trimmed().toUInt(&isNumber);
    return isNumber && (mask & ~AllPhysicalKeys) == 0 ? mask : 0;
}

/// First number of an item "%1#%2#%3": the physical key.
int physicalKeyOf(const QString &item)
{
    const int key = item.section(QLatin1Char('#'), 0, 0).toInt();
    return key >= FirstKeyId && key <= LastKeyId ? key : 0;
}

CustomLayoutKey keyOf(const QSettings &settings, int number)
{
    CustomLayoutKey key;
    key.mask = maskOf(settings.value(QStringLiteral("%1_bitmap").arg(number)));
    const QString text = textOf(settings.value(QStringLiteral("phyid_%1").arg(number)));
    const QStringList items = text.split(QLatin1Char('&'), Qt::SkipEmptyParts);
    if (!items.isEmpty()) {
        key.firstPhysical = physicalKeyOf(items.first());
        key.lastPhysical = physicalKeyOf(items.last());
    }
    return key;
}

} // namespace

QVector<int> customLayoutIds()
{
    constexpr int standardLayout = 1;
    constexpr int largestLayout = 255; // travels in one byte
    const QLatin1String prefix("layout_");
    QVector<int> ids;
    if (!QFile::exists(vorlindesk::Paths::customLayoutIni()))
        return ids;
    vorlindesk::IniFile file(vorlindesk::Paths::customLayoutIni());
    for (const QString &group : file->childGroups()) {
        const int id = group.startsWith(prefix) ? group.mid(prefix.size()).toInt() : 0;
        if (id > standardLayout && id <= largestLayout && group == prefix + QString::number(id))
            ids.append(id);
    }
    std::sort(ids.begin(), ids.end());
    return ids;
}

std::optional<CustomLayout> loadCustomLayout(int layoutId)
{
    vorlindesk::IniFile file(vorlindesk::Paths::customLayoutIni());
    QSettings &settings = file.settings();
    const QString group = QStringLiteral("layout_%1").arg(layoutId);
    if (!settings.childGroups().contains(group))
        return std::nullopt;
    settings.beginGroup(group);
    CustomLayout layout;
    layout.layoutId = layoutId;
    layout.name = textOf(settings.value(QStringLiteral("name")));
    const int count = std::clamp(settings.value(QStringLiteral("num")).toInt(), 0, LastKeyId);
    for (int number = 1; number <= count; ++number)
        layout.keys.append(keyOf(settings, number));
    return layout;
}

} // namespace vorlinmodel
