#include "model/functionids.h"
#include "model/multiaction.h"
#include "support/table.h"
#include "threadfixture.h"

#include <QColor>
#include <QImage>

namespace {

const vorlinmodel::key_id_t Key{1, 2, 3};

/// A key on which every attribute differs from its default.
void fill(vorlinmodel::FunctionManager &store, int fid, const QString &text)
{
    store.createKeyAttribute(Key, fid);
    store.setImageEffects(Key, 3);
    store.setDisplayMode(Key, 1);
    store.setTitleAlignment(Key, 2);
    store.setTitleFontSize(Key, 24);
    store.setTitleFontColor(Key, QColor(0x11, 0x22, 0x33));
    store.setTitle(Key, text);
    store.setUrlOrPath(Key, text);
}

} // namespace

class AttributesTest : public QObject
{
    Q_OBJECT
    using VideoTable = Table<QString, bool>;

private slots:
    void writes_data()
    {
        QTest::addColumn<quint32>("id");
        QTest::addColumn<int>("fid");
        QTest::addColumn<QString>("text"); // title and content
        QTest::addColumn<QByteArray>("message");
        QTest::addColumn<QString>("line");
        const auto row = [](const char *name, quint32 id, int fid, const QString &text,
                            const QByteArray &message, const char *line = "1 send request  ok") {
            QTest::newRow(name) << id << fid << text << message << QString::fromUtf8(line);
        };
        const QString none;
        row("image effects", 1, 5, none, hex("01 05 00 00 00 01 02 03 01 03"));
        row("display mode", 2, 5, none, hex("01 05 00 00 00 01 02 03 02 01"));
        row("title alignment", 3, 5, none, hex("01 05 00 00 00 01 02 03 03 02"));
        row("title", 6, 5, "中a"_s, hex("01 08 00 00 00 01 02 03 06 03 d6 d0 61"),
            "1 processTitleAttribute strTitle:中a");
        row("empty title", 6, 5, none, hex("01 05 00 00 00 01 02 03 06 00"));
        row("longest title that goes by itself", 6, 5, QString(47, QLatin1Char('t')),
            hex("01 34 00 00 00 01 02 03 06 2f") + QByteArray(47, 't'));
        row("longer title in blocks", 6, 5, QString(48, QLatin1Char('t')),
            hex("01 35 00 00 00 01 02 03 06 30") + QByteArray(48, 't'), "1 ----nProtoLen=[58]");
        row("title cut on a whole character", 6, 5, QLatin1Char('t') + QString(70, QChar(0x4E2D)),
            hex("01 84 00 00 00 01 02 03 06 7f") + 't' + hex("d6d0").repeated(63), "1 transfer 3 block data");
        row("font size", 7, 5, none, hex("01 05 00 00 00 01 02 03 07 18"));
        row("function id", 8, 15, none, hex("01 05 00 00 00 01 02 03 08 0f"));
        row("address", 11, 3, "http://a"_s, hex("01 0d 00 00 00 01 02 03 0b 08 68 74 74 70 3a 2f 2f 61"));
        row("colour: the line swaps blue and green", 12, 5, none, hex("01 07 00 00 00 01 02 03 0c 11 22 33"),
            "1 processDisplayModeAttribute color r:17 g:51 b:34");
        row("clear the key", 13, 5, none, hex("01 04 00 00 00 01 02 03 0d"));
        row("key combination", 14, 16, "Left Ctrl#C##"_s, hex("01 08 00 00 00 01 02 03 0e e0 06 00 00"),
            "1 --------nKey1[E0] nKey2[06] nKey3[00] nKey4[00] ");
        row("empty key combination", 14, 16, none, hex("01 08 00 00 00 01 02 03 0e 00 00 00 00"));
        row("no actions", 15, 4, none, hex("01 06 00 00 00 01 02 03 0f 00 00"),
            "1 transfer MultiActions success");
        row("long text output: the count keeps its low 8 bits", 17, 15, QString(150, QChar(0x4E2D)),
            hex("01 31 01 00 00 01 02 03 0b 2c") + hex("2d4e").repeated(150),
            "1 transfer TextOutput success");
    }

