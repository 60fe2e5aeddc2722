#include "hiddevicelist.h"

#include <algorithm>
#include <hidapi.h>

namespace vorlindesk {
namespace {

constexpr char VendorCollection[] = "Col02";
constexpr char DeviceFolder[] = "/dev/";
constexpr unsigned FirstVendorUsagePage = 0xFF00;

QString textOf(const wchar_t *text)
{
    return text == nullptr ? QString() : QString::fromWCharArray(text);
}

HidDeviceEntry entryOf(const hid_device_info &info)
{
    HidDeviceEntry entry;
    entry.path = info.path == nullptr ? std::string() : std::string(info.path);
    entry.vendorId = info.vendor_id;
    entry.productId = info.product_id;
    entry.serialNumber = textOf(info.serial_number);
    entry.releaseNumber = info.release_number;
    entry.manufacturer = textOf(info.manufacturer_string);
    entry.product = textOf(info.product_string);
    entry.usagePage = info.usage_page;
    entry.interfaceNumber = info.interface_number;
    entry.busType = static_cast<int>(info.bus_type);
    return entry;
}

bool isDeviceNode(const HidDeviceEntry &entry)
{
    return entry.path.starts_with(DeviceFolder);
}

std::string pickDeviceNode(const QVector<HidDeviceEntry> &entries)
{
    for (const HidDeviceEntry &entry : entries) {
        const auto samePath = [&entry](const HidDeviceEntry &other) {
            return other.path == entry.path;
        };
        if (isDeviceNode(entry) && std::count_if(entries.begin(), entries.end(), samePath) > 1)
            return entry.path;
    }
    for (const HidDeviceEntry &entry : entries)
        if (isDeviceNode(entry) && entry.usagePage >= FirstVendorUsagePage)
            return entry.path;
    return {};
}

} // namespace

QVector<HidDeviceEntry> listPanelCollections()
{
    QVector<HidDeviceEntry> entries;
    hid_device_info *pFirst = hid_enumerate(PanelVendorId, PanelProductId);
    for (const hid_device_info *pInfo = pFirst; pInfo != nullptr; pInfo = pInfo->next)
        entries << entryOf(*pInfo);
    hid_free_enumeration(pFirst);
    return entries;
}

bool namesPanelCollection(const std::string &path)
{
    return path.find(VendorCollection) != std::string::npos;
}

std::string pickPanelPath(const QVector<HidDeviceEntry> &entries, bool deviceNodes)
{
    for (const HidDeviceEntry &entry : entries)
        if (namesPanelCollection(entry.path))
            return entry.path;
    return deviceNodes ? pickDeviceNode(entries) : std::string();
}

} // namespace vorlindesk
