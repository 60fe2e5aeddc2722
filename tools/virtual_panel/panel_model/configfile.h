/// A configuration file as the panel reads it: a reader of its own, after docs/formats.md, which checks every
/// byte.
#pragma once

#include "panelstate.h"

#include <QPair>
#include <QSet>
#include <optional>

namespace ConfigFile {

struct Keys
{
    QSet<QPair<int, int>> pages; ///< layout and page: all of their keys are replaced
    QMap<PanelKeyId, PanelKey> keys;
};

/// Begins as such a file does.
bool isOne(const QByteArray &bytes);

/// @return nothing when anything in it is damaged, or is not as it has to be.
std::optional<Keys> read(const QByteArray &bytes);

void takeOver(const Keys &keys, PanelState &state);

} // namespace ConfigFile
