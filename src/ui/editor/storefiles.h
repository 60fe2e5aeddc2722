/// Keeps the records of the store on disk, so that they outlive the program.
#pragma once

#include "base/handover.h"

#include <QObject>
#include <QTimer>
#include <future>
#include <thread>

namespace vorlinmodel {
class IFunctionManager;
}
class PendingEdits;

/// User-interface thread; the records are written by a thread of its own, one writing at a time.
class StoreFiles : public QObject
{
    Q_OBJECT
public:
    static constexpr int Rest = 1000; ///< ms without a change, after which is saved

    /// Both outlive this object.
    StoreFiles(vorlinmodel::IFunctionManager &store, PendingEdits &pending, QObject *parent = nullptr);
    ~StoreFiles() override; ///< saves what has not been saved

    /// Reads records and pending edits. @return false when a file cannot be read (it is kept aside).
    bool load();
    void touch(); ///< something changed: saved after the rest
    /// Holds back what is due until resume(): the panel is about to be read, which empties the folder with
    /// the pictures, and a writing meanwhile would remove new ones. Waits for one that is under way, so
    /// whoever must not wait asks isWriting() first.
    void pause();
    void resume(); ///< what was held back is saved after the rest
    /// Holds back what is due until release(), beside pause() and without its wait: a writing that is under
    /// way has ended when the result is ready. For a thread that reads or replaces the files. Calls count.
    std::shared_future<void> hold();
    void release();
    bool isWriting() const; ///< sigWritten() will tell of the end
    bool saveNow();         ///< and waits for it. @return false when a file could not be written

    /// Writes a picture under a name that its content gives it. @return the path; empty when it could not be
    /// written.
    static QString keepPicture(const QByteArray &picture);

signals:
    void sigSaveFailed();
    void sigWritten(); ///< a writing has ended, however; not those of saveNow()

private:
    void startSaving();
    void onWritten(bool done);
    void stopSaving();
    void join();

    vorlinmodel::IFunctionManager &mStore;
    PendingEdits &mPending;
    QTimer mTimer;
    bool mDirty = false;
    bool mPaused = false;
    int mHolds = 0; ///< hold() without its release()
    std::thread mThread;
    std::shared_future<void> mWritten; ///< ready when the last writing has ended; invalid before the first
    vorlindesk::HandOver mHandOver;
};
