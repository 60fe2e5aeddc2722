/// One logical key: its address, and the physical keys that it covers.
#pragma once

#include <QRect>
#include <QSize>
#include <QtGlobal>
#include <array>

constexpr int GridColumns = 5;
constexpr int GridRows = 3;
constexpr int PhysicalKeys = GridColumns * GridRows;

struct PhysicalSlot
{
    qint32 key = 0;    ///< 1 to 15; 0 = unused
    qint32 row = 0;    ///< 1 to 3
    qint32 column = 0; ///< 1 to 5
};

struct KeyDescriptor
{
    qint32 mLayoutId = 0;
    qint32 mPageId = 0;
    qint32 mKeyId = 0;
    quint32 mBitMap = 0;                             ///< bit (p - 1) for each physical key p
    std::array<PhysicalSlot, PhysicalKeys> mSlots{}; ///< in increasing order, the rest zero
    qint32 mPhyKeyCount = 0;

    KeyDescriptor() = default;
    KeyDescriptor(int layoutId, int pageId, int keyId, quint32 bitMap);
    void setBitMap(quint32 bitMap); ///< fills slots and count anew
    void setIdentity(int layoutId, int pageId, int keyId);
    void dump() const; ///< to the log, at debug level

    /// Columns (x, 0 to 4) and rows (y, 0 to 2) from the first to the last physical key; empty without one.
    QRect cellsCovered() const;
};

/// Sizes of one physical key on the screen, in pixels.
struct GridMetrics
{
    int spacing = 10;
    int cellWidth = 96; ///< 90 x 84 panel pixels and a border of 3 on each side
    int cellHeight = 90;

    QSize gridSize() const; ///< of 5 x 3 keys
    /// The largest that fits into @p area and keeps the shape of the keys; at least 40 pixels wide.
    static GridMetrics fitting(QSize area);
    static GridMetrics scaledTo(int cellWidth); ///< the same shape
};

/// Place of a cell in a grid of @p size, centred as a whole. Empty (0, 0, -1, -1) for a descriptor without a
/// key.
QRect cellRect(const KeyDescriptor &descriptor, const GridMetrics &metrics, QSize size);
