#include "app/commandline.h"
#include "app/console.h"
#include "app/frameworkcontext.h"

int main(int argc, char *argv[])
{
    using vorlindesk::CommandLine;
    const CommandLine commandLine = vorlindesk::parseCommandLine(vorlindesk::programArguments(argc, argv));
    if (commandLine.action != CommandLine::Action::Run) {
        const bool refused = commandLine.action == CommandLine::Action::Refuse;
        vorlindesk::writeToConsole(commandLine.message, refused);
        return refused ? CommandLine::ExitUsage : EXIT_SUCCESS;
    }
    vorlindesk::FrameworkContext context;
    if (!context.start(argc, argv, commandLine.dataDir)) {
        vorlindesk::writeToConsole(context.startFailure(), true);
        return EXIT_FAILURE;
    }
    return context.run() ? EXIT_FAILURE : EXIT_SUCCESS;
}
