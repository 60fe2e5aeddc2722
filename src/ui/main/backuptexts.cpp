#include "backuptexts.h"

#include "layoutnames.h"

#include <QCoreApplication>
#include <QFileInfo>

using vorlinmodel::BackupCounts;
using vorlinmodel::BackupInfo;
using vorlinmodel::BackupReason;
using vorlinmodel::PageChange;

namespace {

QString say(const char *text)
{
    return QCoreApplication::translate("BackupTexts", text);
}

} // namespace

QString BackupTexts::madeHow(const BackupInfo &info)
{
    if (!info.isComplete)
        return say(QT_TRANSLATE_NOOP("BackupTexts", "export"));
    switch (info.reason) {
    case BackupReason::Person:
        return say(QT_TRANSLATE_NOOP("BackupTexts", "by hand"));
    case BackupReason::Automatic:
        return say(QT_TRANSLATE_NOOP("BackupTexts", "automatic"));
    case BackupReason::Safety:
        return say(QT_TRANSLATE_NOOP("BackupTexts", "before an import"));
    }
    return {};
}

QString BackupTexts::date(const QDateTime &moment)
{
    return moment.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

QString BackupTexts::counts(const BackupCounts &counts)
{
    return say(QT_TRANSLATE_NOOP("BackupTexts", "Layouts: %1, pages: %2, keys: %3, pictures: %4, videos: %5"))
        .arg(counts.layouts)
        .arg(counts.pages)
        .arg(counts.keys)
        .arg(counts.pictures)
        .arg(counts.videos);
}

/// The name of the layout last: it may hold a "%2".
QString BackupTexts::page(const PageChange &change, const vorlindesk::LanguageManager &language)
{
    constexpr int longestName = 40;
    return say(QT_TRANSLATE_NOOP("BackupTexts", "%1, page %2"))
        .replace(QLatin1String("%2"), QString::number(change.pageId))
        .replace(QLatin1String("%1"), layoutName(change.layoutId, language).simplified().left(longestName));
}

QString BackupTexts::change(const PageChange &change)
{
    QStringList parts;
    const auto add = [&parts](int count, const QString &text) {
        if (count > 0)
            parts.append(text.arg(count));
    };
    add(change.added, say(QT_TRANSLATE_NOOP("BackupTexts", "keys added: %1")));
    add(change.changed, say(QT_TRANSLATE_NOOP("BackupTexts", "changed: %1")));
    add(change.removed, say(QT_TRANSLATE_NOOP("BackupTexts", "removed: %1")));
    return parts.join(QStringLiteral(", "));
}

QString BackupTexts::file(const QString &path)
{
    if (path == QLatin1String("customLayout.ini"))
        return say(QT_TRANSLATE_NOOP("BackupTexts", "Panel layouts"));
    if (path == QLatin1String("multiActions.json"))
        return say(QT_TRANSLATE_NOOP("BackupTexts", "Steps of the multiple actions"));
    if (path == QLatin1String("system.ini"))
        return say(QT_TRANSLATE_NOOP("BackupTexts", "Settings: language, switches, child pages, window"));
    return say(QT_TRANSLATE_NOOP("BackupTexts", "Background picture %1")).arg(QFileInfo(path).fileName());
}
