#include "democonfiguration.h"

#include "demopictures.h"
#include "model/functionids.h"
#include "wire/actionlist.h"
#include "wire/keyrecord.h"
#include "wire/textcodec.h"

#include <QColor>
#include <QDir>
#include <QSaveFile>
#include <QVector>

using namespace vorlinmodel;

namespace {

const QColor Green(0, 255, 0);
const QColor White(255, 255, 255);
const QColor Amber(255, 190, 60);
const QColor Sky(120, 200, 255);

struct DemoKey
{
    int page;
    int key;
    int functionId;
    QString title;
    QString content; ///< path, address, text or key names, by function
    int fontSize = 12;
    QColor colour = White;
    int alignment = AlignBottom;
    int effects = NoEffect;
    int displayMode = NoSelfLocking;
    int landscape = 0; ///< above 0: this one instead of the function's icon
};

QVector<DemoKey> firstPage(const QString &textFile)
{
    return {
        {1, 1, HOME_PAGE_FID, QStringLiteral("Home"), {}},
        {1, 2, OPEN_FILE_FID, QStringLiteral("Read me"), textFile},
        {1, 3, OPEN_WEB_FID, QStringLiteral("Web"), QStringLiteral("https://example.com/"), 12, Sky},
        {1, 4, MULTIPLE_ACTIONS_FID, QStringLiteral("Morning"), {}, 12, Amber},
        {1, 5, TEXT_OUTPUT_FID, QStringLiteral("问候"), QStringLiteral("Hello, 你好!"), 14, Green},
        {1, 6, 5, {}, {}},
        {1, 7, 7, {}, {}},
        {1, 8, 6, {}, {}},
        {1, 9, 8, {}, {}, 12, White, AlignBottom, NoEffect, SelfLocking},
        {1, 10, KEY_COMBINATION_FID, QStringLiteral("Copy"), QStringLiteral("Left Ctrl#C##")},
        {1, 11, CHILDREN_PAGE_FID, QStringLiteral("More"), {}, 14, Amber},
        {1, 12, VIDEO_FID, QStringLiteral("Video"), {}},
        {1, 13, 14, {}, {}},
        {1, 14, 13, {}, {}},
        {1, 15, TEXT_OUTPUT_FID, QStringLiteral("Sign"), QStringLiteral("Kind regards\n此致敬礼"), 12, Sky},
    };
}

QVector<DemoKey> secondPage()
{
    return {
        {2, 1, 9, {}, {}},
        {2, 2, 10, {}, {}},
        {2, 3, 11, QStringLiteral("Back"), {}},
        {2, 4, 12, QStringLiteral("Forward"), {}},
        {2, 6, OPEN_WEB_FID, QStringLiteral("Zoom"), QStringLiteral("https://example.com/zoom"), 14, White,
         AlignCenter, ImageZooming, NoSelfLocking, 1},
        {2, 7, OPEN_WEB_FID, QStringLiteral("Invert"), QStringLiteral("https://example.com/invert"), 14,
         Amber, AlignTop, ColourInversion, NoSelfLocking, 2},
        {2, 8, OPEN_WEB_FID, QStringLiteral("Marquee"), QStringLiteral("https://example.com/marquee"), 14,
         White, AlignBottom, Marquee, NoSelfLocking, 3},
        {2, 9, OPEN_WEB_FID, QStringLiteral("大字"), QStringLiteral("https://example.com/large"), 28, White,
         AlignCenter, NoEffect, NoSelfLocking, 4},
        {2, 10, OPEN_WEB_FID, QStringLiteral("Two\nlines"), QStringLiteral("https://example.com/lines"), 16,
         White, AlignTop, NoEffect, NoSelfLocking, 5},
        {2, 15, KEY_COMBINATION_FID, QStringLiteral("Lock"), QStringLiteral("Windows#L##"), 12, Green,
         AlignBottom, NoEffect, SelfLocking},
    };
}

/// Opened by key 11 of the first page.
QVector<DemoKey> childPage()
{
    constexpr int page = 12;
    return {
        {page, 1, TEXT_OUTPUT_FID, QStringLiteral("地址"), QStringLiteral("北京市海淀区中关村大街1号"), 14,
         Green},
        {page, 2, KEY_COMBINATION_FID, QStringLiteral("Paste"), QStringLiteral("Left Ctrl#V##")},
        {page, 3, OPEN_WEB_FID, QStringLiteral("Search"), QStringLiteral("https://example.com/search"), 12,
         Sky},
        {page, 15, RETURN_MAIN_FID, QStringLiteral("Return"), {}, 12, Amber},
    };
}

QByteArray contentBytes(const DemoKey &demo)
{
    switch (demo.functionId) {
    case TEXT_OUTPUT_FID:
        return TextCodec::toOutput(demo.content);
    case KEY_COMBINATION_FID:
        return keyCombinationCodes(demo.content);
    default:
        return demo.content.toUtf8();
    }
}

QByteArray demoActions()
{
    const auto step = [](int functionId, quint16 delay, const QString &text) {
        return ActionList::Action{static_cast<qint8>(functionId), delay, text};
    };
    return ActionList::encode({step(OPEN_WEB_FID, 0, QStringLiteral("https://example.com/news")),
                               step(TIME_DELAY_FID, 500, {}),
                               step(TEXT_OUTPUT_FID, 0, QStringLiteral("早上好")),
                               step(KEY_COMBINATION_FID, 0, QStringLiteral("Enter###")), step(5, 0, {})})
        .value;
}

PanelKey keyOf(const PanelKeyId &id, const DemoKey &demo)
{
    PanelKey key = newPanelKey(id, static_cast<quint8>(demo.functionId));
    key.record.title = TextCodec::toGbk(demo.title);
    key.record.titleFontSize = static_cast<quint8>(demo.fontSize);
    key.record.red = static_cast<quint8>(demo.colour.red());
    key.record.green = static_cast<quint8>(demo.colour.green());
    key.record.blue = static_cast<quint8>(demo.colour.blue());
    key.record.titleAlignment = static_cast<quint8>(demo.alignment);
    key.record.imageEffects = static_cast<quint8>(demo.effects);
    key.record.displayMode = static_cast<quint8>(demo.displayMode);
    setContent(key, contentBytes(demo));
    key.picture =
        demo.landscape > 0 ? demoLandscape(demo.landscape) : demoIcon(demo.functionId, !demo.title.isEmpty());
    if (demo.functionId == MULTIPLE_ACTIONS_FID)
        key.actions = demoActions();
    if (demo.functionId == VIDEO_FID)
        key.video = demoVideo();
    return key;
}

} // namespace

PanelState demoState(const QString &textFile)
{
    PanelState state;
    for (const DemoKey &demo : firstPage(textFile) + secondPage() + childPage()) {
        const PanelKeyId id{StandardLayout, demo.page, demo.key};
        state.keys.insert(id, keyOf(id, demo));
    }
    return state;
}

QString writeDemoTextFile(const QString &folder)
{
    QSaveFile file(QDir(folder).filePath(QStringLiteral("panel-demo.txt")));
    if (!file.open(QIODevice::WriteOnly))
        return folder;
    file.write("This file was opened by a key of the virtual panel.\n");
    return file.commit() ? file.fileName() : folder;
}
