#include "caredialogs.h"

#include "base/iframeworkcontext.h"
#include "base/log.h"
#include "logtext.h"
#include "model/ifunctionmanager.h"
#include "model/profiles.h"
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

QDialog *showUpgrade(EditorContext &context, QWidget *pParent, HIDUpgradeDialog::Mode mode)
{
    auto *dialog = new HIDUpgradeDialog(context.framework, pParent->window(), mode);
    const vorlinmodel::IFunctionManager &store = context.edits.store();
    dialog->setBackup([&store, directory = store.getProfileDirectory()](const std::atomic<bool> &cancelled) {
        using namespace vorlinmodel;
        const BackupWatch watch({}, &cancelled);
        return Profiles::create(directory, store, BackupReason::Safety, {}, watch).folder;
    });
    return show(dialog);
}

} // namespace

QDialog *CareDialogs::openFirmwareUpdate(EditorContext &context, QWidget *pParent)
{
    return showUpgrade(context, pParent, HIDUpgradeDialog::Mode::Firmware);
}

QDialog *CareDialogs::openFontLibrary(EditorContext &context, QWidget *pParent)
{
    return showUpgrade(context, pParent, HIDUpgradeDialog::Mode::FontFile);
}

QDialog *CareDialogs::openNetworkSettings(EditorContext &context, QWidget *pParent)
{
    return show(new NetworkSetDialog(context.framework, pParent->window()));
}
