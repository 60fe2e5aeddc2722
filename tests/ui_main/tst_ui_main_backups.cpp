// Backups and imports in the window, driven as a person does, with a panel in software behind it.
#include "base/systemsettings.h"
#include "model/configbackup.h"
#include "model/customlayouts.h"
#include "model/functionids.h"
#include "model/layoutgrouping.h"
#include "model/profiles.h"
#include "model/scriptcontainer.h"
#include "support/files.h"
#include "support/smallavi.h"
#include "ui_common/filedialog.h"
#include "ui_editor/editorfixture.h"
#include "ui_editor/functionconfigwidget.h"
#include "ui_editor/keystate.h"
#include "ui_main/backups.h"
#include "ui_main/mainframe.h"
#include "wire/actionlist.h"

using namespace vorlinmodel;
using Panel = EditorFixture::Panel;
using Answer = QMessageBox::StandardButton;

namespace {

const key_id_t Web{1, 1, 1};
const key_id_t Film{1, 1, 2};
const key_id_t Steps{1, 2, 3};
const key_id_t Photo{2, 1, 1}; // of a custom layout
const key_id_t Extra{1, 5, 9}; // not in the backup

class BackupsFixture : public EditorFixture
{
public:
    explicit BackupsFixture(Panel withPanel = Panel::Present)
        : EditorFixture(withPanel)
        , isPresent(withPanel == Panel::Present)
    {
        frame = std::make_unique<MainFrame>(editor(), desktop, nullptr);
        isSetUp = frame->setup();
        frame->resize(830, 560);
        frame->select(MainFrame::SystemSettings);
        frame->setConnected(withPanel == Panel::Present);
        frame->show();
        isSetUp = isSetUp && QTest::qWaitForWindowExposed(frame.get());
    }
    ~BackupsFixture() override
    {
        FileDialog::setAnswer({});
        frame.reset();
    }

    Backups &backups() { return frame->backups(); }
    KeyEdits &edits() { return editor().edits; }
    QTreeWidget *list() const { return frame->findChild<QTreeWidget *>("backupList"_s); }
    QString message() const { return frame->findChild<QLabel *>("backupMessage"_s)->text(); }
    QPushButton *button(const char *name) const
    {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (auto *found = window->findChild<QPushButton *>(QString::fromLatin1(name)))
                return found;
        }
        return nullptr;
    }
    void press(const char *name) const
    {
        QTRY_VERIFY2(button(name) && button(name)->isEnabled(), name);
        QTest::mouseClick(button(name), Qt::LeftButton);
    }

