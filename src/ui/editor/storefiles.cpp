#include "storefiles.h"

#include "base/paths.h"
#include "model/ifunctionmanager.h"
#include "model/imageurlfile.h"
#include "model/picturefolder.h"
#include "pendingedits.h"

#include <QDir>
#include <QFile>

namespace Paths = vorlindesk::Paths;

namespace {

/// Of the last run, whose undo has gone.
void removeUnusedPictures(const vorlinmodel::IFunctionManager &store)
{
    QDir folder(vorlinmodel::keptPictureFolder());
    if (!folder.exists())
        return;
    QStringList used;
    for (const vorlinmodel::key_id_t &key : store.getKeys()) {
        if (const auto record = store.getKeyAttribute(key))
            used.append(QFileInfo(record->customImage).absoluteFilePath());
    }
    for (const QFileInfo &file : folder.entryInfoList(QDir::Files)) {
        if (!used.contains(file.absoluteFilePath()))
            QFile::remove(file.absoluteFilePath());
    }
}

} // namespace

StoreFiles::StoreFiles(vorlinmodel::IFunctionManager &store, PendingEdits &pending, QObject *parent)
    : QObject(parent)
    , mStore(store)
    , mPending(pending)
{
    mTimer.setSingleShot(true);
    mTimer.setInterval(Rest);
    connect(&mTimer, &QTimer::timeout, this, &StoreFiles::startSaving);
}

StoreFiles::~StoreFiles()
{
    join();
    if (mDirty)
        saveNow();
}

bool StoreFiles::load()
{
    const bool records = vorlinmodel::loadAllKeyData(mStore);
    if (records) // else their names may be in the file that is kept aside
        removeUnusedPictures(mStore);
    return mPending.load() && records;
}

void StoreFiles::touch()
{
    mDirty = true;
    if (!mPaused && mHolds == 0)
        mTimer.start();
}

void StoreFiles::pause()
{
    mPaused = true;
    stopSaving();
}

void StoreFiles::resume()
{
    mPaused = false;
    if (mDirty && mHolds == 0)
        mTimer.start();
}

std::shared_future<void> StoreFiles::hold()
{
    ++mHolds;
    mTimer.stop();
    if (mWritten.valid())
        return mWritten;
    std::promise<void> nothingUnderWay;
    nothingUnderWay.set_value();
    return nothingUnderWay.get_future().share();
}

void StoreFiles::release()
{
    --mHolds;
    if (mDirty && !mPaused && mHolds == 0)
        mTimer.start();
}

void StoreFiles::stopSaving()
{
    mTimer.stop();
    join();
}

bool StoreFiles::saveNow()
{
    stopSaving();
    mDirty = false;
    const bool pending = mPending.save();
    return mStore.saveAllKeyData() && pending;
}

void StoreFiles::startSaving()
{
    if (isWriting()) // a slow disk: onWritten() comes back to it
        return;
    join(); // has nothing left to do
    mDirty = false;
    const bool pending = mPending.save();
    std::promise<void> written;
    mWritten = written.get_future().share();
    mThread = std::thread([this, pending, written = std::move(written)]() mutable {
        const bool done = mStore.saveAllKeyData() && pending;
        written.set_value();
        mHandOver.post([this, done] { onWritten(done); });
    });
}

bool StoreFiles::isWriting() const
{
    return mWritten.valid() && mWritten.wait_for(std::chrono::seconds(0)) != std::future_status::ready;
}

void StoreFiles::onWritten(bool done)
{
    if (mDirty && !mPaused && mHolds == 0)
        mTimer.start();
    if (!done)
        emit sigSaveFailed();
    emit sigWritten();
}

void StoreFiles::join()
{
    if (mThread.joinable())
        mThread.join();
}

/// Without waiting for the disk, which takes seconds for the pictures of all keys: the file is needed until
/// the next saving only, which writes another one. What a crash leaves of it is removed at the next start.
QString StoreFiles::keepPicture(const QByteArray &picture)
{
    const QString path = vorlinmodel::keptPicturePath(picture);
    if (QFile(path).size() == picture.size())
        return path;
    Paths::createPath(vorlinmodel::keptPictureFolder());
    QFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(picture) == picture.size() && file.flush())
        return path;
    file.remove();
    return {};
}
