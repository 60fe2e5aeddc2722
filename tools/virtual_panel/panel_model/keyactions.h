/// What a press on a key does on the panel.
#pragma once

#include "panelstate.h"

#include <QString>

class Outbox;
class PanelJournal;

/// Every press is reported to the host. Beyond that the panel itself turns pages and works as a keyboard:
/// what it would send to the computer under functions 5 to 14 and 16 is noted as an event. A multi-action key
/// hands its list to the host to run.
class KeyActions
{
public:
    KeyActions(PanelState &state, PanelJournal &journal, Outbox &outbox);

    /// Presses key @p key of the page in view. @return false when it is not a key of the panel.
    bool press(int key);

    /// Hands an action list (u16 length and entries) to the host, to be run at once.
    void runNow(const PanelKeyId &id, const QByteArray &list);

private:
    void act(const PanelKeyId &id, const PanelKey &key);
    void openChildPage(int key);
    void returnToMainPage();
    void pressCombination(const QByteArray &codes);
    void runOnPanel(const QByteArray &list);

    PanelState &mState;
    PanelJournal &mJournal;
    Outbox &mOutbox;
};

/// What the panel sends to the computer as a keyboard for functions 5 to 14; empty for all others.
QString mediaKeyName(int functionId);
