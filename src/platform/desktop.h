/// What the program does on the computer: opening things, and typing a text.
#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

namespace vorlindesk {

/// The desktop as the program sees it. The operations of systemDesktop() may be called from any thread,
/// except setClipboardText and pressPaste, which belong to the user-interface thread.
class IDesktop
{
public:
    virtual ~IDesktop() = default;

    /// Hands @p url to the desktop's URL handler. @return false when there is none or it refused.
    virtual bool openUrl(const QUrl &url) = 0;

    /// Opens a file or starts a program. Windows: "cmd.exe /c start "" path". Elsewhere an executable file is
    /// started directly, any other goes to the desktop's opener. @return whether it could be started.
    virtual bool openFile(const QString &path) = 0;

    /// Sets the system clipboard (not the selection).
    virtual void setClipboardText(const QString &text) = 0;

    /// Presses Ctrl, V, and releases V, Ctrl, in this order, in the window that has the focus.
    /// @return false when keys cannot be pressed here (no X server); the text then stays on the clipboard.
    virtual bool pressPaste() = 0;
};

IDesktop &systemDesktop();

/// Address of the page that the "home page" function opens.
inline constexpr char DefaultHomePage[] = "https://duckduckgo.com/";

} // namespace vorlindesk
