#include "pictureuploadpage.h"

#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "pictureuploadoptions.h"
#include "ui_common/croppanel.h"
#include "ui_common/cropview.h"
#include "ui_common/filedialog.h"
#include "ui_editor/editorcontext.h"
#include "ui_editor/gallerypictures.h"
#include "ui_editor/pictureedits.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QUrl>

namespace {

constexpr int SelectText = 15;
constexpr int PictureText = 86;
constexpr int VideoText = 87;

/// The first of several; empty when there is none on this computer.
QString fileOf(const QMimeData &data)
{
    const QList<QUrl> urls = data.urls();
    return urls.isEmpty() ? QString() : urls.first().toLocalFile();
}

} // namespace

void PictureUploadPage::ask()
{
    const vorlindesk::LanguageManager &language = *mContext.framework.languageManager();
    const QString pictures = GalleryPictures::namePatterns().join(QLatin1Char(' '));
    const QString videos = PictureEdits::videoPattern();
    const QString filter = QStringLiteral("%1, %2 (%3 %4);;%1 (%3);;%2 (%4)")
                               .arg(language.Text(PictureText), language.Text(VideoText), pictures, videos);
    const QString path =
        FileDialog::openFile(this, language.Text(SelectText), QFileInfo(mpFile->text()).path(), filter);
    if (!path.isEmpty())
        choose(path);
}

void PictureUploadPage::paste()
{
    take(*QApplication::clipboard()->mimeData());
}

/// A link that is dragged from a browser names no file, and often brings its picture along.
bool PictureUploadPage::takes(const QMimeData &given)
{
    return given.hasImage() || !fileOf(given).isEmpty();
}

void PictureUploadPage::take(const QMimeData &given)
{
    if (mJob.isBusy())
        return;
    if (const QString path = fileOf(given); !path.isEmpty())
        choose(path);
    else if (given.hasImage())
        takeImage(qvariant_cast<QImage>(given.imageData()));
}

/// Becomes a file like any other; without compression, which would take its time.
void PictureUploadPage::takeImage(const QImage &image)
{
    // Each into a folder of its own: one that was pasted before may still be read.
    const QString folder = mPasted.filePath(QString::number(++mPastes));
    QDir().mkpath(folder);
    const QString path = QStringLiteral("%1/%2.bmp").arg(folder, tr("Pasted picture"));
    mPaste.start([this, image, path](const std::atomic<bool> &) -> LatestTask::Delivery {
        const bool isWritten = image.save(path, "BMP");
        return [this, path, isWritten] {
            if (isWritten)
                choose(path);
            else
                showNothing(tr("The picture cannot be taken over: the disk may be full."));
        };
    });
}

void PictureUploadPage::choose(const QString &path)
{
    mPaste.cancel();
    mVideoReader.cancel();
    showNothing(tr("Reading the file..."));
    mpFile->setText(QDir::toNativeSeparators(path));
    mReader.open(path);
}

void PictureUploadPage::showNothing(const QString &message)
{
    mPicture = {};
    mVideo = {};
    mpFile->clear();
    mpOptions->setKind(PictureUploadOptions::Kind::Nothing);
    showUse();
    mpMessage->setText(message);
}

void PictureUploadPage::showPicture(const OpenedPicture &picture)
{
    using Kind = PictureUploadOptions::Kind;
    if (picture.video)
        return mVideoReader.open(picture.path);
    mpMessage->setText(picture.problem);
    mPicture = picture;
    if (picture.problem.isEmpty())
        mpOptions->setKind(picture.moves ? Kind::Animation : Kind::Picture);
    showUse();
    mpCrop->view().setFocus();
}

void PictureUploadPage::showVideo(const OpenedVideo &video)
{
    mpMessage->setText(video.problem);
    mVideo = video;
    if (video.problem.isEmpty() && mPicture.view.isNull())
        mpOptions->setKind(PictureUploadOptions::Kind::Video);
    showUse();
}

