/// The transport of 64-byte reports between host and panel.
#pragma once

#include <QObject>
#include <QString>
#include <string>

namespace vorlindesk {

/// Used from the protocol thread only, except where said otherwise.
class ITransfer : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    /// Takes @p path as set by hand; an empty one leaves the stored path unchanged.
    virtual void setDevicePath(const QString &path) = 0;
    virtual bool Init() = 0;
    virtual bool uninitialise() = 0;
    /// Writes @p length (at most 64) bytes as one report. @p blockIndex shows only in the log.
    virtual bool Send(int blockIndex, const quint8 *bytes, int length) = 0;
    /// Reads one report into @p destination (64 bytes). @return bytes read, 0 for a time-out, -1 for an
    /// error.
    virtual int Recv(quint8 *destination, int timeoutMs) = 0;
    /// @return the path of the panel's vendor collection, or an empty string.
    virtual std::string scanDevicePath() = 0;
    virtual int reportSize() const = 0;      ///< 64
    virtual QString scannedPath() const = 0; ///< found by the last scan
    virtual bool open() = 0;
    virtual bool close() = 0;

    /// While off, a missing panel is not reported again and again: the lines of scan and open are written
    /// only when their outcome changes, and reads try to open at most every 500 ms.
    virtual void setErrorLogging(bool on) = 0;
    /// Counts how often a handle was opened and closed; a reader that sees it change knows that the link
    /// broke.
    virtual int openCount() const = 0;
    virtual bool isOpen() const = 0;
    /// @return ms until a read that only polls will try to open again, 0 to 500; 0 = it would try at once.
    virtual int msToNextOpen() const = 0;

signals:
    void connectState(bool isConnect);
};

} // namespace vorlindesk
