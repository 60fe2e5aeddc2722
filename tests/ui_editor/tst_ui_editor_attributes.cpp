// What is set on a key: from the fields into store, requests and history, and back.
#include "editorfixture.h"
#include "model/functionids.h"
#include "support/table.h"
#include "ui_common/filedialog.h"
#include "ui_editor/attributeeditor.h"
#include "ui_editor/functionlist.h"
#include "ui_editor/keycapture.h"
#include "ui_editor/textlimit.h"
#include "ui_editor/vorlinmimedata.h"

using vorlinmodel::key_atttribute_t;
using vorlinmodel::key_id_t;

namespace {

const key_id_t Key{1, 1, 3};
const key_id_t Other{1, 1, 4};

QString sent(int fid, int attribute)
{
    return "1: 1 1 3, fid %1, id %2"_s.arg(fid).arg(attribute);
}

QString emoji()
{
    return QString::fromUtf8("\xF0\x9F\x98\x80");
}

/// The editor in a window, showing Key with a function.
struct Window
{
    explicit Window(int fid = 5, EditorFixture::Panel panel = EditorFixture::Panel::None)
        : fixture(panel)
        , attributes(fixture.editor(), &window)
    {
        fixture.store.createKeyAttribute(Key, fid);
        fixture.store.createKeyAttribute(Other, 15);
        attributes.setup();
        attributes.resize(610, 230);
        window.resize(610, 230);
        attributes.showKey(Key);
        window.show();
        QApplication::setActiveWindow(&window);
    }
    ~Window() { FileDialog::setAnswer({}); }

    template <typename T = QWidget>
    T *find(const char *name) const
    {
        return attributes.findChild<T *>(QString::fromLatin1(name));
    }
    void click(const char *name) const { QTest::mouseClick(find(name), Qt::LeftButton); }
    /// Behind what stands in the field.
    void paste(const char *field, const QString &text) const
    {
        QApplication::clipboard()->setText(text);
        find(field)->setFocus();
        QTest::keyClick(find(field), Qt::Key_V, Qt::ControlModifier);
    }
    key_atttribute_t record(const key_id_t &key = Key) const { return *fixture.store.getKeyAttribute(key); }
    KeyEdits &edits() { return fixture.editor().edits; }
    /// Clicks a button that opens a file dialog, which gives @p file.
    void choose(const char *button, const QString &file) const
    {
        FileDialog::setAnswer([&file](const QString &) { return QStringList(file); });
        click(button);
    }
    QString problem(const char *field) const
    {
        return find<QLabel>((QByteArray(field) + "Problem").constData())->text();
    }

    EditorFixture fixture;
    QWidget window;
    AttributeEditor attributes;
};

/// @return what the drag is told to do with its origin.
Qt::DropAction drop(QWidget *target, const QMimeData &mime, Qt::DropAction proposed = Qt::CopyAction)
{
    const Qt::DropActions possible = Qt::CopyAction | proposed;
    QDragEnterEvent enter(target->rect().center(), possible, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    if (!enter.isAccepted())
        return Qt::IgnoreAction;
    QDropEvent event(target->rect().center(), possible, &mime, Qt::LeftButton, Qt::NoModifier);
    event.setDropAction(proposed);
    QApplication::sendEvent(target, &event);
    return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
}

} // namespace

class AttributesTest : public QObject
{
    Q_OBJECT
    using PicksTable = Table<QString, int, int>;
    using LimitsTable = Table<int, QString, QString, QString, QString>;
    using PastedTable = Table<int, QString, QString, QString>;
    using NamesTable = Table<int, quint32, quint32, QString>;
    using ChosenTable = Table<bool, QStringList>;

private slots:
    void typingIsSentOnceItRests()
    {
        Window window;
        window.attributes.focusTitle();
        QTest::keyClicks(window.find("title"), "Hi"_s);
        QCOMPARE(window.record().strTitle, "Hi"_s); // the cell shows it at once
        QCOMPARE(window.fixture.requests, QStringList());
        QTRY_COMPARE(window.fixture.requests, QStringList({sent(5, 6)}));
        QCOMPARE(window.edits().history().count(), 1);
        window.edits().undo();
        QCOMPARE(window.find<QPlainTextEdit>("title")->toPlainText(), QString());
        QCOMPARE(window.fixture.requests, QStringList({sent(5, 6), sent(5, 6)}));
        QCOMPARE(window.edits().history().count(), 1); // showing it made no edit
    }

