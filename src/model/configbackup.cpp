#include "configbackup.h"

#include "base/log.h"
#include "base/paths.h"
#include "model/scriptcontainer.h"
#include "model/scriptformat.h"
#include "multiactionlock.h"
#include "wholefile.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <array>

namespace vorlinmodel::ConfigBackup {

using vorlindesk::Log;
using vorlindesk::LogLevel;

namespace {

namespace LogText {
constexpr char ScriptFileName[] = "-strFileName[%s]\n";
constexpr char ScriptNotOpened[] = "Failed to open file for writing!";
constexpr char ScriptNotWritten[] = "Failed to write [%s]: %s\n";
constexpr char ScriptFolderMissing[] = "ScriptDir[%s] no exists";
constexpr char ScriptNotReadable[] = "ScriptBin[%s] open failed";
constexpr char ScriptRead[] = "open %s ok size:%d\n";
constexpr char ScriptPosition[] = "nlayoutId[%d]-npageId[%d]-\n";
constexpr char BackupFailed[] = "Failed to backup  [%s]!"; // two blanks, as in the next two
constexpr char DeleteFailed[] = "Failed to delete  [%s]!";
constexpr char RestoreFailed[] = "Failed to restore  [%s]!";
} // namespace LogText

constexpr char ScriptPrefix[] = "/script_";

// In the order in which they are copied.
constexpr std::array SettingsFiles = {"customLayout.ini", "multiActions.json", "system.ini"};

QString filePath(const QString &folder, const char *name)
{
    return folder + QLatin1Char('/') + QLatin1String(name);
}

bool backupFile(const QString &source, const QString &target)
{
    QString error;
    const auto bytes = readWholeFile(source, error);
    if (bytes && writeWholeFile(target, *bytes, error))
        return true;
    Log(LogLevel::Error, LogText::BackupFailed, qUtf8Printable(target));
    return false;
}

void allowOwner(const QString &path)
{
    QFile::setPermissions(path, QFile::permissions(path) | QFile::ReadOwner | QFile::WriteOwner |
                                    QFile::ReadUser | QFile::WriteUser);
}

// One of the files may be rewritten by the multi-action store at this moment.
bool replaceSettingsFile(const QString &path, const QByteArray &bytes)
{
    QString error;
    const auto lock = lockMultiActionFile();
    return writeWholeFile(path, bytes, error);
}

// For what cannot be replaced in one step. The new file lies ready before the old one is touched: a full
// disk, which looks the same at first, must not cost the old one.
bool moveAsideAndReplace(const QString &path, const QByteArray &bytes)
{
    const QString ready = path + QLatin1String(".new");
    QString error;
    if (!writeWholeFile(ready, bytes, error))
        return false;
    if (!safeDelete(path))
        Log(LogLevel::Error, LogText::DeleteFailed, qUtf8Printable(path));
    const bool done = QFile::rename(ready, path);
    if (!done)
        QFile::remove(ready);
    return done;
}

// Removing the old file and then copying would leave none at all when the program ends in between. So the new
// one takes its place in one step, and only what cannot be replaced that way is removed or moved aside first.
bool restoreFile(const QString &source, const QString &target)
{
    QString error;
    const auto bytes = readWholeFile(source, error);
    if (bytes) {
        if (QFile::exists(target))
            allowOwner(target); // a read-only file cannot be replaced on every system
        if (replaceSettingsFile(target, *bytes) || moveAsideAndReplace(target, *bytes))
            return true;
    }
    Log(LogLevel::Error, LogText::RestoreFailed, qUtf8Printable(target));
    return false;
}

} // namespace

QStringList settingsFileNames()
{
    QStringList names;
    for (const char *name : SettingsFiles)
        names.append(QLatin1String(name));
    return names;
}

QString baseFolder(const QString &exportDirectory)
{
    QString base = exportDirectory;
    if (base.isEmpty())
        base = vorlindesk::Paths::devConfigFolder();
    // Cut where an earlier export begins: 23 characters from the end when nothing follows it. A folder of the
    // user that merely begins with "script_" is not one of ours.
    static const QRegularExpression earlierExport(QStringLiteral("/script_\\d{8}_\\d{6}(?=/|$)"));
    if (const auto match = earlierExport.match(base); match.hasMatch())
        base.truncate(match.capturedStart());
    return base;
}

QString scriptFolder(const QString &exportDirectory, const QDateTime &now)
{
    QString base = baseFolder(exportDirectory);
    if (exportDirectory.isEmpty()) // the slash is doubled: so the folder reads in the log
        base += QLatin1Char('/');
    return base + QLatin1String(ScriptPrefix) + now.toString(QStringLiteral("yyyyMMdd_HHmmss"));
}

bool writeScript(const QString &exportDirectory, const QByteArray &bytes, const QDateTime &now)
{
    const QString folder = scriptFolder(exportDirectory, now);
    QDir().mkpath(folder); // a failure shows when the file cannot be opened
    const QString path = filePath(folder, ScriptFileName);
    Log(LogLevel::Info, LogText::ScriptFileName, qUtf8Printable(path));
    QString error;
    if (!writeWholeFile(path, bytes, error)) {
        Log(LogLevel::Error, LogText::ScriptNotOpened);
        Log(LogLevel::Error, LogText::ScriptNotWritten, qUtf8Printable(path), qUtf8Printable(error));
        return false;
    }
    setCurrentScript(bytes);
    return true;
}

std::optional<QByteArray> readScript(const QString &folder)
{
    if (!QDir(folder).exists()) {
        Log(LogLevel::Error, LogText::ScriptFolderMissing, qUtf8Printable(folder));
        return std::nullopt;
    }
    const QString path = filePath(folder, ScriptFileName);
    QString error;
    auto bytes = readWholeFile(path, error);
    if (!bytes) {
        Log(LogLevel::Error, LogText::ScriptNotReadable, qUtf8Printable(path));
        return std::nullopt;
    }
    Log(LogLevel::Info, LogText::ScriptRead, qUtf8Printable(path), bytes->size());
    const key_id_t position = scriptPosition(*bytes).value_or(key_id_t{-1, -1, 0});
    Log(LogLevel::Info, LogText::ScriptPosition, position.lid, position.pageid);
    setCurrentScript(*bytes);
    return bytes;
}

bool backupSettingsFiles(const QString &exportDirectory)
{
    bool done = true;
    for (const char *name : SettingsFiles) {
        const QString source = filePath(vorlindesk::Paths::devConfigFolder(), name);
        done = backupFile(source, filePath(exportDirectory, name)) && done;
    }
    return done;
}

bool restoreSettingsFiles(const QString &importDirectory)
{
    bool done = true;
    for (const char *name : SettingsFiles) {
        const QString target = filePath(vorlindesk::Paths::devConfigFolder(), name);
        done = restoreFile(filePath(importDirectory, name), target) && done;
    }
    return done;
}

bool safeDelete(const QString &path)
{
    if (!QFile::exists(path))
        return true;
    allowOwner(path);
    if (QFile::remove(path))
        return true;
    const QString aside = path + QLatin1String(".del");
    QFile::remove(aside);
    return QFile::rename(path, aside);
}

} // namespace vorlinmodel::ConfigBackup
