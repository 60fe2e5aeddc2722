#include "base/iframeworkcontext.h"
#include "keyedits.h"
#include "model/conversionqueue.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "model/keypicture.h"
#include "protocol/iprotocolthread.h"
#include "ui_common/messagebox.h"
#include "videofiles.h"
#include "videokind.h"
#include "videoplacement_job.h"

#include <QApplication>
#include <QFileInfo>
#include <QPointer>
#include <algorithm>
#include <vector>

using vorlinmodel::AttributeId;
using vorlinmodel::IProtocolThread;
using vorlinmodel::key_id_t;
using vorlinmodel::RequestKind;

VideoPlacement::VideoPlacement(KeyEdits &edits, QObject *parent)
    : QObject(parent)
    , mEdits(edits)
{
    vorlindesk::IFrameworkContext &context = edits.context();
    if (IProtocolThread *thread = context.protocolThread())
        connectProtocolThread(*thread);
    connect(&edits, &KeyEdits::sigReadEnded, this, &VideoPlacement::putWaiting);
    connect(&context, &vorlindesk::IFrameworkContext::sigShowWaitingDialog, this, [this](int request) {
        mIsWaitingShown = request == int(RequestKind::MD_FUNCTION_CODE_KEY_ATTRIBUTE);
    });
    connect(&context, &vorlindesk::IFrameworkContext::sigHideWaitingDialog, this,
            [this] { mIsWaitingShown = false; });
}

VideoPlacement::~VideoPlacement()
{
    mpQueue.reset();
    if (mEdits.isLoaded() && mEdits.saveNow()) // else the disk knows keys that the store does not
        VideoFiles::removeUnused(mEdits.store());
}

VideoPlacement::Job *VideoPlacement::jobOf(const key_id_t &key, State state)
{
    const auto job = std::find_if(mJobs.begin(), mJobs.end(),
                                  [&](const Job &each) { return each.key == key && each.state == state; });
    return job == mJobs.end() ? nullptr : &*job;
}

VideoPlacement::Job *VideoPlacement::jobOfConversion(int conversion)
{
    const auto job = std::find_if(mJobs.begin(), mJobs.end(),
                                  [&](const Job &each) { return each.conversion == conversion; });
    return job == mJobs.end() ? nullptr : &*job;
}

VideoPlacement::Job &VideoPlacement::add(const key_id_t &key, const QString &source, State state)
{
    mJobs.push_back({.number = ++mLastNumber,
                     .key = key,
                     .source = source,
                     .name = QFileInfo(source).fileName(),
                     .state = state});
    return mJobs.back();
}

int VideoPlacement::place(const key_id_t &key, const QString &source, const QString &picture,
                          vorlinmodel::VideoFit fit, bool mayCut)
{
    const auto record = mEdits.store().getKeyAttribute(key);
    if (record && record->mFId == vorlinmodel::VIDEO_FID)
        cancel(key);
    Job &job = add(key, source, State::Converting);
    job.picture = picture;
    job.fit = fit;
    job.mayCut = mayCut;
    const int number = job.number; // the job may end below
    if (!record || record->mFId != vorlinmodel::VIDEO_FID)
        finish(job, tr("Key %1 does not play videos.").arg(key.kid), false);
    else if (videoKind(source, vorlinmodel::keyPixelSize(key)) == VideoKind::Ready)
        arrive(job);
    else
        convert(job);
    return number;
}

void VideoPlacement::convert(Job &job)
{
    if (!mpQueue) {
        mpQueue = std::make_unique<vorlinmodel::ConversionQueue>(
            vorlinmodel::ConverterOptions{.folder = VideoFiles::folder()});
        connect(mpQueue.get(), &vorlinmodel::ConversionQueue::sigProgress, this,
                &VideoPlacement::onConversionProgress);
        connect(mpQueue.get(), &vorlinmodel::ConversionQueue::sigFinished, this,
                &VideoPlacement::onConverted);
    }
    const vorlinmodel::VideoSettings settings{
        .size = vorlinmodel::keyPixelSize(job.key), .mayCut = job.mayCut, .fit = job.fit};
    job.all = 100;
    job.state = State::Converting;
    job.original = job.source;
    job.size = settings.size;
    job.conversion = mpQueue->add({.source = job.source, .video = settings});
    emit sigActivity();
}

