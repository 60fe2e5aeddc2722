/// The home layout record (function code 0x11, both ways): where child-page keys lead.
#pragma once

#include <QByteArray>
#include <QVector>
#include <optional>

namespace HomeLayout {

struct Entry
{
    int keyId = 0;
    int layoutId = -1; ///< -1 travels as 0xFF
    int pageId = -1;
    int sum = -1;
    bool operator==(const Entry &) const = default;
};

struct Record
{
    int layoutId = 0; ///< the home layout
    QVector<Entry> entries;
    bool operator==(const Record &) const = default;
};

/// Body: u8 layout id, u8 entry count (at most 255), then 4 bytes per entry: key id, layout id, page id, sum.
QByteArray encode(const Record &record);

/// @return nothing when not even the two leading bytes are there; entries that are cut short are left out.
std::optional<Record> decode(const QByteArray &body);

} // namespace HomeLayout
