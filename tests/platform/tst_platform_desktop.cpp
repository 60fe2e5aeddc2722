/// Opening files and pressing paste, on the system that the test runs on.
#include "platform/desktop.h"
#include "support/texts.h"

#include <QDesktopServices>
#include <QtTest>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

using vorlindesk::systemDesktop;

class UrlRecorder : public QObject
{
    Q_OBJECT
public slots:
    void open(const QUrl &url) { opened << url; }

public:
    QList<QUrl> opened;
};

class TestPlatformDesktop : public QObject
{
    Q_OBJECT

    static QString write(const QString &path, const QByteArray &content)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            return {};
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return path;
    }

private slots:
    void startsAProgram_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("blanks") << "two blanks here"_s;
        QTest::newRow("ampersand without blanks") << "r&d"_s;
        QTest::newRow("brackets, caret") << "a (1)^b"_s;
        QTest::newRow("Chinese") << "面板"_s;
    }

    void startsAProgram()
    {
        QFETCH(QString, folder);
        QTemporaryDir dir;
        const QString base = dir.path() + QLatin1Char('/') + folder;
#ifdef Q_OS_WIN
        const QString program =
            write(base + "/start me.cmd"_s, "@echo off\r\ncd . > \"%~dp0started\"\r\nexit\r\n");
#else
        const QString program = write(base + "/start me"_s, "#!/bin/sh\n: > \"$0ed\"\n");
#endif
        QVERIFY(!program.isEmpty());
        QVERIFY(systemDesktop().openFile(QDir::toNativeSeparators(program)));
        // The name of the file that tells it: "start me" + "ed", or "started" beside the program.
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(base + "/start meed"_s) || QFile::exists(base + "/started"_s),
                                 20000);
    }

#ifndef Q_OS_WIN
    void opensADocumentThroughTheDesktop()
    {
        QTemporaryDir dir;
        UrlRecorder recorder;
        QDesktopServices::setUrlHandler("file"_s, &recorder, "open");
        const QString path = write(dir.filePath("a b#c.txt"_s), "text");
        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
        QVERIFY(systemDesktop().openFile(path));
        QVERIFY(systemDesktop().openFile(dir.path())); // a folder is executable, but no program
        QDesktopServices::unsetUrlHandler("file"_s);
        const QList<QUrl> expected = {QUrl::fromLocalFile(path), QUrl::fromLocalFile(dir.path())};
        QCOMPARE(recorder.opened, expected);
        QVERIFY(!systemDesktop().openFile(QString()));
    }

    void withoutAnXServerNothingIsPressed()
    {
        const QByteArray display = qgetenv("DISPLAY");
        qputenv("DISPLAY", ":4711"); // nobody is there
        QVERIFY(!systemDesktop().pressPaste());
        qputenv("DISPLAY", display);
    }
#else
    void pasteIsPressed()
    {
        static QStringList seen;
        seen.clear();
        const HHOOK hook = SetWindowsHookExW(
            WH_KEYBOARD_LL,
            [](int code, WPARAM message, LPARAM data) -> LRESULT {
                const auto *key = reinterpret_cast<const KBDLLHOOKSTRUCT *>(data);
                // The system tells left and right apart; the stroke does not.
                const DWORD plain = key->vkCode == VK_LCONTROL ? DWORD{VK_CONTROL} : key->vkCode;
                seen << "%1 %2"_s.arg(plain, 0, 16).arg(message == WM_KEYDOWN ? "down"_s : "up"_s);
                return CallNextHookEx(nullptr, code, message, data);
            },
            GetModuleHandleW(nullptr), 0);
        QVERIFY(hook != nullptr);
        QVERIFY(systemDesktop().pressPaste());
        const QStringList expected = {"11 down"_s, "56 down"_s, "56 up"_s, "11 up"_s};
        QTRY_COMPARE(seen, expected);
        UnhookWindowsHookEx(hook);
    }
#endif
};

QTEST_GUILESS_MAIN(TestPlatformDesktop)
#include "tst_platform_desktop.moc"
