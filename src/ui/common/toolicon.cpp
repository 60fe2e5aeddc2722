#include "toolicon.h"

#include "knownpicture.h"

#include <QPainter>
#include <QPixmap>

QIcon toolIcon(const char *name)
{
    constexpr qreal disabledOpacity = 0.3;
    QIcon icon = knownIcon(QStringLiteral(":/icon/edit/%1.png").arg(QLatin1String(name)));
    const QPixmap drawn = icon.pixmap(icon.availableSizes().value(0));
    QPixmap faded(drawn.size());
    faded.setDevicePixelRatio(drawn.devicePixelRatio());
    faded.fill(Qt::transparent);
    QPainter painter(&faded);
    painter.setOpacity(disabledOpacity);
    painter.drawPixmap(QPoint(), drawn);
    painter.end();
    icon.addPixmap(faded, QIcon::Disabled);
    return icon;
}
