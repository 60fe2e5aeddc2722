#include "model/profiles.h"

#include "backuplist.h"
#include "backuptext.h"
#include "base/log.h"
#include "base/paths.h"
#include "model/configbackup.h"
#include "model/scriptcontainer.h"
#include "model/wholefile.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>
#include <mutex>

namespace vorlinmodel::Profiles {

using vorlindesk::Log;
using vorlindesk::LogLevel;

namespace {

namespace LogText {
constexpr char Made[] = "backup: [%s] layouts:%d pages:%d keys:%d pictures:%d videos:%d\n";
constexpr char Failed[] = "backup: [%s] not made: %s\n";
} // namespace LogText

constexpr char UnfinishedEnding[] = ".part";
constexpr char SystemIni[] = "system.ini";
constexpr int GatherPart = 60; // percent of making a backup
constexpr int ScriptPart = 90; // percent of writing it

// Held while a backup is written, by worker threads only: two of the same second would take the same folder,
// and one that is being written looks like what an interrupted program left.
std::mutex writing;

bool isBackupName(const QString &name)
{
    static const QRegularExpression pattern(QStringLiteral("^script_\\d{8}_\\d{6}$"));
    return pattern.match(name).hasMatch();
}

QString partOf(const QString &folder)
{
    return folder + QLatin1String(UnfinishedEnding);
}

// A complete backup never replaces another one: the next second without one is as good.
QString freeFolder(const QString &directory, QDateTime &moment)
{
    QString folder = ConfigBackup::scriptFolder(directory, moment);
    while (QFileInfo::exists(folder) || QFileInfo::exists(partOf(folder))) {
        moment = moment.addSecs(1);
        folder = ConfigBackup::scriptFolder(directory, moment);
    }
    return QDir::cleanPath(folder);
}

class Writer
{
public:
    Writer(const BackupContent &content, const QString &directory, BackupReason reason, const QString &name)
        : mContent(content)
    {
        mList.info = content.info;
        mList.info.reason = reason;
        mList.info.name = name;
        mResult.folder = freeFolder(directory, mList.info.made);
        mPart = partOf(mResult.folder);
    }

    BackupResult run(const BackupWatch &watch)
    {
        mResult.counts = mContent.info.counts;
        mResult.leftOut = mContent.leftOut;
        const bool done = write(watch.part(0, 50)) && readBack(watch.part(50, 100)) && putInPlace();
        const BackupCounts &counts = mResult.counts;
        if (done) {
            Log(LogLevel::Info, LogText::Made, qUtf8Printable(mResult.folder), counts.layouts, counts.pages,
                counts.keys, counts.pictures, counts.videos);
            return mResult;
        }
        QDir(mPart).removeRecursively();
        if (!mResult.isCancelled)
            Log(LogLevel::Error, LogText::Failed, qUtf8Printable(mResult.folder),
                qUtf8Printable(mResult.error));
        mResult.folder.clear();
        return mResult;
    }

private:
    bool write(const BackupWatch &watch)
    {
        QDir().mkpath(mPart + QLatin1Char('/') + QLatin1String(LayoutPicturePrefix)); // a failure shows below
        if (!writeListed(QLatin1String(ConfigBackup::ScriptFileName), mContent.scriptBytes,
                         watch.part(0, ScriptPart)))
            return false;
        const BackupWatch rest = watch.part(ScriptPart, 100);
        int done = 0;
        for (auto it = mContent.files.begin(); it != mContent.files.end(); ++it) {
            if (!writeListed(it.key(), it.value(), rest.item(done++, int(mContent.files.size()))))
                return false;
        }
        return writeFile(QLatin1String(BackupListName), encodeBackupList(mList), watch.part(100, 100));
    }

    bool writeListed(const QString &path, const QByteArray &bytes, const BackupWatch &watch)
    {
        mList.files.append(backupListEntry(path, bytes, watch.still()));
        return writeFile(path, bytes, watch);
    }

    bool writeFile(const QString &path, const QByteArray &bytes, const BackupWatch &watch)
    {
        const QString target = mPart + QLatin1Char('/') + path;
        QString reason;
        if (writeWholeFile(target, bytes, reason, watch))
            return true;
        mResult.isCancelled = watch.isGivenUp();
        if (mResult.isCancelled)
            return false;
        mResult.error = BackupText::notWritten(target, reason);
        return false;
    }

    bool readBack(const BackupWatch &watch)
    {
        const auto content = loadBackup(mPart, watch);
        mResult.isCancelled = !content;
        if (!content)
            return false;
        const bool isSame = content->damaged.isEmpty() && content->info.isComplete &&
                            content->scriptBytes == mContent.scriptBytes && content->files == mContent.files;
        if (!isSame)
            mResult.error = BackupText::notVerified(mResult.folder);
        return isSame;
    }

    bool putInPlace()
    {
        QString reason;
        if (renameWhole(mPart, mResult.folder, reason))
            return true;
        mResult.error = BackupText::notWritten(mResult.folder, reason);
        return false;
    }

