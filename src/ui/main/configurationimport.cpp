#include "configurationimport.h"

#include "backupwork.h"
#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "base/systemsettings.h"
#include "model/ifunctionmanager.h"
#include "model/profiles.h"
#include "protocol/iprotocolthread.h"
#include "restorecommand.h"
#include "scripttransfer.h"
#include "ui_editor/editorcontext.h"
#include "ui_editor/pendinglayouts.h"

#include <QRegularExpression>
#include <QSet>
#include <QTimer>
#include <future>

using vorlinmodel::BackupContent;
using vorlinmodel::BackupWatch;
using vorlinmodel::IFunctionManager;
using vorlinmodel::key_id_t;
using vorlinmodel::RequestOutcome;
using vorlinmodel::RestoreResult;
namespace Profiles = vorlinmodel::Profiles;

namespace {

constexpr int LoadPart = 20; // percent

/// All keys of the pages on which @p state has keys: a script replaces whole pages.
QVector<key_id_t> keysOfPages(const ConfigurationState &state)
{
    QVector<key_id_t> keys;
    key_id_t page{-1, -1, 0};
    for (const key_id_t &key : state.keys.keys()) {
        if (key.lid == page.lid && key.pageid == page.pageid)
            continue;
        page = {key.lid, key.pageid, 0};
        for (int kid = vorlinmodel::FirstKeyId; kid <= vorlinmodel::LastKeyId; ++kid)
            keys.append({key.lid, key.pageid, kid});
    }
    return keys;
}

QVector<key_id_t> keysOf(const vorlinmodel::Script &script)
{
    QVector<key_id_t> keys;
    for (const PagePayload &page : script.pages) {
        for (const KeyRecord &record : page.records)
            keys.append({record.layoutId, record.pageId, record.keyId});
    }
    return keys;
}

/// Numbers of its custom layouts.
QVector<int> layoutsOf(const BackupContent &content)
{
    static const QRegularExpression group(QStringLiteral("^\\[layout_(\\d{1,3})\\]"),
                                          QRegularExpression::MultilineOption);
    QVector<int> ids;
    auto match =
        group.globalMatch(QString::fromUtf8(content.files.value(QStringLiteral("customLayout.ini"))));
    while (match.hasNext())
        ids.append(match.next().captured(1).toInt());
    return ids;
}

} // namespace

struct ConfigurationImport::Outcome
{
    RestoreResult result;
    QVector<KeyDifference> keys;
    QVector<int> layouts;
    QVector<key_id_t> covered; ///< by the script of the new configuration
};

ConfigurationImport::ConfigurationImport(EditorContext &context, BackupWork &work, QObject *parent)
    : QObject(parent)
    , mContext(context)
    , mWork(work)
    , mpTransfer(new ScriptTransfer(context.framework, this))
{
    connect(mpTransfer, &ScriptTransfer::sigProgress, this, &ConfigurationImport::sigSendProgress);
    connect(mpTransfer, &ScriptTransfer::sigDone, this, &ConfigurationImport::onScriptSent);
}

bool ConfigurationImport::isSending() const
{
    return mpTransfer->isUnderWay();
}

void ConfigurationImport::cancel()
{
    if (isSending())
        mpTransfer->cancel();
    else
        mWork.cancel(mTask);
}

void ConfigurationImport::start(const Content &content, bool takesTheRest, bool toPanel)
{
    const auto finish = [this, name = content->info.name](const RestoreResult &result) {
        if (!result.isDone)
            return emit sigFailed(result.error);
        const auto step = std::make_shared<RestoreStep>(RestoreStep{result.safetyFolder});
        mContext.edits.history().push( // which owns it
            new RestoreCommand(*this, tr("Import of a backup"), step));
        emit sigImported(name, result.leftOut);
    };
    replace([content](const BackupWatch &) { return content; }, takesTheRest, toPanel, finish);
}

/// A step that cannot be taken leaves the history where it was.
void ConfigurationImport::takeBack(const std::shared_ptr<RestoreStep> &step, bool forward,
                                   const QString &problem)
{
    step->isTakenBack = true;
    QUndoStack &history = mContext.edits.history();
    forward ? history.undo() : history.redo();
    if (problem.isEmpty())
        return;
    const QString text =
        forward ? tr("The import could not be made again: %1") : tr("The import could not be taken back: %1");
    emit mContext.edits.sigProblem(text.arg(problem));
}

