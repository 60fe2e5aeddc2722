/// Pressing paste under X11, as a window of another connection sees it. Brings its own X server.
#include "platform/desktop.h"
#include "support/texts.h"

#include <QtTest>

// Last, since their macros break Qt's headers; those that QtTest needs go again.
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/keysym.h>
#undef None
#undef Bool

class TestPlatformPaste : public QObject
{
    Q_OBJECT

    QProcess mServer;

private slots:
    void initTestCase()
    {
        const QString program = QStandardPaths::findExecutable("Xvfb"_s);
        if (program.isEmpty())
            QSKIP("needs Xvfb");
        // The server chooses a free number and writes it when it is ready.
        mServer.start(program, {"-displayfd"_s, "1"_s, "-nolisten"_s, "tcp"_s});
        QVERIFY(mServer.waitForReadyRead(20000));
        qputenv("DISPLAY", ":" + mServer.readAllStandardOutput().trimmed());
    }

    void cleanupTestCase()
    {
        mServer.terminate();
        mServer.waitForFinished();
    }

    void theFocusedWindowSeesTheFourStrokesInOrder()
    {
        Display *display = XOpenDisplay(nullptr);
        QVERIFY(display != nullptr);
        const Window window = XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 50, 50, 0, 0, 0);
        XSelectInput(display, window, KeyPressMask | KeyReleaseMask | ExposureMask);
        XMapWindow(display, window);
        XEvent event;
        XWindowEvent(display, window, ExposureMask, &event); // only a window that is shown takes the focus
        XSetInputFocus(display, window, RevertToParent, CurrentTime);
        XSync(display, 0);

        QVERIFY(vorlindesk::systemDesktop().pressPaste());
        QStringList seen;
        for (int i = 0; i < 4; ++i) {
            QTRY_VERIFY(XPending(display) > 0);
            XNextEvent(display, &event);
            const bool press = event.type == KeyPress;
            const KeySym symbol = XLookupKeysym(&event.xkey, 0);
            seen << QString::fromLatin1(press ? "+" : "-") + QString::fromLatin1(XKeysymToString(symbol)) +
                        QString::fromLatin1((event.xkey.state & ControlMask) ? " with Ctrl" : "");
        }
        const QStringList expected = {"+Control_L"_s, "+v with Ctrl"_s, "-v with Ctrl"_s,
                                      "-Control_L with Ctrl"_s};
        QCOMPARE(seen, expected);
        XCloseDisplay(display);
    }
};

QTEST_GUILESS_MAIN(TestPlatformPaste)
#include "tst_platform_paste.moc"
