#include "model/backuprestore.h"

#include "backuplist.h"
#include "backupswitch.h"
#include "backuptext.h"
#include "base/log.h"
#include "base/paths.h"
#include "model/configbackup.h"
#include "model/ifunctionmanager.h"
#include "model/imageurlfile.h"
#include "model/profiles.h"
#include "model/scriptcontainer.h"
#include "restoreplan.h"
#include "scriptrecords.h"
#include "wholefile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

namespace vorlinmodel {

using vorlindesk::Log;
using vorlindesk::LogLevel;
namespace Paths = vorlindesk::Paths;

namespace {

namespace LogText {
constexpr char Done[] = "restore: [%s] done, before it: [%s]\n";
constexpr char Failed[] = "restore: [%s] failed: %s\n";
constexpr char NotTaken[] = "restore: not taken over: %s\n";
} // namespace LogText

constexpr int GatherPart = 30; // percent of a restore
constexpr int SafetyPart = 50;
constexpr int PreparePart = 95;

/// Whether @p bytes are the content of the file @p path. Far quicker than writing them.
bool holds(const QString &path, const QByteArray &bytes, const BackupWatch &watch)
{
    QFile file(path);
    QString error;
    return file.size() == bytes.size() && readWholeFile(path, error, bytes.size(), watch) == bytes;
}

class Restore
{
public:
    Restore(const BackupContent &backup, IFunctionManager &store)
        : mBackup(backup)
        , mStore(store)
    {}

    RestoreResult run(const RestoreOptions &options, const BackupWatch &watch)
    {
        mResult.isDone = isUsable(options) && isFree() && gather(watch.part(0, GatherPart)) &&
                         backUp(options, watch.part(GatherPart, SafetyPart)) &&
                         prepare(watch.part(SafetyPart, PreparePart)) && exchange(watch);
        if (mResult.isDone) {
            takeOver();
            Log(LogLevel::Info, LogText::Done, qUtf8Printable(mBackup.info.folder),
                qUtf8Printable(mResult.safetyFolder));
        } else if (!mResult.isCancelled) {
            Log(LogLevel::Error, LogText::Failed, qUtf8Printable(mBackup.info.folder),
                qUtf8Printable(mResult.error));
        }
        for (const QString &text : mResult.leftOut)
            Log(LogLevel::Warn, LogText::NotTaken, qUtf8Printable(text));
        return mResult;
    }

private:
    bool isUsable(const RestoreOptions &options)
    {
        if (mBackup.damaged.isEmpty())
            return true;
        if (!options.takesTheRest)
            mResult.error = BackupText::damaged(mBackup.info.name);
        else if (mBackup.script.pages.isEmpty() && mBackup.files.isEmpty())
            mResult.error = BackupText::holdsNothing(mBackup.info.name);
        return mResult.error.isEmpty();
    }

    // While an earlier restore is neither finished nor taken back, the files are no state to back up.
    bool isFree()
    {
        const bool isFree = BackupSwitch::prepare(mResult.error);
        if (isFree)
            BackupSwitch::discard();
        return isFree;
    }

    bool gather(const BackupWatch &watch)
    {
        auto present = presentContent(mStore, watch);
        mResult.isCancelled = !present;
        if (!present)
            return false;
        mPresent = std::move(*present);
        mResult.error = mPresent.error;
        return mResult.error.isEmpty();
    }

    bool backUp(const RestoreOptions &options, const BackupWatch &watch)
    {
        const auto safety =
            Profiles::create(options.safetyDirectory, mPresent, BackupReason::Safety, {}, watch);
        mResult.isCancelled = safety.isCancelled;
        mResult.error = safety.error;
        mResult.safetyFolder = safety.folder;
        return !safety.folder.isEmpty();
    }

    bool prepare(const BackupWatch &watch)
    {
        mPlan = planRestore(mBackup, mPresent, watch.still());
        collectKeys(watch.still());
        mResult.isCancelled = watch.isGivenUp();
        if (mResult.isCancelled)
            return false;
        if (!BackupSwitch::prepare(mResult.error))
            return false; // what is there now may be all that is left of an earlier one
        const bool done = writeKeys(watch.part(0, 90)) && writeFiles(watch.part(90, 100));
        if (!done)
            BackupSwitch::discard();
        return done;
    }

    void collectKeys(const BackupWatch &watch)
    {
        for (const PagePayload &page : mPlan.script.pages) {
            for (const KeyRecord &record : page.records) {
                const key_id_t key{record.layoutId, record.pageId, record.keyId};
                if (hasPlaceInScript(key))
                    mKeys.append(storedKey(record, mPlan.script.keys.value(key), watch));
                if (!hasPlaceInScript(key) || mKeys.last().badPicture)
                    mResult.leftOut.append(BackupText::part(hasPlaceInScript(key) ? BackupText::Part::Picture
                                                                                  : BackupText::Part::Record)
                                               .arg(key.lid)
                                               .arg(key.pageid)
                                               .arg(key.kid));
            }
        }
    }

