/// A virtual panel in a process of its own, driven by its line protocol.
#pragma once

#include "support/texts.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QStringList>

class PanelProcess
{
public:
    /// Starts the panel with Linux paths and more @p arguments, and points this process's drop-in library at
    /// it. @return whether it runs.
    bool start(const char *arguments = "")
    {
        const QDir folder(QCoreApplication::applicationDirPath());
        const QString all = "--headless --port 0 --paths linux "_s + QLatin1String(arguments);
        mProcess.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        mProcess.start(folder.filePath(QStringLiteral(PANEL_PROGRAM)),
                       all.split(QLatin1Char(' '), Qt::SkipEmptyParts));
        const QByteArray line = readLine();
        qputenv("VIRTUAL_PANEL_PORT", line.mid(5));
        return line.startsWith("port ");
    }

    /// @return the panel's answer to @p command.
    QByteArray ask(const QByteArray &command)
    {
        mProcess.write(command + '\n');
        return readLine();
    }

    ~PanelProcess()
    {
        mProcess.closeWriteChannel(); // ends the panel
        if (!mProcess.waitForFinished())
            mProcess.kill();
    }

private:
    QByteArray readLine()
    {
        while (!mProcess.canReadLine() && mProcess.waitForReadyRead(10000)) {
        }
        return mProcess.readLine().trimmed();
    }

    QProcess mProcess;
};
