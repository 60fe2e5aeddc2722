#include "imageurlfile.h"

#include "base/initext.h"
#include "base/log.h"
#include "base/paths.h"
#include "base/systemsettings.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "model/keypicture.h"
#include "model/picturefolder.h"
#include "wholefile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <optional>
#include <vector>

namespace vorlinmodel {

using vorlindesk::IniFile;
using vorlindesk::iniText;
using vorlindesk::Log;
using vorlindesk::LogLevel;
namespace Paths = vorlindesk::Paths;

namespace {

namespace LogText {
constexpr char PictureNotRead[] = "imageUrl.ini: lid:%d pageid:%d kid:%d picture [%s] not read: %s\n";
constexpr char PictureNotWritten[] = "imageUrl.ini: picture [%s] not written\n";
constexpr char GroupSkipped[] = "imageUrl.ini: group [%s] names no key\n";
} // namespace LogText

namespace Field {
constexpr QLatin1String Fid("fid");
constexpr QLatin1String DisplayImageType("displayImageType");
constexpr QLatin1String DefaultImage("defaultImage");
constexpr QLatin1String CustomImage("customImage"); // file name alone when it lies in the image folder
constexpr QLatin1String ImageEffects("imageEffects");
constexpr QLatin1String DisplayMode("displayMode");
constexpr QLatin1String Title("title");
constexpr QLatin1String TitleAlignment("titleAlignment");
constexpr QLatin1String TitleFontSize("titleFontSize");
constexpr QLatin1String TitleColour("titleColour"); // "#rrggbb", empty = none
constexpr QLatin1String AppOrUrl("appOrUrl");
} // namespace Field

const QLatin1String ResourcePrefix(":/");

/// Pixels. The largest key, all 15 in one, has 450 x 252; a camera's pictures would fill disk and history in
/// vain.
constexpr int LargestSide = 1024;

struct Item
{
    key_id_t key;
    key_atttribute_t attribute;
    QByteArray picture; ///< content of a custom picture that has to move to @c target
    QString target;     ///< empty when the picture stays where it is
};

QString pathOf(const key_id_t &key)
{
    return Paths::keyPicture(key.lid, key.pageid, key.kid);
}

// A picture of the program itself is always there; every other has to lie under the name of its key.
bool hasToMove(const Item &item)
{
    const QString &path = item.attribute.customImage;
    return item.attribute.nDisplayImageType != DefaultImage && !path.isEmpty() &&
           !path.startsWith(ResourcePrefix) &&
           QFileInfo(path).absoluteFilePath() != QFileInfo(pathOf(item.key)).absoluteFilePath();
}

bool readPicture(Item &item)
{
    QString error;
    const auto bytes = readWholeFile(item.attribute.customImage, error);
    if (!bytes) {
        Log(LogLevel::Error, LogText::PictureNotRead, item.key.lid, item.key.pageid, item.key.kid,
            qUtf8Printable(item.attribute.customImage), qUtf8Printable(error));
        return false;
    }
    item.picture = *bytes;
    item.target = pathOf(item.key);
    return true;
}

/// @return the picture as it is kept; null when the bytes stay as they are: small PNGs, and what cannot be
/// decoded within the limits, which is rather kept than lost.
QImage keptPicture(const QByteArray &bytes)
{
    const QImage image = decodeOwnPicture(bytes, LargestSide);
    // One that was made smaller has a side of that length now.
    const bool isSmall = image.width() < LargestSide && image.height() < LargestSide;
    return isSmall && bytes.startsWith("\x89PNG") ? QImage() : image;
}

bool writePicture(const Item &item)
{
    QString error;
    const QImage image = keptPicture(item.picture);
    const bool written = image.isNull() ? writeWholeFile(item.target, item.picture, error)
                                        : replacePicture(item.target, image);
    if (!written)
        Log(LogLevel::Error, LogText::PictureNotWritten, qUtf8Printable(item.target));
    return written;
}

// Somebody may have set another picture since the record was read; that one stays.
void setMovedPicture(IFunctionManager &store, Item &item)
{
    store.moveCustomImage(item.key, item.attribute.customImage, item.target);
    item.attribute.customImage = item.target;
}

std::vector<Item> itemsOf(const IFunctionManager &store)
{
    std::vector<Item> items;
    for (const key_id_t &key : store.getKeys()) {
        if (const auto attribute = store.getKeyAttribute(key))
            items.push_back({key, *attribute, {}, {}});
    }
    return items;
}

// Two keys may have swapped their pictures, so all are read before the first is written.
bool movePictures(IFunctionManager &store, std::vector<Item> &items)
{
    bool done = true;
    for (Item &item : items) {
        if (hasToMove(item))
            done = readPicture(item) && done;
    }
    for (Item &item : items) {
        if (item.target.isEmpty())
            continue;
        if (writePicture(item))
            setMovedPicture(store, item);
        else
            done = false;
    }
    return done;
}

// Undo may bring it back, and that of a reset all at once: it shall find them, not write them.
void putAside(const QString &path)
{
    QString error;
    const auto picture = readWholeFile(path, error);
    const QString kept = picture ? keptPicturePath(*picture) : QString();
    const bool isMoved = picture && Paths::createPath(keptPictureFolder()) && QFile::rename(path, kept);
    if (!isMoved) // it is kept already, say
        QFile::remove(path);
}

// Pictures of keys that are gone, or that show another one. Only names that this program gives are touched.
void putAsideUnusedPictures(const IFunctionManager &store)
{
    static const QRegularExpression pattern(QStringLiteral("^(\\d{1,9})_(\\d{1,9})_(\\d{1,2})\\.png$"));
    QDir folder(Paths::imageFolder());
    for (const QString &name : folder.entryList(QDir::Files)) {
        const auto match = pattern.match(name);
        if (!match.hasMatch())
            continue;
        const key_id_t key{match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt()};
        const auto record = store.getKeyAttribute(key);
        const bool used = record && QFileInfo(record->customImage).fileName() == name;
        if (!used)
            putAside(folder.filePath(name));
    }
}

QString storedImage(const Item &item)
{
    const QFileInfo image(item.attribute.customImage);
    const QFileInfo own(pathOf(item.key));
    return image.absoluteFilePath() == own.absoluteFilePath() ? own.fileName() : item.attribute.customImage;
}

void writeItem(QSettings &settings, const Item &item)
{
    const key_atttribute_t &attribute = item.attribute;
    const QColor &colour = attribute.titleColour;
    settings.beginGroup(QStringLiteral("%1_%2_%3").arg(item.key.lid).arg(item.key.pageid).arg(item.key.kid));
    settings.setValue(Field::Fid, attribute.mFId);
    settings.setValue(Field::DisplayImageType, attribute.nDisplayImageType);
    settings.setValue(Field::DefaultImage, iniText(attribute.defaultImage));
    settings.setValue(Field::CustomImage, iniText(storedImage(item)));
    settings.setValue(Field::ImageEffects, attribute.imageEffects);
    settings.setValue(Field::DisplayMode, attribute.nDisplaymode);
    settings.setValue(Field::Title, iniText(attribute.strTitle));
    settings.setValue(Field::TitleAlignment, attribute.titleAlignment);
    settings.setValue(Field::TitleFontSize, attribute.titleFontSize);
    settings.setValue(Field::TitleColour, colour.isValid() ? colour.name() : QString());
    settings.setValue(Field::AppOrUrl, iniText(attribute.strAppOrUrl));
    settings.endGroup();
}

QString loadedImage(const QString &stored)
{
    const bool bare =
        !stored.isEmpty() && !stored.startsWith(ResourcePrefix) && QFileInfo(stored).isRelative();
    return bare ? Paths::imageFolder() + QLatin1Char('/') + stored : stored;
}

Item readItem(QSettings &settings, const QString &group, const key_id_t &key)
{
    Item item{key, {}, {}, {}};
    key_atttribute_t &attribute = item.attribute;
    settings.beginGroup(group);
    attribute.mFId = settings.value(Field::Fid).toInt();
    attribute.nDisplayImageType = settings.value(Field::DisplayImageType).toInt();
    attribute.defaultImage = settings.value(Field::DefaultImage).toString();
    attribute.customImage = loadedImage(settings.value(Field::CustomImage).toString());
    attribute.imageEffects = settings.value(Field::ImageEffects).toInt();
    attribute.nDisplaymode = settings.value(Field::DisplayMode).toInt();
    attribute.strTitle = settings.value(Field::Title).toString();
    attribute.titleAlignment = settings.value(Field::TitleAlignment).toInt();
    attribute.titleFontSize = settings.value(Field::TitleFontSize).toInt();
    attribute.titleColour = QColor(settings.value(Field::TitleColour).toString());
    attribute.strAppOrUrl = settings.value(Field::AppOrUrl).toString();
    settings.endGroup();
    return item;
}

std::optional<key_id_t> keyOfGroup(const QString &group)
{
    static const QRegularExpression pattern(QStringLiteral("^(\\d{1,9})_(\\d{1,9})_(\\d{1,2})$"));
    const auto match = pattern.match(group);
    if (!match.hasMatch())
        return std::nullopt;
    const key_id_t key{match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt()};
    return key.kid >= FirstKeyId && key.kid <= LastKeyId ? std::make_optional(key) : std::nullopt;
}

std::vector<Item> readItems(QSettings &settings)
{
    std::vector<Item> items;
    for (const QString &group : settings.childGroups()) {
        if (const auto key = keyOfGroup(group))
            items.push_back(readItem(settings, group, *key));
        else
            Log(LogLevel::Warn, LogText::GroupSkipped, qUtf8Printable(group));
    }
    return items;
}

void createRecord(IFunctionManager &store, const Item &item)
{
    const key_atttribute_t &attribute = item.attribute;
    if (!store.createKeyAttribute(item.key, attribute.mFId))
        return; // the panel or the user was faster
    store.setImageEffects(item.key, attribute.imageEffects);
    store.setDisplayMode(item.key, attribute.nDisplaymode);
    store.setTitle(item.key, attribute.strTitle);
    store.setTitleAlignment(item.key, attribute.titleAlignment);
    store.setTitleFontSize(item.key, attribute.titleFontSize);
    if (attribute.titleColour.isValid())
        store.setTitleFontColor(item.key, attribute.titleColour);
    store.setUrlOrPath(item.key, attribute.strAppOrUrl);
    if (!attribute.defaultImage.isEmpty() && !attribute.defaultImage.startsWith(ResourcePrefix))
        store.setCustomVideo(item.key, attribute.defaultImage);
    if (attribute.nDisplayImageType != DefaultImage)
        store.setCustomImage(item.key, attribute.customImage);
}

} // namespace

bool saveAllKeyData(IFunctionManager &store)
{
    Paths::createPath(Paths::imageFolder());
    std::vector<Item> items = itemsOf(store);
    const bool moved = movePictures(store, items);
    IniFile ini(Paths::imageUrlIni());
    ini->clear(); // of keys that are gone
    for (const Item &item : items)
        writeItem(ini.settings(), item);
    ini->sync();
    if (ini->status() != QSettings::AccessError)
        putAsideUnusedPictures(store);
    // A file that could not be parsed is kept aside by now, and replaced all the same.
    return moved && ini->status() != QSettings::AccessError;
}

bool writeKeyRecords(const QString &path, const QVector<KeyAttribute> &records)
{
    IniFile ini(path);
    ini->clear();
    for (const KeyAttribute &record : records)
        writeItem(ini.settings(), {record.key, record.attribute, {}, {}});
    ini->sync();
    return ini->status() == QSettings::NoError;
}

bool loadAllKeyData(IFunctionManager &store)
{
    if (!QFile::exists(Paths::imageUrlIni()))
        return true;
    IniFile ini(Paths::imageUrlIni());
    for (const Item &item : readItems(ini.settings()))
        createRecord(store, item);
    return ini->status() == QSettings::NoError;
}

} // namespace vorlinmodel
