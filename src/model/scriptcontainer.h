/// "CD.bin": the whole configuration in one file, also what a configuration-file request sends to the panel.
#pragma once

#include "model/backupwatch.h"
#include "model/scriptformat.h"

#include <QByteArray>
#include <QStringList>
#include <optional>

namespace vorlinmodel {

class IFunctionManager;

/// Every record, picture, video and action list of @p store, with the files read. @p leftOut gets one plain
/// text for each thing that had to stay out (a key that the format cannot address, a file that cannot be
/// read); log lines say the same. @return nothing when @p watch gave it up.
std::optional<Script> collectScript(const IFunctionManager &store, const MultiActionStore &actions,
                                    const BackupWatch &watch, QStringList &leftOut);

/// The same, packed.
QByteArray buildScript(const IFunctionManager &store, const MultiActionStore &actions);

/// Takes over what @p script holds: its pages replace those of the store, and their keys get their pictures,
/// videos and action lists. Damaged sections are not in it, so this also takes "the rest" of a damaged
/// script.
/// @return false when something could not be taken over; each such thing is logged.
bool applyScript(const Script &script, IFunctionManager &store, MultiActionStore &actions);

/// Parses @p bytes and applies them. A damaged script changes nothing: its damaged sections are logged at
/// Error.
bool applyScriptBytes(const QByteArray &bytes, IFunctionManager &store, MultiActionStore &actions);

/// Bytes of the "CD.bin" last written or read by this program; empty before. Any thread.
QByteArray currentScript();
void setCurrentScript(const QByteArray &bytes);

} // namespace vorlinmodel
