/// What the tests of the key attribute store share.
#pragma once

#include "base/log.h"
#include "support/recordingdesktop.h"
#include "support/texts.h"

#include <QBuffer>
#include <QColor>
#include <QDir>
#include <QImage>
#include <QRegularExpression>
#include <QStringList>
#include <QTemporaryDir>
#include <mutex>

#ifndef Q_OS_WIN
#include <csignal>
#include <sys/resource.h>
#endif

/// A fresh data folder as the current directory, and the log lines that are written while it lives.
class StoreFixture
{
public:
    StoreFixture()
    {
        QDir::setCurrent(mFolder.path());
        vorlindesk::setLogSink([this](vorlindesk::LogLevel level, const QString &text) {
            const std::lock_guard lock(mMutex);
            mLines.append(QString::number(int(level)) + QLatin1Char(' ') + text);
        });
    }

    ~StoreFixture()
    {
        vorlindesk::setLogSink({});
        QDir::setCurrent(mBefore);
    }

    /// The lines since the last call, each led by its level.
    QStringList takeLines()
    {
        const std::lock_guard lock(mMutex);
        return std::exchange(mLines, {});
    }

    /// The same, without those at debug level.
    QStringList takeCalmLines() { return takeLines().filter(QRegularExpression("^[^4]"_s)); }

    QString path(const char *name) const
    {
        return QDir::currentPath() + QLatin1Char('/') + QLatin1String(name);
    }

private:
    QString mBefore = QDir::currentPath();
    QTemporaryDir mFolder;
    std::mutex mMutex;
    QStringList mLines;
};

#ifndef Q_OS_WIN
/// While it lives, no file can grow beyond 20 bytes: writes fail as they do on a full disk.
class FullDisk
{
public:
    FullDisk()
    {
        getrlimit(RLIMIT_FSIZE, &mBefore);
        const rlimit full{20, mBefore.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
    }

    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &mBefore);
        std::signal(SIGXFSZ, mHandler);
    }

private:
    void (*mHandler)(int) = std::signal(SIGXFSZ, SIG_IGN); // else the first such write ends the program
    rlimit mBefore{};
};
#endif

inline QString u(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

inline const quint8 *data(const QByteArray &bytes)
{
    return reinterpret_cast<const quint8 *>(bytes.constData());
}

/// A picture of one colour in an image format.
inline QByteArray picture(const QSize &size, const QColor &colour, const char *format = "PNG")
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}
