#include "keycapture.h"

#include <QGuiApplication>
#include <QKeyEvent>

namespace {

struct PositionRow
{
    quint32 first; ///< of the keys in the row
    const char *names;
};

constexpr PositionRow Positions[] = {
    {2, "1234567890-+"}, {16, "QWERTYUIOP[]"}, {30, "ASDFGHJKL;'~"}, {43, "\\ZXCVBNM,./"}};
constexpr quint32 AdditionalKey =
    86; // beside the left Shift of European keyboards; the table has no name for it

// What a US keyboard gives with Shift or without a name of its own, and the key that it is on.
constexpr char Shifted[] = "!@#$%^&*()_={}|:\"`<>?";
constexpr char Unshifted[] = "1234567890-+[]\\;'~,./";
static_assert(sizeof(Shifted) == sizeof(Unshifted));

struct NamedKey
{
    int key;
    const char *name;
};

// The table calls the backspace key "Delete".
constexpr NamedKey Named[] = {
    {Qt::Key_Return, "Enter"},
    {Qt::Key_Enter, "Enter"},
    {Qt::Key_Space, "Space"},
    {Qt::Key_CapsLock, "Caps Lock"},
    {Qt::Key_Backspace, "Delete"},
    {Qt::Key_Delete, "Delete Forward"},
    {Qt::Key_Tab, "Tab"},
    {Qt::Key_Backtab, "Tab"},
    {Qt::Key_Escape, "ESC"},
    {Qt::Key_Home, "Home"},
    {Qt::Key_End, "END"},
    {Qt::Key_Print, "PrintScreen"},
    {Qt::Key_SysReq, "PrintScreen"},
    {Qt::Key_Pause, "Pause"},
    {Qt::Key_Cancel, "Pause"},
    {Qt::Key_ScrollLock, "Scroll Lock"},
    {Qt::Key_Insert, "Insert"},
    {Qt::Key_PageUp, "PageUp"},
    {Qt::Key_PageDown, "PageDown"},
    {Qt::Key_Right, "RightArrow"},
    {Qt::Key_Left, "LeftArrow"},
    {Qt::Key_Down, "DownArrow"},
    {Qt::Key_Up, "UpArrow"},
    {Qt::Key_NumLock, "Num Lock"},
    {Qt::Key_Super_L, "Windows"},
    {Qt::Key_Super_R, "Windows"},
    {Qt::Key_AltGr, "Alt gr"},
};

namespace XKeysym {
constexpr quint32 Level3Shift = 0xfe03;
constexpr quint32 RightShift = 0xffe2;
constexpr quint32 RightControl = 0xffe4;
constexpr quint32 LeftMeta = 0xffe7; // what Alt becomes under Shift
constexpr quint32 RightMeta = 0xffe8;
constexpr quint32 RightAlt = 0xffea;
} // namespace XKeysym

// Windows names both sides alike, and tells them by position.
namespace Position {
constexpr quint32 RightShift = 0x36;
constexpr quint32 RightControl = 0x11d;
constexpr quint32 RightAlt = 0x138;
} // namespace Position

QString modifierName(const KeyCapture::Pressed &pressed)
{
    const quint32 name = pressed.virtualKey;
    const quint32 position = pressed.position;
    if (name == XKeysym::LeftMeta)
        return QStringLiteral("Alt");
    if (name == XKeysym::RightMeta || name == XKeysym::Level3Shift)
        return QStringLiteral("Alt gr");
    switch (pressed.key) {
    case Qt::Key_Shift:
        return name == XKeysym::RightShift || position == Position::RightShift ? QStringLiteral("Right Shift")
                                                                               : QStringLiteral("Left Shift");
    case Qt::Key_Control:
        return name == XKeysym::RightControl || position == Position::RightControl
                   ? QStringLiteral("Right Ctrl")
                   : QStringLiteral("Left Ctrl");
    case Qt::Key_Alt:
        return name == XKeysym::RightAlt || position == Position::RightAlt ? QStringLiteral("Alt gr")
                                                                           : QStringLiteral("Alt");
    case Qt::Key_Meta:
        return QStringLiteral("Windows");
    default:
        return {};
    }
}

/// The panel sends positions, not letters: with another keyboard layout, the key that was pressed counts.
QString nameAtPosition(quint32 position)
{
    for (const PositionRow &row : Positions) {
        const QLatin1String names(row.names);
        if (position >= row.first && position < row.first + quint32(names.size()))
            return QString(names.at(int(position - row.first)));
    }
    return {};
}

QString characterName(int key)
{
    if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9))
        return QString(QChar(key));
    const int shifted = QLatin1String(Shifted).indexOf(QChar(key));
    if (key < 0x80 && shifted >= 0)
        return QString(QLatin1Char(Unshifted[shifted]));
    return key < 0x80 && QLatin1String(Unshifted).contains(QChar(key)) ? QString(QChar(key)) : QString();
}

