/// Puts a backup in the place of the configuration, on the computer and on the panel.
#pragma once

#include "model/backuprestore.h"
#include "ui_editor/configurationstate.h"

#include <QObject>
#include <QStringList>
#include <functional>
#include <memory>

class BackupWork;
class RestoreCommand;
class ScriptTransfer;
struct EditorContext;
struct RestoreStep;

namespace vorlinmodel {
enum class RequestOutcome;
}

/// User-interface thread only; the files are the work's. An import is one step of the common history. Its
/// undo restores the safety backup that was made before it, and its redo the one that was made before the
/// undo, so that each leads to exactly what was there. The steps below it stay: they are states of keys and
/// layouts by value, and can be reached only through that undo, on the configuration that they belong to.
class ConfigurationImport : public QObject
{
    Q_OBJECT
public:
    using Content = std::shared_ptr<const vorlinmodel::BackupContent>;

    /// All outlive this object.
    ConfigurationImport(EditorContext &context, BackupWork &work, QObject *parent = nullptr);

    /// @p toPanel: the panel gets the whole configuration at once; else, and when that fails, it gets what
    /// differs as it gets edits: now, or when it comes.
    void start(const Content &content, bool takesTheRest, bool toPanel);
    bool isReplacing() const { return mReplacing; } ///< the store is not the person's
    bool isSending() const;                         ///< the whole configuration, to the panel
    void cancel(); ///< the one that is carried out or sent, as far as possible
    void setConnected(bool connected) { mConnected = connected; }
    /// That the person has chosen for backups; the next safety backup is made there, if it can be used.
    void setDirectory(const QString &chosen) { mDirectory = chosen; }
    /// Says why an undo or redo cannot be carried out now, for the person; empty when it can.
    void setObstacle(std::function<QString()> obstacle) { mObstacle = std::move(obstacle); }

signals:
    void sigReplacing(bool on);
    void sigReplaced(); ///< every view shows the configuration of before
    void sigImported(const QString &name, const QStringList &leftOut);
    void sigFailed(const QString &reason); ///< nothing was changed
    void sigSendProgress(int sentBlocks, int allBlocks);
    void sigSent(const QString &problem); ///< empty: the panel has it all

private:
    friend class RestoreCommand;
    struct Outcome;
    using Load = std::function<Content(const vorlinmodel::BackupWatch &watch)>;
    using Finish = std::function<void(const vorlinmodel::RestoreResult &result)>;

    void walk(const std::shared_ptr<RestoreStep> &step, bool forward);
    void takeBack(const std::shared_ptr<RestoreStep> &step, bool forward, const QString &problem);
    void replace(const Load &load, bool takesTheRest, bool toPanel, const Finish &finish);
    void take(const Outcome &outcome, bool toPanel);
    static QString notTaken();
    void sendScript(const Outcome &outcome);
    void onScriptSent(vorlinmodel::RequestOutcome outcome);

    EditorContext &mContext;
    BackupWork &mWork;
    ScriptTransfer *mpTransfer;
    std::function<QString()> mObstacle;
    QString mDirectory;
    QVector<vorlinmodel::key_id_t> mCovered; ///< by the script that is sent
    int mTask = 0;                           ///< of the work
    bool mConnected = false;
    bool mReplacing = false;
};
