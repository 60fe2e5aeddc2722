/// Makes what the panel shows out of a picture or video, and puts it into the gallery or on a key.
#pragma once

#include "model/conversionqueue.h"
#include "model/keyid.h"
#include "ui_common/picturereader.h"
#include "ui_editor/videoplacement.h"

#include <QTemporaryDir>

struct EditorContext;

struct PictureUploadOrder
{
    QString source;            ///< file
    QString name;              ///< in the gallery, without ending
    vorlinmodel::key_id_t key; ///< goes on this key; with key id 0 into the gallery
    QSize size;                ///< pixels of the picture that is made
    QRectF share;              ///< of the picture, see PictureReader::crop()
    std::optional<vorlinmodel::VideoSettings> video = {}; ///< makes a video; a picture without it

    bool isForKey() const { return key.kid != 0; }
};

struct PictureUploadOutcome
{
    QString problem;        ///< for the person; empty when it is done, or was cancelled
    bool cancelled = false; ///< nothing was changed then, as after a problem
    bool cut = false;       ///< the end of the video is left out
};

/// One order at a time. User-interface thread only, which never waits.
class PictureUploadJob : public QObject
{
    Q_OBJECT
public:
    /// @p context outlives this object.
    PictureUploadJob(EditorContext &context, const vorlinmodel::ConverterOptions &options);

    void start(const PictureUploadOrder &order); ///< does nothing while it is busy; sigFinished follows
    void cancel();
    bool isBusy() const { return mBusy; }
    const PictureUploadOrder &order() const { return mOrder; } ///< the last one

signals:
    void sigProgress(const QString &step, int percent); ///< 0 to 100; -1 while it is not known
    void sigFinished(const PictureUploadOutcome &outcome);

private:
    void convertPart(const QImage &part, const QString &problem);
    void convert(const vorlinmodel::ConversionJob &job);
    void finishConversion(int id, const vorlinmodel::ConversionResult &result);
    void finishPlacement(const vorlinmodel::key_id_t &key, const QString &problem, bool cancelled,
                         int number);
    void showPlacement(const vorlinmodel::key_id_t &key, VideoPlacement::Stage stage, int percent);
    void addToGallery(const QString &path, const PictureUploadOutcome &outcome);
    QString setOnKey(const QString &path);
    void finish(const PictureUploadOutcome &outcome);

    EditorContext &mContext;
    QTemporaryDir mWork; ///< the parts of pictures, until they are converted
    PictureReader mReader;
    vorlinmodel::ConversionQueue mQueue;
    std::atomic<bool> mStopsAdding = false; ///< read by the task of mStore
    LatestTask mStore;                      ///< waits for the disk in place of the user interface
    PictureUploadOrder mOrder;
    int mConversion = 0; ///< its number in the queue; 0: none
    bool mPlacing = false;
    int mPlacement = 0; ///< number of the video that is being placed
    bool mBusy = false;
};
