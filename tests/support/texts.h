/// Texts, short to write.
#pragma once

#include <QStringList>
#include <initializer_list>

/// "text"_s: a QString of UTF-8.
inline QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

inline QStringList texts(std::initializer_list<const char *> lines)
{
    QStringList all;
    for (const char *line : lines)
        all << QString::fromUtf8(line);
    return all;
}
