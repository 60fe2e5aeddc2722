/// Little helpers for files in tests.
#pragma once

#include "support/texts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

/// Makes the folder too.
inline bool writeTestFile(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/// @return "(missing)" when there is none, so that it differs from an empty one.
inline QByteArray testFileContent(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

/// @return @p name without what the system does not allow in names of files.
inline QString possibleName(QString name)
{
#ifdef Q_OS_WIN
    name.remove(QLatin1Char('"'));
#endif
    return name;
}
