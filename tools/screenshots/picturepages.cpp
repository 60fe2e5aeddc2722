#include "picturepages.h"

#include "base/language.h"
#include "photographer.h"
#include "ui_common/filedialog.h"
#include "ui_editor/galleryframe.h"
#include "ui_editor/gallerypictures.h"
#include "ui_main/layoutgrid.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <cmath>

namespace {

constexpr QSize PhotoSize(1200, 800);

struct Scenery
{
    const char *name;
    QRgb sky;
    QRgb horizon;
    QRgb hills;
};
constexpr Scenery Sceneries[] = {
    {"Morning.png", 0xff274c8c, 0xfff6c48a, 0xff24452f},
    {"Evening.png", 0xff33184f, 0xffe8653a, 0xff22142c},
    {"Winter.png", 0xff7fa8c9, 0xffeef4f8, 0xff4a6078},
    {"Night.png", 0xff060a1c, 0xff25396b, 0xff04060c},
};

QImage painted(const Scenery &scenery)
{
    QImage photo(PhotoSize, QImage::Format_RGB32);
    QPainter painter(&photo);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, PhotoSize.height());
    sky.setColorAt(0, scenery.sky);
    sky.setColorAt(0.7, scenery.horizon);
    painter.fillRect(photo.rect(), sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 244, 214));
    painter.drawEllipse(QPointF(860, 300), 90, 90);
    painter.setBrush(QColor(scenery.hills));
    for (int row = 0; row < 3; ++row) {
        QPainterPath hills(QPointF(0, PhotoSize.height()));
        for (int x = 0; x <= PhotoSize.width(); x += 10)
            hills.lineTo(x, 540 + row * 90 + 60 * std::sin(x / (140.0 - 25 * row) + row * 2));
        hills.lineTo(PhotoSize.width(), PhotoSize.height());
        painter.setOpacity(0.5 + 0.25 * row);
        painter.drawPath(hills);
    }
    return photo;
}

QPoint centreOf(const LayoutGrid &grid, int physicalKey)
{
    return grid.place(1U << (physicalKey - 1)).center();
}

void merge(Photographer &photographer, int from, int to)
{
    auto *grid = photographer.child<LayoutGrid>("layoutGrid");
    photographer.drag(grid, centreOf(*grid, from), centreOf(*grid, to));
    photographer.clickNamed("merge");
}

} // namespace

QStringList makePhotos(const QString &folder)
{
    QStringList photos;
    for (const Scenery &scenery : Sceneries) {
        photos.append(folder + QLatin1Char('/') + QLatin1String(scenery.name));
        painted(scenery).save(photos.last());
    }
    return photos;
}

void fillGallery(Photographer &photographer, const QStringList &photos)
{
    GalleryPictures::add(photos);
    photographer.child<GalleryFrame>("galleryframe")->refresh();
}

void takeLayouts(Photographer &photographer, vorlindesk::LanguageManager &language, const QString &photo)
{
    photographer.clickNamed("mLayoutSetBtn");
    photographer.clickNamed("newLayout");
    merge(photographer, 1, 7);
    merge(photographer, 9, 15);
    FileDialog::setAnswer([photo](const QString &) { return QStringList(photo); });
    photographer.withDialog([&] { photographer.clickNamed("chooseBackground"); },
                            [&](QWidget &dialog) {
                                photographer.take("background", dialog);
                                photographer.click(
                                    dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok));
                            });
    FileDialog::setAnswer({});
    const auto *save = photographer.child<QAbstractButton>("saveLayout");
    photographer.waitUntil([save] { return save->isEnabled(); });
    photographer.drag(photographer.child<LayoutGrid>("layoutGrid"), {5, 5}, {6, 6}); // selects none
    photographer.takeInEachLanguage(language, "layouts");
    photographer.clickNamed("saveLayout");
}

void takePictureUpload(Photographer &photographer, vorlindesk::LanguageManager &language,
                       const QString &photo)
{
    photographer.clickNamed("mPictureUploadBtn");
    FileDialog::setAnswer([photo](const QString &) { return QStringList(photo); });
    photographer.clickNamed("selectPicture");
    FileDialog::setAnswer({});
    const auto *add = photographer.child<QAbstractButton>("addToGallery");
    photographer.waitUntil([add] { return add->isEnabled(); });
    photographer.takeInEachLanguage(language, "picture_upload");
}
