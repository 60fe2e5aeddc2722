#include "model/layoutbackground.h"

#include "model/keypicture.h"

#include <bit>

namespace vorlinmodel {

namespace {
constexpr int Columns = 5;
constexpr int Rows = 3;
} // namespace

QSize panelPixelSize()
{
    return {Columns * PhysicalKeyWidth, Rows * PhysicalKeyHeight};
}

QImage backgroundPiece(const QImage &panel, quint32 mask)
{
    if (panel.isNull() || mask == 0)
        return {};
    const QImage whole =
        panel.size() == panelPixelSize()
            ? panel
            : panel.scaled(panelPixelSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const int first = std::countr_zero(mask); // the mask is a rectangle: its first key is its upper left one
    const QPoint corner((first % Columns) * PhysicalKeyWidth, (first / Columns) * PhysicalKeyHeight);
    return whole.copy(QRect(corner, keyPixelSize(mask)));
}

} // namespace vorlinmodel
