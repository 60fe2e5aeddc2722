// A video whose transfer is cancelled: the panel keeps the one it had, and so does the store.
#include "keychangecommand.h"
#include "keyedits.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "protocol/iprotocolthread.h"

using vorlinmodel::AttributeId;
using vorlinmodel::key_id_t;
using vorlinmodel::RequestOutcome;

/// The first state that was replaced is the one that the panel has, however many videos follow before it
/// takes one. What the last run left pending has replaced a state that nobody knows any more.
void KeyEdits::noteReplacedVideo(const key_id_t &key, const KeyState &before)
{
    const bool isUnknown = mPending.attributes(key).count(AttributeId::Video) != 0;
    if (before.fid() == vorlinmodel::VIDEO_FID && !isUnknown && !mReplacedVideos.contains(key))
        mReplacedVideos.insert(key, before);
}

void KeyEdits::videoDone(const key_id_t &key, RequestOutcome outcome)
{
    if (outcome == RequestOutcome::Sent)
        mReplacedVideos.remove(key);
    if (outcome != RequestOutcome::Cancelled || mPending.isUnderWay(key, AttributeId::Video))
        return;
    const auto before = mReplacedVideos.constFind(key);
    if (before == mReplacedVideos.cend())
        return; // stays pending
    const KeyState state = *before;
    mReplacedVideos.remove(key);
    mPending.withdraw(key, AttributeId::Video);
    takeVideoBack(key, state);
}

/// With the key's function went the video that the panel had.
void KeyEdits::videoIsGone(const key_id_t &key, RequestOutcome outcome)
{
    if (outcome == RequestOutcome::Sent)
        mReplacedVideos.remove(key);
}

void KeyEdits::takeVideoBack(const key_id_t &key, const KeyState &before)
{
    flush();
    const KeyState now = captureKeyState(mStore, key);
    if (now.fid() != vorlinmodel::VIDEO_FID)
        return;
    KeyState wanted = now;
    wanted.picture = before.picture;
    wanted.record->customImage = before.record->customImage;
    wanted.record->nDisplayImageType = before.record->nDisplayImageType;
    wanted.record->defaultImage = before.record->defaultImage;
    if (sameKey(now, wanted))
        return;
    mIsSilent = true;
    if (!walkHistoryBack(key, now, wanted))
        change(tr("Cancel the video"), {key}, [&] { setRecord({key, wanted}, now); });
    mIsSilent = false;
}

/// Leaves a step that the person can take again. Possible while nothing else has been done since.
bool KeyEdits::walkHistoryBack(const key_id_t &key, const KeyState &now, const KeyState &wanted)
{
    const auto step = [this](int index) {
        return index < 0 ? nullptr : dynamic_cast<const KeyChangeCommand *>(mHistory.command(index));
    };
    const KeyChangeCommand *last = step(mHistory.index() - 1);
    const KeyChangeCommand *next = step(mHistory.index()); // none behind the end: the video came by undo
    if (mDepth == 0 && last && last->leads(key, wanted, now))
        mHistory.undo();
    else if (mDepth == 0 && next && next->leads(key, now, wanted))
        mHistory.redo();
    else
        return false;
    return true;
}
