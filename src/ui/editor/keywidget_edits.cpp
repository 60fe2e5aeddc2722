// What drops and the delete action change.
#include "base/iframeworkcontext.h"
#include "base/log.h"
#include "base/systemsettings.h"
#include "editorcontext.h"
#include "editorlogtext.h"
#include "functionlist.h"
#include "keywidget.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "model/keypicture.h"
#include "model/multiaction.h"
#include "pictureedits.h"
#include "videokind.h"

#include <QPointer>
#include <limits>

using vorlindesk::Log;
using vorlindesk::LogLevel;
using vorlinmodel::AttributeId;

quint32 videoWaitingTime(qint64 bytes)
{
    constexpr qint64 bytesPerSecond = 10240;
    constexpr quint32 leastSeconds = 300;
    constexpr quint32 msPerSecond = 1000;
    return (quint32(bytes / bytesPerSecond) + leastSeconds) * msPerSecond;
}

bool KeyWidget::takeFunction(int nFid)
{
    if (mEnabled <= 0)
        return false;
    Log(LogLevel::Info, EditorLogText::DropFunction, nFid);
    bool isTaken = false;
    mContext.edits.change(tr("Function"), {key_id_}, [&] { isTaken = setFunction(nFid); });
    return isTaken;
}

bool KeyWidget::setFunction(int nFid)
{
    vorlinmodel::IFunctionManager &store = mContext.edits.store();
    const KeyState before = captureKeyState(store, key_id_);
    if (mFId == 0) { // a used key is deliberately not deleted first: the store replaces its function in place
        Log(LogLevel::Info, EditorLogText::DropOnFreeKey, nFid);
        store.deleteKeyAttribute(key_id_);
    }
    if (!store.addKeyAttribute(key_id_, nFid))
        return false;
    mContext.pictures.cancel(key_id_); // of the function that it had
    forgetBelongings(before.fid());
    if (isOfferedByEditor(nFid)) // the catalogue has no icon for it
        store.setCustomImage(key_id_, functionIcon(nFid));
    mFId = nFid;
    updateKeyIcon();
    emit dataChangeSignal(key_id_, mFId);
    mContext.edits.send(key_id_, mFId, AttributeId::FunctionId);
    mContext.edits.send(key_id_, mFId, AttributeId::Picture);
    sendValuesThatFollow(before);
    if (nFid == vorlinmodel::CHILDREN_PAGE_FID)
        emit functionTaken(key_id_, mFId);
    return true;
}

/// The panel keeps the other values of a key whose function changes, while the store takes the defaults.
void KeyWidget::sendValuesThatFollow(const KeyState &before)
{
    if (!before.record)
        return;
    for (const AttributeId attribute :
         attributesToSend(before, captureKeyState(mContext.edits.store(), key_id_))) {
        if (attribute != AttributeId::FunctionId && attribute != AttributeId::Picture)
            mContext.edits.send(key_id_, mFId, attribute);
    }
}

void KeyWidget::takePicture(const QString &picture, const QString &video)
{
    if (mFId != vorlinmodel::VIDEO_FID || video.isEmpty()) {
        mContext.pictures.place(key_id_, picture); // which goes on when it is read
        if (!video.isEmpty())
            PictureEdits::logVideo(video);
    } else if (videoKind(video, vorlinmodel::keyPixelSize(key_id_)) == VideoKind::Foreign) {
        mContext.videos.place(key_id_, video, picture); // which goes on when it is converted
    } else {
        takeVideo(picture, video);
    }
    Log(LogLevel::Info, EditorLogText::DropPicture, qUtf8Printable(picture));
}

void KeyWidget::takeVideo(const QString &picture, const QString &video)
{
    // Older ones would replace it when they are read or converted.
    mContext.videos.cancel(key_id_);
    mContext.pictures.cancel(key_id_);
    mContext.edits.change(tr("Video"), {key_id_}, [&] {
        if (!picture.isEmpty()) // a video of which no frame is known has none
            mContext.edits.store().setCustomImage(key_id_, picture);
        updateKeyIcon();
        setVideo(video);
    });
}

void KeyWidget::setVideo(const QString &video)
{
    // 0 also of a file that cannot be opened: its path is kept, and sending it says why it fails.
    const qint64 size = PictureEdits::logVideo(video);
    mContext.edits.store().setCustomVideo(key_id_, video);
    mContext.videos.announce(video);
    const quint32 longest = quint32(std::numeric_limits<int>::max());
    mContext.framework.showWaitingDialog(int(vorlinmodel::RequestKind::MD_FUNCTION_CODE_KEY_ATTRIBUTE),
                                         int(std::min(videoWaitingTime(size), longest)));
    mContext.edits.send(key_id_, mFId, AttributeId::Video);
}

void KeyWidget::onDeleteActionHandler()
{
    if (!mContext.deleteKeys)
        return removeFunction();
    // Whoever asks runs an event loop, in which the grid may be built anew.
    mContext.deleteKeys({key_id_}, [self = QPointer<KeyWidget>(this)] {
        if (self)
            self->removeFunction();
    });
}

void KeyWidget::removeFunction()
{
    const int fid = mFId;
    Log(LogLevel::Info, EditorLogText::DeleteAction);
    Log(LogLevel::Info, EditorLogText::DeleteKey, fid, key_id_.lid, key_id_.pageid, key_id_.kid);
    mContext.edits.change(tr("Delete"), {key_id_}, [this, fid] {
        mContext.edits.store().deleteKeyAttribute(key_id_);
        if (fid == vorlinmodel::MULTIPLE_ACTIONS_FID)
            Log(LogLevel::Info, EditorLogText::DeleteActions, fid);
        if (fid == vorlinmodel::CHILDREN_PAGE_FID)
            Log(LogLevel::Info, EditorLogText::DeleteChildPage);
        forgetBelongings(fid);
        mFId = 0;
        mContext.edits.send(key_id_, 0, AttributeId::ClearKey);
        emit dataChangeSignal(key_id_, 0);
        updateKeyIcon();
    });
}

void KeyWidget::deleteAttr()
{
    const int fid = mFId;
    Log(LogLevel::Info, EditorLogText::DeleteAttr, fid);
    mContext.edits.change(tr("Delete"), {key_id_}, [this, fid] {
        mContext.edits.store().deleteKeyAttribute(key_id_);
        forgetSteps(fid);
        mFId = 0;
        emit dataChangeSignal(key_id_, 0);
        updateKeyIcon();
    });
}

/// What is kept of a key beside its record.
void KeyWidget::forgetBelongings(int fid)
{
    forgetSteps(fid);
    if (fid != vorlinmodel::CHILDREN_PAGE_FID)
        return;
    if (key_id_.kid >= vorlinmodel::FirstKeyId && key_id_.kid <= vorlinmodel::LastKeyId)
        mContext.childPages.at(size_t(key_id_.kid)).layoutId = 1;
    vorlindesk::SystemSettings::setHomeLayoutEntries({{key_id_.kid}});
}

void KeyWidget::forgetSteps(int fid)
{
    if (fid != vorlinmodel::MULTIPLE_ACTIONS_FID)
        return;
    QString error;
    if (!vorlinmodel::multiActionStore().delActionsByKeyId(key_id_.lid, key_id_.pageid, key_id_.kid, error))
        emit mContext.edits.sigProblem(tr("The multiple actions could not be saved: %1").arg(error));
}
