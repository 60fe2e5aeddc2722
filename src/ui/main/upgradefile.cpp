#include "upgradefile.h"

#include "model/wholefile.h"
#include "wire/crc16.h"

#include <QFileInfo>

UpgradeFile examineUpgradeFile(const QString &path)
{
    using Problem = UpgradeFile::Problem;
    const QFileInfo info(path);
    UpgradeFile file;
    file.size = info.size();
    file.modified = info.lastModified();
    if (!info.exists())
        file.problem = Problem::Missing;
    else if (file.size > UpgradeFile::Largest)
        file.problem = Problem::TooLarge;
    else if (const auto bytes = vorlinmodel::readWholeFile(path, file.reason, UpgradeFile::Largest); !bytes)
        file.problem = Problem::Unreadable;
    else if (bytes->size() < file.size) // it ended before its end: a medium that is going, or another writer
        file.problem = Problem::Unreadable;
    else if (bytes->isEmpty())
        file.problem = Problem::Empty;
    else
        file.crc = crc16(*bytes);
    return file;
}
