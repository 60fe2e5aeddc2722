// Mouse, focus, drag and drop on a key.
#include "base/log.h"
#include "editorcontext.h"
#include "editorlogtext.h"
#include "keydrag.h"
#include "keypicturelabel.h"
#include "keywidget.h"
#include "model/functionids.h"
#include "pictureedits.h"
#include "vorlinmimedata.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDrag>
#include <QDropEvent>
#include <QMenu>
#include <QMouseEvent>

using vorlindesk::Log;
using vorlindesk::LogLevel;

namespace {

bool holds(const QMimeData &data, const char *format)
{
    return data.hasFormat(QString::fromLatin1(format));
}

} // namespace

void KeyWidget::enterEvent(QEvent *event)
{
    QFrame::enterEvent(event);
    emit mouseenter();
}

void KeyWidget::leaveEvent(QEvent *event)
{
    QFrame::leaveEvent(event);
    emit mouseleave();
}

void KeyWidget::focusInEvent(QFocusEvent *event)
{
    QFrame::focusInEvent(event);
    if (mpIcon)
        mpIcon->setFocusFrame(true);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        emit reachedByTab();
}

void KeyWidget::focusOutEvent(QFocusEvent *event)
{
    QFrame::focusOutEvent(event);
    if (mpIcon)
        mpIcon->setFocusFrame(false);
}

void KeyWidget::mousePressEvent(QMouseEvent *event)
{
    mIsPressed = event->button() == Qt::LeftButton;
    mPressPosition = event->pos();
}

void KeyWidget::mouseMoveEvent(QMouseEvent *event)
{
    if (!mIsPressed || !event->buttons().testFlag(Qt::LeftButton) || mFId == 0)
        return;
    if ((event->pos() - mPressPosition).manhattanLength() < QApplication::startDragDistance())
        return;
    mIsPressed = false;
    startDrag();
}

void KeyWidget::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const bool wasPressed = std::exchange(mIsPressed, false);
    if (wasPressed && rect().contains(event->pos()))
        click(event->modifiers());
}

void KeyWidget::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        activate();
}

void KeyWidget::contextMenuEvent(QContextMenuEvent *event)
{
    event->accept();
    const bool isMouse = event->reason() == QContextMenuEvent::Mouse;
    openMenu(isMouse ? event->globalPos() : mapToGlobal(rect().center()));
}

void KeyWidget::startDrag()
{
    auto mime = std::make_unique<QMimeData>();
    KeyDrag::setKey(*mime, key_id_);
    auto *drag = new QDrag(this); // deletes itself
    drag->setMimeData(mime.release());
    const QPixmap picture = mpIcon->pixmap(Qt::ReturnByValue);
    drag->setPixmap(picture.isNull() ? grab() : picture);
    drag->setHotSpot(mPressPosition);
    drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::MoveAction);
}

bool KeyWidget::accepts(const QDropEvent &event) const
{
    const QMimeData &mime = *event.mimeData();
    if (mEnabled <= 0)
        return false;
    if (event.mouseButtons().testFlag(Qt::LeftButton)) {
        if (holds(mime, DragFormat::FunctionId) || (holds(mime, DragFormat::FunctionIcon) && mFId != 0))
            return true;
        const auto source = KeyDrag::keyOf(mime);
        if (source && *source != key_id_)
            return true;
    }
    // The drag of another program: which buttons are held is its affair.
    return mFId != 0 && !KeyDrag::mediaFileOf(mime, mFId == vorlinmodel::VIDEO_FID).isEmpty();
}

void KeyWidget::answer(QDropEvent &event) const
{
    const QMimeData &mime = *event.mimeData();
    if (holds(mime, DragFormat::FunctionId) || holds(mime, DragFormat::FunctionIcon))
        return event.acceptProposedAction();
    // A file manager whose files were "moved" here would delete them.
    const bool isMove = holds(mime, DragFormat::Key) && !KeyDrag::isCopy(event);
    event.setDropAction(isMove ? Qt::MoveAction : Qt::CopyAction);
    event.accept();
}

void KeyWidget::dragEnterEvent(QDragEnterEvent *event)
{
    dragMoveEvent(event);
}

void KeyWidget::dragMoveEvent(QDragMoveEvent *event)
{
    if (accepts(*event))
        answer(*event);
    else
        event->ignore();
}

void KeyWidget::dropEvent(QDropEvent *event)
{
    if (mEnabled <= 0)
        return event->ignore();
    Log(LogLevel::Debug, EditorLogText::CellDrop, key_id_.lid, key_id_.pageid, key_id_.kid, mFId);
    const QMimeData &mime = *event->mimeData();
    if (!mime.data(QString::fromLatin1(DragFormat::FunctionId)).isEmpty())
        return dropFunction(*event);
    answer(*event);
    if (holds(mime, DragFormat::FunctionIcon)) {
        vorlindesk::VorlinMimeData pair;
        pair.load(mime, QString::fromLatin1(DragFormat::FunctionIcon));
        const bool isVideo = mFId == vorlinmodel::VIDEO_FID && !pair.strData2.isEmpty();
        if (pair.strData1.isEmpty() && !isVideo) // foreign bytes, or a video of which no frame is known
            return event->ignore();
        event->setAccepted(mFId != 0);
        return takePicture(pair.strData1, pair.strData2);
    }
    if (const auto source = KeyDrag::keyOf(mime))
        return KeyDrag::dropKey(mContext, *source, key_id_, KeyDrag::isCopy(*event));
    dropFile(*event);
}

void KeyWidget::dropFile(QDropEvent &event)
{
    const bool takesVideo = mFId == vorlinmodel::VIDEO_FID;
    const QString file = KeyDrag::mediaFileOf(*event.mimeData(), takesVideo);
    if (mFId == 0 || file.isEmpty())
        return event.ignore();
    if (takesVideo && PictureEdits::isVideoName(file))
        mContext.videos.place(key_id_, file); // which says what is wrong with it, too
    else
        takePicture(file, {});
}

void KeyWidget::dropFunction(QDropEvent &event)
{
    const auto fid = KeyDrag::functionOf(*event.mimeData());
    if (!fid)
        return event.ignore();
    event.acceptProposedAction();
    takeFunction(*fid);
}
