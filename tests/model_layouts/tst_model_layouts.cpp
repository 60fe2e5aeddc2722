// Groupings of keys, the file of custom layouts, and their background.
#include "base/paths.h"
#include "model/customlayouts.h"
#include "model/layoutbackground.h"
#include "model/layoutgrouping.h"
#include "support/files.h"
#include "support/table.h"

#include <QTemporaryDir>
#include <QThread>
#include <atomic>
#include <memory>
#include <thread>

using namespace vorlinmodel;

namespace {

QVector<quint32> savedMasks(int layoutId)
{
    QVector<quint32> masks;
    const auto layout = loadCustomLayout(layoutId).value_or(CustomLayout{});
    for (const CustomLayoutKey &key : layout.keys)
        masks.append(key.mask);
    return masks;
}

} // namespace

class LayoutsTest : public QObject
{
    Q_OBJECT
    using GrowingTable = Table<quint32, quint32, bool>;
    using DamageTable = Table<QByteArray, QVector<quint32>, QString>;

private slots:
    void init()
    {
        mpFolder = std::make_unique<QTemporaryDir>();
        QDir::setCurrent(mpFolder->path());
    }
    void cleanup() { QDir::setCurrent(QDir::rootPath()); }

    void selectionsGrow_data()
    {
        const GrowingTable row;
        row("one single key", 0x1, 0x1, false);
        row("two in a row", 0x3, 0x3, true);
        row("opposite corners take all between", 0x1 | 0x80, 0x1CE7, true);
        row("a corner of a merged key takes the whole", 0x20, 0xC60, false);
        row("a merged key widens the rectangle", 0x1 | 0x20, 0xC63, true);
        row("none", 0, 0, false);
    }
    void selectionsGrow()
    {
        const LayoutGrouping grouping({0xC60}); // keys 6, 7, 11, 12
        const auto [mask, grown, canMerge] = GrowingTable::current();
        QCOMPARE(grouping.grown(mask), grown);
        QCOMPARE(grouping.canMerge(mask), canMerge);
        if (!canMerge)
            return;
        const LayoutGrouping merged = grouping.merged(mask);
        QVERIFY(merged.masks().contains(grown));
        QVERIFY(merged.canSplit(mask));
        QCOMPARE(merged.split(mask).masks().contains(0xC60), (grown & 0xC60) == 0);
    }

    void startingPointsCoverThePanel()
    {
        QVector<int> keys;
        for (const LayoutGrouping &grouping : LayoutGrouping::startingPoints()) {
            quint32 covered = 0;
            for (const quint32 mask : grouping.masks()) {
                QVERIFY(isRectangle(mask));
                covered += mask; // not "or": an overlap would carry
            }
            QCOMPARE(covered, 0x7FFFU);
            keys.append(grouping.masks().size());
        }
        QCOMPARE(keys, (QVector<int>{15, 9, 5, 5}));
        QVERIFY(!isRectangle(0x8001) && !isRectangle(0x30) && !isRectangle(0)); // 0x30: keys 5 and 6
    }

    void fileHoldsWhatWasSaved()
    {
        const LayoutGrouping grouping({0x63});
        CustomLayout layout = customLayoutOf(4, "Büro, \"桌\"; 1=2 \U0001F600"_s, grouping);
        layout.background = "a.png"_s;
        layout.backgroundPages = {1, 16};
        layout.backgroundOnEmptyKeys = false;
        QVERIFY(saveCustomLayout(layout));
        QCOMPARE(loadCustomLayout(4), layout);
        QVERIFY(groupingOf(layout) == grouping);
        const QByteArray text = testFileContent("devConfig/customLayout.ini"_s);
        QVERIFY2(text.contains("phyid_1=1#1#1&2#1#2&6#2#1&7#2#2&"), text.constData());
        QVERIFY(text.contains("1_bitmap=99") && text.contains("num=12"));
        QCOMPARE(loadCustomLayouts().problems, QStringList());
    }

