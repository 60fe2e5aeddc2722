#include "layoutgrid.h"

#include "layoutdraft.h"
#include "ui_editor/editorcontext.h"
#include "ui_editor/gridselection.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QtAlgorithms>

using vorlinmodel::FirstKeyId;
using vorlinmodel::LastKeyId;

namespace {

constexpr quint32 bitOf(int physical)
{
    return 1U << (physical - 1);
}

int firstPhysical(quint32 mask)
{
    return mask == 0 ? 0 : int(qCountTrailingZeroBits(mask)) + 1;
}

} // namespace

LayoutGrid::LayoutGrid(EditorContext &context, const LayoutDraft &draft, StoredLayouts &stored,
                       QWidget *parent)
    : QWidget(parent)
    , mContext(context)
    , mDraft(draft)
    , mStored(stored)
{
    setObjectName(QStringLiteral("layoutGrid"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::StrongFocus);
    connect(&draft, &LayoutDraft::sigChanged, this, &LayoutGrid::onDraftChanged);
    connect(&context.faces, &KeyFaces::sigFaceReady, this, &LayoutGrid::onFaceReady);
    connect(&context.edits, &KeyEdits::sigKeysChanged, this, &LayoutGrid::redraw);
    connect(this, &LayoutGrid::sigSelectionChanged, this, &LayoutGrid::describe);
    onDraftChanged();
}

void LayoutGrid::onDraftChanged()
{
    if (mBackgroundPath != mDraft.value().background) {
        mBackgroundPath = mDraft.value().background;
        mBackground = mContext.faces.picture(mBackgroundPath);
    }
    redraw();
    select(mSelection); // keys may have grown
}

void LayoutGrid::onFaceReady(const QString &path)
{
    if (path == mBackgroundPath)
        mBackground = mContext.faces.picture(path);
    redraw();
}

void LayoutGrid::redraw()
{
    mDrawn = {};
    update();
}

void LayoutGrid::describe()
{
    setAccessibleDescription(tr("Key %1 of %2, selected: %3")
                                 .arg(indexOf(mCurrent) + 1)
                                 .arg(mDraft.value().grouping.masks().size())
                                 .arg(int(qPopulationCount(mSelection))));
}

int LayoutGrid::shownPage() const
{
    const LayoutDraft::Value &value = mDraft.value();
    const bool isElsewhere = !value.background.isEmpty() && !value.pages.isEmpty();
    return isElsewhere && !value.pages.contains(1) ? value.pages.first() : 1;
}

QRect LayoutGrid::place(quint32 mask) const
{
    return cellRect(KeyDescriptor(mDraft.layoutId(), 1, 1, mask), GridMetrics::fitting(size()), size());
}

int LayoutGrid::indexAt(const QPoint &point) const
{
    const QVector<quint32> &masks = mDraft.value().grouping.masks();
    for (int i = 0; i < masks.size(); ++i) {
        if (place(masks.at(i)).contains(point))
            return i;
    }
    return -1;
}

int LayoutGrid::indexOf(int physical) const
{
    const QVector<quint32> &masks = mDraft.value().grouping.masks();
    for (int i = 0; physical != 0 && i < masks.size(); ++i) {
        if (masks.at(i) & bitOf(physical))
            return i;
    }
    return -1;
}

QVector<QRect> LayoutGrid::cells() const
{
    QVector<QRect> cells;
    for (const quint32 mask : mDraft.value().grouping.masks())
        cells.append(KeyDescriptor(mDraft.layoutId(), 1, 1, mask).cellsCovered());
    return cells;
}

void LayoutGrid::select(quint32 mask)
{
    quint32 selection = 0;
    for (const quint32 key : mDraft.value().grouping.masks()) {
        if (key & mask)
            selection |= key;
    }
    if (mCurrent == 0 || (selection & bitOf(mCurrent)) == 0)
        mAnchor = mCurrent = firstPhysical(selection);
    mSelection = selection;
    update();
    emit sigSelectionChanged(); // the same keys may be merged now
}

/// The band grows around every key that it touches; then it selects what it touches.
void LayoutGrid::selectIn(const QRect &band)
{
    const QVector<quint32> &masks = mDraft.value().grouping.masks();
    QVector<QRect> places;
    for (const quint32 mask : masks)
        places.append(place(mask));
    const QRect grown = GridSelection::grown(places, band);
    quint32 selection = 0;
    for (int i = 0; i < masks.size(); ++i)
        selection |= places.at(i).intersects(grown) ? masks.at(i) : 0;
    mAnchor = mCurrent = firstPhysical(selection);
    select(selection);
}

void LayoutGrid::selectAlone(int index)
{
    const quint32 mask = mDraft.value().grouping.masks().value(index);
    mAnchor = mCurrent = firstPhysical(mask);
    select(mask);
}

void LayoutGrid::selectTo(int index)
{
    const int anchor = indexOf(mAnchor);
    if (anchor < 0 || index < 0)
        return selectAlone(index);
    const QVector<quint32> &masks = mDraft.value().grouping.masks();
    quint32 selection = 0;
    for (const int touched : GridSelection::between(cells(), anchor, index))
        selection |= masks.at(touched);
    mCurrent = firstPhysical(masks.at(index));
    select(selection);
}

void LayoutGrid::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(event);
    mIsPressed = true;
    mPressed = event->pos();
    const int index = indexAt(mPressed);
    if (index >= 0 && event->modifiers() == Qt::ShiftModifier)
        selectTo(index);
    else
        selectAlone(index); // beside the keys: none
}

void LayoutGrid::mouseMoveEvent(QMouseEvent *event)
{
    const bool isFar = (event->pos() - mPressed).manhattanLength() >= QApplication::startDragDistance();
    if (!mIsPressed || (mBand.isEmpty() && !isFar))
        return;
    mBand = QRect(mPressed, event->pos()).normalized();
    selectIn(mBand);
}

void LayoutGrid::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return QWidget::mouseReleaseEvent(event);
    mIsPressed = false;
    mBand = {};
    update();
}

void LayoutGrid::mouseDoubleClickEvent(QMouseEvent *event)
{
    mIsPressed = false;
    const int index = event->button() == Qt::LeftButton ? indexAt(event->pos()) : -1;
    if (index < 0)
        return;
    selectAlone(index);
    emit sigSplit();
}

void LayoutGrid::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::SelectAll))
        select(~0U);
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        emit sigMerge();
    else if (event->key() == Qt::Key_Delete)
        emit sigSplit();
    else if (!walk(*event))
        QWidget::keyPressEvent(event);
}

bool LayoutGrid::walk(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    const auto direction = GridSelection::directionOf(event.key());
    if (!direction || (modifiers != Qt::NoModifier && modifiers != Qt::ShiftModifier))
        return false;
    if (mCurrent == 0) {
        selectAlone(0);
        return true;
    }
    const int next = GridSelection::neighbour(cells(), indexOf(mCurrent), *direction);
    if (next >= 0 && modifiers == Qt::ShiftModifier)
        selectTo(next);
    else if (next >= 0)
        selectAlone(next);
    return true;
}

void LayoutGrid::resizeEvent(QResizeEvent *event)
{
    mDrawn = {};
    QWidget::resizeEvent(event);
}
