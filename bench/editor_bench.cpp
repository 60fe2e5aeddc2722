/// The figures of the editor: the whole program in this process, and the virtual panel's server beside it.
/// Run it through scripts/bench, on an X display.
#include "app/frameworkcontext.h"
#include "base/log.h"
#include "base/paths.h"
#include "model/ifunctionmanager.h"
#include "panel_link/panelserver.h"
#include "ui_editor/functionconfigwidget.h"
#include "ui_editor/keyboardwidget.h"
#include "ui_editor/keywidget.h"
#include "ui_editor/vorlinmimedata.h"

#include <QApplication>
#include <QDataStream>
#include <QDropEvent>
#include <QImage>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <thread>
#include <vector>

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;
using vorlinmodel::key_id_t;

namespace {

constexpr int Redraws = 200;
constexpr int Drops = 200;
constexpr int Turns = 60;
constexpr auto Patience = 60s;
constexpr QSize PictureSize(180, 168);

/// Counts the cells that have been painted since it was set back.
class PaintWatch : public QObject
{
public:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && qobject_cast<KeyWidget *>(object))
            mPainted.insert(object);
        return false;
    }
    void restart() { mPainted.clear(); }
    bool isWhole() const { return mPainted.size() >= vorlinmodel::LastKeyId; }

private:
    QSet<QObject *> mPainted;
};

template <typename Condition>
bool waitFor(Condition condition)
{
    const auto limit = Clock::now() + Patience;
    while (!condition() && Clock::now() < limit)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    return condition();
}

void print(const char *what, std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    std::printf("%s, %d times: median %.2f ms, 99th percentile %.2f ms, longest %.2f ms\n", what,
                int(times.size()), times[times.size() / 2], times[times.size() * 99 / 100], times.back());
}

void fillStore(vorlinmodel::IFunctionManager &store, const QString &folder)
{
    for (int page = 1; page <= vorlinmodel::MaxPage; ++page) {
        for (int kid = vorlinmodel::FirstKeyId; kid <= vorlinmodel::LastKeyId; ++kid) {
            QImage picture(PictureSize, QImage::Format_RGB32);
            std::generate_n(reinterpret_cast<quint32 *>(picture.bits()), picture.width() * picture.height(),
                            [] { return QRandomGenerator::global()->generate(); });
            const QString path = QStringLiteral("%1/%2_%3.png").arg(folder).arg(page).arg(kid);
            picture.save(path, "PNG");
            const key_id_t key{1, page, kid};
            store.addKeyAttribute(key, 5);
            store.setCustomImage(key, path);
            store.setTitle(key, QStringLiteral("Key %1").arg(kid));
        }
    }
}

KeyboardWidget *visibleGrid(const QWidget &page)
{
    for (KeyboardWidget *grid : page.findChildren<KeyboardWidget *>()) {
        if (grid->isVisible())
            return grid;
    }
    return nullptr;
}

void measureRedraw(KeyboardWidget &grid, PaintWatch &watch)
{
    std::vector<double> times;
    for (int i = 0; i < Redraws; ++i) {
        watch.restart();
        const auto start = Clock::now();
        grid.updateAllIcons();
        for (KeyWidget *cell : grid.cells())
            cell->update(); // also those whose picture has not changed
        waitFor([&] { return watch.isWhole(); });
        times.push_back(Milliseconds(Clock::now() - start).count());
    }
    print("redraw of a page of 15 keys with pictures", times);
}

double turn(QPushButton &button, PaintWatch &watch)
{
    watch.restart();
    const auto start = Clock::now();
    button.click();
    waitFor([&] { return watch.isWhole(); });
    return Milliseconds(Clock::now() - start).count();
}

void measurePageSwitch(const QWidget &page, PaintWatch &watch)
{
    auto *next = page.findChild<QPushButton *>(QStringLiteral("nextPage"));
    auto *previous = page.findChild<QPushButton *>(QStringLiteral("prevPage"));
    std::vector<double> first;
    for (int i = 1; i < vorlinmodel::MaxPage; ++i)
        first.push_back(turn(*next, watch));
    print("page switch, first time", first);
    std::vector<double> built;
    for (int i = 0; i < Turns; ++i)
        built.push_back(turn(i % 2 == 0 ? *previous : *next, watch));
    print("page switch, page already built", built);
}

void measureDrop(PanelServer &server, KeyWidget &cell)
{
    std::vector<double> times;
    for (int i = 0; i < Drops; ++i) {
        QByteArray bytes;
        QDataStream(&bytes, QIODevice::WriteOnly) << qint32(5 + i % 5);
        QMimeData data;
        data.setData(QString::fromLatin1(DragFormat::FunctionId), bytes);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        const auto quiet = std::chrono::milliseconds(QRandomGenerator::global()->bounded(150, 250));
        waitFor([&] {
            return Clock::now() - server.lastReport() > quiet;
        }); // out of step with the program's loop
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&cell, &enter); // whoever is entered is the target of the drop
        const auto start = Clock::now();
        QCoreApplication::sendEvent(&cell, &drop);
        while (server.lastReport() <= start && Clock::now() - start < Patience)
            std::this_thread::sleep_for(20us);
        times.push_back(Milliseconds(server.lastReport() - start).count());
    }
    print("drop to first report", times);
}

} // namespace

int main(int argc, char *argv[])
{
    LinkOptions options;
    options.port = static_cast<std::uint16_t>(qEnvironmentVariableIntValue("VIRTUAL_PANEL_PORT"));
    PanelServer server(options);
    const QTemporaryDir folder;
    vorlindesk::FrameworkContext context;
    if (!server.start() || !context.start(argc, argv, folder.path())) {
        std::fprintf(stderr, "cannot start: is the port in VIRTUAL_PANEL_PORT free?\n");
        return 1;
    }
    QWidget *window = nullptr;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QLatin1String("mainwindow"))
            window = widget;
    }
    window->resize(1280, 800);
    window->show();
    const auto *page = window->findChild<FunctionConfigWidget *>();
    // An empty panel is read within a few seconds of the start; the editor is disabled meanwhile.
    waitFor([start = Clock::now()] { return Clock::now() - start > 8s; });
    fillStore(*context.functionManager(), folder.path());
    PaintWatch watch;
    qApp->installEventFilter(&watch);
    KeyboardWidget *grid = visibleGrid(*page);
    measureRedraw(*grid, watch);
    measurePageSwitch(*page, watch);
    measureDrop(server, *visibleGrid(*page)->cell(1));
    return 0;
}
