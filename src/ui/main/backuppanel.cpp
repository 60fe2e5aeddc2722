#include "backuppanel.h"

#include "backuptexts.h"
#include "base/language.h"
#include "ui_common/style.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr int LongestName = 80; // characters that a backup keeps
constexpr int ListHeight = 168; // pixels: five backups
constexpr int DetailLines = 2;
constexpr int ProgressWidth = 220;

constexpr char PanelStyle[] =
    "#backupPanel QTreeWidget {background-color: rgb(36, 36, 36);color: white;border: 1px solid rgb(92, 92, "
    "92);"
    "border-radius: 4px;font-size: 13px;}"
    "#backupPanel QTreeWidget:focus {border-color: rgb(0, 160, 255);}"
    "#backupPanel QTreeWidget::item {padding: 4px 2px;}"
    "#backupPanel QTreeWidget::item:selected {background-color: rgb(0, 160, 255);color: white;}"
    "#backupPanel QHeaderView {background-color: rgb(46, 46, 46);}"
    "#backupPanel QHeaderView::section {background-color: rgb(46, 46, 46);color: rgb(200, 200, 200);"
    "border: none;padding: 4px 4px;font-size: 13px;}"
    "#backupPanel QProgressBar {background-color: rgb(24, 32, 40);border: none;border-radius: 4px;}"
    "#backupPanel QProgressBar::chunk {background-color: rgb(0, 160, 255);border-radius: 4px;}"
    "#backupPanel #backupMessage[isProblem=\"true\"] {color: rgb(255, 170, 80);}";

QLabel *label(const char *name, QWidget *parent)
{
    auto *result = new QLabel(parent);
    result->setObjectName(QLatin1String(name));
    result->setTextFormat(Qt::PlainText); // names and folders are a person's
    return result;
}

QHBoxLayout *rowLayout(QWidget *row)
{
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    return layout;
}

} // namespace

BackupPanel::BackupPanel(Backups &backups, vorlindesk::LanguageManager &language,
                         vorlindesk::IDesktop &desktop, QWidget *parent)
    : QFrame(parent)
    , mBackups(backups)
    , mLanguage(language)
    , mDesktop(desktop)
    , mpCaption(label("backupCaption", this))
    , mpFolder(label("backupFolder", this))
    , mpList(new QTreeWidget(this))
    , mpDetails(label("backupDetails", this))
    , mpMessage(label("backupMessage", this))
{
    setObjectName(QStringLiteral("backupPanel"));
    setStyleSheet(QString::fromLatin1(Style::Button) + QString::fromLatin1(Style::Fields) +
                  QString::fromLatin1(PanelStyle));
    setUpList();
    mpDetails->setWordWrap(true);
    mpDetails->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    mpDetails->setMinimumHeight(DetailLines * fontMetrics().lineSpacing()); // or the buttons would jump
    mpDetails->setTextInteractionFlags(Qt::TextSelectableByMouse);
    mpMessage->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(folderRow());
    layout->addWidget(mpList);
    layout->addWidget(mpDetails);
    layout->addWidget(importRow());
    layout->addWidget(nameRow());
    layout->addWidget(progressRow());
    layout->addWidget(mpMessage);
    mpMessage->hide();
    connectBackups();
    retranslate();
}

void BackupPanel::setUpList()
{
    mpList->setObjectName(QStringLiteral("backupList"));
    mpList->setRootIsDecorated(false);
    mpList->setUniformRowHeights(true);
    mpList->setAllColumnsShowFocus(true);
    mpList->setFixedHeight(ListHeight);
    mpList->setColumnCount(8);
    mpList->header()->setStretchLastSection(false);
    mpList->header()->setSectionsMovable(false);
    mpList->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    mpList->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    connect(mpList, &QTreeWidget::currentItemChanged, this, &BackupPanel::showChosen);
}

QPushButton *BackupPanel::button(const char *name, QWidget *parent)
{
    auto *result = new QPushButton(parent);
    result->setObjectName(QLatin1String(name));
    return result;
}

QWidget *BackupPanel::folderRow()
{
    auto *row = new QWidget(this);
    mpChoose = button("chooseBackupFolder", row);
    mpOpen = button("openBackupFolder", row);
    mpFolder->setSizePolicy(QSizePolicy::Ignored,
                            QSizePolicy::Preferred); // a long path is cut, and in the tool tip
    mpFolder->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *layout = rowLayout(row);
    layout->addWidget(mpCaption);
    layout->addWidget(mpFolder, 1);
    layout->addWidget(mpChoose);
    layout->addWidget(mpOpen);
    connect(mpChoose, &QPushButton::clicked, this, &BackupPanel::chooseFolder);
    connect(mpOpen, &QPushButton::clicked, this, &BackupPanel::openFolder);
    return row;
}

