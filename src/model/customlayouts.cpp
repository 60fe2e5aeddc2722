#include "model/customlayouts.h"

#include "base/initext.h"
#include "base/paths.h"
#include "base/systemsettings.h"
#include "customlayoutreading.h"
#include "model/layoutgrouping.h"
#include "model/wholefile.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <algorithm>
#include <bit>
#include <functional>

using vorlindesk::IniFile;

namespace vorlinmodel {

namespace {

constexpr int Columns = 5;

QString fileName()
{
    return vorlindesk::Paths::customLayoutIni();
}

QString groupOf(int layoutId)
{
    return QStringLiteral("layout_%1").arg(layoutId);
}

/// "%1#%2#%3&" for each physical key: its number, row and column, rows and columns counted from 1.
QString physicalKeysOf(quint32 mask)
{
    QString text;
    for (int i = 0; mask >> i != 0; ++i) {
        if ((mask >> i & 1U) != 0)
            text += QStringLiteral("%1#%2#%3&").arg(i + 1).arg(i / Columns + 1).arg(i % Columns + 1);
    }
    return text;
}

void writeGroup(QSettings &settings, const CustomLayout &layout)
{
    settings.setValue(QStringLiteral("num"), layout.keys.size());
    settings.setValue(QStringLiteral("name"), vorlindesk::iniText(layout.name));
    for (int number = 1; number <= layout.keys.size(); ++number) {
        const quint32 mask = layout.keys.at(number - 1).mask;
        settings.setValue(QStringLiteral("phyid_%1").arg(number), physicalKeysOf(mask));
        settings.setValue(QStringLiteral("%1_bitmap").arg(number), QString::number(mask));
    }
    if (layout.background.isEmpty())
        return;
    QStringList pages;
    for (const int page : layout.backgroundPages)
        pages.append(QString::number(page));
    settings.setValue(QStringLiteral("background"), layout.background);
    settings.setValue(QStringLiteral("background_pages"), pages.join(QLatin1Char(' ')));
    settings.setValue(QStringLiteral("background_empty"), layout.backgroundOnEmptyKeys);
}

/// Entries that writeGroup() may leave out, of keys that are no more among them.
void removeOwnEntries(QSettings &settings)
{
    static const QRegularExpression own(
        QStringLiteral("^(phyid_\\d+|\\d+_bitmap|background(_pages|_empty)?)$"));
    for (const QString &key : settings.childKeys()) {
        if (own.match(key).hasMatch())
            settings.remove(key);
    }
}

/// Those of other layouts, too, since the whole file is written anew.
void keepTexts(QSettings &settings)
{
    for (const QString &key : settings.allKeys()) {
        const QVariant text = settings.value(key);
        const QVariant written = vorlindesk::iniText(text.toString());
        // Only those that need it: setting each of them anew takes longer than all the rest.
        if (text.type() == QVariant::String && written.type() != QVariant::String)
            settings.setValue(key, written);
    }
}

/// The settings library goes on handing out what it could not write. So a copy is changed, which takes the
/// place of the file when it is whole.
bool changeFile(const std::function<void(QSettings &settings)> &change)
{
    const IniFile original(fileName()); // keeps a file aside that cannot be parsed
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("customLayout.ini"));
    const bool isThere = QFile::exists(fileName());
    if (!folder.isValid() || (isThere && !QFile::copy(fileName(), copy)))
        return false;
    if (isThere) // the copy of a file that may not be written may not, either
        QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner);
    {
        QSettings settings(copy, QSettings::IniFormat);
        settings.setIniCodec("utf-8");
        keepTexts(settings);
        change(settings);
        settings.sync();
        if (settings.status() == QSettings::AccessError)
            return false;
    }
    QString error;
    const auto bytes = readWholeFile(copy, error);
    vorlindesk::Paths::createPath(vorlindesk::Paths::devConfigFolder());
    return bytes && writeWholeFile(fileName(), *bytes, error);
}

