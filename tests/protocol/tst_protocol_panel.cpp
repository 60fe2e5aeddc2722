// The protocol thread and the panel in software: what one says, the other must understand.
#include "model/functionids.h"
#include "model/scriptcontainer.h"
#include "panel_model/panelmodel.h"
#include "threadfixture.h"

#include <QColor>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QtTest>

using vorlinmodel::RequestKind;

namespace {

const vorlinmodel::key_id_t Key{1, 1, 3};

/// The panel behind the fake library; the protocol thread and the test take turns.
class PanelBehindFake
{
public:
    explicit PanelBehindFake(ThreadFixture &fixture)
        : mFixture(fixture)
    {
        fakeHid().setOnWrite([this](const QByteArray &report) { receive(report); });
    }

    ~PanelBehindFake() { mFixture.thread.stop(); } // who would else write to a panel that is gone
    PanelBehindFake(const PanelBehindFake &) = delete;
    PanelBehindFake &operator=(const PanelBehindFake &) = delete;

    template <typename Use>
    auto with(Use &&use)
    {
        const std::lock_guard lock(mMutex);
        const auto result = use(mPanel);
        answer();
        return result;
    }

private:
    void receive(const QByteArray &report)
    {
        const std::lock_guard lock(mMutex);
        if (mPanel.awaitsPausedBlock() && mSinceLast.nsecsElapsed() < 2'000'000)
            mPanel.noteViolation(QStringLiteral("no pause between two blocks"));
        mPanel.receive(report);
        mSinceLast.start();
        answer();
    }

    void answer()
    {
        for (const QByteArray &report : mPanel.takeOutgoing())
            fakeHid().send(report);
    }

    ThreadFixture &mFixture;
    std::mutex mMutex;
    PanelModel mPanel;
    QElapsedTimer mSinceLast;
};

void fillKey(vorlinmodel::FunctionManager &store)
{
    QImage image(20, 20, QImage::Format_RGB32);
    image.fill(Qt::blue);
    image.save(QStringLiteral("blue.png"));
    store.createKeyAttribute(Key, vorlinmodel::TEXT_OUTPUT_FID);
    store.setTitle(Key, QStringLiteral("标题") + QString(60, QLatin1Char('x')));
    store.setTitleFontColor(Key, QColor(1, 2, 3));
    store.setUrlOrPath(Key, QString(100, QLatin1Char('y')));
    store.setCustomImage(Key, QDir::current().filePath(QStringLiteral("blue.png")));
}

void writeFile(const QString &name, const QByteArray &bytes)
{
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

} // namespace

class PanelTest : public QObject
{
    Q_OBJECT
private slots:
    void editsArriveWhole()
    {
        ThreadFixture fixture;
        PanelBehindFake panel(fixture);
        fillKey(fixture.store);
        for (const quint32 id : {8U, 1U, 2U, 3U, 6U, 7U, 12U, 17U, 9U})
            fixture.post(RequestKind::MD_FUNCTION_CODE_KEY_ATTRIBUTE, 1, 1, 3, 15, id);
        vorlinmodel::setCurrentScript(QByteArray(200, 's'));
        fixture.post(RequestKind::MD_FUNCTION_CODE_CONFIGFILE);
        fixture.post(RequestKind::MD_FUNCTION_CODE_HOME_LAYOUT, 1);
        fixture.post(RequestKind::MD_FUNCTION_CODE_LCD_LIGHT, 33);
        fixture.post(RequestKind::MD_FUNCTION_CODE_SYSTEM_TYPE, 1);
        fixture.thread.start();
        QTRY_COMPARE(fixture.events("received 12"),
                     QStringList(QStringLiteral("received 12 01 00 00 00 01")));
        const PanelState state = panel.with([](PanelModel &model) { return model.state(); });
        const PanelKey key = state.keys.value({1, 1, 3});
        QCOMPARE(key.record.title, hex("b1ea cce2") + QByteArray(60, 'x'));
        QCOMPARE(int{key.record.blue}, 3);
        QCOMPARE(key.content, hex("7900").repeated(100));
        QCOMPARE(QImage::fromData(key.picture).size(), QSize(90, 84));
        QCOMPARE(state.configFile, QByteArray(200, 's'));
        QCOMPARE(int{state.brightness}, 33);
        QCOMPARE(panel.with([](PanelModel &model) { return model.violations(); }), QStringList());
        vorlinmodel::setCurrentScript({});
    }

    void panelIsReadBack()
    {
        ThreadFixture fixture;
        PanelBehindFake panel(fixture);
        fixture.store.createKeyAttribute(Key, vorlinmodel::TEXT_OUTPUT_FID);
        fixture.store.setUrlOrPath(Key, QStringLiteral("typed"));
        fixture.post(RequestKind::MD_FUNCTION_CODE_KEY_ATTRIBUTE, 1, 1, 3, 15, 8);
        fixture.post(RequestKind::MD_FUNCTION_CODE_HARDWARE_VERSION);
        fixture.post(RequestKind::MD_FUNCTION_CODE_READ_CONFIGFILE);
        fixture.thread.start();
        QTRY_COMPARE(fixture.events("received 08").size(), 1);
        QCOMPARE(fixture.events("received 03").size(), 1);
        // Function code, length, layout, page, then the record of the one key.
        QVERIFY(fixture.events("received 08")
                    .first()
                    .startsWith(QStringLiteral("received 08 12 01 00 00 01 01 01 01 03 00 00 0f")));
        QVERIFY(panel.with([](PanelModel &model) { return model.pressKey(3); }));
        QTRY_COMPARE(fixture.events("exec"), QStringList(QStringLiteral("exec 15 typed")));
        QCOMPARE(panel.with([](PanelModel &model) { return model.violations(); }), QStringList());
    }

    void firmwareIsTaken()
    {
        ThreadFixture fixture;
        PanelBehindFake panel(fixture);
        const QByteArray firmware = hex("00 01 02 fd fe ff").repeated(100);
        writeFile(QStringLiteral("fw.bin"), firmware);
        writeFile(QStringLiteral("upload.txt"), "text");
        fixture.postFile(RequestKind::MD_FUNCTION_CODE_UPGRADE, QStringLiteral("fw.bin"));
        fixture.thread.start();
        QTRY_COMPARE(fixture.events("finished"), QStringList(QStringLiteral("finished 1")));
        QVERIFY(fixture.events().contains(QStringLiteral("log check crc success")));
        fixture.postFile(RequestKind::MD_FUNCTION_CODE_UPLOAD_FILE, QStringLiteral("upload.txt"));
        QTRY_COMPARE(panel.with([](PanelModel &model) {
            return model.state().files.value(QStringLiteral("upload.txt"));
        }),
                     QByteArray("text"));
        QCOMPARE(panel.with([](PanelModel &model) { return model.state().firmware; }), firmware);
        QCOMPARE(panel.with([](PanelModel &model) { return model.violations(); }), QStringList());
    }
};

QTEST_GUILESS_MAIN(PanelTest)
#include "tst_protocol_panel.moc"
