#include "keyedits.h"

#include "base/iframeworkcontext.h"
#include "keychangecommand.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "protocol/iprotocolthread.h"

namespace SystemSettings = vorlindesk::SystemSettings;
using vorlinmodel::AttributeId;
using vorlinmodel::IProtocolThread;
using vorlinmodel::key_id_t;
using vorlinmodel::Request;
using vorlinmodel::RequestKind;
using vorlinmodel::RequestOutcome;

namespace {

QVector<key_id_t> keysOf(const QVector<KeyPlacement> &placements)
{
    QVector<key_id_t> keys;
    for (const KeyPlacement &placement : placements)
        keys.append(placement.key);
    return keys;
}

} // namespace

KeyEdits::KeyEdits(vorlindesk::IFrameworkContext &context, QObject *parent)
    : QObject(parent)
    , mContext(context)
    , mStore(*context.functionManager())
    , mFiles(mStore, mPending)
{
    mHistory.setUndoLimit(HistoryLimit);
    mRestTimer.setSingleShot(true);
    mRestTimer.setInterval(Rest);
    connect(&mRestTimer, &QTimer::timeout, this, &KeyEdits::flush);
    connect(&mPending, &PendingEdits::sigMarkChanged, this, &KeyEdits::sigMarkChanged);
    connect(&mFiles, &StoreFiles::sigSaveFailed, this,
            [this] { emit sigProblem(tr("The keys could not be saved. Is the disk full?")); });
    if (IProtocolThread *thread = context.protocolThread())
        connectProtocolThread(*thread);
    mFiles.load(); // what cannot be read is kept aside, and is in the log
}

KeyEdits::~KeyEdits()
{
    flush();
}

/// The outcome arrives on the protocol thread.
void KeyEdits::connectProtocolThread(IProtocolThread &thread)
{
    connect(
        &thread, &IProtocolThread::sigRequestDone, this,
        [this](const Request &request, RequestOutcome outcome) {
            if (request.functionCode != static_cast<quint32>(RequestKind::MD_FUNCTION_CODE_KEY_ATTRIBUTE))
                return;
            const key_id_t key{int(request.layoutId), int(request.pageId), int(request.keyId)};
            const auto attribute = static_cast<AttributeId>(request.attributeId);
            mHandOver.post([this, key, attribute, outcome] { requestDone(key, attribute, outcome); });
        },
        Qt::DirectConnection);
}

void KeyEdits::requestDone(const key_id_t &key, AttributeId attribute, RequestOutcome outcome)
{
    mPending.done(key, attribute, outcome);
    if (mPending.isOnDisk() || outcome != RequestOutcome::Sent)
        mFiles.touch();
}

KeyEdits::States KeyEdits::capture(const QVector<key_id_t> &keys) const
{
    return captureKeyStates(mStore, keys);
}

void KeyEdits::change(const QString &text, const QVector<key_id_t> &keys,
                      const std::function<void()> &change)
{
    if (mDepth == 0) {
        flush();
        mBefore.clear();
    }
    for (const key_id_t &key : keys) {
        if (!mBefore.contains(key))
            mBefore.insert(key, captureKeyState(mStore, key));
    }
    ++mDepth;
    change();
    if (--mDepth == 0)
        push(text, std::exchange(mBefore, {}));
}

/// Records what has become of the keys since @p before.
void KeyEdits::push(const QString &text, const States &before)
{
    QVector<KeyChange> changes;
    QVector<key_id_t> keys;
    const States after = capture(before.keys().toVector());
    for (auto entry = before.cbegin(); entry != before.cend(); ++entry) {
        const KeyState now = after.value(entry.key());
        if (sameKey(*entry, now))
            continue;
        changes.append({entry.key(), *entry, now});
        keys.append(entry.key());
    }
    if (changes.isEmpty())
        return;
    mHistory.push(new KeyChangeCommand(*this, text, changes)); // owned by the stack
    mFiles.touch();
    emit sigKeysChanged(keys);
}

void KeyEdits::changeAtRest(const QString &text, const key_id_t &key, AttributeId attribute,
                            const std::function<void()> &apply)
{
    if (mAtRest && (mAtRest->key != key || mAtRest->attribute != attribute))
        flush();
    if (!mAtRest)
        mAtRest = AtRest{text, key, attribute, captureKeyState(mStore, key)};
    apply();
    mRestTimer.start();
    emit sigKeysChanged({key});
}

void KeyEdits::flush()
{
    mRestTimer.stop();
    if (!mAtRest)
        return;
    const AtRest change = *std::exchange(mAtRest, std::nullopt);
    const KeyState now = captureKeyState(mStore, change.key);
    if (sameKey(change.before, now))
        return;
    push(change.text, {{change.key, change.before}});
    send(change.key, now.fid(), change.attribute);
}

