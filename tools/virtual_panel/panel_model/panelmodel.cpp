#include "panelmodel.h"

#include "attributerules.h"
#include "messagerules.h"
#include "model/keyid.h"

#include <utility>

PanelModel::PanelModel() = default;

void PanelModel::receive(const QByteArray &report)
{
    mJournal.beginReport(report);
    if (const auto message = mChecker.take(report)) {
        const QString fault = MessageRules::blockFault(*message);
        if (!fault.isEmpty())
            mJournal.violation(fault);
        mDispatcher.dispatch(message->bytes);
        if (mFaults.silent)
            mOutbox.clear();
    }
    countDown();
    changed();
}

QList<QByteArray> PanelModel::takeOutgoing()
{
    return mOutbox.takeKeyEvents() + mOutbox.takeMessages();
}

QList<QByteArray> PanelModel::takeKeyEvents()
{
    return mOutbox.takeKeyEvents();
}

void PanelModel::resetLink()
{
    mChecker.reset();
    mOutbox.clear();
    mDispatcher.upgrade().reset();
    changed();
}

bool PanelModel::pressKey(int key)
{
    const bool pressed = mActions.press(key);
    changed();
    return pressed;
}

bool PanelModel::selectPage(int layout, int page)
{
    if (!AttributeRules::placeFault({layout, page, vorlinmodel::FirstKeyId}).isEmpty())
        return false;
    mState.layout = layout;
    mState.page = page;
    mJournal.event(QStringLiteral("page %1/%2 shown").arg(layout).arg(page));
    changed();
    return true;
}

void PanelModel::sendRunNow(const PanelKeyId &id, const QVector<ActionList::Action> &actions)
{
    mActions.runNow(id, ActionList::encode(actions).value);
    changed();
}

void PanelModel::setState(const PanelState &state)
{
    mState = state;
    changed();
}

void PanelModel::clearJournal()
{
    mJournal.clear();
    changed();
}

void PanelModel::noteViolation(const QString &text)
{
    mJournal.violation(text);
    changed();
}

void PanelModel::noteEvent(const QString &text)
{
    mJournal.event(text);
    changed();
}

bool PanelModel::awaitsPausedBlock() const
{
    return !mChecker.partial().isEmpty() && MessageRules::needsPauses(mChecker.partial());
}

bool PanelModel::takeUnplug()
{
    return std::exchange(mUnplugDue, false);
}

void PanelModel::countDown()
{
    if (mFaults.unplugAfter < 0 || --mFaults.unplugAfter > 0)
        return;
    mFaults.unplugAfter = -1;
    mUnplugDue = true;
}

void PanelModel::changed()
{
    if (mChanged)
        mChanged();
}
