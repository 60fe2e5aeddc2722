/// A picture of one page of the panel: 3 x 5 keys as they were read.
#pragma once

#include <QColor>
#include <QDateTime>
#include <QHash>
#include <QPixmap>
#include <QVector>
#include <QWidget>

namespace vorlinmodel {
class IFunctionManager;
}

/// One key as it is drawn.
struct KeyPreview
{
    bool used = false; ///< has a function
    QPixmap picture;   ///< null when it has none, or none that can be drawn
    QString title;
    QColor titleColour;
    int titleFontSize = 16; ///< pixels on a key of 84 pixels' height
    int titleAlignment = 0; ///< vorlinmodel::TitleAlignment
};

/// Place of key @p keyId (1 to 15, row by row) in an area of @p size; keys keep the shape of the panel's, 90
/// : 84.
QRect keyPreviewRect(QSize size, int keyId);

class PageView : public QWidget
{
    Q_OBJECT
public:
    explicit PageView(vorlinmodel::IFunctionManager &store, QWidget *parent);

    /// Shows what the store knows about the page. A picture file that has not changed is not decoded again.
    void showPage(int layoutId, int pageId);

    QSize sizeHint() const override { return {750, 430}; }
    QSize minimumSizeHint() const override { return {400, 230}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Decoded
    {
        QDateTime modified;
        qint64 size = 0;
        QPixmap pixmap;
    };

    QPixmap picture(const QString &path);

    vorlinmodel::IFunctionManager &mStore;
    QVector<KeyPreview> mKeys;
    QHash<QString, Decoded> mDecoded;     ///< of the page in view
    QHash<QString, Decoded> mLastDecoded; ///< of the page before, while a page is put together
};
