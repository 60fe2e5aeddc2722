/// The files of the gallery, "devConfig/gallery".
#pragma once

#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>

namespace GalleryPictures {

QString folder();                ///< absolute; need not exist
QStringList namePatterns();      ///< "*.png" and so on, for file dialogs
QStringList videoNamePatterns(); ///< "*.mp4" and so on

/// Reads a PNG, JPEG, BMP, GIF or WebP, the first frame of one that moves. One that is larger is read so that
/// it just covers @p target. Null when it is none of these, is damaged, or has more than 16384 pixels a side.
QImage read(const QString &path, QSize target);

struct Added
{
    QStringList paths;    ///< in the gallery
    QStringList problems; ///< for the person: one line for each file that was not taken
};

/// Copies pictures and videos into the gallery, each whole or not at all, under a name that is free there; of
/// folders all that is in them. Waits for the disk, and for the ffmpeg tool when there are videos.
Added add(const QStringList &files);
/// Puts a picture of at most 16384 pixels a side into the gallery, as @p name, with or without ".png".
Added addImage(const QImage &image, const QString &name);

/// Puts a file of the gallery into the system's bin; where there is none, removes it. @return false when it
/// is still there.
bool remove(const QString &path);

} // namespace GalleryPictures
