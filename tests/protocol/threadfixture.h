/// The protocol thread over a fake device, with a real store, in a data folder of its own.
#pragma once

#include "base/logcapture.h"
#include "model/functionmanager.h"
#include "protocol/protocolthread.h"
#include "support/fakehid.h"
#include "support/texts.h"
#include "wire/bytesofhex.h"

#include <QDir>
#include <QTemporaryDir>

using vorlinmodel::RequestKind;
using enum vorlinmodel::RequestKind;

class ThreadFixture
{
public:
    ThreadFixture()
    {
        renewFakeHid();
        QDir::setCurrent(mFolder.path());
        store.Init();
        thread.Init();
        recordSignals();
    }

    ~ThreadFixture()
    {
        thread.stop();
        QDir::setCurrent(mBefore);
    }

    /// The signals of the thread in order that start with @p kind: "connected", "disconnected", "log <text>",
    /// "received <hex>", "exec <fid> <text>", "script", "video <n>", "available <n>", "finished <n>".
    QStringList events(const char *kind = "")
    {
        const std::lock_guard lock(mMutex);
        QStringList some;
        for (const QString &event : mEvents)
            if (event.startsWith(QLatin1String(kind)))
                some << event;
        return some;
    }

    void post(RequestKind kind, quint32 layoutId = 0, quint32 pageId = 0, quint32 keyId = 0,
              quint32 functionId = 0, quint32 attributeId = 0)
    {
        thread.postRequest(
            {static_cast<quint32>(kind), layoutId, pageId, keyId, functionId, attributeId, {}, {}});
    }
    void postFile(RequestKind kind, const QString &fileName, const QString &devicePath = {})
    {
        thread.postRequest({static_cast<quint32>(kind), 0, 0, 0, 0, 0, devicePath, fileName});
    }
    void postBlockDelay(quint32 ms) { thread.postRequest({12, 0, 0, 0, 0, 0, {}, {}, ms}); }

    QStringList linesWith(const char *part) { return log.lines().filter(QLatin1String(part)); }

    /// What the host sent, the payloads of each message joined, as hex.
    QStringList messages() const
    {
        QStringList all;
        QByteArray message;
        for (const QByteArray &report : fakeHid().written()) {
            message += report.mid(7, report.at(5));
            if (report.at(2) != 1)
                all << QString::fromLatin1(std::exchange(message, {}).toHex(' '));
        }
        return all;
    }

    LogCapture log;
    vorlinmodel::FunctionManager store;
    vorlinmodel::ProtocolThread thread{store};

private:
    void recordSignals()
    {
        using Thread = vorlinmodel::IProtocolThread;
        const auto on = [this](auto signal, auto describe) {
            const auto record = [this, describe](const auto &...values) -> void {
                const std::lock_guard lock(mMutex);
                mEvents.push_back(describe(values...));
            };
            QObject::connect(&thread, signal, &thread, record, Qt::DirectConnection);
        };
        const auto onNumber = [on](auto signal, const char *name) {
            on(signal, [name](qint32 n) { return "%1 %2"_s.arg(QLatin1String(name)).arg(n); });
        };
        on(&Thread::sigUsbConnectState,
           [](bool connected) { return connected ? "connected"_s : "disconnected"_s; });
        on(&Thread::logMessageSignal, [](const QString &text) { return "log "_s + text; });
        on(&Thread::sigDealRecvData, [](const quint8 *bytes, qint32 length) {
            const QByteArray message(reinterpret_cast<const char *>(bytes), length);
            return "received "_s + QString::fromLatin1(message.toHex(' '));
        });
        on(&Thread::sigDealExecCommand,
           [](qint32 fid, const QString &command) { return "exec %1 %2"_s.arg(fid).arg(command); });
        on(&Thread::sigSendScriptFinished, [] { return "script"_s; });
        onNumber(&Thread::sigSendVideoFinished, "video");
        onNumber(&Thread::sigSendUpdateAvailable, "available");
        onNumber(&Thread::sigUpgradeFinished, "finished");
    }

    const QString mBefore = QDir::currentPath();
    QTemporaryDir mFolder;
    std::mutex mMutex;
    std::vector<QString> mEvents; // no list of Qt: see FakeHid::State
};

/// A report of the panel that carries a whole message.
inline QByteArray wholeReport(const QByteArray &message)
{
    const QByteArray payload = QByteArray::fromHex(message);
    QByteArray header = hex("02 00 00 00 00 00");
    header[4] = static_cast<char>(payload.size());
    return header + payload;
}

inline void writeFile(const QString &name, const QByteArray &bytes)
{
    QFile file(name);
    file.open(QIODevice::WriteOnly);
    file.write(bytes);
}