    void slidingIsSentOnceItRests()
    {
        Window window;
        auto *slider = window.find<QSlider>("titleSizeSlider");
        slider->setFocus();
        QTest::keyClick(slider, Qt::Key_Right);
        QTest::keyClick(slider, Qt::Key_Right);
        QCOMPARE(window.find<QSpinBox>("titleSize")->value(), 18);
        QTRY_COMPARE(window.fixture.requests, QStringList({sent(5, 7)}));
        QCOMPARE(window.record().titleFontSize, 18);
        QCOMPARE(window.edits().history().count(), 1);
        window.edits().undo();
        QCOMPARE(slider->value(), 16);
    }

    void picksAreSentAtOnce_data()
    {
        const PicksTable row; // combo box or button, how often the cursor key goes down, attribute id
        row("effect", "imageEffect", 3, 1);
        row("display mode", "displayMode", 1, 2);
        row("alignment", "alignment2", 0, 3);
    }

    void picksAreSentAtOnce()
    {
        const auto [field, downs, attribute] = PicksTable::current();
        Window window;
        const QByteArray name = field.toLatin1();
        const key_atttribute_t before = window.record();
        if (downs == 0)
            window.click(name.constData());
        for (int i = 0; i < downs; ++i)
            QTest::keyClick(window.find(name.constData()), Qt::Key_Down);
        QCOMPARE(window.fixture.takeRequests().last(), sent(5, attribute));
        const key_atttribute_t after = window.record();
        QCOMPARE(after.imageEffects + after.nDisplaymode + after.titleAlignment,
                 attribute == 3 ? 2 : qMax(downs, 1));
        while (window.edits().history().canUndo())
            window.edits().undo();
        QVERIFY(window.record() == before);
        QVERIFY(window.find<QAbstractButton>("alignment0")->isChecked());
        QCOMPARE(window.find<QComboBox>("imageEffect")->currentIndex(), 0);
        QCOMPARE(window.find<QComboBox>("displayMode")->currentIndex(), 0);
    }

    void colourComesFromPaletteOrDialog()
    {
        Window window;
        window.click("titleColour");
        QTRY_VERIFY(window.find("colourPalette")->isVisible());
        window.click("colour0");
        QCOMPARE(window.fixture.takeRequests(), QStringList({sent(5, 12)}));
        QCOMPARE(window.record().titleColour.rgb(), qRgb(255, 255, 255));
        QVERIFY(!window.find("colourPalette")->isVisible());
        window.click("titleColour");
        window.click("moreColours");
        auto *dialog = window.attributes.findChild<QColorDialog *>();
        QVERIFY(dialog);
        dialog->setCurrentColor(QColor(1, 2, 3));
        dialog->accept();
        QCOMPARE(window.record().titleColour.rgb(), qRgb(1, 2, 3));
        QCOMPARE(window.fixture.takeRequests(), QStringList({sent(5, 12)}));
    }

    void whatThePanelCannotCarryIsMarkedAndKept_data()
    {
        // named: in the mark; empty: the text is sent
        const LimitsTable row;
        const QString x("x"_s);
        const QString you(QChar(0x4F60));
        row("title of 128 bytes", 5, "title", x.repeated(128), "128/128", {});
        row("title of 129 bytes", 5, "title", x.repeated(129), "129/128", "129 of 128 bytes");
        row("64 Chinese characters", 5, "title", you.repeated(64), "128/128", {});
        row("65 Chinese characters", 5, "title", you.repeated(65), "130/128", "130 of 128 bytes");
        row("emoji in a title", 5, "title", "a"_s + emoji(), "2/128", emoji());
        row("several lines", 5, "title", "a\nb", "3/128", {});
        row("path of 129 bytes", 2, "path", x.repeated(129), "129/128", "129 of 128 bytes");
        row("emoji in an address", 3, "webAddress", emoji(), "1/128", emoji());
        row("text output of 64 units", 15, "outputText", x.repeated(64), "128/128", {});
        row("text output of 65 units", 15, "outputText", x.repeated(65), "130/128", "130 of 128 bytes");
        row("no-break space in text output", 15, "outputText", QString(QChar(QChar::Nbsp)) + x, "4/128", {});
        row("emoji in text output", 15, "outputText", emoji(), "4/128", {});
    }

