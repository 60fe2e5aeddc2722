/// Looks at a picture file before a tool is let at it.
#pragma once

#include "model/conversionresult.h"

#include <QByteArray>
#include <QString>

namespace vorlinmodel {

constexpr int MaxPictureSide = 16384; ///< pixels; above every camera, below what takes the computer's memory

struct PictureCheck
{
    ConversionError error = ConversionError::None; ///< why it cannot be converted
    bool video = false;                            ///< moving pictures: its first one is meant
    bool needsUprightCopy = false;                 ///< the tool would not read it, or would show it turned
};

/// Reads the head of @p path and walks through its parts, without decoding it. The content counts, not the
/// ending of the name.
PictureCheck checkPicture(const QString &path);

/// @return whether @p bytes, a file in @p format (as QImageReader names it), reach to the end of their
/// (first) picture. True for formats that it does not know.
bool isWholePicture(const QByteArray &bytes, const QByteArray &format);

/// Writes the (first) picture of @p source to @p target as PNG, turned the way it is meant, no larger than a
/// panel could need. @return Damaged when it cannot be decoded, DiskFull when it cannot be written.
ConversionError writeUprightCopy(const QString &source, const QString &target);

} // namespace vorlinmodel
