/// What keys show, ready to be drawn: pictures are decoded once.
#pragma once

#include "model/keyface.h"
#include "model/keyid.h"
#include "ui_common/picturereader.h"

#include <QCache>
#include <QDateTime>
#include <QImage>
#include <QObject>
#include <QStringList>

namespace vorlinmodel {
class IFunctionManager;
}
class VideoFrames;

/// User-interface thread only.
class KeyFaces : public QObject
{
    Q_OBJECT
public:
    /// @p store outlives this object.
    explicit KeyFaces(const vorlinmodel::IFunctionManager &store, QObject *parent = nullptr);
    ~KeyFaces() override;

    /// The face of a key; an empty one when it has no function. A picture file that has not changed is not
    /// decoded again. A video shows its first frame, once that is there (sigFaceReady), until then the key's
    /// picture.
    vorlinmodel::KeyFace face(const vorlinmodel::key_id_t &key);
    /// @return whether @p path is the picture or video that face() shows.
    bool shows(const vorlinmodel::key_id_t &key, const QString &path) const;

    /// A picture from a file or resource; null when it is none or has more than 16384 pixels a side. One that
    /// takes long to decode is null, or as it was before it changed, until sigFaceReady.
    QImage picture(const QString &path);

signals:
    void sigFaceReady(const QString &path); ///< a picture or video that was asked for looks different now

private:
    struct Decoded
    {
        QDateTime modified;
        qint64 size = 0;
        QImage image;
    };

    QImage keep(const QString &path, Decoded decoded);
    void decodeNext();
    void onDecoded(const QImage &picture);

    const vorlinmodel::IFunctionManager &mStore;
    QCache<QString, Decoded> mPictures;
    QStringList mWaiting;  ///< large pictures, of which the first is being decoded
    Decoded mBeingDecoded; ///< the file of the first, as it was at the beginning
    PictureReader mReader;
    VideoFrames *mpVideoFrames;
};
