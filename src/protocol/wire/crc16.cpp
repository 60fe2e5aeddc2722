#include "crc16.h"

#include <array>

namespace {

constexpr quint16 Polynomial = 0x1021;
constexpr quint16 InitialValue = 0xFFFF;

constexpr quint16 tableEntry(int index)
{
    int crc = index << 8;
    for (int bit = 0; bit < 8; ++bit)
        crc = (crc & 0x8000) != 0 ? (crc << 1) ^ Polynomial : crc << 1;
    return static_cast<quint16>(crc & 0xFFFF);
}

constexpr std::array<quint16, 256> makeTable()
{
    std::array<quint16, 256> table{};
    for (int i = 0; i < 256; ++i)
        table[static_cast<std::size_t>(i)] = tableEntry(i);
    return table;
}

constexpr std::array<quint16, 256> Table = makeTable();

} // namespace

quint16 crc16(const QByteArray &bytes)
{
    quint16 crc = InitialValue;
    for (const char byte : bytes) {
        const auto index = static_cast<quint8>((crc >> 8) ^ static_cast<quint8>(byte));
        crc = static_cast<quint16>((crc << 8) ^ Table[index]);
    }
    return crc;
}
