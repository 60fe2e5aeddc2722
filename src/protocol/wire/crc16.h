/// CRC-16/CCITT-FALSE, the checksum of the firmware.
#pragma once

#include <QByteArray>

/// Polynomial 0x1021, initial value 0xFFFF, bits not reflected, no final XOR; check value over "123456789"
/// 0x29B1.
quint16 crc16(const QByteArray &bytes);
