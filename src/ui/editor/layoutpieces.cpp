#include "layoutpieces.h"

#include "base/log.h"
#include "editorlogtext.h"
#include "layoutmoves.h"
#include "model/keypicture.h"
#include "model/layoutbackground.h"
#include "storefiles.h"

#include <QBuffer>

LayoutPieces::LayoutPieces(const LayoutSide &side)
    : mSide(side)
{}

bool LayoutPieces::isShownBy(const KeyState &state, int kid)
{
    if (state.picture.isEmpty() || piece(kid).image.isNull())
        return false;
    return state.picture == piece(kid).bytes || decoded(state.picture) == piece(kid).image;
}

QByteArray LayoutPieces::bytes(int kid)
{
    return piece(kid).bytes;
}

QString LayoutPieces::file(int kid)
{
    Piece &found = piece(kid);
    if (found.file.isEmpty() && !found.bytes.isEmpty())
        found.file = StoreFiles::keepPicture(found.bytes);
    mAreWritten = mAreWritten && !found.file.isEmpty();
    return found.file;
}

LayoutPieces::Piece &LayoutPieces::piece(int kid)
{
    if (!mPieces.contains(kid))
        mPieces.insert(kid, cut(kid));
    return mPieces[kid];
}

LayoutPieces::Piece LayoutPieces::cut(int kid) const
{
    Piece result;
    const quint32 mask = kid <= mSide.layout.keys.size() ? mSide.layout.keys.at(kid - 1).mask : 0;
    if (mask == 0 || mSide.background.isNull())
        return result;
    const QSize size = vorlinmodel::keyPixelSize(mask);
    const int rows = size.height() / vorlinmodel::PhysicalKeyHeight;
    const int columns = size.width() / vorlinmodel::PhysicalKeyWidth;
    vorlindesk::Log(vorlindesk::LogLevel::Info, EditorLogText::PieceCells, rows, columns);
    vorlindesk::Log(vorlindesk::LogLevel::Info, EditorLogText::PiecePixels, size.width(), size.height());
    result.image = vorlinmodel::backgroundPiece(mSide.background, mask).convertToFormat(QImage::Format_RGB32);
    QBuffer buffer(&result.bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !result.image.save(&buffer, "PNG"))
        result.bytes.clear();
    return result;
}

QImage LayoutPieces::decoded(const QByteArray &picture)
{
    const auto known = mDecoded.constFind(picture);
    if (known != mDecoded.constEnd())
        return *known;
    const QImage image = vorlinmodel::decodePicture(picture).convertToFormat(QImage::Format_RGB32);
    mDecoded.insert(picture, image);
    return image;
}