    void whatThePanelCannotCarryIsMarkedAndKept()
    {
        const auto [fid, field, text, counter, named] = LimitsTable::current();
        Window window(fid);
        const QByteArray name = field.toLatin1();
        window.paste(name.constData(), text);
        window.edits().flush();
        const key_atttribute_t record = window.record();
        const bool fits = named.isEmpty();
        QCOMPARE(record.strTitle + record.strAppOrUrl, fits ? text : QString());
        QCOMPARE(window.fixture.takeRequests().size(), fits ? 1 : 0);
        QCOMPARE(window.find<QLabel>((name + "Counter").constData())->text(), counter);
        QVERIFY2(window.problem(name.constData()).contains(named),
                 qPrintable(window.problem(name.constData())));
        QCOMPARE(window.problem(name.constData()).isEmpty(), fits);
        QCOMPARE(window.find(name.constData())->styleSheet().isEmpty(), fits); // the red border
        window.attributes.showKey(Other);
        QCOMPARE(window.find<QLabel>("attributeNotice")->text().isEmpty(), fits);
        window.attributes.showKey(Key);
        QCOMPARE(window.record(), record);
    }

    void pastedLinesLoseWhatCannotBeSeen_data()
    {
        const PastedTable row;
        row("line end behind an address", 3, "webAddress", "https://a.test/x\r\n", "https://a.test/x");
        row("blank before an address", 3, "webAddress", " https://a.test/x", "https://a.test/x");
        row("address over two lines", 3, "webAddress", "https://a.test/\nx y", "https://a.test/x y");
        row("path", 2, "path", "\tC:\\Program Files\\a.exe \n", "C:\\Program Files\\a.exe");
        row("text output stays as it is", 15, "outputText", " a\n", " a\n");
    }

    void pastedLinesLoseWhatCannotBeSeen()
    {
        const auto [fid, field, text, stored] = PastedTable::current();
        Window window(fid);
        window.paste(field.toLatin1().constData(), text);
        QCOMPARE(window.record().strAppOrUrl, stored);
    }

    /// The blank at the end of what is typed so far may stand between two words soon.
    void typedBlanksWaitForTheNextWord()
    {
        Window window(2);
        auto *field = window.find<QLineEdit>("path");
        field->setFocus();
        QTest::keyClicks(field, "/a b "_s);
        QCOMPARE(window.record().strAppOrUrl, "/a b"_s);
        QTest::keyClicks(field, "c"_s);
        QCOMPARE(window.record().strAppOrUrl, "/a b c"_s);
    }

    void charactersWithoutShapeAreNamedByNumber()
    {
        QCOMPARE(TextLimit::nameCharacters(emoji() + QChar(0x200D) + QChar(0xFE0F)),
                 emoji() + " U+200D U+FE0F"_s);
    }

    void undoKeyIsForTheFieldWhileItHasTyping()
    {
        Window window;
        int passedOn = 0;
        QShortcut undo(QKeySequence::Undo, &window.window);
        connect(&undo, &QShortcut::activated, this, [&passedOn] { ++passedOn; });
        auto *field = window.find<QPlainTextEdit>("title");
        window.attributes.focusTitle();
        QTest::keyClicks(field, "ab"_s);
        QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(field->toPlainText(), QString());
        QCOMPARE(passedOn, 0);
        QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(passedOn, 1);
    }

