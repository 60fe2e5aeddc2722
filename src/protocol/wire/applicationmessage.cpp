#include "applicationmessage.h"

#include "bytes.h"

#include <algorithm>

namespace ApplicationMessage {

namespace {
QByteArray head(FunctionCode code, int length)
{
    QByteArray message;
    message.reserve(BodyOffset + length);
    message.append(Bytes::low(code));
    Bytes::appendLittleEndian(message, static_cast<quint32>(length));
    return message;
}
} // namespace

QByteArray bare(FunctionCode code)
{
    return QByteArray(1, Bytes::low(code));
}

QByteArray plain(FunctionCode code, const QByteArray &body)
{
    return head(code, body.size()) + body;
}

QByteArray subcoded(Subcode subcode, const QByteArray &data)
{
    return head(FunctionCode::UpgradeChannel, 1 + data.size()) + Bytes::low(subcode) + data;
}

QByteArray keyAddressed(quint32 layoutId, quint32 pageId, quint32 keyId, quint32 attributeId,
                        const QByteArray &value)
{
    QByteArray message = head(FunctionCode::MD_FUNCTION_CODE_KEY_ATTRIBUTE, KeyIdsSize + value.size());
    for (const quint32 id : {layoutId, pageId, keyId, attributeId})
        message.append(Bytes::low(id));
    return message + value;
}

std::optional<View> view(const quint8 *message, int size)
{
    if (size < 1)
        return std::nullopt;
    View result;
    result.code = message[0];
    if (size < BodyOffset)
        return result;
    result.length = qFromLittleEndian<quint32>(message + LengthOffset);
    result.body = message + BodyOffset;
    const auto arrived = static_cast<quint32>(size - BodyOffset);
    result.bodySize = static_cast<int>(std::min(result.length, arrived));
    return result;
}

} // namespace ApplicationMessage
