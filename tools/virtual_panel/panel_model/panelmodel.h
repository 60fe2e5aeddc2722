/// The panel without hardware: reports in, reports out, and everything that a panel keeps.
#pragma once

#include "keyactions.h"
#include "messagedispatcher.h"
#include "outbox.h"
#include "panelfaults.h"
#include "paneljournal.h"
#include "panelstate.h"
#include "reportchecker.h"
#include "wire/actionlist.h"

#include <QByteArray>
#include <QList>
#include <QStringList>
#include <QVector>
#include <functional>

/// Not thread-safe: callers take turns. Knows neither sockets nor time; pauses between blocks are checked by
/// the link, with awaitsPausedBlock().
class PanelModel
{
public:
    PanelModel();

    /// Takes one report of the host, which should have 64 bytes. Broken rules are in violations().
    void receive(const QByteArray &report);

    /// Reports for the host, oldest first; key events that nobody took stand before the others.
    QList<QByteArray> takeOutgoing();
    /// Only the key events, which may overtake everything else.
    QList<QByteArray> takeKeyEvents();

    /// Unplugged, plugged in again, or opened anew: what is under way, both ways, is forgotten.
    void resetLink();

    /// Presses key @p key (1 to 15) of the page in view. @return false for another number.
    bool pressKey(int key);
    /// Shows another page. @return false when there is no such page.
    bool selectPage(int layout, int page);
    /// Hands @p actions to the host, to be run at once.
    void sendRunNow(const PanelKeyId &id, const QVector<ActionList::Action> &actions);

    const PanelState &state() const { return mState; }
    /// Replaces all that the panel keeps, for example by a demonstration.
    void setState(const PanelState &state);

    const QStringList &violations() const { return mJournal.violations(); }
    const PanelJournal &journal() const { return mJournal; }
    void clearJournal();
    /// Notes a violation that only the link can see.
    void noteViolation(const QString &text);
    void noteEvent(const QString &text);

    void setFaults(const PanelFaults &faults) { mFaults = faults; }
    const PanelFaults &faults() const { return mFaults; }

    /// True when the next report continues a message between whose blocks the host has to pause.
    bool awaitsPausedBlock() const;
    /// @return true once after firmware was taken: the panel goes away for about a second.
    bool takeRestart() { return mDispatcher.upgrade().takeRestart(); }
    /// @return true once when the fault "unplug after n reports" is due.
    bool takeUnplug();

    /// Called after each call that may have changed something, on the caller's thread.
    void setChangeCallback(std::function<void()> callback) { mChanged = std::move(callback); }

    PanelModel(const PanelModel &) = delete;
    PanelModel &operator=(const PanelModel &) = delete;

private:
    void changed();
    void countDown();

    PanelState mState;
    PanelFaults mFaults;
    PanelJournal mJournal;
    Outbox mOutbox;
    ReportChecker mChecker{mJournal};
    MessageDispatcher mDispatcher{mState, mJournal, mOutbox, mFaults};
    KeyActions mActions{mState, mJournal, mOutbox};
    bool mUnplugDue = false;
    std::function<void()> mChanged;
};
