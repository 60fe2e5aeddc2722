/// Converts pictures and videos one after the other, away from the user interface.
#pragma once

#include "base/handover.h"
#include "model/imageconversion.h"
#include "model/videoconversion.h"

#include <QObject>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

namespace vorlinmodel {

struct ConversionJob
{
    QString source;
    QSize size{90, 84};                      ///< pixels of a picture; a video has its own in @c video
    std::optional<VideoSettings> video = {}; ///< makes a video; a picture without it
};

/// Lives on one thread, which calls it and receives its signals; a worker thread converts.
class ConversionQueue : public QObject
{
    Q_OBJECT
public:
    explicit ConversionQueue(ConverterOptions options = {}, QObject *parent = nullptr);
    /// Ends a conversion that is running, within 2 s. What has not been reported is dropped, its files
    /// removed.
    ~ConversionQueue() override;

    /// @return the number of the job, above 0; sigFinished follows for each one, never before this returns.
    int add(const ConversionJob &job);
    /// Ends a job that waits or runs: sigFinished follows with ConversionError::Cancelled, and no file stays.
    void cancel(int id);
    void cancelAll();
    int count() const; ///< jobs that have not been reported yet

signals:
    void sigStarted(int id);
    void sigProgress(int id, int percent); ///< of videos alone; 0 to 100
    void sigFinished(int id, const vorlinmodel::ConversionResult &result);

private:
    struct Task;
    using TaskPtr = std::shared_ptr<Task>;

    void cancel(const TaskPtr &task);
    void work();
    TaskPtr nextTask();
    ConversionResult convert(const TaskPtr &task);
    void deliver(const TaskPtr &task);

    ImageConverter mImages;
    VideoConverter mVideos;
    std::deque<TaskPtr> mTasks; // all that are not reported; of the owning thread
    int mLastId = 0;

    std::mutex mMutex; // guards the next two
    std::condition_variable mWake;
    std::deque<TaskPtr> mWaiting;
    bool mStopping = false;

    std::thread mThread; // started with the first job
    vorlindesk::HandOver mHandOver;
};

} // namespace vorlinmodel
