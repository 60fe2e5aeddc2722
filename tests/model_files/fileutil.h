/// What this system says about files.
#pragma once

#include "support/files.h"

/// @return its text for a file that does not exist.
inline QString missingFileText()
{
    QFile file(QDir::currentPath() + "/no such file"_s);
    return file.open(QIODevice::ReadOnly) ? QString() : file.errorString();
}
