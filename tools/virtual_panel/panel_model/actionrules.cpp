#include "actionrules.h"

#include "model/functionids.h"
#include "wire/actionlist.h"
#include "wire/textcodec.h"

#include <QtEndian>
#include <algorithm>

namespace ActionRules {

namespace {

/// What a step can be: the host's actions, media keys, texts and combinations, and the delay.
bool isStep(int functionId)
{
    using namespace vorlinmodel;
    if (functionId == TIME_DELAY_FID)
        return true;
    return functionId >= HOME_PAGE_FID && functionId <= KEY_COMBINATION_FID &&
           functionId != MULTIPLE_ACTIONS_FID;
}

bool isZero(const QByteArray &bytes)
{
    return std::all_of(bytes.cbegin(), bytes.cend(), [](char byte) { return byte == 0; });
}

bool isZeroBehindText(const QByteArray &payload, int functionId)
{
    constexpr int combinationSize = 4;
    switch (functionId) {
    case vorlinmodel::TEXT_OUTPUT_FID:
        return isZero(payload.mid(TextCodec::fromOutput(payload).size() * 2));
    case vorlinmodel::KEY_COMBINATION_FID:
        return isZero(payload.mid(combinationSize));
    default: {
        const int end = payload.indexOf('\0');
        return end < 0 || isZero(payload.mid(end));
    }
    }
}

bool isUtf8(const QByteArray &payload)
{
    const QByteArray text = payload.left(payload.indexOf('\0'));
    return QString::fromUtf8(text).toUtf8() == text;
}

QString entryFault(const QByteArray &entry, int functionId)
{
    if (functionId != ActionList::DelayFunction && !isZero(entry.mid(1, ActionList::EntryHead - 1)))
        return QStringLiteral("unused bytes are not zero");
    if (!ActionList::hasPayload(functionId))
        return {};
    const QByteArray payload = entry.mid(ActionList::EntryHead);
    if (!isZeroBehindText(payload, functionId))
        return QStringLiteral("bytes behind the content are not zero");
    const bool isPath = functionId == vorlinmodel::OPEN_FILE_FID || functionId == vorlinmodel::OPEN_WEB_FID;
    return !isPath || isUtf8(payload) ? QString() : QStringLiteral("a path that is not UTF-8");
}

QString entriesFault(const QByteArray &entries)
{
    int step = 1;
    for (int offset = 0; offset < entries.size(); ++step) {
        const int functionId = static_cast<qint8>(entries.at(offset));
        const int size = ActionList::hasPayload(functionId) ? ActionList::FullEntry : ActionList::EntryHead;
        QString fault;
        if (!isStep(functionId))
            fault = QStringLiteral("function id %1").arg(functionId);
        else if (offset + size > entries.size())
            fault = QStringLiteral("cut short");
        else
            fault = entryFault(entries.mid(offset, size), functionId);
        if (!fault.isEmpty())
            return QStringLiteral("step %1: %2").arg(step).arg(fault);
        offset += size;
    }
    return {};
}

} // namespace

QString listFault(const QByteArray &value)
{
    if (value.size() < ActionList::LengthSize)
        return QStringLiteral("the list's length is missing");
    const int length = qFromLittleEndian<quint16>(value.constData());
    if (length != value.size() - ActionList::LengthSize)
        return QStringLiteral("list length %1, but %2 bytes follow it")
            .arg(length)
            .arg(value.size() - ActionList::LengthSize);
    return entriesFault(value.mid(ActionList::LengthSize));
}

} // namespace ActionRules
