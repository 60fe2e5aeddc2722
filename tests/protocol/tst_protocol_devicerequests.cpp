#include "base/systemsettings.h"
#include "model/scriptcontainer.h"
#include "threadfixture.h"

#include <QFile>
#include <QtTest>

using vorlinmodel::RequestKind;

namespace {

void writeFile(const QString &name, const QByteArray &bytes)
{
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

/// Layout 7 with the title "L" and two keys: physical 1 to 2, and 6.
void writeCustomLayout()
{
    writeFile(
        QStringLiteral("devConfig/customLayout.ini"),
        "[layout_7]\nnum=2\nname=L\nphyid_1=\"1#1#1&2#1#2&\"\nphyid_2=\"6#2#1&\"\n1_bitmap=3\n2_bitmap=32\n");
}

} // namespace

class DeviceRequestsTest : public QObject
{
    Q_OBJECT
private slots:
    void singleMessages_data()
    {
        QTest::addColumn<quint32>("kind");
        QTest::addColumn<quint32>("layoutId");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QStringList>("lines");
        const auto row = [](const char *name, quint32 kind, quint32 layoutId, const char *message,
                            std::initializer_list<const char *> texts) {
            QStringList lines;
            for (const char *text : texts)
                lines << QLatin1String("1 ") + QLatin1String(text);
            QTest::newRow(name) << kind << layoutId << QString::fromLatin1(message) << lines;
        };
        row("hardware version", 3, 0, "03",
            {"ProtocolThread::process MD_FUNCTION_CODE_HARDWARE_VERSION ", "processReadDevVersion isSoft:0"});
        row("software version", 4, 0, "04",
            {"ProtocolThread::process MD_FUNCTION_CODE_SOFTWARE_VERSION ", "processReadDevVersion isSoft:1"});
        row("select page", 7, 0x101, "07 02 00 00 00 01 02",
            {"ProtocolThread::process MD_FUNCTION_CODE_SELECT_PAGE Layoutid:257 pageid:2",
             "processSelectPage layoutid:257, pageid:2"});
        row("read configuration", 8, 1, "08",
            {"ProtocolThread::process MD_FUNCTION_CODE_READ_CONFIGFILE Layoutid:1 pageid:2",
             "processReadDeviceAllKeyboard layoutid:1, pageid:2"});
        row("delete custom layout", 14, 9, "0e 01 00 00 00 09",
            {"ProtocolThread::process MD_FUNCTION_CODE_CUSTOMLAYOUT_DEL ",
             "processCustomLayoutDel layoutid:9, pageid:2"});
        row("delete configuration", 15, 1, "0f 01 00 00 00 5a",
            {"ProtocolThread::process MD_FUNCTION_CODE_DEL_CONFIGFILE Layoutid:1 pageid:2"});
        row("set brightness", 16, 254, "10 02 00 00 00 00 fe",
            {"ProtocolThread::process MD_FUNCTION_CODE_LCD_LIGHT  lcd light:254",
             "processSetDevLcdLight layoutid:254, pageid:2"});
        row("query brightness", 16, 255, "10 02 00 00 00 01 00",
            {"ProtocolThread::process MD_FUNCTION_CODE_LCD_LIGHT  lcd light:255", "processGetDevLcdLight"});
        row("query home layout", 17, 255, "11",
            {"ProtocolThread::process MD_FUNCTION_CODE_HOME_LAYOUT 255", "processGetHomeLayoutInfo"});
        row("system type", 18, 1, "12 01 00 00 00 01",
            {"ProtocolThread::process MD_FUNCTION_CODE_SYSTEM_TYPE  :1",
             "processSetUserSystemType layoutid:1"});
    }

    void singleMessages()
    {
        QFETCH(quint32, kind);
        QFETCH(quint32, layoutId);
        QFETCH(QString, message);
        QFETCH(QStringList, lines);
        ThreadFixture fixture;
        fixture.post(static_cast<RequestKind>(kind), layoutId, 2);
        fixture.thread.start();
        QTRY_COMPARE(fixture.messages(), QStringList(message));
        for (const QString &line : lines)
            QVERIFY2(fixture.log.lines().contains(line), qPrintable(line));
        QTRY_VERIFY(fixture.log.lines().contains(QStringLiteral("1 send request  ok")));
    }

    void unknownKindIsLoggedAndDropped()
    {
        ThreadFixture fixture;
        fixture.post(static_cast<RequestKind>(9), 1, 2, 3, 4, 5);
        fixture.thread.start();
        QTRY_VERIFY(fixture.log.lines().contains(QStringLiteral(
            "1 ProtocolThread::process Functioncode:9 Layoutid:1 keyid:3 fid:4 attrbuteid:5")));
        QVERIFY(fixture.messages().isEmpty());
    }

