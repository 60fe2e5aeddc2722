/// What happens to the keys of a layout whose grouping or background changes.
#pragma once

#include "keyedits.h"
#include "model/customlayouts.h"

#include <QImage>
#include <QVector>
#include <optional>

/// A custom layout with the picture of its background, of panelPixelSize() and without alpha; null when it
/// has none, or one that cannot be read.
struct LayoutSide
{
    vorlinmodel::CustomLayout layout;
    QImage background;
};

/// Reads the picture of the background from the folder of layouts.
LayoutSide withBackground(const vorlinmodel::CustomLayout &layout);

struct LayoutMoves
{
    QVector<KeyPlacement> cleared; ///< to be done while the panel still has the layout before
    QVector<KeyPlacement> placed;  ///< once it has the layout after
    /// Stay as they are, but have another size in pixels: their pictures have to be sent again.
    QVector<vorlinmodel::key_id_t> resent;
    bool isComplete = true; ///< false: a piece of the background could not be written
};

/// Functions stay where they are: a key of @p to gets the state (all pages) of the key of @p from that begins
/// at the same physical key. Pieces of the background of @p from are taken away, those of @p to put on. The
/// two may be different layouts: a copy. Writes pieces to the folder of pictures.
LayoutMoves planLayoutMoves(const vorlinmodel::IFunctionManager &store, const LayoutSide &from,
                            const LayoutSide &to);

/// @return the keys of @p from with a function of their own for which @p to has no place, ascending.
QVector<vorlinmodel::key_id_t> keysWithoutPlace(const vorlinmodel::IFunctionManager &store,
                                                const vorlinmodel::CustomLayout &from,
                                                const vorlinmodel::CustomLayout &to);
