#include "galleryvideo.h"

#include <QFileInfo>
#include <QRegularExpression>

using namespace vorlinmodel;

namespace {

constexpr int TimeLimit = 10000; // ms

// Kept with the frame, so that a video need not be opened again for them.
constexpr char WidthText[] = "video-width";
constexpr char HeightText[] = "video-height";
constexpr char DurationText[] = "video-duration-ms";

ToolCommand frameCommand(const QString &tool, const QString &path)
{
    return {.tool = tool,
            .arguments = firstFrameArguments(path),
            .line = QStringLiteral("first frame of ") + path,
            .timeLimit = TimeLimit};
}

qint64 durationOf(const QString &messages)
{
    static const QRegularExpression form(QStringLiteral("Duration: (\\d+):(\\d+):(\\d+)\\.(\\d\\d)"));
    const auto match = form.match(messages);
    const qint64 seconds = (match.captured(1).toLongLong() * 60 + match.captured(2).toLongLong()) * 60 +
                           match.captured(3).toLongLong();
    return seconds * 1000 + match.captured(4).toLongLong() * 10;
}

/// The tool turns the frame of a camera that was held upright, but names the pixels as they are stored.
QSize sizeOf(const QString &messages, const QSize &frame)
{
    static const QRegularExpression form(QStringLiteral("Video: [^\n]*?, (\\d{1,5})x(\\d{1,5})"));
    const auto match = form.match(messages);
    const QSize stored(match.captured(1).toInt(), match.captured(2).toInt());
    if (stored.isEmpty())
        return frame;
    const bool turned = (stored.width() > stored.height()) != (frame.width() > frame.height());
    return turned ? stored.transposed() : stored;
}

void describe(QImage &frame, const QString &messages)
{
    const QSize size = sizeOf(messages, frame.size());
    frame.setText(QLatin1String(WidthText), QString::number(size.width()));
    frame.setText(QLatin1String(HeightText), QString::number(size.height()));
    frame.setText(QLatin1String(DurationText), QString::number(durationOf(messages)));
}

} // namespace

QSize videoSize(const QImage &frame)
{
    return {frame.text(QLatin1String(WidthText)).toInt(), frame.text(QLatin1String(HeightText)).toInt()};
}

qint64 videoDurationMs(const QImage &frame)
{
    return frame.text(QLatin1String(DurationText)).toLongLong();
}

GalleryFrameResult galleryFirstFrame(const QString &path, const std::atomic<bool> &cancelled,
                                     const QString &tool)
{
    QByteArray picture;
    const ToolOutcome outcome =
        runProcess(frameCommand(tool, QFileInfo(path).absoluteFilePath()), {.pCancelled = &cancelled},
                   [&picture](const QByteArray &bytes) { picture += bytes; });
    GalleryFrameResult result{.error = {}, .frame = QImage::fromData(picture, "PNG")};
    if (!result.frame.isNull())
        describe(result.frame, QString::fromUtf8(outcome.messages));
    else if (outcome.end == ToolOutcome::End::Finished)
        result.error = ConversionError::NotVideo;
    else
        result.error = conversionError(outcome);
    return result;
}

GalleryFrameResult galleryKeptFrame(GalleryItem &item, const std::atomic<bool> &cancelled)
{
    GalleryFrameResult result{.error = {}, .frame = GalleryFile::kept(item)};
    if (result.frame.isNull()) {
        result = galleryFirstFrame(GalleryFile::path(item), cancelled);
        if (result.frame.isNull())
            return result;
        GalleryFile::keep(item, result.frame);
    }
    item.size = videoSize(result.frame);
    item.durationMs = videoDurationMs(result.frame);
    return result;
}
