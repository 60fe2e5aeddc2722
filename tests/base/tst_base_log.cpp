#include "base/log.h"

#include "logcapture.h"
#include "support/table.h"

#include <QtTest>
#include <atomic>
#include <optional>
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
    using LineTable = Table<LogLevel, QByteArray, QByteArray>;

    std::optional<QTemporaryDir> mDir;

    QString folder() const { return mDir->filePath("log"_s); }

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
        const LineTable row;
        row("warning, line end of its own", LogLevel::Warn, "text\n", "[Warn] text\n");
        row("error, several line ends", LogLevel::Error, "text\n\r\n", "[Error] text\n");
        row("debug", LogLevel::Debug, "text", "[debug] text\n");
        row("empty", LogLevel::Info, "\n", "[Info] \n");
        row("trailing blank is kept", LogLevel::Info, "02 1b ", "[Info] 02 1b \n");
        row("inner line end", LogLevel::Info, "first\nsecond\n", "[Info] first second\n");
        row("not UTF-8", LogLevel::Info, "a\xB0z", "[Info] a\xEF\xBF\xBDz\n");
    }

    void lineHasTimeTagTextAndOneLineEnd()
    {
        const auto [level, text, line] = LineTable::current();
        Log(level, "%s", text.constData());
        stopLog();
        QCOMPARE(today(), "2026-11-21T10:20:30.123 " + line);
    }

    void textAroundTheFirstBufferIsCompleteAndASecondStartAppends()
    {
        QByteArray expected;
        for (const int length : {511, 512, 100000}) {
            const QByteArray text(length, 'x');
            Log(LogLevel::Info, "%s", text.constData());
            stopLog();
            expected += "2026-11-21T10:20:30.123 [Info] " + text + "\n";
            QCOMPARE(today(), expected);
            startLog(folder());
        }
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

    void warningsAndErrorsAreWrittenAtReturnOtherLinesSoonAfter()
    {
        Log(LogLevel::Warn, "zero");
        QVERIFY2(today().endsWith("[Warn] zero\n"), today().constData());
        Log(LogLevel::Info, "one");
        QTRY_VERIFY(today().endsWith("[Info] one\n")); // within a second, on a machine at rest
        Log(LogLevel::Debug, "two");                   // the writer has gone back to sleep meanwhile
        QTRY_VERIFY(today().endsWith("[debug] two\n"));
    }

    void linesOfSeveralThreadsStayWholeAndInOrder()
    {
        std::vector<std::thread> threads;
        for (int writer = 0; writer < 4; ++writer) {
            threads.emplace_back([writer] {
                for (int i = 0; i < 500; ++i)
                    Log(i % 50 ? LogLevel::Info : LogLevel::Warn, "%d %d tail tail tail", writer, i);
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        stopLog();

        const QRegularExpression pattern("^\\S{23} \\[(Info|Warn)\\] ([0-3]) (\\d+) tail tail tail$"_s);
        QVector<int> next(4, 0);
        const QStringList lines = QString::fromUtf8(today()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        for (const QString &line : lines) {
            const auto match = pattern.match(line);
            QVERIFY2(match.hasMatch(), qUtf8Printable(line));
            QCOMPARE(match.captured(3).toInt(), next[match.captured(2).toInt()]++);
        }
        QCOMPARE(next, QVector<int>(4, 500));
    }

    void filesOlderThanThirtyDaysAreRemovedAtStart()
    {
        stopLog();
        const QDir dir(folder());
        const QString outdated = "application_20261021.log"_s; // 31 days
        const QStringList kept{"application_20261022.log"_s,   // 30 days
                               "application_20261121.log"_s,   // today
                               "application_20269999.log"_s,   // no date
                               "notes_20200101.log"_s};
        for (const QString &name : kept + QStringList(outdated)) {
            QFile file(dir.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        startLog(folder());
        QCOMPARE(dir.entryList(QDir::Files, QDir::Name), kept);
    }

    void fileThatCannotBeOpenedIsTriedAgain()
    {
        stopLog();
        QVERIFY(QDir(folder()).removeRecursively());
        QFile inTheWay(folder());
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        inTheWay.close();
        startLog(folder());
        Log(LogLevel::Error, "goes to standard error");
        QCOMPARE(inTheWay.size(), 0);

        QVERIFY(inTheWay.remove());
        QVERIFY(QDir().mkpath(inTheWay.fileName()));
        Log(LogLevel::Error, "back");
        QCOMPARE(today(), QByteArray("2026-11-21T10:20:30.123 [Error] back\n"));
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
        HeldLog outer;
        Log(LogLevel::Info, "outer");
        for (const bool released : {false, true}) {
            HeldLog inner;
            Log(LogLevel::Info, "inner, released: %d", released);
            if (released)
                inner.release();
        }
        QCOMPARE(capture.lines(), QStringList());
        outer.release();
        outer.release(); // harmless
        QCOMPARE(capture.lines(), texts({"1 outer", "1 inner, released: 1"}));
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
