// What becomes of each kind of message from the panel.
#include "base/handover.h"
#include "base/systemsettings.h"
#include "support/table.h"
#include "ui_main/receiveddata.h"
#include "uimainfakes.h"

#include <QtTest>

namespace {

struct Recorder : IReceivedData
{
    void onPageReceived(const ReceivedPage &page) override
    {
        calls << "page %1 %2 %3 %4"_s.arg(page.layoutId).arg(page.pageId).arg(page.keyCount).arg(page.first);
        for (const vorlinmodel::key_id_t &key : page.keys)
            calls.last() += " %1.%2.%3"_s.arg(key.lid).arg(key.pageid).arg(key.kid);
    }
    void onRecordReceived(int total, int received) override
    {
        calls << "record %1 %2"_s.arg(total).arg(received);
    }
    void onConfigurationComplete() override { calls << "complete"_s; }
    void onTextReceived(int code, const QString &text) override
    {
        calls << "text %1 %2"_s.arg(code).arg(text);
    }
    void onHomeLayoutReceived(int layoutId) override { calls << "home %1"_s.arg(layoutId); }
    void onCustomLayoutReceived(const QByteArray &payload) override
    {
        calls << "layout "_s + QString::fromLatin1(payload.toHex());
    }

    QStringList calls;
};

} // namespace

class tst_ui_main_received : public QObject
{
    Q_OBJECT
    using MessageTable = Table<QByteArray, QStringList, QString>;
    TemporaryCurrentDir mDir;
    vorlinmodel::FunctionManager mStore;
    int mCleared = 0;

    QStringList handle(const QList<QByteArray> &messages, bool answersHomeSetting = false)
    {
        Recorder recorder;
        vorlindesk::HandOver handOver;
        const auto clear = [this] {
            ++mCleared;
        };
        ReceivedDataHandler handler(mStore, handOver, recorder, {0, clear});
        for (const QByteArray &message : messages)
            handler.handle({message, false, answersHomeSetting});
        handOver.post([&recorder] { recorder.calls << "end"_s; });
        if (!QTest::qWaitFor([&recorder] { return recorder.calls.contains("end"_s); }))
            return {"not handed over"_s};
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
        const MessageTable row; // a message, what it leads to, and what one line of the log contains
        row("version ends at its NUL", QByteArray::fromHex("04 05000000 56 31 00 FF FF"),
            QStringList("text 4 V1"_s), "1 Software version of the panel: V1");
        row("version longer than what arrived", QByteArray::fromHex("03 FF000000 56"),
            QStringList("text 3 V"_s), "panel: V");
        row("version without a length", QByteArray::fromHex("03"), QStringList("text 3 "_s), "panel: ");
        row("version in several lines", QByteArray::fromHex("03 05000000 56 0A 31 0D 32"),
            QStringList("text 3 V 1 2"_s), "V 1 2");
        row("brightness", QByteArray::fromHex("10 02000000 00 50"), QStringList("text 16 80"_s),
            "1 --------------MD_FUNCTION_CODE_LCD_LIGHT-----light:0 80");
        row("brightness cut short", QByteArray::fromHex("10 02000000 00"), {}, "");
        row("system type without its byte", QByteArray::fromHex("12"), {}, "");
        row("home layout cut short", QByteArray::fromHex("11 01000000 01"), {},
            "1 --------------MD_FUNCTION_CODE_HOME_LAYOUT-----");
        row("empty page", QByteArray::fromHex("08 02000000 03 07"),
            QStringList{"page 3 7 0 0"_s, "complete"_s}, "1 device key is empty Layoutid[3] Pageid[7]");
        row("page of one byte", QByteArray::fromHex("08 01000000 03"), {}, "config data length (1) error");
        row("attribute cut short", QByteArray::fromHex("01 03000000 01 01 01"), QStringList("record 0 0"_s),
            "config data length (3) error");
        row("unknown code", QByteArray::fromHex("63 01000000 01"), {}, "");
    }

    void messageIsDispatched()
    {
        const auto [message, calls, log] = MessageTable::current();
        mStore.setRecvTotalKeyCount(0);
        const LogCapture capture;
        // A copy of exactly its size on the heap: a read beyond it is found by the address sanitizer.
        QCOMPARE(handle({QByteArray(message.constData(), message.size())}), calls);
        if (!log.isEmpty())
            QCOMPARE(capture.count(qUtf8Printable(log)), 1);
    }

    void emptyPageEndsTheCountOfThePageBefore()
    {
        QCOMPARE(handle({PanelMessage::page(1, 2, 2), PanelMessage::picture(1, 2, 3),
                         PanelMessage::message(8, QByteArray::fromHex("0307"))}),
                 texts({"page 1 2 2 0 1.2.1 1.2.2", "record 2 1", "page 3 7 0 0", "complete"}));
        QCOMPARE(mStore.getReceivedCounts().total, 0);
        QCOMPARE(mStore.getReceivedCounts().current, 0);
    }

    void homeLayoutGoesToTheSettings()
    {
        // Layout 2; key 4 leads to page 5 of layout 1 with sum 3; key 6 has nothing set.
        const QByteArray body = QByteArray::fromHex("02 02 04010503 06FFFFFF");
        QCOMPARE(handle({PanelMessage::message(17, body)}), QStringList("home 2"_s));
        const vorlindesk::SystemSettings::HomeLayoutEntry expected{4, 1, 5, 3};
        QCOMPARE(vorlindesk::SystemSettings::homeLayoutEntry(4), expected);

        // What is set here stays, unless the panel answers that it was set.
        const QByteArray other = PanelMessage::message(17, QByteArray::fromHex("03 01 04020604"));
        QCOMPARE(handle({other}), QStringList("home 3"_s));
        QCOMPARE(vorlindesk::SystemSettings::homeLayoutEntry(4), expected);
        QCOMPARE(handle({other}, true), QStringList("home 3"_s));
        QCOMPARE(vorlindesk::SystemSettings::homeLayoutEntry(4).pageId, 6);
    }

    void customLayoutsAreClearedOncePerRun()
    {
        vorlindesk::SystemSettings::setLoadCustomLayout(true);
        const QByteArray message = PanelMessage::message(13, QByteArray::fromHex("0B00"));
        QCOMPARE(handle({message, message}), texts({"layout 0b00", "layout 0b00"}));
        QCOMPARE(mCleared, 1);
        QVERIFY(!vorlindesk::SystemSettings::loadCustomLayout());
    }
};

QTEST_GUILESS_MAIN(tst_ui_main_received)
#include "tst_ui_main_received.moc"
