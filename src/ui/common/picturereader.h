/// Reads pictures of any size for the person who crops them, away from the user interface.
#pragma once

#include "ui_common/latesttask.h"

#include <QImage>
#include <QRectF>
#include <QSize>
#include <QString>
#include <atomic>

/// Plain value.
struct OpenedPicture
{
    QString path;
    QImage view;          ///< upright, made smaller if it was asked for; null for a video
    QSize size;           ///< pixels of the whole picture, upright
    bool moves = false;   ///< several pictures, of which this is the first
    bool video = false;   ///< no picture, but a video
    QString problem = {}; ///< for the person; empty when it is a picture or video
};

/// Reads the picture @p path whole, with at most @p side pixels a side, on the calling thread. Ends early
/// when @p cancelled; the result is of no use then.
OpenedPicture openPicture(const QString &path, int side, const std::atomic<bool> &cancelled);

/// One picture at a time: a new call takes the place of the one before, of which no signal comes any more.
/// User-interface thread only.
class PictureReader : public QObject
{
    Q_OBJECT
public:
    static constexpr int ViewSide = 1600; ///< enough for a screen, and quick to draw

    explicit PictureReader(QObject *parent = nullptr);

    /// Reads it with at most @p side pixels a side; sigOpened follows.
    void open(const QString &path, int side = ViewSide);
    /// Takes a part out of the picture in its full size: @p share of it, in which 0 to 1 is the whole, in @p
    /// target pixels. sigCropped follows.
    void crop(const QString &path, const QRectF &share, QSize target);
    void cancel() { mTask.cancel(); }
    bool isBusy() const { return mTask.isBusy(); }

signals:
    void sigOpened(const OpenedPicture &picture);
    /// @p picture is null after a @p problem, which is for the person.
    void sigCropped(const QImage &picture, const QString &problem);

private:
    LatestTask mTask;
};