    /// Something of every kind, in the store, on the disk, and on the panel if there is one.
    void fill()
    {
        saveCustomLayout(customLayoutOf(2, "Desk"_s, LayoutGrouping({0x63})));
        editor().layouts.replaced({2});
        QString error;
        multiActionStore().writeActionsByKeyId(1, 2, 3, {{3, 0, "https://a.test"_s}, {100, 500, {}}}, error);
        writeTestFile(path("film.avi"), SmallAvi::file(Qt::red));
        store.createKeyAttribute(Web, OPEN_WEB_FID);
        store.setTitle(Web, "Old"_s);
        store.setUrlOrPath(Web, "https://b.test"_s);
        store.createKeyAttribute(Film, VIDEO_FID);
        store.setCustomVideo(Film, path("film.avi"));
        store.createKeyAttribute(Steps, MULTIPLE_ACTIONS_FID);
        store.createKeyAttribute(Photo, OPEN_WEB_FID);
        store.setCustomImage(Photo, pictureFile(path("photo.png"), Qt::green, {300, 200}));
        sendAll();
        edits().saveNow();
    }
    /// What the panel shows is what the host has.
    void sendAll()
    {
        for (const key_id_t &key : store.getKeys()) {
            const KeyState state = captureKeyState(store, key);
            for (const AttributeId attribute : allAttributes(state))
                edits().send(key, state.fid(), attribute);
        }
        waitForPanel();
    }
    void changeAll()
    {
        saveCustomLayout(customLayoutOf(2, "Other"_s, LayoutGrouping({0x21})));
        editor().layouts.replaced({2});
        edits().change("Change"_s, {Web, Film, Steps, Photo, Extra}, [this] {
            store.setTitle(Web, "New"_s);
            edits().send(Web, OPEN_WEB_FID, AttributeId::Title);
            edits().apply({{Film, {}}, {Steps, {}}, {Photo, {}}});
            store.createKeyAttribute(Extra, OPEN_WEB_FID);
            edits().send(Extra, OPEN_WEB_FID, AttributeId::FunctionId);
        });
        waitForPanel();
    }
    void waitForPanel()
    {
        if (isPresent)
            QTRY_VERIFY_WITH_TIMEOUT(edits().pending().keys().isEmpty() && !editor().layouts.isPending(2),
                                     20000);
    }
    /// The keys of the panel, in words that differ when they do.
    QStringList onPanel() const
    {
        QStringList keys;
        const PanelState state = panel->state();
        for (auto key = state.keys.cbegin(); key != state.keys.cend(); ++key) {
            const auto hash = [](const QByteArray &bytes) {
                return QString::number(bytes.isEmpty() ? 0 : qHash(bytes));
            };
            keys.append("%1/%2/%3 "_s.arg(key.key().layout).arg(key.key().page).arg(key.key().key) +
                        QString::fromLatin1(encodeKeyRecord(key->record).toHex().left(60)) + " "_s +
                        QString::fromUtf8(key->content) + " "_s + hash(key->record.title) + " "_s +
                        hash(key->picture) + " "_s + hash(key->video) + " "_s + hash(key->actions));
        }
        for (const auto &layout : state.layouts)
            keys.append(layout.title);
        return keys;
    }
    QStringList inStore() const
    {
        QStringList keys;
        for (const key_id_t &key : store.getKeys()) {
            const KeyState state = captureKeyState(store, key);
            keys.append("%1/%2/%3 "_s.arg(key.lid).arg(key.pageid).arg(key.kid) + state.record->strTitle +
                        state.record->strAppOrUrl + QString::number(state.steps.size()) + " "_s +
                        QString::number(qHash(state.picture)) + " "_s +
                        (isVideo(*state.record)
                             ? QString::number(qHash(testFileContent(state.record->defaultImage)))
                             : QString()));
        }
        for (const int id : customLayoutIds())
            keys.append(loadCustomLayout(id)->name);
        return keys;
    }
    void choose(int row)
    {
        QTRY_VERIFY(list()->topLevelItemCount() > row);
        list()->setCurrentItem(list()->topLevelItem(row));
    }
    /// Of the backup in the row, confirmed in the preview.
    void import(const char *target, int row = 0)
    {
        choose(row);
        press(target);
        press("previewImport");
        QTRY_VERIFY_WITH_TIMEOUT(!backups().isBusy(), 20000);
    }

    bool isPresent; ///< the panel
    std::unique_ptr<MainFrame> frame;
    bool isSetUp = false;
};

} // namespace

