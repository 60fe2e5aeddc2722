#include "galleryframe.h"

#include "base/language.h"
#include "gallerylibrary.h"
#include "galleryprogress.h"
#include "gallerythumbnails.h"
#include "gallerytools.h"
#include "galleryview.h"
#include "ui_common/messagebox.h"
#include "ui_common/style.h"

#include <QAction>
#include <QLabel>
#include <QVBoxLayout>

using vorlindesk::TextId;

namespace {

constexpr int CaptionText = 4;
constexpr int MostProblems = 10; // lines of one box; the screen ends somewhere

constexpr char NoteStyle[] = "#galleryframe #galleryNote {color: rgb(255, 196, 84);font-size: 12px;}";

} // namespace

GalleryFrame::GalleryFrame(const vorlindesk::LanguageManager &language, QWidget *parent)
    : QFrame(parent)
    , mLanguage(language)
    , mpLibrary(new GalleryLibrary(this))
    , mpThumbnails(new GalleryThumbnails(this))
    , mpModel(new GalleryModel(this))
    , mpTools(new GalleryTools(language, this))
    , mpView(new GalleryView(this))
    , mpEmpty(new QLabel(this))
    , mpNote(new QLabel(this))
    , mpProgress(new GalleryProgress(this))
    , mpAdd(new QAction(this))
    , mpPaste(new QAction(this))
    , mpSelectAll(new QAction(this))
    , mpRemove(new QAction(this))
{
    setObjectName(QStringLiteral("galleryframe"));
    setStyleSheet(QString::fromLatin1(Style::Fields) + QString::fromLatin1(Style::Button) +
                  QString::fromLatin1(Style::GalleryFrame) + QString::fromLatin1(NoteStyle));
    setAcceptDrops(true);
    mpView->setObjectName(QStringLiteral("gallery"));
    mpView->setModel(mpModel);
    mpEmpty->setObjectName(QStringLiteral("galleryEmpty"));
    mpEmpty->setWordWrap(true);
    mpEmpty->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    mpEmpty->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored); // it gets the place of the view
    mpNote->setObjectName(QStringLiteral("galleryNote"));
    mpNote->setWordWrap(true);
    mpNote->hide();
    mpProgress->hide();
    mpPaste->setShortcut(QKeySequence::Paste);
    mpSelectAll->setShortcut(QKeySequence::SelectAll);
    mpRemove->setShortcut(QKeySequence::Delete);
    connectParts();
}

/// The workers end before the model and the view that they report to.
GalleryFrame::~GalleryFrame()
{
    delete mpThumbnails;
    delete mpLibrary;
}

void GalleryFrame::connectParts()
{
    for (QAction *action : {mpAdd, mpPaste, mpSelectAll, mpRemove}) {
        action->setShortcutContext(Qt::WidgetShortcut);
        mpView->addAction(action);
    }
    mpPaste->setShortcutContext(Qt::WidgetWithChildrenShortcut); // the view of an empty gallery is hidden
    addAction(mpPaste);
    setFocusPolicy(Qt::ClickFocus);
    mpTools->setActions(mpAdd, mpSelectAll, mpRemove);
    connect(mpAdd, &QAction::triggered, this, &GalleryFrame::ask);
    connect(mpPaste, &QAction::triggered, this, &GalleryFrame::paste);
    connect(mpSelectAll, &QAction::triggered, mpView, &QListView::selectAll);
    connect(mpRemove, &QAction::triggered, this, &GalleryFrame::removeSelected);
    connect(mpTools, &GalleryTools::sigFilter, this, &GalleryFrame::applyFilter);
    connect(mpView, &GalleryView::sigChosen, this, [this](const QModelIndex &index) {
        const GalleryModel::Files files = mpModel->files(index);
        emit sigItemChosen(files.picture, files.video);
    });
    connect(mpModel, &GalleryModel::sigWanted, mpThumbnails, &GalleryThumbnails::want);
    connect(mpThumbnails, &GalleryThumbnails::sigMade, this, &GalleryFrame::takeThumbnail);
    connect(mpLibrary, &GalleryLibrary::sigListed, this, &GalleryFrame::showItems);
    connect(mpLibrary, &GalleryLibrary::sigProgress, mpProgress, &GalleryProgress::showProgress);
    connect(mpLibrary, &GalleryLibrary::sigAdded, this, &GalleryFrame::finishAdding);
    connect(mpLibrary, &GalleryLibrary::sigRemoved, this, [this](const QStringList &kept) {
        if (!kept.isEmpty())
            warnOf({tr("Could not be deleted:"), kept.join(QLatin1Char('\n'))});
    });
    connect(mpProgress, &GalleryProgress::sigCancelled, mpLibrary, &GalleryLibrary::cancel);
}

