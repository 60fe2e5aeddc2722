/// The font of the main window.
#pragma once

#include <QString>

namespace vorlindesk {

/// @return "font: 75 %1pt \"Arial\";" with the point size for a screen of @p logicalDpi: 12 up to 96 DPI, and
/// less the more there are, which offsets the system's own scaling.
QString mainFontStyle(double logicalDpi);

} // namespace vorlindesk
