#include "model/functionmanager.h"

#include "base/log.h"
#include "base/paths.h"
#include "commandrunner.h"
#include "deviceconfigloader.h"
#include "keyattributemap.h"
#include "model/configbackup.h"
#include "model/functioncatalogue.h"
#include "model/imageurlfile.h"
#include "model/scriptcontainer.h"
#include "storelogtext.h"

#include <QFile>
#include <atomic>
#include <mutex>

namespace vorlinmodel {

namespace Paths = vorlindesk::Paths;
using vorlindesk::Log;
using vorlindesk::LogLevel;

namespace {

/// A text that several threads read and write.
class SharedText
{
public:
    void set(const QString &text)
    {
        const std::lock_guard lock(mMutex);
        mText = text;
    }

    QString get() const
    {
        const std::lock_guard lock(mMutex);
        return mText;
    }

private:
    mutable std::mutex mMutex;
    QString mText;
};

/// An empty file, not a missing one, is what the first write of a key's steps takes for "none yet".
bool createMultiActionsFile()
{
    QFile file(Paths::multiActionsJson());
    if (file.exists())
        return true;
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        Log(LogLevel::Error, LogText::FileNotCreated, qUtf8Printable(file.fileName()),
            qUtf8Printable(file.errorString()));
        return false;
    }
    Log(LogLevel::Info, LogText::FileCreated);
    return true;
}

/// @param keepEmptyIcons leaves the icon of a missing content as it stands, while a configuration is being
/// read.
QString displayImageOf(const key_atttribute_t &record, bool keepEmptyIcons)
{
    QString image = record.defaultImage;
    if (record.nDisplayImageType != 0) {
        image = record.customImage;
        Log(LogLevel::Debug, LogText::CustomDisplayImage, qUtf8Printable(image));
    }
    if (!keepEmptyIcons)
        image = FunctionCatalogue::withContentIcon(record.mFId, image);
    Log(LogLevel::Info, LogText::DisplayImage, record.nDisplayImageType, qUtf8Printable(image));
    return image;
}

} // namespace

struct FunctionManager::Parts
{
    KeyAttributeMap records;
    CommandRunner commands;
    DeviceConfigLoader loader{records, [this](const key_id_t &key, int fid, const QString &command) {
                                  return commands.exec(key, fid, command);
                              }};
    std::atomic<bool> modeFlag = false;
    SharedText exportDirectory;
    SharedText importDirectory;
    SharedText profileDirectory;
};

FunctionManager *FunctionManager::instance()
{
    static FunctionManager manager;
    return &manager;
}

FunctionManager::FunctionManager()
    : mpParts(std::make_unique<Parts>())
{}

FunctionManager::~FunctionManager() = default;

bool FunctionManager::Init()
{
    Paths::createPath(Paths::imageFolder()); // without it, which is logged, only pictures are not kept
    return createMultiActionsFile();
}

void FunctionManager::setTextOutput(TextOutput output)
{
    mpParts->commands.setTextOutput(std::move(output));
}

void FunctionManager::setDesktop(vorlindesk::IDesktop &desktop)
{
    mpParts->commands.setDesktop(desktop);
}

void FunctionManager::setRecordPause(int milliseconds)
{
    mpParts->loader.setRecordPause(milliseconds);
}

// Records

bool FunctionManager::createKeyAttribute(const key_id_t &key, int fid)
{
    return mpParts->records.create(key, fid);
}

bool FunctionManager::createKeyAttribute(int lid, int pageid, int kid, int fid)
{
    return createKeyAttribute(key_id_t{lid, pageid, kid}, fid);
}

bool FunctionManager::addKeyAttribute(const key_id_t &key, int fid)
{
    mpParts->records.add(key, fid);
    return true;
}

std::optional<key_atttribute_t> FunctionManager::getKeyAttribute(const key_id_t &key) const
{
    return mpParts->records.find(key);
}

QList<key_id_t> FunctionManager::getKeys() const
{
    return mpParts->records.keys();
}

void FunctionManager::setKeyAttribute(const key_id_t &key, const key_atttribute_t &record)
{
    mpParts->records.set(key, record);
}

bool FunctionManager::moveCustomImage(const key_id_t &key, const QString &from, const QString &to)
{
    return mpParts->records.moveCustomImage(key, from, to);
}

void FunctionManager::deleteKeyAttribute(const key_id_t &key)
{
    mpParts->records.remove(key);
}

void FunctionManager::deleteKeyAttribute(int lid, int pageid, int kid)
{
    deleteKeyAttribute(key_id_t{lid, pageid, kid});
}

void FunctionManager::deletePageKeys(int lid, int pageid)
{
    for (int kid = FirstKeyId; kid <= LastKeyId; ++kid)
        deleteKeyAttribute(lid, pageid, kid);
}

// Catalogue

int FunctionManager::getFunctionListCount() const
{
    return FunctionCatalogue::functionCount();
}

int FunctionManager::getFunctionListFid(int position) const
{
    return FunctionCatalogue::functionFid(position);
}

QString FunctionManager::getFunctionListIcon(int fid) const
{
    return FunctionCatalogue::functionIcon(fid);
}

int FunctionManager::getShortcutListCount() const
{
    return FunctionCatalogue::shortcutCount();
}

