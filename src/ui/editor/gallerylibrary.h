/// The gallery's files, read and changed on a thread of their own.
#pragma once

#include "base/handover.h"
#include "galleryindex.h"
#include "gallerypictures.h"
#include "galleryworker.h"

#include <QTimer>
#include <memory>

/// Lives on the user-interface thread, which calls it and receives its signals. Everything happens in the
/// order in which it was asked for.
class GalleryLibrary : public QObject
{
    Q_OBJECT
public:
    explicit GalleryLibrary(QObject *parent);
    ~GalleryLibrary() override; ///< an adding stops, with what was copied so far

    void refresh(); ///< reads anew which files there are; sigListed follows when that is news
    void add(const QStringList &files);
    void addImage(const QImage &image, const QString &name);
    void remove(const QStringList &paths);
    void cancel(); ///< ends the addings that were asked for so far
    /// Writes down what was learnt of a video by opening it.
    void learn(const GalleryItem &item);

signals:
    void sigListed(const std::vector<GalleryItem> &items);
    void sigProgress(int done, int total);
    void sigAdded(const GalleryPictures::Added &added); ///< after sigListed
    void sigRemoved(const QStringList &kept);           ///< after sigListed; paths that are still there

private:
    using Flag = std::shared_ptr<std::atomic<bool>>;

    void list();
    void finishAdding(GalleryPictures::Added added);
    void writeLearnt();

    vorlindesk::HandOver mHandOver;
    Flag mpCancelled = std::make_shared<std::atomic<bool>>(false); ///< of what is added from now on
    std::vector<GalleryItem> mLearnt;
    QTimer mLearnTimer;
    std::atomic<bool> mIsListing = false; ///< asked for and not begun
    GalleryIndex mIndex;                  // of the worker
    std::vector<GalleryItem> mListed;     // of the worker: as it was handed over last
    bool mHasListed = false;              // of the worker
    GalleryWorker mWorker;                // last: ended before what it uses
};
