/// Names of keyboard keys and their one-byte usage codes (USB HID usage tables, keyboard page).
#pragma once

#include <QString>
#include <QStringList>

namespace KeyNames {

/// @return the code of @p name, compared whole and case-sensitively; 0 for a name that the table does not
/// hold.
quint8 code(const QString &name);

/// @return the name of @p code; "undefine" for a code that no name has. 79 is "PageDown", never "RightArrow".
QString name(quint8 code);

QStringList all(); ///< every name, in the table's order

} // namespace KeyNames
