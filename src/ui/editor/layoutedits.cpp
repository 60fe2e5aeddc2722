#include "layoutedits.h"

#include "base/iframeworkcontext.h"
#include "keyedits.h"
#include "layoutmoves.h"
#include "model/ifunctionmanager.h"
#include "model/layoutgrouping.h"
#include "protocol/iprotocolthread.h"

#include <algorithm>

using vorlinmodel::CustomLayout;
using vorlinmodel::IProtocolThread;
using vorlinmodel::key_id_t;
using vorlinmodel::Request;
using vorlinmodel::RequestKind;
using vorlinmodel::RequestOutcome;

namespace {

constexpr int StandardLayout = 1;

bool isCustomId(int layoutId)
{
    return layoutId >= vorlinmodel::FirstCustomLayout && layoutId <= vorlinmodel::LargestCustomLayout;
}

/// Every physical key belongs to a key. A layout whose grouping stays keeps the numbers of its keys, which
/// are in another order when a panel has sent it so.
CustomLayout completed(const CustomLayout &wanted, const std::optional<CustomLayout> &before)
{
    const vorlinmodel::LayoutGrouping grouping = groupingOf(wanted);
    CustomLayout layout = vorlinmodel::customLayoutOf(wanted.layoutId, wanted.name, grouping);
    if (!before)
        return layout;
    const bool isWhole = std::none_of(before->keys.cbegin(), before->keys.cend(),
                                      [](const vorlinmodel::CustomLayoutKey &key) { return key.mask == 0; });
    if (isWhole && groupingOf(*before) == grouping && before->keys.size() == layout.keys.size())
        layout.keys = before->keys;
    layout.background = before->background;
    layout.backgroundPages = before->backgroundPages;
    layout.backgroundOnEmptyKeys = before->backgroundOnEmptyKeys;
    return layout;
}

std::optional<CustomLayout> storedLayout(int layoutId)
{
    if (layoutId != StandardLayout)
        return vorlinmodel::loadCustomLayout(layoutId);
    return vorlinmodel::customLayoutOf(StandardLayout, {}, vorlinmodel::LayoutGrouping());
}

bool isSameOnPanel(const CustomLayout &left, const CustomLayout &right)
{
    return left.name == right.name && left.keys == right.keys;
}

} // namespace

LayoutEdits::LayoutEdits(KeyEdits &edits, QObject *parent)
    : QObject(parent)
    , mEdits(edits)
{
    vorlinmodel::removeUnusedLayoutPictures(); // now, since the history is empty
    mReadRest.setSingleShot(true);
    mReadRest.setInterval(ReadRest);
    connect(&mReadRest, &QTimer::timeout, this, &LayoutEdits::endRead);
    if (IProtocolThread *thread = edits.context().protocolThread())
        connectProtocolThread(*thread);
}

/// The outcome arrives on the protocol thread.
void LayoutEdits::connectProtocolThread(IProtocolThread &thread)
{
    connect(
        &thread, &IProtocolThread::sigRequestDone, this,
        [this](const Request &request, RequestOutcome outcome) {
            if (request.functionCode == static_cast<quint32>(RequestKind::MD_FUNCTION_CODE_HOME_LAYOUT) &&
                outcome != RequestOutcome::Sent)
                mHandOver.post([this, isQuery = request.layoutId == AskForHomeLayout] {
                    if (isQuery)
                        takeHomeReply(); // there will be none
                    else
                        emit sigProblem(tr("The panel has not taken the home layout."));
                });
            if (request.functionCode !=
                    static_cast<quint32>(RequestKind::MD_FUNCTION_CODE_CUSTOMLAYOUT_SET) &&
                request.functionCode != static_cast<quint32>(RequestKind::MD_FUNCTION_CODE_CUSTOMLAYOUT_DEL))
                return;
            const int layoutId = int(request.layoutId);
            const bool taken = outcome == RequestOutcome::Sent;
            mHandOver.post([this, layoutId, taken] { requestDone(layoutId, taken); });
        },
        Qt::DirectConnection);
}

int LayoutEdits::freeId() const
{
    const QVector<int> used = vorlinmodel::customLayoutIds();
    if (used.size() >= vorlinmodel::MaxCustomLayouts)
        return 0;
    QVector<int> withKeys; // of a layout that the file does not know: they would appear in the new one
    for (const key_id_t &key : mEdits.store().getKeys())
        withKeys.append(key.lid);
    for (int id = vorlinmodel::FirstCustomLayout; id <= vorlinmodel::LargestCustomLayout; ++id) {
        if (!used.contains(id) && !withKeys.contains(id))
            return id;
    }
    return 0;
}

