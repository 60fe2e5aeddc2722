#include "layoutmoves.h"

#include "functionlist.h"
#include "layoutpieces.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "model/keypicture.h"

#include <algorithm>
#include <bit>

using vorlinmodel::CustomLayout;
using vorlinmodel::key_atttribute_t;
using vorlinmodel::key_id_t;

namespace {

bool isVideo(const KeyState &state)
{
    return state.fid() == vorlinmodel::VIDEO_FID && !state.record->defaultImage.isEmpty() &&
           !state.record->defaultImage.startsWith(QLatin1Char(':'));
}

/// The key does nothing but show a picture.
bool isFiller(const KeyState &state)
{
    return state.fid() == vorlinmodel::VIDEO_FID && !isVideo(state) && state.record->strTitle.isEmpty();
}

KeyState filler()
{
    key_atttribute_t record;
    record.mFId = vorlinmodel::VIDEO_FID;
    record.titleFontSize = 16; // what a panel gives to a new key
    record.titleColour = QColor(0, 255, 0);
    KeyState state;
    state.record = record;
    return state;
}

/// The key shows the icon of its function again.
void takePictureAway(KeyState &state)
{
    const bool isOffered = isOfferedByEditor(state.fid());
    state.picture.clear();
    state.record->nDisplayImageType = isOffered ? vorlinmodel::CustomImage : vorlinmodel::DefaultImage;
    state.record->customImage = isOffered ? functionIcon(state.fid()) : QString();
}

quint32 maskOf(const CustomLayout &layout, int kid)
{
    return kid <= layout.keys.size() ? layout.keys.at(kid - 1).mask : 0;
}

/// @return the key of @p from that begins where @p kid of @p to does; 0 when there is none.
int sourceOf(int kid, const CustomLayout &from, const CustomLayout &to)
{
    const quint32 mask = maskOf(to, kid);
    for (int source = 1; mask != 0 && source <= from.keys.size(); ++source) {
        const quint32 other = maskOf(from, source);
        if (other != 0 && std::countr_zero(other) == std::countr_zero(mask))
            return source;
    }
    return 0;
}

bool hasBackgroundOn(const CustomLayout &layout, int page)
{
    return !layout.background.isEmpty() && layout.backgroundPages.contains(page);
}

/// In one go, since the file with the steps of multiple actions is read for it.
QMap<key_id_t, KeyState> statesOf(const vorlinmodel::IFunctionManager &store, int one, int other)
{
    QVector<key_id_t> keys;
    for (const key_id_t &key : store.getKeys()) {
        if (key.lid == one || key.lid == other)
            keys.append(key);
    }
    return captureKeyStates(store, keys);
}

class Planner
{
public:
    Planner(const vorlinmodel::IFunctionManager &store, const LayoutSide &from, const LayoutSide &to)
        : mFrom(from.layout)
        , mTo(to.layout)
        , mOldPieces(from)
        , mNewPieces(to)
        , mStates(statesOf(store, mFrom.layoutId, mTo.layoutId))
    {}

    LayoutMoves plan()
    {
        for (int page = 1; page <= vorlinmodel::MaxPage; ++page)
            for (int kid = vorlinmodel::FirstKeyId; kid <= vorlinmodel::LastKeyId; ++kid)
                planKey({mTo.layoutId, page, kid});
        mMoves.isComplete = mNewPieces.areWritten();
        return mMoves;
    }

private:
    void planKey(const key_id_t &key)
    {
        const KeyState now = mStates.value(key);
        const KeyState target = targetOf(key);
        const bool keepsSize = sizeStays(key.kid);
        if (sameKey(now, target)) {
            if (now.record && !keepsSize)
                mMoves.resent.append(key);
            return;
        }
        // Else undo would send a picture of the size before to a panel that still has the layout after.
        const bool isCleared = now.record && !keepsSize;
        if (isCleared)
            mMoves.cleared.append({key, {}});
        if (target.record || !isCleared)
            mMoves.placed.append({key, target});
    }

    bool sizeStays(int kid) const
    {
        const quint32 before = mFrom.layoutId == mTo.layoutId ? maskOf(mFrom, kid) : 0;
        const quint32 after = maskOf(mTo, kid);
        return before != 0 && after != 0 &&
               vorlinmodel::keyPixelSize(before) == vorlinmodel::keyPixelSize(after);
    }

    KeyState targetOf(const key_id_t &key)
    {
        const int source = sourceOf(key.kid, mFrom, mTo);
        KeyState state = source == 0 ? KeyState() : mStates.value({mFrom.layoutId, key.pageid, source});
        const bool isCovered = hasBackgroundOn(mTo, key.pageid);
        const bool mayBeCovered = isCovered && (mTo.backgroundOnEmptyKeys || !isFiller(state));
        if (mayBeCovered && mNewPieces.isShownBy(state, key.kid))
            return state;
        if (source != 0 && hasBackgroundOn(mFrom, key.pageid) && mOldPieces.isShownBy(state, source)) {
            if (isFiller(state))
                state = {};
            else
                takePictureAway(state);
        }
        if (isCovered)
            cover(state, key.kid);
        return state;
    }

    /// A video goes on playing.
    void cover(KeyState &state, int kid)
    {
        const bool isLeftOut = state.record ? isVideo(state) : !mTo.backgroundOnEmptyKeys;
        const QByteArray piece = isLeftOut ? QByteArray() : mNewPieces.bytes(kid);
        if (piece.isEmpty())
            return;
        if (!state.record)
            state = filler();
        state.picture = piece;
        state.record->nDisplayImageType = vorlinmodel::CustomImage;
        state.record->customImage = mNewPieces.file(kid);
    }

    const CustomLayout &mFrom;
    const CustomLayout &mTo;
    LayoutPieces mOldPieces;
    LayoutPieces mNewPieces;
    const QMap<key_id_t, KeyState> mStates;
    LayoutMoves mMoves;
};

} // namespace

LayoutMoves planLayoutMoves(const vorlinmodel::IFunctionManager &store, const LayoutSide &from,
                            const LayoutSide &to)
{
    return Planner(store, from, to).plan();
}

QVector<key_id_t> keysWithoutPlace(const vorlinmodel::IFunctionManager &store, const CustomLayout &from,
                                   const CustomLayout &to)
{
    QVector<int> kept;
    for (int kid = 1; kid <= to.keys.size(); ++kid)
        kept.append(sourceOf(kid, from, to));
    QVector<key_id_t> lost;
    const auto states = statesOf(store, from.layoutId, from.layoutId);
    for (auto entry = states.cbegin(); entry != states.cend(); ++entry) {
        const key_id_t &key = entry.key();
        const bool isBackground = hasBackgroundOn(from, key.pageid) && isFiller(*entry);
        if (entry->fid() != 0 && !isBackground && !kept.contains(key.kid))
            lost.append(key);
    }
    return lost;
}
