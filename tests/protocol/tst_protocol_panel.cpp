// The protocol thread and the panel in software: what one says, the other must understand.
#include "model/functionids.h"
#include "model/scriptcontainer.h"
#include "panel_model/panelmodel.h"
#include "threadfixture.h"

#include <QElapsedTimer>
#include <QImage>
#include <QtTest>

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

    PanelState state()
    {
        const std::lock_guard lock(mMutex);
        return mPanel.state();
    }
    QStringList violations()
    {
        const std::lock_guard lock(mMutex);
        return mPanel.violations();
    }

private:
    void receive(const QByteArray &report)
    {
        const std::lock_guard lock(mMutex);
        if (mPanel.awaitsPausedBlock() && mSinceLast.nsecsElapsed() < 2'000'000)
            mPanel.noteViolation(QStringLiteral("no pause between two blocks"));
        mPanel.receive(report);
        mSinceLast.start();
        for (const QByteArray &answer : mPanel.takeOutgoing())
            fakeHid().send(answer);
    }

    ThreadFixture &mFixture;
    std::mutex mMutex;
    PanelModel mPanel;
    QElapsedTimer mSinceLast;
};

} // namespace

class PanelTest : public QObject
{
    Q_OBJECT
private slots:
    void editsAndFilesArriveWhole()
    {
        ThreadFixture fixture;
        PanelBehindFake panel(fixture);
        vorlinmodel::FunctionManager &store = fixture.store;
        store.createKeyAttribute(Key, vorlinmodel::TEXT_OUTPUT_FID);
        store.setTitle(Key, QStringLiteral("标题") + QString(60, QLatin1Char('x')));
        store.setUrlOrPath(Key, QString(100, QLatin1Char('y')));
        QImage image(20, 20, QImage::Format_RGB32);
        image.fill(Qt::blue);
        QVERIFY(image.save(QStringLiteral("blue.png")));
        store.setCustomImage(Key, QDir::current().filePath(QStringLiteral("blue.png")));
        for (const quint32 id : {8U, 6U, 12U, 17U, 9U})
            fixture.post(MD_FUNCTION_CODE_KEY_ATTRIBUTE, 1, 1, 3, 15, id);
        vorlinmodel::setCurrentScript(QByteArray(200, 's'));
        fixture.post(MD_FUNCTION_CODE_CONFIGFILE);
        fixture.post(MD_FUNCTION_CODE_HOME_LAYOUT, 1);
        fixture.post(MD_FUNCTION_CODE_LCD_LIGHT, 33);
        fixture.post(MD_FUNCTION_CODE_SYSTEM_TYPE, 1);
        fixture.thread.start();
        QTRY_COMPARE(fixture.events("received 12"), texts({"received 12 01 00 00 00 01"}));
        const PanelState state = panel.state();
        const PanelKey key = state.keys.value({1, 1, 3});
        QCOMPARE(key.record.title, hex("b1ea cce2") + QByteArray(60, 'x'));
        QCOMPARE(key.content, hex("7900").repeated(100));
        QCOMPARE(QImage::fromData(key.picture).size(), QSize(90, 84));
        QCOMPARE(state.configFile, QByteArray(200, 's'));
        QCOMPARE(int{state.brightness}, 33);
        vorlinmodel::setCurrentScript({});
        const QByteArray firmware = hex("00 01 02 fd fe ff").repeated(100);
        writeFile(QStringLiteral("fw.bin"), firmware);
        writeFile(QStringLiteral("upload.txt"), "text");
        fixture.postFile(MD_FUNCTION_CODE_UPGRADE, QStringLiteral("fw.bin"));
        QTRY_COMPARE(fixture.events("finished"), texts({"finished 1"}));
        QVERIFY(fixture.events().contains(QStringLiteral("log check crc success")));
        fixture.postFile(MD_FUNCTION_CODE_UPLOAD_FILE, QStringLiteral("upload.txt"));
        QTRY_COMPARE(panel.state().files.value(QStringLiteral("upload.txt")), QByteArray("text"));
        QCOMPARE(panel.state().firmware, firmware);
        QCOMPARE(panel.violations(), QStringList());
    }
};

QTEST_GUILESS_MAIN(PanelTest)
#include "tst_protocol_panel.moc"
