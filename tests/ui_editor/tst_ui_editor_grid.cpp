// A page of keys: where they lie, which are selected, and what the keyboard does with them.
#include "editorfixture.h"
#include "model/functionids.h"
#include "support/table.h"
#include "ui_editor/gridselection.h"
#include "ui_editor/keyboardwidget.h"
#include "ui_editor/keywidget.h"

using vorlinmodel::key_id_t;

namespace {

constexpr char Layout[] = "[layout_2]\nnum=3\nname=Big\n1_bitmap=99\n2_bitmap=4\n3_bitmap=0\n";
/// A grid of layout 1 (or 2: see Layout) in a window that has the focus, with a function on the keys 1 and 2.
struct Grid
{
    explicit Grid(int layoutId = 1)
    {
        QFile file(fixture.path("devConfig/customLayout.ini"));
        if (!file.open(QIODevice::WriteOnly) || file.write(Layout) < 0)
            qFatal("no layout file");
        file.close();
        fixture.store.createKeyAttribute({layoutId, 1, 1}, 5);
        fixture.store.createKeyAttribute({layoutId, 1, 2}, 6);
        grid = std::make_unique<KeyboardWidget>(fixture.editor(), layoutId, 1, nullptr);
        grid->setup(true, false);
        grid->resize(520, 290);
    }
    void show()
    {
        grid->show();
        grid->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(grid.get()));
    }
    void click(int kid, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mouseClick(grid->cell(kid), Qt::LeftButton, modifiers);
    }
    /// A key to whatever has the focus.
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : grid.get(), Qt::Key(key),
                        modifiers);
    }
    QString selected() const
    {
        QStringList keys;
        for (const key_id_t &key : grid->selectedKeys())
            keys.append(QString::number(key.kid));
        return keys.join(QLatin1Char(' '));
    }

    EditorFixture fixture;
    std::unique_ptr<KeyboardWidget> grid;
};

QVector<QRect> placesOf(std::initializer_list<quint32> masks)
{
    QVector<QRect> places;
    for (const quint32 mask : masks)
        places.append(KeyDescriptor(2, 1, 1, mask).cellsCovered());
    return places;
}

} // namespace

class GridTest : public QObject
{
    Q_OBJECT
    using PlacesTable = Table<quint32, QSize, QRect>;
    using WalkingTable = Table<int, int, bool, QString>;

private slots:
    void places_data()
    {
        const PlacesTable row;
        row("key 1", 1U, QSize(520, 290), QRect(0, 0, 96, 90));
        row("key 15", 0x4000U, QSize(520, 290), QRect(424, 200, 96, 90));
        row("keys 1, 2, 6, 7", 0x63U, QSize(520, 290), QRect(0, 0, 202, 190));
        row("centred", 0x63U, QSize(531, 300), QRect(5, 5, 202, 190));
        row("larger than the grid's area", 1U, QSize(517, 290), QRect(-1, 0, 96, 90));
        row("no key", 0U, QSize(520, 290), QRect(0, 0, 0, 0));
    }

    void places()
    {
        const auto [mask, size, place] = PlacesTable::current();
        QCOMPARE(cellRect(KeyDescriptor(2, 1, 1, mask), GridMetrics{}, size), place);
    }

    void keysGrowWithTheWindow()
    {
        const auto metrics = [](int width, int height) {
            const GridMetrics fitting = GridMetrics::fitting({width, height});
            return QVector<int>{fitting.spacing, fitting.cellWidth, fitting.cellHeight};
        };
        QCOMPARE(metrics(520, 290), QVector<int>({10, 96, 90}));
        QCOMPARE(metrics(520, 289), QVector<int>({9, 95, 89})); // a pixel too low
        QCOMPARE(metrics(1040, 2000), QVector<int>({20, 192, 180}));
        QCOMPARE(metrics(10, 10), QVector<int>({4, 40, 37}));
    }

    void standardGrid()
    {
        Grid test;
        QCOMPARE(test.grid->cells().size(), 15);
        test.show();
        QCOMPARE(test.grid->cell(2)->fid(), 6);
        QCOMPARE(test.grid->cell(2)->geometry(), QRect(106, 0, 96, 90));
        QCOMPARE(test.grid->cell(2)->findChild<QLabel *>()->geometry(), QRect(3, 3, 90, 84));
        test.grid->setVisible(false);
        QVERIFY(test.grid->cell(2)->isHidden());
        test.grid->rebuild(2); // another layout has no cells until it is set up
        QVERIFY(test.grid->cells().isEmpty());
        test.grid->rebuild(1);
        QVERIFY(test.grid->cell(15)->isVisible());
    }

