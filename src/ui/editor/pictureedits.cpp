#include "pictureedits.h"

#include "base/log.h"
#include "editorcontext.h"
#include "editorlogtext.h"
#include "functionlist.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "model/videoconversion.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

using vorlindesk::Log;
using vorlindesk::LogLevel;
using vorlinmodel::AttributeId;
using vorlinmodel::key_atttribute_t;
using vorlinmodel::key_id_t;

namespace {

constexpr const char *VideoSuffixes[] = {"mp4", "mov", "webm", "gif", "avi"};

key_atttribute_t withFunctionIcon(key_atttribute_t record)
{
    const bool isOffered = isOfferedByEditor(record.mFId);
    record.nDisplayImageType = isOffered ? vorlinmodel::CustomImage : vorlinmodel::DefaultImage;
    record.customImage = isOffered ? functionIcon(record.mFId) : QString();
    return record;
}

QString patternOf(const QStringList &suffixes)
{
    QStringList patterns;
    for (const QString &suffix : suffixes)
        patterns.append(QStringLiteral("*.") + suffix);
    return patterns.join(QLatin1Char(' '));
}

QStringList videoSuffixes()
{
    QStringList suffixes;
    for (const char *suffix : VideoSuffixes)
        suffixes.append(QString::fromLatin1(suffix));
    return suffixes;
}

/// @return why the video cannot be sent.
QString videoProblem(const QString &path, QFile &file)
{
    constexpr double bytesPerMegabyte = 1024 * 1024;
    const QString name = QFileInfo(path).fileName();
    if (!file.open(QIODevice::ReadOnly))
        return QCoreApplication::translate("PictureEdits", "\"%1\" cannot be opened: %2")
            .arg(name, file.errorString());
    if (file.size() > vorlinmodel::maxVideoBytes()) {
        return QCoreApplication::translate("PictureEdits",
                                           "\"%1\" has %2 MB. The panel takes videos of up to 10 MB.")
            .arg(name, QString::number(double(file.size()) / bytesPerMegabyte, 'f', 1));
    }
    return {};
}

} // namespace

void PictureEdits::setPicture(KeyEdits &edits, const key_id_t &key, const QString &path)
{
    vorlinmodel::IFunctionManager &store = edits.store();
    const auto record = store.getKeyAttribute(key);
    if (!record)
        return;
    edits.change(QCoreApplication::translate("PictureEdits", "Picture"), {key}, [&] {
        store.setCustomImage(key, path);
        edits.send(key, record->mFId, AttributeId::Image);
    });
}

QString PictureEdits::setVideo(KeyEdits &edits, const key_id_t &key, const QString &path,
                               const QString &picture)
{
    vorlinmodel::IFunctionManager &store = edits.store();
    const auto record = store.getKeyAttribute(key);
    if (!record || record->mFId != vorlinmodel::VIDEO_FID)
        return {};
    QFile file(path);
    const QString problem = videoProblem(path, file);
    if (!problem.isEmpty())
        return problem;
    logVideo(path);
    edits.change(QCoreApplication::translate("PictureEdits", "Video"), {key}, [&] {
        if (!picture.isEmpty())
            store.setCustomImage(key, picture);
        store.setCustomVideo(key, path);
        edits.send(key, record->mFId, AttributeId::Video);
    });
    return {};
}

qint64 PictureEdits::logVideo(const QString &path)
{
    Log(LogLevel::Info, EditorLogText::DropVideo, qUtf8Printable(path));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const qint64 size = file.size();
    Log(LogLevel::Info, EditorLogText::DropVideoSize, qlonglong(size), qlonglong(size / 10240));
    return size;
}

bool PictureEdits::canReset(const key_atttribute_t &record)
{
    if (!isOfferedByEditor(record.mFId) && record.defaultImage.isEmpty())
        return false;
    const key_atttribute_t reset = withFunctionIcon(record);
    const bool isReset =
        record.nDisplayImageType == reset.nDisplayImageType &&
        (reset.nDisplayImageType == vorlinmodel::DefaultImage || record.customImage == reset.customImage);
    return !isReset;
}

void PictureEdits::resetPicture(EditorContext &context, const key_id_t &key)
{
    vorlinmodel::IFunctionManager &store = context.edits.store();
    const auto record = store.getKeyAttribute(key);
    if (!record || !canReset(*record))
        return;
    context.pictures.cancel(key);
    context.edits.change(QCoreApplication::translate("PictureEdits", "Reset the picture"), {key}, [&] {
        store.setKeyAttribute(key, withFunctionIcon(*record));
        context.edits.send(key, record->mFId, AttributeId::Image);
    });
}

bool PictureEdits::isVideoName(const QString &path)
{
    return videoSuffixes().contains(QFileInfo(path).suffix().toLower());
}

QString PictureEdits::videoPattern()
{
    return patternOf(videoSuffixes());
}

QString PictureEdits::picturePattern()
{
    QStringList suffixes;
    for (const QByteArray &format : QImageReader::supportedImageFormats())
        suffixes.append(QString::fromLatin1(format));
    return patternOf(suffixes);
}
