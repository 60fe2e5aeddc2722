/// The dialog that sends a firmware file to the panel.
#pragma once

#include "upgradefile.h"

#include <QDialog>
#include <QTimer>
#include <atomic>
#include <functional>

class LatestTask;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class UpgradeProgress;
struct UpgradeEvent;

namespace vorlindesk {
class IFrameworkContext;
}

namespace vorlinmodel {
class IProtocolThread;
}

/// Checks the file, has the configuration backed up, asks the panel until it is ready, and shows what the
/// protocol thread says. Owns nothing of the upgrade: closing the dialog leaves one that runs to itself.
class HIDUpgradeDialog : public QDialog
{
    Q_OBJECT
public:
    /// What the file is for; decides on captions, and a font file is asked for only once.
    enum class Mode { Firmware, FontFile };
    struct BackupState
    {
        QString folder;    ///< empty: there is none
        QStringList lacks; ///< what the backup lacks, or why there is none; in plain words
    };
    using BackedUp = std::function<void(const BackupState &state)>;
    /// Begins to save the configuration; @c done is to be called on the thread of the dialog, if that is
    /// still there. @return why nothing can be saved now, for the person; empty when it was begun.
    using Backup = std::function<QString(BackedUp done)>;

    static constexpr int RetryPeriod = 100; ///< ms between two requests to a panel that is not ready
    static constexpr int MaxLines = 20'000; ///< in the message area; the oldest go first
    static constexpr int MaxBundle = 1000; ///< lines shown in one go; surplus lines about blocks are left out
    static constexpr int MaxTimeout = 10000; ///< ms between two blocks that can be set

    HIDUpgradeDialog(vorlindesk::IFrameworkContext &context, QWidget *parent, Mode mode = Mode::Firmware);
    ~HIDUpgradeDialog() override;

    bool setup();                                                  ///< @return false when it cannot be built
    void setBackup(Backup backup) { mBackup = std::move(backup); } ///< without one, no backup is made
    /// Milliseconds without a word from a panel that is being upgraded, after which help is shown; 10 s at
    /// first.
    void setPatience(int milliseconds) { mPatience = milliseconds; }
    void retranslate();
    void reject() override; ///< every way of closing; asks while an upgrade runs

    /// Asks whether to leave although an upgrade runs. @return true at once when none does.
    static bool confirmLeave(vorlindesk::IFrameworkContext &context, QWidget *parent);

public slots:
    void onSelectButtonClicked();
    void onUpgradeButtonClicked();
    void onClearSendMessageButtonClicked();
    void onSetHidPathButtonClicked();
    void onSetTimeoutButtonClicked();
    void onSlotTimerUpdateOut();
    void onUpdateAvailable(int nResult); ///< above 0: the panel takes the upgrade

private:
    enum class State { Idle, Checking, Waiting, Running, Succeeded, Failed };
    QWidget *fileRow();
    QWidget *serviceRow();
    QWidget *messageRow();
    QLabel *label(const char *name);
    QPushButton *button(const char *name, void (HIDUpgradeDialog::*slot)());
    QLineEdit *field(const char *name);

    bool isUpgrading() const;
    void prepare(bool toUpgrade);
    void onChecked(const UpgradeFile &file);
    void save();
    void onSaved(const BackupState &state);
    void startAsking();
    bool goOn(const BackupState &state);
    bool hasFileChanged() const;
    void requestUpgrade();
    void stopAsking();
    void onEvents(const std::vector<UpgradeEvent> &events);
    void onEvent(const UpgradeEvent &event);
    void showLines(const QStringList &lines);
    void onFinished(int nResult);
    void onDone();
    void setState(State state);
    QString problemText() const;
    QString fileText() const;
    QString stateText() const;
    QString failureHelp() const;

    vorlindesk::IFrameworkContext &mContext;
    vorlinmodel::IProtocolThread *const mpThread; ///< may be missing
    const Mode mMode;
    Backup mBackup;
    int mPatience = 10'000;
    QTimer mUpdateTimer;
    bool mIsTimerUpdateFinished = false; ///< never false again
    State mState = State::Idle;
    bool mCrcFailed = false;
    UpgradeFile mFile;
    bool mIsSaving = false;
    bool mIsAsked = false;   ///< a request of ours is in the queue, or is carried out
    bool mIsClosing = false; ///< as soon as the try that is under way has found no panel
    QString mBackupFolder;

    QLabel *mpSendCaption = nullptr;
    QLabel *mpReceiveCaption = nullptr;
    QLabel *mpFileLabel = nullptr;
    QLabel *mpFileInfo = nullptr;
    QLabel *mpStateLabel = nullptr;
    QLineEdit *mpFilePath = nullptr;
    QLineEdit *mpHidPath = nullptr;
    QLineEdit *mpTimeout = nullptr;
    QPlainTextEdit *mpMessages = nullptr;
    QPushButton *mpSelect = nullptr;
    QPushButton *mpUpgrade = nullptr;
    QPushButton *mpClear = nullptr;
    UpgradeProgress *mpProgress = nullptr;
    LatestTask *mpTask = nullptr;
};
