#include "panel_app/democonfiguration.h"
#include "panel_app/linecommands.h"
#include "panel_app/panelarguments.h"
#include "panel_app/panelwindow.h"

#include <QApplication>
#include <QTemporaryDir>
#include <cstdio>
#include <iostream>
#include <memory>
#include <string>

namespace {

void print(FILE *stream, const QString &text)
{
    std::fputs(text.toUtf8().constData(), stream);
    std::fflush(stream);
}

void printLine(const QString &text)
{
    print(stdout, text + QLatin1Char('\n'));
}

int runHeadless(LineCommands &commands)
{
    std::string line;
    while (!commands.quitWanted() && std::getline(std::cin, line))
        printLine(commands.execute(QString::fromStdString(line).trimmed()));
    return 0;
}

int runWindow(PanelServer &server)
{
    PanelWindow window(server);
    window.show();
    return QCoreApplication::exec();
}

/// The parser needs an application, and which one the panel is to be shows only in the arguments.
PanelArgumentsResult parse(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    return parsePanelArguments(QCoreApplication::arguments());
}

int run(const PanelArguments &arguments)
{
    const QTemporaryDir folder;
    PanelServer server(arguments.link);
    LineCommands commands(server, writeDemoTextFile(folder.path()));
    if (!arguments.empty)
        commands.loadDemo();
    if (!server.start()) {
        print(stderr, QStringLiteral("Port %1 is taken.\n").arg(arguments.link.port));
        return 1;
    }
    printLine(QStringLiteral("port %1").arg(server.port()));
    return arguments.headless ? runHeadless(commands) : runWindow(server);
}

} // namespace

int main(int argc, char *argv[])
{
    const PanelArgumentsResult parsed = parse(argc, argv);
    if (parsed.exitCode >= 0) {
        print(parsed.exitCode == 0 ? stdout : stderr, parsed.text);
        return parsed.exitCode;
    }
    // Without a window no display is needed either.
    const std::unique_ptr<QCoreApplication> application(
        parsed.arguments.headless ? new QCoreApplication(argc, argv) : new QApplication(argc, argv));
    return run(parsed.arguments);
}
