#include "upgradedialog.h"

#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "base/log.h"
#include "protocol/iprotocolthread.h"
#include "protocol/logtext.h"
#include "ui_common/filedialog.h"
#include "ui_common/latesttask.h"
#include "ui_common/messagebox.h"
#include "upgradefeed.h"
#include "upgradeprogress.h"
#include "upgradetext.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

using vorlindesk::Log;
using vorlindesk::LogLevel;
using vorlinmodel::Request;
using vorlinmodel::RequestKind;

namespace {

constexpr int FileDialogCaption = 104;
constexpr int FileDialogFilter = 105;
constexpr int FirmwareFilter = 75;

/// "transfer %d block data ok"
bool isAboutABlock(const QString &line)
{
    return line.startsWith(QLatin1String("transfer ")) && line.endsWith(QLatin1String(" block data ok"));
}

} // namespace

HIDUpgradeDialog::HIDUpgradeDialog(vorlindesk::IFrameworkContext &context, QWidget *parent, Mode mode)
    : QDialog(parent, Qt::WindowTitleHint | Qt::WindowCloseButtonHint)
    , mContext(context)
    , mpThread(context.protocolThread())
    , mMode(mode)
{
    setObjectName(QStringLiteral("upgradeDialog"));
    mUpdateTimer.setObjectName(QStringLiteral("updateTimer"));
    mUpdateTimer.setInterval(RetryPeriod);
    connect(&mUpdateTimer, &QTimer::timeout, this, &HIDUpgradeDialog::onSlotTimerUpdateOut);
}

HIDUpgradeDialog::~HIDUpgradeDialog()
{
    stopAsking();
}

bool HIDUpgradeDialog::isUpgrading() const
{
    return mpThread && mpThread->isUpgrading();
}

/// Caption and first filter are those of font files for firmware too. That is wanted: both come as ".xft".
/// Firmware may be a ".bin" as well.
void HIDUpgradeDialog::onSelectButtonClicked()
{
    const vorlindesk::LanguageManager &language = *mContext.languageManager();
    QString filter = language.Text(FileDialogFilter);
    if (mMode == Mode::Firmware)
        filter += QStringLiteral(";;") + language.Text(FirmwareFilter);
    // Not over this dialog, whose style sheet would make the file dialog black on dark grey.
    const QString path =
        FileDialog::openFile(parentWidget(), language.Text(FileDialogCaption), QString(), filter);
    if (path.isEmpty())
        return;
    mpFilePath->setText(path);
    Log(LogLevel::Info, UpgradeText::Selected, qUtf8Printable(path));
    prepare(false);
}

/// The box is for a click only. A request that the timer repeats while an upgrade runs is dropped in silence.
void HIDUpgradeDialog::onUpgradeButtonClicked()
{
    if (isUpgrading())
        MessageBox::inform(this, QLatin1String(UpgradeText::BusyTitle), QLatin1String(UpgradeText::Busy));
    else if (mpFilePath->text().isEmpty())
        MessageBox::warn(this, tr("Choose the file first."));
    else if (mUpdateTimer.isActive())
        requestUpgrade(); // it is checked and backed up already
    else if (!mpTask->isBusy() && !mIsSaving)
        prepare(true);
}

/// Reads the file beside the window's thread.
void HIDUpgradeDialog::prepare(bool toUpgrade)
{
    setState(State::Checking);
    mpTask->start([this, toUpgrade, path = mpFilePath->text()](const std::atomic<bool> &) {
        const UpgradeFile file = examineUpgradeFile(path);
        return LatestTask::Delivery([this, toUpgrade, file] {
            onChecked(file);
            if (toUpgrade)
                save();
        });
    });
}

void HIDUpgradeDialog::onChecked(const UpgradeFile &file)
{
    mFile = file;
    setState(isUpgrading() ? State::Running : State::Idle);
}

void HIDUpgradeDialog::save()
{
    if (mFile.problem != UpgradeFile::Problem::None) {
        MessageBox::warn(this, problemText());
        return;
    }
    mBackupFolder.clear();
    if (!mBackup)
        return startAsking();
    mIsSaving = true;
    setState(State::Checking);
    const QString obstacle = mBackup([this](const BackupState &state) { onSaved(state); });
    if (obstacle.isEmpty())
        return;
    mIsSaving = false;
    setState(State::Idle);
    MessageBox::warn(this, obstacle);
}

