/// Rules for custom layouts and home layouts.
#pragma once

#include <QByteArray>
#include <QString>

namespace LayoutRules {

/// @return what is wrong with the body of a custom layout message; empty when nothing is.
QString customLayoutFault(const QByteArray &body);

/// @return what is wrong with a home layout record; empty when nothing is.
QString homeLayoutFault(const QByteArray &body);

} // namespace LayoutRules
