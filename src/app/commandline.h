/// What the program was asked on its command line.
#pragma once

#include <QString>
#include <QStringList>

namespace vorlindesk {

struct CommandLine
{
    enum class Action {
        Run,
        Tell,   ///< show the message and end with success
        Refuse, ///< show the message as an error and end with ExitUsage
    };
    static constexpr int ExitUsage = 2;

    Action action = Action::Run;
    QString message; ///< ends with a line end; empty to run
    QString dataDir; ///< where to keep the program's files; empty = the usual place
};

/// @p arguments begin with the program's name. Needs neither a display nor an application object.
CommandLine parseCommandLine(const QStringList &arguments);

} // namespace vorlindesk