    void theLastGoodTitleStaysBelowAMark()
    {
        Window window;
        auto *field = window.find<QPlainTextEdit>("title");
        QTest::keyClicks(field, "ab"_s);
        window.paste("title", emoji());
        QTRY_COMPARE(window.fixture.requests, QStringList({sent(5, 6)}));
        QCOMPARE(window.record().strTitle, "ab"_s);
        window.click("alignment1"); // refreshes the fields
        QCOMPARE(field->toPlainText(), "ab"_s + emoji());
        QTest::keyClick(field, Qt::Key_Backspace);
        QVERIFY(window.problem("title").isEmpty());
    }

    void lookingAtForeignValuesChangesNothing()
    {
        Window window;
        key_atttribute_t foreign = window.record();
        foreign.imageEffects = 9;
        foreign.titleAlignment = 7;
        foreign.nDisplaymode = -1;
        foreign.titleColour = QColor();
        foreign.strTitle = "a\r\n"_s + QString(200, QLatin1Char('x'));
        for (const int size : {0, 255, -4, 5}) {
            foreign.titleFontSize = size;
            window.fixture.store.setKeyAttribute(Other, foreign);
            window.attributes.showKey(Other);
            QCOMPARE(window.find<QSpinBox>("titleSize")->value(), size > 0 ? size : 16);
            QVERIFY(window.find<QAbstractButton>("alignment0")->isChecked());
            QCOMPARE(window.find<QComboBox>("imageEffect")->currentIndex(), 0);
            QVERIFY(!window.problem("title").isEmpty());
            window.attributes.retranslate();
            window.attributes.showKey(Key);
            QVERIFY(window.find<QLabel>("attributeNotice")->text().isEmpty());
            window.edits().flush();
            QCOMPARE(window.record(Other), foreign);
        }
        QCOMPARE(window.fixture.requests, QStringList());
        QCOMPARE(window.edits().history().count(), 0);
    }

    void combinationIsPickedByName()
    {
        Window window(16);
        window.fixture.store.setUrlOrPath(Key, "Left Ctrl#undefine#C#undefine"_s);
        window.attributes.refresh();
        auto *second = window.find<QComboBox>("keyName2");
        QCOMPARE(second->currentText(), QString());
        QCOMPARE(window.find<QComboBox>("keyName3")->currentText(), "C"_s);
        QCOMPARE(second->findText("#"_s, Qt::MatchExactly), -1); // parts the names
        second->setFocus();
        QTest::keyClicks(second, "right shift"_s);
        QTest::keyClick(second, Qt::Key_Return);
        QCOMPARE(window.record().strAppOrUrl, "Left Ctrl#Right Shift#C"_s);
        QTest::keyClicks(second, "nonsense"_s);
        window.find("title")->setFocus();
        QCOMPARE(second->currentText(), "Right Shift"_s);
        QCOMPARE(window.fixture.takeRequests(), QStringList({sent(16, 14)}));
        window.edits().undo();
        QCOMPARE(second->currentText(), QString());
        QTest::keyClicks(second, "F5"_s); // not confirmed when what comes next begins
        window.edits().undo();
        QCOMPARE(window.edits().history().redoText(), "Key combination"_s);
        QTest::keyClicks(second, "F5"_s);
        window.edits().beginReplace();
        QCOMPARE(window.record().strAppOrUrl, "Left Ctrl#F5#C"_s);
        window.find("title")->setFocus();
        QSignalSpy problems(&window.edits(), &KeyEdits::sigProblem);
        window.edits().undo();
        QTest::keyClicks(window.find("title"), "x"_s);
        QCOMPARE(window.record().strTitle, QString());
        QCOMPARE(window.record().strAppOrUrl, "Left Ctrl#F5#C"_s);
        QCOMPARE(problems.size(), 2); // both are refused
        window.edits().endReplace({}, false);
    }

