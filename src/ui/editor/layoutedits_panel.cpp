// Custom layouts and the panel: what it has not taken, and what it sends.
#include "base/iframeworkcontext.h"
#include "base/paths.h"
#include "keyedits.h"
#include "layoutedits.h"
#include "model/layoutgrouping.h"
#include "wire/customlayout.h"
#include "wire/textcodec.h"

#include <QFileInfo>

using vorlinmodel::CustomLayout;
using vorlinmodel::CustomLayoutKey;
using vorlinmodel::RequestKind;

namespace {

constexpr int Columns = 5;
constexpr int AnyPage = 1; // these requests have no page, yet their log line has

/// @return the physical keys between two corners as bits; 0 when these are none.
quint32 rectangleOf(const CustomLayoutRecord::Key &key)
{
    const auto isPhysicalKey = [](int number) {
        return number >= vorlinmodel::FirstKeyId && number <= vorlinmodel::LastKeyId;
    };
    if (!isPhysicalKey(key.first) || !isPhysicalKey(key.last))
        return 0;
    quint32 mask = 0;
    for (int row = (key.first - 1) / Columns; row <= (key.last - 1) / Columns; ++row)
        for (int column = (key.first - 1) % Columns; column <= (key.last - 1) % Columns; ++column)
            mask |= 1U << (row * Columns + column);
    return mask;
}

/// @return nothing when the record makes no layout.
std::optional<CustomLayout> layoutOf(const CustomLayoutRecord::Record &record)
{
    CustomLayout layout;
    layout.layoutId = record.layoutNumber;
    layout.name = record.title;
    quint32 covered = 0;
    for (const CustomLayoutRecord::Key &key : record.keys) {
        const quint32 mask = rectangleOf(key);
        if (mask == 0 || (covered & mask) != 0)
            return std::nullopt;
        covered |= mask;
        layout.keys.append({mask, key.first, key.last});
    }
    const bool isId = layout.layoutId >= vorlinmodel::FirstCustomLayout &&
                      layout.layoutId <= vorlinmodel::LargestCustomLayout;
    return isId && !layout.keys.isEmpty() ? std::make_optional(layout) : std::nullopt;
}

/// The panel holds no more of a title than fits.
QString titleOnPanel(const QString &name)
{
    return TextCodec::fromGbk(TextCodec::toGbk(name, CustomLayoutRecord::TitleArea));
}

/// What ours has and a panel cannot tell: the end of a long title, characters that GBK lacks, the background.
CustomLayout completedBy(const CustomLayout &sent, const std::optional<CustomLayout> &ours)
{
    if (!ours || ours->keys != sent.keys)
        return sent;
    CustomLayout layout = *ours;
    if (titleOnPanel(ours->name) != sent.name)
        layout.name = sent.name;
    return layout;
}

} // namespace

bool LayoutEdits::isPending(int layoutId) const
{
    return mPending.contains(layoutId);
}

void LayoutEdits::requestDone(int layoutId, bool taken)
{
    mPending.done(layoutId, taken);
    if (taken)
        mUnseen.remove(layoutId); // the panel has it now
    emit sigPendingChanged();
}

void LayoutEdits::post(int layoutId)
{
    const QFileInfo file(vorlindesk::Paths::customLayoutIni());
    const bool isUnreadable = file.exists() && !file.isReadable(); // then it is not deleted
    const bool isThere = isUnreadable || vorlinmodel::loadCustomLayout(layoutId).has_value();
    mPending.posted(layoutId);
    mEdits.context().sendRequest(isThere ? RequestKind::MD_FUNCTION_CODE_CUSTOMLAYOUT_SET
                                         : RequestKind::MD_FUNCTION_CODE_CUSTOMLAYOUT_DEL,
                                 layoutId, AnyPage);
    emit sigPendingChanged();
}

void LayoutEdits::sendPending()
{
    for (const int layoutId : mPending.ids())
        post(layoutId);
}

void LayoutEdits::replaced(const QVector<int> &changed)
{
    mReadRest.stop(); // what the panel has sent so far is no reason to remove one of the new layouts
    mUnseen.clear();
    savePending();
    for (const int layoutId : changed)
        post(layoutId);
    emit sigLayoutsChanged();
}

void LayoutEdits::setHomeLayout(int layoutId)
{
    mEdits.context().sendRequest(RequestKind::MD_FUNCTION_CODE_HOME_LAYOUT, layoutId);
    askForHomeLayout(true);
}

void LayoutEdits::askForHomeLayout()
{
    askForHomeLayout(false);
}

/// The panel answers in the order of the questions.
void LayoutEdits::askForHomeLayout(bool isSet)
{
    mHomeQueries.enqueue(isSet);
    mEdits.context().sendRequest(RequestKind::MD_FUNCTION_CODE_HOME_LAYOUT, AskForHomeLayout);
}

bool LayoutEdits::takeHomeReply()
{
    return !mHomeQueries.isEmpty() && mHomeQueries.dequeue();
}

void LayoutEdits::clearForPanel()
{
    if (!vorlinmodel::keepCustomLayoutFile()) {
        emit sigProblem(tr("The layouts could not be kept aside, so those of this computer stay."));
        return;
    }
    mUnseen = vorlinmodel::loadCustomLayouts().byId;
    for (const int layoutId : mPending.ids())
        mUnseen.remove(layoutId);
    mReadRest.start();
}

void LayoutEdits::takeFromPanel(const CustomLayoutRecord::Record &record)
{
    if (mReadRest.isActive())
        mReadRest.start();
    mUnseen.remove(record.layoutNumber); // also when it is left out below: then ours stays
    const auto sent = layoutOf(record);
    if (!sent) {
        emit sigProblem(
            tr("The panel sent layout %1 with keys that are no rectangles or overlap. It was left out.")
                .arg(record.layoutNumber));
        return;
    }
    const int layoutId = sent->layoutId;
    if (mPending.contains(layoutId)) // ours is newer
        return;
    const auto ours = vorlinmodel::loadCustomLayout(layoutId);
    const CustomLayout layout = completedBy(*sent, ours);
    if (ours == layout)
        return;
    if (vorlinmodel::saveCustomLayout(layout))
        emit sigLayoutsChanged();
    else
        emit sigProblem(tr("The layout could not be saved. Is the disk full?"));
}

/// What it has not sent is not gone.
void LayoutEdits::linkLost()
{
    mReadRest.stop();
    mUnseen.clear();
    mHomeQueries.clear();
}

/// The panel has sent all its layouts.
void LayoutEdits::endRead()
{
    bool isChanged = false;
    for (const int layoutId : std::exchange(mUnseen, {}).keys()) {
        if (!mPending.contains(layoutId) && vorlinmodel::removeCustomLayout(layoutId))
            isChanged = true;
    }
    if (isChanged)
        emit sigLayoutsChanged();
}
