/// The compiled translations, ":/translations/*.qm".
#pragma once

/// Makes the translations known to the resource system. They lie in a static library, of which the linker
/// drops what nobody names; call this once, early in main(), before a translation is loaded. Further calls do
/// no harm.
void initTranslationResources();
