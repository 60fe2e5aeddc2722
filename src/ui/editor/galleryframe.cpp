#include "galleryframe.h"

#include "base/language.h"
#include "gallerymodel.h"
#include "gallerypictures.h"
#include "galleryview.h"
#include "ui_common/filedialog.h"
#include "ui_common/messagebox.h"
#include "ui_common/style.h"

#include <QAction>
#include <QDragEnterEvent>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QStandardPaths>
#include <QUrl>
#include <QVBoxLayout>

using vorlindesk::TextId;

namespace {

constexpr int CaptionText = 4;
constexpr int ImageText = 86;

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

GalleryFrame::GalleryFrame(const vorlindesk::LanguageManager &language, QWidget *parent)
    : QFrame(parent)
    , mLanguage(language)
    , mpModel(new GalleryModel(this))
    , mpCaption(new QLabel(this))
    , mpEmpty(new QLabel(this))
    , mpView(new GalleryView(this))
    , mpAddButton(new QPushButton(this))
    , mpAdd(new QAction(this))
    , mpSelectAll(new QAction(this))
    , mpRemove(new QAction(this))
{
    setObjectName(QStringLiteral("galleryframe"));
    setStyleSheet(QString::fromLatin1(Style::Fields) + QString::fromLatin1(Style::Button) +
                  QString::fromLatin1(Style::GalleryFrame));
    setAcceptDrops(true);
    mpView->setObjectName(QStringLiteral("gallery"));
    mpView->setModel(mpModel);
    mpAddButton->setObjectName(QStringLiteral("addPictures"));
    mpEmpty->setObjectName(QStringLiteral("galleryEmpty"));
    mpEmpty->setWordWrap(true);
    mpEmpty->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    mpSelectAll->setShortcut(QKeySequence::SelectAll);
    mpRemove->setShortcut(QKeySequence::Delete);
    for (QAction *action : {mpAdd, mpSelectAll, mpRemove}) {
        action->setShortcutContext(Qt::WidgetShortcut);
        mpView->addAction(action);
    }
    connect(mpAddButton, &QPushButton::clicked, this, &GalleryFrame::ask);
    connect(mpAdd, &QAction::triggered, this, &GalleryFrame::ask);
    connect(mpSelectAll, &QAction::triggered, mpView, &QListView::selectAll);
    connect(mpRemove, &QAction::triggered, this, &GalleryFrame::removeSelected);
    connect(mpModel, &GalleryModel::modelReset, this, &GalleryFrame::showWhetherEmpty);
    connect(mpModel, &GalleryModel::rowsRemoved, this, &GalleryFrame::showWhetherEmpty);
}

bool GalleryFrame::setup()
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 6, 10, 10);
    layout->setSpacing(6);
    layout->addWidget(mpCaption);
    layout->addWidget(mpView, 1);
    layout->addWidget(mpEmpty, 1);
    layout->addWidget(mpAddButton);
    refresh();
    showWhetherEmpty();
    retranslate();
    return true;
}

void GalleryFrame::refresh()
{
    mpModel->refresh();
}

void GalleryFrame::showWhetherEmpty()
{
    const bool empty = mpModel->rowCount() == 0;
    mpView->setVisible(!empty);
    mpEmpty->setVisible(empty);
}

void GalleryFrame::ask()
{
    const QString filter = QStringLiteral("%1 (%2)").arg(
        mLanguage.Text(ImageText), GalleryPictures::namePatterns().join(QLatin1Char(' ')));
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    add(FileDialog::openFiles(this, mpAddButton->text(), folder, filter));
}

void GalleryFrame::add(const QStringList &files)
{
    if (files.isEmpty())
        return;
    const GalleryPictures::Added added = GalleryPictures::add(files);
    refresh();
    mpView->clearSelection();
    for (const QString &path : added.paths) {
        const QModelIndex index = mpModel->indexOf(path);
        mpView->selectionModel()->setCurrentIndex(index, QItemSelectionModel::Select);
    }
    if (!added.problems.isEmpty())
        MessageBox::warn(this, added.problems.join(QLatin1Char('\n')));
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
                        : tr("Delete %1 pictures from the gallery?").arg(paths.size());
    question.explanation = tr("Keys keep the pictures that they show.");
    question.buttons = QMessageBox::Yes | QMessageBox::No;
    question.preset = QMessageBox::No;
    if (MessageBox::question(this, question) != QMessageBox::Yes)
        return;
    QStringList kept;
    for (const QString &path : qAsConst(paths)) {
        if (!GalleryPictures::remove(path))
            kept.append(QDir::toNativeSeparators(path));
    }
    refresh();
    if (!kept.isEmpty())
        MessageBox::warn(this, tr("Could not be deleted:\n%1").arg(kept.join(QLatin1Char('\n'))));
}

void GalleryFrame::dragEnterEvent(QDragEnterEvent *event)
{
    if (!localFiles(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void GalleryFrame::dropEvent(QDropEvent *event)
{
    event->setDropAction(Qt::CopyAction); // whatever was proposed: the file stays where it is
    event->accept();
    add(localFiles(*event->mimeData()));
}

/// The folder is open to other programs, too.
void GalleryFrame::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        refresh();
}

void GalleryFrame::retranslate()
{
    mpCaption->setText(mLanguage.Text(CaptionText));
    mpView->setAccessibleName(mpCaption->text());
    mpAddButton->setText(tr("Add pictures..."));
    mpAdd->setText(mpAddButton->text());
    mpSelectAll->setText(mLanguage.Text(TextId::SelectAll));
    mpRemove->setText(mLanguage.Text(TextId::Delete));
    mpEmpty->setText(
        tr("There are no pictures yet. Add some with the button below, or drop picture files here. "
           "Then drag them from here onto the keys."));
}
