// One key of the grid: what can be dropped on it, what that sends, and what the key shows.
#include "editorfixture.h"
#include "model/functionids.h"
#include "model/keypicture.h"
#include "model/multiaction.h"
#include "support/files.h"
#include "support/table.h"
#include "ui_editor/keywidget.h"
#include "ui_editor/vorlinmimedata.h"

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
    QPixmap picture() const { return findChild<QLabel *>("icon"_s)->pixmap(Qt::ReturnByValue); }
};

QStringList ids(EditorFixture &fixture, const key_id_t &key = Key)
{
    QStringList result;
    const QString head = "1: %1 %2 %3, fid "_s.arg(key.lid).arg(key.pageid).arg(key.kid);
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

/// Takes many bytes, whatever the format.
QImage noise(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    QRandomGenerator random(1);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, random.generate());
    }
    return image;
}

QByteArray bytesOf(const QImage &image, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

/// Function ids of the panel's page 1: "3:5 4:6".
QString onPanel(EditorFixture &fixture)
{
    QStringList keys;
    const auto state = fixture.panel->state();
    for (auto key = state.keys.cbegin(); key != state.keys.cend(); ++key)
        keys.append("%1:%2"_s.arg(key.key().key).arg(int(key->record.functionId)));
    return keys.join(QLatin1Char(' '));
}

} // namespace

class CellsTest : public QObject
{
    Q_OBJECT
    using DragTable = Table<Mime, int, bool, bool>;
    using LosesTable = Table<int, int, QString>;
    using BadTable = Table<QByteArray, QString>;
    using FilesTable = Table<int, QString, bool, bool>;
    using PicturesTable = Table<int, qint64, QString>;

private slots:
    void dragsOverAKey_data()
    {
        const DragTable row; // with these mouse buttons; taken by a free key, and by a used one
        const int left = Qt::LeftButton;
        const Mime icon = mime(FunctionIcon, pair("a"_s, {}));
        row("function", function(5), left, true, true);
        row("function, button released", function(5), 0, false, false);
        row("picture", icon, left, false, true);
        row("picture, right button", icon, int(Qt::RightButton), false, false);
        row("key", dragged(Other), left, true, true);
        row("the key itself", dragged(Key), left, false, false);
        row("key 16", dragged({1, 1, 16}), left, false, false);
        row("picture file under another name", mime("text/uri-list", "picture.txt"), 0, false, true);
        row("text file under a picture's name", mime("text/uri-list", "text.png"), left, false, false);
        row("text", mime("text/plain", "a"), left, false, false);
    }

    void dragsOverAKey()
    {
        auto [data, buttons, onFree, onUsed] = DragTable::current();
        EditorFixture fixture;
        pictureFile(fixture.path("picture.txt"), Qt::red);
        sized(fixture.path("text.png"), 100);
        if (data.contains("text/uri-list"_s)) {
            QByteArray &file = data["text/uri-list"_s];
            file = QUrl::fromLocalFile(fixture.path(file.constData())).toEncoded();
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
        QCOMPARE(ids(fixture), texts({"5, id 8", "5, id 9"}));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.first().at(1).toInt(), 5);
        QCOMPARE(fixture.log.count("KeyWidget::dropEvent LeftButton delete old keyattr nFid:5"), 1);
        for (const QByteArray &bytes : {numbers({0}), numbers({256}), numbers({100}), QByteArray("\0\0", 2)})
            QCOMPARE(cell.drop(mime(FunctionId, bytes)), Qt::IgnoreAction);
        QCOMPARE(cell.drop(mime(FunctionIcon, "\1")), Qt::IgnoreAction);
        QVERIFY(fixture.requests.isEmpty());
        cell.drop(function(6)); // the record of a used key is not deleted first
        QCOMPARE(fixture.log.count("delete old keyattr"), 1);
    }

    void whatAReplacedKeyLoses_data()
    {
        const LosesTable row;
        row("title and address", 3, 5, "5, id 8|5, id 9|5, id 6|5, id 11");
        row("steps", 4, 5, "5, id 8|5, id 9|5, id 6|5, id 11|5, id 15");
        row("child page", 18, 1, "1, id 8|1, id 9|1, id 6|1, id 11");
    }

