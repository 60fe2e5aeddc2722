#include "model/conversiontool.h"

#include "base/log.h"
#include "base/paths.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QProcess>
#include <QUuid>
#include <algorithm>
#include <array>

namespace vorlinmodel {

using vorlindesk::Log;
using vorlindesk::LogLevel;

namespace {

namespace LogText {
constexpr char NameExists[] = "transferImage [%s] already exists repead\n"; // spelt so on purpose
constexpr char ExecOk[] = "exec %s ok\n";
constexpr char Output[] = "strOutput=[%s]\n";
constexpr char ExecFailed[] = "exec %s failed\n";
constexpr char NotFinished[] = "the tool was ended: %s\n";
constexpr char ToolMessage[] = "the tool ended with %d: %s\n";
} // namespace LogText

constexpr int StartLimit = 5000; // ms; a disk that sleeps needs some of it
constexpr int SliceMs = 50;      // how late a cancel is noticed
constexpr int PoliteMs = 500;    // ms for the tool to end by itself; both together stay below 2 s
constexpr int KillMs = 1000;
constexpr int MaxMessages = 64 * 1024; // bytes kept; a damaged video complains about every frame

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

void end(QProcess &process)
{
    process.terminate(); // without effect on a Windows program that has no window
    if (process.waitForFinished(PoliteMs) || process.state() == QProcess::NotRunning)
        return;
    process.kill();
    process.waitForFinished(KillMs);
}

void collect(QProcess &process, ToolOutcome &outcome, const ToolReader &reader)
{
    const QByteArray output = process.readAllStandardOutput();
    if (!reader)
        outcome.output += output;
    else if (!output.isEmpty())
        reader(output);
    outcome.messages = (outcome.messages + process.readAllStandardError()).right(MaxMessages);
}

ToolOutcome::End watch(QProcess &process, QDeadlineTimer deadline, const ConversionControl &control,
                       ToolOutcome &outcome, const ToolReader &reader)
{
    while (process.state() != QProcess::NotRunning) {
        const int slice = int(std::clamp<qint64>(deadline.remainingTime(), 1, SliceMs));
        process.waitForFinished(slice);
        collect(process, outcome, reader);
        if (process.state() == QProcess::NotRunning)
            break;
        const bool cancelled = control.pCancelled && *control.pCancelled;
        if (cancelled || deadline.hasExpired()) {
            end(process);
            return cancelled ? ToolOutcome::End::Cancelled : ToolOutcome::End::TimedOut;
        }
    }
    return process.exitStatus() == QProcess::NormalExit ? ToolOutcome::End::Finished
                                                        : ToolOutcome::End::Crashed;
}

ToolOutcome execute(const ToolCommand &command, const ConversionControl &control, const ToolReader &reader)
{
    ToolOutcome outcome;
    QProcess process;
    process.start(command.tool, command.arguments, QIODevice::ReadWrite);
    if (!process.waitForStarted(StartLimit)) {
        outcome.messages = process.errorString().toUtf8();
        return outcome;
    }
    outcome.end = watch(process, QDeadlineTimer(command.timeLimit), control, outcome, reader);
    if (outcome.end == ToolOutcome::End::Finished)
        outcome.exitCode = process.exitCode();
    return outcome;
}

QByteArray lastLine(const QByteArray &messages)
{
    const QByteArray trimmed = messages.trimmed();
    return trimmed.mid(std::max(trimmed.lastIndexOf('\n'), trimmed.lastIndexOf('\r')) + 1);
}

const char *endText(ToolOutcome::End end)
{
    switch (end) {
    case ToolOutcome::End::Cancelled:
        return "cancelled";
    case ToolOutcome::End::TimedOut:
        return "time limit";
    default:
        return "crashed";
    }
}

void logOutcome(const ToolCommand &command, const ToolOutcome &outcome)
{
    const QByteArray line = command.line.toUtf8();
    if (outcome.end == ToolOutcome::End::Finished) {
        Log(LogLevel::Info, LogText::ExecOk, line.constData()); // it ran, whatever its result
        Log(LogLevel::Info, LogText::Output, outcome.output.constData());
    } else {
        Log(LogLevel::Error, LogText::ExecFailed, line.constData());
    }
    if (outcome.end == ToolOutcome::End::NotStarted || (outcome.exitCode != 0 && outcome.exitCode != -1))
        Log(LogLevel::Warn, LogText::ToolMessage, outcome.exitCode, lastLine(outcome.messages).constData());
    else if (outcome.end != ToolOutcome::End::Finished)
        Log(LogLevel::Warn, LogText::NotFinished, endText(outcome.end));
}

} // namespace

ToolOutcome runProcess(const ToolCommand &command, const ConversionControl &control, const ToolReader &reader)
{
    const ToolOutcome outcome = execute(command, control, reader);
    logOutcome(command, outcome);
    return outcome;
}

bool saysDiskFull(const ToolOutcome &outcome)
{
    // The system's own words, which are not translated. The colon tells them from the name of a file.
    static constexpr std::array texts = {": No space left on device", ": File too large",
                                         ": Disk quota exceeded"};
    return std::any_of(texts.begin(), texts.end(),
                       [&](const char *text) { return outcome.messages.contains(text); });
}

QStringList toolInput(const QString &path)
{
    return words("-hide_banner -nostdin -protocol_whitelist file -i") << path;
}

QStringList firstFrameArguments(const QString &path)
{
    return toolInput(path) << words("-frames:v 1 -vf scale='min(480,iw)':-2 -f image2pipe -c:v png pipe:1");
}

ConversionError conversionError(const ToolOutcome &outcome)
{
    switch (outcome.end) {
    case ToolOutcome::End::NotStarted:
        return ConversionError::NoTool;
    case ToolOutcome::End::TimedOut:
        return ConversionError::TimedOut;
    case ToolOutcome::End::Cancelled:
        return ConversionError::Cancelled;
    default:
        return saysDiskFull(outcome) ? ConversionError::DiskFull : ConversionError::ToolFailed;
    }
}

ConverterOptions completed(ConverterOptions options)
{
    if (options.tool.isEmpty())
        options.tool = vorlindesk::Paths::ffmpegTool();
    if (options.folder.isEmpty())
        options.folder = vorlindesk::Paths::devConfigFolder() + QStringLiteral("/converted");
    options.folder = QDir(options.folder).absolutePath();
    return options;
}

OutputNames::OutputNames(std::function<QString()> newName)
    : mNewName(newName
                   ? std::move(newName)
                   // Unique beyond the run too: the tool overwrites, and files of earlier runs are in use.
                   : [] { return QUuid::createUuid().toString(QUuid::WithoutBraces); })
{}

QString OutputNames::next(const QString &ending)
{
    for (;;) {
        const QString name = mNewName() + ending;
        {
            const std::lock_guard lock(mMutex);
            if (mHandedOut.insert(name).second)
                return name;
        }
        Log(LogLevel::Info, LogText::NameExists, qUtf8Printable(name));
    }
}

} // namespace vorlinmodel
