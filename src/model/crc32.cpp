#include "crc32.h"

#include <array>

namespace vorlinmodel {

namespace {

constexpr quint32 ReflectedPolynomial = 0xEDB88320;

constexpr std::array<quint32, 256> makeTable()
{
    std::array<quint32, 256> table{};
    for (quint32 value = 0; value < table.size(); ++value) {
        quint32 remainder = value;
        for (int bit = 0; bit < 8; ++bit)
            remainder = (remainder & 1) ? (remainder >> 1) ^ ReflectedPolynomial : remainder >> 1;
        table[value] = remainder;
    }
    return table;
}

constexpr std::array<quint32, 256> Table = makeTable();

} // namespace

quint32 crc32(const QByteArray &bytes, const BackupWatch &watch)
{
    quint32 remainder = 0xFFFFFFFF;
    watch.inPieces(bytes.size(), [&](qint64 offset, qint64 length) {
        for (const char *byte = bytes.constData() + offset; length > 0; ++byte, --length)
            remainder = (remainder >> 8) ^ Table[(remainder ^ static_cast<quint8>(*byte)) & 0xFF];
        return true;
    });
    return remainder ^ 0xFFFFFFFF;
}

} // namespace vorlinmodel
