/// Which edits the panel has not taken yet, key by key and attribute by attribute.
#pragma once

#include "base/request.h"
#include "model/keyid.h"

#include <QObject>
#include <QTimer>
#include <QVector>
#include <map>
#include <set>

namespace vorlinmodel {
enum class RequestOutcome;
}

/// User-interface thread only. An attribute is pending from the moment when its request is posted until the
/// panel has taken it; without a panel that outlasts the program ("devConfig/pending.ini").
class PendingEdits : public QObject
{
    Q_OBJECT
public:
    enum class Mark {
        None,
        Pending, ///< waits for a panel
        Failed,  ///< could not be sent, and is tried again at the next connection
    };
    using Attributes = std::set<vorlinmodel::AttributeId>;

    explicit PendingEdits(QObject *parent = nullptr);

    void posted(const vorlinmodel::key_id_t &key, vorlinmodel::AttributeId attribute);
    void done(const vorlinmodel::key_id_t &key, vorlinmodel::AttributeId attribute,
              vorlinmodel::RequestOutcome outcome);

    /// The key has something pending, all of which is now posted anew.
    void forget(const vorlinmodel::key_id_t &key);

    /// The panel need not have the attribute any more: the store is back at what the panel has.
    void withdraw(const vorlinmodel::key_id_t &key, vorlinmodel::AttributeId attribute);

    /// The panel lacks these values, for which nothing is posted yet.
    void note(const vorlinmodel::key_id_t &key, const QVector<vorlinmodel::AttributeId> &attributes);

    /// The panel got the whole key by another road. What is under way was posted later, and stays.
    void taken(const vorlinmodel::key_id_t &key);

    /// Requests of the attribute are in the queue, or one is carried out.
    bool isUnderWay(const vorlinmodel::key_id_t &key, vorlinmodel::AttributeId attribute) const;

    /// What the person is shown. An edit that is merely under way for less than half a second has no mark.
    Mark mark(const vorlinmodel::key_id_t &key) const;
    QString reason(const vorlinmodel::key_id_t &key) const; ///< for the tool tip; empty without a mark

    QVector<vorlinmodel::key_id_t> keys() const;                   ///< with anything pending, ascending
    Attributes attributes(const vorlinmodel::key_id_t &key) const; ///< empty when nothing is pending

    /// Adds what the file holds. Entries that name no key or attribute are left out. @return false when the
    /// file cannot be read.
    bool load();
    bool save(); ///< @return false when it cannot be written
    /// Writes the file as if all of @p keys were pending, whatever is. For a moment at which a kill would
    /// leave the keys changed and nothing noted; save() puts it right. Any thread, while nobody calls save().
    static bool saveWhole(const QVector<vorlinmodel::key_id_t> &keys);
    bool isOnDisk() const { return mOnDisk; } ///< the file holds something, as far as known

signals:
    void sigMarkChanged(const vorlinmodel::key_id_t &key);

private:
    enum class Cause { None, NoPanel, Late, Refused, Unreadable, Cancelled };

    struct Entry
    {
        std::map<vorlinmodel::AttributeId, int> underWay; ///< requests in the queue
        Attributes unsent;                                ///< that the panel has not taken
        Mark mark = Mark::None;
        Cause cause = Cause::None;
        bool isLate = false; ///< was there when the timer ended last
    };

    void forgetWhatIsCovered(Entry &entry, vorlinmodel::AttributeId taken);
    void setMark(const vorlinmodel::key_id_t &key, Entry &entry, Mark mark, Cause cause);
    void markWhatIsLate();

    std::map<vorlinmodel::key_id_t, Entry> mEntries;
    QTimer mLateTimer;
    bool mOnDisk = false;
};
