#include "commandrunner.h"

#include "base/log.h"
#include "model/functionids.h"
#include "platform/desktop.h"
#include "storelogtext.h"

namespace vorlinmodel {

using vorlindesk::Log;
using vorlindesk::LogLevel;

void CommandRunner::setDesktop(vorlindesk::IDesktop &desktop)
{
    mpDesktop = &desktop;
}

void CommandRunner::setTextOutput(TextOutput output)
{
    const std::lock_guard lock(mMutex);
    mTextOutput = std::move(output);
}

bool CommandRunner::exec(const key_id_t &key, int fid, const QString &command) const
{
    Log(LogLevel::Info, LogText::ExecCommand, key.lid, key.pageid, key.kid, fid);
    switch (fid) {
    case HOME_PAGE_FID:
        return openHomePage();
    case OPEN_FILE_FID:
        return desktop().openFile(command);
    case OPEN_WEB_FID:
        return openAddress(command);
    case TEXT_OUTPUT_FID:
        typeText(command);
        return false;
    default:
        return false;
    }
}

vorlindesk::IDesktop &CommandRunner::desktop() const
{
    vorlindesk::IDesktop *desktop = mpDesktop;
    return desktop ? *desktop : vorlindesk::systemDesktop();
}

bool CommandRunner::openHomePage() const
{
    const QString address = QString::fromLatin1(vorlindesk::DefaultHomePage);
    const bool opened = desktop().openUrl(QUrl(address, QUrl::TolerantMode));
    if (opened)
        Log(LogLevel::Info, LogText::HomePageOk);
    else
        Log(LogLevel::Error, LogText::HomePageFail);
    return opened;
}

bool CommandRunner::openAddress(const QString &address) const
{
    const bool opened = desktop().openUrl(QUrl(address, QUrl::TolerantMode));
    if (opened)
        Log(LogLevel::Info, LogText::OpenOk, qUtf8Printable(address));
    else
        Log(LogLevel::Error, LogText::OpenFail, qUtf8Printable(address));
    return opened;
}

void CommandRunner::typeText(const QString &text) const
{
    TextOutput output;
    {
        const std::lock_guard lock(mMutex);
        output = mTextOutput; // called below with the lock released
    }
    if (output)
        output(TEXT_OUTPUT_FID, text);
}

} // namespace vorlinmodel
