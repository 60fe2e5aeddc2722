#include "galleryindex.h"

#include "base/paths.h"
#include "base/systemsettings.h"
#include "gallerypictures.h"

#include <QCollator>
#include <QDateTime>
#include <QDir>
#include <QHash>
#include <QSet>
#include <algorithm>
#include <array>
#include <iterator>

using Type = GalleryItem::Type;

namespace {

const auto Group = QStringLiteral("files");
constexpr int Fields = 7;
constexpr std::array TypeNames = {"image", "animation", "video", "other"}; // in the order of Type

QStringList toFields(const GalleryItem &item)
{
    return {item.name,
            QLatin1String(TypeNames[size_t(item.type)]),
            QString::number(item.size.width()),
            QString::number(item.size.height()),
            QString::number(item.bytes),
            QString::number(item.modified),
            QString::number(item.durationMs)};
}

/// What cannot be understood gets no name: its file will be opened again.
GalleryItem fromFields(const QStringList &fields)
{
    if (fields.size() != Fields)
        return {};
    const auto type = std::find_if(TypeNames.begin(), TypeNames.end(),
                                   [&fields](const char *name) { return fields[1] == QLatin1String(name); });
    GalleryItem item;
    item.type = Type(std::distance(TypeNames.begin(), type));
    item.size = {fields[2].toInt(), fields[3].toInt()};
    item.bytes = fields[4].toLongLong();
    item.modified = fields[5].toLongLong();
    item.durationMs = qMax(0LL, fields[6].toLongLong());
    const bool sound = type != TypeNames.end() && (!item.isPicture() || !item.size.isEmpty());
    item.name = sound ? fields[0] : QString();
    return item;
}

/// Frames of files that are gone, and what a crash left. Keys that were given a frame have copied it long
/// ago.
void clearCache(const std::vector<GalleryItem> &items)
{
    QSet<QString> used;
    for (const GalleryItem &item : items)
        used.insert(GalleryFile::cachePath(item));
    const QDateTime yesterday = QDateTime::currentDateTime().addDays(-1);
    for (const QFileInfo &file : QDir(GalleryFile::cacheFolder()).entryInfoList(QDir::Files | QDir::Hidden)) {
        if (!used.contains(file.absoluteFilePath()) && file.lastModified() < yesterday)
            QFile::remove(file.absoluteFilePath());
    }
}

void sortByName(std::vector<GalleryItem> &items)
{
    const QLocale locale; // the plain one of C orders by code, numbers too
    QCollator collator(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
    collator.setNumericMode(true); // "2" before "10"
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::sort(items.begin(), items.end(), [&collator](const GalleryItem &one, const GalleryItem &other) {
        const int order = collator.compare(one.name, other.name);
        return order != 0 ? order < 0 : one.name < other.name;
    });
}

} // namespace

QString GalleryIndex::fileName()
{
    return vorlindesk::Paths::devConfigFolder() + QStringLiteral("/gallery.ini");
}

std::vector<GalleryItem> GalleryIndex::read()
{
    const bool first = !std::exchange(mIsLoaded, true);
    if (first)
        load();
    QHash<QString, const GalleryItem *> known;
    for (const GalleryItem &item : mItems)
        known.insert(item.name, &item);
    std::vector<GalleryItem> items;
    bool changed = false;
    for (const QFileInfo &file : QDir(GalleryPictures::folder()).entryInfoList(QDir::Files, QDir::Unsorted)) {
        const GalleryItem *before = known.value(file.fileName());
        const bool same = before && before->bytes == file.size() &&
                          before->modified == file.lastModified().toMSecsSinceEpoch();
        items.push_back(same ? *before : GalleryFile::look(file));
        changed = changed || !same;
    }
    changed = changed || items.size() != mItems.size();
    known.clear();
    mItems = std::move(items);
    if (changed) {
        sortByName(mItems);
        save();
    }
    if (first)
        clearCache(mItems);
    std::vector<GalleryItem> shown;
    std::copy_if(mItems.begin(), mItems.end(), std::back_inserter(shown),
                 [](const GalleryItem &item) { return item.type != Type::Other; });
    sortByName(shown);
    return shown;
}

void GalleryIndex::learn(const std::vector<GalleryItem> &items)
{
    for (const GalleryItem &item : items) {
        const auto known = std::find_if(mItems.begin(), mItems.end(),
                                        [&item](const GalleryItem &each) { return each.isSameFile(item); });
        if (known != mItems.end())
            *known = item;
    }
    save();
}

void GalleryIndex::load()
{
    vorlindesk::IniFile ini(fileName());
    ini->beginGroup(Group);
    for (const QString &key : ini->childKeys()) {
        GalleryItem item = fromFields(ini->value(key).toStringList());
        if (!item.name.isEmpty())
            mItems.push_back(std::move(item));
    }
}

void GalleryIndex::save() const
{
    if (!vorlindesk::Paths::createPath(vorlindesk::Paths::devConfigFolder()))
        return;
    vorlindesk::IniFile ini(fileName());
    ini->remove(Group);
    ini->beginGroup(Group);
    for (size_t i = 0; i < mItems.size(); ++i)
        ini->setValue(QString::number(i + 1), toFields(mItems[i]));
}
