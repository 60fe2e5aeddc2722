/// The protocol thread over a fake device, with a real store, in a data folder of its own.
#pragma once

#include "base/logcapture.h"
#include "model/functionmanager.h"
#include "protocol/protocolthread.h"
#include "support/fakehid.h"
#include "wire/bytesofhex.h"

#include <QDir>
#include <QStringList>
#include <QTemporaryDir>
#include <mutex>
#include <vector>

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

    /// Every signal of the thread in order: "connected", "disconnected", "log <text>", "received <hex>",
    /// "exec <fid> <text>", "script", "video <n>", "available <n>", "finished <n>".
    QStringList events()
    {
        const std::lock_guard lock(mMutex);
        return QStringList(mEvents.begin(), mEvents.end());
    }
    QStringList events(const char *kind)
    {
        QStringList some;
        for (const QString &event : events())
            if (event.startsWith(QLatin1String(kind)))
                some << event;
        return some;
    }

    void post(vorlinmodel::RequestKind kind, quint32 layoutId = 0, quint32 pageId = 0, quint32 keyId = 0,
              quint32 functionId = 0, quint32 attributeId = 0)
    {
        vorlinmodel::Request request;
        request.functionCode = static_cast<quint32>(kind);
        request.layoutId = layoutId;
        request.pageId = pageId;
        request.keyId = keyId;
        request.functionId = functionId;
        request.attributeId = attributeId;
        thread.postRequest(request);
    }
    void postFile(vorlinmodel::RequestKind kind, const QString &fileName, const QString &devicePath = {})
    {
        vorlinmodel::Request request;
        request.functionCode = static_cast<quint32>(kind);
        request.fileName = fileName;
        request.devicePath = devicePath;
        thread.postRequest(request);
    }

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
    void record(const QString &event)
    {
        const std::lock_guard lock(mMutex);
        mEvents.push_back(event);
    }

    void recordSignals()
    {
        using vorlinmodel::IProtocolThread;
        const auto on = [this](auto signal, auto slot) {
            QObject::connect(&thread, signal, &thread, slot, Qt::DirectConnection);
        };
        on(&IProtocolThread::sigUsbConnectState, [this](bool connected) {
            record(connected ? QStringLiteral("connected") : QStringLiteral("disconnected"));
        });
        on(&IProtocolThread::logMessageSignal,
           [this](const QString &text) { record(QStringLiteral("log ") + text); });
        on(&IProtocolThread::sigDealRecvData, [this](const quint8 *bytes, qint32 length) {
            const QByteArray message(reinterpret_cast<const char *>(bytes), length);
            record(QStringLiteral("received ") + QString::fromLatin1(message.toHex(' ')));
        });
        on(&IProtocolThread::sigDealExecCommand, [this](qint32 fid, const QString &command) {
            record(QStringLiteral("exec %1 %2").arg(fid).arg(command));
        });
        on(&IProtocolThread::sigSendScriptFinished, [this] { record(QStringLiteral("script")); });
        on(&IProtocolThread::sigSendVideoFinished,
           [this](qint32 n) { record(QStringLiteral("video %1").arg(n)); });
        on(&IProtocolThread::sigSendUpdateAvailable,
           [this](qint32 n) { record(QStringLiteral("available %1").arg(n)); });
        on(&IProtocolThread::sigUpgradeFinished,
           [this](qint32 n) { record(QStringLiteral("finished %1").arg(n)); });
    }

    const QString mBefore = QDir::currentPath();
    QTemporaryDir mFolder;
    std::mutex mMutex;
    std::vector<QString> mEvents; // no list of Qt: see FakeHid::State
};

/// A report of the panel that carries a whole message.
inline QByteArray wholeReport(const char *message)
{
    const QByteArray payload = hex(message);
    QByteArray header = hex("02 00 00 00 00 00");
    header[4] = static_cast<char>(payload.size());
    return header + payload;
}
