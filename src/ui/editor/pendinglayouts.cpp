#include "pendinglayouts.h"

#include "base/paths.h"
#include "base/systemsettings.h"
#include "model/customlayouts.h"

#include <QFile>
#include <QStringList>

namespace {

const QLatin1String Key("layouts");

QString fileName()
{
    return vorlindesk::Paths::devConfigFolder() + QStringLiteral("/pendingLayouts.ini");
}

void write(const std::set<int> &layouts)
{
    QStringList ids;
    for (const int id : layouts)
        ids.append(QString::number(id));
    vorlindesk::IniFile(fileName())->setValue(Key, ids.join(QLatin1Char(' ')));
}

} // namespace

PendingLayouts::PendingLayouts()
{
    if (!QFile::exists(fileName()))
        return;
    const QString text = vorlindesk::IniFile(fileName())->value(Key).toString();
    for (const QString &id : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const int layoutId = id.toInt();
        if (layoutId >= vorlinmodel::FirstCustomLayout && layoutId <= vorlinmodel::LargestCustomLayout)
            mUnsent.insert(layoutId);
    }
}

QVector<int> PendingLayouts::ids() const
{
    return QVector<int>(mUnsent.begin(), mUnsent.end());
}

void PendingLayouts::posted(int layoutId)
{
    ++mUnderWay[layoutId];
    if (mUnsent.insert(layoutId).second)
        save();
}

void PendingLayouts::done(int layoutId, bool taken)
{
    const auto underWay = mUnderWay.find(layoutId);
    const bool isLast = underWay == mUnderWay.end() || --underWay->second <= 0;
    if (!isLast)
        return;
    mUnderWay.erase(layoutId);
    if (taken && mUnsent.erase(layoutId) != 0)
        save();
}

void PendingLayouts::save() const
{
    if (!mUnsent.empty() || QFile::exists(fileName()))
        write(mUnsent);
}

void PendingLayouts::saveWhole(const QVector<int> &ids)
{
    std::set<int> all(ids.cbegin(), ids.cend());
    const PendingLayouts known; // what the file says
    all.insert(known.mUnsent.begin(), known.mUnsent.end());
    if (!all.empty())
        write(all);
}
