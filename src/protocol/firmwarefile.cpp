#include "firmwarefile.h"

#include "model/wholefile.h"
#include "wire/crc16.h"

#include <QFileInfo>

namespace vorlinmodel {

FirmwareFile::Problem FirmwareFile::load(const QString &path)
{
    mSinceLoad.start();
    const QFileInfo file(path);
    const bool isKept = file.exists() && !mPath.isEmpty() && mPath == path && mSize == file.size() &&
                        mModified == file.lastModified();
    if (isKept)
        return Problem::None;
    *this = {};
    if (file.size() > Largest)
        return Problem::TooLarge;
    QString reason;
    const auto bytes = readWholeFile(path, reason, Largest);
    if (!bytes || bytes->size() < file.size()) // a medium that is going, or another writer
        return Problem::Unreadable;
    mSinceLoad.start();
    mPath = path;
    mSize = bytes->size();
    mModified = file.lastModified(); // taken before the reading: what is written meanwhile is read next time
    mBytes = *bytes;
    mCrc = crc16(mBytes);
    return Problem::None;
}

void FirmwareFile::dropIfOld()
{
    if (!mPath.isEmpty() && mSinceLoad.hasExpired(Kept))
        *this = {};
}

} // namespace vorlinmodel
