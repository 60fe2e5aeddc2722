/// What surrounds the editor in its tests: a data folder of its own, a context, and a panel in software.
#pragma once

#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "base/logcapture.h"
#include "base/paths.h"
#include "model/functionmanager.h"
#include "protocol/protocolthread.h"
#include "resources/translationresources.h"
#include "support/panelbehindfake.h"
#include "support/recordingdesktop.h"
#include "ui_common/messagebox.h"
#include "ui_editor/editorcontext.h"

#include <QtTest>
#include <QtWidgets>

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
        startThread();
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
        const bool hasThread = mpThread != nullptr;
        if (hasThread)
            mpThread->stop();
        context.reset();
        mpThread.reset(); // and its queue: what is left there would end as requests of the next run
        for (const vorlinmodel::key_id_t &key : store.getKeys())
            store.deleteKeyAttribute(key);
        if (hasThread)
            startThread();
        editor();
    }

    vorlindesk::LanguageManager *languageManager() override { return &language; }
    vorlinmodel::IFunctionManager *functionManager() override { return &store; }
    vorlinmodel::IProtocolThread *protocolThread() override { return mpThread.get(); }
    void sendRequest(vorlinmodel::RequestKind kind, int layoutId, int pageId, int keyId, int functionId,
                     int attributeId) override
    {
        const QString ids = "%1: %2 %3 %4"_s.arg(int(kind)).arg(layoutId).arg(pageId).arg(keyId);
        requests.append("%1, fid %2, id %3"_s.arg(ids).arg(functionId).arg(attributeId));
        post(kind, quint32(layoutId), quint32(pageId), quint32(keyId), quint32(functionId),
             quint32(attributeId));
    }
    void sendRequest(vorlinmodel::RequestKind kind, int layoutId, int pageId) override
    {
        requests.append("%1: %2 %3"_s.arg(int(kind)).arg(layoutId).arg(pageId));
        post(kind, quint32(layoutId), quint32(pageId));
    }
    void sendRequest(vorlinmodel::RequestKind, const QString &, const QString &) override {}
    void sendRequest(vorlinmodel::RequestKind kind, int argument) override
    {
        requests.append("%1: %2"_s.arg(int(kind)).arg(argument));
        post(kind, quint32(argument));
    }
    void showWaitingDialog(int requestId, int showTimeMs) override
    {
        requests.append("dialog %1: %2"_s.arg(requestId).arg(showTimeMs));
    }
    void hideWaitingDialog() override {}
    QString fontStyle() const override { return "font: 75 10pt \"Arial\";"_s; }

    /// Waits until the pictures that were given to keys have been read.
    bool picturesArePlaced(int ms = 5000)
    {
        return QTest::qWaitFor([this] { return !editor().pictures.isBusy(); }, ms);
    }
    QString path(const char *relative) const { return mFolder.filePath(QString::fromUtf8(relative)); }
    QStringList takeRequests() { return std::exchange(requests, {}); }

    LogCapture log;
    QTranslator translator;
    vorlindesk::LanguageManager language{&translator};
    RecordingDesktop desktop;
    vorlinmodel::FunctionManager store;
    std::unique_ptr<PanelBehindFake> panel;
    std::unique_ptr<EditorContext> context; ///< null until editor() is called
    QStringList
        requests; ///< "kind: layout page key, fid n, id n", "kind: layout page", "kind: n", "dialog id: ms"

private:
    void startThread()
    {
        mpThread = std::make_unique<vorlinmodel::ProtocolThread>(store);
        mpThread->Init();
        mpThread->start();
    }
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

/// The boxes that come up while it lives, and what they are answered.
class Boxes
{
public:
    explicit Boxes(QMessageBox::StandardButton answer = QMessageBox::Ok)
    {
        MessageBox::setAnswer([this, answer](const QMessageBox &box) {
            texts.append(box.text());
            styleSheet = box.styleSheet();
            return answer;
        });
    }
    ~Boxes() { MessageBox::setAnswer({}); }
    Boxes(const Boxes &) = delete;
    Boxes &operator=(const Boxes &) = delete;

    QStringList texts;
    QString styleSheet;
};
