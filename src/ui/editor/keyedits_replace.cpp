// When the whole configuration is replaced, by a backup that comes back.
#include "keyedits.h"
#include "model/ifunctionmanager.h"

using vorlinmodel::AttributeId;
using vorlinmodel::key_id_t;

QString KeyEdits::obstacle() const
{
    return mReplacing ? tr("A backup is being imported. Nothing was changed.") : QString();
}

/// Also what was begun before and comes late, a picture that is read say: it would fall between two states.
bool KeyEdits::refuses()
{
    if (mReplacing)
        emit sigProblem(obstacle());
    return mReplacing;
}

std::shared_future<void> KeyEdits::beginReplace()
{
    emit sigCommit();
    flush();
    mReplacing = true;
    return mFiles.hold();
}

void KeyEdits::endReplace(const QVector<KeyDifference> &changed, bool send)
{
    if (!std::exchange(mReplacing, false))
        return;
    QVector<key_id_t> keys;
    for (const KeyDifference &difference : changed) {
        keys.append(difference.key);
        mReplacedVideos.remove(difference.key); // that video is not what a cancelled transfer goes back to
        if (send) {
            mPending.forget(difference.key);
            for (const AttributeId attribute : difference.attributes)
                this->send(difference.key, difference.fid, attribute);
        } else {
            mPending.note(difference.key, difference.attributes);
        }
    }
    // Until that saving the file says more than is true, see PendingEdits::saveWhole(), which does no harm.
    mFiles.touch();
    mFiles.release();
    if (std::exchange(mSendAfterRead, false))
        sendPending();
    emit sigKeysChanged(keys);
    emit sigReadEnded();
}

void KeyEdits::panelTook(const QVector<key_id_t> &keys)
{
    for (const key_id_t &key : keys)
        mPending.taken(key);
    mFiles.touch();
}
