#include "storefiles.h"

#include "base/paths.h"
#include "model/ifunctionmanager.h"
#include "model/imageurlfile.h"
#include "model/wholefile.h"
#include "pendingedits.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

namespace Paths = vorlindesk::Paths;

namespace {

/// Pictures that undo, paste and moves brought back, until the next saving puts them under the name of their
/// key.
QString pictureFolder()
{
    return Paths::devConfigFolder() + QStringLiteral("/pictures");
}

void removeUnusedPictures(const vorlinmodel::IFunctionManager &store)
{
    QDir folder(pictureFolder());
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
    join(); // ended long ago, unless the disk is very slow
    mDirty = false;
    const bool pending = mPending.save();
    std::promise<void> written;
    mWritten = written.get_future().share();
    mThread = std::thread([this, pending, written = std::move(written)]() mutable {
        if (!mStore.saveAllKeyData() || !pending)
            mHandOver.post([this] { emit sigSaveFailed(); });
        written.set_value();
    });
}

void StoreFiles::join()
{
    if (mThread.joinable())
        mThread.join();
}

QString StoreFiles::keepPicture(const QByteArray &picture)
{
    const QByteArray name = QCryptographicHash::hash(picture, QCryptographicHash::Sha1).toHex();
    const QString path = pictureFolder() + QLatin1Char('/') + QString::fromLatin1(name);
    if (QFile(path).size() == picture.size())
        return path;
    QString error;
    Paths::createPath(pictureFolder());
    return vorlinmodel::writeWholeFile(path, picture, error) ? path : QString();
}