/// Called by the history, which cannot be walked back before that returns.
void ConfigurationImport::walk(const std::shared_ptr<RestoreStep> &step, bool forward)
{
    const QString obstacle = mObstacle ? mObstacle() : QString();
    if (!obstacle.isEmpty()) {
        QTimer::singleShot(0, this, [=, this] { takeBack(step, forward, obstacle); });
        return;
    }
    const auto load = [folder = step->folder](const BackupWatch &watch) -> Content {
        auto content = vorlinmodel::loadBackup(folder, watch);
        return content ? std::make_shared<const BackupContent>(std::move(*content)) : nullptr;
    };
    const auto finish = [this, step, forward](const RestoreResult &result) {
        if (result.isDone) {
            step->folder = result.safetyFolder;
            return;
        }
        takeBack(step, forward, result.isCancelled ? QString() : result.error);
    };
    replace(load, false, false, finish);
}

void ConfigurationImport::replace(const Load &load, bool takesTheRest, bool toPanel, const Finish &finish)
{
    const auto saved = mContext.edits.beginReplace();
    const QVector<key_id_t> pending = mContext.edits.pending().keys();
    mContext.layouts.linkLost(); // what the panel has sent so far belongs to the configuration that goes
    mReplacing = true;
    emit sigReplacing(true);
    IFunctionManager &store = mContext.edits.store();
    mTask = mWork.start([=, this, chosen = mDirectory, &store](const BackupWatch &watch) {
        saved.wait();
        Outcome outcome;
        const ConfigurationState before = captureConfiguration(store, watch.still());
        const Content content = watch.isGivenUp() ? nullptr : load(watch.part(0, LoadPart));
        outcome.result.isCancelled = !content;
        if (content) {
            // A kill behind the exchange leaves the panel with keys of before: noted beforehand.
            PendingEdits::saveWhole(before.keys.keys().toVector() + pending + keysOf(content->script));
            PendingLayouts::saveWhole(before.layouts.keys().toVector() + layoutsOf(*content));
            outcome.result = restoreBackup(
                *content, store, {.safetyDirectory = Profiles::usable(chosen), .takesTheRest = takesTheRest},
                watch.part(LoadPart, 100));
        }
        if (outcome.result.isDone) {
            const ConfigurationState after = captureConfiguration(store);
            outcome.keys = differences(before, after, pending);
            outcome.layouts = layoutDifferences(before, after);
            outcome.covered = keysOfPages(after);
        }
        return [this, outcome, toPanel, finish] {
            take(outcome, toPanel);
            finish(outcome.result);
            mReplacing = false;
            emit sigReplacing(false);
            if (toPanel && outcome.result.isDone && !isSending())
                emit sigSent(notTaken());
        };
    });
}

void ConfigurationImport::take(const Outcome &outcome, bool toPanel)
{
    if (!outcome.result.isDone) {
        mContext.layouts.savePending();
        return mContext.edits.endReplace({}, false);
    }
    const bool asScript = toPanel && mConnected;
    mContext.layouts.replaced(outcome.layouts); // a panel has to know a layout before its keys
    mContext.edits.endReplace(outcome.keys, mConnected && !asScript);
    if (asScript)
        sendScript(outcome);
    auto &language = *mContext.framework.languageManager();
    if (const int stored = vorlindesk::SystemSettings::language(); stored != language.language())
        language.setLanguage(stored);
    emit sigReplaced();
}

QString ConfigurationImport::notTaken()
{
    return tr(
        "The panel has not taken the configuration. It gets what differs when it is connected next time.");
}

void ConfigurationImport::sendScript(const Outcome &outcome)
{
    mCovered = outcome.covered;
    mpTransfer->start();
}

/// The script leaves the pages alone that it does not hold: their keys are still pending, and are cleared.
void ConfigurationImport::onScriptSent(RequestOutcome outcome)
{
    QString problem;
    switch (outcome) {
    case RequestOutcome::Sent:
        mContext.edits.panelTook(std::exchange(mCovered, {}));
        mContext.edits.sendPending();
        break;
    case RequestOutcome::Unreadable: // too long for one message
        mContext.edits.sendPending();
        problem = tr("The configuration is too large to be sent at once. Its keys are sent one by one.");
        break;
    case RequestOutcome::Cancelled:
        problem = tr(
            "Sending was cancelled: the panel keeps what it has. It gets what differs when it is connected "
            "next time.");
        break;
    case RequestOutcome::NoPanel:
    case RequestOutcome::Failed:
        problem = notTaken();
        break;
    }
    emit sigSent(problem);
}
