#include "model/keypicture.h"

#include "model/customlayouts.h"
#include "model/ifunctionmanager.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>
#include <algorithm>
#include <bit>

namespace vorlinmodel {

namespace {

constexpr int StandardLayout = 1; // every physical key by itself
constexpr int PanelColumns = 5;
constexpr quint32 FirstRow = 0b11111;

constexpr int MaxForeignSide = 4096; // pixels
constexpr int MaxOwnSide = 16384;    // pixels; a camera's pictures are above what a panel may send

bool isBeyond(const QSize &size, int side)
{
    return size.width() > side || size.height() > side;
}

/// Reads the picture when it is small enough, which is known before it is decoded: a few bytes can claim
/// gigabytes. One with more than @p side pixels a side is made smaller while it is decoded.
QImage readLimited(QImageReader &reader, int maxSide, int side)
{
    const QSize size = reader.size();
    if (size.isEmpty() || isBeyond(size, maxSide))
        return {};
    if (isBeyond(size, side))
        reader.setScaledSize(size.scaled(side, side, Qt::KeepAspectRatio).expandedTo({1, 1}));
    reader.setAutoTransform(true);
    return reader.read();
}

QImage decoded(const QByteArray &bytes, int maxSide, int side)
{
    // Pixels only: formats that are programs of a kind (vector drawings) have no business in bytes from a
    // device.
    static const QList<QByteArray> formats = {"png", "jpg", "jpeg", "bmp", "gif", "webp"};
    QByteArray copy = bytes;
    QBuffer buffer(&copy);
    if (!buffer.open(QIODevice::ReadOnly))
        return {};
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    if (!formats.contains(reader.format()))
        return {};
    return readLimited(reader, maxSide, side);
}

quint32 maskOf(const key_id_t &key)
{
    if (key.lid == StandardLayout)
        return 0;
    const auto layout = loadCustomLayout(key.lid);
    if (!layout || key.kid < 1 || key.kid > layout->keys.size())
        return 0;
    return layout->keys.at(key.kid - 1).mask;
}

/// @return how many units lie between the first and the last set bit of @p bits, both included.
int span(quint32 bits)
{
    return int(std::bit_width(bits)) - std::countr_zero(bits);
}

QSize cellsOf(quint32 mask)
{
    quint32 columns = 0;
    quint32 rows = 0;
    for (int i = 0; i < 3; ++i) {
        const quint32 row = (mask >> (i * PanelColumns)) & FirstRow;
        columns |= row;
        rows |= row ? 1U << i : 0U;
    }
    return mask == 0 ? QSize(1, 1) : QSize(span(columns), span(rows));
}

/// Alpha becomes black, as the LCD shows what is not lit.
QImage withoutAlpha(const QImage &image)
{
    QImage opaque(image.size(), QImage::Format_RGB888);
    opaque.fill(Qt::black);
    QPainter(&opaque).drawImage(0, 0, image);
    return opaque;
}

} // namespace

QSize keyPixelSize(const key_id_t &key)
{
    return keyPixelSize(maskOf(key));
}

QSize keyPixelSize(quint32 mask)
{
    const QSize cells = cellsOf(mask);
    return {cells.width() * PhysicalKeyWidth, cells.height() * PhysicalKeyHeight};
}

std::optional<QByteArray> encodedKeyPicture(const IFunctionManager &store, const key_id_t &key,
                                            const QSize &size)
{
    const QString path = store.getDisplayImage(key);
    if (path.isEmpty())
        return std::nullopt;
    QImageReader reader(path);
    const QImage image = readLimited(reader, MaxOwnSide, MaxOwnSide);
    if (image.isNull())
        return std::nullopt;
    const QImage scaled = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !withoutAlpha(scaled).save(&buffer, "PNG"))
        return std::nullopt;
    return bytes;
}

QImage decodePicture(const QByteArray &bytes)
{
    return decoded(bytes, MaxForeignSide, MaxForeignSide);
}

QImage decodeOwnPicture(const QByteArray &bytes, int side)
{
    return decoded(bytes, MaxOwnSide, side);
}

} // namespace vorlinmodel
