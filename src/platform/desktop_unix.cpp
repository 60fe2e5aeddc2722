#include "pastekeys.h"
#include "systemdesktop.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <algorithm>
#include <memory>

// Last, since their macros (None, Bool, Status...) break Qt's headers.
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>

namespace vorlindesk {

namespace {

struct DisplayCloser
{
    void operator()(Display *display) const { XCloseDisplay(display); }
};
using DisplayPointer = std::unique_ptr<Display, DisplayCloser>;

bool hasTestExtension(Display *display)
{
    int eventBase = 0;
    int errorBase = 0;
    int major = 0;
    int minor = 0;
    return XTestQueryExtension(display, &eventBase, &errorBase, &major, &minor) == True;
}

KeyCode keyCodeOf(Display *display, const KeyStroke &stroke)
{
    return XKeysymToKeycode(display, stroke.keySym); // 0 on a keyboard map without the key
}

} // namespace

bool SystemDesktop::openFile(const QString &path)
{
    if (path.isEmpty())
        return false;
    const QFileInfo file(path);
    if (file.isFile() && file.isExecutable())
        return QProcess::startDetached(file.absoluteFilePath(), {});
    return QDesktopServices::openUrl(QUrl::fromLocalFile(file.absoluteFilePath()));
}

bool SystemDesktop::pressPaste()
{
    // A connection of its own, so that it works whatever platform plugin Qt runs on.
    const DisplayPointer display(XOpenDisplay(nullptr));
    if (!display || !hasTestExtension(display.get()))
        return false;
    const auto missing = [&display](const KeyStroke &stroke) {
        return keyCodeOf(display.get(), stroke) == 0;
    };
    if (std::any_of(PasteStrokes.begin(), PasteStrokes.end(), missing))
        return false;
    for (const KeyStroke &stroke : PasteStrokes)
        XTestFakeKeyEvent(display.get(), keyCodeOf(display.get(), stroke), stroke.press ? True : False,
                          CurrentTime);
    XSync(display.get(), False); // closed before, the connection would take the strokes with it
    return true;
}

} // namespace vorlindesk
