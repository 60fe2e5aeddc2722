// What the picture upload page has done with a picture, and how a file gets there.
#include "pictureuploadoptions.h"
#include "pictureuploadpage.h"
#include "ui_common/croppanel.h"
#include "ui_common/cropview.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>

void PictureUploadPage::start(const vorlinmodel::key_id_t &key)
{
    const bool video = mpOptions->usesVideo();
    PictureUploadOrder order;
    order.key = key;
    order.source = video ? mVideo.path : mPicture.path;
    order.name = QFileInfo(order.source).completeBaseName();
    order.size = mpOptions->targetSize();
    order.share = mpCrop->view().share();
    if (video)
        order.video = mpOptions->settings();
    mKeyName = mTarget.name;
    mJob.start(order);
    showButtons();
    mpCancel->setFocus();
}

void PictureUploadPage::showProgress(const QString &step, int percent)
{
    mpMessage->setText(step);
    mpProgress->setRange(0, percent < 0 ? 0 : 100); // a range of nothing is shown as "busy"
    mpProgress->setValue(percent);
}

void PictureUploadPage::finish(const PictureUploadOutcome &outcome)
{
    mpMessage->setText(doneText(outcome));
    showButtons();
    const bool isDone = outcome.problem.isEmpty() && !outcome.cancelled;
    if (isDone && !mJob.order().isForKey())
        emit sigGalleryChanged();
}

QString PictureUploadPage::doneText(const PictureUploadOutcome &outcome) const
{
    if (outcome.cancelled)
        return tr("Cancelled. Nothing was changed.");
    if (!outcome.problem.isEmpty())
        return outcome.problem;
    const bool video = mJob.order().video.has_value();
    if (mJob.order().isForKey())
        return (video ? tr("The video is on the key: %1.") : tr("The picture is on the key: %1."))
            .arg(mKeyName);
    if (outcome.cut)
        return tr("The video is in the gallery; its end did not fit.");
    return video ? tr("The video is in the gallery.") : tr("The picture is in the gallery.");
}

void PictureUploadPage::dragEnterEvent(QDragEnterEvent *event)
{
    if (mJob.isBusy() || !takes(*event->mimeData()))
        return;
    event->setDropAction(Qt::CopyAction); // a file manager whose files were "moved" here would delete them
    event->accept();
}

void PictureUploadPage::dropEvent(QDropEvent *event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
    take(*event->mimeData());
}
