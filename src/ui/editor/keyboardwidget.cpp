#include "keyboardwidget.h"

#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "base/log.h"
#include "editorcontext.h"
#include "editorlogtext.h"
#include "keywidget.h"
#include "model/customlayouts.h"
#include "model/functionids.h"

using vorlindesk::Log;
using vorlindesk::LogLevel;
using vorlinmodel::key_id_t;

namespace {

constexpr int StandardLayout = 1; // every physical key by itself
constexpr int NarrowestCell = 56; // pixels, at which a title can still be read

} // namespace

KeyboardWidget::KeyboardWidget(EditorContext &context, int layoutId, int pageId, QWidget *parent)
    : QWidget(parent)
    , mContext(context)
    , mLayoutId(layoutId)
    , mPageId(pageId)
{
    // Once for all cells: every grid hears of every key.
    connect(&mContext.edits, &KeyEdits::sigKeysChanged, this, &KeyboardWidget::refreshKeys);
    connect(&mContext.edits, &KeyEdits::sigMarkChanged, this, [this](const key_id_t &key) {
        KeyWidget *changed = isOnPage(key) ? cell(key.kid) : nullptr;
        if (changed)
            changed->updateMark();
    });
    connect(&mContext.faces, &KeyFaces::sigFaceReady, this, &KeyboardWidget::refreshFaces);
    connect(mContext.framework.languageManager(), &vorlindesk::LanguageManager::sigLanguageChanged, this,
            [this] {
                for (KeyWidget *cell : qAsConst(mCells))
                    cell->retranslate();
            });
}

bool KeyboardWidget::setup(bool connectSignals, bool flag)
{
    Log(LogLevel::Info, EditorLogText::GridSetup, mLayoutId, mPageId);
    mConnectSignals = connectSignals;
    mFlag = flag;
    if (mLayoutId == StandardLayout)
        setupStandard();
    else
        setupCustomLayout();
    return true;
}

void KeyboardWidget::rebuild(int layoutId)
{
    qDeleteAll(std::exchange(mCells, {}));
    mLayoutId = layoutId;
    mCurrent = 0;
    mAnchor = 0;
    if (mLayoutId == StandardLayout) // any other is deliberately left without cells
        setupStandard();
    setVisible(true);
    emit selectionChanged();
}

void KeyboardWidget::setupStandard()
{
    QVector<KeyDescriptor> descriptors;
    for (int key = vorlinmodel::FirstKeyId; key <= vorlinmodel::LastKeyId; ++key)
        descriptors.append(KeyDescriptor(mLayoutId, mPageId, key, 1U << (key - 1)));
    createCells(descriptors);
}

void KeyboardWidget::setupCustomLayout()
{
    Log(LogLevel::Info, EditorLogText::CustomLayoutStart, mLayoutId);
    const auto layout = vorlinmodel::loadCustomLayout(mLayoutId);
    if (!layout)
        return;
    Log(LogLevel::Info, EditorLogText::CustomLayoutRead, layout->keys.size(), qUtf8Printable(layout->name));
    QVector<KeyDescriptor> descriptors;
    for (const vorlinmodel::CustomLayoutKey &key : layout->keys)
        descriptors.append(KeyDescriptor(mLayoutId, mPageId, descriptors.size() + 1, key.mask));
    createCells(descriptors);
    Log(LogLevel::Info, EditorLogText::CustomLayoutEnd, mLayoutId);
}

void KeyboardWidget::createCells(const QVector<KeyDescriptor> &descriptors)
{
    for (const KeyDescriptor &descriptor : descriptors) {
        auto cell = std::make_unique<KeyWidget>(mContext, descriptor, this);
        if (!cell->setup()) {
            Log(LogLevel::Error, EditorLogText::CellSetupFailed);
            break;
        }
        cell->resize(mMetrics.cellWidth, mMetrics.cellHeight);
        mCells.append(cell.release()); // a child of this
        if (mConnectSignals)
            connectCell(mCells.constLast());
        refresh(mCells.constLast());
    }
    placeCells();
}

