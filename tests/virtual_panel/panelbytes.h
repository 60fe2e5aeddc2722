/// Literal reports for the tests of the panel.
#pragma once

#include "support/texts.h"

#include <QByteArray>
#include <QList>

/// Bytes written as hex, filled with zeros to a report.
inline QByteArray report(const char *hex)
{
    return QByteArray::fromHex(hex).leftJustified(64, '\0');
}

/// A report of the host with this block flag and payload.
inline QByteArray hostReport(int flag, const QByteArray &payload)
{
    QByteArray bytes = QByteArray::fromHex("030200020000");
    bytes[2] = static_cast<char>(flag);
    bytes.insert(5, static_cast<char>(payload.size()));
    return (bytes + payload).leftJustified(64, '\0');
}

/// A message in one whole report.
inline QByteArray whole(const QByteArray &hex)
{
    return hostReport(0, QByteArray::fromHex(hex));
}

/// A message in blocks of 57 bytes, as the host cuts them.
inline QList<QByteArray> blocks(const QByteArray &message)
{
    QList<QByteArray> reports;
    for (int offset = 0; offset < message.size(); offset += 57)
        reports << hostReport(offset + 57 < message.size() ? 1 : 2, message.mid(offset, 57));
    return reports;
}

/// The least that passes for a PNG file of this size: the panel looks at header and trailer.
inline QByteArray pngFile(int width, int height)
{
    QByteArray file = QByteArray::fromHex("89504e470d0a1a0a0000000d49484452");
    for (const int size : {width, height})
        file += QByteArray::fromHex("0000") + static_cast<char>(size >> 8) + static_cast<char>(size & 0xFF);
    return file + QByteArray(33, '\0') + QByteArray::fromHex("49454e44 ae426082");
}

inline QByteArray littleEndian(int value, int bytes)
{
    QByteArray result;
    for (int i = 0; i < bytes; ++i)
        result += static_cast<char>((value >> (8 * i)) & 0xFF);
    return result;
}

/// A key attribute message: ids in hex ("01010301": layout, page, key, attribute) and the value.
inline QByteArray attribute(const char *ids, const QByteArray &value)
{
    return QByteArray(1, '\x01') + littleEndian(4 + value.size(), 4) + QByteArray::fromHex(ids) + value;
}

inline QByteArray picture(const QByteArray &file)
{
    return littleEndian(file.size(), 4) + file;
}
