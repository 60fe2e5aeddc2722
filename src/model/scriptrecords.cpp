#include "scriptrecords.h"

#include "base/paths.h"
#include "model/functioncatalogue.h"
#include "model/functionids.h"
#include "model/keypicture.h"
#include "wire/textcodec.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <algorithm>

namespace vorlinmodel {

namespace {

constexpr int MaxByte = 255;
constexpr int MaxEnding = 8; // characters
const QLatin1String ResourcePrefix(":/");

quint8 toByte(int value)
{
    return static_cast<quint8>(std::clamp(value, 0, MaxByte));
}

QByteArray contentBytes(int fid, const QString &text)
{
    if (fid == KEY_COMBINATION_FID)
        return keyCombinationCodes(text);
    if (fid == TEXT_OUTPUT_FID)
        return TextCodec::toOutput(text, KeyRecordField::TextArea);
    return TextCodec::toUtf8(text, KeyRecordField::TextArea);
}

QString contentText(const KeyRecord &record)
{
    if (record.functionId == KEY_COMBINATION_FID)
        return keyCombinationText(record.content);
    if (record.functionId == TEXT_OUTPUT_FID)
        return TextCodec::fromOutput(record.content);
    return TextCodec::fromUtf8(record.content);
}

key_atttribute_t attributeOf(const KeyRecord &record, const ScriptTexts &texts)
{
    key_atttribute_t attribute;
    attribute.mFId = record.functionId;
    attribute.nDisplayImageType = DefaultImage;
    attribute.defaultImage = FunctionCatalogue::defaultIcon(record.functionId);
    attribute.imageEffects = record.imageEffects;
    attribute.nDisplaymode = record.displayMode;
    attribute.strTitle = texts.title;
    attribute.titleAlignment = record.titleAlignment;
    attribute.titleFontSize = record.titleFontSize;
    attribute.titleColour = QColor(record.red, record.green, record.blue);
    attribute.strAppOrUrl = texts.content;
    return attribute;
}

// A key without any picture file shows none, as it did when the script was made.
void setPicture(StoredKey &stored, const ScriptKey &extra)
{
    stored.attribute.nDisplayImageType = CustomImage;
    if (extra.resource.startsWith(ResourcePrefix)) {
        stored.attribute.customImage = extra.resource;
        return;
    }
    stored.picture = extra.pictureFile;
    if (stored.picture.isEmpty() && !extra.picture.isEmpty()) {
        stored.badPicture = decodePicture(extra.picture).isNull();
        stored.picture = stored.badPicture ? QByteArray() : extra.picture;
    }
    if (!stored.picture.isEmpty())
        stored.attribute.customImage =
            vorlindesk::Paths::keyPicture(stored.key.lid, stored.key.pageid, stored.key.kid);
}

QString videoEnding(const QString &original)
{
    const QString ending = QFileInfo(original).suffix().left(MaxEnding);
    const bool isUsable = !ending.isEmpty() && std::all_of(ending.begin(), ending.end(),
                                                           [](QChar c) { return c.isLetterOrNumber(); });
    return isUsable ? ending : QStringLiteral("video");
}

} // namespace

bool hasPlaceInScript(const key_id_t &key)
{
    return key.lid >= 0 && key.lid <= MaxByte && key.pageid >= 0 && key.pageid <= MaxByte &&
           key.kid >= FirstKeyId && key.kid <= LastKeyId;
}

KeyRecord scriptRecord(const key_id_t &key, const key_atttribute_t &attribute)
{
    return {
        .layoutId = toByte(key.lid),
        .pageId = toByte(key.pageid),
        .keyId = toByte(key.kid),
        .functionId = toByte(attribute.mFId),
        .imageEffects = toByte(attribute.imageEffects),
        .displayMode = toByte(attribute.nDisplaymode),
        .titleAlignment = toByte(attribute.titleAlignment),
        .titleFontSize = toByte(attribute.titleFontSize),
        .red = toByte(attribute.titleColour.red()),
        .green = toByte(attribute.titleColour.green()),
        .blue = toByte(attribute.titleColour.blue()),
        .title = TextCodec::toGbk(attribute.strTitle, KeyRecordField::TextArea),
        .content = contentBytes(attribute.mFId, attribute.strAppOrUrl),
    };
}

ScriptTexts scriptTexts(const KeyRecord &record)
{
    return {TextCodec::fromGbk(record.title), contentText(record)};
}

QString scriptVideoFolder()
{
    return vorlindesk::Paths::devConfigFolder() + QStringLiteral("/video");
}

// Joined, not filled in with arg(): the ending is foreign.
QString scriptVideoName(const key_id_t &key, const QString &original)
{
    return QStringLiteral("%1_%2_%3.").arg(key.lid).arg(key.pageid).arg(key.kid) + videoEnding(original);
}

QString scriptVideoPath(const QByteArray &bytes, const QString &original, const BackupWatch &watch)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    watch.inPieces(bytes.size(), [&](qint64 offset, qint64 length) {
        hash.addData(bytes.constData() + offset, int(length));
        return true;
    });
    return scriptVideoFolder() + QLatin1Char('/') + QString::fromLatin1(hash.result().toHex()) +
           QLatin1Char('.') + videoEnding(original);
}

StoredKey storedKey(const KeyRecord &record, const ScriptKey &extra, const BackupWatch &watch)
{
    StoredKey stored;
    stored.key = {record.layoutId, record.pageId, record.keyId};
    stored.attribute = attributeOf(record, extra.texts.value_or(scriptTexts(record)));
    if (extra.customImage)
        setPicture(stored, extra);
    stored.video = extra.video;
    if (!stored.video.isEmpty())
        stored.attribute.defaultImage = scriptVideoPath(stored.video, extra.videoName, watch);
    return stored;
}

} // namespace vorlinmodel
