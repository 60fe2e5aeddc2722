#include "linecommands.h"

#include "democonfiguration.h"
#include "panel_link/panelserver.h"
#include "panelreport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QVector>
#include <chrono>
#include <optional>
#include <thread>

namespace {

const QString Ok = QStringLiteral("ok");

QString error(const char *text)
{
    return QStringLiteral("error %1").arg(QLatin1String(text));
}

QString json(const QJsonObject &object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

QString json(const QStringList &list)
{
    return QString::fromUtf8(QJsonDocument(QJsonArray::fromStringList(list)).toJson(QJsonDocument::Compact));
}

/// @return @p count numbers at the start of @p arguments, or nothing when one is missing or no number.
std::optional<QVector<int>> numbers(const QStringList &arguments, int count)
{
    QVector<int> result;
    for (int i = 0; i < count; ++i) {
        bool isNumber = false;
        result << arguments.value(i).toInt(&isNumber);
        if (!isNumber)
            return std::nullopt;
    }
    return result;
}

std::optional<QVector<ActionList::Action>> actionsOf(const QString &text)
{
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    if (!document.isArray())
        return std::nullopt;
    QVector<ActionList::Action> actions;
    for (const QJsonValue &value : document.array()) {
        const QJsonObject step = value.toObject();
        actions << ActionList::Action{static_cast<qint8>(step.value(QStringLiteral("fid")).toInt()),
                                      static_cast<quint16>(step.value(QStringLiteral("delay")).toInt()),
                                      step.value(QStringLiteral("url")).toString()};
    }
    return actions;
}

} // namespace

const LineCommands::Command LineCommands::Commands[] = {
    {"press", &LineCommands::press},
    {"page", &LineCommands::page},
    {"unplug", &LineCommands::unplug},
    {"plug", &LineCommands::plug},
    {"violations", &LineCommands::violations},
    {"events", &LineCommands::events},
    {"clear", &LineCommands::clear},
    {"state", &LineCommands::state},
    {"key", &LineCommands::key},
    {"picture", &LineCommands::picture},
    {"wait-idle", &LineCommands::waitIdle},
    {"demo", &LineCommands::demo},
    {"empty", &LineCommands::empty},
    {"fault", &LineCommands::fault},
    {"run-now", &LineCommands::runNow},
    {"sent", &LineCommands::sent},
    {"help", &LineCommands::help},
    {"quit", &LineCommands::quit},
};

LineCommands::LineCommands(PanelServer &server, const QString &textFile)
    : mServer(server)
    , mTextFile(textFile)
{}

QString LineCommands::execute(const QString &line)
{
    const QStringList words = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (words.isEmpty())
        return error("empty line");
    for (const Command &command : Commands)
        if (words.first() == QLatin1String(command.name))
            return (this->*command.handler)(words.mid(1));
    return error("unknown command; help lists them");
}

void LineCommands::loadDemo()
{
    const PanelState state = demoState(mTextFile);
    mServer.withModel([&](PanelModel &model) { model.setState(state); });
}

QString LineCommands::press(const QStringList &arguments)
{
    const auto key = numbers(arguments, 1);
    if (!key)
        return error("press KEY");
    const auto time = std::chrono::steady_clock::now().time_since_epoch();
    if (mServer.pressKey(key->first()))
        return QStringLiteral("ok %1").arg(std::chrono::nanoseconds(time).count());
    return error(mServer.isPlugged() ? "there is no such key" : "unplugged");
}

QString LineCommands::page(const QStringList &arguments)
{
    const auto place = numbers(arguments, 2);
    if (!place)
        return error("page LAYOUT PAGE");
    bool shown = false;
    mServer.withModel([&](PanelModel &model) { shown = model.selectPage(place->at(0), place->at(1)); });
    return shown ? Ok : error("there is no such page");
}

QString LineCommands::unplug(const QStringList &)
{
    mServer.unplug();
    return Ok;
}

QString LineCommands::plug(const QStringList &)
{
    mServer.plug();
    return Ok;
}

QString LineCommands::violations(const QStringList &)
{
    QStringList list;
    mServer.withModel([&](PanelModel &model) { list = model.violations(); });
    return json(list);
}

QString LineCommands::events(const QStringList &)
{
    QStringList list;
    mServer.withModel([&](PanelModel &model) { list = model.journal().events(); });
    return json(list);
}

QString LineCommands::clear(const QStringList &)
{
    mServer.withModel([](PanelModel &model) { model.clearJournal(); });
    return Ok;
}

QString LineCommands::state(const QStringList &)
{
    QJsonObject report;
    mServer.withModel([&](PanelModel &model) { report = stateReport(model); });
    report.insert(QStringLiteral("plugged"), mServer.isPlugged());
    report.insert(QStringLiteral("waiting"), mServer.waitingReports());
    return json(report);
}

QString LineCommands::key(const QStringList &arguments)
{
    const auto place = numbers(arguments, 3);
    if (!place)
        return error("key LAYOUT PAGE KEY");
    QJsonObject report;
    mServer.withModel([&](PanelModel &model) {
        report = keyReport(model.state(), {place->at(0), place->at(1), place->at(2)});
    });
    return json(report);
}

QString LineCommands::picture(const QStringList &arguments)
{
    const auto place = numbers(arguments, 3);
    if (!place)
        return error("picture LAYOUT PAGE KEY");
    QByteArray file;
    mServer.withModel([&](PanelModel &model) {
        file = model.state().keys.value({place->at(0), place->at(1), place->at(2)}).picture;
    });
    return QStringLiteral("ok %1").arg(QString::fromLatin1(file.toBase64()));
}

/// Idle: nothing waits to be sent, and the host has written nothing for a while.
QString LineCommands::waitIdle(const QStringList &arguments)
{
    using namespace std::chrono;
    const milliseconds quiet(arguments.size() > 0 ? arguments.at(0).toInt() : 200);
    const milliseconds patience(arguments.size() > 1 ? arguments.at(1).toInt() : 30000);
    const auto start = steady_clock::now();
    while (steady_clock::now() - start < patience) {
        const auto silent = steady_clock::now() - std::max(mServer.lastReport(), start);
        if (mServer.waitingReports() == 0 && silent >= quiet)
            return Ok;
        std::this_thread::sleep_for(milliseconds(2));
    }
    return error("still busy");
}

QString LineCommands::demo(const QStringList &)
{
    loadDemo();
    return Ok;
}

QString LineCommands::empty(const QStringList &)
{
    mServer.withModel([](PanelModel &model) { model.setState({}); });
    return Ok;
}

QString LineCommands::fault(const QStringList &arguments)
{
    const QString kind = arguments.value(0);
    const QString value = arguments.value(1);
    bool known = true;
    mServer.withModel([&](PanelModel &model) {
        PanelFaults faults = model.faults();
        if (kind == QLatin1String("silent"))
            faults.silent = value == QLatin1String("on");
        else if (kind == QLatin1String("wrong-crc"))
            faults.wrongCrc = value == QLatin1String("on");
        else if (kind == QLatin1String("unplug-after"))
            faults.unplugAfter = value.toInt();
        else
            known = false;
        model.setFaults(faults);
    });
    return known ? Ok : error("fault silent on|off, fault wrong-crc on|off, fault unplug-after REPORTS");
}

QString LineCommands::runNow(const QStringList &arguments)
{
    const auto place = numbers(arguments, 3);
    const auto actions = actionsOf(arguments.mid(3).join(QLatin1Char(' ')));
    if (!place || !actions)
        return error("run-now LAYOUT PAGE KEY [{\"fid\":3,\"url\":\"...\"},...]");
    mServer.withModel([&](PanelModel &model) {
        model.sendRunNow({place->at(0), place->at(1), place->at(2)}, *actions);
    });
    return Ok;
}

QString LineCommands::sent(const QStringList &)
{
    const ReportSender::Burst burst = mServer.lastBurst();
    return json(QJsonObject{{QStringLiteral("reports"), burst.reports},
                            {QStringLiteral("microseconds"), static_cast<qint64>(burst.duration.count())}});
}

QString LineCommands::help(const QStringList &)
{
    QStringList names;
    for (const Command &command : Commands)
        names << QLatin1String(command.name);
    return QStringLiteral("ok %1").arg(names.join(QLatin1Char(' ')));
}

QString LineCommands::quit(const QStringList &)
{
    mQuit = true;
    return Ok;
}
