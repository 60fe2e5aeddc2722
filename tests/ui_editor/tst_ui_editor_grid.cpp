// A page of keys: where they lie, which are selected, and what the keyboard does with them.
#include "editorfixture.h"
#include "model/functionids.h"
#include "ui_editor/gridselection.h"
#include "ui_editor/keyboardwidget.h"
#include "ui_editor/keywidget.h"

#include <QDrag>
#include <QLabel>
#include <QMenu>

using vorlinmodel::key_id_t;

namespace {

constexpr char Layout[] = "[layout_2]\nnum=3\nname=Big\n1_bitmap=99\n2_bitmap=4\n3_bitmap=0\n";
const QString Clicked =
    QStringLiteral("background-color: rgb(0, 160, 255);\nborder:1px solid;\nborder-radius: "
                   "10px;\nborder-color: rgb(0, 160, 255);");
const QString NotClicked =
    QStringLiteral("background-color: rgb(108, 108, 108);\nborder:1px solid;\nborder-radius: "
                   "10px;\nborder-color: rgb(108, 108, 108);");

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
private slots:
    void descriptors()
    {
        KeyDescriptor descriptor(2, 1, 1, 0x63);
        QCOMPARE(descriptor.mPhyKeyCount, 4);
        const PhysicalSlot third = descriptor.mSlots[2];
        QCOMPARE(QVector<int>({third.key, third.row, third.column}), QVector<int>({6, 2, 1}));
        QCOMPARE(descriptor.mSlots[4].key, 0);
        descriptor.setBitMap(0x4000); // what was there is cleared
        QCOMPARE(descriptor.mPhyKeyCount, 1);
        QCOMPARE(descriptor.mSlots[0].row * 10 + descriptor.mSlots[0].column, 35);
        QCOMPARE(descriptor.mSlots[1].key, 0);
        QCOMPARE(KeyDescriptor(2, 1, 1, 0).mPhyKeyCount, 0);
    }

    void places_data()
    {
        QTest::addColumn<quint32>("mask");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QRect>("place");
        QTest::newRow("key 1") << 1U << QSize(520, 290) << QRect(0, 0, 96, 90);
        QTest::newRow("key 15") << 0x4000U << QSize(520, 290) << QRect(424, 200, 96, 90);
        QTest::newRow("keys 1, 2, 6, 7") << 0x63U << QSize(520, 290) << QRect(0, 0, 202, 190);
        QTest::newRow("centred") << 0x63U << QSize(531, 300) << QRect(5, 5, 202, 190);
        QTest::newRow("larger than the grid's area") << 1U << QSize(517, 290) << QRect(-1, 0, 96, 90);
        QTest::newRow("no key") << 0U << QSize(520, 290) << QRect(0, 0, 0, 0);
    }

    void places()
    {
        QFETCH(quint32, mask);
        QFETCH(QSize, size);
        QTEST(cellRect(KeyDescriptor(2, 1, 1, mask), GridMetrics{}, size), "place");
    }

    void keysGrowWithTheWindow_data()
    {
        QTest::addColumn<QSize>("area");
        QTest::addColumn<QVector<int>>("metrics"); // spacing, width, height
        QTest::newRow("basic") << QSize(520, 290) << QVector<int>{10, 96, 90};
        QTest::newRow("a pixel too low") << QSize(520, 289) << QVector<int>{9, 95, 89};
        QTest::newRow("twice") << QSize(1040, 2000) << QVector<int>{20, 192, 180};
        QTest::newRow("too small") << QSize(10, 10) << QVector<int>{4, 40, 37};
    }

    void keysGrowWithTheWindow()
    {
        QFETCH(QSize, area);
        const GridMetrics metrics = GridMetrics::fitting(area);
        QTEST((QVector<int>{metrics.spacing, metrics.cellWidth, metrics.cellHeight}), "metrics");
    }

