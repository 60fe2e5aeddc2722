#include "pageview.h"

#include "ui_common/knownpicture.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "model/keypicture.h"
#include "ui_common/style.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int Columns = 5;
constexpr int Rows = 3;
constexpr int KeyWidth = vorlinmodel::PhysicalKeyWidth;
constexpr int KeyHeight = vorlinmodel::PhysicalKeyHeight;
constexpr int Gap = 16; // between keys, on the scale of the panel's pixels
constexpr int LargestSide = 4096;

/// The file may hold anything, a long video too: only what says that it is a picture of a sensible size is
/// decoded.
QPixmap decodedPicture(const QString &path)
{
    const QImage png = knownPicture(path, "PNG"); // what the panel sends is kept as PNG
    if (!png.isNull())
        return QPixmap::fromImage(png);
    QImageReader reader(path);
    const QSize size = reader.size();
    if (!size.isValid() || size.width() > LargestSide || size.height() > LargestSide)
        return {};
    return QPixmap::fromImage(reader.read());
}

int titleFlags(int alignment)
{
    switch (alignment) {
    case vorlinmodel::AlignTop:
        return Qt::AlignTop | Qt::AlignHCenter | Qt::TextWordWrap;
    case vorlinmodel::AlignCenter:
        return Qt::AlignVCenter | Qt::AlignHCenter | Qt::TextWordWrap;
    default:
        return Qt::AlignBottom | Qt::AlignHCenter | Qt::TextWordWrap;
    }
}

void paintKey(QPainter &painter, const QRect &place, const KeyPreview &key)
{
    const qreal scale = place.height() / qreal(KeyHeight);
    QPainterPath shape;
    shape.addRoundedRect(place, 8 * scale, 8 * scale);
    painter.save();
    painter.fillPath(shape, key.used ? QColor(Qt::black) : QColor(Style::InactiveCell));
    painter.setClipPath(shape);
    if (!key.picture.isNull())
        painter.drawPixmap(place, key.picture);
    if (!key.title.isEmpty()) {
        QFont font = painter.font();
        font.setPixelSize(qMax(1, qRound(qBound(1, key.titleFontSize, KeyHeight) * scale)));
        painter.setFont(font);
        painter.setPen(key.titleColour.isValid() ? key.titleColour : QColor(Qt::green));
        const int margin = qRound(3 * scale);
        painter.drawText(place.adjusted(margin, margin, -margin, -margin), titleFlags(key.titleAlignment),
                         key.title);
    }
    painter.restore();
    if (key.used) // many pictures have the colour of the page: the key must be seen nevertheless
        painter.strokePath(shape, QPen(QColor(Style::InactiveCell), qMax(1.0, scale)));
}

} // namespace

QRect keyPreviewRect(QSize size, int keyId)
{
    constexpr int panelWidth = Columns * KeyWidth + (Columns - 1) * Gap;
    constexpr int panelHeight = Rows * KeyHeight + (Rows - 1) * Gap;
    const qreal scale = qMin(size.width() / qreal(panelWidth), size.height() / qreal(panelHeight));
    const qreal left = (size.width() - panelWidth * scale) / 2;
    const qreal top = (size.height() - panelHeight * scale) / 2;
    const int column = (keyId - 1) % Columns;
    const int row = (keyId - 1) / Columns;
    return {qRound(left + column * (KeyWidth + Gap) * scale), qRound(top + row * (KeyHeight + Gap) * scale),
            qRound(KeyWidth * scale), qRound(KeyHeight * scale)};
}

PageView::PageView(vorlinmodel::IFunctionManager &store, QWidget *parent)
    : QWidget(parent)
    , mStore(store)
    , mKeys(vorlinmodel::LastKeyId)
{
    setObjectName(QStringLiteral("pageView"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PageView::showPage(int layoutId, int pageId)
{
    mLastDecoded.swap(mDecoded);
    for (int keyId = vorlinmodel::FirstKeyId; keyId <= vorlinmodel::LastKeyId; ++keyId) {
        const vorlinmodel::key_id_t id{layoutId, pageId, keyId};
        KeyPreview preview;
        if (const auto key = mStore.getKeyAttribute(id)) {
            preview = {true,
                       picture(mStore.getDisplayImage(id)),
                       key->strTitle,
                       key->titleColour,
                       key->titleFontSize,
                       key->titleAlignment};
        }
        mKeys[keyId - 1] = preview;
    }
    mLastDecoded.clear();
    update();
}

QPixmap PageView::picture(const QString &path)
{
    const QFileInfo file(path);
    if (path.isEmpty() || !file.isFile())
        return {};
    const auto known = mLastDecoded.constFind(path);
    if (known != mLastDecoded.constEnd() && known->modified == file.lastModified() &&
        known->size == file.size())
        mDecoded.insert(path, *known);
    else
        mDecoded.insert(path, {file.lastModified(), file.size(), decodedPicture(path)});
    return mDecoded.value(path).pixmap;
}

void PageView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    for (int keyId = vorlinmodel::FirstKeyId; keyId <= vorlinmodel::LastKeyId; ++keyId)
        paintKey(painter, keyPreviewRect(size(), keyId), mKeys.at(keyId - 1));
}
