#include "backups.h"

#include "base/iframeworkcontext.h"
#include "base/paths.h"
#include "base/systemsettings.h"
#include "model/ifunctionmanager.h"
#include "protocol/iprotocolthread.h"
#include "ui_editor/editorcontext.h"

#include <QDir>
#include <QFileInfo>
#include <QPointer>

using vorlinmodel::BackupReason;
using vorlinmodel::BackupWatch;
using vorlinmodel::IFunctionManager;
namespace Profiles = vorlinmodel::Profiles;
namespace Paths = vorlindesk::Paths;

namespace {

const QLatin1String DirectoryKey("directory");
constexpr int OpenPart = 50; // percent

/// Not "system.ini", which is part of every backup: what comes back would lead to another folder.
QString settingsFile()
{
    return Paths::devConfigFolder() + QStringLiteral("/profiles.ini");
}

QString savedDirectory()
{
    if (!QFileInfo::exists(settingsFile()))
        return {};
    return vorlindesk::IniFile(settingsFile())->value(DirectoryKey).toString();
}

} // namespace

Backups::Backups(EditorContext &context, QObject *parent)
    : QObject(parent)
    , mContext(context)
    , mChosen(savedDirectory())
    , mDirectory(mChosen.isEmpty() ? Paths::devConfigFolder() : mChosen)
    , mImport(context, mWork)
{
    mImport.setDirectory(mChosen);
    mContext.edits.store().setProfileDirectory(mChosen);
    mContext.edits.store().setExportDirectory(mChosen);
    mIdleTimer.setObjectName(QStringLiteral("idleTimer"));
    mIdleTimer.setInterval(IdleCheck);
    connect(&mIdleTimer, &QTimer::timeout, this, &Backups::tryAutomatic);
    connect(&mWork, &BackupWork::sigProgress, this, [this](int percent) {
        mPercent = percent;
        emit sigActivity();
    });
    connect(&mWork, &BackupWork::sigIdle, this, &Backups::onIdle);
    mImport.setObstacle([this] { return obstacle(); });
    connect(&mImport, &ConfigurationImport::sigReplacing, this, [this](bool on) {
        emit sigReplacing(on);
        emit sigActivity();
        if (!isHolding())
            emit sigReleased();
    });
    connect(&mImport, &ConfigurationImport::sigReplaced, this, &Backups::sigReplaced);
    connect(&mImport, &ConfigurationImport::sigImported, this, &Backups::sigImported);
    connect(&mImport, &ConfigurationImport::sigFailed, this, &Backups::sigImportFailed);
    connect(&mImport, &ConfigurationImport::sigSendProgress, this, [this](int sent, int all) {
        mPercent = all > 0 ? int(qint64{sent} * 100 / all) : 0;
        emit sigActivity();
    });
    connect(&mImport, &ConfigurationImport::sigSent, this, [this](const QString &problem) {
        emit sigSent(problem);
        emit sigActivity();
    });
    connect(&mContext.videos, &VideoPlacement::sigActivity, this, &Backups::sigActivity);
}

Backups::~Backups() = default;

void Backups::setDirectory(const QString &directory)
{
    const bool isOwn = QDir(directory) == QDir(Paths::devConfigFolder());
    mChosen = directory.isEmpty() || isOwn ? QString() : QDir::cleanPath(directory);
    vorlindesk::IniFile(settingsFile())->setValue(DirectoryKey, mChosen);
    IFunctionManager &store = mContext.edits.store();
    store.setProfileDirectory(mChosen);
    store.setExportDirectory(mChosen);
    mImport.setDirectory(mChosen);
    list();
}

void Backups::list()
{
    mWork.start([this, chosen = mChosen](const BackupWatch &watch) -> BackupWork::Delivery {
        const QString directory = Profiles::usable(chosen);
        const auto backups = Profiles::list(directory, watch);
        if (watch.isGivenUp())
            return [] {
            };
        return [this, directory, backups] {
            mDirectory = directory;
            mBackups = backups;
            emit sigListed();
        };
    });
}

Backups::Activity Backups::activity() const
{
    if (mImport.isReplacing())
        return Activity::Importing;
    return mImport.isSending() ? Activity::Sending : mActivity;
}

QString Backups::obstacle() const
{
    const auto *thread = mContext.framework.protocolThread();
    if (isBusy())
        return tr("Something else is still under way.");
    if (mReading)
        return tr("The panel is being read.");
    if (mClearing)
        return tr("The panel is being cleared.");
    if (thread && thread->isUpgrading())
        return tr("The firmware is being updated.");
    if (mContext.videos.isBusy())
        return tr("A video is being converted or sent. Wait for it, or cancel it.");
    return {};
}

/// What a person asks for goes before the automatic backup, which is tried again later.
void Backups::giveUpAutomatic()
{
    if (mAutomatic != 0)
        mWork.cancel(mAutomatic);
}

