// The page of the system settings in the main window, with a panel in software behind it.
#include "base/systemsettings.h"
#include "model/customlayouts.h"
#include "model/multiaction.h"
#include "model/profiles.h"
#include "support/files.h"
#include "support/table.h"
#include "ui_common/filedialog.h"
#include "ui_editor/editorfixture.h"
#include "ui_editor/keyboardwidget.h"
#include "ui_editor/keywidget.h"
#include "ui_main/backups.h"
#include "ui_main/mainframe.h"
#include "ui_main/systemsettingspage.h"
#include "ui_main/widget.h"

using Panel = EditorFixture::Panel;
using vorlinmodel::key_id_t;
namespace SystemSettings = vorlindesk::SystemSettings;

namespace {

constexpr int Play = 5;
constexpr int MultipleActions = 4;
constexpr int Rest = 300; // ms of the slider
const key_id_t Key{1, 1, 3};
const key_id_t ListKey{1, 2, 4};
const QString AskHomeLayout = "11"_s;
const QString AskBrightness = "10 02 00 00 00 01 00"_s;
const QString AskSystemType = "12 01 00 00 00 ff"_s;
const QString ClearPanel = "0f 01 00 00 00 5a"_s;

/// The main window on the settings page, at a panel that shows one key more than the computer knows.
class SettingsFixture : public EditorFixture
{
public:
    explicit SettingsFixture(Panel withPanel = Panel::Present)
        : EditorFixture(withPanel)
    {
        language.Init();
        store.createKeyAttribute(Key, Play);
        store.setTitle(Key, "Music"_s);
        store.createKeyAttribute(ListKey, MultipleActions);
        QString error;
        vorlinmodel::multiActionStore().writeActionsByKeyId(1, 2, 4, {{100, 500, {}}}, error);
        vorlinmodel::saveCustomLayout({2, "Desk"_s, {{0x63, 1, 7}, {0x4, 3, 3}}, {}, {}, true});
        panel->with([](PanelModel &model) {
            PanelState state = model.state();
            state.keys[{1, 1, 3}].record.functionId = Play;
            state.keys[{1, 5, 5}].record.functionId = Play;
            state.home = {2, {{3, 1, 4, 1}}};
            model.setState(state);
        });
        SystemSettings::setHomeLayoutEntries({{3, 1, 9, 1}}); // another page than the panel has
        window = std::make_unique<Widget>(*this, desktop);
        frame().select(MainFrame::SystemSettings);
        window->show();
        if (withPanel == Panel::Present) {
            frame().setConnected(true); // the thread may have said so before the window was there
            waitForValues();
        }
    }
    ~SettingsFixture() override
    {
        FileDialog::setAnswer({});
        protocolThread()->stop(); // it calls into the window
        window.reset();
    }

    using EditorFixture::sendRequest;
    void sendRequest(vorlinmodel::RequestKind kind, const QString &devicePath, const QString &file) override
    {
        protocolThread()->postRequest({quint32(kind), 0, 0, 0, 0, 0, devicePath, file, 0});
    }

    /// Which are asked for by themselves.
    void waitForValues()
    {
        QTRY_COMPARE(child<QLabel>("brightness")->text(), "80"_s);
        QTRY_COMPARE(child<QComboBox>("systemType")->currentText(), "Windows"_s);
        panel->clearMessages();
    }
    MainFrame &frame() const { return *window->findChild<MainFrame *>(); }
    template <class Child>
    Child *child(const char *name) const
    {
        return window->findChild<Child *>(QLatin1String(name));
    }
    QSlider *slider() const { return child<QSlider>("brightnessSlider"); }
    QPushButton *button(const char *name) const { return child<QPushButton>(name); }
    void undo() const { window->findChild<QAbstractButton *>("undo"_s)->click(); }
    QVector<vorlinmodel::BackupInfo> backups() const { return vorlinmodel::Profiles::list({}); }