    void writes()
    {
        QFETCH(quint32, id);
        QFETCH(int, fid);
        QFETCH(QString, text);
        QFETCH(QByteArray, message);
        QFETCH(QString, line);
        ThreadFixture fixture;
        fill(fixture.store, fid, text);
        fixture.post(MD_FUNCTION_CODE_KEY_ATTRIBUTE, 1, 2, 3, 99, id);
        fixture.thread.start();
        QTRY_COMPARE(fixture.messages(), QStringList(QString::fromLatin1(message.toHex(' '))));
        fixture.thread.stop();
        QCOMPARE(int{fakeHid().written().first().at(2)}, message.size() > 57 ? 1 : 0); // 57 go by themselves
        QVERIFY2(fixture.log.lines().contains(line), qPrintable(line));
        QCOMPARE(fixture.linesWith("KEY_ATTRIBUTE Layoutid:1 pageid:2 keyid:3 fid:99 attrbuteid:").size(), 1);
    }

    void withoutARecordOnlyFunctionAndClearingAreSent()
    {
        ThreadFixture fixture;
        for (const quint32 id : {1U, 2U, 3U, 5U, 6U, 7U, 8U, 9U, 11U, 12U, 13U, 14U, 15U, 17U})
            fixture.post(MD_FUNCTION_CODE_KEY_ATTRIBUTE, 1, 2, 4, 7, id);
        fixture.store.createKeyAttribute(Key, vorlinmodel::OPEN_WEB_FID); // has no icon: no picture, 5 and 9
        for (const quint32 id : {0U, 4U, 5U, 9U, 16U, 18U, 0xFFFFFFFFU})
            fixture.post(MD_FUNCTION_CODE_KEY_ATTRIBUTE, 1, 2, 3, 0, id);
        fixture.post(MD_FUNCTION_CODE_SELECT_PAGE, 1, 1);
        fixture.thread.start();
        QTRY_COMPARE(fixture.messages(), texts({"01 05 00 00 00 01 02 04 08 07", "01 04 00 00 00 01 02 04 0d",
                                                "07 02 00 00 00 01 01"}));
    }

    /// The key got another function after they were posted: the panel would take one text for another.
    void onlyTheTextOfTheFunctionIsSent()
    {
        ThreadFixture fixture;
        const quint32 functions[] = {vorlinmodel::OPEN_WEB_FID, vorlinmodel::TEXT_OUTPUT_FID,
                                     vorlinmodel::KEY_COMBINATION_FID};
        for (quint32 kid = 1; kid <= 3; ++kid) {
            const vorlinmodel::key_id_t key{1, 2, int(kid)};
            fixture.store.createKeyAttribute(key, int(functions[kid - 1]));
            fixture.store.setUrlOrPath(key, "a"_s);
            for (const quint32 id : {11U, 14U, 17U})
                fixture.post(MD_FUNCTION_CODE_KEY_ATTRIBUTE, 1, 2, kid, 0, id);
        }
        fixture.post(MD_FUNCTION_CODE_SELECT_PAGE, 1, 1);
        fixture.thread.start();
        QTRY_COMPARE(fixture.messages(),
                     texts({"01 06 00 00 00 01 02 01 0b 01 61", "01 07 00 00 00 01 02 02 0b 02 61 00",
                            "01 08 00 00 00 01 02 03 0e 00 00 00 00", "07 02 00 00 00 01 01"}));
    }

