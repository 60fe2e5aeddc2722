// When a panel comes, and when its configuration is read or cleared.
#include "keychangecommand.h"
#include "keyedits.h"
#include "model/ifunctionmanager.h"

#include <QFile>
#include <algorithm>

using vorlinmodel::AttributeId;
using vorlinmodel::key_id_t;

namespace {

/// Whether one of the attributes is the text of another function: the panel would read it as what it is not.
bool holdsForeignText(const PendingEdits::Attributes &attributes, int fid)
{
    constexpr AttributeId texts[] = {AttributeId::AppOrUrl, AttributeId::KeyCombination,
                                     AttributeId::TextOutput};
    return std::any_of(std::begin(texts), std::end(texts), [&](AttributeId text) {
        return text != textAttribute(fid) && attributes.count(text) != 0;
    });
}

} // namespace

void KeyEdits::sendPending()
{
    flush();
    mSendAfterRead = isReading();
    if (isReading())
        return;
    const States states = capture(mPending.keys());
    for (const key_id_t &key : mPending.keys()) {
        const PendingEdits::Attributes pending = mPending.attributes(key);
        const KeyState state = states.value(key);
        // After a clear, or under another function, the panel has none of the key's values.
        const bool anew = !state.record || pending.count(AttributeId::ClearKey) != 0 ||
                          pending.count(AttributeId::FunctionId) != 0 ||
                          holdsForeignText(pending, state.fid());
        QVector<AttributeId> attributes = allAttributes(state);
        if (!anew) {
            attributes.clear();
            for (const AttributeId attribute : pending)
                attributes.append(attribute);
        }
        mPending.forget(key); // the requests of now cover all that is pending
        for (const AttributeId attribute : attributes)
            send(key, state.fid(), attribute);
    }
}

void KeyEdits::beginRead()
{
    flush();
    mFiles.pause();
    if (mReading) // the read is repeated: what was there before it stays the same
        return;
    mReading = true;
    mBeforeRead = capture(mStore.getKeys().toVector() + mPending.keys());
}

void KeyEdits::endRead(bool whole, const QVector<key_id_t> &received)
{
    if (!mReading)
        return;
    mReading = false;
    keepUntakenEdits();
    if (whole)
        removeKeysThatAreGone(received);
    bringPicturesBack();
    bringVideosBack();
    recordRead();
    mBeforeRead.clear();
    mFiles.touch();
    mFiles.resume();
    if (mSendAfterRead)
        sendPending();
    emit sigReadEnded();
}

/// The read has overwritten them with what the panel still shows.
void KeyEdits::keepUntakenEdits()
{
    QVector<KeyPlacement> placements;
    for (const key_id_t &key : mPending.keys()) {
        if (mBeforeRead.contains(key))
            placements.append({key, mBeforeRead.value(key)});
    }
    const States now = capture(placedKeys(placements));
    writeSteps(placements, now);
    for (const KeyPlacement &placement : placements)
        setRecord(placement, now.value(placement.key));
}

/// The read has emptied the folder with the pictures; those of keys that it did not reach are missing now.
void KeyEdits::bringPicturesBack()
{
    for (auto entry = mBeforeRead.cbegin(); entry != mBeforeRead.cend(); ++entry) {
        const auto record = entry->picture.isEmpty() ? std::nullopt : mStore.getKeyAttribute(entry.key());
        if (record && record->customImage == entry->record->customImage &&
            !QFile::exists(record->customImage))
            setRecord({entry.key(), *entry}, {});
    }
}

/// The panel never sends its videos back; a key for videos still plays what it was sent last.
void KeyEdits::bringVideosBack()
{
    for (auto entry = mBeforeRead.cbegin(); entry != mBeforeRead.cend(); ++entry) {
        const auto now = mStore.getKeyAttribute(entry.key());
        if (now && now->mFId == entry->fid() && entry->record && isVideo(*entry->record) && !isVideo(*now))
            mStore.setCustomVideo(entry.key(), entry->record->defaultImage);
    }
}

void KeyEdits::removeKeysThatAreGone(const QVector<key_id_t> &received)
{
    QVector<KeyPlacement> gone;
    for (const key_id_t &key : mStore.getKeys()) {
        if (!received.contains(key) && mPending.attributes(key).empty())
            gone.append({key, {}});
    }
    writeSteps(gone, capture(placedKeys(gone)));
    for (const KeyPlacement &placement : gone)
        mStore.deleteKeyAttribute(placement.key);
}

void KeyEdits::recordRead()
{
    QVector<KeyChange> changes;
    for (const key_id_t &key : mStore.getKeys()) { // keys that were not there before
        if (!mBeforeRead.contains(key))
            mBeforeRead.insert(key, {});
    }
    const States after = capture(mBeforeRead.keys().toVector());
    for (auto entry = mBeforeRead.cbegin(); entry != mBeforeRead.cend(); ++entry) {
        const KeyState now = after.value(entry.key());
        if (!sameFunction(*entry, now))
            changes.append({entry.key(), *entry, now});
    }
    if (!changes.isEmpty())
        mHistory.push(new KeyChangeCommand(*this, tr("Read from the panel"), changes)); // owned by the stack
    emit sigKeysChanged(mBeforeRead.keys().toVector());
}

void KeyEdits::takePanelCleared(const QString &text)
{
    QVector<KeyPlacement> placements;
    for (const key_id_t &key : mStore.getKeys())
        placements.append({key, {}});
    mIsSilent = true;
    place(text, placements);
    mIsSilent = false;
    // What was posted meanwhile reaches the panel after it has been cleared, or does so at the next
    // connection.
    for (const key_id_t &key : mPending.keys())
        send(key, 0, AttributeId::ClearKey);
}
