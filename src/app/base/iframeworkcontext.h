/// The way in which the parts of the program reach each other.
#pragma once

#include "base/request.h"

#include <QObject>

namespace vorlinmodel {
class IProtocolThread;
class IFunctionManager;
} // namespace vorlinmodel

namespace vorlindesk {

class LanguageManager;

/// Owns the long-lived parts. Used on the user-interface thread; the send operations from any thread.
class IFrameworkContext : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    virtual LanguageManager *languageManager() = 0;
    virtual vorlinmodel::IFunctionManager *functionManager() = 0;
    virtual vorlinmodel::IProtocolThread *protocolThread() = 0;

    /// Shortcuts that fill a request and post it; each does nothing while there is no protocol thread.
    virtual void sendRequest(vorlinmodel::RequestKind kind, int layoutId, int pageId, int keyId,
                             int functionId, int attributeId) = 0;
    virtual void sendRequest(vorlinmodel::RequestKind kind, int layoutId, int pageId) = 0;
    virtual void sendRequest(vorlinmodel::RequestKind kind, const QString &devicePath,
                             const QString &fileName) = 0;
    /// Puts @p argument into both the layout id and the value of the request.
    virtual void sendRequest(vorlinmodel::RequestKind kind, int argument) = 0;

    /// Shows the waiting dialog for a request (1, 5 or 8) for at most @p showTimeMs.
    virtual void showWaitingDialog(int requestId, int showTimeMs) = 0;
    /// Hides it because the answer came. Any thread.
    virtual void hideWaitingDialog() = 0;

    /// @return "font: 75 %1pt \"Arial\";" with the size for the screen of the main window.
    virtual QString fontStyle() const = 0;

signals:
    void sigShowWaitingDialog(int requestId, int showTimeMs);
    void sigHideWaitingDialog();
};

} // namespace vorlindesk
