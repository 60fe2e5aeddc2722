/// What the picture upload page says of a video before it is converted.
#pragma once

#include "model/videoconversion.h"
#include "ui_common/latesttask.h"

#include <QImage>
#include <QSize>
#include <QString>

/// Plain value.
struct OpenedVideo
{
    QString path;
    QImage frame;          ///< the first one; null after a problem
    QSize size;            ///< pixels, upright
    qint64 durationMs = 0; ///< 0: not known
    QString problem = {};  ///< for the person
};

/// Opens videos away from the user interface; a new one takes the place of the one before.
class VideoReader : public QObject
{
    Q_OBJECT
public:
    explicit VideoReader(QObject *parent = nullptr);

    void open(const QString &path); ///< sigOpened follows
    void cancel() { mTask.cancel(); }

signals:
    void sigOpened(const OpenedVideo &video);

private:
    LatestTask mTask;
};

/// "1920 x 1080 pixels, 1:23", and what the key gets: size, frame rate, the byte limit, how much of a long
/// one fits.
QString videoFacts(const OpenedVideo &video, const vorlinmodel::VideoSettings &settings);

/// @return the first frame as the key will show it.
QImage fittedFrame(const QImage &frame, const vorlinmodel::VideoSettings &settings);

/// @return @p problem of a conversion with what the person can do about it.
QString withAdvice(vorlinmodel::ConversionError error, const QString &problem);
