#include "settingspages.h"

#include "app/frameworkcontext.h"
#include "base/language.h"
#include "photographer.h"
#include "protocol/iprotocolthread.h"
#include "ui_common/filedialog.h"

#include <QFile>

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

} // namespace

void takeSettings(Photographer &photographer, vorlindesk::FrameworkContext &context)
{
    vorlindesk::LanguageManager &language = *context.languageManager();
    photographer.clickNamed("mSystemSetBtn");
    photographer.takeInEachLanguage(language, "settings");
    photographer.clickNamed("networkSettings");
    photographer.takeInEachLanguage(language, "network", "networkSetDialog");
    photographer.close("networkSetDialog");
    takeUpgrade(photographer, context);
}
