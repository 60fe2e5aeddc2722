#include "model/avifile.h"

#include <QFile>
#include <QtEndian>

namespace vorlinmodel {

namespace {

namespace AviField {        // the lists that lead to the headers always stand in this order
constexpr int FileSize = 4; // u32, bytes behind this field
constexpr int MainHeader = 24;
constexpr int MicrosecondsPerFrame = 32; // u32
constexpr int Frames = 48;               // u32
constexpr int Width = 64;                // u32
constexpr int Height = 68;               // u32
constexpr int StreamHeader = 100;
constexpr int StreamType = 108;
constexpr int StreamCodec = 112;
} // namespace AviField

} // namespace

std::optional<AviInfo> readAviInfo(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return readAviInfo(file.read(AviHeadSize), file.size());
}

std::optional<AviInfo> readAviInfo(const QByteArray &head, qint64 fileSize)
{
    const auto tag = [&head](int at) {
        return head.mid(at, 4);
    };
    const auto number = [&head](int at) {
        return qFromLittleEndian<quint32>(head.constData() + at);
    };
    if (head.size() < AviHeadSize || tag(0) != "RIFF" || tag(8) != "AVI " ||
        tag(AviField::MainHeader) != "avih" || tag(AviField::StreamHeader) != "strh" ||
        number(AviField::FileSize) + qint64{8} > fileSize)
        return std::nullopt;
    return AviInfo{.size = {int(number(AviField::Width)), int(number(AviField::Height))},
                   .frames = number(AviField::Frames),
                   .microsecondsPerFrame = number(AviField::MicrosecondsPerFrame),
                   .motionJpeg = tag(AviField::StreamType) == "vids" && tag(AviField::StreamCodec) == "MJPG"};
}

} // namespace vorlinmodel
