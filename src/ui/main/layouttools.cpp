#include "layouttools.h"

#include "base/language.h"
#include "ui_editor/keydescriptor.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QProxyStyle>
#include <QPushButton>

using vorlinmodel::LayoutGrouping;

namespace {

constexpr int ResetText = 97;
constexpr int DrawingSide = 60; // pixels, with a margin around the 53 x 31 of the grid

/// Menus have small icons, whatever their style sheet says; the drawings need more.
class LargeIconStyle : public QProxyStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        return metric == PM_SmallIconSize ? DrawingSide : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

QIcon drawing(const LayoutGrouping &grouping, qreal ratio)
{
    constexpr int cellWidth = 9; // square: the drawing shows how keys go together
    const QSize size(DrawingSide, DrawingSide);
    QPixmap pixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    const GridMetrics metrics{2, cellWidth, cellWidth};
    for (const quint32 mask : grouping.masks())
        painter.fillRect(cellRect(KeyDescriptor(1, 1, 1, mask), metrics, size), QColor(200, 200, 200));
    painter.end();
    return QIcon(pixmap);
}

} // namespace

LayoutTools::LayoutTools(const vorlindesk::LanguageManager &language, QWidget *parent)
    : QWidget(parent)
    , mLanguage(language)
    , mpMerge(addButton("merge"))
    , mpSplit(addButton("split"))
    , mpReset(addButton("reset"))
    , mpStart(addButton("startingPoints"))
    , mpStartMenu(new QMenu(this))
    , mpNote(new QLabel(this))
{
    mpNote->setObjectName(QStringLiteral("keyCount"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    for (QPushButton *button : {mpMerge, mpSplit, mpReset, mpStart})
        layout->addWidget(button);
    layout->addStretch();
    layout->addWidget(mpNote);
    addStartingPoints();
    connect(mpMerge, &QPushButton::clicked, this, &LayoutTools::sigMerge);
    connect(mpSplit, &QPushButton::clicked, this, &LayoutTools::sigSplit);
    connect(mpReset, &QPushButton::clicked, this,
            [this] { emit sigStartingPoint(mpReset->text(), LayoutGrouping()); });
    retranslate();
}

QPushButton *LayoutTools::addButton(const char *name)
{
    auto *button = new QPushButton(this);
    button->setObjectName(QLatin1String(name));
    return button;
}

void LayoutTools::addStartingPoints()
{
    auto *style = new LargeIconStyle;
    style->setParent(mpStartMenu);
    mpStartMenu->setStyle(style);
    mpStartMenu->setStyleSheet(QStringLiteral("QMenu::item {padding: 0px 16px 0px 4px;}"));
    mpStart->setMenu(mpStartMenu);
    for (const LayoutGrouping &grouping : LayoutGrouping::startingPoints()) {
        QAction *action = mpStartMenu->addAction(drawing(grouping, devicePixelRatioF()), QString());
        connect(action, &QAction::triggered, this,
                [this, grouping] { emit sigStartingPoint(tr("Starting point"), grouping); });
        mStartActions.append(action);
    }
}

void LayoutTools::showState(const LayoutGrouping &grouping, quint32 selection, bool editable)
{
    mpMerge->setEnabled(editable && grouping.canMerge(selection));
    mpSplit->setEnabled(editable && grouping.canSplit(selection));
    mpReset->setEnabled(editable && !(grouping == LayoutGrouping()));
    mpStart->setEnabled(editable);
}

void LayoutTools::setNote(const QString &text)
{
    mpNote->setText(text);
}

void LayoutTools::retranslate()
{
    mpMerge->setText(tr("Merge"));
    mpMerge->setToolTip(tr("Makes one key of those that are selected (Enter)"));
    mpSplit->setText(tr("Split"));
    mpSplit->setToolTip(tr("Makes single keys of the selected ones (Delete, or double click)"));
    mpReset->setText(mLanguage.Text(ResetText));
    mpReset->setToolTip(tr("Back to 15 single keys"));
    mpStart->setText(tr("Starting points"));
    mpStart->setToolTip(tr("Begin with another grouping"));
    const QVector<LayoutGrouping> groupings = LayoutGrouping::startingPoints();
    for (int i = 0; i < mStartActions.size(); ++i)
        mStartActions.at(i)->setText(tr("%1 keys").arg(groupings.at(i).masks().size()));
}