class tst_ui_main_backups : public QObject
{
    Q_OBJECT
private slots:
    void makingListingAndDeleting()
    {
        BackupsFixture f(Panel::None);
        QVERIFY(f.isSetUp);
        for (const char *name : {"importToHost", "importToPanel", "deleteBackup"})
            QVERIFY2(!f.button(name)->isEnabled() && !f.button(name)->toolTip().isEmpty(), name);
        f.fill();
        FileDialog::setAnswer([&f](const QString &) { return QStringList(f.path("profiles")); });
        QVERIFY(QDir().mkpath(f.path("profiles")));
        f.press("chooseBackupFolder");
        QTRY_COMPARE(f.frame->findChild<QLabel *>("backupFolder"_s)->text(),
                     QDir::toNativeSeparators(f.path("profiles")));
        f.frame->findChild<QLineEdit *>("backupName"_s)->setText(" my  desk "_s);
        f.press("createBackup");
        QTRY_COMPARE(f.list()->topLevelItemCount(), 1);
        QTRY_COMPARE(f.list()->currentItem(), f.list()->topLevelItem(0));
        QStringList columns;
        for (int column : {0, 2, 3, 4, 5, 6, 7})
            columns.append(f.list()->topLevelItem(0)->text(column));
        QCOMPARE(columns, texts({"my desk", "by hand", "2", "3", "4", "1", "1"}));
        QVERIFY(f.message().contains("4"_s));
        QVERIFY(f.button("importToHost")->isEnabled());
        QCOMPARE(f.button("importToPanel")->toolTip(), "The panel is not connected."_s);
        f.press("openBackupFolder");
        QCOMPARE(f.desktop.calls, QStringList("file "_s + f.path("profiles")));

        f.language.setLanguage(1);
        QCOMPARE(f.button("createBackup")->text(), "创建备份"_s);
        f.language.setLanguage(0);
        {
            const Boxes boxes(Answer::No);
            f.press("deleteBackup");
            QCOMPARE(boxes.texts.size(), 1);
        }
        QCOMPARE(f.list()->topLevelItemCount(), 1);
        const Boxes boxes(Answer::Yes);
        f.press("deleteBackup");
        QTRY_COMPARE(f.list()->topLevelItemCount(), 0);
        QCOMPARE(QDir(f.path("profiles")).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList());
        f.frame.reset(); // the folder is known again, and one that is gone gives way
        f.frame = std::make_unique<MainFrame>(f.editor(), f.desktop, nullptr);
        QVERIFY(f.frame->setup());
        QCOMPARE(f.backups().directory(), f.path("profiles"));
        QVERIFY(QDir(f.path("profiles")).removeRecursively());
        QSignalSpy listed(&f.backups(), &Backups::sigListed);
        f.backups().list();
        QVERIFY(listed.wait());
        QCOMPARE(f.backups().directory(), vorlindesk::Paths::devConfigFolder());
    }

    void toTheHostWhichThePanelFollows()
    {
        BackupsFixture f;
        f.fill();
        const QStringList panelBefore = f.onPanel();
        const QStringList storeBefore = f.inStore();
        f.press("createBackup");
        QTRY_COMPARE(f.list()->topLevelItemCount(), 1);
        f.changeAll();
        const QStringList panelChanged = f.onPanel();
        const QStringList storeChanged = f.inStore();
        QVERIFY(panelChanged != panelBefore && storeChanged != storeBefore);

        f.choose(0);
        f.press("importToHost");
        QTRY_VERIFY(f.button("previewImport"));
        auto *tree = f.button("previewImport")->window()->findChild<QTreeWidget *>("changes"_s);
        QStringList shown;
        for (int i = 0; i < tree->topLevelItemCount(); ++i) {
            for (int j = 0; j < tree->topLevelItem(i)->childCount(); ++j)
                shown.append(tree->topLevelItem(i)->child(j)->text(0) + ": "_s +
                             tree->topLevelItem(i)->child(j)->text(1));
        }
        QCOMPARE(shown, texts({"System Panel Layout 1, page 1: keys added: 1, changed: 1",
                               "System Panel Layout 1, page 2: keys added: 1",
                               "System Panel Layout 1, page 5: removed: 1", "Other, page 1: keys added: 1",
                               "Panel layouts: ", "Steps of the multiple actions: "}));
        QCOMPARE(f.inStore(), storeChanged);
        f.press("previewImport");
        QTRY_COMPARE(f.inStore(), storeBefore);
        QTRY_VERIFY(!f.backups().isBusy());
        f.waitForPanel();
        QCOMPARE(f.onPanel(), panelBefore);

        for (int i = 0; i < 2; ++i) { // one step, however often
            f.edits().undo();
            QVERIFY(!f.frame->editor().isEnabled());
            QTRY_VERIFY(!f.backups().isBusy());
            QCOMPARE(f.inStore(), storeChanged);
            f.waitForPanel();
            QCOMPARE(f.onPanel(), panelChanged);
            f.edits().redo();
            QTRY_VERIFY(!f.backups().isBusy());
            QCOMPARE(f.inStore(), storeBefore);
            f.waitForPanel();
            QCOMPARE(f.onPanel(), panelBefore);
        }
        f.edits().undo();
        QTRY_VERIFY(!f.backups().isBusy());
        QVERIFY(f.frame->editor().isEnabled());
        f.edits().undo(); // the steps before it hold, too
        QVERIFY(!f.store.getKeyAttribute(Extra));
        QCOMPARE(f.store.getTitleText(Web), "Old"_s);
        QVERIFY(f.store.getKeyAttribute(Steps));
        QCOMPARE(f.panel->violations().join("; "_s), QString());
    }

