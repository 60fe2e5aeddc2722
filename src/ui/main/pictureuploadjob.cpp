#include "pictureuploadjob.h"

#include "model/wholefile.h"
#include "pictureuploadtarget.h"
#include "pictureuploadvideo.h"
#include "ui_editor/editorcontext.h"
#include "ui_editor/galleryadding.h"
#include "ui_editor/gallerypictures.h"
#include "ui_editor/pictureedits.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using vorlinmodel::ConversionError;
using vorlinmodel::ConversionQueue;

namespace {

GalleryPictures::Added addPicture(const QString &path, const QString &name)
{
    return GalleryPictures::addImage(QImage(path), name);
}

/// The gallery takes over the name of a file.
GalleryPictures::Added addVideo(const QString &path, const QString &name, const std::atomic<bool> &cancelled)
{
    const QFileInfo made(path);
    const QString named = made.dir().filePath(name + QLatin1Char('.') + made.suffix());
    QFile::remove(named);
    if (!QFile::rename(path, named))
        return {
            .paths = {},
            .problems = {vorlinmodel::conversionFailure(ConversionError::NotWritable, made.path()).reason}};
    const GalleryPictures::Added added = GalleryAdding::add({named}, {.cancelled = cancelled});
    QFile::remove(named);
    return added;
}

} // namespace

PictureUploadJob::PictureUploadJob(EditorContext &context, const vorlinmodel::ConverterOptions &options)
    : mContext(context)
    , mQueue(options)
{
    connect(&mReader, &PictureReader::sigCropped, this, &PictureUploadJob::convertPart);
    connect(&mQueue, &ConversionQueue::sigFinished, this, &PictureUploadJob::finishConversion);
    connect(&mQueue, &ConversionQueue::sigProgress, this,
            [this](int, int percent) { emit sigProgress(tr("Converting..."), percent); });
    connect(&mContext.videos, &VideoPlacement::sigProgress, this, &PictureUploadJob::showPlacement);
    connect(&mContext.videos, &VideoPlacement::sigFinished, this, &PictureUploadJob::finishPlacement);
}

void PictureUploadJob::start(const PictureUploadOrder &order)
{
    if (mBusy)
        return;
    mBusy = true;
    mOrder = order;
    emit sigProgress(tr("Converting..."), -1);
    if (!order.video) {
        mReader.crop(order.source, order.share, order.size);
    } else if (order.isForKey()) {
        mPlacing = true;
        mPlacement =
            mContext.videos.place(order.key, order.source, {}, order.video->fit, order.video->mayCut);
    } else {
        convert({.source = order.source, .size = order.size, .video = order.video});
    }
}

void PictureUploadJob::cancel()
{
    if (mReader.isBusy()) {
        mReader.cancel();
        finish({.problem = {}, .cancelled = true});
    } else if (mPlacing) {
        mContext.videos.cancel(mOrder.key);
    } else if (mStore.isBusy()) {
        mStopsAdding = true; // the task says whether that came in time
    } else {
        mQueue.cancel(mConversion);
    }
}

/// The part lies in a file of the picture's name, which the converter's messages tell.
void PictureUploadJob::convertPart(const QImage &part, const QString &problem)
{
    if (!problem.isEmpty())
        return finish({.problem = problem});
    constexpr int longestName = 60; // characters; a file system takes 255 bytes
    const QString path = mWork.filePath(mOrder.name.left(longestName) + QStringLiteral(".png"));
    if (mWork.isValid() && part.save(path, "PNG"))
        convert({.source = path, .size = mOrder.size});
    else
        finish({.problem = vorlinmodel::conversionFailure(ConversionError::DiskFull, mOrder.source).reason});
}

void PictureUploadJob::convert(const vorlinmodel::ConversionJob &job)
{
    mConversion = mQueue.add(job);
}

void PictureUploadJob::finishConversion(int id, const vorlinmodel::ConversionResult &result)
{
    if (id != mConversion)
        return;
    mConversion = 0;
    PictureUploadOutcome outcome{.problem = withAdvice(result.error, result.reason)};
    outcome.cancelled = result.error == ConversionError::Cancelled;
    outcome.cut = result.cut;
    if (outcome.cancelled)
        outcome.problem.clear();
    if (result.success() && !mOrder.isForKey())
        return addToGallery(result.path, outcome);
    if (result.success())
        outcome.problem = setOnKey(result.path);
    QFile::remove(result.path);
    finish(outcome);
}

void PictureUploadJob::addToGallery(const QString &path, const PictureUploadOutcome &outcome)
{
    mStopsAdding = false;
    mStore.start([this, path, outcome, order = mOrder](const std::atomic<bool> &) {
        const GalleryPictures::Added added =
            order.video ? addVideo(path, order.name, mStopsAdding) : addPicture(path, order.name);
        PictureUploadOutcome result = outcome;
        result.problem = added.problems.join(QLatin1Char('\n'));
        result.cancelled = result.problem.isEmpty() && added.paths.isEmpty();
        QFile::remove(path);
        return [this, result] {
            finish(result);
        };
    });
}

QString PictureUploadJob::setOnKey(const QString &path)
{
    if (mContext.edits.isReading()) // which would overwrite it
        return tr("The panel is being read just now. Try again when that is done.");
    QString problem;
    const auto bytes = vorlinmodel::readWholeFile(path, problem);
    const QString kept = bytes ? StoreFiles::keepPicture(*bytes) : QString();
    if (kept.isEmpty())
        return tr("The picture cannot be kept: the disk may be full. %1").arg(problem).trimmed();
    // It may have lost its function while the picture was converted.
    if (pictureUploadTarget(mContext, mOrder.key).fid == 0)
        return tr("The key has no function any more.");
    mContext.pictures.cancel(mOrder.key); // an older one would replace it when it has been read
    PictureEdits::setPicture(mContext.edits, mOrder.key, kept);
    return {};
}

void PictureUploadJob::showPlacement(const vorlinmodel::key_id_t &key, VideoPlacement::Stage stage,
                                     int percent)
{
    if (!mPlacing || key != mOrder.key)
        return;
    const bool sends = stage == VideoPlacement::Stage::Sending;
    emit sigProgress(sends ? tr("Sending to the panel...") : tr("Converting..."), percent);
}

void PictureUploadJob::finishPlacement(const vorlinmodel::key_id_t &key, const QString &problem,
                                       bool cancelled, int number)
{
    if (!mPlacing || key != mOrder.key || number != mPlacement)
        return;
    mPlacing = false;
    finish({.problem = problem, .cancelled = cancelled});
}

void PictureUploadJob::finish(const PictureUploadOutcome &outcome)
{
    mBusy = false;
    emit sigFinished(outcome);
}