    std::unique_ptr<Widget> window;
};

/// Answers every box in turn, the last answer again and again.
class Answers
{
public:
    using Answer = std::function<QMessageBox::StandardButton()>;
    explicit Answers(QVector<Answer> answers)
    {
        MessageBox::setAnswer([this, answers](const QMessageBox &box) {
            const Answer answer = answers.value(qMin(texts.size(), answers.size() - 1));
            texts << box.text();
            explanations << box.informativeText();
            presets << box.standardButton(box.defaultButton());
            return answer();
        });
    }
    ~Answers() { MessageBox::setAnswer({}); }
    Answers(const Answers &) = delete;
    Answers &operator=(const Answers &) = delete;

    QStringList texts;
    QStringList explanations;
    QVector<QMessageBox::StandardButton> presets;
};

QMessageBox::StandardButton yes()
{
    return QMessageBox::Yes;
}
QMessageBox::StandardButton no()
{
    return QMessageBox::No;
}

} // namespace

using KeysTable = Table<QVector<int>, int, QString>;
using ButtonTable = Table<QString>;
using SwitchTable = Table<QString, QString, bool>;
Q_DECLARE_METATYPE(QVector<int>)

class tst_ui_main_settings : public QObject
{
    Q_OBJECT
private slots:
    void brightnessIsSentWhenTheSliderRests_data()
    {
        const KeysTable row; // keys, brightness, body of the message
        row("darkest", {Qt::Key_Home}, 0, "00 00");
        row("brightest", {Qt::Key_End}, 100, "00 64");
        row("beyond the brightest", {Qt::Key_End, Qt::Key_Right, Qt::Key_PageUp}, 100, "00 64");
        row("several moves are one", {Qt::Key_Left, Qt::Key_Left, Qt::Key_Left}, 77, "00 4d");
    }
    void brightnessIsSentWhenTheSliderRests()
    {
        const auto [keys, brightness, body] = KeysTable::current();
        SettingsFixture f;
        for (const int key : keys)
            QTest::keyClick(f.slider(), Qt::Key(key));
        QCOMPARE(f.child<QLabel>("brightness")->text(), QString::number(brightness));
        QTRY_COMPARE(f.panel->messages(), QStringList({"10 02 00 00 00 "_s + body, AskBrightness}));
        QCOMPARE(int(f.panel->state().brightness), brightness);
        QTest::qWait(Rest + 100); // the answer is not sent back
        QCOMPARE(f.panel->messages().size(), 2);
        QCOMPARE(f.slider()->value(), brightness);
        QCOMPARE(f.panel->violations().join("; "_s), QString());
    }

    void reportedBrightnessMovesTheSliderAndIsNotSentBack()
    {
        SettingsFixture f;
        f.panel->with([](PanelModel &model) {
            PanelState state = model.state();
            state.brightness = 255; // what a panel may hold, but cannot be set to
            model.setState(state);
        });
        f.frame().select(MainFrame::SystemSettings); // asks
        QTRY_COMPARE(f.child<QLabel>("brightness")->text(), "255"_s);
        QCOMPARE(f.slider()->value(), 100);
        QTest::qWait(Rest + 100);
        QCOMPARE(f.panel->messages(), QStringList({AskHomeLayout, AskBrightness, AskSystemType}));
    }

    void movingIsDroppedWhenThePanelGoes()
    {
        SettingsFixture f;
        QTest::keyClick(f.slider(), Qt::Key_Home);
        f.frame().setConnected(false);
        QVERIFY(!f.slider()->isEnabled() && !f.slider()->toolTip().isEmpty());
        QCOMPARE(f.slider()->value(), 80);
        QTest::qWait(Rest + 100);
        QCOMPARE(f.panel->messages(), QStringList());
    }

    void systemTypeCountsWhenThePanelHasSaidSo()
    {
        SettingsFixture f;
        auto *type = f.child<QComboBox>("systemType");
        QTest::keyClick(type, Qt::Key_Down);
        QTRY_COMPARE(type->currentText(), "Linux"_s);
        QCOMPARE(f.panel->messages(), texts({"12 01 00 00 00 01"}));
        f.frame().showDeviceValue(18, "7"_s);
        QVERIFY(type->currentText().contains("7"_s));
    }

