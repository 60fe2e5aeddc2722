#include "model/functionids.h"
#include "model/multiaction.h"
#include "threadfixture.h"

#include <QColor>
#include <QFile>
#include <QImage>
#include <QtTest>

using vorlinmodel::RequestKind;

namespace {

const vorlinmodel::key_id_t Key{1, 2, 3};

/// A key on which every attribute differs from its default.
void fill(vorlinmodel::FunctionManager &store, int fid, const QString &title, const QString &content)
{
    store.createKeyAttribute(Key, fid);
    store.setImageEffects(Key, 3);
    store.setDisplayMode(Key, 1);
    store.setTitleAlignment(Key, 2);
    store.setTitleFontSize(Key, 24);
    store.setTitleFontColor(Key, QColor(0x11, 0x22, 0x33));
    store.setTitle(Key, title);
    store.setUrlOrPath(Key, content);
}

/// Flag and payload length of every report, as "1:57 2:1".
QString blocks()
{
    QStringList blocks;
    for (const QByteArray &report : fakeHid().written())
        blocks << QStringLiteral("%1:%2").arg(int{report.at(2)}).arg(int{report.at(5)});
    return blocks.join(QLatin1Char(' '));
}

void writeFile(const QString &name, const QByteArray &bytes)
{
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

} // namespace

class AttributesTest : public QObject
{
    Q_OBJECT
private slots:
    void writes_data()
    {
        QTest::addColumn<quint32>("id");
        QTest::addColumn<int>("fid");
        QTest::addColumn<QString>("text"); // title and content
        QTest::addColumn<QByteArray>("message");
        QTest::addColumn<QString>("reports");
        QTest::addColumn<QString>("line");
        const auto row = [](const char *name, quint32 id, int fid, const QString &text,
                            const QByteArray &message, const char *reports, const char *line) {
            QTest::newRow(name) << id << fid << text << message << QString::fromLatin1(reports)
                                << QString::fromUtf8(line);
        };
        const QString none;
        row("image effects", 1, 5, none, hex("01 05 00 00 00 01 02 03 01 03"), "0:10", "1 send request  ok");
        row("display mode", 2, 5, none, hex("01 05 00 00 00 01 02 03 02 01"), "0:10",
            "1 processDisplayModeAttribute nDisplaymode:1");
        row("title alignment", 3, 5, none, hex("01 05 00 00 00 01 02 03 03 02"), "0:10",
            "1 send request  ok");
        row("title", 6, 5, QStringLiteral("中a"), hex("01 08 00 00 00 01 02 03 06 03 d6 d0 61"), "0:13",
            "1 processTitleAttribute strTitle:中a");
        row("empty title", 6, 5, none, hex("01 05 00 00 00 01 02 03 06 00"), "0:10", "1 send request  ok");
        row("longest title that goes by itself", 6, 5, QString(47, QLatin1Char('t')),
            hex("01 34 00 00 00 01 02 03 06 2f") + QByteArray(47, 't'), "0:57", "1 send request  ok");
        row("longer title in blocks", 6, 5, QString(48, QLatin1Char('t')),
            hex("01 35 00 00 00 01 02 03 06 30") + QByteArray(48, 't'), "1:57 2:1", "1 ----nProtoLen=[58]");
        row("title cut on a whole character", 6, 5, QLatin1Char('t') + QString(70, QChar(0x4E2D)),
            hex("01 84 00 00 00 01 02 03 06 7f") + 't' + hex("d6d0").repeated(63), "1:57 1:57 2:23",
            "1 transfer 3 block data");
        row("font size", 7, 5, none, hex("01 05 00 00 00 01 02 03 07 18"), "0:10", "1 send request  ok");
        row("function id", 8, 15, none, hex("01 05 00 00 00 01 02 03 08 0f"), "0:10", "1 send request  ok");
        row("address", 11, 3, QStringLiteral("http://a"),
            hex("01 0d 00 00 00 01 02 03 0b 08 68 74 74 70 3a 2f 2f 61"), "0:18", "1 send request  ok");
        row("colour", 12, 5, none, hex("01 07 00 00 00 01 02 03 0c 11 22 33"), "0:12",
            "1 processDisplayModeAttribute color r:17 g:51 b:34");
        row("clear the key", 13, 5, none, hex("01 04 00 00 00 01 02 03 0d"), "0:9", "1 send request  ok");
        row("key combination", 14, 16, QStringLiteral("Left Ctrl#C##"),
            hex("01 08 00 00 00 01 02 03 0e e0 06 00 00"), "0:13",
            "1 --------nKey1[E0] nKey2[06] nKey3[00] nKey4[00] ");
        row("empty key combination", 14, 16, none, hex("01 08 00 00 00 01 02 03 0e 00 00 00 00"), "0:13",
            "1 processKeyCombinationAttribute KeyCombination:");
        row("no actions", 15, 4, none, hex("01 06 00 00 00 01 02 03 0f 00 00"), "0:11",
            "1 transfer MultiActions success");
        row("text output", 17, 15, QStringLiteral("h中"), hex("01 09 00 00 00 01 02 03 0b 04 68 00 2d 4e"),
            "0:14", "1 transfer TextOutput success");
        row("long text output: the count keeps its low 8 bits", 17, 15, QString(150, QLatin1Char('x')),
            hex("01 31 01 00 00 01 02 03 0b 2c") + hex("7800").repeated(150), "1:57 1:57 1:57 1:57 1:57 2:25",
            "1 transfer TextOutput success");
    }

