/// The folder "devConfig/image" with the pictures that the panel sent, one "%1_%2_%3.png" per key.
#pragma once

#include <QImage>
#include <QString>

namespace vorlinmodel {

/// Removes the folder with all its content and makes it again. A read of the panel begins with it.
/// @return whether there is an empty folder now.
bool emptyPictureFolder();

/// Removes the pictures of one page, for the further pages of a read.
void removePagePictures(int layoutId, int pageId);

/// Saves @p image as PNG under @p path, in place of a file that stands there; a crash leaves one of the two
/// whole.
/// @return false when it could not be written; the file that stands is then as it was.
bool replacePicture(const QString &path, const QImage &image);

} // namespace vorlinmodel