QVector<key_id_t> LayoutEdits::keysLost(const CustomLayout &layout) const
{
    const auto before = vorlinmodel::loadCustomLayout(layout.layoutId);
    return before ? keysWithoutPlace(mEdits.store(), *before, completed(layout, before))
                  : QVector<key_id_t>();
}

QString LayoutEdits::save(const CustomLayout &wanted)
{
    if (!isCustomId(wanted.layoutId))
        return tr("There is no room for another layout.");
    const auto before = vorlinmodel::loadCustomLayout(wanted.layoutId);
    if (!before && vorlinmodel::customLayoutIds().size() >= vorlinmodel::MaxCustomLayouts)
        return tr("There are %1 layouts already.").arg(vorlinmodel::MaxCustomLayouts);
    const CustomLayout after = completed(wanted, before);
    if (before == after)
        return {};
    mEdits.flush();
    const LayoutMoves moves =
        before ? planLayoutMoves(mEdits.store(), withBackground(*before), withBackground(after))
               : LayoutMoves();
    return change(before ? tr("Change the layout") : tr("New layout"), before, after, moves);
}

QString LayoutEdits::remove(int layoutId)
{
    const auto before = vorlinmodel::loadCustomLayout(layoutId);
    if (!isCustomId(layoutId) || !before)
        return tr("The layout does not exist any more.");
    mEdits.flush();
    LayoutMoves moves;
    for (const key_id_t &key : mEdits.store().getKeys()) {
        if (key.lid == layoutId)
            moves.cleared.append({key, {}});
    }
    return change(tr("Delete the layout"), before, std::nullopt, moves);
}

QString LayoutEdits::duplicate(int layoutId, const QString &name, int *newId)
{
    const auto source = storedLayout(layoutId);
    if (!source)
        return tr("The layout does not exist any more.");
    const int id = freeId();
    if (id == 0)
        return tr("There are %1 layouts already.").arg(vorlinmodel::MaxCustomLayouts);
    CustomLayout copy = completed(*source, source);
    copy.layoutId = id;
    copy.name = name;
    mEdits.flush();
    const LayoutMoves moves = planLayoutMoves(mEdits.store(), withBackground(*source), withBackground(copy));
    const QString problem = change(tr("Duplicate the layout"), std::nullopt, copy, moves);
    if (newId && problem.isEmpty())
        *newId = id;
    return problem;
}

/// The file first: when it cannot be written, nothing has happened yet.
QString LayoutEdits::change(const QString &text, const std::optional<CustomLayout> &before,
                            const std::optional<CustomLayout> &after, const LayoutMoves &moves)
{
    if (const QString obstacle = mEdits.obstacle(); !obstacle.isEmpty())
        return obstacle;
    if (!moves.isComplete)
        return tr("The pictures of the background could not be saved. Is the disk full?");
    const int layoutId = after ? after->layoutId : before->layoutId;
    if (!(after ? vorlinmodel::saveCustomLayout(*after) : vorlinmodel::removeCustomLayout(layoutId)))
        return tr("The layout could not be saved. Is the disk full?");
    QUndoStack &history = mEdits.history();
    history.beginMacro(text);
    mEdits.place(text, moves.cleared);
    history.push(new LayoutFileCommand(*this, {layoutId, before, after, moves.resent})); // owned by the stack
    mEdits.place(text, moves.placed);
    history.endMacro();
    return {};
}

/// For undo and redo. When the file cannot be written the step is as good as not made, except for the keys.
void LayoutEdits::put(const LayoutFileChange &change, bool after)
{
    mEdits.flush();
    const std::optional<CustomLayout> &layout = after ? change.after : change.before;
    const bool isWritten =
        layout ? vorlinmodel::saveCustomLayout(*layout) : vorlinmodel::removeCustomLayout(change.layoutId);
    if (isWritten)
        announce(change);
    else
        emit sigProblem(tr("The layout could not be saved. Is the disk full?"));
}

/// The file has changed: the panel and the pages follow.
void LayoutEdits::announce(const LayoutFileChange &change)
{
    mUnseen.remove(change.layoutId); // from now on ours counts
    if (!change.before || !change.after || !isSameOnPanel(*change.before, *change.after))
        post(change.layoutId);
    for (const key_id_t &key : change.resent) {
        const KeyState state = captureKeyState(mEdits.store(), key);
        const auto attribute = vorlinmodel::AttributeId::Picture;
        if (attributesToSend({}, state).contains(attribute))
            mEdits.send(key, state.fid(), attribute);
    }
    emit sigLayoutsChanged();
}
