/// The thumbnails of the gallery, in as many columns as there is room for.
#pragma once

#include <QListView>

class GalleryView : public QListView
{
    Q_OBJECT
public:
    explicit GalleryView(QWidget *parent);

signals:
    void sigChosen(const QModelIndex &index); ///< Enter, or a double click

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void startDrag(Qt::DropActions supportedActions) override;
    void resizeEvent(QResizeEvent *event) override;
};

/// Width of a column, in pixels, for a view that is @p width wide: at least two columns, of about 96 pixels.
int galleryColumnWidth(int width);