    /// Two imports in the history, with another video put on the key between them.
    void undoFindsEveryVideo()
    {
        BackupsFixture f(Panel::None);
        f.fill();
        const auto shown = [&f] {
            return testFileContent(f.store.getDefaultImage(Film));
        };
        const auto put = [&f](const char *name, const QColor &colour) {
            writeTestFile(f.path(name), SmallAvi::file(colour));
            f.edits().change("Video"_s, {Film}, [&] { f.store.setCustomVideo(Film, f.path(name)); });
        };
        const auto walk = [&f](void (KeyEdits::*step)()) {
            (f.edits().*step)();
            QTRY_VERIFY(!f.backups().isBusy());
        };
        QVector<QByteArray> states; // along the history
        const auto importThis = [&](int row) {
            f.import("importToHost", row);
            states.append(shown());
        };
        f.press("createBackup"); // red
        QTRY_COMPARE(f.list()->topLevelItemCount(), 1);
        put("blue.avi", Qt::blue);
        states.append(shown());
        importThis(0);
        put("green.avi", Qt::green);
        states.append(shown());
        f.backups().create("green"_s);
        QTRY_COMPARE(f.list()->topLevelItemCount(), 3);
        importThis(f.list()->indexOfTopLevelItem(f.list()->findItems("green"_s, Qt::MatchExactly).value(0)));
        put("white.avi", Qt::white);
        states.append(shown());
        for (int i = states.size() - 2; i >= 0; --i) {
            walk(&KeyEdits::undo);
            QVERIFY2(shown() == states.at(i), qPrintable("undo to %1"_s.arg(i)));
        }
        for (int i = 1; i < states.size(); ++i) {
            walk(&KeyEdits::redo);
            QVERIFY2(shown() == states.at(i), qPrintable("redo to %1"_s.arg(i)));
        }
        walk(&KeyEdits::undo);
        const QString kept = QFileInfo(f.store.getDefaultImage(Film)).fileName();
        f.frame.reset();
        f.context.reset(); // the end of the program: of all videos that came back, one is still used
        QCOMPARE(QDir(f.path("devConfig/video")).entryList(QDir::Files), QStringList(kept));
    }

    void withoutAPanelTheChangesWait()
    {
        BackupsFixture f(Panel::Absent);
        f.fill();
        f.press("createBackup");
        QTRY_COMPARE(f.list()->topLevelItemCount(), 1);
        f.changeAll();
        f.import("importToHost");
        QCOMPARE(f.store.getTitleText(Web), "Old"_s);
        for (const key_id_t &key : {Web, Film, Steps, Photo, Extra})
            QCOMPARE(f.edits().pending().mark(key), PendingEdits::Mark::Pending);
        QVERIFY(testFileContent(f.path("devConfig/pending.ini")).contains("1_5_9="));
        const QStringList storeAfter = f.inStore();
        f.panel->plug();
        f.isPresent = true;
        f.editor().layouts.sendPending();
        f.edits().sendPending();
        f.waitForPanel();
        QCOMPARE(f.panel->state().keys.size(), 4);
        QCOMPARE(f.panel->state().keys.value({1, 1, 1}).record.title, QByteArray("Old"));
        QCOMPARE(f.panel->state().keys.value({1, 1, 2}).video, SmallAvi::file(Qt::red));
        QCOMPARE(f.inStore(), storeAfter);
        QCOMPARE(f.panel->violations().join("; "_s), QString());
    }

