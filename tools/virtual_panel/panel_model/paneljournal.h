/// What the panel notes down: rules that the host broke, and what happened.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Not thread-safe; belongs to one PanelModel.
class PanelJournal
{
public:
    static constexpr int MaxEvents = 1000;                   ///< older ones are dropped
    static constexpr char ViolationPrefix[] = "violation: "; ///< of the event that each violation is too

    /// Numbers the report that is worked on, from 1; violations name it.
    void beginReport(const QByteArray &report);
    int reportCount() const { return mReportCount; }

    /// Notes "report 7: text | 03 02 ...", and an event.
    void violation(const QString &text);
    void event(const QString &text);

    const QStringList &violations() const { return mViolations; }
    const QStringList &events() const { return mEvents; }
    int eventCount() const { return mEventCount; } ///< all that ever were, dropped ones included
    void clear();

private:
    QByteArray mReport;
    int mReportCount = 0;
    int mEventCount = 0;
    QStringList mViolations;
    QStringList mEvents;
};
