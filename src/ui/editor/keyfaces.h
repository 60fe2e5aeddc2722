/// What keys show, ready to be drawn: pictures are decoded once.
#pragma once

#include "model/keyface.h"
#include "model/keyid.h"

#include <QCache>
#include <QDateTime>
#include <QImage>
#include <QObject>

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

    /// A picture from a file or resource; null when it is none or has more than 16384 pixels a side.
    QImage picture(const QString &path);

signals:
    void sigFaceReady(); ///< a face that was asked for before looks different now

private:
    struct Decoded
    {
        QDateTime modified;
        qint64 size = 0;
        QImage image;
    };

    const vorlinmodel::IFunctionManager &mStore;
    QCache<QString, Decoded> mPictures;
    VideoFrames *mpVideoFrames;
};