void KeyEdits::place(const QString &text, const QVector<KeyPlacement> &placements)
{
    change(text, keysOf(placements), [this, &placements] { apply(placements); });
}

void KeyEdits::apply(const QVector<KeyPlacement> &placements)
{
    States now = capture(keysOf(placements));
    writeSteps(placements, now);
    writeChildPages(placements, now);
    for (const KeyPlacement &placement : placements) {
        setRecord(placement, now.value(placement.key));
        for (const AttributeId attribute : attributesToSend(now.value(placement.key), placement.state))
            send(placement.key, placement.state.fid(), attribute);
        now.insert(placement.key, placement.state);
    }
    mFiles.touch();
}

void KeyEdits::writeSteps(const QVector<KeyPlacement> &placements, const States &now)
{
    QVector<key_id_t> replaced;
    QVector<vorlinmodel::MultiActionEntry> written;
    for (const KeyPlacement &placement : placements) {
        if (now.value(placement.key).steps == placement.state.steps)
            continue;
        replaced.append(placement.key);
        if (!placement.state.steps.isEmpty())
            written.append({placement.key, placement.state.steps});
    }
    if (replaced.isEmpty())
        return;
    QString error;
    if (!vorlinmodel::multiActionStore().replaceEntries(replaced, written, error))
        emit sigProblem(tr("The multiple actions could not be saved: %1").arg(error));
}

void KeyEdits::writeChildPages(const QVector<KeyPlacement> &placements, const States &now)
{
    QVector<SystemSettings::HomeLayoutEntry> entries;
    for (const KeyPlacement &placement : placements) {
        SystemSettings::HomeLayoutEntry entry = placement.state.home;
        const SystemSettings::HomeLayoutEntry &before = now.value(placement.key).home;
        if (entry.layoutId == before.layoutId && entry.pageId == before.pageId && entry.sum == before.sum)
            continue;
        entry.keyId = placement.key.kid;
        entries.append(entry);
    }
    if (!entries.isEmpty())
        SystemSettings::setHomeLayoutEntries(entries);
}

void KeyEdits::setRecord(const KeyPlacement &placement, const KeyState &now)
{
    if (!placement.state.record) {
        mStore.deleteKeyAttribute(placement.key);
        return;
    }
    vorlinmodel::key_atttribute_t record = *placement.state.record;
    if (!placement.state.picture.isEmpty()) {
        // The file under the state's own path may have another content by now, or belong to another key.
        const bool isThere = now.record && now.picture == placement.state.picture;
        const QString kept = isThere ? now.record->customImage : StoreFiles::keepPicture(placement.state.picture);
        if (kept.isEmpty())
            emit sigProblem(tr("A picture could not be saved. Is the disk full?"));
        else
            record.customImage = kept;
    }
    mStore.setKeyAttribute(placement.key, record);
}

void KeyEdits::send(const key_id_t &key, int fid, AttributeId attribute)
{
    mPending.posted(key, attribute);
    mContext.sendRequest(RequestKind::MD_FUNCTION_CODE_KEY_ATTRIBUTE, key.lid, key.pageid, key.kid, fid,
                         static_cast<int>(attribute));
}

void KeyEdits::undo()
{
    flush();
    mHistory.undo();
}

void KeyEdits::redo()
{
    flush();
    mHistory.redo();
}

void KeyEdits::applyStep(const QVector<KeyPlacement> &placements)
{
    apply(placements);
    emit sigKeysChanged(keysOf(placements));
    emit sigStepApplied(keysOf(placements));
}

void KeyEdits::sendPending()
{
    flush();
    for (const key_id_t &key : mPending.keys()) {
        const PendingEdits::Attributes pending = mPending.attributes(key);
        const KeyState state = captureKeyState(mStore, key);
        // After a clear, or under another function, the panel has none of the key's values.
        const bool anew = !state.record || pending.count(AttributeId::ClearKey) != 0 ||
                          pending.count(AttributeId::FunctionId) != 0;
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
    recordRead();
    mBeforeRead.clear();
    mFiles.touch();
}

/// The read has overwritten them with what the panel still shows.
void KeyEdits::keepUntakenEdits()
{
    QVector<KeyPlacement> placements;
    for (const key_id_t &key : mPending.keys()) {
        if (mBeforeRead.contains(key))
            placements.append({key, mBeforeRead.value(key)});
    }
    const States now = capture(keysOf(placements));
    writeSteps(placements, now);
    for (const KeyPlacement &placement : placements)
        setRecord(placement, now.value(placement.key));
}

void KeyEdits::removeKeysThatAreGone(const QVector<key_id_t> &received)
{
    QVector<KeyPlacement> gone;
    for (const key_id_t &key : mStore.getKeys()) {
        if (!received.contains(key) && mPending.attributes(key).empty())
            gone.append({key, {}});
    }
    writeSteps(gone, capture(keysOf(gone)));
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
