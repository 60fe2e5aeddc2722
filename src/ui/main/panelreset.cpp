#include "panelreset.h"

#include "backups.h"
#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "base/log.h"
#include "logtext.h"
#include "model/customlayouts.h"
#include "model/ifunctionmanager.h"
#include "protocol/iprotocolthread.h"
#include "ui_common/messagebox.h"
#include "ui_editor/editorcontext.h"
#include "upgradetext.h"

#include <QDir>

using vorlindesk::Log;
using vorlindesk::LogLevel;
using vorlinmodel::IProtocolThread;
using vorlinmodel::Request;
using vorlinmodel::RequestKind;
using vorlinmodel::RequestOutcome;

namespace {

constexpr int FormatText = 107;
constexpr int ResetText = 111;
constexpr int QuestionText = 118;
constexpr int FormattedText = 120;
constexpr int MostLines = 8; // of what a backup lacks

} // namespace

PanelReset::PanelReset(EditorContext &context, Backups &backups, QWidget *pWindow)
    : mContext(context)
    , mBackups(backups)
    , mpWindow(pWindow)
{
    connect(&backups, &Backups::sigActivity, this, &PanelReset::showProgress);
    if (IProtocolThread *thread = context.framework.protocolThread())
        connectProtocolThread(*thread);
    connect(&context.edits, &KeyEdits::sigReadEnded, this, [this] {
        if (mState == State::Reading)
            clearComputer();
    });
}

/// The outcome arrives on the protocol thread.
void PanelReset::connectProtocolThread(IProtocolThread &thread)
{
    connect(
        &thread, &IProtocolThread::sigRequestDone, this,
        [this](const Request &request, RequestOutcome outcome) {
            if (request.functionCode == static_cast<quint32>(RequestKind::MD_FUNCTION_CODE_DEL_CONFIGFILE))
                mHandOver.post([this, outcome] { onSent(outcome); });
        },
        Qt::DirectConnection);
}

/// Its requests would be dropped with all that wait for the firmware that goes.
bool PanelReset::isUpgrading() const
{
    const IProtocolThread *thread = mContext.framework.protocolThread();
    return thread && thread->isUpgrading();
}

void PanelReset::start(Kind kind)
{
    if (isBusy())
        return;
    mKind = kind;
    if (isUpgrading())
        MessageBox::inform(mpWindow, QLatin1String(UpgradeText::BusyTitle), QLatin1String(UpgradeText::Busy));
    else if (confirm())
        save();
}

QString PanelReset::title() const
{
    return mContext.framework.languageManager()->Text(mKind == Kind::Format ? FormatText : ResetText);
}

bool PanelReset::confirm() const
{
    MessageBox::Question question;
    question.title = title();
    question.text = mContext.framework.languageManager()->Text(QuestionText);
    question.explanation =
        mKind == Kind::Format
            ? tr("Lost on the panel: all keys with their pictures, videos and action lists.\n\n"
                 "What is on this computer stays, and is saved as a backup first. Importing that to the "
                 "panel brings the keys back.")
            : tr("Lost on the panel and on this computer: all keys with their pictures, videos and action "
                 "lists, and all panel layouts.\n\n"
                 "What is on this computer is saved as a backup first. “Undo” in the editor brings it back "
                 "until the program ends, the backup at any time. What only the panel holds cannot be "
                 "brought back.");
    question.buttons = QMessageBox::Yes | QMessageBox::No;
    question.preset = QMessageBox::No;
    return MessageBox::question(mpWindow, question) == QMessageBox::Yes;
}

void PanelReset::save()
{
    mPercent = 0;
    const QString obstacle = mBackups.obstacle();
    if (mBackups.createSafety(this, [this](const Saved &saved) { onSaved(saved); }))
        setState(State::Saving);
    else
        MessageBox::warn(mpWindow, obstacle);
}

void PanelReset::showProgress()
{
    if (mState == State::Saving && std::exchange(mPercent, mBackups.percent()) != mBackups.percent())
        emit sigChanged();
}

