/// The background of a layout, cut to its keys.
#pragma once

#include "keystate.h"

#include <QHash>
#include <QImage>
#include <QMap>

struct LayoutSide;

/// Pieces are cut when they are first asked for. Keys (1 to 15) that the layout has not have none.
class LayoutPieces
{
public:
    explicit LayoutPieces(const LayoutSide &side); ///< which outlives this object

    /// Whether the own picture of a key is the piece of key @p kid, pixel for pixel: what comes back from a
    /// panel or from saving is the same picture in another file.
    bool isShownBy(const KeyState &state, int kid);
    QByteArray bytes(int kid); ///< as PNG; empty when there is none
    /// The path under which the piece lies in the folder of pictures; empty when it could not be written.
    QString file(int kid);
    bool areWritten() const { return mAreWritten; } ///< as far as asked for

private:
    struct Piece
    {
        QImage image;
        QByteArray bytes;
        QString file;
    };
    Piece &piece(int kid);
    Piece cut(int kid) const;
    QImage decoded(const QByteArray &picture);

    const LayoutSide &mSide;
    QMap<int, Piece> mPieces;
    QHash<QByteArray, QImage> mDecoded; ///< a background is on many pages
    bool mAreWritten = true;
};
