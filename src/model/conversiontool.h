/// Runs the external tool that converts pictures and videos.
#pragma once

#include "model/conversionresult.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <atomic>
#include <functional>
#include <mutex>
#include <set>

namespace vorlinmodel {

constexpr int ToolTimeLimit = 30000; ///< ms that one run of the tool may take

/// One run of the tool. It is started with the list of arguments, so that no shell reads a path; @c line says
/// the same for the log.
struct ToolCommand
{
    QString tool;
    QStringList arguments;
    QString line = {};
    int timeLimit = ToolTimeLimit; ///< ms
};

/// The arguments that have the tool read @p path. Files only: a list of addresses that calls itself a film
/// shall not be fetched.
QStringList toolInput(const QString &path);

/// The arguments that have it write the first frame of the video @p path to its standard output, as PNG with
/// at most 480 pixels a row.
QStringList firstFrameArguments(const QString &path);

/// How a conversion is watched; whatever it refers to outlives the conversion.
struct ConversionControl
{
    const std::atomic<bool> *pCancelled = nullptr;  ///< set by any thread to end the run
    std::function<void(int percent)> progress = {}; ///< 0 to 100, never falling; on the converting thread
};

struct ToolOutcome
{
    enum class End { Finished, NotStarted, Crashed, TimedOut, Cancelled };

    End end = End::NotStarted;
    int exitCode = -1;   ///< of a finished run
    QByteArray output;   ///< standard output, whole; empty when it was handed out while it came
    QByteArray messages; ///< standard error, its last part

    bool success() const { return end == End::Finished && exitCode == 0; }
};

/// Receives standard output while it comes.
using ToolReader = std::function<void(const QByteArray &bytes)>;

/// Runs @p command and waits for its end, on the calling thread. Beyond the time limit, or when it is
/// cancelled, the process is told to end and, if it does not, killed: within 2 s.
ToolOutcome runProcess(const ToolCommand &command, const ConversionControl &control = {},
                       const ToolReader &reader = {});

/// @return whether the tool complained about a full disk. It may do so and still report success, when only
/// the end of a file could not be written.
bool saysDiskFull(const ToolOutcome &outcome);

/// @return what a run that failed means for the person.
ConversionError conversionError(const ToolOutcome &outcome);

/// The settings that converters share.
struct ConverterOptions
{
    QString tool = {};                     ///< Paths::ffmpegTool() when empty
    QString folder = {};                   ///< of the output, made when missing; below devConfig when empty
    std::function<QString()> newName = {}; ///< a name without ending; random ones when empty
    int timeLimit = ToolTimeLimit;         ///< ms for each run of the tool
};

/// @return @p options with the defaults in place of what is empty, all paths absolute.
ConverterOptions completed(ConverterOptions options);

/// Hands out file names, none of them twice. Any thread.
class OutputNames
{
public:
    explicit OutputNames(std::function<QString()> newName);
    QString next(const QString &ending); ///< a fresh name and @p ending

private:
    const std::function<QString()> mNewName;
    std::mutex mMutex;
    std::set<QString> mHandedOut;
};

} // namespace vorlinmodel
