#include "keyrecord.h"

#include "bytes.h"
#include "keynames.h"
#include "textcodec.h"

#include <algorithm>

namespace Field = KeyRecordField;

namespace {

constexpr int CombinationKeys = 4;
constexpr QChar CombinationSeparator = QLatin1Char('#');

QByteArray countedText(const quint8 *record, int lengthOffset, int textOffset)
{
    const int length = std::min<int>(record[lengthOffset], Field::TextArea);
    return Bytes::fromRaw(record + textOffset, length);
}

void putText(QByteArray &record, int lengthOffset, int textOffset, const QByteArray &text)
{
    const QByteArray fitting = text.left(Field::TextArea);
    record[lengthOffset] = Bytes::low(fitting.size());
    record.replace(textOffset, fitting.size(), fitting);
}

} // namespace

std::optional<KeyRecord> decodeKeyRecord(const quint8 *bytes, int size)
{
    if (size < Field::RecordSize)
        return std::nullopt;
    return KeyRecord{
        .layoutId = bytes[Field::LayoutId],
        .pageId = bytes[Field::PageId],
        .keyId = bytes[Field::KeyId],
        .functionId = bytes[Field::FunctionId],
        .imageEffects = bytes[Field::ImageEffects],
        .displayMode = bytes[Field::DisplayMode],
        .titleAlignment = bytes[Field::TitleAlignment],
        .titleFontSize = bytes[Field::TitleFontSize],
        .red = bytes[Field::Red],
        .green = bytes[Field::Green],
        .blue = bytes[Field::Blue],
        // The counted length may include padding, so the first NUL ends the title.
        .title = Bytes::untilNul(countedText(bytes, Field::TitleLength, Field::Title)),
        .content = countedText(bytes, Field::ContentLength, Field::Content),
    };
}

QByteArray encodeKeyRecord(const KeyRecord &record)
{
    QByteArray bytes(Field::RecordSize, '\0');
    bytes[Field::LayoutId] = Bytes::low(record.layoutId);
    bytes[Field::PageId] = Bytes::low(record.pageId);
    bytes[Field::KeyId] = Bytes::low(record.keyId);
    bytes[Field::FunctionId] = Bytes::low(record.functionId);
    bytes[Field::ImageEffects] = Bytes::low(record.imageEffects);
    bytes[Field::DisplayMode] = Bytes::low(record.displayMode);
    bytes[Field::TitleAlignment] = Bytes::low(record.titleAlignment);
    bytes[Field::TitleFontSize] = Bytes::low(record.titleFontSize);
    bytes[Field::Red] = Bytes::low(record.red);
    bytes[Field::Green] = Bytes::low(record.green);
    bytes[Field::Blue] = Bytes::low(record.blue);
    putText(bytes, Field::TitleLength, Field::Title, record.title);
    putText(bytes, Field::ContentLength, Field::Content, record.content);
    return bytes;
}

std::optional<PagePayload> decodePagePayload(const quint8 *bytes, int size)
{
    if (size < PagePayload::MinimumSize)
        return std::nullopt;
    PagePayload page{.layoutId = bytes[0], .pageId = bytes[1], .records = {}};
    page.records.reserve((size - PagePayload::HeaderSize) / Field::RecordSize);
    for (int offset = PagePayload::HeaderSize; size - offset >= Field::RecordSize;
         offset += Field::RecordSize)
        page.records.append(*decodeKeyRecord(bytes + offset, size - offset));
    return page;
}

QByteArray encodePagePayload(const PagePayload &page)
{
    QByteArray bytes;
    bytes.reserve(PagePayload::HeaderSize + static_cast<int>(page.records.size()) * Field::RecordSize);
    bytes.append(Bytes::low(page.layoutId));
    bytes.append(Bytes::low(page.pageId));
    for (const KeyRecord &record : page.records)
        bytes.append(encodeKeyRecord(record));
    return bytes;
}

QString keyCombinationText(const QByteArray &codes)
{
    QStringList names;
    for (int i = 0; i < CombinationKeys; ++i)
        names.append(KeyNames::name(Bytes::at(codes, i)));
    return names.join(CombinationSeparator);
}

QByteArray keyCombinationCodes(const QString &combination)
{
    const QStringList names = combination.split(CombinationSeparator, Qt::KeepEmptyParts);
    QByteArray codes(CombinationKeys, '\0');
    for (int i = 0; i < std::min<int>(CombinationKeys, names.size()); ++i)
        codes[i] = Bytes::low(KeyNames::code(names.at(i)));
    return codes;
}