    void toThePanelAsOneTransfer()
    {
        BackupsFixture f;
        f.fill();
        const QStringList panelBefore = f.onPanel();
        f.press("createBackup");
        QTRY_COMPARE(f.list()->topLevelItemCount(), 1);
        f.changeAll();
        f.panel->clearMessages();
        f.import("importToPanel");
        f.waitForPanel();
        QCOMPARE(f.onPanel(), panelBefore); // as edits would have made it
        QVERIFY(f.message().contains("whole configuration"_s));
        int scripts = 0;
        int edits = 0;
        for (const QString &message : f.panel->messages()) {
            scripts += message.startsWith("05"_s) ? 1 : 0;
            edits += message.startsWith("01"_s) ? 1 : 0;
        }
        QCOMPARE(scripts, 1);
        QCOMPARE(edits, 1); // what the script cannot take away
        f.edits().undo();
        QTRY_VERIFY(!f.backups().isBusy());
        f.waitForPanel();
        QVERIFY(f.panel->state().keys.contains({1, 5, 9}));
        QCOMPARE(f.panel->violations().join("; "_s), QString());
    }

    void aCancelledTransferLeavesThePanelAsItIs()
    {
        BackupsFixture f;
        f.fill();
        writeTestFile(f.path("long.avi"), SmallAvi::file(Qt::blue, 60));
        f.store.setCustomVideo(Film, f.path("long.avi"));
        f.press("createBackup");
        QTRY_COMPARE(f.list()->topLevelItemCount(), 1);
        f.changeAll();
        const auto keysBefore = f.panel->state().keys;
        Request slowly;
        slowly.functionCode = quint32(RequestKind::SetBlockDelay);
        slowly.value = 2;
        f.protocolThread()->postRequest(slowly);
        connect(&f.backups(), &Backups::sigActivity, &f.backups(), [&f] {
            if (f.backups().activity() == Backups::Activity::Sending && f.backups().percent() > 0)
                f.backups().cancel();
        });
        f.import("importToPanel");
        QVERIFY2(f.message().contains("cancelled"_s), qPrintable(f.message()));
        QVERIFY(f.panel->state().keys == keysBefore);
        QCOMPARE(f.store.getTitleText(Web), "Old"_s);
        for (const key_id_t &key : {Web, Film, Steps, Extra})
            QCOMPARE(f.edits().pending().mark(key), PendingEdits::Mark::Pending);
    }

