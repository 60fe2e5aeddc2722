// The upgrade dialog over the panel in software, and over a thread that does what the test says.
#include "model/wholefile.h"
#include "panel_model/panelmodel.h"
#include "protocol/protocolthread.h"
#include "resources/translationresources.h"
#include "support/fakehid.h"
#include "support/table.h"
#include "ui_common/filedialog.h"
#include "ui_common/messagebox.h"
#include "ui_main/upgradedialog.h"
#include "uimainfakes.h"

#include <QtWidgets>

using vorlinmodel::Request;

namespace {

/// The thread that is asked: the real one, or at first one that only counts.
class Context : public FakeContext
{
public:
    vorlinmodel::IProtocolThread *protocolThread() override
    {
        return real ? real.get() : FakeContext::protocolThread();
    }
    using FakeContext::sendRequest;
    void sendRequest(vorlinmodel::RequestKind kind, const QString &devicePath,
                     const QString &fileName) override
    {
        requests << "%1: %2, %3"_s.arg(int(kind)).arg(devicePath, fileName);
        last = {quint32(kind), 0, 0, 0, 0, 0, devicePath, fileName, 0};
        if (real)
            real->postRequest(last);
        else if (isAnswered)
            emit thread.sigRequestDone(last, vorlinmodel::RequestOutcome::NoPanel);
    }

    bool isAnswered = true; ///< else requests stay in the queue
    vorlinmodel::Request last;
    std::unique_ptr<vorlinmodel::ProtocolThread> real;
};

} // namespace

using OutcomeTable = Table<PanelFaults, int, QStringList, QString>;
using SilentTable = Table<int>;
using RefusedTable = Table<int, QString>;
Q_DECLARE_METATYPE(PanelFaults)

class tst_ui_main_upgrade : public QObject
{
    Q_OBJECT
    std::unique_ptr<TemporaryCurrentDir> mpDir;
    std::unique_ptr<LogCapture> mpLog;
    std::unique_ptr<Context> mpContext;
    std::unique_ptr<HIDUpgradeDialog> mpDialog;
    std::unique_ptr<PanelModel> mpPanel;
    int mReports = 0;   // that the panel got; of the protocol thread
    QStringList mBoxes; // "title: text"
    QMessageBox::StandardButton mAnswer = QMessageBox::Ok;

    template <class Child>
    Child *child(const char *name) const
    {
        return mpDialog->findChild<Child *>(QString::fromLatin1(name));
    }
    void click(const char *name) { QTest::mouseClick(child<QPushButton>(name), Qt::LeftButton); }
    QStringList lines() const { return child<QPlainTextEdit>("messages")->toPlainText().split(u'\n'); }
    QString state() const { return child<QLabel>("state")->text(); }
    int asked() const { return mpContext->requests.filter("10: "_s).size(); }

    void choose(const QByteArray &bytes)
    {
        QString error;
        QVERIFY(vorlinmodel::writeWholeFile("fw.xft"_s, bytes, error));
        FileDialog::setAnswer([](const QString &caption) {
            return QStringList(caption == "Select File"_s ? "fw.xft"_s : QString());
        });
        click("selectButton");
        QTRY_VERIFY(child<QPushButton>("selectButton")->isEnabled());
    }

    void open(HIDUpgradeDialog::Mode mode = HIDUpgradeDialog::Mode::Firmware)
    {
        mpDialog = std::make_unique<HIDUpgradeDialog>(*mpContext, nullptr, mode);
        QVERIFY(mpDialog->setup());
        mpDialog->show();
    }

