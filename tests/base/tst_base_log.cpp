#include "base/log.h"

#include "logcapture.h"

#include <QDateTime>
#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <atomic>
#include <optional>
#include <string>
#include <thread>
#include <vector>

using namespace vorlindesk;

Q_DECLARE_METATYPE(vorlindesk::LogLevel)

namespace {

std::atomic<qint64> timeMs;

qint64 fixedClock()
{
    return timeMs;
}

void setTime(const char *isoText)
{
    timeMs = QDateTime::fromString(QLatin1String(isoText), Qt::ISODateWithMs).toMSecsSinceEpoch();
}

} // namespace

class TestLog : public QObject
{
    Q_OBJECT

    std::optional<QTemporaryDir> mDir;

    QString folder() const { return mDir->filePath(QStringLiteral("log")); }

    QByteArray content(const char *fileName) const
    {
        QFile file(folder() + QLatin1Char('/') + QLatin1String(fileName));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }
    QByteArray today() const { return content("application_20261121.log"); }

private slots:
    void init()
    {
        mDir.emplace();
        setTime("2026-11-21T10:20:30.123");
        setLogClock(fixedClock);
        startLog(folder());
    }

    void cleanup()
    {
        stopLog();
        setLogClock(nullptr);
    }

    void lineHasTimeTagTextAndOneLineEnd_data()
    {
        QTest::addColumn<LogLevel>("level");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("line");
        const auto row = [](const char *name, LogLevel level, const QByteArray &text, const char *line) {
            QTest::newRow(name) << level << text << QByteArray("2026-11-21T10:20:30.123 ") + line;
        };
        row("info", LogLevel::Info, "text", "[Info] text\n");
        row("warning, line end of its own", LogLevel::Warn, "text\n", "[Warn] text\n");
        row("error, several line ends", LogLevel::Error, "text\n\r\n", "[Error] text\n");
        row("debug", LogLevel::Debug, "text", "[debug] text\n");
        row("empty", LogLevel::Info, "\n", "[Info] \n");
        row("trailing blank is kept", LogLevel::Info, "02 1b ", "[Info] 02 1b \n");
        row("inner line end", LogLevel::Info, "first\nsecond\n", "[Info] first second\n");
        row("Chinese", LogLevel::Info, "写入失败:", "[Info] 写入失败:\n");
        row("not UTF-8", LogLevel::Info, "a\xB0z", "[Info] a\xEF\xBF\xBDz\n");
    }

