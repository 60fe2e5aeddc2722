#include "upgradefeed.h"

#include "base/handover.h"
#include "protocol/iprotocolthread.h"

#include <mutex>

using vorlinmodel::IProtocolThread;
using vorlinmodel::Request;
using vorlinmodel::RequestKind;

namespace {

bool isUpgrade(const Request &request)
{
    return request.functionCode == static_cast<quint32>(RequestKind::MD_FUNCTION_CODE_UPGRADE);
}

} // namespace

struct UpgradeFeed::Inbox
{
    /// On the protocol thread.
    void add(UpgradeEvent event)
    {
        const std::lock_guard lock(mutex);
        if (!pHandOver)
            return;
        const bool first = events.empty();
        events.push_back(std::move(event));
        if (first)
            pHandOver->post(arrival);
    }

    std::vector<UpgradeEvent> take()
    {
        const std::lock_guard lock(mutex);
        return std::exchange(events, {});
    }

    void close()
    {
        const std::lock_guard lock(mutex);
        pHandOver.reset();
        events.clear();
    }

    std::mutex mutex; // guards the rest; post() is called under it, since the feed may end at any time
    std::unique_ptr<vorlindesk::HandOver> pHandOver = std::make_unique<vorlindesk::HandOver>();
    std::function<void()> arrival;
    std::vector<UpgradeEvent> events;
};

UpgradeFeed::UpgradeFeed(IProtocolThread &thread, QObject *parent)
    : QObject(parent)
    , mpInbox(std::make_shared<Inbox>())
{
    mpInbox->arrival = [this] {
        onArrival();
    };
    mPace.setSingleShot(true);
    mPace.setInterval(DeliveryPeriod);
    connect(&mPace, &QTimer::timeout, this, &UpgradeFeed::deliver);
    listen(thread);
}

UpgradeFeed::~UpgradeFeed()
{
    for (const QMetaObject::Connection &connection : qAsConst(mConnections))
        disconnect(connection);
    mpInbox->close();
}

/// The sender is its own receiver, so that no signal looks at a feed that ends meanwhile on its own thread.
void UpgradeFeed::listen(IProtocolThread &thread)
{
    const auto on = [this, &thread](auto signal, auto slot) {
        mConnections << connect(&thread, signal, &thread, slot, Qt::DirectConnection);
    };
    on(&IProtocolThread::logMessageSignal, [inbox = mpInbox](const QString &text) {
        inbox->add({UpgradeEvent::Line, text});
    });
    on(&IProtocolThread::sigSendUpdateAvailable, [inbox = mpInbox](qint32 result) {
        inbox->add({UpgradeEvent::Available, {}, result});
    });
    on(&IProtocolThread::sigUpgradeFinished, [inbox = mpInbox](qint32 result) {
        inbox->add({UpgradeEvent::Finished, {}, result});
    });
    on(&IProtocolThread::sigTransferProgress, [inbox = mpInbox](const Request &request, int sent, int all) {
        if (isUpgrade(request))
            inbox->add({UpgradeEvent::Progress, {}, sent, all});
    });
    on(&IProtocolThread::sigRequestDone, [inbox = mpInbox](const Request &request) {
        if (isUpgrade(request))
            inbox->add({UpgradeEvent::Done});
    });
}

/// The first event is delivered at once, what follows it soon after in one bundle.
void UpgradeFeed::onArrival()
{
    if (!mPace.isActive())
        deliver();
}

void UpgradeFeed::deliver()
{
    const std::vector<UpgradeEvent> events = mpInbox->take();
    if (events.empty())
        return;
    mPace.start();
    emit sigEvents(events);
}
