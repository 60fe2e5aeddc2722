#include "keydrag.h"

#include "editorcontext.h"
#include "model/functionids.h"
#include "pictureedits.h"
#include "vorlinmimedata.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QDropEvent>
#include <QFileInfo>
#include <QImageReader>
#include <QMimeData>
#include <QUrl>

using vorlinmodel::key_id_t;

namespace {

constexpr int LargestByte = 255; // functions and layouts travel in one byte

bool isKeyFunction(int fid)
{
    return fid > 0 && fid <= LargestByte && fid != vorlinmodel::TIME_DELAY_FID;
}

bool isWithin(int value, int first, int last)
{
    return value >= first && value <= last;
}

QString nameOfStep(bool copy, bool swap)
{
    if (copy)
        return QCoreApplication::translate("KeyDrag", "Copy key");
    return swap ? QCoreApplication::translate("KeyDrag", "Swap keys")
                : QCoreApplication::translate("KeyDrag", "Move key");
}

} // namespace

std::optional<int> KeyDrag::functionOf(const QMimeData &data)
{
    QDataStream stream(data.data(QString::fromLatin1(DragFormat::FunctionId)));
    qint32 fid = 0;
    stream >> fid;
    return isKeyFunction(fid) ? std::make_optional(fid) : std::nullopt;
}

void KeyDrag::setKey(QMimeData &data, const key_id_t &key)
{
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly) << key.lid << key.pageid << key.kid;
    data.setData(QString::fromLatin1(DragFormat::Key), bytes);
}

std::optional<key_id_t> KeyDrag::keyOf(const QMimeData &data)
{
    QDataStream stream(data.data(QString::fromLatin1(DragFormat::Key)));
    key_id_t key;
    stream >> key.lid >> key.pageid >> key.kid;
    const bool isKey = stream.status() == QDataStream::Ok && isWithin(key.lid, 1, LargestByte) &&
                       isWithin(key.pageid, 1, vorlinmodel::MaxPage) &&
                       isWithin(key.kid, vorlinmodel::FirstKeyId, vorlinmodel::LastKeyId);
    return isKey ? std::make_optional(key) : std::nullopt;
}

QString KeyDrag::mediaFileOf(const QMimeData &data, bool takesVideo)
{
    if (!data.hasUrls() || data.urls().size() != 1)
        return {};
    const QString path = data.urls().constFirst().toLocalFile();
    if (!QFileInfo(path).isFile())
        return {};
    if (takesVideo && PictureEdits::isVideoName(path))
        return path;
    // The head of the file is enough: this is asked with every move of the mouse.
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    return reader.canRead() ? path : QString();
}

bool KeyDrag::isCopy(const QDropEvent &event)
{
    return event.keyboardModifiers().testFlag(Qt::ControlModifier) ||
           !event.possibleActions().testFlag(Qt::MoveAction);
}

void KeyDrag::dropKey(EditorContext &context, const key_id_t &source, const key_id_t &target, bool copy)
{
    KeyEdits &edits = context.edits;
    edits.flush(); // what is being typed goes with the key
    const KeyState from = captureKeyState(edits.store(), source);
    if (source == target || !from.record)
        return;
    const KeyState to = captureKeyState(edits.store(), target);
    QVector<KeyPlacement> placements;
    if (!copy)
        placements.append({source, to});
    placements.append({target, from});
    edits.change(nameOfStep(copy, to.record.has_value()), placedKeys(placements), [&] {
        edits.apply(placements);
        if (context.completeChildPages)
            context.completeChildPages(placements);
    });
}
