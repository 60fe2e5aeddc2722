/// What the payloads of one or more reports carry, in order: function code, length, body.
#pragma once

#include "wire/functioncode.h"

#include <QByteArray>
#include <optional>

namespace ApplicationMessage {

constexpr int LengthOffset = 1; // u32, bytes after this field
constexpr int BodyOffset = 5;   // the subcode of an upgrade message stands here
constexpr int SubcodeDataOffset = 6;
constexpr int KeyValueOffset = 9;         // key-addressed: value behind layout, page, key and attribute id
constexpr int KeyIdsSize = 4;             // layout, page, key and attribute id, one byte each
constexpr int MaxSize = 10 * 1024 * 1024; // bytes; the assembling and reassembling buffers hold no more

/// A bare request: the function code alone, without a length field. The panel expects it so.
QByteArray bare(FunctionCode code);

/// Function code, u32 length of @p body, body: 5 + body bytes.
QByteArray plain(FunctionCode code, const QByteArray &body);

/// Upgrade channel: the length field is data + 1, the whole 6 + data bytes.
QByteArray subcoded(Subcode subcode, const QByteArray &data);

/// Key-addressed (function code 0x01): 9 + value bytes. Of each id only the low 8 bits travel.
QByteArray keyAddressed(quint32 layoutId, quint32 pageId, quint32 keyId, quint32 attributeId,
                        const QByteArray &value);

/// A received message, split. Bare messages have an empty body.
struct View
{
    quint8 code = 0;
    quint32 length = 0; ///< as the length field says it; may be more or less than what arrived
    const quint8 *body = nullptr;
    int bodySize = 0; ///< the smaller of the length field and what arrived
};
/// @return nothing for an empty message; a message of 1 to 4 bytes has length 0 and no body.
std::optional<View> view(const quint8 *message, int size);

} // namespace ApplicationMessage
