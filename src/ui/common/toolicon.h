/// Icons of tool buttons on the dark pages.
#pragma once

#include <QIcon>

/// The icon ":/icon/edit/%1.png". A tool that cannot be used is faded until it is hardly seen; the style's
/// own grey is too near to white on the dark page.
QIcon toolIcon(const char *name);
