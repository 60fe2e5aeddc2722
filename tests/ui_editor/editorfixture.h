/// What surrounds the editor in its tests: a data folder of its own, a context, and a panel in software.
#pragma once

#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "base/logcapture.h"
#include "base/paths.h"
#include "model/functionmanager.h"
#include "panel_model/panelmodel.h"
#include "platform/desktop.h"
#include "protocol/protocolthread.h"
#include "resources/translationresources.h"
#include "support/fakehid.h"
#include "ui_editor/editorcontext.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

/// Opens nothing: action lists may be run in tests.
class NoDesktop : public vorlindesk::IDesktop
{
public:
    bool openUrl(const QUrl &url) override { return note(QStringLiteral("url ") + url.toString()); }
    bool openFile(const QString &path) override { return note(QStringLiteral("file ") + path); }
    void setClipboardText(const QString &text) override { note(QStringLiteral("clipboard ") + text); }
    bool pressPaste() override { return note(QStringLiteral("paste")); }

    QStringList calls;

private:
    bool note(const QString &call)
    {
        calls.append(call);
        return true;
    }
};

/// The panel behind the fake HID library; the protocol thread and the test take turns.
class PanelBehindFake
{
public:
    PanelBehindFake()
    {
        fakeHid().setOnWrite([this](const QByteArray &report) { receive(report); });
    }
    ~PanelBehindFake() { fakeHid().setOnWrite({}); }
    PanelBehindFake(const PanelBehindFake &) = delete;
    PanelBehindFake &operator=(const PanelBehindFake &) = delete;

    PanelState state()
    {
        const std::lock_guard lock(mMutex);
        PanelState copy = mPanel.state();
        // What is shared would be let go without the lock, which the thread checker misreads.
        for (PanelKey &key : copy.keys) {
            for (QByteArray *bytes : {&key.record.title, &key.record.content, &key.content, &key.picture,
                                      &key.video, &key.actions})
                *bytes = QByteArray(bytes->constData(), bytes->size());
        }
        return copy;
    }
    QStringList violations()
    {
        const std::lock_guard lock(mMutex);
        return mPanel.violations();
    }
    /// Every message that has arrived whole, in hex: function code, length, body.
    QStringList messages()
    {
        const std::lock_guard lock(mMutex);
        return QStringList(mMessages.begin(), mMessages.end());
    }
    void clearMessages()
    {
        const std::lock_guard lock(mMutex);
        mMessages.clear();
    }
    /// Calls @p change with the panel, no report coming in between.
    void with(const std::function<void(PanelModel &)> &change)
    {
        const std::lock_guard lock(mMutex);
        change(mPanel);
        deliver();
    }
    void unplug()
    {
        fakeHid().setPresent(false);
        const std::lock_guard lock(mMutex);
        mPanel.resetLink();
        mPayload.clear();
    }
    void plug() { fakeHid().setPresent(true); }

private:
    void receive(const QByteArray &report)
    {
        const std::lock_guard lock(mMutex);
        mPayload += report.mid(7, report.at(5));
        if (report.at(2) != 1)
            mMessages.push_back(QString::fromLatin1(std::exchange(mPayload, {}).toHex(' ')));
        mPanel.receive(report);
        deliver();
    }
    void deliver()
    {
        for (const QByteArray &answer : mPanel.takeOutgoing())
            fakeHid().send(answer);
    }

    std::mutex mMutex;
    PanelModel mPanel;
    QByteArray mPayload;
    std::vector<QString> mMessages; // no list of Qt: see FakeHid::State
};

/// With Panel::None requests are only written down, and no thread runs. With Panel::Present or Panel::Absent
/// the real protocol thread talks with a panel in software.
class EditorFixture : public vorlindesk::IFrameworkContext
{
    Q_OBJECT
public:
    enum class Panel { None, Present, Absent };

