/// The column of pictures and videos, from which they are dragged onto keys.
#pragma once

#include "gallerymodel.h"
#include "gallerypictures.h"

#include <QFrame>

class GalleryLibrary;
class GalleryProgress;
class GalleryThumbnails;
class GalleryTools;
class GalleryView;
class QAction;
class QLabel;
class QMimeData;

namespace vorlindesk {
class LanguageManager;
}

class GalleryFrame : public QFrame
{
    Q_OBJECT
public:
    GalleryFrame(const vorlindesk::LanguageManager &language, QWidget *parent);
    ~GalleryFrame() override;

    bool setup();   ///< @return false when it cannot be built
    void refresh(); ///< has read anew which files there are
    /// Copies pictures, videos and what is in folders into the gallery, in the background, and selects them;
    /// tells the person which files were not taken.
    void add(const QStringList &files);
    void retranslate();

signals:
    /// To be set on the selected key: paths as a drag carries them.
    void sigItemChosen(const QString &picture, const QString &video);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void connectParts();
    void ask();
    void paste();
    void take(const QMimeData &offered);
    void removeSelected();
    void applyFilter();
    void showItems(const std::vector<GalleryItem> &items);
    void takeThumbnail(const GalleryItem &item, const QImage &image, vorlinmodel::ConversionError error);
    void finishAdding(const GalleryPictures::Added &added);
    void warnOf(const QStringList &problems);
    void showWhetherEmpty();
    QStringList selectedNames() const;
    void select(const QStringList &names);

    const vorlindesk::LanguageManager &mLanguage;
    GalleryLibrary *mpLibrary;
    GalleryThumbnails *mpThumbnails;
    GalleryModel *mpModel;
    GalleryTools *mpTools;
    GalleryView *mpView;
    QLabel *mpEmpty;
    QLabel *mpNote;
    GalleryProgress *mpProgress;
    QAction *mpAdd;
    QAction *mpPaste;
    QAction *mpSelectAll;
    QAction *mpRemove;
    bool mIsListed = false;      ///< whether it is known what there is
    bool mIsToolMissing = false; ///< of videos
};
