#include "model/conversionresult.h"

#include "model/picturecheck.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace vorlinmodel {

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("Conversion", source);
}

/// A form for the name of the source, or of what stands in its place.
const char *reasonForm(ConversionError error)
{
    switch (error) {
    case ConversionError::None:
        return "";
    case ConversionError::NotReadable:
        return QT_TRANSLATE_NOOP("Conversion", "\"%1\" cannot be opened.");
    case ConversionError::NotPicture:
        return QT_TRANSLATE_NOOP("Conversion", "\"%1\" is not a picture that can be read.");
    case ConversionError::NotVideo:
        return QT_TRANSLATE_NOOP("Conversion", "\"%1\" is not a video that can be read.");
    case ConversionError::TooManyPixels:
        return QT_TRANSLATE_NOOP("Conversion",
                                 "\"%1\" is too large: a picture may have up to %2 x %2 pixels.");
    case ConversionError::Damaged:
        return QT_TRANSLATE_NOOP("Conversion", "\"%1\" is damaged or not complete.");
    case ConversionError::BadSize:
        return QT_TRANSLATE_NOOP("Conversion", "\"%1\" cannot be converted to a size without pixels.");
    case ConversionError::NoTool:
        return QT_TRANSLATE_NOOP("Conversion", "The program that converts pictures and videos is missing or "
                                               "cannot be started: %1");
    case ConversionError::ToolFailed:
        return QT_TRANSLATE_NOOP("Conversion", "\"%1\" could not be converted.");
    case ConversionError::TimedOut:
        return QT_TRANSLATE_NOOP("Conversion", "The conversion of \"%1\" took too long and was given up.");
    case ConversionError::DiskFull:
        return QT_TRANSLATE_NOOP("Conversion", "\"%1\" could not be converted: the disk is full.");
    case ConversionError::NotWritable:
        return QT_TRANSLATE_NOOP("Conversion", "The folder \"%1\" cannot be written to.");
    case ConversionError::TooLong: // has a form of its own
        return "";
    case ConversionError::Cancelled:
        return QT_TRANSLATE_NOOP("Conversion", "The conversion of \"%1\" was cancelled.");
    }
    return "";
}

bool namesWholePath(ConversionError error)
{
    return error == ConversionError::NoTool || error == ConversionError::NotWritable;
}

} // namespace

ConversionResult conversionFailure(ConversionError error, const QString &path)
{
    const QString name = namesWholePath(error) ? QDir::toNativeSeparators(path) : QFileInfo(path).fileName();
    // The name comes last: it may itself hold a "%2".
    QString reason = text(reasonForm(error));
    if (error == ConversionError::TooManyPixels)
        reason.replace(QLatin1String("%2"), QString::number(MaxPictureSide));
    return {.path = {}, .error = error, .reason = reason.replace(QLatin1String("%1"), name)};
}

ConversionResult videoTooLong(const QString &path, qint64 fittingMs, qint64 byteLimit)
{
    constexpr double bytesPerMegabyte = 1024 * 1024;
    const QString reason =
        text(QT_TRANSLATE_NOOP("Conversion", "\"%1\" is too long: even at the lowest quality "
                                             "at most %2 seconds of it fit into %3 MB."))
            .arg(QFileInfo(path).fileName(), QString::number(fittingMs / 1000),
                 QString::number(double(byteLimit) / bytesPerMegabyte, 'f', 1));
    return {.path = {}, .error = ConversionError::TooLong, .reason = reason, .durationMs = fittingMs};
}

} // namespace vorlinmodel
