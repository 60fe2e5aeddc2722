// Thousands of random edits through the real cells, with a panel that comes and goes: in the end the store,
// the files and the panel must hold the same.
#include "editorfixture.h"
#include "model/functionids.h"
#include "model/imageurlfile.h"
#include "model/keypicture.h"
#include "model/multiaction.h"
#include "support/table.h"
#include "ui_editor/keyboardwidget.h"
#include "ui_editor/keyclipboard.h"
#include "ui_editor/keywidget.h"
#include "ui_editor/vorlinmimedata.h"
#include "wire/actionlist.h"
#include "wire/attributevalue.h"
#include "wire/keyrecord.h"
#include "wire/textcodec.h"

using vorlinmodel::AttributeId;
using vorlinmodel::key_id_t;

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int Edits = 300;
#else
constexpr int Edits = 2000;
#endif
constexpr int Pages = 3;
constexpr int Functions[] = {1, 2, 3, 4, 5, 8, 13, 15, 16, 18, 19};

class RandomEditor
{
public:
    RandomEditor(EditorFixture &fixture, quint32 seed)
        : mFixture(fixture)
        , mEdits(fixture.editor().edits)
        , mRandom(seed)
    {
        for (int page = 1; page <= Pages; ++page) {
            mGrids.append(new KeyboardWidget(fixture.editor(), 1, page, &mWindow));
            mGrids.last()->setup(true, false);
        }
        for (int i = 0; i < 4; ++i)
            mPictures.append(pictureFile(fixture.path(qPrintable("p%1.png"_s.arg(i))),
                                         QColor::fromHsv(i * 90, 255, 255), {30, 28}));
    }

    void edit()
    {
        using Edit = void (RandomEditor::*)();
        static constexpr Edit edits[] = {
            &RandomEditor::dropFunction, &RandomEditor::dropFunction, &RandomEditor::dropPicture,
            &RandomEditor::setValue,     &RandomEditor::setValue,     &RandomEditor::type,
            &RandomEditor::setContent,   &RandomEditor::setSteps,     &RandomEditor::remove,
            &RandomEditor::swap,         &RandomEditor::paste,        &RandomEditor::undo,
            &RandomEditor::undo,         &RandomEditor::redo,         &RandomEditor::togglePanel,
        };
        (this->*edits[mRandom.bounded(int(std::size(edits)))])();
        QCoreApplication::processEvents();
    }

    /// Lets the panel have everything that it has not taken.
    bool settle()
    {
        mEdits.flush();
        if (!mPresent)
            (void)QTest::qWaitFor([] { return fakeHid().openHandles() == 0; });
        mFixture.panel->plug();
        mPresent = true;
        // The first attempts may come before the program has noticed that the panel is back.
        for (int attempt = 0; attempt < 5 && !mEdits.pending().keys().isEmpty(); ++attempt) {
            mEdits.sendPending();
            (void)QTest::qWaitFor([this] { return mEdits.pending().keys().isEmpty(); }, 20000);
        }
        return mEdits.pending().keys().isEmpty();
    }

    QString pendingText() const
    {
        QStringList texts;
        for (const key_id_t &id : mEdits.pending().keys()) {
            for (const AttributeId attribute : mEdits.pending().attributes(id))
                texts.append("%1/%2: %3"_s.arg(id.pageid).arg(id.kid).arg(int(attribute)));
        }
        return texts.join(", "_s);
    }

private:
    int below(int limit) { return mRandom.bounded(limit); }
    key_id_t key() { return {1, 1 + below(Pages), 1 + below(vorlinmodel::LastKeyId)}; }
    KeyWidget *cell(const key_id_t &id) { return mGrids.at(id.pageid - 1)->cell(id.kid); }

    key_id_t usedKey()
    {
        const auto keys = mFixture.store.getKeys();
        return keys.isEmpty() ? key() : keys.at(below(keys.size()));
    }

    void drop(const key_id_t &id, const QMimeData &data)
    {
        if (id.pageid > Pages)
            return;
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(cell(id), &enter); // whoever is entered is the target of the drop
        if (!enter.isAccepted())
            return;
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(cell(id), &event);
    }

    /// With a picture of one colour, which is sent in few blocks; icons would make the test slow.
    void dropFunction()
    {
        const key_id_t id = key();
        QByteArray bytes;
        QDataStream(&bytes, QIODevice::WriteOnly) << qint32(Functions[below(int(std::size(Functions)))]);
        QMimeData data;
        data.setData(QString::fromLatin1(DragFormat::FunctionId), bytes);
        drop(id, data);
        dropPictureOn(id);
    }

    void dropPicture() { dropPictureOn(usedKey()); }

    void dropPictureOn(const key_id_t &id)
    {
        vorlindesk::VorlinMimeData data;
        data.strData1 = mPictures.at(below(mPictures.size()));
        data.store(QString::fromLatin1(DragFormat::FunctionIcon));
        drop(id, data);
        (void)mFixture.picturesArePlaced();
    }

