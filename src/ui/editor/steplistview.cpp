#include "steplistview.h"

#include "stepcommands.h"
#include "stepdelegate.h"
#include "stepmodel.h"
#include "steprow.h"
#include "stepstyle.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>

namespace {

constexpr int RowsBeyond = 2; // kept ready above and below the view, so that Tab finds the next one

} // namespace

StepListView::StepListView(StepModel &model, QWidget *parent)
    : QListView(parent)
    , mSteps(model)
    , mpDropLine(new QFrame(viewport()))
{
    setObjectName(QStringLiteral("steps"));
    mpDropLine->setObjectName(QStringLiteral("dropLine"));
    mpDropLine->setStyleSheet(QString::fromLatin1(StepStyle::DropLine));
    mpDropLine->hide();
    setUniformItemSizes(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setDragDropMode(DragDrop);
    setDropIndicatorShown(false); // it would be drawn below the fields
    auto *delegate = new StepDelegate(model, this);
    connect(delegate, &StepDelegate::rowMade, this, &StepListView::connectRow);
    setItemDelegate(delegate);
    setModel(&model);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &StepListView::openRowsInView);
    connect(this, &QListView::clicked, this,
            [this](const QModelIndex &index) { emit currentStepChanged(index.row()); });
    retranslate();
}

void StepListView::retranslate()
{
    setAccessibleName(tr("Steps"));
    viewport()->update();
}

void StepListView::connectRow(StepRow *row)
{
    connect(row, &StepRow::copyClicked, this, [this](int number) { duplicate({number}); });
    connect(row, &StepRow::removeClicked, this, [this](int number) { remove({number}); });
    connect(row, &StepRow::left, this, [this] { setFocus(); });
    connect(row, &StepRow::focused, this, [this](int number) {
        if (currentIndex().row() != number)
            setCurrentIndex(mSteps.index(number));
    });
}

StepRow *StepListView::rowWidget(int row) const
{
    return qobject_cast<StepRow *>(indexWidget(mSteps.index(row)));
}

QVector<int> StepListView::selectedSteps() const
{
    QVector<int> rows;
    for (const QModelIndex &index : selectionModel()->selectedIndexes())
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

void StepListView::select(int first, int count)
{
    const int last = qMin(first + count, mSteps.rowCount()) - 1;
    if (first < 0 || last < first) {
        selectionModel()->clear();
        return;
    }
    const QItemSelection range(mSteps.index(first), mSteps.index(last));
    selectionModel()->setCurrentIndex(mSteps.index(first), QItemSelectionModel::NoUpdate);
    selectionModel()->select(range, QItemSelectionModel::ClearAndSelect);
    scrollTo(mSteps.index(last));
    scrollTo(mSteps.index(first));
}

void StepListView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QListView::currentChanged(current, previous);
    emit currentStepChanged(current.row());
}

void StepListView::resizeEvent(QResizeEvent *event)
{
    QListView::resizeEvent(event);
    openRowsInView();
}

/// The view calls it whenever its rows or their places are others.
void StepListView::updateGeometries()
{
    QListView::updateGeometries();
    openRowsInView();
}

/// Fields cost time to make: 200 steps have them only where they can be seen.
void StepListView::openRowsInView()
{
    if (mOpening) // making a row lays out the list
        return;
    const QScopedValueRollback<bool> guard(mOpening, true);
    const int height = qMax(1, sizeHintForRow(0));
    const int top = verticalScrollBar()->value() / height - RowsBeyond;
    const int first = qMax(0, top);
    const int last = qMin(mSteps.rowCount() - 1, top + viewport()->height() / height + 2 * RowsBeyond + 1);
    closeRowsOutside(first, last);
    bool opened = false;
    for (int row = first; row <= last; ++row) {
        const QModelIndex index = mSteps.index(row);
        if (mOpen.contains(QPersistentModelIndex(index)))
            continue;
        openPersistentEditor(index);
        mOpen.append(QPersistentModelIndex(index));
        opened = true;
    }
    if (opened)
        chainTabs(first, last);
}

/// But for the row in which somebody is typing.
void StepListView::closeRowsOutside(int first, int last)
{
    const auto closes = [this, first, last](const QPersistentModelIndex &index) {
        if (!index.isValid())
            return true; // the view has closed it
        if (index.row() >= first && index.row() <= last)
            return false;
        const QWidget *row = indexWidget(index);
        if (row && row->isAncestorOf(QApplication::focusWidget()))
            return false;
        closePersistentEditor(index);
        return true;
    };
    mOpen.erase(std::remove_if(mOpen.begin(), mOpen.end(), closes), mOpen.end());
}

/// Rows come in the order of scrolling; Tab goes from top to bottom.
void StepListView::chainTabs(int first, int last)
{
    QWidget *previous = this;
    for (int row = first; row <= last; ++row) {
        const StepRow *widget = rowWidget(row);
        for (QWidget *part : widget ? widget->tabChain() : QWidgetList{}) {
            setTabOrder(previous, part);
            previous = part;
        }
    }
}

void StepListView::paintEvent(QPaintEvent *event)
{
    QListView::paintEvent(event);
    if (mSteps.rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(QColor(150, 150, 150));
    painter.drawText(viewport()->rect().adjusted(20, 20, -20, -20), Qt::AlignCenter | Qt::TextWordWrap,
                     tr("Drag functions from the list here"));
}

/// Commands go up to the editor, which also gets them from its buttons.
void StepListView::keyPressEvent(QKeyEvent *event)
{
    if (stepCommand(*event) != StepCommand::None)
        event->ignore();
    else
        QListView::keyPressEvent(event);
}
