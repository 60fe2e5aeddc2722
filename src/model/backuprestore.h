/// Takes a backup back, whole or not at all.
#pragma once

#include "model/backupcontent.h"

#include <QVector>

namespace vorlinmodel {

/// What a restore would change on one page.
struct PageChange
{
    int layoutId = 0;
    int pageId = 0;
    int added = 0; ///< keys, as in the next two
    int changed = 0;
    int removed = 0;
    bool operator==(const PageChange &) const = default;
};

struct RestorePreview
{
    BackupInfo holds;
    QVector<PageChange> pages; ///< those that change, ascending
    QStringList files; ///< settings files and pictures of layouts that will differ, by path below "devConfig"
    QStringList damaged;  ///< parts of the backup that cannot be read, each in plain words
    QStringList notSaved; ///< what no backup of the present state can hold, so that a restore loses it
};

/// Compares by content: two keys are the same when they do and show the same. @p present comes from
/// presentContent(). Any thread.
RestorePreview previewRestore(const BackupContent &backup, const BackupContent &present,
                              const BackupWatch &watch = {});

struct RestoreOptions
{
    QString safetyDirectory; ///< where the present state is backed up first; empty: "devConfig"
    /// Of a damaged backup: files and, when the script is damaged, pages that it lacks stay as they are. A
    /// key whose picture, video or texts are damaged comes without them.
    bool takesTheRest = false;
};

struct RestoreResult
{
    bool isDone = false;
    bool isCancelled = false; ///< nothing was changed
    QString error;            ///< for the person; empty when done or cancelled
    QString safetyFolder;     ///< backup of the state before; restoring it takes the restore back
    QStringList leftOut;      ///< what could not be taken over, each in plain words
};

/// Replaces the configuration by that of @p backup: its keys, pictures, videos, action lists, settings files
/// and layout pictures, then the records of @p store and the current script. What a complete backup does not
/// have is gone afterwards, but for videos (see restoredVideoFolder()); a plain export leaves the files that
/// it lacks. Everything is prepared in a folder of its own; a failure, a cancellation or a kill before the
/// exchange leaves the present state untouched, a kill within it is mended by recoverRestore(). The pictures
/// lie in memory meanwhile.
///
/// Any thread but that of the user interface, whose saving of the store is held back meanwhile
/// (StoreFiles::pause()): it would write the old records over the new ones. One call at a time.
RestoreResult restoreBackup(const BackupContent &backup, IFunctionManager &store,
                            const RestoreOptions &options, const BackupWatch &watch = {});

/// "devConfig/video". Each video in it is called by the SHA-1 of its content in hex, by the keys' names
/// before that; those of the states before a restore stay, for undo. Who ends the history removes them.
QString restoredVideoFolder();

/// A restore could be neither finished nor taken back: its files are still needed.
bool isRestoreUnfinished();

/// At start-up, before any file below "devConfig" is read: finishes a restore that was interrupted, or takes
/// it back. @return false when neither is possible now (logged); the next start tries again.
bool recoverRestore();

} // namespace vorlinmodel
