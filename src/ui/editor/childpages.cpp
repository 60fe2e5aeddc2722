#include "childpages.h"

#include "base/systemsettings.h"
#include "model/customlayouts.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"

#include <algorithm>

using vorlinmodel::IFunctionManager;
using vorlinmodel::key_id_t;

namespace {

constexpr int StandardLayout = 1;
constexpr int MainPage = 1;

int fidOf(const IFunctionManager &store, const key_id_t &key)
{
    const auto record = store.getKeyAttribute(key);
    return record ? record->mFId : 0;
}

bool isChildPageKey(const IFunctionManager &store, const key_id_t &key)
{
    return fidOf(store, key) == vorlinmodel::CHILDREN_PAGE_FID;
}

QVector<key_id_t> keysOfPage(const IFunctionManager &store, const ChildPages::Page &page)
{
    QVector<key_id_t> keys;
    for (int kid = vorlinmodel::FirstKeyId; kid <= vorlinmodel::LastKeyId; ++kid) {
        const key_id_t key{page.layoutId, page.pageId, kid};
        if (fidOf(store, key) != 0)
            keys.append(key);
    }
    return keys;
}

bool isOnPage(const key_id_t &key, const ChildPages::Page &page)
{
    return key.lid == page.layoutId && key.pageid == page.pageId;
}

bool hasWayBack(const IFunctionManager &store, const ChildPages::Page &page)
{
    const QVector<key_id_t> keys = keysOfPage(store, page);
    return std::any_of(keys.cbegin(), keys.cend(), [&](const key_id_t &key) {
        return fidOf(store, key) == vorlinmodel::RETURN_MAIN_FID;
    });
}

/// A page of the same layout whose key of the same number leads to where @p key leads, which depends on the
/// number alone; 0 when there is none.
int otherPageLeadingThere(const IFunctionManager &store, const key_id_t &key)
{
    for (int page = MainPage; page <= vorlinmodel::MaxPage; ++page) {
        if (page != key.pageid && isChildPageKey(store, {key.lid, page, key.kid}))
            return page;
    }
    return 0;
}

bool isStillLedTo(const IFunctionManager &store, const ChildPages::Page &page,
                  const QVector<key_id_t> &without)
{
    const QList<key_id_t> keys = store.getKeys();
    return std::any_of(keys.cbegin(), keys.cend(), [&](const key_id_t &key) {
        return !without.contains(key) && !isOnPage(key, page) && isChildPageKey(store, key) &&
               ChildPages::pageOf(key) == page;
    });
}

} // namespace

ChildPages::Page ChildPages::pageOf(const key_id_t &key)
{
    const vorlindesk::SystemSettings::HomeLayoutEntry entry =
        vorlindesk::SystemSettings::homeLayoutEntry(key.kid);
    const bool isSet = entry.layoutId > 0 && entry.pageId >= MainPage && entry.pageId <= vorlinmodel::MaxPage;
    if (isSet && keyCount(entry.layoutId) > 0)
        return {entry.layoutId, entry.pageId};
    return {key.lid, key.kid + 1};
}

int ChildPages::keyCount(int layoutId)
{
    if (layoutId == StandardLayout)
        return vorlinmodel::LastKeyId;
    const auto layout = vorlinmodel::loadCustomLayout(layoutId);
    return layout ? layout->keys.size() : 0;
}

ChildPages::Findings ChildPages::examine(const IFunctionManager &store, const key_id_t &key)
{
    Findings findings;
    const Page page = pageOf(key);
    findings.leadsToItsOwnPage = isOnPage(key, page);
    findings.otherPage = otherPageLeadingThere(store, key);
    if (page.pageId == MainPage || hasWayBack(store, page))
        return findings;
    const key_id_t returnKey{page.layoutId, page.pageId, ReturnKeyId};
    findings.lacksWayBack = keyCount(page.layoutId) < ReturnKeyId || fidOf(store, returnKey) != 0;
    if (!findings.lacksWayBack)
        findings.freeReturnKey = returnKey;
    return findings;
}

QVector<key_id_t> ChildPages::keysLeftBehind(const IFunctionManager &store, const QVector<key_id_t> &keys)
{
    QVector<key_id_t> result;
    for (const key_id_t &key : keys) {
        if (!isChildPageKey(store, key))
            continue;
        const Page page = pageOf(key);
        if (page.pageId == MainPage || isOnPage(key, page) || isStillLedTo(store, page, keys))
            continue;
        for (const key_id_t &child : keysOfPage(store, page)) {
            if (!keys.contains(child) && !result.contains(child))
                result.append(child);
        }
    }
    return result;
}
