/// Clearing the panel, and the configuration on this computer, when the person asks for it.
#pragma once

#include "base/handover.h"
#include "model/profiles.h"

#include <QObject>
#include <QString>
#include <QStringList>

class Backups;
class QWidget;
struct EditorContext;

namespace vorlinmodel {
class IProtocolThread;
enum class RequestOutcome;
} // namespace vorlinmodel

/// Asks, saves the configuration as a safety backup, has the panel clear itself,
/// and only then clears what is on this computer, as one step of the history. A step that fails leaves all
/// that comes after it undone. User-interface thread only.
class PanelReset : public QObject
{
    Q_OBJECT
public:
    enum class Kind {
        Format,  ///< the panel alone
        ResetAll ///< keys, layouts and action lists on this computer, too
    };

    /// @p context outlives this object, whose protocol thread has to end before it. @p pWindow: where boxes
    /// are shown.
    PanelReset(EditorContext &context, Backups &backups, QWidget *pWindow);

    void start(Kind kind);
    bool isBusy() const { return mState != State::Idle; }
    /// How far it is; where the last safety backup lies. Empty when there is nothing to say.
    QString statusText() const;

signals:
    void sigChanged(); ///< isBusy() or statusText()

private:
    enum class State { Idle, Saving, Sending, Reading };
    using Saved = vorlinmodel::Profiles::BackupResult;

    void connectProtocolThread(vorlinmodel::IProtocolThread &thread);
    bool isUpgrading() const;
    QString title() const;
    bool confirm() const;
    void save();
    void showProgress();
    void onSaved(const Saved &saved);
    bool goOn(const Saved &saved) const;
    void send();
    void onSent(vorlinmodel::RequestOutcome outcome);
    void clearComputer();
    QStringList removeLayouts();
    void finish();
    QString savedText() const;
    void setState(State state);

    EditorContext &mContext;
    Backups &mBackups;
    QWidget *const mpWindow;
    Kind mKind = Kind::Format;
    State mState = State::Idle;
    int mPercent = 0;
    QString mFolder; ///< of the last backup
    vorlindesk::HandOver mHandOver;
};
