/// The head of an AVI file.
#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>
#include <optional>

namespace vorlinmodel {

struct AviInfo
{
    QSize size; ///< pixels
    qint64 frames = 0;
    qint64 microsecondsPerFrame = 0;
    bool motionJpeg = false; ///< the first stream holds one JPEG picture per frame

    qint64 durationMs() const { return frames * microsecondsPerFrame / 1000; }
};

/// Reads the main header and that of the first stream. Nothing when @p path is no AVI file, or is cut short.
std::optional<AviInfo> readAviInfo(const QString &path);

constexpr int AviHeadSize = 116; ///< bytes at the start of a file that readAviInfo() looks at

/// The same for the first bytes of a file of @p fileSize bytes.
std::optional<AviInfo> readAviInfo(const QByteArray &head, qint64 fileSize);

} // namespace vorlinmodel
