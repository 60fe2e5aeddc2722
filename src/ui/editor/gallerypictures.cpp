#include "gallerypictures.h"

#include "base/paths.h"
#include "model/wholefile.h"
#include "ui_common/knownpicture.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace {

constexpr qint64 LargestFile = 32LL * 1024 * 1024; // bytes; keys keep no larger picture
constexpr QSize ProofSize(64, 64);

const QStringList &suffixes()
{
    static const QStringList list{QStringLiteral("png"), QStringLiteral("jpg"), QStringLiteral("jpeg"),
                                  QStringLiteral("bmp"), QStringLiteral("gif"), QStringLiteral("webp")};
    return list;
}

/// @return "png" and so on by what is in the file; empty when it is no picture of ours.
QString formatOf(const QString &path)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QString format = QString::fromLatin1(reader.format());
    return suffixes().contains(format) ? format : QString();
}

QString freePath(const QString &file, const QString &format)
{
    const QFileInfo info(file);
    // What has another ending would not be found again.
    const bool known = suffixes().contains(info.suffix().toLower());
    const QString base = known ? info.completeBaseName() : info.fileName();
    const QString suffix = known ? info.suffix() : format;
    const QDir folder(GalleryPictures::folder());
    QString name = base + QLatin1Char('.') + suffix;
    for (int number = 2; folder.exists(name); ++number)
        name = QStringLiteral("%1 (%2).%3").arg(base).arg(number).arg(suffix);
    return folder.filePath(name);
}

/// @return the path in the gallery; empty, with the reason in @p problem, when the file was not taken.
QString copyIntoGallery(const QString &file, QString &problem)
{
    const QString name = QFileInfo(file).fileName();
    if (QFileInfo(file).size() > LargestFile) {
        problem = QCoreApplication::translate("GalleryPictures", "%1 is larger than 32 MiB.").arg(name);
        return {};
    }
    if (GalleryPictures::read(file, ProofSize).isNull()) {
        problem =
            QCoreApplication::translate("GalleryPictures", "%1 is no picture that can be read.").arg(name);
        return {};
    }
    QString error;
    const QString path = freePath(file, formatOf(file));
    const auto bytes = vorlinmodel::readWholeFile(file, error, LargestFile);
    if (bytes && vorlinmodel::writeWholeFile(path, *bytes, error))
        return path;
    problem = QStringLiteral("%1: %2").arg(name, error);
    return {};
}

} // namespace

QString GalleryPictures::folder()
{
    return vorlindesk::Paths::devConfigFolder() + QStringLiteral("/gallery");
}

QStringList GalleryPictures::namePatterns()
{
    QStringList patterns;
    for (const QString &suffix : suffixes())
        patterns.append(QStringLiteral("*.") + suffix);
    return patterns;
}

QStringList GalleryPictures::paths()
{
    QStringList result;
    const QDir gallery(folder());
    for (const QString &name :
         gallery.entryList(namePatterns(), QDir::Files, QDir::Name | QDir::IgnoreCase | QDir::LocaleAware))
        result.append(gallery.absoluteFilePath(name));
    return result;
}

QImage GalleryPictures::read(const QString &path, QSize target)
{
    if (formatOf(path).isEmpty())
        return {};
    return anyPicture(path, target, Qt::KeepAspectRatioByExpanding);
}

GalleryPictures::Added GalleryPictures::add(const QStringList &files)
{
    Added added;
    vorlindesk::Paths::createPath(folder());
    for (const QString &file : files) {
        if (QFileInfo(file).absolutePath() == QDir(folder()).absolutePath())
            continue; // it is there already
        QString problem;
        const QString path = copyIntoGallery(file, problem);
        if (path.isEmpty())
            added.problems.append(problem);
        else
            added.paths.append(path);
    }
    return added;
}

bool GalleryPictures::remove(const QString &path)
{
    return QFile::moveToTrash(path) || QFile::remove(path) || !QFile::exists(path);
}
