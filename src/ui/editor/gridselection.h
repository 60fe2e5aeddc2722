/// Which keys of a grid belong together, by where they lie.
#pragma once

#include <QRect>
#include <QVector>
#include <optional>

/// Keys are named by their index in @p places; a key without a physical one has an empty place, and is never
/// reached.
namespace GridSelection {

enum class Direction { Left, Right, Up, Down };

/// @return where an arrow key (Qt::Key) leads; nothing for another key.
std::optional<Direction> directionOf(int key);

/// @return the next key in that direction, one in the same row or column before others; -1 when there is
/// none.
int neighbour(const QVector<QRect> &places, int from, Direction direction);

/// @return the first or last key of the row in which @p from begins.
int endOfRow(const QVector<QRect> &places, int from, bool last);

/// @return every key that the rectangle around the two touches.
QVector<int> between(const QVector<QRect> &places, int one, int other);

/// @return @p rect, grown around every key that it touches.
QRect grown(const QVector<QRect> &places, const QRect &rect);

} // namespace GridSelection
