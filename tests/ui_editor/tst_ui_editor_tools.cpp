// What the editor page offers around the keys: tools, shortcuts, the function list, the editors of a key.
#include "pagefixture.h"

namespace {

void dragKey(PageFixture &fixture, const key_id_t &source, int target, Qt::KeyboardModifiers modifiers)
{
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly) << source.lid << source.pageid << source.kid;
    QMimeData data;
    data.setData("application/x-vorlindesk-key"_s, bytes);
    const auto actions = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(QPoint(5, 5), actions, &data, Qt::LeftButton, modifiers);
    QCoreApplication::sendEvent(fixture.cell(target), &enter);
    QDropEvent drop(QPointF(5, 5), actions, &data, Qt::LeftButton, modifiers);
    QCoreApplication::sendEvent(fixture.cell(target), &drop);
}

} // namespace

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
        QCOMPARE(fixture.takeRequests(), texts({"1: 1 2 9, fid 5, id 8", "1: 1 2 9, fid 5, id 9"}));
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

    void draggedChildPageGetsItsWayBack_data()
    {
        QTest::addColumn<bool>("copy");
        QTest::addColumn<int>("returnKey"); // what is on the key where the way back goes
        QTest::addColumn<QString>("notice");
        QTest::newRow("moved") << false << 0 << QString();
        QTest::newRow("copied") << true << 0 << QString();
        QTest::newRow("no room for it")
            << false << Play << "Page 7 has no key that leads back, and key 15 there is not free."_s;
    }

    void draggedChildPageGetsItsWayBack()
    {
        QFETCH(bool, copy);
        QFETCH(int, returnKey);
        PageFixture fixture(withKeys({{{1, 1, 2}, Child}, {{1, 3, 15}, Return}}));
        if (returnKey != 0)
            fixture.store.createKeyAttribute({1, 7, 15}, returnKey);
        dragKey(fixture, {1, 1, 2}, 6, copy ? Qt::ControlModifier : Qt::NoModifier);
        QCOMPARE(fixture.fid({1, 1, 6}), Child);
        QCOMPARE(fixture.fid({1, 7, 15}), returnKey != 0 ? returnKey : Return);
        QTEST(fixture.notice(), "notice");
        QCOMPARE(fixture.editor().edits.history().count(), 1);
        fixture.keys("Ctrl+Z"); // the way back was part of the step
        QCOMPARE(fixture.fid({1, 7, 15}), returnKey);
    }

    void fieldsKeepTheirShortcuts()
    {
        PageFixture fixture(withKeys({{{1, 1, 2}, Play}}));
        fixture.select(2);
        fixture.cell(2)->takeFunction(6);
        auto *filter = fixture.page->findChild<QLineEdit *>("filter"_s);
        filter->setFocus();
        QTest::keyClicks(filter, "vol"_s);
        filter->selectAll();
        fixture.keys("Ctrl+C");
        QCOMPARE(QGuiApplication::clipboard()->text(), "vol"_s);
        fixture.keys("Del");
        QCOMPARE(fixture.fid({1, 1, 2}), 6);
        fixture.keys("Ctrl+Z"); // the field's own
        QCOMPARE(filter->text(), "vol"_s);
        filter->setText(QString()); // which leaves it nothing to undo
        fixture.keys("Ctrl+Z");
        QCOMPARE(fixture.fid({1, 1, 2}), Play);
        fixture.keys("Ctrl+Shift+Z");
        fixture.page->findChild<QSpinBox *>("titleSize"_s)->setFocus();
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
        QVERIFY(fixture.notice().contains(": 1."_s));
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
        QVERIFY(!fixture.page->findChild<QPushButton *>("nextPage"_s)->isVisible());
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

    void listIsFiltered()
    {
        PageFixture fixture;
        const QVector<int> all = fixture.offered();
        QCOMPARE(all, QVector<int>({4, 5, 6, 7, 8, 9, 10, 13, 14, 1, 2, 3, 17, 15, 16, 18, 19}));
        for (const int fid : all)
            QVERIFY2(QFile::exists(functionIcon(fid)), qPrintable(functionIcon(fid)));
        auto *filter = fixture.page->findChild<QLineEdit *>("filter"_s);
        QTest::keyClicks(filter, "VOLUME"_s);
        QCOMPARE(fixture.offered(), QVector<int>({6, 7}));
        QTest::keyClicks(filter, "x"_s);
        QVERIFY(fixture.page->findChild<QLabel *>("nothingFound"_s)->isVisible());
        fixture.language.setLanguage(1);
        fixture.page->retranslate();
        QCOMPARE(fixture.list()->findItems("静音"_s, Qt::MatchExactly).size(), 1);
    }

    void listIsUsedByKeyboard()
    {
        PageFixture fixture;
        fixture.select(11);
        auto *filter = fixture.page->findChild<QLineEdit *>("filter"_s);
        filter->setFocus();
        QTest::keyClicks(filter, "mute"_s);
        QTest::keyClick(filter, Qt::Key_Down);
        QTest::keyClick(fixture.list(), Qt::Key_Return);
        QCOMPARE(fixture.fid({1, 1, 11}), 8);
        filter->setText("track"_s); // none
        QTest::keyClick(filter, Qt::Key_Return);
        filter->setText("volume"_s); // two
        QTest::keyClick(filter, Qt::Key_Return);
        QCOMPARE(fixture.fid({1, 1, 11}), 8);
        filter->setText("timer"_s); // not outside multiple actions
        QTest::keyClick(filter, Qt::Key_Return);
        filter->setText("volume down"_s);
        QTest::keyClick(filter, Qt::Key_Return);
        QCOMPARE(fixture.fid({1, 1, 11}), 7);
    }

    void attributesFollowTheCurrentKey()
    {
        PageFixture fixture(withKeys({{{1, 1, 1}, Play}, {{1, 1, 2}, 6}, {{1, 1, 7}, 16}}));
        const auto *header = fixture.page->findChild<QLabel *>("attributeHeader"_s);
        fixture.select(1);
        fixture.keys("Right");
        QCOMPARE(header->text(), "Key 2: Increase The Volume"_s);
        QTest::mouseClick(fixture.cell(1), Qt::LeftButton, Qt::ControlModifier);
        QCOMPARE(header->text(), "Key 1: Playing/Pausing"_s);
        QTest::mouseClick(fixture.cell(1), Qt::LeftButton, Qt::ControlModifier); // not selected any more
        QCOMPARE(header->text(), "Key 2: Increase The Volume"_s);
        fixture.cell(9)->takeFunction(8); // as a drop does
        QCOMPARE(header->text(), "Key 9: Mute"_s);
        QCOMPARE(fixture.grid()->currentKey().kid, 9);
        fixture.cell(2)->onDeleteActionHandler();
        QCOMPARE(header->text(), "Key 9: Mute"_s);
        QCOMPARE(fixture.editor().edits.history().count(), 2);
        fixture.select(7);
        auto *name = fixture.page->findChild<QComboBox *>("keyName1"_s);
        name->setFocus();
        QTest::keyClicks(name, "f5"_s);
        fixture.press("page2"); // leaves the focus where it is
        QCOMPARE(fixture.store.getKeyAttribute({1, 1, 7})->strAppOrUrl, "F5"_s);
    }

    void tabGoesFromTheToolsToTheKeys()
    {
        PageFixture fixture(withKeys({{{1, 2, 1}, Play}}));
        fixture.press("page2"); // built after all the rest
        fixture.page->findChild<QWidget *>("everypage"_s)->setFocus();
        QTest::keyClick(fixture.window.focusWidget(), Qt::Key_Tab);
        QCOMPARE(fixture.window.focusWidget(), fixture.cell(1));
        fixture.cell(15)->setFocus();
        QTest::keyClick(fixture.window.focusWidget(), Qt::Key_Tab);
        QCOMPARE(fixture.window.focusWidget()->objectName(), "prevPage"_s);
    }

    void dragsAFunction()
    {
        PageFixture fixture;
        QListWidgetItem *item = fixture.list()->findItems("Mute"_s, Qt::MatchExactly).first();
        const QPoint start = fixture.list()->visualItemRect(item).center();
        QTest::mousePress(fixture.list()->viewport(), Qt::LeftButton, {}, start);
        for (int step = 1; step <= 2; ++step) {
            QMouseEvent move(QEvent::MouseMove, start + QPoint(15 * step, 0), Qt::LeftButton, Qt::LeftButton,
                             {});
            QApplication::sendEvent(fixture.list()->viewport(), &move);
        }
        const auto *drag = fixture.list()->findChild<QDrag *>(); // ended by the platform, and deleted later
        QVERIFY(drag);
        QCOMPARE(drag->mimeData()->formats(), QStringList("quorradent_function_id"_s));
        QCOMPARE(drag->mimeData()->data("quorradent_function_id"_s), QByteArray::fromHex("00000008"));
        QCOMPARE(drag->pixmap().size(), QSize(90, 84));
    }
};

QTEST_MAIN(ToolsTest)
#include "tst_ui_editor_tools.moc"
