// The one road of every edit: store, panel, history, disk.
#include "editorfixture.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "model/multiaction.h"
#include "support/files.h"
#include "support/table.h"
#include "ui_editor/keyclipboard.h"

#include <future>

Q_DECLARE_METATYPE(KeyState)

using vorlinmodel::AttributeId;
using vorlinmodel::key_id_t;
using Panel = EditorFixture::Panel;

namespace {

const key_id_t Key{1, 1, 3};
const key_id_t Other{1, 2, 4};

void drop(EditorFixture &fixture, const key_id_t &key, int fid)
{
    KeyEdits &edits = fixture.editor().edits;
    edits.change("drop"_s, {key}, [&] {
        edits.store().addKeyAttribute(key, fid);
        edits.send(key, fid, AttributeId::FunctionId);
        edits.send(key, fid, AttributeId::Picture);
    });
}

void setTitle(EditorFixture &fixture, const key_id_t &key, const QString &title)
{
    KeyEdits &edits = fixture.editor().edits;
    edits.change("title"_s, {key}, [&] {
        edits.store().setTitle(key, title);
        edits.send(key, 0, AttributeId::Title);
    });
}

void setPicture(EditorFixture &fixture, const key_id_t &key, const QString &path)
{
    KeyEdits &edits = fixture.editor().edits;
    edits.change("picture"_s, {key}, [&] {
        edits.store().setCustomImage(key, path);
        edits.send(key, 0, AttributeId::Image);
    });
}

QRgb pixelOf(const EditorFixture &fixture, const key_id_t &key)
{
    return QImage(fixture.store.getCustomImage(key)).pixel(10, 10);
}

QByteArray panelTitle(EditorFixture &fixture, const key_id_t &key)
{
    return fixture.panel->state().keys.value({key.lid, key.pageid, key.kid}).record.title;
}

QVector<int> numbers(const QVector<AttributeId> &attributes)
{
    QVector<int> result;
    for (const AttributeId attribute : attributes)
        result.append(int(attribute));
    return result;
}

KeyState stateOf(int fid, const std::function<void(KeyState &)> &change = {})
{
    EditorFixture fixture;
    fixture.store.createKeyAttribute(Key, fid);
    KeyState state = captureKeyState(fixture.store, Key);
    if (change)
        change(state);
    return state;
}

/// Its first saving takes until the disk is ready.
struct SlowStore : vorlinmodel::FunctionManager
{
    bool saveAllKeyData() override
    {
        if (++savings == 1)
            ready.wait_for(std::chrono::seconds(10));
        return true;
    }

    std::atomic<int> savings = 0;
    std::promise<void> disk;
    std::future<void> ready = disk.get_future();
};

} // namespace

class EditsTest : public QObject
{
    Q_OBJECT
    using FollowsTable = Table<KeyState, KeyState, QVector<int>>;
    using MarkTable = Table<int, int, bool>;

private slots:
    void undoAndRedoReachThePanel()
    {
        EditorFixture fixture;
        KeyEdits &edits = fixture.editor().edits;
        drop(fixture, Key, 5);
        edits.changeAtRest("title"_s, Key, AttributeId::Title, [&] { edits.store().setTitle(Key, "a"_s); });
        fixture.takeRequests();
        edits.undo(); // ends the typing first
        QCOMPARE(fixture.takeRequests(), texts({"1: 1 1 3, fid 5, id 6", "1: 1 1 3, fid 5, id 6"}));
        edits.undo();
        QCOMPARE(fixture.takeRequests(), texts({"1: 1 1 3, fid 0, id 13"}));
        QVERIFY(!edits.store().getKeyAttribute(Key));
        edits.redo();
        edits.redo();
        QCOMPARE(fixture.takeRequests(),
                 texts({"1: 1 1 3, fid 5, id 8", "1: 1 1 3, fid 5, id 9", "1: 1 1 3, fid 5, id 6"}));
        QCOMPARE(edits.store().getTitleText(Key), "a"_s);
    }

