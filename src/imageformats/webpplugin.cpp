// What Qt loads; see WebpHandler.
#include "webphandler.h"

#include <QImageIOPlugin>

class WebpPlugin : public QImageIOPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QImageIOHandlerFactoryInterface_iid FILE "webp.json")

public:
    Capabilities capabilities(QIODevice *device, const QByteArray &format) const override
    {
        const bool isOurs = format.isEmpty() ? device && WebpHandler::canRead(*device) : format == "webp";
        return isOurs ? Capabilities(CanRead) : Capabilities();
    }

    QImageIOHandler *create(QIODevice *device, const QByteArray &format) const override
    {
        auto *handler = new WebpHandler; // owned by the caller
        handler->setDevice(device);
        handler->setFormat(format.isEmpty() ? QByteArrayLiteral("webp") : format);
        return handler;
    }
};

#include "webpplugin.moc"
