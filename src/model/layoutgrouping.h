/// How the 15 physical keys form logical ones.
#pragma once

#include <QVector>
#include <QtGlobal>

namespace vorlinmodel {

/// Whether the physical keys of @p mask (bit p - 1 for key p, 3 rows of 5 columns) fill a rectangle. An empty
/// mask and one with bits beyond key 15 are none.
bool isRectangle(quint32 mask);

/// Every physical key belongs to exactly one logical key, and every logical key is a rectangle.
class LayoutGrouping
{
public:
    LayoutGrouping(); ///< every physical key for itself
    /// Masks that are no rectangle or overlap an earlier one are dropped; keys that none covers become single
    /// ones.
    explicit LayoutGrouping(const QVector<quint32> &masks);

    /// The standard grid, then nine keys, five keys, and five keys in another way.
    static QVector<LayoutGrouping> startingPoints();

    /// Logical keys 1 to n, ascending by their first physical key.
    const QVector<quint32> &masks() const { return mMasks; }

    /// @return the smallest rectangle that is made of whole logical keys and holds @p mask; 0 for no key.
    quint32 grown(quint32 mask) const;
    bool canMerge(quint32 mask) const;         ///< grown(mask) holds more than one logical key
    LayoutGrouping merged(quint32 mask) const; ///< grown(mask) becomes one key
    bool canSplit(quint32 mask) const;
    LayoutGrouping split(quint32 mask) const; ///< merged keys that the mask touches become single ones

    bool operator==(const LayoutGrouping &) const = default;

private:
    QVector<quint32> mMasks;
};

} // namespace vorlinmodel
