// Files beside "customLayout.ini": its copies, and the backgrounds of layouts.
#include "base/paths.h"
#include "model/customlayouts.h"
#include "model/wholefile.h"

#include <QDir>
#include <QMap>
#include <QRegularExpression>

namespace vorlinmodel {

namespace {

constexpr int MostCopies = 10;

QDir devConfig()
{
    return QDir(vorlindesk::Paths::devConfigFolder());
}

/// The first one has no number.
QString copyName(int number)
{
    const QString aside = vorlindesk::Paths::customLayoutIni() + QStringLiteral(".before");
    return number == 1 ? aside : aside + QString::number(number);
}

/// @return the copies that are there, by number: the newest one is the last.
QMap<int, QString> keptCopies()
{
    static const QRegularExpression own(QStringLiteral("^customLayout\\.ini\\.before(\\d{0,8})$"));
    QMap<int, QString> copies;
    for (const QString &name : devConfig().entryList(QDir::Files)) {
        const auto match = own.match(name);
        const int number = match.captured(1).isEmpty() ? 1 : match.captured(1).toInt();
        if (match.hasMatch() && name == QFileInfo(copyName(number)).fileName()) // not ".before02"
            copies.insert(number, copyName(number));
    }
    return copies;
}

/// The file and what was kept of it, under whichever name: who goes back to a copy wants its backgrounds,
/// too.
std::optional<QByteArray> allLayoutTexts()
{
    QString error;
    auto texts = readWholeFile(vorlindesk::Paths::customLayoutIni(), error);
    for (const QString &name : devConfig().entryList({QStringLiteral("customLayout.ini.*")}, QDir::Files)) {
        const auto copy = readWholeFile(devConfig().filePath(name), error);
        if (!texts || !copy)
            return std::nullopt;
        *texts += *copy;
    }
    return texts;
}

} // namespace

bool keepCustomLayoutFile()
{
    QString error;
    if (!QFile::exists(vorlindesk::Paths::customLayoutIni()))
        return true;
    const auto bytes = readWholeFile(vorlindesk::Paths::customLayoutIni(), error);
    if (!bytes)
        return false;
    QMap<int, QString> copies = keptCopies();
    if (!copies.isEmpty() && readWholeFile(copies.last(), error) == bytes)
        return true;
    if (!writeWholeFile(copyName(copies.isEmpty() ? 1 : copies.lastKey() + 1), *bytes, error))
        return false;
    while (copies.size() >= MostCopies)
        QFile::remove(copies.take(copies.firstKey()));
    return true;
}

QString layoutPictureFolder()
{
    return vorlindesk::Paths::devConfigFolder() + QStringLiteral("/layouts");
}

void removeUnusedLayoutPictures()
{
    static const QRegularExpression own(QStringLiteral("^[0-9a-f]{40}\\.png$")); // see keepBackground()
    const QDir folder(layoutPictureFolder());
    const QStringList pictures = folder.entryList(QDir::Files).filter(own);
    const auto texts = pictures.isEmpty() ? std::nullopt : allLayoutTexts();
    if (!texts)
        return;
    for (const QString &picture : pictures) {
        if (!texts->contains(picture.toLatin1()))
            QFile::remove(folder.filePath(picture));
    }
}

} // namespace vorlinmodel
