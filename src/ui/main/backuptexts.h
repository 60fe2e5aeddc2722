/// How backups are spoken of.
#pragma once

#include "model/backuprestore.h"

#include <QString>

namespace vorlindesk {
class LanguageManager;
}

namespace BackupTexts {

QString madeHow(const vorlinmodel::BackupInfo &info); ///< by hand, at the start, before an import
QString date(const QDateTime &moment);                ///< local time, to the second
QString counts(const vorlinmodel::BackupCounts &counts);
QString page(const vorlinmodel::PageChange &change, const vorlindesk::LanguageManager &language);
QString change(const vorlinmodel::PageChange &change); ///< "2 keys added, 1 changed"
QString file(const QString &path);                     ///< of a file below "devConfig", as a person calls it

} // namespace BackupTexts
