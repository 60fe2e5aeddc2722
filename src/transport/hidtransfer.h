/// The transport over hidapi.
#pragma once

#include "transport/itransfer.h"

#include <functional>
#include <optional>

struct hid_device_;

namespace vorlindesk {

struct HidDeviceEntry;

/// Opens the panel on demand: every Send and Recv finds it again after it was unplugged. The connect state
/// changes only in Send.
class HIDTransfer : public ITransfer
{
public:
    /// Milliseconds of a clock that never goes back.
    using Clock = std::function<qint64()>;
    static constexpr int RetryPeriod =
        500; ///< ms between two tries of reads to open a panel that is not there

    explicit HIDTransfer(Clock clock = {}, QObject *parent = nullptr);
    ~HIDTransfer() override; ///< closes the handle

    void setDevicePath(const QString &path) override;
    bool Init() override;
    bool uninitialise() override;
    bool Send(int blockIndex, const quint8 *bytes, int length) override;
    int Recv(quint8 *destination, int timeoutMs) override;
    std::string scanDevicePath() override;
    int reportSize() const override;
    QString scannedPath() const override;
    bool open() override;
    bool close() override;
    void setErrorLogging(bool on) override;
    int openCount() const override;
    bool isOpen() const override;
    int msToNextOpen() const override;

private:
    /// What an attempt to open came to; an equal one is not logged again while only polling.
    struct OpenOutcome
    {
        std::string path;
        bool opened = false;
        bool operator==(const OpenOutcome &) const = default;
    };

    std::string scan();
    bool tryOpen();
    bool openForRecv();
    std::string pathToOpen();
    void setConnected(bool connected);
    bool finishWrite(int blockIndex, int result);
    void closeBrokenLink();

    Clock mClock;
    hid_device_ *mpDevice = nullptr;
    bool mErrorLogging = true;
    const bool mDumpReports;
    std::string mManualPath;  ///< set by hand; empty = scan
    std::string mScannedPath; ///< of the last scan, which never touches the one set by hand
    std::string mOpenPath;
    bool mConnected = false;
    int mOpenCount = 0;
    bool mProven = false; ///< the open handle has read or written without an error
    std::optional<OpenOutcome> mLastOutcome;
    std::optional<qint64> mFailedAt; ///< of the last attempt that did not give a working handle
};

} // namespace vorlindesk
