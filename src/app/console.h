/// The program as seen from the terminal in which it was started.
#pragma once

#include <QStringList>

class QObject;

namespace vorlindesk {

/// @return the arguments as Unicode texts, the program's name first.
QStringList programArguments(int argc, char **argv);

/// Writes @p message to standard output, or to standard error when @p isError.
void writeToConsole(const QString &message, bool isError);

/// From now on a request to end (Ctrl+C, or a terminate signal) leaves the event loop as closing the window
/// does.
/// @p parent is the application. Nothing on Windows, where a windowed program gets no such request.
void quitOnTerminationSignals(QObject *parent);

} // namespace vorlindesk