QWidget *BackupPanel::importRow()
{
    auto *row = new QWidget(this);
    mpToHost = button("importToHost", row);
    mpToPanel = button("importToPanel", row);
    mpDelete = button("deleteBackup", row);
    auto *layout = rowLayout(row);
    layout->addWidget(mpToHost);
    layout->addWidget(mpToPanel);
    layout->addWidget(mpDelete);
    layout->addStretch();
    connect(mpToHost, &QPushButton::clicked, this, [this] { preview(false); });
    connect(mpToPanel, &QPushButton::clicked, this, [this] { preview(true); });
    connect(mpDelete, &QPushButton::clicked, this, &BackupPanel::removeChosen);
    return row;
}

QWidget *BackupPanel::nameRow()
{
    auto *row = new QWidget(this);
    mpNameCaption = label("backupNameCaption", row);
    mpName = new QLineEdit(row);
    mpName->setObjectName(QStringLiteral("backupName"));
    mpName->setMaxLength(LongestName);
    mpName->setMaximumWidth(300);
    mpNameCaption->setBuddy(mpName);
    mpCreate = button("createBackup", row);
    auto *layout = rowLayout(row);
    layout->addWidget(mpNameCaption);
    layout->addWidget(mpName, 1);
    layout->addWidget(mpCreate);
    layout->addStretch();
    const auto create = [this] {
        if (mpCreate->isEnabled())
            mBackups.create(mpName->text().simplified());
    };
    connect(mpCreate, &QPushButton::clicked, this, create);
    connect(mpName, &QLineEdit::returnPressed, this, create);
    return row;
}

QWidget *BackupPanel::progressRow()
{
    auto *row = new QWidget(this);
    row->setObjectName(QStringLiteral("backupProgressRow"));
    mpActivity = label("backupActivity", row);
    mpProgress = new QProgressBar(row);
    mpProgress->setObjectName(QStringLiteral("backupProgress"));
    mpProgress->setTextVisible(false);
    mpProgress->setFixedSize(ProgressWidth, 8);
    mpCancel = button("cancelBackup", row);
    auto *layout = rowLayout(row);
    layout->addWidget(mpActivity);
    layout->addWidget(mpProgress);
    layout->addWidget(mpCancel);
    layout->addStretch();
    connect(mpCancel, &QPushButton::clicked, &mBackups, &Backups::cancel);
    return row;
}

void BackupPanel::connectBackups()
{
    connect(&mLanguage, &vorlindesk::LanguageManager::sigLanguageChanged, this, &BackupPanel::retranslate);
    connect(&mBackups, &Backups::sigActivity, this, &BackupPanel::showActivity);
    connect(&mBackups, &Backups::sigListed, this, &BackupPanel::fillList);
    connect(&mBackups, &Backups::sigCreated, this, &BackupPanel::onCreated);
    connect(&mBackups, &Backups::sigOpened, this, &BackupPanel::onOpened);
    connect(&mBackups, &Backups::sigRemoved, this, [this](bool done) {
        say(done ? tr("The backup was deleted.")
                 : tr("The backup could not be deleted. Is one of its files open?"),
            !done);
    });
    connect(&mBackups, &Backups::sigImported, this, [this](const QString &name, const QStringList &leftOut) {
        QString text = tr("Imported: %1").arg(name);
        mLeftOut = leftOut.isEmpty() ? QString() : tr("Left out: %1").arg(leftOut.join(QStringLiteral("; ")));
        if (!mLeftOut.isEmpty())
            text += QLatin1Char('\n') + mLeftOut;
        say(text, !mLeftOut.isEmpty());
        mBackups.list(); // with the safety backup
    });
    connect(&mBackups, &Backups::sigImportFailed, this, [this](const QString &reason) {
        constexpr int failedText = 116;
        say(reason.isEmpty() ? tr("Cancelled. Nothing was changed.")
                             : mLanguage.Text(failedText) + QLatin1Char('\n') + reason,
            true);
    });
    connect(&mBackups, &Backups::sigSent, this, [this](const QString &problem) {
        QString text = problem.isEmpty() ? tr("The panel has the whole configuration.") : problem;
        if (!mLeftOut.isEmpty()) // nobody has read it yet
            text += QLatin1Char('\n') + mLeftOut;
        say(text, !problem.isEmpty() || !mLeftOut.isEmpty());
    });
}