    void combinationIsCaptured()
    {
        Window window(16);
        auto *capture = window.find<QAbstractButton>("pressKeys");
        capture->setFocus();
        window.click("pressKeys");
        for (const Qt::Key key :
             {Qt::Key_Control, Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Control, Qt::Key_F5, Qt::Key_A})
            QTest::keyPress(capture, key);
        QVERIFY(capture->isChecked());
        QCOMPARE(window.fixture.requests, QStringList());
        for (const Qt::Key key : {Qt::Key_A, Qt::Key_Control, Qt::Key_Escape, Qt::Key_F5, Qt::Key_Tab})
            QTest::keyRelease(capture, key);
        QVERIFY(!capture->isChecked());
        QCOMPARE(window.record().strAppOrUrl, "Left Ctrl#ESC#Tab#F5"_s);
        QCOMPARE(window.find<QComboBox>("keyName4")->currentText(), "F5"_s);
        QCOMPARE(window.fixture.takeRequests(), QStringList({sent(16, 14)}));
        window.click("pressKeys");
        window.click("pressKeys"); // thought better of it
        QCOMPARE(window.record().strAppOrUrl, "Left Ctrl#ESC#Tab#F5"_s);
        QCOMPARE(window.fixture.requests, QStringList());
    }

    void pressedKeysHaveTheNamesOfTheTable_data()
    {
        const NamesTable row;
        row("letter", Qt::Key_Q, 0, 0, "Q");
        row("letter of a French keyboard", Qt::Key_A, 16, 0x61, "Q");
        row("Cyrillic letter", 0x0424, 30, 0x6c6, "A");
        row("digit under Shift", Qt::Key_Exclam, 2, 0x21, "1");
        row("digit under Shift, position unknown", Qt::Key_NumberSign, 0, 0, "3");
        row("equals", Qt::Key_Equal, 13, 0x3d, "+");
        row("grave", Qt::Key_QuoteLeft, 0, 0, "~");
        row("left Shift of X", Qt::Key_Shift, 42, 0xffe1, "Left Shift");
        row("right Shift of X", Qt::Key_Shift, 54, 0xffe2, "Right Shift");
        row("right Shift of Windows", Qt::Key_Shift, 0x36, 0x10, "Right Shift");
        row("right Ctrl of X", Qt::Key_Control, 97, 0xffe4, "Right Ctrl");
        row("right Ctrl of Windows", Qt::Key_Control, 0x11d, 0x11, "Right Ctrl");
        row("left Alt under Shift of X", Qt::Key_Meta, 56, 0xffe7, "Alt");
        row("right Alt of Windows", Qt::Key_Alt, 0x138, 0x12, "Alt gr");
        row("AltGr", Qt::Key_AltGr, 100, 0xfe03, "Alt gr");
        row("Super", Qt::Key_Super_L, 125, 0xffeb, "Windows");
        row("backspace", Qt::Key_Backspace, 14, 0xff08, "Delete");
        row("delete", Qt::Key_Delete, 111, 0xffff, "Delete Forward");
        row("Tab under Shift", Qt::Key_Backtab, 15, 0xfe20, "Tab");
        row("right arrow", Qt::Key_Right, 106, 0xff53, "RightArrow");
        row("End", Qt::Key_End, 107, 0xff57, "END");
        row("F12", Qt::Key_F12, 88, 0xffc9, "F12");
        row("F13 is not in the table", Qt::Key_F13, 183, 0xffca, "");
        row("additional key of European keyboards", Qt::Key_Less, 86, 0x3c, "");
        row("volume key", Qt::Key_VolumeUp, 0, 0, "");
    }

    void pressedKeysHaveTheNamesOfTheTable()
    {
        const auto [key, position, virtualKey, name] = NamesTable::current();
        QCOMPARE(KeyCapture::nameOf({key, position, virtualKey}), name);
    }

    void chosenFileBecomesThePath()
    {
        Window window(2);
        window.choose("choosePath", "/usr/bin/tool"_s);
        QCOMPARE(window.record().strAppOrUrl, QDir::toNativeSeparators("/usr/bin/tool"_s));
        QCOMPARE(window.fixture.takeRequests(), QStringList({sent(2, 11)}));
        window.choose("choosePath", "/"_s + emoji());
        QVERIFY(window.problem("path").contains(emoji()));
        QCOMPARE(window.fixture.requests, QStringList());
    }

    void whatIsChosenGoesToTheKeyItWasChosenFor_data()
    {
        const ChosenTable row;
        row("another key is in view", false, QStringList({sent(2, 11)}));
        row("the key was cleared", true, {});
    }

