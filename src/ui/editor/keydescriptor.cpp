#include "keydescriptor.h"

#include "base/log.h"
#include "editorlogtext.h"

#include <algorithm>

using vorlindesk::Log;
using vorlindesk::LogLevel;

KeyDescriptor::KeyDescriptor(int layoutId, int pageId, int keyId, quint32 bitMap)
    : mLayoutId(layoutId)
    , mPageId(pageId)
    , mKeyId(keyId)
{
    setBitMap(bitMap);
}

void KeyDescriptor::setBitMap(quint32 bitMap)
{
    mBitMap = bitMap;
    mSlots = {};
    mPhyKeyCount = 0;
    for (int key = 1; key <= PhysicalKeys; ++key) {
        if ((bitMap & (1U << (key - 1))) == 0)
            continue;
        PhysicalSlot &slot = mSlots.at(size_t(mPhyKeyCount++));
        slot = {key, (key - 1) / GridColumns + 1, (key - 1) % GridColumns + 1};
    }
}

void KeyDescriptor::setIdentity(int layoutId, int pageId, int keyId)
{
    mLayoutId = layoutId;
    mPageId = pageId;
    mKeyId = keyId;
    setBitMap(mBitMap);
}

void KeyDescriptor::dump() const
{
    Log(LogLevel::Debug, EditorLogText::DescriptorLayout, mLayoutId);
    Log(LogLevel::Debug, EditorLogText::DescriptorPage, mPageId);
    Log(LogLevel::Debug, EditorLogText::DescriptorKey, mKeyId);
    Log(LogLevel::Debug, EditorLogText::DescriptorBitMap, mBitMap);
    Log(LogLevel::Debug, EditorLogText::DescriptorCount, mPhyKeyCount);
}

QRect KeyDescriptor::cellsCovered() const
{
    QRect covered;
    for (const PhysicalSlot &slot : mSlots) {
        if (slot.key != 0)
            covered |= QRect(slot.column - 1, slot.row - 1, 1, 1);
    }
    return covered;
}

QSize GridMetrics::gridSize() const
{
    return {(GridColumns - 1) * spacing + GridColumns * cellWidth,
            (GridRows - 1) * spacing + GridRows * cellHeight};
}

GridMetrics GridMetrics::scaledTo(int cellWidth)
{
    const GridMetrics basic;
    return {basic.spacing * cellWidth / basic.cellWidth, cellWidth,
            basic.cellHeight * cellWidth / basic.cellWidth};
}

GridMetrics GridMetrics::fitting(QSize area)
{
    constexpr int narrowest = 40; // below, nothing can be made out on a key
    const GridMetrics basic;
    const QSize size = basic.gridSize();
    const int byWidth = area.width() * basic.cellWidth / size.width();
    const int byHeight = area.height() * basic.cellWidth / size.height();
    return scaledTo(std::max(narrowest, std::min(byWidth, byHeight)));
}

QRect cellRect(const KeyDescriptor &descriptor, const GridMetrics &metrics, QSize size)
{
    const QRect cells = descriptor.cellsCovered();
    if (cells.isEmpty())
        return QRect(QPoint(0, 0), QPoint(-1, -1));
    const auto length = [&metrics](int count, int cell) {
        return (count - 1) * metrics.spacing + count * cell;
    };
    const QSize grid = metrics.gridSize();
    const QPoint first(cells.left() * (metrics.cellWidth + metrics.spacing),
                       cells.top() * (metrics.spacing + metrics.cellHeight));
    const QPoint centred((size.width() - grid.width()) / 2, (size.height() - grid.height()) / 2);
    return {first + centred,
            QSize(length(cells.width(), metrics.cellWidth), length(cells.height(), metrics.cellHeight))};
}
