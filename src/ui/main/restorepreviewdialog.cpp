#include "restorepreviewdialog.h"

#include "backuptexts.h"
#include "base/language.h"
#include "ui_common/style.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr int TitleText = 0;
constexpr int ToHostText = 18;
constexpr int ToPanelText = 119;
constexpr QSize DialogSize(620, 520);
constexpr QRgb Bad = qRgb(255, 170, 80);

constexpr char DialogStyle[] =
    "#restorePreview {background-color: rgb(51, 51, 51);}"
    "#restorePreview QLabel, #restorePreview QCheckBox {color: white;font-size: 14px;}"
    "#restorePreview QPushButton {font-size: 14px;}"
    "#restorePreview #previewName {font-size: 18px;}"
    "#restorePreview QCheckBox::indicator {width: 14px;height: 14px;border: 1px solid rgb(160, 160, 160);"
    "border-radius: 3px;background-color: rgb(36, 36, 36);}"
    "#restorePreview QCheckBox::indicator:checked {background-color: rgb(0, 160, 255);}"
    "#restorePreview QCheckBox:focus {color: rgb(0, 160, 255);}";
constexpr char TreeStyle[] =
    "QTreeWidget {background-color: rgb(36, 36, 36);color: white;border: 1px solid rgb(92, 92, 92);"
    "border-radius: 4px;font-size: 14px;}"
    "QTreeWidget::item {padding: 3px 4px;}"
    "QTreeWidget::item:selected {background-color: rgb(0, 160, 255);color: white;}";

QLabel *text(const QString &content, const char *name, QWidget *parent)
{
    auto *label = new QLabel(content, parent);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText); // names are a person's
    label->setWordWrap(true);
    return label;
}

QStringList fileNames(const QStringList &paths)
{
    QStringList names;
    for (const QString &path : paths)
        names.append(BackupTexts::file(path));
    return names;
}

} // namespace

