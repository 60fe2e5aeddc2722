#include "hidtransfer.h"

#include "base/log.h"
#include "base/systemsettings.h"
#include "hiddevicelist.h"
#include "logtext.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstring>
#include <hidapi.h>

namespace vorlindesk {
namespace {

constexpr int ReportSize = 64;

qint64 steadyMilliseconds()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

QByteArray lastError(hid_device_ *device)
{
    const wchar_t *text = hid_error(device);
    return text == nullptr ? QByteArray("") : QString::fromWCharArray(text).toUtf8();
}

void logEntry(const HidDeviceEntry &entry)
{
    Log(LogLevel::Info, TransportText::ScanPath, entry.path.c_str());
    Log(LogLevel::Info, TransportText::ScanVendorId, entry.vendorId);
    Log(LogLevel::Info, TransportText::ScanProductId, entry.productId);
    Log(LogLevel::Info, TransportText::ScanSerialNumber, qUtf8Printable(entry.serialNumber));
    Log(LogLevel::Info, TransportText::ScanReleaseNumber, entry.releaseNumber);
    Log(LogLevel::Info, TransportText::ScanManufacturer, qUtf8Printable(entry.manufacturer));
    Log(LogLevel::Info, TransportText::ScanProduct, qUtf8Printable(entry.product));
    Log(LogLevel::Info, TransportText::ScanUsagePage, entry.usagePage);
    Log(LogLevel::Info, TransportText::ScanInterfaceNumber, entry.interfaceNumber);
    Log(LogLevel::Info, TransportText::ScanBusType, entry.busType);
    Log(LogLevel::Info, TransportText::ScanCandidate, entry.path.c_str());
}

} // namespace

HIDTransfer::HIDTransfer(Clock clock, QObject *parent)
    : ITransfer(parent)
    , mClock(clock ? std::move(clock) : steadyMilliseconds)
    , mDumpReports(SystemSettings::printBufEnable())
{
    scan();
}

HIDTransfer::~HIDTransfer()
{
    HIDTransfer::close();
}

void HIDTransfer::setDevicePath(const QString &path)
{
    if (path.isEmpty())
        return;
    mManualPath = path.toStdString();
    if (mpDevice != nullptr && mOpenPath != mManualPath)
        HIDTransfer::close(); // else a panel that is already open would keep the new path from being used
}

bool HIDTransfer::Init()
{
    const int result = hid_init();
    if (result != 0)
        Log(LogLevel::Error, TransportText::InitFailed, result);
    return result == 0;
}

bool HIDTransfer::uninitialise()
{
    close();
    hid_exit();
    return true;
}

std::string HIDTransfer::scanDevicePath()
{
    return scan();
}

std::string HIDTransfer::scan()
{
    Log(LogLevel::Info, TransportText::ScanStart);
    const QVector<HidDeviceEntry> entries = listPanelCollections();
    for (const HidDeviceEntry &entry : entries) {
        logEntry(entry);
        if (namesPanelCollection(entry.path))
            break; // the panel; what is listed behind it is not looked at
    }
    mScannedPath = pickPanelPath(entries);
    if (mScannedPath.empty())
        Log(LogLevel::Info, TransportText::ScanEnd);
    else
        Log(LogLevel::Info, TransportText::ScanFound, mScannedPath.c_str());
    return mScannedPath;
}

std::string HIDTransfer::pathToOpen()
{
    if (!mManualPath.empty()) {
        Log(LogLevel::Info, TransportText::OpenByHand, mManualPath.c_str());
        return mManualPath;
    }
    std::string path = scan();
    Log(LogLevel::Info, TransportText::OpenByScan, path.c_str());
    return path;
}

bool HIDTransfer::tryOpen()
{
    const std::string path = pathToOpen();
    mpDevice = hid_open_path(path.c_str());
    const bool opened = mpDevice != nullptr;
    mLastOutcome = OpenOutcome{path, opened};
    if (!opened) {
        Log(LogLevel::Error, TransportText::OpenFailed, path.c_str());
        mFailedAt = mClock();
        return false;
    }
    Log(LogLevel::Info, TransportText::OpenOk, path.c_str());
    mOpenPath = path;
    mProven = false;
    ++mOpenCount;
    return true;
}

bool HIDTransfer::open()
{
    if (mpDevice != nullptr)
        return true;
    if (mErrorLogging)
        return tryOpen();
    HeldLog held; // while only polling: the lines of an attempt that ends like the one before are dropped
    const std::optional<OpenOutcome> before = mLastOutcome;
    const bool opened = tryOpen();
    if (mLastOutcome != before)
        held.release();
    return opened;
}

bool HIDTransfer::close()
{
    if (mpDevice != nullptr) {
        hid_close(mpDevice);
        mpDevice = nullptr;
        ++mOpenCount;
    }
    return true;
}

void HIDTransfer::setConnected(bool connected)
{
    if (mConnected == connected)
        return;
    if (!connected)
        Log(LogLevel::Error, TransportText::SendDisconnected);
    mConnected = connected;
    emit connectState(connected);
}

bool HIDTransfer::Send(int blockIndex, const quint8 *bytes, int length)
{
    const bool opened = open();
    setConnected(opened);
    if (!opened)
        return false;
    const auto count = static_cast<size_t>(std::clamp(length, 0, ReportSize));
    if (mDumpReports)
        Log(LogLevel::Info, "%s", hexDump(bytes, static_cast<int>(count)).constData());
    std::array<quint8, ReportSize> report{};
    std::memcpy(report.data(), bytes, count);
    return finishWrite(blockIndex, hid_write(mpDevice, report.data(), report.size()));
}

bool HIDTransfer::finishWrite(int blockIndex, int result)
{
    if (result < ReportSize) {
        if (result < 0)
            Log(LogLevel::Error, TransportText::SendFailed, lastError(mpDevice).constData());
        else
            Log(LogLevel::Error, TransportText::SendShort, result);
        closeBrokenLink();
        return false;
    }
    mProven = true;
    mFailedAt.reset();
    Log(LogLevel::Info, TransportText::SendOk, blockIndex, result);
    return true;
}

void HIDTransfer::closeBrokenLink()
{
    // A handle that never worked is as good as none: without the pause, a device that opens but cannot be
    // read would be enumerated and opened over and over.
    if (!mProven)
        mFailedAt = mClock();
    close();
}

bool HIDTransfer::openForRecv()
{
    if (mpDevice != nullptr)
        return true;
    if (!mErrorLogging && msToNextOpen() > 0)
        return false;
    return open();
}

int HIDTransfer::Recv(quint8 *destination, int timeoutMs)
{
    if (!openForRecv()) {
        if (mErrorLogging)
            Log(LogLevel::Error, TransportText::ReceiveNotOpen);
        return -1;
    }
    std::array<quint8, ReportSize> report{};
    const int result = hid_read_timeout(mpDevice, report.data(), report.size(), timeoutMs);
    if (result < 0) {
        if (mErrorLogging)
            Log(LogLevel::Error, TransportText::ReceiveFailed, lastError(mpDevice).constData());
        closeBrokenLink();
        return -1;
    }
    mProven = true;
    mFailedAt.reset();
    if (result > 0)
        std::copy(report.begin(), report.end(), destination);
    return result;
}

int HIDTransfer::reportSize() const
{
    return ReportSize;
}

QString HIDTransfer::scannedPath() const
{
    return QString::fromStdString(mScannedPath);
}

void HIDTransfer::setErrorLogging(bool on)
{
    mErrorLogging = on;
}

int HIDTransfer::openCount() const
{
    return mOpenCount;
}

bool HIDTransfer::isOpen() const
{
    return mpDevice != nullptr;
}

int HIDTransfer::msToNextOpen() const
{
    if (mpDevice != nullptr || !mFailedAt)
        return 0;
    return static_cast<int>(std::clamp<qint64>(*mFailedAt + RetryPeriod - mClock(), 0, RetryPeriod));
}

} // namespace vorlindesk
