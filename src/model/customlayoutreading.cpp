#include "customlayoutreading.h"

#include "model/keyid.h"
#include "model/layoutgrouping.h"

#include <QCoreApplication>
#include <QSettings>
#include <QVariant>
#include <algorithm>
#include <bit>

namespace vorlinmodel {

namespace {

const QLatin1String GroupPrefix("layout_");

/// A plain function tr() would put its texts into the context of whoever calls it, where nobody looks for
/// them.
struct LayoutText
{
    Q_DECLARE_TR_FUNCTIONS(CustomLayouts)
};

/// A hand-written text with a comma in it is read as a list.
QString textOf(const QVariant &value)
{
    return value.type() == QVariant::StringList ? value.toStringList().join(QLatin1String(", "))
                                                : value.toString();
}

/// First number of an item "%1#%2#%3": the physical key.
int physicalKeyOf(const QString &item)
{
    const int key = item.section(QLatin1Char('#'), 0, 0).toInt();
    return key >= FirstKeyId && key <= LastKeyId ? key : 0;
}

quint32 maskOf(const QStringList &items)
{
    quint32 mask = 0;
    for (const QString &item : items) {
        const int key = physicalKeyOf(item);
        mask |= key == 0 ? 0 : 1U << (key - 1);
    }
    return mask;
}

class GroupReader
{
public:
    GroupReader(const QSettings &settings, int layoutId)
        : mSettings(settings)
    {
        mReading.layout.layoutId = layoutId;
        mReading.layout.name = text(QStringLiteral("name"));
    }

    CustomLayoutReading read()
    {
        const int count = readCount();
        for (int number = 1; number <= count; ++number)
            readKey(number);
        while (!mIsCountValid && !mReading.layout.keys.isEmpty() &&
               mReading.layout.keys.last() == CustomLayoutKey())
            mReading.layout.keys.removeLast();
        readBackground();
        return mReading;
    }

private:
    QString text(const QString &key) const { return textOf(mSettings.value(key)); }

    /// @p what begins in lower case and ends without a full stop.
    void addProblem(const QString &what)
    {
        const CustomLayout &layout = mReading.layout;
        mReading.problems.append(
            layout.name.isEmpty()
                ? LayoutText::tr("Layout %1: %2.").arg(layout.layoutId).arg(what)
                : LayoutText::tr("Layout %1 (%2): %3.").arg(layout.layoutId).arg(layout.name, what));
    }

    int readCount()
    {
        const QString written = text(QStringLiteral("num"));
        bool isNumber = false;
        const int count = written.trimmed().toInt(&isNumber);
        mIsCountValid = isNumber && count >= FirstKeyId && count <= LastKeyId;
        if (written.isEmpty())
            addProblem(LayoutText::tr("the number of its keys is missing"));
        else if (!mIsCountValid)
            addProblem(LayoutText::tr("the number of its keys is \"%1\", not 1 to 15").arg(written.left(20)));
        return mIsCountValid ? count : LastKeyId; // else as many as there are
    }

    void readKey(int number)
    {
        const QString bitmap = text(QStringLiteral("%1_bitmap").arg(number));
        const QStringList items =
            text(QStringLiteral("phyid_%1").arg(number)).split(QLatin1Char('&'), Qt::SkipEmptyParts);
        CustomLayoutKey key;
        key.mask = readMask(number, bitmap, items.isEmpty());
        if (!items.isEmpty()) {
            key.firstPhysical = physicalKeyOf(items.first());
            key.lastPhysical = physicalKeyOf(items.last());
        } else if (key.mask != 0) {
            key.firstPhysical = std::countr_zero(key.mask) + 1;
            key.lastPhysical = int(std::bit_width(key.mask));
        }
        if (key.mask != 0 && items.isEmpty())
            addProblem(LayoutText::tr("key %1 does not name its physical keys, so those of its bitmap count")
                           .arg(number));
        else if (key.mask != 0 && maskOf(items) != key.mask)
            addProblem(LayoutText::tr("the physical keys of key %1 differ from its bitmap").arg(number));
        mReading.layout.keys.append(key);
    }

    /// @return 0 when the key has to stay empty.
    quint32 readMask(int number, const QString &bitmap, bool hasNoItems)
    {
        bool isNumber = false;
        const quint32 mask = bitmap.trimmed().toUInt(&isNumber);
        if (bitmap.isEmpty()) {
            if (mIsCountValid || !hasNoItems) // else the count is what is wrong
                addProblem(LayoutText::tr("key %1 has no bitmap").arg(number));
            return 0;
        }
        if (!isNumber || !isRectangle(mask)) {
            addProblem(LayoutText::tr("the physical keys of key %1 form no rectangle").arg(number));
            return 0;
        }
        const int other = overlappedBy(mask);
        if (other != 0) {
            addProblem(LayoutText::tr("key %1 overlaps key %2").arg(number).arg(other));
            return 0;
        }
        return mask;
    }

    int overlappedBy(quint32 mask) const
    {
        const QVector<CustomLayoutKey> &keys = mReading.layout.keys;
        const auto other = std::find_if(keys.cbegin(), keys.cend(), [mask](const CustomLayoutKey &key) {
            return (key.mask & mask) != 0;
        });
        return other == keys.cend() ? 0 : int(other - keys.cbegin()) + 1;
    }

    void readBackground()
    {
        CustomLayout &layout = mReading.layout;
        const QString file = text(QStringLiteral("background"));
        // A name, not a path: the file may come from elsewhere.
        if (file.isEmpty() || file.contains(QLatin1Char('/')) || file.contains(QLatin1Char('\\')))
            return;
        layout.background = file;
        layout.backgroundOnEmptyKeys = mSettings.value(QStringLiteral("background_empty"), true).toBool();
        const QString pages = mSettings.value(QStringLiteral("background_pages")).toString();
        for (const QString &page : pages.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const int number = page.toInt();
            if (number >= 1 && number <= MaxPage && !layout.backgroundPages.contains(number))
                layout.backgroundPages.append(number);
        }
        std::sort(layout.backgroundPages.begin(), layout.backgroundPages.end());
    }

    const QSettings &mSettings;
    CustomLayoutReading mReading;
    bool mIsCountValid = false;
};

} // namespace

CustomLayoutReading readCustomLayoutGroup(const QSettings &settings, int layoutId)
{
    return GroupReader(settings, layoutId).read();
}

int customLayoutIdOf(const QString &group)
{
    const int id = group.startsWith(GroupPrefix) ? group.mid(GroupPrefix.size()).toInt() : 0;
    const bool isCustom = id >= FirstCustomLayout && id <= LargestCustomLayout;
    return isCustom && group == GroupPrefix + QString::number(id) ? id : 0; // not "layout_04"
}

QString customLayoutGroupProblem(const QString &group)
{
    const bool isMeant = group.startsWith(GroupPrefix, Qt::CaseInsensitive);
    return isMeant && customLayoutIdOf(group) == 0
               ? LayoutText::tr("Group \"%1\" is left out: layouts have the numbers %2 to %3.")
                     .arg(group.left(40), QString::number(FirstCustomLayout),
                          QString::number(LargestCustomLayout))
               : QString();
}

QString customLayoutName(const QVariant &entry)
{
    return textOf(entry);
}

} // namespace vorlinmodel
