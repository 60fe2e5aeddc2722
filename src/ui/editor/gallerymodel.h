/// The files of the gallery for a view: those that match a filter, with thumbnails that are made when they
/// are looked at.
#pragma once

#include "galleryfile.h"
#include "model/conversionresult.h"

#include <QAbstractListModel>
#include <QCache>
#include <QHash>
#include <QPixmap>
#include <vector>

class GalleryModel : public QAbstractListModel
{
    Q_OBJECT
public:
    /// Beside the file's name (DisplayRole), its tool tip, and its thumbnail, a QPixmap that is null while
    /// there is none (DecorationRole).
    enum Role {
        IsVideoRole = Qt::UserRole, ///< bool; also of a GIF that moves
        DurationRole,               ///< qint64, ms; 0: not known
        FailedRole,                 ///< bool: there will be no thumbnail
    };
    enum class Show { All, Pictures, Videos };
    struct Files
    {
        QString picture; ///< path; of a video its first frame, empty while there is none
        QString video;   ///< path; empty for a picture
    };

    explicit GalleryModel(QObject *parent);

    void setItems(const std::vector<GalleryItem> &items);
    void setFilter(const QString &text, Show show);  ///< @p text: a part of the name
    int total() const { return int(mItems.size()); } ///< also those that the filter hides
    void setThumbnail(const GalleryItem &item, const QImage &image, vorlinmodel::ConversionError error);

    QString path(const QModelIndex &index) const; ///< empty for an invalid index
    QString name(const QModelIndex &index) const;
    QModelIndex indexOf(const QString &name) const; ///< invalid when it is hidden or not there
    Files files(const QModelIndex &index) const;    ///< as keys take them

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QStringList mimeTypes() const override;
    /// The first of @p indexes, as the drop targets of the editor take it.
    QMimeData *mimeData(const QModelIndexList &indexes) const override;

signals:
    void sigWanted(const GalleryItem &item) const; ///< its thumbnail is being looked at, and is not there

private:
    struct Thumbnail
    {
        qint64 modified = 0; ///< of the file, ms
        QPixmap pixmap;      ///< null: there can be none
        QString reason;      ///< why, for the person
    };

    const GalleryItem *item(const QModelIndex &index) const;
    const Thumbnail *thumbnail(const GalleryItem &item) const;
    QVariant decoration(const GalleryItem &item) const;
    QString toolTip(const GalleryItem &item) const;
    void filter();

    std::vector<GalleryItem> mItems;
    std::vector<int> mRows;         ///< places in mItems
    QHash<QString, int> mRowByName; ///< into mRows
    QString mText;
    Show mShow = Show::All;
    QCache<QString, Thumbnail> mThumbnails; ///< by name
};
