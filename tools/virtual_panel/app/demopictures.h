/// Pictures and a video for the demonstration.
#pragma once

#include <QByteArray>

/// PNG of 90 x 84 for a function: its icon when the program carries one, else a drawing.
/// @param roomForTitle draws it smaller, in the upper part.
QByteArray demoIcon(int functionId, bool roomForTitle);

/// PNG of 90 x 84: a small landscape that fills the key; each number another.
QByteArray demoLandscape(int number);

/// Motion JPEG of 90 x 84: JPEG files back to back. A PNG picture where no JPEG can be written.
QByteArray demoVideo();
