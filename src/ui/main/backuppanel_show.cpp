// What the group of the backups shows, and what its buttons do.
#include "backuppanel.h"
#include "backuptexts.h"
#include "base/language.h"
#include "platform/desktop.h"
#include "restorepreviewdialog.h"
#include "ui_common/filedialog.h"
#include "ui_common/messagebox.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStyle>
#include <QTreeWidget>

using vorlinmodel::BackupInfo;

namespace {

constexpr int CaptionText = 1;
constexpr int CreateText = 3;
constexpr int DeleteText = 6;
constexpr int ToHostText = 18;
constexpr int OpenText = 83;
constexpr int ChooseText = 90;
constexpr int ToPanelText = 119;
constexpr int FirstCount = 3; // column
constexpr int FolderRole = Qt::UserRole;

QString shownPath(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

QStringList columnsOf(const BackupInfo &info)
{
    QStringList columns{info.name, BackupTexts::date(info.made), BackupTexts::madeHow(info)};
    for (const int count :
         {info.counts.layouts, info.counts.pages, info.counts.keys, info.counts.pictures, info.counts.videos})
        columns.append(QString::number(count));
    return columns;
}

} // namespace

void BackupPanel::showEvent(QShowEvent *event)
{
    QFrame::showEvent(event);
    mBackups.list();
}

void BackupPanel::retranslate()
{
    setWindowTitle(tr("Backups")); // which the page shows above it
    mpCaption->setText(mLanguage.Text(CaptionText));
    mpChoose->setText(mLanguage.Text(ChooseText));
    mpOpen->setText(mLanguage.Text(OpenText));
    mpCreate->setText(mLanguage.Text(CreateText));
    mpToHost->setText(mLanguage.Text(ToHostText));
    mpToPanel->setText(mLanguage.Text(ToPanelText));
    mpDelete->setText(mLanguage.Text(DeleteText));
    mpCancel->setText(tr("Cancel"));
    mpNameCaption->setText(tr("Name (optional):"));
    mpList->setHeaderLabels({tr("Name"), tr("Date"), tr("Made"), tr("Layouts"), tr("Pages"), tr("Keys"),
                             tr("Pictures"), tr("Videos")});
    for (int column = FirstCount; column < mpList->columnCount(); ++column)
        mpList->headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    say({}); // it is in the language of before
    fillList();
}

void BackupPanel::fillList()
{
    const QString before = mAwaited.isEmpty() ? chosen() : QDir::cleanPath(mAwaited);
    mAwaited.clear();
    mpList->clear();
    for (const BackupInfo &info : mBackups.backups()) {
        auto *item = new QTreeWidgetItem(mpList, columnsOf(info)); // the list owns it
        item->setData(0, FolderRole, info.folder);
        item->setToolTip(0, info.name);
        for (int column = FirstCount; column < item->columnCount(); ++column)
            item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
        if (QDir::cleanPath(info.folder) == before)
            mpList->setCurrentItem(item);
    }
    const QString folder = shownPath(mBackups.directory());
    mpFolder->setText(folder);
    mpFolder->setToolTip(folder);
    const QString wanted = mBackups.chosenDirectory();
    if (!wanted.isEmpty() && QDir::cleanPath(wanted) != QDir::cleanPath(mBackups.directory()))
        say(tr("\"%1\" is not there now. Until it is back, backups are kept in the folder above.")
                .arg(shownPath(wanted)),
            true);
    showChosen();
}

QString BackupPanel::chosen() const
{
    const QTreeWidgetItem *item = mpList->currentItem();
    return item ? item->data(0, FolderRole).toString() : QString();
}

void BackupPanel::showChosen()
{
    const QString folder = chosen();
    QString text = mBackups.backups().isEmpty() ? tr("There are no backups in this folder yet.")
                                                : tr("Choose a backup to see what it holds.");
    for (const BackupInfo &info : mBackups.backups()) {
        if (info.folder != folder)
            continue;
        text = BackupTexts::counts(info.counts) + QLatin1Char('\n') + shownPath(info.folder);
        if (!info.isComplete)
            text += QLatin1Char('\n') + tr("A plain export: only its keys can be checked for damage.");
    }
    mpDetails->setText(text);
    showActivity();
}

void BackupPanel::allow(QPushButton *button, const QString &obstacle)
{
    button->setEnabled(obstacle.isEmpty());
    button->setToolTip(obstacle);
}

void BackupPanel::showActivity()
{
    const QString obstacle = mBackups.obstacle();
    QString ofChosen = obstacle;
    if (ofChosen.isEmpty() && chosen().isEmpty())
        ofChosen = tr("Choose a backup in the list first.");
    QString ofPanel = ofChosen;
    if (ofPanel.isEmpty() && !mBackups.isConnected())
        ofPanel = tr("The panel is not connected.");
    allow(mpCreate, obstacle);
    allow(mpChoose, obstacle);
    allow(mpToHost, ofChosen);
    allow(mpToPanel, ofPanel);
    allow(mpDelete, ofChosen);
    mpActivity->parentWidget()->setVisible(mBackups.isBusy());
    mpActivity->setText(activityText());
    mpProgress->setValue(mBackups.percent());
    mpProgress->setAccessibleName(mpActivity->text());
}

QString BackupPanel::activityText() const
{
    switch (mBackups.activity()) {
    case Backups::Activity::Creating:
        return tr("Making the backup ...");
    case Backups::Activity::Removing:
        return tr("Deleting the backup ...");
    case Backups::Activity::Opening:
        return tr("Reading the backup ...");
    case Backups::Activity::Importing:
        return tr("Importing ...");
    case Backups::Activity::Sending:
        return tr("Sending to the panel ...");
    case Backups::Activity::None:
        break;
    }
    return {};
}

void BackupPanel::say(const QString &text, bool isProblem)
{
    mpMessage->setVisible(!text.isEmpty());
    mpMessage->setText(text);
    mpMessage->setProperty("isProblem", isProblem);
    mpMessage->style()->unpolish(mpMessage); // its colour depends on the property
    mpMessage->style()->polish(mpMessage);
}

void BackupPanel::chooseFolder()
{
    const QString folder = FileDialog::openFolder(this, mLanguage.Text(ChooseText), mBackups.directory());
    if (folder.isEmpty())
        return;
    say({});
    mBackups.setDirectory(folder);
}

void BackupPanel::openFolder()
{
    if (!mDesktop.openFile(mBackups.directory()))
        say(tr("The folder could not be opened: %1").arg(shownPath(mBackups.directory())), true);
}

void BackupPanel::removeChosen()
{
    const QString folder = chosen();
    const MessageBox::Question question{
        .text = tr("Delete this backup?"),
        .explanation =
            mpList->currentItem()->text(0) + QLatin1Char('\n') + tr("Its files are removed from the disk."),
        .buttons = QMessageBox::Yes | QMessageBox::No,
        .preset = QMessageBox::No,
        .captions = {{QMessageBox::Yes, mLanguage.Text(DeleteText)}, {QMessageBox::No, tr("Cancel")}}};
    if (MessageBox::question(this, question) == QMessageBox::Yes)
        mBackups.remove(folder);
}

void BackupPanel::preview(bool toPanel)
{
    say({});
    mToPanel = toPanel;
    mBackups.open(chosen());
}

void BackupPanel::onOpened(const Backups::Opened &opened)
{
    auto *dialog = new RestorePreviewDialog(opened, mToPanel, mBackups.isConnected(), mLanguage, window());
    connect(dialog, &RestorePreviewDialog::sigImport, this,
            [this, content = opened.content, toPanel = mToPanel](bool takesTheRest) {
                const QString obstacle = mBackups.obstacle(); // a panel may have come meanwhile, and be read
                if (!obstacle.isEmpty())
                    return say(obstacle, true);
                mBackups.import(content, takesTheRest, toPanel);
            });
    dialog->open();
}

void BackupPanel::onCreated(const vorlinmodel::Profiles::BackupResult &result)
{
    if (result.isCancelled)
        return say(tr("Cancelled. No backup was made."));
    if (result.folder.isEmpty())
        return say(tr("No backup was made: %1").arg(result.error), true);
    mpName->clear();
    mAwaited = result.folder;
    QString text = tr("The backup was made, and read back without a difference.") + QLatin1Char('\n') +
                   BackupTexts::counts(result.counts);
    if (!result.leftOut.isEmpty())
        text += QLatin1Char('\n') + tr("Left out: %1").arg(result.leftOut.join(QStringLiteral("; ")));
    say(text, !result.leftOut.isEmpty());
}
