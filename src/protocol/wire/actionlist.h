/// The list of steps of a multi-action key, both ways.
#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

namespace ActionList {

constexpr int LengthSize = 2;    // u16, bytes of entries that follow
constexpr int EntryHead = 3;     // u8 function id, then two bytes (the delay of a delay entry, u16)
constexpr int PayloadSize = 128; // behind the head of entries with content, zero-filled
constexpr int FullEntry = EntryHead + PayloadSize; // 131
constexpr int MaxEntriesSize = 0xFFFF;
constexpr int DelayFunction = 100;

/// One step. @c text is a path or address (2, 3), a text (15) or a combination of key names (16).
struct Action
{
    qint8 functionId = 0;
    quint16 delay = 0; ///< of a delay entry (function id 100), ms; 0 for all others when decoded
    QString text;
    bool operator==(const Action &) const = default;
};

/// True when entries of this function carry the 128-byte payload: 2, 3, 15 and 16.
bool hasPayload(int functionId);

struct Encoded
{
    QByteArray value; ///< u16 length and the entries
    QVector<int>
        cutEntries;  ///< steps whose content was longer than 128 bytes and was cut, by position from 0
    int omitted = 0; ///< steps at the end for which the u16 length has no room
};
Encoded encode(const QVector<Action> &actions);

/// Decodes a list value. Only the first L + 2 bytes count, L being cut to what is there. An entry with
/// payload is decoded when 131 bytes remain; a shorter rest leaves its text empty and ends the list. Entries
/// with code 0 are in the result: whoever runs the list runs through them, whoever stores it leaves them out.
QVector<Action> decode(const QByteArray &value);

/// The bytes of @p value that count: the length field and L bytes, cut to what is there; empty when there is
/// no list.
QByteArray counted(const QByteArray &value);

} // namespace ActionList
