/// "backup.txt": the list of contents of a backup, which makes it complete.
#pragma once

#include "model/backupcontent.h"

#include <QVector>

namespace vorlinmodel {

inline constexpr char BackupListName[] = "backup.txt";

struct BackupListEntry
{
    QString path; ///< below the backup's folder, with "/"
    qint64 size = 0;
    quint32 checksum = 0; ///< CRC-32
    bool operator==(const BackupListEntry &) const = default;
};

struct BackupList
{
    BackupInfo info; ///< without the folder
    QVector<BackupListEntry> files;
};

BackupListEntry backupListEntry(const QString &path, const QByteArray &bytes, const BackupWatch &watch = {});

/// Lines of text, one fact each; the last one holds the checksum of all others.
QByteArray encodeBackupList(const BackupList &list);

/// @return nothing when a byte is damaged. Lines that a newer program added are skipped.
std::optional<BackupList> decodeBackupList(const QByteArray &bytes);

/// Whether @p path may stand in a list: "CD.bin", a settings file, or a file right in "layouts". A list comes
/// from anywhere, so nothing else is ever read or written.
bool isBackupPath(const QString &path);

/// Folder of the pictures of custom layouts, below "devConfig" and in a backup.
inline constexpr char LayoutPicturePrefix[] = "layouts/";

} // namespace vorlinmodel
