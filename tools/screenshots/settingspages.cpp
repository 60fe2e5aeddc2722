#include "settingspages.h"

#include "app/frameworkcontext.h"
#include "base/language.h"
#include "model/ifunctionmanager.h"
#include "photographer.h"
#include "protocol/iprotocolthread.h"
#include "ui_common/filedialog.h"

#include <QFile>
#include <QLineEdit>
#include <QPushButton>

namespace {

/// In the middle of the transfer.
void takeUpgrade(Photographer &photographer, vorlindesk::FrameworkContext &context)
{
    constexpr int pause = 5; // ms between two blocks
    const QString name = QStringLiteral("panel_3_5_0.xft");
    QFile file(name); // in the folder of the program's files, which goes with them
    if (file.open(QIODevice::WriteOnly))
        file.write(QByteArray(50'000, 'f'));
    file.close();
    context.sendRequest(vorlinmodel::RequestKind::SetBlockDelay, pause);
    FileDialog::setAnswer([name](const QString &) { return QStringList(name); });
    photographer.clickNamed("firmwareUpdate");
    photographer.clickNamed("selectButton");
    photographer.clickNamed("upgradeButton");
    FileDialog::setAnswer({});
    const auto isUpgrading = [&context] {
        return context.protocolThread()->isUpgrading();
    };
    photographer.waitUntil(isUpgrading);
    photographer.wait(2000);
    photographer.takeInEachLanguage(*context.languageManager(), "upgrade", "upgradeDialog");
    photographer.waitUntil([&isUpgrading] { return !isUpgrading(); });
    photographer.close("upgradeDialog");
}

/// The group of the backups and the preview of an import, in every language. The last backup differs from the
/// keys of now by two.
void takeBackups(Photographer &photographer, vorlindesk::FrameworkContext &context)
{
    photographer.child<QLineEdit>("backupName")->setText(QStringLiteral("Desk"));
    photographer.clickNamed("createBackup");
    photographer.waitUntil([&] { return photographer.child<QPushButton>("importToHost")->isEnabled(); });
    context.functionManager()->deleteKeyAttribute({1, 1, 4});
    context.functionManager()->setTitle({1, 1, 10}, QStringLiteral("Other"));
    photographer.scrollTo("backupPanel");
    photographer.takeInEachLanguage(*context.languageManager(), "backups");
    constexpr std::pair<int, const char *> languages[] = {
        {1, "restore_preview_zh_s"}, {2, "restore_preview_zh_t"}, {0, "restore_preview"}};
    for (const auto &[value, name] : languages) {
        context.languageManager()->setLanguage(value);
        photographer.clickNamed("importToPanel");
        photographer.waitUntil([] { return QApplication::activeModalWidget() != nullptr; });
        photographer.take(name, *QApplication::activeModalWidget());
        QApplication::activeModalWidget()->close();
    }
}

} // namespace

void takeSettings(Photographer &photographer, vorlindesk::FrameworkContext &context)
{
    vorlindesk::LanguageManager &language = *context.languageManager();
    photographer.clickNamed("mSystemSetBtn");
    photographer.takeInEachLanguage(language, "settings");
    takeBackups(photographer, context);
    photographer.clickNamed("networkSettings");
    photographer.takeInEachLanguage(language, "network", "networkSetDialog");
    photographer.close("networkSetDialog");
    takeUpgrade(photographer, context);
}
