// The main window and the panel: asking for the version, reading the configuration, polling, coming back.
#include "base/paths.h"
#include "base/systemsettings.h"
#include "support/table.h"
#include "ui_common/messagebox.h"
#include "ui_editor/editorcontext.h"
#include "ui_editor/functionconfigwidget.h"
#include "ui_editor/keywidget.h"
#include "ui_main/backups.h"
#include "ui_main/mainframe.h"
#include "ui_main/waitingspinnerwidget.h"
#include "ui_main/widget.h"
#include "uimainfakes.h"

#include <QtWidgets>
#include <future>
#include <thread>

namespace {

QByteArray pngBytes()
{
    QImage image(90, 84, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

const QStringList ReadRequest{"dialog 8: 100000"_s, "8: 60"_s};

} // namespace

class tst_ui_main_sync : public QObject
{
    Q_OBJECT
    std::unique_ptr<TemporaryCurrentDir> mpDir;
    std::unique_ptr<LogCapture> mpLog;
    std::unique_ptr<FakeContext> mpContext;
    RecordingDesktop mDesktop;
    std::unique_ptr<Widget> mpWidget;
    QStringList mBoxes; ///< texts of the message boxes

    QTimer *timer(const char *name) const { return mpWidget->findChild<QTimer *>(QString::fromLatin1(name)); }
    QString label(const char *name) const
    {
        return mpWidget->findChild<QLabel *>(QString::fromLatin1(name))->text();
    }
    WaitingSpinnerWidget *spinner() const { return mpWidget->findChild<WaitingSpinnerWidget *>(); }
    FunctionConfigWidget *editor() const { return mpWidget->findChild<FunctionConfigWidget *>(); }
    QString brightness() const { return mpWidget->findChild<MainFrame *>()->deviceValue(16); }
    void receive(const QByteArray &message) { mpContext->thread.receive(message); }

    /// Lets everything through that has been received: the workers end in order, so the version ends last.
    void settle()
    {
        receive(PanelMessage::message(16, QByteArrayLiteral("\x00\x2A")));
        QTRY_COMPARE(brightness(), "42"_s);
        receive(PanelMessage::message(16, QByteArrayLiteral("\x00\x01")));
        QTRY_COMPARE(brightness(), "1"_s);
    }

    /// Does not wait out the second in which another page might come.
    void hurry() const
    {
        QTimer *end = timer("readEndTimer");
        if (end->isActive() && end->interval() == 1000)
            end->start(1);
    }
    int finished(const char *line) const
    {
        hurry();
        return mpLog->count(line);
    }
    bool isEditable() const
    {
        hurry();
        return editor()->isEnabled();
    }

    void startReading()
    {
        mpWidget->readConfiguration();
        mpContext->requests.clear();
    }

    using PollTable = Table<bool, bool, bool, QStringList>;
    using ReturningTable = Table<bool, bool, bool, QStringList>;
    using ReadTable = Table<bool, bool, int>;
    using TimeOutTable = Table<int, QString>;

private slots:
    void init()
    {
        mpDir = std::make_unique<TemporaryCurrentDir>();
        mpLog = std::make_unique<LogCapture>();
        vorlindesk::SystemSettings::createDefaults();
        mpContext = std::make_unique<FakeContext>();
        QVERIFY(mpContext->store.Init());
        mpContext->store.setRecordPause(0);
        mpWidget = std::make_unique<Widget>(*mpContext, mDesktop);
        QVERIFY(mpWidget->isReady());
        mBoxes.clear();
        MessageBox::setAnswer([this](const QMessageBox &box) {
            mBoxes.append(box.text());
            return QMessageBox::Ok;
        });
    }

    void cleanup()
    {
        MessageBox::setAnswer({});
        mpWidget.reset();
        mpContext.reset();
        mpLog.reset();
        mpDir.reset();
    }

    void silentPanelIsAskedAgainAndAgainWithoutFillingTheLog()
    {
        QVERIFY(timer("syncTimer")->isActive());
        mpContext->thread.upgrading = true;
        mpWidget->slotTimerSyncOut();
        QCOMPARE(mpContext->requests, QStringList()); // not during an upgrade
        mpContext->thread.upgrading = false;
        for (int i = 0; i < 2; ++i)
            mpWidget->slotTimerSyncOut();
        QCOMPARE(mpContext->requests, texts({"3: 10", "3: 10"}));
        QCOMPARE(mpLog->matching("mIsFirstSync"), QStringList("1 ----------------mIsFirstSync=1"_s));
        vorlindesk::SystemSettings::setAutoSyncEnable(false);
        mpWidget = std::make_unique<Widget>(*mpContext, mDesktop);
        QVERIFY(!timer("syncTimer")->isActive());
        QVERIFY(timer("pollTimer")->isActive());
    }

    /// A read empties the folder with the pictures, which a writing would take for those of keys that are
    /// gone.
    void aReadWaitsForTheDiskButTheWindowDoesNot()
    {
        std::promise<void> disk;
        std::promise<void> busy;
        std::thread slow([&, ready = disk.get_future()] {
            const vorlindesk::IniFile held(vorlindesk::Paths::imageUrlIni());
            busy.set_value();
            ready.wait_for(std::chrono::seconds(10));
        });
        busy.get_future().wait();
        mpWidget->findChild<KeyWidget *>()->takeFunction(5);
        QTest::qWait(StoreFiles::Rest + 500); // being saved by now
        mpContext->requests.clear();
        mpWidget->readConfiguration();
        receive(PanelMessage::page(1, 1, 0));
        QCOMPARE(mpContext->requests, QStringList());
        QVERIFY(isEditable());
        disk.set_value();
        slow.join();
        QTRY_COMPARE(mpContext->requests, ReadRequest);
        QVERIFY(!isEditable());
    }

    void firstVersionStartsTheRead()
    {
        QDir(mpDir->path("devConfig")).removeRecursively();
        QSignalSpy started(mpWidget.get(), &Widget::sigStartSyncDevInfo);
        std::thread panel([this] { receive(PanelMessage::hardwareVersion()); }); // as the real signals come
        panel.join();
        QTRY_COMPARE(started.count(), 1);
        QCOMPARE(label("hardwareVersion"), "PIC Hardware Version: HW 1.2"_s);
        QCOMPARE(timer("syncTimer")->interval(), 3000);
        QVERIFY(mpContext->store.getModeFlag());
        QVERIFY(QFileInfo(mpDir->path("devConfig/image")).isDir());

        mpWidget->slotTimerSyncOut();
        QVERIFY(!timer("syncTimer")->isActive());
        QCOMPARE(mpContext->requests, ReadRequest);
        QVERIFY(spinner()->isSpinning());

        receive(PanelMessage::hardwareVersion());
        settle();
        QCOMPARE(started.count(), 1);
        QCOMPARE(mpContext->requests, ReadRequest);
        QVERIFY(!timer("syncTimer")->isActive());
    }

    void pollAsksOnlyWhileIdle_data()
    {
        const PollTable row;
        row("idle", true, false, false, QStringList("4: 10"_s));
        row("no version yet", false, false, false, {});
        row("reading", true, true, false, {});
        row("upgrading", true, false, true, {});
    }

    void pollAsksOnlyWhileIdle()
    {
        const auto [synchronised, modeFlag, upgrading, requests] = PollTable::current();
        if (synchronised) {
            receive(PanelMessage::hardwareVersion());
            settle();
        }
        timer("syncTimer")->stop();
        mpContext->store.setModeFlag(modeFlag);
        mpContext->thread.upgrading = upgrading;
        QSignalSpy polled(timer("pollTimer"), &QTimer::timeout);
        timer("pollTimer")->setSingleShot(true);
        timer("pollTimer")->start(1);
        QVERIFY(polled.wait());
        QCOMPARE(mpContext->requests, requests);
    }

    void readShowsItsProgressAndEndsWithTheLastRecord()
    {
        receive(PanelMessage::hardwareVersion());
        settle();
        startReading();
        receive(PanelMessage::page(1, 3, 3));
        receive(PanelMessage::picture(1, 3, 1, pngBytes()));
        receive(PanelMessage::picture(1, 3, 2));
        QTRY_COMPARE(label("activity"), "Reading the configuration... 2 of 3 keys"_s);
        // 10 s, and 1 s for each record that is missing
        QCOMPARE(spinner()->findChild<QTimer *>("showTime"_s)->interval(), 11000);
        QVERIFY(spinner()->isSpinning());
        receive(PanelMessage::picture(1, 3, 3));
        QTRY_VERIFY(!spinner()->isSpinning());
        QVERIFY(!mpContext->store.getModeFlag());
        QCOMPARE(editor()->curPageId(), 3);
        QVERIFY(QFileInfo::exists(mpDir->path("devConfig/image/1_3_1.png")));
        QTRY_COMPARE(finished("Configuration read: 3 keys on 1 pages"), 1);
        QCOMPARE(label("activity"), "Connected"_s);
        QCOMPARE(mBoxes, QStringList());
    }

    /// A page takes its time, its pictures none: yet they must not be filed before the first page has emptied
    /// the folder, and the second page must leave them there.
    void picturesOfAllPagesAreKept()
    {
        QFile stale(mpDir->path("devConfig/image/9_9_9.png"));
        QVERIFY(stale.open(QIODevice::WriteOnly));
        stale.close();
        mpContext->store.setRecordPause(20);
        startReading();
        for (int page = 1; page <= 2; ++page) {
            receive(PanelMessage::page(1, page, 2));
            receive(PanelMessage::picture(1, page, 1, pngBytes()));
            receive(PanelMessage::picture(1, page, 2));
        }
        QTRY_COMPARE(finished("Configuration read: 4 keys on 2 pages"), 1);
        QCOMPARE(QDir(mpDir->path("devConfig/image")).entryList({"*.png"_s}),
                 texts({"1_1_1.png", "1_2_1.png"}));
        QCOMPARE(editor()->curPageId(), 1);
    }

    void returningPanelIsReadAgain_data()
    {
        const ReturningTable row;
        row("in the middle of a read", true, false, false, ReadRequest);
        const QStringList pageInView("7: 1, 1"_s);
        row("after the link was seen to break", true, true, false, pageInView + ReadRequest);
        row("later than the time-out", true, true, true, pageInView + ReadRequest);
        row("after a read that a panel in reach did not answer", true, false, true, {});
        row("while nothing is read", false, true, false, pageInView);
    }

    void returningPanelIsReadAgain()
    {
        const auto [reading, linkLost, timedOut, requests] = ReturningTable::current();
        mpContext->thread.sigUsbConnectState(true);
        if (reading) {
            startReading();
            receive(PanelMessage::page(1, 1, 3));
            receive(PanelMessage::picture(1, 1, 1));
        }
        settle();
        if (linkLost) {
            mpContext->thread.sigUsbConnectState(false);
            QTRY_COMPARE(label("activity"), "Looking for the panel..."_s);
        }
        if (timedOut) {
            mpContext->hideWaitingDialog();
            mpWidget->slogDealRequestId(8);
        }
        receive(PanelMessage::softwareVersion());
        settle();
        QCOMPARE(mpContext->requests, requests);
        QVERIFY(label("activity") != "Looking for the panel..."_s);
    }

    /// What arrived before the link broke is decoded after it; more pages may have been on their way.
    void readThatLooksCompleteAfterTheLinkBrokeIsRepeated()
    {
        mpContext->store.setRecordPause(20);
        mpContext->thread.sigUsbConnectState(true);
        startReading();
        receive(PanelMessage::page(1, 1, 1));
        receive(PanelMessage::picture(1, 1, 1));
        mpContext->thread.sigUsbConnectState(false);
        QTRY_COMPARE(finished("Configuration read: 1 keys on 1 pages"), 1);
        QCOMPARE(mpContext->requests, QStringList());
        receive(PanelMessage::softwareVersion());
        settle();
        QCOMPARE(mpContext->requests, QStringList("7: 1, 1"_s) + ReadRequest);
    }

    /// Else the read would bring back what the person has changed meanwhile.
    void whatThePanelHasNotTakenIsSentBeforeTheRead()
    {
        mpContext->store.createKeyAttribute(1, 1, 2, 6);
        mpContext->store.setTitle({1, 1, 2}, "kept"_s);
        mpWidget.reset();
        {
            EditorContext lastRun(*mpContext);
            lastRun.edits.send({1, 1, 2}, 6, vorlinmodel::AttributeId::Title);
            QVERIFY(lastRun.edits.saveNow());
        }
        mpContext->requests.clear();
        mpWidget = std::make_unique<Widget>(*mpContext, mDesktop);
        receive(PanelMessage::hardwareVersion());
        settle();
        mpWidget->slotTimerSyncOut();
        QCOMPARE(mpContext->requests, QStringList("1: 1 1 2, id 6"_s) + ReadRequest);

        mpContext->thread.sigUsbConnectState(false); // the request is lost with the panel
        QTRY_COMPARE(label("activity"), "Looking for the panel..."_s);
        mpContext->requests.clear();
        receive(PanelMessage::softwareVersion());
        settle();
        // In the middle of a read the store may hold what the panel shows, so this time it is sent after it.
        QCOMPARE(mpContext->requests, QStringList("7: 1, 1"_s) + ReadRequest);
        mpContext->requests.clear();
        receive(PanelMessage::page(1, 1, 2));
        receive(PanelMessage::picture(1, 1, 1));
        receive(PanelMessage::picture(1, 1, 2));
        QTRY_COMPARE(finished("Configuration read: 2 keys on 1 pages"), 1);
        QCOMPARE(mpContext->store.getKeyAttribute({1, 1, 2})->strTitle, "kept"_s);
        QCOMPARE(mpContext->store.getKeyAttribute({1, 1, 2})->mFId, 6);
        QTRY_VERIFY(!mpContext->requests.isEmpty());
        QCOMPARE(mpContext->requests.last(), "1: 1 1 2, id 6"_s);
    }

    void readReplacesTheKeysAndKeepsTheEditorLockedMeanwhile_data()
    {
        // keysLeft: one came, one was there before
        const ReadTable row;
        row("whole", true, true, 1);
        row("given up", true, false, 2);
        row("page that the panel sends by itself", false, true, 2);
    }

    void readReplacesTheKeysAndKeepsTheEditorLockedMeanwhile()
    {
        const auto [asked, whole, keysLeft] = ReadTable::current();
        receive(PanelMessage::softwareVersion());
        settle();
        mpContext->store.createKeyAttribute(1, 7, 9, 6);
        if (asked)
            startReading();
        receive(PanelMessage::page(1, 1, 1));
        settle();
        mpContext->hideWaitingDialog();
        QVERIFY(!editor()->isEnabled());
        if (whole)
            receive(PanelMessage::picture(1, 1, 1));
        else
            mpWidget->slogDealRequestId(8);
        QTRY_VERIFY(isEditable());
        QCOMPARE(mpContext->store.getKeys().size(), keysLeft);
        QCOMPARE(label("activity"),
                 whole ? "Connected"_s : "Connected. The configuration was not read to its end."_s);
    }

    /// Neither the half-read store nor what the panel still showed may get onto the disk.
    void leavingInTheMiddleOfAReadKeepsUntakenEdits()
    {
        startReading();
        mpContext->store.createKeyAttribute(1, 1, 1, 6);
        mpWidget.reset();
        mpContext->store.setTitle({1, 1, 1}, "kept"_s);
        {
            EditorContext lastRun(*mpContext);
            lastRun.edits.send({1, 1, 1}, 6, vorlinmodel::AttributeId::Title);
            QVERIFY(lastRun.edits.saveNow());
        }
        mpWidget = std::make_unique<Widget>(*mpContext, mDesktop);
        startReading();
        receive(PanelMessage::page(1, 1, 1));
        settle();
        QCOMPARE(mpContext->store.getKeyAttribute({1, 1, 1})->mFId, 5);
        mpWidget.reset();
        QCOMPARE(mpContext->store.getKeyAttribute({1, 1, 1})->strTitle, "kept"_s);
    }

    void answerDecodedAfterTheLinkBrokeDoesNotShowThePanelAsConnected()
    {
        receive(PanelMessage::message(13, QByteArray(2, '\0'))); // takes its worker 100 ms
        receive(PanelMessage::softwareVersion());
        mpContext->thread.sigUsbConnectState(false);
        settle();
        QCOMPARE(label("softwareVersion"), "PIC Software Version: SW 3.4"_s);
        QCOMPARE(label("activity"), "Looking for the panel..."_s);
    }

    void aReadWaitsForABackup_data()
    {
        const Table<bool> row;
        row("that a person asks for", true);
        row("that the panel begins", false);
    }

    void aReadWaitsForABackup()
    {
        const auto [isAskedFor] = Table<bool>::current();
        mpContext->store.createKeyAttribute({1, 1, 3}, 5);
        Backups &backups = mpWidget->findChild<MainFrame *>()->backups();
        backups.create({});
        QVERIFY(backups.isHolding());
        if (isAskedFor)
            mpWidget->readConfiguration();
        else
            receive(PanelMessage::page(1, 1, 1));
        QTRY_COMPARE(vorlinmodel::Profiles::list({}).size(), 1);
        QTRY_COMPARE(mpContext->requests, ReadRequest); // of which the fake panel answers nothing
        QVERIFY(!backups.isHolding());
        QVERIFY(mpContext->store.getKeyAttribute({1, 1, 3})); // what came too early took nothing away
    }

    void timeOutBoxSaysWhatFailed_data()
    {
        const TimeOutTable row;
        row("import", 5, "Import failed\uFF0CPlease try again!");
        row("video", 1, "Import video failed\uFF0CPlease try again!");
        row("read", 8, "Read failed\uFF0CPlease try again!");
        row("any other", 3, {});
    }

    void timeOutBoxSaysWhatFailed()
    {
        const auto [requestId, text] = TimeOutTable::current();
        mpContext->store.setModeFlag(true);
        mpContext->showWaitingDialog(requestId, 1);
        QTRY_COMPARE(mBoxes, QStringList(text));
        QVERIFY(!spinner()->isSpinning());
        QCOMPARE(mpContext->store.getModeFlag(), requestId != 8);
    }

    void sendResultHidesTheDialogWithoutABox()
    {
        mpContext->showWaitingDialog(1, 60000);
        mpContext->thread.sigSendVideoFinished(-1);
        QTRY_VERIFY(!spinner()->isSpinning());
        QCOMPARE(mpLog->count("--------------slotDealProtocolSendResult-----nResult=[-1]"), 1);
        QCOMPARE(mBoxes, QStringList());
    }
};

QTEST_MAIN(tst_ui_main_sync)
#include "tst_ui_main_sync.moc"
