/// Puts pictures on keys, once they have been read whole, away from the user interface.
#pragma once

#include "model/keyid.h"
#include "ui_common/latesttask.h"

#include <QList>
#include <QObject>
#include <QString>

class KeyEdits;

/// User-interface thread only. One picture after the other is read.
class PicturePlacement : public QObject
{
    Q_OBJECT
public:
    /// @p edits outlives this object.
    explicit PicturePlacement(KeyEdits &edits, QObject *parent = nullptr);

    /// Puts the picture in the file @p path on @p key, as one step of the history. One with more pixels than
    /// keys need is kept as a smaller copy. What cannot be decoded whole changes nothing, and is told by
    /// KeyEdits::sigProblem(). A second picture for the same key takes the place of one that is still being
    /// read. Nothing happens when the key has no function, or another one by then.
    void place(const vorlinmodel::key_id_t &key, const QString &path);
    void cancel(const vorlinmodel::key_id_t &key);   ///< a newer edit of its picture prevails
    bool isBusy() const { return !mJobs.isEmpty(); } ///< a picture is being read, or waits

private:
    struct Job
    {
        vorlinmodel::key_id_t key;
        int fid = 0;
        QString path;
        QString problem = {};
        bool isRead = false; ///< and waits for the end of a read of the panel
    };

    void readNext();
    void onRead(const QString &path, const QString &problem);
    void putRead();

    KeyEdits &mEdits;
    QList<Job> mJobs; ///< those that are read come first; while the task runs, it is at the next
    LatestTask mTask;
};
