// The editor page: pages and layouts, child pages, the clipboard, the function list.
#include "editorfixture.h"
#include "model/functionids.h"
#include "ui_common/messagebox.h"
#include "ui_editor/functionconfigwidget.h"
#include "ui_editor/functionlist.h"
#include "ui_editor/keyboardwidget.h"
#include "ui_editor/keyclipboard.h"
#include "ui_editor/keywidget.h"
#include "ui_editor/multiactionwidget.h"

#include <QClipboard>
#include <QComboBox>
#include <QDrag>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>

using vorlinmodel::key_id_t;
using Panel = EditorFixture::Panel;

namespace {

constexpr int Play = 5;
constexpr int Child = vorlinmodel::CHILDREN_PAGE_FID;
constexpr int Return = vorlinmodel::RETURN_MAIN_FID;

/// The page in a window of its own.
class PageFixture : public EditorFixture
{
public:
    using Prepare = std::function<void(EditorFixture &)>;

    explicit PageFixture(const Prepare &prepare = {}, Panel withPanel = Panel::None)
        : EditorFixture(withPanel)
    {
        if (prepare)
            prepare(*this);
        window.setStyleSheet(QStringLiteral("* {%1}").arg(fontStyle())); // as the program's window does
        page = std::make_unique<FunctionConfigWidget>(editor(), &window);
        isSetUp = page->setup();
        page->resize(828, 576);
        window.resize(page->size());
        window.show();
        window.activateWindow();
        isSetUp = QTest::qWaitForWindowActive(&window) && isSetUp;
        takeRequests();
    }
    ~PageFixture() override { page.reset(); }

    KeyboardWidget *grid() const
    {
        for (auto *candidate : page->findChildren<KeyboardWidget *>()) {
            if (candidate->isVisible())
                return candidate;
        }
        return nullptr;
    }
    int builtGrids() const { return page->findChildren<KeyboardWidget *>().size(); }
    KeyWidget *cell(int key) const { return grid()->cell(key); }
    void click(int key) { QTest::mouseClick(cell(key), Qt::LeftButton); }
    void doubleClick(int key) { QTest::mouseDClick(cell(key), Qt::LeftButton); }
    void press(const char *button)
    {
        auto *found = page->findChild<QAbstractButton *>(QLatin1String(button));
        QVERIFY2(found, button);
        QTest::mouseClick(found, Qt::LeftButton);
    }
    void keys(const char *sequence) // to whatever has the focus
    {
        QWidget *focus = window.focusWidget() ? window.focusWidget() : page.get();
        QTest::keySequence(focus, QKeySequence(QLatin1String(sequence)));
    }
    void select(int key)
    {
        click(key);
        cell(key)->setFocus();
    }
    QString notice() const
    {
        auto *text = page->findChild<QLabel *>(QStringLiteral("noticeText"));
        return text->isVisible() ? text->text() : QString();
    }
    QString label() const { return page->findChild<QLabel *>(QStringLiteral("page"))->text(); }
    QListWidget *list() const { return page->findChild<QListWidget *>(QStringLiteral("functions")); }
    int fid(const key_id_t &key) const
    {
        const auto record = store.getKeyAttribute(key);
        return record ? record->mFId : 0;
    }
    QVector<int> offered() const
    {
        QVector<int> fids;
        for (int row = 0; row < list()->count(); ++row) {
            if (!list()->item(row)->isHidden() && list()->item(row)->data(Qt::UserRole).toInt() != 0)
                fids.append(list()->item(row)->data(Qt::UserRole).toInt());
        }
        return fids;
    }

    QWidget window;
    std::unique_ptr<FunctionConfigWidget> page; // in the window
    bool isSetUp = false;
};

PageFixture::Prepare withKeys(const QMap<key_id_t, int> &keys)
{
    return [keys](EditorFixture &fixture) {
        for (auto key = keys.cbegin(); key != keys.cend(); ++key)
            fixture.store.createKeyAttribute(key.key(), *key);
    };
}

/// Layout 2 with @p keyCount keys of one physical key each.
void writeLayout(int layoutId, int keyCount)
{
    QSettings file(vorlindesk::Paths::customLayoutIni(), QSettings::IniFormat);
    file.beginGroup(QStringLiteral("layout_%1").arg(layoutId));
    file.setValue(QStringLiteral("num"), keyCount);
    file.setValue(QStringLiteral("name"), QStringLiteral("Desk %1").arg(layoutId));
    for (int key = 1; key <= keyCount; ++key)
        file.setValue(QStringLiteral("%1_bitmap").arg(key), 1 << (key - 1));
}

void writeChildPage(int keyId, int layoutId, int pageId)
{
    vorlindesk::SystemSettings::setHomeLayoutEntries({{keyId, layoutId, pageId, 1}});
}

class Answer
{
public:
    explicit Answer(QMessageBox::StandardButton answer)
    {
        MessageBox::setAnswer([this, answer](const QMessageBox &box) {
            ++asked;
            styleSheet = box.styleSheet();
            return answer;
        });
    }
    ~Answer() { MessageBox::setAnswer({}); }

