#include "frameworkcontext.h"

#include "base/language.h"
#include "base/log.h"
#include "base/paths.h"
#include "base/systemsettings.h"
#include "console.h"
#include "fontstyle.h"
#include "logtext.h"
#include "model/backuprestore.h"
#include "model/functionmanager.h"
#include "protocol/protocolthread.h"
#include "resources/translationresources.h"
#include "ui_common/knownpicture.h"
#include "ui_common/messagebox.h"
#include "ui_main/widget.h"

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QScreen>
#include <QTranslator>

using vorlinmodel::FunctionManager;
using vorlinmodel::ProtocolThread;
using vorlinmodel::Request;
using vorlinmodel::RequestKind;

namespace vorlindesk {
namespace {

Request request(RequestKind kind)
{
    Request result;
    result.functionCode = static_cast<quint32>(kind);
    return result;
}

} // namespace

FrameworkContext::FrameworkContext() = default;

FrameworkContext::~FrameworkContext()
{
    if (mpProtocolThread)
        mpProtocolThread->stop();
    mpWidget.reset(); // joins the receive workers, which may still run actions of the store
    if (mpFunctionManager)
        mpFunctionManager->setTextOutput({});
    mpProtocolThread.reset();
    mpLanguageManager.reset();
    mpTranslator.reset();
    mpApplication.reset();
    stopLog();
}

bool FrameworkContext::start(int &argc, char **argv, const QString &dataDir)
{
    QCoreApplication::setApplicationName(QStringLiteral("vorlindesk"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VORLINDESK_VERSION));
    // Nothing here draws with OpenGL, and loading it costs X11 more time and memory than all the rest of the
    // start.
    if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"))
        qputenv("QT_XCB_GL_INTEGRATION", "none");
    // Sizes are given in pixels of a plain screen; pictures are drawn with all that a dense one has.
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::RoundPreferFloor);
    mpApplication = std::make_unique<QApplication>(argc, argv);
    quitOnTerminationSignals(mpApplication.get());
    const QImage icon = knownPicture(QStringLiteral(":/icon/MENU_ZX_LOGO.bmp"), "BMP");
    QApplication::setWindowIcon(QIcon(QPixmap::fromImage(icon)));
    if (!prepareFiles(dataDir) || !prepareLanguage() || !finishRestore() || !prepareStore() ||
        !startProtocolThread())
        return false;
    readDeviceSettings();
    return createWindow();
}

bool FrameworkContext::prepareFiles(const QString &dataDir)
{
    if (!Paths::chooseCurrentDirectory(dataDir)) {
        Log(LogLevel::Error, LogText::NoDataFolder);
        return false;
    }
    mHasFolder = true;
    startLog(Paths::logFolder());
    logSystemInformation();
    Paths::createRuntimePath();
    mIsRestored = vorlinmodel::recoverRestore(); // before any of its files is read
    SystemSettings::createDefaults();
    return true;
}

/// Half of one state and half of another are neither to be edited nor to be saved.
bool FrameworkContext::finishRestore()
{
    if (mIsRestored)
        return true;
    const MessageBox::Question question{
        .text = QCoreApplication::translate("Start", "An earlier restore is not finished: a file is in use."),
        .explanation =
            QCoreApplication::translate("Start", "Close the programs that may use files in \"%1\", then try "
                                                 "again. Nothing is lost.")
                .arg(QDir::toNativeSeparators(Paths::devConfigFolder())),
        .buttons = QMessageBox::Retry | QMessageBox::Close,
        .preset = QMessageBox::Retry};
    do {
        if (MessageBox::question(nullptr, question) != QMessageBox::Retry)
            return false;
    } while (!vorlinmodel::recoverRestore());
    SystemSettings::createDefaults();
    return mpLanguageManager->Init(); // the language is among what was restored
}

bool FrameworkContext::prepareLanguage()
{
    initTranslationResources();
    mpTranslator = std::make_unique<QTranslator>();
    mpLanguageManager = std::make_unique<LanguageManager>(mpTranslator.get());
    if (mpLanguageManager->Init())
        return true;
    Log(LogLevel::Error, LogText::InitLanguageManagerError);
    return false;
}

bool FrameworkContext::prepareStore()
{
    mpFunctionManager = FunctionManager::instance();
    if (mpFunctionManager && mpFunctionManager->Init())
        return true;
    Log(LogLevel::Error, LogText::InitFunctionManagerError);
    return false;
}

