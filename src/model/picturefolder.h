/// The folder "devConfig/image" with the pictures that the panel sent, one "%1_%2_%3.png" per key.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace vorlinmodel {

/// Removes the folder with all its content and makes it again. A read of the panel begins with it.
/// @return whether there is an empty folder now.
bool emptyPictureFolder();

/// Removes the pictures of one page, for the further pages of a read.
void removePagePictures(int layoutId, int pageId);

/// "devConfig/pictures": pictures that no saved record names, which undo and paste may bring back. Each is
/// called by the SHA-1 of its content in hex.
QString keptPictureFolder();
QString keptPicturePath(const QByteArray &picture);

/// Saves @p image as PNG under @p path, in place of a file that stands there; a crash leaves one of the two
/// whole.
/// @return false when it could not be written; the file that stands is then as it was.
bool replacePicture(const QString &path, const QImage &image);

} // namespace vorlinmodel
