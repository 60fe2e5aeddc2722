/// Files read and replaced as a whole.
#pragma once

#include "model/backupwatch.h"

#include <QByteArray>
#include <QString>
#include <optional>

namespace vorlinmodel {

/// Far above every file of ours; a foreign one beyond it would take the memory of the computer.
constexpr qint64 MaxWholeFile = qint64{256} * 1024 * 1024; // bytes

/// @return the content of @p path, or nothing with the reason in @p error when it cannot be read to its end
/// or is larger than @p limit bytes, or when @p watch gave it up.
std::optional<QByteArray> readWholeFile(const QString &path, QString &error, qint64 limit = MaxWholeFile,
                                        const BackupWatch &watch = {});

/// Replaces @p path by @p bytes in one step: a crash, a full disk or @p watch, when it gives it up, leaves
/// the old file. @return false with the reason in @p error.
bool writeWholeFile(const QString &path, const QByteArray &bytes, QString &error,
                    const BackupWatch &watch = {});

/// Renames a file or a folder, never by copying it; on Windows it is tried for up to 2 s. @return false with
/// the reason in @p error.
bool renameWhole(const QString &from, const QString &to, QString &error);

} // namespace vorlinmodel
