#include "gallerymodel.h"

#include "gallerypictures.h"
#include "vorlinmimedata.h"

#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QPainter>

namespace {

constexpr int CachedThumbnails = 500; // 64 KiB each

qint64 modifiedTime(const QString &path)
{
    return QFileInfo(path).lastModified().toMSecsSinceEpoch();
}

/// The view gives all items one size, so all thumbnails have one. An icon stays as small as it is.
QPixmap square(QImage image)
{
    constexpr QSize size(GalleryModel::ThumbnailSide, GalleryModel::ThumbnailSide);
    if (image.width() > size.width() || image.height() > size.height())
        image = image.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPixmap result(size);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.drawImage((size.width() - image.width()) / 2, (size.height() - image.height()) / 2, image);
    return result;
}

} // namespace

GalleryModel::GalleryModel(QObject *parent)
    : QAbstractListModel(parent)
    , mThumbnails(CachedThumbnails)
    , mPlaceholder(square({}))
{
    // One picture per turn of the event loop: a folder full of photographs must not freeze the window.
    mTimer.setSingleShot(true);
    connect(&mTimer, &QTimer::timeout, this, &GalleryModel::makeNext);
}

void GalleryModel::refresh()
{
    const QStringList paths = GalleryPictures::paths();
    for (const QString &path : paths) {
        const Thumbnail *known = mThumbnails.object(path);
        if (known && known->modified != modifiedTime(path))
            mThumbnails.remove(path);
    }
    if (paths == mPaths)
        return;
    beginResetModel();
    mPaths = paths;
    endResetModel();
}

QString GalleryModel::path(const QModelIndex &index) const
{
    return mPaths.value(index.row());
}

QModelIndex GalleryModel::indexOf(const QString &path) const
{
    return index(mPaths.indexOf(path));
}

int GalleryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : mPaths.size();
}

QVariant GalleryModel::data(const QModelIndex &index, int role) const
{
    const QString path = this->path(index);
    if (path.isEmpty())
        return {};
    if (role == Qt::DisplayRole)
        return QFileInfo(path).completeBaseName();
    if (role == Qt::ToolTipRole)
        return QDir::toNativeSeparators(path).toHtmlEscaped();
    if (role != Qt::DecorationRole)
        return {};
    if (const Thumbnail *thumbnail = mThumbnails.object(path))
        return QIcon(thumbnail->pixmap);
    want(path);
    return QIcon(mPlaceholder);
}

void GalleryModel::want(const QString &path) const
{
    if (!mWanted.contains(path))
        mWanted.append(path);
    mTimer.start(0);
}

void GalleryModel::makeNext()
{
    if (mWanted.isEmpty())
        return;
    const QString path = mWanted.takeFirst();
    if (!mWanted.isEmpty())
        mTimer.start(0);
    const QModelIndex row = indexOf(path);
    if (!row.isValid())
        return;
    const QImage image = GalleryPictures::read(path, {ThumbnailSide, ThumbnailSide});
    if (image.isNull()) { // named like a picture, but none
        beginRemoveRows({}, row.row(), row.row());
        mPaths.removeAt(row.row());
        endRemoveRows();
        return;
    }
    auto thumbnail = std::make_unique<Thumbnail>();
    thumbnail->modified = modifiedTime(path);
    thumbnail->pixmap = square(image);
    mThumbnails.insert(path, thumbnail.release()); // which owns it
    emit dataChanged(row, row, {Qt::DecorationRole});
}

Qt::ItemFlags GalleryModel::flags(const QModelIndex &index) const
{
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled
                           : Qt::ItemFlags(Qt::NoItemFlags);
}

QStringList GalleryModel::mimeTypes() const
{
    return {QLatin1String(DragFormat::FunctionIcon)};
}

QMimeData *GalleryModel::mimeData(const QModelIndexList &indexes) const
{
    if (indexes.isEmpty())
        return nullptr;
    auto data = std::make_unique<vorlindesk::VorlinMimeData>();
    data->strData1 = path(indexes.first());
    data->strData2 = QString();
    data->store(QLatin1String(DragFormat::FunctionIcon));
    return data.release(); // owned by the drag
}
