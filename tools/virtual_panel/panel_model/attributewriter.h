/// Takes key attributes into the panel's state.
#pragma once

#include "panelstate.h"

class PanelJournal;

/// Setting the function of a key that has none creates it with the defaults. On a key that has one it changes
/// the function alone: its other attributes stay until the host sends them. Attributes of a key without
/// function are dropped, with an event.
class AttributeWriter
{
public:
    AttributeWriter(PanelState &state, PanelJournal &journal);

    /// @p value must have passed AttributeRules::valueFault().
    void write(const PanelKeyId &id, int attributeId, const QByteArray &value);

private:
    void setFunction(const PanelKeyId &id, quint8 functionId);
    void clearKey(const PanelKeyId &id);

    PanelState &mState;
    PanelJournal &mJournal;
};
