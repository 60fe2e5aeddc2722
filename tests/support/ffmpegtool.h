/// The tool that converts, as the tests use it.
#pragma once

#include "base/paths.h"

#include <QFile>
#include <QProcess>

inline bool hasTool()
{
    return QFile::exists(vorlindesk::Paths::ffmpegTool());
}

/// Whether it has test pictures built in; a small one may only be able to convert.
inline bool toolMakesFilms()
{
    static const bool hasTestPictures = [] {
        QProcess tool;
        tool.start(vorlindesk::Paths::ffmpegTool(),
                   {QStringLiteral("-hide_banner"), QStringLiteral("-devices")});
        return tool.waitForFinished() && tool.readAllStandardOutput().contains("lavfi");
    }();
    return hasTestPictures;
}

/// Makes a film of @p source, such as "testsrc=d=1"; @p more: further arguments. @return false without a
/// film.
inline bool makeFilm(const QString &path, const QString &source, const QStringList &more = {})
{
    const QString before = QStringLiteral("-v error -f lavfi -i");
    QProcess::execute(vorlindesk::Paths::ffmpegTool(), before.split(QLatin1Char(' ')) + QStringList(source) +
                                                           more + QStringList{QStringLiteral("-y"), path});
    return QFile(path).size() > 0;
}