void PanelReset::onSaved(const Saved &saved)
{
    mFolder = saved.folder;
    const bool isWhole = !saved.folder.isEmpty() && saved.leftOut.isEmpty();
    if (isWhole || goOn(saved))
        send();
    else
        setState(State::Idle);
}

bool PanelReset::goOn(const Saved &saved) const
{
    MessageBox::Question question;
    question.title = title();
    QStringList lines;
    if (saved.folder.isEmpty()) {
        question.text = tr("The configuration could not be saved. Go on all the same?");
        lines << saved.error << tr("There would be no backup to bring it back from.");
    } else {
        question.text = tr("The backup does not hold everything. Go on all the same?");
        lines = saved.leftOut.mid(0, MostLines);
        if (saved.leftOut.size() > MostLines)
            lines << tr("and %1 more").arg(saved.leftOut.size() - MostLines);
    }
    lines.removeAll(QString());
    question.explanation = lines.join(QLatin1Char('\n'));
    question.buttons = QMessageBox::Yes | QMessageBox::No;
    question.preset = QMessageBox::No;
    return MessageBox::question(mpWindow, question) == QMessageBox::Yes;
}

void PanelReset::send()
{
    Log(LogLevel::Info, LogText::PanelReset, mKind == Kind::Format ? 0 : 1, qUtf8Printable(mFolder));
    setState(State::Sending);
    mContext.framework.sendRequest(RequestKind::MD_FUNCTION_CODE_DEL_CONFIGFILE, 0, 0);
}

void PanelReset::onSent(RequestOutcome outcome)
{
    if (mState != State::Sending)
        return;
    if (outcome != RequestOutcome::Sent) {
        setState(State::Idle);
        MessageBox::warn(mpWindow, tr("The panel did not take it. Nothing was cleared."));
    } else if (mKind == Kind::Format) {
        finish();
    } else if (mContext.edits.isReading()) {
        setState(State::Reading); // which overwrites the keys until it ends
    } else {
        clearComputer();
    }
}

void PanelReset::clearComputer()
{
    QUndoStack &history = mContext.edits.history();
    const bool isEmpty =
        mContext.edits.store().getKeys().isEmpty() && vorlinmodel::customLayoutIds().isEmpty();
    QStringList problems;
    if (!isEmpty) {
        history.beginMacro(title());
        mContext.edits.takePanelCleared(title());
        problems = removeLayouts();
        history.endMacro();
    }
    finish();
    if (!problems.isEmpty())
        MessageBox::warn(mpWindow, problems.join(QLatin1Char('\n')));
}

QStringList PanelReset::removeLayouts()
{
    QStringList problems;
    for (const int layoutId : vorlinmodel::customLayoutIds()) {
        const QString problem = mContext.layouts.remove(layoutId);
        if (!problem.isEmpty() && !problems.contains(problem))
            problems.append(problem);
    }
    return problems;
}

void PanelReset::finish()
{
    setState(State::Idle);
    const vorlindesk::LanguageManager &language = *mContext.framework.languageManager();
    QString text = language.Text(FormattedText);
    if (mKind == Kind::ResetAll)
        text +=
            QStringLiteral("\n\n") + tr("All data has been reset. “Undo” in the editor brings back what was "
                                        "on this computer, until the program ends.");
    if (!mFolder.isEmpty())
        text += QStringLiteral("\n\n") + savedText();
    MessageBox::inform(mpWindow, title(), text);
}

QString PanelReset::savedText() const
{
    return tr("Safety backup: %1").arg(QDir::toNativeSeparators(mFolder));
}

QString PanelReset::statusText() const
{
    switch (mState) {
    case State::Idle:
        return mFolder.isEmpty() ? QString() : savedText();
    case State::Saving:
        return tr("The configuration is being saved: %1 %").arg(mPercent);
    case State::Sending:
        return tr("Waiting until the panel has been cleared.");
    case State::Reading:
        return tr("Waiting until the panel has been read.");
    }
    return {};
}

void PanelReset::setState(State state)
{
    mState = state;
    mBackups.setClearing(state == State::Sending || state == State::Reading);
    emit sigChanged();
}