    void damageIsNamedAndTheRestLoads_data()
    {
        const DamageTable row;
        row("overlapping", "num=2\n1_bitmap=3\nphyid_1=1&2&\n2_bitmap=6\nphyid_2=2&3&\n", {3, 0},
            "Layout 4: key 2 overlaps key 1.");
        row("no rectangle", "num=2\n1_bitmap=5\nphyid_1=1&3&\n2_bitmap=2\nphyid_2=2&\n", {0, 2},
            "Layout 4: the physical keys of key 1 form no rectangle.");
        row("beyond key 15", "num=1\n1_bitmap=32768\nphyid_1=16&\n", {0},
            "Layout 4: the physical keys of key 1 form no rectangle.");
        row("far too many", "num=1000000000\n1_bitmap=1\nphyid_1=1&\n", {1},
            "Layout 4: the number of its keys is \"1000000000\", not 1 to 15.");
        row("no number", "name=L\n1_bitmap=1\nphyid_1=1&\n", {1},
            "Layout 4 (L): the number of its keys is missing.");
        row("no bitmap", "num=2\n1_bitmap=1\nphyid_1=1&\n", {1, 0}, "Layout 4: key 2 has no bitmap.");
        row("no items", "num=1\n1_bitmap=3\n", {3},
            "Layout 4: key 1 does not name its physical keys, so those of its bitmap count.");
        row("other items", "num=1\n1_bitmap=3\nphyid_1=1&3&\n", {3},
            "Layout 4: the physical keys of key 1 differ from its bitmap.");
    }
    void damageIsNamedAndTheRestLoads()
    {
        const auto [lines, masks, problem] = DamageTable::current();
        const QByteArray text = "[layout_4]\n" + lines +
                                "kept=1\n[layout_0]\nnum=1\n[other]\nx=2\n[layout_5]\nnum=1\n1_bitmap=7\n"
                                "phyid_1=1&2&3&\n";
        QVERIFY(writeTestFile("devConfig/customLayout.ini"_s, text));
        QCOMPARE(savedMasks(4), masks);
        if (lines.contains("1_bitmap=3\n") && !lines.contains("phyid_1"))
            QCOMPARE(loadCustomLayout(4)->keys.at(0).lastPhysical, 2); // of the bitmap
        QCOMPARE(
            loadCustomLayouts().problems,
            QStringList({"Group \"layout_0\" is left out: layouts have the numbers 2 to 254."_s, problem}));
        QCOMPARE(loadCustomLayouts().byId.keys(), (QList<int>{4, 5}));
        QCOMPARE(loadCustomLayouts().byId.value(4), loadCustomLayout(4));
        QVERIFY(saveCustomLayout(customLayoutOf(5, "whole"_s, LayoutGrouping()))); // not the damaged one
        QVERIFY(!QFile::exists("devConfig/customLayout.ini.before"_s));
        const QByteArray before = testFileContent("devConfig/customLayout.ini"_s);
        QVERIFY(saveCustomLayout(customLayoutOf(4, {}, LayoutGrouping())));
        QCOMPARE(testFileContent("devConfig/customLayout.ini.before"_s), before);
        const QByteArray after = testFileContent("devConfig/customLayout.ini"_s);
        QVERIFY(after.contains("kept=1") && after.contains("[other]") && after.contains("[layout_0]"));
        QCOMPARE(savedMasks(5).size(), 15);
    }

    void linesThatAreNoSettingsAreNamed()
    {
        const QByteArray text = "[layout_4]\nnum=1\n1_bitmap=1\nphyid_1=1&\n[layout_5\nnum=1\n";
        QVERIFY(writeTestFile("devConfig/customLayout.ini"_s, text));
        QCOMPARE(loadCustomLayouts().problems.value(0),
                 "Some lines cannot be read. The file as it was is kept beside it."_s);
        QCOMPARE(savedMasks(4), QVector<quint32>{1});
        QVERIFY(saveCustomLayout(customLayoutOf(4, {}, LayoutGrouping())));
        QCOMPARE(testFileContent("devConfig/customLayout.ini.damaged"_s), text);
    }

    void fileThatCannotBeWrittenStays()
    {
        QVERIFY(saveCustomLayout(customLayoutOf(4, "before"_s, LayoutGrouping())));
        QVERIFY(QFile::rename("devConfig"_s, "kept"_s) && writeTestFile("devConfig"_s, "not a folder"));
        QVERIFY(!saveCustomLayout(customLayoutOf(4, "after"_s, LayoutGrouping())));
        QVERIFY(QFile::remove("devConfig"_s) && QFile::rename("kept"_s, "devConfig"_s));
        QCOMPARE(loadCustomLayout(4)->name, "before"_s);
        QVERIFY(removeCustomLayout(4) && !loadCustomLayout(4));
    }

