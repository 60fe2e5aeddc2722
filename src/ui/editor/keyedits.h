/// Every edit of keys goes through here: into the store, onto the panel, into the history, and onto the disk.
#pragma once

#include "base/handover.h"
#include "base/request.h"
#include "configurationstate.h"
#include "keystate.h"
#include "model/keyid.h"
#include "pendingedits.h"
#include "storefiles.h"

#include <QMap>
#include <QObject>
#include <QTimer>
#include <QUndoStack>
#include <QVector>
#include <functional>
#include <optional>

namespace vorlindesk {
class IFrameworkContext;
}
namespace vorlinmodel {
class IFunctionManager;
class IProtocolThread;
enum class RequestOutcome;
} // namespace vorlinmodel

struct KeyPlacement
{
    vorlinmodel::key_id_t key;
    KeyState state;
};

/// @return the keys of @p placements, in their order.
QVector<vorlinmodel::key_id_t> placedKeys(const QVector<KeyPlacement> &placements);

/// User-interface thread only. A step of the history is the states of its keys before and after; undo and
/// redo put one of them back, and send the panel what differs from the present.
class KeyEdits : public QObject
{
    Q_OBJECT
public:
    static constexpr int Rest = 300; ///< ms without typing or sliding, after which a value is sent
    static constexpr int HistoryLimit = 500;

    /// Loads what the last run has saved. @p context outlives this object, while its protocol thread has to
    /// end before it.
    explicit KeyEdits(vorlindesk::IFrameworkContext &context, QObject *parent = nullptr);
    ~KeyEdits() override; ///< sends nothing more; what is not saved is saved

    vorlindesk::IFrameworkContext &context() const { return mContext; }
    vorlinmodel::IFunctionManager &store() const { return mStore; }
    QUndoStack &history() { return mHistory; }
    const PendingEdits &pending() const { return mPending; }

    /// One step: @p change alters @p keys in the store (and their steps and files) and sends what is needed.
    /// May be called within another change(), of whose step it then becomes part. A change that changes
    /// nothing leaves no step. @p text names the step ("Undo: %1").
    void change(const QString &text, const QVector<vorlinmodel::key_id_t> &keys,
                const std::function<void()> &change);

    /// For typing and sliding: @p apply sets one value in the store now; once no other comes for Rest ms, or
    /// anything else happens, the attribute is sent and the step recorded.
    void changeAtRest(const QString &text, const vorlinmodel::key_id_t &key,
                      vorlinmodel::AttributeId attribute, const std::function<void()> &apply);
    void flush(); ///< ends such a change now

    /// One step that gives each key a state. A key named twice gets the last one.
    void place(const QString &text, const QVector<KeyPlacement> &placements);

    /// Sets a key's state in store and files, and sends what differs; not a step by itself.
    void apply(const QVector<KeyPlacement> &placements);

    /// Queues a key-attribute request, and keeps it in mind until the panel has taken it. When the transfer
    /// of a video is cancelled, the video that the panel still has comes back into the store.
    void send(const vorlinmodel::key_id_t &key, int fid, vorlinmodel::AttributeId attribute);

    void undo(); ///< takes what is typed and flushes first
    void redo();

    /// The panel came: queues what it has not taken. During a read, which has overwritten it, once that is
    /// over.
    void sendPending();

    /// Around a read of the panel's configuration, which overwrites the store. Edits that the panel has not
    /// taken survive it. Not while isSaving(), which it would wait for.
    void beginRead();
    /// @p whole: the panel sent all it has, so that keys not in @p received are gone. @p received: every key
    /// of every page that came. A difference that a person would notice becomes a step.
    void endRead(bool whole, const QVector<vorlinmodel::key_id_t> &received);

    /// The panel has just cleared all its keys: one step that takes them away here, too. Undo sends them.
    void takePanelCleared(const QString &text);

