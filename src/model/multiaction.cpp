#include "multiaction.h"

#include "base/log.h"
#include "base/paths.h"
#include "multiactionlock.h"
#include "wholefile.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <cmath>
#include <limits>

namespace vorlinmodel {

using vorlindesk::Log;
using vorlindesk::LogLevel;

namespace JsonKey {
constexpr QLatin1String KeyInfo("keyInfo");
constexpr QLatin1String LayoutId("layid");
constexpr QLatin1String PageId("pageid");
constexpr QLatin1String KeyId("keyid");
constexpr QLatin1String Actions("actions");
constexpr QLatin1String Fid("fid");
constexpr QLatin1String Delay("delay");
constexpr QLatin1String Url("url");
} // namespace JsonKey

// Texts that callers show and compare; they stay in Chinese whatever the interface language is.
namespace ErrorText {
constexpr char FileEmpty[] = "fileEmpty"; // a marker: no entries exist yet
constexpr char CannotOpen[] = "无法打开文件: ";
constexpr char CannotWrite[] = "无法写入文件: ";
constexpr char JsonError[] = "JSON 解析错误: ";
constexpr char NoKeyInfo[] = "缺少 keyInfo 数组";
constexpr char KeyInfoNotObject[] = "发现非对象类型的 keyInfo 元素";
constexpr char NoLayoutId[] = "缺少 layid 或类型错误";
constexpr char NoActions[] = "缺少 actions 数组";
constexpr char ActionNotObject[] = "发现非对象类型的 action 元素";
constexpr char NoFid[] = "缺少 fid 或类型错误";
} // namespace ErrorText

namespace LogText {
constexpr char ReadFailed[] = "读取失败:%s";
constexpr char WriteFailed[] = "写入失败:%s";
constexpr char ReadActionsKey[] = "------readActionsByKeyId---layid/pageid/keyid %d %d %d";
constexpr char ReadActions[] = "------readActionsByKeyId---actions=%d";
constexpr char Deleted[] = "-readData -del --i=%d";
} // namespace LogText

namespace {

using Entries = QVector<MultiActionEntry>;

Entries::iterator findEntry(Entries &entries, const key_id_t &key)
{
    return std::find_if(entries.begin(), entries.end(),
                        [&key](const MultiActionEntry &entry) { return entry.key == key; });
}

void putEntry(Entries &entries, const MultiActionEntry &written)
{
    const auto found = findEntry(entries, written.key);
    if (found != entries.end())
        found->actions = written.actions; // keeps its place in the file
    else
        entries.append(written);
}

// A whole number of 16 bits, or nothing. Cut to 16 bits, any other number would become a function that nobody
// chose.
std::optional<qint16> functionId(const QJsonValue &value)
{
    const double number = value.toDouble();
    if (!value.isDouble() || number != std::floor(number) || number < std::numeric_limits<qint16>::min() ||
        number > std::numeric_limits<qint16>::max())
        return std::nullopt;
    return static_cast<qint16>(number);
}

// The nearest delay that the record can hold: a delay of 70 s must not turn into one of 4 s.
quint16 delayOf(const QJsonValue &value)
{
    const double number = std::clamp(value.toDouble(0), 0.0, 65535.0);
    return static_cast<quint16>(number);
}

std::optional<Entries> entriesFromJson(const QByteArray &content, QString &error)
{
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(content, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        error = QString::fromUtf8(ErrorText::JsonError) + parseError.errorString();
        return std::nullopt;
    }
    const QJsonValue keyInfo = document.object().value(JsonKey::KeyInfo);
    if (!keyInfo.isArray()) {
        error = QString::fromUtf8(ErrorText::NoKeyInfo);
        return std::nullopt;
    }
    Entries entries;
    for (const QJsonValue &element : keyInfo.toArray()) {
        if (!element.isObject())
            error = QString::fromUtf8(ErrorText::KeyInfoNotObject);
        else
            entries.append(MultiActionStore::entryFromJson(element.toObject(), error));
        if (!error.isEmpty())
            return std::nullopt;
    }
    return entries;
}

} // namespace

std::unique_lock<std::mutex> lockMultiActionFile()
{
    static std::mutex mutex;
    return std::unique_lock(mutex);
}

MultiActionStore::MultiActionStore(QString path)
    : mPath(std::move(path))
{}

std::optional<QVector<MultiActionEntry>> MultiActionStore::readFile(QString &error) const
{
    QString reason;
    const auto content = readWholeFile(mPath, reason);
    if (!content) {
        error = QString::fromUtf8(ErrorText::CannotOpen) + reason;
        return std::nullopt;
    }
    if (content->isEmpty()) {
        error = QString::fromUtf8(ErrorText::FileEmpty);
        return std::nullopt;
    }
    return entriesFromJson(*content, error);
}

bool MultiActionStore::writeFile(const QVector<MultiActionEntry> &entries, QString &error) const
{
    QJsonArray keyInfo;
    for (const MultiActionEntry &entry : entries)
        keyInfo.append(toJson(entry));
    const QJsonDocument document(QJsonObject{{JsonKey::KeyInfo, keyInfo}});
    QString reason;
    if (writeWholeFile(mPath, document.toJson(QJsonDocument::Indented), reason))
        return true;
    error = QString::fromUtf8(ErrorText::CannotWrite) + reason;
    return false;
}

/// No entries yet, or a file that somebody removed while the program runs: there is nothing to keep.
bool MultiActionStore::holdsNothing(const QString &error) const
{
    return error == QLatin1String(ErrorText::FileEmpty) || !QFile::exists(mPath);
}

std::optional<QVector<MultiActionEntry>> MultiActionStore::readForChange(QString &error) const
{
    auto entries = readFile(error);
    if (!entries && holdsNothing(error)) {
        error.clear();
        return Entries{};
    }
    return entries;
}

bool MultiActionStore::rewrite(const Change &change, QString &error)
{
    error.clear();
    auto lock = lockMultiActionFile();
    auto entries = readForChange(error);
    if (!entries) {
        lock.unlock();
        Log(LogLevel::Error, LogText::ReadFailed, qUtf8Printable(error));
        return false;
    }
    const bool done = !change(*entries) || writeFile(*entries, error);
    lock.unlock();
    if (!done)
        Log(LogLevel::Error, LogText::WriteFailed, qUtf8Printable(error));
    return done;
}

std::optional<QVector<MultiActionEntry>> MultiActionStore::readAll(QString &error) const
{
    error.clear();
    const auto lock = lockMultiActionFile();
    return readFile(error);
}

bool MultiActionStore::writeAll(const QVector<MultiActionEntry> &entries, QString &error) const
{
    error.clear();
    const auto lock = lockMultiActionFile();
    return writeFile(entries, error);
}

std::optional<QVector<MultiAction>> MultiActionStore::findActions(int lid, int pageid, int kid) const
{
    Log(LogLevel::Debug, LogText::ReadActionsKey, lid, pageid, kid);
    QString error;
    auto entries = readAll(error);
    if (!entries) {
        Log(LogLevel::Error, LogText::ReadFailed, qUtf8Printable(error));
        return holdsNothing(error) ? std::make_optional(QVector<MultiAction>{}) : std::nullopt;
    }
    const auto found = findEntry(*entries, {lid, pageid, kid});
    const QVector<MultiAction> actions = found != entries->end() ? found->actions : QVector<MultiAction>{};
    Log(LogLevel::Debug, LogText::ReadActions, actions.size());
    return actions;
}

QVector<MultiAction> MultiActionStore::readActionsByKeyId(int lid, int pageid, int kid) const
{
    return findActions(lid, pageid, kid).value_or(QVector<MultiAction>{});
}

bool MultiActionStore::writeActionsByKeyId(int lid, int pageid, int kid, const QVector<MultiAction> &actions,
                                           QString &error)
{
    return replaceEntries({}, {{{lid, pageid, kid}, actions}}, error);
}

bool MultiActionStore::replaceEntries(const QVector<key_id_t> &replaced,
                                      const QVector<MultiActionEntry> &written, QString &error)
{
    return rewrite(
        [&](Entries &entries) {
            for (const key_id_t &key : replaced) {
                const bool named = std::any_of(written.begin(), written.end(),
                                               [&key](const auto &entry) { return entry.key == key; });
                if (const auto found = findEntry(entries, key); !named && found != entries.end())
                    entries.erase(found);
            }
            for (const MultiActionEntry &entry : written)
                putEntry(entries, entry);
            return true;
        },
        error);
}

bool MultiActionStore::delActionsByKeyId(int lid, int pageid, int kid, QString &error)
{
    int index = -1;
    const bool done = rewrite(
        [&](Entries &entries) {
            const auto found = findEntry(entries, {lid, pageid, kid});
            if (found == entries.end())
                return false;
            index = static_cast<int>(found - entries.begin());
            entries.erase(found);
            return true;
        },
        error);
    if (index >= 0)
        Log(LogLevel::Debug, LogText::Deleted, index);
    return done;
}

QJsonObject MultiActionStore::toJson(const MultiAction &action)
{
    return {{JsonKey::Fid, action.fid}, {JsonKey::Delay, action.delay}, {JsonKey::Url, action.url}};
}

MultiAction MultiActionStore::actionFromJson(const QJsonObject &object, QString &error)
{
    const auto fid = functionId(object.value(JsonKey::Fid));
    if (!fid) {
        error = QString::fromUtf8(ErrorText::NoFid);
        return {};
    }
    return {*fid, delayOf(object.value(JsonKey::Delay)), object.value(JsonKey::Url).toString()};
}

QJsonObject MultiActionStore::toJson(const MultiActionEntry &entry)
{
    QJsonArray actions;
    for (const MultiAction &action : entry.actions)
        actions.append(toJson(action));
    return {{JsonKey::LayoutId, entry.key.lid},
            {JsonKey::PageId, entry.key.pageid},
            {JsonKey::KeyId, entry.key.kid},
            {JsonKey::Actions, actions}};
}

MultiActionEntry MultiActionStore::entryFromJson(const QJsonObject &object, QString &error)
{
    MultiActionEntry entry;
    const QJsonValue layoutId = object.value(JsonKey::LayoutId);
    if (!layoutId.isDouble()) {
        error = QString::fromUtf8(ErrorText::NoLayoutId);
        return entry;
    }
    entry.key = {layoutId.toInt(), object.value(JsonKey::PageId).toInt(),
                 object.value(JsonKey::KeyId).toInt()};
    const QJsonValue actions = object.value(JsonKey::Actions);
    if (!actions.isArray()) {
        error = QString::fromUtf8(ErrorText::NoActions);
        return entry;
    }
    for (const QJsonValue &element : actions.toArray()) {
        QString fault;
        if (!element.isObject())
            fault = QString::fromUtf8(ErrorText::ActionNotObject);
        else
            entry.actions.append(actionFromJson(element.toObject(), fault));
        if (!fault.isEmpty()) {
            error = fault;
            entry.actions.clear(); // half a list would run half of what the user wanted
            return entry;
        }
    }
    return entry;
}

MultiActionStore multiActionStore()
{
    return MultiActionStore(vorlindesk::Paths::multiActionsJson());
}

} // namespace vorlinmodel
