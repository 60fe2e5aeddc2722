// What the main window shows and does for the person: host actions, pages, spinner, set-up.
#include "ui_editor/functionconfigwidget.h"
#include "ui_main/waitingspinnerwidget.h"
#include "ui_main/widget.h"
#include "ui_main/windowstate.h"
#include "uimainfakes.h"

#include <QLabel>
#include <QPushButton>
#include <QScreen>
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
        auto *editor = window.findChild<FunctionConfigWidget *>();
        editor->onKeyboardPrevPageButtonClicked();
        for (int page = 2; page <= 16; ++page) {
            editor->onKeyboardNextPageButtonClicked();
            QCOMPARE(context.requests.last(), QStringLiteral("7: 1, %1").arg(page));
        }
        editor->onKeyboardNextPageButtonClicked();
        editor->onKeyboardPrevPageButtonClicked();
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

    void windowComesBackAsItWasLeft()
    {
        FakeContext context;
        RecordingDesktop desktop;
        QRect left;
        {
            Widget window(context, desktop);
            window.setGeometry(30, 20, 700, 560);
            window.show();
            left = window.geometry();
            auto *editor = window.findChild<FunctionConfigWidget *>();
            for (int page = 2; page <= 4; ++page)
                editor->onKeyboardNextPageButtonClicked();
            window.close();
        }
        Widget window(context, desktop);
        QCOMPARE(window.geometry(), left);
        QCOMPARE(window.findChild<FunctionConfigWidget *>()->curPageId(), 4);
    }

    void stateThatMakesNoSenseIsMended_data()
    {
        QTest::addColumn<int>("layoutId");
        QTest::addColumn<int>("pageId");
        QTest::newRow("deleted layout") << 14 << 3;
        QTest::newRow("page beyond the last") << 1 << 17;
        QTest::newRow("page before the first") << 1 << 0;
    }

    void stateThatMakesNoSenseIsMended()
    {
        QFETCH(int, layoutId);
        QFETCH(int, pageId);
        QWidget far;
        far.setGeometry(20000, 20000, 300, 200);
        saveWindowState({far.saveGeometry(), layoutId, pageId});
        const WindowState state = loadWindowState();
        QCOMPARE(state.layoutId, 1);
        QCOMPARE(state.pageId, 1);
        FakeContext context;
        RecordingDesktop desktop;
        Widget window(context, desktop);
        QVERIFY(QGuiApplication::primaryScreen()->availableGeometry().contains(window.geometry().topLeft()));
    }
};

QTEST_MAIN(tst_ui_main_window)
#include "tst_ui_main_window.moc"
