/// Every fixed text that the transport writes into the log.
#pragma once

namespace TransportText {

inline constexpr char InitFailed[] = "HIDTransfer::Init error ret:%d\n";

inline constexpr char ScanStart[] = "-----scanDevicePath-------------------------------------start-\n";
inline constexpr char ScanPath[] = "path:%s\n";
inline constexpr char ScanVendorId[] = "vendor_id:%d\n";
inline constexpr char ScanProductId[] = "product_id:%d\n";
// The wide texts of the HID library are converted first: printing them as they come would stop at the first
// foreign letter when the program runs in the C locale.
inline constexpr char ScanSerialNumber[] = "serial_number:%s\n";
inline constexpr char ScanReleaseNumber[] = "release_number:%u\n";
inline constexpr char ScanManufacturer[] = "manufacturer_string:%s\n";
inline constexpr char ScanProduct[] = "product_string:%s\n";
inline constexpr char ScanUsagePage[] = "usage_page:%u\n";
inline constexpr char ScanInterfaceNumber[] = "interface_number:%d\n";
inline constexpr char ScanBusType[] = "bus_type:%d\n\n";
inline constexpr char ScanCandidate[] =
    "-----scanDevicePath-------------------------------------strTemp=[%s]\n";
inline constexpr char ScanFound[] =
    "-----scanDevicePath----------------------return-----strDevicePath=[%s]\n";
inline constexpr char ScanEnd[] = "-----scanDevicePath-------------------------------------end-\n";

inline constexpr char OpenByHand[] = "hid_open man set device %s\n";
inline constexpr char OpenByScan[] = "hid_open scan [%s]\n";
inline constexpr char OpenOk[] = "hid_open %s ok\n";
inline constexpr char OpenFailed[] = "hid_open [%s] error\n";

inline constexpr char SendDisconnected[] = "-Send-connectState false\n";
inline constexpr char SendFailed[] = "HIDTransfer::Send hid_write error %s\n";
inline constexpr char SendShort[] = "HIDTransfer::Send hid_write ret(%d) is small than 64\n";
inline constexpr char SendOk[] = "HIDTransfer::Send hid_write index[%d] / ret[%d]- bytes ok\n";
inline constexpr char ReceiveNotOpen[] = "HIDTransfer::Recv open error\n";
inline constexpr char ReceiveFailed[] = "HIDTransfer::Recv error %s\n";

} // namespace TransportText
