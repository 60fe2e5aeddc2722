/// Values of key attributes as they travel behind the four ids of a key-addressed message.
#pragma once

#include <QByteArray>
#include <QString>

namespace AttributeValue {

constexpr int MaxTextBytes = 128; // of a title or address: the area that the panel's record has for it

/// u8 byte count, then @p text in GBK, cut at 128 bytes on a whole character. Titles, addresses and paths.
QByteArray gbkText(const QString &text);

/// u8 count (low 8 bits of the byte count only), then @p text in the text-output encoding, whole.
QByteArray outputText(const QString &text);

QByteArray colour(quint8 red, quint8 green, quint8 blue); ///< red, green, blue
QByteArray byte(quint32 value);                           ///< low 8 bits

/// u32 byte count, then the file's bytes: pictures (ids 5 and 9) and videos (id 10), both ways.
QByteArray file(const QByteArray &bytes);

/// The file of a picture or video value: all that stands behind the count, which is not examined, since the
/// end of the value bounds the file. An empty one when the value is 4 bytes or less.
QByteArray fileOf(const QByteArray &value);

} // namespace AttributeValue
