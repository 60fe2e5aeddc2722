#include "attributerequests.h"

#include "base/log.h"
#include "logtext.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "model/keypicture.h"
#include "model/wholefile.h"
#include "wire/actionlist.h"
#include "wire/applicationmessage.h"
#include "wire/attributevalue.h"
#include "wire/keyrecord.h"

#include <algorithm>

namespace vorlinmodel {
namespace {

using vorlindesk::Log;
using vorlindesk::LogLevel;
using BlockTransfer = vorlindesk::MDProtocol::BlockTransfer;
namespace Text = ProtocolText;

constexpr BlockTransfer LongAttribute{Text::RequestOk, Text::RequestError};
constexpr BlockTransfer TextOutputTransfer{"transfer TextOutput success", "transfer TextOutput error\n"};
constexpr BlockTransfer MultiActionsTransfer{"transfer MultiActions success",
                                             "transfer MultiActions error\n"};
constexpr BlockTransfer ImageTransfer{"transfer KeyImage success", "transfer KeyImage error\n"};
constexpr BlockTransfer VideoTransfer{"transfer KeyVideo success", "transfer KeyVideo error\n"};

constexpr qint32 VideoSent = 0;
constexpr qint32 VideoNotSent = -1;

/// One attribute write under way.
struct Write
{
    DeviceContext &context;
    const Request &request;
    const std::optional<key_atttribute_t> record; ///< there, unless the operation does without
    key_id_t key;
};

int build(const Write &write, AttributeId wireId, const QByteArray &value)
{
    const Request &request = write.request;
    const int size = write.context.protocol.buildKeyAddressed(request.layoutId, request.pageId, request.keyId,
                                                              static_cast<quint32>(wireId), value);
    write.context.unreadable = size < 0; // beyond 10 MiB: nothing of it is sent
    return size;
}

/// For the values that go by themselves. A long title or address does not fit in one report and goes in
/// blocks.
void send(const Write &write, const QByteArray &value)
{
    const int size = build(write, static_cast<AttributeId>(write.request.attributeId), value);
    if (size >= 0 && size <= vorlindesk::MDProtocol::LargestSingle)
        write.context.protocol.sendSingle();
    else
        write.context.protocol.sendInBlocks(LongAttribute);
}

void sendByte(const Write &write, int value)
{
    send(write, AttributeValue::byte(static_cast<quint32>(value)));
}

void writeImageEffects(const Write &write)
{
    Log(LogLevel::Info, Text::ImageEffects, write.record->imageEffects);
    sendByte(write, write.record->imageEffects);
}

void writeDisplayMode(const Write &write)
{
    Log(LogLevel::Info, Text::DisplayMode, write.record->nDisplaymode);
    sendByte(write, write.record->nDisplaymode);
}

void writeTitleAlignment(const Write &write)
{
    Log(LogLevel::Info, Text::TitleAlignment, write.record->titleAlignment);
    sendByte(write, write.record->titleAlignment);
}

void writeTitle(const Write &write)
{
    Log(LogLevel::Info, Text::Title, qUtf8Printable(write.record->strTitle));
    send(write, AttributeValue::gbkText(write.record->strTitle));
}

void writeTitleFontSize(const Write &write)
{
    Log(LogLevel::Info, Text::TitleFontSize, write.record->titleFontSize);
    sendByte(write, write.record->titleFontSize);
}

void writeFunctionId(const Write &write)
{
    const int fid = write.record ? write.record->mFId : static_cast<int>(write.request.functionId);
    Log(LogLevel::Info, Text::FunctionId, fid);
    const quint64 failed = write.context.protocol.failedSends();
    sendByte(write, fid);
    const bool sent = write.context.protocol.failedSends() == failed;
    write.context.functions.note(write.key, sent ? fid : WrittenFunctions::Unknown);
}

AttributeId textAttribute(int fid)
{
    switch (fid) {
    case TEXT_OUTPUT_FID:
        return AttributeId::TextOutput;
    case KEY_COMBINATION_FID:
        return AttributeId::KeyCombination;
    default:
        return AttributeId::AppOrUrl;
    }
}

/// The store has moved on since the panel got its function, or since the request was posted: one that brings
/// the new content waits in the queue. Until then this one would be read as what it is not.
bool isAheadOfFunction(const Write &write)
{
    return write.context.functions.differs(write.key, write.record->mFId) ||
           static_cast<AttributeId>(write.request.attributeId) != textAttribute(write.record->mFId);
}

void writeAppOrUrl(const Write &write)
{
    if (isAheadOfFunction(write))
        return;
    Log(LogLevel::Info, Text::AppOrUrl, qUtf8Printable(write.record->strAppOrUrl));
    send(write, AttributeValue::gbkText(write.record->strAppOrUrl));
}

void writeTitleColour(const Write &write)
{
    const QColor &colour = write.record->titleColour;
    // Blue and green change places in this line; the message carries them in the usual order.
    Log(LogLevel::Info, Text::TitleColour, colour.red(), colour.blue(), colour.green());
    send(write, AttributeValue::colour(static_cast<quint8>(colour.red()), static_cast<quint8>(colour.green()),
                                       static_cast<quint8>(colour.blue())));
}

void writeClearKey(const Write &write)
{
    Log(LogLevel::Info, Text::ClearKey, write.key.lid, write.key.pageid, write.key.kid);
    const quint64 failed = write.context.protocol.failedSends();
    send(write, {});
    if (write.context.protocol.failedSends() == failed)
        write.context.functions.forget(write.key);
}

void writeKeyCombination(const Write &write)
{
    if (isAheadOfFunction(write))
        return;
    const QString &combination = write.record->strAppOrUrl;
    const QByteArray codes = keyCombinationCodes(combination);
    const auto code = [&codes](int index) {
        return unsigned{static_cast<quint8>(codes.at(index))};
    };
    Log(LogLevel::Info, Text::KeyCodes, code(0), code(1), code(2), code(3));
    Log(LogLevel::Info, Text::KeyCombination, qUtf8Printable(combination));
    send(write, codes);
}

void writeTextOutput(const Write &write)
{
    if (isAheadOfFunction(write))
        return;
    Log(LogLevel::Info, Text::TextOutput, qUtf8Printable(write.record->strAppOrUrl));
    // Travels under the id of addresses; the panel tells them apart by the function of the key.
    build(write, AttributeId::AppOrUrl, AttributeValue::outputText(write.record->strAppOrUrl));
    write.context.protocol.sendInBlocks(TextOutputTransfer);
}

/// @return nothing when the file with the lists cannot be read.
std::optional<QVector<ActionList::Action>> actionsOf(const key_id_t &key)
{
    Log(LogLevel::Debug, Text::MultiActionKey, key.lid, key.pageid, key.kid);
    const auto steps = multiActionStore().findActions(key.lid, key.pageid, key.kid);
    if (!steps)
        return std::nullopt;
    QVector<ActionList::Action> actions;
    for (const MultiAction &step : *steps) {
        Log(LogLevel::Debug, Text::MultiActionStep, step.fid, step.delay, qUtf8Printable(step.url));
        actions << ActionList::Action{static_cast<qint8>(step.fid), step.delay, step.url};
    }
    return actions;
}

void logActionList(const key_id_t &key, const QVector<ActionList::Action> &actions,
                   const ActionList::Encoded &encoded)
{
    for (const ActionList::Action &action : actions) {
        const QByteArray item = ActionList::encode({action}).value.mid(ActionList::LengthSize);
        Log(LogLevel::Debug, Text::MultiActionItem, int{action.functionId}, item.toHex(' ').constData());
    }
    Log(LogLevel::Debug, Text::MultiActionAll, encoded.value.toHex(' ').constData());
    for (const int position : encoded.cutEntries)
        Log(LogLevel::Warn, Text::MultiActionCut, position + 1, key.lid, key.pageid, key.kid);
}

void writeMultiActions(const Write &write)
{
    Log(LogLevel::Info, Text::MultiActions, write.key.lid, write.key.pageid);
    const auto actions = actionsOf(write.key);
    const ActionList::Encoded encoded = ActionList::encode(actions.value_or(QVector<ActionList::Action>{}));
    // The panel keeps the list that it has: an empty one for a file that cannot be read, or the part for
    // which the length field has room, would only destroy it.
    if (!actions || encoded.omitted > 0) {
        Log(LogLevel::Error, "%s", MultiActionsTransfer.failure);
        write.context.unreadable = true;
        return;
    }
    logActionList(write.key, *actions, encoded);
    build(write, AttributeId::MultiActions, encoded.value);
    write.context.protocol.sendInBlocks(MultiActionsTransfer);
}

/// The file of layouts has moved on since the panel got this one: the request that brings the new one waits
/// in the queue, and behind it the pictures of all keys whose size differs. Until then the panel would refuse
/// it.
bool isAheadOfLayout(const Write &write, const QSize &size)
{
    return write.context.layouts.differs(write.key, size);
}

void writeImage(const Write &write)
{
    const QSize size = keyPixelSize(write.key); // once: the file may change at any moment
    if (isAheadOfLayout(write, size))
        return;
    const std::optional<QByteArray> picture = encodedKeyPicture(write.context.store, write.key, size);
    if (!picture) {
        Log(LogLevel::Error, Text::NoPicture, write.key.lid, write.key.pageid, write.key.kid);
        write.context.unreadable = true;
        return;
    }
    build(write, static_cast<AttributeId>(write.request.attributeId), AttributeValue::file(*picture));
    write.context.protocol.sendInBlocks(ImageTransfer);
}

/// The video of a key stands in the field of its default picture; a resource there is the icon of a function.
std::optional<QByteArray> readVideo(const QString &path)
{
    QString reason = QString::fromLatin1(Text::NotAVideo);
    std::optional<QByteArray> video;
    if (!path.startsWith(QLatin1Char(':')))
        video = readWholeFile(path, reason, ApplicationMessage::MaxSize);
    if (!video)
        Log(LogLevel::Error, Text::NoVideo, qUtf8Printable(path), qUtf8Printable(reason));
    return video;
}

bool sendVideo(const Write &write)
{
    if (!write.record) {
        Log(LogLevel::Info, Text::NoKeyRecord, write.key.lid, write.key.pageid, write.key.kid);
        return false;
    }
    const std::optional<QByteArray> video = readVideo(write.record->defaultImage);
    write.context.unreadable = !video;
    if (!video)
        return false;
    build(write, AttributeId::Video, AttributeValue::file(*video));
    return write.context.protocol.sendInBlocks(VideoTransfer);
}

struct Operation
{
    AttributeId id;
    bool needsRecord;
    void (*run)(const Write &write);
};

constexpr Operation Operations[] = {
    {AttributeId::ImageEffects, true, writeImageEffects},
    {AttributeId::DisplayMode, true, writeDisplayMode},
    {AttributeId::TitleAlignment, true, writeTitleAlignment},
    {AttributeId::Image, true, writeImage},
    {AttributeId::Title, true, writeTitle},
    {AttributeId::TitleFontSize, true, writeTitleFontSize},
    {AttributeId::FunctionId, false, writeFunctionId},
    {AttributeId::Picture, true, writeImage},
    {AttributeId::AppOrUrl, true, writeAppOrUrl},
    {AttributeId::TitleColour, true, writeTitleColour},
    {AttributeId::ClearKey, false, writeClearKey},
    {AttributeId::KeyCombination, true, writeKeyCombination},
    {AttributeId::MultiActions, true, writeMultiActions},
    {AttributeId::TextOutput, true, writeTextOutput},
};

key_id_t keyOf(const Request &request)
{
    return {static_cast<qint32>(request.layoutId), static_cast<qint32>(request.pageId),
            static_cast<qint32>(request.keyId)};
}

void logRequest(const DeviceContext &context, const Request &request)
{
    Log(LogLevel::Info, Text::KeyAttribute, static_cast<int>(request.layoutId),
        static_cast<int>(request.pageId), static_cast<int>(request.keyId),
        static_cast<int>(request.functionId), static_cast<int>(request.attributeId),
        context.protocol.blockDelay());
}

} // namespace

void processKeyAttribute(DeviceContext &context, const Request &request)
{
    logRequest(context, request);
    const key_id_t key = keyOf(request);
    const Write write{context, request, context.store.getKeyAttribute(key), key};
    const auto id = static_cast<AttributeId>(request.attributeId);
    if (id == AttributeId::Video) { // reports its result whatever it was: somebody waits for it
        emit context.events.sigSendVideoFinished(sendVideo(write) ? VideoSent : VideoNotSent);
        return;
    }
    const auto *operation = std::find_if(std::begin(Operations), std::end(Operations),
                                         [id](const Operation &entry) { return entry.id == id; });
    if (operation == std::end(Operations))
        return;
    if (operation->needsRecord && !write.record)
        Log(LogLevel::Info, Text::NoKeyRecord, key.lid, key.pageid, key.kid);
    else
        operation->run(write);
}

void reportCancelledAttribute(DeviceContext &context, const Request &request)
{
    if (static_cast<AttributeId>(request.attributeId) == AttributeId::Video)
        emit context.events.sigSendVideoFinished(VideoNotSent);
}

} // namespace vorlinmodel
