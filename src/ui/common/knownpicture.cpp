#include "knownpicture.h"

#include <QGuiApplication>
#include <QImageReader>
#include <QPixmap>

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

QIcon knownIcon(const QString &path)
{
    constexpr int denseRatio = 2;
    const bool isDense = qGuiApp->devicePixelRatio() > 1; // of the densest screen
    QImage picture;
    if (isDense)
        picture = knownPicture(QString(path).replace(QLatin1String(".png"), QLatin1String("@2x.png")), "PNG");
    if (picture.isNull())
        picture = knownPicture(path, "PNG");
    else
        picture.setDevicePixelRatio(denseRatio);
    return QIcon(QPixmap::fromImage(picture));
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
    const QSize scaled = size.scaled(target, mode).expandedTo({1, 1}); // a line stays one
    if (scaled.width() < size.width())
        reader.setScaledSize(scaled);
    return reader.read();
}