    void whatAReplacedKeyLoses()
    {
        const auto [from, to, sent] = LosesTable::current();
        EditorFixture fixture;
        fixture.store.createKeyAttribute(Key, from);
        fixture.store.setTitle(Key, "t"_s);
        fixture.store.setUrlOrPath(Key, "u"_s);
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
        QCOMPARE(fixture.store.getTitleText(Key), "t"_s);
    }

    void pictures_data()
    {
        // size: of the video; -1: none, -2: missing file
        const PicturesTable row;
        row("free key", 0, -1LL, {});
        row("picture", 5, -1LL, "5, id 5");
        row("picture of a video key", 17, -1LL, "17, id 5");
        row("video for another key", 5, 1024000LL, "5, id 5");
        row("video", 17, 1024000LL, "dialog 1: 400000|17, id 10");
        row("a byte below the step", 17, 10239LL, "dialog 1: 300000|17, id 10");
        row("missing video", 17, -2LL, "dialog 1: 300000|17, id 10");
    }

    void pictures()
    {
        const auto [fid, size, sent] = PicturesTable::current();
        EditorFixture fixture;
        if (fid != 0)
            fixture.store.createKeyAttribute(Key, fid);
        const QString picture = pictureFile(fixture.path("p.png"), Qt::red);
        const QString video = size == -1 ? QString() : fixture.path("v.mp4");
        if (size >= 0)
            sized(video, size);
        Cell cell(fixture, Key);
        cell.drop(mime(FunctionIcon, pair(picture, video)));
        QVERIFY(fixture.picturesArePlaced());
        cell.updateKeyIcon(); // by the grid in the window
        QCOMPARE(ids(fixture).join(QLatin1Char('|')), sent);
        QCOMPARE(fixture.store.getCustomImage(Key), fid == 0 ? QString() : picture);
        QCOMPARE(fixture.store.getDefaultImage(Key) == video && !video.isEmpty(), fid == 17 && size != -1);
        QCOMPARE(cell.picture().isNull(), fid == 0);
        QCOMPARE(fixture.editor().edits.history().count(), fid == 0 ? 0 : 1);
    }

    void badPictures_data()
    {
        const BadTable row;
        row("cut PNG", bytesOf(noise({300, 300}), "PNG").left(5000), "\"p\" is damaged or not complete."_s);
        row("cut JPEG", bytesOf(noise({300, 300}), "JPG").left(5000), "\"p\" is damaged or not complete."_s);
        row("16385 pixels", bytesOf(noise({16385, 1}), "PNG"),
            "\"p\" is too large: a picture may have up to 16384 x 16384 pixels."_s);
        row("broken in the middle", bytesOf(noise({300, 300}), "PNG").replace(3000, 50, QByteArray(50, 'x')),
            "\"p\" is damaged or not complete."_s);
    }

    void badPictures()
    {
        const auto [bytes, problem] = BadTable::current();
        EditorFixture fixture;
        fixture.store.createKeyAttribute(Key, 5);
        const QString path = fixture.path("p");
        QVERIFY(writeTestFile(path, bytes));
        QSignalSpy problems(&fixture.editor().edits, &KeyEdits::sigProblem);
        Cell cell(fixture, Key);
        cell.drop(mime("text/uri-list", QUrl::fromLocalFile(path).toEncoded()));
        QVERIFY(fixture.picturesArePlaced());
        QCOMPARE(problems.value(0).value(0).toString(), problem);
        cell.drop(mime(FunctionIcon, pair(path, {})));
        QVERIFY(fixture.picturesArePlaced());
        QCOMPARE(problems.count(), 2);
        QCOMPARE(fixture.editor().edits.history().count(), 0);
        QCOMPARE(fixture.requests, QStringList());
    }

    void onlyTheNewestPictureOfAKeyCounts()
    {
        EditorFixture fixture;
        for (const int kid : {3, 4, 5})
            fixture.store.createKeyAttribute({1, 1, kid}, 5);
        const QString red = pictureFile(fixture.path("red.png"), Qt::red);
        const QString blue = pictureFile(fixture.path("blue.png"), Qt::blue);
        PicturePlacement &pictures = fixture.editor().pictures;
        pictures.place(Key, red);
        pictures.place(Other, red);
        pictures.place({1, 1, 5}, red);
        pictures.place(Key, blue);
        fixture.store.addKeyAttribute({1, 1, 5}, 6);
        fixture.editor().edits.beginRead();
        QVERIFY(!fixture.picturesArePlaced(100)); // the read would overwrite it
        QCOMPARE(fixture.editor().edits.history().count(), 0);
        fixture.editor().edits.endRead(false, {});
        QVERIFY(fixture.picturesArePlaced());
        QCOMPARE(fixture.store.getCustomImage(Key), blue);
        QCOMPARE(fixture.store.getCustomImage(Other), red);
        QVERIFY(fixture.store.getCustomImage({1, 1, 5}).isEmpty());
        QCOMPARE(fixture.editor().edits.history().count(), 2);
    }