    void customLayout()
    {
        Grid test(2);
        QCOMPARE(test.grid->cells().size(), 3);
        QCOMPARE(test.fixture.log.count("------nNum/strName=3/Big"), 1);
        test.show();
        QCOMPARE(test.grid->cell(1)->geometry(), QRect(0, 0, 202, 190));
        QVERIFY(!test.grid->cell(3)->acceptDrops()); // covers nothing
        test.click(2);
        test.press(Qt::Key_Tab);
        QCOMPARE(test.selected(), "1"_s);
        test.grid->selectAll();
        QCOMPARE(test.selected(), "1 2"_s);

        KeyboardWidget missing(test.fixture.editor(), 3, 1, nullptr);
        QVERIFY(missing.setup(true, true));
        QVERIFY(missing.cells().isEmpty());
        QVERIFY(missing.flag());
        QVERIFY(!missing.selectByRect({0, 0, 1000, 1000}));
    }

    void selectByRect()
    {
        Grid test(2);
        test.show();
        const auto selected = [&test](const QRect &rect) {
            const bool last = test.grid->selectByRect(rect); // key 3 has no place
            return last ? "the last one"_s : test.selected();
        };
        QCOMPARE(selected({300, 50, 5, 5}), "2"_s);
        QCOMPARE(selected({201, 189, 5, 5}), "1"_s);    // the corner of the merged key
        QCOMPARE(selected({201, 189, 12, 5}), "1 2"_s); // grown over its neighbour
        QCOMPARE(selected({400, 200, 50, 50}), QString());
    }

    void updateKeyIcon()
    {
        Grid test;
        test.fixture.store.createKeyAttribute({1, 1, 3}, 5); // behind the editor's back
        for (const auto &[kid, refreshed] : {std::pair{16, 0}, {3, 1}, {10000, 16}}) { // none, one, all 15
            test.grid->updateKeyIcon({1, 1, kid});
            QCOMPARE(test.fixture.log.matching("4 --updateKeyIcon--------[1][1]").size(), refreshed);
            QCOMPARE(test.grid->cell(3)->fid(), refreshed > 0 ? 5 : 0);
            const QLabel *icon = test.grid->cell(3)->findChild<QLabel *>();
            QCOMPARE(icon->pixmap(Qt::ReturnByValue).isNull(), refreshed == 0);
        }
    }

    void clicks()
    {
        Grid test;
        QSignalSpy changed(test.grid.get(), &KeyboardWidget::dataChangeSignal);
        test.show();
        test.click(7);
        QCOMPARE(changed.takeFirst().at(2).toBool(), false);
        QVERIFY(test.grid->cell(7)->hasFocus());
        test.click(14, Qt::ShiftModifier);
        QCOMPARE(test.selected(), "7 8 9 12 13 14"_s);
        test.click(8, Qt::ControlModifier);
        test.click(1, Qt::ControlModifier);
        QCOMPARE(test.selected(), "1 7 9 12 13 14"_s);
        QCOMPARE(test.grid->currentKey().kid, 1);
        test.click(2);
        QCOMPARE(test.selected(), "2"_s);
        test.click(2, Qt::ControlModifier); // the last one stays
        QCOMPARE(test.selected(), "2"_s);
        QTest::mouseDClick(test.grid->cell(2), Qt::LeftButton);
        QCOMPARE(changed.last().at(1).toInt(), 6);
        QCOMPARE(changed.last().at(2).toBool(), true);
    }

    void walking_data()
    {
        const WalkingTable row;
        row("right", 3, int(Qt::Key_Right), false, "4");
        row("right at the border", 5, int(Qt::Key_Right), false, "5");
        row("left at the border", 6, int(Qt::Key_Left), false, "6");
        row("down", 3, int(Qt::Key_Down), false, "8");
        row("up, extending", 8, int(Qt::Key_Up), true, "3 8");
        row("home", 8, int(Qt::Key_Home), false, "6");
        row("end, extending", 8, int(Qt::Key_End), true, "8 9 10");
    }

    void walking()
    {
        const auto [from, key, shift, selected] = WalkingTable::current();
        Grid test;
        test.show();
        test.click(from);
        test.press(key, shift ? Qt::ShiftModifier : Qt::NoModifier);
        QCOMPARE(test.selected(), selected);
        QVERIFY(test.grid->cell(test.grid->currentKey().kid)->hasFocus());
    }

    void walkingAcrossMergedKeys()
    {
        using GridSelection::Direction;
        // {1}, {5}, {6, 11}, {2, 3, 4, 7, 8, 9, 12, 13, 14}, {10, 15}, and one that covers nothing
        const auto places = placesOf({0x1, 0x10, 0x420, 0x39CE, 0x4200, 0});
        QCOMPARE(GridSelection::neighbour(places, 0, Direction::Right), 3);
        QCOMPARE(GridSelection::neighbour(places, 3, Direction::Right), 1);
        QCOMPARE(GridSelection::neighbour(places, 3, Direction::Left), 0);
        QCOMPARE(GridSelection::neighbour(places, 2, Direction::Right), 3);
        QCOMPARE(GridSelection::neighbour(places, 4, Direction::Up), 1);
        QCOMPARE(GridSelection::neighbour(places, 3, Direction::Down), -1);
        const auto oblique = placesOf({0x1, 0x100, 0x80});                   // keys 1, 9 and 8
        QCOMPARE(GridSelection::neighbour(oblique, 0, Direction::Right), 2); // none in the row
        QCOMPARE(GridSelection::between(places, 0, 1), QVector<int>({0, 1, 3}));
        QCOMPARE(GridSelection::endOfRow(places, 2, true), 4);
    }

