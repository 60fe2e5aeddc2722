/// Runs steps on the computer, as far as the computer can, to try them out.
#pragma once

#include "stepmodel.h"

#include <QObject>
#include <QTimer>
#include <functional>

/// Waits with timers only. What media keys, brightness and combinations do is up to the panel: they are
/// skipped.
class StepRunner : public QObject
{
    Q_OBJECT
public:
    using Exec = std::function<bool(int fid, const QString &content)>; ///< @return whether it was started
    static constexpr int CountdownSeconds = 3;

    explicit StepRunner(Exec exec, QObject *parent = nullptr);

    /// Starts at once, or after a countdown when a text is to be typed: the person has to bring the window in
    /// front that shall get it.
    void run(const StepContent::Steps &steps);
    void stop();
    bool isRunning() const { return mRunning; }

    void setSecond(int ms) { mSecond = ms; } ///< how long a second of the countdown takes

signals:
    void countdown(int seconds); ///< seconds left; 0: it is over
    void stateChanged(int row, StepModel::RunState state);
    void finished(bool whole); ///< false: it was stopped

private:
    void advance();
    void perform();
    void complete(StepModel::RunState state, int pause);
    void end(bool whole);

    Exec mExec;
    StepContent::Steps mSteps;
    QTimer mTimer;
    int mSecond = 1000;
    int mCountdown = 0;
    int mNext = 0;
    bool mWaiting = false; ///< in the delay step mNext
    bool mRunning = false;
};
