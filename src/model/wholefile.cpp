#include "wholefile.h"

#include <QFile>
#include <QSaveFile>
#include <algorithm>

namespace vorlinmodel {

namespace {

/// In pieces, since QFile::read() takes as much memory as it is allowed to; and an endless device has no
/// size.
QByteArray readUpTo(QFile &file, qint64 most)
{
    constexpr qint64 piece = 64 * 1024;
    QByteArray bytes = file.read(std::min(file.size(), most));
    while (bytes.size() < most) {
        const QByteArray more = file.read(std::min(piece, most - bytes.size()));
        if (more.isEmpty())
            break;
        bytes += more;
    }
    return bytes;
}

} // namespace

std::optional<QByteArray> readWholeFile(const QString &path, QString &error, qint64 limit)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = file.errorString();
        return std::nullopt;
    }
    const QByteArray bytes =
        readUpTo(file, limit + 1); // one byte more than allowed, to notice that there is more
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

bool writeWholeFile(const QString &path, const QByteArray &bytes, QString &error)
{
    QSaveFile file(path);
    // Flushed here, since commit() does not notice when the rest of the buffer finds a full disk: it would
    // put what little was written in place of the old file.
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() && file.commit())
        return true;
    error = file.errorString();
    return false;
}

} // namespace vorlinmodel
