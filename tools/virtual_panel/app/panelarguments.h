/// The command line of the virtual panel.
#pragma once

#include "panel_link/panelserver.h"

#include <QString>
#include <QStringList>

struct PanelArguments
{
    LinkOptions link;
    bool headless = false;
    bool empty = false; ///< start without the demonstration
};

struct PanelArgumentsResult
{
    PanelArguments arguments;
    int exitCode = -1; ///< 0 or above: print the text and leave
    QString text;
};

PanelArgumentsResult parsePanelArguments(const QStringList &arguments);
