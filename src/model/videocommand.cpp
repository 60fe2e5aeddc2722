#include "videocommand.h"

#include <QRegularExpression>
#include <algorithm>

namespace vorlinmodel {

namespace {

/// "00:01:02.345678" at the first group of @p match and the three behind it, as ms.
qint64 timeMs(const QRegularExpressionMatch &match)
{
    const qint64 seconds = (match.captured(1).toLongLong() * 60 + match.captured(2).toLongLong()) * 60 +
                           match.captured(3).toLongLong();
    return seconds * 1000 + match.captured(4).leftJustified(3, QLatin1Char('0'), true).toLongLong();
}

QString scaling(const VideoSettings &settings)
{
    const QString size = QStringLiteral("%1:%2").arg(settings.size.width()).arg(settings.size.height());
    switch (settings.fit) {
    case VideoFit::Cover:
        return QStringLiteral("scale=%1:force_original_aspect_ratio=increase,crop=%1").arg(size);
    case VideoFit::Stretch:
        return QStringLiteral("scale=%1").arg(size);
    case VideoFit::Contain:
        break;
    }
    return QStringLiteral("scale=%1:force_original_aspect_ratio=decrease,pad=%1:-1:-1").arg(size);
}

} // namespace

std::optional<SourceVideo> sourceVideo(const QByteArray &messages)
{
    static const QRegularExpression stream(
        QStringLiteral("Stream #[^\n]*: Video: (?!ansi)(?![^\n]*\\(attached pic\\))[^\n]*"));
    static const QRegularExpression duration(QStringLiteral("Duration: (\\d+):(\\d+):(\\d+)\\.(\\d+)"));
    static const QRegularExpression rate(QStringLiteral(", ([0-9.]+) fps"));
    const QString text = QString::fromUtf8(messages);
    const QRegularExpressionMatch found = stream.match(text);
    if (!found.hasMatch())
        return std::nullopt;
    SourceVideo video;
    const QRegularExpressionMatch length = duration.match(text);
    if (length.hasMatch() && timeMs(length) > 0)
        video.durationMs = timeMs(length);
    const double given = rate.match(found.captured()).captured(1).toDouble();
    if (given > 0)
        video.frameRate = std::min(given, video.frameRate);
    return video;
}

std::optional<qint64> progressMs(const QByteArray &text)
{
    static const QRegularExpression line(QStringLiteral("out_time=(\\d+):(\\d+):(\\d+)\\.(\\d{6})"));
    std::optional<qint64> newest;
    auto matches = line.globalMatch(QString::fromLatin1(text));
    while (matches.hasNext())
        newest = timeMs(matches.next());
    return newest;
}

/// Pixels that are not square are made so first. A slower source keeps its frame rate, when it says one.
QString videoFilters(const VideoSettings &settings)
{
    return QStringLiteral(
               "fps=if(gt(source_fps\\,0)\\,min(source_fps\\,%1)\\,%1),scale=iw*sar:ih,setsar=1,%2,setsar=1")
        .arg(QString::number(MaxVideoFrameRate), scaling(settings));
}

// Both measured: with black frames at the lowest quality, and with detailed ones.
qint64 leastFrameBytes(const QSize &size)
{
    return 256 + qint64(size.width()) * size.height() / 200;
}

qint64 largeFrameBytes(const QSize &size)
{
    return 300 + qint64(size.width()) * size.height() * 45 / 100;
}

} // namespace vorlinmodel
