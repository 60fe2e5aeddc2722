#include "frameiconbutton.h"

#include "ui_common/knownpicture.h"

#include <QAccessibleWidget>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>

namespace {

constexpr char SelectedBorder[] = "border:2px solid;\nborder-color: rgb(0, 0, 255);";
constexpr char PlainBorder[] = "border:2px solid;\nborder-color: rgb(255, 255, 255);";
// Style sheets are handed down: without one of their own, the labels would have the frame's border.
constexpr char LabelStyle[] = "border: none; background: transparent; color: white; font-size: %1px;";

/// What a screen reader is told: a button, of which one in the menu is checked.
class AccessibleIconButton : public QAccessibleWidget
{
public:
    explicit AccessibleIconButton(FrameIconButton *button)
        : QAccessibleWidget(button, QAccessible::RadioButton, button->accessibleName())
        , mpButton(button)
    {}

    QAccessible::State state() const override
    {
        QAccessible::State result = QAccessibleWidget::state();
        result.checkable = true;
        result.checked = mpButton->isSelected();
        return result;
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? mpButton->accessibleName() : QAccessibleWidget::text(kind);
    }

    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }

    void doAction(const QString &action) override
    {
        if (action == pressAction())
            emit mpButton->clicked();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    FrameIconButton *mpButton;
};

QAccessibleInterface *accessibleOf(const QString &, QObject *object)
{
    auto *button = qobject_cast<FrameIconButton *>(object);
    return button ? new AccessibleIconButton(button) : nullptr; // owned by the toolkit
}

} // namespace

FrameIconButton::FrameIconButton(const QString &name, const QString &iconPath, QWidget *parent)
    : QFrame(parent)
    , mIcon(knownIcon(iconPath))
    , mpIconLabel(new QLabel(this))
    , mpTextLabel(new QLabel(this))
{
    QAccessible::installFactory(accessibleOf); // again for each button, which does no harm
    setObjectName(name);
    mpIconLabel->setObjectName(name + QStringLiteral("_iconlabel"));
    mpTextLabel->setObjectName(name + QStringLiteral("_textlabel"));
    mpIconLabel->setAlignment(Qt::AlignCenter);
    mpTextLabel->setWordWrap(true);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    setMinimumHeight(40);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 2, 6, 2);
    layout->setSpacing(8);
    layout->addWidget(mpIconLabel);
    layout->addWidget(mpTextLabel, 1);
    setSelected(false);
}

void FrameIconButton::setText(const QString &text)
{
    mpTextLabel->setText(text);
    setAccessibleName(text);
}

void FrameIconButton::setSelected(bool selected)
{
    mSelected = selected;
    setStyleSheet(QString::fromLatin1(selected ? SelectedBorder : PlainBorder));
}

void FrameIconButton::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        emit clicked();
}

void FrameIconButton::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat())
            emit clicked();
        return;
    case Qt::Key_Down:
        focusNextChild();
        return;
    case Qt::Key_Up:
        focusPreviousChild();
        return;
    default:
        QFrame::keyPressEvent(event);
    }
}

void FrameIconButton::enterEvent(QEvent *event)
{
    QFrame::enterEvent(event);
    emit mouseenter();
}

void FrameIconButton::leaveEvent(QEvent *event)
{
    QFrame::leaveEvent(event);
    emit mouseleave();
}

void FrameIconButton::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    constexpr int largest = 48; // pixels of the drawing
    const int side = qBound(24, height() * 6 / 10, largest);
    const QString style = QString::fromLatin1(LabelStyle).arg(qBound(13, height() / 5, 17));
    mpIconLabel->setStyleSheet(style);
    mpTextLabel->setStyleSheet(style);
    mpIconLabel->setFixedWidth(side);
    mpIconLabel->setPixmap(mIcon.pixmap(windowHandle(), QSize(side, side)));
}
