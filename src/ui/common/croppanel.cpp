#include "croppanel.h"

#include "cropview.h"
#include "style.h"

#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <QToolButton>
#include <cmath>

namespace {

constexpr int SliderSteps = 100; // from the least to the largest zoom; equal steps are equal factors
constexpr int ButtonSteps = 5;

constexpr char PanelStyle[] =
    "QLabel, CropView {color: white;font-size: 14px;}"
    "QToolButton {background-color: rgb(70, 70, 70);color: white;border: 1px solid rgb(108, 108, 108);"
    "border-radius: 4px;font-size: 16px;min-width: 26px;min-height: 26px;}"
    "QToolButton:hover, QToolButton:focus {border-color: rgb(0, 160, 255);}"
    "QToolButton:disabled {color: rgb(108, 108, 108);border-color: rgb(80, 80, 80);}";

int sliderPosition(double zoom)
{
    return int(std::lround(SliderSteps * std::log(zoom) / std::log(CropGeometry::MaxZoom)));
}

double zoomAt(int position)
{
    return std::pow(CropGeometry::MaxZoom, double(position) / SliderSteps);
}

} // namespace

CropPanel::CropPanel(QWidget *parent)
    : QWidget(parent)
    , mpView(new CropView(this))
    , mpCaption(new QLabel(this))
    , mpSmaller(new QToolButton(this))
    , mpSlider(new QSlider(Qt::Horizontal, this))
    , mpLarger(new QToolButton(this))
{
    setStyleSheet(QString::fromLatin1(PanelStyle) + QString::fromLatin1(Style::Slider));
    mpView->setObjectName(QStringLiteral("cropView"));
    mpSlider->setObjectName(QStringLiteral("zoom"));
    mpSlider->setRange(0, SliderSteps);
    mpSmaller->setText(QStringLiteral("\u2212"));
    mpLarger->setText(QStringLiteral("+"));
    for (QToolButton *button : {mpSmaller, mpLarger})
        button->setFocusPolicy(Qt::StrongFocus);
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->setRowStretch(0, 1);
    layout->addWidget(mpView, 0, 0, 1, 4);
    layout->addWidget(mpCaption, 1, 0);
    layout->addWidget(mpSmaller, 1, 1);
    layout->addWidget(mpSlider, 1, 2);
    layout->addWidget(mpLarger, 1, 3);
    connect(mpView, &CropView::sigChanged, this, &CropPanel::refresh);
    connect(mpSlider, &QSlider::valueChanged, this, &CropPanel::zoomBySlider);
    connect(mpSmaller, &QToolButton::clicked, this, [this] { zoomByStep(-ButtonSteps); });
    connect(mpLarger, &QToolButton::clicked, this, [this] { zoomByStep(ButtonSteps); });
    retranslate();
    refresh();
}

void CropPanel::zoomBySlider(int position)
{
    mpView->setZoom(zoomAt(position));
}

void CropPanel::zoomByStep(int steps)
{
    mpSlider->setValue(mpSlider->value() + steps);
}

void CropPanel::refresh()
{
    const QSignalBlocker quiet(mpSlider); // its steps are coarser than those of the wheel
    const bool zooms = mpView->hasPicture() && !mpView->isWhole();
    mpSlider->setValue(sliderPosition(mpView->zoom()));
    for (QWidget *widget : {static_cast<QWidget *>(mpSmaller), static_cast<QWidget *>(mpSlider),
                            static_cast<QWidget *>(mpLarger)})
        widget->setEnabled(zooms);
}

void CropPanel::showZoom(bool shown)
{
    for (QWidget *widget : {static_cast<QWidget *>(mpCaption), static_cast<QWidget *>(mpSmaller),
                            static_cast<QWidget *>(mpSlider), static_cast<QWidget *>(mpLarger)})
        widget->setVisible(shown);
}

void CropPanel::retranslate()
{
    mpCaption->setText(tr("Zoom:"));
    mpSlider->setAccessibleName(tr("Zoom"));
    mpSmaller->setToolTip(tr("Smaller"));
    mpSmaller->setAccessibleName(tr("Smaller"));
    mpLarger->setToolTip(tr("Larger"));
    mpLarger->setAccessibleName(tr("Larger"));
    mpView->setAccessibleName(tr("Part of the picture that is used"));
    mpView->setToolTip(tr("Drag the picture or use the arrow keys to move it. The wheel, + and - zoom."));
}
