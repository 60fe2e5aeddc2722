/// Keys on the clipboard.
#pragma once

#include "keyedits.h"

#include <QMimeData>
#include <QVector>

namespace KeyClipboard {

inline constexpr char Format[] = "application/x-vorlindesk-keys";

/// Puts @p keys, which belong to one page, on the system's clipboard. Keys without a function count too:
/// pasting them clears.
void copy(const vorlinmodel::IFunctionManager &store, const QVector<vorlinmodel::key_id_t> &keys);

bool holdsKeys();

/// Where the clipboard's keys would go. A single key goes to every one of @p targets; several go to the page
/// of the first target, in the arrangement in which they were copied, its lowest key first; what would lie
/// beyond the 3 x 5 keys is left out. Empty when there are no (sound) keys on the clipboard.
QVector<KeyPlacement> placements(const QVector<vorlinmodel::key_id_t> &targets);

} // namespace KeyClipboard
