/// Checks the frame of every report from the host and puts messages together.
#pragma once

#include "wire/reportframe.h"

#include <QByteArray>
#include <QString>
#include <optional>

class PanelJournal;

/// A message as it came, with how it was cut.
struct HostMessage
{
    QByteArray bytes;
    int reports = 0;
    ReportFrame::Block lastFlag = ReportFrame::Block::Whole;
};

class ReportChecker
{
public:
    explicit ReportChecker(PanelJournal &journal);

    /// Takes one report. A broken frame is noted and dropped; a smaller fault is noted and the payload used.
    /// A message that the host gives up, see isGivenUp(), is dropped with an event.
    /// @return the message that the report completed.
    std::optional<HostMessage> take(const QByteArray &report);

    /// Forgets a message that is not complete.
    void reset();

    /// The bytes of the message under way; empty between messages.
    const QByteArray &partial() const { return mPartial; }

private:
    bool frameHolds(const QByteArray &report);
    void checkPayload(const QByteArray &report, int length);
    std::optional<HostMessage> takeWhole(const QByteArray &payload);
    std::optional<HostMessage> takeBlock(ReportFrame::Block flag, const QByteArray &payload);
    bool isGivenUp(const QByteArray &lastPayload) const;

    PanelJournal &mJournal;
    QByteArray mPartial;
    int mReports = 0;
};
