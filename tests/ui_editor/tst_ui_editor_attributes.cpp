// What is set on a key: from the fields into store, requests and history, and back.
#include "editorfixture.h"
#include "model/functionids.h"
#include "ui_common/filedialog.h"
#include "ui_common/messagebox.h"
#include "ui_editor/attributeeditor.h"
#include "ui_editor/functionlist.h"
#include "ui_editor/keycapture.h"
#include "ui_editor/textlimit.h"
#include "ui_editor/vorlinmimedata.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QColorDialog>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QShortcut>
#include <QSlider>
#include <QSpinBox>

using vorlinmodel::key_atttribute_t;
using vorlinmodel::key_id_t;

namespace {

const key_id_t Key{1, 1, 3};
const key_id_t Other{1, 1, 4};

QString sent(int fid, int attribute)
{
    return QStringLiteral("1: 1 1 3, fid %1, id %2").arg(fid).arg(attribute);
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
    ~Window()
    {
        FileDialog::setAnswer({});
        MessageBox::setAnswer({});
    }

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
private slots:
    void typingIsSentOnceItRests()
    {
        Window window;
        window.attributes.focusTitle();
        QTest::keyClicks(window.find("title"), QStringLiteral("Hi"));
        QCOMPARE(window.record().strTitle, QStringLiteral("Hi")); // the cell shows it at once
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
        QTest::addColumn<int>("fid");
        QTest::addColumn<QString>("field"); // combo box or button
        QTest::addColumn<int>("downs");     // of the cursor key, in a combo box
        QTest::addColumn<int>("attribute");
        QTest::newRow("effect") << 5 << QStringLiteral("imageEffect") << 3 << 1;
        QTest::newRow("display mode") << 5 << QStringLiteral("displayMode") << 1 << 2;
        QTest::newRow("alignment") << 5 << QStringLiteral("alignment2") << 0 << 3;
    }

    void picksAreSentAtOnce()
    {
        QFETCH(int, fid);
        QFETCH(QString, field);
        QFETCH(int, downs);
        QFETCH(int, attribute);
        Window window(fid);
        const QByteArray name = field.toLatin1();
        const key_atttribute_t before = window.record();
        if (downs == 0)
            window.click(name.constData());
        for (int i = 0; i < downs; ++i)
            QTest::keyClick(window.find(name.constData()), Qt::Key_Down);
        QCOMPARE(window.fixture.takeRequests().last(), sent(fid, attribute));
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
        QTest::addColumn<int>("fid");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("counter");
        QTest::addColumn<QString>("named"); // in the mark; empty: the text is sent
        const QString x(QStringLiteral("x"));
        const QString you(QChar(0x4F60));
        QTest::newRow("title of 128 bytes")
            << 5 << QStringLiteral("title") << x.repeated(128) << QStringLiteral("128/128") << QString();
        QTest::newRow("title of 129 bytes")
            << 5 << QStringLiteral("title") << x.repeated(129) << QStringLiteral("129/128")
            << QStringLiteral("129 of 128 bytes");
        QTest::newRow("64 Chinese characters")
            << 5 << QStringLiteral("title") << you.repeated(64) << QStringLiteral("128/128") << QString();
        QTest::newRow("65 Chinese characters")
            << 5 << QStringLiteral("title") << you.repeated(65) << QStringLiteral("130/128")
            << QStringLiteral("130 of 128 bytes");
        QTest::newRow("emoji in a title") << 5 << QStringLiteral("title") << QStringLiteral("a") + emoji()
                                          << QStringLiteral("2/128") << emoji();
        QTest::newRow("several lines")
            << 5 << QStringLiteral("title") << QStringLiteral("a\nb") << QStringLiteral("3/128") << QString();
        QTest::newRow("path of 129 bytes") << 2 << QStringLiteral("path") << x.repeated(129)
                                           << QStringLiteral("129/128") << QStringLiteral("129 of 128 bytes");
        QTest::newRow("emoji in an address")
            << 3 << QStringLiteral("webAddress") << emoji() << QStringLiteral("1/128") << emoji();
        QTest::newRow("text output of 64 units")
            << 15 << QStringLiteral("outputText") << x.repeated(64) << QStringLiteral("128/128") << QString();
        QTest::newRow("text output of 65 units")
            << 15 << QStringLiteral("outputText") << x.repeated(65) << QStringLiteral("130/128")
            << QStringLiteral("130 of 128 bytes");
        QTest::newRow("no-break space in text output")
            << 15 << QStringLiteral("outputText") << QString(QChar(QChar::Nbsp)) + x
            << QStringLiteral("4/128") << QString();
        QTest::newRow("emoji in text output")
            << 15 << QStringLiteral("outputText") << emoji() << QStringLiteral("4/128") << QString();
    }

    void whatThePanelCannotCarryIsMarkedAndKept()
    {
        QFETCH(int, fid);
        QFETCH(QString, field);
        QFETCH(QString, text);
        QFETCH(QString, counter);
        QFETCH(QString, named);
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

    void charactersWithoutShapeAreNamedByNumber()
    {
        QCOMPARE(TextLimit::nameCharacters(emoji() + QChar(0x200D) + QChar(0xFE0F)),
                 emoji() + QStringLiteral(" U+200D U+FE0F"));
    }

    void undoKeyIsForTheFieldWhileItHasTyping()
    {
        Window window;
        int passedOn = 0;
        QShortcut undo(QKeySequence::Undo, &window.window);
        connect(&undo, &QShortcut::activated, this, [&passedOn] { ++passedOn; });
        auto *field = window.find<QPlainTextEdit>("title");
        window.attributes.focusTitle();
        QTest::keyClicks(field, QStringLiteral("ab"));
        QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(field->toPlainText(), QString());
        QCOMPARE(passedOn, 0);
        QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(passedOn, 1);
    }

    void editsReachThePanel()
    {
        Window window(16, EditorFixture::Panel::Present);
        window.edits().send(Key, 16, vorlinmodel::AttributeId::FunctionId);
        QTest::keyClicks(window.find("title"), QStringLiteral("C"));
        window.paste("title", QString(QChar(0x4F60)));
        auto *capture = window.find<QAbstractButton>("pressKeys");
        window.click("pressKeys");
        for (const Qt::Key key : {Qt::Key_Control, Qt::Key_C})
            QTest::keyPress(capture, key);
        for (const Qt::Key key : {Qt::Key_C, Qt::Key_Control})
            QTest::keyRelease(capture, key);
        const auto onPanel = [&window] {
            return window.fixture.panel->state().keys.value({1, 1, 3}).record;
        };
        QTRY_COMPARE(onPanel().content.left(4), QByteArray("\xE0\x06\x00\x00", 4));
        QTRY_COMPARE(onPanel().title, QByteArray("C\xC4\xE3"));
        window.edits().undo();
        window.edits().undo();
        QTRY_COMPARE(onPanel().title, QByteArray());
        QTRY_COMPARE(onPanel().content.left(4), QByteArray(4, '\0'));
        QCOMPARE(window.fixture.panel->violations(), QStringList());
    }

    void theLastGoodTitleStaysBelowAMark()
    {
        Window window;
        auto *field = window.find<QPlainTextEdit>("title");
        QTest::keyClicks(field, QStringLiteral("ab"));
        window.paste("title", emoji());
        QTRY_COMPARE(window.fixture.requests, QStringList({sent(5, 6)}));
        QCOMPARE(window.record().strTitle, QStringLiteral("ab"));
        window.click("alignment1"); // refreshes the fields
        QCOMPARE(field->toPlainText(), QStringLiteral("ab") + emoji());
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
        foreign.strTitle = QStringLiteral("a\r\n") + QString(200, QLatin1Char('x'));
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
        window.fixture.store.setUrlOrPath(Key, QStringLiteral("Left Ctrl#undefine#C#undefine"));
        window.attributes.refresh();
        auto *second = window.find<QComboBox>("keyName2");
        QCOMPARE(second->currentText(), QString());
        QCOMPARE(window.find<QComboBox>("keyName3")->currentText(), QStringLiteral("C"));
        QCOMPARE(second->findText(QStringLiteral("#"), Qt::MatchExactly), -1); // parts the names
        second->setFocus();
        QTest::keyClicks(second, QStringLiteral("right shift"));
        QTest::keyClick(second, Qt::Key_Return);
        QCOMPARE(window.record().strAppOrUrl, QStringLiteral("Left Ctrl#Right Shift#C"));
        QTest::keyClicks(second, QStringLiteral("nonsense"));
        window.find("title")->setFocus();
        QCOMPARE(second->currentText(), QStringLiteral("Right Shift"));
        QCOMPARE(window.fixture.takeRequests(), QStringList({sent(16, 14)}));
        window.edits().undo();
        QCOMPARE(second->currentText(), QString());
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
        QCOMPARE(window.record().strAppOrUrl, QStringLiteral("Left Ctrl#ESC#Tab#F5"));
        QCOMPARE(window.find<QComboBox>("keyName4")->currentText(), QStringLiteral("F5"));
        QCOMPARE(window.fixture.takeRequests(), QStringList({sent(16, 14)}));
        window.click("pressKeys");
        window.click("pressKeys"); // thought better of it
        QCOMPARE(window.record().strAppOrUrl, QStringLiteral("Left Ctrl#ESC#Tab#F5"));
        QCOMPARE(window.fixture.requests, QStringList());
    }

    void pressedKeysHaveTheNamesOfTheTable_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<quint32>("position");
        QTest::addColumn<quint32>("virtualKey");
        QTest::addColumn<QString>("name");
        const auto row = [](const char *tag, int key, quint32 position, quint32 virtualKey,
                            const char *name) {
            QTest::newRow(tag) << key << position << virtualKey << QString::fromLatin1(name);
        };
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
        QFETCH(int, key);
        QFETCH(quint32, position);
        QFETCH(quint32, virtualKey);
        QTEST(KeyCapture::nameOf({key, position, virtualKey}), "name");
    }

    void chosenFileBecomesThePath()
    {
        Window window(2);
        FileDialog::setAnswer([](const QString &caption) {
            return caption == QLatin1String("Open") ? QStringList{QStringLiteral("/usr/bin/tool")}
                                                    : QStringList();
        });
        window.click("choosePath");
        QCOMPARE(window.record().strAppOrUrl, QDir::toNativeSeparators(QStringLiteral("/usr/bin/tool")));
        QCOMPARE(window.fixture.takeRequests(), QStringList({sent(2, 11)}));
        FileDialog::setAnswer([](const QString &) { return QStringList{QStringLiteral("/") + emoji()}; });
        window.click("choosePath");
        QVERIFY(window.problem("path").contains(emoji()));
        QCOMPARE(window.fixture.requests, QStringList());
    }

    void whatIsChosenGoesToTheKeyItWasChosenFor_data()
    {
        QTest::addColumn<bool>("cleared");
        QTest::addColumn<QStringList>("requests");
        QTest::newRow("another key is in view") << false << QStringList({sent(2, 11)});
        QTest::newRow("the key was cleared") << true << QStringList();
    }

    void whatIsChosenGoesToTheKeyItWasChosenFor()
    {
        QFETCH(bool, cleared);
        Window window(2);
        FileDialog::setAnswer([&](const QString &) { // while it is open the panel is read
            if (cleared)
                window.fixture.store.deleteKeyAttribute(Key);
            window.attributes.showKey(Other);
            return QStringList{QStringLiteral("/tool")};
        });
        window.click("choosePath");
        QTEST(window.fixture.takeRequests(), "requests");
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
        QString warning;
        MessageBox::setAnswer([&](const QMessageBox &box) {
            warning = box.text();
            return QMessageBox::Ok;
        });
        FileDialog::setAnswer(
            [&](const QString &) { return QStringList{window.fixture.path("missing.png")}; });
        window.click("choosePicture");
        QVERIFY(warning.contains(QLatin1String("missing.png")));
        QCOMPARE(window.fixture.requests, QStringList());
        vorlindesk::VorlinMimeData entry;
        entry.strData1 = red;
        entry.strData2 = window.fixture.path("film.mp4"); // not for a key that plays none
        entry.store(QString::fromLatin1(DragFormat::FunctionIcon));
        drop(window.find("keyPreview"), entry);
        QCOMPARE(window.record().customImage, red);
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
        QCOMPARE(window.record().customImage, window.fixture.path("blue.png"));
    }

    void videoIsSentWithItsWaitingTime()
    {
        Window window(17);
        QFile film(window.fixture.path("film.mp4"));
        QVERIFY(film.open(QIODevice::WriteOnly) && film.resize(1024000));
        FileDialog::setAnswer([&](const QString &) { return QStringList{film.fileName()}; });
        window.click("chooseVideo");
        QCOMPARE(window.record().defaultImage, film.fileName());
        QCOMPARE(window.fixture.takeRequests(),
                 QStringList({QStringLiteral("dialog 1: 400000"), sent(17, 10)}));
        QString warning;
        MessageBox::setAnswer([&](const QMessageBox &box) {
            warning = box.text();
            return QMessageBox::Ok;
        });
        FileDialog::setAnswer([&](const QString &) { return QStringList{window.fixture.path("gone.mp4")}; });
        window.click("chooseVideo");
        QVERIFY(warning.contains(QLatin1String("gone.mp4")));
        QVERIFY(film.resize(11 * 1024 * 1024));
        FileDialog::setAnswer([&](const QString &) { return QStringList{film.fileName()}; });
        window.click("chooseVideo");
        QVERIFY2(warning.contains(QLatin1String("11.0 MB")), qPrintable(warning));
        QCOMPARE(window.fixture.requests, QStringList());
    }

    void headerAndHintFollowKeyAndLanguage()
    {
        Window window(2);
        auto *header = window.find<QLabel>("attributeHeader");
        QCOMPARE(header->text(), QStringLiteral("Key 3: Open File"));
        window.attributes.onMultiActionItemClicked(Key, 15, 1);
        QCOMPARE(header->text(), QStringLiteral("Step 2: Text Output"));
        window.attributes.onMultiActionItemClicked(Key, 0, -1);
        window.fixture.language.setLanguage(1);
        window.attributes.retranslate();
        QVERIFY(header->text().endsWith(QString::fromUtf8("打开文件")));
        QVERIFY(!window.find("attributeHint")->isVisible());
        window.fixture.store.deleteKeyAttribute(Key);
        window.attributes.onDataChangeHandler(Key, 0, false);
        QVERIFY(window.find("attributeHint")->isVisible());
    }
};

QTEST_MAIN(AttributesTest)
#include "tst_ui_editor_attributes.moc"
