/// A video made without a tool.
#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QtEndian>

namespace SmallAvi {

inline QByteArray u32(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

inline QByteArray chunk(const char *name, const QByteArray &data)
{
    return name + u32(quint32(data.size())) + data + QByteArray(data.size() % 2, '\0');
}

inline QByteArray jpeg(QSize size, const QColor &colour)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG");
    return bytes;
}

/// @return @p frames pictures of one colour, 10 a second, as motion JPEG.
inline QByteArray file(const QColor &colour, int frames = 2, QSize size = {90, 84})
{
    const QByteArray dimensions = u32(quint32(size.width())) + u32(quint32(size.height()));
    const QByteArray none(16, '\0');
    const QByteArray avih =
        u32(100'000) + none.left(12) + u32(quint32(frames)) + u32(0) + u32(1) + u32(0) + dimensions + none;
    const QByteArray strh = "vidsMJPG" + none.left(12) + u32(1) + u32(10) + u32(0) + u32(quint32(frames)) +
                            u32(0) + u32(quint32(-1)) + u32(0) + none.left(8);
    const QByteArray strf = u32(40) + dimensions + u32(0x00180001) + "MJPG" + none + u32(0);
    QByteArray pictures;
    for (int i = 0; i < frames; ++i)
        pictures += chunk("00dc", jpeg(size, colour));
    const QByteArray head =
        chunk("avih", avih) + chunk("LIST", "strl" + chunk("strh", strh) + chunk("strf", strf));
    return chunk("RIFF", "AVI " + chunk("LIST", "hdrl" + head) + chunk("LIST", "movi" + pictures));
}

} // namespace SmallAvi
