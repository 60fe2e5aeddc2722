#include "keyactions.h"

#include "configreply.h"
#include "model/functionids.h"
#include "model/keyid.h"
#include "outbox.h"
#include "paneljournal.h"
#include "wire/actionlist.h"
#include "wire/applicationmessage.h"
#include "wire/keynames.h"

#include <array>

using namespace vorlinmodel;

QString mediaKeyName(int functionId)
{
    constexpr int first = 5;
    static constexpr std::array<const char *, 10> names{
        "Play/Pause",      "Volume Up", "Volume Down",  "Mute",          "Scan Previous Track",
        "Scan Next Track", "Page Back", "Page Forward", "Brightness Up", "Brightness Down"};
    const int index = functionId - first;
    if (index < 0 || index >= static_cast<int>(names.size()))
        return {};
    return QLatin1String(names[static_cast<size_t>(index)]);
}

KeyActions::KeyActions(PanelState &state, PanelJournal &journal, Outbox &outbox)
    : mState(state)
    , mJournal(journal)
    , mOutbox(outbox)
{}

bool KeyActions::press(int key)
{
    if (key < FirstKeyId || key > LastKeyId)
        return false;
    const PanelKeyId id{mState.layout, mState.page, key};
    mJournal.event(QStringLiteral("key %1/%2/%3 pressed").arg(id.layout).arg(id.page).arg(id.key));
    constexpr quint32 noAttribute = 0; // 15 would be an action list
    mOutbox.addKeyEvent(ApplicationMessage::keyAddressed(static_cast<quint32>(id.layout),
                                                         static_cast<quint32>(id.page),
                                                         static_cast<quint32>(key), noAttribute, {}));
    const auto found = mState.keys.find(id);
    if (found == mState.keys.end())
        return true;
    if (found->record.displayMode == SelfLocking)
        found->latched = !found->latched;
    act(id, *found);
    return true;
}

void KeyActions::act(const PanelKeyId &id, const PanelKey &key)
{
    const int functionId = key.record.functionId;
    switch (functionId) {
    case MULTIPLE_ACTIONS_FID:
        runOnPanel(key.actions);
        return runNow(id, key.actions);
    case KEY_COMBINATION_FID:
        return pressCombination(key.content);
    case CHILDREN_PAGE_FID:
        return openChildPage(id.key);
    case RETURN_MAIN_FID:
        return returnToMainPage();
    default:
        break;
    }
    const QString media = mediaKeyName(functionId);
    if (!media.isEmpty())
        mJournal.event(QStringLiteral("to the computer: %1").arg(media));
}

void KeyActions::runNow(const PanelKeyId &id, const QByteArray &list)
{
    if (ActionList::decode(list).isEmpty())
        return;
    mOutbox.addBlocks(ApplicationMessage::keyAddressed(static_cast<quint32>(id.layout),
                                                       static_cast<quint32>(id.page),
                                                       static_cast<quint32>(id.key), RunNowAttribute, list));
}

void KeyActions::openChildPage(int key)
{
    int layout = mState.layout;
    int page = key + 1; // unless the home layout leads elsewhere
    for (const HomeLayout::Entry &entry : mState.home.entries) {
        if (entry.keyId != key || entry.pageId < 1)
            continue;
        page = entry.pageId;
        if (entry.layoutId > 0)
            layout = entry.layoutId;
    }
    mState.mainLayout = mState.layout;
    mState.layout = layout;
    mState.page = page;
    mJournal.event(QStringLiteral("child page %1/%2").arg(layout).arg(page));
}

void KeyActions::returnToMainPage()
{
    mState.layout = mState.mainLayout;
    mState.page = 1;
    mJournal.event(QStringLiteral("back to page %1/1").arg(mState.layout));
}

void KeyActions::pressCombination(const QByteArray &codes)
{
    QStringList names;
    for (const char code : codes.left(4))
        if (code != 0)
            names << KeyNames::name(static_cast<quint8>(code));
    mJournal.event(QStringLiteral("to the computer: %1").arg(names.join(QStringLiteral(" + "))));
}

/// The steps that the host does not do.
void KeyActions::runOnPanel(const QByteArray &list)
{
    for (const ActionList::Action &action : ActionList::decode(list)) {
        if (action.functionId == KEY_COMBINATION_FID)
            pressCombination(keyCombinationCodes(action.text));
        else if (action.functionId == TIME_DELAY_FID)
            mJournal.event(QStringLiteral("delay of %1 ms").arg(action.delay));
        else if (!mediaKeyName(action.functionId).isEmpty())
            mJournal.event(QStringLiteral("to the computer: %1").arg(mediaKeyName(action.functionId)));
    }
}
