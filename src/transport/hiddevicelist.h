/// The HID collections that the system lists for the panel, and the rule that picks the one to talk to.
#pragma once

#include <QString>
#include <QVector>
#include <string>

namespace vorlindesk {

constexpr unsigned short PanelVendorId = 0x4869;
constexpr unsigned short PanelProductId = 0x1234;

/// One top-level collection, as the HID library lists it. Texts that the library does not know are empty.
struct HidDeviceEntry
{
    std::string path;
    int vendorId = 0;
    int productId = 0;
    QString serialNumber;
    unsigned releaseNumber = 0;
    QString manufacturer;
    QString product;
    unsigned usagePage = 0;
    int interfaceNumber = 0;
    int busType = 0;
};

/// Enumerates the collections of every panel, in the library's order.
QVector<HidDeviceEntry> listPanelCollections();

/// True when @p path names the panel's vendor collection, its second one ("Col02", case-sensitive).
bool namesPanelCollection(const std::string &path);

/// How paths look on this system: a device node stands for the whole interface and carries no collection
/// name.
#ifdef Q_OS_WIN
inline constexpr bool SystemHasDeviceNodes = false;
#else
inline constexpr bool SystemHasDeviceNodes = true;
#endif

/// @return the path to open, or an empty string when no entry is the panel. The first path that names the
/// vendor collection wins. Where none does and @p deviceNodes is set, paths below "/dev/" are looked at once
/// more: the first that is listed twice (its second collection is the vendor's), else the first with a vendor
/// usage page.
std::string pickPanelPath(const QVector<HidDeviceEntry> &entries, bool deviceNodes = SystemHasDeviceNodes);

} // namespace vorlindesk
