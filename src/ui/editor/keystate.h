/// One key with everything that belongs to it, as one value: what undo, the clipboard and moves work with.
#pragma once

#include "base/request.h"
#include "base/systemsettings.h"
#include "model/keyattribute.h"
#include "model/keyid.h"
#include "model/multiaction.h"

#include <QByteArray>
#include <QMap>
#include <QStringList>
#include <QVector>
#include <optional>

class QDataStream;

namespace vorlinmodel {
class IFunctionManager;
}

struct KeyState
{
    std::optional<vorlinmodel::key_atttribute_t> record; ///< none: the key has no function
    /// Content of the key's own picture, since the file under its path changes. Empty when the key has none,
    /// or one that is compiled into the program, or one that cannot be read or is over 32 MiB.
    QByteArray picture;
    QVector<vorlinmodel::MultiAction> steps; ///< of a multi-action key
    vorlindesk::SystemSettings::HomeLayoutEntry
        home; ///< of a child-page key: where it leads; key id 0 = default

    int fid() const { return record ? record->mFId : 0; }
    bool hasOwnPicture() const;
};

/// Reads the key with its picture, steps and child page. Missing files count as empty.
KeyState captureKeyState(const vorlinmodel::IFunctionManager &store, const vorlinmodel::key_id_t &key);

/// The same for many keys; the file with the steps is read once.
QMap<vorlinmodel::key_id_t, KeyState> captureKeyStates(const vorlinmodel::IFunctionManager &store,
                                                       const QVector<vorlinmodel::key_id_t> &keys);

/// Whether the key plays a video, whose path then stands in the field of its default image.
bool isVideo(const vorlinmodel::key_atttribute_t &record);

/// Equal for the person and the panel: own pictures count by content, not by where their file lies.
bool sameKey(const KeyState &left, const KeyState &right);

/// Attribute ids to send, in order, so that a panel that shows @p from shows @p to.
QVector<vorlinmodel::AttributeId> attributesToSend(const KeyState &from, const KeyState &to);

/// The same where no other requests follow: a picture or video that the panel alone would keep goes with the
/// key, which is then made anew.
QVector<vorlinmodel::AttributeId> attributesToRestore(const KeyState &from, const KeyState &to);

/// All attribute ids that make the key on a panel, whatever it shows now, into @p to: clear, then everything
/// that is not the default.
QVector<vorlinmodel::AttributeId> allAttributes(const KeyState &to);

/// The attribute id under which the content of a key with @p fid travels: 11, 14, 15 or 17; nothing for
/// functions without content.
std::optional<vorlinmodel::AttributeId> contentAttribute(int fid);

/// The attribute id under which the text of a key's record travels: 11, 14 or 17.
vorlinmodel::AttributeId textAttribute(int fid);

/// The same for a person who does not look at the pictures: what a read of the panel brings back differs in
/// how pictures are kept.
bool sameFunction(const KeyState &left, const KeyState &right);

/// The keys of a combination "Left Ctrl#C#undefine#undefine", without the places that are empty.
QStringList combinationKeys(const QString &combination);

/// For the clipboard. Reading foreign bytes leaves the stream's status at ReadCorruptData when they are none.
QDataStream &operator<<(QDataStream &stream, const KeyState &state);
QDataStream &operator>>(QDataStream &stream, KeyState &state);
