/// First frames of videos, for the keys that play them.
#pragma once

#include <QDateTime>
#include <QHash>
#include <QImage>
#include <QObject>
#include <QStringList>

class QProcess;

/// Frames are taken by the ffmpeg tool, one video after the other, in the background. User-interface thread
/// only.
class VideoFrames : public QObject
{
    Q_OBJECT
public:
    explicit VideoFrames(QObject *parent = nullptr);
    ~VideoFrames() override; ///< ends a tool that still runs

    /// @return the first frame, at most 480 pixels a side; null while it is not known yet, which is being
    /// changed, and for what is no video, or when the tool is missing.
    QImage firstFrame(const QString &path);

signals:
    void sigFrameReady(const QString &path);

private:
    struct Frame
    {
        QDateTime modified; ///< of the video
        QImage image;
    };

    void startNext();
    void finish();

    QHash<QString, Frame> mFrames;
    QStringList mWaiting;
    QProcess *mpTool = nullptr; ///< for the first of mWaiting
};
