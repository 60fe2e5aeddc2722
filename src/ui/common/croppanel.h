/// A CropView with what zooms it by hand.
#pragma once

#include <QWidget>

class CropView;
class QLabel;
class QSlider;
class QToolButton;

class CropPanel : public QWidget
{
    Q_OBJECT
public:
    explicit CropPanel(QWidget *parent = nullptr);

    CropView &view() { return *mpView; }
    void showZoom(bool shown); ///< what zooms; on at first
    void retranslate();

private:
    void zoomBySlider(int position);
    void zoomByStep(int steps);
    void refresh();

    CropView *mpView;
    QLabel *mpCaption;
    QToolButton *mpSmaller;
    QSlider *mpSlider;
    QToolButton *mpLarger;
};
