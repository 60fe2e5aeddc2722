/// "devConfig/image/imageUrl.ini": every record of the store, so that it survives a restart.
#pragma once

#include "model/keyattribute.h"
#include "model/keyid.h"

#include <QVector>

namespace vorlinmodel {

class IFunctionManager;

struct KeyAttribute
{
    key_id_t key;
    key_atttribute_t attribute;
};

/// Writes @p records to the file @p path, in the form of "imageUrl.ini" and for use as that file; touches no
/// picture. @return false when it could not be written.
bool writeKeyRecords(const QString &path, const QVector<KeyAttribute> &records);

/// Writes every record of @p store, and puts each custom picture into the image folder under its key's name;
/// a picture that lay elsewhere is set in the store under its new path. The file is replaced whole, then
/// pictures that no record uses any more go to keptPictureFolder().
/// @return false when a picture or the file could not be written (logged); the rest is written all the same.
bool saveAllKeyData(IFunctionManager &store);

/// Creates the records of the file in @p store; keys that have one already keep theirs. Groups that name no
/// key of the panel are logged and skipped. @return false when the file is there but cannot be read.
bool loadAllKeyData(IFunctionManager &store);

} // namespace vorlinmodel
