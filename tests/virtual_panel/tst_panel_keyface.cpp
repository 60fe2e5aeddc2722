// The face of a key, as the panel and the editor draw it.
#include "model/keyface.h"
#include "support/table.h"

#include <QPainter>

using namespace vorlinmodel;

class TestPanelKeyface : public QObject
{
    Q_OBJECT

    /// Left half red, right half blue.
    static QImage halves()
    {
        QImage image(90, 84, QImage::Format_RGB32);
        image.fill(Qt::red);
        QPainter(&image).fillRect(45, 0, 45, 84, Qt::blue);
        return image;
    }

    /// Rows with pixels of the title's pure green, as (first, last).
    static QPair<int, int> titleRows(const QImage &face)
    {
        QPair<int, int> rows{-1, -1};
        for (int y = 0; y < face.height(); ++y)
            for (int x = 0; x < face.width(); ++x)
                if (face.pixelColor(x, y).green() > 200) {
                    rows.first = rows.first < 0 ? y : rows.first;
                    rows.second = y;
                }
        return rows;
    }

    using AlignmentTable = Table<int, int, int>;

private slots:
    void pictureFillsTheKey()
    {
        KeyFace face;
        face.picture = halves();
        for (const QSize size : {QSize(90, 84), QSize(180, 168)}) { // one key, a merged key
            const QImage drawn = renderKeyFace(face, size);
            QCOMPARE(drawn.size(), size);
            QCOMPARE(drawn.pixelColor(2, 2), QColor(Qt::red));
            QCOMPARE(drawn.pixelColor(size.width() - 3, size.height() - 3), QColor(Qt::blue));
        }
    }

    void titleStandsWhereItsAlignmentSays_data()
    {
        const AlignmentTable row;
        row("bottom", int(AlignBottom), 55, 83);
        row("centre", int(AlignCenter), 26, 58);
        row("top", int(AlignTop), 0, 30);
    }

    void titleStandsWhereItsAlignmentSays()
    {
        const auto [alignment, highest, lowest] = AlignmentTable::current();
        KeyFace face;
        face.title = "HH"_s;
        face.titleAlignment = alignment;
        const auto rows = titleRows(renderKeyFace(face, QSize(90, 84)));
        QVERIFY2(rows.first >= highest && rows.second <= lowest,
                 qPrintable("%1 to %2"_s.arg(rows.first).arg(rows.second)));
    }

    void titleSize()
    {
        KeyFace face;
        face.title = "H"_s;
        const auto normal = titleRows(renderKeyFace(face, QSize(90, 84)));
        face.titleFontSize = 32;
        const auto large = titleRows(renderKeyFace(face, QSize(90, 84)));
        QVERIFY(large.second - large.first > 1.5 * (normal.second - normal.first));
        face.titleFontSize = 0; // a record that was never set
        QCOMPARE(titleRows(renderKeyFace(face, QSize(90, 84))), normal);
    }

    void effects()
    {
        KeyFace face;
        face.picture = halves();
        face.imageEffects = ColourInversion;
        QCOMPARE(renderKeyFace(face, QSize(90, 84)).pixelColor(10, 10), QColor(Qt::cyan));
        face.imageEffects = Marquee;
        QCOMPARE(renderKeyFace(face, QSize(90, 84), 0).pixelColor(10, 10), QColor(Qt::red));
        QCOMPARE(renderKeyFace(face, QSize(90, 84), 0.5).pixelColor(10, 10), QColor(Qt::blue));
        face.imageEffects = ImageZooming;
        QCOMPARE(renderKeyFace(face, QSize(90, 84), 0), renderKeyFace(face, QSize(90, 84), 1));
    }
};

QTEST_MAIN(TestPanelKeyface)
#include "tst_panel_keyface.moc"
