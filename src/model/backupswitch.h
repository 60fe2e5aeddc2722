/// Puts a prepared state in place of the present one, so that a kill at any moment leaves one of the two.
#pragma once

#include <QString>
#include <QStringList>

/// New files and folders are prepared in newFolder(), under the names that they get below "devConfig"; of the
/// folder "video" only single files ("video/name"), since both states share the others. Then a
/// journal is written: from that moment on the new state is the one that will be. Each entry is exchanged by
/// two renames, the present one going to a folder beside. What a kill leaves behind, recover() finishes.
namespace vorlinmodel::BackupSwitch {

QString newFolder(); ///< "devConfig/restore/new"

/// An empty newFolder(), with what an earlier attempt left over removed. @return false with the reason in
/// @p error, also while an earlier switch could neither be finished nor taken back.
bool prepare(QString &error);

/// Gives a preparation up. @return false when something of it cannot be removed, which prepare() tries again.
bool discard();

/// Exchanges the entries @p names of "devConfig" for those in newFolder(); one that was not prepared is just
/// taken away. @return false with the reason in @p error: then everything is as it was before, or, should
/// even that fail, the next recover() goes on taking it back.
bool run(const QStringList &names, QString &error);

enum class Recovery {
    Nothing,    ///< there was no unfinished switch
    Finished,   ///< the new state is in place
    TakenBack,  ///< the state from before is in place
    NotPossible ///< neither could be done now: a file is in use, perhaps. Logged; nothing is lost.
};
Recovery recover();

} // namespace vorlinmodel::BackupSwitch
