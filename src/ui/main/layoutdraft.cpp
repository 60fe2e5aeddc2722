#include "layoutdraft.h"

#include "model/customlayouts.h"
#include "model/ifunctionmanager.h"

#include <QUndoCommand>
#include <algorithm>

using vorlinmodel::IFunctionManager;
using vorlinmodel::key_id_t;
using vorlinmodel::LayoutGrouping;

namespace {

constexpr int NameSteps = 1; // steps of this kind that follow each other become one

} // namespace

class LayoutDraft::Step : public QUndoCommand
{
public:
    Step(const QString &text, LayoutDraft &draft, const Value &after, int mergeId)
        : QUndoCommand(text)
        , mDraft(draft)
        , mBefore(draft.mValue)
        , mAfter(after)
        , mMergeId(mergeId)
    {}

    void undo() override { mDraft.set(mBefore); }
    void redo() override { mDraft.set(mAfter); }
    int id() const override { return mMergeId; }
    bool mergeWith(const QUndoCommand *other) override
    {
        mAfter = static_cast<const Step *>(other)->mAfter; // ids are equal, so it is one of ours
        setObsolete(mAfter == mBefore);
        return true;
    }

private:
    LayoutDraft &mDraft;
    const Value mBefore;
    Value mAfter;
    const int mMergeId;
};

LayoutDraft::LayoutDraft(QObject *parent)
    : QObject(parent)
{}

void LayoutDraft::load(int layoutId, const Value &stored)
{
    mLayoutId = layoutId;
    mIsNew = false;
    mStored = stored;
    mHistory.clear();
    set(stored);
}

void LayoutDraft::start(int layoutId, const Value &value)
{
    mLayoutId = layoutId;
    mIsNew = true;
    mStored = {};
    mHistory.clear();
    set(value);
}

void LayoutDraft::setStored(const Value &stored)
{
    mIsNew = false;
    mStored = stored;
    emit sigChanged();
}

void LayoutDraft::setGone()
{
    mIsNew = true;
    mStored = {};
    emit sigChanged();
}

bool LayoutDraft::isBackgroundChanged() const
{
    const bool differs = mValue.background != mStored.background || mValue.pages != mStored.pages ||
                         mValue.emptyKeysToo != mStored.emptyKeysToo;
    return differs && !(mValue.background.isEmpty() && mStored.background.isEmpty());
}

void LayoutDraft::setName(const QString &name)
{
    Value value = mValue;
    value.name = name;
    push(tr("Title"), value, NameSteps);
}

void LayoutDraft::setGrouping(const QString &text, const LayoutGrouping &grouping)
{
    Value value = mValue;
    value.grouping = grouping;
    push(text, value);
}

void LayoutDraft::setBackground(const QString &text, const QString &path, const QVector<int> &pages)
{
    Value value = mValue;
    value.background = path;
    value.pages = pages;
    push(text, value);
}

void LayoutDraft::setPages(const QVector<int> &pages)
{
    Value value = mValue;
    value.pages = pages;
    push(tr("Pages of the background"), value);
}

void LayoutDraft::setEmptyKeysToo(bool on)
{
    Value value = mValue;
    value.emptyKeysToo = on;
    push(tr("Background on keys without a function"), value);
}

void LayoutDraft::push(const QString &text, const Value &value, int mergeId)
{
    if (!(value == mValue))
        mHistory.push(new Step(text, *this, value, mergeId)); // owned by the stack
}

void LayoutDraft::set(const Value &value)
{
    mValue = value;
    emit sigChanged();
}

LayoutDraft::Value draftValueOf(const vorlinmodel::CustomLayout *layout)
{
    LayoutDraft::Value value;
    if (!layout)
        return value;
    value.name = layout->name;
    value.grouping = vorlinmodel::groupingOf(*layout);
    if (layout->background.isEmpty())
        return value;
    value.background = vorlinmodel::layoutPictureFolder() + QLatin1Char('/') + layout->background;
    value.pages = layout->backgroundPages;
    value.emptyKeysToo = layout->backgroundOnEmptyKeys;
    return value;
}

QVector<int> pagesWithKeys(int layoutId, const IFunctionManager &store)
{
    QVector<int> pages;
    for (const key_id_t &key : store.getKeys()) {
        const auto record = key.lid == layoutId ? store.getKeyAttribute(key) : std::nullopt;
        if (record && record->mFId != 0 && !pages.contains(key.pageid))
            pages.append(key.pageid);
    }
    std::sort(pages.begin(), pages.end());
    return pages;
}
