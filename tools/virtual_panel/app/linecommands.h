/// The commands of the headless panel: one line in, one line out.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

class PanelServer;

class LineCommands
{
public:
    /// @param textFile path for the "open file" key of the demonstration.
    LineCommands(PanelServer &server, const QString &textFile);

    /// @return the answer, one line without line end: "ok", "ok ..." or JSON; "error ..." when the line is
    /// not understood or its command failed. Waits as long as the command says.
    QString execute(const QString &line);

    bool quitWanted() const { return mQuit; }

    /// Loads the demonstration.
    void loadDemo();

private:
    using Handler = QString (LineCommands::*)(const QStringList &arguments);
    struct Command
    {
        const char *name;
        Handler handler;
    };
    static const Command Commands[];

    QString press(const QStringList &arguments);
    QString page(const QStringList &arguments);
    QString unplug(const QStringList &arguments);
    QString plug(const QStringList &arguments);
    QString violations(const QStringList &arguments);
    QString events(const QStringList &arguments);
    QString clear(const QStringList &arguments);
    QString state(const QStringList &arguments);
    QString key(const QStringList &arguments);
    QString picture(const QStringList &arguments);
    QString waitIdle(const QStringList &arguments);
    QString demo(const QStringList &arguments);
    QString empty(const QStringList &arguments);
    QString fault(const QStringList &arguments);
    QString runNow(const QStringList &arguments);
    QString sent(const QStringList &arguments);
    QString help(const QStringList &arguments);
    QString quit(const QStringList &arguments);

    PanelServer &mServer;
    QString mTextFile;
    bool mQuit = false;
};
