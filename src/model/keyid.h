/// Identity of one key of the panel.
#pragma once

#include <QMetaType>
#include <compare>

namespace vorlinmodel {

/// Plain value; ordered by layout, then page, then key. Keys of a page are numbered 1 to 15.
struct key_id_t
{
    qint32 lid = 0;
    qint32 pageid = 0;
    qint32 kid = 0;
    auto operator<=>(const key_id_t &) const = default;
};

constexpr int FirstKeyId = 1;
constexpr int LastKeyId = 15;
constexpr int MaxPage = 16; ///< pages of every layout, numbered from 1

} // namespace vorlinmodel

Q_DECLARE_METATYPE(vorlinmodel::key_id_t)
