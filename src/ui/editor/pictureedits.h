/// Gives a key its own picture or video, as one step each.
#pragma once

#include "model/keyattribute.h"
#include "model/keyid.h"

#include <QString>

class KeyEdits;
struct EditorContext;

/// A key without function is left alone.
namespace PictureEdits {

/// The file is a picture that has been read whole: PicturePlacement takes others.
void setPicture(KeyEdits &edits, const vorlinmodel::key_id_t &key, const QString &path);

/// For a key with the video function. The video goes to the panel as it is: VideoPlacement converts others.
/// @p picture is shown on the screen until the first frame is known; may be empty.
/// @return what went wrong, for the person; nothing is changed then. Empty when it is done.
QString setVideo(KeyEdits &edits, const vorlinmodel::key_id_t &key, const QString &path,
                 const QString &picture = {});

/// Notes the video in the log. @return its bytes; 0 when it cannot be opened.
qint64 logVideo(const QString &path);

/// False when the key shows the icon of its function already, or its function has none.
bool canReset(const vorlinmodel::key_atttribute_t &record);
void resetPicture(EditorContext &context, const vorlinmodel::key_id_t &key);

/// Whether the name is that of a video that keys can play.
bool isVideoName(const QString &path);
QString videoPattern();   ///< "*.mp4 *.mov ...", for a file dialog
QString picturePattern(); ///< of all formats that can be read

} // namespace PictureEdits
