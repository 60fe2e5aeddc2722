/// The converted videos on the disk, and what the person is told about them.
#pragma once

#include <QString>

namespace vorlinmodel {
class IFunctionManager;
}

namespace VideoFiles {

QString folder(); ///< devConfig + "/converted/keys"

/// Names the converted video @p path after its source @p sourceName. @return its new path, or @p path.
QString named(const QString &path, const QString &sourceName);

/// Removes what lies in folder(), and among the videos of restored backups, and belongs to no key. Steps of
/// the history may lead to it: for the end of the program. Nothing while @p store has no keys at all: their
/// file may be one that could not be read.
void removeUnused(const vorlinmodel::IFunctionManager &store);

/// "clip.avi: 3.2 MB of at most 10 MB, about 2 minutes", the time with @p isSent. Empty when
/// there is no such file.
QString describe(const QString &path, bool isSent);

} // namespace VideoFiles