    void standardGrid()
    {
        Grid test;
        QCOMPARE(test.grid->cells().size(), 15);
        for (int i = 0; i < 15; ++i) {
            QCOMPARE(test.grid->cells().at(i)->keyId().kid, i + 1);
            QCOMPARE(test.grid->cells().at(i)->descriptor().mBitMap, 1U << i);
        }
        QCOMPARE(test.fixture.log.count("KeyboardWidget::setup  LayoutId:1 pageid:1"), 1);
        QCOMPARE(test.grid->cell(2)->fid(), 6);
        test.show();
        QCOMPARE(test.grid->cell(2)->geometry(), QRect(106, 0, 96, 90));
        QCOMPARE(test.grid->cell(2)->findChild<QLabel *>()->geometry(), QRect(3, 3, 90, 84));
        test.grid->setVisible(false);
        QVERIFY(test.grid->cell(2)->isHidden());
        test.grid->rebuild(2); // another layout has no cells until it is set up
        QVERIFY(test.grid->cells().isEmpty());
        QVERIFY(test.grid->isVisible());
        test.grid->rebuild(1);
        QCOMPARE(test.grid->cells().size(), 15);
        QVERIFY(test.grid->cell(15)->isVisible());
    }

    void customLayout()
    {
        Grid test(2);
        QCOMPARE(test.grid->cells().size(), 3);
        QCOMPARE(test.fixture.log.matching("--layoutid[2]--").size(), 2);
        QCOMPARE(test.fixture.log.count("------nNum/strName=3/Big"), 1);
        test.show();
        QCOMPARE(test.grid->cell(1)->geometry(), QRect(0, 0, 202, 190));
        QVERIFY(!test.grid->cell(3)->acceptDrops()); // covers nothing
        test.click(2);
        test.press(Qt::Key_Tab);
        QCOMPARE(test.selected(), QStringLiteral("1"));
        test.grid->selectAll();
        QCOMPARE(test.selected(), QStringLiteral("1 2"));

        KeyboardWidget missing(test.fixture.editor(), 3, 1, nullptr);
        QVERIFY(missing.setup(true, true));
        QVERIFY(missing.cells().isEmpty());
        QVERIFY(missing.flag());
        QVERIFY(!missing.selectByRect({0, 0, 1000, 1000}));
    }

    void selectByRect_data()
    {
        QTest::addColumn<QRect>("rect");
        QTest::addColumn<QVector<int>>("selected");
        QTest::newRow("inside one key") << QRect(300, 50, 5, 5) << QVector<int>{2};
        QTest::newRow("corner of the merged key") << QRect(201, 189, 5, 5) << QVector<int>{1};
        QTest::newRow("grown over its neighbour") << QRect(201, 189, 12, 5) << QVector<int>{1, 2};
        QTest::newRow("beside all") << QRect(400, 200, 50, 50) << QVector<int>{};
    }

    void selectByRect()
    {
        QFETCH(QRect, rect);
        Grid test(2);
        test.show();
        const bool last = test.grid->selectByRect(rect);
        QVector<int> selected;
        for (const KeyWidget *cell : test.grid->cells()) {
            if (cell->isSelected())
                selected.append(cell->keyId().kid);
        }
        QTEST(selected, "selected");
        QVERIFY(!last); // key 3 has no place
    }

    void updateKeyIcon_data()
    {
        QTest::addColumn<int>("kid");
        QTest::addColumn<int>("refreshed");
        QTest::newRow("one") << 3 << 1;
        QTest::newRow("all") << 10000 << 15;
        QTest::newRow("none") << 16 << 0;
    }

    void updateKeyIcon()
    {
        QFETCH(int, kid);
        QFETCH(int, refreshed);
        Grid test;
        test.fixture.store.createKeyAttribute({1, 1, 3}, 5); // behind the editor's back
        test.grid->updateKeyIcon({1, 1, kid});
        QCOMPARE(test.fixture.log.matching("4 --updateKeyIcon--------[1][1]").size(), refreshed);
        QCOMPARE(test.grid->cell(3)->fid(), refreshed ? 5 : 0);
        QCOMPARE(test.grid->cell(3)->findChild<QLabel *>()->pixmap(Qt::ReturnByValue).isNull(),
                 refreshed == 0);
    }