    void writes()
    {
        QFETCH(quint32, id);
        QFETCH(int, fid);
        QFETCH(QString, text);
        QFETCH(QByteArray, message);
        QFETCH(QString, reports);
        QFETCH(QString, line);
        ThreadFixture fixture;
        fill(fixture.store, fid, text, text);
        fixture.post(RequestKind::MD_FUNCTION_CODE_KEY_ATTRIBUTE, 1, 2, 3, 99, id);
        fixture.thread.start();
        QTRY_COMPARE(fixture.messages(), QStringList(QString::fromLatin1(message.toHex(' '))));
        fixture.thread.stop();
        QCOMPARE(blocks(), reports);
        QVERIFY2(fixture.log.lines().contains(line), qPrintable(fixture.log.lines().join(QLatin1Char('\n'))));
        QVERIFY(fixture.log.lines().contains(
            QStringLiteral(
                "1 ProtocolThread::process MD_FUNCTION_CODE_KEY_ATTRIBUTE Layoutid:1 pageid:2 keyid:3 "
                "fid:99 attrbuteid:%1 timeout:0")
                .arg(id)));
    }

    void nothingIsSent_data()
    {
        QTest::addColumn<quint32>("id");
        QTest::addColumn<bool>("hasRecord");
        for (const quint32 id : {0U, 4U, 16U, 18U, 0xFFFFFFFFU})
            QTest::newRow(qPrintable(QStringLiteral("id %1 writes nothing").arg(id))) << id << true;
        for (const quint32 id : {1U, 2U, 3U, 5U, 6U, 7U, 9U, 11U, 12U, 14U, 15U, 17U})
            QTest::newRow(qPrintable(QStringLiteral("id %1 without a record").arg(id))) << id << false;
        QTest::newRow("no picture") << 5U << true;
        QTest::newRow("no picture to send back") << 9U << true;
    }

    void nothingIsSent()
    {
        QFETCH(quint32, id);
        QFETCH(bool, hasRecord);
        ThreadFixture fixture;
        if (hasRecord)
            fixture.store.createKeyAttribute(Key, vorlinmodel::OPEN_WEB_FID); // has no icon
        fixture.post(RequestKind::MD_FUNCTION_CODE_KEY_ATTRIBUTE, 1, 2, 3, 0, id);
        fixture.post(RequestKind::MD_FUNCTION_CODE_SELECT_PAGE, 1, 1);
        fixture.thread.start();
        QTRY_COMPARE(fixture.messages(), QStringList(QStringLiteral("07 02 00 00 00 01 01")));
    }

    void withoutARecordTheRequestGivesTheFunction()
    {
        ThreadFixture fixture;
        fixture.post(RequestKind::MD_FUNCTION_CODE_KEY_ATTRIBUTE, 1, 2, 3, 7, 8);
        fixture.post(RequestKind::MD_FUNCTION_CODE_KEY_ATTRIBUTE, 1, 2, 3, 7, 13);
        fixture.thread.start();
        QTRY_COMPARE(fixture.messages(), QStringList({QStringLiteral("01 05 00 00 00 01 02 03 08 07"),
                                                      QStringLiteral("01 04 00 00 00 01 02 03 0d")}));
    }

    void actionListIsSentInOrder()
    {
        ThreadFixture fixture;
        fixture.store.createKeyAttribute(Key, vorlinmodel::MULTIPLE_ACTIONS_FID);
        QString error;
        QVERIFY(vorlinmodel::multiActionStore().writeActionsByKeyId(1, 2, 3,
                                                                    {{100, 0x1234, {}},
                                                                     {16, 0, QStringLiteral("Left Ctrl")},
                                                                     {5, 9, {}},
                                                                     {2, 0, QString(200, QLatin1Char('p'))}},
                                                                    error));
        fixture.post(RequestKind::MD_FUNCTION_CODE_KEY_ATTRIBUTE, 1, 2, 3, 0, 15);
        fixture.thread.start();
        const QByteArray entries = hex("64 34 12") + hex("10 00 00 e0") + QByteArray(127, '\0') +
                                   hex("05 00 00") + hex("02 00 00") + QByteArray(128, 'p');
        const QByteArray message = hex("01 12 01 00 00 01 02 03 0f 0c 01") + entries; // 268 bytes of entries
        QTRY_COMPARE(fixture.messages(), QStringList(QString::fromLatin1(message.toHex(' '))));
        QTRY_VERIFY(fixture.log.lines().contains(QStringLiteral("1 transfer MultiActions success")));
        QCOMPARE(fixture.linesWith("is cut to 128 bytes"),
                 QStringList(QStringLiteral("2 action 4 of lid:1 pageid:2 kid:3 is cut to 128 bytes")));
    }

