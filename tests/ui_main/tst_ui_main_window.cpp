// What the main window shows and does for the person: host actions, pages, spinner, set-up.
#include "ui_main/pageview.h"
#include "ui_main/waitingspinnerwidget.h"
#include "ui_main/widget.h"
#include "uimainfakes.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

class tst_ui_main_window : public QObject
{
    Q_OBJECT
    TemporaryCurrentDir mDir;

private slots:
    void keyPressIsCarriedOut_data()
    {
        QTest::addColumn<int>("fid");
        QTest::addColumn<QString>("command");
        QTest::addColumn<bool>("succeeds");
        QTest::addColumn<QStringList>("calls");
        QTest::addColumn<QString>("log");
        const QString path = QStringLiteral("C:/My files/a b.txt");
        const QString text = QStringLiteral(u"Gr\u00FC\u00DFe");
        const auto list = [](const char *a, const char *b = nullptr) {
            QStringList calls(QString::fromUtf8(a));
            return b ? calls << QString::fromUtf8(b) : calls;
        };
        QTest::newRow("home page") << 1 << QStringLiteral("ignored") << true
                                   << list("url https://duckduckgo.com/")
                                   << QStringLiteral("[1] open home page ok");
        QTest::newRow("home page refused") << 1 << QString() << false << list("url https://duckduckgo.com/")
                                           << QStringLiteral("[3] open home page fail");
        QTest::newRow("file") << 2 << path << true << list("file C:/My files/a b.txt") << QString();
        QTest::newRow("file that fails")
            << 2 << path << false << list("file C:/My files/a b.txt") << QString();
        QTest::newRow("address") << 3 << QStringLiteral("http://a.b/c d") << true
                                 << list("url http://a.b/c%20d")
                                 << QStringLiteral("[1] open http://a.b/c d ok");
        QTest::newRow("address refused")
            << 3 << QStringLiteral("http://a.b/") << false << list("url http://a.b/")
            << QStringLiteral("[3] open http://a.b/ fail");
        QTest::newRow("text") << 15 << text << true << list("clipboard Gr\u00FC\u00DFe", "paste")
                              << QString();
        QTest::newRow("empty text") << 15 << QString() << true << list("clipboard ", "paste") << QString();
        QTest::newRow("text without an X server")
            << 15 << text << false << list("clipboard Gr\u00FC\u00DFe", "paste")
            << QStringLiteral("[2] Ctrl+V cannot be pressed here, the text stays on the clipboard");
        QTest::newRow("the panel's own function") << 6 << QString() << true << QStringList() << QString();
        QTest::newRow("no function at all") << -1 << QString() << true << QStringList() << QString();
    }

    void keyPressIsCarriedOut()
    {
        QFETCH(int, fid);
        QFETCH(QString, command);
        QFETCH(bool, succeeds);
        QFETCH(QStringList, calls);
        QFETCH(QString, log);
        FakeContext context;
        RecordingDesktop desktop;
        desktop.succeeds = succeeds;
        Widget window(context, desktop);
        const LogCapture capture;
        context.thread.execCommand(fid, command);
        context.thread.execCommand(2, QStringLiteral("end"));
        QTRY_VERIFY(desktop.calls.contains(QStringLiteral("file end")));
        QCOMPARE(desktop.calls, calls + QStringList(QStringLiteral("file end")));
        QCOMPARE(capture.matching("open") + capture.matching("clipboard"),
                 log.isEmpty() ? QStringList() : QStringList(log));
    }

    void setUpStopsAtWhatIsMissing_data()
    {
        QTest::addColumn<bool>("hasLanguage");
        QTest::addColumn<bool>("hasStore");
        QTest::addColumn<QString>("log");
        QTest::newRow("all there") << true << true << QString();
        QTest::newRow("no texts") << false << true << QStringLiteral("[3] setup status frame error");
        QTest::newRow("no store") << true << false << QStringLiteral("[3] setup main frame error");
    }

    void setUpStopsAtWhatIsMissing()
    {
        QFETCH(bool, hasLanguage);
        QFETCH(bool, hasStore);
        QFETCH(QString, log);
        FakeContext context;
        context.hasLanguage = hasLanguage;
        context.hasStore = hasStore;
        const LogCapture capture;
        RecordingDesktop desktop;
        const Widget window(context, desktop);
        QCOMPARE(window.isReady(), log.isEmpty());
        QCOMPARE(capture.matching("setup "), log.isEmpty() ? QStringList() : QStringList(log));
    }

    void turningAPageTellsThePanel()
    {
        FakeContext context;
        RecordingDesktop desktop;
        Widget window(context, desktop);
        auto *next = window.findChild<QPushButton *>(QStringLiteral("nextPage"));
        auto *previous = window.findChild<QPushButton *>(QStringLiteral("prevPage"));
        QVERIFY(!previous->isEnabled());
        QStringList expected;
        for (int page = 2; page <= 16; ++page) {
            next->click();
            expected << QStringLiteral("7: 1, %1").arg(page);
        }
        QCOMPARE(context.requests, expected);
        QVERIFY(!next->isEnabled());
        QCOMPARE(window.findChild<QLabel *>(QStringLiteral("page"))->text(), QStringLiteral("16/16"));
        previous->click();
        QCOMPARE(context.requests.last(), QStringLiteral("7: 1, 15"));
    }

    void readButtonWorksOnlyWithAPanel()
    {
        FakeContext context;
        RecordingDesktop desktop;
        Widget window(context, desktop);
        auto *button = window.findChild<QPushButton *>(QStringLiteral("readDeviceConfig"));
        QVERIFY(!button->isEnabled());
        context.thread.sigUsbConnectState(true);
        QTRY_VERIFY(button->isEnabled());
        button->click();
        QCOMPARE(context.requests,
                 QStringList({QStringLiteral("dialog 8: 100000"), QStringLiteral("8: 60")}));
        context.hideWaitingDialog();
        QVERIFY(!button->isEnabled());
    }

