#include "model/picturefolder.h"

#include "base/log.h"
#include "base/paths.h"
#include "model/keyid.h"
#include "storelogtext.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace vorlinmodel {

namespace Paths = vorlindesk::Paths;

namespace {

/// A write-protected file would be refused later; like one that is removed first, it does not count.
void makeReplaceable(const QString &path)
{
    const QFileInfo standing(path);
    if (!standing.exists())
        return;
    const bool replaceable =
        standing.isFile() &&
        (standing.isWritable() ||
         QFile::setPermissions(path, standing.permissions() | QFile::ReadOwner | QFile::WriteOwner));
    if (!replaceable)
        vorlindesk::Log(vorlindesk::LogLevel::Warn, LogText::RemoveFailed, qUtf8Printable(path));
}

} // namespace

bool emptyPictureFolder()
{
    QDir(Paths::imageFolder()).removeRecursively();
    return Paths::createPath(Paths::imageFolder()) && QDir(Paths::imageFolder()).isEmpty();
}

void removePagePictures(int layoutId, int pageId)
{
    for (int keyId = FirstKeyId; keyId <= LastKeyId; ++keyId)
        QFile::remove(Paths::keyPicture(layoutId, pageId, keyId));
}

QString keptPictureFolder()
{
    return Paths::devConfigFolder() + QStringLiteral("/pictures");
}

QString keptPicturePath(const QByteArray &picture)
{
    const QByteArray name = QCryptographicHash::hash(picture, QCryptographicHash::Sha1).toHex();
    return keptPictureFolder() + QLatin1Char('/') + QString::fromLatin1(name);
}

bool replacePicture(const QString &path, const QImage &image)
{
    Paths::createPath(QFileInfo(path).path());
    makeReplaceable(path);
    QSaveFile file(path);
    // Flushed here, since commit() does not notice when the rest of the buffer finds a full disk.
    return file.open(QIODevice::WriteOnly) && image.save(&file, "PNG") && file.flush() && file.commit();
}

} // namespace vorlinmodel
