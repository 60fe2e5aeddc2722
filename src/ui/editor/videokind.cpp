#include "videokind.h"

#include "model/avifile.h"
#include "model/picturecheck.h"
#include "model/videoconversion.h"

#include <QFile>
#include <algorithm>

namespace {

/// The four letters behind the length of the first part of an MP4 or MOV file; old MOV files have others
/// than the first.
constexpr const char *MovieParts[] = {"ftyp", "moov", "mdat", "wide", "free", "skip"};
constexpr char Matroska[] = "\x1A\x45\xDF\xA3"; // WebM is a kind of it

bool isForeign(const QByteArray &head)
{
    const QByteArray part = head.mid(4, 4);
    const bool isMovie = std::any_of(std::begin(MovieParts), std::end(MovieParts),
                                     [&part](const char *name) { return part == name; });
    return isMovie || head.startsWith(Matroska) || head.startsWith("GIF8") ||
           (head.startsWith("RIFF") && head.mid(8, 4) == "AVI ");
}

bool isReady(const vorlinmodel::AviInfo &video, const QSize &size, qint64 bytes)
{
    constexpr qint64 shortestFrame = 1000 * 1000 / vorlinmodel::MaxVideoFrameRate; // µs
    return video.motionJpeg && video.frames > 0 && video.size == size &&
           video.microsecondsPerFrame >= shortestFrame && bytes <= vorlinmodel::maxVideoBytes();
}

} // namespace

VideoKind videoKind(const QString &path, const QSize &size)
{
    QFile file(path);
    if (path.startsWith(QLatin1Char(':')) || !file.open(QIODevice::ReadOnly))
        return VideoKind::Unknown;
    const QByteArray head = file.read(vorlinmodel::AviHeadSize);
    const auto video = vorlinmodel::readAviInfo(head, file.size());
    if (video && isReady(*video, size, file.size()))
        return VideoKind::Ready;
    return isForeign(head) || vorlinmodel::checkPicture(path).video ? VideoKind::Foreign : VideoKind::Unknown;
}
