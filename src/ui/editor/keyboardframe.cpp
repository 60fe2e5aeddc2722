#include "keyboardframe.h"

#include "keyboardwidget.h"

namespace {

constexpr QSize SmallestArea{260, 150};

} // namespace

GridArea::GridArea(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("gridArea"));
    setMinimumSize(SmallestArea);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void GridArea::showGrid(KeyboardWidget *grid)
{
    if (grid == mpGrid) {
        if (grid)
            grid->setVisible(true);
        return;
    }
    QWidget *focus = window()->focusWidget();
    const bool hadFocus = mpGrid && focus && (focus == mpGrid || mpGrid->isAncestorOf(focus));
    KeyboardWidget *before = std::exchange(mpGrid, grid);
    if (grid) {
        grid->setGeometry(rect());
        grid->setVisible(true);
        if (hadFocus)
            grid->setFocus();
    }
    if (before)
        before->setVisible(false);
}

void GridArea::forget(KeyboardWidget *grid)
{
    if (grid == mpGrid)
        showGrid(nullptr);
}

void GridArea::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (mpGrid)
        mpGrid->setGeometry(rect());
}
