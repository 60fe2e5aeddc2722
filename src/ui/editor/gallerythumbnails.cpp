#include "gallerythumbnails.h"

#include "galleryvideo.h"

#include <algorithm>

using Type = GalleryItem::Type;

namespace {

constexpr size_t MostWaiting = 100; // a large screen shows about 60

} // namespace

GalleryThumbnails::GalleryThumbnails(QObject *parent)
    : QObject(parent)
{}

void GalleryThumbnails::want(const GalleryItem &item)
{
    Lane &lane = item.type == Type::Video ? mVideos : mPictures;
    if (isNew(lane, item))
        lane.worker.post([this, &lane](const std::atomic<bool> &stopping) { make(lane, stopping); });
}

/// @return whether the item needs a turn of the worker.
bool GalleryThumbnails::isNew(Lane &lane, const GalleryItem &item)
{
    const std::lock_guard lock(lane.mutex);
    if (lane.underway.contains(item.name))
        return false;
    auto &items = lane.items;
    const auto known = std::find_if(items.begin(), items.end(),
                                    [&item](const GalleryItem &each) { return each.name == item.name; });
    if (known != items.end()) {
        std::rotate(known, known + 1, items.end());
        return false;
    }
    items.push_back(item);
    if (items.size() <= MostWaiting)
        return true;
    items.erase(items.begin()); // its turn goes to the new one
    return false;
}

bool GalleryThumbnails::takeNext(Lane &lane, GalleryItem &item)
{
    const std::lock_guard lock(lane.mutex);
    if (lane.items.empty())
        return false;
    item = std::move(lane.items.back());
    lane.items.pop_back();
    lane.underway.insert(item.name);
    return true;
}

void GalleryThumbnails::make(Lane &lane, const std::atomic<bool> &stopping)
{
    GalleryItem item;
    if (!takeNext(lane, item))
        return;
    GalleryFrameResult result;
    if (item.type == Type::Video) {
        result = galleryKeptFrame(item, stopping);
        if (!result.frame.isNull())
            result.frame = result.frame.scaled(GalleryFile::ThumbnailSide, GalleryFile::ThumbnailSide,
                                               Qt::KeepAspectRatio, Qt::SmoothTransformation);
    } else {
        result.frame = GalleryFile::thumbnail(item);
        if (result.frame.isNull())
            result.error = vorlinmodel::ConversionError::Damaged;
    }
    mHandOver.post([this, &lane, item = std::move(item), result = std::move(result)] {
        {
            const std::lock_guard lock(lane.mutex);
            lane.underway.remove(item.name);
        }
        emit sigMade(item, result.frame, result.error);
    });
}
