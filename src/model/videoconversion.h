/// Makes videos for keys: MJPEG in AVI, without sound, within what the panel takes.
#pragma once

#include "model/conversiontool.h"

#include <QSize>

namespace vorlinmodel {

constexpr int MaxVideoFrameRate = 15; ///< frames a second that a key plays

/// Bytes of the largest video that fits into one message to the panel.
qint64 maxVideoBytes();

/// How a video fills a key of other proportions.
enum class VideoFit {
    Contain, ///< whole, with black edges
    Cover,   ///< no edges; what juts out is cut off
    Stretch, ///< distorted
};

struct VideoSettings
{
    QSize size{90, 84};                 ///< pixels of the key; more for a merged one
    qint64 byteLimit = maxVideoBytes(); ///< of the whole file
    bool mayCut = false; ///< the end may be left out when the lowest quality does not fit either
    VideoFit fit = VideoFit::Contain;
};

/// @return how many ms fit into the byte limit at the lowest quality. Pictures with many details may take
/// more than that allows.
qint64 longestVideoMs(const VideoSettings &settings, double frameRate = MaxVideoFrameRate);

/// Any thread; several may convert at the same time.
class VideoConverter
{
public:
    explicit VideoConverter(ConverterOptions options = {});

    /// Converts @p source with the best quality that fits. Blocks the calling thread, for each of a handful
    /// of runs of the tool up to the time limit; all but the second take little of it.
    /// @return the path of a new ".avi" file. After a failure there is none, and nothing is left behind.
    ConversionResult transferVideo(const QString &source, const VideoSettings &settings,
                                   const ConversionControl &control = {});

private:
    const ConverterOptions mOptions;
    OutputNames mNames;
};

} // namespace vorlinmodel
