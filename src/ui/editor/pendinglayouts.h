/// Which custom layouts the panel has not been told of yet.
#pragma once

#include <QVector>
#include <map>
#include <set>

/// User-interface thread only. A layout is pending from the moment when a request about it is posted until
/// the panel has taken it; without a panel that outlasts the program ("devConfig/pendingLayouts.ini").
class PendingLayouts
{
public:
    PendingLayouts(); ///< with what the last run has left; entries that name no layout are left out

    bool contains(int layoutId) const { return mUnsent.count(layoutId) != 0; }
    QVector<int> ids() const; ///< ascending

    void posted(int layoutId);
    /// A request of the layout has ended. A later one that is under way has yet to bring the layout of now.
    void done(int layoutId, bool taken);

    /// Writes down, before a restore, that the panel may lack any of @p ids: a kill within it would else
    /// leave the panel's layouts to win. Any thread.
    static void saveWhole(const QVector<int> &ids);
    void save() const; ///< what is pending as far as known here

private:
    std::set<int> mUnsent;
    std::map<int, int> mUnderWay; ///< requests in the queue, by layout
};