    void theRestOfADamagedBackup()
    {
        BackupsFixture f(Panel::None);
        f.fill();
        f.press("createBackup");
        QTRY_COMPARE(f.list()->topLevelItemCount(), 1);
        f.changeAll();
        const QString script = f.backups().backups().first().folder + "/CD.bin"_s;
        QByteArray bytes = testFileContent(script);
        bytes[bytes.indexOf("VIDE") + 60] = 'X';
        QVERIFY(writeTestFile(script, bytes));
        f.choose(0);
        f.press("importToHost");
        QTRY_VERIFY(f.button("previewImport"));
        QVERIFY(!f.button("previewImport")->isEnabled());
        QWidget *dialog = f.button("previewImport")->window();
        auto *tree = dialog->findChild<QTreeWidget *>("changes"_s);
        QVERIFY(tree->topLevelItem(0)->child(0)->text(0).contains("page 1 key 2"_s));
        dialog->findChild<QCheckBox *>("takeTheRest"_s)->setChecked(true);
        f.press("previewImport");
        QTRY_COMPARE(f.store.getTitleText(Web), "Old"_s);
        QTRY_VERIFY(!f.backups().isBusy());
        QVERIFY(f.store.getKeyAttribute(Film) && !isVideo(*f.store.getKeyAttribute(Film)));
    }

#ifndef Q_OS_WIN // where links take rights
    void aFailureChangesNothingAndSaysWhy()
    {
        BackupsFixture f(Panel::None);
        f.fill();
        QVERIFY(QDir().mkpath(f.path("profiles")));
        f.backups().setDirectory(f.path("profiles"));
        f.press("createBackup");
        QTRY_COMPARE(f.list()->topLevelItemCount(), 1);
        f.changeAll();
        const QStringList before = f.inStore();
        const auto pending = f.edits().pending().keys();
        f.choose(0);
        f.press("importToHost");
        QTRY_VERIFY(f.button("previewImport"));
        QVERIFY(QDir().rename(f.path("profiles"), f.path("aside")));
        QVERIFY(QFile::link("/proc"_s, f.path("profiles"))); // no room for the safety backup
        f.press("previewImport");
        QTRY_VERIFY(!f.backups().isBusy());
        QVERIFY2(f.message().startsWith("Import failed，Please try again\n\""_s), qPrintable(f.message()));
        QCOMPARE(f.inStore(), before);
        QCOMPARE(f.edits().pending().keys(), pending);
        QVERIFY(f.frame->editor().isEnabled());
        QCOMPARE(f.edits().history().undoText(), "Change"_s);

        QVERIFY(QFile::remove(f.path("profiles")) && QDir().rename(f.path("aside"), f.path("profiles")));
        f.import("importToHost");
        QCOMPARE(f.store.getTitleText(Web), "Old"_s);
        int index = f.edits().history().index();
        QSignalSpy problems(&f.edits(), &KeyEdits::sigProblem);
        f.frame->setReading(true);
        f.edits().undo(); // a read overwrites the store: it is refused, and the history stays
        QTRY_COMPARE(problems.count(), 1);
        f.frame->setReading(false);
        QCOMPARE(f.edits().history().index(), index);
        QCOMPARE(f.store.getTitleText(Web), "Old"_s);
        f.edits().undo();
        QTRY_VERIFY(!f.backups().isBusy());
        QCOMPARE(f.inStore(), before);

        // The step that would be redone has lost its backup.
        for (const BackupInfo &info : Profiles::list(f.path("profiles"))) {
            if (info.reason == BackupReason::Safety)
                QVERIFY(Profiles::remove(info.folder));
        }
        problems.clear();
        index = f.edits().history().index();
        f.edits().redo();
        QTRY_VERIFY(!f.backups().isBusy());
        QCOMPARE(f.edits().history().index(), index);
        QCOMPARE(f.inStore(), before);
        QCOMPARE(problems.size(), 1);
    }

#endif

    /// A person sees the job, not the listing that is still before it.
    void behindAListing()
    {
        BackupsFixture f(Panel::None);
        f.fill();
        f.press("createBackup");
        QTRY_COMPARE(f.list()->topLevelItemCount(), 1);
        f.changeAll();
        const auto content = loadBackup(f.backups().backups().first().folder);
        f.backups().list();
        f.backups().create("none"_s);
        f.backups().cancel();
        QTRY_VERIFY(!f.backups().isBusy());
        QCOMPARE(f.message(), "Cancelled. No backup was made."_s);
        QCOMPARE(Profiles::list({}).size(), 1);

        QVERIFY(QDir().mkpath(f.path("profiles")));
        f.backups().setDirectory(f.path("profiles"));
        f.backups().import(std::make_shared<const BackupContent>(*content), false, false);
        QTRY_VERIFY(!f.backups().isBusy());
        QCOMPARE(f.store.getTitleText(Web), "Old"_s);
        QCOMPARE(Profiles::list(f.path("profiles")).size(), 1); // the safety backup
        QCOMPARE(Profiles::list({}).size(), 1);
    }

    /// What the work does up to the exchange, and then nothing more.
    void aKillBehindTheExchange()
    {
        BackupsFixture f;
        f.fill();
        const QStringList panelBefore = f.onPanel();
        const auto keysBefore = f.store.getKeys();
        const auto made = Profiles::create({}, f.store);
        f.changeAll();
        QVERIFY(f.edits().saveNow());
        const auto changed = f.store.getKeys();
        f.frame.reset();
        f.protocolThread()->stop();
        f.context.reset(); // one that is killed does not save at its end
        QVERIFY(PendingEdits::saveWhole((keysBefore + changed).toVector()));
        QVERIFY(restoreBackup(*loadBackup(made.folder), f.store, {}).isDone);
        f.restart();
        QCOMPARE(f.store.getKeys(), keysBefore);
        f.editor().layouts.replaced({2}); // of which nothing was noted
        f.edits().sendPending();
        f.waitForPanel();
        QCOMPARE(f.onPanel(), panelBefore);
    }

