// What becomes of each kind of message from the panel.
#include "base/handover.h"
#include "base/systemsettings.h"
#include "ui_main/receiveddata.h"
#include "uimainfakes.h"

#include <QtTest>

namespace {

struct Recorder : IReceivedData
{
    void onPageReceived(const ReceivedPage &page) override
    {
        calls << QStringLiteral("page %1 %2 %3 %4")
                     .arg(page.layoutId)
                     .arg(page.pageId)
                     .arg(page.keyCount)
                     .arg(page.first);
        for (const vorlinmodel::key_id_t &key : page.keys)
            calls.last() += QStringLiteral(" %1.%2.%3").arg(key.lid).arg(key.pageid).arg(key.kid);
    }
    void onRecordReceived(int total, int received) override
    {
        calls << QStringLiteral("record %1 %2").arg(total).arg(received);
    }
    void onConfigurationComplete() override { calls << QStringLiteral("complete"); }
    void onTextReceived(int code, const QString &text) override
    {
        calls << QStringLiteral("text %1 %2").arg(code).arg(text);
    }
    void onHomeLayoutReceived(int layoutId) override { calls << QStringLiteral("home %1").arg(layoutId); }
    void onCustomLayoutReceived(const QByteArray &payload) override
    {
        calls << QStringLiteral("layout ") + QString::fromLatin1(payload.toHex());
    }

    QStringList calls;
};

} // namespace

class tst_ui_main_received : public QObject
{
    Q_OBJECT
    TemporaryCurrentDir mDir;
    vorlinmodel::FunctionManager mStore;
    int mCleared = 0;

    QStringList handle(const QList<QByteArray> &messages)
    {
        Recorder recorder;
        vorlindesk::HandOver handOver;
        const auto clear = [this] {
            ++mCleared;
        };
        ReceivedDataHandler handler(mStore, handOver, recorder, {0, clear});
        for (const QByteArray &message : messages)
            handler.handle({message, false});
        handOver.post([&recorder] { recorder.calls << QStringLiteral("end"); });
        if (!QTest::qWaitFor([&recorder] { return recorder.calls.contains(QStringLiteral("end")); }))
            return {QStringLiteral("not handed over")};
        recorder.calls.removeLast();
        return recorder.calls;
    }

private slots:
    void initTestCase()
    {
        QVERIFY(mStore.Init());
        mStore.setRecordPause(0);
    }

    void messageIsDispatched_data()
    {
        QTest::addColumn<QByteArray>("message");
        QTest::addColumn<QStringList>("calls");
        QTest::addColumn<QString>("log"); // what one of the lines contains
        const auto row = [](const char *name, const char *hex, const QStringList &calls, const char *log) {
            QTest::newRow(name) << QByteArray::fromHex(hex) << calls << QString::fromLatin1(log);
        };
        row("version ends at its NUL", "04 05000000 56 31 00 FF FF", {QStringLiteral("text 4 V1")},
            "1 Software version of the panel: V1");
        row("version longer than what arrived", "03 FF000000 56", {QStringLiteral("text 3 V")}, "panel: V");
        row("version without a length", "03", {QStringLiteral("text 3 ")}, "panel: ");
        row("version in several lines", "03 05000000 56 0A 31 0D 32", {QStringLiteral("text 3 V 1 2")},
            "V 1 2");
        row("brightness", "10 02000000 00 50", {QStringLiteral("text 16 80")},
            "1 --------------MD_FUNCTION_CODE_LCD_LIGHT-----light:0 80");
        row("brightness cut short", "10 02000000 00", {}, "");
        row("system type without its byte", "12", {}, "");
        row("home layout cut short", "11 01000000 01", {},
            "1 --------------MD_FUNCTION_CODE_HOME_LAYOUT-----");
        row("empty page", "08 02000000 03 07", {QStringLiteral("page 3 7 0 0"), QStringLiteral("complete")},
            "1 device key is empty Layoutid[3] Pageid[7]");
        row("page of one byte", "08 01000000 03", {}, "config data length (1) error");
        row("attribute cut short", "01 03000000 01 01 01", {QStringLiteral("record 0 0")},
            "config data length (3) error");
        row("unknown code", "63 01000000 01", {}, "");
    }

    void messageIsDispatched()
    {
        QFETCH(QByteArray, message);
        QFETCH(QString, log);
        mStore.setRecvTotalKeyCount(0);
        const LogCapture capture;
        // A copy of exactly its size on the heap: a read beyond it is found by the address sanitizer.
        QTEST(handle({QByteArray(message.constData(), message.size())}), "calls");
        if (!log.isEmpty())
            QCOMPARE(capture.count(qUtf8Printable(log)), 1);
    }

    void emptyPageEndsTheCountOfThePageBefore()
    {
        QCOMPARE(handle({PanelMessage::page(1, 2, 2), PanelMessage::picture(1, 2, 3),
                         PanelMessage::message(8, QByteArray::fromHex("0307"))}),
                 QStringList({QStringLiteral("page 1 2 2 0 1.2.1 1.2.2"), QStringLiteral("record 2 1"),
                              QStringLiteral("page 3 7 0 0"), QStringLiteral("complete")}));
        QCOMPARE(mStore.getReceivedCounts().total, 0);
        QCOMPARE(mStore.getReceivedCounts().current, 0);
    }

    void homeLayoutGoesToTheSettings()
    {
        // Layout 2; key 4 leads to page 5 of layout 1 with sum 3; key 6 has nothing set.
        const QByteArray body = QByteArray::fromHex("02 02 04010503 06FFFFFF");
        QCOMPARE(handle({PanelMessage::message(17, body)}), QStringList(QStringLiteral("home 2")));
        const vorlindesk::SystemSettings::HomeLayoutEntry expected{4, 1, 5, 3};
        QCOMPARE(vorlindesk::SystemSettings::homeLayoutEntry(4), expected);
    }

    void customLayoutsAreClearedOncePerRun()
    {
        vorlindesk::SystemSettings::setLoadCustomLayout(true);
        const QByteArray message = PanelMessage::message(13, QByteArray::fromHex("0B00"));
        QCOMPARE(handle({message, message}),
                 QStringList({QStringLiteral("layout 0b00"), QStringLiteral("layout 0b00")}));
        QCOMPARE(mCleared, 1);
        QVERIFY(!vorlindesk::SystemSettings::loadCustomLayout());
    }
};

QTEST_GUILESS_MAIN(tst_ui_main_received)
#include "tst_ui_main_received.moc"
