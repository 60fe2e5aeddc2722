/// The desktop of the computer. What differs by system is in desktop_windows.cpp and desktop_unix.cpp.
#pragma once

#include "desktop.h"

namespace vorlindesk {

class SystemDesktop : public IDesktop
{
public:
    bool openUrl(const QUrl &url) override;
    bool openFile(const QString &path) override;
    void setClipboardText(const QString &text) override;
    bool pressPaste() override;
};

} // namespace vorlindesk