    void spinnerDisablesItsParentUntilTheTimeIsOver()
    {
        QWidget parent;
        parent.resize(400, 300);
        WaitingSpinnerWidget spinner(&parent);
        parent.show();
        QCOMPARE(spinner.size(), QSize(120, 120));
        QCOMPARE(spinner.minimumSize(), spinner.maximumSize());
        QCOMPARE(spinner.findChild<QTimer *>(QStringLiteral("animation"))->interval(), 83);
        QVERIFY(!spinner.isVisible());

        QSignalSpy timedOut(&spinner, &WaitingSpinnerWidget::sigRequestId);
        const LogCapture log;
        spinner.start(5, 60000);
        QVERIFY(spinner.isVisible());
        QVERIFY(!parent.isEnabled());
        QCOMPARE(spinner.geometry().center(), QPoint(199, 149));
        QCOMPARE(log.count("[1] -----showWaitingDialog---------nRequestId=[5]"), 1);
        QCOMPARE(log.count("[1] --------------setShowTime-----_requestId[5]"), 1);
        spinner.updateShowTime(1);
        QVERIFY(timedOut.wait());
        QCOMPARE(timedOut.first().first().toInt(), 5);
        QCOMPARE(log.count("[1] --------------stop-----_requestId[5]"), 1);
        QVERIFY(!spinner.isVisible());
        QVERIFY(parent.isEnabled());
        QCOMPARE(spinner.requestId(), 0);
    }

    void stoppedSpinnerStaysSilent()
    {
        QWidget parent;
        WaitingSpinnerWidget spinner(&parent);
        QSignalSpy timedOut(&spinner, &WaitingSpinnerWidget::sigRequestId);
        spinner.start(8, 0);
        spinner.stop();
        spinner.updateShowTime(0);
        QVERIFY(!spinner.isSpinning());
        QVERIFY(parent.isEnabled());
        QCoreApplication::processEvents();
        QCOMPARE(timedOut.count(), 0);
    }

    void spinnerTrailFades()
    {
        QCOMPARE(WaitingSpinnerWidget::lineOpacity(0), 1.0);
        QVERIFY(WaitingSpinnerWidget::lineOpacity(4) < WaitingSpinnerWidget::lineOpacity(3));
        QCOMPARE(WaitingSpinnerWidget::lineOpacity(9), 0.15); // 70 % of the other 11 lines
        QCOMPARE(WaitingSpinnerWidget::lineOpacity(11), 0.15);
    }

    void keysKeepTheirShapeAndPlace_data()
    {
        QTest::addColumn<QSize>("area");
        QTest::addColumn<int>("keyId");
        QTest::addColumn<QRect>("place");
        QTest::newRow("panel's own size, first key") << QSize(514, 284) << 1 << QRect(0, 0, 90, 84);
        QTest::newRow("end of the first row") << QSize(514, 284) << 5 << QRect(424, 0, 90, 84);
        QTest::newRow("second row") << QSize(514, 284) << 6 << QRect(0, 100, 90, 84);
        QTest::newRow("last key") << QSize(514, 284) << 15 << QRect(424, 200, 90, 84);
        QTest::newRow("twice the size") << QSize(1028, 568) << 15 << QRect(848, 400, 180, 168);
        QTest::newRow("too wide: centred") << QSize(714, 284) << 1 << QRect(100, 0, 90, 84);
        QTest::newRow("too high: centred") << QSize(514, 384) << 1 << QRect(0, 50, 90, 84);
    }

    void keysKeepTheirShapeAndPlace()
    {
        QFETCH(QSize, area);
        QFETCH(int, keyId);
        QTEST(keyPreviewRect(area, keyId), "place");
    }

    void pageShowsPicturesAsTheyAreNow()
    {
        const QString path = mDir.path("picture.png");
        const auto writePicture = [&path](const QColor &colour, QSize size) {
            QImage image(size, QImage::Format_RGB32);
            image.fill(colour);
            QVERIFY(image.save(path));
        };
        vorlinmodel::FunctionManager store;
        store.createKeyAttribute(1, 1, 2, 5);
        store.setCustomImage({1, 1, 2}, path);
        QWidget window;
        PageView view(store, &window);
        view.resize(514, 284);
        const auto colourOf = [&view](int keyId) {
            return view.grab().toImage().pixelColor(keyPreviewRect(view.size(), keyId).center());
        };
        writePicture(Qt::red, {90, 84});
        view.showPage(1, 1);
        QCOMPARE(colourOf(2), QColor(Qt::red));
        QCOMPARE(colourOf(1), QColor(108, 108, 108));
        writePicture(Qt::blue, {45, 42});
        view.showPage(1, 1);
        QCOMPARE(colourOf(2), QColor(Qt::blue));
        view.showPage(1, 2);
        QCOMPARE(colourOf(2), QColor(108, 108, 108));
    }

    void whatIsNoPictureLeavesTheKeyBlack()
    {
        QFile file(mDir.path("video.mp4"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(1000, 'x'));
        file.close();
        vorlinmodel::FunctionManager store;
        store.createKeyAttribute(1, 1, 1, 17);
        store.setCustomVideo({1, 1, 1}, file.fileName());
        PageView view(store, nullptr);
        view.resize(514, 284);
        view.showPage(1, 1);
        QCOMPARE(view.grab().toImage().pixelColor(45, 42), QColor(Qt::black));
    }
};

QTEST_MAIN(tst_ui_main_window)
#include "tst_ui_main_window.moc"
