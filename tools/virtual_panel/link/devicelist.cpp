#include "devicelist.h"

#include <QOperatingSystemVersion>

namespace {

constexpr std::uint16_t VendorId = 0x4869;
constexpr std::uint16_t ProductId = 0x1234;
constexpr char Node[] = "/dev/hidraw7";

struct Collection
{
    std::uint16_t usagePage;
    std::uint16_t usage;
};
constexpr Collection Collections[] = {{0x0001, 0x0006}, {0xFF00, 0x0001}, {0x000C, 0x0001}};
constexpr int VendorCollection = 2; // counted from 1

std::string windowsPath(int collection)
{
    const std::string number = std::to_string(collection);
    return R"(\\?\HID#VID_4869&PID_1234&Col0)" + number + "#7&1f3a9c52&0&000" +
           std::to_string(collection - 1) + "#{4d1e55b2-f16f-11cf-88cb-001111000030}";
}

std::string pathOf(PathStyle style, int collection)
{
    return style == PathStyle::Windows ? windowsPath(collection) : std::string(Node);
}

} // namespace

std::vector<ListedDevice> panelCollections(PathStyle style)
{
    std::vector<ListedDevice> devices;
    int number = 0;
    for (const Collection &collection : Collections) {
        ListedDevice device;
        device.path = pathOf(style, ++number);
        device.vendorId = VendorId;
        device.productId = ProductId;
        device.release = 0x0120;
        device.usagePage = collection.usagePage;
        device.usage = collection.usage;
        device.serial = "VP-0001";
        device.manufacturer = "Virtual";
        device.product = "Key panel";
        devices.push_back(device);
    }
    return devices;
}

std::string reportPath(PathStyle style)
{
    return pathOf(style, VendorCollection);
}

PathStyle ownPathStyle()
{
    const bool windows = QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows;
    return windows ? PathStyle::Windows : PathStyle::Linux;
}
