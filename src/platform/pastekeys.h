/// The key strokes of "paste", the same on every system.
#pragma once

#include <QtGlobal>
#include <array>

namespace vorlindesk {

struct KeyStroke
{
    quint8 virtualKey; ///< Windows virtual-key code
    quint32 keySym;    ///< X11 keysym
    bool press;        ///< false: release
};

namespace PasteKey {
constexpr quint8 ControlVirtualKey = 0x11;
constexpr quint8 VVirtualKey = 0x56;
constexpr quint32 ControlKeySym = 0xFFE3; // Control_L
constexpr quint32 VKeySym = 0x0076;       // v
} // namespace PasteKey

/// In this order, back to back, with no pause.
inline constexpr std::array<KeyStroke, 4> PasteStrokes = {{
    {PasteKey::ControlVirtualKey, PasteKey::ControlKeySym, true},
    {PasteKey::VVirtualKey, PasteKey::VKeySym, true},
    {PasteKey::VVirtualKey, PasteKey::VKeySym, false},
    {PasteKey::ControlVirtualKey, PasteKey::ControlKeySym, false},
}};

} // namespace vorlindesk