void KeyboardWidget::connectCell(KeyWidget *cell)
{
    connect(cell, &KeyWidget::dataChangeSignal, this, &KeyboardWidget::onDataChangeHandler);
    connect(cell, &KeyWidget::clicked, this, &KeyboardWidget::onButtonClicked);
    connect(cell, &KeyWidget::doubleClicked, this, &KeyboardWidget::onButtonDoubleClicked);
    connect(cell, &KeyWidget::functionTaken, this, &KeyboardWidget::functionTaken);
    connect(cell, &KeyWidget::reachedByTab, this, [this, cell] { selectAlone(mCells.indexOf(cell)); });
}

void KeyboardWidget::refresh(KeyWidget *cell)
{
    cell->updateFid();
    cell->updateKeyIcon();
    cell->updateMark();
}

void KeyboardWidget::refreshKeys(const QVector<key_id_t> &keys)
{
    for (const key_id_t &key : keys) {
        KeyWidget *changed = isOnPage(key) ? cell(key.kid) : nullptr;
        if (changed)
            refresh(changed);
    }
}

/// Only of cells with that picture: the others would ask for theirs, which may have left the cache, and so on
/// without end.
void KeyboardWidget::refreshFaces(const QString &path)
{
    for (KeyWidget *cell : qAsConst(mCells)) {
        if (cell->fid() != 0 && mContext.faces.shows(cell->keyId(), path))
            cell->updateKeyIcon();
    }
}

bool KeyboardWidget::isOnPage(const key_id_t &key) const
{
    return key.lid == mLayoutId && key.pageid == mPageId;
}

void KeyboardWidget::updateKeyIcon(const key_id_t &key)
{
    for (KeyWidget *cell : qAsConst(mCells)) {
        const KeyDescriptor &descriptor = cell->descriptor();
        if (key.kid != AllKeys && key.kid != descriptor.mKeyId)
            continue;
        Log(LogLevel::Debug, EditorLogText::UpdateKeyIcon, descriptor.mLayoutId, descriptor.mPageId,
            descriptor.mKeyId, descriptor.mBitMap);
        refresh(cell);
    }
}

void KeyboardWidget::updateAllIcons()
{
    updateKeyIcon({mLayoutId, mPageId, AllKeys});
}

void KeyboardWidget::deleteAll()
{
    QVector<key_id_t> keys;
    for (const KeyWidget *cell : qAsConst(mCells))
        keys.append(cell->keyId());
    mContext.edits.change(tr("Clear page"), keys, [this] {
        for (KeyWidget *cell : qAsConst(mCells))
            cell->deleteAttr();
    });
}

KeyWidget *KeyboardWidget::cell(int keyId) const
{
    return mCells.value(indexOf(keyId), nullptr);
}

int KeyboardWidget::indexOf(int keyId) const
{
    for (int i = 0; i < mCells.size(); ++i) {
        if (mCells.at(i)->keyId().kid == keyId)
            return i;
    }
    return -1;
}

void KeyboardWidget::setVisible(bool visible)
{
    mVisible = visible;
    QWidget::setVisible(visible);
    for (KeyWidget *cell : qAsConst(mCells))
        cell->setVisible(visible);
    placeCells();
}

void KeyboardWidget::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeCells();
}

void KeyboardWidget::placeCells()
{
    mMetrics = GridMetrics::fitting(size());
    for (KeyWidget *cell : qAsConst(mCells))
        cell->setGeometry(cellRect(cell->descriptor(), mMetrics, size()));
}

QSize KeyboardWidget::sizeHint() const
{
    return GridMetrics{}.gridSize();
}

QSize KeyboardWidget::minimumSizeHint() const
{
    return GridMetrics::scaledTo(NarrowestCell).gridSize();
}

void KeyboardWidget::onDataChangeHandler(const key_id_t &key_id_, int fid_)
{
    Log(LogLevel::Info, EditorLogText::GridDataChange, key_id_.lid, key_id_.kid, fid_);
    emit dataChangeSignal(key_id_, fid_, false);
}

void KeyboardWidget::onButtonDoubleClicked(const key_id_t &key_id_, int fid_)
{
    Log(LogLevel::Debug, EditorLogText::GridDoubleClick);
    Log(LogLevel::Info, EditorLogText::GridDoubleClicked, key_id_.lid, key_id_.kid, fid_);
    emit dataChangeSignal(key_id_, fid_, true);
}