    void setValue()
    {
        const key_id_t id = usedKey();
        const auto record = mFixture.store.getKeyAttribute(id);
        if (!record)
            return;
        const int value = below(3);
        const auto set = [&](AttributeId attribute, const std::function<void()> &change) {
            mEdits.change("value"_s, {id}, [&] {
                change();
                mEdits.send(id, record->mFId, attribute);
            });
        };
        switch (below(5)) {
        case 0:
            return set(AttributeId::ImageEffects, [&] { mFixture.store.setImageEffects(id, value); });
        case 1:
            return set(AttributeId::DisplayMode, [&] { mFixture.store.setDisplayMode(id, value % 2); });
        case 2:
            return set(AttributeId::TitleAlignment, [&] { mFixture.store.setTitleAlignment(id, value); });
        case 3:
            return set(AttributeId::TitleFontSize, [&] { mFixture.store.setTitleFontSize(id, 10 + value); });
        default:
            return set(AttributeId::TitleColour,
                       [&] { mFixture.store.setTitleFontColor(id, QColor::fromHsv(value * 100, 255, 255)); });
        }
    }

    void type()
    {
        const key_id_t id = usedKey();
        if (!mFixture.store.getKeyAttribute(id))
            return;
        mEdits.changeAtRest("title"_s, id, AttributeId::Title, [&] {
            mFixture.store.setTitle(id, mFixture.store.getTitleText(id).left(8) + QChar(0x4E00 + below(200)));
        });
    }

    void setContent()
    {
        const key_id_t id = usedKey();
        const auto record = mFixture.store.getKeyAttribute(id);
        const auto attribute = contentAttribute(record ? record->mFId : 0);
        if (!attribute || *attribute == AttributeId::MultiActions)
            return;
        const bool combination = *attribute == AttributeId::KeyCombination;
        mEdits.change("content"_s, {id}, [&] {
            if (combination)
                mFixture.store.setKeyCombination(id, {"Left Ctrl"_s, "C"_s});
            else
                mFixture.store.setUrlOrPath(id, "text %1"_s.arg(below(50)));
            mEdits.send(id, record->mFId, *attribute);
        });
    }

    void setSteps()
    {
        const key_id_t id = usedKey();
        const auto record = mFixture.store.getKeyAttribute(id);
        if (!record || record->mFId != vorlinmodel::MULTIPLE_ACTIONS_FID)
            return;
        mEdits.change("steps"_s, {id}, [&] {
            QVector<vorlinmodel::MultiAction> steps;
            for (int i = below(4); i > 0; --i)
                steps.append({3, 0, "http://%1"_s.arg(below(9))});
            steps.append({vorlinmodel::TIME_DELAY_FID, quint16(below(1000)), {}});
            QString error;
            QVERIFY(
                vorlinmodel::multiActionStore().writeActionsByKeyId(id.lid, id.pageid, id.kid, steps, error));
            mEdits.send(id, record->mFId, AttributeId::MultiActions);
        });
    }

    void remove()
    {
        const key_id_t id = usedKey();
        if (id.pageid > Pages || !mFixture.store.getKeyAttribute(id))
            return;
        cell(id)->updateFid();
        cell(id)->onDeleteActionHandler();
    }

    void swap()
    {
        const key_id_t from = usedKey();
        const key_id_t to = key();
        if (from != to)
            mEdits.place("swap"_s, {{from, captureKeyState(mFixture.store, to)},
                                    {to, captureKeyState(mFixture.store, from)}});
    }

    void paste()
    {
        KeyClipboard::copy(mFixture.store, {usedKey()});
        mEdits.place("paste"_s, KeyClipboard::placements({key(), key()}));
    }

    void undo() { mEdits.undo(); }
    void redo() { mEdits.redo(); }

    void togglePanel()
    {
        if (below(4) != 0) // it stays as it is longer than an edit takes
            return;
        if (!mPresent && fakeHid().openHandles() > 0)
            return; // the program has not noticed yet that it is gone
        mPresent = !mPresent;
        if (mPresent) {
            mFixture.panel->plug();
            mEdits.sendPending();
        } else {
            mFixture.panel->unplug();
        }
    }

    EditorFixture &mFixture;
    KeyEdits &mEdits;
    QRandomGenerator mRandom;
    QWidget mWindow;
    QList<KeyboardWidget *> mGrids;
    QStringList mPictures;
    bool mPresent = true;
};

