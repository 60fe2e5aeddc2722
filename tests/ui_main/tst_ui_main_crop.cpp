// Choosing the part of a picture that goes on a key.
#include "support/files.h"
#include "ui_common/cropdialog.h"
#include "ui_common/cropgeometry.h"
#include "ui_common/cropview.h"
#include "ui_common/messagebox.h"
#include "uimainfakes.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPainter>
#include <QPushButton>
#include <QtTest>

class tst_ui_main_crop : public QObject
{
    Q_OBJECT

    /// Red, green above blue, white: every quarter in its colour.
    static QImage quarters(QSize size)
    {
        QImage image(size, QImage::Format_RGB32);
        QPainter painter(&image);
        const int x = size.width() / 2;
        const int y = size.height() / 2;
        painter.fillRect(0, 0, x, y, Qt::red);
        painter.fillRect(x, 0, x, y, Qt::green);
        painter.fillRect(0, y, x, y, Qt::blue);
        painter.fillRect(x, y, x, y, Qt::white);
        return image;
    }

private slots:
    void geometryStaysWithinThePicture_data()
    {
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<QSize>("target");
        QTest::addColumn<double>("zoom");
        QTest::addColumn<QPointF>("fixed");
        QTest::addColumn<QPointF>("moved");
        QTest::addColumn<QRectF>("crop");
        const QSize square(100, 100);
        const QPointF none(0, 0);
        QTest::newRow("wide picture")
            << QSize(400, 100) << square << 1. << none << none << QRectF(150, 0, 100, 100);
        QTest::newRow("high picture")
            << QSize(100, 400) << square << 1. << none << none << QRectF(0, 150, 100, 100);
        QTest::newRow("merged key") << QSize(400, 400) << QSize(200, 100) << 1. << none << none
                                    << QRectF(0, 100, 400, 200);
        QTest::newRow("zoomed at a corner")
            << QSize(200, 200) << square << 4. << none << none << QRectF(0, 0, 50, 50);
        QTest::newRow("zoomed at a point")
            << QSize(200, 200) << square << 2. << QPointF(50, 100) << none << QRectF(25, 50, 100, 100);
        QTest::newRow("moved to the edge")
            << QSize(400, 100) << square << 1. << none << QPointF(7000, -30) << QRectF(300, 0, 100, 100);
        QTest::newRow("zoom has limits")
            << QSize(160, 160) << square << 1000. << QPointF(80, 80) << none << QRectF(75, 75, 10, 10);
        QTest::newRow("one pixel") << QSize(1, 1) << QSize(200, 100) << 1. << none << QPointF(1, 1)
                                   << QRectF(0, 0.5, 1, 0.5);
    }

    void geometryStaysWithinThePicture()
    {
        QFETCH(QPointF, fixed);
        QFETCH(QPointF, moved);
        QFETCH(double, zoom);
        QFETCH(QSize, picture);
        QFETCH(QSize, target);
        CropGeometry geometry;
        geometry.setTarget(target);
        geometry.setPicture(picture);
        geometry.setZoom(zoom, fixed);
        geometry.moveBy(moved);
        QTEST(geometry.crop(), "crop");

        geometry.setWhole(true); // the smallest around it, wherever it was
        const QRectF whole = geometry.crop();
        QVERIFY(whole.contains(QRectF({}, picture)) && whole.center() == QRectF({}, picture).center());
        QVERIFY(whole.width() == picture.width() || whole.height() == picture.height());
        geometry.setWhole(false);
        QTEST(geometry.crop(), "crop");
    }

    void croppedPictureHasTheRightPixels()
    {
        const QImage picture = quarters({180, 168});
        QCOMPARE(croppedPicture(picture, {0, 0, 180, 168}, {180, 168}), picture); // not even smoothed
        const QImage quarter = croppedPicture(picture, {90, 0, 90, 84}, {90, 84});
        QCOMPARE(quarter, picture.copy(90, 0, 90, 84));
        const QImage edges = croppedPicture(quarters({1000, 1000}), {-1000, 0, 3000, 1000}, {270, 90});
        QCOMPARE(edges.pixelColor(80, 20), QColor(Qt::black));
        QCOMPARE(edges.pixelColor(100, 20), QColor(Qt::red));
        QCOMPARE(edges.pixelColor(170, 70), QColor(Qt::white));
        QImage clear(90, 84, QImage::Format_ARGB32);
        clear.fill(Qt::transparent);
        QCOMPARE(croppedPicture(clear, {0, 0, 90, 84}, {90, 84}).pixelColor(5, 5), QColor(Qt::black));
    }