    /// It is read away from the user interface, and the key gets a copy with the pixels that keys need.
    void largePicture()
    {
        EditorFixture fixture;
        fixture.store.createKeyAttribute(Key, 5);
        fixture.store.createKeyAttribute({1, 1, 9}, 6);
        const QString large = pictureFile(fixture.path("large.png"), Qt::red, {3000, 2000});
        Cell cell(fixture, Key);
        QSignalSpy ready(&fixture.editor().faces, &KeyFaces::sigFaceReady);
        cell.drop(mime(FunctionIcon, pair(large, {})));
        QCOMPARE(fixture.store.getCustomImage(Key), QString());
        QVERIFY(fixture.picturesArePlaced());
        const QString kept = fixture.store.getCustomImage(Key);
        QCOMPARE(QImage(kept).size(), QSize(1024, 682));
        fixture.editor().faces.face(Key);
        QTRY_COMPARE(ready.count(), 1);
        QVERIFY(fixture.editor().faces.shows(Key, ready.at(0).at(0).toString()));
        QVERIFY(!fixture.editor().faces.shows({1, 1, 9}, kept));
        cell.updateKeyIcon(); // by the grid in the window
        QCOMPARE(cell.picture().toImage().pixelColor(45, 42), QColor(Qt::red));
    }

    void aFileDroppedIsCopiedNotMoved()
    {
        EditorFixture fixture;
        fixture.store.createKeyAttribute(Key, 5);
        const QString path = pictureFile(fixture.path("p.bin"), Qt::red);
        const Mime file = mime("text/uri-list", QUrl::fromLocalFile(path).toEncoded());
        QCOMPARE(Cell(fixture, Key).drop(file), Qt::CopyAction);
        QVERIFY(fixture.picturesArePlaced());
        QCOMPARE(ids(fixture), texts({"5, id 5"}));
        QCOMPARE(fixture.store.getCustomImage(Key), path);
    }

    void filesForVideoKeys_data()
    {
        const FilesTable row; // whether they are taken, and by the videos
        row("film", 17, "film.mp4"_s, true, true);
        row("film for another key", 5, "film.mp4"_s, false, false);
        row("animation", 17, "p.gif"_s, true, true);
        row("animation for another key", 5, "p.gif"_s, true, false);
        row("picture", 17, "p.png"_s, true, false);
        row("missing film", 17, "gone.mp4"_s, false, false);
    }

