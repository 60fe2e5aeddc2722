#include "galleryadding.h"

#include "galleryvideo.h"
#include "model/picturecheck.h"
#include "ui_common/knownpicture.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QTemporaryFile>

using GalleryAdding::Control;
using vorlinmodel::ConversionError;

namespace {

constexpr qint64 LargestPicture = 32LL * 1024 * 1024; // bytes; keys keep no larger one
constexpr qint64 ChunkSize = 1024 * 1024;             // bytes between two looks at whether to go on

struct Candidate
{
    QString path;
    bool named = true; ///< by the person; false when it was only found in a folder
};

struct Verdict
{
    QString problem; ///< empty: it can be taken
    bool isMedia = true;
    QImage frame = {};   ///< of a video
    QString format = {}; ///< of a picture: its usual ending
};

QString text(const char *source)
{
    return QCoreApplication::translate("GalleryPictures", source);
}

bool isInGallery(const QString &path)
{
    const QString gallery = QDir(GalleryPictures::folder()).absolutePath();
    const QString absolute = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    return absolute == gallery || absolute.startsWith(gallery + QLatin1Char('/'));
}

/// Links are not followed: they may lead round in a circle.
void gatherFolder(const QString &folder, std::vector<Candidate> &found, const std::atomic<bool> &cancelled)
{
    QDirIterator files(folder, QDir::Files | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (files.hasNext() && found.size() <= GalleryAdding::MostFiles && !cancelled) {
        const QString path = files.next();
        if (!isInGallery(path))
            found.push_back({path, false});
    }
}

std::vector<Candidate> gather(const QStringList &files, const std::atomic<bool> &cancelled, QString &problem)
{
    std::vector<Candidate> found;
    for (const QString &file : files) {
        if (isInGallery(file))
            continue; // it is there already
        if (QFileInfo(file).isDir())
            gatherFolder(file, found, cancelled);
        else
            found.push_back({file, true});
    }
    if (found.size() > GalleryAdding::MostFiles) {
        found.resize(GalleryAdding::MostFiles);
        problem = text(QT_TRANSLATE_NOOP("GalleryPictures", "Only the first %1 files were looked at."))
                      .arg(GalleryAdding::MostFiles);
    }
    return found;
}

Verdict refused(ConversionError error, const QString &path)
{
    return {.problem = vorlinmodel::conversionFailure(error, path).reason};
}

Verdict judgeVideo(const QString &path, const Control &control)
{
    GalleryFrameResult look = galleryFirstFrame(path, control.cancelled, control.tool);
    if (look.error == ConversionError::None || look.error == ConversionError::NoTool)
        return {.problem = {}, .frame = look.frame}; // without the tool the content has to do
    return refused(look.error, path);
}

Verdict judgePicture(const QString &path)
{
    if (QFileInfo(path).size() > LargestPicture)
        return {.problem = text(QT_TRANSLATE_NOOP("GalleryPictures", "\"%1\" is larger than 32 MiB."))
                               .replace(QLatin1String("%1"), QFileInfo(path).fileName())};
    // It is decoded: a head that looks well may stand before anything.
    const QSize proof(GalleryFile::ThumbnailSide, GalleryFile::ThumbnailSide);
    if (anyPicture(path, proof, Qt::KeepAspectRatio).isNull())
        return refused(ConversionError::Damaged, path);
    return {.problem = {}, .format = GalleryFile::pictureFormat(path)};
}

Verdict judge(const QString &path, const Control &control)
{
    const vorlinmodel::PictureCheck check = vorlinmodel::checkPicture(path);
    if (check.error == ConversionError::NotReadable) // also a pipe, which must not be opened
        return refused(check.error, path);
    if (!check.video &&
        GalleryFile::pictureFormat(path).isEmpty()) // the name last: it may hold a "%1" of its own
        return {.problem = text(QT_TRANSLATE_NOOP("GalleryPictures",
                                                  "\"%1\" is no picture or video that can be read."))
                               .replace(QLatin1String("%1"), QFileInfo(path).fileName()),
                .isMedia = false};
    if (check.error != ConversionError::None)
        return refused(check.error, path);
    return check.video ? judgeVideo(path, control) : judgePicture(path);
}

/// Other programs go by the ending, so a picture gets one that it can have.
QString nameFor(const QString &path, const QString &format)
{
    const QFileInfo info(path);
    const QString pattern = QStringLiteral("*.") + info.suffix().toLower();
    const bool fits = format.isEmpty() || GalleryPictures::namePatterns().contains(pattern);
    return fits ? info.fileName() : info.fileName() + QLatin1Char('.') + format;
}

/// Hidden files are not shown in the gallery, and a name is no path.
QString visibleName(QString name)
{
    name.replace(QLatin1Char('/'), QLatin1Char('_')).replace(QLatin1Char('\\'), QLatin1Char('_'));
    while (name.startsWith(QLatin1Char('.')))
        name.remove(0, 1);
    return name.isEmpty() ? QStringLiteral("_") : name;
}

QString copyError(const QString &name, const QString &reason)
{
    return QStringLiteral("\"%1\": %2").arg(name, reason);
}

/// @return whether all of it was copied and may stay. Flushed here: closing tells nothing of a full disk.
bool copy(QIODevice &source, QFile &target, const std::function<bool()> &proceed, QString &error)
{
    while (!source.atEnd()) {
        if (proceed && !proceed())
            return false;
        const QByteArray chunk = source.read(ChunkSize);
        if (chunk.isEmpty()) {
            error = source.errorString();
            return false;
        }
        if (target.write(chunk) != chunk.size() || !target.flush()) {
            error = target.errorString();
            return false;
        }
    }
    return true;
}

/// Renaming takes no name that is in use, so two who add at the same time do not take one from the other.
QString moveToFreeName(const QString &file, const QString &name, QString &error)
{
    const QFileInfo info(name);
    const QString suffix = info.suffix().isEmpty() ? QString() : QLatin1Char('.') + info.suffix();
    const QDir folder(GalleryPictures::folder());
    QFile moved(file);
    QString free = name;
    for (int number = 2; !moved.rename(folder.filePath(free)); ++number) {
        if (!folder.exists(free)) {
            error = moved.errorString();
            return {};
        }
        free = QStringLiteral("%1 (%2)%3").arg(info.completeBaseName(), QString::number(number), suffix);
    }
    return folder.absoluteFilePath(free);
}

bool addOne(const Candidate &candidate, GalleryPictures::Added &added, const Control &control)
{
    const Verdict verdict = judge(candidate.path, control);
    if (control.cancelled)
        return false;
    if (!verdict.problem.isEmpty()) {
        if (verdict.isMedia || candidate.named)
            added.problems.append(verdict.problem);
        return verdict.isMedia;
    }
    QFile source(candidate.path);
    QString problem;
    if (!source.open(QIODevice::ReadOnly)) {
        added.problems.append(copyError(QFileInfo(source).fileName(), source.errorString()));
        return true;
    }
    const QString path = GalleryAdding::store(source, nameFor(candidate.path, verdict.format), problem,
                                              [&control] { return !control.cancelled; });
    if (!problem.isEmpty())
        added.problems.append(problem);
    if (path.isEmpty())
        return true;
    added.paths.append(path);
    if (!verdict.frame.isNull())
        GalleryFile::keep(GalleryFile::look(QFileInfo(path)), verdict.frame);
    return true;
}

} // namespace

GalleryPictures::Added GalleryAdding::add(const QStringList &files, const Control &control)
{
    GalleryPictures::Added added;
    QString tooMany;
    const std::vector<Candidate> candidates = gather(files, control.cancelled, tooMany);
    bool anyMedia = false;
    int done = 0;
    for (const Candidate &candidate : candidates) {
        if (control.cancelled)
            break;
        anyMedia = addOne(candidate, added, control) || anyMedia;
        if (control.progress)
            control.progress(++done, int(candidates.size()));
    }
    const bool onlyFolders = added.problems.isEmpty() && !anyMedia && !control.cancelled;
    if (onlyFolders && std::any_of(files.begin(), files.end(), [](const QString &file) {
            return QFileInfo(file).isDir() && !isInGallery(file);
        }))
        added.problems.append(
            text(QT_TRANSLATE_NOOP("GalleryPictures", "There are no pictures or videos in this folder.")));
    if (!tooMany.isEmpty())
        added.problems.prepend(tooMany);
    return added;
}

/// @return the path of the copy, which is whole; empty when there is none. Its handle is closed by then,
/// which takes the end of the QTemporaryFile: Windows moves no file that is open.
static QString copyAside(QIODevice &source, const std::function<bool()> &proceed, QString &error)
{
    QTemporaryFile target(GalleryFile::cacheFolder() + QStringLiteral("/incoming-XXXXXX"));
    if (!target.open()) {
        error = target.errorString();
        return {};
    }
    if (!copy(source, target, proceed, error))
        return {};
    // Private until now; the gallery's files are as readable as any other.
    target.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    target.setAutoRemove(false);
    return target.fileName();
}

QString GalleryAdding::store(QIODevice &source, const QString &wanted, QString &problem,
                             const std::function<bool()> &proceed)
{
    QString error;
    const QString name = visibleName(wanted);
    vorlindesk::Paths::createPath(GalleryFile::cacheFolder());
    const QString incoming = copyAside(source, proceed, error);
    const QString path = incoming.isEmpty() ? QString() : moveToFreeName(incoming, name, error);
    if (path.isEmpty())
        QFile::remove(incoming);
    if (!error.isEmpty())
        problem = copyError(name, error);
    return path;
}
