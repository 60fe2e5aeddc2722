#include "panelreport.h"

#include "model/functionids.h"
#include "wire/crc16.h"
#include "wire/textcodec.h"

#include <QCryptographicHash>
#include <QJsonArray>

namespace {

QJsonObject fileReport(const QByteArray &bytes)
{
    const QByteArray hash = QCryptographicHash::hash(bytes, QCryptographicHash::Sha1);
    return {{QStringLiteral("bytes"), bytes.size()},
            {QStringLiteral("sha1"), QString::fromLatin1(hash.toHex())}};
}

QString contentText(const PanelKey &key)
{
    switch (key.record.functionId) {
    case vorlinmodel::TEXT_OUTPUT_FID:
        return TextCodec::fromOutput(key.content);
    case vorlinmodel::KEY_COMBINATION_FID:
        return keyCombinationText(key.content);
    default:
        return TextCodec::fromUtf8(key.content);
    }
}

QJsonArray actionsReport(const QByteArray &list)
{
    QJsonArray actions;
    for (const ActionList::Action &action : ActionList::decode(list))
        actions << QJsonObject{{QStringLiteral("fid"), action.functionId},
                               {QStringLiteral("delay"), action.delay},
                               {QStringLiteral("url"), action.text}};
    return actions;
}

QJsonObject homeReport(const HomeLayout::Record &home)
{
    QJsonArray entries;
    for (const HomeLayout::Entry &entry : home.entries)
        entries << QJsonArray{entry.keyId, entry.layoutId, entry.pageId, entry.sum};
    return {{QStringLiteral("layout"), home.layoutId}, {QStringLiteral("entries"), entries}};
}

QJsonObject layoutsReport(const PanelState &state)
{
    QJsonObject layouts;
    for (const CustomLayoutRecord::Record &layout : state.layouts) {
        QJsonArray keys;
        for (const CustomLayoutRecord::Key &key : layout.keys)
            keys << QJsonArray{key.first, key.last};
        layouts.insert(QString::number(layout.layoutNumber),
                       QJsonObject{{QStringLiteral("title"), layout.title}, {QStringLiteral("keys"), keys}});
    }
    return layouts;
}

} // namespace

QJsonObject stateReport(const PanelModel &model)
{
    const PanelState &state = model.state();
    QJsonArray keys;
    for (auto key = state.keys.constBegin(); key != state.keys.constEnd(); ++key)
        keys << QJsonArray{key.key().layout, key.key().page, key.key().key, key->record.functionId};
    QJsonObject files;
    for (auto file = state.files.constBegin(); file != state.files.constEnd(); ++file)
        files.insert(file.key(), fileReport(*file));
    return {{QStringLiteral("layout"), state.layout},
            {QStringLiteral("page"), state.page},
            {QStringLiteral("brightness"), state.brightness},
            {QStringLiteral("systemType"), state.systemType},
            {QStringLiteral("home"), homeReport(state.home)},
            {QStringLiteral("layouts"), layoutsReport(state)},
            {QStringLiteral("keys"), keys},
            {QStringLiteral("firmware"), fileReport(state.firmware)},
            {QStringLiteral("configFile"), fileReport(state.configFile)},
            {QStringLiteral("files"), files},
            {QStringLiteral("hardwareVersion"), state.hardwareVersion},
            {QStringLiteral("softwareVersion"), state.softwareVersion},
            {QStringLiteral("reports"), model.journal().reportCount()},
            {QStringLiteral("violations"), model.violations().size()}};
}

QJsonObject keyReport(const PanelState &state, const PanelKeyId &id)
{
    const auto key = state.keys.constFind(id);
    if (key == state.keys.constEnd())
        return {};
    const KeyRecord &record = key->record;
    return {{QStringLiteral("fid"), record.functionId},
            {QStringLiteral("title"), TextCodec::fromGbk(record.title)},
            {QStringLiteral("fontSize"), record.titleFontSize},
            {QStringLiteral("colour"), QJsonArray{record.red, record.green, record.blue}},
            {QStringLiteral("alignment"), record.titleAlignment},
            {QStringLiteral("effects"), record.imageEffects},
            {QStringLiteral("displayMode"), record.displayMode},
            {QStringLiteral("content"), contentText(*key)},
            {QStringLiteral("actions"), actionsReport(key->actions)},
            {QStringLiteral("picture"), fileReport(key->picture)},
            {QStringLiteral("video"), fileReport(key->video)},
            {QStringLiteral("latched"), key->latched}};
}
