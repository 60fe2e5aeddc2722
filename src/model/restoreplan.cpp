#include "restoreplan.h"

#include "model/configbackup.h"
#include "model/multiaction.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

namespace vorlinmodel {

namespace {

constexpr char MultiActionsJson[] = "multiActions.json";

key_id_t idOf(const PagePayload &page)
{
    return {page.layoutId, page.pageId, 0};
}

key_id_t idOf(const KeyRecord &record)
{
    return {record.layoutId, record.pageId, record.keyId};
}

bool hasPage(const Script &script, const key_id_t &id)
{
    return std::any_of(script.pages.begin(), script.pages.end(),
                       [&id](const PagePayload &page) { return idOf(page) == id; });
}

bool isScriptDamaged(const BackupContent &backup)
{
    return std::any_of(backup.damaged.begin(), backup.damaged.end(), [](const QString &name) {
        return name.startsWith(QLatin1String(ConfigBackup::ScriptFileName));
    });
}

/// Adds the pages of @p present that @p script lacks. @return whether there were any.
bool addMissingPages(Script &script, const Script &present)
{
    bool added = false;
    for (const PagePayload &page : present.pages) {
        if (hasPage(script, idOf(page)))
            continue;
        added = true;
        script.pages.append(page);
        for (const KeyRecord &record : page.records)
            script.keys.insert(idOf(record), present.keys.value(idOf(record)));
    }
    std::sort(script.pages.begin(), script.pages.end(),
              [](const PagePayload &one, const PagePayload &other) { return idOf(one) < idOf(other); });
    return added;
}

// As the store of the action lists writes it.
QByteArray multiActionsOf(const Script &script)
{
    QJsonArray entries;
    for (auto it = script.keys.begin(); it != script.keys.end(); ++it) {
        if (!it->actions.isEmpty())
            entries.append(MultiActionStore::toJson(MultiActionEntry{it.key(), it->actions}));
    }
    return entries.isEmpty() ? QByteArray()
                             : QJsonDocument(QJsonObject{{QStringLiteral("keyInfo"), entries}}).toJson();
}

struct KeyContent
{
    KeyRecord record;
    ScriptKey extra;
    bool operator==(const KeyContent &) const = default;
};

// What a person would call the key. The picture that the panel gets follows from the rest.
QMap<key_id_t, KeyContent> contentOf(const Script &script)
{
    QMap<key_id_t, KeyContent> keys;
    for (const PagePayload &page : script.pages) {
        for (const KeyRecord &record : page.records) {
            ScriptKey extra = script.keys.value(idOf(record));
            if (!extra.customImage || !extra.pictureFile.isEmpty() || !extra.resource.isEmpty())
                extra.picture.clear();
            keys.insert(idOf(record), {record, extra});
        }
    }
    return keys;
}

QVector<PageChange> pageChanges(const Script &before, const Script &after)
{
    const QMap<key_id_t, KeyContent> old = contentOf(before);
    const QMap<key_id_t, KeyContent> now = contentOf(after);
    QMap<key_id_t, PageChange> changes;
    const auto pageOf = [&changes](const key_id_t &key) -> PageChange & {
        PageChange &change = changes[{key.lid, key.pageid, 0}];
        change.layoutId = key.lid;
        change.pageId = key.pageid;
        return change;
    };
    for (auto it = now.begin(); it != now.end(); ++it) {
        const auto was = old.find(it.key());
        if (was == old.end())
            ++pageOf(it.key()).added;
        else if (!(*was == *it))
            ++pageOf(it.key()).changed;
    }
    for (auto it = old.begin(); it != old.end(); ++it) {
        if (!now.contains(it.key()))
            ++pageOf(it.key()).removed;
    }
    return changes.values().toVector();
}

QStringList fileChanges(const QMap<QString, QByteArray> &before, const QMap<QString, QByteArray> &after)
{
    QStringList changed;
    for (auto it = after.begin(); it != after.end(); ++it) {
        if (!before.contains(it.key()) || before.value(it.key()) != it.value())
            changed.append(it.key());
    }
    for (auto it = before.begin(); it != before.end(); ++it) {
        if (!after.contains(it.key()))
            changed.append(it.key());
    }
    changed.sort();
    return changed;
}

} // namespace

RestorePlan planRestore(const BackupContent &backup, const BackupContent &present, const BackupWatch &watch)
{
    RestorePlan plan{backup.script, backup.scriptBytes, backup.files};
    const bool isComplete = backup.info.isComplete;
    const bool keptPages = isScriptDamaged(backup) && addMissingPages(plan.script, present.script);
    if (isScriptDamaged(backup))
        plan.scriptBytes = encodeScript(plan.script, watch);
    // The steps of the pages that stay are in none of the two files alone.
    if (keptPages || !plan.files.contains(QLatin1String(MultiActionsJson)))
        plan.files.insert(QLatin1String(MultiActionsJson), multiActionsOf(plan.script));
    for (auto it = present.files.begin(); it != present.files.end(); ++it) {
        const bool stays = !isComplete || backup.damaged.contains(it.key());
        if (stays && !plan.files.contains(it.key()))
            plan.files.insert(it.key(), it.value());
    }
    return plan;
}

RestorePreview previewRestore(const BackupContent &backup, const BackupContent &present,
                              const BackupWatch &watch)
{
    const RestorePlan plan = planRestore(backup, present, watch);
    return {backup.info, pageChanges(present.script, plan.script), fileChanges(present.files, plan.files),
            backup.damaged, present.leftOut};
}

} // namespace vorlinmodel
