/// Opening files and pressing paste, on the system that the test runs on.
#include "platform/desktop.h"

#include <QDesktopServices>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

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
        QTest::newRow("blanks") << QStringLiteral("two blanks here");
        QTest::newRow("ampersand without blanks") << QStringLiteral("r&d");
        QTest::newRow("brackets, caret") << QStringLiteral("a (1)^b");
        QTest::newRow("Chinese") << QStringLiteral("面板");
    }

    void startsAProgram()
    {
        QFETCH(QString, folder);
        QTemporaryDir dir;
        const QString base = dir.path() + QLatin1Char('/') + folder;
#ifdef Q_OS_WIN
        const QString program =
            write(base + QStringLiteral("/start me.cmd"), "@echo off\r\ncd . > \"%~dp0started\"\r\nexit\r\n");
#else
        const QString program = write(base + QStringLiteral("/start me"), "#!/bin/sh\n: > \"$0ed\"\n");
#endif
        QVERIFY(!program.isEmpty());
        QVERIFY(systemDesktop().openFile(QDir::toNativeSeparators(program)));
        // The name of the file that tells it: "start me" + "ed", or "started" beside the program.
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(base + QStringLiteral("/start meed")) ||
                                     QFile::exists(base + QStringLiteral("/started")),
                                 20000);
    }

#ifndef Q_OS_WIN
    void opensADocumentThroughTheDesktop()
    {
        QTemporaryDir dir;
        UrlRecorder recorder;
        QDesktopServices::setUrlHandler(QStringLiteral("file"), &recorder, "open");
        const QString path = write(dir.filePath(QStringLiteral("a b#c.txt")), "text");
        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
        QVERIFY(systemDesktop().openFile(path));
        QVERIFY(systemDesktop().openFile(dir.path())); // a folder is executable, but no program
        QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
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
                seen << QStringLiteral("%1 %2")
                            .arg(plain, 0, 16)
                            .arg(message == WM_KEYDOWN ? QStringLiteral("down") : QStringLiteral("up"));
                return CallNextHookEx(nullptr, code, message, data);
            },
            GetModuleHandleW(nullptr), 0);
        QVERIFY(hook != nullptr);
        QVERIFY(systemDesktop().pressPaste());
        const QStringList expected = {QStringLiteral("11 down"), QStringLiteral("56 down"),
                                      QStringLiteral("56 up"), QStringLiteral("11 up")};
        QTRY_COMPARE(seen, expected);
        UnhookWindowsHookEx(hook);
    }
#endif
};

QTEST_GUILESS_MAIN(TestPlatformDesktop)
#include "tst_platform_desktop.moc"
