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
