#include "platform/desktop.h"
#include "threadfixture.h"

#include <QtTest>

class KeyEventsTest : public QObject
{
    Q_OBJECT
private slots:
    void pressGivesTheCommand_data()
    {
        QTest::addColumn<int>("fid");
        QTest::addColumn<QString>("event");
        const auto withText = [](int fid) {
            return QStringLiteral("exec %1 some text").arg(fid);
        };
        QTest::newRow("home page") << 1
                                   << QStringLiteral("exec 1 ") + QLatin1String(vorlindesk::DefaultHomePage);
        QTest::newRow("file") << 2 << withText(2);
        QTest::newRow("address") << 3 << withText(3);
        QTest::newRow("text output") << 15 << withText(15);
        QTest::newRow("multiple actions: no text") << 4 << QStringLiteral("exec 4 ");
        QTest::newRow("key combination: no text") << 16 << QStringLiteral("exec 16 ");
        QTest::newRow("unknown function: no text") << 77 << QStringLiteral("exec 77 ");
    }

    void pressGivesTheCommand()
    {
        QFETCH(int, fid);
        QFETCH(QString, event);
        ThreadFixture fixture;
        const vorlinmodel::key_id_t key{1, 2, 3};
        fixture.store.createKeyAttribute(key, fid);
        fixture.store.setUrlOrPath(key, QStringLiteral("some text"));
        fixture.thread.start();
        fakeHid().send(wholeReport("01 04 00 00 00 01 02 04 08")); // a key without a record: nothing
        fakeHid().send(wholeReport("01 04 00 00 00 01 02 03 08"));
        QTRY_COMPARE(fixture.events(), QStringList(event));
        QCOMPARE(fixture.linesWith("1 execCommand"),
                 QStringList(QStringLiteral("1 execCommand Layoutid:1 Pageid:2 Keyid:3 fid:%1 ").arg(fid)));
        QCOMPARE(fixture.linesWith("-sigDealExecCommand-"),
                 QStringList(QStringLiteral("1 -sigDealExecCommand-strUrlOrPath=[%1] ")
                                 .arg(event.section(QLatin1Char(' '), 2))));
    }

    void actionListOfAKeyIsNoPress()
    {
        ThreadFixture fixture;
        fixture.store.createKeyAttribute(1, 2, 3, 3);
        fixture.thread.start();
        fakeHid().send(wholeReport("01 06 00 00 00 01 02 03 0f 00 00"));
        QTRY_COMPARE(fixture.events(),
                     QStringList(QStringLiteral("received 01 06 00 00 00 01 02 03 0f 00 00")));
    }
};

QTEST_GUILESS_MAIN(KeyEventsTest)
#include "tst_protocol_keyevents.moc"