    void oneStepPerWish()
    {
        EditorFixture fixture;
        KeyEdits &edits = fixture.editor().edits;
        edits.change("outer"_s, {Key}, [&] {
            drop(fixture, Key, 5);
            drop(fixture, Other, 6); // a key that the outer step did not name
        });
        edits.change("nothing"_s, {Key}, [] {});
        QCOMPARE(edits.history().count(), 1);
        edits.undo();
        QVERIFY(edits.store().getKeys().isEmpty());
    }

    void typingIsSentOnceItRests()
    {
        EditorFixture fixture;
        KeyEdits &edits = fixture.editor().edits;
        drop(fixture, Key, 5);
        fixture.takeRequests();
        const auto type = [&](const QString &text) {
            edits.changeAtRest("title"_s, Key, AttributeId::Title,
                               [&] { edits.store().setTitle(Key, text); });
        };
        type("a"_s);
        type("ab"_s);
        QVERIFY(fixture.requests.isEmpty());
        QTRY_COMPARE(fixture.requests, texts({"1: 1 1 3, fid 5, id 6"}));
        fixture.takeRequests();
        QCOMPARE(edits.history().count(), 2);
        type("abc"_s); // and back before it rests: nothing has changed
        type("ab"_s);
        edits.flush();
        QCOMPARE(edits.history().count(), 2);
        QVERIFY(fixture.requests.isEmpty());
    }

    void whatFollowsAFunction_data()
    {
        const FollowsTable row;
        const auto titled = [](KeyState &state) {
            state.record->strTitle = "x"_s;
            state.record->titleFontSize = 20;
        };
        const auto address = [](KeyState &state) {
            state.record->strAppOrUrl = "http://a"_s;
        };
        const auto steps = [](KeyState &state) {
            state.steps = {{3, 0, "a"_s}};
        };
        row("a free key stays free", KeyState(), KeyState(), QVector<int>{});
        row("cleared", stateOf(5, titled), KeyState(), QVector<int>{13});
        row("new, with the defaults", KeyState(), stateOf(5), QVector<int>{8, 9});
        row("new, with values", KeyState(), stateOf(5, titled), QVector<int>{8, 9, 7, 6});
        row("replaced: what the panel would keep", stateOf(5, titled), stateOf(6), QVector<int>{8, 9, 7, 6});
        row("an address that became a text", stateOf(3, address), stateOf(15), QVector<int>{8, 9, 17});
        row("an address that nothing follows", stateOf(3, address), stateOf(5), QVector<int>{8, 9, 11});
        row("steps that nothing follows", stateOf(4, steps), stateOf(5), QVector<int>{8, 9, 15});
        row("one value", stateOf(3), stateOf(3, address), QVector<int>{11});
        row("steps", stateOf(4), stateOf(4, steps), QVector<int>{15});
        row("no picture to send", KeyState(), stateOf(11), QVector<int>{8});
    }

    void whatFollowsAFunction()
    {
        const auto [from, to, ids] = FollowsTable::current();
        QCOMPARE(numbers(attributesToSend(from, to)), ids);
    }

    void whatNoAttributeTakesAway()
    {
        const KeyState video = stateOf(17, [](KeyState &state) { state.record->defaultImage = "v.mp4"_s; });
        const auto icon = [](KeyState &state) {
            state.record->defaultImage = ":/icon"_s;
        };
        QCOMPARE(numbers(attributesToRestore(video, stateOf(17, icon))), QVector<int>({13, 8, 9}));
        QCOMPARE(numbers(attributesToRestore(stateOf(5), stateOf(11))), QVector<int>({13, 8}));
        QCOMPARE(numbers(attributesToRestore(stateOf(5), stateOf(6))), QVector<int>({8, 9}));
    }

