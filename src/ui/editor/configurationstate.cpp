#include "configurationstate.h"

#include "model/backuprestore.h"
#include "model/ifunctionmanager.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

using vorlinmodel::AttributeId;
using vorlinmodel::key_id_t;

namespace {

/// A video that came out of a backup bears its hash as its name. So the end of the program, which waits for a
/// restore that is behind its exchange, does not wait for all videos to be read.
QByteArray hashOf(const QString &path, const vorlinmodel::BackupWatch &watch)
{
    constexpr int sha1Size = 20;
    const QFileInfo info(path);
    const QByteArray named = QByteArray::fromHex(info.completeBaseName().toLatin1());
    if (named.size() == sha1Size && info.path() == vorlinmodel::restoredVideoFolder())
        return named;
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    const bool isRead =
        file.open(QIODevice::ReadOnly) && watch.inPieces(file.size(), [&](qint64, qint64 length) {
            const QByteArray piece = file.read(length);
            hash.addData(piece);
            return piece.size() == length;
        });
    return isRead ? hash.result() : QByteArray();
}

/// @return @p state of before, with its video under the name that the same one has now.
KeyState withNameOf(KeyState state, const KeyState &now, bool sameVideo)
{
    if (sameVideo && state.record && now.record && isVideo(*now.record))
        state.record->defaultImage = now.record->defaultImage;
    return state;
}

} // namespace

ConfigurationState captureConfiguration(const vorlinmodel::IFunctionManager &store,
                                        const vorlinmodel::BackupWatch &watch)
{
    ConfigurationState state;
    state.keys = captureKeyStates(store, store.getKeys().toVector());
    for (auto key = state.keys.cbegin(); key != state.keys.cend(); ++key) {
        if (key->record && isVideo(*key->record))
            state.videos.insert(key.key(), hashOf(key->record->defaultImage, watch));
    }
    state.layouts = vorlinmodel::loadCustomLayouts().byId;
    return state;
}

QVector<KeyDifference> differences(const ConfigurationState &before, const ConfigurationState &after,
                                   const QVector<key_id_t> &unknown)
{
    const QVector<int> layouts = layoutDifferences(before, after);
    QMap<key_id_t, KeyState> all = before.keys;
    for (auto key = after.keys.cbegin(); key != after.keys.cend(); ++key)
        all.insert(key.key(), *key);
    QVector<KeyDifference> changed;
    for (const key_id_t &key : all.keys()) {
        const KeyState now = after.keys.value(key);
        const QByteArray video = after.videos.value(key);
        const KeyState was =
            withNameOf(before.keys.value(key), now, !video.isEmpty() && video == before.videos.value(key));
        QVector<AttributeId> attributes = attributesToRestore(was, now);
        // The pictures of a key go at its size, which is another when its layout is.
        if (layouts.contains(key.lid) || (unknown.contains(key) && !attributes.isEmpty()))
            attributes = allAttributes(now);
        if (!attributes.isEmpty())
            changed.append({key, now.fid(), attributes});
    }
    return changed;
}

QVector<int> layoutDifferences(const ConfigurationState &before, const ConfigurationState &after)
{
    QVector<int> changed;
    QMap<int, vorlinmodel::CustomLayout> all = before.layouts;
    for (const vorlinmodel::CustomLayout &layout : after.layouts)
        all.insert(layout.layoutId, layout);
    for (const int layoutId : all.keys()) {
        const auto was = before.layouts.constFind(layoutId);
        const auto now = after.layouts.constFind(layoutId);
        const bool isThere = was != before.layouts.cend() && now != after.layouts.cend();
        if (!isThere || was->name != now->name || was->keys != now->keys)
            changed.append(layoutId);
    }
    return changed;
}
