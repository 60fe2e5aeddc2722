#include "systemsettings.h"

#include "log.h"
#include "logtext.h"
#include "paths.h"

#include <QFile>

namespace vorlindesk::SystemSettings {
namespace {

constexpr int LanguageMask = 0xFF;
constexpr int NotSet = -1;
constexpr int FirstKey = 1;
constexpr int LastKey = 15;

/// @return an invalid value, which reads as 0 and false, when there is no such key.
QVariant read(const char *key)
{
    return IniFile(Paths::systemIni())->value(QLatin1String(key));
}

void write(const char *key, const QVariant &value)
{
    IniFile(Paths::systemIni())->setValue(QLatin1String(key), value);
}

QString homeLayoutKey(int keyId, const char *field)
{
    return QStringLiteral("%1/keyid_%2_%3")
        .arg(QLatin1String(SettingsKey::HomeLayoutPage))
        .arg(keyId)
        .arg(QLatin1String(field));
}

HomeLayoutEntry readEntry(const QSettings &settings, int keyId)
{
    const auto field = [&](const char *name) {
        return settings.value(homeLayoutKey(keyId, name), NotSet).toInt();
    };
    return {keyId, field("layout"), field("page"), field("sum")};
}

/// The INI reader counts keys above the first group as part of "General"; the device record does not.
bool hasGeneralGroup(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    static constexpr char ByteOrderMark[] = "\xEF\xBB\xBF"; // some editors put it in front of UTF-8
    while (!file.atEnd()) {
        QByteArray line = file.readLine();
        if (line.startsWith(ByteOrderMark))
            line.remove(0, 3);
        line = line.trimmed();
        if (line.startsWith('[') && line.mid(1, line.indexOf(']') - 1).trimmed().toLower() == "general")
            return true;
    }
    return false;
}

/// @return the value of "General/@p key". A group that was typed as "[General]" has keys without a group to
/// the library; one that the library wrote, "[%General]", has not.
QVariant generalValue(const QSettings &settings, bool hasGroup, const QString &key)
{
    const QVariant written = settings.value(QLatin1String("General/") + key);
    return written.isValid() || !hasGroup ? written : settings.value(key);
}

} // namespace

int connectType()
{
    return read(SettingsKey::ConnectType).toInt();
}

void setConnectType(int type)
{
    write(SettingsKey::ConnectType, type);
}

bool printBufEnable()
{
    return read(SettingsKey::PrintBufEnable).toBool();
}

void setPrintBufEnable(bool on)
{
    write(SettingsKey::PrintBufEnable, on);
}

bool autoSyncEnable()
{
    return read(SettingsKey::AutoSyncEnable).toBool();
}

void setAutoSyncEnable(bool on)
{
    write(SettingsKey::AutoSyncEnable, on);
}

bool loadCustomLayout()
{
    return read(SettingsKey::LoadCustomLayout).toBool();
}

void setLoadCustomLayout(bool on)
{
    write(SettingsKey::LoadCustomLayout, on);
}

int language()
{
    return read(SettingsKey::Language).toInt() & LanguageMask;
}

void setLanguage(int value)
{
    write(SettingsKey::Language, QString::number(value & LanguageMask));
}

void createDefaults()
{
    if (!QFile::exists(Paths::systemIni()))
        setAutoSyncEnable(true);
}

DeviceRecord deviceRecord()
{
    return deviceRecord(Paths::deviceIni());
}

DeviceRecord deviceRecord(const QString &path)
{
    DeviceRecord record;
    QSettings settings(path, QSettings::IniFormat); // no IniFile: nothing is ever written beside the program
    settings.setIniCodec("utf-8");
    const bool hasGroup = hasGeneralGroup(path);
    record.devicePath = generalValue(settings, hasGroup, QStringLiteral("HidDevicePath")).toString();
    record.version = generalValue(settings, hasGroup, QStringLiteral("version")).toInt();
    Log(LogLevel::Info, LogText::DeviceRecord, qUtf8Printable(path), qUtf8Printable(record.devicePath),
        record.version);
    return record;
}

HomeLayoutEntry homeLayoutEntry(int keyId)
{
    return readEntry(IniFile(Paths::systemIni()).settings(), keyId);
}

QVector<HomeLayoutEntry> homeLayoutEntries()
{
    IniFile file(Paths::systemIni());
    QVector<HomeLayoutEntry> entries;
    for (int keyId = FirstKey; keyId <= LastKey; ++keyId) {
        const bool stored = file->contains(homeLayoutKey(keyId, "layout")) ||
                            file->contains(homeLayoutKey(keyId, "page")) ||
                            file->contains(homeLayoutKey(keyId, "sum"));
        if (stored)
            entries.append(readEntry(file.settings(), keyId));
    }
    return entries;
}

void setHomeLayoutEntries(const QVector<HomeLayoutEntry> &entries)
{
    IniFile file(Paths::systemIni());
    for (const HomeLayoutEntry &entry : entries) {
        file->setValue(homeLayoutKey(entry.keyId, "layout"), entry.layoutId);
        file->setValue(homeLayoutKey(entry.keyId, "page"), entry.pageId);
        file->setValue(homeLayoutKey(entry.keyId, "sum"), entry.sum);
    }
}

} // namespace vorlindesk::SystemSettings
