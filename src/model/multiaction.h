/// The steps of multi-action keys, kept in "devConfig/multiActions.json".
#pragma once

#include "model/keyid.h"

#include <QString>
#include <QVector>
#include <functional>
#include <optional>

class QJsonObject;

namespace vorlinmodel {

struct MultiAction
{
    qint16 fid = 0;
    quint16 delay = 0; ///< ms; for fid 100 the whole content
    QString url;       ///< path, address, text or key combination, as the fid needs
    bool operator==(const MultiAction &) const = default;
};

struct MultiActionEntry
{
    key_id_t key;
    QVector<MultiAction> actions;
    bool operator==(const MultiActionEntry &) const = default;
};

/// Reads and rewrites the file on every call; nothing is cached. Any thread, and any number of stores on one
/// file: the changes of one caller never undo those of another. Failures are texts, quoted in the log.
class MultiActionStore
{
public:
    explicit MultiActionStore(QString path);

    /// @return the entries in file order, or nothing with the reason in @p error: "fileEmpty" for an empty
    /// file, which holds no entries yet; a missing file is an error.
    std::optional<QVector<MultiActionEntry>> readAll(QString &error) const;
    bool writeAll(const QVector<MultiActionEntry> &entries, QString &error) const;

    /// @return the key's steps, empty when it has none; nothing when the file holds what cannot be read.
    std::optional<QVector<MultiAction>> findActions(int lid, int pageid, int kid) const;
    /// The same for those who need not tell the two apart: empty also when the file cannot be read.
    QVector<MultiAction> readActionsByKeyId(int lid, int pageid, int kid) const;
    /// Replaces the key's entry, which keeps its place in the file, or appends one. Creates a file that is
    /// missing.
    bool writeActionsByKeyId(int lid, int pageid, int kid, const QVector<MultiAction> &actions,
                             QString &error);
    bool delActionsByKeyId(int lid, int pageid, int kid,
                           QString &error); ///< an absent entry counts as deleted

    /// Many changes with one rewrite: the entries of @p replaced go unless @p written names them again, then
    /// each of @p written takes the place of its key's entry or is appended.
    bool replaceEntries(const QVector<key_id_t> &replaced, const QVector<MultiActionEntry> &written,
                        QString &error);

    static QJsonObject toJson(const MultiAction &action);
    static MultiAction actionFromJson(const QJsonObject &object, QString &error);
    static QJsonObject toJson(const MultiActionEntry &entry);
    static MultiActionEntry entryFromJson(const QJsonObject &object, QString &error);

private:
    /// Changes the entries; @return false when there is nothing to write.
    using Change = std::function<bool(QVector<MultiActionEntry> &entries)>;
    bool rewrite(const Change &change, QString &error);
    bool holdsNothing(const QString &error) const;
    std::optional<QVector<MultiActionEntry>> readForChange(QString &error) const;
    std::optional<QVector<MultiActionEntry>> readFile(QString &error) const;
    bool writeFile(const QVector<MultiActionEntry> &entries, QString &error) const;

    QString mPath;
};

/// The store of the running program, on Paths::multiActionsJson().
MultiActionStore multiActionStore();

} // namespace vorlinmodel
