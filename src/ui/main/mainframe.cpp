#include "mainframe.h"

#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "base/log.h"
#include "layoutpage.h"
#include "logtext.h"
#include "pictureuploadpage.h"
#include "protocol/iprotocolthread.h"
#include "systemsettingspage.h"
#include "ui_common/style.h"
#include "ui_editor/editorcontext.h"
#include "ui_editor/functionconfigwidget.h"

#include <QPushButton>
#include <QVBoxLayout>

using vorlindesk::Log;
using vorlindesk::LogLevel;

namespace {

constexpr int HomeText = 109;
constexpr char HomeButtonStyle[] =
    "background-color: rgb(51, 51, 51);\nborder:1px solid;\nborder-radius: 2px;\nborder-color: rgb(0, 0, 0);";

} // namespace

MainFrame::MainFrame(EditorContext &context, vorlindesk::IDesktop &desktop, QWidget *parent)
    : QFrame(parent)
    , mContext(context)
    , mDesktop(desktop)
    , mpLayout(new QVBoxLayout(this))
    , mpHomeButton(new QPushButton(this))
{
    setObjectName(QStringLiteral("mainframe"));
    setStyleSheet(QString::fromLatin1(Style::MainFrame) + QString::fromLatin1(Style::Button) +
                  QString::fromLatin1(Style::HomeButton));
    mpHomeButton->setObjectName(QStringLiteral("homeButton"));
    mpHomeButton->setStyleSheet(QString::fromLatin1(HomeButtonStyle));
    mpHomeButton->hide();
    connect(mpHomeButton, &QPushButton::clicked, this, &MainFrame::slotShowHomeLayout);
    mpLayout->setContentsMargins(0, 0, 0, 0);
    mpLayout->setSpacing(0);
    mpLayout->addWidget(mpHomeButton, 0, Qt::AlignLeft);
}

bool MainFrame::setup()
{
    mpFunctionConfig = new FunctionConfigWidget(mContext, this);
    if (!mpFunctionConfig->setup()) {
        Log(LogLevel::Error, LogText::SetupFunctionConfigError);
        return false;
    }
    mpLayout->addWidget(mpFunctionConfig, 1);
    connect(mpFunctionConfig, &FunctionConfigWidget::sigIsChildrenFormChanged, this,
            &MainFrame::showHomeButton);
    retranslate();
    return true;
}

void MainFrame::select(int index)
{
    Log(LogLevel::Info, LogText::SelectPage, index);
    if (index < FunctionConfiguration || index > SystemSettings)
        return;
    const bool leaves = mCurrentPage == FunctionConfiguration && index != FunctionConfiguration;
    if ((!leaves || mpFunctionConfig->confirmLeave()) && build(index)) {
        mCurrentPage = index;
        showCurrentPage();
    }
    emit sigPageSelected(mCurrentPage);
}

/// Makes sure that there is the page. @return false when it cannot be built.
bool MainFrame::build(int index)
{
    if (page(index))
        return true;
    switch (index) {
    case PanelLayout:
        return setupLayoutPage();
    case PictureUpload:
        return setupPictureUploadPage();
    case SystemSettings:
        return setupSystemSettingsPage();
    default:
        return false;
    }
}

/// Sets up a new page and takes it into the layout; a failing one goes away again.
template <class PageWidget>
bool MainFrame::take(PageWidget *&page, const char *failure)
{
    if (page->setup()) {
        mpLayout->addWidget(page, 1);
        return true;
    }
    Log(LogLevel::Error, "%s", failure);
    delete page;
    page = nullptr;
    return false;
}

bool MainFrame::setupLayoutPage()
{
    mpLayoutPage = new LayoutPage(mContext, this);
    if (!take(mpLayoutPage, LogText::SetupLayoutPageError))
        return false;
    connect(mpLayoutPage, &LayoutPage::sigShowInEditor, this, &MainFrame::showInEditor);
    return true;
}

bool MainFrame::setupPictureUploadPage()
{
    mpPictureUpload = new PictureUploadPage(*mContext.framework.languageManager(), this);
    if (!take(mpPictureUpload, LogText::SetupPictureUploadError))
        return false;
    connect(mpPictureUpload, &PictureUploadPage::sigGalleryChanged, this, &MainFrame::sigGalleryChanged);
    return true;
}

bool MainFrame::setupSystemSettingsPage()
{
    mpSystemSettings = new SystemSettingsPage(*mContext.framework.languageManager(), mDesktop, this);
    return take(mpSystemSettings, LogText::SetupSystemSettingsError);
}

QWidget *MainFrame::page(int index) const
{
    switch (index) {
    case FunctionConfiguration:
        return mpFunctionConfig;
    case PanelLayout:
        return mpLayoutPage;
    case PictureUpload:
        return mpPictureUpload;
    case SystemSettings:
        return mpSystemSettings;
    default:
        return nullptr;
    }
}

void MainFrame::showCurrentPage()
{
    if (mCurrentPage == PanelLayout)
        mpLayoutPage->refresh();
    if (mCurrentPage == SystemSettings) {
        mpSystemSettings->refresh(mDeviceValues);
        askForBrightness();
    }
    for (int index = FunctionConfiguration; index <= SystemSettings; ++index) {
        if (QWidget *widget = page(index); widget && index != mCurrentPage)
            widget->hide(); // before the other is shown: both at once would widen the window
    }
    showHomeButton();
    page(mCurrentPage)->show();
}

/// The panel reports it only when asked. The home layout is not asked for: the answer would replace where the
/// child-page keys lead in the settings.
void MainFrame::askForBrightness()
{
    constexpr int query = 255;
    if (mConnected && !isTransferInProgress())
        mContext.framework.sendRequest(vorlinmodel::RequestKind::MD_FUNCTION_CODE_LCD_LIGHT, query);
}

void MainFrame::showHomeButton()
{
    mpHomeButton->setVisible(mCurrentPage == FunctionConfiguration && mContext.childrenForm);
}

void MainFrame::slotShowHomeLayout()
{
    mpHomeButton->hide();
    mpFunctionConfig->returnToMain();
}

void MainFrame::showInEditor(int layoutId)
{
    select(FunctionConfiguration);
    mpFunctionConfig->setKeyboardCurLayoutAndPage(layoutId, 1, true);
}

void MainFrame::setReading(bool reading)
{
    mpFunctionConfig->setEnabled(!reading);
    mpHomeButton->setEnabled(!reading);
}

void MainFrame::showDeviceValue(int code, const QString &value)
{
    mDeviceValues.insert(code, value);
    if (mpSystemSettings && mCurrentPage == SystemSettings)
        mpSystemSettings->refresh(mDeviceValues);
}

bool MainFrame::isTransferInProgress() const
{
    const auto *thread = mContext.framework.protocolThread();
    return thread && thread->isUpgrading();
}

void MainFrame::retranslate()
{
    mpHomeButton->setText(mContext.framework.languageManager()->Text(HomeText));
    mpFunctionConfig->retranslate();
    if (mpLayoutPage)
        mpLayoutPage->retranslate();
    if (mpPictureUpload)
        mpPictureUpload->retranslate();
    if (mpSystemSettings)
        mpSystemSettings->retranslate();
}
