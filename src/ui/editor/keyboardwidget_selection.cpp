// Selection of keys, by mouse and keyboard.
#include "cellstyle.h"
#include "editorcontext.h"
#include "gridselection.h"
#include "keyboardwidget.h"
#include "keywidget.h"

#include <QKeyEvent>
#include <QPointer>
#include <algorithm>

using vorlinmodel::key_id_t;

namespace {

void showStyle(KeyWidget &cell, const char *style)
{
    const QString text = QString::fromLatin1(style);
    if (cell.styleSheet() != text) // Qt parses and applies it anew otherwise
        cell.setStyleSheet(text);
}

bool opensMenu(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Menu ||
           (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
}

} // namespace

QVector<key_id_t> KeyboardWidget::selectedKeys() const
{
    QVector<key_id_t> keys;
    for (const KeyWidget *cell : mCells) {
        if (cell->isSelected())
            keys.append(cell->keyId());
    }
    if (keys.isEmpty() && mCurrent != 0)
        keys.append(currentKey());
    std::sort(keys.begin(), keys.end());
    return keys;
}

key_id_t KeyboardWidget::currentKey() const
{
    return {mLayoutId, mPageId, mCurrent};
}

void KeyboardWidget::setCurrentKey(int keyId)
{
    selectAlone(indexOf(keyId));
}

void KeyboardWidget::selectAll()
{
    QVector<int> all;
    for (int i = 0; i < mCells.size(); ++i) {
        if (mCells.at(i)->descriptor().mPhyKeyCount > 0)
            all.append(i);
    }
    if (!all.isEmpty())
        select(all, mCurrent != 0 ? mCurrent : mCells.at(all.constFirst())->keyId().kid);
}

void KeyboardWidget::select(const QVector<int> &indexes, int currentKeyId)
{
    mCurrent = currentKeyId;
    for (int i = 0; i < mCells.size(); ++i) {
        const bool isSelected = indexes.contains(i);
        mCells.at(i)->setSelected(isSelected);
        showStyle(*mCells.at(i), isSelected ? CellStyle::Selected : CellStyle::NotSelected);
    }
    setFocusProxy(cell(mCurrent));
    emit selectionChanged();
}

void KeyboardWidget::selectAlone(int index)
{
    if (index < 0)
        return;
    mAnchor = mCells.at(index)->keyId().kid;
    select({index}, mAnchor);
}

void KeyboardWidget::selectTo(int index)
{
    const int anchor = indexOf(mAnchor);
    if (anchor < 0)
        return selectAlone(index);
    select(GridSelection::between(places(), anchor, index), mCells.at(index)->keyId().kid);
}

void KeyboardWidget::toggle(int index)
{
    QVector<int> selected;
    for (int i = 0; i < mCells.size(); ++i) {
        if (mCells.at(i)->isSelected() != (i == index))
            selected.append(i);
    }
    if (selected.isEmpty()) // there is always a key to which the attributes beside the grid belong
        return selectAlone(index);
    const int current = selected.contains(index) ? index : selected.constFirst();
    mAnchor = mCells.at(current)->keyId().kid;
    select(selected, mAnchor);
}

void KeyboardWidget::onButtonClicked()
{
    const auto *clicked = qobject_cast<KeyWidget *>(sender());
    const int index = clicked ? indexOf(clicked->keyId().kid) : -1;
    if (index < 0)
        return;
    if (clicked->clickModifiers().testFlag(Qt::ControlModifier))
        toggle(index);
    else if (clicked->clickModifiers().testFlag(Qt::ShiftModifier))
        selectTo(index);
    else
        selectAlone(index);
}

bool KeyboardWidget::selectByRect(const QRect &rect)
{
    QVector<QRect> geometries;
    for (const KeyWidget *cell : qAsConst(mCells))
        geometries.append(cell->geometry());
    const QRect grown = GridSelection::grown(geometries, rect);
    bool isLastSelected = false;
    for (KeyWidget *cell : qAsConst(mCells)) {
        isLastSelected = cell->geometry().intersects(grown);
        cell->setSelected(isLastSelected);
    }
    return isLastSelected;
}

void KeyboardWidget::deleteSelected()
{
    QVector<key_id_t> keys;
    for (const key_id_t &key : selectedKeys()) {
        if (cell(key.kid)->fid() != 0)
            keys.append(key);
    }
    if (keys.isEmpty())
        return;
    const auto remove = [self = QPointer<KeyboardWidget>(this), keys] {
        if (!self)
            return;
        self->mContext.edits.change(tr("Delete"), keys, [&] {
            for (const key_id_t &key : keys) {
                if (KeyWidget *cell = self->cell(key.kid))
                    cell->removeFunction();
            }
        });
    };
    if (mContext.deleteKeys)
        mContext.deleteKeys(keys, remove);
    else
        remove();
}

QVector<QRect> KeyboardWidget::places() const
{
    QVector<QRect> places;
    for (const KeyWidget *cell : mCells)
        places.append(cell->descriptor().cellsCovered());
    return places;
}

/// Keys that a cell has no use for itself arrive here.
void KeyboardWidget::keyPressEvent(QKeyEvent *event)
{
    const auto first = std::find_if(mCells.cbegin(), mCells.cend(), [](const KeyWidget *cell) {
        return cell->descriptor().mPhyKeyCount > 0; // a person can see it
    });
    if (!mConnectSignals || first == mCells.cend())
        return QWidget::keyPressEvent(event);
    if (mCurrent == 0)
        setCurrentKey((*first)->keyId().kid);
    if (event->matches(QKeySequence::SelectAll))
        selectAll();
    else if (!walk(event) && !actOnCurrent(event))
        QWidget::keyPressEvent(event);
}

bool KeyboardWidget::walk(QKeyEvent *event)
{
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if (modifiers != Qt::NoModifier && modifiers != Qt::ShiftModifier)
        return false;
    const bool extends = modifiers == Qt::ShiftModifier;
    const int current = indexOf(mCurrent);
    if (const auto direction = GridSelection::directionOf(event->key())) {
        moveTo(GridSelection::neighbour(places(), current, *direction), extends);
        return true;
    }
    if (event->key() != Qt::Key_Home && event->key() != Qt::Key_End)
        return false;
    moveTo(GridSelection::endOfRow(places(), current, event->key() == Qt::Key_End), extends);
    return true;
}

void KeyboardWidget::moveTo(int index, bool extends)
{
    if (index < 0)
        return;
    if (extends)
        selectTo(index);
    else
        selectAlone(index);
    mCells.at(index)->setFocus();
}

bool KeyboardWidget::actOnCurrent(QKeyEvent *event)
{
    KeyWidget *current = cell(mCurrent);
    if (opensMenu(*event)) {
        current->openMenu(current->mapToGlobal(current->rect().center()));
        return true;
    }
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (event->key() == Qt::Key_Space)
        current->click(event->modifiers());
    else if (!isPlain)
        return false;
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        current->activate();
    else if (event->key() == Qt::Key_Delete)
        deleteSelected();
    else if (event->key() == Qt::Key_F2 && current->fid() != 0)
        emit editTitleRequested(currentKey());
    else
        return false;
    return true;
}
