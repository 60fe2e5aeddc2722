/// What may be dropped on a key, and what happens to keys that are dragged.
#pragma once

#include "model/keyid.h"

#include <QString>
#include <optional>

class QDropEvent;
class QMimeData;
struct EditorContext;

namespace KeyDrag {

/// @return the function id that is dragged; nothing when the data has none, or one that a key cannot have.
std::optional<int> functionOf(const QMimeData &data);

/// Fills @p data for a drag of @p key.
void setKey(QMimeData &data, const vorlinmodel::key_id_t &key);
/// @return the key that is dragged; nothing when the data has none, or numbers that no key has.
std::optional<vorlinmodel::key_id_t> keyOf(const QMimeData &data);

/// @return the path of the one file that is dragged, if it is a picture, or with @p takesVideo a video;
/// empty when it is none, several, or cannot be read.
QString mediaFileOf(const QMimeData &data, bool takesVideo);

/// Whether the drag copies: with Ctrl, or when its source offers nothing else.
bool isCopy(const QDropEvent &event);

/// Moves @p source onto @p target, or swaps the two when both have a function; or copies it. One step,
/// in which a child page gets its way back. Nothing happens when both are the same key, or @p source has no
/// function.
void dropKey(EditorContext &context, const vorlinmodel::key_id_t &source, const vorlinmodel::key_id_t &target,
             bool copy);

} // namespace KeyDrag
