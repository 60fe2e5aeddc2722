#include "messagedispatcher.h"

#include "attributerules.h"
#include "configfile.h"
#include "configreply.h"
#include "layoutrules.h"
#include "messagerules.h"
#include "model/keyid.h"
#include "outbox.h"
#include "paneljournal.h"

namespace {

constexpr quint8 QueryValue = 0xFF; // as a system type: tell, do not set

quint8 byteAt(const QByteArray &bytes, int offset)
{
    return static_cast<quint8>(bytes.at(offset));
}

QByteArray versionReply(FunctionCode code, const QString &version)
{
    return ApplicationMessage::plain(code, version.toUtf8());
}

} // namespace

MessageDispatcher::MessageDispatcher(PanelState &state, PanelJournal &journal, Outbox &outbox,
                                     const PanelFaults &faults)
    : mState(state)
    , mJournal(journal)
    , mOutbox(outbox)
    , mAttributes(state, journal)
    , mUpgrade(state, journal, outbox, faults)
{}

void MessageDispatcher::dispatch(const QByteArray &message)
{
    if (message.isEmpty())
        return;
    const QString fault = MessageRules::lengthFault(message);
    if (!fault.isEmpty())
        return mJournal.violation(fault);
    const auto code = static_cast<FunctionCode>(message.at(0));
    switch (code) {
    case FunctionCode::MD_FUNCTION_CODE_HARDWARE_VERSION:
        return mOutbox.addMessage(versionReply(code, mState.hardwareVersion));
    case FunctionCode::MD_FUNCTION_CODE_SOFTWARE_VERSION:
        return mOutbox.addMessage(versionReply(code, mState.softwareVersion));
    case FunctionCode::MD_FUNCTION_CODE_READ_CONFIGFILE:
        mJournal.event(QStringLiteral("configuration read"));
        return sendConfiguration(mState, mOutbox);
    case FunctionCode::MD_FUNCTION_CODE_HOME_LAYOUT:
        if (message.size() == 1)
            return mOutbox.addMessage(ApplicationMessage::plain(code, HomeLayout::encode(mState.home)));
        break;
    default:
        break;
    }
    takeBody(code, message.mid(ApplicationMessage::BodyOffset));
}

void MessageDispatcher::takeBody(FunctionCode code, const QByteArray &body)
{
    switch (code) {
    case FunctionCode::MD_FUNCTION_CODE_KEY_ATTRIBUTE:
        return takeAttribute(body);
    case FunctionCode::MD_FUNCTION_CODE_CONFIGFILE:
        return takeConfigFile(body);
    case FunctionCode::UpgradeChannel:
        return mUpgrade.take(body);
    case FunctionCode::MD_FUNCTION_CODE_SELECT_PAGE:
        return takePage(body);
    case FunctionCode::MD_FUNCTION_CODE_CUSTOMLAYOUT_SET:
        return takeCustomLayout(body);
    case FunctionCode::MD_FUNCTION_CODE_CUSTOMLAYOUT_DEL:
        return deleteCustomLayout(body);
    case FunctionCode::MD_FUNCTION_CODE_DEL_CONFIGFILE:
        return deleteConfiguration(body);
    case FunctionCode::MD_FUNCTION_CODE_LCD_LIGHT:
        return takeBrightness(body);
    case FunctionCode::MD_FUNCTION_CODE_HOME_LAYOUT:
        return takeHomeLayout(body);
    case FunctionCode::MD_FUNCTION_CODE_SYSTEM_TYPE:
        return takeSystemType(body);
    default:
        mJournal.violation(
            QStringLiteral("function code 0x%1").arg(static_cast<quint8>(code), 2, 16, QLatin1Char('0')));
    }
}

void MessageDispatcher::takeAttribute(const QByteArray &body)
{
    if (body.size() < ApplicationMessage::KeyIdsSize)
        return mJournal.violation(QStringLiteral("the four ids of a key attribute are cut short"));
    const PanelKeyId id{byteAt(body, 0), byteAt(body, 1), byteAt(body, 2)};
    const int attributeId = byteAt(body, 3);
    const QByteArray value = body.mid(ApplicationMessage::KeyIdsSize);
    QString fault = AttributeRules::placeFault(id);
    if (fault.isEmpty())
        fault = AttributeRules::valueFault(mState, id, attributeId, value);
    if (fault.isEmpty())
        return mAttributes.write(id, attributeId, value);
    mJournal.violation(QStringLiteral("attribute %1 of key %2/%3/%4: %5")
                           .arg(attributeId)
                           .arg(id.layout)
                           .arg(id.page)
                           .arg(id.key)
                           .arg(fault));
}

