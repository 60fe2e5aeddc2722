// What the list of steps does with the keyboard, the clipboard and drags.
#include "steplistview.h"

#include "stepcommands.h"
#include "stepdata.h"
#include "stepmodel.h"
#include "steprow.h"

#include <QApplication>
#include <QClipboard>
#include <QDrag>
#include <QDropEvent>
#include <QFrame>

namespace {

constexpr int DropLineHeight = 3;

} // namespace

int StepListView::insertionRow() const
{
    const QVector<int> selected = selectedSteps();
    return selected.isEmpty() ? mSteps.rowCount() : selected.last() + 1;
}

void StepListView::addFunction(int fid)
{
    if (!StepContent::canBeStep(fid))
        return;
    const int row = insertionRow();
    mSteps.insert(row, {StepContent::newStep(fid)});
    select(row, 1);
}

bool StepListView::run(StepCommand command)
{
    switch (command) {
    case StepCommand::Undo:
        return mSteps.canUndo() && (mSteps.undo(), true);
    case StepCommand::Redo:
        return mSteps.canRedo() && (mSteps.redo(), true);
    case StepCommand::Duplicate:
        duplicate(selectedSteps());
        return true;
    case StepCommand::MoveUp:
        moveBy(-1);
        return true;
    case StepCommand::MoveDown:
        moveBy(1);
        return true;
    case StepCommand::Copy:
        toClipboard();
        return true;
    case StepCommand::Cut:
        toClipboard();
        remove(selectedSteps());
        return true;
    case StepCommand::Paste:
        paste();
        return true;
    case StepCommand::Remove:
        remove(selectedSteps());
        return true;
    case StepCommand::Edit:
        if (StepRow *row = rowWidget(currentIndex().row()))
            row->focusContent();
        return true;
    default:
        return false;
    }
}

void StepListView::duplicate(const QVector<int> &rows)
{
    if (rows.isEmpty())
        return;
    const int row = rows.last() + 1;
    mSteps.insert(row, mSteps.steps(rows));
    select(row, int(rows.size()));
}

/// The step behind the removed ones is selected, so that the next Delete takes that.
void StepListView::remove(const QVector<int> &rows)
{
    if (rows.isEmpty())
        return;
    const bool hadFocus = isAncestorOf(QApplication::focusWidget());
    mSteps.remove(rows);
    select(qMin(rows.first(), mSteps.rowCount() - 1), 1);
    if (hadFocus)
        setFocus();
}

void StepListView::moveBy(int distance)
{
    const QVector<int> rows = selectedSteps();
    if (rows.isEmpty())
        return;
    const bool typing = QApplication::focusWidget() != this && isAncestorOf(QApplication::focusWidget());
    const int before = distance < 0 ? qMax(0, rows.first() - 1) : rows.last() + 2;
    const int first = mSteps.move(rows, before);
    select(first, int(rows.size()));
    if (StepRow *row = rowWidget(first); typing && row)
        row->focusContent(); // the cursor goes with its step
}

void StepListView::toClipboard() const
{
    if (selectionModel()->hasSelection())
        QApplication::clipboard()->setMimeData(mSteps.mimeData(selectedIndexes())); // which owns it
}

void StepListView::paste()
{
    const StepContent::Steps steps = stepsOf(QApplication::clipboard()->mimeData());
    if (steps.isEmpty())
        return;
    const int row = insertionRow();
    mSteps.insert(row, steps);
    select(row, int(steps.size()));
}

void StepListView::startDrag(Qt::DropActions)
{
    const QVector<int> rows = selectedSteps();
    if (rows.isEmpty())
        return;
    const QRect area = visualRect(mSteps.index(rows.first()));
    QPixmap picture(area.size() * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    viewport()->render(&picture, QPoint(), QRegion(area));
    auto *drag = new QDrag(this);                          // deletes itself when the drop is over
    drag->setMimeData(mSteps.mimeData(selectedIndexes())); // the drag's
    drag->setPixmap(picture);
    drag->setHotSpot(viewport()->mapFromGlobal(QCursor::pos()) - area.topLeft());
    drag->exec(Qt::MoveAction | Qt::CopyAction, Qt::MoveAction);
}

bool StepListView::takes(const QDropEvent &event) const
{
    return droppedFunction(*event.mimeData()) != 0 || !stepsOf(event.mimeData()).isEmpty();
}

/// Steps of this list, and Ctrl is not held.
bool StepListView::isMove(const QDropEvent &event) const
{
    const auto *dragged = qobject_cast<const StepData *>(event.mimeData());
    return dragged && &dragged->model() == &mSteps && event.proposedAction() != Qt::CopyAction;
}

/// @return the row in front of which a drop at @p position goes.
int StepListView::dropRow(const QPoint &position) const
{
    int row = 0;
    while (row < mSteps.rowCount() && visualRect(mSteps.index(row)).center().y() < position.y())
        ++row;
    return row;
}

void StepListView::showDropLine(int row)
{
    const int last = mSteps.rowCount() - 1;
    int y = 0;
    if (row <= last)
        y = visualRect(mSteps.index(row)).top();
    else if (last >= 0)
        y = visualRect(mSteps.index(last)).bottom() + 1;
    const int top = qBound(0, y - DropLineHeight / 2, viewport()->height() - DropLineHeight);
    mpDropLine->setGeometry(0, top, viewport()->width(), DropLineHeight);
    mpDropLine->raise();
    mpDropLine->show();
}

void StepListView::dragEnterEvent(QDragEnterEvent *event)
{
    event->setAccepted(takes(*event));
}

void StepListView::dragMoveEvent(QDragMoveEvent *event)
{
    QListView::dragMoveEvent(event); // scrolls at the borders
    if (!takes(*event)) {
        event->ignore();
        return;
    }
    showDropLine(dropRow(event->pos()));
    event->setDropAction(isMove(*event) ? Qt::MoveAction : Qt::CopyAction);
    event->accept();
}

void StepListView::dragLeaveEvent(QDragLeaveEvent *event)
{
    QListView::dragLeaveEvent(event);
    mpDropLine->hide();
}

void StepListView::dropEvent(QDropEvent *event)
{
    mpDropLine->hide();
    stopAutoScroll();
    setState(NoState);
    if (!takes(*event)) {
        event->ignore();
        return;
    }
    const int row = dropRow(event->pos());
    const bool move = isMove(*event);
    const int fid = droppedFunction(*event->mimeData());
    const StepContent::Steps steps =
        fid != 0 ? StepContent::Steps{StepContent::newStep(fid)} : stepsOf(event->mimeData());
    if (move) {
        const int first = mSteps.move(static_cast<const StepData *>(event->mimeData())->rows(), row);
        select(first, int(steps.size()));
    } else {
        mSteps.insert(row, steps);
        select(row, int(steps.size()));
    }
    event->setDropAction(move ? Qt::MoveAction : Qt::CopyAction);
    event->accept();
}