    void actionListIsSentInOrder()
    {
        ThreadFixture fixture;
        fixture.store.createKeyAttribute(Key, vorlinmodel::MULTIPLE_ACTIONS_FID);
        QString error;
        QVERIFY(vorlinmodel::multiActionStore().writeActionsByKeyId(
            1, 2, 3,
            {{100, 0x1234, {}}, {16, 0, "Left Ctrl"_s}, {5, 9, {}}, {2, 0, QString(200, QLatin1Char('p'))}},
            error));
        fixture.post(MD_FUNCTION_CODE_KEY_ATTRIBUTE, 1, 2, 3, 0, 15);
        fixture.thread.start();
        const QByteArray entries = hex("64 34 12") + hex("10 00 00 e0") + QByteArray(127, '\0') +
                                   hex("05 00 00") + hex("02 00 00") + QByteArray(128, 'p');
        const QByteArray message = hex("01 12 01 00 00 01 02 03 0f 0c 01") + entries; // 268 bytes of entries
        QTRY_COMPARE(fixture.messages(), QStringList(QString::fromLatin1(message.toHex(' '))));
        QCOMPARE(fixture.linesWith("is cut to 128 bytes"),
                 texts({"2 action 4 of lid:1 pageid:2 kid:3 is cut to 128 bytes"}));
    }

    void actionListThatCannotBeSent()
    {
        const QByteArray step = R"({"fid":2,"url":"/a"},)"; // 131 bytes each: too many for the length field
        const QByteArray overlong = R"({"keyInfo":[{"layid":1,"pageid":2,"keyid":3,"actions":[)" +
                                    step.repeated(501).chopped(1) + "]}]}";
        for (const QByteArray &file : {overlong, QByteArray("{")}) {
            ThreadFixture fixture;
            fixture.store.createKeyAttribute(Key, vorlinmodel::MULTIPLE_ACTIONS_FID);
            writeFile("devConfig/multiActions.json"_s, file);
            fixture.post(MD_FUNCTION_CODE_KEY_ATTRIBUTE, 1, 2, 3, 0, 15);
            fixture.thread.start();
            QTRY_VERIFY(fixture.log.lines().contains("3 transfer MultiActions error"_s));
            QVERIFY(fixture.messages().isEmpty()); // the panel keeps what it has
        }
    }

    void pictureTravelsUnderTheIdOfTheRequest()
    {
        ThreadFixture fixture;
        QImage image(10, 10, QImage::Format_RGB32);
        image.fill(Qt::red);
        QVERIFY(image.save("red.png"_s));
        fixture.store.createKeyAttribute(Key, 5);
        fixture.store.setCustomImage(Key, QDir::current().filePath("red.png"_s));
        for (const quint32 id : {5U, 9U})
            fixture.post(MD_FUNCTION_CODE_KEY_ATTRIBUTE, 1, 2, 3, 0, id);
        fixture.thread.start();
        QTRY_COMPARE(fixture.messages().size(), 2);
        QVERIFY(fixture.messages().at(0).contains(" 00 00 01 02 03 05 "_s));
        const QByteArray message = QByteArray::fromHex(fixture.messages().at(1).toLatin1());
        QCOMPARE(message.mid(5, 4), hex("01 02 03 09"));
        const QByteArray file = message.mid(13);
        QCOMPARE(int(quint8(message.at(9)) + 256 * quint8(message.at(10))), file.size());
        QCOMPARE(message.mid(11, 2), hex("00 00"));
        QCOMPARE(QImage::fromData(file, "PNG").pixelColor(89, 83), QColor(Qt::red));
    }

    void video_data()
    {
        const VideoTable row;
        row("sent", "film.mp4", true);
        row("missing file", "none.mp4", false);
        row("icon of the function", ":/icon/x.png", false);
        row("no record", {}, false);
    }

    void video()
    {
        const auto [path, sent] = VideoTable::current();
        ThreadFixture fixture;
        writeFile("film.mp4"_s, "abc");
        if (!path.isEmpty()) {
            fixture.store.createKeyAttribute(Key, 5);
            fixture.store.setCustomVideo(Key, path);
        }
        fixture.post(MD_FUNCTION_CODE_KEY_ATTRIBUTE, 1, 2, 3, 0, 10);
        fixture.thread.start();
        QTRY_COMPARE(fixture.events("video"), texts({sent ? "video 0" : "video -1"})); // who waits is told
        QCOMPARE(fixture.messages(),
                 sent ? texts({"01 0b 00 00 00 01 02 03 0a 03 00 00 00 61 62 63"}) : QStringList());
    }
};

QTEST_GUILESS_MAIN(AttributesTest)
#include "tst_protocol_attributes.moc"
