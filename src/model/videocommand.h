/// What is said to the tool about videos, and what it says about them.
#pragma once

#include "model/videoconversion.h"

#include <optional>

namespace vorlinmodel {

struct SourceVideo
{
    std::optional<qint64> durationMs;     ///< some files do not say it
    double frameRate = MaxVideoFrameRate; ///< frames a second of the converted video
};

/// Reads what the tool says about its input. Nothing when there is no moving picture in it: the cover of a
/// piece of music is none, and neither is a text that would be drawn.
std::optional<SourceVideo> sourceVideo(const QByteArray &messages);

/// Time of the newest line "out_time=00:00:01.234567" in a part of the tool's progress; a line that is cut in
/// two is left out.
std::optional<qint64> progressMs(const QByteArray &text);

/// The filters that make frames for a key.
QString videoFilters(const VideoSettings &settings);

/// No frame of a converted video is smaller than this, in bytes, and few of the best quality are larger than
/// that.
qint64 leastFrameBytes(const QSize &size);
qint64 largeFrameBytes(const QSize &size);

} // namespace vorlinmodel
