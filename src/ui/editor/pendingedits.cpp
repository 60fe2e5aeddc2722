#include "pendingedits.h"

#include "base/paths.h"
#include "base/systemsettings.h"
#include "protocol/iprotocolthread.h"

#include <QFile>
#include <QRegularExpression>
#include <optional>

using vorlindesk::IniFile;
using vorlinmodel::AttributeId;
using vorlinmodel::key_id_t;
using vorlinmodel::RequestOutcome;

namespace {

constexpr int LateAfter = 500; // ms
const QLatin1String Group("pending");

QString fileName()
{
    return vorlindesk::Paths::devConfigFolder() + QStringLiteral("/pending.ini");
}

std::optional<key_id_t> keyOf(const QString &name)
{
    static const QRegularExpression pattern(QStringLiteral("^(\\d{1,3})_(\\d{1,3})_(\\d{1,2})$"));
    const auto match = pattern.match(name);
    const key_id_t key{match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt()};
    constexpr int largestLayout = 255; // travels in one byte
    const bool isKey = key.lid >= 1 && key.lid <= largestLayout && key.pageid >= 1 &&
                       key.pageid <= vorlinmodel::MaxPage && key.kid >= vorlinmodel::FirstKeyId &&
                       key.kid <= vorlinmodel::LastKeyId;
    return isKey ? std::make_optional(key) : std::nullopt;
}

QString nameOf(const key_id_t &key)
{
    return QStringLiteral("%1_%2_%3").arg(key.lid).arg(key.pageid).arg(key.kid);
}

/// Both carry the picture.
bool arePictures(AttributeId one, AttributeId other)
{
    const auto isPicture = [](AttributeId id) {
        return id == AttributeId::Image || id == AttributeId::Picture;
    };
    return isPicture(one) && isPicture(other);
}

bool isAttribute(int id)
{
    constexpr int unused[] = {4, 16};
    constexpr int last = static_cast<int>(AttributeId::TextOutput);
    return id >= 1 && id <= last && std::find(std::begin(unused), std::end(unused), id) == std::end(unused);
}

} // namespace

PendingEdits::PendingEdits(QObject *parent)
    : QObject(parent)
{
    mLateTimer.setSingleShot(true);
    mLateTimer.setInterval(LateAfter);
    connect(&mLateTimer, &QTimer::timeout, this, &PendingEdits::markWhatIsLate);
}

void PendingEdits::posted(const key_id_t &key, AttributeId attribute)
{
    Entry &entry = mEntries[key];
    ++entry.underWay[attribute];
    entry.unsent.insert(attribute);
    if (!mLateTimer.isActive())
        mLateTimer.start();
}

void PendingEdits::done(const key_id_t &key, AttributeId attribute, RequestOutcome outcome)
{
    const auto found = mEntries.find(key);
    if (found == mEntries.end())
        return;
    Entry &entry = found->second;
    const auto underWay = entry.underWay.find(attribute);
    const bool isLast = underWay == entry.underWay.end() || --underWay->second <= 0;
    if (isLast)
        entry.underWay.erase(attribute);
    switch (outcome) {
    case RequestOutcome::Sent:
        if (isLast) // a later request of the same attribute has yet to bring the value of now
            entry.unsent.erase(attribute);
        forgetWhatIsCovered(entry, attribute);
        if (!entry.unsent.empty())
            return;
        setMark(key, entry, Mark::None, Cause::None);
        mEntries.erase(found);
        return;
    case RequestOutcome::NoPanel:
        return setMark(key, entry, Mark::Pending, Cause::NoPanel);
    case RequestOutcome::Failed:
        return setMark(key, entry, Mark::Failed, Cause::Refused);
    case RequestOutcome::Unreadable:
        return setMark(key, entry, Mark::Failed, Cause::Unreadable);
    case RequestOutcome::Cancelled:
        return setMark(key, entry, Mark::Failed, Cause::Cancelled);
    }
}

void PendingEdits::withdraw(const key_id_t &key, AttributeId attribute)
{
    const auto found = mEntries.find(key);
    if (found == mEntries.end())
        return;
    Entry &entry = found->second;
    entry.unsent.erase(attribute);
    if (entry.cause == Cause::Cancelled)
        setMark(key, entry, Mark::None, Cause::None);
    if (entry.unsent.empty() && entry.underWay.empty())
        mEntries.erase(found);
}

void PendingEdits::note(const key_id_t &key, const QVector<AttributeId> &attributes)
{
    if (attributes.isEmpty())
        return;
    Entry &entry = mEntries[key];
    entry.unsent.insert(attributes.cbegin(), attributes.cend());
    setMark(key, entry, Mark::Pending, Cause::NoPanel);
}

void PendingEdits::taken(const key_id_t &key)
{
    const auto found = mEntries.find(key);
    if (found == mEntries.end())
        return;
    Entry &entry = found->second;
    for (auto id = entry.unsent.begin(); id != entry.unsent.end();)
        id = entry.underWay.count(*id) == 0 ? entry.unsent.erase(id) : std::next(id);
    if (!entry.unsent.empty() || !entry.underWay.empty())
        return;
    setMark(key, entry, Mark::None, Cause::None);
    mEntries.erase(found);
}

