/// Puts videos on keys: converts what the panel does not play, sends it, and takes it back when it is
/// cancelled.
#pragma once

#include "base/handover.h"
#include "model/conversionresult.h"
#include "model/keyid.h"
#include "model/videoconversion.h"

#include <QObject>
#include <QString>
#include <list>
#include <memory>
#include <optional>

class KeyEdits;
namespace vorlinmodel {
class ConversionQueue;
class IProtocolThread;
enum class RequestOutcome;
struct Request;
} // namespace vorlinmodel

/// User-interface thread only. Keys without the video function are left alone. Follows also the videos that
/// others send: undo, a drop, a panel that comes back.
class VideoPlacement : public QObject
{
    Q_OBJECT
public:
    enum class Stage { Converting, Sending };
    Q_ENUM(Stage)

    /// What the person is shown of the work.
    struct Activity
    {
        vorlinmodel::key_id_t key;
        Stage stage = Stage::Converting;
        QString name = {}; ///< of the source, without its folder
        int done = 0;      ///< percent of a conversion, blocks of a transfer
        int all = 100;     ///< 0: not begun yet
        int waiting = 0;   ///< videos beside this one

        int percent() const { return all > 0 ? int(qint64{done} * 100 / all) : 0; }
    };

    /// @p edits outlives this object.
    explicit VideoPlacement(KeyEdits &edits, QObject *parent = nullptr);
    /// Ends a conversion, and removes the converted videos that no key has: the history is about to go, too.
    ~VideoPlacement() override;

    /// Puts the video @p source on @p key, as one step of the history. What the panel does not play as it is
    /// gets converted first, one after the other. @p picture is shown on the screen until the first frame is
    /// known; may be empty. @p mayCut: the end may be left out when the whole does not fit; else the person
    /// is asked then. A second video for the same key takes the place of one that is not sent yet.
    /// @return a number that sigFinished repeats.
    int place(const vorlinmodel::key_id_t &key, const QString &source, const QString &picture = {},
              vorlinmodel::VideoFit fit = vorlinmodel::VideoFit::Contain, bool mayCut = false);
    /// Ends the conversion, or the transfer between two blocks; the key is then as it was before.
    void cancel(const vorlinmodel::key_id_t &key);
    bool isBusy() const { return !mJobs.empty(); } ///< something is converted, or sent to a panel
    std::optional<Activity> activity() const;      ///< what is sent, else what is converted
    /// Tells size and time of a video that is about to be sent, by sigNotice().
    void announce(const QString &path, bool isCut = false);

signals:
    void sigProgress(const vorlinmodel::key_id_t &key, VideoPlacement::Stage stage, int percent);
    /// Once for each place(), never before that returns. @p problem is for the person; empty when the video
    /// is on the key, or @p cancelled. Without a panel it is on the key, and waits.
    void sigFinished(const vorlinmodel::key_id_t &key, const QString &problem, bool cancelled, int number);
    void sigActivity();                   ///< activity() has changed
    void sigNotice(const QString &text);  ///< for the person
    void sigProblem(const QString &text); ///< the same, of something that went wrong

private:
    struct Job;
    enum class State {
        Converting,
        Waiting, ///< for the end of a transfer to the same key, or of a read
        Sending,
    };
    using Jobs = std::list<Job>;

    void connectProtocolThread(vorlinmodel::IProtocolThread &thread);
    Job *jobOf(const vorlinmodel::key_id_t &key, State state);
    Job *jobOfConversion(int conversion);
    Job &add(const vorlinmodel::key_id_t &key, const QString &source, State state);
    void convert(Job &job);
    void onConversionProgress(int conversion, int percent);
    void onConverted(int conversion, const vorlinmodel::ConversionResult &result);
    void offerCut(int number, const QString &reason);
    void arrive(Job &job);
    void putWaiting();
    void put(Job &job);
    void onTransferProgress(const vorlinmodel::key_id_t &key, int sentBlocks, int allBlocks);
    void onTransferDone(const vorlinmodel::key_id_t &key, vorlinmodel::RequestOutcome outcome);
    void finish(const Job &job, const QString &problem, bool cancelled);
    void cancelTransfer(const vorlinmodel::key_id_t &key);
    void hideWaitingDialog();
    void tellProgress(const Job &job);
    Activity activityOf(const Job &job) const;

    KeyEdits &mEdits;
    Jobs mJobs; ///< in the order of their beginning
    int mLastNumber = 0;
    bool mIsWaitingShown = false; ///< the waiting dialog, for a video
    std::unique_ptr<vorlinmodel::ConversionQueue> mpQueue;
    vorlindesk::HandOver mHandOver;
};
