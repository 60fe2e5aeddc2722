/// A panel that is full of keys, for what is measured with one.
#pragma once

#include "panel_model/panelmodel.h"

#include <QBuffer>
#include <QImage>
#include <QRandomGenerator>
#include <algorithm>

namespace BenchPanel {

constexpr int Pages = 16;
constexpr int KeysOfPage = 15;
constexpr int KeyCount = Pages * KeysOfPage;
constexpr int PictureBytes = 10 * 1024;
constexpr int MediaKey = 5; ///< a function that the computer has nothing to do for

/// @return a PNG of noise of about @p bytes, since noise cannot be packed.
inline QByteArray noisePicture(int bytes)
{
    constexpr int width = 90;
    const int height = std::max(1, bytes / (width * 3));
    QImage image(width, height, QImage::Format_RGB888);
    for (int y = 0; y < height; ++y)
        std::generate_n(image.scanLine(y), width * 3,
                        [] { return static_cast<uchar>(QRandomGenerator::global()->bounded(256)); });
    QByteArray png;
    QBuffer buffer(&png);
    image.save(&buffer, "PNG");
    return png;
}

/// Every key of every page of the standard layout, each with a picture of PictureBytes.
inline PanelState full()
{
    PanelState state;
    for (int page = 1; page <= Pages; ++page) {
        for (int key = 1; key <= KeysOfPage; ++key) {
            const PanelKeyId id{StandardLayout, page, key};
            PanelKey filled = newPanelKey(id, MediaKey);
            filled.picture = noisePicture(PictureBytes);
            state.keys.insert(id, filled);
        }
    }
    return state;
}

} // namespace BenchPanel
