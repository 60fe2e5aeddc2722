/// One video under way; private to VideoPlacement.
#pragma once

#include "videoplacement.h"

#include <QSize>

struct VideoPlacement::Job
{
    int number = 0;
    vorlinmodel::key_id_t key;
    QString source; ///< after the conversion, its result
    QString name;
    QString original = {}; ///< of a conversion
    QSize size = {};       ///< pixels that it made
    State state = State::Converting;
    bool isPlaced = true; ///< by place(); else only followed
    QString picture = {};
    vorlinmodel::VideoFit fit = vorlinmodel::VideoFit::Contain;
    bool mayCut = false;
    bool isCut = false;
    int conversion = 0; ///< in the queue; 0 = none
    int done = 0;
    int all = 0;
};