    void homeLayoutOfThePanelIsKnownWithoutSettingIt()
    {
        SettingsFixture f;
        auto *choice = f.child<QComboBox>("homeLayout");
        QCOMPARE(choice->currentText(), "Desk"_s);
        QCOMPARE(SystemSettings::homeLayoutEntry(3).pageId, 9); // where keys lead stays as it is set here
        const Answers answers({yes});
        QTest::keyClick(choice, Qt::Key_Up);
        QTRY_COMPARE(choice->currentIndex(), 0);
        QCOMPARE(f.panel->state().home.layoutId, 1);
        QCOMPARE(f.panel->state().home.entries.value(0).pageId, 9);
    }

    void clearingIsOnlyDoneOnRequest_data()
    {
        const ButtonTable row;
        row("format", "formatCard");
        row("reset", "resetAll");
    }
    void clearingIsOnlyDoneOnRequest()
    {
        const auto [name] = ButtonTable::current();
        SettingsFixture f;
        const Answers answers({no});
        f.button(qPrintable(name))->click();
        QCOMPARE(answers.texts, texts({"Are you sure to Start"}));
        QVERIFY(answers.explanations.first().contains("action lists"_s));
        QCOMPARE(answers.presets, {QMessageBox::No});
        QTest::qWait(200);
        QCOMPARE(f.panel->messages(), QStringList());
        QVERIFY(f.backups().isEmpty());
    }

    void formatClearsThePanelAlone()
    {
        SettingsFixture f;
        const Answers answers({yes});
        f.button("formatCard")->setFocus();
        f.button("formatCard")->click();
        QVERIFY(!f.button("formatCard")->isEnabled());
        QTRY_COMPARE(answers.texts.size(), 2);
        QCOMPARE(f.window->focusWidget(), f.button("formatCard")); // else the page would have scrolled
        QCOMPARE(f.panel->messages(), QStringList(ClearPanel));
        QVERIFY(f.panel->state().keys.isEmpty());
        QCOMPARE(f.store.getTitleText(Key), "Music"_s);
        QVERIFY(vorlinmodel::loadCustomLayout(2));
        const auto backups = f.backups();
        QCOMPARE(backups.size(), 1);
        QCOMPARE(int(backups.first().reason), int(vorlinmodel::BackupReason::Safety));
        QVERIFY(answers.texts.last().startsWith("Format SD Card, Manually restart the device\n"_s));
        QVERIFY(answers.texts.last().endsWith(QDir::toNativeSeparators(backups.first().folder)));
    }

    void resetClearsThePanelAndTheComputerAndIsUndone()
    {
        SettingsFixture f;
        const Answers answers({yes});
        f.button("resetAll")->click();
        QTRY_COMPARE(answers.texts.size(), 2);
        QTRY_COMPARE(f.panel->messages(), QStringList({ClearPanel, "0e 01 00 00 00 02"_s}));
        QVERIFY(f.panel->state().keys.isEmpty());
        QVERIFY(f.store.getKeys().isEmpty());
        QVERIFY(!vorlinmodel::loadCustomLayout(2));
        QVERIFY(vorlinmodel::multiActionStore().readActionsByKeyId(1, 2, 4).isEmpty());
        QVERIFY(answers.texts.last().contains(QDir::toNativeSeparators(f.backups().first().folder)));
        QCOMPARE(f.backups().first().counts.keys, 2);

        f.undo();
        QCOMPARE(f.store.getTitleText(Key), "Music"_s);
        QCOMPARE(vorlinmodel::loadCustomLayout(2)->name, "Desk"_s);
        QCOMPARE(vorlinmodel::multiActionStore().readActionsByKeyId(1, 2, 4).size(), 1);
        QTRY_COMPARE(f.panel->state().keys.size(), 2); // what only the panel had is gone
        QTRY_COMPARE(f.panel->state().keys.value({1, 1, 3}).record.title, QByteArray("Music"));
        QTRY_COMPARE(f.panel->state().layouts.value(2).title, "Desk"_s);
        QCOMPARE(f.panel->violations().join("; "_s), QString());
    }

