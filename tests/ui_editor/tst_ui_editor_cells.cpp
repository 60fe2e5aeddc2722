// One key of the grid: what can be dropped on it, what that sends, and what the key shows.
#include "editorfixture.h"
#include "model/functionids.h"
#include "model/keypicture.h"
#include "model/multiaction.h"
#include "ui_editor/keywidget.h"
#include "ui_editor/vorlinmimedata.h"

#include <QLabel>
#include <QMenu>

using vorlinmodel::key_id_t;
using Panel = EditorFixture::Panel;
using Mime = QMap<QString, QByteArray>;

namespace {

const key_id_t Key{1, 1, 3};
const key_id_t Other{1, 1, 4};
constexpr char FunctionId[] = "quorradent_function_id";
constexpr char FunctionIcon[] = "quorradent_function_icon";

QByteArray numbers(std::initializer_list<qint32> values)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (const qint32 value : values)
        stream << value;
    return bytes;
}

QByteArray pair(const QString &picture, const QString &video)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << picture << video;
    return bytes;
}

Mime mime(const char *format, const QByteArray &bytes)
{
    return {{QString::fromLatin1(format), bytes}};
}

Mime function(int fid)
{
    return mime(FunctionId, numbers({fid}));
}

Mime dragged(const key_id_t &key)
{
    return mime("application/x-vorlindesk-key", numbers({key.lid, key.pageid, key.kid}));
}

void fill(QMimeData &data, const Mime &formats)
{
    for (auto format = formats.cbegin(); format != formats.cend(); ++format)
        data.setData(format.key(), *format);
}

struct Cell : KeyWidget
{
    Cell(EditorFixture &fixture, const key_id_t &key, quint32 mask = 4)
        : KeyWidget(fixture.editor(), KeyDescriptor(key.lid, key.pageid, key.kid, mask), nullptr)
    {
        setup();
        resize(96, 90);
        updateFid();
        updateKeyIcon();
    }
    bool enter(const Mime &formats, Qt::MouseButtons buttons = Qt::LeftButton)
    {
        QMimeData carried;
        fill(carried, formats);
        QDragEnterEvent event(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &carried, buttons,
                              Qt::NoModifier);
        QCoreApplication::sendEvent(this, &event);
        return event.isAccepted();
    }
    /// Qt hands over only a drop that the key has accepted on entering.
    Qt::DropAction drop(const Mime &formats, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        if (!enter(formats))
            return Qt::IgnoreAction;
        QMimeData carried;
        fill(carried, formats);
        QDropEvent event(QPointF(5, 5), Qt::CopyAction | Qt::MoveAction, &carried, Qt::LeftButton, modifiers);
        QCoreApplication::sendEvent(this, &event);
        return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    }
    QPixmap picture() const { return findChild<QLabel *>(QStringLiteral("icon"))->pixmap(Qt::ReturnByValue); }
};

QStringList ids(EditorFixture &fixture, const key_id_t &key = Key)
{
    QStringList result;
    const QString head = QStringLiteral("1: %1 %2 %3, fid ").arg(key.lid).arg(key.pageid).arg(key.kid);
    for (const QString &request : fixture.takeRequests())
        result.append(request.startsWith(head) ? request.mid(head.size()) : request);
    return result;
}

void setSteps(const key_id_t &key)
{
    QString error;
    vorlinmodel::multiActionStore().writeActionsByKeyId(key.lid, key.pageid, key.kid, {{3, 0, {}}}, error);
}

int stepsOf(const key_id_t &key)
{
    return vorlinmodel::multiActionStore().readActionsByKeyId(key.lid, key.pageid, key.kid).size();
}

void sized(const QString &path, qint64 size)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(size));
}

/// Function ids of the panel's page 1: "3:5 4:6".
QString onPanel(EditorFixture &fixture)
{
    QStringList keys;
    const auto state = fixture.panel->state();
    for (auto key = state.keys.cbegin(); key != state.keys.cend(); ++key)
        keys.append(QStringLiteral("%1:%2").arg(key.key().key).arg(int(key->record.functionId)));
    return keys.join(QLatin1Char(' '));
}

} // namespace

