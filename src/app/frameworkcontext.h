/// Puts the program together: builds its long-lived parts in order, and runs the event loop.
#pragma once

#include "base/handover.h"
#include "base/iframeworkcontext.h"

#include <memory>

class QApplication;
class QTranslator;
class Widget;

namespace vorlinmodel {
class FunctionManager;
class ProtocolThread;
} // namespace vorlinmodel

namespace vorlindesk {

class FrameworkContext : public IFrameworkContext
{
public:
    FrameworkContext();
    /// Ends the protocol thread (within 2 s) and the receive workers, then takes the parts down in reverse
    /// order.
    ~FrameworkContext() override;

    /// Builds everything; once. @p argc and @p argv must outlive this object. @p dataDir: where to keep the
    /// program's files, empty for the usual place. @return false when a step failed, which is logged.
    bool start(int &argc, char **argv, const QString &dataDir);

    /// @return where the reason of a failed start can be read, one line for the terminal.
    QString startFailure() const;

    /// Shows the main window and runs the event loop. @return whether the loop's exit code was non-zero.
    bool run();

    LanguageManager *languageManager() override;
    vorlinmodel::IFunctionManager *functionManager() override;
    vorlinmodel::IProtocolThread *protocolThread() override;
    void sendRequest(vorlinmodel::RequestKind kind, int layoutId, int pageId, int keyId, int functionId,
                     int attributeId) override;
    void sendRequest(vorlinmodel::RequestKind kind, int layoutId, int pageId) override;
    void sendRequest(vorlinmodel::RequestKind kind, const QString &devicePath,
                     const QString &fileName) override;
    void sendRequest(vorlinmodel::RequestKind kind, int argument) override;
    void showWaitingDialog(int requestId, int showTimeMs) override;
    void hideWaitingDialog() override;
    QString fontStyle() const override;

private:
    bool prepareFiles(const QString &dataDir);
    bool prepareLanguage();
    bool finishRestore();
    bool prepareStore();
    bool startProtocolThread();
    void readDeviceSettings();
    bool createWindow();
    void post(const vorlinmodel::Request &request);

    std::unique_ptr<QApplication> mpApplication;
    std::unique_ptr<QTranslator> mpTranslator;
    std::unique_ptr<LanguageManager> mpLanguageManager;
    vorlinmodel::FunctionManager *mpFunctionManager = nullptr; ///< lives to the end of the process
    std::unique_ptr<vorlinmodel::ProtocolThread> mpProtocolThread;
    HandOver mHandOver;
    std::unique_ptr<Widget> mpWidget;
    bool mIsRestored = false; ///< no restore is left half done
    bool mHasFolder = false;  ///< the folder for the program's files was found, and with it the log's
};

} // namespace vorlindesk