RestorePreviewDialog::RestorePreviewDialog(const Backups::Opened &opened, bool toPanel, bool isConnected,
                                           const vorlindesk::LanguageManager &language, QWidget *parent)
    : QDialog(parent, Qt::WindowTitleHint | Qt::WindowCloseButtonHint)
    , mOpened(opened)
    , mToPanel(toPanel)
    , mLanguage(language)
    , mpImport(new QPushButton(language.Text(toPanel ? ToPanelText : ToHostText), this))
{
    const vorlinmodel::BackupInfo &info = mOpened.preview.holds;
    setObjectName(QStringLiteral("restorePreview"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(language.Text(TitleText).trimmed());
    setStyleSheet(QString::fromLatin1(Style::Button) + QString::fromLatin1(Style::ScrollBars) +
                  QString::fromLatin1(DialogStyle));
    resize(DialogSize);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->setSpacing(10);
    layout->addWidget(text(info.name, "previewName", this));
    layout->addWidget(text(BackupTexts::date(info.made) + QStringLiteral(", ") + BackupTexts::madeHow(info) +
                               QLatin1Char('\n') + BackupTexts::counts(info.counts),
                           "previewHolds", this));
    layout->addWidget(changes(), 1);
    if (!mOpened.preview.damaged.isEmpty()) {
        mpRest = new QCheckBox(tr("Take over what is not damaged"), this);
        mpRest->setObjectName(QStringLiteral("takeTheRest"));
        connect(mpRest, &QCheckBox::toggled, this, &RestorePreviewDialog::checkPossible);
        layout->addWidget(mpRest);
    }
    layout->addWidget(text(consequences(isConnected), "previewConsequences", this));
    auto *cancel = new QPushButton(tr("Cancel"), this);
    cancel->setObjectName(QStringLiteral("previewCancel"));
    mpImport->setObjectName(QStringLiteral("previewImport"));
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(10);
    buttons->addStretch();
    buttons->addWidget(mpImport);
    buttons->addWidget(cancel);
    layout->addLayout(buttons);
    QWidget *above = mpRest ? static_cast<QWidget *>(mpRest) : findChild<QTreeWidget *>();
    setTabOrder(above, mpImport);
    setTabOrder(mpImport, cancel);
    cancel->setDefault(true); // Enter must not replace a configuration
    cancel->setFocus();
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(mpImport, &QPushButton::clicked, this, &RestorePreviewDialog::import);
    checkPossible();
}

QTreeWidget *RestorePreviewDialog::changes()
{
    auto *tree = new QTreeWidget(this);
    tree->setObjectName(QStringLiteral("changes"));
    tree->setStyleSheet(QString::fromLatin1(TreeStyle));
    tree->setColumnCount(2);
    tree->setHeaderHidden(true);
    tree->setRootIsDecorated(false);
    tree->setItemsExpandable(false);
    tree->setSelectionMode(QAbstractItemView::NoSelection);
    const vorlinmodel::RestorePreview &preview = mOpened.preview;
    addGroup(*tree, tr("Damaged, and not in what can be taken over:"), preview.damaged, true);
    addGroup(*tree, tr("Lost, since no backup can hold it:"), preview.notSaved, true);
    addPages(*tree);
    addGroup(*tree, tr("Changes beside the keys:"), fileNames(preview.files), false);
    if (tree->topLevelItemCount() == 0)
        addGroup(*tree, tr("Nothing changes"), {tr("The configuration here is the same.")}, false);
    tree->expandAll();
    tree->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    return tree;
}

void RestorePreviewDialog::addPages(QTreeWidget &tree)
{
    if (mOpened.preview.pages.isEmpty())
        return;
    addGroup(tree, tr("Pages that change:"), {QString()}, false);
    QTreeWidgetItem *group = tree.topLevelItem(tree.topLevelItemCount() - 1);
    delete group->takeChild(0);
    for (const vorlinmodel::PageChange &change : mOpened.preview.pages)
        new QTreeWidgetItem(group, // which owns it
                            {BackupTexts::page(change, mLanguage), BackupTexts::change(change)});
}

void RestorePreviewDialog::addGroup(QTreeWidget &tree, const QString &caption, const QStringList &lines,
                                    bool isBad)
{
    if (lines.isEmpty())
        return;
    auto *group = new QTreeWidgetItem(&tree, {caption}); // the tree owns it
    QFont font = group->font(0);
    font.setBold(true);
    group->setFont(0, font);
    if (isBad)
        group->setForeground(0, QColor(Bad));
    group->setFirstColumnSpanned(true);
    for (const QString &line : lines) {
        auto *item = new QTreeWidgetItem(group, {line});
        item->setFirstColumnSpanned(true);
        item->setToolTip(0, line);
    }
}

QString RestorePreviewDialog::consequences(bool isConnected) const
{
    if (!mOpened.error.isEmpty())
        return tr("The present configuration cannot be backed up, so it cannot be replaced: %1")
            .arg(mOpened.error);
    const QString safety =
        tr("The present configuration is backed up first. The import is one step that can be undone.");
    if (mToPanel)
        return safety + QLatin1Char('\n') + tr("Then the panel is sent the whole configuration.");
    return safety + QLatin1Char('\n') +
           (isConnected ? tr("Then the panel is sent what changes.")
                        : tr("The panel is sent what changes when it is connected."));
}

void RestorePreviewDialog::checkPossible()
{
    const bool isWhole = !mpRest || mpRest->isChecked();
    mpImport->setEnabled(isWhole && mOpened.error.isEmpty());
    mpImport->setToolTip(
        isWhole ? QString() : tr("Parts of the backup are damaged: first choose what becomes of the rest."));
}

void RestorePreviewDialog::import()
{
    const bool takesTheRest = mpRest != nullptr;
    close();
    emit sigImport(takesTheRest);
}