    int asked = 0;
    QString styleSheet;
};

} // namespace

class PageTest : public QObject
{
    Q_OBJECT
private slots:
    void setsUpInOrderAndBuildsOneGrid()
    {
        PageFixture fixture([](EditorFixture &) { writeLayout(2, 3); });
        QVERIFY(fixture.isSetUp);
        QStringList steps;
        for (const QString &line : fixture.log.lines()) {
            if (line.contains(QLatin1String("setup ")) && !line.contains(QLatin1String("::")))
                steps.append(line.mid(line.indexOf(QLatin1String("setup "))));
        }
        QCOMPARE(
            steps,
            QStringList({QStringLiteral("setup func list frame"), QStringLiteral("setup btn layout frame"),
                         QStringLiteral("setup attr frame"), QStringLiteral("setup MultipleActionWidget")}));
        QCOMPARE(fixture.builtGrids(), 1);
        fixture.press("nextPage");
        fixture.press("prevPage");
        QCOMPARE(fixture.builtGrids(), 2);
        QVERIFY(fixture.page->minimumSizeHint().width() <= 828);
        QVERIFY(fixture.page->minimumSizeHint().height() <= 576);
    }

    void turnsPages_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<QString>("how");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QStringList>("requests");
        const auto row = [](const char *name, int from, const char *how, int to) {
            const bool turned = from != to;
            QTest::newRow(name) << from << QString::fromLatin1(how) << QStringLiteral("%1/16").arg(to)
                                << (turned ? QStringList(QStringLiteral("7: 1 %1").arg(to)) : QStringList());
        };
        row("next", 2, "nextPage", 3);
        row("previous", 2, "prevPage", 1);
        row("next on the last", 16, "nextPage", 16);
        row("previous on the first", 1, "prevPage", 1);
        row("by number", 3, "page12", 12);
        row("by keyboard, on", 3, "Ctrl+PgDown", 4);
        row("by keyboard, back", 3, "Ctrl+PgUp", 2);
        row("by keyboard, on the last", 16, "Ctrl+PgDown", 16);
    }

    void turnsPages()
    {
        QFETCH(int, from);
        QFETCH(QString, how);
        PageFixture fixture;
        fixture.page->setKeyboardCurLayoutAndPage(1, from, false);
        QCOMPARE(fixture.takeRequests(), QStringList());
        if (how.contains(QLatin1Char('+')))
            fixture.keys(how.toLatin1().constData());
        else
            fixture.press(how.toLatin1().constData());
        QTEST(fixture.label(), "label");
        QTEST(fixture.takeRequests(), "requests");
        QCOMPARE(fixture.grid()->pageId(), fixture.page->curPageId());
    }

    void refusesPagesThatAreNone()
    {
        PageFixture fixture;
        fixture.page->setKeyboardCurLayoutAndPage(1, 17, true);
        fixture.page->setKeyboardCurLayoutAndPage(1, 0, true);
        fixture.page->setKeyboardCurLayoutAndPage(9, 2, true);
        fixture.page->onKeyboardSelPageButtonClicked(16);
        QCOMPARE(fixture.page->curPageId(), 1);
        QVERIFY(fixture.requests.isEmpty());
        QCOMPARE(fixture.log.count("setKeyboardCurLayoutAndPage nPageId[17] > mMaxPage[16]!"), 1);
    }

    void thePanelFollows()
    {
        PageFixture fixture([](EditorFixture &) { writeLayout(2, 15); }, Panel::Present);
        fixture.press("page5");
        QTRY_COMPARE(fixture.panel->state().page, 5);
        fixture.page->setKeyboardCurLayoutAndPage(1, 7, false);
        QVERIFY(fixture.requests.isEmpty() || !fixture.requests.contains(QStringLiteral("7: 1 7")));
    }

    void opensChildPages_data()
    {
        QTest::addColumn<int>("layout");
        QTest::addColumn<int>("entryPage");
        QTest::addColumn<QStringList>("requests");
        QTest::newRow("nothing in system.ini") << -1 << -1 << QStringList(QStringLiteral("7: 1 5"));
        QTest::newRow("another page") << 1 << 9 << QStringList(QStringLiteral("7: 1 9"));
        QTest::newRow("another layout") << 2 << 3 << QStringList(QStringLiteral("7: 2 3"));
        QTest::newRow("a layout that is gone") << 7 << 3 << QStringList(QStringLiteral("7: 1 5"));
        QTest::newRow("a page that is none") << 1 << 99 << QStringList(QStringLiteral("7: 1 5"));
    }

    void opensChildPages()
    {
        QFETCH(int, layout);
        QFETCH(int, entryPage);
        PageFixture fixture([&](EditorFixture &context) {
            writeLayout(2, 15);
            if (layout != -1)
                writeChildPage(4, layout, entryPage);
            withKeys({{{1, 1, 4}, Child}, {{1, 5, 15}, Return}})(context);
        });
        QSignalSpy formChanged(fixture.page.get(), &FunctionConfigWidget::sigIsChildrenFormChanged);
        fixture.click(4);
        QVERIFY(fixture.requests.isEmpty()); // a single click opens nothing
        fixture.doubleClick(4);
        QTEST(fixture.takeRequests(), "requests");
        QCOMPARE(formChanged.count(), 1);
        QVERIFY(fixture.editor().childrenForm);
        QCOMPARE(QFile::exists(vorlindesk::Paths::systemIni()), layout != -1); // -1 is not written there
        fixture.page->returnToMain();
        QVERIFY(!fixture.editor().childrenForm);
        QCOMPARE(fixture.page->curPageId(), 1);
    }

    void returnKeyLeadsBack()
    {
        PageFixture fixture(withKeys({{{1, 1, 4}, Child}, {{1, 5, 15}, Return}, {{1, 5, 1}, Play}}));
        fixture.doubleClick(4);
        fixture.doubleClick(1); // a function that opens nothing
        QCOMPARE(fixture.page->curPageId(), 5);
        fixture.takeRequests();
        fixture.doubleClick(15);
        QCOMPARE(fixture.takeRequests(), QStringList(QStringLiteral("7: 1 1")));
        QVERIFY(!fixture.editor().childrenForm);
    }

    void newChildPageGetsItsWayBack()
    {
        PageFixture fixture({}, Panel::Present);
        fixture.select(3);
        emit fixture.page->findChild<FunctionList *>()->functionActivated(Child);
        QCOMPARE(fixture.takeRequests(),
                 QStringList(
                     {QStringLiteral("1: 1 1 3, fid 18, id 8"), QStringLiteral("1: 1 1 3, fid 18, id 9"),
                      QStringLiteral("1: 1 4 15, fid 19, id 8"), QStringLiteral("1: 1 4 15, fid 19, id 9")}));
        QVERIFY(fixture.notice().isEmpty());
        QCOMPARE(fixture.editor().edits.history().count(), 1);
        QTRY_COMPARE(fixture.panel->state().keys.value({1, 4, 15}).record.functionId, quint8(Return));
        fixture.keys("Ctrl+Z");
        QTRY_VERIFY(fixture.panel->state().keys.isEmpty());
        QVERIFY(fixture.store.getKeys().isEmpty());
        QVERIFY2(fixture.panel->violations().isEmpty(),
                 qPrintable(fixture.panel->violations().join(QLatin1Char('\n'))));
    }

    void saysWhatIsWrongWithAChildPage_data()
    {
        using Keys = QMap<key_id_t, int>;
        QTest::addColumn<QMap<key_id_t, int>>("keys");
        QTest::addColumn<int>("page");
        QTest::addColumn<QString>("notice");
        QTest::newRow("key 15 is taken")
            << Keys{{{1, 4, 15}, Play}} << 1
            << QStringLiteral("Page 4 has no key that leads back, and key 15 there is not "
                              "free.");
        QTest::newRow("a way back elsewhere")
            << Keys{{{1, 4, 15}, Play}, {{1, 4, 1}, Return}} << 1 << QString();
        QTest::newRow("another page leads there")
            << Keys{{{1, 2, 3}, Child}} << 1
            << QStringLiteral("Key 3 of page 2 leads to the same child page.");
        QTest::newRow("on its own child page")
            << Keys{} << 4 << QStringLiteral("Key 3 leads to the page that it is on.");
    }

    void saysWhatIsWrongWithAChildPage()
    {
        using Keys = QMap<key_id_t, int>;
        QFETCH(Keys, keys);
        QFETCH(int, page);
        PageFixture fixture(withKeys(keys));
        fixture.page->setKeyboardCurLayoutAndPage(1, page, false);
        QVERIFY(fixture.cell(3)->takeFunction(Child));
        QTEST(fixture.notice(), "notice");
    }

    void deletingAChildPageKeyAsks_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QStringList>("requests");
        QTest::addColumn<int>("left");
        const QString key = QStringLiteral("1: 1 1 3, fid 0, id 13");
        QTest::newRow("too") << int(QMessageBox::Yes)
                             << QStringList({key, QStringLiteral("1: 1 4 2, fid 0, id 13"),
                                             QStringLiteral("1: 1 4 15, fid 0, id 13")})
                             << 0;
        QTest::newRow("only the key") << int(QMessageBox::No) << QStringList(key) << 2;
        QTest::newRow("cancel") << int(QMessageBox::Cancel) << QStringList() << 3;
    }

    void deletingAChildPageKeyAsks()
    {
        QFETCH(int, answer);
        PageFixture fixture(withKeys({{{1, 1, 3}, Child}, {{1, 4, 2}, Play}, {{1, 4, 15}, Return}}));
        const Answer scripted{QMessageBox::StandardButton(answer)};
        fixture.select(3);
        fixture.keys("Del");
        QCOMPARE(scripted.asked, 1);
        QCOMPARE(
            scripted.styleSheet,
            QStringLiteral("QMessageBox QLabel#qt_msgbox_label {color: white;background-color: transparent;} "
                           "QMessageBox QPushButton {color: white;font: 75 10pt \"Arial\"; }"));
        QTEST(fixture.takeRequests(), "requests");
        QTEST(fixture.store.getKeys().size(), "left");
        fixture.editor().edits.undo();
        QCOMPARE(fixture.store.getKeys().size(), 3);
        QCOMPARE(fixture.editor().edits.history().count(), answer == QMessageBox::Cancel ? 0 : 1);
    }

    void deletingDoesNotAskWithoutNeed()
    {
        PageFixture fixture(
            withKeys({{{1, 1, 3}, Child}, {{1, 2, 3}, Child}, {{1, 4, 15}, Return}, {{1, 1, 7}, Play}}));
        const Answer scripted{QMessageBox::Cancel};
        fixture.select(7);
        fixture.press("delete");
        fixture.cell(3)->onDeleteActionHandler(); // page 2 still leads to its page
        QCOMPARE(scripted.asked, 0);
        QCOMPARE(fixture.store.getKeys().size(), 2);
    }

    void undoShowsWhatItChanges()
    {
        PageFixture fixture;
        fixture.cell(2)->takeFunction(Play);
        fixture.press("page3");
        fixture.takeRequests();
        fixture.press("undo");
        QCOMPARE(fixture.takeRequests(),
                 QStringList({QStringLiteral("1: 1 1 2, fid 0, id 13"), QStringLiteral("7: 1 1")}));
        QCOMPARE(fixture.label(), QStringLiteral("1/16"));
        QCOMPARE(fixture.cell(2)->fid(), 0);
        QVERIFY(!fixture.page->findChild<QToolButton *>(QStringLiteral("undo"))->isEnabled());
        fixture.keys("Ctrl+Shift+Z");
        QCOMPARE(fixture.cell(2)->fid(), Play);
    }

    void switchesLayouts()
    {
        PageFixture fixture([](EditorFixture &) {
            for (int layout = 2; layout <= 21; ++layout)
                writeLayout(layout, 3);
        });
        auto *standard = fixture.page->findChild<QPushButton *>(QStringLiteral("layout1"));
        auto *custom = fixture.page->findChild<QPushButton *>(QStringLiteral("layout2"));
        QCOMPARE(standard->text(), QStringLiteral("System Panel Layout 1"));
        QVERIFY(standard->styleSheet().endsWith(QLatin1String("color: rgb(0, 0, 255);")));
        fixture.page->setKeyboardCurLayoutAndPage(1, 4, false);
        QTest::mouseClick(custom, Qt::LeftButton);
        QCOMPARE(fixture.takeRequests(), QStringList(QStringLiteral("7: 2 1")));
        QCOMPARE(custom->styleSheet(), QStringLiteral("border: none; color: rgb(0, 0, 255);"));
        QCOMPARE(standard->styleSheet(), QStringLiteral("border: none; color: rgb(255, 255, 255);"));
        QCOMPARE(fixture.grid()->cells().size(), 3);
        fixture.press("undo");
        QCOMPARE(fixture.takeRequests(), QStringList(QStringLiteral("7: 1 4")));
        QCOMPARE(fixture.label(), QStringLiteral("4/16"));
        fixture.press("redo");
        fixture.takeRequests();
        QFile::remove(vorlindesk::Paths::customLayoutIni());
        fixture.page->rebuildLayouts();
        QCOMPARE(fixture.takeRequests(), QStringList(QStringLiteral("7: 1 1")));
        QCOMPARE(fixture.page->curLayoutId(), 1);
    }

    void layoutChangeLeavesTheChildPage()
    {
        PageFixture fixture([](EditorFixture &context) {
            writeLayout(2, 15);
            withKeys({{{1, 1, 4}, Child}})(context);
        });
        fixture.doubleClick(4);
        fixture.press("layout2");
        QVERIFY(!fixture.editor().childrenForm);
        fixture.editor().edits.undo();
        QVERIFY(fixture.editor().childrenForm);
        QCOMPARE(fixture.page->curPageId(), 5);
        fixture.press("layout1"); // the one in view: leads back
        QVERIFY(!fixture.editor().childrenForm);
        QCOMPARE(fixture.page->curPageId(), 1);
    }

    void showsWhatThePanelShows()
    {
        PageFixture fixture;
        fixture.page->showDevicePage(1, 6);
        QVERIFY(fixture.requests.isEmpty());
        QVERIFY(fixture.editor().childrenForm);
        QCOMPARE(fixture.label(), QStringLiteral("6/16"));
        fixture.page->showDevicePage(1, 1);
        QVERIFY(!fixture.editor().childrenForm);
    }

    void clipboardCrossesPages()
    {
        PageFixture fixture(withKeys({{{1, 1, 2}, Play}}));
        fixture.select(2);
        fixture.keys("Ctrl+C");
        fixture.press("page2");
        fixture.select(9);
        fixture.takeRequests();
        fixture.keys("Ctrl+V");
        QCOMPARE(fixture.takeRequests(), QStringList({QStringLiteral("1: 1 2 9, fid 5, id 8"),
                                                      QStringLiteral("1: 1 2 9, fid 5, id 9")}));
        QCOMPARE(fixture.cell(9)->fid(), Play);
        fixture.keys("Ctrl+X");
        QCOMPARE(fixture.fid({1, 2, 9}), 0);
        QCOMPARE(fixture.editor().edits.history().count(), 2);
        fixture.keys("Ctrl+V");
        QCOMPARE(fixture.fid({1, 2, 9}), Play);
    }

    void pastedChildPageGetsItsWayBack()
    {
        PageFixture fixture(withKeys({{{1, 1, 2}, Child}, {{1, 3, 15}, Return}}));
        fixture.select(2);
        fixture.keys("Ctrl+C");
        fixture.select(6);
        fixture.keys("Ctrl+V");
        QCOMPARE(fixture.fid({1, 7, 15}), Return);
        QCOMPARE(fixture.editor().edits.history().count(), 1);
    }

    void fieldsKeepTheirShortcuts()
    {
        PageFixture fixture(withKeys({{{1, 1, 2}, Play}}));
        fixture.select(2);
        fixture.cell(2)->takeFunction(6);
        auto *filter = fixture.page->findChild<QLineEdit *>(QStringLiteral("filter"));
        filter->setFocus();
        QTest::keyClicks(filter, QStringLiteral("vol"));
        filter->selectAll();
        fixture.keys("Ctrl+C");
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("vol"));
        fixture.keys("Del");
        QCOMPARE(fixture.fid({1, 1, 2}), 6);
        fixture.keys("Ctrl+Z"); // the field's own
        QCOMPARE(filter->text(), QStringLiteral("vol"));
        filter->setText(QString()); // which leaves it nothing to undo
        fixture.keys("Ctrl+Z");
        QCOMPARE(fixture.fid({1, 1, 2}), Play);
        fixture.keys("Ctrl+Shift+Z");
        fixture.page->findChild<QSpinBox *>(QStringLiteral("titleSize"))->setFocus();
        fixture.keys("Ctrl+Z");
        QCOMPARE(fixture.fid({1, 1, 2}), Play);
    }

    void putsAKeyOnEveryPage()
    {
        PageFixture fixture(withKeys({{{1, 2, 7}, Play}, {{1, 3, 7}, 6}}));
        fixture.page->setKeyboardCurLayoutAndPage(1, 2, false);
        fixture.select(7);
        fixture.press("everypage");
        for (int page = 1; page <= 16; ++page)
            QCOMPARE(fixture.fid({1, page, 7}), Play);
        QVERIFY(fixture.notice().contains(QLatin1String(": 1.")));
        fixture.keys("Ctrl+Z");
        QCOMPARE(fixture.store.getKeys().size(), 2);
        QCOMPARE(fixture.fid({1, 3, 7}), 6);
    }

    void multiActionEditorTakesThePlaceOfTheGrid()
    {
        PageFixture fixture(withKeys({{{1, 2, 3}, vorlinmodel::MULTIPLE_ACTIONS_FID}}));
        fixture.page->setKeyboardCurLayoutAndPage(1, 2, false);
        QSignalSpy forSteps(fixture.page.get(), &FunctionConfigWidget::sigmIsFuncListForMultiAction);
        auto *editor = fixture.page->findChild<MultiActionWidget *>();
        fixture.click(3);
        QVERIFY(!editor->isVisible());
        fixture.doubleClick(3);
        QVERIFY(editor->isVisible());
        QVERIFY(!fixture.grid());
        QVERIFY(!fixture.page->findChild<QPushButton *>(QStringLiteral("nextPage"))->isVisible());
        QCOMPARE(fixture.offered(), QVector<int>({5, 6, 7, 8, 9, 10, 13, 14, 1, 2, 3, 15, 16, 100}));
        fixture.page->onKeyboardNextPageButtonClicked(); // no page is in view
        QVERIFY(fixture.requests.isEmpty());
        emit editor->sigBtnReturnClicked({1, 2, 3}, 4);
        QCOMPARE(forSteps, QList<QVariantList>({{true}, {false}}));
        QCOMPARE(fixture.grid()->pageId(), 2);
        QVERIFY(fixture.requests.isEmpty()); // the panel never left the page
        fixture.doubleClick(3);
        QVERIFY(fixture.page->confirmLeave());
        QVERIFY(!editor->isVisible());
    }

    void listOffersEveryFunction()
    {
        PageFixture fixture;
        const QVector<int> all{4, 5, 6, 7, 8, 9, 10, 13, 14, 1, 2, 3, 17, 15, 16, 18, 19};
        QCOMPARE(fixture.offered(), all);
        QCOMPARE(FunctionList::functions(FunctionList::Mode::ChildPage), all);
        for (const int fid : all) {
            QVERIFY2(QFile::exists(functionIcon(fid)), qPrintable(functionIcon(fid)));
            QVERIFY(!functionName(fixture.editor(), fid).isEmpty());
        }
        auto *filter = fixture.page->findChild<QLineEdit *>(QStringLiteral("filter"));
        QTest::keyClicks(filter, QStringLiteral("VOLUME"));
        QCOMPARE(fixture.offered(), QVector<int>({6, 7}));
        QTest::keyClicks(filter, QStringLiteral("x"));
        QVERIFY(fixture.page->findChild<QLabel *>(QStringLiteral("nothingFound"))->isVisible());
        QVERIFY(!fixture.list()->isVisible());
    }

    void listIsUsedByKeyboard()
    {
        PageFixture fixture;
        fixture.select(11);
        auto *filter = fixture.page->findChild<QLineEdit *>(QStringLiteral("filter"));
        filter->setFocus();
        QTest::keyClicks(filter, QStringLiteral("mute"));
        QTest::keyClick(filter, Qt::Key_Down);
        QTest::keyClick(fixture.list(), Qt::Key_Return);
        QCOMPARE(fixture.fid({1, 1, 11}), 8);
        filter->setText(QStringLiteral("track")); // none
        QTest::keyClick(filter, Qt::Key_Return);
        filter->setText(QStringLiteral("volume")); // two
        QTest::keyClick(filter, Qt::Key_Return);
        QCOMPARE(fixture.fid({1, 1, 11}), 8);
        filter->setText(QStringLiteral("timer")); // not outside multiple actions
        QTest::keyClick(filter, Qt::Key_Return);
        filter->setText(QStringLiteral("volume down"));
        QTest::keyClick(filter, Qt::Key_Return);
        QCOMPARE(fixture.fid({1, 1, 11}), 7);
    }

    void attributesFollowTheCurrentKey()
    {
        PageFixture fixture(withKeys({{{1, 1, 1}, Play}, {{1, 1, 2}, 6}, {{1, 1, 7}, 16}}));
        const auto *header = fixture.page->findChild<QLabel *>(QStringLiteral("attributeHeader"));
        fixture.select(1);
        fixture.keys("Right");
        QCOMPARE(header->text(), QStringLiteral("Key 2: Increase The Volume"));
        QTest::mouseClick(fixture.cell(1), Qt::LeftButton, Qt::ControlModifier);
        QCOMPARE(header->text(), QStringLiteral("Key 1: Playing/Pausing"));
        QTest::mouseClick(fixture.cell(1), Qt::LeftButton, Qt::ControlModifier); // not selected any more
        QCOMPARE(header->text(), QStringLiteral("Key 2: Increase The Volume"));
        fixture.cell(9)->takeFunction(8); // as a drop does
        QCOMPARE(header->text(), QStringLiteral("Key 9: Mute"));
        QCOMPARE(fixture.grid()->currentKey().kid, 9);
        fixture.cell(2)->onDeleteActionHandler();
        QCOMPARE(header->text(), QStringLiteral("Key 9: Mute"));
        QCOMPARE(fixture.editor().edits.history().count(), 2);
        fixture.select(7);
        auto *name = fixture.page->findChild<QComboBox *>(QStringLiteral("keyName1"));
        name->setFocus();
        QTest::keyClicks(name, QStringLiteral("f5"));
        fixture.press("page2"); // leaves the focus where it is
        QCOMPARE(fixture.store.getKeyAttribute({1, 1, 7})->strAppOrUrl, QStringLiteral("F5"));
    }

    void tabGoesFromTheToolsToTheKeys()
    {
        PageFixture fixture(withKeys({{{1, 2, 1}, Play}}));
        fixture.press("page2"); // built after all the rest
        fixture.page->findChild<QWidget *>(QStringLiteral("everypage"))->setFocus();
        QTest::keyClick(fixture.window.focusWidget(), Qt::Key_Tab);
        QCOMPARE(fixture.window.focusWidget(), fixture.cell(1));
        fixture.cell(15)->setFocus();
        QTest::keyClick(fixture.window.focusWidget(), Qt::Key_Tab);
        QCOMPARE(fixture.window.focusWidget()->objectName(), QStringLiteral("prevPage"));
    }

    void dragsAFunction()
    {
        PageFixture fixture;
        QListWidgetItem *item = fixture.list()->findItems(QStringLiteral("Mute"), Qt::MatchExactly).first();
        const QPoint start = fixture.list()->visualItemRect(item).center();
        QTest::mousePress(fixture.list()->viewport(), Qt::LeftButton, {}, start);
        for (int step = 1; step <= 2; ++step) {
            QMouseEvent move(QEvent::MouseMove, start + QPoint(15 * step, 0), Qt::LeftButton, Qt::LeftButton,
                             {});
            QApplication::sendEvent(fixture.list()->viewport(), &move);
        }
        const auto *drag = fixture.list()->findChild<QDrag *>(); // ended by the platform, and deleted later
        QVERIFY(drag);
        QCOMPARE(drag->mimeData()->formats(), QStringList(QStringLiteral("quorradent_function_id")));
        QCOMPARE(drag->mimeData()->data(QStringLiteral("quorradent_function_id")),
                 QByteArray::fromHex("00000008"));
        QCOMPARE(drag->pixmap().size(), QSize(90, 84));
    }

    void changesItsLanguageAtOnce()
    {
        PageFixture fixture;
        fixture.language.setLanguage(1);
        fixture.page->retranslate();
        QCOMPARE(fixture.page->findChild<QPushButton *>(QStringLiteral("layout1"))->text(),
                 QStringLiteral("系统面板布局 1"));
        QCOMPARE(fixture.list()->findItems(QStringLiteral("静音"), Qt::MatchExactly).size(), 1);
    }
};

QTEST_MAIN(PageTest)
#include "tst_ui_editor_page.moc"
