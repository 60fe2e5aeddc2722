/// The page that takes pictures into the gallery, with a look at how a key will show them.
#pragma once

#include <QFrame>

class QLabel;
class QLineEdit;
class QPushButton;

namespace vorlindesk {
class LanguageManager;
}

class PictureUploadPage : public QFrame
{
    Q_OBJECT
public:
    PictureUploadPage(const vorlindesk::LanguageManager &language, QWidget *parent);

    bool setup(); ///< @return false when it cannot be built
    /// Shows the picture as a key would; says so when it is none.
    void choose(const QString &path);
    void retranslate();

signals:
    void sigGalleryChanged();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void ask();
    void addToGallery();
    void showPreview();

    const vorlindesk::LanguageManager &mLanguage;
    QString mPath; ///< of a picture that can be read; empty: none yet
    QLabel *mpCaption;
    QLabel *mpPrompt;
    QLineEdit *mpFile;
    QPushButton *mpSelect;
    QLabel *mpPreviewCaption;
    QLabel *mpPreview;
    QLabel *mpMessage;
    QPushButton *mpAdd;
};
