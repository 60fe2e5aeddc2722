/// What the person is told about a backup or a restore that failed.
#pragma once

#include <QString>

namespace vorlinmodel::BackupText {

QString notReadable(const QString &path, const QString &reason);
QString notWritten(const QString &path, const QString &reason);
QString notVerified(const QString &folder);
QString damaged(const QString &name);
QString holdsNothing(const QString &name);
QString unfinished(const QString &folder);
QString notRemoved(const QString &folder);
QString notSwitched(const QString &path, const QString &reason);

/// What is damaged in a script, or left out of it.
enum class Part {
    Page,  ///< %1, %2: layout and page
    Texts, ///< from here on with %3, the key
    Picture,
    PictureFile,
    Resource,
    Video,
    Actions,
    Record,
    Unknown,
    Header, ///< nothing to fill in
    Rest,   ///< %1, %2: first and last section
    Behind, ///< nothing to fill in
};
QString part(Part part);
QString key(int layoutId, int pageId, int keyId);
QString fileOfKey(const QString &path, const QString &key, const QString &reason); ///< that cannot be read

} // namespace vorlinmodel::BackupText
