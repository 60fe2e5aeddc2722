/// What a backup holds: read from its folder, or gathered from the present state.
#pragma once

#include "model/backupwatch.h"
#include "model/scriptformat.h"

#include <QByteArray>
#include <QDateTime>
#include <QMap>
#include <QString>
#include <QStringList>
#include <optional>

namespace vorlinmodel {

class IFunctionManager;

struct BackupCounts
{
    int layouts = 0; ///< that have a key
    int pages = 0;   ///< that have a key, of all layouts
    int keys = 0;
    int pictures = 0; ///< files of the user; not those that come with the program
    int videos = 0;
    bool operator==(const BackupCounts &) const = default;
};
BackupCounts countsOf(const Script &script);

enum class BackupReason {
    Person,    ///< somebody asked for it
    Automatic, ///< made at start-up
    Safety,    ///< made before something that replaces the configuration
};

struct BackupInfo
{
    QString folder;
    QString name;   ///< given by the person, else the name of the folder
    QDateTime made; ///< local time
    BackupReason reason = BackupReason::Person;
    BackupCounts counts;
    bool isComplete = false; ///< false for a folder without a list of contents: a plain export
};

struct BackupContent
{
    BackupInfo info;
    Script script;
    QByteArray scriptBytes;
    QMap<QString, QByteArray> files; ///< by path below "devConfig", with "/": settings files, "layouts/..."
    QStringList damaged;             ///< what is missing from the above, each named in plain words
    QStringList leftOut; ///< present state only: keys and files of keys that no backup of it can hold
    QString error;       ///< present state only: why it cannot be backed up; empty otherwise
};

/// The records of @p store with their files, action lists and pictures, the settings files and the pictures
/// of the custom layouts, all in memory (some 256 MiB at most). Any thread. @return nothing when @p watch
/// gave it up.
std::optional<BackupContent> presentContent(const IFunctionManager &store, const BackupWatch &watch = {});

/// Reads the backup in @p folder and checks every byte of it. Never fails: what is damaged or missing is
/// named, the rest is there. Any thread. @return nothing when @p watch gave it up.
std::optional<BackupContent> loadBackup(const QString &folder, const BackupWatch &watch = {});

/// The same without its content, for a list: fast for a complete backup. Counts that cannot be told are 0.
BackupInfo backupInfo(const QString &folder, const BackupWatch &watch = {});

} // namespace vorlinmodel
