#include "reportframe.h"

#include <QtEndian>
#include <algorithm>

namespace ReportFrame {

int encode(Block flag, const quint8 *payload, int length, Report &report)
{
    if (length < 0 || length > Out::MaxPayload)
        return -1;
    report.fill(0);
    report[Out::ReportIdOffset] = Out::ReportId;
    report[Out::MarkerOffset] = Out::Marker;
    report[Out::FlagOffset] = static_cast<quint8>(flag);
    qToLittleEndian(Out::Constant, report.data() + Out::ConstantOffset);
    qToLittleEndian(static_cast<quint16>(length), report.data() + Out::LengthOffset);
    std::copy_n(payload, length, report.data() + Out::PayloadOffset);
    return Out::PayloadOffset + length;
}

int encodeIncoming(Block flag, const quint8 *payload, int length, Report &report)
{
    if (length < 0 || length > In::MaxPayload)
        return -1;
    report.fill(0);
    report[In::MarkerOffset] = Out::Marker;
    report[In::FlagOffset] = static_cast<quint8>(flag);
    qToLittleEndian(Out::Constant, report.data() + In::ConstantOffset);
    qToLittleEndian(static_cast<quint16>(length), report.data() + In::LengthOffset);
    std::copy_n(payload, length, report.data() + In::PayloadOffset);
    return In::PayloadOffset + length;
}

Incoming decodeIncoming(const Report &report)
{
    const int length = qFromLittleEndian<quint16>(report.data() + In::LengthOffset);
    return {.flag = report[In::FlagOffset],
            .length = std::min(length, In::MaxPayload),
            .payload = report.data() + In::PayloadOffset};
}

} // namespace ReportFrame