void VideoPlacement::onConversionProgress(int conversion, int percent)
{
    if (Job *job = jobOfConversion(conversion)) {
        job->done = percent;
        tellProgress(*job);
    }
}

void VideoPlacement::onConverted(int conversion, const vorlinmodel::ConversionResult &result)
{
    Job *job = jobOfConversion(conversion);
    if (!job) { // cancelled, and its end was reported then
        if (result.success())
            QFile::remove(result.path);
        return;
    }
    job->conversion = 0;
    if (result.success()) {
        job->source = VideoFiles::named(result.path, job->name);
        job->isCut = result.cut;
        arrive(*job);
    } else if (result.error == vorlinmodel::ConversionError::TooLong && !job->mayCut) {
        offerCut(job->number, result.reason);
    } else {
        finish(*job, result.reason, false);
    }
}

/// The question runs an event loop, in which the job may be cancelled and this object destroyed.
void VideoPlacement::offerCut(int number, const QString &reason)
{
    const QPointer<VideoPlacement> self(this);
    const auto answer = MessageBox::question(
        QApplication::activeWindow(), {.text = reason,
                                       .explanation = tr("Should the video end there, so that it fits?"),
                                       .buttons = QMessageBox::Yes | QMessageBox::Cancel,
                                       .captions = {{QMessageBox::Yes, tr("Cut the video")}}});
    if (!self)
        return;
    const auto job =
        std::find_if(mJobs.begin(), mJobs.end(), [number](const Job &each) { return each.number == number; });
    if (job == mJobs.end())
        return;
    if (answer != QMessageBox::Yes)
        return finish(*job, {}, true);
    job->mayCut = true;
    convert(*job);
}

void VideoPlacement::arrive(Job &job)
{
    job.done = job.all = 0;
    // A read of the panel would overwrite it in the store.
    if (mEdits.isReading() || mEdits.pending().isUnderWay(job.key, AttributeId::Video)) {
        job.state = State::Waiting;
        emit sigActivity();
    } else {
        put(job);
    }
}

void VideoPlacement::putWaiting()
{
    std::vector<key_id_t> keys; // put() changes the list
    for (const Job &job : mJobs) {
        if (job.state == State::Waiting)
            keys.push_back(job.key);
    }
    for (const key_id_t &key : keys) {
        if (Job *job = jobOf(key, State::Waiting))
            arrive(*job);
    }
}

void VideoPlacement::cancel(const key_id_t &key)
{
    for (const State state : {State::Converting, State::Waiting}) {
        if (const Job *job = jobOf(key, state)) {
            if (job->conversion != 0)
                mpQueue->cancel(job->conversion);
            finish(*job, {}, true);
        }
    }
    cancelTransfer(key);
}

/// Removes the job.
void VideoPlacement::finish(const Job &finished, const QString &problem, bool cancelled)
{
    const auto job = std::find_if(mJobs.begin(), mJobs.end(),
                                  [&finished](const Job &each) { return each.number == finished.number; });
    const key_id_t key = job->key;
    const bool isPlaced = job->isPlaced;
    const int number = job->number;
    mJobs.erase(job);
    emit sigActivity();
    if (!problem.isEmpty())
        emit sigProblem(problem);
    if (isPlaced)
        mHandOver.post(
            [this, key, problem, cancelled, number] { emit sigFinished(key, problem, cancelled, number); });
}

void VideoPlacement::tellProgress(const Job &job)
{
    const Activity activity = activityOf(job);
    emit sigActivity();
    emit sigProgress(activity.key, activity.stage, activity.percent());
}

VideoPlacement::Activity VideoPlacement::activityOf(const Job &job) const
{
    return {.key = job.key,
            .stage = job.state == State::Converting ? Stage::Converting : Stage::Sending,
            .name = job.name,
            .done = job.done,
            .all = job.all,
            .waiting = int(mJobs.size()) - 1};
}

std::optional<VideoPlacement::Activity> VideoPlacement::activity() const
{
    if (mJobs.empty())
        return std::nullopt;
    const auto isSent = [](const Job &job) {
        return job.state == State::Sending && job.all > 0;
    };
    const auto sent = std::find_if(mJobs.begin(), mJobs.end(), isSent);
    return activityOf(sent == mJobs.end() ? mJobs.front() : *sent);
}
