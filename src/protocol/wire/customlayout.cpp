#include "customlayout.h"

#include "bytes.h"
#include "textcodec.h"

#include <algorithm>

namespace CustomLayoutRecord {

namespace {
constexpr int TripleSize = 3; // key number, first and last physical key
constexpr int MaxKeys = 0xFFFF;
} // namespace

QByteArray encode(const Record &record)
{
    const QByteArray title = TextCodec::toGbk(record.title, TitleArea);
    const int count = std::min<int>(record.keys.size(), MaxKeys);
    QByteArray body(1, Bytes::low(record.layoutNumber));
    body.append(Bytes::low(title.size()));
    Bytes::appendLittleEndian(body, static_cast<quint16>(count));
    body.append(title.leftJustified(TitleArea, '\0'));
    for (int i = 0; i < count; ++i) {
        body.append(Bytes::low(i + 1));
        body.append(Bytes::low(record.keys.at(i).first));
        body.append(Bytes::low(record.keys.at(i).last));
    }
    return body;
}

std::optional<Record> decode(const QByteArray &body)
{
    if (body.size() < Triples)
        return std::nullopt;
    const int count = qFromLittleEndian<quint16>(body.constData() + KeyCount);
    if (body.size() < Triples + count * TripleSize)
        return std::nullopt;
    Record record;
    record.layoutNumber = Bytes::at(body, LayoutNumber);
    record.title =
        TextCodec::fromGbk(body.mid(Title, std::min<int>(Bytes::at(body, TitleLength), TitleArea)));
    for (int i = 0; i < count; ++i) {
        const int offset = Triples + i * TripleSize;
        record.keys.append({.first = Bytes::at(body, offset + 1), .last = Bytes::at(body, offset + 2)});
    }
    return record;
}

} // namespace CustomLayoutRecord
