#include "keyedits.h"

#include "base/iframeworkcontext.h"
#include "keychangecommand.h"
#include "model/ifunctionmanager.h"
#include "protocol/iprotocolthread.h"

#include <algorithm>

namespace SystemSettings = vorlindesk::SystemSettings;
using vorlinmodel::AttributeId;
using vorlinmodel::IProtocolThread;
using vorlinmodel::key_id_t;
using vorlinmodel::Request;
using vorlinmodel::RequestKind;
using vorlinmodel::RequestOutcome;

namespace {

/// A key that is named twice counts where it is named last.
QVector<KeyPlacement> withoutRepeats(const QVector<KeyPlacement> &placements)
{
    QVector<KeyPlacement> result;
    for (int i = 0; i < placements.size(); ++i) {
        const key_id_t &key = placements.at(i).key;
        const bool comesAgain = std::any_of(placements.cbegin() + i + 1, placements.cend(),
                                            [&key](const KeyPlacement &later) { return later.key == key; });
        if (!comesAgain)
            result.append(placements.at(i));
    }
    return result;
}

/// @return @p state with the video of @p other. Everything else of a step reaches the panel before its video.
KeyState withVideoOf(const KeyState &other, KeyState state)
{
    if (other.record && state.record && other.fid() == state.fid())
        state.record->defaultImage = other.record->defaultImage;
    else
        state.record.reset(); // a new video key: without its video it is no state of before
    return state;
}

} // namespace

QVector<key_id_t> placedKeys(const QVector<KeyPlacement> &placements)
{
    QVector<key_id_t> keys;
    for (const KeyPlacement &placement : placements)
        keys.append(placement.key);
    return keys;
}

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
    connect(&mFiles, &StoreFiles::sigWritten, this, &KeyEdits::sigSaved);
    if (IProtocolThread *thread = context.protocolThread())
        connectProtocolThread(*thread);
    mIsLoaded = mFiles.load(); // what cannot be read is kept aside, and is in the log
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
    if (attribute == AttributeId::Video)
        videoDone(key, outcome);
    else if (attribute == AttributeId::ClearKey || attribute == AttributeId::FunctionId)
        videoIsGone(key, outcome);
    if (mPending.isOnDisk() || outcome != RequestOutcome::Sent)
        mFiles.touch();
}

KeyEdits::States KeyEdits::capture(const QVector<key_id_t> &keys) const
{
    return captureKeyStates(mStore, keys);
}

void KeyEdits::change(const QString &text, const QVector<key_id_t> &keys, const std::function<void()> &change)
{
    if (mDepth == 0) {
        if (refuses())
            return;
        flush();
        mBefore.clear();
    }
    QVector<key_id_t> others;
    for (const key_id_t &key : keys) {
        if (!mBefore.contains(key))
            others.append(key);
    }
    const States states = capture(others);
    for (auto entry = states.cbegin(); entry != states.cend(); ++entry)
        mBefore.insert(entry.key(), *entry);
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
        KeyState now = after.value(entry.key());
        if (sameKey(*entry, now))
            continue;
        if (now.picture == entry->picture)
            now.picture = entry->picture; // the history holds one copy
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
    if (refuses())
        return;
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
    change(text, placedKeys(placements), [this, &placements] { apply(placements); });
}

void KeyEdits::apply(const QVector<KeyPlacement> &wanted)
{
    const QVector<KeyPlacement> placements = withoutRepeats(wanted);
    const States now = capture(placedKeys(placements));
    writeSteps(placements, now);
    writeChildPages(placements, now);
    for (const KeyPlacement &placement : placements) {
        setRecord(placement, now.value(placement.key));
        for (const AttributeId attribute : attributesToRestore(now.value(placement.key), placement.state)) {
            if (attribute == AttributeId::Video && !mIsSilent)
                noteReplacedVideo(placement.key, withVideoOf(now.value(placement.key), placement.state));
            send(placement.key, placement.state.fid(), attribute);
        }
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
        const QString kept =
            isThere ? now.record->customImage : StoreFiles::keepPicture(placement.state.picture);
        if (kept.isEmpty())
            emit sigProblem(tr("A picture could not be saved. Is the disk full?"));
        else
            record.customImage = kept;
    }
    mStore.setKeyAttribute(placement.key, record);
}

void KeyEdits::send(const key_id_t &key, int fid, AttributeId attribute)
{
    if (mIsSilent)
        return;
    if (attribute == AttributeId::Video && mDepth > 0)
        noteReplacedVideo(key, mBefore.value(key));
    mPending.posted(key, attribute);
    mContext.sendRequest(RequestKind::MD_FUNCTION_CODE_KEY_ATTRIBUTE, key.lid, key.pageid, key.kid, fid,
                         static_cast<int>(attribute));
}

void KeyEdits::undo()
{
    if (refuses())
        return;
    emit sigCommit();
    flush();
    mHistory.undo();
}

void KeyEdits::redo()
{
    if (refuses())
        return;
    emit sigCommit();
    flush();
    mHistory.redo();
}

void KeyEdits::applyStep(const QVector<KeyPlacement> &placements)
{
    apply(placements);
    emit sigKeysChanged(placedKeys(placements));
    if (!mIsSilent)
        emit sigStepApplied(placedKeys(placements));
}
