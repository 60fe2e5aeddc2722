/// Little helpers for files in tests.
#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>

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

/// @return what this system says about a file that does not exist.
inline QString missingFileText()
{
    QFile file(QDir::currentPath() + QLatin1String("/no such file"));
    return file.open(QIODevice::ReadOnly) ? QString() : file.errorString();
}