    void whatIsEditedWhileThePanelIsClearedGoesToo()
    {
        SettingsFixture f;
        const Answers answers({yes});
        const auto clickKey = [&f](int key) {
            QTest::mouseClick(f.window->findChild<KeyboardWidget *>()->cell(key), Qt::LeftButton);
        };
        f.panel->with([&](PanelModel &) { // which takes no report meanwhile
            f.button("resetAll")->click();
            QTRY_VERIFY(f.child<QLabel>("status")->text().startsWith("Waiting until"_s));
            f.frame().select(MainFrame::FunctionConfiguration);
            clickKey(3);
            f.child<QAbstractButton>("copy")->click();
            clickKey(8);
            f.child<QAbstractButton>("paste")->click();
            QVERIFY(f.store.getKeyAttribute({1, 1, 8}));
        });
        QTRY_COMPARE(answers.texts.size(), 2);
        QVERIFY(f.store.getKeys().isEmpty());
        QTRY_VERIFY(f.panel->messages().contains("01 04 00 00 00 01 01 08 0d"_s));
        QVERIFY(f.panel->state().keys.isEmpty());
    }

    void withoutASafetyBackupOnlyOnRequest()
    {
#ifdef Q_OS_WIN
        QSKIP("there is no folder in which nobody can write");
#endif
        SettingsFixture f;
        f.frame().backups().setDirectory("/proc"_s);
        {
            const Answers answers({yes, no});
            f.button("resetAll")->click();
            QTRY_COMPARE(answers.texts.size(), 2);
            QVERIFY(answers.texts.last().startsWith("The configuration could not be saved."_s));
            QCOMPARE(answers.presets.last(), QMessageBox::No);
            QTRY_VERIFY(f.button("resetAll")->isEnabled());
            QCOMPARE(f.panel->messages(), QStringList());
            QCOMPARE(f.store.getKeys().size(), 2);
        }
        const Answers answers({yes});
        f.button("formatCard")->click();
        QTRY_COMPARE(f.panel->messages(), QStringList(ClearPanel));
        QTRY_COMPARE(answers.texts.size(), 3);
    }

    void nothingIsClearedWhenThePanelGoes()
    {
        SettingsFixture f;
        const Answers answers({[&f] {
            f.panel->unplug();
            return QMessageBox::Yes;
        }});
        f.button("resetAll")->click();
        QTRY_COMPARE(answers.texts.size(), 2);
        QCOMPARE(answers.texts.last(), "The panel did not take it. Nothing was cleared."_s);
        QCOMPARE(f.store.getKeys().size(), 2);
        QVERIFY(vorlinmodel::loadCustomLayout(2));
    }

    void whatNeedsAPanelIsOff()
    {
        SettingsFixture f(Panel::Absent);
        for (const char *name :
             {"brightnessSlider", "systemType", "homeLayout", "formatCard", "resetAll", "fontLibrary"}) {
            const auto *control = f.child<QWidget>(name);
            QVERIFY2(!control->isEnabled() && control->toolTip() == "The panel is not connected."_s, name);
        }
        for (const char *name : {"firmwareUpdate", "networkSettings", "autoSyncEnable", "openLogFolder"})
            QVERIFY2(f.child<QWidget>(name)->isEnabled(), name);
        f.panel->plug();
        f.waitForValues();
        QVERIFY(f.button("resetAll")->isEnabled() && f.button("resetAll")->toolTip().isEmpty());
        f.frame().setReading(true);
        QVERIFY(!f.button("resetAll")->isEnabled());
    }

    void switchesAreWrittenAtOnce_data()
    {
        const SwitchTable row; // name, line in the file, whether it takes effect at the next start only
        row("synchronisation", "autoSyncEnable", "autoSyncEnable=true", true);
        row("dump", "printBufEnable", "printBufEnable=true", true);
        row("custom layouts", "loadCustomLayout", "loadCustomLayout=true", false);
    }
    void switchesAreWrittenAtOnce()
    {
        const auto [name, line, atNextStart] = SwitchTable::current();
        SettingsFixture f(Panel::Absent);
        auto *box = f.child<QCheckBox>(qPrintable(name));
        const auto *notice = f.child<QLabel>(qPrintable(name + "Notice"_s));
        QVERIFY(!box->isChecked() && !notice->isVisible());
        QTest::mouseClick(box, Qt::LeftButton, {}, {8, box->height() / 2});
        QVERIFY(testFileContent(f.path("devConfig/system.ini")).contains(line.toUtf8()));
        QCOMPARE(notice->isVisible(), atNextStart);
        box->click();
        QVERIFY(!testFileContent(f.path("devConfig/system.ini")).contains(line.toUtf8()));
        QVERIFY(!notice->isVisible());
        SystemSettings::setLoadCustomLayout(true); // by somebody else
        f.frame().showDeviceValue(13, {});
        QVERIFY(f.child<QCheckBox>("loadCustomLayout")->isChecked());
    }

