/// Takes the pictures of the documentation: shows the real window, with the demonstration of the virtual
/// panel behind it, uses it by mouse and keys, and saves what it looks like.
///
/// Usage: screenshots FOLDER [SUFFIX]   with VIRTUAL_PANEL_PORT set to a free port. SUFFIX goes behind each
/// file's name.
#include "app/frameworkcontext.h"
#include "base/language.h"
#include "base/systemsettings.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "panel_app/democonfiguration.h"
#include "panel_link/panelserver.h"
#include "photographer.h"
#include "picturepages.h"
#include "settingspages.h"
#include "ui_editor/functionconfigwidget.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QWidget>
#include <cstdio>

namespace {

constexpr QSize SmallestSize(1024, 640);
constexpr QSize LargeSize(1920, 1080);
constexpr int MultiActionKey = 4; // of the demonstration
constexpr int CombinationKey = 10;
constexpr int ChildPageKey = 11;

QWidget *mainWindow()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QLatin1String("mainwindow"))
            return widget;
    }
    return nullptr;
}

void takeAll(Photographer &photographer, vorlindesk::FrameworkContext &context, const QStringList &photos)
{
    vorlindesk::LanguageManager &language = *context.languageManager();
    photographer.resize(SmallestSize);
    photographer.click(photographer.key(CombinationKey));
    photographer.takeInEachLanguage(language, "main");
    photographer.click(photographer.key(5));
    photographer.take("attributes_text");
    photographer.click(photographer.key(12));
    photographer.take("attributes_video");
    photographer.click(photographer.key(MultiActionKey), true);
    photographer.take("multi_action");
    photographer.clickNamed("return");
    photographer.click(photographer.key(ChildPageKey), true);
    photographer.take("child_page");
    photographer.click(photographer.key(vorlinmodel::LastKeyId), true); // its key "Return"
    takeLayouts(photographer, language, photos.at(0));
    takePictureUpload(photographer, language, photos.at(1));
    photographer.clickNamed("mFuncSetBtn");
    photographer.resize(LargeSize);
    photographer.take("main_large");
    photographer.resize(SmallestSize);
    takeSettings(photographer, context); // last: the panel restarts behind an upgrade
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: screenshots FOLDER [SUFFIX]\n");
        return 2;
    }
    const QString pictures = QString::fromLocal8Bit(argv[1]);
    const QString suffix = argc > 2 ? QString::fromLocal8Bit(argv[2]) : QString();
    LinkOptions options;
    options.port = static_cast<std::uint16_t>(qEnvironmentVariableIntValue("VIRTUAL_PANEL_PORT"));
    PanelServer server(options);
    const QTemporaryDir folder;
    server.withModel(
        [&folder](PanelModel &model) { model.setState(demoState(writeDemoTextFile(folder.path()))); });
    vorlindesk::FrameworkContext context;
    if (!server.start() || !context.start(argc, argv, folder.path())) {
        std::fprintf(stderr, "cannot start: is the port in VIRTUAL_PANEL_PORT free?\n");
        return 1;
    }
    const QStringList photos = makePhotos(folder.path());
    QWidget *window = mainWindow();
    window->show();
    Photographer photographer(*window, pictures, suffix);
    fillGallery(photographer, photos);
    const vorlinmodel::key_id_t lastKey{1, 12, vorlinmodel::LastKeyId}; // of the demonstration
    const auto isRead = [&] {
        return context.functionManager()->getKeyAttribute(lastKey) &&
               !context.functionManager()->getModeFlag() &&
               window->findChild<FunctionConfigWidget *>()->isEnabled();
    };
    if (!photographer.waitUntil(isRead)) {
        std::fprintf(stderr, "the panel was not read\n");
        return 1;
    }
    photographer.wait(3000); // the end of the read
    takeAll(photographer, context, photos);
    return photographer.failed() ? 1 : 0;
}
