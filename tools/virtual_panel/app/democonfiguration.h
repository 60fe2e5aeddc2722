/// What the panel shows when it is taken out of its box: every function once, on several pages.
#pragma once

#include "panel_model/panelstate.h"

#include <QString>

/// @param textFile path that the "open file" key opens.
PanelState demoState(const QString &textFile);

/// Writes the small text that the "open file" key shows. @return its path, or @p folder when it cannot be
/// written.
QString writeDemoTextFile(const QString &folder);