    const BackupContent &mContent;
    BackupList mList;
    BackupResult mResult;
    QString mPart;
};

// Without the group that the window writes whenever it is closed.
QByteArray withoutWindow(const QByteArray &ini)
{
    QByteArray kept;
    bool isWindow = false;
    for (const QByteArray &line : ini.split('\n')) {
        if (line.startsWith('['))
            isWindow = line.startsWith("[Window]");
        if (!isWindow && !line.trimmed().isEmpty())
            kept += line + '\n';
    }
    return kept;
}

bool sameState(const BackupContent &one, const BackupContent &other)
{
    const auto rest = [](QMap<QString, QByteArray> files) {
        files[QLatin1String(SystemIni)] = withoutWindow(files.value(QLatin1String(SystemIni)));
        return files;
    };
    return one.scriptBytes == other.scriptBytes && rest(one.files) == rest(other.files);
}

// @return nothing when @p watch gave it up.
std::optional<bool> isBackedUp(const QVector<BackupInfo> &backups, const BackupContent &present,
                               const BackupWatch &watch)
{
    const auto newest =
        std::find_if(backups.begin(), backups.end(), [](const BackupInfo &info) { return info.isComplete; });
    if (newest == backups.end())
        return present.script.pages.isEmpty(); // a new program has nothing to lose
    const auto content = loadBackup(newest->folder, watch);
    if (!content)
        return std::nullopt;
    return content->damaged.isEmpty() && sameState(*content, present);
}

void removeUnfinished(const QString &directory)
{
    QDir base(ConfigBackup::baseFolder(directory));
    for (const QString &name : base.entryList({QStringLiteral("script_*.part")}, QDir::Dirs)) {
        if (isBackupName(name.chopped(int(sizeof UnfinishedEnding) - 1)))
            QDir(base.filePath(name)).removeRecursively();
    }
}

// Never @p newest, which looks old after the clock was set back.
void removeOldest(const QString &directory, BackupReason reason, const QString &newest,
                  const BackupWatch &watch)
{
    int kept = 1;
    for (const BackupInfo &info : list(directory, watch)) {
        const bool counts = info.isComplete && info.reason == reason &&
                            QFileInfo(info.folder).fileName() != QFileInfo(newest).fileName();
        if (counts && ++kept > Kept)
            remove(info.folder);
    }
}

} // namespace

QString usable(const QString &chosen)
{
    return !chosen.isEmpty() && QFileInfo(chosen).isDir() ? chosen : vorlindesk::Paths::devConfigFolder();
}

BackupResult create(const QString &directory, const IFunctionManager &store, BackupReason reason,
                    const QString &name, const BackupWatch &watch)
{
    const auto content = presentContent(store, watch.part(0, GatherPart));
    if (content)
        return create(directory, *content, reason, name, watch.part(GatherPart, 100));
    BackupResult result;
    result.isCancelled = true;
    return result;
}

BackupResult create(const QString &directory, const BackupContent &content, BackupReason reason,
                    const QString &name, const BackupWatch &watch)
{
    BackupResult result;
    if (!content.error.isEmpty()) {
        result.error = content.error;
        return result;
    }
    const std::lock_guard lock(writing);
    result = Writer(content, directory, reason, name).run(watch);
    if (!result.folder.isEmpty() && reason == BackupReason::Person)
        setCurrentScript(content.scriptBytes);
    if (!result.folder.isEmpty() && reason != BackupReason::Person)
        removeOldest(directory, reason, result.folder, watch.part(100, 100));
    return result;
}

BackupResult createAutomatic(const QString &directory, const IFunctionManager &store,
                             const BackupWatch &watch)
{
    {
        const std::lock_guard lock(writing);
        removeUnfinished(directory);
    }
    BackupResult result;
    const auto present = presentContent(store, watch.part(0, GatherPart));
    const BackupWatch still = watch.part(GatherPart, GatherPart);
    const auto isThere = present ? isBackedUp(list(directory, still), *present, still) : std::nullopt;
    result.isCancelled = !isThere;
    if (!isThere || *isThere)
        return result;
    return create(directory, *present, BackupReason::Automatic, {}, watch.part(GatherPart, 100));
}

QVector<BackupInfo> list(const QString &directory, const BackupWatch &watch)
{
    QVector<BackupInfo> backups;
    const QDir base(ConfigBackup::baseFolder(directory));
    for (const QString &name : base.entryList({QStringLiteral("script_*")}, QDir::Dirs)) {
        const QString folder = base.absoluteFilePath(name);
        const bool isBackup =
            QFileInfo::exists(folder + QLatin1Char('/') + QLatin1String(ConfigBackup::ScriptFileName)) ||
            QFileInfo::exists(folder + QLatin1Char('/') + QLatin1String(BackupListName));
        if (isBackupName(name) && isBackup && !watch.isGivenUp())
            backups.append(backupInfo(folder, watch.still()));
    }
    std::sort(backups.begin(), backups.end(), [](const BackupInfo &one, const BackupInfo &other) {
        return std::pair(one.made, one.folder) > std::pair(other.made, other.folder);
    });
    return backups;
}

// Out of the list first, so that an interruption leaves no backup that lacks half of its files.
bool remove(const QString &folder)
{
    const QString clean = QDir::cleanPath(folder);
    QString reason;
    if (!isBackupName(QFileInfo(clean).fileName()) || !renameWhole(clean, partOf(clean), reason))
        return false;
    return QDir(partOf(clean)).removeRecursively();
}

} // namespace vorlinmodel::Profiles
