/// The real program, the virtual panel behind the drop-in HID library, a stand-in for the browser and the
/// window of another program, all on one X display. Each case goes on where the one before it ended, as a
/// person would.
#include <QDir>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>

namespace {

constexpr int Patience = 30'000; // ms; a machine that runs other tests beside is slow

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

QString contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// A virtual panel that is driven by lines.
class Panel
{
public:
    bool start()
    {
        mProcess.start(text(VIRTUAL_PANEL), {text("--headless"), text("--port"), text("0")});
        const QString first = readLine();
        mPort = first.section(QLatin1Char(' '), 1);
        return first.startsWith(text("port "));
    }

    QString ask(const QString &command)
    {
        mProcess.write(command.toUtf8() + '\n');
        return readLine();
    }

    bool tell(const char *command) { return ask(text(command)).startsWith(text("ok")); }
    QJsonDocument json(const QString &command) { return QJsonDocument::fromJson(ask(command).toUtf8()); }
    QString port() const { return mPort; }

    ~Panel()
    {
        mProcess.write("quit\n");
        if (!mProcess.waitForFinished(5000))
            mProcess.kill();
    }

private:
    QString readLine()
    {
        while (!mProcess.canReadLine() && mProcess.waitForReadyRead(Patience)) {
        }
        return QString::fromUtf8(mProcess.readLine()).trimmed();
    }

    QProcess mProcess;
    QString mPort;
};

} // namespace

class tst_system_roundtrip : public QObject
{
    Q_OBJECT
    using Pictures = QMap<QString, QByteArray>; // file name, content

private:
    void startProgram();
    void writeStandIn();
    QString log() const;
    int count(const char *line) const { return log().count(text(line)); }
    QString opened() const { return contentOf(mFolder.filePath(text("opened"))); }
    Pictures pictures() const;
    Pictures expectedPictures();

    QTemporaryDir mFolder;
    Panel mPanel;
    QProcess mProgram;
    QProcess mTextField;

private slots:
    void initTestCase();
    void isConnectedAndKnowsTheVersions();
    void hasTheWholeConfiguration();
    void opensWhatAPressedKeySays_data();
    void opensWhatAPressedKeySays();
    void typesIntoTheWindowThatHasTheFocus();
    void runsAListThatThePanelHandsOver();
    void recoversFromUnpluggingInTheMiddleOfARead();
    void leavesWithinTwoSecondsBesideASilentPanel();
    void brokeNoRuleOfThePanel();
};

/// Takes the place of the desktop's opener: notes what it is to open.
void tst_system_roundtrip::writeStandIn()
{
    QDir(mFolder.path()).mkdir(text("bin"));
    QFile script(mFolder.filePath(text("bin/xdg-open")));
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\nprintf '%s\\n' \"$1\" >> '" + mFolder.filePath(text("opened")).toUtf8() + "'\n");
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void tst_system_roundtrip::startProgram()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(text("VIRTUAL_PANEL_PORT"), mPanel.port());
    environment.insert(text("LD_LIBRARY_PATH"), text(DROPIN_FOLDER));
    environment.insert(text("PATH"),
                       mFolder.filePath(text("bin")) + QLatin1Char(':') + environment.value(text("PATH")));
    mProgram.setProcessEnvironment(environment);
    mProgram.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    mProgram.start(text(PROGRAM), {text("--data-dir"), mFolder.filePath(text("data"))});
    QVERIFY(mProgram.waitForStarted());
}

QString tst_system_roundtrip::log() const
{
    const QDir folder(mFolder.filePath(text("data/log")));
    QString all;
    for (const QString &name : folder.entryList({text("application_*.log")}, QDir::Files, QDir::Name))
        all += contentOf(folder.filePath(name));
    return all;
}

tst_system_roundtrip::Pictures tst_system_roundtrip::pictures() const
{
    const QDir folder(mFolder.filePath(text("data/devConfig/image")));
    Pictures pictures;
    for (const QString &name : folder.entryList({text("*.png")}, QDir::Files)) {
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::ReadOnly))
            pictures.insert(name, file.readAll());
    }
    return pictures;
}

tst_system_roundtrip::Pictures tst_system_roundtrip::expectedPictures()
{
    Pictures pictures;
    for (const QJsonValue key : mPanel.json(text("state")).object().value(text("keys")).toArray()) {
        const QJsonArray id = key.toArray();
        QStringList place;
        for (int i = 0; i < 3; ++i) // layout, page, key
            place << QString::number(id.at(i).toInt());
        const QString answer =
            mPanel.ask(text("picture ") + place.join(QLatin1Char(' '))); // "ok" and the file
        pictures.insert(place.join(QLatin1Char('_')) + text(".png"),
                        QByteArray::fromBase64(answer.mid(3).toLatin1()));
    }
    return pictures;
}

void tst_system_roundtrip::initTestCase()
{
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        QSKIP("needs an X display; scripts/test gives it one");
    QVERIFY(mPanel.start());
    writeStandIn();
    startProgram();
}

