#include "pastekeys.h"
#include "systemdesktop.h"

#include <QProcess>

// Last, since its macros break other headers.
#include <windows.h>

namespace vorlindesk {

bool SystemDesktop::openFile(const QString &path)
{
    // cmd.exe /c start "" "path". The empty argument is the title that "start" expects before a quoted path;
    // without it a path with blanks would become the title. Qt puts quotes around empty arguments by itself,
    // but around a path only when it holds blanks, and then cmd.exe would take the "&" of "C:\R&D\a.txt" for
    // its own. A file name holds no quotes; those of a path that was pasted with them are dropped.
    const QString bare = QString(path).remove(QLatin1Char('"'));
    QProcess process;
    process.setProgram(QStringLiteral("cmd.exe"));
    process.setArguments({QStringLiteral("/c"), QStringLiteral("start"), QString()});
    process.setNativeArguments(QLatin1Char('"') + bare + QLatin1Char('"'));
    return process.startDetached();
}

bool SystemDesktop::pressPaste()
{
    for (const KeyStroke &stroke : PasteStrokes)
        keybd_event(stroke.virtualKey, 0, stroke.press ? 0 : KEYEVENTF_KEYUP, 0);
    return true;
}

} // namespace vorlindesk
