#include "attributerules.h"

#include "actionrules.h"
#include "base/request.h"
#include "model/functionids.h"
#include "model/keyid.h"
#include "wire/attributevalue.h"
#include "wire/textcodec.h"

#include <QtEndian>

namespace AttributeRules {

using vorlinmodel::AttributeId;

namespace {

constexpr int FileCountSize = 4;

quint8 byteAt(const QByteArray &bytes, int offset)
{
    return static_cast<quint8>(bytes.at(offset));
}

QString sizeFault(const QByteArray &value, int size)
{
    return value.size() == size
               ? QString()
               : QStringLiteral("value of %1 bytes instead of %2").arg(value.size()).arg(size);
}

QString rangeFault(const QByteArray &value, int lowest, int highest)
{
    if (value.size() != 1)
        return sizeFault(value, 1);
    const int number = byteAt(value, 0);
    return number >= lowest && number <= highest ? QString() : QStringLiteral("value %1").arg(number);
}

QString gbkTextFault(const QByteArray &value)
{
    if (value.isEmpty())
        return QStringLiteral("the byte count is missing");
    if (byteAt(value, 0) != value.size() - 1)
        return QStringLiteral("byte count %1, but %2 bytes follow it")
            .arg(byteAt(value, 0))
            .arg(value.size() - 1);
    if (value.size() - 1 > AttributeValue::MaxTextBytes)
        return QStringLiteral("a text of %1 bytes, over 128").arg(value.size() - 1);
    return isGbk(value.mid(1)) ? QString() : QStringLiteral("a text that is not GBK");
}

QString outputTextFault(const QByteArray &value)
{
    if (value.isEmpty())
        return QStringLiteral("the byte count is missing");
    const int bytes = value.size() - 1;
    // Of the count only the low 8 bits travel; the length field of the message counts all bytes.
    if (byteAt(value, 0) != (bytes & 0xFF))
        return QStringLiteral("byte count %1, but %2 bytes follow it").arg(byteAt(value, 0)).arg(bytes);
    return bytes % 2 == 0 ? QString() : QStringLiteral("a text output of an odd number of bytes");
}

QString fileFault(const QByteArray &value)
{
    if (value.size() < FileCountSize)
        return QStringLiteral("the byte count is missing");
    const auto count = qFromLittleEndian<quint32>(value.constData());
    const auto bytes = static_cast<quint32>(value.size() - FileCountSize);
    if (count != bytes)
        return QStringLiteral("byte count %1, but %2 bytes follow it").arg(count).arg(bytes);
    return bytes > 0 ? QString() : QStringLiteral("an empty file");
}

/// Width and height out of the header chunk; empty when @p file is not a whole PNG file.
QSize pngSize(const QByteArray &file)
{
    static const QByteArray signature = QByteArrayLiteral("\x89PNG\r\n\x1A\n");
    constexpr int widthOffset = 16;
    constexpr int heightOffset = 20;
    constexpr int trailer = 12; // length 0, "IEND", checksum
    if (!file.startsWith(signature) || file.mid(12, 4) != "IHDR" || file.right(trailer).mid(4, 4) != "IEND")
        return {};
    return {qFromBigEndian<qint32>(file.constData() + widthOffset),
            qFromBigEndian<qint32>(file.constData() + heightOffset)};
}

bool fitsSomeKey(const QSize &size)
{
    return size.width() > 0 && size.height() > 0 && size.width() % LcdWidth == 0 &&
           size.height() % LcdHeight == 0 && size.width() <= PanelColumns * LcdWidth &&
           size.height() <= PanelRows * LcdHeight;
}

QString pictureFault(const PanelState &state, const PanelKeyId &id, const QByteArray &value)
{
    const QString fault = fileFault(value);
    if (!fault.isEmpty())
        return fault;
    const QSize size = pngSize(AttributeValue::fileOf(value));
    if (size.isEmpty())
        return QStringLiteral("a picture that is not PNG");
    const QSize wanted = keyPixels(state, id.layout, id.key);
    if (wanted.isEmpty() ? fitsSomeKey(size) : size == wanted)
        return {};
    return QStringLiteral("a picture of %1 x %2 pixels").arg(size.width()).arg(size.height());
}

QString contentFault(const PanelState &state, const PanelKeyId &id, const QByteArray &value)
{
    const auto key = state.keys.constFind(id);
    const bool isText =
        key != state.keys.constEnd() && key->record.functionId == vorlinmodel::TEXT_OUTPUT_FID;
    return isText ? outputTextFault(value) : gbkTextFault(value);
}

QString functionFault(const QByteArray &value)
{
    if (value.size() != 1)
        return sizeFault(value, 1);
    const int functionId = byteAt(value, 0);
    return isKeyFunction(functionId) ? QString() : QStringLiteral("function id %1").arg(functionId);
}

} // namespace

QString placeFault(const PanelKeyId &id)
{
    if (id.layout < 1)
        return QStringLiteral("layout id %1").arg(id.layout);
    if (id.page < 1 || id.page > vorlinmodel::MaxPage)
        return QStringLiteral("page id %1").arg(id.page);
    if (id.key < vorlinmodel::FirstKeyId || id.key > vorlinmodel::LastKeyId)
        return QStringLiteral("key id %1").arg(id.key);
    return {};
}

QString valueFault(const PanelState &state, const PanelKeyId &id, int attributeId, const QByteArray &value)
{
    constexpr int combinationSize = 4;
    constexpr int colourSize = 3;
    switch (static_cast<AttributeId>(attributeId)) {
    case AttributeId::ImageEffects:
        return rangeFault(value, vorlinmodel::NoEffect, vorlinmodel::Marquee);
    case AttributeId::DisplayMode:
        return rangeFault(value, vorlinmodel::NoSelfLocking, vorlinmodel::SelfLocking);
    case AttributeId::TitleAlignment:
        return rangeFault(value, vorlinmodel::AlignBottom, vorlinmodel::AlignTop);
    case AttributeId::TitleFontSize:
        return rangeFault(value, 1, 0xFF);
    case AttributeId::Image:
    case AttributeId::Picture:
        return pictureFault(state, id, value);
    case AttributeId::Title:
        return gbkTextFault(value);
    case AttributeId::FunctionId:
        return functionFault(value);
    case AttributeId::Video:
        return fileFault(value);
    case AttributeId::AppOrUrl:
        return contentFault(state, id, value);
    case AttributeId::TitleColour:
        return sizeFault(value, colourSize);
    case AttributeId::ClearKey:
        return sizeFault(value, 0);
    case AttributeId::KeyCombination:
        return sizeFault(value, combinationSize);
    case AttributeId::MultiActions:
        return ActionRules::listFault(value);
    case AttributeId::TextOutput: // travels under the id of addresses
        break;
    }
    return QStringLiteral("attribute id %1").arg(attributeId);
}

bool isGbk(const QByteArray &bytes)
{
    return !bytes.contains('\0') && TextCodec::toGbk(TextCodec::fromGbk(bytes)) == bytes;
}

bool isKeyFunction(int functionId)
{
    return functionId >= vorlinmodel::HOME_PAGE_FID && functionId <= vorlinmodel::RETURN_MAIN_FID;
}

} // namespace AttributeRules
