#include "backuplist.h"

#include "crc32.h"
#include "model/configbackup.h"

#include <QRegularExpression>
#include <array>

namespace vorlinmodel {

namespace {

constexpr char FirstLine[] = "vorlindesk backup 1\n";
constexpr char AnyFirstLine[] = "vorlindesk backup "; // a newer version has more lines, none that differ
constexpr int EndLineSize = 13;                       // "end 0123abcd\n"
constexpr int MaxName = 80;                           // characters

constexpr std::array Reasons = {"person", "automatic", "safety"}; // in the order of BackupReason

QByteArray hex(quint32 value)
{
    return QByteArray::number(value, 16).rightJustified(8, '0');
}

QByteArray endLine(const QByteArray &before)
{
    return "end " + hex(crc32(before)) + '\n';
}

BackupReason reasonOf(const QByteArray &word)
{
    for (std::size_t i = 0; i < Reasons.size(); ++i) {
        if (word == Reasons.at(i))
            return static_cast<BackupReason>(i);
    }
    return BackupReason::Person; // which is never removed by itself
}

BackupCounts countsIn(const QByteArray &text)
{
    QList<QByteArray> words = text.split(' ');
    const auto next = [&words] {
        return words.isEmpty() ? 0 : words.takeFirst().toInt();
    };
    BackupCounts counts;
    for (int *pCount : {&counts.layouts, &counts.pages, &counts.keys, &counts.pictures, &counts.videos})
        *pCount = next();
    return counts;
}

// "0a1b2c3d 44 layouts/a b.png"
BackupListEntry entryIn(const QByteArray &text)
{
    const int size = text.indexOf(' ') + 1;
    const int path = text.indexOf(' ', size) + 1;
    return {QString::fromUtf8(text.mid(path)), text.mid(size, path - size - 1).toLongLong(),
            text.left(size - 1).toUInt(nullptr, 16)};
}

void takeLine(BackupList &list, const QByteArray &line)
{
    const int blank = line.indexOf(' ');
    const QByteArray word = line.left(blank);
    const QByteArray rest = line.mid(blank + 1);
    if (word == "made")
        list.info.made = QDateTime::fromString(QString::fromLatin1(rest), Qt::ISODate);
    else if (word == "reason")
        list.info.reason = reasonOf(rest);
    else if (word == "name")
        list.info.name = QString::fromUtf8(rest);
    else if (word == "counts")
        list.info.counts = countsIn(rest);
    else if (word == "file")
        list.files.append(entryIn(rest));
}

} // namespace

BackupListEntry backupListEntry(const QString &path, const QByteArray &bytes, const BackupWatch &watch)
{
    return {path, bytes.size(), crc32(bytes, watch)};
}

QByteArray encodeBackupList(const BackupList &list)
{
    const BackupCounts &counts = list.info.counts;
    QByteArray text = FirstLine;
    text += "made " + list.info.made.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss")).toLatin1() + '\n';
    text += QByteArray("reason ") + Reasons.at(static_cast<std::size_t>(list.info.reason)) + '\n';
    const QString name = list.info.name.simplified().left(MaxName); // in one line
    if (!name.isEmpty())
        text += "name " + name.toUtf8() + '\n';
    text += "counts";
    for (const int count : {counts.layouts, counts.pages, counts.keys, counts.pictures, counts.videos})
        text += ' ' + QByteArray::number(count);
    text += '\n';
    for (const BackupListEntry &file : list.files)
        text += "file " + hex(file.checksum) + ' ' + QByteArray::number(file.size) + ' ' +
                file.path.toUtf8() + '\n';
    return text + endLine(text);
}

std::optional<BackupList> decodeBackupList(const QByteArray &bytes)
{
    const QByteArray lines = bytes.chopped(qMin(EndLineSize, bytes.size()));
    if (!lines.startsWith(AnyFirstLine) || bytes.mid(lines.size()) != endLine(lines))
        return std::nullopt;
    BackupList list;
    list.info.isComplete = true;
    for (const QByteArray &line : lines.split('\n'))
        takeLine(list, line);
    return list;
}

bool isBackupPath(const QString &path)
{
    // No separators, drives or streams of any system, and no hidden names, "." and ".." among them.
    static const QRegularExpression layoutPicture(QStringLiteral("^layouts/[^./\\\\:\\n][^/\\\\:\\n]*$"));
    return path == QLatin1String(ConfigBackup::ScriptFileName) ||
           ConfigBackup::settingsFileNames().contains(path) || layoutPicture.match(path).hasMatch();
}

} // namespace vorlinmodel
