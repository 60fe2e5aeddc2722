/// Pictures whose format is known.
#pragma once

#include <QImage>
#include <QString>

/// Reads a picture of @p format ("PNG", "BMP"). Only the decoder of that format is asked; to find out a
/// format, the toolkit would load every picture plugin that is installed, which costs the start of the
/// program most of its time.
/// @return a null image when it is none, or has more than 4096 pixels a side.
QImage knownPicture(const QString &path, const char *format);
