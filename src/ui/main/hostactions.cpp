#include "hostactions.h"

#include "base/log.h"
#include "logtext.h"
#include "model/functionids.h"
#include "platform/desktop.h"

#include <QUrl>

using vorlindesk::Log;
using vorlindesk::LogLevel;

void HostActions::execute(qint32 fid, const QString &command) const
{
    switch (fid) {
    case vorlinmodel::HOME_PAGE_FID:
        return openHomePage();
    case vorlinmodel::OPEN_FILE_FID:
        mDesktop.openFile(command);
        return;
    case vorlinmodel::OPEN_WEB_FID:
        return openAddress(command);
    case vorlinmodel::TEXT_OUTPUT_FID:
        return typeText(command);
    default:
        return;
    }
}

void HostActions::openHomePage() const
{
    if (mDesktop.openUrl(QUrl(QString::fromLatin1(vorlindesk::DefaultHomePage), QUrl::TolerantMode)))
        Log(LogLevel::Info, LogText::HomePageOk);
    else
        Log(LogLevel::Error, LogText::HomePageFail);
}

void HostActions::openAddress(const QString &address) const
{
    if (mDesktop.openUrl(QUrl(address, QUrl::TolerantMode)))
        Log(LogLevel::Info, LogText::OpenOk, qUtf8Printable(address));
    else
        Log(LogLevel::Error, LogText::OpenFail, qUtf8Printable(address));
}

/// The clipboard's previous content is not put back: the target reads it after the key press, nobody knows
/// when.
void HostActions::typeText(const QString &text) const
{
    mDesktop.setClipboardText(text);
    if (!mDesktop.pressPaste())
        Log(LogLevel::Warn, LogText::TextStaysOnClipboard);
}
