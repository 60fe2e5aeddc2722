#include "model/imageconversion.h"

#include "base/log.h"
#include "base/paths.h"
#include "model/picturecheck.h"
#include "wholefile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtEndian>

namespace vorlinmodel {

using vorlindesk::Log;
using vorlindesk::LogLevel;

namespace {

namespace LogText {
constexpr char Tool[] = "ffmpeg:%s\n";
constexpr char Command[] = "transferImage -----------------strCmd=[%s]\n";
constexpr char BadOutput[] = "transferImage [%s] is not the picture that was asked for\n";
} // namespace LogText

QString quoted(const QString &path)
{
    return QLatin1Char('"') + path + QLatin1Char('"');
}

ToolCommand pictureCommand(const QString &tool, const QString &source, int width, int height,
                           const QString &output)
{
    const QString size = QStringLiteral("%1x%2").arg(width).arg(height);
    return {.tool = tool,
            .arguments = {QStringLiteral("-i"), source, QStringLiteral("-s"), size,
                          QStringLiteral("-pix_fmt"), QStringLiteral("rgb24"), output, QStringLiteral("-y")},
            .line = quoted(tool) + QStringLiteral(" -i ") + quoted(source) + QStringLiteral(" -s ") + size +
                    QStringLiteral(" -pix_fmt rgb24 ") + quoted(output) + QStringLiteral(" -y")};
}

/// A whole PNG of 8-bit RGB pixels without alpha.
bool isWantedPicture(const QString &path, int width, int height)
{
    constexpr int widthOffset = 16; // behind the signature, and the length and type of the first chunk
    constexpr int heightOffset = 20;
    constexpr int formatOffset = 24; // bits per channel, then the colour type: 2 is RGB
    QString error;
    const QByteArray bytes = readWholeFile(path, error).value_or(QByteArray());
    return bytes.size() > formatOffset + 1 && bytes.startsWith("\x89PNG") &&
           qFromBigEndian<qint32>(bytes.constData() + widthOffset) == width &&
           qFromBigEndian<qint32>(bytes.constData() + heightOffset) == height &&
           bytes.mid(formatOffset, 2) == "\x08\x02" && isWholePicture(bytes, "png");
}

ConversionError moveOver(const QString &from, const QString &to)
{
    QFile::remove(to);
    return QFile::rename(from, to) ? ConversionError::None : ConversionError::DiskFull;
}

/// A "%d" in a path would be taken for the number of a picture.
QString workFolderBeside(const QString &folder)
{
    const QString parent = folder.contains(QLatin1Char('%')) ? QDir::tempPath() : folder;
    return parent + QStringLiteral("/convert-XXXXXX");
}

} // namespace

struct ImageConverter::Job
{
    QString source;
    QString output;
    int width = 0;
    int height = 0;
    bool video = false;
};

ImageConverter::ImageConverter(ConverterOptions options)
    : mOptions(completed(std::move(options)))
    , mNames(mOptions.newName)
{}

ConversionResult ImageConverter::transferImage(const QString &source, int width, int height,
                                               const ConversionControl &control)
{
    if (width < 1 || height < 1)
        return conversionFailure(ConversionError::BadSize, source);
    const PictureCheck check = checkPicture(source);
    if (check.error != ConversionError::None)
        return conversionFailure(check.error, source);
    if (!vorlindesk::Paths::createPath(mOptions.folder))
        return conversionFailure(ConversionError::NotWritable, mOptions.folder);
    const QString path = mOptions.folder + QLatin1Char('/') + mNames.next(QStringLiteral(".png"));
    const ConversionError error =
        convert({QFileInfo(source).absoluteFilePath(), path, width, height, check.video},
                check.needsUprightCopy, control);
    switch (error) {
    case ConversionError::None:
        return {.path = path};
    case ConversionError::NoTool:
        return conversionFailure(error, mOptions.tool);
    case ConversionError::NotWritable:
        return conversionFailure(error, mOptions.folder);
    default:
        return conversionFailure(error, source);
    }
}

/// Works around the paths and pictures that the tool alone would get wrong.
ConversionError ImageConverter::convert(Job job, bool needsUprightCopy,
                                        const ConversionControl &control) const
{
    const QTemporaryDir work(workFolderBeside(mOptions.folder));
    if (!work.isValid())
        return ConversionError::NotWritable;
    if (needsUprightCopy) {
        const QString copy = work.filePath(QStringLiteral("upright.png"));
        const ConversionError error = writeUprightCopy(job.source, copy);
        if (error != ConversionError::None)
            return error;
        job.source = copy;
    }
    const QString path = job.output;
    if (path.contains(QLatin1Char('%')))
        job.output = work.filePath(QStringLiteral("output.png"));
    const ConversionError error = run(job, control);
    return error == ConversionError::None && job.output != path ? moveOver(job.output, path) : error;
}

/// @return the tool's success; no output is left without it.
ConversionError ImageConverter::run(const Job &job, const ConversionControl &control) const
{
    ToolCommand command = pictureCommand(mOptions.tool, job.source, job.width, job.height, job.output);
    command.timeLimit = mOptions.timeLimit;
    Log(LogLevel::Info, LogText::Tool, qUtf8Printable(quoted(command.tool)));
    Log(LogLevel::Info, LogText::Command, qUtf8Printable(command.line));
    const ToolOutcome outcome = runProcess(command, control);
    // The second picture of a video has no place in the file, which makes the tool fail after it wrote the
    // first.
    const bool done = outcome.success() || (job.video && outcome.end == ToolOutcome::End::Finished);
    if (done && isWantedPicture(job.output, job.width, job.height))
        return ConversionError::None;
    if (outcome.success())
        Log(LogLevel::Error, LogText::BadOutput, qUtf8Printable(job.output));
    QFile::remove(job.output);
    return conversionError(outcome);
}

} // namespace vorlinmodel
