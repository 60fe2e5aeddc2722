/// Reports on their way to the host.
#pragma once

#include <QByteArray>
#include <QList>

/// Cuts messages into reports. Key events are kept apart, since a press may overtake a long read-back: the
/// host takes a single report in the middle of a multi-block message.
class Outbox
{
public:
    /// One report when it fits, else blocks.
    void addMessage(const QByteArray &message);
    /// Blocks always, also a single one: the host would take a single whole report of code 1 as a key press.
    void addBlocks(const QByteArray &message);
    void addKeyEvent(const QByteArray &message);

    QList<QByteArray> takeKeyEvents();
    QList<QByteArray> takeMessages();
    void clear();

private:
    QList<QByteArray> mKeyEvents;
    QList<QByteArray> mMessages;
};
