// Videos on keys: made by the real tool, sent to the panel in software, cancelled at every stage.
#include "editorfixture.h"
#include "model/functionids.h"
#include "support/ffmpegtool.h"
#include "support/table.h"
#include "ui_common/messagebox.h"
#include "ui_editor/keywidget.h"
#include "ui_editor/transferbar.h"

using vorlinmodel::key_id_t;
using Panel = EditorFixture::Panel;

namespace {

const key_id_t Key{1, 1, 3};
const key_id_t Other{1, 1, 4};

/// Video keys, and what is told about their videos.
class VideoFixture : public EditorFixture
{
public:
    explicit VideoFixture(Panel withPanel = Panel::Present)
        : EditorFixture(withPanel)
    {
        for (const key_id_t &key : {Key, Other}) {
            store.createKeyAttribute(key, vorlinmodel::VIDEO_FID);
            editor().edits.send(key, vorlinmodel::VIDEO_FID, vorlinmodel::AttributeId::FunctionId);
        }
        videos().connect(&videos(), &VideoPlacement::sigFinished,
                         [this](const key_id_t &key, const QString &problem, bool cancelled) {
                             const QString end = cancelled ? "cancelled"_s : "done"_s;
                             finished += "%1 %2"_s.arg(key.kid).arg(problem.isEmpty() ? end : problem);
                         });
    }

    VideoPlacement &videos() { return editor().videos; }
    QString make(const char *name, const char *source, const QStringList &more = {}) const
    {
        makeFilm(path(name), QString::fromUtf8(source), more);
        return path(name);
    }
    /// A video that the panel plays; each frame takes it about 0.15 s.
    QString ready(const char *name, int frames = 12) const
    {
        return make(name, "testsrc=size=90x84:rate=15",
                    {"-frames:v"_s, QString::number(frames), "-c:v"_s, "mjpeg"_s, "-pix_fmt"_s, "yuvj420p"_s,
                     "-q:v"_s, "2"_s});
    }
    QString video() const { return store.getDefaultImage(Key); }
    QByteArray onPanel() const { return panel->state().keys.value({1, 1, 3}).video; }
    static QByteArray bytesOf(const QString &file)
    {
        QFile bytes(file);
        return bytes.open(QIODevice::ReadOnly) ? bytes.readAll() : QByteArray("cannot be read");
    }
    QStringList converted() const
    {
        return QDir(path("devConfig/converted/keys")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }
    /// Puts @p first on the key and waits until the panel has it.
    bool begin(const QString &first)
    {
        videos().place(Key, first);
        return QTest::qWaitFor([this] { return !videos().isBusy(); }, 20000) && onPanel() == bytesOf(first);
    }
    /// Waits until blocks of a video have been sent.
    bool isSending()
    {
        return QTest::qWaitFor([this] { return videos().isBusy() && videos().activity()->done > 0; }, 20000);
    }

    QStringList finished; ///< "key done", "key cancelled" or "key problem"
};

} // namespace

class VideosTest : public QObject
{
    Q_OBJECT

    using StaysTable = Table<bool, bool>;

private slots:
    void initTestCase()
    {
        if (!toolMakesFilms())
            QSKIP("there is no ffmpeg beside this program that makes films");
    }
    void cleanup() { MessageBox::setAnswer({}); }

    void aFilmIsConvertedSentAndUndone()
    {
        VideoFixture fixture;
        const QString film = fixture.make("my film %2.mp4", "testsrc=duration=1:size=320x240:rate=30");
        QSignalSpy notices(&fixture.videos(), &VideoPlacement::sigNotice);
        fixture.videos().place(Key, film);
        QVERIFY(fixture.finished.isEmpty() && fixture.videos().isBusy());
        QTRY_COMPARE_WITH_TIMEOUT(fixture.finished, QStringList("3 done"_s), 20000);
        QCOMPARE(QFileInfo(fixture.video()).fileName(), "my film %2.avi"_s);
        QCOMPARE(fixture.onPanel(), VideoFixture::bytesOf(fixture.video()));
        QCOMPARE(notices.size(), 1);
        QVERIFY(notices.first().first().toString().contains("of at most 10 MB, about "_s));
        QCOMPARE(fixture.editor().edits.history().count(), 1);

        const QString converted = fixture.video();
        fixture.editor().edits.undo();
        QTRY_VERIFY(fixture.onPanel().isEmpty());
        fixture.editor().edits.redo(); // the file is still there
        QTRY_COMPARE(fixture.onPanel(), VideoFixture::bytesOf(converted));
        QCOMPARE(fixture.panel->violations().join("; "_s), QString());
    }

