#include "keycommands.h"

#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "childpages.h"
#include "editorcontext.h"
#include "keyboardwidget.h"
#include "keyclipboard.h"
#include "keywidget.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"

using vorlinmodel::AttributeId;
using vorlinmodel::key_id_t;

namespace {

// Fixed text. The dark ground, on which the white is read, comes from the sheet of the page.
constexpr char BoxStyle[] =
    "QMessageBox QLabel#qt_msgbox_label {color: white;background-color: transparent;} "
    "QMessageBox QPushButton {color: white;font: 75 10pt \"Arial\"; }";
QVector<key_id_t> withFunction(const KeyboardWidget &grid)
{
    QVector<key_id_t> keys;
    for (const key_id_t &key : grid.selectedKeys()) {
        const KeyWidget *cell = grid.cell(key.kid);
        if (cell && cell->fid() != 0)
            keys.append(key);
    }
    return keys;
}

bool isThere(const KeyboardWidget &grid, const key_id_t &key)
{
    const KeyWidget *cell = grid.cell(key.kid);
    return cell && cell->descriptor().mPhyKeyCount > 0;
}

QVector<key_id_t> keysOf(const QVector<KeyPlacement> &placements)
{
    QVector<key_id_t> keys;
    for (const KeyPlacement &placement : placements)
        keys.append(placement.key);
    return keys;
}

QVector<key_id_t> childPageKeys(const QVector<KeyPlacement> &placements)
{
    QVector<key_id_t> keys;
    for (const KeyPlacement &placement : placements) {
        if (placement.state.fid() == vorlinmodel::CHILDREN_PAGE_FID)
            keys.append(placement.key);
    }
    return keys;
}

MessageBox::Question aboutChildPages(int keys, int children)
{
    MessageBox::Question question;
    question.text = keys == 1 ? KeyCommands::tr("Delete the keys of its child page too?")
                              : KeyCommands::tr("Delete the keys of their child pages too?");
    question.explanation = KeyCommands::tr("Keys there that have a function: %1").arg(children);
    question.preset = QMessageBox::No;
    question.styleSheet = QString::fromLatin1(BoxStyle);
    question.captions = {{QMessageBox::Yes, KeyCommands::tr("Delete them too")},
                         {QMessageBox::No, KeyCommands::tr("Keep them")}};
    return question;
}

} // namespace

KeyCommands::KeyCommands(EditorContext &context, Ask ask, QObject *parent)
    : QObject(parent)
    , mContext(context)
    , mAsk(std::move(ask))
{
    mContext.deleteKeys = [this](const QVector<key_id_t> &keys, const std::function<void()> &removeKeys) {
        deleteKeys(keys, removeKeys);
    };
    mContext.completeChildPages = [this](const QVector<KeyPlacement> &placed) {
        notify(completeChildPages(childPageKeys(placed)));
    };
}

KeyCommands::~KeyCommands()
{
    mContext.deleteKeys = {};
    mContext.completeChildPages = {};
}

void KeyCommands::copy(KeyboardWidget &grid)
{
    mContext.edits.flush(); // what is being typed belongs to the key
    KeyClipboard::copy(mContext.edits.store(), grid.selectedKeys());
}

void KeyCommands::cut(KeyboardWidget &grid)
{
    copy(grid);
    remove(grid);
}

void KeyCommands::remove(KeyboardWidget &grid)
{
    grid.deleteSelected(); // which asks us back: deleteKeys()
}

void KeyCommands::deleteKeys(const QVector<key_id_t> &keys, const std::function<void()> &removeKeys)
{
    QVector<key_id_t> children = ChildPages::keysLeftBehind(mContext.edits.store(), keys);
    if (!children.isEmpty()) {
        const auto answer = mAsk(aboutChildPages(keys.size(), children.size()));
        if (answer == QMessageBox::No)
            children.clear();
        else if (answer != QMessageBox::Yes)
            return;
    }
    const QString text = mContext.framework.languageManager()->Text(vorlindesk::TextId::Delete);
    mContext.edits.change(text, keys + children, [&] {
        removeKeys();
        QVector<KeyPlacement> cleared;
        for (const key_id_t &child : qAsConst(children))
            cleared.append({child, {}});
        mContext.edits.apply(cleared);
    });
}

