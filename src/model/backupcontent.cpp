#include "model/backupcontent.h"

#include "backuplist.h"
#include "backuptext.h"
#include "base/paths.h"
#include "model/configbackup.h"
#include "model/multiaction.h"
#include "model/scriptcontainer.h"
#include "model/wholefile.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace vorlinmodel {

namespace Paths = vorlindesk::Paths;

namespace {

const QLatin1String ResourcePrefix(":/");
constexpr int KeysPart = 80; // percent of gathering the present state; the rest are files

// The files of a state that lie in @p folder: "devConfig", or a backup without a list.
QStringList filesIn(const QString &folder)
{
    QStringList paths;
    for (const QString &name : ConfigBackup::settingsFileNames()) {
        if (QFileInfo::exists(folder + QLatin1Char('/') + name))
            paths.append(name);
    }
    const QDir pictures(folder + QLatin1Char('/') + QLatin1String(LayoutPicturePrefix));
    for (const QString &name : pictures.entryList(QDir::Files, QDir::Name)) {
        const QString path = QLatin1String(LayoutPicturePrefix) + name;
        if (isBackupPath(path))
            paths.append(path);
    }
    return paths;
}

QDateTime timeOfName(const QString &folder)
{
    constexpr int stampLength = 15;
    return QDateTime::fromString(folder.right(stampLength), QStringLiteral("yyyyMMdd_HHmmss"));
}

/// What is known before the content is read.
BackupInfo plainInfo(const QString &folder)
{
    BackupInfo info;
    info.folder = folder;
    info.name = QFileInfo(folder).fileName();
    info.made = timeOfName(folder);
    if (!info.made.isValid())
        info.made = QFileInfo(folder).lastModified();
    return info;
}

BackupInfo listedInfo(const QString &folder, const BackupList &list)
{
    const BackupInfo plain = plainInfo(folder);
    BackupInfo info = list.info;
    info.folder = plain.folder;
    if (info.name.isEmpty())
        info.name = plain.name;
    if (!info.made.isValid())
        info.made = plain.made;
    return info;
}

class Loader
{
public:
    explicit Loader(const QString &folder)
        : mFolder(folder)
    {}

    std::optional<BackupContent> run(const BackupWatch &watch)
    {
        readList();
        for (int i = 0; i < mFiles.size(); ++i) {
            readFile(mFiles.at(i), watch.item(i, int(mFiles.size())));
            if (watch.isGivenUp())
                return std::nullopt;
        }
        if (!mContent.info.isComplete)
            mContent.info.counts = countsOf(mContent.script);
        return mContent;
    }

private:
    void readList()
    {
        mContent.info = plainInfo(mFolder);
        QString error;
        const auto bytes = readWholeFile(pathOf(QLatin1String(BackupListName)), error);
        const auto list = bytes ? decodeBackupList(*bytes) : std::nullopt;
        if (list) {
            mContent.info = listedInfo(mFolder, *list);
            mFiles = list->files;
            if (!isListed(QLatin1String(ConfigBackup::ScriptFileName)))
                mContent.damaged.append(QLatin1String(ConfigBackup::ScriptFileName));
            return;
        }
        if (bytes || QFileInfo::exists(pathOf(QLatin1String(BackupListName))))
            mContent.damaged.append(QLatin1String(BackupListName));
        mFiles.append({QLatin1String(ConfigBackup::ScriptFileName), 0, 0});
        for (const QString &path : filesIn(mFolder))
            mFiles.append({path, 0, 0});
    }

    bool isListed(const QString &path) const
    {
        return std::any_of(mFiles.begin(), mFiles.end(), [&](const auto &file) { return file.path == path; });
    }

    void readFile(const BackupListEntry &entry, const BackupWatch &watch)
    {
        QString error;
        std::optional<QByteArray> bytes;
        if (isBackupPath(entry.path))
            bytes = readWholeFile(pathOf(entry.path), error, MaxWholeFile, watch.part(0, 40));
        const BackupWatch listed = watch.part(40, 70);
        const bool isWhole =
            bytes && (!mContent.info.isComplete || backupListEntry(entry.path, *bytes, listed) == entry);
        if (bytes && entry.path == QLatin1String(ConfigBackup::ScriptFileName))
            takeScript(*bytes, isWhole, watch.part(70, 70));
        else if (isWhole)
            mContent.files.insert(entry.path, *bytes);
        else
            mContent.damaged.append(entry.path);
    }

