/// The panel's answer to "read the whole configuration".
#pragma once

#include "panelstate.h"

class Outbox;

/// First the custom layouts, as they came, since the pages count their keys by them. Then per page one
/// message of records, then per key its action list (multi-action keys) and its picture, an empty one when it
/// has none. The list goes before the picture, since the host takes the last picture for the end of a page. A
/// panel without keys sends one page of no records.
void sendConfiguration(const PanelState &state, Outbox &outbox);

/// The attribute message of an action list that is stored (read-back) or run at once.
constexpr int RunNowAttribute = 16;
