/// The key attribute store of the running program.
#pragma once

#include "model/ifunctionmanager.h"

#include <functional>
#include <memory>

namespace vorlindesk {
class IDesktop;
}

namespace vorlinmodel {

/// A thin face over its parts: catalogue, attribute map, loading from the panel, commands, backup.
class FunctionManager : public IFunctionManager
{
public:
    /// Types a text on the user-interface thread: function id 15 and the text. Called on any thread.
    using TextOutput = std::function<void(int fid, const QString &text)>;

    static FunctionManager *instance(); ///< created on first use, lives to the end of the program
    FunctionManager();                  ///< one of its own, for tests
    ~FunctionManager() override;

    /// Makes sure that the image folder and "multiActions.json" exist. @return false when they cannot be made
    /// (logged).
    bool Init();

    /// The model cannot reach the protocol thread, so start-up hands in the way to its signal.
    void setTextOutput(TextOutput output);
    void setDesktop(vorlindesk::IDesktop &desktop); ///< for tests; the system's otherwise
    void setRecordPause(int milliseconds);          ///< for tests; 20 otherwise

    bool createKeyAttribute(const key_id_t &key, int fid) override;
    bool createKeyAttribute(int lid, int pageid, int kid, int fid) override;
    std::optional<key_atttribute_t> getKeyAttribute(const key_id_t &key) const override;
    void deleteKeyAttribute(const key_id_t &key) override;
    void deleteKeyAttribute(int lid, int pageid, int kid) override;
    int getFunctionListCount() const override;
    int getFunctionListFid(int position) const override;
    QList<key_id_t> getKeys() const override;
    QString getFunctionListIcon(int fid) const override;
    int getShortcutListCount() const override;
    int getShortcutListFid(int position) const override;
    int getShortcutListTextId(int fid) const override;
    QString getShortcutListIcon(int fid) const override;
    QString getDisplayImage(const key_id_t &key) const override;
    QString getCustomImage(const key_id_t &key) const override;
    QString getDefaultImage(const key_id_t &key) const override;
    QString getTitleText(const key_id_t &key) const override;
    QString getAllAttribute(const key_id_t &key) const override;
    bool setCustomImage(const key_id_t &key, const QString &path) override;
    bool setImageEffects(const key_id_t &key, int value) override;
    bool setDisplayMode(const key_id_t &key, int value) override;
    bool setTitle(const key_id_t &key, const QString &title) override;
    bool setTitleAlignment(const key_id_t &key, int value) override;
    bool setTitleFontSize(const key_id_t &key, int value) override;
    bool setTitleFontColor(const key_id_t &key, const QColor &colour) override;
    bool setUrlOrPath(const key_id_t &key, const QString &text) override;
    bool setKeyCombination(const key_id_t &key, const QStringList &names) override;
    bool saveKeyAttrByDevconfig(const quint8 *payload, int length) override;
    void setRecvTotalKeyCount(int total) override;
    bool setKeyAttrByProtoKeyConfig(int lid, int pageid, int kid, const KeyRecord &record) override;
    bool saveAllKeyData() override;
    bool writeScript(const QByteArray &bytes) override;
    void setExportDirectory(const QString &folder) override;
    void setImportDirectory(const QString &folder) override;
    QString getExportDirectory() const override;
    std::optional<QByteArray> readScript(const QString &folder) override;
    std::optional<key_id_t> saveAllKeyAttrByDevconfig(const quint8 *payload, int length) override;
    bool readScriptAllKeyDataToSoft(const QByteArray &script) override;
    bool backupSettingsFiles() override;
    bool restoreSettingsFiles() override;
    void setProfileDirectory(const QString &folder) override;
    QString getProfileDirectory() const override;
    bool setCustomVideo(const key_id_t &key, const QString &path) override;
    bool execCommand(const key_id_t &key, int fid, const QString &command) override;
    bool getModeFlag() const override;
    void setModeFlag(bool on) override;
    ReceivedCounts getReceivedCounts() const override;
    void deletePageKeys(int lid, int pageid) override;
    bool addKeyAttribute(const key_id_t &key, int fid) override;
    QString getImportDirectory() const override;
    void setKeyAttribute(const key_id_t &key, const key_atttribute_t &record) override;
    bool moveCustomImage(const key_id_t &key, const QString &from, const QString &to) override;

private:
    struct Parts;
    std::unique_ptr<Parts> mpParts;
};

} // namespace vorlinmodel