    void clicks()
    {
        Grid test;
        QSignalSpy changed(test.grid.get(), &KeyboardWidget::dataChangeSignal);
        test.show();
        test.click(7);
        QCOMPARE(changed.takeFirst().at(2).toBool(), false);
        QCOMPARE(test.fixture.log.count("KeyboardWidget::onDataChangeHandler  lid:1 kid:7  fid:0"), 1);
        for (const KeyWidget *cell : test.grid->cells())
            QCOMPARE(cell->styleSheet(), cell->keyId().kid == 7 ? Clicked : NotClicked);
        QVERIFY(test.grid->cell(7)->hasFocus());
        test.click(14, Qt::ShiftModifier);
        QCOMPARE(test.selected(), QStringLiteral("7 8 9 12 13 14"));
        test.click(8, Qt::ControlModifier);
        test.click(1, Qt::ControlModifier);
        QCOMPARE(test.selected(), QStringLiteral("1 7 9 12 13 14"));
        QCOMPARE(test.grid->currentKey().kid, 1);
        test.click(2);
        QCOMPARE(test.selected(), QStringLiteral("2"));
        test.click(2, Qt::ControlModifier); // the last one stays
        QCOMPARE(test.selected(), QStringLiteral("2"));
        QTest::mouseDClick(test.grid->cell(2), Qt::LeftButton);
        QCOMPARE(changed.last().at(1).toInt(), 6);
        QCOMPARE(changed.last().at(2).toBool(), true);
        QCOMPARE(test.fixture.log.count("4 ----onButtonDoubleClicked----------"), 1);
        QCOMPARE(test.fixture.log.count("KeyboardWidget::onButtonDoubleClicked  lid:1 kid:2  fid:6"), 1);
    }

    void walking_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("shift");
        QTest::addColumn<QString>("selected");
        QTest::newRow("right") << 3 << int(Qt::Key_Right) << false << QStringLiteral("4");
        QTest::newRow("right at the border") << 5 << int(Qt::Key_Right) << false << QStringLiteral("5");
        QTest::newRow("left at the border") << 6 << int(Qt::Key_Left) << false << QStringLiteral("6");
        QTest::newRow("down") << 3 << int(Qt::Key_Down) << false << QStringLiteral("8");
        QTest::newRow("up, extending") << 8 << int(Qt::Key_Up) << true << QStringLiteral("3 8");
        QTest::newRow("home") << 8 << int(Qt::Key_Home) << false << QStringLiteral("6");
        QTest::newRow("end, extending") << 8 << int(Qt::Key_End) << true << QStringLiteral("8 9 10");
    }

    void walking()
    {
        QFETCH(int, from);
        QFETCH(int, key);
        QFETCH(bool, shift);
        Grid test;
        test.show();
        test.click(from);
        test.press(key, shift ? Qt::ShiftModifier : Qt::NoModifier);
        QTEST(test.selected(), "selected");
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
        QCOMPARE(test.selected(), QStringLiteral("3"));
        test.press(Qt::Key_F2); // no title to edit
        QCOMPARE(titles.size(), 1);
        test.press(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(test.grid->selectedKeys().size(), 15);
        test.fixture.takeRequests();
        test.press(Qt::Key_Delete);
        QCOMPARE(test.fixture.takeRequests(), QStringList({QStringLiteral("1: 1 1 1, fid 0, id 13"),
                                                           QStringLiteral("1: 1 1 2, fid 0, id 13")}));
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
        QVERIFY(test.fixture.store.getKeys().isEmpty());
        QVERIFY(test.fixture.requests.isEmpty());
        QCOMPARE(test.fixture.log.count("KeyWidget::deleteAttr nFid:"), 15);
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