void HIDUpgradeDialog::onSaved(const BackupState &state)
{
    if (!std::exchange(mIsSaving, false)) // closed meanwhile
        return;
    setState(State::Idle);
    const bool isWhole = !state.folder.isEmpty() && state.lacks.isEmpty();
    if (!isWhole) {
        Log(LogLevel::Warn, UpgradeText::NoBackup);
        if (!goOn(state))
            return;
    }
    mBackupFolder = state.folder;
    if (!mBackupFolder.isEmpty()) {
        Log(LogLevel::Info, UpgradeText::Backup, qUtf8Printable(mBackupFolder));
        showLines({tr("The configuration was saved in %1").arg(QDir::toNativeSeparators(mBackupFolder))});
    }
    startAsking();
}

void HIDUpgradeDialog::startAsking()
{
    if (hasFileChanged()) // during the backup, or while a question was open
        return prepare(true);
    setState(State::Waiting);
    requestUpgrade();
}

bool HIDUpgradeDialog::goOn(const BackupState &state)
{
    constexpr int mostLines = 8; // a question that fills the screen is not read
    MessageBox::Question question;
    question.text = state.folder.isEmpty() ? tr("The configuration could not be saved. Upgrade all the same?")
                                           : tr("The backup does not hold everything. Upgrade all the same?");
    QStringList lines = state.lacks.mid(0, mostLines);
    lines << tr("What the panel holds may be lost if the upgrade fails.");
    question.explanation = lines.join(QLatin1Char('\n'));
    question.buttons = QMessageBox::Yes | QMessageBox::No;
    question.preset = QMessageBox::No;
    return MessageBox::question(this, question) == QMessageBox::Yes;
}

/// While the panel is waited for, which may take long.
bool HIDUpgradeDialog::hasFileChanged() const
{
    const QFileInfo file(mpFilePath->text());
    return file.size() != mFile.size || file.lastModified() != mFile.modified;
}

void HIDUpgradeDialog::requestUpgrade()
{
    if (isUpgrading())
        return;
    const QString path = mpFilePath->text();
    if (mMode == Mode::Firmware)
        Log(LogLevel::Debug, UpgradeText::Ready, mIsTimerUpdateFinished ? "true" : "false");
    if (!mIsTimerUpdateFinished && mMode == Mode::Firmware && !mUpdateTimer.isActive()) {
        mUpdateTimer.start();
        setState(mState);
    }
    mIsAsked = mpThread != nullptr;
    mContext.sendRequest(RequestKind::MD_FUNCTION_CODE_UPGRADE, QString(), path);
}

/// Asks again and again, for as long as the dialog is open and the panel does not answer; behind a long
/// transfer not before the last request had its turn.
void HIDUpgradeDialog::onSlotTimerUpdateOut()
{
    Log(LogLevel::Info, UpgradeText::TimerOut, mIsTimerUpdateFinished ? 1 : 0);
    if (mIsTimerUpdateFinished || mIsAsked)
        return;
    if (hasFileChanged()) {
        mUpdateTimer.stop();
        prepare(true);
    } else {
        requestUpgrade();
    }
}

void HIDUpgradeDialog::onUpdateAvailable(int nResult)
{
    Log(LogLevel::Debug, UpgradeText::Available, nResult);
    if (nResult <= 0)
        return;
    mIsTimerUpdateFinished = true;
    disconnect(&mUpdateTimer, &QTimer::timeout, this, &HIDUpgradeDialog::onSlotTimerUpdateOut);
    mUpdateTimer.stop();
    mCrcFailed = false;
    mpProgress->begin();
    setState(State::Running);
    if (std::exchange(mIsClosing, false))
        reject(); // the panel came in this very moment: now it is a question
}

void HIDUpgradeDialog::onSetTimeoutButtonClicked()
{
    if (!mpTimeout->hasAcceptableInput()) {
        MessageBox::warn(this, tr("The time must be a number of milliseconds from 0 to %1.").arg(MaxTimeout));
        return;
    }
    const int milliseconds = mpTimeout->text().toInt();
    Log(LogLevel::Info, UpgradeText::Timeout, milliseconds);
    mContext.sendRequest(RequestKind::SetBlockDelay, milliseconds);
}

void HIDUpgradeDialog::onSetHidPathButtonClicked()
{
    mContext.sendRequest(RequestKind::SetDevicePath, mpHidPath->text(), QString());
}

