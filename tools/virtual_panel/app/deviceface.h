/// The front of the device: its bezel and the keys of the layout in view.
#pragma once

#include "keyview.h"
#include "panel_model/panelstate.h"

#include <QElapsedTimer>
#include <QMap>
#include <QWidget>

class KeyButton;

class DeviceFace : public QWidget
{
    Q_OBJECT
public:
    explicit DeviceFace(QWidget *parent);

    /// Shows the page in view of @p state, or dark keys when there is no power.
    void show(const PanelState &state, bool powered);
    /// Draws the keys that move once more.
    void animate();

signals:
    void sigKeyPressed(int key);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void placeKeys(const PanelState &state);
    void takeKey(int key, const PanelKey &panelKey);
    void drawKey(int key);

    QMap<int, KeyButton *> mButtons;
    QMap<int, PanelKey> mKeys; ///< what the views show
    QMap<int, KeyView> mViews;
    QElapsedTimer mClock;
    int mBrightness = 100;
    bool mPowered = false;
};
