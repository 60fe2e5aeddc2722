#include "wholefile.h"

#include <QFile>
#include <QSaveFile>
#include <QThread>
#include <algorithm>
#include <filesystem>

namespace vorlinmodel {

namespace {

// Windows does not replace a file that somebody has open, as virus scanners do for a moment with every new
// one; nor does it rename a folder with such a file in it, which may hold hundreds.
#ifdef Q_OS_WIN
constexpr int ReplaceTries = 5;
constexpr int RenameTries = 40;
#else
constexpr int ReplaceTries = 1;
constexpr int RenameTries = 1;
#endif
constexpr int ReplacePause = 10; // ms
constexpr int RenamePause = 50;  // ms

/// In pieces, since QFile::read() takes as much memory as it is allowed to; and an endless device has no
/// size.
QByteArray readUpTo(QFile &file, qint64 most, const BackupWatch &watch)
{
    constexpr qint64 piece = BackupWatch::Piece;
    const qint64 expected = std::min(file.size(), most);
    QByteArray bytes;
    bytes.reserve(int(expected));
    while (bytes.size() < most && watch.goesOn(int(bytes.size() / piece), int(expected / piece) + 1)) {
        const QByteArray more = file.read(std::min(piece, most - bytes.size()));
        if (more.isEmpty())
            break;
        bytes += more;
    }
    return bytes;
}

bool write(QSaveFile &file, const QByteArray &bytes, const BackupWatch &watch)
{
    return watch.inPieces(bytes.size(), [&](qint64 offset, qint64 length) {
        return file.write(bytes.constData() + offset, length) == length;
    });
}

} // namespace

std::optional<QByteArray> readWholeFile(const QString &path, QString &error, qint64 limit,
                                        const BackupWatch &watch)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = file.errorString();
        return std::nullopt;
    }
    const QByteArray bytes =
        readUpTo(file, limit + 1, watch); // one byte more than allowed, to notice that there is more
    if (watch.isGivenUp())
        return std::nullopt;
    if (bytes.size() > limit) {
        error = QStringLiteral("larger than %1 bytes").arg(limit);
        return std::nullopt;
    }
    if (file.error() != QFileDevice::NoError) {
        error = file.errorString();
        return std::nullopt;
    }
    return bytes;
}

bool writeWholeFile(const QString &path, const QByteArray &bytes, QString &error, const BackupWatch &watch)
{
    for (int tries = ReplaceTries; tries > 0; --tries) {
        QSaveFile file(path);
        // Flushed here, since commit() does not notice when the rest of the buffer finds a full disk: it
        // would put what little was written in place of the old file.
        const bool isWritten = file.open(QIODevice::WriteOnly) && write(file, bytes, watch) && file.flush();
        if (isWritten && file.commit())
            return true;
        error = file.errorString();
        if (!isWritten)
            return false;
        if (tries > 1)
            QThread::msleep(ReplacePause);
    }
    return false;
}

// Not QFile::rename(): where a file cannot be renamed that copies it, and a kill would leave half a file.
bool renameWhole(const QString &from, const QString &to, QString &error)
{
    std::error_code code;
    for (int tries = RenameTries; tries > 0; --tries) {
        std::filesystem::rename(from.toStdU16String(), to.toStdU16String(), code);
        if (!code)
            return true;
        if (tries > 1)
            QThread::msleep(RenamePause);
    }
    error = QString::fromLocal8Bit(code.message().c_str());
    return false;
}

} // namespace vorlinmodel
