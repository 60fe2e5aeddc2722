// The page of the layouts, driven as a person does, with a panel in software behind it.
#include "model/customlayouts.h"
#include "model/layoutgrouping.h"
#include "support/ffmpegtool.h"
#include "support/files.h"
#include "support/table.h"
#include "ui_common/cropdialog.h"
#include "ui_common/filedialog.h"
#include "ui_editor/editorfixture.h"
#include "ui_editor/functionconfigwidget.h"
#include "ui_main/layoutgrid.h"
#include "ui_main/mainframe.h"

using vorlinmodel::CustomLayout;
using vorlinmodel::LayoutGrouping;
using Panel = EditorFixture::Panel;
using Answer = QMessageBox::StandardButton;

namespace {

constexpr int Play = 5;
constexpr quint32 Square = 0x63; // physical keys 1, 2, 6 and 7

void store(int layoutId, const char *name, const QVector<quint32> &masks)
{
    QVERIFY(vorlinmodel::saveCustomLayout(
        vorlinmodel::customLayoutOf(layoutId, QString::fromUtf8(name), LayoutGrouping(masks))));
}

class LayoutsFixture : public EditorFixture
{
public:
    explicit LayoutsFixture(const std::function<void(LayoutsFixture &)> &prepare = {},
                            Panel withPanel = Panel::Present)
        : EditorFixture(withPanel)
    {
        if (prepare)
            prepare(*this);
        frame = std::make_unique<MainFrame>(editor(), desktop, nullptr);
        isSetUp = frame->setup();
        frame->resize(830, 560);
        frame->select(MainFrame::PanelLayout);
        frame->show();
        frame->activateWindow();
        isSetUp = QTest::qWaitForWindowActive(frame.get()) && isSetUp;
    }
    ~LayoutsFixture() override
    {
        FileDialog::setAnswer({});
        CropDialog::setAnswer({});
        frame.reset();
    }

    template <class Child>
    Child *child(const char *name) const
    {
        return frame->findChild<Child *>(QLatin1String(name));
    }
    LayoutGrid *grid() const { return child<LayoutGrid>("layoutGrid"); }
    QListWidget *list() const { return child<QListWidget>("layouts"); }
    QLineEdit *title() const { return child<QLineEdit>("layoutTitle"); }
    QAbstractButton *button(const char *name) const { return child<QAbstractButton>(name); }
    void press(const char *name) const { QTest::mouseClick(button(name), Qt::LeftButton); }
    /// From the centre of one physical key to that of another.
    void band(int from, int to) const
    {
        const QPoint start = grid()->place(1U << (from - 1)).center();
        const QPoint end = grid()->place(1U << (to - 1)).center();
        QTest::mousePress(grid(), Qt::LeftButton, {}, start);
        QMouseEvent move(QEvent::MouseMove, end, Qt::NoButton, Qt::LeftButton,
                         {}); // QTest has no held button
        QCoreApplication::sendEvent(grid(), &move);
        QTest::mouseRelease(grid(), Qt::LeftButton, {}, end);
    }
    void draw(int from, int to) const
    {
        band(from, to);
        press("merge");
    }
    QColor drawn(quint32 mask) const
    {
        return grid()->grab().toImage().pixelColor(grid()->place(mask).center());
    }
    QStringList names() const
    {
        QStringList names;
        for (int row = 0; row < list()->count(); ++row)
            names.append(list()->item(row)->text());
        return names;
    }
    void choosePicture(const QColor &colour)
    {
        FileDialog::setAnswer([](const QString &) { return texts({"photo.jpg"}); });
        CropDialog::setAnswer([colour](const QString &, QSize target) {
            QImage picture(target, QImage::Format_RGB32);
            picture.fill(colour);
            return picture;
        });
        press("chooseBackground");
    }

    std::unique_ptr<MainFrame> frame;
    bool isSetUp = false;
};

QVector<quint32> masks(int layoutId)
{
    const auto layout = vorlinmodel::loadCustomLayout(layoutId);
    return layout ? groupingOf(*layout).masks() : QVector<quint32>();
}

} // namespace

using AnswerTable = Table<int, int, QString>;