    void aKeyNamedTwiceGetsTheLast()
    {
        EditorFixture fixture;
        KeyEdits &edits = fixture.editor().edits;
        const KeyState steps = stateOf(4, [](KeyState &state) { state.steps = {{3, 0, {}}}; });
        edits.place("paste"_s, {{Key, steps}, {Other, steps}, {Key, stateOf(5)}});
        QCOMPARE(fixture.requests.filter(" 1 1 3,"_s),
                 texts({"1: 1 1 3, fid 5, id 8", "1: 1 1 3, fid 5, id 9"}));
        QVERIFY(vorlinmodel::multiActionStore().readActionsByKeyId(1, 1, 3).isEmpty());
    }

    /// A reset takes hundreds of them away: undo shall find them on the disk, and not write them.
    void undoFindsThePictureOfAKeyThatIsGone()
    {
        EditorFixture fixture;
        KeyEdits &edits = fixture.editor().edits;
        fixture.store.createKeyAttribute(Key, 3);
        setPicture(fixture, Key, pictureFile(fixture.path("red.png"), Qt::red));
        QVERIFY(edits.saveNow());
        const QByteArray red = testFileContent(fixture.store.getCustomImage(Key));
        edits.place("Delete"_s, {{Key, {}}});
        QVERIFY(edits.saveNow());
        QVERIFY(!QFileInfo::exists(fixture.path("devConfig/image/1_1_3.png")));
        const QFileInfoList kept = QDir(fixture.path("devConfig/pictures")).entryInfoList(QDir::Files);
        QCOMPARE(kept.size(), 1);
        QCOMPARE(testFileContent(kept.first().filePath()), red);
        edits.undo();
        QCOMPARE(fixture.store.getCustomImage(Key), kept.first().filePath());
        QVERIFY(edits.saveNow());
        fixture.restart();
        QCOMPARE(testFileContent(fixture.store.getCustomImage(Key)), red);
        QVERIFY(QDir(fixture.path("devConfig/pictures")).isEmpty());
    }

    void undoBringsThePictureBackThatASavingHasReplaced()
    {
        EditorFixture fixture;
        KeyEdits &edits = fixture.editor().edits;
        drop(fixture, Key, 5);
        setPicture(fixture, Key, pictureFile(fixture.path("red.png"), Qt::red));
        QVERIFY(edits.saveNow()); // the key's own file is red now
        setPicture(fixture, Key, pictureFile(fixture.path("blue.png"), Qt::blue));
        QVERIFY(edits.saveNow()); // and now blue
        QCOMPARE(pixelOf(fixture, Key), QColor(Qt::blue).rgb());
        edits.undo();
        QCOMPARE(pixelOf(fixture, Key), QColor(Qt::red).rgb());
        QVERIFY(edits.saveNow());
        QCOMPARE(QImage(fixture.path("devConfig/image/1_1_3.png")).pixel(1, 1), QColor(Qt::red).rgb());
        edits.redo();
        QCOMPARE(pixelOf(fixture, Key), QColor(Qt::blue).rgb());
        edits.place("clear"_s, {{Key, {}}});
        QVERIFY(edits.saveNow());
        QVERIFY(!QFile::exists(fixture.path("devConfig/image/1_1_3.png")));
    }

    void editsRestOnDisk()
    {
        EditorFixture fixture;
        drop(fixture, Key, 5);
        setTitle(fixture, Key, "标题"_s);
        QTRY_VERIFY(QFile::exists(fixture.path("devConfig/image/imageUrl.ini"))); // by itself, after the rest
        setTitle(fixture, Key, "later"_s);                                        // and at the end
        fixture.restart();
        QCOMPARE(fixture.store.getTitleText(Key), "later"_s);
    }

