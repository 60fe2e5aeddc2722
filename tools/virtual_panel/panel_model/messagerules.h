/// Rules for whole messages: how they are cut into blocks, and that the length field tells the truth.
#pragma once

#include "reportchecker.h"

#include <QByteArray>
#include <QString>

namespace MessageRules {

/// @return what is wrong with the cutting of @p message; empty when nothing is.
QString blockFault(const HostMessage &message);

/// @return what is wrong with the length of @p message; empty when nothing is.
QString lengthFault(const QByteArray &message);

/// True for a message (or its beginning) between whose blocks the host has to pause: keys, layouts, home
/// layout.
bool needsPauses(const QByteArray &message);

} // namespace MessageRules
