#include "deviceface.h"

#include "keybutton.h"
#include "model/keyid.h"
#include "style.h"

#include <QPainter>
#include <QPainterPath>

using namespace PanelStyle;

namespace {

constexpr int Rim = 10; // of a key cap, left and right together
constexpr int CellWidth = LcdWidth + Rim;
constexpr int CellHeight = LcdHeight + Rim;

/// Place of a key that covers the physical keys @p first to @p last (1 to 15).
QRect keyRect(int first, int last)
{
    const int row = (first - 1) / PanelColumns;
    const int column = (first - 1) % PanelColumns;
    const int rows = (last - 1) / PanelColumns - row + 1;
    const int columns = (last - 1) % PanelColumns - column + 1;
    return {BezelMargin + column * (CellWidth + KeyGap), BezelMargin + row * (CellHeight + KeyGap),
            columns * CellWidth + (columns - 1) * KeyGap, rows * CellHeight + (rows - 1) * KeyGap};
}

QSize lcdSize(const QRect &key)
{
    return key.size() - QSize(Rim, Rim);
}

} // namespace

DeviceFace::DeviceFace(QWidget *parent)
    : QWidget(parent)
{
    for (int key = vorlinmodel::FirstKeyId; key <= vorlinmodel::LastKeyId; ++key) {
        auto *button = new KeyButton(key, this);
        connect(button, &KeyButton::sigPressed, this, &DeviceFace::sigKeyPressed);
        mButtons.insert(key, button);
    }
    setFixedSize(2 * BezelMargin + PanelColumns * CellWidth + (PanelColumns - 1) * KeyGap,
                 2 * BezelMargin + PanelRows * CellHeight + (PanelRows - 1) * KeyGap);
    placeKeys({});
    mClock.start();
}

void DeviceFace::show(const PanelState &state, bool powered)
{
    placeKeys(state);
    mBrightness = state.brightness;
    mPowered = powered;
    for (const int key : mButtons.keys()) {
        takeKey(key, state.keys.value({state.layout, state.page, key}));
        drawKey(key);
    }
}

/// Pictures and videos are decoded only when they have changed: the panel is shown anew many times a second.
void DeviceFace::takeKey(int key, const PanelKey &panelKey)
{
    if (mViews.contains(key) && mKeys.value(key) == panelKey)
        return;
    mKeys.insert(key, panelKey);
    mViews.insert(key, panelKey.record.functionId == 0 ? KeyView() : KeyView(panelKey));
}

void DeviceFace::animate()
{
    if (!mPowered)
        return;
    for (auto view = mViews.constBegin(); view != mViews.constEnd(); ++view)
        if (view->isMoving())
            drawKey(view.key());
}

/// A layout that the panel was not told of looks like the standard one.
void DeviceFace::placeKeys(const PanelState &state)
{
    const auto layout = state.layouts.constFind(state.layout);
    const bool custom = state.layout != StandardLayout && layout != state.layouts.constEnd();
    for (auto button = mButtons.constBegin(); button != mButtons.constEnd(); ++button) {
        const int key = button.key();
        button.value()->setVisible(!custom || key <= layout->keys.size());
        if (!custom)
            button.value()->setGeometry(keyRect(key, key));
        else if (key <= layout->keys.size())
            button.value()->setGeometry(
                keyRect(layout->keys.at(key - 1).first, layout->keys.at(key - 1).last));
    }
}

void DeviceFace::drawKey(int key)
{
    KeyButton *button = mButtons.value(key);
    const KeyView &view = mViews[key];
    if (mPowered)
        button->show(view.face(lcdSize(button->geometry()), mClock.elapsed()), mBrightness, view.isLatched());
    else
        button->showDark();
}

void DeviceFace::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient body(0, 0, 0, height());
    body.setColorAt(0, QColor(48, 48, 51));
    body.setColorAt(1, QColor(26, 26, 28));
    painter.setPen(QPen(QColor(86, 86, 90), 1.5));
    painter.setBrush(body);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), BezelRadius, BezelRadius);
    painter.setPen(QPen(QColor(255, 255, 255, 18), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(8, 8, -8, -8), BezelRadius - 6, BezelRadius - 6);
}