    void editsWithoutAPanelAreSentWhenItComes()
    {
        EditorFixture fixture(Panel::Absent);
        QSignalSpy marks(&fixture.editor().edits, &KeyEdits::sigMarkChanged);
        fixture.panel->with([](PanelModel &panel) { // what it shows from before, under another function
            PanelState state = panel.state();
            state.keys.insert({1, 1, 3}, newPanelKey({1, 1, 3}, 9));
            state.keys[{1, 1, 3}].record.title = "old";
            panel.setState(state);
        });
        drop(fixture, Key, 5);
        QTRY_COMPARE(int(fixture.editor().edits.pending().mark(Key)), int(PendingEdits::Mark::Pending));
        QVERIFY(!fixture.editor().edits.pending().reason(Key).isEmpty());
        QVERIFY(marks.count() > 0);
        fixture.restart(); // the marks outlive the program
        QCOMPARE(int(fixture.editor().edits.pending().mark(Key)), int(PendingEdits::Mark::Pending));

        fixture.panel->plug();
        fixture.editor().edits.sendPending();
        QTRY_COMPARE(int(fixture.editor().edits.pending().mark(Key)), int(PendingEdits::Mark::None));
        QTRY_COMPARE(int(fixture.panel->state().keys.value({1, 1, 3}).record.functionId), 5);
        QCOMPARE(panelTitle(fixture, Key), QByteArray());
        QCOMPARE(fixture.panel->violations().join("; "_s), QString());
        fixture.restart();
        QVERIFY(fixture.editor().edits.pending().keys().isEmpty());
    }

    void aFailedSendIsMarkedAndTriedAgain()
    {
        EditorFixture fixture(Panel::Present);
        KeyEdits &edits = fixture.editor().edits;
        drop(fixture, Key, 5);
        QTRY_VERIFY(edits.pending().keys().isEmpty());
        fakeHid().setWriteResult(-1);
        setTitle(fixture, Key, "t"_s);
        QTRY_COMPARE(int(edits.pending().mark(Key)), int(PendingEdits::Mark::Failed));
        fakeHid().setWriteResult(std::nullopt);
        edits.sendPending();
        QTRY_COMPARE(int(edits.pending().mark(Key)), int(PendingEdits::Mark::None));
        QCOMPARE(panelTitle(fixture, Key), QByteArray("t"));
    }

    void whatAMarkOutlives_data()
    {
        const MarkTable row;
        row("another value", 6, 7, true);
        row("the picture, under its other id", 9, 5, false);
        row("the key was cleared", 5, 13, false);
    }

    void whatAMarkOutlives()
    {
        const auto [refused, taken, stays] = MarkTable::current();
        using vorlinmodel::RequestOutcome;
        PendingEdits pending;
        const auto post = [&](int id, RequestOutcome outcome) {
            pending.posted(Key, AttributeId(id));
            pending.posted(Key, AttributeId::TitleColour); // what is posted later is not covered
            pending.done(Key, AttributeId(id), outcome);
            QVERIFY(pending.attributes(Key).count(AttributeId::TitleColour) != 0);
            pending.done(Key, AttributeId::TitleColour, RequestOutcome::Sent);
        };
        post(refused, RequestOutcome::Unreadable);
        QCOMPARE(int(pending.mark(Key)), int(PendingEdits::Mark::Failed));
        post(taken, RequestOutcome::Sent);
        QCOMPARE(pending.mark(Key) == PendingEdits::Mark::Failed, stays);
        QCOMPARE(pending.keys().isEmpty(), !stays);
    }

    void whatThePendingFileHolds()
    {
        EditorFixture fixture;
        fixture.store.createKeyAttribute(Key, vorlinmodel::TEXT_OUTPUT_FID);
        QVERIFY(writeTestFile(fixture.path("devConfig/pending.ini"),
                              "[pending]\n1_1_3=11\n999_1_3=8\n1_17_3=8\n1_1_16=8\n1_1_4=4 16 99\n"));
        fixture.editor()
            .edits.sendPending(); // an address, on a key that puts out a text by now: all is sent anew
        QCOMPARE(fixture.takeRequests(),
                 texts({"1: 1 1 3, fid 15, id 13", "1: 1 1 3, fid 15, id 8", "1: 1 1 3, fid 15, id 9"}));
    }

