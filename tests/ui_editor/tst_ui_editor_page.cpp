// The editor page: pages, layouts and child pages.
#include "pagefixture.h"
#include "support/table.h"

class PageTest : public QObject
{
    Q_OBJECT
    using TurnsTable = Table<int, QString, int>;
    using OpensTable = Table<int, int, QStringList>;
    using ChildPageTable = Table<QMap<key_id_t, int>, int, QString>;
    using DeletingTable = Table<int, QStringList, int>;

private slots:
    void buildsGridsWhenTheyAreLookedAt()
    {
        PageFixture fixture([](EditorFixture &) { writeLayout(2, 3); });
        QVERIFY(fixture.isSetUp);
        QCOMPARE(fixture.builtGrids(), 1);
        fixture.press("nextPage");
        fixture.press("prevPage");
        QCOMPARE(fixture.builtGrids(), 2);
    }

    void turnsPages_data()
    {
        const TurnsTable row; // from a page, by button or keys, to a page
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
        const auto [from, how, to] = TurnsTable::current();
        PageFixture fixture;
        fixture.page->setKeyboardCurLayoutAndPage(1, from, false);
        QCOMPARE(fixture.takeRequests(), QStringList());
        if (how.contains(u'+'))
            fixture.keys(how.toLatin1().constData());
        else
            fixture.press(how.toLatin1().constData());
        QCOMPARE(fixture.label(), "%1/16"_s.arg(to));
        const QStringList request("7: 1 %1"_s.arg(to));
        QCOMPARE(fixture.takeRequests(), from == to ? QStringList() : request);
        QCOMPARE(fixture.grid()->pageId(), to);
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

    void opensChildPages_data()
    {
        const OpensTable row;
        row("nothing in system.ini", -1, -1, QStringList("7: 1 5"_s));
        row("another page", 1, 9, QStringList("7: 1 9"_s));
        row("another layout", 2, 3, QStringList("7: 2 3"_s));
        row("a layout that is gone", 7, 3, QStringList("7: 1 5"_s));
        row("a page that is none", 1, 99, QStringList("7: 1 5"_s));
    }

    void opensChildPages()
    {
        const auto [layout, entryPage, requests] = OpensTable::current();
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
        QCOMPARE(fixture.takeRequests(), requests);
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
        QCOMPARE(fixture.takeRequests(), QStringList("7: 1 1"_s));
        QVERIFY(!fixture.editor().childrenForm);
    }

    void newChildPageGetsItsWayBack()
    {
        PageFixture fixture({}, Panel::Present);
        fixture.select(3);
        emit fixture.page->findChild<FunctionList *>()->functionActivated(Child);
        QCOMPARE(fixture.takeRequests(), texts({"1: 1 1 3, fid 18, id 8", "1: 1 1 3, fid 18, id 9",
                                                "1: 1 4 15, fid 19, id 8", "1: 1 4 15, fid 19, id 9"}));
        QVERIFY(fixture.notice().isEmpty());
        QCOMPARE(fixture.editor().edits.history().count(), 1);
        QTRY_COMPARE(fixture.panel->state().keys.value({1, 4, 15}).record.functionId, quint8(Return));
        fixture.keys("Ctrl+Z");
        QTRY_VERIFY(fixture.panel->state().keys.isEmpty());
        QVERIFY(fixture.store.getKeys().isEmpty());
        QCOMPARE(fixture.panel->violations().join("; "_s), QString());
    }

    void saysWhatIsWrongWithAChildPage_data()
    {
        using Keys = QMap<key_id_t, int>;
        const ChildPageTable row;
        row("key 15 is taken", Keys{{{1, 4, 15}, Play}}, 1,
            "Page 4 has no key that leads back, and key 15 there is not "
            "free.");
        row("a way back elsewhere", Keys{{{1, 4, 15}, Play}, {{1, 4, 1}, Return}}, 1, {});
        row("another page leads there", Keys{{{1, 2, 3}, Child}}, 1,
            "Key 3 of page 2 leads to the same child page.");
        row("on its own child page", Keys{}, 4, "Key 3 leads to the page that it is on.");
    }

    void saysWhatIsWrongWithAChildPage()
    {
        const auto [keys, page, notice] = ChildPageTable::current();
        PageFixture fixture(withKeys(keys));
        fixture.page->setKeyboardCurLayoutAndPage(1, page, false);
        QVERIFY(fixture.cell(3)->takeFunction(Child));
        QCOMPARE(fixture.notice(), notice);
    }

    void deletingAChildPageKeyAsks_data()
    {
        const DeletingTable row;
        const QString key = "1: 1 1 3, fid 0, id 13"_s;
        row("too", int(QMessageBox::Yes),
            QStringList({key, "1: 1 4 2, fid 0, id 13"_s, "1: 1 4 15, fid 0, id 13"_s}), 0);
        row("only the key", int(QMessageBox::No), QStringList(key), 2);
        row("cancel", int(QMessageBox::Cancel), {}, 3);
    }

    void deletingAChildPageKeyAsks()
    {
        const auto [answer, requests, left] = DeletingTable::current();
        PageFixture fixture(withKeys({{{1, 1, 3}, Child}, {{1, 4, 2}, Play}, {{1, 4, 15}, Return}}));
        const Boxes boxes{QMessageBox::StandardButton(answer)};
        fixture.select(3);
        fixture.keys("Del");
        QCOMPARE(boxes.texts.size(), 1);
        QCOMPARE(boxes.styleSheet,
                 "QMessageBox QLabel#qt_msgbox_label {color: white;background-color: transparent;} "
                 "QMessageBox QPushButton {color: white;font: 75 10pt \"Arial\"; }"_s);
        QCOMPARE(fixture.takeRequests(), requests);
        QCOMPARE(fixture.store.getKeys().size(), left);
        fixture.editor().edits.undo();
        QCOMPARE(fixture.store.getKeys().size(), 3);
        QCOMPARE(fixture.editor().edits.history().count(), answer == QMessageBox::Cancel ? 0 : 1);
    }

    void deletingDoesNotAskWithoutNeed()
    {
        PageFixture fixture(
            withKeys({{{1, 1, 3}, Child}, {{1, 2, 3}, Child}, {{1, 4, 15}, Return}, {{1, 1, 7}, Play}}));
        const Boxes boxes{QMessageBox::Cancel};
        fixture.select(7);
        fixture.press("delete");
        fixture.cell(3)->onDeleteActionHandler(); // page 2 still leads to its page
        QCOMPARE(boxes.texts.size(), 0);
        QCOMPARE(fixture.store.getKeys().size(), 2);
    }

    void undoShowsWhatItChanges()
    {
        PageFixture fixture;
        fixture.cell(2)->takeFunction(Play);
        fixture.press("page3");
        fixture.takeRequests();
        fixture.press("undo");
        QCOMPARE(fixture.takeRequests(), texts({"1: 1 1 2, fid 0, id 13", "7: 1 1"}));
        QCOMPARE(fixture.label(), "1/16"_s);
        QCOMPARE(fixture.cell(2)->fid(), 0);
        QVERIFY(!fixture.page->findChild<QToolButton *>("undo"_s)->isEnabled());
        fixture.keys("Ctrl+Shift+Z");
        QCOMPARE(fixture.cell(2)->fid(), Play);
    }

    void switchesLayouts()
    {
        PageFixture fixture([](EditorFixture &) {
            for (int layout = 2; layout <= 21; ++layout)
                writeLayout(layout, 3);
        });
        auto *standard = fixture.page->findChild<QPushButton *>("layout1"_s);
        auto *custom = fixture.page->findChild<QPushButton *>("layout2"_s);
        QCOMPARE(standard->text(), "System Panel Layout 1"_s);
        QVERIFY(standard->styleSheet().endsWith("color: rgb(0, 0, 255);"_s));
        fixture.page->setKeyboardCurLayoutAndPage(1, 4, false);
        QTest::mouseClick(custom, Qt::LeftButton);
        QCOMPARE(fixture.takeRequests(), QStringList("7: 2 1"_s));
        QCOMPARE(custom->styleSheet(), "border: none; color: rgb(0, 0, 255);"_s);
        QCOMPARE(standard->styleSheet(), "border: none; color: rgb(255, 255, 255);"_s);
        QCOMPARE(fixture.grid()->cells().size(), 3);
        fixture.press("undo");
        QCOMPARE(fixture.takeRequests(), QStringList("7: 1 4"_s));
        QCOMPARE(fixture.label(), "4/16"_s);
        fixture.press("redo");
        fixture.takeRequests();
        QFile::remove(vorlindesk::Paths::customLayoutIni());
        fixture.page->rebuildLayouts();
        QCOMPARE(fixture.takeRequests(), QStringList("7: 1 1"_s));
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
        QCOMPARE(fixture.label(), "6/16"_s);
        fixture.page->showDevicePage(1, 1);
        QVERIFY(!fixture.editor().childrenForm);
    }
};

QTEST_MAIN(PageTest)
#include "tst_ui_editor_page.moc"
