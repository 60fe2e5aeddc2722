// What the main window shows and does for the person: host actions, pages, spinner, set-up.
#include "support/table.h"
#include "ui_editor/functionconfigwidget.h"
#include "ui_main/waitingspinnerwidget.h"
#include "ui_main/widget.h"
#include "ui_main/windowstate.h"
#include "uimainfakes.h"

#include <QtWidgets>

class tst_ui_main_window : public QObject
{
    Q_OBJECT
    using KeyPressTable = Table<int, QString, bool, QString, QString>;
    TemporaryCurrentDir mDir;

    using StateTable = Table<int, int>;

private slots:
    void keyPressIsCarriedOut_data()
    {
        const KeyPressTable
            row; // function, command, whether the desktop succeeds; its calls, line of the log
        row("home page", 1, "ignored", true, "url https://duckduckgo.com/;", "1 open home page ok");
        row("home page refused", 1, "", false, "url https://duckduckgo.com/;", "3 open home page fail");
        row("file that fails", 2, "C:/My files/a b.txt", false, "file C:/My files/a b.txt;", {});
        row("address", 3, "http://a.b/c d", true, "url http://a.b/c%20d;", "1 open http://a.b/c d ok");
        row("address refused", 3, "http://a.b/", false, "url http://a.b/;", "3 open http://a.b/ fail");
        row("empty text", 15, "", true, "clipboard ;paste;", {});
        row("text without an X server", 15, "Gr\u00FC\u00DFe", false, "clipboard Gr\u00FC\u00DFe;paste;",
            "2 Ctrl+V cannot be pressed here, the text stays on the clipboard");
        row("the panel's own function", 6, "", true, "", {});
    }

    void keyPressIsCarriedOut()
    {
        const auto [fid, command, succeeds, calls, line] = KeyPressTable::current();
        FakeContext context;
        RecordingDesktop desktop;
        desktop.succeeds = succeeds;
        Widget window(context, desktop);
        const LogCapture capture;
        context.thread.execCommand(fid, command);
        context.thread.execCommand(2, "end"_s);
        QTRY_VERIFY(desktop.calls.contains("file end"_s));
        QCOMPARE(desktop.calls.join(u';'), calls + "file end"_s);
        QCOMPARE((capture.matching("open") + capture.matching("clipboard")).join(u';'), line);
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
        QCOMPARE(capture.matching("setup "),
                 texts({"3 setup status frame error", "3 setup main frame error"}));
    }

    void readButtonWorksOnlyWithAPanel()
    {
        FakeContext context;
        RecordingDesktop desktop;
        Widget window(context, desktop);
        auto *button = window.findChild<QPushButton *>("readDeviceConfig"_s);
        QVERIFY(!button->isEnabled());
        context.thread.sigUsbConnectState(true);
        QTRY_VERIFY(button->isEnabled());
        button->click();
        QCOMPARE(context.requests, texts({"dialog 8: 100000", "8: 60"}));
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
        spinner.start(5, 60000);
        QVERIFY(spinner.isVisible());
        QVERIFY(!parent.isEnabled());
        QCOMPARE(spinner.geometry().center(), QPoint(199, 149));
        spinner.updateShowTime(1);
        QVERIFY(timedOut.wait());
        QCOMPARE(timedOut.first().first().toInt(), 5);
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
        const StateTable row;
        row("deleted layout", 14, 3);
        row("page beyond the last", 1, 17);
        row("page before the first", 1, 0);
    }

    void stateThatMakesNoSenseIsMended()
    {
        const auto [layoutId, pageId] = StateTable::current();
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
