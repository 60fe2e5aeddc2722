#include "knownpicture.h"

#include <QImageReader>

QImage knownPicture(const QString &path, const char *format)
{
    constexpr int largestSide = 4096;
    QImageReader reader(path, format);
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    if (!size.isValid() || size.width() > largestSide || size.height() > largestSide)
        return {};
    return reader.read();
}

QImage anyPicture(const QString &path, QSize target, Qt::AspectRatioMode mode)
{
    constexpr int largestSide = 16384;
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.isEmpty() || size.width() > largestSide || size.height() > largestSide)
        return {};
    const QSize scaled = size.scaled(target, mode);
    if (scaled.width() < size.width())
        reader.setScaledSize(scaled);
    return reader.read();
}