/// Only where the numbering is known; 0 elsewhere.
quint32 positionOf(const QKeyEvent &event)
{
    constexpr quint32 xOffset = 8; // X counts from 8 what the kernel, and PC keyboards, count from 0
    const quint32 code = event.nativeScanCode();
    const QString platform = QGuiApplication::platformName();
    if (platform == QLatin1String("windows"))
        return code;
    const bool isX = platform == QLatin1String("xcb") || platform.startsWith(QLatin1String("wayland"));
    return isX && code > xOffset ? code - xOffset : 0;
}

QString nameOfEvent(const QKeyEvent &event)
{
    return KeyCapture::nameOf({event.key(), positionOf(event), event.nativeVirtualKey()});
}

} // namespace

QString KeyCapture::nameOf(const Pressed &pressed)
{
    const QString modifier = modifierName(pressed);
    if (!modifier.isEmpty())
        return modifier;
    for (const NamedKey &named : Named) {
        if (named.key == pressed.key)
            return QString::fromLatin1(named.name);
    }
    if (pressed.key >= Qt::Key_F1 && pressed.key <= Qt::Key_F12)
        return QStringLiteral("F%1").arg(pressed.key - Qt::Key_F1 + 1);
    if (pressed.position == AdditionalKey)
        return {};
    const QString atPosition = nameAtPosition(pressed.position);
    return atPosition.isEmpty() ? characterName(pressed.key) : atPosition;
}

KeyCaptureButton::KeyCaptureButton(QWidget *parent)
    : QPushButton(parent)
{
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QPushButton::toggled, this, &KeyCaptureButton::onToggled);
    retranslate();
}

void KeyCaptureButton::retranslate()
{
    setText(isChecked() ? tr("Press now") : tr("Press keys"));
    setToolTip(tr("Takes the keys that you press together, up to four"));
}

void KeyCaptureButton::cancel()
{
    mNames.clear();
    setChecked(false);
}

bool KeyCaptureButton::event(QEvent *event)
{
    if (!isChecked())
        return QPushButton::event(event);
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        break;
    case QEvent::KeyPress:
        press(*static_cast<QKeyEvent *>(event));
        break;
    case QEvent::KeyRelease:
        release(*static_cast<QKeyEvent *>(event));
        break;
    case QEvent::FocusOut: // the release may never come: the key has opened something of the system
        setChecked(false);
        return QPushButton::event(event);
    default:
        return QPushButton::event(event);
    }
    event->accept();
    return true;
}

void KeyCaptureButton::press(const QKeyEvent &event)
{
    const QString name = nameOfEvent(event);
    if (event.isAutoRepeat() || name.isEmpty() || mHeld.contains(name))
        return;
    mHeld.append(name);
    if (mNames.contains(name) || mNames.size() == KeyCapture::MostKeys)
        return;
    mNames.append(name);
    emit sigPressed(mNames);
}

void KeyCaptureButton::release(const QKeyEvent &event)
{
    if (event.isAutoRepeat())
        return;
    mHeld.removeAll(nameOfEvent(event));
    if (mHeld.isEmpty() && !mNames.isEmpty())
        setChecked(false);
}

void KeyCaptureButton::onToggled(bool on)
{
    retranslate();
    mHeld.clear();
    const QStringList names = std::exchange(mNames, {});
    if (on)
        setFocus();
    else if (names.isEmpty())
        emit sigCancelled();
    else
        emit sigCaptured(names);
}
