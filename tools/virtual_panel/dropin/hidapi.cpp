// The functions of hidapi that the program uses, each with hidapi's own declaration.
#pragma GCC visibility push(default) // all else of this library stays hidden from the program
#include <hidapi.h>
#pragma GCC visibility pop

#include "enumeration.h"
#include "paneldevice.h"

struct hid_device_
{
    std::unique_ptr<PanelDevice> panel;
    bool nonBlocking = false;
};

extern "C" {

int HID_API_EXPORT HID_API_CALL hid_init(void)
{
    return 0;
}

int HID_API_EXPORT HID_API_CALL hid_exit(void)
{
    return 0;
}

hid_device_info HID_API_EXPORT *HID_API_CALL hid_enumerate(unsigned short vendor_id,
                                                           unsigned short product_id)
{
    return listPanel(vendor_id, product_id);
}

void HID_API_EXPORT HID_API_CALL hid_free_enumeration(hid_device_info *devs)
{
    freeList(devs);
}

hid_device HID_API_EXPORT *HID_API_CALL hid_open_path(const char *path)
{
    auto panel = PanelDevice::open(path);
    return panel ? new hid_device_{std::move(panel)} : nullptr;
}

void HID_API_EXPORT HID_API_CALL hid_close(hid_device *dev)
{
    delete dev;
}

int HID_API_EXPORT HID_API_CALL hid_write(hid_device *dev, const unsigned char *data, size_t length)
{
    return dev->panel->write(data, length);
}

int HID_API_EXPORT HID_API_CALL hid_read_timeout(hid_device *dev, unsigned char *data, size_t length,
                                                 int milliseconds)
{
    return dev->panel->read(data, length, milliseconds);
}

int HID_API_EXPORT HID_API_CALL hid_read(hid_device *dev, unsigned char *data, size_t length)
{
    return dev->panel->read(data, length, dev->nonBlocking ? 0 : -1);
}

int HID_API_EXPORT HID_API_CALL hid_set_nonblocking(hid_device *dev, int nonblock)
{
    dev->nonBlocking = nonblock != 0;
    return 0;
}

const wchar_t HID_API_EXPORT *HID_API_CALL hid_error(hid_device *dev)
{
    return dev != nullptr ? L"The virtual panel is unplugged" : L"No virtual panel answers";
}

const char HID_API_EXPORT *HID_API_CALL hid_version_str(void)
{
    return HID_API_VERSION_STR;
}

} // extern "C"
