// Changes of layouts: file, keys, panel and history agree.
#include "editorfixture.h"
#include "model/functionids.h"
#include "model/keypicture.h"
#include "model/layoutbackground.h"
#include "model/layoutgrouping.h"
#include "support/files.h"
#include "support/table.h"

using vorlinmodel::CustomLayout;
using vorlinmodel::customLayoutOf;
using vorlinmodel::key_id_t;
using vorlinmodel::LayoutGrouping;
using vorlinmodel::loadCustomLayout;
using Panel = EditorFixture::Panel;

namespace {

constexpr int Id = 2;
constexpr quint32 Square = 0x63; // keys 1, 2, 6, 7

void give(EditorFixture &fixture, const key_id_t &key, const QString &title, const QString &picture = {})
{
    fixture.editor().edits.change("key"_s, {key}, [&] {
        KeyEdits &edits = fixture.editor().edits;
        edits.store().addKeyAttribute(key, 5);
        edits.store().setTitle(key, title);
        if (!picture.isEmpty())
            edits.store().setCustomImage(key, picture);
        for (const auto id : allAttributes(captureKeyState(edits.store(), key)))
            edits.send(key, 5, id);
    });
}

QString line(int layout, int page, int key, const QString &title)
{
    return "%1/%2/%3 %4"_s.arg(layout).arg(page).arg(key).arg(title);
}

QStringList keysOf(const EditorFixture &fixture)
{
    QStringList keys;
    for (const key_id_t &key : fixture.store.getKeys())
        keys.append(line(key.lid, key.pageid, key.kid, fixture.store.getTitleText(key)));
    return keys;
}

QStringList panelKeys(EditorFixture &fixture)
{
    QStringList keys;
    for (const PanelKey &key : fixture.panel->state().keys)
        keys.append(line(key.record.layoutId, key.record.pageId, key.record.keyId,
                         QString::fromLatin1(key.record.title)));
    return keys;
}

/// Everything that was posted has been written.
void settle(EditorFixture &fixture)
{
    QTRY_VERIFY(fixture.editor().edits.pending().keys().isEmpty());
    QTRY_VERIFY(!fixture.editor().layouts.isPending(Id) && !fixture.editor().layouts.isPending(Id + 1));
}

QSize panelPictureSize(EditorFixture &fixture, int kid)
{
    return QImage::fromData(fixture.panel->state().keys.value({Id, 1, kid}).picture).size();
}

} // namespace

class LayoutEditsTest : public QObject
{
    Q_OBJECT
    using MessageTable = Table<QVector<quint32>, QString, QByteArray, QByteArray>;

private slots:
    void messageCarriesTheFile_data()
    {
        const MessageTable row;
        row("one key", {0x7FFF}, "", "", QByteArray::fromHex("01010f"));
        row("five keys", LayoutGrouping::startingPoints().at(2).masks(), "两大",
            QByteArray::fromHex("c1bdb4f3"), QByteArray::fromHex("01010b020205 03070d 04090a 050e0f"));
        row("nine keys", LayoutGrouping::startingPoints().at(1).masks(), QString(127, u'x') + "中"_s,
            QByteArray(127, 'x'),
            QByteArray::fromHex("010101 020202 030303 040404 050505 06060c 07080e 080a0a 090f0f"));
    }
    /// There and back: grouping, file, message, panel, read-back, file.
    void messageCarriesTheFile()
    {
        const auto [masks, name, title, triples] = MessageTable::current();
        EditorFixture fixture(Panel::Present);
        LayoutEdits &layouts = fixture.editor().layouts;
        const CustomLayout layout = customLayoutOf(Id, name, LayoutGrouping(masks));
        QCOMPARE(layouts.save(layout), QString());
        settle(fixture);
        const int size = 132 + triples.size();
        const QByteArray expected = QByteArray::fromHex("0d") + char(size) + QByteArray(3, '\0') + char(Id) +
                                    char(title.size()) + char(triples.size() / 3) + '\0' +
                                    title.leftJustified(128, '\0') + triples;
        QCOMPARE(fixture.panel->messages().filter(QRegularExpression("^0d"_s)),
                 QStringList(QString::fromLatin1(expected.toHex(' '))));
        const CustomLayoutRecord::Record held = fixture.panel->state().layouts.value(Id);
        layouts.clearForPanel();
        layouts.takeFromPanel(held);
        QCOMPARE(loadCustomLayout(Id), layout); // the whole name, too
        QVERIFY(QFile::remove(vorlindesk::Paths::customLayoutIni()));
        layouts.takeFromPanel(held);
        QCOMPARE(loadCustomLayout(Id)->keys, layout.keys);
        QCOMPARE(fixture.panel->violations().join("; "_s), QString());
    }

