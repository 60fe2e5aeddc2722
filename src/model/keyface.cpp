#include "keyface.h"

#include <QFont>
#include <QPainter>
#include <QTextOption>
#include <cmath>

namespace vorlinmodel {

namespace {

const QColor EmptyKey(24, 24, 26);
constexpr double LargestZoom = 1.35;
constexpr int TitleMargin = 3; // pixels

QRectF zoomed(const QRectF &area, double phase)
{
    constexpr double pi = 3.14159265358979323846;
    const double factor = 1 + (LargestZoom - 1) * (1 - std::cos(2 * pi * phase)) / 2;
    QRectF target(0, 0, area.width() * factor, area.height() * factor);
    target.moveCenter(area.center());
    return target;
}

/// The picture runs out on the left and comes in again on the right.
void drawMarquee(QPainter &painter, const QImage &picture, const QRectF &area, double phase)
{
    const double offset = std::floor(phase * area.width());
    painter.drawImage(area.translated(-offset, 0), picture);
    painter.drawImage(area.translated(area.width() - offset, 0), picture);
}

void drawPicture(QPainter &painter, const KeyFace &face, const QRectF &area, double phase)
{
    QImage picture = face.picture;
    if (picture.isNull())
        return;
    if (face.imageEffects == ColourInversion)
        picture.invertPixels();
    if (face.imageEffects == ImageZooming)
        painter.drawImage(zoomed(area, phase), picture);
    else if (face.imageEffects == Marquee)
        drawMarquee(painter, picture, area, phase);
    else
        painter.drawImage(area, picture);
}

QFont titleFont(int points)
{
    constexpr int defaultPoints = 16;
    constexpr int dotsPerInch = 96;
    constexpr int pointsPerInch = 72;
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize((points > 0 ? points : defaultPoints) * dotsPerInch / pointsPerInch);
    // Hinting and sub-pixels depend on the screen, the panel's pixels do not.
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    return font;
}

Qt::Alignment verticalAlignment(int titleAlignment)
{
    switch (titleAlignment) {
    case AlignTop:
        return Qt::AlignTop;
    case AlignCenter:
        return Qt::AlignVCenter;
    default:
        return Qt::AlignBottom;
    }
}

/// A thin shadow keeps the title readable on a picture of its own colour.
void drawTitle(QPainter &painter, const KeyFace &face, const QRectF &area)
{
    if (face.title.isEmpty())
        return;
    QTextOption option(Qt::AlignHCenter | verticalAlignment(face.titleAlignment));
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    const QRectF box = area.adjusted(TitleMargin, TitleMargin, -TitleMargin, -TitleMargin);
    painter.setFont(titleFont(face.titleFontSize));
    painter.setPen(QColor(0, 0, 0, 190));
    painter.drawText(box.translated(1, 1), face.title, option);
    painter.setPen(face.titleColour);
    painter.drawText(box, face.title, option);
}

} // namespace

bool isMovingEffect(int imageEffects)
{
    return imageEffects == ImageZooming || imageEffects == Marquee;
}

QImage renderKeyFace(const KeyFace &face, const QSize &size, double phase)
{
    return renderKeyFace(face, size, phase, size);
}

QImage renderKeyFace(const KeyFace &face, const QSize &size, double phase, const QSize &target)
{
    QImage image(target, QImage::Format_RGB32);
    if (image.isNull())
        return image;
    image.fill(EmptyKey);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform |
                           QPainter::TextAntialiasing);
    if (target != size)
        painter.scale(target.width() / qreal(size.width()), target.height() / qreal(size.height()));
    const QRectF area(QPointF(0, 0), size);
    drawPicture(painter, face, area, phase);
    drawTitle(painter, face, area);
    return image;
}

} // namespace vorlinmodel
