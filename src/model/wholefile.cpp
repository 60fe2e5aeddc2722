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
    if (file.size() > limit) {
        error = QStringLiteral("larger than %1 bytes").arg(limit);
        return std::nullopt;
    }
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        error = file.errorString();
        return std::nullopt;
    }
    return bytes;
}

bool writeWholeFile(const QString &path, const QByteArray &bytes, QString &error)
{
    QSaveFile file(path);
    // A write that fell short cancels the commit, so the three results come to one.
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return true;
    error = file.errorString();
    return false;
}

} // namespace vorlinmodel
