#include "model/layoutgrouping.h"

#include "model/keyid.h"

#include <algorithm>
#include <bit>
#include <initializer_list>

namespace vorlinmodel {

namespace {

constexpr int Columns = 5;
constexpr int Rows = 3;
constexpr quint32 AllKeys = 0x7FFF;

quint32 bitOf(int physicalKey)
{
    return 1U << (physicalKey - 1);
}

quint32 maskOf(std::initializer_list<int> physicalKeys)
{
    quint32 mask = 0;
    for (const int key : physicalKeys)
        mask |= bitOf(key);
    return mask;
}

/// The smallest rectangle around @p mask, whatever it covers.
quint32 rectangleAround(quint32 mask)
{
    int left = Columns;
    int top = Rows;
    int right = -1;
    int bottom = -1;
    for (int i = 0; i < Columns * Rows; ++i) {
        if ((mask >> i & 1U) == 0)
            continue;
        left = std::min(left, i % Columns);
        right = std::max(right, i % Columns);
        top = std::min(top, i / Columns);
        bottom = std::max(bottom, i / Columns);
    }
    quint32 rectangle = 0;
    for (int row = top; row <= bottom; ++row)
        for (int column = left; column <= right; ++column)
            rectangle |= 1U << (row * Columns + column);
    return rectangle;
}

bool isMerged(quint32 mask)
{
    return std::popcount(mask) > 1;
}

} // namespace

bool isRectangle(quint32 mask)
{
    return mask != 0 && (mask & ~AllKeys) == 0 && rectangleAround(mask) == mask;
}

LayoutGrouping::LayoutGrouping()
    : LayoutGrouping(QVector<quint32>())
{}

LayoutGrouping::LayoutGrouping(const QVector<quint32> &masks)
{
    quint32 covered = 0;
    for (const quint32 mask : masks) {
        if (!isRectangle(mask) || (covered & mask) != 0)
            continue;
        mMasks.append(mask);
        covered |= mask;
    }
    for (int key = FirstKeyId; key <= LastKeyId; ++key) {
        if ((covered & bitOf(key)) == 0)
            mMasks.append(bitOf(key));
    }
    std::sort(mMasks.begin(), mMasks.end(),
              [](quint32 left, quint32 right) { return std::countr_zero(left) < std::countr_zero(right); });
}

QVector<LayoutGrouping> LayoutGrouping::startingPoints()
{
    return {
        LayoutGrouping(),
        LayoutGrouping({maskOf({6, 7, 11, 12}), maskOf({8, 9, 13, 14})}), // and seven single keys
        LayoutGrouping({maskOf({1, 6, 11}), maskOf({2, 3, 4, 5}), maskOf({7, 8, 12, 13}), maskOf({9, 10}),
                        maskOf({14, 15})}),
        LayoutGrouping({maskOf({2, 3, 4, 7, 8, 9, 12, 13, 14}), maskOf({6, 11}), maskOf({10, 15})}),
    };
}

quint32 LayoutGrouping::grown(quint32 mask) const
{
    quint32 result = rectangleAround(mask & AllKeys);
    for (quint32 before = 0; before != result;) { // a key that is taken in may widen the rectangle
        before = result;
        for (const quint32 key : mMasks)
            result |= (key & before) != 0 ? key : 0;
        result = rectangleAround(result);
    }
    return result;
}

bool LayoutGrouping::canMerge(quint32 mask) const
{
    const quint32 wanted = grown(mask);
    return wanted != 0 && !mMasks.contains(wanted);
}

LayoutGrouping LayoutGrouping::merged(quint32 mask) const
{
    return LayoutGrouping(QVector<quint32>{grown(mask)} + mMasks); // the first of overlapping ones counts
}

bool LayoutGrouping::canSplit(quint32 mask) const
{
    return std::any_of(mMasks.cbegin(), mMasks.cend(),
                       [mask](quint32 key) { return (key & mask) != 0 && isMerged(key); });
}

LayoutGrouping LayoutGrouping::split(quint32 mask) const
{
    QVector<quint32> untouched;
    std::copy_if(mMasks.cbegin(), mMasks.cend(), std::back_inserter(untouched),
                 [mask](quint32 key) { return (key & mask) == 0; });
    return LayoutGrouping(untouched);
}

} // namespace vorlinmodel
