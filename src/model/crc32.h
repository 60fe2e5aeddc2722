/// CRC-32 of the sections of "CD.bin".
#pragma once

#include "model/backupwatch.h"

#include <QByteArray>

namespace vorlinmodel {

/// Polynomial 0x04C11DB7, bits reflected, initial value and final XOR 0xFFFFFFFF (the CRC of Ethernet and of
/// zip files); check value over "123456789" 0xCBF43926.
quint32 crc32(const QByteArray &bytes, const BackupWatch &watch = {});

} // namespace vorlinmodel
