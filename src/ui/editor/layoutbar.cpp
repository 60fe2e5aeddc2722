#include "layoutbar.h"
#include "ui_common/knownpicture.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>
#include <QWheelEvent>

namespace {

// Fixed texts of the two kinds of button. The blue of the current one is seen because of the light ground,
// which stands in the sheet of the bar.
constexpr char CurrentButton[] = "border: none; color: rgb(0, 0, 255);";
constexpr char OtherButton[] = "border: none; color: rgb(255, 255, 255);";

constexpr char BarStyle[] =
    "#layoutRow, #layoutArea {background-color: transparent;border: none;}"
    "QPushButton {background-color: rgb(70, 70, 70);border-radius: 4px;padding: 4px 12px;}"
    "QPushButton:hover, QPushButton:focus {background-color: rgb(92, 92, 92);}"
    "QPushButton:checked {background-color: rgb(225, 235, 245);}"
    "QPushButton:checked:focus {background-color: rgb(190, 225, 255);}"
    "QToolButton {background-color: rgb(70, 70, 70);color: white;border: 1px solid "
    "transparent;border-radius: 4px;}"
    "QToolButton:hover, QToolButton:focus {border-color: rgb(0, 160, 255);}"
    "QToolButton::menu-indicator {image: none;}"
    "QMenu {background-color: rgb(43, 43, 43);color: white;border: 1px solid rgb(108, 108, 108);}"
    "QMenu::item:selected {background-color: rgb(0, 160, 255);}";
constexpr int ButtonHeight = 28;
constexpr int LongestName = 24; // a name is the person's own, and may be of any length

QString shortened(const QString &name)
{
    return name.size() <= LongestName ? name : name.left(LongestName - 1) + QStringLiteral("…");
}

} // namespace

LayoutBar::LayoutBar(QWidget *parent)
    : QWidget(parent)
    , mpArea(new QScrollArea(this))
    , mpRow(new QWidget(mpArea))
    , mpRowLayout(new QHBoxLayout(mpRow))
    , mpAll(new QToolButton(this))
    , mpMenu(new QMenu(mpAll))
{
    setObjectName(QStringLiteral("layoutBar"));
    setStyleSheet(QString::fromLatin1(BarStyle));
    mpRow->setObjectName(QStringLiteral("layoutRow"));
    mpRowLayout->setContentsMargins(0, 0, 0, 0);
    mpRowLayout->setSpacing(4);
    mpArea->setObjectName(QStringLiteral("layoutArea"));
    mpArea->setFrameShape(QFrame::NoFrame);
    mpArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    mpArea->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    mpArea->setWidget(mpRow);
    mpArea->setFocusPolicy(Qt::NoFocus);
    mpArea->viewport()->installEventFilter(this);
    mpArea->setFixedHeight(ButtonHeight);
    mpAll->setObjectName(QStringLiteral("allLayouts"));
    mpAll->setIcon(knownIcon(QStringLiteral(":/icon/edit/down.png")));
    mpAll->setFixedSize(ButtonHeight, ButtonHeight);
    mpAll->setMenu(mpMenu);
    mpAll->setPopupMode(QToolButton::InstantPopup);
    connect(mpMenu, &QMenu::aboutToShow, this, &LayoutBar::fillMenu);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(mpArea, 1);
    layout->addWidget(mpAll);
    retranslate();
}

QPushButton *LayoutBar::addLayout(int layoutId, const QString &name)
{
    auto *button = new QPushButton(mpRow);
    button->setObjectName(QStringLiteral("layout%1").arg(layoutId));
    button->setCheckable(true);
    button->setFixedHeight(ButtonHeight);
    button->setStyleSheet(QString::fromLatin1(OtherButton));
    button->installEventFilter(this);
    setTabOrder(mButtons.isEmpty() ? static_cast<QWidget *>(mpAll) : mButtons.last(), button);
    mButtons.append(button);
    mpRowLayout->addWidget(button);
    button->show();
    rename(button, name);
    return button;
}

void LayoutBar::removeLayout(QPushButton *button)
{
    mButtons.removeOne(button);
    mpRowLayout->removeWidget(button);
    button->hide();
    button->deleteLater(); // it may be the one that was just pressed
    fitRow();
}

void LayoutBar::rename(QPushButton *button, const QString &name)
{
    if (button->accessibleName() == name)
        return;
    button->setText(shortened(name).replace(QLatin1Char('&'), QLatin1String("&&")));
    button->setToolTip(name.toHtmlEscaped());
    button->setAccessibleName(name);
    fitRow();
}

void LayoutBar::showCurrent(const QPushButton *current)
{
    for (QPushButton *button : qAsConst(mButtons)) {
        const bool isCurrent = button == current;
        button->setChecked(isCurrent);
        const QString style = QString::fromLatin1(isCurrent ? CurrentButton : OtherButton);
        if (button->styleSheet() != style)
            button->setStyleSheet(style);
        if (isCurrent)
            mpArea->ensureWidgetVisible(button, 0, 0);
    }
}

void LayoutBar::retranslate()
{
    mpAll->setToolTip(tr("All layouts"));
    mpAll->setAccessibleName(tr("All layouts"));
}

void LayoutBar::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fitRow();
}

void LayoutBar::fitRow()
{
    mpRow->resize(mpRow->sizeHint().width(), ButtonHeight);
    mpAll->setVisible(mpRow->width() > width());
}

/// The wheel scrolls the row, and a button that gets the focus comes into view.
bool LayoutBar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn && watched != mpArea->viewport())
        mpArea->ensureWidgetVisible(static_cast<QWidget *>(watched), 0, 0);
    if (event->type() != QEvent::Wheel)
        return QWidget::eventFilter(watched, event);
    const QPoint turned = static_cast<QWheelEvent *>(event)->angleDelta();
    QScrollBar *bar = mpArea->horizontalScrollBar();
    bar->setValue(bar->value() - (turned.x() != 0 ? turned.x() : turned.y()));
    return true;
}

void LayoutBar::fillMenu()
{
    mpMenu->clear();
    for (QPushButton *button : qAsConst(mButtons)) {
        QAction *action = mpMenu->addAction(button->text());
        action->setCheckable(true);
        action->setChecked(button->isChecked());
        connect(action, &QAction::triggered, button, &QPushButton::click);
    }
}
