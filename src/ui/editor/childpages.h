/// Rules of child pages: where a key of function 18 leads, and what hangs on it.
#pragma once

#include "model/keyid.h"

#include <QVector>
#include <optional>

namespace vorlinmodel {
class IFunctionManager;
}

/// The child page of key k is page k + 1, whatever page the key is on, unless system.ini leads elsewhere.
namespace ChildPages {

constexpr int ReturnKeyId = 15; ///< where a new child page gets its way back

struct Page
{
    int layoutId = 0;
    int pageId = 0;
    bool operator==(const Page &) const = default;
};

/// Where @p key leads; nothing is written. In system.ini -1, or what is no page, stands for "not set".
Page pageOf(const vorlinmodel::key_id_t &key);

/// Number of logical keys of a layout; 0 when there is no such layout.
int keyCount(int layoutId);

/// What there is to do, and to tell, when @p key has become a child-page key.
struct Findings
{
    bool leadsToItsOwnPage = false;
    int otherPage = 0;         ///< another page whose key of the same number leads to the same page; 0 = none
    bool lacksWayBack = false; ///< no key of the child page returns, and key 15 is taken or not in the layout
    std::optional<vorlinmodel::key_id_t> freeReturnKey; ///< has to get function 19
};
Findings examine(const vorlinmodel::IFunctionManager &store, const vorlinmodel::key_id_t &key);

/// Keys with a function on the child pages to which nothing would lead any more without @p keys; none of @p
/// keys themselves, and never the keys of a main page (page 1).
QVector<vorlinmodel::key_id_t> keysLeftBehind(const vorlinmodel::IFunctionManager &store,
                                              const QVector<vorlinmodel::key_id_t> &keys);

} // namespace ChildPages
