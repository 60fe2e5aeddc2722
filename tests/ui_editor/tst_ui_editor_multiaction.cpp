// The editor of a multi-action key's steps, driven as a person does.
#include "editorfixture.h"
#include "model/functionids.h"
#include "model/multiaction.h"
#include "support/files.h"
#include "support/table.h"
#include "ui_common/filedialog.h"
#include "ui_editor/multiactionwidget.h"
#include "ui_editor/steprunner.h"
#include "ui_editor/vorlinmimedata.h"

Q_DECLARE_METATYPE(vorlinmodel::MultiAction)

using vorlinmodel::AttributeId;
using vorlinmodel::key_id_t;
using vorlinmodel::MultiAction;
using vorlinmodel::multiActionStore;
using Panel = EditorFixture::Panel;
using Steps = QVector<MultiAction>;

namespace {

const key_id_t Key{1, 3, 7};

MultiAction step(int fid, const QString &url = {}, int delay = 0)
{
    return {qint16(fid), quint16(delay), url};
}

Steps stored()
{
    return multiActionStore().readActionsByKeyId(Key.lid, Key.pageid, Key.kid);
}

QMimeData *functionData(int fid)
{
    auto data = std::make_unique<QMimeData>();
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << qint32(fid);
    data->setData(QString::fromLatin1(DragFormat::FunctionId), bytes);
    return data.release();
}

struct Editor
{
    explicit Editor(const Steps &steps = {}, Panel panel = Panel::None)
        : fixture(panel)
        , widget(fixture.editor(), nullptr)
    {
        fixture.store.createKeyAttribute(Key, vorlinmodel::MULTIPLE_ACTIONS_FID);
        QString error;
        if (!steps.isEmpty())
            multiActionStore().writeActionsByKeyId(Key.lid, Key.pageid, Key.kid, steps, error);
        widget.setup();
        widget.resize(610, 500);
        widget.open(Key, vorlinmodel::MULTIPLE_ACTIONS_FID);
        QApplication::setActiveWindow(&widget);
        view = widget.findChild<QListView *>("steps"_s);
    }

    const Steps &steps() { return widget.steps().steps(); }
    template <typename Part>
    Part *part(int row, const char *name = "content")
    {
        const QWidget *line = view->indexWidget(view->model()->index(row, 0));
        return line ? line->findChild<Part *>(QString::fromLatin1(name)) : nullptr;
    }
    QPushButton *button(const char *name)
    {
        return widget.findChild<QPushButton *>(QString::fromLatin1(name));
    }
    void select(int row) { view->setCurrentIndex(view->model()->index(row, 0)); }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        view->setFocus();
        QTest::keyClick(view, Qt::Key(key), modifiers);
    }
    /// A drag that comes in and is let go in front of @p row. @return whether it was taken.
    bool drop(QMimeData *data, int row, Qt::DropAction action = Qt::CopyAction)
    {
        const std::unique_ptr<QMimeData> owned(data);
        const QModelIndex last = view->model()->index(view->model()->rowCount() - 1, 0);
        const QRect area = view->visualRect(row <= last.row() ? view->model()->index(row, 0) : last);
        const QPoint point =
            row <= last.row() ? area.topLeft() + QPoint(30, 4) : area.bottomLeft() + QPoint(30, 4);
        QDragEnterEvent enter(point, action, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view->viewport(), &enter);
        QDragMoveEvent move(point, action, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view->viewport(), &move);
        lineShown = view->viewport()->findChild<QWidget *>("dropLine"_s)->isVisible();
        QDropEvent event(point, action, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view->viewport(), &event);
        return enter.isAccepted() && move.isAccepted() && event.isAccepted();
    }

    EditorFixture fixture;
    MultiActionWidget widget;
    QListView *view = nullptr;
    bool lineShown = false;
};

const Steps Three{step(5), step(3, "a"_s), step(100, {}, 20)};

} // namespace

class MultiActionTest : public QObject
{
    Q_OBJECT
    using DroppedTable = Table<int, int, bool>;
    using MovedTable = Table<QVector<int>, int, int, QString>;
    using LimitsTable = Table<MultiAction, QString, bool>;
    using LeavingTable = Table<int, bool, int>;

private slots:
    void initTestCase() { qRegisterMetaType<StepModel::RunState>("StepModel::RunState"); }

