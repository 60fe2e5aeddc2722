#include "gridselection.h"

#include <algorithm>
#include <tuple>

namespace {

using GridSelection::Direction;

bool isHorizontal(Direction direction)
{
    return direction == Direction::Left || direction == Direction::Right;
}

/// @return how far @p to lies ahead; below 1: not at all.
int gap(const QRect &from, const QRect &to, Direction direction)
{
    switch (direction) {
    case Direction::Left:
        return from.left() - to.right();
    case Direction::Right:
        return to.left() - from.right();
    case Direction::Up:
        return from.top() - to.bottom();
    case Direction::Down:
        return to.top() - from.bottom();
    }
    return 0;
}

/// @return by how many rows (or columns) @p to lies beside the way; 0 when it is on it.
int offset(const QRect &from, const QRect &to, Direction direction)
{
    if (isHorizontal(direction))
        return std::max({0, to.top() - from.bottom(), from.top() - to.bottom()});
    return std::max({0, to.left() - from.right(), from.left() - to.right()});
}

} // namespace

std::optional<GridSelection::Direction> GridSelection::directionOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return GridSelection::Direction::Left;
    case Qt::Key_Right:
        return GridSelection::Direction::Right;
    case Qt::Key_Up:
        return GridSelection::Direction::Up;
    case Qt::Key_Down:
        return GridSelection::Direction::Down;
    default:
        return std::nullopt;
    }
}

int GridSelection::neighbour(const QVector<QRect> &places, int from, Direction direction)
{
    const QRect start = places.value(from);
    int best = -1;
    std::tuple<int, int, int> bestRank;
    for (int i = 0; i < places.size(); ++i) {
        const QRect &place = places.at(i);
        const int ahead = gap(start, place, direction);
        if (place.isEmpty() || start.isEmpty() || ahead < 1)
            continue;
        const std::tuple rank{offset(start, place, direction), ahead,
                              isHorizontal(direction) ? place.top() : place.left()};
        if (best < 0 || rank < bestRank) {
            best = i;
            bestRank = rank;
        }
    }
    return best;
}

int GridSelection::endOfRow(const QVector<QRect> &places, int from, bool last)
{
    const QRect row(0, places.value(from).top(), INT_MAX, 1);
    int best = from;
    for (int i = 0; i < places.size(); ++i) {
        const bool isFurther = last ? places.at(i).right() > places.at(best).right()
                                    : places.at(i).left() < places.at(best).left();
        if (places.at(i).intersects(row) && isFurther)
            best = i;
    }
    return best;
}

QVector<int> GridSelection::between(const QVector<QRect> &places, int one, int other)
{
    const QRect around = places.value(one) | places.value(other);
    QVector<int> touched;
    for (int i = 0; i < places.size(); ++i) {
        if (places.at(i).intersects(around))
            touched.append(i);
    }
    return touched;
}

QRect GridSelection::grown(const QVector<QRect> &places, const QRect &rect)
{
    QRect result = rect;
    for (const QRect &place : places) {
        if (place.intersects(rect))
            result |= place;
    }
    return result;
}
