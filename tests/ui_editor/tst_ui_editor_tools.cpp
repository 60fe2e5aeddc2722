// What the editor page offers around the keys: tools, shortcuts, the function list, the editors of a key.
#include "pagefixture.h"

class ToolsTest : public QObject
{
    Q_OBJECT
private slots:
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

QTEST_MAIN(ToolsTest)
#include "tst_ui_editor_tools.moc"
