/// Carries calls from any thread to the thread of a QObject.
#pragma once

#include <QObject>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>

namespace vorlindesk {

/// A mailbox that lives on the receiving thread: posted calls run there, in order, from its event loop; a
/// call may run an event loop of its own, or destroy the mailbox. Calls that are still waiting when it is
/// destroyed are dropped. Deliberately not a queued connection with captured data: all data crosses under one
/// std::mutex, so that the thread checker sees the hand-over.
class HandOver : public QObject
{
public:
    explicit HandOver(QObject *parent = nullptr);
    ~HandOver() override;

    /// Any thread. Never waits for the call.
    void post(std::function<void()> call);

protected:
    bool event(QEvent *event) override;

private:
    /// Never inlined: the thread checker names only the callers of what calls into Qt; post() has to be one.
    Q_NEVER_INLINE void wake(std::unique_ptr<QEvent> event);

    std::mutex mMutex;
    std::deque<std::function<void()>> mCalls;
};

} // namespace vorlindesk
