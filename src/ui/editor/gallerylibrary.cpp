#include "gallerylibrary.h"

#include "galleryadding.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int LearnDelay = 1000; // ms; the file is written whole, and videos come one after the other
constexpr int ProgressStep = 50; // ms between two reports

bool isSame(const GalleryItem &one, const GalleryItem &other)
{
    return one.isSameFile(other) && one.size == other.size && one.durationMs == other.durationMs;
}

} // namespace

GalleryLibrary::GalleryLibrary(QObject *parent)
    : QObject(parent)
{
    mLearnTimer.setSingleShot(true);
    mLearnTimer.setInterval(LearnDelay);
    connect(&mLearnTimer, &QTimer::timeout, this, &GalleryLibrary::writeLearnt);
}

GalleryLibrary::~GalleryLibrary()
{
    cancel();
}

void GalleryLibrary::refresh()
{
    if (mIsListing.exchange(true))
        return;
    mWorker.post([this](const std::atomic<bool> &) {
        mIsListing = false;
        list();
    });
}

/// On the worker.
void GalleryLibrary::list()
{
    std::vector<GalleryItem> items = mIndex.read();
    const bool same = std::equal(items.begin(), items.end(), mListed.begin(), mListed.end(), isSame);
    if (same && std::exchange(mHasListed, true))
        return;
    mHasListed = true;
    mListed = items;
    mHandOver.post([this, items = std::move(items)] { emit sigListed(items); });
}

void GalleryLibrary::add(const QStringList &files)
{
    mWorker.post([this, files, pCancelled = mpCancelled](const std::atomic<bool> &) {
        auto last = std::chrono::steady_clock::now();
        const auto progress = [this, &last](int done, int total) {
            const auto now = std::chrono::steady_clock::now();
            if (now - last < std::chrono::milliseconds(ProgressStep))
                return;
            last = now;
            mHandOver.post([this, done, total] { emit sigProgress(done, total); });
        };
        finishAdding(GalleryAdding::add(files, {.cancelled = *pCancelled, .progress = progress}));
    });
}

void GalleryLibrary::addImage(const QImage &image, const QString &name)
{
    mWorker.post([this, image, name](const std::atomic<bool> &) {
        finishAdding(GalleryPictures::addImage(image, name));
    });
}

/// On the worker.
void GalleryLibrary::finishAdding(GalleryPictures::Added added)
{
    list();
    mHandOver.post([this, added = std::move(added)] { emit sigAdded(added); });
}

void GalleryLibrary::remove(const QStringList &paths)
{
    mWorker.post([this, paths](const std::atomic<bool> &stopping) {
        QStringList kept;
        for (const QString &path : paths) {
            if (stopping || !GalleryPictures::remove(path))
                kept.append(path);
        }
        list();
        mHandOver.post([this, kept = std::move(kept)] { emit sigRemoved(kept); });
    });
}

void GalleryLibrary::cancel()
{
    *mpCancelled = true;
    mpCancelled = std::make_shared<std::atomic<bool>>(false);
}

void GalleryLibrary::learn(const GalleryItem &item)
{
    mLearnt.push_back(item);
    if (!mLearnTimer.isActive())
        mLearnTimer.start();
}

void GalleryLibrary::writeLearnt()
{
    mWorker.post([this, learnt = std::exchange(mLearnt, {})](const std::atomic<bool> &) {
        mIndex.learn(learnt);
        for (const GalleryItem &item : learnt) {
            for (GalleryItem &each : mListed) {
                if (each.isSameFile(item))
                    each = item; // the model knows it already
            }
        }
    });
}
