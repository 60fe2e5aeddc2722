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
        QTest::addColumn<QString>("calls");
        QTest::addColumn<QStringList>("log");
        const auto row = [](const char *name, int fid, const char *command, bool succeeds, const char *calls,
                            const char *log) {
            QTest::newRow(name) << fid << QString::fromUtf8(command) << succeeds << QString::fromUtf8(calls)
                                << QString::fromUtf8(log).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        };
        row("home page", 1, "ignored", true, "url https://duckduckgo.com/;", "1 open home page ok");
        row("home page refused", 1, "", false, "url https://duckduckgo.com/;", "3 open home page fail");
        row("file that fails", 2, "C:/My files/a b.txt", false, "file C:/My files/a b.txt;", "");
        row("address", 3, "http://a.b/c d", true, "url http://a.b/c%20d;", "1 open http://a.b/c d ok");
        row("address refused", 3, "http://a.b/", false, "url http://a.b/;", "3 open http://a.b/ fail");
        row("empty text", 15, "", true, "clipboard ;paste;", "");
        row("text without an X server", 15, "Gr\u00FC\u00DFe", false, "clipboard Gr\u00FC\u00DFe;paste;",
            "2 Ctrl+V cannot be pressed here, the text stays on the clipboard");
        row("the panel's own function", 6, "", true, "", "");
    }

    void keyPressIsCarriedOut()
    {
        QFETCH(int, fid);
        QFETCH(QString, command);
        QFETCH(bool, succeeds);
        QFETCH(QString, calls);
        FakeContext context;
        RecordingDesktop desktop;
        desktop.succeeds = succeeds;
        Widget window(context, desktop);
        const LogCapture capture;
        context.thread.execCommand(fid, command);
        context.thread.execCommand(2, QStringLiteral("end"));
        QTRY_VERIFY(desktop.calls.contains(QStringLiteral("file end")));
        QCOMPARE(desktop.calls.join(QLatin1Char(';')), calls + QStringLiteral("file end"));
        QTEST(capture.matching("open") + capture.matching("clipboard"), "log");
    }

    void setUpStopsAtWhatIsMissing()
    {
        const LogCapture capture;
        RecordingDesktop desktop;
        FakeContext withoutTexts;
        withoutTexts.hasLanguage = false;
        QVERIFY(!Widget(withoutTexts, desktop).isReady());
        FakeContext withoutStore;
        withoutStore.hasStore = false;
        QVERIFY(!Widget(withoutStore, desktop).isReady());
        QCOMPARE(capture.matching("setup "), QStringList({QStringLiteral("3 setup status frame error"),
                                                          QStringLiteral("3 setup main frame error")}));
    }

    void turningAPageTellsThePanel()
    {
        FakeContext context;
        RecordingDesktop desktop;
        Widget window(context, desktop);
        auto *next = window.findChild<QPushButton *>(QStringLiteral("nextPage"));
        auto *previous = window.findChild<QPushButton *>(QStringLiteral("prevPage"));
        QVERIFY(!previous->isEnabled());
        for (int page = 2; page <= 16; ++page) {
            next->click();
            QCOMPARE(context.requests.last(), QStringLiteral("7: 1, %1").arg(page));
        }
        QVERIFY(!next->isEnabled());
        previous->click();
        QCOMPARE(context.requests.last(), QStringLiteral("7: 1, 15"));
        QCOMPARE(context.requests.size(), 16);
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
        QVERIFY(!spinner.isVisible());

        QSignalSpy timedOut(&spinner, &WaitingSpinnerWidget::sigRequestId);
        const LogCapture log;
        spinner.start(5, 60000);
        QVERIFY(spinner.isVisible());
        QVERIFY(!parent.isEnabled());
        QCOMPARE(spinner.geometry().center(), QPoint(199, 149));
        spinner.updateShowTime(1);
        QVERIFY(timedOut.wait());
        QCOMPARE(timedOut.first().first().toInt(), 5);
        QCOMPARE(log.matching("[5]"),
                 QStringList({QStringLiteral("1 -----showWaitingDialog---------nRequestId=[5]"),
                              QStringLiteral("1 --------------setShowTime-----_requestId[5]"),
                              QStringLiteral("1 --------------stop-----_requestId[5]")}));
        QVERIFY(!spinner.isVisible());
        QVERIFY(parent.isEnabled());

        spinner.start(8, 0);
        spinner.stop();
        spinner.updateShowTime(0);
        QCoreApplication::processEvents();
        QVERIFY(parent.isEnabled());
        QCOMPARE(timedOut.count(), 1); // what was stopped stays silent
    }

    void keysKeepTheirShapeAndPlace_data()
    {
        QTest::addColumn<QSize>("area");
        QTest::addColumn<int>("keyId");
        QTest::addColumn<QRect>("place");
        QTest::newRow("end of the first row") << QSize(514, 284) << 5 << QRect(424, 0, 90, 84);
        QTest::newRow("second row") << QSize(514, 284) << 6 << QRect(0, 100, 90, 84);
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
        QFile video(mDir.path("video.mp4"));
        QVERIFY(video.open(QIODevice::WriteOnly));
        video.write(QByteArray(1000, 'x'));
        video.close();
        vorlinmodel::FunctionManager store;
        store.createKeyAttribute(1, 1, 2, 5);
        store.setCustomImage({1, 1, 2}, path);
        store.createKeyAttribute(1, 1, 3, 17);
        store.setCustomVideo({1, 1, 3}, video.fileName());
        PageView view(store, nullptr);
        view.resize(514, 284);
        const auto colourOf = [&view](int keyId) {
            return view.grab().toImage().pixelColor(keyPreviewRect(view.size(), keyId).center());
        };
        writePicture(Qt::red, {90, 84});
        view.showPage(1, 1);
        QCOMPARE(colourOf(2), QColor(Qt::red));
        QCOMPARE(colourOf(1), QColor(108, 108, 108)); // no function
        QCOMPARE(colourOf(3), QColor(Qt::black));     // what is no picture
        writePicture(Qt::blue, {45, 42});
        view.showPage(1, 1);
        QCOMPARE(colourOf(2), QColor(Qt::blue));
        view.showPage(1, 2);
        QCOMPARE(colourOf(2), QColor(108, 108, 108));
    }
};

QTEST_MAIN(tst_ui_main_window)
#include "tst_ui_main_window.moc"
