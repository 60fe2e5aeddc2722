#include "windowstate.h"

#include "base/paths.h"
#include "base/systemsettings.h"
#include "model/customlayouts.h"
#include "model/keyid.h"

namespace {

constexpr char Group[] = "Window";
constexpr char Geometry[] = "geometry"; // base64
constexpr char Layout[] = "layout";
constexpr char Page[] = "page";

} // namespace

WindowState loadWindowState()
{
    WindowState state;
    int layoutId = 0;
    int pageId = 0;
    {
        vorlindesk::IniFile file(vorlindesk::Paths::systemIni());
        file->beginGroup(QLatin1String(Group));
        state.geometry = QByteArray::fromBase64(file->value(QLatin1String(Geometry)).toByteArray());
        layoutId = file->value(QLatin1String(Layout)).toInt();
        pageId = file->value(QLatin1String(Page)).toInt();
    }
    // A custom layout may have been deleted meanwhile.
    if (layoutId > 1 && vorlinmodel::customLayoutIds().contains(layoutId))
        state.layoutId = layoutId;
    if (pageId >= 1 && pageId <= vorlinmodel::MaxPage && (layoutId == state.layoutId))
        state.pageId = pageId;
    return state;
}

void saveWindowState(const WindowState &state)
{
    vorlindesk::IniFile file(vorlindesk::Paths::systemIni());
    file->beginGroup(QLatin1String(Group));
    file->setValue(QLatin1String(Geometry), QString::fromLatin1(state.geometry.toBase64()));
    file->setValue(QLatin1String(Layout), state.layoutId);
    file->setValue(QLatin1String(Page), state.pageId);
    file->endGroup();
}
