#include "keypreview.h"

#include "editorcontext.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "model/keyface.h"
#include "model/keypicture.h"
#include "pictureedits.h"
#include "ui_common/style.h"
#include "vorlinmimedata.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>
#include <QUrl>

namespace {

const auto GalleryFormat = QLatin1String(DragFormat::FunctionIcon);

/// The first file of a drag from the file manager; empty when there is none on this computer.
QString draggedFile(const QMimeData &data)
{
    const QList<QUrl> urls = data.urls();
    return urls.isEmpty() ? QString() : urls.first().toLocalFile();
}

} // namespace

KeyPreview::KeyPreview(EditorContext &context, QWidget *parent)
    : QWidget(parent)
    , mContext(context)
    , mKeySize(vorlinmodel::PhysicalKeyWidth, vorlinmodel::PhysicalKeyHeight)
{
    constexpr int frameMs = 50;
    setAcceptDrops(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(vorlinmodel::PhysicalKeyWidth, vorlinmodel::PhysicalKeyHeight - 24);
    mAnimation.setInterval(frameMs);
    connect(&mAnimation, &QTimer::timeout, this, qOverload<>(&QWidget::update));
    connect(&mContext.faces, &KeyFaces::sigFaceReady, this, qOverload<>(&QWidget::update));
}

void KeyPreview::showKey(const vorlinmodel::key_id_t &key)
{
    if (key != mKey)
        mKeySize = vorlinmodel::keyPixelSize(key); // reads the file of a custom layout
    mKey = key;
    startOrStopAnimation();
    update();
}

void KeyPreview::startOrStopAnimation()
{
    const auto record = mContext.edits.store().getKeyAttribute(mKey);
    if (!isVisible() || !record || !vorlinmodel::isMovingEffect(record->imageEffects)) {
        mAnimation.stop();
    } else if (!mAnimation.isActive()) {
        mClock.start();
        mAnimation.start();
    }
}

void KeyPreview::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    startOrStopAnimation();
}

void KeyPreview::hideEvent(QHideEvent *event)
{
    mAnimation.stop();
    QWidget::hideEvent(event);
}

QSize KeyPreview::sizeHint() const
{
    return {vorlinmodel::PhysicalKeyWidth, vorlinmodel::PhysicalKeyHeight};
}

void KeyPreview::paintEvent(QPaintEvent *)
{
    const QSize shown = mKeySize.scaled(size(), Qt::KeepAspectRatio);
    const double phase = mAnimation.isActive() ? double(mClock.elapsed() % vorlinmodel::EffectRoundMs) /
                                                     vorlinmodel::EffectRoundMs
                                               : 0;
    QImage image =
        vorlinmodel::renderKeyFace(mContext.faces.face(mKey), mKeySize, phase, shown * devicePixelRatioF());
    image.setDevicePixelRatio(devicePixelRatioF());
    const QPoint corner((width() - shown.width()) / 2, (height() - shown.height()) / 2);
    QPainter painter(this);
    painter.drawImage(corner, image);
    painter.setPen(QPen(QColor(mDropMark ? Style::Highlight : Style::InactiveCell), mDropMark ? 3 : 1));
    painter.drawRect(QRect(corner, shown).adjusted(0, 0, -1, -1));
}

void KeyPreview::dragEnterEvent(QDragEnterEvent *event)
{
    setDropMark(takes(*event));
}

void KeyPreview::dragMoveEvent(QDragMoveEvent *event)
{
    takes(*event);
}

bool KeyPreview::takes(QDropEvent &event) const
{
    const bool isGallery = event.mimeData()->hasFormat(GalleryFormat);
    if (!isGallery && draggedFile(*event.mimeData()).isEmpty()) {
        event.ignore();
        return false;
    }
    if (isGallery) {
        event.acceptProposedAction();
    } else { // a file manager whose files were "moved" here would delete them
        event.setDropAction(Qt::CopyAction);
        event.accept();
    }
    return true;
}

void KeyPreview::dragLeaveEvent(QDragLeaveEvent *)
{
    setDropMark(false);
}

void KeyPreview::dropEvent(QDropEvent *event)
{
    setDropMark(false);
    if (!takes(*event))
        return;
    if (event->mimeData()->hasFormat(GalleryFormat))
        dropGalleryEntry(*event->mimeData());
    else
        dropFile(draggedFile(*event->mimeData()));
}

/// A video of the gallery brings a picture along, which is all that keys show that play no videos.
void KeyPreview::dropGalleryEntry(const QMimeData &dragged)
{
    vorlindesk::VorlinMimeData entry;
    entry.load(dragged, GalleryFormat);
    if (isVideoKey() && !entry.strData2.isEmpty())
        emit sigVideoDropped(entry.strData2, entry.strData1);
    else if (!entry.strData1.isEmpty())
        emit sigPictureDropped(entry.strData1);
}

void KeyPreview::dropFile(const QString &path)
{
    if (path.isEmpty())
        return;
    if (isVideoKey() && PictureEdits::isVideoName(path))
        emit sigVideoDropped(path, {});
    else
        emit sigPictureDropped(path);
}

bool KeyPreview::isVideoKey() const
{
    const auto record = mContext.edits.store().getKeyAttribute(mKey);
    return record && record->mFId == vorlinmodel::VIDEO_FID;
}

void KeyPreview::setDropMark(bool on)
{
    mDropMark = on;
    update();
}
