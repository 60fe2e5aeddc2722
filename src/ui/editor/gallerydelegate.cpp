#include "gallerydelegate.h"

#include "galleryicons.h"
#include "gallerymodel.h"
#include "ui_common/style.h"

#include <QPainter>

namespace {

constexpr int Margin = 6;      // pixels around a thumbnail
constexpr int Corner = 4;      // radius
constexpr int MarkHeight = 16; // of the strip that tells a video
const QColor Empty(58, 58, 58);
const QColor Dim(150, 150, 150);
const QColor MarkGround(0, 0, 0, 170);

QRect thumbnailArea(const QStyleOptionViewItem &option)
{
    const QSize size = option.decorationSize;
    return {option.rect.left() + (option.rect.width() - size.width()) / 2, option.rect.top() + Margin,
            size.width(), size.height()};
}

void drawEmpty(QPainter &painter, const QRect &area, const QModelIndex &index)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(Empty);
    painter.drawRoundedRect(area, Corner, Corner);
    QRect mark(0, 0, area.width() / 3, area.width() / 3);
    mark.moveCenter(area.center());
    if (index.data(GalleryModel::IsVideoRole).toBool())
        GalleryIcons::drawFilm(painter, mark, Dim);
    else if (index.data(GalleryModel::FailedRole).toBool())
        GalleryIcons::drawCross(painter, mark, Dim);
}

/// An icon stays as small as it is.
QRect fitted(const QPixmap &pixmap, const QRect &area)
{
    QSize size = pixmap.size();
    if (size.width() > area.width() || size.height() > area.height())
        size.scale(area.size(), Qt::KeepAspectRatio);
    QRect rect({}, size.expandedTo({1, 1}));
    rect.moveCenter(area.center());
    return rect;
}

void drawVideoMark(QPainter &painter, const QRect &area, int bottom, const QModelIndex &index,
                   const QFont &font)
{
    const qint64 duration = index.data(GalleryModel::DurationRole).toLongLong();
    const QString text = duration > 0 ? galleryDurationText(duration) : QString();
    QFont small = font;
    small.setPixelSize(11);
    painter.setFont(small);
    const int textWidth = text.isEmpty() ? 0 : QFontMetrics(small).horizontalAdvance(text) + 4;
    const QRect ground(area.left(), bottom - MarkHeight + 1, qMin(area.width(), 20 + textWidth), MarkHeight);
    painter.setPen(Qt::NoPen);
    painter.setBrush(MarkGround);
    painter.drawRoundedRect(ground, 3, 3);
    GalleryIcons::drawFilm(painter, {ground.left() + 4, ground.top() + 2, 12, 12}, Qt::white);
    painter.setPen(Qt::white);
    painter.drawText(ground.adjusted(19, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, text);
}

} // namespace

QString galleryDurationText(qint64 durationMs)
{
    const qint64 seconds = durationMs / 1000;
    const QString tail = QStringLiteral(":%1").arg(seconds % 60, 2, 10, QLatin1Char('0'));
    if (seconds < 3600)
        return QString::number(seconds / 60) + tail;
    return QStringLiteral("%1:%2").arg(seconds / 3600).arg(seconds / 60 % 60, 2, 10, QLatin1Char('0')) + tail;
}

void GalleryDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    const QRect area = thumbnailArea(option);
    const auto pixmap = index.data(Qt::DecorationRole).value<QPixmap>();
    const bool isSelected = option.state & QStyle::State_Selected;
    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (isSelected || (option.state & QStyle::State_HasFocus)) {
        painter->setPen(isSelected ? QPen(Qt::NoPen) : QPen(QColor(Style::Highlight)));
        painter->setBrush(isSelected ? QBrush(QColor(Style::Highlight)) : QBrush(Qt::NoBrush));
        painter->drawRoundedRect(QRectF(option.rect).adjusted(1.5, 1.5, -1.5, -1.5), Corner, Corner);
    }
    if (pixmap.isNull())
        drawEmpty(*painter, area, index);
    else
        painter->drawPixmap(fitted(pixmap, area), pixmap);
    if (index.data(GalleryModel::IsVideoRole).toBool() && !pixmap.isNull())
        drawVideoMark(*painter, area, fitted(pixmap, area).bottom(), index, option.font);
    const QRect line(option.rect.left() + 4, area.bottom() + 3, option.rect.width() - 8,
                     option.fontMetrics.height());
    painter->setFont(option.font);
    painter->setPen(Qt::white);
    painter->drawText(line, Qt::AlignHCenter | Qt::AlignVCenter,
                      option.fontMetrics.elidedText(index.data().toString(), Qt::ElideMiddle, line.width()));
    painter->restore();
}

QSize GalleryDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    const QSize icon = option.decorationSize;
    return {icon.width() + 2 * Margin, icon.height() + 2 * Margin + option.fontMetrics.height() + 2};
}
