/// Several threads on one store: what each sees is a whole record. The thread checker runs this too.
#include "model/functionmanager.h"
#include "storefixture.h"

#include <QtTest>
#include <thread>

using namespace vorlinmodel;

class StoreRaceTest : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        mpFixture = std::make_unique<StoreFixture>();
        vorlindesk::setLogSink([](vorlindesk::LogLevel, const QString &) {}); // tens of thousands of lines
    }
    void cleanup() { mpFixture.reset(); }

    void readersSeeWholeRecords()
    {
        constexpr key_id_t Key{1, 2, 3};
        FunctionManager store;
        store.setRecordPause(0);
        // Two pages whose texts go with the function, which is the font size too. A reader may see one of
        // them, a fresh record, or none.
        const auto page = [](char fid, char text) -> QByteArray {
            const QByteArray area = '\x80' + QByteArray(128, text);
            return QByteArray::fromHex("0102 010203 0000") + fid + "\1\1\1\1" + fid + "\1\1\1" + area + area;
        };
        std::atomic<bool> done = false;
        std::atomic<int> torn = 0;
        std::atomic<int> seen = 0;
        const auto load = [&](char fid, char text) {
            const QByteArray bytes = page(fid, text);
            for (int i = 0; i < 300; ++i)
                store.saveAllKeyAttrByDevconfig(data(bytes), bytes.size());
        };
        const auto read = [&] {
            while (!done) {
                const auto record = store.getKeyAttribute(Key);
                if (!record || record->titleFontSize == 16)
                    continue;
                ++seen;
                const QString text(128, QLatin1Char(record->titleFontSize == 5 ? 'a' : 'b'));
                if (record->strTitle != text || record->strAppOrUrl != text)
                    ++torn;
            }
        };
        std::thread reader(read);
        std::thread writer(load, char(5), 'a');
        load(6, 'b');
        writer.join();
        while (seen == 0)
            std::this_thread::yield(); // the last record stands, so the reader meets it now at the latest
        done = true;
        reader.join();
        QCOMPARE(torn.load(), 0);
    }

    void everyOperationFromEveryThread()
    {
        FunctionManager store;
        QVERIFY(store.Init());
        store.setRecvTotalKeyCount(800);
        const QByteArray broken = QByteArray::fromHex("0102030900");
        const auto work = [&](int seed) {
            for (int i = 0; i < 200; ++i) {
                const key_id_t key{1, 1, 1 + (i + seed) % 15};
                store.addKeyAttribute(key, 15);
                store.setTitle(key, QString::number(i));
                store.setCustomImage(key, QString::number(i));
                store.getDisplayImage(key);
                store.getAllAttribute(key);
                store.getKeys();
                store.setModeFlag(i % 2 == 0);
                store.setExportDirectory(store.getExportDirectory() + QLatin1Char('x'));
                store.setTextOutput([](int, const QString &) {});
                store.execCommand(key, 15, QString::number(i));
                store.saveKeyAttrByDevconfig(data(broken), broken.size());
                store.deleteKeyAttribute(key);
            }
        };
        std::vector<std::thread> threads;
        for (int seed = 0; seed < 4; ++seed)
            threads.emplace_back(work, seed);
        for (std::thread &thread : threads)
            thread.join();
        QVERIFY(store.getKeys().isEmpty());               // every thread removed the last that it made
        QCOMPARE(store.getReceivedCounts().current, 800); // each picture is counted once
    }

private:
    std::unique_ptr<StoreFixture> mpFixture;
};

QTEST_GUILESS_MAIN(StoreRaceTest)
#include "tst_model_storerace.moc"
