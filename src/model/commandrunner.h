/// Carries out the functions of keys that need the computer.
#pragma once

#include "model/keyid.h"

#include <QString>
#include <atomic>
#include <functional>
#include <mutex>

namespace vorlindesk {
class IDesktop;
}

namespace vorlinmodel {

/// Any thread; opening happens on the calling one.
class CommandRunner
{
public:
    using TextOutput = std::function<void(int fid, const QString &text)>;

    void setDesktop(vorlindesk::IDesktop &desktop); ///< the system's until it is called
    void setTextOutput(TextOutput output);

    /// @return true when the function was started. A text goes to the text output, which types it on the
    /// user-interface thread later, so that its result is false like that of functions without a host action.
    bool exec(const key_id_t &key, int fid, const QString &command) const;

private:
    vorlindesk::IDesktop &desktop() const;
    bool openHomePage() const;
    bool openAddress(const QString &address) const;
    void typeText(const QString &text) const;

    std::atomic<vorlindesk::IDesktop *> mpDesktop = nullptr;
    mutable std::mutex mMutex;
    TextOutput mTextOutput;
};

} // namespace vorlinmodel