bool GalleryFrame::setup()
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 4, 10, 8);
    layout->setSpacing(4);
    layout->addWidget(mpTools);
    layout->addWidget(mpView, 1);
    layout->addWidget(mpEmpty, 1);
    layout->addWidget(mpNote);
    layout->addWidget(mpProgress);
    showWhetherEmpty();
    retranslate();
    refresh();
    return true;
}

void GalleryFrame::refresh()
{
    mpLibrary->refresh();
}

void GalleryFrame::showItems(const std::vector<GalleryItem> &items)
{
    const QStringList selected = selectedNames();
    const QString current = mpModel->name(mpView->currentIndex());
    mIsListed = true;
    mpModel->setItems(items);
    select(selected);
    mpView->selectionModel()->setCurrentIndex(mpModel->indexOf(current), QItemSelectionModel::NoUpdate);
    showWhetherEmpty();
}

void GalleryFrame::takeThumbnail(const GalleryItem &item, const QImage &image,
                                 vorlinmodel::ConversionError error)
{
    mpModel->setThumbnail(item, image, error);
    if (item.type != GalleryItem::Type::Video)
        return;
    mIsToolMissing = error == vorlinmodel::ConversionError::NoTool;
    mpNote->setVisible(mIsToolMissing);
    if (!image.isNull())
        mpLibrary->learn(item);
}

void GalleryFrame::applyFilter()
{
    const QStringList selected = selectedNames();
    mpModel->setFilter(mpTools->text(), mpTools->kind());
    select(selected);
    showWhetherEmpty();
}

/// Nothing is said before it is known what there is.
void GalleryFrame::showWhetherEmpty()
{
    const bool empty = mIsListed && mpModel->rowCount() == 0;
    mpView->setVisible(!empty);
    mpEmpty->setVisible(empty);
    mpEmpty->setText(
        mpModel->total() > 0
            ? tr("Nothing found.")
            : tr("There is nothing here yet. Add pictures and videos with the button above, or "
                 "drop or paste files or a folder here. Then drag them from here onto the keys."));
    mpTools->setCount(mpModel->rowCount(), mpModel->total());
    mpSelectAll->setEnabled(mpModel->rowCount() > 0);
    mpRemove->setEnabled(mpModel->rowCount() > 0);
}

void GalleryFrame::finishAdding(const GalleryPictures::Added &added)
{
    mpProgress->end();
    QStringList names;
    for (const QString &path : added.paths)
        names.append(QFileInfo(path).fileName());
    if (!names.isEmpty()) {
        if (!mpModel->indexOf(names.first()).isValid())
            mpTools->clearFilter(); // what was just added is to be seen
        mpView->clearSelection();
        select(names);
        mpView->scrollTo(mpModel->indexOf(names.first()));
    }
    warnOf(added.problems);
}

void GalleryFrame::warnOf(const QStringList &problems)
{
    if (problems.isEmpty())
        return;
    QStringList lines = problems.mid(0, MostProblems);
    if (problems.size() > MostProblems)
        lines.append(tr("... and %1 more.").arg(problems.size() - MostProblems));
    MessageBox::warn(this, lines.join(QLatin1Char('\n')));
}

QStringList GalleryFrame::selectedNames() const
{
    QStringList names;
    for (const QModelIndex &index : mpView->selectionModel()->selectedIndexes())
        names.append(mpModel->name(index));
    return names;
}

void GalleryFrame::select(const QStringList &names)
{
    QItemSelection selection;
    QModelIndex current;
    for (const QString &name : names) {
        const QModelIndex index = mpModel->indexOf(name);
        if (!index.isValid())
            continue;
        selection.select(index, index);
        current = current.isValid() ? current : index;
    }
    if (!current.isValid())
        return;
    mpView->selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    mpView->selectionModel()->select(selection, QItemSelectionModel::Select);
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
    mpTools->retranslate();
    mpProgress->retranslate();
    mpView->setAccessibleName(mLanguage.Text(CaptionText));
    mpAdd->setText(tr("Add..."));
    mpPaste->setText(tr("Paste"));
    mpSelectAll->setText(mLanguage.Text(TextId::SelectAll));
    mpRemove->setText(mLanguage.Text(TextId::Delete));
    mpNote->setText(tr("Videos are shown without a picture: the program ffmpeg is missing."));
    showWhetherEmpty();
}
