/// What the window remembers from one run to the next: group "Window" of "devConfig/system.ini".
#pragma once

#include <QByteArray>

struct WindowState
{
    QByteArray geometry; ///< as QWidget::saveGeometry gives it; empty: none is known
    int layoutId = 1;
    int pageId = 1; ///< 1 to vorlinmodel::MaxPage
};

/// What makes no sense in the file is replaced by the presets above.
WindowState loadWindowState();
void saveWindowState(const WindowState &state);
