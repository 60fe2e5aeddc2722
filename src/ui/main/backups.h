/// What a person can do with the backups of the profile directory.
#pragma once

#include "backupwork.h"
#include "configurationimport.h"
#include "model/profiles.h"

#include <QObject>
#include <QTimer>
#include <QVector>
#include <functional>
#include <memory>

struct EditorContext;

/// User-interface thread only; every file is read and written by a thread of its own. One thing at a time:
/// while isBusy() nothing else can be begun.
class Backups : public QObject
{
    Q_OBJECT
public:
    enum class Activity { None, Creating, Removing, Opening, Importing, Sending };

    /// A backup beside the present state.
    struct Opened
    {
        ConfigurationImport::Content content;
        vorlinmodel::RestorePreview preview;
        QString error; ///< the present state cannot be backed up, so nothing may replace it
    };

    explicit Backups(EditorContext &context, QObject *parent = nullptr);
    ~Backups() override;

    QString directory() const { return mDirectory; }    ///< in use; the one chosen may be gone
    QString chosenDirectory() const { return mChosen; } ///< empty: that of the settings
    void setDirectory(const QString &directory);
    void list(); ///< anew; sigListed follows
    const QVector<vorlinmodel::BackupInfo> &backups() const { return mBackups; }

    void create(const QString &name);
    /// Before something that clears or replaces what is there. @p done follows on this thread, unless
    /// @p guard has gone by then. @return false when nothing can be begun now: see obstacle().
    using Done = std::function<void(const vorlinmodel::Profiles::BackupResult &result)>;
    bool createSafety(QObject *guard, Done done);
    void remove(const QString &folder);
    void open(const QString &folder); ///< to be looked at; sigOpened follows
    void import(const ConfigurationImport::Content &content, bool takesTheRest, bool toPanel);
    void cancel(); ///< the activity, as far as possible; never the listing

    Activity activity() const;
    bool isBusy() const { return activity() != Activity::None; }
    int percent() const { return mPercent; } ///< of the activity
    /// Why nothing can be begun now, for the person; empty when it can.
    QString obstacle() const;
    bool isConnected() const { return mConnected; }

    void setConnected(bool connected);
    void setReading(bool reading);
    void setClearing(bool clearing); ///< the panel, and perhaps this computer
    /// The files or the store must not be changed by others: the panel is not to be read.
    bool isHolding() const { return mHolds > 0 || mImport.isReplacing(); }

    /// When the window is shown: as soon as nothing else is going on, a backup if something has changed since
    /// the last. Once, and once more when the panel has been read for the first time.
    void startAutomatic();
    void finish(); ///< the end of the program: gives up what is under way, and waits for it

    static constexpr int FirstLook = 1000; ///< ms behind the start: before the panel is read
    static constexpr int IdleCheck = 5000; ///< ms between two looks whether nothing else is going on

signals:
    void sigActivity(); ///< activity, percent or obstacle has changed
    void sigListed();
    void sigCreated(const vorlinmodel::Profiles::BackupResult &result);
    void sigRemoved(bool done);
    void sigOpened(const Backups::Opened &opened);
    void sigReplacing(bool on);
    void sigReplaced();
    void sigImported(const QString &name, const QStringList &leftOut);
    void sigImportFailed(const QString &reason);
    void sigSent(const QString &problem);
    void sigReleased(); ///< isHolding() has ended

private:
    void begin(Activity activity, BackupWork::Task task);
    BackupWork::Task holding(BackupWork::Task task);
    void create(vorlinmodel::BackupReason reason, const QString &name, Done done);
    void giveUpAutomatic();
    void onIdle();
    void tryAutomatic();

    EditorContext &mContext;
    QString mChosen;
    QString mDirectory;
    QVector<vorlinmodel::BackupInfo> mBackups;
    Activity mActivity = Activity::None;
    int mTask = 0;      ///< of the work, which may still wait
    int mAutomatic = 0; ///< the task of the automatic backup that is under way; 0: none is
    int mPercent = 0;
    bool mConnected = false;
    bool mReading = false;
    bool mClearing = false;
    int mHolds = 0; ///< tasks that hold back the saving
    bool mHasStarted = false;
    bool mHasReadPanel = false;
    QTimer mIdleTimer{this};
    BackupWork mWork;
    ConfigurationImport mImport;
};
