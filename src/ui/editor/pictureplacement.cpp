#include "pictureplacement.h"

#include "keyedits.h"
#include "model/conversionresult.h"
#include "model/ifunctionmanager.h"
#include "pictureedits.h"
#include "storefiles.h"
#include "ui_common/picturereader.h"

#include <QBuffer>
#include <QFileInfo>
#include <algorithm>

using vorlinmodel::ConversionError;
using vorlinmodel::key_id_t;

namespace {

// Every edit of a key reads its picture for the history, on the user-interface thread.
constexpr int LargestSide = 1024;           // pixels; the largest key, all 15 in one, has 450 x 252
constexpr qint64 LargestFile = 1024 * 1024; // bytes

struct ReadPicture
{
    QString path; ///< what the key gets
    QString problem = {};
};

ReadPicture failed(ConversionError error, const QString &path)
{
    return {.path = path, .problem = vorlinmodel::conversionFailure(error, path).reason};
}

ReadPicture smallCopy(const QString &path, const QImage &picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !picture.save(&buffer, "PNG"))
        return failed(ConversionError::Damaged, path);
    const QString kept = StoreFiles::keepPicture(bytes);
    return kept.isEmpty() ? failed(ConversionError::DiskFull, path) : ReadPicture{.path = kept};
}

ReadPicture readPicture(const QString &path, const std::atomic<bool> &cancelled)
{
    const OpenedPicture picture = openPicture(path, LargestSide, cancelled);
    if (picture.video)
        return failed(ConversionError::NotPicture, path);
    if (!picture.problem.isEmpty() || cancelled)
        return {.path = path, .problem = picture.problem};
    const bool isSmall = std::max(picture.size.width(), picture.size.height()) <= LargestSide &&
                         QFileInfo(path).size() <= LargestFile;
    return isSmall ? ReadPicture{.path = path} : smallCopy(path, picture.view);
}

} // namespace

PicturePlacement::PicturePlacement(KeyEdits &edits, QObject *parent)
    : QObject(parent)
    , mEdits(edits)
{
    connect(&edits, &KeyEdits::sigReadEnded, this, &PicturePlacement::putRead);
}

void PicturePlacement::place(const key_id_t &key, const QString &path)
{
    cancel(key);
    const auto record = mEdits.store().getKeyAttribute(key);
    if (!record || record->mFId == 0)
        return;
    mJobs.append({.key = key, .fid = record->mFId, .path = path});
    readNext();
}

void PicturePlacement::cancel(const key_id_t &key)
{
    const auto job =
        std::find_if(mJobs.begin(), mJobs.end(), [&key](const Job &each) { return each.key == key; });
    if (job == mJobs.end())
        return;
    mJobs.erase(job);
    mTask.cancel(); // begins anew if it was at another one, which costs little
    readNext();
}

void PicturePlacement::readNext()
{
    const auto job = std::find_if(mJobs.cbegin(), mJobs.cend(), [](const Job &each) { return !each.isRead; });
    if (mTask.isBusy() || job == mJobs.cend())
        return;
    mTask.start([this, path = job->path](const std::atomic<bool> &cancelled) -> LatestTask::Delivery {
        const ReadPicture read = readPicture(path, cancelled);
        return [this, read] {
            onRead(read.path, read.problem);
        };
    });
}

void PicturePlacement::onRead(const QString &path, const QString &problem)
{
    const auto job = std::find_if(mJobs.begin(), mJobs.end(), [](const Job &each) { return !each.isRead; });
    job->path = path;
    job->problem = problem;
    job->isRead = true;
    putRead();
    readNext();
}

void PicturePlacement::putRead()
{
    while (!mEdits.isReading() && !mJobs.isEmpty() && mJobs.first().isRead) {
        const Job job = mJobs.takeFirst();
        const auto record = mEdits.store().getKeyAttribute(job.key);
        if (!record || record->mFId != job.fid)
            continue;
        if (job.problem.isEmpty())
            PictureEdits::setPicture(mEdits, job.key, job.path);
        else
            emit mEdits.sigProblem(job.problem);
    }
}