class CellsTest : public QObject
{
    Q_OBJECT
private slots:
    void dragsOverAKey_data()
    {
        QTest::addColumn<Mime>("data");
        QTest::addColumn<int>("buttons");
        QTest::addColumn<bool>("onFree");
        QTest::addColumn<bool>("onUsed");
        const int left = Qt::LeftButton;
        const Mime icon = mime(FunctionIcon, pair(QStringLiteral("a"), {}));
        const auto file = [](const char *name) {
            return mime("text/uri-list", QUrl::fromLocalFile(QString::fromLatin1(name)).toEncoded());
        };
        QTest::newRow("function") << function(5) << left << true << true;
        QTest::newRow("function, button released") << function(5) << 0 << false << false;
        QTest::newRow("picture") << icon << left << false << true;
        QTest::newRow("picture, right button") << icon << int(Qt::RightButton) << false << false;
        QTest::newRow("key") << dragged(Other) << left << true << true;
        QTest::newRow("the key itself") << dragged(Key) << left << false << false;
        QTest::newRow("key 16") << dragged({1, 1, 16}) << left << false << false;
        QTest::newRow("picture file under another name") << file("picture.txt") << 0 << false << true;
        QTest::newRow("text file under a picture's name") << file("text.png") << left << false << false;
        QTest::newRow("text") << mime("text/plain", "a") << left << false << false;
    }

    void dragsOverAKey()
    {
        QFETCH(Mime, data);
        QFETCH(int, buttons);
        QFETCH(bool, onFree);
        QFETCH(bool, onUsed);
        EditorFixture fixture;
        pictureFile(fixture.path("picture.txt"), Qt::red);
        sized(fixture.path("text.png"), 100);
        if (data.contains(QStringLiteral("text/uri-list"))) {
            QByteArray &uri = data[QStringLiteral("text/uri-list")];
            uri = QUrl::fromLocalFile(fixture.path(QUrl::fromEncoded(uri).fileName().toUtf8().constData()))
                      .toEncoded();
        }
        QCOMPARE(Cell(fixture, Key).enter(data, Qt::MouseButtons(buttons)), onFree);
        fixture.store.createKeyAttribute(Key, 5);
        QCOMPARE(Cell(fixture, Key).enter(data, Qt::MouseButtons(buttons)), onUsed);
        Cell disabled(fixture, Key, 0);
        QVERIFY(!disabled.enter(data, Qt::MouseButtons(buttons)));
    }

