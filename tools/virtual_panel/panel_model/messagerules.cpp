#include "messagerules.h"

#include "base/request.h"
#include "wire/applicationmessage.h"
#include "wire/functioncode.h"

namespace MessageRules {

using vorlinmodel::AttributeId;

namespace {

/// How the host may cut a message.
enum class Cutting {
    Single,   ///< one whole report, at most 57 bytes
    Either,   ///< goes by itself up to 57 bytes, in blocks above (texts that are usually short)
    Blocks,   ///< block by block: 56 bytes whole, 57 bytes as a single last block
    Firmware, ///< like Blocks, but never whole
};

int byteOr(const QByteArray &message, int offset, int missing)
{
    return offset < message.size() ? static_cast<quint8>(message.at(offset)) : missing;
}

Cutting attributeCutting(int attributeId)
{
    switch (static_cast<AttributeId>(attributeId)) {
    case AttributeId::Title:
    case AttributeId::AppOrUrl: // an address goes by itself, a text in blocks; both have this id
        return Cutting::Either;
    case AttributeId::Image:
    case AttributeId::Picture:
    case AttributeId::Video:
    case AttributeId::MultiActions:
        return Cutting::Blocks;
    default:
        return Cutting::Single;
    }
}

Cutting subcodeCutting(int subcode)
{
    switch (static_cast<Subcode>(subcode)) {
    case Subcode::FirmwareData:
        return Cutting::Firmware;
    case Subcode::FileUpload:
        return Cutting::Blocks;
    default:
        return Cutting::Single;
    }
}

Cutting cuttingOf(const QByteArray &message)
{
    switch (static_cast<FunctionCode>(byteOr(message, 0, 0))) {
    case FunctionCode::MD_FUNCTION_CODE_KEY_ATTRIBUTE:
        return attributeCutting(byteOr(message, ApplicationMessage::KeyValueOffset - 1, 0));
    case FunctionCode::UpgradeChannel:
        return subcodeCutting(byteOr(message, ApplicationMessage::BodyOffset, 0));
    case FunctionCode::MD_FUNCTION_CODE_CONFIGFILE:
    case FunctionCode::MD_FUNCTION_CODE_CUSTOMLAYOUT_SET:
        return Cutting::Blocks;
    case FunctionCode::MD_FUNCTION_CODE_HOME_LAYOUT:
        return message.size() == 1 ? Cutting::Single : Cutting::Blocks;
    default:
        return Cutting::Single;
    }
}

QString wholeFault(Cutting cutting, int size)
{
    if (cutting == Cutting::Firmware)
        return QStringLiteral("firmware data in a report flagged 0");
    if (cutting == Cutting::Blocks && size == ReportFrame::Out::MaxPayload)
        return QStringLiteral("a message of 57 bytes that goes in blocks is flagged 0 instead of 2");
    return {};
}

QString singleLastFault(Cutting cutting, int size)
{
    if (cutting == Cutting::Firmware)
        return {};
    if (cutting == Cutting::Single)
        return QStringLiteral("a message that goes by itself is flagged 2");
    if (size < ReportFrame::Out::MaxPayload)
        return QStringLiteral("a message of %1 bytes is flagged 2 instead of 0").arg(size);
    return {};
}

bool isBareRequest(FunctionCode code)
{
    return code == FunctionCode::MD_FUNCTION_CODE_HARDWARE_VERSION ||
           code == FunctionCode::MD_FUNCTION_CODE_SOFTWARE_VERSION ||
           code == FunctionCode::MD_FUNCTION_CODE_READ_CONFIGFILE;
}

} // namespace

QString blockFault(const HostMessage &message)
{
    const Cutting cutting = cuttingOf(message.bytes);
    const int size = message.bytes.size();
    if (message.lastFlag == ReportFrame::Block::Whole)
        return wholeFault(cutting, size);
    if (message.reports == 1)
        return singleLastFault(cutting, size);
    if (cutting == Cutting::Single)
        return QStringLiteral("a message that goes by itself came in blocks");
    return {};
}

QString lengthFault(const QByteArray &message)
{
    const auto code = static_cast<FunctionCode>(byteOr(message, 0, 0));
    if (isBareRequest(code))
        return message.size() == 1 ? QString() : QStringLiteral("a request of the code alone has more bytes");
    if (message.size() == 1 && code == FunctionCode::MD_FUNCTION_CODE_HOME_LAYOUT)
        return {};
    if (message.size() < ApplicationMessage::BodyOffset)
        return QStringLiteral("the length field is missing");
    const auto view =
        ApplicationMessage::view(reinterpret_cast<const quint8 *>(message.constData()), message.size());
    const auto arrived = static_cast<quint32>(message.size() - ApplicationMessage::BodyOffset);
    if (view->length != arrived)
        return QStringLiteral("the length field says %1, but %2 bytes follow it")
            .arg(view->length)
            .arg(arrived);
    return {};
}

bool needsPauses(const QByteArray &message)
{
    switch (static_cast<FunctionCode>(byteOr(message, 0, 0))) {
    case FunctionCode::MD_FUNCTION_CODE_KEY_ATTRIBUTE:
    case FunctionCode::MD_FUNCTION_CODE_CUSTOMLAYOUT_SET:
    case FunctionCode::MD_FUNCTION_CODE_HOME_LAYOUT:
        return true;
    default:
        return false;
    }
}

} // namespace MessageRules
