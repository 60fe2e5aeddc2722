#include "mainframe.h"

#include "backuppanel.h"
#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "base/log.h"
#include "layoutpage.h"
#include "logtext.h"
#include "pictureuploadpage.h"
#include "protocol/iprotocolthread.h"
#include "systemsettingspage.h"
#include "ui_common/messagebox.h"
#include "ui_common/style.h"
#include "ui_editor/editorcontext.h"
#include "ui_editor/functionconfigwidget.h"

#include <QPushButton>
#include <QVBoxLayout>

using vorlindesk::Log;
using vorlindesk::LogLevel;

namespace {

constexpr int HomeText = 109;
constexpr int HomeLayoutQuestion = 121;
constexpr char HomeButtonStyle[] =
    "background-color: rgb(51, 51, 51);\nborder:1px solid;\nborder-radius: 2px;\nborder-color: rgb(0, 0, 0);";

} // namespace

MainFrame::MainFrame(EditorContext &context, vorlindesk::IDesktop &desktop, QWidget *parent)
    : QFrame(parent)
    , mContext(context)
    , mDesktop(desktop)
    , mpBackups(new Backups(context, this))
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
    connect(&mContext.layouts, &LayoutEdits::sigLayoutsChanged, mpFunctionConfig,
            &FunctionConfigWidget::rebuildLayouts);
    connect(&mContext.layouts, &LayoutEdits::sigLayoutsChanged, this, &MainFrame::showHomeLayout);
    connect(&mContext.layouts, &LayoutEdits::sigProblem, &mContext.edits, &KeyEdits::sigProblem);
    connectBackups();
    retranslate();
    return true;
}

void MainFrame::connectBackups()
{
    connect(mpBackups, &Backups::sigReplacing, this, &MainFrame::allowEdits);
    connect(mpBackups, &Backups::sigReplaced, this, [this] {
        mpFunctionConfig->refreshKeys();
        showHomeLayout();
        showCurrentPage();
    });
}

void MainFrame::select(int index)
{
    Log(LogLevel::Info, LogText::SelectPage, index);
    if (index < FunctionConfiguration || index > SystemSettings)
        return;
    if ((index == mCurrentPage || confirmLeave()) && build(index)) {
        mCurrentPage = index;
        showCurrentPage();
    }
    emit sigPageSelected(mCurrentPage);
}

bool MainFrame::confirmLeave()
{
    if (mCurrentPage == FunctionConfiguration)
        return mpFunctionConfig->confirmLeave();
    return mCurrentPage != PanelLayout || mpLayoutPage->confirmLeave();
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
    connect(mpLayoutPage, &LayoutPage::sigHomeLayoutChosen, this, &MainFrame::chooseHomeLayout);
    allowEdits();
    showHomeLayout();
    return true;
}

bool MainFrame::setupPictureUploadPage()
{
    mpPictureUpload = new PictureUploadPage(mContext, this);
    if (!take(mpPictureUpload, LogText::SetupPictureUploadError))
        return false;
    connect(mpPictureUpload, &PictureUploadPage::sigGalleryChanged, this, &MainFrame::sigGalleryChanged);
    return true;
}

bool MainFrame::setupSystemSettingsPage()
{
    mpSystemSettings = new SystemSettingsPage(mContext, *mpBackups, mDesktop, this);
    if (!take(mpSystemSettings, LogText::SetupSystemSettingsError))
        return false;
    connect(mpSystemSettings, &SystemSettingsPage::sigHomeLayoutChosen, this, &MainFrame::chooseHomeLayout);
    mpSystemSettings->addSection(
        new BackupPanel(*mpBackups, *mContext.framework.languageManager(), mDesktop, mpSystemSettings));
    allowEdits();
    showHomeLayout();
    return true;
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
    if (mCurrentPage == PictureUpload)
        mpPictureUpload->setKey(mpFunctionConfig->currentKey());
    if (mCurrentPage == SystemSettings)
        mpSystemSettings->refresh(mDeviceValues);
    askForPanelValues();
    for (int index = FunctionConfiguration; index <= SystemSettings; ++index) {
        if (QWidget *widget = page(index); widget && index != mCurrentPage)
            widget->hide(); // before the other is shown: both at once would widen the window
    }
    showHomeButton();
    page(mCurrentPage)->show();
}

