#include "webphandler.h"

#include <webp/decode.h>
#include <webp/demux.h>

#include <QIODevice>
#include <QImage>
#include <QVariant>
#include <memory>

namespace {

constexpr int HeaderBytes = 64; // sizes and flags stand within the first 30 bytes

const uint8_t *dataOf(const QByteArray &bytes)
{
    return reinterpret_cast<const uint8_t *>(bytes.constData());
}

struct DecoderCloser
{
    void operator()(WebPAnimDecoder *decoder) const { WebPAnimDecoderDelete(decoder); }
};

/// Of pictures that do not move, too: they are then one frame.
QImage firstFrame(const QByteArray &bytes)
{
    WebPAnimDecoderOptions options;
    if (!WebPAnimDecoderOptionsInit(&options))
        return {};
    options.color_mode = MODE_BGRA;                           // the bytes of a 32-bit pixel, lowest first
    const WebPData data{dataOf(bytes), size_t(bytes.size())}; // has to outlive the decoder
    const std::unique_ptr<WebPAnimDecoder, DecoderCloser> decoder(WebPAnimDecoderNew(&data, &options));
    WebPAnimInfo info;
    uint8_t *pixels = nullptr;
    int timestamp = 0;
    if (!decoder || !WebPAnimDecoderGetInfo(decoder.get(), &info) ||
        !WebPAnimDecoderGetNext(decoder.get(), &pixels, &timestamp))
        return {};
    // A copy, since the pixels are the decoder's.
    return QImage(pixels, int(info.canvas_width), int(info.canvas_height), QImage::Format_ARGB32).copy();
}

} // namespace

bool WebpHandler::canRead(QIODevice &device)
{
    const QByteArray start = device.peek(12);
    return start.startsWith("RIFF") && start.endsWith("WEBP");
}

bool WebpHandler::canRead() const
{
    return device() && canRead(*device());
}

std::optional<WebPBitstreamFeatures> WebpHandler::features() const
{
    if (!canRead())
        return std::nullopt;
    const QByteArray start = device()->peek(HeaderBytes);
    WebPBitstreamFeatures features;
    if (WebPGetFeatures(dataOf(start), size_t(start.size()), &features) != VP8_STATUS_OK)
        return std::nullopt;
    return features;
}

bool WebpHandler::read(QImage *pImage)
{
    const auto known = features();
    if (!known)
        return false;
    const QImage frame = firstFrame(device()->readAll());
    if (frame.isNull())
        return false;
    *pImage = known->has_alpha ? frame : frame.convertToFormat(QImage::Format_RGB32);
    return true;
}

int WebpHandler::imageCount() const
{
    const auto known = features();
    if (!known)
        return 0;
    return known->has_animation ? 2 : 1;
}

QVariant WebpHandler::option(ImageOption option) const
{
    const auto known = features();
    return option == Size && known ? QVariant(QSize(known->width, known->height)) : QVariant();
}
