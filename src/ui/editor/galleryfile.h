/// One file of the gallery: what it is, and where it lies.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

class QFileInfo;

struct GalleryItem
{
    enum class Type {
        Picture,
        Animation, ///< a GIF that moves: for a key it is a picture as well as a video
        Video,
        Other, ///< neither; known, so that it need not be opened again
    };

    QString name; ///< of the file, without folder
    Type type = Type::Other;
    QSize size; ///< pixels, upright; empty while it is not known
    qint64 bytes = 0;
    qint64 modified = 0;   ///< ms since 1970
    qint64 durationMs = 0; ///< of a video; 0 while it is not known

    bool isPicture() const { return type == Type::Picture || type == Type::Animation; }
    bool isVideo() const { return type == Type::Video || type == Type::Animation; }
    bool isSameFile(const GalleryItem &other) const
    {
        return name == other.name && bytes == other.bytes && modified == other.modified;
    }
};

namespace GalleryFile {

/// Pixels of a side of a thumbnail, at most: a column on a wide screen.
constexpr int ThumbnailSide = 144;

QString path(const GalleryItem &item); ///< absolute
/// The PNG kept for an item: the first frame of a video, or the thumbnail of a picture that takes long to
/// decode. Another content has another path. It need not be there.
QString cachePath(const GalleryItem &item);
QString cacheFolder(); ///< absolute; also for files that are not complete yet

/// @return "png" and so on by what is in the file; empty when it is no picture that keys can show.
QString pictureFormat(const QString &path);
/// Reads no more than the head of a file, so a video's pixels and duration stay unknown. Any thread.
GalleryItem look(const QFileInfo &file);

/// Decodes a picture of at most ThumbnailSide pixels a side; null when it is damaged. What took long is kept
/// in the cache. Any thread but that of the user interface.
QImage thumbnail(const GalleryItem &item);

QImage kept(const GalleryItem &item); ///< from the cache; null when it is not there
/// Writes a picture to the cache; nothing depends on its success.
void keep(const GalleryItem &item, const QImage &image);

} // namespace GalleryFile
