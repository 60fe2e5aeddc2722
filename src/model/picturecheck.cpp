#include "model/picturecheck.h"

#include "wholefile.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QMimeDatabase>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <cstdlib>

namespace vorlinmodel {

namespace {

constexpr int MaxCopySide = 2048; // pixels; all keys of the panel together have 450 x 252

template <typename T>
qint64 little(const QByteArray &bytes, qint64 at)
{
    return at + qint64(sizeof(T)) <= bytes.size() ? qFromLittleEndian<T>(bytes.constData() + at) : 0;
}

template <typename T>
qint64 big(const QByteArray &bytes, qint64 at)
{
    return at + qint64(sizeof(T)) <= bytes.size() ? qFromBigEndian<T>(bytes.constData() + at) : 0;
}

int byteAt(const QByteArray &bytes, qint64 at)
{
    return at < bytes.size() ? quint8(bytes.at(int(at))) : 0;
}

/// Each chunk: u32 length, type, data, u32 checksum.
bool isWholePng(const QByteArray &bytes)
{
    constexpr int signature = 8;
    constexpr int frame = 12; // bytes of a chunk beside its data
    for (qint64 at = signature; at + frame <= bytes.size(); at += frame + big<quint32>(bytes, at)) {
        if (bytes.mid(int(at) + 4, 4) == "IEND")
            return true;
    }
    return false;
}

/// Looks for the end marker outside the segments: a preview inside one has an end marker too. More pictures,
/// or a film, may follow it.
bool isWholeJpeg(const QByteArray &bytes)
{
    constexpr int endOfImage = 0xD9;
    qint64 at = 2;
    while (at + 1 < bytes.size()) {
        at = bytes.indexOf('\xFF', int(at));
        if (at < 0)
            return false;
        const int marker = byteAt(bytes, at + 1);
        if (marker == endOfImage)
            return true;
        const bool bare = marker <= 1 || (marker >= 0xD0 && marker <= 0xD7); // stuffing and restarts
        if (marker == 0xFF)
            at += 1; // padding
        else
            at += 2 + (bare ? 0 : big<quint16>(bytes, at + 2));
    }
    return false;
}

bool isWholeBmp(const QByteArray &bytes)
{
    if (little<quint32>(bytes, 14) < 40 || little<quint32>(bytes, 30) != 0)
        return true; // an old header, or compressed: no size to calculate
    const qint64 row = (little<qint32>(bytes, 18) * little<quint16>(bytes, 28) + 31) / 32 * 4;
    return little<quint32>(bytes, 10) + row * std::abs(little<qint32>(bytes, 22)) <= bytes.size();
}

bool isWholeWebp(const QByteArray &bytes)
{
    return 8 + little<quint32>(bytes, 4) <= bytes.size();
}

/// @return the place behind a chain of sub-blocks, each with its length in front, or -1.
qint64 behindSubBlocks(const QByteArray &bytes, qint64 at)
{
    while (at < bytes.size()) {
        const int length = byteAt(bytes, at);
        at += 1 + length;
        if (length == 0)
            return at;
    }
    return -1;
}

int gifColours(int flags)
{
    return (flags & 0x80) ? 3 << ((flags & 7) + 1) : 0;
}

/// The first picture is enough; many files lack the trailer behind the last one.
bool holdsGifPicture(const QByteArray &bytes)
{
    constexpr int extension = 0x21;
    constexpr int picture = 0x2C;
    qint64 at = 13 + gifColours(byteAt(bytes, 10));
    while (at >= 0 && byteAt(bytes, at) == extension)
        at = behindSubBlocks(bytes, at + 2);
    if (at < 0 || byteAt(bytes, at) != picture)
        return false;
    return behindSubBlocks(bytes, at + 11 + gifColours(byteAt(bytes, at + 9))) >= 0;
}

bool isTooLarge(const QSize &size)
{
    return size.width() > MaxPictureSide || size.height() > MaxPictureSide;
}

bool isVideo(const QString &path)
{
    const QString type = QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchContent).name();
    return type.startsWith(QLatin1String("video/")) || type == QLatin1String("application/x-matroska") ||
           type == QLatin1String("application/vnd.rn-realmedia");
}

/// What every version of the tool reads by itself, upright.
bool suitsTool(const QImageReader &reader, const QByteArray &format, const QString &path)
{
    static constexpr std::array formats = {"png", "jpeg", "bmp", "webp"};
    return std::find(formats.begin(), formats.end(), format) != formats.end() &&
           reader.transformation() == QImageIOHandler::TransformationNone && reader.imageCount() < 2 &&
           !path.startsWith(QLatin1Char(':')) && // a resource of this program
           !path.contains(QLatin1Char('%'));     // "%d" in a name makes the tool look for a numbered series
}

bool isWholeFile(const QString &path, const QByteArray &format)
{
    if (QFileInfo(path).size() > MaxWholeFile)
        return true; // left to the tool
    QString error;
    const auto bytes = readWholeFile(path, error);
    return bytes && isWholePicture(*bytes, format);
}

} // namespace

bool isWholePicture(const QByteArray &bytes, const QByteArray &format)
{
    if (format == "png")
        return isWholePng(bytes);
    if (format == "jpeg")
        return isWholeJpeg(bytes);
    if (format == "bmp")
        return isWholeBmp(bytes);
    if (format == "webp")
        return isWholeWebp(bytes);
    return format != "gif" || holdsGifPicture(bytes);
}

PictureCheck checkPicture(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {.error = ConversionError::NotReadable};
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (size.isEmpty()) {
        if (isVideo(path))
            return {.video = true};
        return {.error = reader.canRead() ? ConversionError::Damaged : ConversionError::NotPicture};
    }
    if (isTooLarge(size))
        return {.error = ConversionError::TooManyPixels};
    const QByteArray format = reader.format();
    if (!isWholeFile(path, format))
        return {.error = ConversionError::Damaged};
    return {.needsUprightCopy = !suitsTool(reader, format, path)};
}

ConversionError writeUprightCopy(const QString &source, const QString &target)
{
    QImageReader reader(source);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.width() > MaxCopySide || size.height() > MaxCopySide)
        reader.setScaledSize(size.scaled(MaxCopySide, MaxCopySide, Qt::KeepAspectRatio).expandedTo({1, 1}));
    const QImage image = reader.read();
    if (image.isNull())
        return ConversionError::Damaged;
    return image.save(target, "PNG") ? ConversionError::None : ConversionError::DiskFull;
}

} // namespace vorlinmodel
