/// The custom layout record (function code 0x0D): which physical keys form a logical one.
#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>
#include <optional>

namespace CustomLayoutRecord {

// Offsets within the body (the message's function code and length stand before it).
constexpr int LayoutNumber = 0; // u8
constexpr int TitleLength = 1;  // u8
constexpr int KeyCount = 2;     // u16
constexpr int Title = 4;        // 128 bytes, GBK, zero-filled
constexpr int TitleArea = 128;
constexpr int Triples = 132; // 3 bytes per logical key; offset 137 of the message

struct Key
{
    int first = 0; ///< first physical key (1 to 15) of the logical key
    int last = 0;  ///< last physical key
    bool operator==(const Key &) const = default;
};

struct Record
{
    int layoutNumber = 0;
    QString title;     ///< cut at 128 GBK bytes on a whole character
    QVector<Key> keys; ///< logical keys 1 to n, in order
    bool operator==(const Record &) const = default;
};

QByteArray encode(const Record &record);
std::optional<Record>
decode(const QByteArray &body); ///< nothing when the title area or a triple is cut short

} // namespace CustomLayoutRecord
