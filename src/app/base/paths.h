/// Where files lie. Everything that is written is below the current directory, which start-up chooses once.
#pragma once

#include <QString>
#include <QStringList>

namespace vorlindesk::Paths {

QString devConfigFolder();  ///< current directory + "/devConfig"
QString systemIni();        ///< devConfig + "/system.ini"
QString customLayoutIni();  ///< devConfig + "/customLayout.ini"
QString multiActionsJson(); ///< devConfig + "/multiActions.json"
QString imageFolder();      ///< devConfig + "/image"
QString imageUrlIni();      ///< devConfig + "/image/imageUrl.ini"
QString logFolder();        ///< current directory + "/log"

/// File of a key's picture: imageFolder() + "/%1_%2_%3.png" with layout, page and key id in decimal.
QString keyPicture(int layoutId, int pageId, int keyId);

QString deviceIni();  ///< "quorradent_md.ini" beside the executable, read only
QString ffmpegTool(); ///< "ffmpeg.dll" beside the executable: a program, despite its ending

/// Makes sure that @p folder exists, parents included. @return false when it cannot be made.
/// Logs "createPath %s success\n" or "createPath %s fail\n" when it had to try.
bool createPath(const QString &folder);

/// Creates the folder for temporary files, "vorlin_usb_desk" below the first runtime location of the
/// platform.
/// @return its path, also when it could not be created (which is logged).
QString createRuntimePath();

/// Makes the folder current below which the program writes: @p dataDir when not empty, else the folder of the
/// executable when it can be written, else the user's data folder. Created if missing.
/// @return false when none can be used.
bool chooseCurrentDirectory(const QString &dataDir);

/// The same with @p fallbacks, tried in their order, in place of the two standard folders.
bool chooseCurrentDirectory(const QString &dataDir, const QStringList &fallbacks);

} // namespace vorlindesk::Paths
