#include "model/videoconversion.h"

#include "base/log.h"
#include "base/paths.h"
#include "model/avifile.h"
#include "videocommand.h"
#include "wire/applicationmessage.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <cmath>
#include <optional>

namespace vorlinmodel {

using vorlindesk::Log;
using vorlindesk::LogLevel;

namespace {

namespace LogText {
constexpr char Command[] = "transferVideo -----------------strCmd=[%s]\n";
constexpr char Candidate[] = "transferVideo quality:%d size:%lld limit:%lld\n";
constexpr char BadOutput[] = "transferVideo [%s] is not the video that was asked for\n";
} // namespace LogText

constexpr int BestQuality = 2; // quantiser scale of the tool's MJPEG encoder; 1 is not better, only larger
constexpr int WorstQuality = 31;
constexpr qint64 LargestFirstPass = 64 * 1024 * 1024; // bytes on the disk, about
constexpr int FirstPassPercent = 90;                  // share of the progress; later passes read a small file
constexpr double SizeExponent = 0.6; // measured: the size falls with the quality value to this power
constexpr double CutMargin = 0.93;   // the index behind the frames is at most 6 % of the file

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

QString seconds(qint64 ms)
{
    return QString::number(double(ms) / 1000.0, 'f', 3);
}

/// One conversion, in a folder of its own.
class VideoRun
{
public:
    VideoRun(const ConverterOptions &options, QString source, const VideoSettings &settings,
             const ConversionControl &control, const QTemporaryDir &work)
        : mOptions(options)
        , mSource(std::move(source))
        , mSettings(settings)
        , mControl(control)
        , mWork(work)
    {}

    /// @return a result whose path lies in the work folder.
    ConversionResult convert()
    {
        if (!inspect() || !checkLength() || !firstPass() || !makeFit())
            return mFailure;
        const auto info = readAviInfo(mCandidate);
        const qint64 fastest =
            1000 * 1000 / MaxVideoFrameRate; // µs per frame, rounded down as the file has it
        if (!info || !info->motionJpeg || info->size != mSettings.size || info->frames < 1 ||
            info->microsecondsPerFrame < fastest || QFileInfo(mCandidate).size() > mSettings.byteLimit) {
            Log(LogLevel::Error, LogText::BadOutput, qUtf8Printable(mCandidate));
            return conversionFailure(ConversionError::ToolFailed, mSource);
        }
        tellProgress(100);
        return {.path = mCandidate, .durationMs = info->durationMs(), .cut = mCut};
    }

private:
    bool fail(const ConversionResult &failure)
    {
        mFailure = failure;
        return false;
    }

    bool tooLong(qint64 fittingMs) { return fail(videoTooLong(mSource, fittingMs, mSettings.byteLimit)); }

    void tellProgress(int percent)
    {
        mPercent = std::max(mPercent, percent);
        if (mControl.progress)
            mControl.progress(mPercent);
    }

    ToolOutcome runTool(const QStringList &arguments, const ToolReader &reader = {})
    {
        ToolCommand command{.tool = mOptions.tool, .arguments = arguments, .timeLimit = mOptions.timeLimit};
        command.line = QLatin1Char('"') +
                       (QStringList(mOptions.tool) + arguments).join(QStringLiteral("\" \"")) +
                       QLatin1Char('"');
        Log(LogLevel::Info, LogText::Command, qUtf8Printable(command.line));
        return runProcess(command, mControl, reader);
    }

    bool inspect()
    {
        const ToolOutcome outcome = runTool(toolInput(mSource)); // fails, since it is told no output
        if (outcome.end == ToolOutcome::End::NotStarted)
            return fail(conversionFailure(ConversionError::NoTool, mOptions.tool));
        if (outcome.end == ToolOutcome::End::TimedOut || outcome.end == ToolOutcome::End::Cancelled)
            return fail(conversionFailure(conversionError(outcome), mSource));
        const auto video = sourceVideo(outcome.messages);
        if (!video)
            return fail(conversionFailure(ConversionError::NotVideo, mSource));
        mLength = video->durationMs;
        mFrameRate = video->frameRate;
        return true;
    }

    /// A film of hours is refused before it is converted.
    bool checkLength()
    {
        const qint64 fittingMs = longestVideoMs(mSettings, mFrameRate);
        if (mLength && *mLength > fittingMs && !mSettings.mayCut)
            return tooLong(fittingMs);
        if (mSettings.mayCut && (!mLength || *mLength > fittingMs)) {
            mCut = mLength.has_value();
            mLength = fittingMs;
        }
        return true;
    }

    bool firstPass()
    {
        const qint64 frames = qint64(double(mLength.value_or(0)) * mFrameRate / 1000);
        const qint64 expected = frames * largeFrameBytes(mSettings.size);
        mQuality =
            int(std::clamp<qint64>(BestQuality * expected / LargestFirstPass, BestQuality, WorstQuality));
        QStringList arguments = toolInput(mSource) << words("-map 0:V:0 -vf") << videoFilters(mSettings);
        if (mSettings.mayCut && mLength)
            arguments << QStringLiteral("-t") << seconds(*mLength);
        return encode(arguments << encoder(mQuality), 0, FirstPassPercent);
    }