    void averagesWhatShrinks() // stripes of one pixel, of which a quick look would take some
    {
        QImage stripes(900, 840, QImage::Format_RGB32);
        for (int y = 0; y < stripes.height(); ++y)
            for (int x = 0; x < stripes.width(); ++x)
                stripes.setPixel(x, y, x % 2 ? qRgb(255, 255, 255) : qRgb(0, 0, 0));
        const QImage grey = croppedPicture(stripes, {0, 0, 900, 840}, {90, 84});
        for (int x = 5; x < 85; ++x)
            QVERIFY(qAbs(grey.pixelColor(x, 40).red() - 127) < 12);
    }

    void picturesAreMovedAndZoomedByHand()
    {
        CropView view;
        view.resize(340, 340); // the frame has 300 x 300
        view.setTarget({100, 100});
        view.setPicture(quarters({600, 300}));
        QCOMPARE(view.crop(), QRectF(150, 0, 300, 300));
        QTest::mousePress(&view, Qt::LeftButton, {}, {170, 170});
        QMouseEvent drag(QEvent::MouseMove, QPointF(200, 190), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(&view, &drag);
        QTest::mouseRelease(&view, Qt::LeftButton, {}, {200, 190});
        QCOMPARE(view.crop(), QRectF(120, 0, 300, 300)); // it follows the mouse
        QTest::keyClick(&view, Qt::Key_Left);
        QCOMPARE(view.crop(), QRectF(123, 0, 300, 300)); // a pixel of the key has three of the picture
        QTest::keyClick(&view, Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(view.crop(), QRectF(93, 0, 300, 300));

        // What is under the mouse stays there.
        QWheelEvent wheel({20, 320}, {20, 320}, {}, {0, 120}, {}, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&view, &wheel);
        QVERIFY(view.zoom() > 1.05 && qAbs(view.crop().left() - 93) < 0.01);
        QVERIFY(qAbs(view.crop().bottom() - 300) < 0.01);
        QTest::keyClick(&view, Qt::Key_Minus);
        QCOMPARE(view.zoom(), 1.);
        QCOMPARE(view.result().size(), QSize(100, 100));
    }

    void dialogTakesThePartOutOfTheWholePicture()
    {
        const TemporaryCurrentDir dir;
        FakeContext context;
        QVERIFY(quarters({3600, 1680}).save(dir.path("large.png")));
        const auto press = [](QDialogButtonBox::StandardButton which) {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            auto *box = dialog ? dialog->findChild<QDialogButtonBox *>() : nullptr;
            if (box && box->button(which)->isEnabled())
                box->button(which)->click();
        };
        QTimer presser;
        QDialogButtonBox::StandardButton button = QDialogButtonBox::Ok;
        connect(&presser, &QTimer::timeout, this, [&] { press(button); });
        presser.start(10);
        const QImage part = CropDialog::ask(nullptr, context.language, dir.path("large.png"), {180, 84});
        QCOMPARE(part.size(), QSize(180, 84));
        QCOMPARE(part.pixelColor(87, 39), QColor(Qt::red));
        QCOMPARE(part.pixelColor(92, 45), QColor(Qt::white));
        button = QDialogButtonBox::Cancel;
        QVERIFY(CropDialog::ask(nullptr, context.language, dir.path("large.png"), {90, 84}).isNull());

        presser.stop();
        QString said;
        MessageBox::setAnswer([&said](const QMessageBox &box) {
            said = box.text();
            return QMessageBox::Ok;
        });
        writeTestFile(dir.path("text.png"), "no picture");
        QVERIFY(CropDialog::ask(nullptr, context.language, dir.path("text.png"), {90, 84}).isNull());
        QCOMPARE(said, "\"text.png\" is not a picture that can be read."_s);
        MessageBox::setAnswer({});
    }
};

QTEST_MAIN(tst_ui_main_crop)
#include "tst_ui_main_crop.moc"
