#include "backupswitch.h"

#include "backuptext.h"
#include "base/log.h"
#include "base/paths.h"
#include "crc32.h"
#include "wholefile.h"

#include <QDir>
#include <QFileInfo>
#include <QVector>
#include <optional>

namespace vorlinmodel::BackupSwitch {

using vorlindesk::Log;
using vorlindesk::LogLevel;

namespace {

namespace LogText {
constexpr char Finished[] = "restore: finished after an interruption\n";
constexpr char TakenBack[] = "restore: taken back after an interruption\n";
constexpr char NotMoved[] = "restore: [%s] not moved to [%s]: %s\n";
constexpr char NotRemoved[] = "restore: [%s] not removed\n";
constexpr char JournalDamaged[] = "restore: journal [%s] damaged, the state from before is put back\n";
} // namespace LogText

constexpr char FirstLine[] = "vorlindesk restore 1";
constexpr char SharedFolder[] = "video"; // whose files are exchanged one by one
constexpr char Forward[] = "forward";
constexpr char Back[] = "back";

struct Entry
{
    QString name;
    bool wasThere = false; ///< in "devConfig", before
    bool isNew = false;    ///< in the new folder, before
};

struct Journal
{
    bool isForward = true;
    QVector<Entry> entries;
};

QString restoreFolder()
{
    return vorlindesk::Paths::devConfigFolder() + QStringLiteral("/restore");
}

QString journalPath()
{
    return restoreFolder() + QStringLiteral("/journal.txt");
}

QString presentPath(const QString &name)
{
    return vorlindesk::Paths::devConfigFolder() + QLatin1Char('/') + name;
}

QString newPath(const QString &name)
{
    return newFolder() + QLatin1Char('/') + name;
}

QString oldFolder()
{
    return restoreFolder() + QStringLiteral("/old");
}

QString oldPath(const QString &name)
{
    return oldFolder() + QLatin1Char('/') + name;
}

bool exists(const QString &path)
{
    return QFileInfo::exists(path);
}

bool removeEntry(const QString &path)
{
    const bool removed = QFileInfo(path).isDir() ? QDir(path).removeRecursively() : QFile::remove(path);
    if (!removed && exists(path))
        Log(LogLevel::Error, LogText::NotRemoved, qUtf8Printable(path));
    return removed || !exists(path);
}

/// An entry may lie in a folder that is not there yet.
bool move(const QString &from, const QString &to, QString &error)
{
    QDir().mkpath(QFileInfo(to).path());
    if (renameWhole(from, to, error))
        return true;
    Log(LogLevel::Error, LogText::NotMoved, qUtf8Printable(from), qUtf8Printable(to), qUtf8Printable(error));
    return false;
}

QByteArray encode(const Journal &journal)
{
    QByteArray text = QByteArray(FirstLine) + '\n' + (journal.isForward ? Forward : Back) + '\n';
    for (const Entry &entry : journal.entries)
        text += QByteArray::number(entry.wasThere) + ' ' + QByteArray::number(entry.isNew) + ' ' +
                entry.name.toUtf8() + '\n';
    return text + QByteArray::number(crc32(text), 16);
}

std::optional<Journal> decode(const QByteArray &bytes)
{
    const int end = bytes.lastIndexOf('\n') + 1;
    const QList<QByteArray> lines = bytes.left(end).split('\n');
    if (bytes.mid(end) != QByteArray::number(crc32(bytes.left(end)), 16) || lines.first() != FirstLine)
        return std::nullopt;
    Journal journal;
    journal.isForward = lines.value(1) == Forward;
    constexpr int nameColumn = 4;
    for (const QByteArray &line : lines.mid(2)) {
        if (line.size() > nameColumn)
            journal.entries.append(
                {QString::fromUtf8(line.mid(nameColumn)), line.at(0) == '1', line.at(2) == '1'});
    }
    return journal;
}

// Only a disk that fails damages it. What has been moved aside tells which entries were exchanged.
Journal journalFromFolders()
{
    Log(LogLevel::Error, LogText::JournalDamaged, qUtf8Printable(journalPath()));
    Journal journal;
    journal.isForward = false;
    const auto filter = QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden;
    const QStringList names = QDir(oldFolder()).entryList(filter);
    for (const QString &name : names) {
        if (name != QLatin1String(SharedFolder))
            journal.entries.append({name, true, false});
    }
    const QString shared = QLatin1String(SharedFolder) + QLatin1Char('/');
    for (const QString &name : QDir(oldPath(shared)).entryList(filter))
        journal.entries.append({shared + name, true, false});
    return journal;
}

bool write(const Journal &journal, QString &error)
{
    return writeWholeFile(journalPath(), encode(journal), error);
}

// Each of the two may be called again at any stage of the entry: only what is still missing is done.
bool exchange(const Entry &entry, QString &error)
{
    const QString present = presentPath(entry.name);
    if (entry.isNew && !exists(newPath(entry.name)))
        return true;
    if (exists(oldPath(entry.name))) {
        // An interrupted program left the place free; what stands there now is no part of either state.
        if (entry.isNew && exists(present) && !removeEntry(present))
            return false;
    } else if (exists(present) && !move(present, oldPath(entry.name), error)) {
        return false;
    }
    return !entry.isNew || move(newPath(entry.name), present, error);
}

bool takeBack(const Entry &entry, QString &error)
{
    const QString present = presentPath(entry.name);
    const bool isMovedAside = exists(oldPath(entry.name));
    const bool isExchanged = entry.isNew && !exists(newPath(entry.name));
    if (isExchanged && exists(present) && (isMovedAside || !entry.wasThere)) {
        if (!move(present, newPath(entry.name), error))
            return false;
    } else if (isMovedAside && exists(present) && !removeEntry(present)) {
        return false;
    }
    return !isMovedAside || move(oldPath(entry.name), present, error);
}

// The journal goes first: without it the rest is of no meaning.
void finish()
{
    if (removeEntry(journalPath()))
        discard();
}

bool goForward(const Journal &journal, QString &error)
{
    QDir().mkpath(oldFolder());
    for (const Entry &entry : journal.entries) {
        if (!exchange(entry, error))
            return false;
    }
    return true;
}

bool goBack(Journal journal, QString &error)
{
    journal.isForward = false;
    QString noted; // a journal that stays "forward" would, after a kill, be finished: also a whole state
    write(journal, noted);
    bool done = true;
    for (const Entry &entry : journal.entries)
        done = takeBack(entry, error) && done;
    return done;
}

} // namespace

QString newFolder()
{
    return restoreFolder() + QStringLiteral("/new");
}

bool prepare(QString &error)
{
    if (recover() == Recovery::NotPossible) {
        error = BackupText::unfinished(restoreFolder());
        return false;
    }
    // What an earlier switch put aside would be taken for this one's, should it stay.
    if (!discard()) {
        error = BackupText::notRemoved(restoreFolder());
        return false;
    }
    if (QDir().mkpath(newFolder()))
        return true;
    error = BackupText::notWritten(newFolder(), QString());
    return false;
}

bool discard()
{
    return !exists(restoreFolder()) || removeEntry(restoreFolder());
}

bool run(const QStringList &names, QString &error)
{
    if (names.isEmpty()) { // nothing differs
        discard();
        return true;
    }
    Journal journal;
    for (const QString &name : names)
        journal.entries.append({name, exists(presentPath(name)), exists(newPath(name))});
    QString reason;
    if (!write(journal, reason)) {
        error = BackupText::notWritten(journalPath(), reason);
        return false;
    }
    if (goForward(journal, reason)) {
        finish();
        return true;
    }
    error = BackupText::notSwitched(vorlindesk::Paths::devConfigFolder(), reason);
    if (goBack(journal, reason))
        finish();
    else
        error = BackupText::unfinished(restoreFolder());
    return false;
}

Recovery recover()
{
    if (!exists(journalPath())) {
        discard();
        return Recovery::Nothing;
    }
    QString error;
    const auto bytes = readWholeFile(journalPath(), error);
    const Journal journal = (bytes ? decode(*bytes) : std::nullopt).value_or(Journal{});
    const Journal use = journal.entries.isEmpty() ? journalFromFolders() : journal;
    if (use.isForward && goForward(use, error)) {
        finish();
        Log(LogLevel::Warn, LogText::Finished);
        return Recovery::Finished;
    }
    if (!goBack(use, error))
        return Recovery::NotPossible;
    finish();
    Log(LogLevel::Warn, LogText::TakenBack);
    return Recovery::TakenBack;
}

} // namespace vorlinmodel::BackupSwitch
