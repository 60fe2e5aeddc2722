#include "videofiles.h"

#include "base/paths.h"
#include "model/backuprestore.h"
#include "model/ifunctionmanager.h"
#include "model/videoconversion.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

namespace {

QString say(const char *text)
{
    return QCoreApplication::translate("VideoFiles", text);
}

QString sizeText(qint64 bytes)
{
    constexpr qint64 kilobyte = 1024;
    constexpr qint64 megabyte = 1024 * 1024;
    if (bytes < megabyte / 10)
        return say(QT_TRANSLATE_NOOP("VideoFiles", "%1 KB")).arg(bytes / kilobyte + 1);
    QString number = QString::number(double(bytes) / megabyte, 'f', 1);
    if (number.endsWith(QLatin1String(".0")))
        number.chop(2);
    return say(QT_TRANSLATE_NOOP("VideoFiles", "%1 MB")).arg(number);
}

/// So that the whole stays one line.
QString shortName(const QString &name)
{
    constexpr int longest = 24;
    constexpr int kept = 10; // of its end, with the number of a copy
    return name.size() <= longest ? name
                                  : name.left(longest - kept - 3) + QStringLiteral("...") + name.right(kept);
}

/// Blocks of 57 bytes; 2 ms of pause behind each, and what writing it takes (measured: 10 % on top).
QString timeText(qint64 bytes)
{
    constexpr double secondsPerByte = 0.0022 / 57;
    const int seconds = qRound(double(bytes) * secondsPerByte);
    if (seconds < 2)
        return say(QT_TRANSLATE_NOOP("VideoFiles", "about a second"));
    if (seconds < 90)
        return say(QT_TRANSLATE_NOOP("VideoFiles", "about %1 seconds")).arg(seconds);
    return say(QT_TRANSLATE_NOOP("VideoFiles", "about %1 minutes")).arg(qRound(seconds / 60.0));
}

} // namespace

QString VideoFiles::folder()
{
    return vorlindesk::Paths::devConfigFolder() + QStringLiteral("/converted/keys");
}

QString VideoFiles::named(const QString &path, const QString &sourceName)
{
    constexpr int longestName = 60;
    const QString base = QFileInfo(sourceName).completeBaseName().left(longestName);
    const QDir dir = QFileInfo(path).dir();
    QString name = base + QStringLiteral(".avi");
    for (int number = 2; dir.exists(name); ++number)
        name = QStringLiteral("%1 (%2).avi").arg(base).arg(number);
    const QString wanted = dir.filePath(name);
    return !base.isEmpty() && QFile::rename(path, wanted) ? wanted : path;
}

namespace {

/// Also what a run has left that ended in the middle of a conversion.
void removeAllBut(const QSet<QString> &used, QDir dir)
{
    for (const QString &name :
         dir.entryList({QStringLiteral("*.avi"), QStringLiteral("*.png")}, QDir::Files)) {
        if (!used.contains(name))
            dir.remove(name);
    }
    for (const QString &name : dir.entryList({QStringLiteral("convert-*")}, QDir::Dirs))
        QDir(dir.filePath(name)).removeRecursively();
}

/// Only names that a restore gives, or gave.
void removeRestoredBut(const QSet<QString> &used, QDir dir)
{
    static const QRegularExpression pattern(QStringLiteral("^([0-9a-f]{40}|\\d+_\\d+_\\d+)\\.\\w+$"));
    if (vorlinmodel::isRestoreUnfinished())
        return;
    for (const QString &name : dir.entryList(QDir::Files)) {
        if (!used.contains(name) && pattern.match(name).hasMatch())
            dir.remove(name);
    }
}

} // namespace

void VideoFiles::removeUnused(const vorlinmodel::IFunctionManager &store)
{
    const auto keys = store.getKeys();
    if (keys.isEmpty())
        return;
    QSet<QString> used; // names alone: the data folder may have moved
    for (const vorlinmodel::key_id_t &key : keys) {
        used.insert(QFileInfo(store.getDefaultImage(key)).fileName());
        used.insert(QFileInfo(store.getDisplayImage(key)).fileName());
    }
    const QDir keysFolder(folder());
    removeAllBut(used, keysFolder);
    removeAllBut(used, QFileInfo(keysFolder.absolutePath()).dir()); // of the upload page
    removeRestoredBut(used, QDir(vorlinmodel::restoredVideoFolder()));
}

QString VideoFiles::describe(const QString &path, bool isSent)
{
    const QFileInfo file(path);
    if (!file.isFile())
        return {};
    // The name comes last: it may itself hold a "%2".
    QString text = isSent ? say(QT_TRANSLATE_NOOP("VideoFiles", "%1: %2 of at most %3, %4"))
                          : say(QT_TRANSLATE_NOOP("VideoFiles", "%1: %2 of at most %3"));
    text.replace(QLatin1String("%2"), sizeText(file.size()));
    text.replace(QLatin1String("%3"), sizeText(vorlinmodel::maxVideoBytes()));
    text.replace(QLatin1String("%4"), timeText(file.size()));
    return text.replace(QLatin1String("%1"), shortName(file.fileName()));
}
