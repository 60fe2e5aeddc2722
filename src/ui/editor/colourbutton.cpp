#include "colourbutton.h"

#include "attributestyle.h"

#include <QColorDialog>
#include <QFrame>
#include <QGridLayout>
#include <QPainter>
#include <QScreen>
#include <QToolButton>

namespace {

struct NamedColour
{
    const char *name;
    QRgb rgb;
};

constexpr NamedColour Colours[] = {
    {QT_TRANSLATE_NOOP("ColourButton", "White"), qRgb(255, 255, 255)},
    {QT_TRANSLATE_NOOP("ColourButton", "Grey"), qRgb(160, 160, 160)},
    {QT_TRANSLATE_NOOP("ColourButton", "Black"), qRgb(0, 0, 0)},
    {QT_TRANSLATE_NOOP("ColourButton", "Red"), qRgb(255, 64, 64)},
    {QT_TRANSLATE_NOOP("ColourButton", "Orange"), qRgb(255, 150, 40)},
    {QT_TRANSLATE_NOOP("ColourButton", "Yellow"), qRgb(255, 224, 50)},
    {QT_TRANSLATE_NOOP("ColourButton", "Green"), qRgb(0, 255, 0)},
    {QT_TRANSLATE_NOOP("ColourButton", "Turquoise"), qRgb(40, 220, 200)},
    {QT_TRANSLATE_NOOP("ColourButton", "Light blue"), qRgb(0, 160, 255)},
    {QT_TRANSLATE_NOOP("ColourButton", "Blue"), qRgb(70, 90, 255)},
    {QT_TRANSLATE_NOOP("ColourButton", "Violet"), qRgb(170, 90, 255)},
    {QT_TRANSLATE_NOOP("ColourButton", "Pink"), qRgb(255, 110, 190)},
};
constexpr int Columns = 6;
const QColor DefaultColour(0, 255, 0);

QIcon swatch(const QColor &colour, const QSize &size)
{
    QPixmap pixmap(size * 2); // sharp on screens with twice the pixels
    pixmap.fill(colour);
    QPainter painter(&pixmap);
    painter.setPen(QPen(QColor(140, 140, 140), 2));
    painter.drawRect(pixmap.rect().adjusted(1, 1, -1, -1));
    return QIcon(pixmap);
}

} // namespace

ColourButton::ColourButton(QWidget *parent)
    : QPushButton(parent)
    , mpPalette(new QFrame(this, Qt::Popup))
    , mpMore(new QPushButton(mpPalette))
{
    mpPalette->setObjectName(QStringLiteral("colourPalette"));
    mpMore->setObjectName(QStringLiteral("moreColours"));
    setIconSize({36, 14});
    addSwatches();
    connect(this, &QPushButton::clicked, this, &ColourButton::openPalette);
    connect(mpMore, &QPushButton::clicked, this, &ColourButton::openDialog);
    setColour(DefaultColour);
    retranslate();
}

void ColourButton::addSwatches()
{
    constexpr QSize swatchSize(22, 22);
    auto *layout = new QGridLayout(mpPalette);
    layout->setSpacing(AttributeStyle::Gap);
    int index = 0;
    for (const NamedColour &colour : Colours) {
        auto *button = new QToolButton(mpPalette);
        button->setObjectName(QStringLiteral("colour%1").arg(index));
        button->setAutoRaise(true);
        button->setIcon(swatch(QColor(colour.rgb), swatchSize));
        button->setIconSize(swatchSize);
        connect(button, &QToolButton::clicked, this, [this, colour] { pick(QColor(colour.rgb)); });
        layout->addWidget(button, index / Columns, index % Columns);
        ++index;
    }
    layout->addWidget(mpMore, index / Columns, 0, 1, Columns);
}

void ColourButton::setColour(const QColor &colour)
{
    const QColor shown = colour.isValid() ? colour : DefaultColour;
    if (shown == mColour)
        return;
    mColour = shown;
    setIcon(swatch(shown, iconSize()));
    setAccessibleDescription(shown.name());
}

void ColourButton::cancel()
{
    mpPalette->hide();
    for (auto *dialog : findChildren<QColorDialog *>())
        dialog->reject();
}

void ColourButton::retranslate()
{
    setAccessibleName(tr("Title colour"));
    setToolTip(tr("Title colour"));
    mpMore->setText(tr("More colours..."));
    int index = 0;
    for (const NamedColour &colour : Colours) {
        auto *button = mpPalette->findChild<QToolButton *>(QStringLiteral("colour%1").arg(index++));
        button->setToolTip(tr(colour.name));
        button->setAccessibleName(tr(colour.name));
    }
}

/// Below the button, or above it where the screen ends.
void ColourButton::openPalette()
{
    mpPalette->adjustSize();
    QPoint place = mapToGlobal(QPoint(0, height() + 2));
    const QRect area = screen()->availableGeometry();
    if (place.y() + mpPalette->height() > area.bottom())
        place.setY(mapToGlobal(QPoint(0, 0)).y() - mpPalette->height() - 2);
    place.setX(qMin(place.x(), area.right() - mpPalette->width()));
    mpPalette->move(place);
    mpPalette->show();
    mpPalette->setFocus();
}

void ColourButton::openDialog()
{
    mpPalette->hide();
    auto *dialog = new QColorDialog(mColour, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Title colour"));
    connect(dialog, &QColorDialog::colorSelected, this, &ColourButton::pick);
    dialog->open();
}

void ColourButton::pick(const QColor &colour)
{
    mpPalette->hide();
    if (colour.isValid() && colour.rgb() != mColour.rgb())
        emit sigPicked(colour);
}