    void cancelLeavesWhatThePanelHas_data()
    {
        const StaysTable row; // another edit meanwhile, by undo
        row("nothing else was done", false, false);
        row("the title was changed meanwhile", true, false);
        row("a video that undo brings back", false, true);
    }

    void cancelLeavesWhatThePanelHas()
    {
        const auto [edited, byUndo] = StaysTable::current();
        VideoFixture fixture;
        const QString old = fixture.ready("old.avi", byUndo ? 12 : 3);
        const QString film = fixture.ready("new.avi", byUndo ? 3 : 12);
        QVERIFY(fixture.begin(old));
        KeyEdits &edits = fixture.editor().edits;
        TransferBar bar(fixture.videos(), nullptr);
        fixture.videos().place(Key, film);
        QString stays = old;
        if (byUndo) {
            QTRY_VERIFY(!fixture.videos().isBusy());
            edits.undo();
            stays = film;
        }
        QVERIFY(fixture.isSending());
        if (edited)
            edits.change("Title"_s, {Key}, [&] {
                fixture.store.setTitle(Key, "new"_s);
                edits.send(Key, 17, vorlinmodel::AttributeId::Title);
            });
        const int steps = edits.history().count();
        QTRY_VERIFY(bar.isVisible());
        QVERIFY(bar.accessibleName().startsWith("Sending to key 3 ... "_s));
        bar.findChild<QPushButton *>("transferCancel"_s)->click();
        QTRY_VERIFY(!fixture.videos().isBusy());
        QTRY_VERIFY(edits.pending().keys().isEmpty()); // the title follows
        QVERIFY(!bar.isVisible());
        QCOMPARE(fixture.finished.last(), byUndo ? "3 done"_s : "3 cancelled"_s);
        QCOMPARE(fixture.video(), stays);
        QCOMPARE(fixture.onPanel(), VideoFixture::bytesOf(stays));
        QCOMPARE(fixture.store.getKeyAttribute(Key)->strTitle == "new"_s, edited);
        QCOMPARE(edits.history().count(), edited ? steps + 1 : steps);
        QCOMPARE(edits.history().canRedo(), !edited && !byUndo);
        QCOMPARE(fixture.panel->violations().join("; "_s), QString());

        edited || byUndo ? edits.undo() : edits.redo(); // what was cancelled can be had again
        const QString again = byUndo ? old : film;
        QTRY_COMPARE_WITH_TIMEOUT(fixture.onPanel(), VideoFixture::bytesOf(again), 20000);
        QCOMPARE(fixture.video(), again);
    }

    void everyCancelGoesBackToThePanelsVideo()
    {
        VideoFixture fixture;
        const QString old = fixture.ready("old.avi", 3);
        QVERIFY(fixture.begin(old));
        for (const char *name : {"b.avi", "c.avi"}) {
            fixture.videos().place(Key, fixture.ready(name, 12));
            QVERIFY(fixture.isSending());
            fixture.videos().cancel(Key);
            QTRY_VERIFY(!fixture.videos().isBusy());
            QCOMPARE(fixture.video(), old);
        }
        QCOMPARE(fixture.onPanel(), VideoFixture::bytesOf(old));
    }

