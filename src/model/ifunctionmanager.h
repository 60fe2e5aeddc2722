/// The in-memory model of what every key of the panel does and how it looks.
#pragma once

#include "model/keyattribute.h"
#include "model/keyid.h"
#include "model/multiaction.h"

#include <QByteArray>
#include <QList>
#include <QStringList>
#include <optional>

struct KeyRecord;

namespace vorlinmodel {

/// Any thread may call any operation. Records are handed out as copies, so that nobody holds one that another
/// thread deletes. Setters of an unknown key do nothing and return true.
class IFunctionManager
{
public:
    struct ReceivedCounts
    {
        int total = 0;
        int current = 0;
    };

    virtual ~IFunctionManager() = default;
    /// @return false when the key already has a record, which then stays as it is.
    virtual bool createKeyAttribute(const key_id_t &key, int fid) = 0;
    virtual bool createKeyAttribute(int lid, int pageid, int kid, int fid) = 0;
    virtual std::optional<key_atttribute_t> getKeyAttribute(const key_id_t &key) const = 0;
    virtual void deleteKeyAttribute(const key_id_t &key) = 0;
    virtual void deleteKeyAttribute(int lid, int pageid, int kid) = 0;
    virtual int getFunctionListCount() const = 0;
    virtual int getFunctionListFid(int position) const = 0; ///< 0 when out of range
    virtual QList<key_id_t> getKeys() const = 0;            ///< every key that has a record, ascending
    virtual QString getFunctionListIcon(int fid) const = 0; ///< empty when the list has no such function
    virtual int getShortcutListCount() const = 0;
    virtual int getShortcutListFid(int position) const = 0; ///< 0 when out of range
    virtual int getShortcutListTextId(int fid) const = 0;   ///< 0 when the list has no such function
    virtual QString getShortcutListIcon(int fid) const = 0;
    /// Path of the picture to draw: the custom or the default image, empty for an unknown key.
    virtual QString getDisplayImage(const key_id_t &key) const = 0;
    virtual QString getCustomImage(const key_id_t &key) const = 0;
    virtual QString getDefaultImage(const key_id_t &key) const = 0;
    virtual QString getTitleText(const key_id_t &key) const = 0;
    virtual QString getAllAttribute(const key_id_t &key) const = 0;            ///< text dump, for the log
    virtual bool setCustomImage(const key_id_t &key, const QString &path) = 0; ///< also shows it
    virtual bool setImageEffects(const key_id_t &key, int value) = 0;
    virtual bool setDisplayMode(const key_id_t &key, int value) = 0;
    virtual bool setTitle(const key_id_t &key, const QString &title) = 0;
    virtual bool setTitleAlignment(const key_id_t &key, int value) = 0;
    virtual bool setTitleFontSize(const key_id_t &key, int value) = 0;
    virtual bool setTitleFontColor(const key_id_t &key, const QColor &colour) = 0;
    virtual bool setUrlOrPath(const key_id_t &key, const QString &text) = 0;
    virtual bool setKeyCombination(const key_id_t &key, const QStringList &names) = 0; ///< joined with "#"
    /// Takes one attribute that the panel sent (layout, page, key, attribute id, data).
    /// @return true when the pictures received equal the keys announced.
    virtual bool saveKeyAttrByDevconfig(const quint8 *payload, int length) = 0;
    virtual void setRecvTotalKeyCount(int total) = 0; ///< sets the current count to 0
    virtual bool setKeyAttrByProtoKeyConfig(int lid, int pageid, int kid, const KeyRecord &record) = 0;
    /// Writes the pictures of all keys to the image folder and the records to "imageUrl.ini".
    /// @return success.
    virtual bool saveAllKeyData() = 0;
    virtual bool writeScript(const QByteArray &bytes) = 0; ///< "CD.bin" in a new dated folder
    virtual void setExportDirectory(const QString &folder) = 0;
    virtual void setImportDirectory(const QString &folder) = 0;
    virtual QString getExportDirectory() const = 0;
    /// Reads "CD.bin" of @p folder whole, with the layout and page found in it. @return nothing on failure.
    virtual std::optional<QByteArray> readScript(const QString &folder) = 0;
    /// Takes one page of key records (layout, page, n x 272 bytes). Takes 20 ms per record.
    /// @return layout and page of the payload; nothing when it was refused.
    virtual std::optional<key_id_t> saveAllKeyAttrByDevconfig(const quint8 *payload, int length) = 0;
    /// Turns the bytes of a "CD.bin" into records, pictures and action lists. @return success.
    virtual bool readScriptAllKeyDataToSoft(const QByteArray &script) = 0;
    virtual bool backupSettingsFiles() = 0;
    virtual bool restoreSettingsFiles() = 0;
    virtual void setProfileDirectory(const QString &folder) = 0;
    virtual QString getProfileDirectory() const = 0;
    virtual bool setCustomVideo(const key_id_t &key, const QString &path) = 0; ///< into the default image
    /// Carries out a key's function on the computer. @return true when it was started; text output, which
    /// goes to the user-interface thread, and functions without a host action return false.
    virtual bool execCommand(const key_id_t &key, int fid, const QString &command) = 0;
    virtual bool getModeFlag() const = 0; ///< set while a configuration is read from the panel
    virtual void setModeFlag(bool on) = 0;
    virtual ReceivedCounts getReceivedCounts() const = 0;
    virtual void deletePageKeys(int lid, int pageid) = 0; ///< key ids 1 to 15
    /// Creates the record, or sets the function of the one that stands (which resets its attributes).
    virtual bool addKeyAttribute(const key_id_t &key, int fid) = 0;
    virtual QString getImportDirectory() const = 0; ///< late in the list: the order above is fixed
    /// Sets the whole record of a key at once, so that no reader sees half of it; creates it if need be.
    virtual void setKeyAttribute(const key_id_t &key, const key_atttribute_t &record) = 0;
    /// Sets the custom image of a key to @p to if it is still @p from. @return whether it was.
    virtual bool moveCustomImage(const key_id_t &key, const QString &from, const QString &to) = 0;
};

} // namespace vorlinmodel