    void functionsAreDropped_data()
    {
        const DroppedTable row;
        row("in front of the first", 15, 0, true);
        row("between", 16, 2, true);
        row("behind the last", 100, 3, true);
        row("another list", 4, 1, false);
        row("a child page", 18, 1, false);
        row("no function", 0, 1, false);
    }

    void functionsAreDropped()
    {
        const auto [fid, row, taken] = DroppedTable::current();
        Editor editor(Three);
        QCOMPARE(editor.drop(functionData(fid), row), taken);
        QCOMPARE(editor.lineShown, taken);
        QCOMPARE(editor.steps().size(), taken ? 4 : 3);
        if (taken)
            QCOMPARE(int(editor.steps().at(row).fid), fid);
        QCOMPARE(editor.widget.isModified(), taken);
    }

    void stepsAreMoved_data()
    {
        const MovedTable row;
        const int move = Qt::MoveAction;
        row("down", QVector<int>{0}, 3, move, "1 2 0 3");
        row("up", QVector<int>{3}, 0, move, "3 0 1 2");
        row("onto itself", QVector<int>{1}, 1, move, "0 1 2 3");
        row("two that are apart", QVector<int>{0, 3}, 2, move, "1 0 3 2");
        row("copied with Ctrl", QVector<int>{0}, 4, int(Qt::CopyAction), "0 1 2 3 0");
    }

    void stepsAreMoved()
    {
        const auto [rows, before, action, order] = MovedTable::current();
        Steps steps;
        for (const char *name : {"0", "1", "2", "3"})
            steps.append(step(3, QString::fromLatin1(name)));
        Editor editor(steps);
        QModelIndexList dragged;
        for (const int row : rows)
            dragged.append(editor.view->model()->index(row, 0));
        QVERIFY(editor.drop(editor.view->model()->mimeData(dragged), before, Qt::DropAction(action)));
        QStringList names;
        for (const MultiAction &moved : editor.steps())
            names.append(moved.url);
        QCOMPARE(names.join(QLatin1Char(' ')), order);
        QCOMPARE(editor.part<QLineEdit>(0)->text(), names.first()); // the fields went along
    }

