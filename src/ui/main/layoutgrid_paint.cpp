// The drawing of a layout.
#include "layoutdraft.h"
#include "layoutgrid.h"
#include "layoutnames.h"
#include "model/ifunctionmanager.h"
#include "model/keypicture.h"
#include "model/layoutbackground.h"
#include "storedlayouts.h"
#include "ui_common/style.h"
#include "ui_editor/editorcontext.h"

#include <QPainter>
#include <QPainterPath>

using vorlinmodel::key_id_t;

namespace {

constexpr qreal CornerRadius = 8;
constexpr int SelectionWidth = 3; // pixels
constexpr int BandOpacity = 60;   // of 255

QPainterPath rounded(const QRect &place)
{
    QPainterPath shape;
    shape.addRoundedRect(place, CornerRadius, CornerRadius);
    return shape;
}

} // namespace

void LayoutGrid::paintEvent(QPaintEvent *)
{
    if (mDrawn.isNull()) {
        mDrawn = QPixmap(size() * devicePixelRatioF());
        mDrawn.setDevicePixelRatio(devicePixelRatioF());
        mDrawn.fill(Qt::transparent);
        QPainter painter(&mDrawn);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        drawKeys(painter);
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, mDrawn);
    painter.setRenderHint(QPainter::Antialiasing);
    drawSelection(painter);
}

void LayoutGrid::drawKeys(QPainter &painter)
{
    for (const quint32 mask : mDraft.value().grouping.masks())
        drawKey(painter, mask);
}

void LayoutGrid::drawKey(QPainter &painter, quint32 mask)
{
    const QRect place = this->place(mask);
    const QPainterPath shape = rounded(place);
    const key_id_t key = storedKey(mask);
    if (key.kid == 0 && !mDraft.isChanged()) { // a layout of another program may leave physical keys out
        painter.strokePath(shape, QPen(QColor(Style::InactiveCell), 1, Qt::DashLine));
        return;
    }
    const QImage face = renderKeyFace(faceOf(mask, key), vorlinmodel::keyPixelSize(mask), 0,
                                      place.size() * devicePixelRatioF());
    painter.save();
    painter.setClipPath(shape);
    painter.drawImage(place, face);
    painter.restore();
    painter.strokePath(shape, QPen(QColor(Style::InactiveCell), 2));
}

key_id_t LayoutGrid::storedKey(quint32 mask) const
{
    const quint32 first = mask & (~mask + 1); // its lowest bit
    if (mDraft.layoutId() == StandardLayoutId)
        return {StandardLayoutId, shownPage(), int(qCountTrailingZeroBits(first)) + 1};
    const vorlinmodel::CustomLayout *layout = mStored.find(mDraft.layoutId());
    for (int i = 0; layout && i < layout->keys.size(); ++i) {
        const quint32 stored = layout->keys.at(i).mask;
        if ((stored & (~stored + 1)) == first)
            return {mDraft.layoutId(), shownPage(), i + 1};
    }
    return {};
}

vorlinmodel::KeyFace LayoutGrid::faceOf(quint32 mask, const key_id_t &key)
{
    vorlinmodel::KeyFace face = key.kid == 0 ? vorlinmodel::KeyFace() : mContext.faces.face(key);
    const bool isAsStored =
        !mDraft.isBackgroundChanged() && mDraft.value().grouping == mDraft.stored().grouping;
    if (isAsStored) // the keys have their pieces, or whatever the person has put there since
        return face;
    if (showsBackground(key))
        face.picture = vorlinmodel::backgroundPiece(mBackground, mask);
    else if (losesBackground(key))
        face.picture = mContext.faces.picture(mContext.edits.store().getDefaultImage(key));
    return face;
}

bool LayoutGrid::showsBackground(const key_id_t &key) const
{
    const LayoutDraft::Value &value = mDraft.value();
    if (mBackground.isNull() || !value.pages.contains(shownPage()))
        return false;
    const auto record = mContext.edits.store().getKeyAttribute(key);
    return value.emptyKeysToo || (record && record->mFId != 0);
}

bool LayoutGrid::losesBackground(const key_id_t &key) const
{
    return key.kid != 0 && mDraft.value().background.isEmpty() && !mDraft.stored().background.isEmpty() &&
           mDraft.stored().pages.contains(key.pageid);
}

void LayoutGrid::drawSelection(QPainter &painter) const
{
    const QColor highlight(Style::Highlight);
    for (const quint32 mask : mDraft.value().grouping.masks()) {
        if (mask & mSelection)
            painter.strokePath(rounded(place(mask)), QPen(highlight, SelectionWidth));
    }
    // Only rectangles can be merged: what "Merge" would take when that is more than the selection.
    const quint32 taken = mDraft.value().grouping.grown(mSelection);
    if (taken != mSelection)
        painter.strokePath(rounded(place(taken)), QPen(highlight, 2, Qt::DashLine));
    const quint32 current = mCurrent == 0 ? 0 : 1U << (mCurrent - 1);
    for (const quint32 mask : mDraft.value().grouping.masks()) {
        if (hasFocus() && (mask & current))
            painter.strokePath(rounded(place(mask)), QPen(Qt::white, 1, Qt::DotLine));
    }
    if (mBand.isEmpty())
        return;
    QColor inside = highlight;
    inside.setAlpha(BandOpacity);
    painter.fillRect(mBand, inside);
    painter.setPen(highlight);
    painter.drawRect(mBand);
}
