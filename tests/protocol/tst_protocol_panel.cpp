// The protocol thread and the panel in software: what one says, the other must understand.
#include "model/functionids.h"
#include "model/scriptcontainer.h"
#include "support/panelbehindfake.h"
#include "threadfixture.h"

#include <QImage>
#include <QtTest>

namespace {

const vorlinmodel::key_id_t Key{1, 1, 3};

} // namespace

class PanelTest : public QObject
{
    Q_OBJECT
private slots:
    void editsAndFilesArriveWhole()
    {
        ThreadFixture fixture;
        PanelBehindFake panel;
        const auto end = qScopeGuard([&fixture] { fixture.thread.stop(); }); // who would write to no panel
        vorlinmodel::FunctionManager &store = fixture.store;
        store.createKeyAttribute(Key, vorlinmodel::TEXT_OUTPUT_FID);
        store.setTitle(Key, "标题"_s + QString(60, QLatin1Char('x')));
        store.setUrlOrPath(Key, QString(100, QLatin1Char('y')));
        QImage image(20, 20, QImage::Format_RGB32);
        image.fill(Qt::blue);
        QVERIFY(image.save("blue.png"_s));
        store.setCustomImage(Key, QDir::current().filePath("blue.png"_s));
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
        writeFile("fw.bin"_s, firmware);
        writeFile("upload.txt"_s, "text");
        fixture.postFile(MD_FUNCTION_CODE_UPGRADE, "fw.bin"_s);
        QTRY_COMPARE(fixture.events("finished"), texts({"finished 1"}));
        QVERIFY(fixture.events().contains("log check crc success"_s));
        fixture.postFile(MD_FUNCTION_CODE_UPLOAD_FILE, "upload.txt"_s);
        QTRY_COMPARE(panel.state().files.value("upload.txt"_s), QByteArray("text"));
        QCOMPARE(panel.state().firmware, firmware);
        QCOMPARE(panel.violations().join("; "_s), QString());
    }
};

QTEST_GUILESS_MAIN(PanelTest)
#include "tst_protocol_panel.moc"
