/// Everything that the program knows about one key.
#pragma once

#include <QColor>
#include <QString>

namespace vorlinmodel {

/// All zero with an invalid colour until a function is set; that applies the defaults.
struct key_atttribute_t
{
    qint32 mFId = 0;
    qint32 nDisplayImageType = 0; ///< 0: default image; any other: custom image
    QString defaultImage; ///< icon of the function; for a video key, deliberately, the path of the video
    QString customImage;  ///< path of the key's own picture
    qint32 imageEffects = 0;
    qint32 nDisplaymode = 0;
    QString strTitle;
    qint32 titleAlignment = 0;
    qint32 titleFontSize = 0;
    QColor titleColour;
    QString strAppOrUrl; ///< path, address, text or key names joined with "#", by function

    bool operator==(const key_atttribute_t &) const = default;
};

} // namespace vorlinmodel
