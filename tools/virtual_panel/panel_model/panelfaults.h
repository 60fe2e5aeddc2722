/// Faults that the panel plays on demand.
#pragma once

struct PanelFaults
{
    bool silent = false;   ///< answers nothing
    bool wrongCrc = false; ///< reports a checksum that does not match
    int unplugAfter = -1;  ///< reports from the host until it is unplugged; below 0 never
};