    void lineHasTimeTagTextAndOneLineEnd()
    {
        QFETCH(LogLevel, level);
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, line);
        Log(level, "%s", text.constData());
        stopLog();
        QCOMPARE(today(), line);
    }

    void textOfAnyLengthIsComplete_data()
    {
        QTest::addColumn<int>("length");
        QTest::newRow("fits the first buffer") << 511;
        QTest::newRow("one too many") << 512;
        QTest::newRow("long") << 100000;
    }

    void textOfAnyLengthIsComplete()
    {
        QFETCH(int, length);
        const QByteArray text(length, 'x');
        Log(LogLevel::Info, "%s", text.constData());
        stopLog();
        QCOMPARE(today(), "2026-11-21T10:20:30.123 [Info] " + text + "\n");
    }

    void midnightStartsANewFile()
    {
        setTime("2026-11-21T23:59:59.999");
        Log(LogLevel::Info, "before\n");
        setTime("2026-11-22T00:00:00.000");
        Log(LogLevel::Info, "after\n");
        stopLog();
        QCOMPARE(today(), QByteArray("2026-11-21T23:59:59.999 [Info] before\n"));
        QCOMPARE(content("application_20261122.log"), QByteArray("2026-11-22T00:00:00.000 [Info] after\n"));
    }

    void secondStartAppends()
    {
        Log(LogLevel::Info, "first");
        stopLog();
        startLog(folder());
        Log(LogLevel::Info, "second");
        stopLog();
        QCOMPARE(today(),
                 QByteArray("2026-11-21T10:20:30.123 [Info] first\n2026-11-21T10:20:30.123 [Info] second\n"));
    }

    void warningsAndErrorsAreWrittenAtReturn()
    {
        Log(LogLevel::Info, "one");
        Log(LogLevel::Warn, "two");
        QVERIFY2(today().endsWith("[Info] one\n2026-11-21T10:20:30.123 [Warn] two\n"), today().constData());
        Log(LogLevel::Error, "three");
        QVERIFY2(today().endsWith("[Error] three\n"), today().constData());
    }

    void otherLinesAreWrittenWithinASecond()
    {
        Log(LogLevel::Info, "one");
        QTRY_VERIFY_WITH_TIMEOUT(today().endsWith("[Info] one\n"), 1000);
        Log(LogLevel::Debug, "two"); // the writer has gone back to sleep meanwhile
        QTRY_VERIFY_WITH_TIMEOUT(today().endsWith("[debug] two\n"), 1000);
    }

    void linesOfSeveralThreadsStayWholeAndInOrder()
    {
        constexpr int Writers = 4;
        constexpr int Lines = 500;
        std::vector<std::thread> threads;
        for (int writer = 0; writer < Writers; ++writer) {
            threads.emplace_back([writer] {
                for (int i = 0; i < Lines; ++i)
                    Log(i % 50 ? LogLevel::Info : LogLevel::Warn, "%d %d %s", writer, i, "tail tail tail");
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        stopLog();

        static const QRegularExpression Pattern(
            QStringLiteral("^\\S{23} \\[(Info|Warn)\\] (\\d) (\\d+) tail tail tail$"));
        QVector<int> next(Writers, 0);
        const QStringList lines = QString::fromUtf8(today()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        for (const QString &line : lines) {
            const auto match = Pattern.match(line);
            QVERIFY2(match.hasMatch(), qUtf8Printable(line));
            QCOMPARE(match.captured(3).toInt(), next[match.captured(2).toInt()]++);
        }
        QCOMPARE(next, QVector<int>(Writers, Lines));
    }

    void filesOlderThanThirtyDaysAreRemovedAtStart()
    {
        stopLog();
        QDir dir(folder());
        const QStringList names{QStringLiteral("application_20261021.log"), // 31 days
                                QStringLiteral("application_20261022.log"), // 30 days
                                QStringLiteral("application_20269999.log"), // no date
                                QStringLiteral("notes_20200101.log")};
        for (const QString &name : names) {
            QFile file(dir.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        startLog(folder());
        const QStringList expected{
            QStringLiteral("application_20261022.log"), QStringLiteral("application_20261121.log"),
            QStringLiteral("application_20269999.log"), QStringLiteral("notes_20200101.log")};
        QCOMPARE(dir.entryList(QDir::Files, QDir::Name), expected);
    }

    void fileThatCannotBeOpenedIsTriedAgain()
    {
        stopLog();
        QFile inTheWay(mDir->filePath(QStringLiteral("taken")));
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        inTheWay.close();
        startLog(inTheWay.fileName());
        Log(LogLevel::Error, "goes to standard error");
        QCOMPARE(inTheWay.size(), 0);

        QVERIFY(inTheWay.remove());
        QVERIFY(QDir().mkpath(inTheWay.fileName()));
        Log(LogLevel::Error, "back");
        QFile file(inTheWay.fileName() + QStringLiteral("/application_20261121.log"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("2026-11-21T10:20:30.123 [Error] back\n"));
    }

    void heldLinesKeepTheirTime()
    {
        HeldLog held;
        Log(LogLevel::Error, "tried");
        setTime("2026-11-21T10:20:31.456");
        QCOMPARE(today(), QByteArray());
        std::thread([] { Log(LogLevel::Warn, "other thread"); }).join();
        held.release();
        Log(LogLevel::Warn, "later");
        QCOMPARE(today(), QByteArray("2026-11-21T10:20:31.456 [Warn] other thread\n"
                                     "2026-11-21T10:20:30.123 [Error] tried\n"
                                     "2026-11-21T10:20:31.456 [Warn] later\n"));
    }

    void heldLinesAreDroppedUnlessReleased()
    {
        LogCapture capture;
        {
            HeldLog outer;
            Log(LogLevel::Info, "outer");
            {
                HeldLog dropped;
                Log(LogLevel::Info, "dropped");
            }
            {
                HeldLog inner;
                Log(LogLevel::Info, "inner");
                inner.release();
            }
            QCOMPARE(capture.lines(), QStringList());
            outer.release();
            outer.release(); // harmless
        }
        Log(LogLevel::Debug, "free\n");
        QCOMPARE(capture.lines(), QStringList({QStringLiteral("1 outer"), QStringLiteral("1 inner"),
                                               QStringLiteral("4 free")}));
    }

    void systemInformationHasFiveLines()
    {
        LogCapture capture;
        logSystemInformation();
        const char *const Starts[] = {
            "1 OS:", "1 Kernel:", "1 Kernel Version:", "1 CPU Architecture:", "1 Build ABI:"};
        const QStringList lines = capture.lines();
        QCOMPARE(lines.size(), 5);
        for (int i = 0; i < 5; ++i) {
            QVERIFY2(lines[i].startsWith(QLatin1String(Starts[i])), qUtf8Printable(lines[i]));
            QVERIFY2(!lines[i].endsWith(QLatin1Char(':')), qUtf8Printable(lines[i]));
        }
    }

    void hexDumpIsLowerCaseWithABlankBehindEachByte()
    {
        const quint8 bytes[] = {0x00, 0x1B, 0xFF};
        QCOMPARE(hexDump(bytes, 3), QByteArray("00 1b ff "));
        QCOMPARE(hexDump(bytes, 0), QByteArray());
    }
};

QTEST_GUILESS_MAIN(TestLog)
#include "tst_base_log.moc"