    // The script has checksums of its own, which tell more closely what is damaged.
    void takeScript(const QByteArray &bytes, bool isWhole, const BackupWatch &watch)
    {
        mContent.scriptBytes = bytes;
        mContent.script = parseScript(bytes, watch);
        for (const QString &name : mContent.script.damaged)
            mContent.damaged.append(QLatin1String(ConfigBackup::ScriptFileName) + QLatin1String(": ") + name);
        if (!isWhole && mContent.script.damaged.isEmpty())
            mContent.damaged.append(QLatin1String(ConfigBackup::ScriptFileName));
    }

    QString pathOf(const QString &path) const { return mFolder + QLatin1Char('/') + path; }

    QString mFolder;
    QVector<BackupListEntry> mFiles;
    BackupContent mContent;
};

// @return false when it was given up.
bool readPresentFiles(BackupContent &content, const BackupWatch &watch)
{
    const QStringList paths = filesIn(Paths::devConfigFolder());
    for (int i = 0; i < paths.size(); ++i) {
        QString reason;
        const QString path = Paths::devConfigFolder() + QLatin1Char('/') + paths.at(i);
        const BackupWatch item = watch.item(i, int(paths.size()));
        if (const auto bytes = readWholeFile(path, reason, MaxWholeFile, item))
            content.files.insert(paths.at(i), *bytes);
        else if (watch.isGivenUp())
            return false;
        else
            content.error = BackupText::notReadable(path, reason);
    }
    return true;
}

} // namespace

BackupCounts countsOf(const Script &script)
{
    BackupCounts counts;
    QSet<int> layouts;
    for (const PagePayload &page : script.pages) {
        layouts.insert(page.layoutId);
        ++counts.pages;
        counts.keys += int(page.records.size());
    }
    counts.layouts = int(layouts.size());
    for (const ScriptKey &key : script.keys) {
        const bool isOwn = key.customImage && !key.resource.startsWith(ResourcePrefix);
        counts.pictures += isOwn && !(key.picture.isEmpty() && key.pictureFile.isEmpty()) ? 1 : 0;
        counts.videos += key.video.isEmpty() ? 0 : 1;
    }
    return counts;
}

std::optional<BackupContent> presentContent(const IFunctionManager &store, const BackupWatch &watch)
{
    BackupContent content;
    content.info.made = QDateTime::currentDateTime();
    content.info.isComplete = true;
    auto script = collectScript(store, multiActionStore(), watch.part(0, KeysPart), content.leftOut);
    if (!script || !readPresentFiles(content, watch.part(KeysPart, 100)))
        return std::nullopt;
    content.script = std::move(*script);
    content.scriptBytes = encodeScript(content.script, watch.part(100, 100));
    if (watch.isGivenUp())
        return std::nullopt;
    content.info.counts = countsOf(content.script);
    return content;
}

std::optional<BackupContent> loadBackup(const QString &folder, const BackupWatch &watch)
{
    return Loader(folder).run(watch);
}

BackupInfo backupInfo(const QString &folder, const BackupWatch &watch)
{
    QString error;
    const auto bytes = readWholeFile(folder + QLatin1Char('/') + QLatin1String(BackupListName), error);
    if (const auto list = bytes ? decodeBackupList(*bytes) : std::nullopt)
        return listedInfo(folder, *list);
    BackupInfo info = plainInfo(folder);
    const QString path = folder + QLatin1Char('/') + QLatin1String(ConfigBackup::ScriptFileName);
    const auto script = readWholeFile(path, error, MaxWholeFile, watch);
    info.counts = script ? countsOf(parseScript(*script, watch)) : BackupCounts{};
    return info;
}

} // namespace vorlinmodel
