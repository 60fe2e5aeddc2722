/// MDProtocol over the real transport and a fake device, without a thread.
#pragma once

#include "base/logcapture.h"
#include "protocol/mdprotocol.h"
#include "support/fakehid.h"
#include "support/texts.h"
#include "transport/hidtransfer.h"
#include "wire/bytesofhex.h"

class ProtocolFixture
{
public:
    ProtocolFixture()
    {
        renewFakeHid();
        fakeHid().setInstantTimeouts(true);
    }

    QStringList events; ///< "key l/p/k", "message <hex>", "reassembly", "pause <ms>"
    std::function<bool()> interrupted = [] {
        return false;
    };
    int endPauseAfter = -1; ///< pauses until the thread is asked to end
    LogCapture log;
    vorlindesk::HIDTransfer transfer;
    vorlindesk::MDProtocol protocol{transfer, callbacks()};

    QStringList linesWith(const char *part) { return log.lines().filter(QLatin1String(part)); }
    QStringList lastLines(int count) { return log.lines().mid(log.lines().size() - count); }

private:
    vorlindesk::MDProtocol::Callbacks callbacks()
    {
        return {
            .messageReceived =
                [this](const quint8 *bytes, int length) {
                    const QByteArray message(reinterpret_cast<const char *>(bytes), length);
                    events << "message "_s + QString::fromLatin1(message.toHex(' '));
                },
            .keyPressed = [this](int lid, int pageid,
                                 int kid) { events << "key %1/%2/%3"_s.arg(lid).arg(pageid).arg(kid); },
            .reassemblyStarted = [this] { events << "reassembly"_s; },
            .interrupted = [this] { return interrupted(); },
            .pause =
                [this](int milliseconds) {
                    events << "pause %1"_s.arg(milliseconds);
                    return --endPauseAfter != 0;
                },
        };
    }
};