QStringList problemsOf(int layoutId)
{
    IniFile file(fileName());
    QSettings &settings = file.settings();
    if (!settings.childGroups().contains(groupOf(layoutId)))
        return {};
    settings.beginGroup(groupOf(layoutId));
    return readCustomLayoutGroup(settings, layoutId).problems;
}

/// What the settings library does not write again: comments, and bytes that are no UTF-8.
bool holdsMore()
{
    QString error;
    const QByteArray bytes = readWholeFile(fileName(), error).value_or(QByteArray());
    return bytes.startsWith(';') || bytes.contains("\n;") ||
           QString::fromUtf8(bytes).contains(QChar::ReplacementCharacter);
}

bool keepWhatIsOverwritten(int layoutId)
{
    return (problemsOf(layoutId).isEmpty() && !holdsMore()) || keepCustomLayoutFile();
}

} // namespace

CustomLayout customLayoutOf(int layoutId, const QString &name, const LayoutGrouping &grouping)
{
    CustomLayout layout;
    layout.layoutId = layoutId;
    layout.name = name;
    for (const quint32 mask : grouping.masks())
        layout.keys.append({mask, std::countr_zero(mask) + 1, int(std::bit_width(mask))});
    return layout;
}

LayoutGrouping groupingOf(const CustomLayout &layout)
{
    QVector<quint32> masks;
    for (const CustomLayoutKey &key : layout.keys)
        masks.append(key.mask);
    return LayoutGrouping(masks);
}

QVector<int> customLayoutIds()
{
    return customLayoutNames().keys().toVector();
}

QMap<int, QString> customLayoutNames()
{
    QMap<int, QString> names;
    if (!QFile::exists(fileName()))
        return names;
    IniFile file(fileName());
    for (const QString &group : file->childGroups()) {
        const int id = customLayoutIdOf(group);
        if (id != 0)
            names.insert(id, customLayoutName(file->value(group + QStringLiteral("/name"))));
    }
    return names;
}

std::optional<CustomLayout> loadCustomLayout(int layoutId)
{
    IniFile file(fileName());
    QSettings &settings = file.settings();
    if (!settings.childGroups().contains(groupOf(layoutId)))
        return std::nullopt;
    settings.beginGroup(groupOf(layoutId));
    return readCustomLayoutGroup(settings, layoutId).layout;
}

CustomLayouts loadCustomLayouts()
{
    CustomLayouts all;
    if (!QFile::exists(fileName()))
        return all;
    IniFile file(fileName());
    QSettings &settings = file.settings();
    if (settings.status() == QSettings::FormatError)
        all.problems.append(QCoreApplication::translate(
            "CustomLayouts", "Some lines cannot be read. The file as it was is kept beside it."));
    QMap<int, QStringList> problems; // in the order of the ids, which is not that of the groups
    for (const QString &group : settings.childGroups()) {
        const int layoutId = customLayoutIdOf(group);
        if (layoutId != 0) {
            settings.beginGroup(group);
            const CustomLayoutReading reading = readCustomLayoutGroup(settings, layoutId);
            settings.endGroup();
            all.byId.insert(layoutId, reading.layout);
            problems.insert(layoutId, reading.problems);
        } else if (const QString problem = customLayoutGroupProblem(group); !problem.isEmpty()) {
            all.problems.append(problem);
        }
    }
    for (const QStringList &ofLayout : qAsConst(problems))
        all.problems += ofLayout;
    return all;
}

bool saveCustomLayout(const CustomLayout &layout)
{
    return keepWhatIsOverwritten(layout.layoutId) && changeFile([&layout](QSettings &settings) {
               settings.beginGroup(groupOf(layout.layoutId));
               removeOwnEntries(settings);
               writeGroup(settings, layout);
           });
}

bool removeCustomLayout(int layoutId)
{
    return keepWhatIsOverwritten(layoutId) &&
           changeFile([layoutId](QSettings &settings) { settings.remove(groupOf(layoutId)); });
}

} // namespace vorlinmodel
