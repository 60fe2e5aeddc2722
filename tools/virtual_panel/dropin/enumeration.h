/// hidapi's device list, as the running panel tells it.
#pragma once

#include <hidapi.h>

/// @return the collections that match (0 matches all), allocated with new; null when no panel runs or is
/// plugged in.
hid_device_info *listPanel(unsigned short vendorId, unsigned short productId);
void freeList(hid_device_info *devices);
