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
QString notSwitched(const QString &path, const QString &reason);

} // namespace vorlinmodel::BackupText
