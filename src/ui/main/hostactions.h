/// What a key press does on the computer.
#pragma once

#include <QString>

namespace vorlindesk {
class IDesktop;
}

/// Carries out the four functions that the panel cannot do by itself. User-interface thread only.
class HostActions
{
public:
    explicit HostActions(vorlindesk::IDesktop &desktop)
        : mDesktop(desktop)
    {}

    /// @p command is the path, address or text of the key. Other functions are the panel's own: they are
    /// ignored without a log line. Failures are only logged.
    void execute(qint32 fid, const QString &command) const;

private:
    void openHomePage() const;
    void openAddress(const QString &address) const;
    void typeText(const QString &text) const;

    vorlindesk::IDesktop &mDesktop;
};
