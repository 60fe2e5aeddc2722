#include "demopictures.h"

#include "model/functioncatalogue.h"
#include "model/functionids.h"
#include "panel_model/panelstate.h"

#include <QBuffer>
#include <QImage>
#include <QMap>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int JpegQuality = 85;

QByteArray encoded(const QImage &image, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format, qstrcmp(format, "JPG") == 0 ? JpegQuality : -1);
    return bytes;
}

QImage blankKey()
{
    QImage image(LcdWidth, LcdHeight, QImage::Format_RGB32);
    image.fill(QColor(24, 24, 26));
    return image;
}

/// Functions that the catalogue has no icon for, with those that the editor gives them.
QString iconPath(int functionId)
{
    static const QMap<int, QString> others{
        {vorlinmodel::HOME_PAGE_FID, QStringLiteral(":/icon/function_icon/Home_page_90x84.png")},
        {vorlinmodel::OPEN_FILE_FID, QStringLiteral(":/icon/function_icon/Open_file_90x84.png")},
        {vorlinmodel::OPEN_WEB_FID, QStringLiteral(":/icon/function_icon/Open_web_90x84.png")},
        {vorlinmodel::VIDEO_FID, QStringLiteral(":/icon/function_icon/Video_90x84.png")},
    };
    return others.value(functionId, vorlinmodel::FunctionCatalogue::defaultIcon(functionId));
}

/// Two chevrons: back below function 12, forward from it on. Stands for every function without an icon.
QImage drawnIcon(int functionId)
{
    QImage image = blankKey();
    image.fill(QColor(51, 51, 51)); // the ground of the other icons
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0, 160, 255), 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    constexpr int next = 12;
    painter.translate(LcdWidth / 2.0, LcdHeight / 2.0 - 8);
    painter.scale(functionId < next ? 1 : -1, 1);
    for (const int x : {-12, 8}) {
        const QPointF points[] = {{x + 8.0, -16}, {x - 8.0, 0}, {x + 8.0, 16}};
        painter.drawPolyline(points, 3);
    }
    return image;
}

void drawHill(QPainter &painter, double height, const QColor &colour)
{
    QPainterPath hill(QPointF(0, LcdHeight));
    hill.lineTo(0, height);
    hill.cubicTo(LcdWidth * 0.3, height - 22, LcdWidth * 0.6, height + 24, LcdWidth, height - 6);
    hill.lineTo(LcdWidth, LcdHeight);
    painter.fillPath(hill, colour);
}

QImage landscape(int number, double sunX)
{
    QImage image = blankKey();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const int hue = (200 + number * 67) % 360;
    QLinearGradient sky(0, 0, 0, LcdHeight);
    sky.setColorAt(0, QColor::fromHsv(hue, 190, 150));
    sky.setColorAt(1, QColor::fromHsv((hue + 30) % 360, 90, 250));
    painter.fillRect(image.rect(), sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 236, 170));
    painter.drawEllipse(QPointF(sunX, 24), 12, 12);
    drawHill(painter, 56, QColor::fromHsv((hue + 120) % 360, 120, 120));
    drawHill(painter, 68, QColor::fromHsv((hue + 120) % 360, 160, 80));
    return image;
}

} // namespace

QByteArray demoIcon(int functionId, bool roomForTitle)
{
    const QString path = iconPath(functionId);
    const QImage found = path.isEmpty() ? QImage() : QImage(path);
    const QImage icon = found.isNull() ? drawnIcon(functionId) : found;
    QImage image = blankKey();
    image.fill(icon.pixelColor(LcdWidth / 2, 1)); // the icon's own ground, also behind its round corners
    QPainter painter(&image);
    painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
    constexpr double small = 0.74;
    const QSizeF size = QSizeF(image.size()) * (roomForTitle ? small : 1);
    painter.drawImage(QRectF(QPointF((LcdWidth - size.width()) / 2, 0), size), icon);
    painter.end();
    return encoded(image, "PNG");
}

QByteArray demoLandscape(int number)
{
    return encoded(landscape(number, 22 + 13 * (number % 5)), "PNG");
}

QByteArray demoVideo()
{
    constexpr int frames = 24;
    QByteArray video;
    for (int frame = 0; frame < frames; ++frame)
        video += encoded(landscape(3, frame * (LcdWidth + 24.0) / frames - 12), "JPG");
    return video.isEmpty() ? demoLandscape(3) : video;
}
