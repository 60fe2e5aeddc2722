#include "enumeration.h"

#include "linkprotocol.h"
#include "paneldevice.h"

#include <algorithm>
#include <string>

namespace {

char *copyOf(const std::string &text)
{
    char *copy = new char[text.size() + 1];
    std::copy(text.begin(), text.end(), copy);
    copy[text.size()] = '\0';
    return copy;
}

/// The panel's texts are plain ASCII.
wchar_t *wideCopyOf(const std::string &text)
{
    wchar_t *copy = new wchar_t[text.size() + 1];
    std::copy(text.begin(), text.end(), copy);
    copy[text.size()] = L'\0';
    return copy;
}

bool receiveDevice(Socket &socket, hid_device_info &device)
{
    std::string path;
    std::string serial;
    std::string manufacturer;
    std::string product;
    std::uint8_t interfaceNumber = 0;
    bool whole = socket.receiveText(path);
    for (unsigned short *number :
         {&device.vendor_id, &device.product_id, &device.release_number, &device.usage_page, &device.usage})
        whole = whole && socket.receiveValue(*number);
    whole = whole && socket.receiveValue(interfaceNumber);
    for (std::string *text : {&serial, &manufacturer, &product})
        whole = whole && socket.receiveText(*text);
    device.interface_number = interfaceNumber;
    device.bus_type = HID_API_BUS_USB;
    device.path = copyOf(path);
    device.serial_number = wideCopyOf(serial);
    device.manufacturer_string = wideCopyOf(manufacturer);
    device.product_string = wideCopyOf(product);
    return whole;
}

bool matches(const hid_device_info &device, unsigned short vendorId, unsigned short productId)
{
    return (vendorId == 0 || device.vendor_id == vendorId) &&
           (productId == 0 || device.product_id == productId);
}

} // namespace

hid_device_info *listPanel(unsigned short vendorId, unsigned short productId)
{
    Socket socket = Socket::connectLocal(panelPort());
    std::uint8_t count = 0;
    if (!socket.isOpen() || !socket.sendAll(&PanelLink::List, 1) || !socket.receiveValue(count))
        return nullptr;
    hid_device_info *first = nullptr;
    hid_device_info **next = &first;
    for (int i = 0; i < count; ++i) {
        auto *device = new hid_device_info{};
        const bool whole = receiveDevice(socket, *device);
        if (!whole || !matches(*device, vendorId, productId)) {
            freeList(device);
            if (!whole)
                break;
            continue;
        }
        *next = device;
        next = &device->next;
    }
    return first;
}

void freeList(hid_device_info *devices)
{
    while (devices != nullptr) {
        hid_device_info *next = devices->next;
        delete[] devices->path;
        delete[] devices->serial_number;
        delete[] devices->manufacturer_string;
        delete[] devices->product_string;
        delete devices;
        devices = next;
    }
}
