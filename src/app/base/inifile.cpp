#include "systemsettings.h"

#include "log.h"
#include "logtext.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <map>
#include <mutex>

namespace vorlindesk {
namespace {

/// Every access opens its file anew, so a bad one would be met again and again.
/// @return true for the first meeting with @p path in its present state.
bool isNews(const QString &path)
{
    static std::mutex mutex;
    static QSet<QString> known;
    const QFileInfo info(path);
    const QString state =
        QStringLiteral("%1|%2|%3").arg(path).arg(info.size()).arg(info.lastModified().toMSecsSinceEpoch());
    const std::lock_guard lock(mutex);
    const auto before = known.size();
    known.insert(state);
    return known.size() > before;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// @return where @p path is to be kept: "name.damaged", with a time stamp when another content is kept there
/// already.
QString asideName(const QString &path)
{
    QString aside = path + QLatin1String(".damaged");
    if (!QFile::exists(aside) || contentOf(aside) == contentOf(path))
        return aside;
    return aside + QDateTime::currentDateTime().toString(QStringLiteral("-yyyyMMdd-HHmmss-zzz"));
}

void keepAside(const QString &path)
{
    const QString aside = asideName(path);
    const bool kept = QFile::exists(aside) || QFile::copy(path, aside);
    Log(LogLevel::Error, kept ? LogText::IniDamaged : LogText::IniNotKept, qUtf8Printable(path),
        qUtf8Printable(aside));
}

/// @return the lock of the file; there is one for each that was ever opened.
std::recursive_mutex &lockOf(const QString &path)
{
    static std::mutex mutex;
    static std::map<QString, std::recursive_mutex> locks;
    const std::lock_guard lock(mutex);
    return locks[QFileInfo(path).absoluteFilePath()];
}

} // namespace

IniFile::IniFile(const QString &path)
    : mTurn(lockOf(path))
    , mSettings(path, QSettings::IniFormat)
{
    mSettings.setIniCodec("utf-8");
    // The default, stated because so much hangs on it: a write goes through QSaveFile, so that a crash leaves
    // the old or the new file whole, and fails where that is impossible.
    mSettings.setAtomicSyncRequired(true);
    mSettings
        .allKeys(); // sections are parsed when they are first used; this parses all, and so finds the damage
    const bool bad = mSettings.status() != QSettings::NoError && QFile::exists(path);
    if (!bad || !isNews(path))
        return;
    if (mSettings.status() == QSettings::FormatError)
        keepAside(path);
    else
        Log(LogLevel::Error, LogText::IniUnreadable, qUtf8Printable(path));
}

IniFile::~IniFile()
{
    const bool wasBad = mSettings.status() == QSettings::AccessError; // told when it was opened
    mSettings.sync();
    if (!wasBad && mSettings.status() == QSettings::AccessError)
        Log(LogLevel::Error, LogText::IniNotWritten, qUtf8Printable(mSettings.fileName()));
}

} // namespace vorlindesk