    void anotherVideoTakesThePlaceOfOneThatIsSent()
    {
        VideoFixture fixture;
        const QString old = fixture.ready("old.avi", 3);
        QVERIFY(fixture.begin(old));
        fixture.videos().place(Key, fixture.ready("new.avi"));
        QVERIFY(fixture.isSending());
        const QString last = fixture.ready("last.avi", 2);
        fixture.videos().place(Key, last);
        QTRY_COMPARE(fixture.finished, QStringList({"3 done"_s, "3 cancelled"_s, "3 done"_s}));
        QCOMPARE(fixture.onPanel(), VideoFixture::bytesOf(last));
        fixture.editor().edits.undo();
        QCOMPARE(fixture.video(), old);
    }

    void conversionsQueueAndEachCanBeCancelled()
    {
        VideoFixture fixture(Panel::None);
        const QString film = fixture.make("film.mkv", "testsrc=duration=3:size=640x480:rate=30");
        fixture.videos().place(Key, film);
        fixture.videos().place(Other, film);
        QCOMPARE(fixture.videos().activity()->key, Key);
        QCOMPARE(fixture.videos().activity()->waiting, 1);
        fixture.videos().cancel(Key);
        fixture.videos().place(Key, QCoreApplication::applicationFilePath()); // no film
        QTRY_COMPARE_WITH_TIMEOUT(fixture.finished.size(), 3, 20000);
        QCOMPARE(fixture.finished.mid(0, 2), QStringList({"3 cancelled"_s, "4 done"_s}));
        QVERIFY(fixture.finished.last().contains("tst_ui_editor_videos"_s));
        QCOMPARE(fixture.converted(), QStringList("film.avi"_s)); // of the other key
        QCOMPARE(fixture.editor().edits.history().count(), 1);
    }

    void tooLongOffersToCut()
    {
        VideoFixture fixture(Panel::None);
        const QString film =
            fixture.make("long.mp4", "color=duration=3000:size=16x16:rate=15", {"-c:v"_s, "mpeg4"_s});
        QStringList questions;
        MessageBox::setAnswer([&](const QMessageBox &box) {
            questions += box.text();
            return questions.size() == 1 ? QMessageBox::Cancel : QMessageBox::Yes;
        });
        fixture.videos().place(Key, film);
        QTRY_COMPARE_WITH_TIMEOUT(fixture.finished, QStringList("3 cancelled"_s), 20000);
        fixture.videos().place(Key, film);
        QTRY_COMPARE_WITH_TIMEOUT(questions.size(), 2, 20000);
        QVERIFY(questions.last().contains("seconds of it fit into 10.0 MB"_s));
        QTRY_VERIFY_WITH_TIMEOUT(fixture.videos().activity()->done > 0, 20000); // goes on with what fits
    }

    void aDropGoesOnWithTheConvertedFilm()
    {
        VideoFixture fixture(Panel::None);
        fixture.takeRequests();
        const QString picture = pictureFile(fixture.path("p.png"), Qt::red);
        KeyWidget cell(fixture.editor(), KeyDescriptor(1, 1, 3, 4), nullptr);
        cell.setup();
        cell.updateFid();
        cell.takePicture(picture, fixture.make("film.gif", "testsrc=duration=1:size=64x64:rate=10"));
        QTRY_COMPARE_WITH_TIMEOUT(fixture.finished, QStringList("3 done"_s), 20000);
        QCOMPARE(QFileInfo(fixture.video()).fileName(), "film.avi"_s);
        QCOMPARE(fixture.store.getCustomImage(Key), picture);
        QCOMPARE(fixture.takeRequests(), QStringList("1: 1 1 3, fid 17, id 10"_s)); // no id 5, no dialog

        // At the end of the program, what no key has goes.
        QFile::copy(fixture.video(), fixture.path("devConfig/converted/keys/old.avi"));
        QDir().mkpath(fixture.path("devConfig/converted/keys/convert-abc"));
        fixture.context.reset();
        QCOMPARE(fixture.converted(), QStringList("film.avi"_s));
    }
};

QTEST_MAIN(VideosTest)
#include "tst_ui_editor_videos.moc"