    void languageTakesEffectAtOnce()
    {
        SettingsFixture f;
        QTest::mouseClick(f.child<QRadioButton>("language1"), Qt::LeftButton, {}, {8, 8});
        QCOMPARE(SystemSettings::language(), 1);
        QCOMPARE(f.button("formatCard")->text(), "格式化 SD 卡"_s);
        const auto labels = f.window->findChild<SystemSettingsPage *>()->findChildren<QLabel *>();
        const QRegularExpression english("[A-Za-z]{4,}"_s);
        for (const QLabel *label : labels) {
            if (!label->objectName().endsWith("older"_s)) // shows a path
                QVERIFY2(!label->text().contains(english), qPrintable(label->text()));
        }
    }

    void dialogsOpenAndFollowTheLanguage()
    {
        SettingsFixture f;
        f.button("networkSettings")->click();
        QPointer<QDialog> network = f.child<QDialog>("networkSetDialog");
        QVERIFY(network && network->isVisible());
        QCOMPARE(network->windowTitle(), "Network IP Settings"_s);
        f.language.setLanguage(2);
        QCOMPARE(network->windowTitle(), "網路 IP 設定"_s);
        f.language.setLanguage(0);
        network->close();
        QTRY_VERIFY(!network);
        f.button("fontLibrary")->click();
        QCOMPARE(f.child<QDialog>("upgradeDialog")->windowTitle(), "Font Library"_s);
    }

    void firmwareUpdateSavesTheConfigurationFirst()
    {
        SettingsFixture f;
        QVERIFY(writeTestFile(f.path("fw.xft"), QByteArray(100, 'f')));
        FileDialog::setAnswer([&f](const QString &) { return QStringList(f.path("fw.xft")); });
        f.button("firmwareUpdate")->click();
        const auto *dialog = f.child<QDialog>("upgradeDialog");
        dialog->findChild<QPushButton *>("selectButton"_s)->click();
        auto *upgrade = dialog->findChild<QPushButton *>("upgradeButton"_s);
        QTRY_VERIFY(upgrade->isEnabled());
        upgrade->click();
        QTRY_COMPARE(f.panel->state().firmware, QByteArray(100, 'f'));
        QCOMPARE(f.backups().size(), 1);
        QVERIFY(dialog->findChild<QPlainTextEdit *>("messages"_s)
                    ->toPlainText()
                    .contains(QDir::toNativeSeparators(f.backups().first().folder)));
        QTRY_VERIFY(!f.protocolThread()->isUpgrading());
    }

    void sectionOfItsOwn()
    {
        SettingsFixture f(Panel::Absent);
        auto *page = f.window->findChild<SystemSettingsPage *>();
        auto *section = new QLabel("content"_s, page);
        section->setWindowTitle("Configuration"_s);
        page->addSection(section);
        const auto *caption = section->parentWidget()->findChild<QLabel *>("cardCaption"_s);
        QCOMPARE(caption->text(), "Configuration"_s);
        section->setWindowTitle("配置"_s);
        QCOMPARE(caption->text(), "配置"_s);
        for (const QSize size : {QSize(1024, 640), QSize(1920, 1080)}) { // one column, and two
            f.window->resize(size);
            QTRY_VERIFY(section->isVisible());
            const auto top = [page](const QWidget *widget) {
                return widget->mapTo(page, QPoint()).y();
            };
            QTRY_VERIFY(top(section) < top(f.child<QCheckBox>("autoSyncEnable")));
            QTRY_COMPARE(top(section) < top(f.button("firmwareUpdate")), size.width() > 1200);
        }
    }
};

QTEST_MAIN(tst_ui_main_settings)
#include "tst_ui_main_settings.moc"
