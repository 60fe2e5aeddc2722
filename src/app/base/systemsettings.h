/// "devConfig/system.ini" and "quorradent_md.ini": one key per access, nothing cached.
#pragma once

#include <QSettings>
#include <QString>
#include <QVector>
#include <mutex>

namespace vorlindesk {

namespace SettingsKey {
inline constexpr char ConnectType[] = "connectType";           // integer, absent = 0
inline constexpr char PrintBufEnable[] = "printBufEnable";     // boolean, absent = false
inline constexpr char AutoSyncEnable[] = "autoSyncEnable";     // boolean, absent = false
inline constexpr char LoadCustomLayout[] = "loadCustomLayout"; // boolean, absent = false
inline constexpr char Language[] = "language";                 // decimal text, absent = 0
inline constexpr char HomeLayoutPage[] =
    "HomeLayoutPage"; // group: keyid_%1_layout, keyid_%1_page, keyid_%1_sum
} // namespace SettingsKey

/// Opens INI files as this program writes them: codec "utf-8", whole-file replacement on write. A file that
/// cannot be parsed is copied aside ("name.damaged") and reported at Error before it is used, so that nothing
/// is lost; a file that cannot be read or written is reported too, each state of a file once. Threads take
/// turns with a file, since Windows does not replace one that another thread is reading. So an object of this
/// class lives for a few statements; further ones of the same thread may be made meanwhile.
class IniFile
{
public:
    explicit IniFile(const QString &path);
    ~IniFile(); ///< writes what was changed
    IniFile(const IniFile &) = delete;
    IniFile &operator=(const IniFile &) = delete;

    QSettings &settings() { return mSettings; }
    QSettings *operator->() { return &mSettings; }

private:
    const std::unique_lock<std::recursive_mutex> mTurn; // outlives mSettings
    QSettings mSettings;
};

namespace SystemSettings {

int connectType();
void setConnectType(int type);
bool printBufEnable();
void setPrintBufEnable(bool on);
bool autoSyncEnable();
void setAutoSyncEnable(bool on);
bool loadCustomLayout();
void setLoadCustomLayout(bool on);
int language(); ///< low 8 bits of the stored number: 0 English, 1 Simplified Chinese, 2 Traditional Chinese
void setLanguage(int value); ///< stores the low 8 bits as decimal text

/// Writes a "system.ini" with automatic synchronisation on, if there is none: a program that never looks for
/// its panel is no use to a new user.
void createDefaults();

struct DeviceRecord
{
    QString devicePath; ///< HID path set by hand; empty = scan
    int version = 0;
};
/// Reads "General/HidDevicePath" and "General/version" from "quorradent_md.ini", and logs them. In the file,
/// as in every INI file, a backslash of the path is doubled.
DeviceRecord deviceRecord();
/// The same from @p path.
DeviceRecord deviceRecord(const QString &path);

/// Where a child-page or return key leads, as kept in the group "HomeLayoutPage"; -1 stands for "not set"
/// (layout: the current one).
struct HomeLayoutEntry
{
    int keyId = 0;
    int layoutId = -1;
    int pageId = -1;
    int sum = -1;
    bool operator==(const HomeLayoutEntry &) const = default;
};
HomeLayoutEntry homeLayoutEntry(int keyId);
QVector<HomeLayoutEntry> homeLayoutEntries(); ///< the keys 1 to 15 that have any value stored, ascending
void setHomeLayoutEntries(
    const QVector<HomeLayoutEntry> &entries); ///< keys that are not named keep their values

} // namespace SystemSettings
} // namespace vorlindesk
