/// Draws the items of the gallery.
#pragma once

#include <QStyledItemDelegate>

class GalleryDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// The thumbnail above the name, within the decoration size of @p option; on a video its duration.
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    /// All items have one size: that of a cell of the view's grid.
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

/// "1:05" for 65,000 ms, "1:01:05" beyond an hour.
QString galleryDurationText(qint64 durationMs);
