/// How files get into the gallery.
#pragma once

#include "base/paths.h"
#include "gallerypictures.h"

#include <atomic>
#include <functional>

class QIODevice;

namespace GalleryAdding {

constexpr int MostFiles = 5000; ///< of one adding; a whole disk may have been dropped by mistake

struct Control
{
    const std::atomic<bool> &cancelled;                     ///< set by any thread; what is in stays in
    std::function<void(int done, int total)> progress = {}; ///< after each file, on the adding thread
    QString tool = vorlindesk::Paths::ffmpegTool(); ///< opens videos; without it their content has to do
};

/// Any thread; several may add at the same time. Of folders, only damaged pictures and videos are problems,
/// not what is neither.
GalleryPictures::Added add(const QStringList &files, const Control &control);

/// Copies what @p source holds (open for reading) to a file in the gallery that is called @p name, or nearly
/// so when that is taken. @p proceed, when given, is asked now and then. @return its path; empty, with the
/// reason in @p problem, after a failure, which leaves nothing; empty without a reason when it was stopped.
QString store(QIODevice &source, const QString &name, QString &problem, const std::function<bool()> &proceed);

} // namespace GalleryAdding
