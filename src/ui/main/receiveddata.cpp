#include "receiveddata.h"

#include "base/handover.h"
#include "base/log.h"
#include "base/systemsettings.h"
#include "logtext.h"
#include "model/ifunctionmanager.h"
#include "model/picturefolder.h"
#include "platform/timing.h"
#include "wire/applicationmessage.h"
#include "wire/homelayout.h"
#include "wire/keyrecord.h"

using ApplicationMessage::View;
using vorlindesk::Log;
using vorlindesk::LogLevel;

namespace {

constexpr int EmptyPageSize = 2; // layout and page id, no record

/// A foreign text in a form that a log line and a label can carry.
QString shownText(const View &view)
{
    constexpr int longest = 128;
    const QByteArray bytes(reinterpret_cast<const char *>(view.body), view.bodySize);
    const int end = bytes.indexOf('\0');
    return QString::fromUtf8(bytes.left(end < 0 ? bytes.size() : end)).simplified().left(longest);
}

/// The keys that the records of a page name; those that the store skips may be among them.
QVector<vorlinmodel::key_id_t> keysOfPage(const View &view)
{
    QVector<vorlinmodel::key_id_t> keys;
    if (const auto page = decodePagePayload(view.body, view.bodySize)) {
        for (const KeyRecord &record : page->records)
            keys.append({record.layoutId, record.pageId, record.keyId});
    }
    return keys;
}

} // namespace

ReceivedDataHandler::ReceivedDataHandler(vorlinmodel::IFunctionManager &store, vorlindesk::HandOver &handOver,
                                         IReceivedData &receiver, Options options)
    : mStore(store)
    , mHandOver(handOver)
    , mReceiver(receiver)
    , mOptions(std::move(options))
{}

void ReceivedDataHandler::handle(const ReceivedMessage &message)
{
    const int size = message.bytes.size();
    Log(LogLevel::Debug, LogText::ReceiveStart, size);
    const auto view =
        ApplicationMessage::view(reinterpret_cast<const quint8 *>(message.bytes.constData()), size);
    if (view)
        dispatch(*view, message);
    Log(LogLevel::Debug, LogText::ReceiveEnd);
}

void ReceivedDataHandler::dispatch(const View &view, const ReceivedMessage &message)
{
    switch (static_cast<FunctionCode>(view.code)) {
    case FunctionCode::MD_FUNCTION_CODE_READ_CONFIGFILE:
        return handlePage(view, message.firstPage);
    case FunctionCode::MD_FUNCTION_CODE_KEY_ATTRIBUTE:
        return handleKeyAttribute(view);
    case FunctionCode::MD_FUNCTION_CODE_HARDWARE_VERSION:
    case FunctionCode::MD_FUNCTION_CODE_SOFTWARE_VERSION:
        return handleVersion(view);
    case FunctionCode::MD_FUNCTION_CODE_CUSTOMLAYOUT_SET:
        return handleCustomLayout(view);
    case FunctionCode::MD_FUNCTION_CODE_LCD_LIGHT:
        return handleLcdLight(view);
    case FunctionCode::MD_FUNCTION_CODE_HOME_LAYOUT:
        return handleHomeLayout(view, message.answersHomeSetting);
    case FunctionCode::MD_FUNCTION_CODE_SYSTEM_TYPE:
        return handleSystemType(view);
    default:
        return;
    }
}

void ReceivedDataHandler::handlePage(const View &view, bool firstPage)
{
    // A read of several pages must not lose the pictures of the pages before.
    if (firstPage)
        vorlinmodel::emptyPictureFolder();
    else if (view.bodySize >= EmptyPageSize)
        vorlinmodel::removePagePictures(view.body[0], view.body[1]);

    const auto page = mStore.saveAllKeyAttrByDevconfig(view.body, view.bodySize);
    if (!page)
        return;
    const ReceivedPage received{page->lid, page->pageid, mStore.getReceivedCounts().total, firstPage,
                                keysOfPage(view)};
    mHandOver.post([this, received] { mReceiver.onPageReceived(received); });
    if (view.bodySize == EmptyPageSize) // no picture will come that could complete it
        postComplete();
}

void ReceivedDataHandler::handleKeyAttribute(const View &view)
{
    if (view.bodySize >= ApplicationMessage::KeyIdsSize)
        Log(LogLevel::Info, LogText::KeyAttribute, view.body[0], view.body[1], view.body[2], view.body[3]);
    if (mStore.saveKeyAttrByDevconfig(view.body, view.bodySize))
        return postComplete();
    const auto counts = mStore.getReceivedCounts();
    Log(LogLevel::Info, LogText::KeyImages, counts.total, counts.current);
    mHandOver.post([this, counts] { mReceiver.onRecordReceived(counts.total, counts.current); });
}

void ReceivedDataHandler::handleVersion(const View &view)
{
    const QString text = shownText(view);
    const bool hardware =
        static_cast<FunctionCode>(view.code) == FunctionCode::MD_FUNCTION_CODE_HARDWARE_VERSION;
    Log(LogLevel::Info, hardware ? LogText::HardwareVersion : LogText::SoftwareVersion, qUtf8Printable(text));
    postText(view.code, text);
}

void ReceivedDataHandler::handleCustomLayout(const View &view)
{
    if (!mCustomLayoutCleared && mOptions.clearCustomLayouts) {
        mCustomLayoutCleared = true;
        Log(LogLevel::Info, LogText::DeleteCustomLayout);
        mHandOver.post(mOptions.clearCustomLayouts);
    }
    vorlindesk::preciseSleep(std::chrono::milliseconds(mOptions.customLayoutPause));
    vorlindesk::SystemSettings::setLoadCustomLayout(false);
    const QByteArray payload(reinterpret_cast<const char *>(view.body), view.bodySize);
    mHandOver.post([this, payload] { mReceiver.onCustomLayoutReceived(payload); });
}

void ReceivedDataHandler::handleLcdLight(const View &view)
{
    if (view.bodySize < 2)
        return;
    Log(LogLevel::Info, LogText::LcdLight, view.body[0], view.body[1]);
    postText(view.code, QString::number(view.body[1]));
}

/// What a panel holds may be older than what the person has set here, for which nothing is sent at once.
void ReceivedDataHandler::handleHomeLayout(const View &view, bool answersSetting)
{
    Log(LogLevel::Info, LogText::HomeLayoutReceived);
    const QByteArray payload(reinterpret_cast<const char *>(view.body), view.bodySize);
    const auto record = HomeLayout::decode(payload);
    if (!record)
        return;
    if (answersSetting || vorlindesk::SystemSettings::homeLayoutEntries().isEmpty()) {
        QVector<vorlindesk::SystemSettings::HomeLayoutEntry> entries;
        for (const HomeLayout::Entry &entry : record->entries)
            entries.append({entry.keyId, entry.layoutId, entry.pageId, entry.sum});
        vorlindesk::SystemSettings::setHomeLayoutEntries(entries);
    }
    mHandOver.post([this, layoutId = record->layoutId] { mReceiver.onHomeLayoutReceived(layoutId); });
}

void ReceivedDataHandler::handleSystemType(const View &view)
{
    if (view.bodySize < 1)
        return;
    Log(LogLevel::Info, LogText::SystemType, view.body[0]);
    postText(view.code, QString::number(view.body[0]));
}

void ReceivedDataHandler::postText(int code, const QString &text)
{
    mHandOver.post([this, code, text] { mReceiver.onTextReceived(code, text); });
}

void ReceivedDataHandler::postComplete()
{
    mHandOver.post([this] { mReceiver.onConfigurationComplete(); });
}
