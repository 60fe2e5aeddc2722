/// The panel's side of the upgrade channel: firmware and uploaded files.
#pragma once

#include "panelstate.h"

#include <QByteArray>

class Outbox;
class PanelJournal;
struct PanelFaults;

/// Firmware comes in four steps: request, erase, data, status. A step out of its place is a violation, and is
/// answered all the same, so that the host is not left waiting.
class PanelUpgrade
{
public:
    PanelUpgrade(PanelState &state, PanelJournal &journal, Outbox &outbox, const PanelFaults &faults);

    /// Takes the body of an upgrade message: subcode and data.
    void take(const QByteArray &body);

    /// Back to the start, as after unplugging. An erased slot stays erased.
    void reset();

    /// @return true once after firmware was taken: the panel restarts.
    bool takeRestart();

private:
    enum class Step { Idle, Requested, Erased, Received };

    void expect(Step wanted, const char *message);
    void takeRequest(const QByteArray &data);
    void takeErase(const QByteArray &data);
    void takeData(const QByteArray &data);
    void takeStatus(const QByteArray &data);
    void takeFile(const QByteArray &data);

    PanelState &mState;
    PanelJournal &mJournal;
    Outbox &mOutbox;
    const PanelFaults &mFaults;
    Step mStep = Step::Idle;
    QByteArray mReceived;
    bool mRestart = false;
};