    void keyboard()
    {
        Grid test;
        QSignalSpy changed(test.grid.get(), &KeyboardWidget::dataChangeSignal);
        QSignalSpy titles(test.grid.get(), &KeyboardWidget::editTitleRequested);
        test.show();
        test.press(Qt::Key_Right); // from the first key, which nobody has clicked
        QCOMPARE(test.grid->currentKey().kid, 2);
        test.press(Qt::Key_Return);
        QCOMPARE(changed.takeLast().at(2).toBool(), true);
        test.press(Qt::Key_Space);
        QCOMPARE(changed.takeLast().at(2).toBool(), false);
        test.press(Qt::Key_F2);
        QCOMPARE(titles.size(), 1);
        QTest::keyClick(test.grid->cell(2), Qt::Key_Tab);
        QCOMPARE(test.selected(), "3"_s);
        test.press(Qt::Key_F2); // no title to edit
        QCOMPARE(titles.size(), 1);
        test.press(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(test.grid->selectedKeys().size(), 15);
        test.fixture.takeRequests();
        test.press(Qt::Key_Delete);
        QCOMPARE(test.fixture.takeRequests(), texts({"1: 1 1 1, fid 0, id 13", "1: 1 1 2, fid 0, id 13"}));
        test.fixture.editor().edits.undo(); // of both
        QCOMPARE(test.grid->cell(1)->fid(), 5);
        QCOMPARE(test.grid->cell(2)->fid(), 6);
        test.click(1);
        for (const auto &[key, modifier] :
             {std::pair{Qt::Key_Menu, Qt::NoModifier}, {Qt::Key_F10, Qt::ShiftModifier}}) {
            bool isOpen = false;
            QTimer::singleShot(0, test.grid.get(), [&isOpen] {
                isOpen = qobject_cast<QMenu *>(QApplication::activePopupWidget());
                QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
            });
            test.press(key, modifier);
            QVERIFY(isOpen);
        }
    }

    void aKeyIsDraggedWithTheMouse()
    {
        Grid test;
        test.show();
        const auto at = [&test](int kid) {
            return test.grid->cell(kid)->geometry().center();
        };
        QWindow *window = test.grid->windowHandle();
        QTest::mousePress(window, Qt::LeftButton, {}, at(1));
        QTimer::singleShot(0, test.grid.get(), [&] { // while the drag runs
            const auto *drag = test.grid->cell(1)->findChild<QDrag *>();
            QVERIFY(drag && !drag->pixmap().isNull());
            const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
            QDragEnterEvent enter(QPoint(5, 5), actions, drag->mimeData(), Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(test.grid->cell(7), &enter);
            QDropEvent drop(QPointF(5, 5), actions, drag->mimeData(), Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(test.grid->cell(7), &drop);
            QTest::mouseRelease(window, Qt::LeftButton, {}, at(7)); // ends it
        });
        QTest::mouseMove(window, at(1) + QPoint(20, 20));
        QCOMPARE(test.grid->cell(7)->fid(), 5);
        QCOMPARE(test.grid->cell(1)->fid(), 0);
        QVERIFY(!test.grid->cell(1)->isSelected()); // a drag is no click
    }

    void deleteAllSendsNothing()
    {
        Grid test;
        test.grid->deleteAll();
        QVERIFY(test.fixture.store.getKeys().isEmpty() && test.fixture.requests.isEmpty());
        test.fixture.editor().edits.undo();
        QCOMPARE(test.fixture.store.getKeys().size(), 2);
    }

    void marksAndLanguage()
    {
        EditorFixture fixture(EditorFixture::Panel::Absent);
        KeyboardWidget grid(fixture.editor(), 1, 1, nullptr);
        grid.setup(true, false);
        grid.resize(520, 290);
        grid.show();
        const auto dot = [&grid] {
            return grid.cell(3)->grab().toImage().pixelColor(82, 14);
        };
        QVERIFY(grid.cell(3)->takeFunction(5));
        QTRY_VERIFY(dot() == QColor(255, 176, 0)); // waits for a panel
        QVERIFY(!grid.cell(3)->toolTip().isEmpty());
        const QString english = grid.cell(3)->accessibleName();
        fixture.language.setLanguage(1);
        QVERIFY(grid.cell(3)->accessibleName() != english); // at least the function's name
        fixture.panel->plug();
        fixture.editor().edits.sendPending();
        QTRY_VERIFY(dot() != QColor(255, 176, 0));
        QVERIFY(grid.cell(3)->toolTip().isEmpty());
    }
};

QTEST_MAIN(GridTest)
#include "tst_ui_editor_grid.moc"
