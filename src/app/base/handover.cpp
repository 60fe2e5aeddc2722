#include "handover.h"

#include <QCoreApplication>
#include <QEvent>
#include <utility>

namespace vorlindesk {

HandOver::HandOver(QObject *parent)
    : QObject(parent)
{}

HandOver::~HandOver() = default;

void HandOver::post(std::function<void()> call)
{
    std::unique_ptr<QEvent> event;
    {
        const std::lock_guard lock(mMutex);
        mCalls.push_back(std::move(call));
        event =
            std::make_unique<QEvent>(QEvent::User); // under the lock: its memory is freed on the other thread
    }
    wake(std::move(event));
}

void HandOver::wake(std::unique_ptr<QEvent> event)
{
    QCoreApplication::postEvent(this, event.release());
}

/// One event runs one call, the oldest: so the order holds even when a call runs an event loop of its own.
bool HandOver::event(QEvent *event)
{
    std::function<void()> call;
    {
        const std::lock_guard lock(mMutex); // the event was made under it, too
        if (event->type() == QEvent::User && !mCalls.empty()) {
            call = std::move(mCalls.front());
            mCalls.pop_front();
        }
    }
    if (!call)
        return QObject::event(event);
    call(); // may destroy this object
    return true;
}

} // namespace vorlindesk
