/// Lists of texts, short to write.
#pragma once

#include <QStringList>
#include <initializer_list>

inline QStringList texts(std::initializer_list<const char *> lines)
{
    QStringList all;
    for (const char *line : lines)
        all << QString::fromUtf8(line);
    return all;
}
