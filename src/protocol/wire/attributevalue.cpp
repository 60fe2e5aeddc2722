#include "attributevalue.h"

#include "bytes.h"
#include "textcodec.h"

namespace AttributeValue {

namespace {
constexpr int FileCountSize = 4; // u32

QByteArray withByteCount(const QByteArray &text)
{
    return Bytes::low(text.size()) + text;
}
} // namespace

QByteArray gbkText(const QString &text)
{
    return withByteCount(TextCodec::toGbk(text, MaxTextBytes));
}

QByteArray outputText(const QString &text)
{
    // The count wraps above 255 bytes; the panel takes the length of the message then.
    return withByteCount(TextCodec::toOutput(text));
}

QByteArray colour(quint8 red, quint8 green, quint8 blue)
{
    QByteArray value;
    for (const quint8 channel : {red, green, blue})
        value.append(Bytes::low(channel));
    return value;
}

QByteArray byte(quint32 value)
{
    return QByteArray(1, Bytes::low(value));
}

QByteArray file(const QByteArray &bytes)
{
    QByteArray value;
    value.reserve(FileCountSize + bytes.size());
    Bytes::appendLittleEndian(value, static_cast<quint32>(bytes.size()));
    return value.append(bytes);
}

QByteArray fileOf(const QByteArray &value)
{
    return value.mid(FileCountSize);
}

} // namespace AttributeValue
