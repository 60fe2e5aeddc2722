/// The plain file operations of an export and an import: "CD.bin" in its dated folder, and the settings
/// files.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <optional>

/// Folders are given without a trailing slash. Failures are logged here and returned; nothing is rolled back.
/// Any thread may call them.
namespace vorlinmodel::ConfigBackup {

inline constexpr char ScriptFileName[] = "CD.bin";

/// "customLayout.ini", "multiActions.json" and "system.ini", in the order in which they are copied.
QStringList settingsFileNames();

/// Folder that holds the dated folders: the export directory (an empty one means the current "devConfig"),
/// or, when that is itself a dated folder or lies in one, the folder that this one lies in.
QString baseFolder(const QString &exportDirectory);

/// Folder of an export made at @p now (local time): the export directory (an empty one means the current
/// "devConfig/") + "/script_" + "yyyyMMdd_HHmmss". An export directory that is itself such a folder yields a
/// sibling of it, never a nested one.
QString scriptFolder(const QString &exportDirectory, const QDateTime &now);

/// Writes @p bytes to "CD.bin" in scriptFolder(), which it creates, and makes them the current script.
bool writeScript(const QString &exportDirectory, const QByteArray &bytes,
                 const QDateTime &now = QDateTime::currentDateTime());

/// Reads "CD.bin" of @p folder whole, logs the layout and page found in it (-1 when it is not ours), and
/// makes the bytes the current script. What they hold is not checked beyond that.
std::optional<QByteArray> readScript(const QString &folder);

/// Copies "customLayout.ini", "multiActions.json" and "system.ini" from "devConfig" to @p exportDirectory; a
/// failed one does not stop the others. A file of an older backup that stands there is replaced. @return all
/// copied.
bool backupSettingsFiles(const QString &exportDirectory);

/// The way back. Each file on disk is the old or the new one, whole, at every moment; a source that cannot be
/// read leaves the old file where it is. @return all restored.
bool restoreSettingsFiles(const QString &importDirectory);

/// Removes @p path, also when it is read-only; what cannot be removed is moved aside to @p path + ".del",
/// replacing an older one. A path that does not exist counts as removed.
bool safeDelete(const QString &path);

} // namespace vorlinmodel::ConfigBackup
