/// The dialogs for the care of the panel, opened from the settings page.
#pragma once

class Backups;
class QDialog;
class QWidget;
struct EditorContext;

/// Each opens a dialog over the window of @p pParent and returns at once; the dialog goes away by itself when
/// it is closed, and with @p pParent. @return the dialog; null when it cannot be built, which is logged.
namespace CareDialogs {

/// Before the transfer, the configuration is saved as a safety backup.
QDialog *openFirmwareUpdate(EditorContext &context, Backups &backups, QWidget *pParent);
/// The same for a font file.
QDialog *openFontLibrary(EditorContext &context, Backups &backups, QWidget *pParent);
QDialog *openNetworkSettings(EditorContext &context, QWidget *pParent);

} // namespace CareDialogs
