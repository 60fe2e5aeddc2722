/// The key for which the picture upload page makes pictures.
#pragma once

#include "model/keyid.h"
#include "model/keypicture.h"

#include <QSize>
#include <QString>

struct EditorContext;

struct PictureUploadTarget
{
    vorlinmodel::key_id_t key;                                                 ///< key id 0: none is selected
    int fid = 0;                                                               ///< 0: the key has no function
    QSize size{vorlinmodel::PhysicalKeyWidth, vorlinmodel::PhysicalKeyHeight}; ///< pixels
    QString name = {}; ///< "Key 3 of System Panel Layout 1", for the person; empty without a key

    bool isSelected() const { return key.kid != 0; }
    /// @return why the key cannot take a picture, or a video; empty when it can.
    QString problem(bool video) const;
};

PictureUploadTarget pictureUploadTarget(const EditorContext &context, const vorlinmodel::key_id_t &key);
