// What happens to a video once the panel plays it: its way to the panel.
#include "base/iframeworkcontext.h"
#include "keyedits.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "model/keypicture.h"
#include "pictureedits.h"
#include "protocol/iprotocolthread.h"
#include "videofiles.h"
#include "videoplacement_job.h"

using vorlinmodel::AttributeId;
using vorlinmodel::IProtocolThread;
using vorlinmodel::key_id_t;
using vorlinmodel::Request;
using vorlinmodel::RequestKind;
using vorlinmodel::RequestOutcome;

namespace {

constexpr int VideoRequest = int(RequestKind::MD_FUNCTION_CODE_KEY_ATTRIBUTE);

bool isVideo(const Request &request)
{
    return request.functionCode == quint32(VideoRequest) &&
           request.attributeId == quint32(AttributeId::Video);
}

key_id_t keyOf(const Request &request)
{
    return {int(request.layoutId), int(request.pageId), int(request.keyId)};
}

/// As KeyEdits posts it.
Request requestFor(const key_id_t &key)
{
    return {.functionCode = quint32(VideoRequest),
            .layoutId = quint32(key.lid),
            .pageId = quint32(key.pageid),
            .keyId = quint32(key.kid),
            .functionId = quint32(vorlinmodel::VIDEO_FID),
            .attributeId = quint32(AttributeId::Video),
            .devicePath = {},
            .fileName = {}};
}

} // namespace

/// Both signals come on the protocol thread. KeyEdits was connected before, so that an outcome has had its
/// effect on the store when it gets here.
void VideoPlacement::connectProtocolThread(IProtocolThread &thread)
{
    connect(
        &thread, &IProtocolThread::sigTransferProgress, this,
        [this](const Request &request, int sentBlocks, int allBlocks) {
            if (isVideo(request))
                mHandOver.post([this, key = keyOf(request), sentBlocks, allBlocks] {
                    onTransferProgress(key, sentBlocks, allBlocks);
                });
        },
        Qt::DirectConnection);
    connect(
        &thread, &IProtocolThread::sigRequestDone, this,
        [this](const Request &request, RequestOutcome outcome) {
            if (isVideo(request))
                mHandOver.post([this, key = keyOf(request), outcome] { onTransferDone(key, outcome); });
        },
        Qt::DirectConnection);
}

void VideoPlacement::put(Job &job)
{
    job.state = State::Sending;
    const auto record = mEdits.store().getKeyAttribute(job.key);
    if (!record || record->mFId != vorlinmodel::VIDEO_FID) // it was given another one meanwhile
        return finish(job, tr("Key %1 does not play videos.").arg(job.key.kid), false);
    // Its layout was changed meanwhile.
    if (!job.original.isEmpty() && job.size != vorlinmodel::keyPixelSize(job.key)) {
        job.source = job.original;
        return convert(job);
    }
    announce(job.source, job.isCut);
    const QString problem = PictureEdits::setVideo(mEdits, job.key, job.source, job.picture);
    if (!problem.isEmpty() || !mEdits.context().protocolThread())
        return finish(job, problem, false);
    emit sigActivity();
}

void VideoPlacement::onTransferProgress(const key_id_t &key, int sentBlocks, int allBlocks)
{
    hideWaitingDialog();
    Job *job = jobOf(key, State::Sending);
    if (!job) {
        job = &add(key, mEdits.store().getDefaultImage(key), State::Sending);
        job->isPlaced = false;
    }
    job->done = sentBlocks;
    job->all = allBlocks;
    tellProgress(*job);
}

/// The dialog of a drop disables the whole window, for minutes, and with it the way to cancel. From the first
/// block on the progress is shown instead.
void VideoPlacement::hideWaitingDialog()
{
    if (std::exchange(mIsWaitingShown, false))
        mEdits.context().hideWaitingDialog();
}

void VideoPlacement::onTransferDone(const key_id_t &key, RequestOutcome outcome)
{
    if (mEdits.pending().isUnderWay(key, AttributeId::Video))
        return; // another one of the same key follows
    if (const Job *job = jobOf(key, State::Sending)) {
        QString problem;
        if (outcome == RequestOutcome::Failed)
            problem = tr("\"%1\" could not be sent whole. It is sent again at the next connection.");
        else if (outcome == RequestOutcome::Unreadable)
            problem = tr("\"%1\" cannot be read, so it was not sent.");
        finish(*job, problem.replace(QLatin1String("%1"), job->name), outcome == RequestOutcome::Cancelled);
    }
    if (Job *next = jobOf(key, State::Waiting))
        arrive(*next);
}

void VideoPlacement::cancelTransfer(const key_id_t &key)
{
    IProtocolThread *thread = mEdits.context().protocolThread();
    if (thread && mEdits.pending().isUnderWay(key, AttributeId::Video))
        thread->cancelTransfer(requestFor(key)); // its outcome follows
}

void VideoPlacement::announce(const QString &path, bool isCut)
{
    const QString text = VideoFiles::describe(path, mEdits.context().protocolThread());
    if (!text.isEmpty())
        emit sigNotice(isCut ? text + QStringLiteral(". ") + tr("Its end was left out.") : text);
}
