/// Bytes between the drop-in hidapi and a running virtual panel, over a local socket. Integers are
/// little-endian.
///
/// A connection begins with one byte from the host:
///   List  answered by u8 count and as many devices (devicelist.h); the panel then closes.
///   Open  followed by u16 length and the path; answered by u8 1 (open) or 0 (no such device).
/// On an open connection the host sends frames: Write + u64 steady clock in ns + u16 length + bytes, and
/// Lost + u32 count of reports that its ring could not take. The panel sends Report + 64 bytes, and Taken for
/// every Write, so that a write returns when the panel has the report, as it does on a USB bus.
#pragma once

#include <cstddef>
#include <cstdint>

namespace PanelLink {

constexpr std::uint16_t DefaultPort = 48690;
constexpr char PortVariable[] = "VIRTUAL_PANEL_PORT";
constexpr std::size_t ReportSize = 64;

constexpr char List = 'L';
constexpr char Open = 'O';
constexpr char Write = 'W';
constexpr char Lost = 'D';
constexpr char Report = 'R';
constexpr char Taken = 'T';

} // namespace PanelLink
