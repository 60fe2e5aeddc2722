/// What a file is to a key that plays videos, by its content.
#pragma once

#include <QSize>
#include <QString>

enum class VideoKind {
    Unknown, ///< no file, or not a video of a known kind
    Foreign, ///< MP4, MOV, WebM, GIF or AVI: has to be converted
    Ready,   ///< the panel plays it as it is
};

/// Reads the first bytes of @p path alone. @p size: pixels of the key.
VideoKind videoKind(const QString &path, const QSize &size);
