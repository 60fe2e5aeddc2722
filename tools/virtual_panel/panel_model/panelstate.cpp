#include "panelstate.h"

#include "model/functionids.h"
#include "model/keyid.h"
#include "wire/textcodec.h"

PanelKey newPanelKey(const PanelKeyId &id, quint8 functionId)
{
    PanelKey key;
    key.record.layoutId = static_cast<quint8>(id.layout);
    key.record.pageId = static_cast<quint8>(id.page);
    key.record.keyId = static_cast<quint8>(id.key);
    key.record.functionId = functionId;
    key.record.titleFontSize = 16;
    key.record.green = 0xFF;
    return key;
}

void setContent(PanelKey &key, const QByteArray &content)
{
    const int functionId = key.record.functionId;
    const bool isText =
        functionId != vorlinmodel::TEXT_OUTPUT_FID && functionId != vorlinmodel::KEY_COMBINATION_FID;
    key.content = content;
    key.record.content = isText ? TextCodec::toUtf8(QString::fromUtf8(content), KeyRecordField::TextArea)
                                : content.left(KeyRecordField::TextArea);
}

static QSize mergedPixels(const CustomLayoutRecord::Key &key)
{
    const int firstRow = (key.first - 1) / PanelColumns;
    const int firstColumn = (key.first - 1) % PanelColumns;
    const int lastRow = (key.last - 1) / PanelColumns;
    const int lastColumn = (key.last - 1) % PanelColumns;
    return {(lastColumn - firstColumn + 1) * LcdWidth, (lastRow - firstRow + 1) * LcdHeight};
}

QSize keyPixels(const PanelState &state, int layout, int key)
{
    if (layout == StandardLayout)
        return {LcdWidth, LcdHeight};
    const auto found = state.layouts.constFind(layout);
    if (found == state.layouts.constEnd() || key < vorlinmodel::FirstKeyId || key > found->keys.size())
        return {};
    return mergedPixels(found->keys.at(key - 1));
}