    void functionsStayWhereTheyAre()
    {
        EditorFixture fixture(Panel::Present);
        EditorContext &editor = fixture.editor();
        const CustomLayout single = customLayoutOf(Id, "L"_s, LayoutGrouping());
        const CustomLayout merged = customLayoutOf(Id, "L"_s, LayoutGrouping({Square}));
        QCOMPARE(editor.layouts.save(single), QString());
        give(fixture, {Id, 1, 1}, "grows"_s, pictureFile(fixture.path("red.png"), Qt::red));
        give(fixture, {Id, 1, 2}, "lost"_s);
        give(fixture, {Id, 16, 3}, "moves"_s, fixture.path("red.png"));
        give(fixture, {1, 1, 2}, "other"_s);
        settle(fixture);
        const QStringList before = keysOf(fixture);
        QCOMPARE(editor.layouts.keysLost(merged), QVector<key_id_t>{(key_id_t{Id, 1, 2})});

        const QStringList after = texts({"1/1/2 other", "2/1/1 grows", "2/16/2 moves"});
        const int steps = editor.edits.history().count();
        QCOMPARE(editor.layouts.save(merged), QString());
        QCOMPARE(editor.edits.history().count(), steps + 1);
        for (int round = 0; round < 2; ++round) {
            settle(fixture);
            QCOMPARE(keysOf(fixture), after);
            QCOMPARE(panelKeys(fixture), after);
            QCOMPARE(panelPictureSize(fixture, 1), QSize(180, 168));
            QCOMPARE(fixture.panel->state().layouts.value(Id).keys.size(), 12);
            editor.edits.undo();
            settle(fixture);
            QCOMPARE(keysOf(fixture), before);
            QCOMPARE(panelKeys(fixture), before);
            QCOMPARE(panelPictureSize(fixture, 1), QSize(90, 84));
            QCOMPARE(loadCustomLayout(Id), single);
            editor.edits.redo();
        }
        for (int i = 0; i < 9; ++i) { // faster than the panel, at any moment of a request
            editor.edits.undo();
            QTest::qSleep(1 + i * 5 % 13);
            editor.edits.redo();
        }
        settle(fixture);
        QCOMPARE(panelKeys(fixture), after);
        QCOMPARE(panelPictureSize(fixture, 1), QSize(180, 168));
        QCOMPARE(fixture.panel->violations().join("; "_s), QString());
    }

    void copiesAndRemovalsTakeTheKeysAlong()
    {
        EditorFixture fixture(Panel::Present);
        EditorContext &editor = fixture.editor();
        QCOMPARE(editor.layouts.save(customLayoutOf(Id, "L"_s, LayoutGrouping({Square}))), QString());
        give(fixture, {Id, 3, 2}, "three"_s);
        int copy = 0;
        QCOMPARE(editor.layouts.duplicate(Id, "copy"_s, &copy), QString());
        QCOMPARE(copy, Id + 1);
        QCOMPARE(editor.layouts.remove(Id), QString());
        settle(fixture);
        QCOMPARE(panelKeys(fixture), texts({"3/3/2 three"}));
        QCOMPARE(fixture.panel->state().layouts.keys(), QList<int>{copy});
        QCOMPARE(editor.layouts.freeId(), Id);
        editor.edits.undo();
        editor.edits.undo();
        settle(fixture);
        QCOMPARE(panelKeys(fixture), texts({"2/3/2 three"}));
        QCOMPARE(fixture.panel->state().layouts.keys(), QList<int>{Id});
        QCOMPARE(fixture.panel->violations().join("; "_s), QString());
        while (editor.layouts.freeId() != 0)
            QCOMPARE(editor.layouts.duplicate(1, "x"_s), QString());
        QCOMPARE(vorlinmodel::customLayoutIds().size(), 20);
        QVERIFY(!editor.layouts.save(customLayoutOf(99, "one more"_s, LayoutGrouping())).isEmpty());
    }

    void backgroundSpreadsOverTheKeys()
    {
        EditorFixture fixture(Panel::Present);
        EditorContext &editor = fixture.editor();
        QImage whole(vorlinmodel::panelPixelSize(), QImage::Format_RGB32);
        QLinearGradient gradient(0, 0, 450, 100); // no two keys look the same
        gradient.setColorAt(1, Qt::blue);
        QPainter(&whole).fillRect(whole.rect(), gradient);
        QVERIFY(whole.save(fixture.path("panel.png")));
        const LayoutGrouping grouping({Square});
        QCOMPARE(editor.layouts.save(customLayoutOf(Id, "L"_s, LayoutGrouping())), QString());
        give(fixture, {Id, 1, 1}, "title"_s);
        settle(fixture);
        QCOMPARE(editor.layouts.setBackground(Id, {fixture.path("panel.png"), {1}, true}), QString());
        QCOMPARE(editor.layouts.save(customLayoutOf(Id, "L"_s, grouping)), QString()); // is cut anew
        settle(fixture);
        const auto shown = [&](const LayoutGrouping &keys) {
            for (int kid = 1; kid <= keys.masks().size(); ++kid) {
                const PanelKey key = fixture.panel->state().keys.value({Id, 1, kid});
                const QImage picture = QImage::fromData(key.picture).convertToFormat(QImage::Format_RGB32);
                if (picture != vorlinmodel::backgroundPiece(whole, keys.masks().at(kid - 1)) ||
                    key.record.functionId != (kid == 1 ? 5 : vorlinmodel::VIDEO_FID))
                    return false;
            }
            return true;
        };
        QVERIFY(shown(grouping));
        QCOMPARE(fixture.panel->state().keys.size(), 12);
        QVERIFY(editor.layouts.keysLost(customLayoutOf(Id, {}, LayoutGrouping({0x7FFF}))).isEmpty());
        editor.edits.undo();
        settle(fixture);
        QVERIFY(shown(LayoutGrouping()));
        QCOMPARE(editor.layouts.setBackground(Id, {}), QString());
        settle(fixture);
        QCOMPARE(panelKeys(fixture), texts({"2/1/1 title"}));
        QCOMPARE(fixture.panel->violations().join("; "_s), QString());
        QVERIFY(!editor.layouts.setBackground(Id, {fixture.path("none.png"), {1}}).isEmpty());
    }

