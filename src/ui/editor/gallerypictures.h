/// The files of the gallery, "devConfig/gallery".
#pragma once

#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>

namespace GalleryPictures {

QString folder();           ///< absolute; need not exist
QStringList namePatterns(); ///< "*.png" and so on, for file dialogs
QStringList paths();        ///< of what looks like a picture by its name; sorted by name

/// Reads a PNG, JPEG, BMP, GIF or WebP, the first frame of one that moves. One that is larger is read so that
/// it just covers @p target. Null when it is none of these, is damaged, or has more than 16384 pixels a side.
QImage read(const QString &path, QSize target);

struct Added
{
    QStringList paths;    ///< in the gallery
    QStringList problems; ///< for the person: one line for each file that was not taken
};

/// Copies pictures into the gallery, each whole or not at all, under a name that is free there.
Added add(const QStringList &files);

/// Puts a picture into the system's bin; where there is none, removes it. @return false when it is still
/// there.
bool remove(const QString &path);

} // namespace GalleryPictures