    void theSettingsOfTheBackupCountAtOnce()
    {
        BackupsFixture f(Panel::None);
        f.fill();
        f.language.setLanguage(1);
        f.press("createBackup");
        QTRY_COMPARE(f.list()->topLevelItemCount(), 1);
        f.language.setLanguage(0);
        f.import("importToHost");
        QCOMPARE(f.language.language(), 1);
        QCOMPARE(f.button("createBackup")->text(), "创建备份"_s);
        f.edits().undo();
        QTRY_VERIFY(!f.backups().isBusy());
        QCOMPARE(f.language.language(), 0);
    }

    /// While one is under way, nothing else changes the configuration.
    void duringAnImport()
    {
        BackupsFixture f(Panel::None);
        f.fill();
        f.press("createBackup");
        QTRY_COMPARE(f.list()->topLevelItemCount(), 1);
        f.changeAll();
        f.import("importToHost");
        f.edits().undo();
        QVERIFY(f.backups().isBusy());
        for (const char *name : {"language1", "autoSyncEnable", "resetAll"})
            QVERIFY2(!f.frame->findChild<QWidget *>(QLatin1String(name))->isEnabled(), name);
        QCOMPARE(f.frame->findChild<QWidget *>("language1"_s)->toolTip(), "A backup is being imported."_s);
        QVERIFY(f.editor().layouts.remove(2).startsWith("A backup is being imported."_s));
        QVERIFY(loadCustomLayout(2));
        f.edits().place("Late"_s, {{Web, {}}});
        QVERIFY(f.store.getKeyAttribute(Web));
        QTRY_VERIFY(!f.backups().isBusy());
        for (const char *name : {"language1", "autoSyncEnable"})
            QVERIFY2(f.frame->findChild<QWidget *>(QLatin1String(name))->isEnabled(), name);
        QCOMPARE(f.edits().history().redoText(), "Import of a backup"_s);
    }

    void backupsAtStartUp()
    {
        BackupsFixture f(Panel::None);
        f.fill();
        auto *timer = f.backups().findChild<QTimer *>("idleTimer"_s);
        QSignalSpy looked(timer, &QTimer::timeout);
        f.frame->setReading(true);
        f.backups().startAutomatic();
        timer->setInterval(0);
        QTRY_VERIFY(!looked.isEmpty());
        QTest::qWait(50);
        QCOMPARE(Profiles::list({}).size(), 0); // not while the panel is read
        f.frame->setReading(false);
        timer->setInterval(0);
        QTRY_COMPARE(f.list()->topLevelItemCount(), 1);
        QCOMPARE(f.list()->topLevelItem(0)->text(2), "automatic"_s);
        QVERIFY(!timer->isActive());
        QVERIFY(!f.backups().isHolding());
        f.backups().startAutomatic(); // once
        QVERIFY(!timer->isActive());
        f.changeAll();
        f.frame->setReading(true);
        f.frame->setReading(false);
        QVERIFY(!timer->isActive()); // only the first read counts
    }

    void theEndOfTheProgramIsNotHeldUp()
    {
        BackupsFixture f(Panel::None);
        f.fill();
        f.press("createBackup");
        QTRY_COMPARE(f.list()->topLevelItemCount(), 1);
        f.changeAll();
        const QStringList before = f.inStore();
        f.backups().open(f.backups().backups().first().folder);
        f.backups().finish();
        QVERIFY(!f.backups().isBusy() && !f.backups().isHolding());
        auto content = loadBackup(f.backups().backups().first().folder);
        f.backups().import(std::make_shared<const BackupContent>(*content), false, false);
        QVERIFY(f.edits().isReading());
        f.backups().finish(); // before it has come to the exchange, or behind it
        QVERIFY(!f.edits().isReading());
        const bool isOld = f.inStore() == before;
        QVERIFY(isOld || f.store.getTitleText(Web) == "Old"_s);
        QVERIFY(f.edits().saveNow());
        QCOMPARE(f.edits().history().canUndo(), true);
    }

