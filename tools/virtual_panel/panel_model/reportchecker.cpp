#include "reportchecker.h"

#include "paneljournal.h"
#include "wire/applicationmessage.h"

#include <QtEndian>
#include <algorithm>
#include <utility>

namespace Out = ReportFrame::Out;

static quint8 byteAt(const QByteArray &bytes, int offset)
{
    return static_cast<quint8>(bytes.at(offset));
}

static int wordAt(const QByteArray &bytes, int offset)
{
    return qFromLittleEndian<quint16>(bytes.constData() + offset);
}

ReportChecker::ReportChecker(PanelJournal &journal)
    : mJournal(journal)
{}

std::optional<HostMessage> ReportChecker::take(const QByteArray &report)
{
    if (!frameHolds(report))
        return std::nullopt;
    const int length = wordAt(report, Out::LengthOffset);
    checkPayload(report, length);
    const QByteArray payload = report.mid(Out::PayloadOffset, length);
    const auto flag = static_cast<ReportFrame::Block>(byteAt(report, Out::FlagOffset));
    return flag == ReportFrame::Block::Whole ? takeWhole(payload) : takeBlock(flag, payload);
}

void ReportChecker::reset()
{
    mPartial.clear();
    mReports = 0;
}

bool ReportChecker::frameHolds(const QByteArray &report)
{
    QString fault;
    if (report.size() != ReportFrame::Size)
        fault = QStringLiteral("%1 bytes instead of 64").arg(report.size());
    else if (byteAt(report, Out::ReportIdOffset) != Out::ReportId)
        fault = QStringLiteral("report id 0x%1")
                    .arg(byteAt(report, Out::ReportIdOffset), 2, 16, QLatin1Char('0'));
    else if (byteAt(report, Out::MarkerOffset) != Out::Marker)
        fault = QStringLiteral("frame marker 0x%1")
                    .arg(byteAt(report, Out::MarkerOffset), 2, 16, QLatin1Char('0'));
    else if (wordAt(report, Out::ConstantOffset) != Out::Constant)
        fault = QStringLiteral("bytes 3 and 4 are not 0x0002");
    else if (byteAt(report, Out::FlagOffset) > static_cast<quint8>(ReportFrame::Block::Last))
        fault = QStringLiteral("block flag %1").arg(byteAt(report, Out::FlagOffset));
    else if (wordAt(report, Out::LengthOffset) > Out::MaxPayload)
        fault = QStringLiteral("payload length %1").arg(wordAt(report, Out::LengthOffset));
    if (!fault.isEmpty())
        mJournal.violation(fault);
    return fault.isEmpty();
}

void ReportChecker::checkPayload(const QByteArray &report, int length)
{
    const auto behind = report.cbegin() + Out::PayloadOffset + length;
    if (std::any_of(behind, report.cend(), [](char byte) { return byte != 0; }))
        mJournal.violation(QStringLiteral("bytes behind the payload are not zero"));
    const auto flag = static_cast<ReportFrame::Block>(byteAt(report, Out::FlagOffset));
    if (flag == ReportFrame::Block::More && length != Out::MaxPayload)
        mJournal.violation(
            QStringLiteral("a block that is not the last has %1 bytes instead of 57").arg(length));
    if (length == 0)
        mJournal.violation(QStringLiteral("empty payload"));
}

std::optional<HostMessage> ReportChecker::takeWhole(const QByteArray &payload)
{
    if (!mPartial.isEmpty()) {
        mJournal.violation(QStringLiteral("a new message in the middle of another"));
        reset();
    }
    return HostMessage{payload, 1, ReportFrame::Block::Whole};
}

std::optional<HostMessage> ReportChecker::takeBlock(ReportFrame::Block flag, const QByteArray &payload)
{
    if (mPartial.size() + payload.size() > ApplicationMessage::MaxSize) {
        mJournal.violation(QStringLiteral("a message over 10 MiB"));
        reset();
        return std::nullopt;
    }
    mPartial += payload;
    ++mReports;
    if (flag == ReportFrame::Block::More)
        return std::nullopt;
    if (isGivenUp(payload)) {
        mJournal.event(QStringLiteral("message given up after %1 reports").arg(mReports - 1));
        reset();
        return std::nullopt;
    }
    HostMessage message{std::exchange(mPartial, {}), mReports, flag};
    reset();
    return message;
}

/// The host gives a message up by closing it with a block of a single zero byte, so that it ends before the
/// length that it has announced. Only that is no fault: a message cut short in any other way is one.
bool ReportChecker::isGivenUp(const QByteArray &lastPayload) const
{
    if (mReports < 2 || lastPayload != QByteArray(1, '\0'))
        return false;
    const auto announced =
        qFromLittleEndian<quint32>(mPartial.constData() + ApplicationMessage::LengthOffset);
    return announced > quint32(mPartial.size() - ApplicationMessage::BodyOffset);
}