bool FrameworkContext::startProtocolThread()
{
    mpProtocolThread = std::make_unique<ProtocolThread>(*mpFunctionManager);
    Log(LogLevel::Info, LogText::NewProtocolThread);
    if (!mpProtocolThread->Init()) {
        Log(LogLevel::Error, LogText::InitProtocolThreadError);
        return false;
    }
    // Texts of an action list are typed on the user-interface thread, where the worker's signal is handled.
    mpFunctionManager->setTextOutput(
        [thread = mpProtocolThread.get()](int fid, const QString &text) { thread->execCommand(fid, text); });
    Log(LogLevel::Info, LogText::InitProtocolThread);
    mpProtocolThread->start(QThread::InheritPriority);
    Log(LogLevel::Info, LogText::InitProtocolStart);
    return true;
}

void FrameworkContext::readDeviceSettings()
{
    const SystemSettings::DeviceRecord record = SystemSettings::deviceRecord();
    if (!record.devicePath.isEmpty())
        sendRequest(RequestKind::SetDevicePath, record.devicePath, QString());
    const QString tool = QLatin1Char('"') + Paths::ffmpegTool() + QLatin1Char('"');
    Log(LogLevel::Info, LogText::FfmpegTool, qUtf8Printable(tool));
}

bool FrameworkContext::createWindow()
{
    mpWidget = std::make_unique<Widget>(*this);
    if (!mpWidget->isReady()) {
        Log(LogLevel::Error, LogText::NewMainWidgetError);
        return false;
    }
    Log(LogLevel::Info, LogText::NewWidget);
    return true;
}

QString FrameworkContext::startFailure() const
{
    if (!mHasFolder)
        return QStringLiteral(
            "vorlindesk could not start: there is no folder that it can write its files to\n");
    return QStringLiteral("vorlindesk could not start; the reason is in the log in %1\n")
        .arg(Paths::logFolder());
}

bool FrameworkContext::run()
{
    if (mpWidget && mpWidget->isReady())
        mpWidget->show();
    return QApplication::exec() != 0;
}

LanguageManager *FrameworkContext::languageManager()
{
    return mpLanguageManager.get();
}

vorlinmodel::IFunctionManager *FrameworkContext::functionManager()
{
    return mpFunctionManager;
}

vorlinmodel::IProtocolThread *FrameworkContext::protocolThread()
{
    return mpProtocolThread.get();
}

void FrameworkContext::sendRequest(RequestKind kind, int layoutId, int pageId, int keyId, int functionId,
                                   int attributeId)
{
    Request filled = request(kind);
    filled.layoutId = static_cast<quint32>(layoutId);
    filled.pageId = static_cast<quint32>(pageId);
    filled.keyId = static_cast<quint32>(keyId);
    filled.functionId = static_cast<quint32>(functionId);
    filled.attributeId = static_cast<quint32>(attributeId);
    post(filled);
}

void FrameworkContext::sendRequest(RequestKind kind, int layoutId, int pageId)
{
    sendRequest(kind, layoutId, pageId, 0, 0, 0);
}

void FrameworkContext::sendRequest(RequestKind kind, const QString &devicePath, const QString &fileName)
{
    Request filled = request(kind);
    filled.devicePath = devicePath;
    filled.fileName = fileName;
    post(filled);
}

void FrameworkContext::sendRequest(RequestKind kind, int argument)
{
    Request filled = request(kind);
    filled.layoutId = static_cast<quint32>(argument);
    filled.value = static_cast<quint32>(argument);
    post(filled);
}

void FrameworkContext::post(const Request &filled)
{
    if (mpProtocolThread)
        mpProtocolThread->postRequest(filled);
}

void FrameworkContext::showWaitingDialog(int requestId, int showTimeMs)
{
    emit sigShowWaitingDialog(requestId, showTimeMs);
}

void FrameworkContext::hideWaitingDialog()
{
    // At once where that is possible: a dialog that is shown right after must not be hidden by a call that
    // waits.
    if (QThread::currentThread() == thread())
        emit sigHideWaitingDialog();
    else
        mHandOver.post([this] { emit sigHideWaitingDialog(); });
}

QString FrameworkContext::fontStyle() const
{
    const QScreen *screen = mpWidget ? mpWidget->screen() : QGuiApplication::primaryScreen();
    return mainFontStyle(screen ? screen->logicalDotsPerInchX() : 0);
}

} // namespace vorlindesk