    void blockDelayIsKeptAndReported()
    {
        ThreadFixture fixture;
        vorlinmodel::Request request;
        request.functionCode = static_cast<quint32>(RequestKind::SetBlockDelay);
        request.value = 5;
        fixture.thread.postRequest(request);
        fixture.post(RequestKind::MD_FUNCTION_CODE_KEY_ATTRIBUTE, 1, 1, 1, 1, 4);
        fixture.thread.start();
        QTRY_COMPARE(fixture.linesWith("attrbuteid:4 timeout:5").size(), 1);
        QCOMPARE(fixture.events(), QStringList(QStringLiteral("log set timeout 5 ms\n")));
        QVERIFY(fixture.messages().isEmpty());
    }

    void customLayout()
    {
        ThreadFixture fixture;
        writeCustomLayout();
        fixture.post(RequestKind::MD_FUNCTION_CODE_CUSTOMLAYOUT_SET, 8); // there is none
        fixture.post(RequestKind::MD_FUNCTION_CODE_CUSTOMLAYOUT_SET, 7);
        fixture.thread.start();
        const QByteArray message =
            hex("0d 8a 00 00 00 07 01 02 00 4c") + QByteArray(127, '\0') + hex("01 01 02 02 06 06");
        QTRY_COMPARE(fixture.messages(), QStringList(QString::fromLatin1(message.toHex(' '))));
        QTRY_VERIFY(fixture.log.lines().contains(QStringLiteral("1 transfer CustomLayout success")));
        for (const char *line : {"1 processCustomLayoutSet layoutid:7, pageid:0", "1 ----nProtoLen=[143]",
                                 "1 transfer 3 block data", "3 custom layout 8 does not exist"})
            QVERIFY2(fixture.log.lines().contains(QLatin1String(line)), line);
    }

    void homeLayoutComesFromTheSettings()
    {
        ThreadFixture fixture;
        vorlindesk::SystemSettings::setHomeLayoutEntries({{2, 1, 3, 4}, {15, -1, -1, -1}});
        fixture.post(RequestKind::MD_FUNCTION_CODE_HOME_LAYOUT, 6);
        fixture.thread.start();
        QTRY_COMPARE(fixture.messages(),
                     QStringList(QStringLiteral("11 0a 00 00 00 06 02 02 01 03 04 0f ff ff ff")));
        QTRY_VERIFY(fixture.log.lines().contains(QStringLiteral("1 transfer HomeLayout success")));
    }

    void configurationFile()
    {
        ThreadFixture fixture;
        vorlinmodel::setCurrentScript({});
        fixture.post(RequestKind::MD_FUNCTION_CODE_CONFIGFILE);
        fixture.thread.start();
        QTRY_COMPARE(fixture.events(),
                     QStringList(QStringLiteral("script"))); // nothing to send, but who waits is told
        vorlinmodel::setCurrentScript("script");
        fixture.post(RequestKind::MD_FUNCTION_CODE_CONFIGFILE);
        QTRY_COMPARE(fixture.events("script").size(), 2);
        QCOMPARE(fixture.messages(), QStringList(QStringLiteral("05 06 00 00 00 73 63 72 69 70 74")));
        vorlinmodel::setCurrentScript({});
    }

    void upload_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("nameField"); // 32 bytes
        QTest::newRow("short name") << QStringLiteral("a.bin") << QByteArray("a.bin") + QByteArray(27, '\0');
        QTest::newRow("cut on a whole character") << QString(31, QLatin1Char('n')) + QStringLiteral("中.bin")
                                                  << QByteArray(31, 'n') + QByteArray(1, '\0');
        QTest::newRow("just fits") << QString(32, QLatin1Char('n')) << QByteArray(32, 'n');
    }

    void upload()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, nameField);
        ThreadFixture fixture;
        writeFile(name, "xyz");
        fixture.postFile(RequestKind::MD_FUNCTION_CODE_UPLOAD_FILE, QDir::current().filePath(name));
        fixture.thread.start();
        const QByteArray message = hex("06 24 00 00 00 10") + nameField + "xyz";
        QTRY_COMPARE(fixture.messages(), QStringList(QString::fromLatin1(message.toHex(' '))));
    }

    void uploadThatCannotBeSent_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("missing") << QStringLiteral("none");
        QTest::newRow("too long") << QStringLiteral("large");
        QTest::newRow("a folder") << QStringLiteral("devConfig");
    }

    void uploadThatCannotBeSent()
    {
        QFETCH(QString, name);
        ThreadFixture fixture;
        QFile large(QStringLiteral("large"));
        QVERIFY(large.open(QIODevice::WriteOnly) &&
                large.resize(10 * 1024 * 1024 - 37)); // message of 10 MiB + 1
        large.close();
        fixture.postFile(RequestKind::MD_FUNCTION_CODE_UPLOAD_FILE, name);
        fixture.thread.start();
        QTRY_COMPARE(fixture.linesWith("3 upload ").size(), 1);
        QVERIFY(fixture.messages().isEmpty());
    }
};

QTEST_GUILESS_MAIN(DeviceRequestsTest)
#include "tst_protocol_devicerequests.moc"
