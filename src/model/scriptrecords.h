/// One key on its way between the store and a script.
#pragma once

#include "model/keyattribute.h"
#include "model/keyid.h"
#include "model/scriptformat.h"

#include <QByteArray>
#include <QString>

namespace vorlinmodel {

/// Layout and page in one byte each, key 1 to 15.
bool hasPlaceInScript(const key_id_t &key);

/// What the 272 bytes can carry of @p attribute.
KeyRecord scriptRecord(const key_id_t &key, const key_atttribute_t &attribute);

/// Title and content as they come back out of @p record.
ScriptTexts scriptTexts(const KeyRecord &record);

/// "devConfig/video". Not the image folder, which is emptied whenever the panel's configuration is read.
QString scriptVideoFolder();

/// Name of a key's video in a script: "%1_%2_%3." and the ending of @p original, if it is made of letters
/// and digits, else "video". Nothing else of @p original is used: it may come from a file, and lead
/// elsewhere.
QString scriptVideoName(const key_id_t &key, const QString &original);

/// Where the video @p bytes of a script lies afterwards: in scriptVideoFolder(), named after its SHA-1 in hex
/// and the ending of @p original, as above. So a record that is kept, by undo say, never comes to name
/// another video.
QString scriptVideoPath(const QByteArray &bytes, const QString &original, const BackupWatch &watch = {});

/// What a key of a script becomes: its record, and the files that the record names.
struct StoredKey
{
    key_id_t key;
    key_atttribute_t attribute;
    QByteArray picture;      ///< for attribute.customImage; empty when there is no file to write
    QByteArray video;        ///< for attribute.defaultImage, which other keys may share; empty likewise
    bool badPicture = false; ///< the script's picture cannot be decoded: the key shows none
};
StoredKey storedKey(const KeyRecord &record, const ScriptKey &extra, const BackupWatch &watch = {});

} // namespace vorlinmodel
