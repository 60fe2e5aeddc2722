#include "outbox.h"

#include "wire/reportframe.h"

#include <algorithm>
#include <utility>

static QByteArray framed(ReportFrame::Block flag, const QByteArray &payload)
{
    ReportFrame::Report report{};
    ReportFrame::encodeIncoming(flag, reinterpret_cast<const quint8 *>(payload.constData()), payload.size(),
                                report);
    return QByteArray(reinterpret_cast<const char *>(report.data()), ReportFrame::Size);
}

void Outbox::addMessage(const QByteArray &message)
{
    if (message.size() <= ReportFrame::In::MaxPayload)
        mMessages << framed(ReportFrame::Block::Whole, message);
    else
        addBlocks(message);
}

void Outbox::addBlocks(const QByteArray &message)
{
    constexpr int block = ReportFrame::In::MaxPayload;
    for (int offset = 0; offset < message.size(); offset += block) {
        const bool last = offset + block >= message.size();
        mMessages << framed(last ? ReportFrame::Block::Last : ReportFrame::Block::More,
                            message.mid(offset, block));
    }
}

void Outbox::addKeyEvent(const QByteArray &message)
{
    mKeyEvents << framed(ReportFrame::Block::Whole, message);
}

QList<QByteArray> Outbox::takeKeyEvents()
{
    return std::exchange(mKeyEvents, {});
}

QList<QByteArray> Outbox::takeMessages()
{
    return std::exchange(mMessages, {});
}

void Outbox::clear()
{
    mKeyEvents.clear();
    mMessages.clear();
}
