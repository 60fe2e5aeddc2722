#include "desktop.h"

#include "systemdesktop.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>

namespace vorlindesk {

bool SystemDesktop::openUrl(const QUrl &url)
{
    return QDesktopServices::openUrl(url);
}

void SystemDesktop::setClipboardText(const QString &text)
{
    QGuiApplication::clipboard()->setText(text, QClipboard::Clipboard);
}

IDesktop &systemDesktop()
{
    static SystemDesktop desktop;
    return desktop;
}

} // namespace vorlindesk
