#include "keyattributemap.h"

#include "base/log.h"
#include "model/functioncatalogue.h"
#include "model/functionids.h"
#include "storelogtext.h"

namespace vorlinmodel {

using vorlindesk::Log;
using vorlindesk::LogLevel;

namespace {

constexpr int DefaultFontSize = 16; // points
constexpr int MaxCombination = 4;   // keys

key_atttribute_t recordOf(int fid)
{
    key_atttribute_t record;
    record.mFId = fid;
    record.nDisplayImageType = DefaultImage;
    record.defaultImage = FunctionCatalogue::defaultIcon(fid);
    record.imageEffects = NoEffect;
    record.nDisplaymode = NoSelfLocking;
    record.titleAlignment = AlignBottom;
    record.titleFontSize = DefaultFontSize;
    record.titleColour = QColor(0, 255, 0);
    return record;
}

QString textOf(const key_atttribute_t &record)
{
    // Joined, not filled in with arg(): a "%1" in a title would be taken for a place of the next value.
    const QStringList fields = {
        QStringLiteral("fid=") + QString::number(record.mFId),
        QStringLiteral("displayImageType=") + QString::number(record.nDisplayImageType),
        QStringLiteral("defaultImage=") + record.defaultImage,
        QStringLiteral("customImage=") + record.customImage,
        QStringLiteral("imageEffects=") + QString::number(record.imageEffects),
        QStringLiteral("displayMode=") + QString::number(record.nDisplaymode),
        QStringLiteral("title=") + record.strTitle,
        QStringLiteral("titleAlignment=") + QString::number(record.titleAlignment),
        QStringLiteral("titleFontSize=") + QString::number(record.titleFontSize),
        QStringLiteral("titleColour=") + record.titleColour.name(),
        QStringLiteral("appOrUrl=") + record.strAppOrUrl,
    };
    return fields.join(QLatin1Char(' ')).replace(QLatin1Char('\n'), QLatin1Char(' '));
}

} // namespace

bool KeyAttributeMap::create(const key_id_t &key, int fid)
{
    Log(LogLevel::Info, LogText::CreateKey, key.lid, key.pageid, key.kid, fid);
    const bool created = [&] {
        const std::lock_guard lock(mMutex);
        return mRecords.try_emplace(key, recordOf(fid)).second;
    }();
    if (created)
        Log(LogLevel::Info, LogText::NewRecord, key.lid, key.pageid, key.kid, fid);
    else
        Log(LogLevel::Warn, LogText::KeyExists, key.lid, key.pageid, key.kid, fid);
    return created;
}

void KeyAttributeMap::add(const key_id_t &key, int fid)
{
    Log(LogLevel::Info, LogText::CreateKey, key.lid, key.pageid, key.kid, fid);
    const bool created = [&] {
        const std::lock_guard lock(mMutex);
        return mRecords.insert_or_assign(key, recordOf(fid)).second;
    }();
    if (created)
        Log(LogLevel::Info, LogText::NewRecord, key.lid, key.pageid, key.kid, fid);
    else
        Log(LogLevel::Info, LogText::SetFunction, key.lid, key.pageid, key.kid, fid);
}

void KeyAttributeMap::set(const key_id_t &key, const key_atttribute_t &record)
{
    {
        const std::lock_guard lock(mMutex);
        mRecords.insert_or_assign(key, record);
    }
    Log(LogLevel::Info, LogText::SetRecord, key.lid, key.pageid, key.kid, record.mFId);
}

void KeyAttributeMap::remove(const key_id_t &key)
{
    bool wasEmpty = false;
    bool removed = false;
    {
        const std::lock_guard lock(mMutex);
        wasEmpty = mRecords.empty();
        removed = mRecords.erase(key) > 0;
    }
    if (wasEmpty)
        Log(LogLevel::Info, LogText::NoRecords);
    if (removed)
        Log(LogLevel::Info, LogText::DeletedKey, key.lid, key.pageid, key.kid);
}

std::optional<key_atttribute_t> KeyAttributeMap::find(const key_id_t &key) const
{
    const std::lock_guard lock(mMutex);
    const auto record = mRecords.find(key);
    return record == mRecords.end() ? std::nullopt : std::make_optional(record->second);
}

QList<key_id_t> KeyAttributeMap::keys() const
{
    const std::lock_guard lock(mMutex);
    QList<key_id_t> keys;
    keys.reserve(int(mRecords.size()));
    for (const auto &entry : mRecords)
        keys.append(entry.first);
    return keys;
}

QString KeyAttributeMap::customImage(const key_id_t &key) const
{
    Log(LogLevel::Info, LogText::GetCustomImage, key.lid, key.pageid, key.kid);
    return find(key).value_or(key_atttribute_t{}).customImage;
}

QString KeyAttributeMap::defaultImage(const key_id_t &key) const
{
    Log(LogLevel::Info, LogText::GetDefaultImage, key.lid, key.pageid, key.kid);
    return find(key).value_or(key_atttribute_t{}).defaultImage;
}

QString KeyAttributeMap::title(const key_id_t &key) const
{
    Log(LogLevel::Info, LogText::GetTitleText, key.lid, key.pageid, key.kid);
    return find(key).value_or(key_atttribute_t{}).strTitle;
}

QString KeyAttributeMap::dump(const key_id_t &key) const
{
    Log(LogLevel::Info, LogText::GetAllAttribute, key.lid, key.pageid, key.kid);
    const auto record = find(key);
    if (!record)
        return {};
    const QString text = textOf(*record);
    Log(LogLevel::Info, LogText::RecordText, qUtf8Printable(text));
    return text;
}

bool KeyAttributeMap::change(const key_id_t &key, const std::function<void(key_atttribute_t &)> &apply)
{
    const std::lock_guard lock(mMutex);
    const auto record = mRecords.find(key);
    if (record == mRecords.end())
        return false;
    apply(record->second);
    return true;
}

void KeyAttributeMap::setCustomImage(const key_id_t &key, const QString &path)
{
    const auto apply = [&path](key_atttribute_t &record) {
        record.customImage = path;
        record.nDisplayImageType = CustomImage;
    };
    if (change(key, apply))
        Log(LogLevel::Info, LogText::SetCustomImage, key.lid, key.pageid, key.kid, qUtf8Printable(path));
}

bool KeyAttributeMap::moveCustomImage(const key_id_t &key, const QString &from, const QString &to)
{
    bool moved = false;
    change(key, [&](key_atttribute_t &record) {
        moved = record.customImage == from;
        if (moved)
            record.customImage = to;
    });
    if (moved)
        Log(LogLevel::Info, LogText::SetCustomImage, key.lid, key.pageid, key.kid, qUtf8Printable(to));
    return moved;
}

void KeyAttributeMap::setCustomVideo(const key_id_t &key, const QString &path)
{
    // Into the field of the default image, deliberately: a video key has no picture of its own to fall back
    // to.
    if (change(key, [&path](key_atttribute_t &record) { record.defaultImage = path; }))
        Log(LogLevel::Info, LogText::SetCustomVideo, key.lid, key.pageid, key.kid, qUtf8Printable(path));
}

void KeyAttributeMap::setImageEffects(const key_id_t &key, int value)
{
    if (change(key, [value](key_atttribute_t &record) { record.imageEffects = value; }))
        Log(LogLevel::Info, LogText::SetImageEffects, key.lid, key.pageid, key.kid, value);
}

void KeyAttributeMap::setDisplayMode(const key_id_t &key, int value)
{
    if (change(key, [value](key_atttribute_t &record) { record.nDisplaymode = value; }))
        Log(LogLevel::Info, LogText::SetDisplayMode, key.lid, key.pageid, key.kid, value);
}

void KeyAttributeMap::setTitle(const key_id_t &key, const QString &title)
{
    if (change(key, [&title](key_atttribute_t &record) { record.strTitle = title; }))
        Log(LogLevel::Info, LogText::SetTitle, key.lid, key.pageid, key.kid, qUtf8Printable(title));
}

void KeyAttributeMap::setTitleAlignment(const key_id_t &key, int value)
{
    if (change(key, [value](key_atttribute_t &record) { record.titleAlignment = value; }))
        Log(LogLevel::Info, LogText::SetTitleAlignment, key.lid, key.pageid, key.kid, value);
}

void KeyAttributeMap::setTitleFontSize(const key_id_t &key, int value)
{
    if (change(key, [value](key_atttribute_t &record) { record.titleFontSize = value; }))
        Log(LogLevel::Info, LogText::SetTitleFontSize, key.lid, key.pageid, key.kid, value);
}

void KeyAttributeMap::setTitleFontColor(const key_id_t &key, const QColor &colour)
{
    if (change(key, [&colour](key_atttribute_t &record) { record.titleColour = colour; }))
        Log(LogLevel::Info, LogText::SetTitleColour, key.lid, key.pageid, key.kid, colour.red(),
            colour.green(), colour.blue());
}

void KeyAttributeMap::setUrlOrPath(const key_id_t &key, const QString &text)
{
    if (change(key, [&text](key_atttribute_t &record) { record.strAppOrUrl = text; }))
        Log(LogLevel::Info, LogText::SetUrlOrPath, key.lid, key.pageid, key.kid, qUtf8Printable(text));
}

void KeyAttributeMap::setKeyCombination(const key_id_t &key, const QStringList &names)
{
    const QString text = names.mid(0, MaxCombination).join(QLatin1Char('#'));
    if (change(key, [&text](key_atttribute_t &record) { record.strAppOrUrl = text; }))
        Log(LogLevel::Info, LogText::SetKeyCombination, key.lid, key.pageid, key.kid, qUtf8Printable(text));
}

} // namespace vorlinmodel