    /// As the protocol thread reads it, and as virus scanners do.
    void fileIsSavedWhileOthersReadIt()
    {
        const CustomLayout layout = customLayoutOf(2, "L"_s, LayoutGrouping({0x63}));
        QVERIFY(saveCustomLayout(layout));
        std::atomic<int> missing = 0;
        std::atomic<bool> isOver = false;
        std::thread program([&] {
            while (!isOver)
                missing += loadCustomLayout(2) == layout ? 0 : 1;
        });
        std::thread scanner([&] {
            for (; !isOver; QThread::msleep(40)) {
                QFile file(vorlindesk::Paths::customLayoutIni());
                if (file.open(QIODevice::ReadOnly))
                    QThread::msleep(15);
            }
        });
        int saved = 0;
        for (int i = 0; i < 20; ++i)
            saved += saveCustomLayout(customLayoutOf(3, QString::number(i), LayoutGrouping())) ? 1 : 0;
        isOver = true;
        program.join();
        scanner.join();
        QCOMPARE(saved, 20);
        QCOMPARE(missing.load(), 0);
        QCOMPARE(loadCustomLayout(3)->name, "19"_s);
    }

    void copiesKeptAsideAreNotOverwritten()
    {
        for (const char *content : {"[a]\n", "[b]\n", "[b]\n", "[a]\n"}) {
            QVERIFY(writeTestFile("devConfig/customLayout.ini"_s, content));
            QVERIFY(keepCustomLayoutFile());
        }
        QCOMPARE(QDir("devConfig"_s).entryList({"*.before*"_s}),
                 texts({"customLayout.ini.before", "customLayout.ini.before2", "customLayout.ini.before3"}));
        QCOMPARE(testFileContent("devConfig/customLayout.ini.before"_s), QByteArray("[a]\n"));
        QVERIFY(writeTestFile("devConfig/customLayout.ini.before_mine"_s, "a person's own"));
        for (int i = 0; i < 10; ++i) { // the newest ten stay
            QVERIFY(writeTestFile("devConfig/customLayout.ini"_s, QByteArray::number(i)));
            QVERIFY(keepCustomLayoutFile());
        }
        QCOMPARE(QDir("devConfig"_s).entryList({"*.before*"_s}).size(), 11);
        QVERIFY(!QFile::exists("devConfig/customLayout.ini.before3"_s));
        QCOMPARE(testFileContent("devConfig/customLayout.ini.before13"_s), QByteArray("9"));
    }

    void backgroundsThatNobodyNamesAreRemoved()
    {
        const QString used = QString(40, u'a') + ".png"_s;
        const QString kept = QString(40, u'b') + ".png"_s;
        const QString unused = QString(40, u'c') + ".png"_s;
        for (const QString &name : {used, kept, unused, "photo.png"_s})
            QVERIFY(writeTestFile("devConfig/layouts/"_s + name, "picture"));
        QVERIFY(writeTestFile("devConfig/customLayout.ini.before"_s,
                              "[layout_2]\nbackground=" + kept.toLatin1() + '\n'));
        removeUnusedLayoutPictures(); // without the file nobody knows
        QVERIFY(QFile::exists("devConfig/layouts/"_s + unused));
        CustomLayout layout = customLayoutOf(3, {}, LayoutGrouping());
        layout.background = used;
        layout.backgroundPages = {1};
        QVERIFY(saveCustomLayout(layout));
        removeUnusedLayoutPictures();
        QCOMPARE(QDir("devConfig/layouts"_s).entryList(QDir::Files),
                 QStringList({used, kept, "photo.png"_s}));
    }

    /// Each key of the panel in a colour of its own: a piece shows exactly those of its keys.
    void piecesAreCutAtTheLcds()
    {
        QImage panel(panelPixelSize(), QImage::Format_RGB32);
        for (int y = 0; y < 252; ++y)
            for (int x = 0; x < 450; ++x)
                panel.setPixel(x, y, qRgb(x / 90, y / 84, 0));
        const QImage piece = backgroundPiece(panel, 0x18C0); // keys 7, 8, 12, 13
        QCOMPARE(piece.size(), QSize(180, 168));
        QCOMPARE(piece.pixel(0, 0), qRgb(1, 1, 0));
        QCOMPARE(piece.pixel(179, 167), qRgb(2, 2, 0));
        QCOMPARE(backgroundPiece(panel, 0x7FFF), panel);
        QVERIFY(backgroundPiece(panel, 0).isNull() && backgroundPiece({}, 1).isNull());
    }

private:
    std::unique_ptr<QTemporaryDir> mpFolder;
};

QTEST_GUILESS_MAIN(LayoutsTest)
#include "tst_model_layouts.moc"