void HIDUpgradeDialog::onClearSendMessageButtonClicked()
{
    mpMessages->clear();
}

void HIDUpgradeDialog::onEvents(const std::vector<UpgradeEvent> &events)
{
    mpProgress->noteHeard();
    QStringList lines;
    for (const UpgradeEvent &event : events) {
        if (event.kind == UpgradeEvent::Line)
            lines << event.text;
        onEvent(event);
    }
    showLines(lines);
}

void HIDUpgradeDialog::onEvent(const UpgradeEvent &event)
{
    switch (event.kind) {
    case UpgradeEvent::Line:
        if (event.text == QLatin1String(ProtocolText::CrcDifferent))
            mCrcFailed = true;
        break;
    case UpgradeEvent::Available:
        onUpdateAvailable(event.value);
        break;
    case UpgradeEvent::Progress:
        mpProgress->setBlocks(event.value, event.allBlocks);
        break;
    case UpgradeEvent::Finished:
        onFinished(event.value);
        break;
    case UpgradeEvent::Done:
        mIsAsked = false;
        onDone();
        break;
    }
}

/// In one go: line by line, a fast panel would send more than the window can lay out, and it would freeze.
void HIDUpgradeDialog::showLines(const QStringList &lines)
{
    int surplus = lines.size() - MaxBundle;
    QString text;
    for (const QString &line : lines) {
        if (isAboutABlock(line) && surplus-- > 0)
            continue; // the bar tells how far it is
        text += line.trimmed() + QLatin1Char('\n');
    }
    text.chop(1); // the area begins a line by itself
    if (!lines.isEmpty())
        mpMessages->appendPlainText(text);
}

/// A wrong checksum ends with 1, too: that says only that the panel was told of it.
void HIDUpgradeDialog::onFinished(int nResult)
{
    setState(nResult > 0 && !mCrcFailed ? State::Succeeded : State::Failed);
    mpProgress->end();
}

/// The end of a request without a word on how it finished: some step before the last has failed.
void HIDUpgradeDialog::onDone()
{
    if (std::exchange(mIsClosing, false))
        return reject();
    const bool asksAgain = mState == State::Waiting && mUpdateTimer.isActive();
    if (asksAgain || (mState != State::Running && mState != State::Waiting))
        return;
    setState(State::Failed);
    mpProgress->end();
}

void HIDUpgradeDialog::setState(State state)
{
    mState = state;
    mpFileInfo->setText(fileText());
    mpStateLabel->setText(stateText());
    // The file that the timer asks for is one that was checked. The other button stays: it tells of an
    // upgrade.
    mpSelect->setEnabled(state != State::Checking && state != State::Running && !mUpdateTimer.isActive());
    mpUpgrade->setEnabled(state != State::Checking);
}

/// Also withdraws what waits in the queue: nobody expects an upgrade to begin behind a closed dialog.
void HIDUpgradeDialog::stopAsking()
{
    mUpdateTimer.stop();
    if (!mpThread || !mpFilePath)
        return;
    Request request;
    request.functionCode = static_cast<quint32>(RequestKind::MD_FUNCTION_CODE_UPGRADE);
    request.fileName = mpFilePath->text();
    mpThread->cancelTransfer(request);
}

void HIDUpgradeDialog::reject()
{
    const bool isWaiting = mState == State::Waiting;
    if (!isWaiting && !confirmLeave(mContext, this))
        return;
    stopAsking();
    // While no panel is there each try counts as an upgrade for a moment, and is none.
    mIsClosing = isWaiting && isUpgrading();
    if (mIsClosing)
        return; // until it has ended
    mpTask->cancel();
    mIsSaving = false; // nothing follows a backup that is being made
    if (mState == State::Checking || mState == State::Waiting)
        setState(State::Idle);
    QDialog::reject();
}

bool HIDUpgradeDialog::confirmLeave(vorlindesk::IFrameworkContext &context, QWidget *parent)
{
    const vorlinmodel::IProtocolThread *thread = context.protocolThread();
    if (!thread || !thread->isUpgrading())
        return true;
    MessageBox::Question question;
    question.title = QLatin1String(UpgradeText::CloseTitle);
    question.text = QLatin1String(UpgradeText::CloseQuestion);
    question.buttons = QMessageBox::Yes | QMessageBox::No;
    question.preset = QMessageBox::No;
    return MessageBox::question(parent, question) == QMessageBox::Yes;
}