    void whatThePanelHasNotTakenIsKept()
    {
        EditorFixture fixture(Panel::Absent);
        QCOMPARE(fixture.editor().layouts.save(customLayoutOf(Id, "L"_s, LayoutGrouping({Square}))),
                 QString());
        give(fixture, {Id, 1, 1}, "k"_s, pictureFile(fixture.path("red.png"), Qt::red));
        QTRY_COMPARE(fixture.editor().edits.pending().mark({Id, 1, 1}), PendingEdits::Mark::Pending);
        fixture.restart();
        QVERIFY(fixture.editor().layouts.isPending(Id));
        fixture.panel->plug();
        fixture.editor().layouts.sendPending();
        fixture.editor().edits.sendPending();
        settle(fixture);
        QCOMPARE(panelKeys(fixture), texts({"2/1/1 k"}));
        QCOMPARE(panelPictureSize(fixture, 1), QSize(180, 168)); // of a key that it knew by then
        fixture.panel->unplug();
        QCOMPARE(fixture.editor().layouts.remove(Id), QString());
        QTRY_COMPARE(fixture.editor().edits.pending().mark({Id, 1, 1}), PendingEdits::Mark::Pending);
        fixture.panel->plug();
        fixture.editor().layouts.sendPending();
        fixture.editor().edits.sendPending();
        settle(fixture);
        QVERIFY(fixture.panel->state().layouts.isEmpty());
        QCOMPARE(fixture.panel->violations().join("; "_s), QString());
    }

    void panelTakesThePlaceOfOurs()
    {
        EditorFixture fixture;
        const LayoutGrouping grouping({Square});
        for (int id = 2; id <= 5; ++id) {
            CustomLayout layout = customLayoutOf(id, "layout ñ"_s, grouping);
            layout.background = "b.png"_s;
            QVERIFY(vorlinmodel::saveCustomLayout(layout));
        }
        const QString unused = vorlinmodel::layoutPictureFolder() + "/%1.png"_s.arg(QString(40, u'a'));
        QVERIFY(writeTestFile(unused, "of a layout that is no more"));
        LayoutEdits &layouts = fixture.editor().layouts;
        QVERIFY(!QFile::exists(unused));
        QCOMPARE(layouts.save(customLayoutOf(5, "mine"_s, grouping)), QString()); // nobody takes it: pending
        const QByteArray before = testFileContent(vorlindesk::Paths::customLayoutIni());
        QSignalSpy problems(&layouts, &LayoutEdits::sigProblem);
        layouts.clearForPanel();
        CustomLayoutRecord::Record same{2, "layout ?"_s, {}};
        const CustomLayout ours = customLayoutOf(2, {}, grouping);
        for (const vorlinmodel::CustomLayoutKey &key : ours.keys)
            same.keys.append({key.firstPhysical, key.lastPhysical});
        layouts.takeFromPanel(same);
        layouts.takeFromPanel({3, "new"_s, {{8, 15}, {1, 1}}});
        layouts.takeFromPanel({5, "old"_s, {{1, 1}}});
        layouts.takeFromPanel({6, "bad"_s, {{1, 7}, {7, 7}}}); // overlap
        layouts.takeFromPanel({6, "bad"_s, {{2, 6}}});         // no corners
        QTRY_COMPARE(vorlinmodel::customLayoutIds(), (QVector<int>{2, 3, 5}));
        QCOMPARE(problems.count(), 2);
        QCOMPARE(loadCustomLayout(2)->name, "layout ñ"_s);
        QCOMPARE(loadCustomLayout(2)->background, "b.png"_s);
        QCOMPARE(loadCustomLayout(3)->keys.at(0).mask, 0x7380U); // keys 8 to 10 and 13 to 15
        QCOMPARE(loadCustomLayout(5)->name, "mine"_s);
        QCOMPARE(testFileContent(vorlindesk::Paths::customLayoutIni() + ".before"_s), before);
    }
};

QTEST_MAIN(LayoutEditsTest)
#include "tst_ui_editor_layoutedits.moc"