    void filesForVideoKeys()
    {
        const auto [fid, name, isTaken, isVideo] = FilesTable::current();
        EditorFixture fixture;
        fixture.store.createKeyAttribute(Key, fid);
        sized(fixture.path("film.mp4"), 100);
        QFile::copy(pictureFile(fixture.path("p.png"), Qt::red), fixture.path("p.gif"));
        const QString path = fixture.path(qPrintable(name));
        const Mime file = mime("text/uri-list", QUrl::fromLocalFile(path).toEncoded());
        QCOMPARE(Cell(fixture, Key).drop(file), isTaken ? Qt::CopyAction : Qt::IgnoreAction);
        QCOMPARE(fixture.editor().videos.isBusy(), isVideo);
        QVERIFY(fixture.picturesArePlaced());
        QCOMPARE(fixture.store.getCustomImage(Key), isTaken && !isVideo ? path : QString());
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
        fixture.store.createKeyAttribute(Key, fid);
        Cell cell(fixture, Key);
        const auto prepare = [&] {
            fixture.store.createKeyAttribute(Key, fid);
            setSteps(Key);
            vorlindesk::SystemSettings::setHomeLayoutEntries({{3, 1, 4, 0}});
            cell.updateFid();
        };
        prepare();
        cell.onDeleteActionHandler();
        QCOMPARE(ids(fixture), texts({"0, id 13"}));
        QVERIFY(!fixture.store.getKeyAttribute(Key));
        QCOMPARE(stepsOf(Key), fid == 4 ? 0 : 1);
        const vorlindesk::SystemSettings::HomeLayoutEntry gone{3, -1, -1, -1};
        QCOMPARE(vorlindesk::SystemSettings::homeLayoutEntry(3) == gone, fid == 18);
        QCOMPARE(fixture.editor().childPages[3].layoutId, fid == 18 ? 1 : -1);
        QVERIFY(cell.picture().isNull());

        prepare();
        cell.deleteAttr(); // the same, without a word to panel and settings
        QVERIFY(fixture.requests.isEmpty());
        QVERIFY(!fixture.store.getKeyAttribute(Key));
        QCOMPARE(stepsOf(Key), fid == 4 ? 0 : 1);
        QCOMPARE(vorlindesk::SystemSettings::homeLayoutEntry(3).pageId, 4);

        prepare();
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
        QTRY_COMPARE(onPanel(fixture), "3:5"_s);
        QCOMPARE(other.drop(dragged(Key)), Qt::MoveAction);
        QTRY_COMPARE(onPanel(fixture), "4:5"_s);
        QCOMPARE(cell.drop(dragged(Other), Qt::ControlModifier), Qt::CopyAction);
        QTRY_COMPARE(onPanel(fixture), "3:5 4:5"_s);
        cell.drop(function(6));    // replaces
        cell.drop(dragged(Other)); // swaps
        QTRY_COMPARE(onPanel(fixture), "3:5 4:6"_s);
        cell.drop(dragged(Key));       // on itself: nothing
        cell.drop(dragged({1, 1, 9})); // no function, as after an undo in the middle of the drag: nothing
        other.removeFunction();
        QTRY_COMPARE(onPanel(fixture), "3:5"_s);
        for (const char *before : {"3:5 4:6", "3:6 4:5", "3:5 4:5", "4:5", "3:5", ""}) { // one step each
            fixture.editor().edits.undo();
            QTRY_COMPARE(onPanel(fixture), QString::fromLatin1(before));
        }
        QVERIFY(!fixture.editor().edits.history().canUndo());
        QCOMPARE(fixture.panel->violations().join("; "_s), QString());
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
        QTest::mouseClick(&cell, Qt::LeftButton);
        QTest::mouseDClick(&cell, Qt::LeftButton);
        QTest::mouseRelease(&cell, Qt::LeftButton);
        QCOMPARE(opened.size(), 1);
        QCOMPARE(clicked.size(), 2); // not at the end of a double click
    }

    void menuOnlyOnAKeyWithAFunction()
    {
        EditorFixture fixture;
        Cell cell(fixture, Key);
        cell.show();
        QStringList actions;
        const auto ask = [&] {
            QTimer::singleShot(0, &cell, [&] {
                auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
                if (!menu)
                    return;
                actions.append(menu->actions().constFirst()->text());
                menu->setActiveAction(menu->actions().constFirst());
                QTest::keyClick(menu, Qt::Key_Return);
            });
            QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), cell.mapToGlobal(QPoint(5, 5)));
            QCoreApplication::sendEvent(&cell, &event);
            QCoreApplication::processEvents();
        };
        ask();
        QCOMPARE(actions, QStringList());
        cell.takeFunction(5);
        fixture.takeRequests();
        ask();
        QCOMPARE(actions, texts({"Delete"}));
        QCOMPARE(ids(fixture), texts({"0, id 13"}));
    }

    void theCellShowsThePanelsPixels()
    {
        EditorFixture fixture;
        fixture.store.createKeyAttribute(Key, 5);
        fixture.store.setCustomImage(Key, pictureFile(fixture.path("p.png"), Qt::blue, {33, 17}));
        fixture.store.setTitle(Key, "Wg 字"_s);
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
        fixture.store.setTitle(Key, "%1 x"_s);
        Cell cell(fixture, Key, 0x63); // keys 1, 2, 6, 7
        QVERIFY2(cell.accessibleName().startsWith("Rows 1-2, columns 1-2: "_s),
                 qPrintable(cell.accessibleName()));
        QVERIFY(cell.accessibleName().endsWith(", title '%1 x'"_s));
        QCOMPARE(Cell(fixture, Other, 0x200).accessibleName(), "Row 2, column 5: empty"_s);
    }
};

QTEST_MAIN(CellsTest)
#include "tst_ui_editor_cells.moc"
