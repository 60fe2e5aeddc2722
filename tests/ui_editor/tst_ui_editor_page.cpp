// The editor page: pages, layouts and child pages.
#include "pagefixture.h"

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
};

QTEST_MAIN(PageTest)
#include "tst_ui_editor_page.moc"
