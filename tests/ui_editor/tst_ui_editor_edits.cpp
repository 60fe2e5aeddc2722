// The one road of every edit: store, panel, history, disk.
#include "editorfixture.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "ui_editor/keyclipboard.h"

using vorlinmodel::AttributeId;
using vorlinmodel::key_id_t;

namespace {

const key_id_t Key{1, 1, 3};
const key_id_t Other{1, 2, 4};

void drop(EditorFixture &fixture, const key_id_t &key, int fid)
{
    KeyEdits &edits = fixture.editor().edits;
    edits.change(QStringLiteral("drop"), {key}, [&] {
        edits.store().addKeyAttribute(key, fid);
        edits.send(key, fid, AttributeId::FunctionId);
        edits.send(key, fid, AttributeId::Picture);
    });
}

} // namespace

class EditsTest : public QObject
{
    Q_OBJECT
private slots:
    void undoAndRedoReachThePanel()
    {
        EditorFixture fixture;
        KeyEdits &edits = fixture.editor().edits;
        drop(fixture, Key, 5);
        edits.changeAtRest(QStringLiteral("title"), Key, AttributeId::Title,
                           [&] { edits.store().setTitle(Key, QStringLiteral("a")); });
        fixture.takeRequests();
        edits.undo(); // ends the typing first
        QCOMPARE(fixture.takeRequests(), QStringList({QStringLiteral("1: 1 1 3, fid 5, id 6"),
                                                      QStringLiteral("1: 1 1 3, fid 5, id 6")}));
        edits.undo();
        QCOMPARE(fixture.takeRequests(), QStringList({QStringLiteral("1: 1 1 3, fid 0, id 13")}));
        QVERIFY(!edits.store().getKeyAttribute(Key));
        edits.redo();
        edits.redo();
        QCOMPARE(fixture.takeRequests(),
                 QStringList({QStringLiteral("1: 1 1 3, fid 5, id 8"), QStringLiteral("1: 1 1 3, fid 5, id 9"),
                              QStringLiteral("1: 1 1 3, fid 5, id 6")}));
        QCOMPARE(edits.store().getTitleText(Key), QStringLiteral("a"));
    }
};

QTEST_MAIN(EditsTest)
#include "tst_ui_editor_edits.moc"
