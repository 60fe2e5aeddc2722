#include "paths.h"

#include "log.h"
#include "logtext.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <algorithm>

namespace vorlindesk::Paths {
namespace {

QString belowCurrent(const char *name)
{
    return QDir::currentPath() + QLatin1String(name);
}

QString besideExecutable(const char *name)
{
    return QCoreApplication::applicationDirPath() + QLatin1Char('/') + QLatin1String(name);
}

/// Tries it, since the permission bits alone say little on Windows, and nothing to an administrator.
bool canWriteInto(const QString &folder)
{
    QTemporaryFile probe(folder + QLatin1String("/vorlin_XXXXXX"));
    return probe.open();
}

bool makeCurrent(const QString &folder)
{
    return !folder.isEmpty() && QDir().mkpath(folder) && canWriteInto(folder) && QDir::setCurrent(folder);
}

} // namespace

QString devConfigFolder()
{
    return belowCurrent("/devConfig");
}

QString systemIni()
{
    return belowCurrent("/devConfig/system.ini");
}

QString customLayoutIni()
{
    return belowCurrent("/devConfig/customLayout.ini");
}

QString multiActionsJson()
{
    return belowCurrent("/devConfig/multiActions.json");
}

QString imageFolder()
{
    return belowCurrent("/devConfig/image");
}

QString imageUrlIni()
{
    return belowCurrent("/devConfig/image/imageUrl.ini");
}

QString logFolder()
{
    return belowCurrent("/log");
}

QString keyPicture(int layoutId, int pageId, int keyId)
{
    return imageFolder() + QStringLiteral("/%1_%2_%3.png").arg(layoutId).arg(pageId).arg(keyId);
}

QString deviceIni()
{
    return besideExecutable("quorradent_md.ini");
}

QString ffmpegTool()
{
    return besideExecutable("ffmpeg.dll");
}

bool createPath(const QString &folder)
{
    if (QDir(folder).exists())
        return true;
    const bool made = QDir().mkpath(folder);
    if (made)
        Log(LogLevel::Info, LogText::CreatePathSuccess, qUtf8Printable(folder));
    else
        Log(LogLevel::Error, LogText::CreatePathFail, qUtf8Printable(folder));
    return made;
}

QString createRuntimePath()
{
    const QStringList locations = QStandardPaths::standardLocations(QStandardPaths::RuntimeLocation);
    const QString parent = locations.isEmpty() ? QDir::tempPath() : locations.first();
    QString path = parent + QLatin1String("/vorlin_usb_desk");
    Log(LogLevel::Info, LogText::CreateRuntimePath, static_cast<int>(locations.size()), qUtf8Printable(path));
    createPath(path);
    return path;
}

bool chooseCurrentDirectory(const QString &dataDir)
{
    return chooseCurrentDirectory(dataDir,
                                  {QCoreApplication::applicationDirPath(),
                                   QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)});
}

bool chooseCurrentDirectory(const QString &dataDir, const QStringList &fallbacks)
{
    // A folder that was asked for is never replaced by another: the user would look for the files in vain.
    const QStringList candidates = dataDir.isEmpty() ? fallbacks : QStringList{dataDir};
    if (std::any_of(candidates.begin(), candidates.end(), makeCurrent))
        return true;
    Log(LogLevel::Error, LogText::NoUsableFolder, qUtf8Printable(candidates.join(QLatin1String(", "))));
    return false;
}

} // namespace vorlindesk::Paths