    void actionListThatCannotBeSent_data()
    {
        QTest::addColumn<QByteArray>("file");
        const QByteArray step = R"({"fid":2,"url":"/a"},)"; // 131 bytes each on the wire
        QTest::newRow("longer than its length field can tell")
            << R"({"keyInfo":[{"layid":1,"pageid":2,"keyid":3,"actions":[)" + step.repeated(501).chopped(1) +
                   "]}]}";
        QTest::newRow("damaged file") << QByteArray("{");
    }

    void actionListThatCannotBeSent()
    {
        QFETCH(QByteArray, file);
        ThreadFixture fixture;
        fixture.store.createKeyAttribute(Key, vorlinmodel::MULTIPLE_ACTIONS_FID);
        writeFile(QStringLiteral("devConfig/multiActions.json"), file);
        fixture.post(RequestKind::MD_FUNCTION_CODE_KEY_ATTRIBUTE, 1, 2, 3, 0, 15);
        fixture.thread.start();
        QTRY_VERIFY(fixture.log.lines().contains(QStringLiteral("3 transfer MultiActions error")));
        QVERIFY(fixture.messages().isEmpty()); // the panel keeps what it has
    }

    void pictureTravelsUnderTheIdOfTheRequest_data()
    {
        QTest::addColumn<quint32>("id");
        QTest::newRow("image") << 5U;
        QTest::newRow("picture") << 9U;
    }

    void pictureTravelsUnderTheIdOfTheRequest()
    {
        QFETCH(quint32, id);
        ThreadFixture fixture;
        QImage image(10, 10, QImage::Format_RGB32);
        image.fill(Qt::red);
        QVERIFY(image.save(QStringLiteral("red.png")));
        fixture.store.createKeyAttribute(Key, 5);
        fixture.store.setCustomImage(Key, QDir::current().filePath(QStringLiteral("red.png")));
        fixture.post(RequestKind::MD_FUNCTION_CODE_KEY_ATTRIBUTE, 1, 2, 3, 0, id);
        fixture.thread.start();
        QTRY_COMPARE(fixture.messages().size(), 1);
        const QByteArray message = QByteArray::fromHex(fixture.messages().first().toLatin1());
        QCOMPARE(message.mid(5, 4), hex("01 02 03") + static_cast<char>(id));
        const QByteArray file = message.mid(13);
        QCOMPARE(int(quint8(message.at(9)) + 256 * quint8(message.at(10))), file.size());
        QCOMPARE(message.mid(11, 2), hex("00 00"));
        const QImage sent = QImage::fromData(file, "PNG");
        QCOMPARE(sent.size(), QSize(90, 84));
        QCOMPARE(sent.pixelColor(45, 42), QColor(Qt::red));
    }

    void video_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QStringList>("messages");
        QTest::addColumn<QString>("event");
        const QString sent = QStringLiteral("01 0b 00 00 00 01 02 03 0a 03 00 00 00 61 62 63");
        const QString failed = QStringLiteral("video -1");
        QTest::newRow("sent") << QStringLiteral("film.mp4") << QStringList(sent) << QStringLiteral("video 0");
        QTest::newRow("missing file") << QStringLiteral("none.mp4") << QStringList() << failed;
        QTest::newRow("icon of the function") << QStringLiteral(":/icon/x.png") << QStringList() << failed;
        QTest::newRow("no record") << QString() << QStringList() << failed;
    }

    void video()
    {
        QFETCH(QString, path);
        QFETCH(QStringList, messages);
        QFETCH(QString, event);
        ThreadFixture fixture;
        writeFile(QStringLiteral("film.mp4"), "abc");
        if (!path.isEmpty()) {
            fixture.store.createKeyAttribute(Key, 5);
            fixture.store.setCustomVideo(Key, path);
        }
        fixture.post(RequestKind::MD_FUNCTION_CODE_KEY_ATTRIBUTE, 1, 2, 3, 0, 10);
        fixture.thread.start();
        QTRY_COMPARE(fixture.events("video"), QStringList(event));
        QCOMPARE(fixture.messages(), messages);
    }
};

QTEST_GUILESS_MAIN(AttributesTest)
#include "tst_protocol_attributes.moc"
