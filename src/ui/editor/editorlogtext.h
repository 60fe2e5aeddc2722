/// The fixed log lines of the editor. Other tools read them: blanks and spelling stay as they are.
#pragma once

namespace EditorLogText {

} // namespace EditorLogText
