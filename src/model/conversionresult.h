/// What comes out of the conversion of a picture or a video.
#pragma once

#include <QString>
#include <QtGlobal>

namespace vorlinmodel {

enum class ConversionError {
    None,
    NotReadable, ///< the source is missing or must not be read
    NotPicture,
    NotVideo,
    TooManyPixels, ///< a side beyond MaxPictureSide
    Damaged,       ///< cut short
    BadSize,       ///< a width or height below 1 was asked for
    NoTool,        ///< the tool is missing or cannot be started
    ToolFailed,
    TimedOut,
    DiskFull,
    NotWritable, ///< the folder of the output
    TooLong,     ///< the video does not fit into the byte limit, whatever its quality
    Cancelled,
};

/// Plain value.
struct ConversionResult
{
    QString path = {}; ///< of the file that was made, absolute; empty when there is none
    ConversionError error = ConversionError::None;
    QString reason = {};   ///< of a failure, for the person, in the language of that moment
    qint64 durationMs = 0; ///< of the video that was made; after TooLong, of the beginning that would fit
    bool cut = false;      ///< the video that was made ends before its source does

    bool success() const { return error == ConversionError::None; }
};

/// A failed result whose reason names @p path: the source, the tool (NoTool) or the folder (NotWritable).
ConversionResult conversionFailure(ConversionError error, const QString &path);

/// A failed result for a video of which only @p fittingMs fit into @p byteLimit bytes.
ConversionResult videoTooLong(const QString &path, qint64 fittingMs, qint64 byteLimit);

} // namespace vorlinmodel