    void aPanelThatComesDuringAReadGetsItAfterwards()
    {
        EditorFixture fixture;
        KeyEdits &edits = fixture.editor().edits;
        drop(fixture, Key, 5);
        fixture.takeRequests();
        edits.beginRead();
        fixture.store.deleteKeyAttribute(Key);
        fixture.store.createKeyAttribute(Key, 7);
        edits.sendPending(); // the store holds what the panel shows, not what the person wants
        QVERIFY(fixture.requests.isEmpty());
        edits.endRead(false, {Key});
        QCOMPARE(fixture.takeRequests().mid(1), texts({"1: 1 1 3, fid 5, id 8", "1: 1 1 3, fid 5, id 9"}));
    }

    void aReadThatEndsEarlyLosesNoPicture()
    {
        EditorFixture fixture;
        KeyEdits &edits = fixture.editor().edits;
        fixture.store.createKeyAttribute(Key, 5);
        fixture.store.setCustomImage(Key, pictureFile(fixture.path("red.png"), Qt::red));
        QVERIFY(edits.saveNow());
        edits.beginRead();
        QVERIFY(
            QFile::remove(fixture.store.getCustomImage(Key))); // as the first page of a read does with all
        edits.endRead(false, {Other});
        QCOMPARE(pixelOf(fixture, Key), QColor(Qt::red).rgb());
        QVERIFY(edits.saveNow());
        QVERIFY(QFile::exists(fixture.path("devConfig/image/1_1_3.png")));
    }

    void aReadLosesNoVideo()
    {
        EditorFixture fixture;
        KeyEdits &edits = fixture.editor().edits;
        for (const key_id_t &key : {Key, Other}) {
            fixture.store.createKeyAttribute(key, vorlinmodel::VIDEO_FID);
            fixture.store.setCustomVideo(key, "/film.avi"_s);
        }
        edits.beginRead();
        for (const key_id_t &key : {Key, Other})
            fixture.store.deleteKeyAttribute(key);
        fixture.store.createKeyAttribute(Key, vorlinmodel::VIDEO_FID); // panels never send videos
        fixture.store.createKeyAttribute(Other, 5);
        edits.endRead(true, {Key, Other});
        QCOMPARE(fixture.store.getDefaultImage(Key), "/film.avi"_s);
        QVERIFY(fixture.store.getDefaultImage(Other) != "/film.avi"_s);
    }

    void aReadKeepsWhatThePanelHasNotTaken()
    {
        EditorFixture fixture(Panel::Absent);
        KeyEdits &edits = fixture.editor().edits;
        drop(fixture, Key, vorlinmodel::MULTIPLE_ACTIONS_FID);
        edits.change("steps"_s, {Key}, [] {
            QString error;
            vorlinmodel::multiActionStore().writeActionsByKeyId(1, 1, 3, {{100, 7, {}}}, error);
        });
        QTRY_COMPARE(int(edits.pending().mark(Key)), int(PendingEdits::Mark::Pending));
        fixture.store.createKeyAttribute(Other, 6); // the panel has it, as far as we know
        QSignalSpy changed(&edits, &KeyEdits::sigKeysChanged);
        edits.beginRead();
        fixture.store.deleteKeyAttribute(Key); // what a read of a panel does that shows something else there
        fixture.store.createKeyAttribute(Key, 7);
        const key_id_t fresh{1, 1, 9};
        fixture.store.createKeyAttribute(fresh, 8);
        edits.endRead(true, {Key, fresh});

        QCOMPARE(fixture.store.getKeyAttribute(Key)->mFId, vorlinmodel::MULTIPLE_ACTIONS_FID);
        QCOMPARE(vorlinmodel::multiActionStore().readActionsByKeyId(1, 1, 3).size(), 1);
        QVERIFY(!fixture.store.getKeyAttribute(Other)); // the panel has it no more
        QVERIFY(fixture.store.getKeyAttribute(fresh));
        QVERIFY(changed.count() > 0);
        edits.undo(); // a read can be taken back, too
        QVERIFY(fixture.store.getKeyAttribute(Other));
        QVERIFY(!fixture.store.getKeyAttribute(fresh));
    }

