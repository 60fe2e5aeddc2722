#include "layoutpreview.h"

#include "model/customlayouts.h"
#include "model/keypicture.h"
#include "ui_common/style.h"
#include "ui_editor/editorcontext.h"
#include "ui_editor/keydescriptor.h"

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int StandardLayout = 1;
constexpr int FirstPage = 1;
constexpr qreal CornerRadius = 8;

} // namespace

QVector<KeyDescriptor> keysOfLayout(int layoutId)
{
    QVector<KeyDescriptor> keys;
    if (layoutId == StandardLayout) {
        for (int keyId = vorlinmodel::FirstKeyId; keyId <= vorlinmodel::LastKeyId; ++keyId)
            keys.append(KeyDescriptor(layoutId, FirstPage, keyId, 1U << (keyId - 1)));
        return keys;
    }
    if (const auto layout = vorlinmodel::loadCustomLayout(layoutId)) {
        for (int i = 0; i < layout->keys.size(); ++i)
            keys.append(KeyDescriptor(layoutId, FirstPage, i + 1, layout->keys.at(i).mask));
    }
    return keys;
}

LayoutPreview::LayoutPreview(EditorContext &context, QWidget *parent)
    : QWidget(parent)
    , mContext(context)
{
    setObjectName(QStringLiteral("layoutPreview"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    connect(&context.faces, &KeyFaces::sigFaceReady, this, QOverload<>::of(&LayoutPreview::update));
    connect(&context.edits, &KeyEdits::sigKeysChanged, this, QOverload<>::of(&LayoutPreview::update));
}

void LayoutPreview::showLayout(int layoutId)
{
    mKeys = keysOfLayout(layoutId);
    update();
}

void LayoutPreview::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const GridMetrics metrics = GridMetrics::fitting(size());
    for (const KeyDescriptor &key : mKeys) {
        const QRect place = cellRect(key, metrics, size());
        if (!place.isValid())
            continue;
        const QImage face =
            renderKeyFace(mContext.faces.face({key.mLayoutId, key.mPageId, key.mKeyId}),
                          vorlinmodel::keyPixelSize(key.mBitMap), 0, place.size() * devicePixelRatioF());
        QPainterPath shape;
        shape.addRoundedRect(place, CornerRadius, CornerRadius);
        painter.save();
        painter.setClipPath(shape);
        painter.drawImage(place, face);
        painter.restore();
        painter.strokePath(shape, QPen(QColor(Style::InactiveCell), 2));
    }
}
