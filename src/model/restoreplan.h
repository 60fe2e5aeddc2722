/// What the configuration will be after a restore.
#pragma once

#include "model/backuprestore.h"

namespace vorlinmodel {

struct RestorePlan
{
    Script script;
    QByteArray scriptBytes;
    QMap<QString, QByteArray> files; ///< by path below "devConfig"
};

/// The state of @p backup; what is damaged in it, and files that a plain export lacks, come from @p present.
RestorePlan planRestore(const BackupContent &backup, const BackupContent &present,
                        const BackupWatch &watch = {});

} // namespace vorlinmodel
