/// Reads WebP pictures for Qt, with libwebp.
#pragma once

#include <QImageIOHandler>
#include <optional>

struct WebPBitstreamFeatures;

/// The first frame of one that moves. Writes none.
class WebpHandler : public QImageIOHandler
{
public:
    static bool canRead(QIODevice &device); ///< the device stays where it is
    bool canRead() const override;
    /// @return false for a file that is cut short or damaged; @p pImage is then as it was.
    bool read(QImage *pImage) override;
    int imageCount() const override; ///< 2 when it moves, whatever the number of frames
    bool supportsOption(ImageOption option) const override { return option == Size; }
    QVariant option(ImageOption option) const override; ///< Size: before anything is decoded

private:
    std::optional<WebPBitstreamFeatures> features() const;
};
