/// Pictures from files and resources, read within limits.
#pragma once

#include <QIcon>
#include <QImage>
#include <QString>

/// Reads a picture of @p format ("PNG", "BMP"). Only the decoder of that format is asked; to find out a
/// format, the toolkit would load every picture plugin that is installed, which costs the start of the
/// program most of its time.
/// @return a null image when it is none, or has more than 4096 pixels a side.
QImage knownPicture(const QString &path, const char *format);

/// An icon from a PNG resource ":/....png", on a dense screen from the "@2x" one beside it. As knownPicture()
/// does, it leaves the other image plugins alone, which QIcon loads even for a PNG.
QIcon knownIcon(const QString &path);

/// Reads a picture of any format, which its content decides, turned as its camera says. One that is larger
/// than the target is made smaller while it is decoded, with @p mode as in QSize::scaled().
/// @return a null image when it is none, or has more than 16384 pixels a side; a camera's pictures have
/// fewer.
QImage anyPicture(const QString &path, QSize target, Qt::AspectRatioMode mode);
