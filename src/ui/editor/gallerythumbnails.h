/// Makes the thumbnails that a view asks for, away from the user interface.
#pragma once

#include "base/handover.h"
#include "galleryfile.h"
#include "galleryworker.h"
#include "model/conversionresult.h"

#include <QSet>
#include <vector>

/// Lives on the user-interface thread, which calls it and receives its signals.
class GalleryThumbnails : public QObject
{
    Q_OBJECT
public:
    explicit GalleryThumbnails(QObject *parent);

    /// Asks for a thumbnail; what was asked for last is made first. When more than a few screens full wait,
    /// the oldest are forgotten: they are out of view, and will be asked for again.
    void want(const GalleryItem &item);

signals:
    /// @p item with what its video told. @p image is null when there can be none, because of @p error.
    void sigMade(const GalleryItem &item, const QImage &image, vorlinmodel::ConversionError error);

private:
    /// Each kind has a worker of its own, since the tool takes its time for a video.
    struct Lane
    {
        std::mutex mutex;               // guards what a task of the worker shares with the caller
        std::vector<GalleryItem> items; ///< that wait; the one to be made next at the end
        QSet<QString> underway;         ///< names of those that were begun and have not been delivered
        GalleryWorker worker;           // last: ended before what it uses
    };

    static bool isNew(Lane &lane, const GalleryItem &item);
    static bool takeNext(Lane &lane, GalleryItem &item);
    void make(Lane &lane, const std::atomic<bool> &stopping);

    vorlindesk::HandOver mHandOver;
    Lane mPictures;
    Lane mVideos;
};