    /// A panel behind the real thread. It is unplugged as its faults say, and falls silent before it answers
    /// the given report.
    void openWithPanel(const PanelFaults &faults, int silentFrom = INT_MAX)
    {
        renewFakeHid();
        mReports = 0;
        mpPanel = std::make_unique<PanelModel>();
        mpPanel->setFaults(faults);
        fakeHid().setOnWrite([this, silentFrom](const QByteArray &report) {
            if (++mReports == silentFrom)
                mpPanel->setFaults({true});
            mpPanel->receive(report);
            for (const QByteArray &answer : mpPanel->takeOutgoing())
                fakeHid().send(answer);
            if (mpPanel->takeUnplug())
                fakeHid().setPresent(false);
        });
        mpContext->real = std::make_unique<vorlinmodel::ProtocolThread>(mpContext->store);
        QVERIFY(mpContext->real->Init());
        open();
        mpDialog->setBackup([](const HIDUpgradeDialog::BackedUp &done) {
            done({"backup/of/today"_s, {}});
            return QString();
        });
        mpContext->real->start();
    }

private slots:
    void initTestCase() { initTranslationResources(); }
    void init()
    {
        mpDir = std::make_unique<TemporaryCurrentDir>();
        mpLog = std::make_unique<LogCapture>();
        mpContext = std::make_unique<Context>();
        QVERIFY(mpContext->language.Init());
        mBoxes.clear();
        MessageBox::setAnswer([this](const QMessageBox &box) {
            mBoxes << box.windowTitle() + ": "_s + box.text();
            return mAnswer;
        });
    }
    void cleanup()
    {
        mpDialog.reset();
        mpContext.reset();
        mpPanel.reset();
        MessageBox::setAnswer({});
        mpLog.reset();
        mpDir.reset();
    }

    void outcomes_data()
    {
        const OutcomeTable row;
        const auto unplugged = [&row](const char *name, int reports, int blocks, const QStringList &last) {
            row(name, {false, false, reports}, blocks, last, "Power the panel off and on");
        };
        const auto broken = [](const char *line) {
            return texts({line, "transfer upgrade file error", "Failed to transfer upgrade data"});
        };
        row("success", {}, 11,
            texts({"check crc success", "upgrade success", "please wait for device restart!"}),
            "The upgrade is done");
        row("wrong checksum: the same lines are wanted", {false, true}, 11,
            texts({"check crc fail", "upgrade success", "please wait for device restart!"}),
            "The panel received something else");
        unplugged("unplugged at the request", 1, 0,
                  texts({"receive upgrade response error", "Failed to request upgrade"}));
        unplugged("unplugged at the erasing", 2, 0, texts({"receive ereasue response error"}));
        unplugged("unplugged at the first block", 3, 1, broken("transfer 2 block data error"));
        unplugged("unplugged in the middle", 7, 5, broken("transfer 6 block data error"));
        unplugged("unplugged at the last block", 13, 11,
                  texts({"begin receive crc16", "receive crc16 error", "Failed to receive crc"}));
    }
    void outcomes()
    {
        const auto [faults, blocks, last, told] = OutcomeTable::current();
        openWithPanel(faults);
        choose(QByteArray(570, 'f')); // 576 bytes of message: 11 blocks
        QCOMPARE(child<QLabel>("fileInfo")->text(), "570 bytes, CRC-16 0xaed0"_s);
        click("upgradeButton");
        QTRY_VERIFY2(state().contains(told), qPrintable(state()));
        const QString folder = QDir::toNativeSeparators("backup/of/today"_s);
        QCOMPARE(lines().mid(0, 2), QStringList({"The configuration was saved in "_s + folder,
                                                 "upgrade file:fw.xft  timeout:0 ms"_s}));
        QCOMPARE(lines().mid(lines().size() - last.size()), last);
        QCOMPARE(child<QProgressBar>("progressBar")->value(), blocks);
        QTRY_VERIFY(!mpContext->real->isUpgrading());
        QVERIFY(mpDialog->close());
        QCOMPARE(mBoxes, QStringList()); // no question
    }

    void silentPanel_data()
    {
        const SilentTable row;
        row("at the request", 1);
        row("at the erasing", 2);
        row("at the checksum", 3); // of a file of one block
    }
    void silentPanel()
    {
        const auto [report] = SilentTable::current();
        openWithPanel({}, report);
        mpDialog->setPatience(100);
        choose("x");
        click("upgradeButton");
        QTRY_VERIFY2(state().startsWith("The panel does not answer"_s),
                     qPrintable(state() + lines().join("|"_s)));
        QCOMPARE(asked(), 1); // it took the request: nothing is repeated
        mAnswer = QMessageBox::No;
        QVERIFY(!mpDialog->close());
        QVERIFY(!HIDUpgradeDialog::confirmLeave(*mpContext, nullptr)); // as the main window asks
        QTest::keyClick(mpDialog.get(), Qt::Key_Escape);
        QVERIFY(mpDialog->isVisible());
        const QString question = "Information: In upgrading, confirm that you want to cancel"_s;
        QCOMPARE(mBoxes, QStringList({question, question, question}));
        mAnswer = QMessageBox::Yes;
        QVERIFY(mpDialog->close());
        QElapsedTimer stopping;
        stopping.start();
        mpContext->real->stop();
        QVERIFY(stopping.elapsed() < 2000);
    }

