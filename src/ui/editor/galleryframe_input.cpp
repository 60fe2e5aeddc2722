/// What the person gives to the gallery, and takes from it.
#include "base/language.h"
#include "galleryframe.h"
#include "gallerylibrary.h"
#include "galleryprogress.h"
#include "galleryview.h"
#include "ui_common/filedialog.h"
#include "ui_common/messagebox.h"

#include <QClipboard>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <QStandardPaths>
#include <QUrl>

namespace {

constexpr int ImageText = 86;
constexpr int VideoText = 87;

QStringList localFiles(const QMimeData &data)
{
    QStringList files;
    for (const QUrl &url : data.urls()) {
        if (url.isLocalFile())
            files.append(url.toLocalFile());
    }
    return files;
}

} // namespace

void GalleryFrame::ask()
{
    const auto group = [](const QString &name, const QStringList &patterns) {
        return QStringLiteral("%1 (%2)").arg(name, patterns.join(QLatin1Char(' ')));
    };
    const QStringList pictures = GalleryPictures::namePatterns();
    const QStringList videos = GalleryPictures::videoNamePatterns();
    const QString image = mLanguage.Text(ImageText);
    const QString video = mLanguage.Text(VideoText);
    const QStringList filters{group(image + QStringLiteral(", ") + video, pictures + videos),
                              group(image, pictures), group(video, videos)};
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    add(FileDialog::openFiles(this, tr("Add pictures and videos"), folder,
                              filters.join(QStringLiteral(";;"))));
}

void GalleryFrame::add(const QStringList &files)
{
    if (files.isEmpty())
        return;
    mpProgress->begin();
    mpLibrary->add(files);
}

void GalleryFrame::paste()
{
    if (const QMimeData *offered = QGuiApplication::clipboard()->mimeData())
        take(*offered);
}

/// A browser offers a picture as its address and its pixels.
void GalleryFrame::take(const QMimeData &offered)
{
    const QStringList files = localFiles(offered);
    if (!files.isEmpty())
        return add(files);
    const auto image = qvariant_cast<QImage>(offered.imageData());
    if (image.isNull())
        return;
    mpProgress->begin();
    mpLibrary->addImage(image, tr("Pasted picture"));
}

void GalleryFrame::removeSelected()
{
    QStringList paths;
    for (const QModelIndex &index : mpView->selectionModel()->selectedIndexes())
        paths.append(mpModel->path(index));
    if (paths.isEmpty())
        return;
    MessageBox::Question question;
    question.text = paths.size() == 1
                        ? tr("Delete \"%1\" from the gallery?").arg(QFileInfo(paths.first()).fileName())
                        : tr("Delete %1 pictures and videos from the gallery?").arg(paths.size());
    question.explanation =
        tr("Keys keep the pictures that they show. A key that plays one of these videos needs its file.");
    question.buttons = QMessageBox::Yes | QMessageBox::No;
    question.preset = QMessageBox::No;
    if (MessageBox::question(this, question) == QMessageBox::Yes)
        mpLibrary->remove(paths);
}

void GalleryFrame::dragEnterEvent(QDragEnterEvent *event)
{
    if (!localFiles(*event->mimeData()).isEmpty() || event->mimeData()->hasImage())
        event->acceptProposedAction();
}

void GalleryFrame::dropEvent(QDropEvent *event)
{
    event->setDropAction(Qt::CopyAction); // whatever was proposed: the file stays where it is
    event->accept();
    take(*event->mimeData());
}
