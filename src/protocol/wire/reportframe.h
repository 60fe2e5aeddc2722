/// The 64-byte HID report: header and payload, both directions.
#pragma once

#include <QtGlobal>
#include <array>

namespace ReportFrame {

constexpr int Size = 64;

/// Host to panel.
namespace Out {
constexpr int ReportIdOffset = 0; // u8, always 0x03
constexpr int MarkerOffset = 1;   // u8, always 0x02
constexpr int FlagOffset = 2;     // u8, a Block
constexpr int ConstantOffset = 3; // u16, always 0x0002
constexpr int LengthOffset = 5;   // u16, payload bytes in this report
constexpr int PayloadOffset = 7;
constexpr int MaxPayload = Size - PayloadOffset; // 57
constexpr quint8 ReportId = 0x03;
constexpr quint8 Marker = 0x02;
constexpr quint16 Constant = 0x0002;
} // namespace Out

/// Panel to host. The host examines flag, length and payload only: what the rest holds is the panel's affair.
namespace In {
constexpr int MarkerOffset = 0;   // u8
constexpr int FlagOffset = 1;     // u8, a Block
constexpr int ConstantOffset = 2; // u16
constexpr int LengthOffset = 4;   // u16, payload bytes in this report; above 58 counts as 58
constexpr int PayloadOffset = 6;
constexpr int MaxPayload = Size - PayloadOffset; // 58
} // namespace In

using Report = std::array<quint8, Size>;
enum class Block : quint8 { Whole = 0, More = 1, Last = 2 };

/// Frames @p length payload bytes (0 to Out::MaxPayload) into @p report; the rest is zero.
/// @return bytes in use, header included (7 + length), or -1 when the payload does not fit.
int encode(Block flag, const quint8 *payload, int length, Report &report);

/// Frames a report as the panel sends it (0 to In::MaxPayload payload bytes).
/// @return bytes in use, header included (6 + length), or -1 when the payload does not fit.
int encodeIncoming(Block flag, const quint8 *payload, int length, Report &report);

struct Incoming
{
    quint8 flag = 0;                 ///< a Block, or a number above 2 that is to be ignored
    int length = 0;                  ///< payload bytes in this report, 0 to 58
    const quint8 *payload = nullptr; ///< into the report
};
/// Reads a report from the panel; never fails, since a length beyond the report is cut to it.
Incoming decodeIncoming(const Report &report);

} // namespace ReportFrame