    void refusedFiles_data()
    {
        const RefusedTable row;
        row("empty", 0, "The file is empty.");
        row("one byte too long", 10 * 1024 * 1024 - 5,
            "The file is too large: 10,485,755 bytes. The panel takes at most 10,485,754 bytes.");
        row("gone meanwhile", -1, "The file does not exist.");
    }
    void refusedFiles()
    {
        const auto [size, text] = RefusedTable::current();
        open();
        mpDialog->setBackup([](const HIDUpgradeDialog::BackedUp &) { return "is not asked"_s; });
        choose("x");
        if (size < 0)
            QFile::remove("fw.xft"_s);
        else
            QFile::resize("fw.xft"_s, size);
        click("upgradeButton");
        QTRY_COMPARE(mBoxes, QStringList("tst_ui_main_upgrade: "_s + text));
        QCOMPARE(asked(), 0);
    }

    /// The largest that is sent in practice; a file that changes while the panel is waited for is examined
    /// anew.
    void aLargeFileThatChangesMeanwhile()
    {
#ifdef __SANITIZE_THREAD__
        // So many events of both threads drive the beginning out of the checker's memory: it then reports the
        // list of events, which the library guards, and cannot tell who wrote to it.
        constexpr int size = 90 * 1024;
#else
        constexpr int size = 9 * 1024 * 1024;
#endif
        constexpr int blocks = (size + 6 + 56) / 57;
        openWithPanel({});
        fakeHid().setPresent(false);
        choose("small");
        click("upgradeButton");
        QTRY_VERIFY(mpLog->count("onSlotTimerUpdateOut") > 1);
        QString error;
        QVERIFY(vorlinmodel::writeWholeFile("fw.xft"_s, QByteArray(size, 'f'), error));
        QTRY_VERIFY(child<QLabel>("fileInfo")->text().startsWith(QLocale(QLocale::English).toString(size)));
        fakeHid().setPresent(true);
        QTRY_VERIFY2_WITH_TIMEOUT(state().contains("The upgrade is done"_s), qPrintable(state()), 100'000);
        QCOMPARE(child<QProgressBar>("progressBar")->value(), blocks);
        QCOMPARE(mpPanel->state().firmware.size(), size);
    }

    /// Between its check and the request it is replaced by something else.
    void fileThatChangesDuringTheBackup()
    {
        open();
        int backups = 0;
        mpDialog->setBackup([&](const HIDUpgradeDialog::BackedUp &done) {
            if (++backups == 1)
                QFile::resize("fw.xft"_s, 0);
            done({"backup"_s, {}});
            return QString();
        });
        choose("x");
        click("upgradeButton");
        QTRY_COMPARE(mBoxes, QStringList("tst_ui_main_upgrade: The file is empty."_s));
        QCOMPARE(asked(), 0);
    }

    /// Each try counts as an upgrade until it has found no panel.
    void closesWithoutAQuestionWhileThePanelIsWaitedFor()
    {
        open();
        mpContext->isAnswered = false;
        choose("x");
        click("upgradeButton");
        QTRY_COMPARE(asked(), 1);
        mpContext->thread.upgrading = true;
        mpDialog->close();
        QVERIFY(mpDialog->isVisible());
        mpContext->thread.upgrading = false;
        emit mpContext->thread.sigRequestDone(mpContext->last, vorlinmodel::RequestOutcome::NoPanel);
        QTRY_VERIFY(!mpDialog->isVisible());
        QCOMPARE(mBoxes, QStringList());
        QCOMPARE(asked(), 1);
    }

    void withoutABackupOnlyOnRequest()
    {
        open();
        mpDialog->setBackup([](const HIDUpgradeDialog::BackedUp &done) {
            done({{}, texts({"The disk is full."})});
            return QString();
        });
        choose("x");
        mAnswer = QMessageBox::No;
        click("upgradeButton");
        QTRY_COMPARE(mBoxes.size(), 1);
        QCOMPARE(asked(), 0);
        mAnswer = QMessageBox::Yes;
        click("upgradeButton");
        QTRY_VERIFY(asked() > 0);
    }

    void asksUntilThePanelIsReady()
    {
        open();
        choose("x");
        click("upgradeButton");
        QTRY_VERIFY(asked() > 3);
        QCOMPARE(mpContext->requests.first(), "10: , fw.xft"_s);
        mpContext->isAnswered = false; // behind a long transfer, say: requests do not pile up
        QTest::qWait(3 * HIDUpgradeDialog::RetryPeriod);
        const int waiting = asked();
        QTest::qWait(3 * HIDUpgradeDialog::RetryPeriod);
        QCOMPARE(asked(), waiting);
        emit mpContext->thread.sigSendUpdateAvailable(-1);
        mpContext->thread.upgrading = true;
        const int ticks = mpLog->count("onSlotTimerUpdateOut");
        QTRY_VERIFY(mpLog->count("onSlotTimerUpdateOut") > ticks + 2); // goes on, and shows no box
        QCOMPARE(mBoxes, QStringList());
        click("upgradeButton");
        QCOMPARE(mBoxes, QStringList("Title: The upgrade is in progresss"_s));
        mpContext->thread.upgrading = false;
        emit mpContext->thread.sigSendUpdateAvailable(1);
        QTRY_VERIFY(state().startsWith("The upgrade runs"_s));
        const int before = asked();
        QTest::qWait(250);
        QCOMPARE(asked(), before);
        QCOMPARE(mpLog->lines().first(), "1 HIDUpgradeDialog::onSelectButtonClicked fw.xft"_s);
        QVERIFY(mpLog->lines().contains("4 ----222---------mIsTimerUpdateFinished=false"_s));
        QVERIFY(mpLog->lines().contains("1 onSlotTimerUpdateOut mIsTimerUpdateFinished[0]"_s));
        QCOMPARE(mpLog->matching("updateAvailable"), texts({"4 ---------------updateAvailable---nResult=-1",
                                                            "4 ---------------updateAvailable---nResult=1"}));
    }

    /// As from a panel that is faster than the window: only lines about blocks are left out.
    void surplusLines()
    {
        open();
        emit mpContext->thread.logMessageSignal("first"_s);
        QTRY_COMPARE(lines(), texts({"first"})); // from here on, all come in one bundle
        emit mpContext->thread.logMessageSignal("begin"_s);
        for (int block = 1; block <= 3000; ++block)
            emit mpContext->thread.logMessageSignal("transfer %1 block data ok"_s.arg(block));
        QTRY_COMPARE(lines().size(), 1 + HIDUpgradeDialog::MaxBundle);
        QCOMPARE(lines().at(1) + lines().last(), "begintransfer 3000 block data ok"_s);
    }

    void fontFileIsAskedForOnce()
    {
        open(HIDUpgradeDialog::Mode::FontFile);
        QCOMPARE(child<QLabel>("fileLabel")->text(), "File: "_s);
        choose("x");
        click("upgradeButton");
        QTRY_COMPARE(asked(), 1);
        QTest::qWait(250);
        QCOMPARE(asked(), 1);
    }

    void serviceSettings()
    {
        open();
        child<QLineEdit>("hidPath")->setText("/dev/some path"_s);
        click("setHidPathButton");
        child<QLineEdit>("timeout")->setText("012"_s);
        click("setTimeoutButton");
        QCOMPARE(mpContext->requests, texts({"11: /dev/some path, ", "12: 12"}));
        QCOMPARE(mpLog->lines(), texts({"1 set timeout 12 ms"}));
        child<QLineEdit>("timeout")->clear();
        click("setTimeoutButton");
        QCOMPARE(mpContext->requests.size() + mBoxes.size(), 3);
    }
};

QTEST_MAIN(tst_ui_main_upgrade)
#include "tst_ui_main_upgrade.moc"