    void whatIsChosenGoesToTheKeyItWasChosenFor()
    {
        const auto [cleared, requests] = ChosenTable::current();
        Window window(2);
        FileDialog::setAnswer([&](const QString &) { // while it is open the panel is read
            if (cleared)
                window.fixture.store.deleteKeyAttribute(Key);
            window.attributes.showKey(Other);
            return QStringList{"/tool"_s};
        });
        window.click("choosePath");
        QCOMPARE(window.fixture.takeRequests(), requests);
        QCOMPARE(window.record(Other).strAppOrUrl, QString());
        window.click("titleColour");
        QTRY_VERIFY(window.find("colourPalette")->isVisible());
        window.attributes.showKey({1, 1, 5}); // without function
        window.fixture.store.createKeyAttribute(Key, 5);
        window.attributes.showKey(Key);
        QVERIFY(!window.find("colourPalette")->isVisible());
    }

    void pictureIsChosenDroppedAndReset()
    {
        Window window(2);
        const QString icon = functionIcon(2);
        const QString red = pictureFile(window.fixture.path("red.png"), Qt::red);
        QSignalSpy problems(&window.edits(), &KeyEdits::sigProblem);
        window.choose("choosePicture", window.fixture.path("missing.png"));
        QVERIFY(window.fixture.picturesArePlaced());
        QCOMPARE(problems.value(0).value(0).toString(), "\"missing.png\" cannot be opened."_s);
        QCOMPARE(window.fixture.requests, QStringList());
        vorlindesk::VorlinMimeData entry;
        entry.strData1 = red;
        entry.strData2 = window.fixture.path("film.mp4"); // not for a key that plays none
        entry.store(QString::fromLatin1(DragFormat::FunctionIcon));
        drop(window.find("keyPreview"), entry);
        QTRY_COMPARE(window.record().customImage, red);
        QCOMPARE(window.fixture.takeRequests(), QStringList({sent(2, 5)}));
        window.click("resetPicture");
        QCOMPARE(window.record().customImage, icon);
        QCOMPARE(window.fixture.takeRequests(), QStringList({sent(2, 5)}));
        QVERIFY(!window.find("resetPicture")->isEnabled());
        window.edits().undo();
        QCOMPARE(QImage(window.record().customImage).pixelColor(0, 0), QColor(Qt::red));
        QMimeData file;
        file.setUrls({QUrl::fromLocalFile(pictureFile(window.fixture.path("blue.png"), Qt::blue))});
        QCOMPARE(drop(window.find("keyPreview"), file, Qt::MoveAction), Qt::CopyAction);
        QTRY_COMPARE(window.record().customImage, window.fixture.path("blue.png"));
        drop(window.find("keyPreview"), entry);
        window.click("resetPicture"); // before the picture has been read
        QVERIFY(window.fixture.picturesArePlaced());
        QCOMPARE(window.record().customImage, icon);
    }

    void chosenVideoIsForTheKeyInView()
    {
        Window window(17);
        QSignalSpy finished(&window.fixture.editor().videos, &VideoPlacement::sigFinished);
        const Boxes boxes;
        window.choose("chooseVideo", window.fixture.path("gone.mp4"));
        QTRY_COMPARE(finished.count(), 1);
        QVERIFY(finished.first().at(0).value<key_id_t>() == Key);
        QVERIFY(!finished.first().at(1).toString().isEmpty());
        QCOMPARE(window.fixture.requests, QStringList());
    }

    void headerAndHintFollowTheKey()
    {
        Window window(2);
        window.attributes.onMultiActionItemClicked(Key, 15, 1);
        QCOMPARE(window.find<QLabel>("attributeHeader")->text(), "Step 2: Text Output"_s);
        window.fixture.store.deleteKeyAttribute(Key);
        window.attributes.onDataChangeHandler(Key, 0, false);
        QVERIFY(window.find("attributeHint")->isVisible());
    }
};

QTEST_MAIN(AttributesTest)
#include "tst_ui_editor_attributes.moc"
