/// Carries out the messages of the host.
#pragma once

#include "attributewriter.h"
#include "panelupgrade.h"
#include "wire/applicationmessage.h"

#include <QByteArray>

class Outbox;
class PanelJournal;
struct PanelFaults;

class MessageDispatcher
{
public:
    MessageDispatcher(PanelState &state, PanelJournal &journal, Outbox &outbox, const PanelFaults &faults);

    /// Checks and carries out one whole message. One whose length field is wrong is noted and dropped.
    void dispatch(const QByteArray &message);

    PanelUpgrade &upgrade() { return mUpgrade; }

private:
    void takeBody(FunctionCode code, const QByteArray &body);
    void takeAttribute(const QByteArray &body);
    void takePage(const QByteArray &body);
    void takeCustomLayout(const QByteArray &body);
    void deleteCustomLayout(const QByteArray &body);
    void deleteConfiguration(const QByteArray &body);
    void takeBrightness(const QByteArray &body);
    void takeHomeLayout(const QByteArray &body);
    void takeSystemType(const QByteArray &body);
    void takeConfigFile(const QByteArray &body);
    bool bodyHas(const QByteArray &body, int size);

    PanelState &mState;
    PanelJournal &mJournal;
    Outbox &mOutbox;
    AttributeWriter mAttributes;
    PanelUpgrade mUpgrade;
};
