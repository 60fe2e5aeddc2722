/// The records of all keys.
#pragma once

#include "model/keyattribute.h"
#include "model/keyid.h"

#include <QList>
#include <QStringList>
#include <functional>
#include <map>
#include <mutex>
#include <optional>

namespace vorlinmodel {

/// Any thread. Records go in and out as copies; lines are logged with the lock released. Setters of an
/// unknown key do nothing, getters return an empty text.
class KeyAttributeMap
{
public:
    /// @return false when the key already has a record, which then stays as it is.
    bool create(const key_id_t &key, int fid);
    /// Creates the record, or sets the function of the one that stands; nobody ever sees the key without one.
    void add(const key_id_t &key, int fid);
    void set(const key_id_t &key, const key_atttribute_t &record);
    void remove(const key_id_t &key);

    std::optional<key_atttribute_t> find(const key_id_t &key) const;
    QList<key_id_t> keys() const; ///< ascending

    QString customImage(const key_id_t &key) const;
    QString defaultImage(const key_id_t &key) const;
    QString title(const key_id_t &key) const;
    QString dump(const key_id_t &key) const; ///< the record in one line, for the log

    void setCustomImage(const key_id_t &key, const QString &path);                     ///< also shows it
    bool moveCustomImage(const key_id_t &key, const QString &from, const QString &to); ///< if it is @p from
    void setCustomVideo(const key_id_t &key, const QString &path); ///< into the default image
    void setImageEffects(const key_id_t &key, int value);
    void setDisplayMode(const key_id_t &key, int value);
    void setTitle(const key_id_t &key, const QString &title);
    void setTitleAlignment(const key_id_t &key, int value);
    void setTitleFontSize(const key_id_t &key, int value);
    void setTitleFontColor(const key_id_t &key, const QColor &colour);
    void setUrlOrPath(const key_id_t &key, const QString &text);
    void setKeyCombination(const key_id_t &key, const QStringList &names);

    /// Changes several fields at once, so that no reader sees half of them. @p apply runs under the lock: it
    /// only assigns. @return false when the key has no record.
    bool change(const key_id_t &key, const std::function<void(key_atttribute_t &)> &apply);

private:
    mutable std::mutex mMutex;
    std::map<key_id_t, key_atttribute_t> mRecords;
};

} // namespace vorlinmodel
