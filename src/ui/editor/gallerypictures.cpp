#include "gallerypictures.h"

#include "base/paths.h"
#include "galleryadding.h"
#include "galleryfile.h"
#include "model/picturecheck.h"
#include "ui_common/knownpicture.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>

namespace {

QStringList patterns(std::initializer_list<const char *> suffixes)
{
    QStringList list;
    for (const char *suffix : suffixes)
        list.append(QStringLiteral("*.") + QLatin1String(suffix));
    return list;
}

} // namespace

QString GalleryPictures::folder()
{
    return vorlindesk::Paths::devConfigFolder() + QStringLiteral("/gallery");
}

QStringList GalleryPictures::namePatterns()
{
    return patterns({"png", "jpg", "jpeg", "bmp", "gif", "webp"});
}

QStringList GalleryPictures::videoNamePatterns()
{
    return patterns({"mp4", "mov", "webm", "gif", "avi"});
}

QImage GalleryPictures::read(const QString &path, QSize target)
{
    if (GalleryFile::pictureFormat(path).isEmpty())
        return {};
    return anyPicture(path, target, Qt::KeepAspectRatioByExpanding);
}

GalleryPictures::Added GalleryPictures::add(const QStringList &files)
{
    const std::atomic<bool> never = false;
    return GalleryAdding::add(files, {.cancelled = never});
}

GalleryPictures::Added GalleryPictures::addImage(const QImage &image, const QString &name)
{
    QBuffer png;
    const int side = qMax(image.width(), image.height());
    if (side > vorlinmodel::MaxPictureSide || !image.save(&png, "PNG"))
        return {
            .paths = {},
            .problems = {QCoreApplication::translate("GalleryPictures", "This picture cannot be added.")}};
    QString problem;
    png.open(QIODevice::ReadOnly);
    const bool ends = name.endsWith(QLatin1String(".png"), Qt::CaseInsensitive);
    const QString path = GalleryAdding::store(png, ends ? name : name + QLatin1String(".png"), problem, {});
    return path.isEmpty() ? Added{{}, {problem}} : Added{{path}, {}};
}

bool GalleryPictures::remove(const QString &path)
{
    return QFile::moveToTrash(path) || QFile::remove(path) || !QFile::exists(path);
}
