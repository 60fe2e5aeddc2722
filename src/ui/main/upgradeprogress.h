/// How far a transfer has come: a bar, blocks, elapsed and remaining time.
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

class QLabel;
class QProgressBar;

/// @return @p milliseconds as "m:ss", rounded down.
QString clockText(qint64 milliseconds);

/// @return ms that the blocks left will take at the pace of those @p sent in @p elapsedMs; nothing is known
/// (-1) before the first.
qint64 remainingMilliseconds(qint64 elapsedMs, int sent, int all);

class UpgradeProgress : public QWidget
{
    Q_OBJECT
public:
    explicit UpgradeProgress(QWidget *parent);

    void begin();                          ///< empties the bar and starts the clock
    void setBlocks(int sent, int all);     ///< the pace is reckoned from the first call after begin()
    void end();                            ///< stops the clock, and leaves all as it is
    qint64 silence() const;                ///< ms since something was heard; 0 when the clock stands
    void noteHeard() { mHeard.restart(); } ///< something came from the protocol thread
    void retranslate();

signals:
    void sigTick(); ///< about four times a second while the clock runs

private:
    void showTimes();

    QProgressBar *mpBar;
    QLabel *mpBlocks;
    QLabel *mpElapsed;
    QLabel *mpRemaining;
    QTimer mTick;
    QElapsedTimer mRunning;
    QElapsedTimer mTransfer; // from the first block on; the panel erases before
    QElapsedTimer mHeard;
    qint64 mElapsed = 0; // ms
    int mFirst = 0;      // blocks that were sent when the pace was first looked at
    int mSent = 0;
    int mAll = 0;
};
