#include "paneljournal.h"

void PanelJournal::beginReport(const QByteArray &report)
{
    mReport = report;
    ++mReportCount;
}

void PanelJournal::violation(const QString &text)
{
    mViolations << QStringLiteral("report %1: %2 | %3")
                       .arg(mReportCount)
                       .arg(text, QString::fromLatin1(mReport.toHex(' ')));
    event(QLatin1String(ViolationPrefix) + text);
}

void PanelJournal::event(const QString &text)
{
    ++mEventCount;
    mEvents << text;
    if (mEvents.size() > MaxEvents)
        mEvents.removeFirst();
}

void PanelJournal::clear()
{
    mViolations.clear();
    mEvents.clear();
}
