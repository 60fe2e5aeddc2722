#include "configreply.h"

#include "base/request.h"
#include "model/functionids.h"
#include "outbox.h"
#include "wire/applicationmessage.h"
#include "wire/attributevalue.h"

using vorlinmodel::AttributeId;

static QByteArray attributeMessage(const PanelKeyId &id, AttributeId attribute, const QByteArray &value)
{
    return ApplicationMessage::keyAddressed(static_cast<quint32>(id.layout), static_cast<quint32>(id.page),
                                            static_cast<quint32>(id.key), static_cast<quint32>(attribute),
                                            value);
}

static void sendPage(const QVector<KeyRecord> &records, Outbox &outbox)
{
    const PagePayload page{
        .layoutId = records.first().layoutId, .pageId = records.first().pageId, .records = records};
    outbox.addMessage(
        ApplicationMessage::plain(FunctionCode::MD_FUNCTION_CODE_READ_CONFIGFILE, encodePagePayload(page)));
}

static void sendAttachments(const PanelKeyId &id, const PanelKey &key, Outbox &outbox)
{
    if (key.record.functionId == vorlinmodel::MULTIPLE_ACTIONS_FID && !key.actions.isEmpty())
        outbox.addMessage(attributeMessage(id, AttributeId::MultiActions, key.actions));
    outbox.addBlocks(attributeMessage(id, AttributeId::Picture, AttributeValue::file(key.picture)));
}

static void sendEmptyPage(Outbox &outbox)
{
    PagePayload page;
    page.layoutId = StandardLayout;
    page.pageId = 1;
    outbox.addMessage(
        ApplicationMessage::plain(FunctionCode::MD_FUNCTION_CODE_READ_CONFIGFILE, encodePagePayload(page)));
}

static void sendLayouts(const PanelState &state, Outbox &outbox)
{
    for (const CustomLayoutRecord::Record &layout : state.layouts)
        outbox.addMessage(ApplicationMessage::plain(FunctionCode::MD_FUNCTION_CODE_CUSTOMLAYOUT_SET,
                                                    CustomLayoutRecord::encode(layout)));
}

void sendConfiguration(const PanelState &state, Outbox &outbox)
{
    sendLayouts(state, outbox);
    if (state.keys.isEmpty())
        return sendEmptyPage(outbox);
    auto begin = state.keys.constBegin();
    while (begin != state.keys.constEnd()) {
        QVector<KeyRecord> records;
        auto end = begin;
        for (; end != state.keys.constEnd() && end.key().layout == begin.key().layout &&
               end.key().page == begin.key().page;
             ++end)
            records << end->record;
        sendPage(records, outbox);
        for (; begin != end; ++begin)
            sendAttachments(begin.key(), *begin, outbox);
    }
}
