/// Rules for the values of key attributes.
#pragma once

#include "panelstate.h"

#include <QByteArray>
#include <QString>

namespace AttributeRules {

/// @return what is wrong with the address of a key; empty when nothing is.
QString placeFault(const PanelKeyId &id);

/// @return what is wrong with @p value for this attribute of this key; empty when nothing is. The function
/// that the key has tells a text from an address, which travel under the same id.
QString valueFault(const PanelState &state, const PanelKeyId &id, int attributeId, const QByteArray &value);

/// True for bytes that GBK decodes without loss; a NUL is not text.
bool isGbk(const QByteArray &bytes);

/// Function ids that a key can have.
bool isKeyFunction(int functionId);

} // namespace AttributeRules
