#include "galleryview.h"

#include "gallerydelegate.h"

#include <QDrag>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>

namespace {

constexpr int UsualColumn = 96; // pixels
constexpr int LeastColumns = 2;
constexpr int Margin = 6; // around a thumbnail
constexpr QSize DragSize(64, 64);

} // namespace

int galleryColumnWidth(int width)
{
    return width / qMax(LeastColumns, width / UsualColumn);
}

GalleryView::GalleryView(QWidget *parent)
    : QListView(parent)
{
    setViewMode(QListView::IconMode);
    setMovement(QListView::Static);
    setDragEnabled(true);  // after the movement, which would take it back
    setAcceptDrops(false); // files go to the frame
    setResizeMode(QListView::Adjust);
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setTextElideMode(Qt::ElideMiddle);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // a bar that comes and goes would move the columns
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    setItemDelegate(new GalleryDelegate(this));
    // Not QListView::activated, which on some desktops a single click brings about.
    connect(this, &QListView::doubleClicked, this, &GalleryView::sigChosen);
}

void GalleryView::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && currentIndex().isValid())
        emit sigChosen(currentIndex());
    else
        QListView::keyPressEvent(event);
}

void GalleryView::startDrag(Qt::DropActions)
{
    const QModelIndex index = currentIndex();
    QMimeData *picture = model()->mimeData({index});
    if (!index.isValid() || !picture)
        return;
    QPixmap thumbnail = index.data(Qt::DecorationRole).value<QPixmap>();
    if (!thumbnail.isNull())
        thumbnail = thumbnail.scaled(DragSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    auto *drag = new QDrag(this);
    drag->setMimeData(picture); // which it owns from here on
    drag->setPixmap(thumbnail);
    drag->setHotSpot(QRect(QPoint(), thumbnail.size()).center());
    drag->exec(Qt::CopyAction);
}

void GalleryView::resizeEvent(QResizeEvent *event)
{
    const int column = galleryColumnWidth(viewport()->width() - 1);
    const int icon = column - 2 * Margin;
    setIconSize({icon, icon});
    setGridSize({column, column + fontMetrics().height() + 2});
    QListView::resizeEvent(event);
}