void tst_system_roundtrip::isConnectedAndKnowsTheVersions()
{
    const QJsonObject state = mPanel.json(text("state")).object();
    QTRY_VERIFY_WITH_TIMEOUT(log().contains(state.value(text("hardwareVersion")).toString()), Patience);
    QVERIFY(log().contains(text("hid_open /dev/hidraw7 ok")));
    // The software version is asked for after every reopening.
    mPanel.tell("unplug");
    mPanel.tell("plug");
    QTRY_VERIFY_WITH_TIMEOUT(log().contains(state.value(text("softwareVersion")).toString()), Patience);
}

void tst_system_roundtrip::hasTheWholeConfiguration()
{
    QTRY_VERIFY_WITH_TIMEOUT(count("Configuration read: 29 keys on 3 pages") == 1, Patience);
    QCOMPARE(pictures(), expectedPictures());
    // Records of the store, by what it says of them: function, title and content of keys of each kind.
    for (const char *record :
         {"pageid:1 kid:3 mFId:3 strTitle[Web] strAppOrUrl[https://example.com/]",
          "pageid:1 kid:10 mFId:16 strTitle[Copy] strAppOrUrl[Left Ctrl#C#undefine#undefine]",
          "pageid:12 kid:15 mFId:19 strTitle[Return] strAppOrUrl[]"})
        QVERIFY2(log().contains(text(record)), record);
    QVERIFY(log().contains(QStringLiteral("strTitle[问候] strAppOrUrl[Hello, 你好!]")));
    const QString actions = contentOf(mFolder.filePath(text("data/devConfig/multiActions.json")));
    QVERIFY(actions.contains(text("https://example.com/news")) && actions.contains(QStringLiteral("早上好")));
}

void tst_system_roundtrip::opensWhatAPressedKeySays_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("address"); // ends the line that the stand-in noted
    QTest::newRow("home page") << 1 << text("https://duckduckgo.com/");
    QTest::newRow("file") << 2 << text("panel-demo.txt");
    QTest::newRow("web address") << 3 << text("https://example.com/");
}

void tst_system_roundtrip::opensWhatAPressedKeySays()
{
    QFETCH(int, key);
    QFETCH(QString, address);
    const int before = opened().count(address + QLatin1Char('\n'));
    QVERIFY(mPanel.ask(text("press %1").arg(key)).startsWith(text("ok")));
    QTRY_COMPARE_WITH_TIMEOUT(opened().count(address + QLatin1Char('\n')), before + 1, Patience);
}

void tst_system_roundtrip::typesIntoTheWindowThatHasTheFocus()
{
    const QString typed = mFolder.filePath(text("typed"));
    mTextField.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    mTextField.start(text(TEXTFIELD), {typed});
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(typed), Patience); // comes into being with the focus
    QVERIFY(mPanel.tell("press 5"));
    QTRY_COMPARE_WITH_TIMEOUT(contentOf(typed), QStringLiteral("Hello, 你好!"), Patience);
    QVERIFY(mPanel.tell("press 15"));
    QTRY_COMPARE_WITH_TIMEOUT(contentOf(typed), QStringLiteral("Hello, 你好!Kind regards\n此致敬礼"),
                              Patience);
}

void tst_system_roundtrip::runsAListThatThePanelHandsOver()
{
    QVERIFY(mPanel.tell("run-now 1 1 4 [{\"fid\":3,\"url\":\"https://example.com/run-now\"},"
                        "{\"fid\":100,\"delay\":10},{\"fid\":15,\"url\":\" End.\"}]"));
    QTRY_VERIFY_WITH_TIMEOUT(opened().contains(text("https://example.com/run-now\n")), Patience);
    QTRY_VERIFY_WITH_TIMEOUT(contentOf(mFolder.filePath(text("typed"))).endsWith(text(" End.")), Patience);
    mTextField.kill();
    mTextField.waitForFinished();
}

void tst_system_roundtrip::recoversFromUnpluggingInTheMiddleOfARead()
{
    // A second run of the program, since a read is asked for at its start.
    mProgram.terminate();
    QVERIFY(mProgram.waitForFinished());
    QDir(mFolder.filePath(text("data/log"))).removeRecursively();
    mPanel.tell("wait-idle");
    startProgram();
    QTRY_VERIFY_WITH_TIMEOUT(count("--recv key image") >= 3, Patience);
    QVERIFY(mPanel.tell("unplug"));
    QVERIFY(mPanel.tell("plug"));
    QTRY_VERIFY_WITH_TIMEOUT(count("Configuration read: 29 keys on 3 pages") == 1, Patience);
    QVERIFY(count("is read again") >= 1);
    QCOMPARE(pictures(), expectedPictures());
}

void tst_system_roundtrip::leavesWithinTwoSecondsBesideASilentPanel()
{
    QVERIFY(mPanel.tell("fault silent on"));
    QElapsedTimer clock;
    clock.start();
    mProgram.terminate();
    QVERIFY(mProgram.waitForFinished(Patience));
    QVERIFY2(clock.elapsed() < 2000, qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(mProgram.exitStatus(), QProcess::NormalExit);
    QCOMPARE(mProgram.exitCode(), 0);
}

void tst_system_roundtrip::brokeNoRuleOfThePanel()
{
    QCOMPARE(mPanel.ask(text("violations")), text("[]"));
}

QTEST_GUILESS_MAIN(tst_system_roundtrip)
#include "tst_system_roundtrip.moc"
