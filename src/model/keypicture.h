/// Key pictures as the panel takes them.
#pragma once

#include "model/keyid.h"

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <optional>

namespace vorlinmodel {

class IFunctionManager;

constexpr int PhysicalKeyWidth = 90; ///< pixels of one LCD
constexpr int PhysicalKeyHeight = 84;

/// Pixels of a key: 90 x 84, or columns x 90 by rows x 84 for a merged key of a custom layout.
QSize keyPixelSize(const key_id_t &key);

/// The same for a key that covers the physical keys of @p mask (bit p - 1 for each); 0 counts as one key.
QSize keyPixelSize(quint32 mask);

/// The key's display image (files and resources) as PNG of @p size; nothing when there is no picture. The
/// size is the caller's, since keyPixelSize() may give another one a moment later.
std::optional<QByteArray> encodedKeyPicture(const IFunctionManager &store, const key_id_t &key,
                                            const QSize &size);

/// Decodes a picture from foreign bytes, with limits: at most 4096 x 4096 pixels. Null when it is none.
QImage decodePicture(const QByteArray &bytes);

/// Decodes a picture of the person, which a camera may have made: at most 16384 x 16384 pixels. A larger one
/// than @p side is made smaller while it is decoded. Null when it is none.
QImage decodeOwnPicture(const QByteArray &bytes, int side);

} // namespace vorlinmodel
