/// Who rewrites "multiActions.json" takes turns with all others who do.
#pragma once

#include <mutex>

namespace vorlinmodel {

/// Held over reading, changing and writing that file, and over nothing else: no log line, no signal, no
/// pause, no call into another part. It is the one lock of the program under which a file is read and
/// written, because the file itself is what it guards: released between reading and writing, two writers
/// would each write back what they had read, and the later would undo the earlier.
[[nodiscard]] std::unique_lock<std::mutex> lockMultiActionFile();

} // namespace vorlinmodel
