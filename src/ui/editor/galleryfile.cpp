#include "galleryfile.h"

#include "base/paths.h"
#include "gallerypictures.h"
#include "model/picturecheck.h"
#include "model/wholefile.h"
#include "ui_common/knownpicture.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDateTime>
#include <QFileInfo>
#include <QImageReader>

namespace {

constexpr qint64 SlowPixels = 1'000'000; // more than these take longer to decode than a frame of the screen

bool isQuick(const GalleryItem &item)
{
    return qint64{item.size.width()} * item.size.height() < SlowPixels;
}

} // namespace

QString GalleryFile::path(const GalleryItem &item)
{
    return GalleryPictures::folder() + QLatin1Char('/') + item.name;
}

QString GalleryFile::cacheFolder()
{
    return GalleryPictures::folder() + QStringLiteral("/thumbnails");
}

QString GalleryFile::cachePath(const GalleryItem &item)
{
    const QString state =
        QStringLiteral("%1/%2/").arg(item.bytes).arg(item.modified) + item.name; // a name may hold a "%1"
    const QByteArray hash = QCryptographicHash::hash(state.toUtf8(), QCryptographicHash::Sha1).toHex();
    return QStringLiteral("%1/%2.png").arg(cacheFolder(), QString::fromLatin1(hash));
}

QString GalleryFile::pictureFormat(const QString &path)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QString format = QString::fromLatin1(reader.format());
    return GalleryPictures::namePatterns().contains(QStringLiteral("*.") + format) ? format : QString();
}

GalleryItem GalleryFile::look(const QFileInfo &file)
{
    GalleryItem item;
    item.name = file.fileName();
    item.bytes = file.size();
    item.modified = file.lastModified().toMSecsSinceEpoch();
    const QString path = file.absoluteFilePath();
    const QString format = pictureFormat(path);
    if (format.isEmpty()) {
        item.type = vorlinmodel::checkPicture(path).video ? GalleryItem::Type::Video : item.type;
        return item;
    }
    QImageReader reader(path, format.toLatin1());
    item.size = reader.size();
    if (reader.transformation() & QImageIOHandler::TransformationRotate90)
        item.size.transpose();
    if (!item.size.isEmpty() && qMax(item.size.width(), item.size.height()) <= vorlinmodel::MaxPictureSide) {
        const bool moves = format == QLatin1String("gif") && reader.imageCount() > 1;
        item.type = moves ? GalleryItem::Type::Animation : GalleryItem::Type::Picture;
    }
    return item;
}

QImage GalleryFile::thumbnail(const GalleryItem &item)
{
    const QImage before = isQuick(item) ? QImage() : kept(item);
    if (!before.isNull())
        return before;
    QImage image = anyPicture(path(item), {ThumbnailSide, ThumbnailSide}, Qt::KeepAspectRatio);
    // The decoder may have its own idea of the scaled size.
    if (image.width() > ThumbnailSide || image.height() > ThumbnailSide)
        image = image.scaled(ThumbnailSide, ThumbnailSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    if (!image.isNull() && !isQuick(item))
        keep(item, image);
    return image;
}

QImage GalleryFile::kept(const GalleryItem &item)
{
    const QString path = cachePath(item);
    return QFileInfo::exists(path) ? knownPicture(path, "PNG") : QImage();
}

void GalleryFile::keep(const GalleryItem &item, const QImage &image)
{
    QBuffer buffer;
    QString error;
    if (image.save(&buffer, "PNG") && vorlindesk::Paths::createPath(cacheFolder()))
        vorlinmodel::writeWholeFile(cachePath(item), buffer.data(), error);
}
