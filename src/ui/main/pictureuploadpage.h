/// The page on which a picture or video is made to fit a key: for the gallery, or for the selected key.
#pragma once

#include "pictureuploadjob.h"
#include "pictureuploadtarget.h"
#include "pictureuploadvideo.h"
#include "ui_common/latesttask.h"

#include <QFrame>

class CropPanel;
class PictureUploadOptions;
class QLabel;
class QLineEdit;
class QMimeData;
class QProgressBar;
class QPushButton;

class PictureUploadPage : public QFrame
{
    Q_OBJECT
public:
    /// @p context outlives the page.
    PictureUploadPage(EditorContext &context, QWidget *parent,
                      const vorlinmodel::ConverterOptions &options = {});

    bool setup(); ///< @return false when it cannot be built
    /// Reads the file in the background and shows it; says so when it is no picture or video.
    void choose(const QString &path);
    void setKey(const vorlinmodel::key_id_t &key); ///< the selected one; key id 0: none
    void retranslate();

signals:
    void sigGalleryChanged();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void createBars();
    void layOut();
    void connectParts();

    void ask();
    void paste();
    static bool takes(const QMimeData &given);
    void take(const QMimeData &given);
    void takeImage(const QImage &image);
    void showPicture(const OpenedPicture &picture);
    void showVideo(const OpenedVideo &video);
    void showNothing(const QString &message);
    void changeOptions();
    void showUse();
    void refreshKey();
    void refresh();
    void showButtons();

    void start(const vorlinmodel::key_id_t &key);
    void showProgress(const QString &step, int percent);
    void finish(const PictureUploadOutcome &outcome);
    QString doneText(const PictureUploadOutcome &outcome) const;
    QString setProblem() const;
    QString facts() const;
    QString pictureFacts() const;
    bool hasContent() const;

    EditorContext &mContext;
    QTemporaryDir mPasted; ///< pictures from the clipboard
    int mPastes = 0;
    PictureReader mReader;
    VideoReader mVideoReader;
    LatestTask mPaste;
    PictureUploadJob mJob;
    PictureUploadTarget mTarget;
    OpenedPicture mPicture; ///< its view is null when there is none
    OpenedVideo mVideo;     ///< its frame is null when there is none
    qint64 mShown = 0;      ///< cache key of the picture in the view
    QString mKeyName;       ///< of the last order

    QLabel *mpCaption;
    QLabel *mpPrompt;
    QLineEdit *mpFile;
    QPushButton *mpSelect;
    CropPanel *mpCrop;
    PictureUploadOptions *mpOptions;
    QLabel *mpMessage;
    QProgressBar *mpProgress;
    QPushButton *mpCancel;
    QPushButton *mpAdd;
    QPushButton *mpSet;
    QLabel *mpSetProblem;
};
