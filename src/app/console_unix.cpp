#include "console.h"

#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace vorlindesk {
namespace {

std::array<int, 2> signalPipe{-1, -1};

/// A signal may come at any place in the code, where little more than write() is allowed.
void onSignal(int)
{
    const int error = errno; // of the code that was interrupted, and is yet to be looked at
    const char byte = 0;
    const ssize_t written = write(signalPipe[1], &byte, 1);
    Q_UNUSED(written); // a full pipe says already what must be said
    errno = error;
}

} // namespace

QStringList programArguments(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

void writeToConsole(const QString &message, bool isError)
{
    std::fputs(qPrintable(message), isError ? stderr : stdout);
}

void quitOnTerminationSignals(QObject *parent)
{
    if (pipe2(signalPipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return; // the signals then end the program at once, as they do by default
    auto *notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, parent);
    QObject::connect(notifier, &QSocketNotifier::activated, parent, [] { QCoreApplication::quit(); });
    struct sigaction action = {};
    action.sa_handler = onSignal;
    action.sa_flags = SA_RESTART;
    sigaction(SIGTERM, &action, nullptr);
    sigaction(SIGINT, &action, nullptr);
}

} // namespace vorlindesk
