/// The content of a firmware file.
#pragma once

#include "wire/applicationmessage.h"

#include <QByteArray>
#include <QDateTime>
#include <QElapsedTimer>
#include <QString>

namespace vorlinmodel {

/// Stays in memory for a while: as long as no panel is there, the same file is asked for ten times a second.
class FirmwareFile
{
public:
    enum class Problem { None, TooLarge, Unreadable };

    /// The message that carries it must fit into the buffer.
    static constexpr int Largest = ApplicationMessage::MaxSize - ApplicationMessage::SubcodeDataOffset;
    static constexpr int Kept = 3000; ///< ms since load()

    /// Reads the file, unless it is the one that is kept and has not changed since. After a problem there is
    /// no content.
    Problem load(const QString &path);
    void dropIfOld();

    const QByteArray &bytes() const { return mBytes; }
    quint16 crc() const { return mCrc; } ///< CRC-16 of bytes()

private:
    QString mPath; ///< empty when nothing is kept
    qint64 mSize = 0;
    QDateTime mModified;
    QByteArray mBytes;
    quint16 mCrc = 0;
    QElapsedTimer mSinceLoad;
};

} // namespace vorlinmodel
