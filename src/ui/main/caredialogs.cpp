#include "caredialogs.h"

#include "backups.h"
#include "base/iframeworkcontext.h"
#include "base/log.h"
#include "logtext.h"
#include "networkdialog.h"
#include "ui_editor/editorcontext.h"
#include "upgradedialog.h"

namespace {

/// Sets up and shows @p pDialog, which belongs to its parent.
template <class Dialog>
QDialog *show(Dialog *pDialog)
{
    if (!pDialog->setup()) {
        vorlindesk::Log(vorlindesk::LogLevel::Error, LogText::SetupDialogError,
                        qUtf8Printable(pDialog->objectName()));
        delete pDialog;
        return nullptr;
    }
    pDialog->setAttribute(Qt::WA_DeleteOnClose);
    pDialog->open();
    return pDialog;
}

QDialog *showUpgrade(EditorContext &context, Backups &backups, QWidget *pParent, HIDUpgradeDialog::Mode mode)
{
    auto *dialog = new HIDUpgradeDialog(context.framework, pParent->window(), mode);
    dialog->setBackup([&backups, dialog](HIDUpgradeDialog::BackedUp done) {
        const QString obstacle = backups.obstacle();
        const bool begun = backups.createSafety(dialog, [done](const auto &result) {
            QStringList lacks = result.leftOut;
            if (!result.error.isEmpty())
                lacks.prepend(result.error);
            done({result.folder, lacks});
        });
        return begun ? QString() : obstacle;
    });
    return show(dialog);
}

} // namespace

QDialog *CareDialogs::openFirmwareUpdate(EditorContext &context, Backups &backups, QWidget *pParent)
{
    return showUpgrade(context, backups, pParent, HIDUpgradeDialog::Mode::Firmware);
}

QDialog *CareDialogs::openFontLibrary(EditorContext &context, Backups &backups, QWidget *pParent)
{
    return showUpgrade(context, backups, pParent, HIDUpgradeDialog::Mode::FontFile);
}

QDialog *CareDialogs::openNetworkSettings(EditorContext &context, QWidget *pParent)
{
    return show(new NetworkSetDialog(context.framework, pParent->window()));
}