int FunctionManager::getShortcutListFid(int position) const
{
    return FunctionCatalogue::shortcutFid(position);
}

int FunctionManager::getShortcutListTextId(int fid) const
{
    return FunctionCatalogue::shortcutTextId(fid);
}

QString FunctionManager::getShortcutListIcon(int fid) const
{
    return FunctionCatalogue::shortcutIcon(fid);
}

// Attributes

QString FunctionManager::getDisplayImage(const key_id_t &key) const
{
    const auto record = mpParts->records.find(key);
    return record ? displayImageOf(*record, getModeFlag()) : QString();
}

QString FunctionManager::getCustomImage(const key_id_t &key) const
{
    return mpParts->records.customImage(key);
}

QString FunctionManager::getDefaultImage(const key_id_t &key) const
{
    return mpParts->records.defaultImage(key);
}

QString FunctionManager::getTitleText(const key_id_t &key) const
{
    return mpParts->records.title(key);
}

QString FunctionManager::getAllAttribute(const key_id_t &key) const
{
    return mpParts->records.dump(key);
}

bool FunctionManager::setCustomImage(const key_id_t &key, const QString &path)
{
    mpParts->records.setCustomImage(key, path);
    return true;
}

bool FunctionManager::setCustomVideo(const key_id_t &key, const QString &path)
{
    mpParts->records.setCustomVideo(key, path);
    return true;
}

bool FunctionManager::setImageEffects(const key_id_t &key, int value)
{
    mpParts->records.setImageEffects(key, value);
    return true;
}

bool FunctionManager::setDisplayMode(const key_id_t &key, int value)
{
    mpParts->records.setDisplayMode(key, value);
    return true;
}

bool FunctionManager::setTitle(const key_id_t &key, const QString &title)
{
    mpParts->records.setTitle(key, title);
    return true;
}

bool FunctionManager::setTitleAlignment(const key_id_t &key, int value)
{
    mpParts->records.setTitleAlignment(key, value);
    return true;
}

bool FunctionManager::setTitleFontSize(const key_id_t &key, int value)
{
    mpParts->records.setTitleFontSize(key, value);
    return true;
}

bool FunctionManager::setTitleFontColor(const key_id_t &key, const QColor &colour)
{
    mpParts->records.setTitleFontColor(key, colour);
    return true;
}

bool FunctionManager::setUrlOrPath(const key_id_t &key, const QString &text)
{
    mpParts->records.setUrlOrPath(key, text);
    return true;
}

bool FunctionManager::setKeyCombination(const key_id_t &key, const QStringList &names)
{
    mpParts->records.setKeyCombination(key, names);
    return true;
}

// Reading the panel

bool FunctionManager::saveKeyAttrByDevconfig(const quint8 *payload, int length)
{
    return mpParts->loader.loadAttribute(payload, length);
}

std::optional<key_id_t> FunctionManager::saveAllKeyAttrByDevconfig(const quint8 *payload, int length)
{
    return mpParts->loader.loadPage(payload, length);
}

bool FunctionManager::setKeyAttrByProtoKeyConfig(int lid, int pageid, int kid, const KeyRecord &record)
{
    mpParts->loader.applyRecord({lid, pageid, kid}, record);
    return true;
}

void FunctionManager::setRecvTotalKeyCount(int total)
{
    mpParts->loader.setTotal(total);
}

IFunctionManager::ReceivedCounts FunctionManager::getReceivedCounts() const
{
    return mpParts->loader.counts();
}

bool FunctionManager::getModeFlag() const
{
    return mpParts->modeFlag;
}

void FunctionManager::setModeFlag(bool on)
{
    mpParts->modeFlag = on;
}

// Commands

bool FunctionManager::execCommand(const key_id_t &key, int fid, const QString &command)
{
    return mpParts->commands.exec(key, fid, command);
}

// Backup

bool FunctionManager::saveAllKeyData()
{
    return vorlinmodel::saveAllKeyData(*this);
}

bool FunctionManager::writeScript(const QByteArray &bytes)
{
    return ConfigBackup::writeScript(getExportDirectory(), bytes);
}

std::optional<QByteArray> FunctionManager::readScript(const QString &folder)
{
    return ConfigBackup::readScript(folder);
}

bool FunctionManager::readScriptAllKeyDataToSoft(const QByteArray &script)
{
    MultiActionStore actions = multiActionStore();
    return applyScriptBytes(script, *this, actions);
}

bool FunctionManager::backupSettingsFiles()
{
    return ConfigBackup::backupSettingsFiles(getExportDirectory());
}

bool FunctionManager::restoreSettingsFiles()
{
    return ConfigBackup::restoreSettingsFiles(getImportDirectory());
}

void FunctionManager::setExportDirectory(const QString &folder)
{
    mpParts->exportDirectory.set(folder);
}

QString FunctionManager::getExportDirectory() const
{
    return mpParts->exportDirectory.get();
}

void FunctionManager::setImportDirectory(const QString &folder)
{
    mpParts->importDirectory.set(folder);
}

QString FunctionManager::getImportDirectory() const
{
    return mpParts->importDirectory.get();
}

void FunctionManager::setProfileDirectory(const QString &folder)
{
    mpParts->profileDirectory.set(folder);
}

QString FunctionManager::getProfileDirectory() const
{
    return mpParts->profileDirectory.get();
}

} // namespace vorlinmodel