    /// Lowers the quality until it fits, then the length.
    bool makeFit()
    {
        const QString master = mCandidate;
        int step = 1;
        while (candidateSize() > mSettings.byteLimit && mQuality < WorstQuality) {
            const double excess = double(candidateSize()) / double(mSettings.byteLimit);
            const double wanted = std::ceil(mQuality * std::pow(excess, 1 / SizeExponent));
            mQuality = int(std::clamp<double>(wanted, std::min(mQuality + step, WorstQuality), WorstQuality));
            step *= 2; // ends soon for pictures that do not shrink with the quality
            if (!encode(toolInput(master) << encoder(mQuality), FirstPassPercent, 99))
                return false;
        }
        if (candidateSize() <= mSettings.byteLimit)
            return true;
        if (mSettings.mayCut)
            return cut();
        const auto info = readAviInfo(mCandidate);
        const double share = CutMargin * double(mSettings.byteLimit) / double(candidateSize());
        return tooLong(info ? qint64(double(info->durationMs()) * share) : 0);
    }

    bool cut()
    {
        const qint64 bytes = qint64(CutMargin * double(mSettings.byteLimit));
        mCut = true;
        return encode(toolInput(mCandidate) << words("-c copy -fs") << QString::number(bytes) << container(),
                      FirstPassPercent, 99);
    }

    static QStringList container() { return words("-f avi -loglevel error -nostats -progress pipe:1 -y"); }

    static QStringList encoder(int quality)
    {
        return words("-an -sn -dn -map_metadata -1 -c:v mjpeg -pix_fmt yuvj420p -q:v")
               << QString::number(quality) << container();
    }

    /// Makes the next candidate; the one before it stays, as the source of this one.
    bool encode(QStringList arguments, int fromPercent, int toPercent)
    {
        const QString output = mWork.filePath(QStringLiteral("%1.avi").arg(++mPass));
        const ToolOutcome outcome = runTool(
            arguments << output, [&](const QByteArray &text) { readProgress(text, fromPercent, toPercent); });
        if (!outcome.success() || saysDiskFull(outcome)) {
            const ConversionError error = conversionError(outcome);
            return fail(conversionFailure(error, error == ConversionError::NoTool ? mOptions.tool : mSource));
        }
        mCandidate = output;
        Log(LogLevel::Info, LogText::Candidate, mQuality, candidateSize(), mSettings.byteLimit);
        return true;
    }

    void readProgress(const QByteArray &text, int fromPercent, int toPercent)
    {
        const auto time = progressMs(text);
        if (!time || !mLength)
            return;
        const double done = std::min(1.0, double(*time) / double(*mLength));
        tellProgress(fromPercent + int((toPercent - fromPercent) * done));
    }

    qint64 candidateSize() const { return QFileInfo(mCandidate).size(); }

    const ConverterOptions &mOptions;
    const QString mSource;
    const VideoSettings &mSettings;
    const ConversionControl &mControl;
    const QTemporaryDir &mWork;
    std::optional<qint64> mLength; // ms of the source that are converted; not always known
    double mFrameRate = MaxVideoFrameRate;
    QString mCandidate; // the last file made
    int mPass = 0;
    int mQuality = BestQuality;
    int mPercent = 0;
    bool mCut = false;
    ConversionResult mFailure;
};

} // namespace

qint64 maxVideoBytes()
{
    constexpr int countSize = 4; // of the file's byte count, which stands before its bytes
    return ApplicationMessage::MaxSize - ApplicationMessage::KeyValueOffset - countSize;
}

qint64 longestVideoMs(const VideoSettings &settings, double frameRate)
{
    const qint64 frames = settings.byteLimit / leastFrameBytes(settings.size);
    return qint64(double(frames) * 1000 / frameRate);
}

VideoConverter::VideoConverter(ConverterOptions options)
    : mOptions(completed(std::move(options)))
    , mNames(mOptions.newName)
{}

ConversionResult VideoConverter::transferVideo(const QString &source, const VideoSettings &settings,
                                               const ConversionControl &control)
{
    if (settings.size.isEmpty())
        return conversionFailure(ConversionError::BadSize, source);
    if (!QFileInfo(source).isFile() || !QFile(source).open(QIODevice::ReadOnly))
        return conversionFailure(ConversionError::NotReadable, source);
    if (!vorlindesk::Paths::createPath(mOptions.folder))
        return conversionFailure(ConversionError::NotWritable, mOptions.folder);
    const QTemporaryDir work(mOptions.folder + QStringLiteral("/convert-XXXXXX"));
    if (!work.isValid())
        return conversionFailure(ConversionError::NotWritable, mOptions.folder);

    VideoRun run(mOptions, QFileInfo(source).absoluteFilePath(), settings, control, work);
    ConversionResult result = run.convert();
    if (!result.success())
        return result;
    const QString path = mOptions.folder + QLatin1Char('/') + mNames.next(QStringLiteral(".avi"));
    QFile::remove(path);
    if (!QFile::rename(result.path, path))
        return conversionFailure(ConversionError::NotWritable, mOptions.folder);
    result.path = path;
    return result;
}

} // namespace vorlinmodel
