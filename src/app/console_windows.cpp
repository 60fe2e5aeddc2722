#include "console.h"

#include <cstdio>
#include <windows.h>
// Needs the types of windows.h.
#include <shellapi.h>

namespace vorlindesk {

/// argv is in the local code page, which cannot hold every path.
QStringList programArguments(int argc, char **argv)
{
    QStringList arguments;
    int count = 0;
    if (LPWSTR *wide = CommandLineToArgvW(GetCommandLineW(), &count)) {
        for (int i = 0; i < count; ++i)
            arguments.append(QString::fromWCharArray(wide[i]));
        LocalFree(wide);
        return arguments;
    }
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

/// A windowed program has no console of its own: unless its output goes to a file or a pipe, the one of the
/// program that started it is used.
void writeToConsole(const QString &message, bool isError)
{
    FILE *stream = isError ? stderr : stdout;
    if (GetFileType(GetStdHandle(isError ? STD_ERROR_HANDLE : STD_OUTPUT_HANDLE)) == FILE_TYPE_UNKNOWN &&
        AttachConsole(ATTACH_PARENT_PROCESS))
        stream = std::freopen("CONOUT$", "w", stream);
    if (!stream)
        return;
    std::fputs(qUtf8Printable(message), stream);
    std::fflush(stream);
}

void quitOnTerminationSignals(QObject *) {}

} // namespace vorlindesk
