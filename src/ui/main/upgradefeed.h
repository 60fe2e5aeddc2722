/// What the protocol thread says about an upgrade, carried to the user-interface thread.
#pragma once

#include <QMetaObject>
#include <QObject>
#include <QTimer>
#include <QVector>
#include <memory>
#include <vector>

namespace vorlinmodel {
class IProtocolThread;
}

struct UpgradeEvent
{
    enum Kind {
        Line,      ///< text
        Available, ///< value: the panel's answer to the request, above 0 when it takes the upgrade
        Finished,  ///< value: 1 when the panel was told of the check, 0 when it could not be
        Progress,  ///< value: blocks sent, allBlocks
        Done,      ///< the request was carried out, well or not
    };
    Kind kind = Line;
    QString text = {};
    int value = 0;
    int allBlocks = 0;
};

/// Keeps the order in which the signals came, and delivers them in bundles: a transfer has a line for each of
/// its up to 184,000 blocks, and the window must stay alive.
class UpgradeFeed : public QObject
{
    Q_OBJECT
public:
    static constexpr int DeliveryPeriod = 50; ///< ms between two bundles

    explicit UpgradeFeed(vorlinmodel::IProtocolThread &thread, QObject *parent);
    ~UpgradeFeed() override; ///< what was not delivered is dropped

signals:
    void sigEvents(const std::vector<UpgradeEvent> &events); ///< oldest first; on the thread of this object

private:
    struct Inbox;

    void listen(vorlinmodel::IProtocolThread &thread);
    void onArrival();
    void deliver();

    const std::shared_ptr<Inbox>
        mpInbox; // shared with the connections, which a last signal may outlive us in
    QVector<QMetaObject::Connection> mConnections;
    QTimer mPace;
};
