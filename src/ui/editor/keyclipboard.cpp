#include "keyclipboard.h"

#include "model/ifunctionmanager.h"

#include <QClipboard>
#include <QDataStream>
#include <QGuiApplication>

using vorlinmodel::key_id_t;

namespace {

constexpr int Columns = 5;
constexpr int Rows = 3;
constexpr quint32 Magic = 0x564B4559; // "VKEY"
constexpr QDataStream::Version StreamVersion = QDataStream::Qt_5_15;

struct CopiedKey
{
    int keyId = 0;
    KeyState state;
};

int rowOf(int keyId)
{
    return (keyId - 1) / Columns;
}

int columnOf(int keyId)
{
    return (keyId - 1) % Columns;
}

QVector<CopiedKey> copiedKeys()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    if (!KeyClipboard::holdsKeys())
        return {};
    QDataStream stream(data->data(QString::fromLatin1(KeyClipboard::Format)));
    stream.setVersion(StreamVersion);
    quint32 magic = 0;
    qint32 count = 0;
    stream >> magic >> count;
    if (magic != Magic || count < 0 || count > vorlinmodel::LastKeyId)
        return {};
    QVector<CopiedKey> keys;
    for (int i = 0; i < count; ++i) {
        qint32 keyId = 0;
        CopiedKey key;
        stream >> keyId >> key.state;
        key.keyId = keyId;
        if (stream.status() != QDataStream::Ok || keyId < vorlinmodel::FirstKeyId ||
            keyId > vorlinmodel::LastKeyId)
            return {};
        keys.append(key);
    }
    return keys;
}

KeyPlacement shifted(const CopiedKey &key, int first, const key_id_t &target)
{
    const int row = rowOf(target.kid) + rowOf(key.keyId) - rowOf(first);
    const int column = columnOf(target.kid) + columnOf(key.keyId) - columnOf(first);
    const bool fits = row >= 0 && row < Rows && column >= 0 && column < Columns;
    return {{target.lid, target.pageid, fits ? row * Columns + column + 1 : 0}, key.state};
}

} // namespace

void KeyClipboard::copy(const vorlinmodel::IFunctionManager &store, const QVector<key_id_t> &keys)
{
    if (keys.isEmpty())
        return;
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(StreamVersion);
    stream << Magic << qint32(keys.size());
    for (const key_id_t &key : keys)
        stream << qint32(key.kid) << captureKeyState(store, key);
    auto data = std::make_unique<QMimeData>();
    data->setData(QString::fromLatin1(Format), bytes);
    QGuiApplication::clipboard()->setMimeData(data.release()); // which takes it
}

bool KeyClipboard::holdsKeys()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasFormat(QString::fromLatin1(Format));
}

QVector<KeyPlacement> KeyClipboard::placements(const QVector<key_id_t> &targets)
{
    const QVector<CopiedKey> keys = copiedKeys();
    QVector<KeyPlacement> result;
    if (keys.isEmpty() || targets.isEmpty())
        return result;
    if (keys.size() == 1) {
        for (const key_id_t &target : targets)
            result.append({target, keys.first().state});
        return result;
    }
    const auto byKeyId = [](const CopiedKey &a, const CopiedKey &b) {
        return a.keyId < b.keyId;
    };
    const int first = std::min_element(keys.cbegin(), keys.cend(), byKeyId)->keyId;
    for (const CopiedKey &key : keys) {
        const KeyPlacement placement = shifted(key, first, targets.first());
        if (placement.key.kid != 0)
            result.append(placement);
    }
    return result;
}
