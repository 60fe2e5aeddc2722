/// What layouts are called.
#pragma once

#include <QString>

namespace vorlindesk {
class LanguageManager;
}

constexpr int StandardLayoutId = 1;

/// @return @p ownName, or what stands for it: the standard layout has a name of its own, one without a name
/// its number.
QString layoutName(int layoutId, const QString &ownName, const vorlindesk::LanguageManager &language);

/// The same with the name that customLayout.ini has.
QString layoutName(int layoutId, const vorlindesk::LanguageManager &language);
