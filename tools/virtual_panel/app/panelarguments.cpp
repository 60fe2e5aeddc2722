#include "panelarguments.h"

#include "panel_link/linkprotocol.h"

#include <QCommandLineParser>
#include <optional>

namespace {

constexpr int WrongUse = 2;

const QCommandLineOption Help({QStringLiteral("h"), QStringLiteral("help")},
                              QStringLiteral("Show this text."));
const QCommandLineOption
    Port(QStringLiteral("port"),
         QStringLiteral("Listen on port <N> of this machine; 0 takes any free one, which the first "
                        "line of the output names."),
         QStringLiteral("N"), QString::number(PanelLink::DefaultPort));
const QCommandLineOption Headless(QStringLiteral("headless"),
                                  QStringLiteral("No window: commands come on standard input, one a line."));
const QCommandLineOption Empty(QStringLiteral("empty"), QStringLiteral("Start without the demonstration."));
const QCommandLineOption Paths(QStringLiteral("paths"),
                               QStringLiteral("List the device as <system> does: windows or linux."),
                               QStringLiteral("system"));
const QCommandLineOption
    ReportInterval(QStringLiteral("report-interval-us"),
                   QStringLiteral("Microseconds between reports to the host; 0: no pause."),
                   QStringLiteral("N"), QStringLiteral("1000"));
const QCommandLineOption
    AcceptInterval(QStringLiteral("accept-interval-us"),
                   QStringLiteral("Microseconds between reports taken from the host; 0: no pause."),
                   QStringLiteral("N"), QStringLiteral("0"));
const QCommandLineOption
    BlockPause(QStringLiteral("block-pause-us"),
               QStringLiteral("A shorter pause between the blocks of a key, layout or home layout "
                              "message is a violation."),
               QStringLiteral("N"), QStringLiteral("1900"));

std::optional<int> number(const QCommandLineParser &parser, const QCommandLineOption &option, int highest)
{
    bool isNumber = false;
    const int value = parser.value(option).toInt(&isNumber);
    return isNumber && value >= 0 && value <= highest ? std::make_optional(value) : std::nullopt;
}

bool readPaths(const QCommandLineParser &parser, PathStyle &paths)
{
    if (!parser.isSet(Paths))
        return true;
    paths = parser.value(Paths) == QLatin1String("windows") ? PathStyle::Windows : PathStyle::Linux;
    return parser.value(Paths) == QLatin1String("windows") || parser.value(Paths) == QLatin1String("linux");
}

/// @return the name of the option whose value is wrong; empty when all are right.
QString readLink(const QCommandLineParser &parser, LinkOptions &link)
{
    constexpr int aMinute = 60'000'000;
    const auto port = number(parser, Port, 0xFFFF);
    const auto report = number(parser, ReportInterval, aMinute);
    const auto accept = number(parser, AcceptInterval, aMinute);
    const auto pause = number(parser, BlockPause, aMinute);
    for (const auto &[value, option] : {std::pair(port, &Port), std::pair(report, &ReportInterval),
                                        std::pair(accept, &AcceptInterval), std::pair(pause, &BlockPause)})
        if (!value)
            return option->names().constFirst();
    if (!readPaths(parser, link.paths))
        return Paths.names().constFirst();
    link.port = static_cast<std::uint16_t>(*port);
    link.reportInterval = std::chrono::microseconds(*report);
    link.acceptInterval = std::chrono::microseconds(*accept);
    link.blockPause = std::chrono::microseconds(*pause);
    return {};
}

} // namespace

PanelArgumentsResult parsePanelArguments(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("A key panel without hardware."));
    parser.addOptions({Help, Port, Headless, Empty, Paths, ReportInterval, AcceptInterval, BlockPause});
    PanelArgumentsResult result;
    const bool parsed = parser.parse(arguments);
    if (parsed && parser.isSet(Help))
        return {{}, 0, parser.helpText()};
    if (!parsed)
        return {{}, WrongUse, parser.errorText() + QLatin1Char('\n')};
    if (!parser.positionalArguments().isEmpty())
        return {{},
                WrongUse,
                QStringLiteral("Unexpected argument \"%1\".\n").arg(parser.positionalArguments().first())};
    const QString wrong = readLink(parser, result.arguments.link);
    if (!wrong.isEmpty())
        return {{}, WrongUse, QStringLiteral("Wrong value for --%1.\n").arg(wrong)};
    result.arguments.headless = parser.isSet(Headless);
    result.arguments.empty = parser.isSet(Empty);
    return result;
}