void MessageDispatcher::takePage(const QByteArray &body)
{
    if (!bodyHas(body, 2))
        return;
    const PanelKeyId place{byteAt(body, 0), byteAt(body, 1), vorlinmodel::FirstKeyId};
    const QString fault = AttributeRules::placeFault(place);
    if (!fault.isEmpty())
        return mJournal.violation(fault);
    mState.layout = place.layout;
    mState.page = place.page;
    mJournal.event(QStringLiteral("page %1/%2 selected").arg(place.layout).arg(place.page));
}

void MessageDispatcher::takeCustomLayout(const QByteArray &body)
{
    const QString fault = LayoutRules::customLayoutFault(body);
    if (!fault.isEmpty())
        return mJournal.violation(fault);
    const auto record = CustomLayoutRecord::decode(body);
    mState.layouts.insert(record->layoutNumber, *record);
    mJournal.event(QStringLiteral("layout %1 of %2 keys").arg(record->layoutNumber).arg(record->keys.size()));
}

void MessageDispatcher::deleteCustomLayout(const QByteArray &body)
{
    if (!bodyHas(body, 1))
        return;
    const int layout = byteAt(body, 0);
    mState.layouts.remove(layout);
    if (mState.layout == layout && layout != StandardLayout) {
        mState.layout = StandardLayout;
        mState.page = 1;
    }
    mJournal.event(QStringLiteral("layout %1 deleted").arg(layout));
}

void MessageDispatcher::deleteConfiguration(const QByteArray &body)
{
    if (!bodyHas(body, 1))
        return;
    if (byteAt(body, 0) != DeleteConfigMark)
        return mJournal.violation(QStringLiteral("a deletion of the configuration without its mark"));
    mState.keys.clear();
    mJournal.event(QStringLiteral("configuration deleted"));
}

void MessageDispatcher::takeBrightness(const QByteArray &body)
{
    constexpr quint8 set = 0;
    constexpr quint8 query = 1;
    if (!bodyHas(body, 2))
        return;
    const quint8 operation = byteAt(body, 0);
    if (operation == query) {
        if (byteAt(body, 1) != 0)
            mJournal.violation(QStringLiteral("a brightness query with a value"));
        QByteArray reply = body;
        reply[1] = static_cast<char>(mState.brightness);
        return mOutbox.addMessage(ApplicationMessage::plain(FunctionCode::MD_FUNCTION_CODE_LCD_LIGHT, reply));
    }
    if (operation != set || byteAt(body, 1) == QueryValue)
        return mJournal.violation(
            QStringLiteral("brightness operation %1, value %2").arg(operation).arg(byteAt(body, 1)));
    mState.brightness = byteAt(body, 1);
    mJournal.event(QStringLiteral("brightness %1").arg(mState.brightness));
}

void MessageDispatcher::takeHomeLayout(const QByteArray &body)
{
    const QString fault = LayoutRules::homeLayoutFault(body);
    if (!fault.isEmpty())
        return mJournal.violation(fault);
    mState.home = *HomeLayout::decode(body);
    mJournal.event(QStringLiteral("home layout %1, %2 entries")
                       .arg(mState.home.layoutId)
                       .arg(mState.home.entries.size()));
}

void MessageDispatcher::takeSystemType(const QByteArray &body)
{
    if (!bodyHas(body, 1))
        return;
    if (byteAt(body, 0) != QueryValue) {
        mState.systemType = byteAt(body, 0);
        mJournal.event(QStringLiteral("system type %1").arg(mState.systemType));
    }
    const QByteArray reply(1, static_cast<char>(mState.systemType));
    mOutbox.addMessage(ApplicationMessage::plain(FunctionCode::MD_FUNCTION_CODE_SYSTEM_TYPE, reply));
}

void MessageDispatcher::takeConfigFile(const QByteArray &body)
{
    mState.configFile = body;
    mJournal.event(QStringLiteral("configuration file of %1 bytes").arg(body.size()));
    if (!ConfigFile::isOne(body)) // another panel's: it is kept, and of no use
        return;
    const auto keys = ConfigFile::read(body);
    if (!keys)
        return mJournal.violation(QStringLiteral("a configuration file that is damaged"));
    ConfigFile::takeOver(*keys, mState);
    mJournal.event(QStringLiteral("configuration of %1 keys taken over").arg(keys->keys.size()));
}

bool MessageDispatcher::bodyHas(const QByteArray &body, int size)
{
    if (body.size() != size)
        mJournal.violation(QStringLiteral("body of %1 bytes instead of %2").arg(body.size()).arg(size));
    return body.size() == size;
}