    bool writeKeys(const BackupWatch &watch)
    {
        QVector<KeyAttribute> records;
        for (int i = 0; i < mKeys.size(); ++i) {
            const StoredKey &key = mKeys.at(i);
            const BackupWatch item = watch.item(i, int(mKeys.size()));
            mResult.isCancelled = !item.goesOn(0, 1);
            if (mResult.isCancelled || !writePicture(key, item.still()) || !writeVideo(key, item))
                return false;
            records.append({key.key, key.attribute});
        }
        const QString ini = newPath(relative(Paths::imageUrlIni()));
        if (QDir().mkpath(QFileInfo(ini).path()) && writeKeyRecords(ini, records))
            return true;
        mResult.error = BackupText::notWritten(ini, QString());
        return false;
    }

    // Settings files that stay the same are not exchanged.
    bool writeFiles(const BackupWatch &watch)
    {
        mNames.append({relative(Paths::imageFolder()), QLatin1String(LayoutPicturePrefix).chopped(1)});
        for (const QString &name : ConfigBackup::settingsFileNames()) {
            const auto now = mPlan.files.find(name);
            const auto before = mPresent.files.find(name);
            const bool isNow = now != mPlan.files.end();
            const bool wasBefore = before != mPresent.files.end();
            if (isNow != wasBefore || (isNow && *now != *before))
                mNames.append(name);
        }
        for (auto it = mPlan.files.begin(); it != mPlan.files.end(); ++it) {
            const bool isExchanged = it.key().contains(QLatin1Char('/')) || mNames.contains(it.key());
            if (isExchanged && !write(newPath(it.key()), it.value(), watch.still()))
                return false;
        }
        return true;
    }

    bool writePicture(const StoredKey &key, const BackupWatch &watch)
    {
        return key.picture.isEmpty() ||
               write(newPath(relative(key.attribute.customImage)), key.picture, watch);
    }

    /// Videos are added to those that are there, which undo may still lead to. One that stands under the same
    /// name is replaced only when the disk has damaged it.
    bool writeVideo(const StoredKey &key, const BackupWatch &watch)
    {
        const QString path = key.attribute.defaultImage;
        if (key.video.isEmpty() || mVideos.contains(path))
            return true;
        mVideos.insert(path);
        if (holds(path, key.video, watch.still()))
            return true;
        mNames.append(relative(path));
        return write(newPath(relative(path)), key.video, watch);
    }

    // Not a whole file in one step, which waits for the disk each time, 10 s for all keys: what is prepared
    // here is thrown away when it is not complete. After a power failure there are both backups.
    bool write(const QString &path, const QByteArray &bytes, const BackupWatch &watch)
    {
        const QString folder = QFileInfo(path).path();
        if (!mFolders.contains(folder) && QDir().mkpath(folder))
            mFolders.insert(folder);
        QFile file(path);
        const auto take = [&](qint64 offset, qint64 length) {
            return file.write(bytes.constData() + offset, length) == length;
        };
        if (file.open(QIODevice::WriteOnly) && watch.inPieces(bytes.size(), take) && file.flush())
            return true;
        mResult.isCancelled = watch.isGivenUp();
        if (mResult.isCancelled)
            return false;
        mResult.error = BackupText::notWritten(path, file.errorString());
        return false;
    }

    bool exchange(const BackupWatch &watch)
    {
        mResult.isCancelled = !watch.goesOn(PreparePart, 100); // from here on it can no longer be given up
        if (!mResult.isCancelled)
            return BackupSwitch::run(mNames, mResult.error);
        BackupSwitch::discard();
        return false;
    }

    void takeOver()
    {
        QSet<QString> kept; // key_id_t has no hash
        const auto nameOf = [](const key_id_t &key) {
            return QStringLiteral("%1_%2_%3").arg(key.lid).arg(key.pageid).arg(key.kid);
        };
        for (const StoredKey &key : mKeys) {
            mStore.setKeyAttribute(key.key, key.attribute);
            kept.insert(nameOf(key.key));
        }
        for (const key_id_t &key : mStore.getKeys()) {
            if (!kept.contains(nameOf(key)))
                mStore.deleteKeyAttribute(key);
        }
        setCurrentScript(mPlan.scriptBytes);
    }

    static QString relative(const QString &path) { return path.mid(Paths::devConfigFolder().size() + 1); }
    static QString newPath(const QString &name)
    {
        return BackupSwitch::newFolder() + QLatin1Char('/') + name;
    }

    const BackupContent &mBackup;
    IFunctionManager &mStore;
    BackupContent mPresent;
    RestorePlan mPlan;
    QVector<StoredKey> mKeys;
    QStringList mNames; ///< of what is exchanged
    QSet<QString> mFolders;
    QSet<QString> mVideos; ///< that have been seen to; keys may share one
    RestoreResult mResult;
};

} // namespace

RestoreResult restoreBackup(const BackupContent &backup, IFunctionManager &store,
                            const RestoreOptions &options, const BackupWatch &watch)
{
    return Restore(backup, store).run(options, watch);
}

QString restoredVideoFolder()
{
    return scriptVideoFolder();
}

bool isRestoreUnfinished()
{
    return QFileInfo::exists(BackupSwitch::newFolder());
}

bool recoverRestore()
{
    return BackupSwitch::recover() != BackupSwitch::Recovery::NotPossible;
}

} // namespace vorlinmodel
