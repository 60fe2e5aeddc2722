/// A layout as the person is changing it, until it is saved.
#pragma once

#include "model/layoutgrouping.h"

#include <QObject>
#include <QString>
#include <QUndoStack>
#include <QVector>

namespace vorlinmodel {
class IFunctionManager;
struct CustomLayout;
} // namespace vorlinmodel

/// Every change is a step of its own history; names that are typed in one go are one.
class LayoutDraft : public QObject
{
    Q_OBJECT
public:
    struct Value
    {
        QString name;
        vorlinmodel::LayoutGrouping grouping;
        QString background;       ///< path of the picture; empty: none
        QVector<int> pages;       ///< that show it, 1 to 16, ascending
        bool emptyKeysToo = true; ///< it goes on keys without a function, too

        bool operator==(const Value &) const = default;
    };

    explicit LayoutDraft(QObject *parent = nullptr);

    void load(int layoutId, const Value &stored); ///< forgets all changes
    void start(int layoutId, const Value &value); ///< a layout that is not stored yet
    /// The layout was changed elsewhere; what the person has changed here stays.
    void setStored(const Value &stored);
    void setGone(); ///< it is not stored any more

    int layoutId() const { return mLayoutId; }
    const Value &value() const { return mValue; }
    const Value &stored() const { return mStored; }
    bool isNew() const { return mIsNew; }
    bool isChanged() const { return mIsNew || !(mValue == mStored); }
    bool isBackgroundChanged() const;
    QUndoStack &history() { return mHistory; }

    void setName(const QString &name);
    void setGrouping(const QString &text, const vorlinmodel::LayoutGrouping &grouping);
    void setBackground(const QString &text, const QString &path, const QVector<int> &pages);
    void setPages(const QVector<int> &pages);
    void setEmptyKeysToo(bool on);

signals:
    void sigChanged();

private:
    class Step;
    void push(const QString &text, const Value &value, int mergeId = -1);
    void set(const Value &value);

    int mLayoutId = 0;
    bool mIsNew = false;
    Value mStored;
    Value mValue;
    QUndoStack mHistory;
};

/// @p layout as customLayout.ini has it; the standard grid without a name when there is none.
LayoutDraft::Value draftValueOf(const vorlinmodel::CustomLayout *layout);

/// Pages (1 to 16) of a layout on which a key has a function, ascending.
QVector<int> pagesWithKeys(int layoutId, const vorlinmodel::IFunctionManager &store);
