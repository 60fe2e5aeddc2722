/// A firmware file before it is sent.
#pragma once

#include "wire/applicationmessage.h"

#include <QDateTime>
#include <QString>

/// What is known about a file that was chosen.
struct UpgradeFile
{
    enum class Problem { None, Missing, Empty, TooLarge, Unreadable };

    /// The message that carries it, with its six bytes of header, must fit into 10 MiB.
    static constexpr int Largest = ApplicationMessage::MaxSize - ApplicationMessage::SubcodeDataOffset;

    Problem problem = Problem::None;
    QString reason = {};     ///< of Unreadable, as the system gives it
    qint64 size = 0;         ///< bytes
    QDateTime modified = {}; ///< before it was read
    quint16 crc = 0;         ///< as the panel will sum it up
};

/// Reads the whole of @p path: tens of milliseconds for the largest file, longer from a slow disk. Any
/// thread.
UpgradeFile examineUpgradeFile(const QString &path);
