#include "actionlist.h"

#include "bytes.h"
#include "keyrecord.h"
#include "textcodec.h"

#include <algorithm>

namespace ActionList {

namespace {

constexpr int OpenFile = 2;
constexpr int OpenWeb = 3;
constexpr int TextOutput = 15;
constexpr int KeyCombination = 16;

/// What the payload of @p action carries, cut to @p maxBytes on a whole character.
QByteArray contentOf(const Action &action, int maxBytes)
{
    switch (action.functionId) {
    case OpenFile:
    case OpenWeb:
        return TextCodec::toUtf8(action.text, maxBytes);
    case TextOutput:
        return TextCodec::toOutput(action.text, maxBytes);
    case KeyCombination:
        return keyCombinationCodes(action.text);
    default:
        return {};
    }
}

bool isCut(const Action &action)
{
    constexpr int OneTooMany = PayloadSize + 4; // the longest character has 4 bytes
    return contentOf(action, OneTooMany).size() > PayloadSize;
}

QByteArray encodedEntry(const Action &action)
{
    QByteArray entry(1, Bytes::low(action.functionId));
    Bytes::appendLittleEndian(entry, action.functionId == DelayFunction ? action.delay : quint16{0});
    if (hasPayload(action.functionId))
        entry.append(contentOf(action, PayloadSize).leftJustified(PayloadSize, '\0'));
    return entry;
}

QString decodedText(int functionId, const QByteArray &payload)
{
    switch (functionId) {
    case TextOutput:
        return TextCodec::fromOutput(payload);
    case KeyCombination:
        return keyCombinationText(payload);
    default:
        return TextCodec::fromUtf8(payload);
    }
}

} // namespace

bool hasPayload(int functionId)
{
    return functionId == OpenFile || functionId == OpenWeb || functionId == TextOutput ||
           functionId == KeyCombination;
}

Encoded encode(const QVector<Action> &actions)
{
    Encoded result;
    QByteArray entries;
    for (int i = 0; i < actions.size(); ++i) {
        const QByteArray entry = encodedEntry(actions.at(i));
        if (entries.size() + entry.size() > MaxEntriesSize) {
            result.omitted = static_cast<int>(actions.size()) - i;
            break;
        }
        entries.append(entry);
        if (isCut(actions.at(i)))
            result.cutEntries.append(i);
    }
    Bytes::appendLittleEndian(result.value, static_cast<quint16>(entries.size()));
    result.value.append(entries);
    return result;
}

QByteArray counted(const QByteArray &value)
{
    if (value.size() < LengthSize)
        return {};
    return value.left(LengthSize + qFromLittleEndian<quint16>(value.constData()));
}

QVector<Action> decode(const QByteArray &value)
{
    const QByteArray bytes = counted(value);
    QVector<Action> actions;
    int offset = LengthSize;
    while (offset < bytes.size()) {
        Action action;
        action.functionId = static_cast<qint8>(bytes.at(offset));
        const bool full = hasPayload(action.functionId);
        if (full && bytes.size() - offset >= FullEntry)
            action.text = decodedText(action.functionId, bytes.mid(offset + EntryHead, PayloadSize));
        if (action.functionId == DelayFunction)
            action.delay =
                static_cast<quint16>(Bytes::at(bytes, offset + 1) | Bytes::at(bytes, offset + 2) << 8);
        actions.append(action);
        offset += full ? FullEntry : EntryHead;
    }
    return actions;
}

} // namespace ActionList
