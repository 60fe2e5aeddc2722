/// First frames of the gallery's videos.
#pragma once

#include "base/paths.h"
#include "galleryfile.h"
#include "model/conversiontool.h"

struct GalleryFrameResult
{
    vorlinmodel::ConversionError error = vorlinmodel::ConversionError::None;
    QImage frame; ///< at most 480 pixels wide; it carries the video's pixels and duration as texts
};

// What such a frame carries:
QSize videoSize(const QImage &frame);        ///< upright; empty when it is not known
qint64 videoDurationMs(const QImage &frame); ///< 0 when it is not known

/// Has @p tool, which is ffmpeg, take the first frame of the video @p path. Blocks the calling thread, up to
/// 10 s.
GalleryFrameResult galleryFirstFrame(const QString &path, const std::atomic<bool> &cancelled,
                                     const QString &tool = vorlindesk::Paths::ffmpegTool());

/// @return the frame kept for @p item, else a new one, which is then kept; a file that is no video is told by
/// ConversionError::NotVideo. Fills in @p item's pixels and duration.
GalleryFrameResult galleryKeptFrame(GalleryItem &item, const std::atomic<bool> &cancelled);
