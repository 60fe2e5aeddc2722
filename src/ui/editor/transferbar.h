/// A slim bar that shows how far the video is that is converted or sent, with a button to cancel it.
#pragma once

#include "videoplacement.h"

#include <QFrame>
#include <QTimer>

class QLabel;
class QProgressBar;
class QPushButton;

/// Hidden while there is nothing to show, and for the first moment of it.
class TransferBar : public QFrame
{
    Q_OBJECT
public:
    static constexpr int ShowAfter = 250; ///< ms; what is done before would only flicker

    /// @p videos outlives it.
    TransferBar(VideoPlacement &videos, QWidget *parent);
    void retranslate();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void refresh();
    void showActivity(const VideoPlacement::Activity &activity);
    void fitText();
    QString describe(const VideoPlacement::Activity &activity) const;
    void cancel();

    VideoPlacement &mVideos;
    QLabel *mpText; ///< as much of the accessible name as there is room for
    QProgressBar *mpProgress;
    QLabel *mpWaiting;
    QPushButton *mpCancel;
    vorlinmodel::key_id_t mKey; ///< that is shown
    Qt::TextElideMode mElision = Qt::ElideRight;
    QTimer mShowTimer;
};
