/// The panel's state as JSON, for scripts.
#pragma once

#include "panel_model/panelmodel.h"

#include <QJsonObject>

QJsonObject stateReport(const PanelModel &model);

/// Empty for a key without function.
QJsonObject keyReport(const PanelState &state, const PanelKeyId &id);