class tst_ui_main_layouts : public QObject
{
    Q_OBJECT
private slots:
    void rubberBandSelectsWholeKeysThatAreMergedAndSplit()
    {
        LayoutsFixture f([](auto &) { store(2, "Desk", {Square}); }, Panel::None);
        QVERIFY(f.isSetUp);
        f.list()->setCurrentRow(1);
        f.band(3, 3);
        QVERIFY(!f.button("merge")->isEnabled() && !f.button("split")->isEnabled());
        f.band(7, 8); // touches the large key
        QCOMPARE(f.grid()->selection(), Square | 0x4U | 0x80U);
        QTest::keyClick(f.grid(), Qt::Key_Return);
        QVERIFY(!f.button("merge")->isEnabled());
        QCOMPARE(f.grid()->place(0xE7).size(), f.grid()->place(Square | 0x84).size());
        QTest::keyClick(f.grid(), Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(f.button("merge")->isEnabled());
        QTest::keyClick(f.grid(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(!f.button("merge")->isEnabled());
        QTest::mouseDClick(f.grid(), Qt::LeftButton, {}, f.grid()->place(0x80).center());
        QVERIFY(!f.button("split")->isEnabled());

        QTest::mouseClick(f.grid(), Qt::LeftButton, {}, f.grid()->place(1).center());
        QTest::keyClick(f.grid(), Qt::Key_Right, Qt::ShiftModifier);
        QTest::keyClick(f.grid(), Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(f.grid()->selection(), Square);
        f.press("merge");
        f.press("saveLayout");
        QCOMPARE(masks(2), LayoutGrouping({Square}).masks());
    }

    void newLayoutReachesFileEditorAndPanel()
    {
        LayoutsFixture f;
        f.press("newLayout");
        QTest::keyClick(f.title(), Qt::Key_A, Qt::ControlModifier);
        f.title()->insert("会议"_s);
        f.draw(1, 7);
        QVERIFY(vorlinmodel::customLayoutIds().isEmpty());
        f.press("saveLayout");
        QCOMPARE(masks(2), LayoutGrouping({Square}).masks());
        QCOMPARE(f.names(), texts({"System Panel Layout 1", "会议"}));
        f.press("showInEditor");
        QCOMPARE(f.frame->editor().curLayoutId(), 2);
        QTRY_COMPARE(f.panel->state().layouts.value(2).keys.size(), 12);

        f.frame->select(MainFrame::PanelLayout);
        f.press("layoutUndo"); // nothing is left of the draft
        QVERIFY(vorlinmodel::customLayoutIds().isEmpty());
        QCOMPARE(f.names(), texts({"System Panel Layout 1"}));
        QTRY_VERIFY(f.panel->state().layouts.isEmpty());
        QCOMPARE(f.panel->violations().join("; "_s), QString());
    }

    void functionsThatWouldGoAreNamed()
    {
        LayoutsFixture f([](auto &fixture) {
            store(2, "Desk", {});
            fixture.store.createKeyAttribute(2, 3, 2, Play);
            fixture.store.setTitle({2, 3, 2}, "Camera"_s);
            fixture.store.createKeyAttribute(2, 3, 1, Play);
        });
        f.list()->setCurrentRow(1);
        f.draw(1, 2);
        QString asked;
        Answer answer = QMessageBox::Cancel;
        MessageBox::setAnswer([&](const QMessageBox &box) {
            asked = box.informativeText();
            return answer;
        });
        f.press("saveLayout");
        QCOMPARE(asked, "Page 3, key 2: Camera"_s);
        QCOMPARE(masks(2).size(), 15);
        answer = QMessageBox::Save;
        f.press("saveLayout");
        MessageBox::setAnswer({});
        QCOMPARE(masks(2).size(), 14);
        QVERIFY(f.store.getKeyAttribute({2, 3, 1}).has_value());
    }

    void unsavedChangesAreAskedAbout_data()
    {
        const AnswerTable row;
        row("stay", QMessageBox::Cancel, 1, "Desk");
        row("discard", QMessageBox::Discard, 2, "Desk");
        row("save", QMessageBox::Save, 2, "Deskx");
    }
    void unsavedChangesAreAskedAbout()
    {
        const auto [answer, row, name] = AnswerTable::current();
        LayoutsFixture f(
            [](auto &) {
                store(2, "Desk", {});
                store(3, "Studio", {});
            },
            Panel::None);
        f.list()->setCurrentRow(1);
        f.title()->end(false);
        QTest::keyClicks(f.title(), "x"_s);
        Boxes boxes{Answer(answer)};
        const QRect place = f.list()->visualItemRect(f.list()->item(2));
        QTest::mouseClick(f.list()->viewport(), Qt::LeftButton, {}, place.center());
        QCOMPARE(boxes.texts, texts({"Save the changes to the layout \"Deskx\"?"}));
        QCoreApplication::processEvents();
        QCOMPARE(f.list()->currentRow(), row);
        QCOMPARE(f.list()->selectedItems(), {f.list()->item(row)});
        QCOMPARE(vorlinmodel::loadCustomLayout(2)->name, name);
        f.frame->select(MainFrame::FunctionConfiguration);
        QCOMPARE(
            f.frame->currentPage(),
            int(answer == QMessageBox::Cancel ? MainFrame::PanelLayout : MainFrame::FunctionConfiguration));
    }

    void titleThatThePanelCannotShowIsNotSaved()
    {
        LayoutsFixture f([](auto &) { store(2, "Desk", {}); }, Panel::None);
        f.list()->setCurrentRow(1);
        f.draw(1, 2);
        f.title()->setText("😀"_s);
        Boxes boxes;
        f.press("saveLayout");
        QCOMPARE(boxes.texts.size(), 1);
        QCOMPARE(vorlinmodel::loadCustomLayout(2)->name, "Desk"_s);
        QCOMPARE(masks(2).size(), 15);
    }

    void thereAreAtMostTwentyLayouts()
    {
        LayoutsFixture f(
            [](auto &) {
                for (int id = 2; id <= 20; ++id)
                    store(id, "Desk", {});
            },
            Panel::None);
        f.press("newLayout");
        f.press("saveLayout");
        QCOMPARE(f.list()->count(), 21);
        Boxes boxes;
        f.press("newLayout");
        f.press("duplicateLayout");
        const QString full = "The panel layout count has reached the maximum."_s;
        QCOMPARE(boxes.texts, QStringList({full, full}));
        QCOMPARE(f.list()->count(), 21);
    }

    void layoutsAreDuplicatedAndDeletedWithTheirKeys()
    {
        LayoutsFixture f([](auto &fixture) {
            store(2, "Desk", {Square});
            fixture.store.createKeyAttribute(2, 1, 3, Play);
        });
        f.list()->setCurrentRow(1);
        f.press("duplicateLayout");
        QCOMPARE(f.names().last(), "Desk (copy)"_s);
        QCOMPARE(f.list()->currentRow(), 2);
        QCOMPARE(masks(3), masks(2));
        QVERIFY(f.store.getKeyAttribute({3, 1, 3}).has_value());
        QString asked;
        MessageBox::setAnswer([&asked](const QMessageBox &box) {
            asked = box.informativeText();
            return QMessageBox::Yes;
        });
        f.press("deleteLayout");
        MessageBox::setAnswer({});
        QCOMPARE(asked, "Keys with a function that go with it, on all pages: 1"_s);
        QCOMPARE(f.names(), texts({"System Panel Layout 1", "Desk"}));
        QVERIFY(!f.store.getKeyAttribute({3, 1, 3}).has_value());
        QVERIFY(!f.button("deleteLayout")->isEnabled()); // of the standard layout
    }

    void backgroundIsSeenAtOnceAndSavedWithTheLayout()
    {
        if (!hasTool())
            QSKIP("there is no ffmpeg beside this program");
        LayoutsFixture f([](auto &) { store(2, "Desk", {}); });
        f.list()->setCurrentRow(1);
        f.draw(1, 7);
        f.choosePicture(Qt::red);
        QVERIFY(!f.button("saveLayout")->isEnabled()); // while it is converted
        QTRY_VERIFY_WITH_TIMEOUT(f.button("saveLayout")->isEnabled(), 30000);
        QCOMPARE(f.drawn(Square), QColor(Qt::red));
        f.press("layoutUndo");
        QVERIFY(f.drawn(Square) != QColor(Qt::red));
        f.press("layoutRedo");
        f.press("emptyKeysToo");
        QVERIFY(f.drawn(Square) != QColor(Qt::red)); // none has a function
        f.press("emptyKeysToo");
#ifndef Q_OS_WIN // where links take rights
        // A file with a comment is kept aside before it is changed, which fails.
        const QString ini = vorlindesk::Paths::customLayoutIni();
        QVERIFY(writeTestFile(ini, ";mine\n" + testFileContent(ini)));
        QVERIFY(QFile::link(f.path("nowhere/at all"), ini + ".before"_s));
        {
            const Boxes boxes;
            f.press("saveLayout");
            QCOMPARE(boxes.texts, texts({"The layout could not be saved. Is the disk full?"}));
        }
        QCOMPARE(f.editor().edits.history().count(), 0); // no empty step either
        QVERIFY(QFile::remove(ini + ".before"_s));
#endif
        f.press("saveLayout");
        const auto layout = vorlinmodel::loadCustomLayout(2);
        QVERIFY(!layout->background.isEmpty());
        QCOMPARE(layout->backgroundPages, QVector<int>{1});
        QCOMPARE(f.drawn(Square), QColor(Qt::red));
        QTRY_COMPARE(QImage::fromData(f.panel->state().keys.value({2, 1, 1}).picture).size(),
                     QSize(180, 168));
        QTRY_COMPARE(f.panel->state().keys.size(), 12);
        f.editor().edits.undo(); // grouping and background are one step
        QCOMPARE(masks(2).size(), 15);
        QVERIFY(vorlinmodel::loadCustomLayout(2)->background.isEmpty());
        QTRY_VERIFY(f.panel->state().keys.isEmpty());
        QCOMPARE(f.panel->violations().join("; "_s), QString());
    }

    void conversionThatFailsChangesNothing()
    {
        LayoutsFixture f([](auto &) { store(2, "Desk", {}); }, Panel::None);
        writeTestFile(f.path("devConfig/converted"), "in the way of the folder");
        f.list()->setCurrentRow(1);
        f.choosePicture(Qt::red);
        QTRY_VERIFY_WITH_TIMEOUT(f.child<QLabel>("layoutNotice")->isVisible(), 30000);
        QVERIFY(!f.button("saveLayout")->isEnabled());
        QVERIFY(f.drawn(1) != QColor(Qt::red));
    }

    void homeLayoutIsAskedForAndShownAsThePanelHasIt()
    {
        LayoutsFixture f([](auto &) { store(2, "Desk", {}); }, Panel::None);
        f.list()->setCurrentRow(1);
        QVERIFY(!f.button("useAsHome")->isEnabled() && !f.button("useAsHome")->toolTip().isEmpty());
        f.frame->setConnected(true);
        QCOMPARE(f.takeRequests().filter("17: "_s), texts({"17: 255"})); // also behind a start
        {
            Boxes boxes(QMessageBox::No);
            f.press("useAsHome");
            QCOMPARE(boxes.texts, texts({"Switching the homepage layout will clear all layout information"}));
            QCOMPARE(f.takeRequests().filter("17: "_s), QStringList());
        }
        const Boxes boxes(QMessageBox::Yes);
        f.press("useAsHome");
        QCOMPARE(f.takeRequests().filter("17: "_s), texts({"17: 2", "17: 255"}));
        f.frame->showDeviceValue(17, "2"_s);
        QVERIFY(!f.button("useAsHome")->isEnabled());
        QVERIFY(f.list()->item(1)->toolTip().contains("Home layout"_s));

        f.frame->select(MainFrame::SystemSettings);
        auto *choice = f.child<QComboBox>("homeLayout");
        QCOMPARE(choice->currentText(), "Desk"_s);
        f.takeRequests();
        QTest::keyClick(choice, Qt::Key_Up);
        QCOMPARE(f.takeRequests().filter("17: "_s), texts({"17: 1", "17: 255"}));
        QCOMPARE(choice->currentText(), "Desk"_s); // until the panel has said so
        f.frame->setConnected(false);
        QVERIFY(!choice->isEnabled());
    }

    /// With twenty layouts every reading takes a millisecond, and a letter took twenty.
    void fileIsNotReadForALetter()
    {
        LayoutsFixture f([](auto &) { store(2, "Desk", {}); }, Panel::None);
        f.list()->setCurrentRow(1);
        store(3, "Elsewhere", {}); // nobody tells the page
        QTest::keyClick(f.title(), Qt::Key_X);
        QCOMPARE(f.names().size(), 2);
        emit f.editor().layouts.sigLayoutsChanged();
        QCOMPARE(f.names().size(), 3);
    }

    void whatIsWrongInTheFileIsShown()
    {
        const QByteArray damaged = "[layout_2]\nname=Odd\nnum=2\n1_bitmap=5\n2_bitmap=1000000000\n";
        LayoutsFixture f(
            [&damaged](auto &fixture) { writeTestFile(fixture.path("devConfig/customLayout.ini"), damaged); },
            Panel::None);
        const auto *notice = f.child<QLabel>("layoutNotice");
        QVERIFY(notice->isVisible() && notice->text().contains("Layout 2 (Odd)"_s));
        f.language.setLanguage(1);
        f.frame->retranslate();
        QVERIFY2(notice->text().contains("布局 2"_s), qPrintable(notice->text()));
        QCOMPARE(testFileContent(f.path("devConfig/customLayout.ini")), damaged);
    }
};

QTEST_MAIN(tst_ui_main_layouts)
#include "tst_ui_main_layouts.moc"
