// Long transfers: their progress, and their end before time.
#include "model/functionids.h"
#include "support/panelbehindfake.h"
#include "support/table.h"
#include "threadfixture.h"

Q_DECLARE_METATYPE(vorlinmodel::RequestOutcome)

using vorlinmodel::IProtocolThread;
using vorlinmodel::Request;
using vorlinmodel::RequestOutcome;

namespace {

constexpr int BlockSize = 57;
constexpr int HeadSize = 13; // of the message, before the bytes of the video
const vorlinmodel::key_id_t Key{1, 1, 3};
const Request Title{1, 1, 1, 3, 17, 6, {}, {}};
const Request Video{1, 1, 1, 3, 17, 10, {}, {}};

/// A video key whose panel has taken one video already; the store has the next, of @p size bytes in all.
class Transfer
{
public:
    explicit Transfer(int size)
        : next(size - HeadSize, 'n')
    {
        const auto onDone = [this](const Request &request, RequestOutcome is) {
            if (request.functionCode != 1)
                return;
            outcome = is;
            ++done;
        };
        const auto onProgress = [this](const Request &request, int sent, int all) {
            isProgressRight = isProgressRight && request == Video && sent > lastSent && sent <= all;
            lastSent = sent;
            ++progress;
        };
        QObject::connect(&fixture.thread, &IProtocolThread::sigRequestDone, &fixture.thread, onDone,
                         Qt::DirectConnection);
        QObject::connect(&fixture.thread, &IProtocolThread::sigTransferProgress, &fixture.thread, onProgress,
                         Qt::DirectConnection);
        fakeHid().setOnWrite([this, take = fakeHid().state().onWrite](const QByteArray &report) {
            take(report);
            if (++mReports == happensAt)
                happening();
        });
        fixture.store.createKeyAttribute(Key, vorlinmodel::VIDEO_FID);
        setVideo("old.avi"_s, "old");
        fixture.post(MD_FUNCTION_CODE_KEY_ATTRIBUTE, 1, 1, 3, 17, 8);
        fixture.thread.postRequest(Video);
        fixture.thread.start();
        isReady = isDone(2);
        setVideo("next.avi"_s, next);
        mReports = 0;
    }
    ~Transfer() { fixture.thread.stop(); }
    Transfer(const Transfer &) = delete;
    Transfer &operator=(const Transfer &) = delete;

    void setVideo(const QString &name, const QByteArray &bytes)
    {
        writeFile(name, bytes);
        fixture.store.setCustomVideo(Key, QDir::current().filePath(name));
    }
    bool isDone(int requests)
    {
        return QTest::qWaitFor([&] { return done == requests; });
    }
    QByteArray onPanel() { return panel.state().keys.value({1, 1, 3}).video; }
    QStringList faultsAndEvents()
    {
        QStringList events;
        panel.with([&](PanelModel &model) { events = model.journal().events().filter("given up"_s); });
        return panel.violations() + events;
    }

    ThreadFixture fixture;
    PanelBehindFake panel;
    const QByteArray next;
    bool isReady = false;
    std::atomic<int> happensAt = -1; ///< behind so many blocks
    std::function<void()> happening;
    std::atomic<int> done = 0; ///< requests
    std::atomic<RequestOutcome> outcome = RequestOutcome::Sent;
    std::atomic<int> progress = 0; ///< reports of it
    std::atomic<int> lastSent = 0;
    std::atomic<bool> isProgressRight = true;

private:
    std::atomic<int> mReports = 0;
};

} // namespace

class TransferTest : public QObject
{
    Q_OBJECT

    using EndsTable = Table<int, int, bool, bool, RequestOutcome, QString>;

private slots:
    void endsBeforeTime_data()
    {
        const EndsTable row; // bytes, blocks behind which it happens, cancel, unplug, outcome, event
        const int four = 4 * BlockSize;
        constexpr auto cancelled = RequestOutcome::Cancelled;
        row("in the first block", four, 1, true, false, cancelled, "message given up after 1 reports");
        row("in the middle", four, 2, true, false, cancelled, "message given up after 2 reports");
        row("a short block left", four - 55, 3, true, false, cancelled, "message given up after 3 reports");
        row("one byte left", four - 56, 3, true, false, RequestOutcome::Sent, "");
        row("in the last block", four, 4, true, false, RequestOutcome::Sent, "");
        row("unplugged", four, 2, false, true, RequestOutcome::Failed, "");
        row("unplugged and cancelled", four, 2, true, true, cancelled, "");
    }

    void endsBeforeTime()
    {
        const auto [bytes, blocks, cancel, unplug, outcome, event] = EndsTable::current();
        Transfer transfer(bytes);
        QVERIFY(transfer.isReady);
        transfer.happening = [&transfer, cancel = cancel, unplug = unplug] {
            if (unplug)
                fakeHid().setPresent(false);
            if (cancel)
                transfer.fixture.thread.cancelTransfer(Video);
        };
        transfer.happensAt = blocks;
        transfer.fixture.thread.postRequest(Video);
        QVERIFY(transfer.isDone(3));
        const bool isTaken = outcome == RequestOutcome::Sent;
        QVERIFY(transfer.outcome == outcome);
        QCOMPARE(transfer.onPanel(), isTaken ? transfer.next : QByteArray("old"));
        QCOMPARE(transfer.fixture.events("video").last(), isTaken ? "video 0"_s : "video -1"_s);
        QCOMPARE(transfer.fixture.linesWith("transfer KeyVideo error").size(), isTaken ? 0 : 1);
        if (!unplug) { // the next messages are whole again, and not cancelled
            transfer.fixture.store.setTitle(Key, QString(100, QLatin1Char('x')));
            transfer.fixture.thread.postRequest(Title);
            transfer.fixture.thread.postRequest(Video);
            QVERIFY(transfer.isDone(5));
            QCOMPARE(transfer.onPanel(), transfer.next);
        }
        QCOMPARE(transfer.faultsAndEvents(), event.isEmpty() ? QStringList() : QStringList(event));
    }

    void whatWaitsIsDroppedInItsTurn()
    {
        Transfer transfer(4 * BlockSize);
        transfer.happening = [&transfer] {
            transfer.fixture.thread.cancelTransfer(Title);
        }; // not the video
        transfer.happensAt = 2;
        for (const Request &request : {Video, Title})
            transfer.fixture.thread.postRequest(request);
        QVERIFY(transfer.isDone(4));
        QVERIFY(transfer.outcome == RequestOutcome::Cancelled);
        QCOMPARE(transfer.onPanel(), transfer.next);
        QCOMPARE(transfer.faultsAndEvents(), QStringList());
    }

    void progressIsToldOfLongOnes()
    {
        Transfer transfer(150 * BlockSize);
        QElapsedTimer time;
        time.start();
        transfer.fixture.thread.postRequest(Video);
        QVERIFY(transfer.isDone(3));
        QVERIFY(transfer.isProgressRight && transfer.lastSent == 150);
        const int reports = transfer.progress;
        QVERIFY(reports >= 3 && reports <= time.elapsed() / 50 + 2);
        transfer.setVideo("short.avi"_s, QByteArray(50 * BlockSize - HeadSize, 'n'));
        transfer.fixture.thread.postRequest(Video);
        QVERIFY(transfer.isDone(4));
        QCOMPARE(transfer.progress.load(), reports); // none
    }
};

QTEST_GUILESS_MAIN(TransferTest)
#include "tst_protocol_transfer.moc"
