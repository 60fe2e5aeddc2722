/// Turns a key press on the panel into the command that the computer may have to carry out.
#pragma once

#include "model/keyid.h"

#include <QString>
#include <optional>

namespace vorlinmodel {

class IFunctionManager;

struct KeyCommand
{
    int functionId = 0;
    QString text; ///< address, path or text of the functions that have one, else empty
    bool operator==(const KeyCommand &) const = default;
};

/// Looks up what @p key does. Every function gives a command, also those that the panel carries out by
/// itself: who receives it decides. @return nothing for a key without a record.
std::optional<KeyCommand> commandOfKey(const IFunctionManager &store, const key_id_t &key);

} // namespace vorlinmodel
