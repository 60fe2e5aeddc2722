/// The column of pictures, from which they are dragged onto keys.
#pragma once

#include <QFrame>

class GalleryModel;
class QAction;
class QLabel;
class QListView;
class QPushButton;

namespace vorlindesk {
class LanguageManager;
}

class GalleryFrame : public QFrame
{
    Q_OBJECT
public:
    GalleryFrame(const vorlindesk::LanguageManager &language, QWidget *parent);

    bool setup();   ///< @return false when it cannot be built
    void refresh(); ///< reads anew which pictures there are
    /// Copies pictures into the gallery and selects them; tells the person which files are none.
    void add(const QStringList &files);
    void retranslate();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void ask();
    void removeSelected();
    void showWhetherEmpty();

    const vorlindesk::LanguageManager &mLanguage;
    GalleryModel *mpModel;
    QLabel *mpCaption;
    QLabel *mpEmpty;
    QListView *mpView;
    QPushButton *mpAddButton;
    QAction *mpAdd;
    QAction *mpSelectAll;
    QAction *mpRemove;
};
