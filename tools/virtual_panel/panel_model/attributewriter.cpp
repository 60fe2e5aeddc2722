#include "attributewriter.h"

#include "base/request.h"
#include "model/functionids.h"
#include "paneljournal.h"
#include "wire/attributevalue.h"
#include "wire/textcodec.h"

using vorlinmodel::AttributeId;

static quint8 byteAt(const QByteArray &value, int offset)
{
    return static_cast<quint8>(value.at(offset));
}

/// Addresses come in GBK, and stand in the records as UTF-8.
static QByteArray contentOf(const KeyRecord &record, const QByteArray &value)
{
    const QByteArray bytes = value.mid(1);
    return record.functionId == vorlinmodel::TEXT_OUTPUT_FID ? bytes : TextCodec::fromGbk(bytes).toUtf8();
}

static void setColour(KeyRecord &record, const QByteArray &value)
{
    record.red = byteAt(value, 0);
    record.green = byteAt(value, 1);
    record.blue = byteAt(value, 2);
}

static void assign(PanelKey &key, AttributeId attribute, const QByteArray &value)
{
    switch (attribute) {
    case AttributeId::ImageEffects:
        key.record.imageEffects = byteAt(value, 0);
        break;
    case AttributeId::DisplayMode:
        key.record.displayMode = byteAt(value, 0);
        key.latched = false;
        break;
    case AttributeId::TitleAlignment:
        key.record.titleAlignment = byteAt(value, 0);
        break;
    case AttributeId::TitleFontSize:
        key.record.titleFontSize = byteAt(value, 0);
        break;
    case AttributeId::Image:
    case AttributeId::Picture:
        key.picture = AttributeValue::fileOf(value);
        break;
    case AttributeId::Title:
        key.record.title = value.mid(1);
        break;
    case AttributeId::Video:
        key.video = AttributeValue::fileOf(value);
        break;
    case AttributeId::AppOrUrl:
        setContent(key, contentOf(key.record, value));
        break;
    case AttributeId::TitleColour:
        setColour(key.record, value);
        break;
    case AttributeId::KeyCombination:
        setContent(key, value);
        break;
    case AttributeId::MultiActions:
        key.actions = value;
        break;
    case AttributeId::FunctionId:
    case AttributeId::ClearKey:
    case AttributeId::TextOutput:
        break; // not attributes of a key that stands
    }
}

AttributeWriter::AttributeWriter(PanelState &state, PanelJournal &journal)
    : mState(state)
    , mJournal(journal)
{}

void AttributeWriter::write(const PanelKeyId &id, int attributeId, const QByteArray &value)
{
    const auto attribute = static_cast<AttributeId>(attributeId);
    if (attribute == AttributeId::FunctionId)
        return setFunction(id, byteAt(value, 0));
    if (attribute == AttributeId::ClearKey)
        return clearKey(id);
    const QString place = QStringLiteral("%1/%2/%3").arg(id.layout).arg(id.page).arg(id.key);
    const auto key = mState.keys.find(id);
    if (key == mState.keys.end()) {
        mJournal.event(
            QStringLiteral("key %1 has no function: attribute %2 dropped").arg(place).arg(attributeId));
        return;
    }
    assign(*key, attribute, value);
    mJournal.event(
        QStringLiteral("key %1: attribute %2, %3 bytes").arg(place).arg(attributeId).arg(value.size()));
}

void AttributeWriter::setFunction(const PanelKeyId &id, quint8 functionId)
{
    const auto key = mState.keys.find(id);
    if (key == mState.keys.end())
        mState.keys.insert(id, newPanelKey(id, functionId));
    else
        key->record.functionId = functionId;
    mJournal.event(
        QStringLiteral("key %1/%2/%3: function %4").arg(id.layout).arg(id.page).arg(id.key).arg(functionId));
}

void AttributeWriter::clearKey(const PanelKeyId &id)
{
    mState.keys.remove(id);
    mJournal.event(QStringLiteral("key %1/%2/%3 cleared").arg(id.layout).arg(id.page).arg(id.key));
}
