// WebP pictures, whole and damaged.
#include "support/table.h"
#include "support/texts.h"
#include "webphandler.h"

#include <QBuffer>
#include <QImage>

namespace {

/// 4 x 3 pixels of half transparent red.
const QByteArray Still = QByteArray::fromBase64("UklGRhwAAABXRUJQVlA4TA8AAAAvA4AAEAcQ/Y/+BSKi/wEA");
/// 4 x 2 pixels: a second of red, a second of blue.
const QByteArray Moving = QByteArray::fromBase64(
    "UklGRoQAAABXRUJQVlA4WAoAAAACAAAAAwAAAQAAQU5JTQYAAAD/////"
    "AABBTk1GKAAAAAAAAAAAAAMAAAEAAOgDAAJWUDhMDwAAAC8DQAAA"
    "BxD1j/4HIqL/AQBBTk1GKAAAAAAAAAAAAAMAAAEAAOgDAABWUDhMDwAAAC8DQAAABxDR//4HIqL/AQA=");

/// A handler and the file that it reads.
struct Reading
{
    explicit Reading(const QByteArray &bytes)
    {
        buffer.setData(bytes);
        buffer.open(QIODevice::ReadOnly);
        handler.setDevice(&buffer);
    }

    QBuffer buffer;
    WebpHandler handler;
};

} // namespace

class WebpTest : public QObject
{
    Q_OBJECT
    using PictureTable = Table<QByteArray, QSize, QColor, int>;

private slots:
    void pictureIsRead_data()
    {
        const PictureTable row;
        row("transparent", Still, QSize(4, 3), QColor(255, 0, 0, 127), 1);
        row("moving: its first frame", Moving, QSize(4, 2), QColor(255, 0, 0), 2);
    }
    void pictureIsRead()
    {
        const auto [bytes, size, colour, count] = PictureTable::current();
        Reading file(bytes);
        QCOMPARE(file.handler.option(QImageIOHandler::Size).toSize(), size);
        QCOMPARE(file.handler.imageCount(), count);
        QCOMPARE(file.buffer.pos(), 0); // nothing was read yet
        QImage image;
        QVERIFY(file.handler.read(&image));
        QCOMPARE(image.size(), size);
        QCOMPARE(image.hasAlphaChannel(), colour.alpha() != 255);
        const QColor pixel = image.pixelColor(size.width() - 1, size.height() - 1);
        for (const auto &[actual, expected] :
             {std::pair(pixel.red(), colour.red()), std::pair(pixel.green(), colour.green()),
              std::pair(pixel.blue(), colour.blue()), std::pair(pixel.alpha(), colour.alpha())})
            QVERIFY2(qAbs(actual - expected) <= 1, qPrintable(pixel.name(QColor::HexArgb)));
    }

    /// Cut at every byte, and each byte changed: a picture or none, and nothing read beyond the end.
    void damageIsNoticed()
    {
        for (const QByteArray &whole : {Still, Moving}) {
            for (int size = 0; size < whole.size() - 1; ++size) { // the last one only fills up
                Reading file(whole.left(size));
                QImage image;
                QVERIFY2(!file.handler.read(&image) && image.isNull(), qPrintable(QString::number(size)));
            }
            for (int i = 0; i < whole.size(); ++i) {
                QByteArray damaged = whole;
                damaged[i] = char(damaged[i] ^ 0xFF);
                Reading file(damaged);
                const QSize size = file.handler.option(QImageIOHandler::Size).toSize();
                QImage image;
                if (size.width() <= 4096 && size.height() <= 4096 && file.handler.read(&image))
                    QVERIFY(!image.isNull());
            }
        }
        QVERIFY(!Reading("RIFF1234WAVEfmt ").handler.canRead());
        QVERIFY(!WebpHandler().canRead());
    }
};

QTEST_GUILESS_MAIN(WebpTest)
#include "tst_imageformats_webp.moc"