void Backups::begin(Activity activity, BackupWork::Task task)
{
    mActivity = activity;
    giveUpAutomatic();
    mTask = mWork.start([this, task = std::move(task)](const BackupWatch &watch) {
        const auto delivery = task(watch);
        return [this, delivery] {
            mActivity = Activity::None;
            delivery();
            emit sigActivity();
        };
    });
    emit sigActivity();
}

/// The saving of the store waits meanwhile: it moves the pictures that are read.
BackupWork::Task Backups::holding(BackupWork::Task task)
{
    ++mHolds;
    return [this, task = std::move(task), saved = mContext.edits.beginWork()](const BackupWatch &watch) {
        saved.wait();
        const auto delivery = task(watch);
        return [this, delivery] {
            mContext.edits.endWork();
            --mHolds;
            delivery();
            if (!isHolding())
                emit sigReleased();
        };
    };
}

void Backups::create(const QString &name)
{
    if (obstacle().isEmpty())
        create(BackupReason::Person, name, [this](const auto &result) { emit sigCreated(result); });
}

/// What is done may ask the person, so it comes when this task is all over.
bool Backups::createSafety(QObject *guard, Done done)
{
    if (!obstacle().isEmpty())
        return false;
    create(BackupReason::Safety, {},
           [guard = QPointer<QObject>(guard), done = std::move(done)](const auto &result) {
               if (guard)
                   QTimer::singleShot(0, guard, [done, result] { done(result); });
           });
    return true;
}

void Backups::create(BackupReason reason, const QString &name, Done done)
{
    mContext.edits.flush();
    const IFunctionManager &store = mContext.edits.store();
    begin(Activity::Creating, holding([=, this, chosen = mChosen, &store](const BackupWatch &watch) {
              const auto result = Profiles::create(Profiles::usable(chosen), store, reason, name, watch);
              return [this, done, result] {
                  done(result);
                  list();
              };
          }));
}

void Backups::remove(const QString &folder)
{
    if (!obstacle().isEmpty())
        return;
    begin(Activity::Removing, [this, folder](const BackupWatch &) {
        const bool done = Profiles::remove(folder);
        return [this, done] {
            emit sigRemoved(done);
            list();
        };
    });
}

void Backups::open(const QString &folder)
{
    if (!obstacle().isEmpty())
        return;
    mContext.edits.flush();
    IFunctionManager &store = mContext.edits.store();
    store.setImportDirectory(folder);
    begin(Activity::Opening, holding([this, folder, &store](const BackupWatch &watch) {
              Opened opened;
              auto content = vorlinmodel::loadBackup(folder, watch.part(0, OpenPart));
              const auto present = content ? presentContent(store, watch.part(OpenPart, 100)) : std::nullopt;
              if (present) {
                  opened.preview = previewRestore(*content, *present, watch.part(100, 100));
                  opened.error = present->error;
                  opened.content = std::make_shared<const vorlinmodel::BackupContent>(std::move(*content));
              }
              return [this, opened] {
                  if (opened.content) // else it was cancelled
                      emit sigOpened(opened);
              };
          }));
}

void Backups::import(const ConfigurationImport::Content &content, bool takesTheRest, bool toPanel)
{
    if (!obstacle().isEmpty())
        return;
    giveUpAutomatic();
    mImport.start(content, takesTheRest, toPanel);
}

void Backups::cancel()
{
    if (mImport.isReplacing() || mImport.isSending())
        mImport.cancel();
    else if (isBusy())
        mWork.cancel(mTask);
}

void Backups::setConnected(bool connected)
{
    mConnected = connected;
    mImport.setConnected(connected);
    emit sigActivity();
}

void Backups::setReading(bool reading)
{
    if (std::exchange(mReading, reading) == reading)
        return;
    if (!reading && mHasStarted && !std::exchange(mHasReadPanel, true))
        mIdleTimer.start(); // the state of the last run may be backed up already; this is that of the panel
    emit sigActivity();
}

void Backups::setClearing(bool clearing)
{
    if (std::exchange(mClearing, clearing) != clearing)
        emit sigActivity();
}

void Backups::onIdle()
{
    mPercent = 0;
    emit sigActivity();
}

void Backups::startAutomatic()
{
    if (!std::exchange(mHasStarted, true))
        mIdleTimer.start(FirstLook);
}

/// Keys that could not be loaded are no state to keep.
void Backups::tryAutomatic()
{
    mIdleTimer.setInterval(IdleCheck);
    if (!obstacle().isEmpty() || mWork.isBusy() || !mContext.edits.isLoaded())
        return;
    mIdleTimer.stop();
    const IFunctionManager &store = mContext.edits.store();
    mAutomatic = mWork.start(holding([this, chosen = mChosen, &store](const BackupWatch &watch) {
        const auto result = Profiles::createAutomatic(Profiles::usable(chosen), store, watch);
        return [this, result] {
            mAutomatic = 0;
            if (result.isCancelled)
                mIdleTimer.start();
            else if (!result.folder.isEmpty())
                list();
        };
    }));
}

void Backups::finish()
{
    mIdleTimer.stop();
    mWork.finish();
}
