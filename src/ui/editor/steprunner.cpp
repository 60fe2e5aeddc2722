#include "steprunner.h"

#include "model/functionids.h"

#include <algorithm>

using RunState = StepModel::RunState;
using vorlinmodel::MultiAction;

namespace {

/// Between a text and what follows. The window that gets it reads the clipboard some time after Ctrl+V; a
/// second text must not be there by then.
constexpr int PauseAfterText = 300; // ms

bool isText(const MultiAction &step)
{
    return step.fid == vorlinmodel::TEXT_OUTPUT_FID;
}

bool isDoneByComputer(const MultiAction &step)
{
    return step.fid == vorlinmodel::HOME_PAGE_FID || step.fid == vorlinmodel::OPEN_FILE_FID ||
           step.fid == vorlinmodel::OPEN_WEB_FID || isText(step);
}

} // namespace

StepRunner::StepRunner(Exec exec, QObject *parent)
    : QObject(parent)
    , mExec(std::move(exec))
{
    mTimer.setSingleShot(true);
    mTimer.setTimerType(Qt::PreciseTimer);
    connect(&mTimer, &QTimer::timeout, this, &StepRunner::advance);
}

void StepRunner::run(const StepContent::Steps &steps)
{
    stop();
    mSteps = steps;
    mNext = 0;
    mWaiting = false;
    mRunning = true;
    mCountdown = std::any_of(steps.begin(), steps.end(), isText) ? CountdownSeconds : 0;
    if (mCountdown > 0)
        emit countdown(mCountdown);
    mTimer.start(mCountdown > 0 ? mSecond : 0);
}

void StepRunner::stop()
{
    if (mRunning)
        end(false);
}

void StepRunner::end(bool whole)
{
    mTimer.stop();
    mRunning = false;
    emit finished(whole);
}

void StepRunner::advance()
{
    if (mCountdown > 0) {
        emit countdown(--mCountdown);
        mTimer.start(mCountdown > 0 ? mSecond : 0);
        return;
    }
    if (mWaiting) {
        mWaiting = false;
        complete(RunState::Done, 0);
    } else if (mNext < mSteps.size()) {
        perform();
    } else {
        end(true);
    }
}

void StepRunner::perform()
{
    const MultiAction step = mSteps.at(mNext);
    emit stateChanged(mNext, RunState::Running);
    if (step.fid == vorlinmodel::TIME_DELAY_FID) {
        mWaiting = true;
        mTimer.start(step.delay);
        return;
    }
    if (!isDoneByComputer(step)) {
        complete(RunState::Skipped, 0);
        return;
    }
    const bool started = mExec(step.fid, step.url);
    if (mRunning) // typing ends elsewhere, and its result says nothing
        complete(started || isText(step) ? RunState::Done : RunState::Failed,
                 isText(step) ? PauseAfterText : 0);
}

void StepRunner::complete(RunState state, int pause)
{
    emit stateChanged(mNext, state);
    ++mNext;
    mTimer.start(pause);
}
