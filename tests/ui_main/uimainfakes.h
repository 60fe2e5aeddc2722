/// Stand-ins for what surrounds the main window: the panel's thread, the context, the desktop.
#pragma once

#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "base/logcapture.h"
#include "model/functionmanager.h"
#include "protocol/iprotocolthread.h"
#include "support/recordingdesktop.h"

#include <QTemporaryDir>
#include <QTranslator>
#include <QtEndian>

/// Emits what a test wants the panel to have said.
class FakeProtocolThread : public vorlinmodel::IProtocolThread
{
public:
    bool Init() override { return true; }
    void postRequest(const vorlinmodel::Request &) override {}
    void clearRequests() override {}
    bool takeRequest(vorlinmodel::Request &) override { return false; }
    void cancelTransfer(const vorlinmodel::Request &) override {}
    bool isUpgrading() const override { return upgrading; }
    int pollingPeriod() const override { return 10; }
    void setPollingPeriod(int) override {}
    void stop() override {}

    /// As the real one does: the bytes are gone when the signal returns.
    void receive(QByteArray message)
    {
        emit sigDealRecvData(reinterpret_cast<const quint8 *>(message.constData()), message.size());
        message.fill('\xEE');
    }

    bool upgrading = false;
};

class FakeContext : public vorlindesk::IFrameworkContext
{
public:
    vorlindesk::LanguageManager *languageManager() override { return hasLanguage ? &language : nullptr; }
    vorlinmodel::IFunctionManager *functionManager() override { return hasStore ? &store : nullptr; }
    vorlinmodel::IProtocolThread *protocolThread() override { return &thread; }
    void sendRequest(vorlinmodel::RequestKind kind, int layoutId, int pageId, int keyId, int,
                     int attributeId) override
    {
        const QString ids = "%1: %2 %3 %4"_s.arg(int(kind)).arg(layoutId).arg(pageId).arg(keyId);
        requests.append("%1, id %2"_s.arg(ids).arg(attributeId));
    }
    void sendRequest(vorlinmodel::RequestKind kind, int layoutId, int pageId) override
    {
        requests.append("%1: %2, %3"_s.arg(int(kind)).arg(layoutId).arg(pageId));
    }
    void sendRequest(vorlinmodel::RequestKind, const QString &, const QString &) override {}
    void sendRequest(vorlinmodel::RequestKind kind, int argument) override
    {
        requests.append("%1: %2"_s.arg(int(kind)).arg(argument));
    }
    void showWaitingDialog(int requestId, int showTimeMs) override
    {
        requests.append("dialog %1: %2"_s.arg(requestId).arg(showTimeMs));
        emit sigShowWaitingDialog(requestId, showTimeMs);
    }
    void hideWaitingDialog() override { emit sigHideWaitingDialog(); }
    QString fontStyle() const override { return "font: 75 12pt \"Arial\";"_s; }

    QTranslator translator;
    vorlindesk::LanguageManager language{&translator};
    vorlinmodel::FunctionManager store;
    FakeProtocolThread thread;
    QStringList requests; ///< "kind: argument", "1: layout page key, id attribute", "7: layout, page", or
                          ///< "dialog id: time"
    bool hasLanguage = true;
    bool hasStore = true;
};

/// A folder of its own as the current directory.
class TemporaryCurrentDir
{
public:
    TemporaryCurrentDir() { QDir::setCurrent(mDir.path()); }
    ~TemporaryCurrentDir() { QDir::setCurrent(mBefore); }
    QString path(const char *relative) const { return mDir.filePath(QString::fromLatin1(relative)); }

private:
    const QString mBefore = QDir::currentPath();
    QTemporaryDir mDir;
};

namespace PanelMessage {

inline QByteArray withLength(const QByteArray &bytes)
{
    QByteArray length(4, '\0');
    qToLittleEndian<quint32>(quint32(bytes.size()), length.data());
    return length + bytes;
}

inline QByteArray message(int code, const QByteArray &body)
{
    return char(code) + withLength(body);
}

/// A page of @p keyCount records of function 5, key ids 1 to 15 in turn.
inline QByteArray page(int layoutId, int pageId, int keyCount)
{
    constexpr int recordSize = 272;
    const QByteArray ids = QByteArray(1, char(layoutId)) + char(pageId);
    QByteArray body = ids;
    for (int i = 0; i < keyCount; ++i)
        body += (ids + char(1 + i % 15) + QByteArray(2, '\0') + '\5').leftJustified(recordSize, '\0');
    return message(8, body);
}

/// A picture of a key; without @p bytes the empty one, which is counted like any other.
inline QByteArray picture(int layoutId, int pageId, int keyId, const QByteArray &bytes = {})
{
    const QByteArray ids = QByteArray(1, char(layoutId)) + char(pageId) + char(keyId) + '\x09';
    return message(1, ids + (bytes.isEmpty() ? QByteArray(1, '\0') : withLength(bytes)));
}

inline QByteArray hardwareVersion()
{
    return message(3, QByteArrayLiteral("HW 1.2\0rest"));
}
inline QByteArray softwareVersion()
{
    return message(4, QByteArrayLiteral("SW 3.4\0"));
}

} // namespace PanelMessage
