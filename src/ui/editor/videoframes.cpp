#include "videoframes.h"

#include "base/log.h"
#include "base/paths.h"
#include "model/conversiontool.h"

#include <QFileInfo>
#include <QProcess>
#include <QTimer>

using vorlindesk::Log;
using vorlindesk::LogLevel;

namespace {

constexpr int TimeLimit = 10000; // ms

} // namespace

VideoFrames::VideoFrames(QObject *parent)
    : QObject(parent)
{}

VideoFrames::~VideoFrames()
{
    if (!mpTool)
        return;
    mpTool->disconnect(this);
    mpTool->kill();
    mpTool->waitForFinished(1000);
}

QImage VideoFrames::firstFrame(const QString &path)
{
    const QFileInfo video(path);
    if (path.isEmpty() || path.startsWith(QLatin1Char(':')) || !video.isFile())
        return {};
    const auto known = mFrames.constFind(path);
    if (known != mFrames.constEnd() && known->modified == video.lastModified())
        return known->image;
    if (!mWaiting.contains(path)) {
        mWaiting.append(path);
        startNext();
    }
    return {};
}

void VideoFrames::startNext()
{
    if (mpTool || mWaiting.isEmpty())
        return;
    mpTool = new QProcess(this);
    connect(mpTool, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            &VideoFrames::finish);
    connect(mpTool, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) // the only error after which nothing finishes
            finish();
    });
    QTimer::singleShot(TimeLimit, mpTool, &QProcess::kill);
    mpTool->start(vorlindesk::Paths::ffmpegTool(),
                  QStringList{QStringLiteral("-v"), QStringLiteral("error")} +
                      vorlinmodel::firstFrameArguments(mWaiting.first()));
}

void VideoFrames::finish()
{
    const QString path = mWaiting.takeFirst();
    const QImage frame = QImage::fromData(mpTool->readAllStandardOutput(), "PNG");
    if (frame.isNull())
        Log(LogLevel::Warn, "no first frame of %s: %s", qUtf8Printable(path),
            mpTool->readAllStandardError().simplified().constData());
    mFrames.insert(path,
                   {QFileInfo(path).lastModified(), frame}); // also a failure: it is not tried over and over
    mpTool->deleteLater();
    mpTool = nullptr;
    startNext();
    if (!frame.isNull())
        emit sigFrameReady(path);
}
