/// Complete backups in their folders: making, listing, removing.
#pragma once

#include "model/backupcontent.h"

#include <QVector>

/// A backup is a dated folder ("script_yyyyMMdd_HHmmss") in the profile directory; an empty directory means
/// "devConfig". It appears there at once and whole: until then its folder ends in ".part". Any thread may
/// call these; those that write wait for each other.
namespace vorlinmodel::Profiles {

constexpr int Kept = 20; ///< automatic backups, and safety backups too, beyond which the oldest are removed

/// The directory for backups: @p chosen, or "devConfig" when that is empty or on a disk that is not there
/// now. Not for the user-interface thread: it may be on a network.
QString usable(const QString &chosen);

struct BackupResult
{
    QString folder; ///< empty when none was made
    BackupCounts counts;
    QStringList leftOut;      ///< keys without a place, files that cannot be read; each in plain words
    QString error;            ///< for the person; empty when the backup was made, or none was needed
    bool isCancelled = false; ///< nothing was left behind
};

/// Backs the present state up, reads the result back, and compares it. A backup on request also becomes the
/// current script (model/scriptcontainer.h). @param name given by the person, one line; may be empty.
BackupResult create(const QString &directory, const IFunctionManager &store,
                    BackupReason reason = BackupReason::Person, const QString &name = {},
                    const BackupWatch &watch = {});

/// The same for a state that has been gathered.
BackupResult create(const QString &directory, const BackupContent &content, BackupReason reason,
                    const QString &name = {}, const BackupWatch &watch = {});

/// At start-up: makes a backup if the configuration differs from the newest one; where the window was does
/// not count. Then removes the oldest automatic ones, and what an interrupted program left.
BackupResult createAutomatic(const QString &directory, const IFunctionManager &store,
                             const BackupWatch &watch = {});

/// Newest first; plain exports too. Not all of them when @p watch gave it up.
QVector<BackupInfo> list(const QString &directory, const BackupWatch &watch = {});

/// Removes a backup with all its files. @return false when @p folder is none, or cannot be removed.
bool remove(const QString &folder);

} // namespace vorlinmodel::Profiles