void PictureUploadPage::changeOptions()
{
    // A picture that moves is opened as a video once it shall be one.
    if (mpOptions->usesVideo() && !mPicture.path.isEmpty() && mVideo.path != mPicture.path)
        mVideoReader.open(mPicture.path);
    showUse();
}

/// Puts the picture or the first frame behind the frame; the same picture stays where it was moved to.
void PictureUploadPage::showUse()
{
    CropView &view = mpCrop->view();
    const bool video = mpOptions->usesVideo();
    const QImage &shown = video ? mVideo.frame : mPicture.view;
    view.setTarget(video ? shown.size() : mpOptions->targetSize());
    view.setWhole(video || mpOptions->fit() == vorlinmodel::VideoFit::Contain);
    if (shown.cacheKey() != mShown)
        view.setPicture(shown);
    mShown = shown.cacheKey();
    mpCrop->showZoom(!video);
    refresh();
}

void PictureUploadPage::setKey(const vorlinmodel::key_id_t &key)
{
    mTarget.key = key;
    refreshKey();
}

/// The key may have changed, or its name in another language.
void PictureUploadPage::refreshKey()
{
    mTarget = pictureUploadTarget(mContext, mTarget.key);
    mpOptions->setTarget(mTarget);
    showUse();
}

void PictureUploadPage::refresh()
{
    vorlinmodel::KeyFace face;
    if (mpOptions->isForKey())
        face = mContext.faces.face(mTarget.key);
    const bool video = mpOptions->usesVideo();
    if (hasContent())
        face.picture = video ? fittedFrame(mVideo.frame, mpOptions->settings()) : mpCrop->view().result();
    mpOptions->showFace(face, facts());
    showButtons();
}

QString PictureUploadPage::facts() const
{
    if (!hasContent())
        return {};
    return mpOptions->usesVideo() ? videoFacts(mVideo, mpOptions->settings()) : pictureFacts();
}

QString PictureUploadPage::pictureFacts() const
{
    const QRectF share = mpCrop->view().share();
    const QSize used(qRound(share.width() * mPicture.size.width()),
                     qRound(share.height() * mPicture.size.height()));
    const auto pixels = [](const QString &form, QSize size) {
        return form.arg(size.width()).arg(size.height());
    };
    QStringList lines{pixels(tr("%1 x %2 pixels"), mPicture.size)};
    if (!mpCrop->view().isWhole())
        lines.append(pixels(tr("Used: %1 x %2"), used));
    if (used.width() < mpOptions->targetSize().width())
        lines.append(tr("Fewer than the key has: it will look soft."));
    return lines.join(QLatin1Char('\n'));
}

void PictureUploadPage::showButtons()
{
    const bool isBusy = mJob.isBusy();
    const QString problem = setProblem();
    mpAdd->setEnabled(hasContent() && !isBusy);
    mpSet->setEnabled(hasContent() && !isBusy && problem.isEmpty());
    mpSet->setToolTip(problem.isEmpty() ? mTarget.name : problem);
    mpSetProblem->setText(problem);
    mpSetProblem->setVisible(!isBusy);
    mpProgress->setVisible(isBusy);
    mpCancel->setVisible(isBusy);
    for (QWidget *widget : {static_cast<QWidget *>(mpSelect), static_cast<QWidget *>(mpCrop),
                            static_cast<QWidget *>(mpOptions)})
        widget->setEnabled(!isBusy);
}

bool PictureUploadPage::hasContent() const
{
    return !(mpOptions->usesVideo() ? mVideo.frame : mPicture.view).isNull();
}

/// @return why nothing can be set on the selected key; empty when it can.
QString PictureUploadPage::setProblem() const
{
    const QString problem = mTarget.problem(mpOptions->usesVideo());
    if (problem.isEmpty() && mpOptions->targetSize() != mTarget.size)
        return tr("Choose the shape of the selected key to set it there.");
    return problem;
}
