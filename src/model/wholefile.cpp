#include "wholefile.h"

#include <QFile>
#include <QSaveFile>

namespace vorlinmodel {

std::optional<QByteArray> readWholeFile(const QString &path, QString &error, qint64 limit)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = file.errorString();
        return std::nullopt;
    }
    // One byte more than allowed, since an endless device has no size.
    const QByteArray bytes = file.read(limit + 1);
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
