/// Little helpers for reading and writing bytes of a record.
#pragma once

#include <QByteArray>
#include <QtEndian>

namespace Bytes {

/// @return the byte at @p offset, 0 beyond the end.
inline quint8 at(const QByteArray &bytes, int offset)
{
    return offset < bytes.size() ? static_cast<quint8>(bytes.at(offset)) : quint8{0};
}

/// Low 8 bits of @p value; -1 becomes 0xFF.
template <typename Integer>
char low(Integer value)
{
    return static_cast<char>(static_cast<quint8>(value));
}

template <typename Integer>
void appendLittleEndian(QByteArray &bytes, Integer value)
{
    const Integer little = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char *>(&little), int{sizeof little});
}

inline QByteArray untilNul(const QByteArray &bytes)
{
    return bytes.left(static_cast<int>(qstrnlen(bytes.constData(), static_cast<uint>(bytes.size()))));
}

inline QByteArray fromRaw(const quint8 *bytes, int size)
{
    return {reinterpret_cast<const char *>(bytes), size};
}

} // namespace Bytes
