/// Every change of custom layouts goes through here: into the file, onto the keys, onto the panel, and into
/// the history.
#pragma once

#include "base/handover.h"
#include "layoutfilecommand.h"
#include "model/customlayouts.h"
#include "model/keyid.h"
#include "pendinglayouts.h"

#include <QMap>
#include <QObject>
#include <QQueue>
#include <QTimer>
#include <QVector>
#include <optional>

class KeyEdits;
struct LayoutMoves;
namespace CustomLayoutRecord {
struct Record;
}
namespace vorlinmodel {
class IProtocolThread;
}

/// User-interface thread only.
class LayoutEdits : public QObject
{
    Q_OBJECT
public:
    /// @p edits outlives this object, while the protocol thread of its context has to end before it.
    explicit LayoutEdits(KeyEdits &edits, QObject *parent = nullptr);

    /// @return the smallest unused id from 2 on; 0 when MaxCustomLayouts are there.
    int freeId() const;
    /// @return the keys with a function that save() would take away.
    QVector<vorlinmodel::key_id_t> keysLost(const vorlinmodel::CustomLayout &layout) const;

    // Each is one step of KeyEdits::history(). @return what went wrong, for the person; empty when done.

    /// Also a new one. Functions stay on the physical key where they are: a logical key takes over the one
    /// that began at the same physical key. The background stays what it was, and is cut anew.
    QString save(const vorlinmodel::CustomLayout &layout);
    QString remove(int layoutId); ///< with its keys
    /// With its keys; the standard layout (1), too. @p newId: where the id of the copy goes.
    QString duplicate(int layoutId, const QString &name, int *newId = nullptr);

    struct Background
    {
        QString file;             ///< picture of panelPixelSize(); empty: take the background away
        QVector<int> pages;       ///< 1 to 16, that show it
        bool emptyKeysToo = true; ///< keys without a function get function 17, which shows a picture
    };
    QString setBackground(int layoutId, const Background &background);

    bool isPending(int layoutId) const; ///< the panel has not taken it yet
    /// The panel came: queues what it has not taken. Before KeyEdits::sendPending(), since a panel has to
    /// know a layout before its keys.
    void sendPending();
    /// Sends the layout as home layout, then asks for what the panel holds.
    void setHomeLayout(int layoutId);
    void askForHomeLayout(); ///< only to show it
    /// The panel has sent its home layout. @return true when that answers setHomeLayout(): then all of it
    /// counts. Else only the layout does: where keys for child pages lead is what the person has set here.
    bool takeHomeReply();

    /// The file was replaced as a whole: the panel is told of the layouts @p changed.
    void savePending() { mPending.save(); } ///< see PendingLayouts::saveWhole()
    void replaced(const QVector<int> &changed);

    // What the panel sent:

    /// The first custom layout in a run: those of the panel take the place of ours. The file is copied aside
    /// now; what the panel has not, and has been told of, goes once no more comes for ReadRest.
    void clearForPanel();
    void takeFromPanel(const CustomLayoutRecord::Record &record);
    void linkLost(); ///< no more will come

    static constexpr int ReadRest = 1000; ///< ms

signals:
    void sigLayoutsChanged();             ///< customLayout.ini differs now
    void sigPendingChanged();             ///< see isPending()
    void sigProblem(const QString &text); ///< for the person, in plain words

private:
    friend class LayoutFileCommand;
    static constexpr int AskForHomeLayout = 255; ///< in place of a layout id

    void askForHomeLayout(bool isSet);
    void connectProtocolThread(vorlinmodel::IProtocolThread &thread);
    void requestDone(int layoutId, bool taken);
    void post(int layoutId);
    void put(const LayoutFileChange &change, bool after);
    void announce(const LayoutFileChange &change);
    QString change(const QString &text, const std::optional<vorlinmodel::CustomLayout> &before,
                   const std::optional<vorlinmodel::CustomLayout> &after, const LayoutMoves &moves);
    void endRead();

    KeyEdits &mEdits;
    PendingLayouts mPending;
    /// Of ours, that the panel has not sent since clearForPanel().
    QMap<int, vorlinmodel::CustomLayout> mUnseen;
    QTimer mReadRest;
    QQueue<bool> mHomeQueries; ///< under way; true: of setHomeLayout()
    vorlindesk::HandOver mHandOver;
};
