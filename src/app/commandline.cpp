#include "commandline.h"

#include <QCommandLineParser>

namespace vorlindesk {
namespace {

/// The parser takes the program's name from the application object, which does not exist yet.
QString helpText(const QCommandLineParser &parser)
{
    static char name[] = "vorlindesk";
    static char *arguments[] = {name, nullptr};
    static int count = 1;
    std::unique_ptr<QCoreApplication> application;
    if (!QCoreApplication::instance())
        application = std::make_unique<QCoreApplication>(count, arguments);
    return parser.helpText();
}

CommandLine refused(const QString &reason)
{
    const QString message = QStringLiteral("vorlindesk: %1\nTry 'vorlindesk --help'.\n").arg(reason);
    return {CommandLine::Action::Refuse, message, {}};
}

} // namespace

CommandLine parseCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Desktop host of a USB key panel."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this help and end."));
    const QCommandLineOption version(QStringLiteral("version"), QStringLiteral("Show the version and end."));
    const QCommandLineOption dataDir(QStringLiteral("data-dir"),
                                     QStringLiteral("Keep settings, pictures and log files below DIR."),
                                     QStringLiteral("DIR"));
    parser.addOptions({help, version, dataDir});
    if (!parser.parse(arguments))
        return refused(parser.errorText());
    if (parser.isSet(help))
        return {CommandLine::Action::Tell, helpText(parser), {}};
    if (parser.isSet(version))
        return {CommandLine::Action::Tell, QStringLiteral("vorlindesk " VORLINDESK_VERSION "\n"), {}};
    if (!parser.positionalArguments().isEmpty())
        return refused(QStringLiteral("Unexpected argument '%1'.").arg(parser.positionalArguments().first()));
    if (parser.isSet(dataDir) && parser.value(dataDir).isEmpty())
        return refused(QStringLiteral("'--data-dir' needs the path of a folder."));
    return {CommandLine::Action::Run, {}, parser.value(dataDir)};
}

} // namespace vorlindesk
