#include "homelayout.h"

#include "bytes.h"

#include <algorithm>

namespace HomeLayout {

namespace {
constexpr int HeaderSize = 2; // u8 layout id, u8 entry count
constexpr int EntrySize = 4;
constexpr int MaxEntries = 0xFF;
constexpr quint8 None = 0xFF; // -1

int idOf(const QByteArray &bytes, int offset)
{
    const quint8 value = Bytes::at(bytes, offset);
    return value == None ? -1 : value;
}
} // namespace

QByteArray encode(const Record &record)
{
    const int count = std::min<int>(record.entries.size(), MaxEntries);
    QByteArray body;
    body.append(Bytes::low(record.layoutId));
    body.append(Bytes::low(count));
    for (int i = 0; i < count; ++i) {
        const Entry &entry = record.entries.at(i);
        for (const int value : {entry.keyId, entry.layoutId, entry.pageId, entry.sum})
            body.append(Bytes::low(value));
    }
    return body;
}

std::optional<Record> decode(const QByteArray &body)
{
    if (body.size() < HeaderSize)
        return std::nullopt;
    Record record;
    record.layoutId = idOf(body, 0);
    const int count = std::min<int>(Bytes::at(body, 1), (body.size() - HeaderSize) / EntrySize);
    for (int i = 0; i < count; ++i) {
        const int offset = HeaderSize + i * EntrySize;
        record.entries.append({.keyId = idOf(body, offset),
                               .layoutId = idOf(body, offset + 1),
                               .pageId = idOf(body, offset + 2),
                               .sum = idOf(body, offset + 3)});
    }
    return record;
}

} // namespace HomeLayout
