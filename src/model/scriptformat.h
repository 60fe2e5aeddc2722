/// Bytes of "CD.bin". All integers are little-endian.
#pragma once

#include "model/backupwatch.h"
#include "model/keyid.h"
#include "model/multiaction.h"
#include "wire/keyrecord.h"

#include <QByteArray>
#include <QMap>
#include <QStringList>
#include <QVector>
#include <optional>

namespace vorlinmodel {

namespace ScriptHeaderField {
inline constexpr char Magic[] = "VDSCRIPT"; // 8 bytes, without the NUL
constexpr int MagicSize = 8;
constexpr int Version = 8;       // u16
constexpr int HeaderSize = 10;   // u16, bytes of the header with its checksum; a newer version may have more
constexpr int LayoutId = 12;     // u8, of the first page
constexpr int PageId = 13;       // u8, of the first page; two bytes follow that are 0
constexpr int SectionCount = 16; // u32
constexpr int Checksum = 20;     // u32, CRC-32 of everything before it; the last 4 bytes of a longer header
constexpr int ChecksumSize = 4;
constexpr int Size = 24;
} // namespace ScriptHeaderField

namespace ScriptSectionField {
constexpr int Type = 0;          // u32, four characters
constexpr int LayoutId = 4;      // u8
constexpr int PageId = 5;        // u8
constexpr int KeyId = 6;         // u8, 0 for a section of a whole page
constexpr int Flags = 7;         // u8
constexpr int Length = 8;        // u32, bytes of data behind the head
constexpr int DataChecksum = 12; // u32, CRC-32 of the data
constexpr int HeadChecksum = 16; // u32, CRC-32 of bytes 0 to 15
constexpr int Size = 20;
} // namespace ScriptSectionField

/// Texts that the 272-byte record cannot carry: longer than its areas, or with characters that GBK lacks.
struct ScriptTexts
{
    QString title;
    QString content; ///< path, address, text or key names, as in the store
    bool operator==(const ScriptTexts &) const = default;
};

/// What one key has beside its record.
struct ScriptKey
{
    std::optional<ScriptTexts> texts;
    QByteArray picture; ///< PNG at the key's pixel size, as the panel shows it; empty when there is none
    bool customImage = false; ///< the key shows a picture of its own, not its function's icon
    QByteArray pictureFile;   ///< file of the custom image, when its bytes are others than @c picture
    QString resource;         ///< path of the custom image, when it comes with the program (":/...")
    QString videoName;        ///< file name without folder
    QByteArray video;
    QVector<MultiAction> actions;
    bool operator==(const ScriptKey &) const = default;
};

struct Script
{
    static constexpr quint16 CurrentVersion = 1;

    quint16 version = CurrentVersion;
    int layoutId = 0; ///< of the first page; 0 when there is none
    int pageId = 0;
    QVector<PagePayload> pages;
    QMap<key_id_t, ScriptKey> keys;
    int skippedSections = 0; ///< intact ones of a type that this version does not know
    QStringList damaged;     ///< what is missing from the above, each named; empty for an intact script
};

/// @return the container of @p script: its pages with their keys. Keys of other pages, and the members
/// version, layoutId, pageId and damaged, are not looked at.
QByteArray encodeScript(const Script &script, const BackupWatch &watch = {});

/// Layout and page of the first page in the script (key id 0); nothing when the header is not ours or
/// damaged.
std::optional<key_id_t> scriptPosition(const QByteArray &bytes);

/// Never fails on foreign bytes: what cannot be read is named in Script::damaged.
Script parseScript(const QByteArray &bytes, const BackupWatch &watch = {});

} // namespace vorlinmodel