    bool isSaving() const { return mFiles.isWriting(); } ///< sigSaved() will tell of the end
    bool saveNow() { return mFiles.saveNow(); }          ///< @return false when a file could not be written
    /// False when the records of the last run could not be read: files may belong to keys that this run does
    /// not know.
    bool isLoaded() const { return mIsLoaded; }
    /// Around work of another thread with the files and the store, which edits do not change meanwhile.
    /// beginWork() only holds back the saving; beginReplace() also makes isReading() true, as a read does.
    /// The result is ready when no writing is under way any more. Not during a read; each until its end.
    std::shared_future<void> beginWork() { return mFiles.hold(); }
    void endWork() { mFiles.release(); }
    std::shared_future<void> beginReplace();
    /// @p changed: what differs from what the panel shows; empty when nothing was replaced. It is sent with
    /// @p send, else it is pending. The history is left to the caller.
    void endReplace(const QVector<KeyDifference> &changed, bool send);
    void panelTook(const QVector<vorlinmodel::key_id_t> &keys); ///< whole, not as edits

    /// Why nothing can be edited now, for the person; empty when it can. Edits, undo and redo are then
    /// refused with sigProblem. Not during a read, whose end keeps what is edited meanwhile.
    QString obstacle() const;
    /// The store is not the person's: between beginRead() and endRead(), or while it is replaced.
    bool isReading() const { return mReading || mReplacing; }

signals:
    /// Keys that look or act differently now, whatever changed them.
    void sigKeysChanged(const QVector<vorlinmodel::key_id_t> &keys);
    /// The keys that undo or redo changed: they should come into view.
    void sigStepApplied(const QVector<vorlinmodel::key_id_t> &keys);
    /// Fields take what is typed and not confirmed yet, by a change() of their own.
    void sigCommit();
    void sigSaved();                                       ///< or failed to be; not by saveNow()
    void sigReadEnded();                                   ///< the store is the person's again
    void sigMarkChanged(const vorlinmodel::key_id_t &key); ///< see pending()
    void sigProblem(const QString &text);                  ///< for the person, in plain words

private:
    friend class KeyChangeCommand;

    struct AtRest
    {
        QString text;
        vorlinmodel::key_id_t key;
        vorlinmodel::AttributeId attribute;
        KeyState before;
    };
    using States = QMap<vorlinmodel::key_id_t, KeyState>;

    void connectProtocolThread(vorlinmodel::IProtocolThread &thread);
    void requestDone(const vorlinmodel::key_id_t &key, vorlinmodel::AttributeId attribute,
                     vorlinmodel::RequestOutcome outcome);
    bool refuses();
    States capture(const QVector<vorlinmodel::key_id_t> &keys) const;
    void push(const QString &text, const States &before);
    void applyStep(const QVector<KeyPlacement> &placements);
    void writeSteps(const QVector<KeyPlacement> &placements, const States &now);
    void writeChildPages(const QVector<KeyPlacement> &placements, const States &now);
    void setRecord(const KeyPlacement &placement, const KeyState &now);
    void noteReplacedVideo(const vorlinmodel::key_id_t &key, const KeyState &before);
    void videoDone(const vorlinmodel::key_id_t &key, vorlinmodel::RequestOutcome outcome);
    void videoIsGone(const vorlinmodel::key_id_t &key, vorlinmodel::RequestOutcome outcome);
    void takeVideoBack(const vorlinmodel::key_id_t &key, const KeyState &before);
    bool walkHistoryBack(const vorlinmodel::key_id_t &key, const KeyState &now, const KeyState &wanted);
    void keepUntakenEdits();
    void bringPicturesBack();
    void bringVideosBack();
    void recordRead();
    void removeKeysThatAreGone(const QVector<vorlinmodel::key_id_t> &received);

    vorlindesk::IFrameworkContext &mContext;
    vorlinmodel::IFunctionManager &mStore;
    PendingEdits mPending;
    StoreFiles mFiles;
    QUndoStack mHistory;
    int mDepth = 0; ///< of nested change() calls
    States mBefore; ///< of the outermost one
    std::optional<AtRest> mAtRest;
    States mReplacedVideos; ///< keys before the video that the panel has not taken whole yet
    bool mIsLoaded = false; ///< the records of the last run
    bool mIsSilent = false; ///< the store goes back to what the panel has: nothing is sent
    QTimer mRestTimer;
    States mBeforeRead;
    bool mReading = false;
    bool mReplacing = false;
    bool mSendAfterRead = false;
    vorlindesk::HandOver mHandOver;
};
