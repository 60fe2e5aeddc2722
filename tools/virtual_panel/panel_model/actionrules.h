/// Rules for action lists.
#pragma once

#include <QByteArray>
#include <QString>

namespace ActionRules {

/// @return what is wrong with a list value (u16 length and entries); empty when nothing is.
QString listFault(const QByteArray &value);

} // namespace ActionRules
