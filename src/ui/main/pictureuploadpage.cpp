#include "pictureuploadpage.h"

#include "base/language.h"
#include "model/keyface.h"
#include "model/keypicture.h"
#include "ui_common/filedialog.h"
#include "ui_common/style.h"
#include "ui_editor/gallerypictures.h"

#include <QDragEnterEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int CaptionText = 9;
constexpr int PromptText = 14;
constexpr int SelectText = 15;
constexpr int AddText = 16;
constexpr QSize KeySize(vorlinmodel::PhysicalKeyWidth, vorlinmodel::PhysicalKeyHeight);
constexpr int PreviewScale = 2; // the key itself is small on a large screen

QString droppedFile(const QMimeData &data)
{
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

} // namespace

PictureUploadPage::PictureUploadPage(const vorlindesk::LanguageManager &language, QWidget *parent)
    : QFrame(parent)
    , mLanguage(language)
    , mpCaption(new QLabel(this))
    , mpPrompt(new QLabel(this))
    , mpFile(new QLineEdit(this))
    , mpSelect(new QPushButton(this))
    , mpPreviewCaption(new QLabel(this))
    , mpPreview(new QLabel(this))
    , mpMessage(new QLabel(this))
    , mpAdd(new QPushButton(this))
{
    setObjectName(QStringLiteral("pictureUploadPage"));
    setStyleSheet(QString::fromLatin1(Style::Fields) + QString::fromLatin1(Style::Button) +
                  QString::fromLatin1(Style::Page));
    setAcceptDrops(true);
    mpCaption->setObjectName(QStringLiteral("caption"));
    mpFile->setObjectName(QStringLiteral("file"));
    mpFile->setReadOnly(true);
    mpSelect->setObjectName(QStringLiteral("selectPicture"));
    mpPreview->setObjectName(QStringLiteral("preview"));
    mpMessage->setObjectName(QStringLiteral("message"));
    mpMessage->setTextFormat(Qt::PlainText);
    mpMessage->setWordWrap(true);
    mpAdd->setObjectName(QStringLiteral("addToGallery"));
    connect(mpSelect, &QPushButton::clicked, this, &PictureUploadPage::ask);
    connect(mpAdd, &QPushButton::clicked, this, &PictureUploadPage::addToGallery);
}

bool PictureUploadPage::setup()
{
    auto *body = new QGridLayout;
    body->setHorizontalSpacing(16);
    body->setVerticalSpacing(16);
    body->setColumnStretch(1, 1);
    body->addWidget(mpPrompt, 0, 0);
    body->addWidget(mpFile, 0, 1);
    body->addWidget(mpSelect, 0, 2);
    body->addWidget(mpPreviewCaption, 1, 0, Qt::AlignTop | Qt::AlignLeft);
    body->addWidget(mpPreview, 1, 1, 1, 2, Qt::AlignTop | Qt::AlignLeft);
    body->addWidget(mpMessage, 2, 1, 1, 2);
    body->addWidget(mpAdd, 3, 1, Qt::AlignLeft);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(24);
    layout->addWidget(mpCaption);
    layout->addLayout(body);
    layout->addStretch();
    showPreview();
    retranslate();
    return true;
}

void PictureUploadPage::ask()
{
    const QString filter = QStringLiteral("%1 (%2)").arg(
        mLanguage.Text(86), GalleryPictures::namePatterns().join(QLatin1Char(' ')));
    const QString path =
        FileDialog::openFile(this, mLanguage.Text(SelectText), QFileInfo(mPath).path(), filter);
    if (!path.isEmpty())
        choose(path);
}

void PictureUploadPage::choose(const QString &path)
{
    const bool isPicture = !GalleryPictures::read(path, KeySize * PreviewScale).isNull();
    mPath = isPicture ? path : QString();
    mpFile->setText(QDir::toNativeSeparators(path));
    mpMessage->setText(isPicture ? QString() : tr("This file is no picture that can be read."));
    showPreview();
}

/// Drawn as on the panel, where every picture is stretched to the key.
void PictureUploadPage::showPreview()
{
    vorlinmodel::KeyFace face;
    const QSize target = KeySize * PreviewScale * devicePixelRatioF();
    face.picture = mPath.isEmpty() ? QImage() : GalleryPictures::read(mPath, target);
    QPixmap pixmap = QPixmap::fromImage(vorlinmodel::renderKeyFace(face, KeySize, 0, target));
    pixmap.setDevicePixelRatio(devicePixelRatioF());
    mpPreview->setPixmap(pixmap);
    mpAdd->setEnabled(!mPath.isEmpty());
}

void PictureUploadPage::addToGallery()
{
    const GalleryPictures::Added added = GalleryPictures::add({mPath});
    if (!added.problems.isEmpty())
        mpMessage->setText(added.problems.join(QLatin1Char('\n')));
    else
        mpMessage->setText(tr("The picture is in the gallery."));
    if (!added.paths.isEmpty())
        emit sigGalleryChanged();
}

void PictureUploadPage::dragEnterEvent(QDragEnterEvent *event)
{
    if (!droppedFile(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void PictureUploadPage::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    choose(droppedFile(*event->mimeData()));
}

void PictureUploadPage::retranslate()
{
    mpCaption->setText(mLanguage.Text(CaptionText));
    mpPrompt->setText(mLanguage.Text(PromptText));
    mpSelect->setText(mLanguage.Text(SelectText));
    mpPreviewCaption->setText(tr("On a key:"));
    mpAdd->setText(mLanguage.Text(AddText));
    mpMessage->clear();
}