    void theKeyboardEditsTheList()
    {
        Editor editor(Three);
        editor.select(0);
        editor.press(Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(editor.steps(), Steps({Three[1], Three[0], Three[2]}));
        editor.press(Qt::Key_D, Qt::ControlModifier); // what has moved is still selected
        QCOMPARE(editor.steps(), Steps({Three[1], Three[0], Three[0], Three[2]}));
        editor.press(Qt::Key_Delete);
        editor.press(Qt::Key_A, Qt::ControlModifier);
        editor.press(Qt::Key_C, Qt::ControlModifier);
        editor.press(Qt::Key_V, Qt::ControlModifier);
        const Steps first{Three[1], Three[0], Three[2]};
        QCOMPARE(editor.steps(), first + first);
        for (int i = 0; i < 4; ++i)
            editor.press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(editor.steps(), Three);
        QVERIFY(!editor.widget.isModified());
        editor.press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(editor.steps(), first);
        QTest::mouseClick(editor.part<QToolButton>(1, "remove"), Qt::LeftButton);
        QTest::mouseClick(editor.part<QToolButton>(0, "copy"), Qt::LeftButton);
        QCOMPARE(editor.steps(), Steps({Three[1], Three[1], Three[2]}));
    }

    void doubleClickAddsBehindTheSelectedStep()
    {
        Editor editor(Three);
        QSignalSpy clicked(&editor.widget, &MultiActionWidget::actionItemClicked);
        editor.widget.addStep(15); // nothing is selected: at the end
        editor.select(0);
        editor.widget.addStep(1);
        editor.widget.addStep(18); // cannot be a step
        QCOMPARE(editor.steps(), Steps({Three[0], step(1), Three[1], Three[2], step(15)}));
        QCOMPARE(clicked.last().at(1).toInt(), 1);
        QCOMPARE(clicked.last().at(2).toInt(), 1);
    }

    void contentIsEditedInPlace()
    {
        Editor editor({step(2), step(3), step(15), step(16, "Left Ctrl#undefine#C#"_s), step(100)});
        FileDialog::setAnswer([](const QString &) { return QStringList("/tmp/a b"_s); });
        QTest::mouseClick(editor.part<QToolButton>(0, "choose"), Qt::LeftButton);
        FileDialog::setAnswer({});
        QTest::keyClicks(editor.part<QLineEdit>(0), " c"_s); // the blank comes first, at the end
        QApplication::clipboard()->setText(" http://a\n"_s);
        editor.part<QLineEdit>(1)->paste();
        auto *text = editor.part<QPlainTextEdit>(2);
        text->setFocus();
        QTest::keyClicks(text, "x"_s);
        QTest::keyClick(text, Qt::Key_Return);
        QTest::keyClicks(text, "y"_s);
        QTest::keyClick(text, Qt::Key_Return, Qt::ShiftModifier); // the same for who gets the text
        auto *keys = editor.part<QPushButton>(3);
        QCOMPARE(keys->text(), "Left Ctrl + C"_s);
        keys->click();
        auto *third = keys->findChild<QComboBox *>("key4"_s);
        QVERIFY(third->findText("#"_s) < 0 && third->findText("undefine"_s) < 0);
        third->setCurrentText("F5"_s);
        keys->findChild<QComboBox *>("key1"_s)->setCurrentIndex(0);
        QCOMPARE(editor.steps(),
                 Steps({step(2, QDir::toNativeSeparators("/tmp/a b c"_s)), step(3, "http://a"_s),
                        step(15, "x\ny\n"_s), step(16, "C#F5"_s), step(100)}));
        QTest::keyClick(text, Qt::Key_Z, Qt::ControlModifier); // the list's undo, also from within a field
        QCOMPARE(editor.steps().at(3).url, "Left Ctrl#undefine#C#"_s);
    }

    void stepsMayGoWhileAFileIsChosen()
    {
        Editor editor({step(2), step(2)});
        FileDialog::setAnswer([&](const QString &) { // the panel is read
            editor.widget.steps().load({step(5)});
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            return QStringList("/tmp/a"_s);
        });
        editor.part<QToolButton>(1, "choose")->click();
        FileDialog::setAnswer({});
        QCOMPARE(editor.steps(), Steps({step(5)}));
    }

    void delaysHaveBounds()
    {
        Editor editor({step(100, {}, 7)});
        auto *delay = editor.part<QSpinBox>(0);
        delay->setValue(65536);
        QCOMPARE(int(editor.steps().first().delay), 65535);
        delay->setValue(-1);
        QCOMPARE(int(editor.steps().first().delay), 0);
    }

    void whatThePanelCannotTakeIsRefused_data()
    {
        const LimitsTable row;
        const QString umlaut(QChar(0xFC));
        row("128 bytes", step(3, QString(128, QLatin1Char('a'))), "128/128", true);
        row("129 bytes", step(3, QString(129, QLatin1Char('a'))), "129/128", false);
        row("path, two bytes each", step(2, umlaut.repeated(65)), "130/128", false);
        row("64 characters of text", step(15, QString(64, QLatin1Char('a'))), "128/128", true);
        row("65 characters of text", step(15, QString(65, QLatin1Char('a'))), "130/128", false);
        row("unknown key", step(16, "A#Meta"_s), "!", false);
        row("five keys", step(16, "A#B#C#D#E"_s), "!", false);
        row("four keys", step(16, "A#B#C#D##"_s), {}, true);
        row("unknown function", step(-3, "kept"_s), {}, true);
    }

    void whatThePanelCannotTakeIsRefused()
    {
        const auto [action, counter, fits] = LimitsTable::current();
        Editor editor({action});
        Boxes boxes;
        const auto *label = editor.part<QLabel>(0, "counter");
        QCOMPARE(label->text(), counter);
        QCOMPARE(label->toolTip().isEmpty(), fits);
        editor.widget.addStep(5);
        QCOMPARE(editor.widget.save(), fits);
        QCOMPARE(stored(), fits ? Steps({action, step(5)}) : Steps({action}));
        QCOMPARE(boxes.texts.join(QString()).contains("\n1. "_s), !fits);
        QCOMPARE(editor.fixture.requests.size(), fits ? 1 : 0);
    }

    void aListBeyondItsLengthFieldIsRefused()
    {
        Editor editor(Steps(500, step(2))); // 500 x 131 bytes = 65500
        Boxes boxes;
        editor.widget.steps().insert(0, Steps(11, step(5))); // 3 bytes each
        QVERIFY(editor.widget.save());
        editor.widget.addStep(5);
        QVERIFY(!editor.widget.save());
        QVERIFY2(boxes.texts.value(0).contains("65536"_s), qPrintable(boxes.texts.value(0)));
        QCOMPARE(stored().size(), 511);
    }

    void savingReachesFileAndPanelAndIsUndone()
    {
        Editor editor({}, Panel::Present);
        KeyEdits &edits = editor.fixture.editor().edits;
        edits.send(Key, vorlinmodel::MULTIPLE_ACTIONS_FID, AttributeId::FunctionId);
        const auto onPanel = [&] {
            return editor.fixture.panel->state()
                .keys.value({Key.lid, Key.pageid, Key.kid})
                .actions.toHex(' ');
        };
        QTRY_VERIFY(editor.fixture.panel->state().keys.contains({Key.lid, Key.pageid, Key.kid}));
        editor.widget.steps().insert(0, {step(6), step(100, {}, 0x1234)});
        QTest::mouseClick(editor.button("save"), Qt::LeftButton);
        QTRY_COMPARE(onPanel(), QByteArray("06 00 06 00 00 64 34 12"));
        QVERIFY(!editor.widget.isModified());
        QCOMPARE(stored().size(), 2);
        edits.undo();
        QTRY_COMPARE(onPanel(), QByteArray("00 00"));
        QVERIFY(stored().isEmpty() && editor.steps().isEmpty()); // and the editor shows it
        edits.redo();
        QTRY_COMPARE(onPanel(), QByteArray("06 00 06 00 00 64 34 12"));
        QCOMPARE(editor.steps().size(), 2);
        editor.widget.addStep(7);
        edits.undo(); // what is not saved stays
        QCOMPARE(editor.steps().size(), 3);
        QCOMPARE(editor.fixture.panel->violations().join("; "_s), QString());
    }

    void leavingAsks_data()
    {
        const LeavingTable row; // answer; whether the editor closes, and how many steps the file holds then
        row("save", int(QMessageBox::Save), true, 4);
        row("discard", int(QMessageBox::Discard), true, 3);
        row("stay", int(QMessageBox::Cancel), false, 3);
    }

    void leavingAsks()
    {
        const auto [answer, leaves, inFile] = LeavingTable::current();
        Editor editor(Three);
        QSignalSpy left(&editor.widget, &MultiActionWidget::sigBtnReturnClicked);
        const Boxes boxes{QMessageBox::StandardButton(answer)};
        editor.widget.addStep(5);
        QTest::mouseClick(editor.button("return"), Qt::LeftButton);
        QCOMPARE(boxes.texts.size(), 1);
        QCOMPARE(left.count(), leaves ? 1 : 0);
        QCOMPARE(stored().size(), inFile);
        QCOMPARE(editor.widget.isModified(), !leaves);
    }

    void aDamagedFileIsKept()
    {
        Editor editor;
        const QString path = editor.fixture.path("devConfig/multiActions.json");
        QVERIFY(writeTestFile(path, "{broken"));
        {
            const Boxes boxes{QMessageBox::Cancel};
            editor.widget.open(Key, vorlinmodel::MULTIPLE_ACTIONS_FID);
            QCOMPARE(boxes.texts.size(), 1);
            editor.widget.addStep(5);
            QVERIFY(!editor.widget.save());
            QVERIFY(editor.widget.isModified() && editor.fixture.requests.isEmpty());
        }
        const Boxes boxes{QMessageBox::Yes};
        QVERIFY(editor.widget.save());
        QCOMPARE(stored(), Steps({step(5)}));
        QCOMPARE(testFileContent(path + ".damaged"_s), QByteArray("{broken"));
    }

    void aFailedWriteSendsNothing()
    {
        Editor editor;
        QDir(editor.fixture.path("devConfig")).removeRecursively(); // as a full or vanished disk
        QVERIFY(writeTestFile(editor.fixture.path("devConfig"), {}));
        const Boxes boxes;
        editor.widget.addStep(5);
        QVERIFY(!editor.widget.save());
        QCOMPARE(boxes.texts.size(), 1);
        QVERIFY(editor.widget.isModified() && editor.fixture.requests.isEmpty());
    }

    void aTestRunsWhatTheComputerCan()
    {
        Editor editor({step(3, "http://a/"_s), step(6), step(100, {}, 30), step(15, "t"_s), step(2, "/f"_s)});
        editor.fixture.store.setTextOutput(
            [&](int, const QString &text) { editor.fixture.desktop.calls.append("text "_s + text); });
        StepRunner &runner = editor.widget.runner();
        runner.setSecond(1);
        QSignalSpy countdown(&runner, &StepRunner::countdown);
        QSignalSpy finished(&runner, &StepRunner::finished);
        QElapsedTimer clock;
        clock.start();
        QTest::mouseClick(editor.button("test"), Qt::LeftButton);
        QTRY_COMPARE(finished.count(), 1);
        QVERIFY(clock.elapsed() >= 30);
        QCOMPARE(countdown.count(), 4); // 3 2 1 0
        QCOMPARE(editor.fixture.desktop.calls, texts({"url http://a/", "text t", "file /f"}));
        const auto state = [&](int row) {
            return editor.view->model()->index(row, 0).data(StepModel::RunStateRole).toInt();
        };
        QCOMPARE(state(1), int(StepModel::RunState::Skipped));
        QCOMPARE(state(4), int(StepModel::RunState::Done));
    }

    void aTestIsStopped()
    {
        Editor editor({step(100, {}, 60000), step(3, "http://a/"_s)});
        QSignalSpy state(&editor.widget.runner(), &StepRunner::stateChanged);
        QTest::mouseClick(editor.button("test"), Qt::LeftButton);
        QTRY_COMPARE(state.count(), 1);
        QTest::mouseClick(editor.button("stop"), Qt::LeftButton);
        QVERIFY(!editor.widget.runner().isRunning() && editor.button("test")->isVisible());
        QTest::mouseClick(editor.button("test"), Qt::LeftButton);
        editor.widget.addStep(5); // other rows than those that run
        QVERIFY(!editor.widget.runner().isRunning());
        QVERIFY(editor.fixture.desktop.calls.isEmpty());
    }

    void aKeyThatLosesItsFunctionClosesTheEditor()
    {
        Editor editor(Three);
        QSignalSpy left(&editor.widget, &MultiActionWidget::sigBtnReturnClicked);
        KeyEdits &edits = editor.fixture.editor().edits;
        const auto clear = [&] {
            edits.change(QString(), {Key}, [&] { edits.store().deleteKeyAttribute(Key); });
        };
        clear();
        QCOMPARE(left.count(), 1);
        edits.undo();
        editor.widget.addStep(5);
        clear();
        QCOMPARE(left.count(), 1); // the unsaved steps stay in sight
        Boxes boxes;
        QVERIFY(!editor.widget.save());
        QCOMPARE(boxes.texts.size(), 1);
    }

    void manyStepsHaveFieldsOnlyInView()
    {
        Editor editor(Steps(200, step(2, "/a"_s)));
        const auto fields = [&] {
            return editor.view->viewport()->findChildren<QLineEdit *>().size();
        };
        QVERIFY2(fields() > 4 && fields() < 25, qPrintable(QString::number(fields())));
        editor.view->scrollToBottom();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY2(fields() > 4 && fields() < 25, qPrintable(QString::number(fields())));
        QTest::keyClicks(editor.part<QLineEdit>(199), "b"_s);
        QCOMPARE(editor.steps().last().url, "/ab"_s);
    }
};

QTEST_MAIN(MultiActionTest)
#include "tst_ui_editor_multiaction.moc"