/// What the panel must hold for a key of the store; the content as it stands in a record.
PanelKey expected(const EditorFixture &fixture, const key_id_t &id)
{
    const vorlinmodel::key_atttribute_t record = *fixture.store.getKeyAttribute(id);
    PanelKey key = newPanelKey({id.lid, id.pageid, id.kid}, quint8(record.mFId));
    key.record.imageEffects = quint8(record.imageEffects);
    key.record.displayMode = quint8(record.nDisplaymode);
    key.record.titleAlignment = quint8(record.titleAlignment);
    key.record.titleFontSize = quint8(record.titleFontSize);
    key.record.red = quint8(record.titleColour.red());
    key.record.green = quint8(record.titleColour.green());
    key.record.blue = quint8(record.titleColour.blue());
    key.record.title = TextCodec::toGbk(record.strTitle);
    key.picture = vorlinmodel::encodedKeyPicture(fixture.store, id, vorlinmodel::keyPixelSize(id))
                      .value_or(QByteArray());
    return key;
}

QByteArray contentOf(const vorlinmodel::key_atttribute_t &record)
{
    switch (record.mFId) {
    case vorlinmodel::TEXT_OUTPUT_FID:
        return TextCodec::toOutput(record.strAppOrUrl);
    case vorlinmodel::KEY_COMBINATION_FID:
        return record.strAppOrUrl.isEmpty() ? QByteArray() : QByteArray("\xE0\x06\0\0", 4);
    default:
        return record.strAppOrUrl.toUtf8();
    }
}

bool isBlank(const QByteArray &bytes)
{
    return bytes.count('\0') == bytes.size();
}

QByteArray actionsOf(const key_id_t &id)
{
    QVector<ActionList::Action> actions;
    for (const auto &step : vorlinmodel::multiActionStore().readActionsByKeyId(id.lid, id.pageid, id.kid))
        actions.append({qint8(step.fid), step.delay, step.url});
    return ActionList::encode(actions).value;
}

/// @return what differs between the store and the panel, in words.
QStringList differences(EditorFixture &fixture)
{
    QStringList found;
    const PanelState panel = fixture.panel->state();
    for (const PanelKeyId &id : panel.keys.keys()) {
        if (!fixture.store.getKeyAttribute({id.layout, id.page, id.key}))
            found.append("%1/%2: on the panel alone"_s.arg(id.page).arg(id.key));
    }
    for (const key_id_t &id : fixture.store.getKeys()) {
        const QString place = "%1/%2 fid %3: "_s.arg(id.pageid).arg(id.kid);
        const auto record = *fixture.store.getKeyAttribute(id);
        const PanelKey key = panel.keys.value({id.lid, id.pageid, id.kid});
        const PanelKey wanted = expected(fixture, id);
        KeyRecord values = key.record;
        values.content = wanted.record.content;
        if (!(values == wanted.record))
            found.append(place.arg(record.mFId) + "values"_s);
        if (key.picture != wanted.picture)
            found.append(place.arg(record.mFId) + "picture"_s);
        if (key.content != contentOf(record) && !(isBlank(key.content) && record.strAppOrUrl.isEmpty()))
            found.append(place.arg(record.mFId) + "content "_s + QString::fromLatin1(key.content.toHex()));
        if (!(isBlank(key.actions) && isBlank(actionsOf(id))) && key.actions != actionsOf(id))
            found.append(place.arg(record.mFId) + "steps"_s);
    }
    return found;
}

QMap<key_id_t, KeyState> statesOf(const vorlinmodel::IFunctionManager &store)
{
    QMap<key_id_t, KeyState> states;
    for (const key_id_t &id : store.getKeys())
        states.insert(id, captureKeyState(store, id));
    return states;
}

} // namespace

class RandomTest : public QObject
{
    Q_OBJECT
    using StoreFilesAndPanelAgreeTable = Table<quint32, int>;

private slots:
    void storeFilesAndPanelAgree_data()
    {
        const StoreFilesAndPanelAgreeTable row;
        row("many edits", 20261121U, Edits);
        row("another beginning", 1U, 200);
    }

    void storeFilesAndPanelAgree()
    {
        const auto [seed, edits] = StoreFilesAndPanelAgreeTable::current();
        EditorFixture fixture(EditorFixture::Panel::Present);
        fakeHid().setInstantTimeouts(true);
        RandomEditor editor(fixture, seed);
        for (int i = 0; i < edits; ++i)
            editor.edit();
        QVERIFY2(editor.settle(), qPrintable(editor.pendingText()));
        QVERIFY2(differences(fixture).isEmpty(), qPrintable(differences(fixture).join(QLatin1Char('\n'))));
        QCOMPARE(fixture.panel->violations().join("; "_s), QString());
        QVERIFY(fixture.store.getKeys().size() > 10); // else nothing was shown

        QVERIFY(fixture.editor().edits.saveNow());
        vorlinmodel::FunctionManager fresh;
        QVERIFY(vorlinmodel::loadAllKeyData(fresh));
        const auto before = statesOf(fixture.store);
        const auto after = statesOf(fresh);
        QCOMPARE(after.keys(), before.keys());
        for (const key_id_t &id : before.keys())
            QVERIFY2(sameKey(before.value(id), after.value(id)), qPrintable(fresh.getAllAttribute(id)));
    }
};

QTEST_MAIN(RandomTest)
#include "tst_ui_editor_random.moc"
