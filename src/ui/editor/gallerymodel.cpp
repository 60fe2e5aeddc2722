#include "gallerymodel.h"

#include "gallerydelegate.h"
#include "vorlinmimedata.h"

#include <QFileInfo>
#include <QLocale>
#include <algorithm>
#include <memory>

using vorlinmodel::ConversionError;

namespace {

constexpr int CachedThumbnails = 400; // up to 81 KiB each

} // namespace

GalleryModel::GalleryModel(QObject *parent)
    : QAbstractListModel(parent)
    , mThumbnails(CachedThumbnails)
{}

void GalleryModel::setItems(const std::vector<GalleryItem> &items)
{
    beginResetModel();
    mItems = items;
    filter();
    endResetModel();
}

void GalleryModel::setFilter(const QString &text, Show show)
{
    if (text == mText && show == mShow)
        return;
    beginResetModel();
    mText = text;
    mShow = show;
    filter();
    endResetModel();
}

void GalleryModel::filter()
{
    mRows.clear();
    mRowByName.clear();
    for (size_t i = 0; i < mItems.size(); ++i) {
        const GalleryItem &item = mItems[i];
        const bool fits = mShow == Show::All || (mShow == Show::Pictures ? item.isPicture() : item.isVideo());
        if (!fits || !item.name.contains(mText, Qt::CaseInsensitive))
            continue;
        mRowByName.insert(item.name, int(mRows.size()));
        mRows.push_back(int(i));
    }
}

void GalleryModel::setThumbnail(const GalleryItem &item, const QImage &image, ConversionError error)
{
    const auto known = std::find_if(mItems.begin(), mItems.end(),
                                    [&item](const GalleryItem &each) { return each.isSameFile(item); });
    if (known == mItems.end())
        return; // gone, or another by now
    *known = item;
    auto made = std::make_unique<Thumbnail>();
    made->modified = item.modified;
    made->pixmap = QPixmap::fromImage(image);
    made->reason = image.isNull()
                       ? vorlinmodel::conversionFailure(
                             error, error == ConversionError::NoTool ? QStringLiteral("ffmpeg") : item.name)
                             .reason
                       : QString();
    mThumbnails.insert(item.name, made.release()); // which owns it
    const QModelIndex row = indexOf(item.name);
    if (row.isValid())
        emit dataChanged(row, row);
}

const GalleryItem *GalleryModel::item(const QModelIndex &index) const
{
    const bool isThere = index.isValid() && index.row() < rowCount();
    return isThere ? &mItems[size_t(mRows[size_t(index.row())])] : nullptr;
}

QString GalleryModel::path(const QModelIndex &index) const
{
    const GalleryItem *shown = item(index);
    return shown ? GalleryFile::path(*shown) : QString();
}

QString GalleryModel::name(const QModelIndex &index) const
{
    const GalleryItem *shown = item(index);
    return shown ? shown->name : QString();
}

QModelIndex GalleryModel::indexOf(const QString &name) const
{
    return index(mRowByName.value(name, -1));
}

GalleryModel::Files GalleryModel::files(const QModelIndex &index) const
{
    const GalleryItem *shown = item(index);
    if (!shown)
        return {};
    const QString own = GalleryFile::path(*shown);
    if (shown->type != GalleryItem::Type::Video)
        return {own, shown->isVideo() ? own : QString()};
    const QString frame = GalleryFile::cachePath(*shown);
    return {QFileInfo::exists(frame) ? frame : QString(), own};
}

int GalleryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(mRows.size());
}

QVariant GalleryModel::data(const QModelIndex &index, int role) const
{
    const GalleryItem *shown = item(index);
    if (!shown)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return shown->name;
    case Qt::ToolTipRole:
        return toolTip(*shown);
    case Qt::DecorationRole:
        return decoration(*shown);
    case IsVideoRole:
        return shown->isVideo();
    case DurationRole:
        return shown->durationMs;
    case FailedRole:
        return thumbnail(*shown) && thumbnail(*shown)->pixmap.isNull();
    default:
        return {};
    }
}

const GalleryModel::Thumbnail *GalleryModel::thumbnail(const GalleryItem &item) const
{
    const Thumbnail *known = mThumbnails.object(item.name);
    return known && known->modified == item.modified ? known : nullptr;
}

QVariant GalleryModel::decoration(const GalleryItem &item) const
{
    if (const Thumbnail *known = thumbnail(item))
        return known->pixmap;
    emit sigWanted(item);
    return QPixmap();
}

QString GalleryModel::toolTip(const GalleryItem &item) const
{
    QStringList lines{item.name};
    QStringList facts;
    if (!item.size.isEmpty())
        facts << tr("%1 × %2 pixels").arg(item.size.width()).arg(item.size.height());
    facts << QLocale().formattedDataSize(item.bytes);
    if (item.durationMs > 0)
        facts << galleryDurationText(item.durationMs);
    lines << facts.join(QStringLiteral(", "));
    const Thumbnail *known = thumbnail(item);
    if (known && !known->reason.isEmpty())
        lines << known->reason;
    return QStringLiteral("<p style='white-space:pre-wrap'>%1</p>")
        .arg(lines.join(QLatin1Char('\n')).toHtmlEscaped());
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
    const Files dragged = files(indexes.first());
    auto data = std::make_unique<vorlindesk::VorlinMimeData>();
    data->strData1 = dragged.picture;
    data->strData2 = dragged.video;
    data->store(QLatin1String(DragFormat::FunctionIcon));
    return data.release(); // owned by the drag
}
