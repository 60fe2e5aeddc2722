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

QString notRemoved(const QString &folder)
{
    return text(QT_TRANSLATE_NOOP("Backup",
                                  "What an earlier restore left in \"%1\" cannot be removed. Close the "
                                  "programs that use its files, and try again."))
        .arg(native(folder));
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

QString part(Part part)
{
    switch (part) {
    case Part::Page:
        return text(QT_TRANSLATE_NOOP("Backup", "key records of layout %1 page %2"));
    case Part::Texts:
        return text(QT_TRANSLATE_NOOP("Backup", "texts of layout %1 page %2 key %3"));
    case Part::Picture:
        return text(QT_TRANSLATE_NOOP("Backup", "picture of layout %1 page %2 key %3"));
    case Part::PictureFile:
        return text(QT_TRANSLATE_NOOP("Backup", "picture file of layout %1 page %2 key %3"));
    case Part::Resource:
        return text(QT_TRANSLATE_NOOP("Backup", "picture path of layout %1 page %2 key %3"));
    case Part::Video:
        return text(QT_TRANSLATE_NOOP("Backup", "video of layout %1 page %2 key %3"));
    case Part::Actions:
        return text(QT_TRANSLATE_NOOP("Backup", "action list of layout %1 page %2 key %3"));
    case Part::Record:
        return text(QT_TRANSLATE_NOOP("Backup", "record of layout %1 page %2 key %3"));
    case Part::Unknown:
        return text(QT_TRANSLATE_NOOP("Backup", "unknown section of layout %1 page %2 key %3"));
    case Part::Header:
        return text(QT_TRANSLATE_NOOP("Backup", "header"));
    case Part::Rest:
        return text(QT_TRANSLATE_NOOP("Backup", "sections %1 to %2"));
    case Part::Behind:
        return text(QT_TRANSLATE_NOOP("Backup", "bytes behind the last section"));
    }
    return {};
}

QString key(int layoutId, int pageId, int keyId)
{
    return text(QT_TRANSLATE_NOOP("Backup", "layout %1 page %2 key %3")).arg(layoutId).arg(pageId).arg(keyId);
}

QString fileOfKey(const QString &path, const QString &key, const QString &reason)
{
    return text(QT_TRANSLATE_NOOP("Backup", "%1 of %2: %3")).arg(native(path), key, reason);
}

} // namespace vorlinmodel::BackupText