    void functionOnAFreeKey()
    {
        EditorFixture fixture;
        fixture.store.createKeyAttribute(Key, 9);
        Cell cell(fixture, Key);
        fixture.store.deleteKeyAttribute(Key);
        cell.updateFid(); // as after an undo
        QCOMPARE(cell.fid(), 0);
        QSignalSpy changed(&cell, &KeyWidget::dataChangeSignal);
        QCOMPARE(cell.drop(function(5)), Qt::CopyAction);
        QCOMPARE(ids(fixture), QStringList({QStringLiteral("5, id 8"), QStringLiteral("5, id 9")}));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.first().at(1).toInt(), 5);
        QCOMPARE(fixture.log.matching("mAttr[layoutId"), // level 4
                 QStringList(QStringLiteral("4 ------------mAttr[layoutId=1][pageid=1][keyid=3],mFid[0]")));
        QCOMPARE(fixture.log.count("KeyWidget::dropEvent LeftButton nFid:5"), 1);
        QCOMPARE(fixture.log.count("KeyWidget::dropEvent LeftButton delete old keyattr nFid:5"), 1);
        QVERIFY(!cell.picture().isNull());
        for (const QByteArray &bytes : {numbers({0}), numbers({256}), numbers({100}), QByteArray("\0\0", 2)})
            QCOMPARE(cell.drop(mime(FunctionId, bytes)), Qt::IgnoreAction);
        QCOMPARE(cell.drop(mime(FunctionIcon, "\1")), Qt::IgnoreAction);
        QVERIFY(fixture.requests.isEmpty());
        cell.drop(function(6)); // the record of a used key is not deleted first
        QCOMPARE(fixture.log.count("delete old keyattr"), 1);
    }

    void whatAReplacedKeyLoses_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<QString>("sent");
        QTest::newRow("title and address") << 3 << 5 << QStringLiteral("5, id 8|5, id 9|5, id 6|5, id 11");
        QTest::newRow("steps") << 4 << 5 << QStringLiteral("5, id 8|5, id 9|5, id 6|5, id 11|5, id 15");
        QTest::newRow("child page") << 18 << 1 << QStringLiteral("1, id 8|1, id 9|1, id 6|1, id 11");
    }

    void whatAReplacedKeyLoses()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(QString, sent);
        EditorFixture fixture;
        fixture.store.createKeyAttribute(Key, from);
        fixture.store.setTitle(Key, QStringLiteral("t"));
        fixture.store.setUrlOrPath(Key, QStringLiteral("u"));
        if (from == 4)
            setSteps(Key);
        vorlindesk::SystemSettings::setHomeLayoutEntries({{3, 1, 4, 0}});
        Cell cell(fixture, Key);
        cell.drop(function(to));
        QCOMPARE(ids(fixture).join(QLatin1Char('|')), sent);
        QCOMPARE(stepsOf(Key), 0);
        QCOMPARE(vorlindesk::SystemSettings::homeLayoutEntry(3).pageId, from == 18 ? -1 : 4);
        // The catalogue has no icon for function 1.
        QCOMPARE(fixture.store.getCustomImage(Key).isEmpty(), to != 1);
        fixture.editor().edits.undo();
        QCOMPARE(stepsOf(Key), from == 4 ? 1 : 0);
        QCOMPARE(vorlindesk::SystemSettings::homeLayoutEntry(3).pageId, 4);
        QCOMPARE(fixture.store.getTitleText(Key), QStringLiteral("t"));
    }

    void childPageIsCompletedInTheSameStep()
    {
        EditorFixture fixture;
        Cell cell(fixture, Key);
        connect(&cell, &KeyWidget::functionTaken, &cell, [&fixture] {
            QCOMPARE(fixture.requests.size(), 2);
            fixture.editor().edits.change(QStringLiteral("return key"), {Other},
                                          [&] { fixture.store.createKeyAttribute(Other, 19); });
        });
        QVERIFY(cell.takeFunction(18));
        QCOMPARE(fixture.editor().edits.history().count(), 1);
        fixture.editor().edits.undo();
        QVERIFY(fixture.store.getKeys().isEmpty());
    }

    void pictures_data()
    {
        QTest::addColumn<int>("fid");
        QTest::addColumn<qint64>("size"); // of the video; -1: none, -2: missing file
        QTest::addColumn<QString>("sent");
        QTest::newRow("free key") << 0 << -1LL << QString();
        QTest::newRow("picture") << 5 << -1LL << QStringLiteral("5, id 5");
        QTest::newRow("picture of a video key") << 17 << -1LL << QStringLiteral("17, id 5");
        QTest::newRow("video for another key") << 5 << 1024000LL << QStringLiteral("5, id 5");
        QTest::newRow("video") << 17 << 1024000LL << QStringLiteral("dialog 1: 400000|17, id 10");
        QTest::newRow("a byte below the step")
            << 17 << 10239LL << QStringLiteral("dialog 1: 300000|17, id 10");
        QTest::newRow("missing video") << 17 << -2LL << QStringLiteral("dialog 1: 300000|17, id 10");
    }

    void pictures()
    {
        QFETCH(int, fid);
        QFETCH(qint64, size);
        QFETCH(QString, sent);
        EditorFixture fixture;
        if (fid != 0)
            fixture.store.createKeyAttribute(Key, fid);
        const QString picture = pictureFile(fixture.path("p.png"), Qt::red);
        const QString video = size == -1 ? QString() : fixture.path("v.mp4");
        if (size >= 0)
            sized(video, size);
        Cell cell(fixture, Key);
        cell.drop(mime(FunctionIcon, pair(picture, video)));
        QCOMPARE(ids(fixture).join(QLatin1Char('|')), sent);
        QCOMPARE(fixture.store.getCustomImage(Key), fid == 0 ? QString() : picture);
        QCOMPARE(fixture.store.getDefaultImage(Key) == video && !video.isEmpty(), fid == 17 && size != -1);
        QCOMPARE(fixture.log.count(qPrintable(QStringLiteral("LeftButton Data1:") + picture)),
                 fid == 0 ? 0 : 1);
        QCOMPARE(fixture.log.count("vorlinMimiData.strData2[1024000][100]"), size == 1024000 ? 1 : 0);
        QCOMPARE(cell.picture().isNull(), fid == 0);
        QCOMPARE(fixture.editor().edits.history().count(), fid == 0 ? 0 : 1);
    }

    void aFileDroppedIsCopiedNotMoved()
    {
        EditorFixture fixture;
        fixture.store.createKeyAttribute(Key, 5);
        const QString path = pictureFile(fixture.path("p.bin"), Qt::red);
        Cell cell(fixture, Key);
        QCOMPARE(cell.drop(mime("text/uri-list", QUrl::fromLocalFile(path).toEncoded())), Qt::CopyAction);
        QCOMPARE(ids(fixture), QStringList(QStringLiteral("5, id 5")));
        QCOMPARE(fixture.store.getCustomImage(Key), path);
    }

    void deleting_data()
    {
        QTest::addColumn<int>("fid");
        for (const int fid : {4, 5, 18})
            QTest::addRow("function %d", fid) << fid;
    }

    void deleting()
    {
        QFETCH(int, fid);
        EditorFixture fixture;
        const auto prepare = [&] {
            fixture.store.createKeyAttribute(Key, fid);
            setSteps(Key);
            vorlindesk::SystemSettings::setHomeLayoutEntries({{3, 1, 4, 0}});
        };
        prepare();
        Cell cell(fixture, Key);
        QSignalSpy changed(&cell, &KeyWidget::dataChangeSignal);
        cell.onDeleteActionHandler();
        QCOMPARE(ids(fixture), QStringList(QStringLiteral("0, id 13")));
        QVERIFY(!fixture.store.getKeyAttribute(Key));
        QCOMPARE(stepsOf(Key), fid == 4 ? 0 : 1);
        const vorlindesk::SystemSettings::HomeLayoutEntry gone{3, -1, -1, -1};
        QCOMPARE(vorlindesk::SystemSettings::homeLayoutEntry(3) == gone, fid == 18);
        QCOMPARE(fixture.editor().childPages[3].layoutId, fid == 18 ? 1 : -1);
        QCOMPARE(fixture.log.count(qPrintable(QStringLiteral(" delete keyattr nFid:%1 1 1 3").arg(fid))), 1);
        QCOMPARE(fixture.log.count(" CHILDREN_PAGE_FID"), fid == 18 ? 1 : 0);
        QCOMPARE(changed.takeFirst().at(1).toInt(), 0);
        QVERIFY(cell.picture().isNull());

        prepare();
        cell.updateFid();
        cell.deleteAttr(); // the same, without a word to panel and settings
        QVERIFY(fixture.requests.isEmpty());
        QVERIFY(!fixture.store.getKeyAttribute(Key));
        QCOMPARE(stepsOf(Key), fid == 4 ? 0 : 1);
        QCOMPARE(vorlindesk::SystemSettings::homeLayoutEntry(3).pageId, 4);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(fixture.log.count(" delActionsByKeyId nFid:4"), fid == 4 ? 1 : 0); // of the menu alone

        prepare();
        cell.updateFid();
        fixture.editor().deleteKeys = [](const QVector<key_id_t> &, const std::function<void()> &) {
        }; // "no"
        cell.onDeleteActionHandler();
        QVERIFY(fixture.store.getKeyAttribute(Key));
    }

    void thePanelFollowsEveryDrop()
    {
        EditorFixture fixture(Panel::Present);
        Cell cell(fixture, Key);
        Cell other(fixture, Other);
        connect(&fixture.editor().edits, &KeyEdits::sigKeysChanged, &cell, [&] {
            cell.updateFid();
            other.updateFid();
        });
        cell.drop(function(5));
        QTRY_COMPARE(onPanel(fixture), QStringLiteral("3:5"));
        QCOMPARE(other.drop(dragged(Key)), Qt::MoveAction);
        QTRY_COMPARE(onPanel(fixture), QStringLiteral("4:5"));
        QCOMPARE(cell.drop(dragged(Other), Qt::ControlModifier), Qt::CopyAction);
        QTRY_COMPARE(onPanel(fixture), QStringLiteral("3:5 4:5"));
        cell.drop(function(6));    // replaces
        cell.drop(dragged(Other)); // swaps
        QTRY_COMPARE(onPanel(fixture), QStringLiteral("3:5 4:6"));
        cell.drop(dragged(Key));       // on itself: nothing
        cell.drop(dragged({1, 1, 9})); // no function, as after an undo in the middle of the drag: nothing
        other.removeFunction();
        QTRY_COMPARE(onPanel(fixture), QStringLiteral("3:5"));
        for (const char *before : {"3:5 4:6", "3:6 4:5", "3:5 4:5", "4:5", "3:5", ""}) { // one step each
            fixture.editor().edits.undo();
            QTRY_COMPARE(onPanel(fixture), QString::fromLatin1(before));
        }
        QVERIFY(!fixture.editor().edits.history().canUndo());
        QCOMPARE(fixture.panel->violations(), QStringList());
    }

    void mouse()
    {
        EditorFixture fixture;
        fixture.store.createKeyAttribute(Key, 5);
        Cell cell(fixture, Key);
        cell.show();
        QSignalSpy clicked(&cell, &KeyWidget::clicked);
        QSignalSpy opened(&cell, &KeyWidget::doubleClicked);
        QTest::mouseClick(&cell, Qt::LeftButton);
        QTest::mouseClick(&cell, Qt::RightButton);
        QTest::mousePress(&cell, Qt::LeftButton);
        QTest::mouseRelease(&cell, Qt::LeftButton, {}, QPoint(200, 5)); // outside
        QCOMPARE(clicked.size(), 1);
        QCOMPARE(fixture.log.count("KeyWidget::onButtonClicked"), 1);
        QTest::mouseClick(&cell, Qt::LeftButton);
        QTest::mouseDClick(&cell, Qt::LeftButton);
        QTest::mouseRelease(&cell, Qt::LeftButton);
        QCOMPARE(opened.size(), 1);
        QCOMPARE(clicked.size(), 2); // not at the end of a double click
        QCOMPARE(fixture.log.count("---mouseDoubleClickEvent---"), 1);
    }

    void menuOnlyOnAKeyWithAFunction()
    {
        EditorFixture fixture;
        Cell cell(fixture, Key);
        cell.show();
        const auto ask = [&cell] {
            QStringList actions;
            QTimer::singleShot(0, &cell, [&] {
                auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
                if (!menu)
                    return;
                for (QAction *action : menu->actions())
                    actions.append(action->text());
                menu->setActiveAction(menu->actions().constFirst());
                QTest::keyClick(menu, Qt::Key_Return);
            });
            QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), cell.mapToGlobal(QPoint(5, 5)));
            QCoreApplication::sendEvent(&cell, &event);
            QCoreApplication::processEvents();
            return event.isAccepted() ? actions : QStringList(QStringLiteral("not accepted"));
        };
        QCOMPARE(ask(), QStringList());
        cell.takeFunction(5);
        fixture.takeRequests();
        QCOMPARE(ask(), QStringList(QStringLiteral("Delete")));
        QCOMPARE(ids(fixture), QStringList(QStringLiteral("0, id 13")));
    }

    void theCellShowsThePanelsPixels()
    {
        EditorFixture fixture;
        fixture.store.createKeyAttribute(Key, 5);
        fixture.store.setCustomImage(Key, pictureFile(fixture.path("p.png"), Qt::blue, {33, 17}));
        fixture.store.setTitle(Key, QStringLiteral("Wg 字"));
        Cell cell(fixture, Key);
        const QImage panel = vorlinmodel::renderKeyFace(fixture.editor().faces.face(Key), {90, 84});
        const QImage shown = cell.grab(QRect(3, 3, 90, 84)).toImage().convertToFormat(QImage::Format_RGB32);
        QCOMPARE(shown.copy(10, 10, 70, 64), panel.copy(10, 10, 70, 64));
        QCOMPARE(cell.picture().toImage().pixelColor(0, 0).alpha(), 0); // round corners
        const qint64 before = cell.picture().cacheKey();
        cell.updateKeyIcon();
        QCOMPARE(cell.picture().cacheKey(), before); // not drawn again
        cell.resize(186, 174);
        cell.updateKeyIcon();
        QCOMPARE(cell.picture().size(), QSize(180, 168));
        fixture.store.setKeyAttribute(Key, {}); // neither function nor title
        cell.updateFid();
        cell.updateKeyIcon();
        QVERIFY(cell.picture().isNull());
    }

    void whatAScreenReaderSays()
    {
        EditorFixture fixture;
        fixture.store.createKeyAttribute(Key, 5);
        fixture.store.setTitle(Key, QStringLiteral("%1 x"));
        Cell cell(fixture, Key, 0x63); // keys 1, 2, 6, 7
        QVERIFY2(cell.accessibleName().startsWith(QStringLiteral("Rows 1-2, columns 1-2: ")),
                 qPrintable(cell.accessibleName()));
        QVERIFY(cell.accessibleName().endsWith(QStringLiteral(", title '%1 x'")));
        QCOMPARE(Cell(fixture, Other, 0x200).accessibleName(), QStringLiteral("Row 2, column 5: empty"));
    }
};

QTEST_MAIN(CellsTest)
#include "tst_ui_editor_cells.moc"