    void aSlowDiskHoldsNobodyUp()
    {
        EditorFixture fixture; // for the folder
        SlowStore store;
        PendingEdits pending;
        StoreFiles files(store, pending);
        QSignalSpy written(&files, &StoreFiles::sigWritten);
        files.touch();
        QTRY_COMPARE(store.savings.load(), 1);
        files.touch(); // due again while the disk is still busy
        QTest::qWait(StoreFiles::Rest + 200);
        QVERIFY(files.isWriting());
        QCOMPARE(store.savings.load(), 1);
        store.disk.set_value();
        QTRY_COMPARE(store.savings.load(), 2); // nothing is forgotten
        QTRY_COMPARE(written.count(), 2);
        QVERIFY(!files.isWriting());
    }

    void anIncompleteReadRemovesNothing()
    {
        EditorFixture fixture;
        KeyEdits &edits = fixture.editor().edits;
        fixture.store.createKeyAttribute(Other, 16);
        fixture.store.setUrlOrPath(Other, "Left Ctrl#C"_s);
        edits.beginRead();
        fixture.store.setUrlOrPath(Other, "Left Ctrl#C#undefine#undefine"_s);
        edits.endRead(false, {});
        QVERIFY(fixture.store.getKeyAttribute(Other));
        QCOMPARE(edits.history().count(), 0); // nothing that a person would notice
    }

    void clipboardKeepsTheArrangement()
    {
        EditorFixture fixture;
        for (const int kid : {7, 8, 12})
            fixture.store.createKeyAttribute({1, 1, kid}, kid);
        KeyClipboard::copy(fixture.store, {{1, 1, 7}, {1, 1, 8}, {1, 1, 12}});
        QMap<int, int> placed; // key id to function
        for (const KeyPlacement &placement : KeyClipboard::placements({{1, 2, 5}}))
            placed.insert(placement.key.kid, placement.state.fid());
        QCOMPARE(placed, (QMap<int, int>{{5, 7}, {10, 12}})); // what would lie right of the panel is left out
        KeyClipboard::copy(fixture.store, {{1, 1, 7}});
        QCOMPARE(KeyClipboard::placements({{1, 2, 5}, {2, 3, 15}}).size(), 2);
    }

    void foreignBytesOnTheClipboardAreNoKeys_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const auto copied = [](const KeyState &state) {
            QByteArray bytes;
            QDataStream stream(&bytes, QIODevice::WriteOnly);
            stream.setVersion(QDataStream::Qt_5_15);
            stream << quint32(0x564B4559) << qint32(1) << qint32(3) << state;
            return bytes;
        };
        const QByteArray sound = copied(stateOf(5));
        const auto large = [](KeyState &state) {
            state.record->titleFontSize = 256;
        };
        QTest::newRow("a font size of 256") << copied(stateOf(5, large));
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("cut") << sound.left(sound.size() - 1);
        QTest::newRow("another magic") << QByteArray(sound).replace(0, 1, "W");
        QTest::newRow("key 16") << QByteArray(sound).replace(11, 1, "\x10");
        QTest::newRow("4 billion steps") << sound.left(sound.size() - 16) + QByteArray(16, '\xFF');
    }

    void foreignBytesOnTheClipboardAreNoKeys()
    {
        QFETCH(QByteArray, bytes);
        auto *data = new QMimeData; // taken by the clipboard
        data->setData(QString::fromLatin1(KeyClipboard::Format), bytes);
        QGuiApplication::clipboard()->setMimeData(data);
        QVERIFY(KeyClipboard::placements({Key}).isEmpty());
    }
};

QTEST_MAIN(EditsTest)
#include "tst_ui_editor_edits.moc"
