#include "deviceconfigloader.h"

#include "base/log.h"
#include "base/paths.h"
#include "keyattributemap.h"
#include "model/functionids.h"
#include "model/keypicture.h"
#include "model/picturefolder.h"
#include "storelogtext.h"
#include "wire/actionlist.h"
#include "wire/keyrecord.h"
#include "wire/textcodec.h"

#include <QFileInfo>
#include <chrono>
#include <thread>

namespace vorlinmodel {

using vorlindesk::hexDump;
using vorlindesk::Log;
using vorlindesk::LogLevel;

namespace {

// Attribute ids under which the panel sends; other ids are only logged.
constexpr int PictureAttribute = 9;
constexpr int StoredListAttribute = 15;
constexpr int RunNowListAttribute = 16;

// Attribute payload
constexpr int LayoutOffset = 0; // u8 each
constexpr int PageOffset = 1;
constexpr int KeyOffset = 2;
constexpr int AttributeOffset = 3;
constexpr int ValueOffset = 4;
constexpr int ImageOffset = 8; // behind the value's byte count, which is not needed: the image fills the rest
constexpr int MinimumAttribute = 5;

void logHex(const quint8 *bytes, int length)
{
    Log(LogLevel::Debug, LogText::HexDump, hexDump(bytes, length).constData());
}

QByteArray hexOf(const QByteArray &bytes)
{
    return hexDump(reinterpret_cast<const quint8 *>(bytes.constData()), bytes.size());
}

bool isKeyOfPanel(int keyId)
{
    return keyId >= FirstKeyId && keyId <= LastKeyId;
}

/// Key names of the first four bytes of @p codes, a missing byte being 0.
QString combinationOf(const QByteArray &codes)
{
    const auto code = [&codes](int i) {
        return i < codes.size() ? int(quint8(codes.at(i))) : 0;
    };
    Log(LogLevel::Info, LogText::CombinationCodes, code(0), code(1), code(2), code(3));
    return keyCombinationText(codes);
}

QString contentOf(const KeyRecord &record)
{
    if (record.functionId == KEY_COMBINATION_FID)
        return combinationOf(record.content);
    if (record.functionId != TEXT_OUTPUT_FID)
        return TextCodec::fromUtf8(record.content);
    const QString text = TextCodec::fromOutput(record.content);
    Log(LogLevel::Info, LogText::OutputText, qUtf8Printable(text));
    return text;
}

QColor colourOf(const KeyRecord &record)
{
    // 257 widens 8 to 16 bits exactly: 0xFF becomes 0xFFFF.
    const auto widened = [](quint8 channel) {
        return quint16(channel * 257);
    };
    return QColor::fromRgba64(widened(record.red), widened(record.green), widened(record.blue));
}

void logReceived(const IFunctionManager::ReceivedCounts &counts)
{
    Log(LogLevel::Info, LogText::Received, counts.total, counts.current);
}

/// Logs the key codes of the entries in @p counted that hold a combination. @p offset is that of the entry.
void logCombination(const QByteArray &counted, int offset, const ActionList::Action &action)
{
    if (action.functionId == KEY_COMBINATION_FID && counted.size() - offset >= ActionList::FullEntry)
        combinationOf(counted.mid(offset + ActionList::EntryHead, 4));
}

} // namespace

DeviceConfigLoader::DeviceConfigLoader(KeyAttributeMap &records, RunStep runStep)
    : mRecords(records)
    , mRunStep(std::move(runStep))
{}

std::optional<key_id_t> DeviceConfigLoader::loadPage(const quint8 *payload, int length)
{
    Log(LogLevel::Debug, LogText::ReadScript);
    if (length == PagePayload::HeaderSize) { // a page without keys is complete at once
        setTotal(0);
        Log(LogLevel::Info, LogText::NoKeys, payload[0], payload[1]);
        return key_id_t{payload[0], payload[1], 0};
    }
    const auto page = decodePagePayload(payload, length);
    if (!page) {
        Log(LogLevel::Error, LogText::BadLength, length);
        return std::nullopt;
    }
    Log(LogLevel::Info, LogText::ApplicationLength, unsigned(length), length);
    Log(LogLevel::Info, LogText::SavePage, page->layoutId, page->pageId, length);
    // All records count, also those that are skipped below: the panel sends a picture for every key that it
    // reports, and the read is complete when as many have come.
    setTotal(page->records.size());
    Log(LogLevel::Info, LogText::KeyCount, page->records.size(), KeyRecordField::RecordSize);
    const quint8 *records = payload + PagePayload::HeaderSize;
    logHex(records, page->records.size() * KeyRecordField::RecordSize);
    loadRecords(records, page->records);
    Log(LogLevel::Debug, LogText::ReadScriptFinished);
    return key_id_t{page->layoutId, page->pageId, 0};
}

void DeviceConfigLoader::loadRecords(const quint8 *records, const QVector<KeyRecord> &decoded)
{
    int applied = 0;
    for (const KeyRecord &record : decoded) {
        logHex(records, KeyRecordField::RecordSize);
        records += KeyRecordField::RecordSize;
        const key_id_t key{record.layoutId, record.pageId, record.keyId};
        Log(LogLevel::Info, LogText::RecordKey, key.lid, key.pageid, key.kid);
        if (!isKeyOfPanel(key.kid)) {
            Log(LogLevel::Error, LogText::BadKeyId, key.lid, key.pageid, key.kid);
            continue;
        }
        mRecords.remove(key);
        if (mRecords.create(key, record.functionId))
            applyRecord(key, record);
        // The pause is wanted. A page has 15 keys; one that claims thousands must not hold up what waits
        // behind it.
        if (++applied <= LastKeyId)
            std::this_thread::sleep_for(std::chrono::milliseconds(mRecordPause));
    }
}

void DeviceConfigLoader::applyRecord(const key_id_t &key, const KeyRecord &record)
{
    Log(LogLevel::Info, LogText::ApplyRecord, key.lid, key.pageid, key.kid, record.displayMode);
    if (!mRecords.find(key))
        return;
    const QString title = TextCodec::fromGbk(record.title);
    const QString content = contentOf(record);
    mRecords.change(key, [&](key_atttribute_t &attributes) {
        attributes.mFId = record.functionId;
        attributes.nDisplayImageType =
            CustomImage; // a key that was read shows its own picture, which comes later
        attributes.imageEffects = record.imageEffects;
        attributes.nDisplaymode = record.displayMode;
        attributes.titleAlignment = record.titleAlignment;
        attributes.titleFontSize = record.titleFontSize;
        attributes.titleColour = colourOf(record);
        attributes.strTitle = title;
        attributes.strAppOrUrl = content;
    });
    Log(LogLevel::Info, LogText::RecordApplied, key.lid, key.pageid, key.kid, record.functionId,
        qUtf8Printable(title), qUtf8Printable(content));
}

bool DeviceConfigLoader::loadAttribute(const quint8 *payload, int length)
{
    Log(LogLevel::Debug, LogText::KeyAttribute);
    if (length < MinimumAttribute) {
        Log(LogLevel::Error, LogText::BadLength, length);
        return false;
    }
    const key_id_t key{payload[LayoutOffset], payload[PageOffset], payload[KeyOffset]};
    const int attribute = payload[AttributeOffset];
    const QByteArray bytes(reinterpret_cast<const char *>(payload), length);
    Log(LogLevel::Info, LogText::ApplicationLength, unsigned(length), length);
    Log(LogLevel::Info, LogText::SaveAttribute, key.lid, key.pageid, key.kid, attribute);
    const bool isList = attribute == StoredListAttribute || attribute == RunNowListAttribute;
    if (attribute == PictureAttribute)
        loadPicture(key, bytes.mid(ImageOffset));
    else if (isList)
        loadActionList(key, attribute == RunNowListAttribute, bytes.mid(ValueOffset));
    const auto received = counts();
    logReceived(received);
    return !isList && received.current == received.total;
}

void DeviceConfigLoader::loadPicture(const key_id_t &key, const QByteArray &bytes)
{
    countPicture(); // also one that cannot be saved: a broken picture must not keep the page from completing
    if (!isKeyOfPanel(key.kid)) {
        Log(LogLevel::Error, LogText::BadKeyId, key.lid, key.pageid, key.kid);
        return;
    }
    const QString path = vorlindesk::Paths::keyPicture(key.lid, key.pageid, key.kid);
    Log(LogLevel::Info, LogText::PictureName, qUtf8Printable(QFileInfo(path).fileName()), bytes.size());
    Log(LogLevel::Info, LogText::PicturePath, qUtf8Printable(path));
    const QImage image = decodePicture(bytes);
    if (image.isNull() || !replacePicture(path, image)) {
        Log(LogLevel::Error, LogText::PictureNotSaved, qUtf8Printable(path));
        return;
    }
    mRecords.setCustomImage(key, path);
}

void DeviceConfigLoader::loadActionList(const key_id_t &key, bool runNow, const QByteArray &value)
{
    const QByteArray counted = ActionList::counted(value);
    Log(LogLevel::Debug, LogText::ListBytes, hexOf(value).constData());
    Log(LogLevel::Debug, LogText::ListCounted, hexOf(counted).constData());
    QVector<MultiAction> stored;
    int offset = ActionList::LengthSize;
    for (const ActionList::Action &action : ActionList::decode(value)) {
        logCombination(counted, offset, action);
        offset += ActionList::hasPayload(action.functionId) ? ActionList::FullEntry : ActionList::EntryHead;
        Log(LogLevel::Debug, LogText::ListAction, action.functionId, action.delay,
            qUtf8Printable(action.text));
        // Delays and key combinations go to the runner too, which does nothing for them: the panel plays its
        // part of the list itself, so the computer neither waits nor presses keys.
        if (runNow)
            mRunStep(key, action.functionId, action.text);
        if (action.functionId != 0)
            stored.append({action.functionId, action.delay, action.text});
    }
    if (runNow || stored.isEmpty())
        return;
    if (!isKeyOfPanel(key.kid)) {
        Log(LogLevel::Error, LogText::BadKeyId, key.lid, key.pageid, key.kid);
        return;
    }
    QString error;
    if (!multiActionStore().writeActionsByKeyId(key.lid, key.pageid, key.kid, stored, error))
        Log(LogLevel::Error, LogText::ListNotStored, qUtf8Printable(error));
}

void DeviceConfigLoader::setTotal(int total)
{
    const std::lock_guard lock(mMutex);
    mRecvTotalKeyCount = total;
    mRecvCurKeyCount = 0;
}

void DeviceConfigLoader::countPicture()
{
    const std::lock_guard lock(mMutex);
    ++mRecvCurKeyCount;
}

IFunctionManager::ReceivedCounts DeviceConfigLoader::counts() const
{
    const std::lock_guard lock(mMutex);
    return {mRecvTotalKeyCount, mRecvCurKeyCount};
}

} // namespace vorlinmodel