/// Of the page in view. The panel reports them only when asked.
void MainFrame::askForPanelValues()
{
    using vorlinmodel::RequestKind;
    constexpr int query = 255;
    if (!mConnected || isTransferInProgress())
        return;
    if (mCurrentPage == PanelLayout || mCurrentPage == SystemSettings)
        mContext.layouts.askForHomeLayout();
    if (mCurrentPage != SystemSettings)
        return;
    for (const RequestKind kind :
         {RequestKind::MD_FUNCTION_CODE_LCD_LIGHT, RequestKind::MD_FUNCTION_CODE_SYSTEM_TYPE})
        mContext.framework.sendRequest(kind, query);
}

void MainFrame::showHomeButton()
{
    mpHomeButton->setVisible(mCurrentPage == FunctionConfiguration && mContext.childrenForm);
}

void MainFrame::slotShowHomeLayout()
{
    mpFunctionConfig->returnToMain();
    showHomeButton(); // the person may have stayed, with steps that are not saved
}

void MainFrame::takeGalleryItem(const QString &picture, const QString &video)
{
    if (mCurrentPage == FunctionConfiguration && mpFunctionConfig->isEnabled())
        mpFunctionConfig->takeItem(picture, video);
}

void MainFrame::showInEditor(int layoutId)
{
    select(FunctionConfiguration);
    if (mCurrentPage == FunctionConfiguration) // the person may have stayed
        mpFunctionConfig->setKeyboardCurLayoutAndPage(layoutId, 1, true);
}

void MainFrame::setReading(bool reading)
{
    mReading = reading;
    mpBackups->setReading(reading);
    allowEdits();
}

void MainFrame::allowEdits()
{
    const bool isReplacing = mpBackups->activity() == Backups::Activity::Importing;
    const bool mayEdit = !mReading && !isReplacing;
    mpFunctionConfig->setEnabled(mayEdit);
    mpHomeButton->setEnabled(mayEdit);
    if (mpLayoutPage)
        mpLayoutPage->setEnabled(mayEdit);
    if (mpPictureUpload)
        mpPictureUpload->setEnabled(!isReplacing); // a read it waits for by itself
    if (mpSystemSettings) {
        mpSystemSettings->setReading(mReading);
        mpSystemSettings->setImporting(isReplacing);
    }
}

void MainFrame::showDeviceValue(int code, const QString &value)
{
    mDeviceValues.insert(code, value);
    if (code == int(vorlinmodel::RequestKind::MD_FUNCTION_CODE_HOME_LAYOUT)) // the numbers are the same
        showHomeLayout();
    if (mpSystemSettings && mCurrentPage == SystemSettings)
        mpSystemSettings->refresh(mDeviceValues);
}

void MainFrame::setConnected(bool connected)
{
    const bool came = connected && !mConnected;
    mConnected = connected;
    mpBackups->setConnected(connected);
    showHomeLayout();
    if (came)
        askForPanelValues();
}

/// On every page on which it can be chosen.
void MainFrame::showHomeLayout()
{
    const int layoutId =
        deviceValue(int(vorlinmodel::RequestKind::MD_FUNCTION_CODE_HOME_LAYOUT)).toInt(); // 0: not known
    if (mpLayoutPage)
        mpLayoutPage->showPanel(mConnected, layoutId);
    if (mpSystemSettings)
        mpSystemSettings->showPanel(mConnected, layoutId);
}

void MainFrame::chooseHomeLayout(int layoutId)
{
    const MessageBox::Question question{
        .text = mContext.framework.languageManager()->Text(HomeLayoutQuestion),
        .explanation = {},
        .buttons = QMessageBox::Yes | QMessageBox::No,
        .preset = QMessageBox::No,
        .captions = {{QMessageBox::Yes, tr("Switch")}, {QMessageBox::No, tr("Cancel")}}};
    if (MessageBox::question(this, question) == QMessageBox::Yes)
        mContext.layouts.setHomeLayout(layoutId);
    showHomeLayout(); // as the panel has it: what was chosen counts when the panel has said so
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
