// The main window and the panel: asking for the version, reading the configuration, polling, coming back.
#include "base/systemsettings.h"
#include "ui_common/messagebox.h"
#include "ui_editor/editorcontext.h"
#include "ui_editor/functionconfigwidget.h"
#include "ui_main/mainframe.h"
#include "ui_main/waitingspinnerwidget.h"
#include "ui_main/widget.h"
#include "uimainfakes.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>
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

const QStringList ReadRequest{QStringLiteral("dialog 8: 100000"), QStringLiteral("8: 60")};

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
        QTRY_COMPARE(brightness(), QStringLiteral("42"));
        receive(PanelMessage::message(16, QByteArrayLiteral("\x00\x01")));
        QTRY_COMPARE(brightness(), QStringLiteral("1"));
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
        QCOMPARE(mpContext->requests, QStringList({QStringLiteral("3: 10"), QStringLiteral("3: 10")}));
        QCOMPARE(mpLog->matching("mIsFirstSync"),
                 QStringList(QStringLiteral("1 ----------------mIsFirstSync=1")));
        vorlindesk::SystemSettings::setAutoSyncEnable(false);
        mpWidget = std::make_unique<Widget>(*mpContext, mDesktop);
        QVERIFY(!timer("syncTimer")->isActive());
        QVERIFY(timer("pollTimer")->isActive());
    }

    void firstVersionStartsTheRead()
    {
        QDir(mpDir->path("devConfig")).removeRecursively();
        QSignalSpy started(mpWidget.get(), &Widget::sigStartSyncDevInfo);
        std::thread panel([this] { receive(PanelMessage::hardwareVersion()); }); // as the real signals come
        panel.join();
        QTRY_COMPARE(started.count(), 1);
        QCOMPARE(label("hardwareVersion"), QStringLiteral("PIC Hardware Version: HW 1.2"));
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
        QTest::addColumn<bool>("synchronised");
        QTest::addColumn<bool>("modeFlag");
        QTest::addColumn<bool>("upgrading");
        QTest::addColumn<QStringList>("requests");
        QTest::newRow("idle") << true << false << false << QStringList(QStringLiteral("4: 10"));
        QTest::newRow("no version yet") << false << false << false << QStringList();
        QTest::newRow("reading") << true << true << false << QStringList();
        QTest::newRow("upgrading") << true << false << true << QStringList();
    }

    void pollAsksOnlyWhileIdle()
    {
        QFETCH(bool, synchronised);
        QFETCH(bool, modeFlag);
        QFETCH(bool, upgrading);
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
        QTEST(mpContext->requests, "requests");
    }

    void readShowsItsProgressAndEndsWithTheLastRecord()
    {
        receive(PanelMessage::hardwareVersion());
        settle();
        startReading();
        receive(PanelMessage::page(1, 3, 3));
        receive(PanelMessage::picture(1, 3, 1, pngBytes()));
        receive(PanelMessage::picture(1, 3, 2));
        QTRY_COMPARE(label("activity"), QStringLiteral("Reading the configuration... 2 of 3 keys"));
        // 10 s, and 1 s for each record that is missing
        QCOMPARE(spinner()->findChild<QTimer *>(QStringLiteral("showTime"))->interval(), 11000);
        QVERIFY(spinner()->isSpinning());
        receive(PanelMessage::picture(1, 3, 3));
        QTRY_VERIFY(!spinner()->isSpinning());
        QVERIFY(!mpContext->store.getModeFlag());
        QCOMPARE(editor()->curPageId(), 3);
        QVERIFY(QFileInfo::exists(mpDir->path("devConfig/image/1_3_1.png")));
        QTRY_COMPARE(finished("Configuration read: 3 keys on 1 pages"), 1);
        QCOMPARE(label("activity"), QStringLiteral("Connected"));
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
        QCOMPARE(QDir(mpDir->path("devConfig/image")).entryList({QStringLiteral("*.png")}),
                 QStringList({QStringLiteral("1_1_1.png"), QStringLiteral("1_2_1.png")}));
        QCOMPARE(editor()->curPageId(), 1);
    }

    void returningPanelIsReadAgain_data()
    {
        QTest::addColumn<bool>("reading");
        QTest::addColumn<bool>("linkLost");
        QTest::addColumn<bool>("timedOut");
        QTest::addColumn<QStringList>("requests");
        QTest::newRow("in the middle of a read") << true << false << false << ReadRequest;
        const QStringList pageInView(QStringLiteral("7: 1, 1"));
        QTest::newRow("after the link was seen to break")
            << true << true << false << pageInView + ReadRequest;
        QTest::newRow("later than the time-out") << true << true << true << pageInView + ReadRequest;
        QTest::newRow("after a read that a panel in reach did not answer")
            << true << false << true << QStringList();
        QTest::newRow("while nothing is read") << false << true << false << pageInView;
    }

    void returningPanelIsReadAgain()
    {
        QFETCH(bool, reading);
        QFETCH(bool, linkLost);
        QFETCH(bool, timedOut);
        mpContext->thread.sigUsbConnectState(true);
        if (reading) {
            startReading();
            receive(PanelMessage::page(1, 1, 3));
            receive(PanelMessage::picture(1, 1, 1));
        }
        settle();
        if (linkLost) {
            mpContext->thread.sigUsbConnectState(false);
            QTRY_COMPARE(label("activity"), QStringLiteral("Looking for the panel..."));
        }
        if (timedOut) {
            mpContext->hideWaitingDialog();
            mpWidget->slogDealRequestId(8);
        }
        receive(PanelMessage::softwareVersion());
        settle();
        QTEST(mpContext->requests, "requests");
        QVERIFY(label("activity") != QStringLiteral("Looking for the panel..."));
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
        QCOMPARE(mpContext->requests, QStringList(QStringLiteral("7: 1, 1")) + ReadRequest);
    }

    /// Else the read would bring back what the person has changed meanwhile.
    void whatThePanelHasNotTakenIsSentBeforeTheRead()
    {
        mpContext->store.createKeyAttribute(1, 1, 2, 6);
        mpContext->store.setTitle({1, 1, 2}, QStringLiteral("kept"));
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
        QCOMPARE(mpContext->requests, QStringList(QStringLiteral("1: 1 1 2, id 6")) + ReadRequest);

        mpContext->thread.sigUsbConnectState(false); // the request is lost with the panel
        QTRY_COMPARE(label("activity"), QStringLiteral("Looking for the panel..."));
        mpContext->requests.clear();
        receive(PanelMessage::softwareVersion());
        settle();
        // In the middle of a read the store may hold what the panel shows, so this time it is sent after it.
        QCOMPARE(mpContext->requests, QStringList(QStringLiteral("7: 1, 1")) + ReadRequest);
        mpContext->requests.clear();
        receive(PanelMessage::page(1, 1, 2));
        receive(PanelMessage::picture(1, 1, 1));
        receive(PanelMessage::picture(1, 1, 2));
        QTRY_COMPARE(finished("Configuration read: 2 keys on 1 pages"), 1);
        QCOMPARE(mpContext->store.getKeyAttribute({1, 1, 2})->strTitle, QStringLiteral("kept"));
        QCOMPARE(mpContext->store.getKeyAttribute({1, 1, 2})->mFId, 6);
        QTRY_VERIFY(!mpContext->requests.isEmpty());
        QCOMPARE(mpContext->requests.last(), QStringLiteral("1: 1 1 2, id 6"));
    }

    void readReplacesTheKeysAndKeepsTheEditorLockedMeanwhile_data()
    {
        QTest::addColumn<bool>("asked");
        QTest::addColumn<bool>("whole");
        QTest::addColumn<int>("keysLeft"); // one came, one was there before
        QTest::newRow("whole") << true << true << 1;
        QTest::newRow("given up") << true << false << 2;
        QTest::newRow("page that the panel sends by itself") << false << true << 2;
    }

    void readReplacesTheKeysAndKeepsTheEditorLockedMeanwhile()
    {
        QFETCH(bool, asked);
        QFETCH(bool, whole);
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
        QTEST(mpContext->store.getKeys().size(), "keysLeft");
        QCOMPARE(label("activity"),
                 whole ? QStringLiteral("Connected")
                       : QStringLiteral("Connected. The configuration was not read to its end."));
    }

    /// Neither the half-read store nor what the panel still showed may get onto the disk.
    void leavingInTheMiddleOfAReadKeepsUntakenEdits()
    {
        startReading();
        mpContext->store.createKeyAttribute(1, 1, 1, 6);
        mpWidget.reset();
        mpContext->store.setTitle({1, 1, 1}, QStringLiteral("kept"));
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
        QCOMPARE(mpContext->store.getKeyAttribute({1, 1, 1})->strTitle, QStringLiteral("kept"));
    }

    void answerDecodedAfterTheLinkBrokeDoesNotShowThePanelAsConnected()
    {
        receive(PanelMessage::message(13, QByteArray(2, '\0'))); // takes its worker 100 ms
        receive(PanelMessage::softwareVersion());
        mpContext->thread.sigUsbConnectState(false);
        settle();
        QCOMPARE(label("softwareVersion"), QStringLiteral("PIC Software Version: SW 3.4"));
        QCOMPARE(label("activity"), QStringLiteral("Looking for the panel..."));
    }

    void timeOutBoxSaysWhatFailed_data()
    {
        QTest::addColumn<int>("requestId");
        QTest::addColumn<QString>("text");
        QTest::newRow("import") << 5 << QStringLiteral(u"Import failed\uFF0CPlease try again!");
        QTest::newRow("video") << 1 << QStringLiteral(u"Import video failed\uFF0CPlease try again!");
        QTest::newRow("read") << 8 << QStringLiteral(u"Read failed\uFF0CPlease try again!");
        QTest::newRow("any other") << 3 << QString();
    }

    void timeOutBoxSaysWhatFailed()
    {
        QFETCH(int, requestId);
        QFETCH(QString, text);
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