    explicit EditorFixture(Panel withPanel = Panel::None)
    {
        renewFakeHid();
        initTranslationResources();
        QDir::setCurrent(mFolder.path());
        vorlindesk::Paths::createPath(vorlindesk::Paths::devConfigFolder());
        store.setDesktop(desktop);
        store.setRecordPause(0);
        store.Init();
        if (withPanel == Panel::None)
            return;
        panel = std::make_unique<PanelBehindFake>();
        fakeHid().setPresent(withPanel == Panel::Present);
        mpThread = std::make_unique<vorlinmodel::ProtocolThread>(store);
        mpThread->Init();
        mpThread->start();
    }

    ~EditorFixture() override
    {
        if (mpThread)
            mpThread->stop(); // it calls into the editor
        context.reset();
        mpThread.reset();
        QDir::setCurrent(mBefore);
    }

    /// The editor's context, made on first use, so that a test can prepare files before.
    EditorContext &editor()
    {
        if (!context)
            context = std::make_unique<EditorContext>(*this);
        return *context;
    }
    /// As if the program ended and started again on the same files.
    void restart()
    {
        if (mpThread)
            mpThread->stop();
        context.reset();
        for (const vorlinmodel::key_id_t &key : store.getKeys())
            store.deleteKeyAttribute(key);
        editor();
        if (mpThread)
            mpThread->start();
    }

    vorlindesk::LanguageManager *languageManager() override { return &language; }
    vorlinmodel::IFunctionManager *functionManager() override { return &store; }
    vorlinmodel::IProtocolThread *protocolThread() override { return mpThread.get(); }
    void sendRequest(vorlinmodel::RequestKind kind, int layoutId, int pageId, int keyId, int functionId,
                     int attributeId) override
    {
        const QString ids =
            QStringLiteral("%1: %2 %3 %4").arg(int(kind)).arg(layoutId).arg(pageId).arg(keyId);
        requests.append(QStringLiteral("%1, fid %2, id %3").arg(ids).arg(functionId).arg(attributeId));
        post(kind, quint32(layoutId), quint32(pageId), quint32(keyId), quint32(functionId),
             quint32(attributeId));
    }
    void sendRequest(vorlinmodel::RequestKind kind, int layoutId, int pageId) override
    {
        requests.append(QStringLiteral("%1: %2 %3").arg(int(kind)).arg(layoutId).arg(pageId));
        post(kind, quint32(layoutId), quint32(pageId));
    }
    void sendRequest(vorlinmodel::RequestKind, const QString &, const QString &) override {}
    void sendRequest(vorlinmodel::RequestKind kind, int argument) override
    {
        requests.append(QStringLiteral("%1: %2").arg(int(kind)).arg(argument));
        post(kind, quint32(argument));
    }
    void showWaitingDialog(int requestId, int showTimeMs) override
    {
        requests.append(QStringLiteral("dialog %1: %2").arg(requestId).arg(showTimeMs));
    }
    void hideWaitingDialog() override {}
    QString fontStyle() const override { return QStringLiteral("font: 75 10pt \"Arial\";"); }

    QString path(const char *relative) const { return mFolder.filePath(QString::fromUtf8(relative)); }
    QStringList takeRequests() { return std::exchange(requests, {}); }

    LogCapture log;
    QTranslator translator;
    vorlindesk::LanguageManager language{&translator};
    NoDesktop desktop;
    vorlinmodel::FunctionManager store;
    std::unique_ptr<PanelBehindFake> panel;
    std::unique_ptr<EditorContext> context; ///< null until editor() is called
    QStringList
        requests; ///< "kind: layout page key, fid n, id n", "kind: layout page", "kind: n", "dialog id: ms"

private:
    void post(vorlinmodel::RequestKind kind, quint32 layoutId, quint32 pageId = 0, quint32 keyId = 0,
              quint32 functionId = 0, quint32 attributeId = 0)
    {
        if (mpThread)
            mpThread->postRequest({quint32(kind), layoutId, pageId, keyId, functionId, attributeId, {}, {}});
    }

    const QString mBefore = QDir::currentPath();
    QTemporaryDir mFolder;
    std::unique_ptr<vorlinmodel::ProtocolThread> mpThread;
};

/// A picture file of one colour.
inline QString pictureFile(const QString &path, const QColor &colour, QSize size = {90, 84})
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    return image.save(path, "PNG") ? path : QString();
}