void KeyCommands::paste(KeyboardWidget &grid)
{
    if (!KeyClipboard::holdsKeys())
        return notify({tr("There are no keys on the clipboard.")});
    const QVector<key_id_t> targets = grid.selectedKeys();
    if (targets.isEmpty())
        return notify({tr("Select a key first.")});
    QVector<KeyPlacement> placements;
    for (const KeyPlacement &placement : KeyClipboard::placements(targets)) {
        if (isThere(grid, placement.key)) // a custom layout may have fewer keys
            placements.append(placement);
    }
    QStringList notices;
    mContext.edits.change(tr("Paste"), keysOf(placements), [&] {
        mContext.edits.apply(placements);
        notices = completeChildPages(childPageKeys(placements));
    });
    notify(notices);
}

void KeyCommands::putOnEveryPage(KeyboardWidget &grid)
{
    const QVector<key_id_t> keys = withFunction(grid);
    if (keys.isEmpty())
        return notify({tr("Select a key with a function first.")});
    mContext.edits.flush();
    QVector<KeyPlacement> placements;
    int replaced = 0;
    for (const key_id_t &key : keys) {
        const KeyState state = captureKeyState(mContext.edits.store(), key);
        for (int page = 1; page <= vorlinmodel::MaxPage; ++page) {
            const key_id_t target{key.lid, page, key.kid};
            if (page == key.pageid)
                continue;
            const KeyState before = captureKeyState(mContext.edits.store(), target);
            replaced += before.record && !sameKey(before, state) ? 1 : 0;
            placements.append({target, state});
        }
    }
    QStringList notices;
    mContext.edits.change(tr("Put on every page"), keysOf(placements), [&] {
        mContext.edits.apply(placements);
        notices = completeChildPages(childPageKeys(placements));
    });
    if (replaced > 0)
        notices.prepend(
            tr("Keys of other pages that were replaced: %1. Undo brings them back.").arg(replaced));
    notify(notices);
}

void KeyCommands::give(KeyboardWidget &grid, int fid)
{
    KeyWidget *cell = grid.cell(grid.currentKey().kid);
    if (cell)
        cell->takeFunction(fid);
    else
        notify({tr("Select a key first.")});
}

void KeyCommands::completeChildPage(const key_id_t &key)
{
    notify(completeChildPages({key}));
}

/// @return what the person should know. Keys with one number share their child page: one of them speaks for
/// all.
QStringList KeyCommands::completeChildPages(const QVector<key_id_t> &keys)
{
    QStringList notices;
    QVector<int> done;
    for (const key_id_t &key : keys) {
        if (done.contains(key.kid))
            continue;
        done.append(key.kid);
        const ChildPages::Findings findings = ChildPages::examine(mContext.edits.store(), key);
        if (findings.freeReturnKey)
            addReturnKey(*findings.freeReturnKey);
        if (findings.leadsToItsOwnPage)
            notices.append(tr("Key %1 leads to the page that it is on.").arg(key.kid));
        if (findings.otherPage != 0)
            notices.append(
                tr("Key %1 of page %2 leads to the same child page.").arg(key.kid).arg(findings.otherPage));
        if (findings.lacksWayBack)
            notices.append(tr("Page %1 has no key that leads back, and key %2 there is not free.")
                               .arg(ChildPages::pageOf(key).pageId)
                               .arg(ChildPages::ReturnKeyId));
    }
    return notices;
}

/// As a drop does: a free key gets rid of what may be left of it, then takes the function.
void KeyCommands::addReturnKey(const key_id_t &key)
{
    KeyEdits &edits = mContext.edits;
    edits.change(tr("Child page"), {key}, [&] {
        edits.store().deleteKeyAttribute(key);
        if (!edits.store().addKeyAttribute(key, vorlinmodel::RETURN_MAIN_FID))
            return;
        edits.send(key, vorlinmodel::RETURN_MAIN_FID, AttributeId::FunctionId);
        edits.send(key, vorlinmodel::RETURN_MAIN_FID, AttributeId::Picture);
    });
}

void KeyCommands::notify(const QStringList &notices)
{
    if (!notices.isEmpty())
        emit sigNotice(notices.join(QLatin1Char(' ')));
}