    void aWholeConfigurationOnAnEmptyProgramAndPanel()
    {
        const QTemporaryDir folder;
        QByteArray script;
        QStringList stored;
        {
            BackupsFixture f(Panel::None);
            const QString photo = pictureFile(f.path("photo.png"), Qt::blue, {300, 200});
            const QString face = pictureFile(f.path("face.png"), Qt::yellow);
            for (const QColor colour : {Qt::red, Qt::green, Qt::blue})
                writeTestFile(f.path("film") + colour.name().mid(1) + ".avi"_s, SmallAvi::file(colour));
            const QStringList films = QDir(f.path(".")).entryList({"film*.avi"_s});
            QVector<MultiActionEntry> lists;
            for (int lid = 1; lid <= 3; ++lid) {
                if (lid > 1)
                    QVERIFY(saveCustomLayout(customLayoutOf(lid, "L%1"_s.arg(lid), LayoutGrouping())));
                for (int page = 1; page <= MaxPage; ++page)
                    for (int kid = FirstKeyId; kid <= LastKeyId; ++kid) {
                        const key_id_t key{lid, page, kid};
                        const int fids[] = {OPEN_WEB_FID, MULTIPLE_ACTIONS_FID, TEXT_OUTPUT_FID, VIDEO_FID,
                                            5};
                        const int fid = fids[kid % 5];
                        f.store.createKeyAttribute(key, fid);
                        f.store.setTitle(key, "é%1"_s.arg(kid));
                        f.store.setUrlOrPath(key, fid == TEXT_OUTPUT_FID ? QString(300, QLatin1Char('x'))
                                                                         : "https://a.test"_s);
                        if (kid < 4)
                            f.store.setCustomImage(key, kid == 1 ? photo : face);
                        if (fid == VIDEO_FID)
                            f.store.setCustomVideo(key, f.path("./") + films.at(page % films.size()));
                        if (fid == MULTIPLE_ACTIONS_FID)
                            lists.append({key, {{3, 0, "https://a.test"_s}, {100, 500, {}}}});
                    }
            }
            QString error;
            QVERIFY(multiActionStore().writeAll(lists, error));
            QVERIFY(f.edits().saveNow());
            stored = f.inStore();
            const auto made = Profiles::create(folder.path(), f.store);
            QCOMPARE(made.leftOut, QStringList());
            QVERIFY(made.counts == (BackupCounts{3, 48, 720, 144, 144}));
            script = currentScript();
        }
        BackupsFixture f;
        f.backups().setDirectory(folder.path());
        QElapsedTimer timer;
        timer.start();
        f.import("importToPanel");
        QCOMPARE(f.inStore(), stored);
        QVERIFY(buildScript(f.store, multiActionStore()) == script);
        f.waitForPanel();
        const PanelState panel = f.panel->state();
        QCOMPARE(panel.keys.size(), 720);
        QCOMPARE(panel.layouts.size(), 2);
        const Script parts = parseScript(script);
        for (const PagePayload &page : parts.pages)
            for (const KeyRecord &record : page.records) {
                const ScriptKey extra = parts.keys.value({record.layoutId, record.pageId, record.keyId});
                const PanelKey key = panel.keys.value({record.layoutId, record.pageId, record.keyId});
                QVERIFY(key.record.title == record.title && key.record.functionId == record.functionId);
                QCOMPARE(key.content.size(), record.functionId == TEXT_OUTPUT_FID ? 600 : 14);
                QVERIFY(key.picture == extra.picture && key.video == extra.video);
                QCOMPARE(ActionList::decode(key.actions).size(), int(extra.actions.size()));
            }
        QCOMPARE(f.panel->violations().join("; "_s), QString());
    }
};

QTEST_MAIN(tst_ui_main_backups)
#include "tst_ui_main_backups.moc"
