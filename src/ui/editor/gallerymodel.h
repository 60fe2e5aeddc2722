/// The pictures of the gallery for a view: names, and thumbnails that are made when they are looked at.
#pragma once

#include <QAbstractListModel>
#include <QCache>
#include <QPixmap>
#include <QStringList>
#include <QTimer>

class GalleryModel : public QAbstractListModel
{
    Q_OBJECT
public:
    static constexpr int ThumbnailSide = 128; ///< pixels, at most

    explicit GalleryModel(QObject *parent);

    void refresh(); ///< reads anew which files there are; thumbnails that stay valid are kept
    QString path(const QModelIndex &index) const; ///< empty for an invalid index
    QModelIndex indexOf(const QString &path) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QStringList mimeTypes() const override;
    /// The first of @p indexes, as the drop targets of the editor take it.
    QMimeData *mimeData(const QModelIndexList &indexes) const override;

private:
    struct Thumbnail
    {
        qint64 modified = 0; ///< of the file, ms
        QPixmap pixmap;
    };

    void want(const QString &path) const;
    void makeNext();

    QStringList mPaths;
    QCache<QString, Thumbnail> mThumbnails; ///< by path
    const QPixmap mPlaceholder;             ///< of a thumbnail that is not made yet
    mutable QStringList mWanted;            ///< have been looked at, and are not made yet
    mutable QTimer mTimer;
};
