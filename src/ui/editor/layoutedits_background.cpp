// The background of a layout: one picture, cut to the keys.
#include "base/paths.h"
#include "keyedits.h"
#include "layoutedits.h"
#include "layoutmoves.h"
#include "model/keyid.h"
#include "model/keypicture.h"
#include "model/layoutbackground.h"
#include "model/wholefile.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QPainter>
#include <algorithm>

using vorlinmodel::CustomLayout;

namespace {

constexpr qint64 LargestBackground = 32 * 1024 * 1024; // bytes of the file

/// What is transparent is black, as an LCD is that is not lit.
QImage opaque(const QImage &picture)
{
    QImage result(vorlinmodel::panelPixelSize(), QImage::Format_RGB32);
    result.fill(Qt::black);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(result.rect(), picture);
    return result;
}

QImage readBackground(const QString &path)
{
    QString error;
    const auto bytes = vorlinmodel::readWholeFile(path, error, LargestBackground);
    const QImage picture = bytes ? vorlinmodel::decodePicture(*bytes) : QImage();
    return picture.isNull() ? picture : opaque(picture);
}

QVector<int> validPages(const QVector<int> &pages)
{
    QVector<int> result;
    for (int page = 1; page <= vorlinmodel::MaxPage; ++page) {
        if (pages.contains(page))
            result.append(page);
    }
    return result;
}

/// @return the name under which the picture lies in the folder of backgrounds; empty when it could not be
/// written. A name that the content gives: undo finds each of them again.
QString keepBackground(const QString &path)
{
    QString error;
    const auto bytes = vorlinmodel::readWholeFile(path, error, LargestBackground);
    if (!bytes)
        return {};
    const QByteArray hash = QCryptographicHash::hash(*bytes, QCryptographicHash::Sha1).toHex();
    const QString name = QString::fromLatin1(hash) + QStringLiteral(".png");
    const QString kept = vorlinmodel::layoutPictureFolder() + QLatin1Char('/') + name;
    if (QFileInfo(kept).size() == bytes->size())
        return name;
    vorlindesk::Paths::createPath(vorlinmodel::layoutPictureFolder());
    return vorlinmodel::writeWholeFile(kept, *bytes, error) ? name : QString();
}

} // namespace

LayoutSide withBackground(const CustomLayout &layout)
{
    if (layout.background.isEmpty())
        return {layout, {}};
    return {layout,
            readBackground(vorlinmodel::layoutPictureFolder() + QLatin1Char('/') + layout.background)};
}

QString LayoutEdits::setBackground(int layoutId, const Background &background)
{
    const auto before = vorlinmodel::loadCustomLayout(layoutId);
    if (!before)
        return tr("The layout does not exist any more.");
    CustomLayout after = *before;
    after.backgroundPages = validPages(background.pages);
    after.backgroundOnEmptyKeys = background.emptyKeysToo;
    after.background.clear();
    if (background.file.isEmpty()) {
        after.backgroundPages.clear();
    } else {
        if (readBackground(background.file).isNull())
            return tr("\"%1\" is not a picture that can be read.").arg(QFileInfo(background.file).fileName());
        after.background = keepBackground(background.file);
        if (after.background.isEmpty())
            return tr("The picture could not be saved. Is the disk full?");
    }
    mEdits.flush();
    const LayoutMoves moves = planLayoutMoves(mEdits.store(), withBackground(*before), withBackground(after));
    if (*before == after && moves.placed.isEmpty())
        return {};
    return change(tr("Background of the layout"), before, after, moves);
}