bool PendingEdits::isUnderWay(const key_id_t &key, AttributeId attribute) const
{
    const auto entry = mEntries.find(key);
    return entry != mEntries.end() && entry->second.underWay.count(attribute) != 0;
}

/// What the panel has refused before, and has now in another way. Requests under way were posted later: they
/// count.
void PendingEdits::forgetWhatIsCovered(Entry &entry, AttributeId taken)
{
    for (auto id = entry.unsent.begin(); id != entry.unsent.end();) {
        const bool isCovered = taken == AttributeId::ClearKey || arePictures(taken, *id);
        if (isCovered && entry.underWay.count(*id) == 0)
            id = entry.unsent.erase(id);
        else
            ++id;
    }
}

void PendingEdits::forget(const key_id_t &key)
{
    const auto found = mEntries.find(key);
    if (found == mEntries.end())
        return;
    // Not what is under way: its outcomes will come, before those of the new ones. The mark stays until then,
    // too.
    found->second.unsent.clear();
}

void PendingEdits::setMark(const key_id_t &key, Entry &entry, Mark mark, Cause cause)
{
    if (entry.mark == mark && entry.cause == cause)
        return;
    entry.mark = mark;
    entry.cause = cause;
    emit sigMarkChanged(key);
}

/// Long transfers, and requests that wait behind them.
void PendingEdits::markWhatIsLate()
{
    bool areMoreUnderWay = false;
    for (auto &[key, entry] : mEntries) {
        if (entry.mark != Mark::None)
            continue;
        if (entry.isLate)
            setMark(key, entry, Mark::Pending, Cause::Late);
        else
            areMoreUnderWay = entry.isLate = true; // by the next time
    }
    if (areMoreUnderWay)
        mLateTimer.start();
}

PendingEdits::Mark PendingEdits::mark(const key_id_t &key) const
{
    const auto entry = mEntries.find(key);
    return entry == mEntries.end() ? Mark::None : entry->second.mark;
}

QString PendingEdits::reason(const key_id_t &key) const
{
    const auto entry = mEntries.find(key);
    switch (entry == mEntries.end() ? Cause::None : entry->second.cause) {
    case Cause::NoPanel:
        return tr("Waits for the panel");
    case Cause::Late:
        return tr("Waits to be sent");
    case Cause::Refused:
        return tr("The panel did not take it. It is sent again at the next connection.");
    case Cause::Unreadable:
        return tr("Its picture, video or action list cannot be read, so it was not sent.");
    case Cause::Cancelled:
        return tr("Sending was cancelled. It is sent again at the next connection.");
    case Cause::None:
        break;
    }
    return {};
}

QVector<key_id_t> PendingEdits::keys() const
{
    QVector<key_id_t> keys;
    for (const auto &entry : mEntries)
        keys.append(entry.first);
    return keys;
}

PendingEdits::Attributes PendingEdits::attributes(const key_id_t &key) const
{
    const auto entry = mEntries.find(key);
    return entry == mEntries.end() ? Attributes{} : entry->second.unsent;
}

bool PendingEdits::load()
{
    if (!QFile::exists(fileName()))
        return true;
    IniFile ini(fileName());
    ini->beginGroup(Group);
    for (const QString &name : ini->childKeys()) {
        const auto key = keyOf(name);
        if (!key)
            continue;
        Entry entry;
        for (const QString &id : ini->value(name).toString().split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            if (isAttribute(id.toInt()))
                entry.unsent.insert(static_cast<AttributeId>(id.toInt()));
        }
        if (entry.unsent.empty())
            continue;
        entry.mark = Mark::Pending;
        entry.cause = Cause::NoPanel;
        mEntries.insert_or_assign(*key, entry);
        mOnDisk = true;
        emit sigMarkChanged(*key);
    }
    return ini->status() == QSettings::NoError;
}

bool PendingEdits::save()
{
    if (mEntries.empty() && !QFile::exists(fileName()))
        return true;
    IniFile ini(fileName());
    ini->clear();
    ini->beginGroup(Group);
    for (const auto &[key, entry] : mEntries) {
        QStringList ids;
        for (const AttributeId id : entry.unsent)
            ids.append(QString::number(static_cast<int>(id)));
        ini->setValue(nameOf(key), ids.join(QLatin1Char(' ')));
    }
    ini->endGroup();
    ini->sync();
    mOnDisk = !mEntries.empty();
    return ini->status() != QSettings::AccessError;
}

bool PendingEdits::saveWhole(const QVector<key_id_t> &keys)
{
    IniFile ini(fileName());
    ini->clear();
    ini->beginGroup(Group);
    for (const key_id_t &key : keys) // clearing stands for the whole key: it is then made anew
        ini->setValue(nameOf(key), static_cast<int>(AttributeId::ClearKey));
    ini->endGroup();
    ini->sync();
    return ini->status() != QSettings::AccessError;
}
