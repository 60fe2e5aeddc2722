#include "base/systemsettings.h"
#include "model/scriptcontainer.h"
#include "support/table.h"
#include "threadfixture.h"

class DeviceRequestsTest : public QObject
{
    Q_OBJECT
    using UploadTable = Table<QString, QByteArray>;

private slots:
    void singleMessages()
    {
        const struct
        {
            quint32 kind;
            quint32 layoutId;
            const char *message;
            const char *line;
        } requests[] = {
            {3, 0, "03", "processReadDevVersion isSoft:0"},
            {4, 0, "04", "processReadDevVersion isSoft:1"},
            {7, 0x101, "07 02 00 00 00 01 02", "processSelectPage layoutid:257, pageid:2"},
            {8, 1, "08", "processReadDeviceAllKeyboard layoutid:1, pageid:2"},
            {14, 9, "0e 01 00 00 00 09", "processCustomLayoutDel layoutid:9, pageid:2"},
            {15, 1, "0f 01 00 00 00 5a", "MD_FUNCTION_CODE_DEL_CONFIGFILE Layoutid:1 pageid:2"},
            {16, 254, "10 02 00 00 00 00 fe", "MD_FUNCTION_CODE_LCD_LIGHT  lcd light:254"},
            {16, 255, "10 02 00 00 00 01 00", "processGetDevLcdLight"},
            {17, 255, "11", "processGetHomeLayoutInfo"},
            {18, 1, "12 01 00 00 00 01", "processSetUserSystemType layoutid:1"},
        };
        ThreadFixture fixture;
        QStringList messages;
        for (const auto &request : requests) {
            fixture.post(static_cast<RequestKind>(request.kind), request.layoutId, 2);
            messages << QString::fromLatin1(request.message);
        }
        fixture.thread.start();
        QTRY_COMPARE(fixture.messages(), messages);
        for (const auto &request : requests)
            QVERIFY2(fixture.linesWith(request.line).size() == 1, request.line);
    }

    void blockDelayIsKeptAndAnUnknownKindDropped()
    {
        ThreadFixture fixture;
        fixture.postBlockDelay(5);
        fixture.post(MD_FUNCTION_CODE_KEY_ATTRIBUTE, 1, 1, 1, 1, 4);
        fixture.post(static_cast<RequestKind>(9), 1, 2, 3, 4, 5);
        fixture.thread.start();
        QTRY_COMPARE(
            fixture.linesWith("Functioncode:9"),
            texts({"1 ProtocolThread::process Functioncode:9 Layoutid:1 keyid:3 fid:4 attrbuteid:5"}));
        QCOMPARE(fixture.linesWith("attrbuteid:4 timeout:5").size(), 1);
        QCOMPARE(fixture.events(), texts({"log set timeout 5 ms\n"}));
        QVERIFY(fixture.messages().isEmpty());
    }

    void layouts()
    {
        ThreadFixture fixture;
        // The title "L" and two keys: physical 1 to 2, and 6.
        writeFile("devConfig/customLayout.ini"_s,
                  "[layout_7]\nnum=2\nname=L\nphyid_1=\"1#1#1&2#1#2&\"\nphyid_2=\"6#2#1&\"\n1_bitmap=3\n"
                  "2_bitmap=32\n");
        vorlindesk::SystemSettings::setHomeLayoutEntries({{2, 1, 3, 4}, {15, -1, -1, -1}});
        fixture.post(MD_FUNCTION_CODE_CUSTOMLAYOUT_SET, 8); // there is none
        fixture.post(MD_FUNCTION_CODE_CUSTOMLAYOUT_SET, 7);
        fixture.post(MD_FUNCTION_CODE_HOME_LAYOUT, 6);
        fixture.thread.start();
        const QByteArray custom =
            hex("0d 8a 00 00 00 07 01 02 00 4c") + QByteArray(127, '\0') + hex("01 01 02 02 06 06");
        QTRY_COMPARE(fixture.messages(), QStringList({QString::fromLatin1(custom.toHex(' ')),
                                                      "11 0a 00 00 00 06 02 02 01 03 04 0f ff ff ff"_s}));
        QTRY_COMPARE(fixture.linesWith("Layout success"),
                     texts({"1 transfer CustomLayout success", "1 transfer HomeLayout success"}));
        QCOMPARE(fixture.linesWith("does not exist"), texts({"3 custom layout 8 does not exist"}));
    }

    void configurationFile()
    {
        ThreadFixture fixture;
        vorlinmodel::setCurrentScript({});
        fixture.post(MD_FUNCTION_CODE_CONFIGFILE);
        fixture.thread.start();
        QTRY_COMPARE(fixture.events(), texts({"script"})); // nothing to send, but who waits is told
        vorlinmodel::setCurrentScript("script");
        fixture.post(MD_FUNCTION_CODE_CONFIGFILE);
        QTRY_COMPARE(fixture.events("script").size(), 2);
        QCOMPARE(fixture.messages(), texts({"05 06 00 00 00 73 63 72 69 70 74"}));
        vorlinmodel::setCurrentScript({});
    }

    void upload_data()
    {
        // nameField: 32 bytes
        const UploadTable row;
        row("cut on a whole character", QString(31, QLatin1Char('n')) + "中.bin"_s,
            QByteArray(31, 'n') + QByteArray(1, '\0'));
        row("just fits", QString(32, QLatin1Char('n')), QByteArray(32, 'n'));
    }

    void upload()
    {
        const auto [name, nameField] = UploadTable::current();
        ThreadFixture fixture;
        writeFile(name, "xyz");
        fixture.postFile(MD_FUNCTION_CODE_UPLOAD_FILE, QDir::current().filePath(name));
        fixture.thread.start();
        const QByteArray message = hex("06 24 00 00 00 10") + nameField + "xyz";
        QTRY_COMPARE(fixture.messages(), QStringList(QString::fromLatin1(message.toHex(' '))));
    }

    void uploadThatCannotBeSent()
    {
        ThreadFixture fixture;
        writeFile("large"_s, {});
        QVERIFY(QFile::resize("large"_s, 10 * 1024 * 1024 - 37)); // message of 10 MiB + 1
        for (const QString &name : texts({"none", "large", "devConfig"}))
            fixture.postFile(MD_FUNCTION_CODE_UPLOAD_FILE, name);
        fixture.thread.start();
        QTRY_COMPARE(fixture.linesWith("3 upload ").size(), 3);
        QVERIFY(fixture.messages().isEmpty());
    }
};

QTEST_GUILESS_MAIN(DeviceRequestsTest)
#include "tst_protocol_devicerequests.moc"
