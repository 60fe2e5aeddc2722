#include "layoutpage.h"

#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "layoutpreview.h"
#include "model/customlayouts.h"
#include "ui_common/style.h"
#include "ui_editor/editorcontext.h"
#include "ui_editor/keydescriptor.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int StandardLayout = 1;
constexpr int CaptionText = 8;
constexpr int StandardLayoutText = 11;

} // namespace

LayoutPage::LayoutPage(EditorContext &context, QWidget *parent)
    : QFrame(parent)
    , mContext(context)
    , mpCaption(new QLabel(this))
    , mpList(new QListWidget(this))
    , mpPreview(new LayoutPreview(context, this))
    , mpKeyCount(new QLabel(this))
    , mpShow(new QPushButton(this))
{
    setObjectName(QStringLiteral("layoutPage"));
    setStyleSheet(QString::fromLatin1(Style::Fields) + QString::fromLatin1(Style::Button) +
                  QString::fromLatin1(Style::Page));
    mpCaption->setObjectName(QStringLiteral("caption"));
    mpList->setObjectName(QStringLiteral("layouts"));
    mpShow->setObjectName(QStringLiteral("showInEditor"));
    connect(mpList, &QListWidget::currentRowChanged, this, [this] {
        mpPreview->showLayout(chosenLayout());
        retranslate();
    });
    connect(mpList, &QListWidget::itemActivated, this, &LayoutPage::showInEditor);
    connect(mpShow, &QPushButton::clicked, this, &LayoutPage::showInEditor);
}

bool LayoutPage::setup()
{
    mpList->setFixedWidth(220);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(mpKeyCount);
    bottom->addStretch();
    bottom->addWidget(mpShow);
    auto *right = new QVBoxLayout;
    right->setSpacing(16);
    right->addWidget(mpPreview, 1);
    right->addLayout(bottom);
    auto *body = new QHBoxLayout;
    body->setSpacing(24);
    body->addWidget(mpList);
    body->addLayout(right, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(16);
    layout->addWidget(mpCaption);
    layout->addLayout(body, 1);
    refresh();
    return true;
}

void LayoutPage::refresh()
{
    const int before = chosenLayout();
    QVector<int> ids{StandardLayout};
    ids += vorlinmodel::customLayoutIds();
    mpList->clear();
    for (const int id : qAsConst(ids)) {
        auto *item = new QListWidgetItem(mpList);
        item->setData(Qt::UserRole, id);
    }
    retranslate();
    mpList->setCurrentRow(qMax(0, ids.indexOf(before)));
}

int LayoutPage::chosenLayout() const
{
    const QListWidgetItem *item = mpList->currentItem();
    return item ? item->data(Qt::UserRole).toInt() : 0;
}

void LayoutPage::showInEditor()
{
    if (chosenLayout() > 0)
        emit sigShowInEditor(chosenLayout());
}

void LayoutPage::retranslate()
{
    const auto &language = *mContext.framework.languageManager();
    mpCaption->setText(language.Text(CaptionText));
    mpShow->setText(tr("Show in the editor"));
    mpKeyCount->setText(tr("Keys: %1").arg(keysOfLayout(chosenLayout()).size()));
    for (int row = 0; row < mpList->count(); ++row) {
        QListWidgetItem *item = mpList->item(row);
        const int id = item->data(Qt::UserRole).toInt();
        QString name = language.Text(StandardLayoutText);
        if (id != StandardLayout) {
            const auto layout = vorlinmodel::loadCustomLayout(id);
            name = layout ? layout->name : QString();
        }
        item->setText(name.isEmpty() ? tr("Layout %1").arg(id) : name);
    }
}
