/// "devConfig/gallery.ini": what is known of the gallery's files without opening them.
#pragma once

#include "galleryfile.h"

#include <vector>

/// Used by one thread, which may wait for the disk.
class GalleryIndex
{
public:
    static QString fileName(); ///< absolute

    /// Compares the folder with what is known; looks into files that are new or were changed, and forgets
    /// those that are gone. Writes gallery.ini when it had to be changed. @return what the gallery shows,
    /// sorted by name.
    std::vector<GalleryItem> read();
    /// Takes over what was learnt of videos by opening them.
    void learn(const std::vector<GalleryItem> &items);

private:
    void load();
    void save() const;

    std::vector<GalleryItem> mItems; ///< also those of type Other
    bool mIsLoaded = false;
};
