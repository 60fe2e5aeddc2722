#include "backuptext.h"

#include <QCoreApplication>
#include <QDir>

namespace vorlinmodel::BackupText {

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("Backup", source);
}

QString native(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

} // namespace

QString notReadable(const QString &path, const QString &reason)
{
    return text(QT_TRANSLATE_NOOP("Backup", "\"%1\" cannot be read: %2")).arg(native(path), reason);
}

QString notWritten(const QString &path, const QString &reason)
{
    return text(QT_TRANSLATE_NOOP("Backup", "\"%1\" could not be written: %2")).arg(native(path), reason);
}

QString notVerified(const QString &folder)
{
    return text(QT_TRANSLATE_NOOP("Backup", "The backup in \"%1\" reads back differently from what was "
                                            "written. It was removed: the disk may be failing."))
        .arg(native(folder));
}

QString damaged(const QString &name)
{
    return text(QT_TRANSLATE_NOOP("Backup", "Parts of the backup \"%1\" are damaged. Nothing was changed."))
        .arg(name);
}

QString holdsNothing(const QString &name)
{
    return text(QT_TRANSLATE_NOOP("Backup", "The backup \"%1\" holds nothing that can be restored."))
        .arg(name);
}

QString unfinished(const QString &folder)
{
    return text(QT_TRANSLATE_NOOP("Backup", "An earlier restore could not be finished. Its files are in "
                                            "\"%1\". Start the program again, and it will be tried again."))
        .arg(native(folder));
}

QString notSwitched(const QString &path, const QString &reason)
{
    return text(QT_TRANSLATE_NOOP("Backup", "\"%1\" could not be replaced: %2 Nothing was changed."))
        .arg(native(path), reason);
}

} // namespace vorlinmodel::BackupText
