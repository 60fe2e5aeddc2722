#include "scriptcontainer.h"

#include "base/log.h"
#include "base/paths.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "model/keypicture.h"
#include "model/multiaction.h"
#include "model/scriptformat.h"
#include "wholefile.h"
#include "wire/textcodec.h"

#include <QFileInfo>
#include <algorithm>
#include <mutex>

namespace vorlinmodel {

using vorlindesk::Log;
using vorlindesk::LogLevel;
namespace Paths = vorlindesk::Paths;

namespace {

namespace LogText {
constexpr char KeyLeftOut[] = "script: lid:%d pageid:%d kid:%d has no place in it\n";
constexpr char FileLeftOut[] = "script: lid:%d pageid:%d kid:%d without [%s]: %s\n";
constexpr char ActionsNotRead[] = "读取失败:%s";
constexpr char Damaged[] = "script: damaged: %s\n";
constexpr char ErrorKeyId[] = "Error keyid Layoutid:%d Pageid:%d,nKeyoutId=%d \n";
constexpr char FileNotWritten[] = "script: [%s] not written: %s\n";
constexpr char BadPicture[] = "script: picture of lid:%d pageid:%d kid:%d cannot be decoded\n";
} // namespace LogText

constexpr int MaxByte = 255;
constexpr qint64 MaxScriptSize = MaxWholeFile - 1024 * 1024; // leaves room for heads and records
const QLatin1String ResourcePrefix(":/");

quint8 toByte(int value)
{
    return static_cast<quint8>(std::clamp(value, 0, MaxByte));
}

bool hasPlace(const key_id_t &key)
{
    return key.lid >= 0 && key.lid <= MaxByte && key.pageid >= 0 && key.pageid <= MaxByte &&
           key.kid >= FirstKeyId && key.kid <= LastKeyId;
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

ScriptTexts textsOf(const KeyRecord &record)
{
    return {TextCodec::fromGbk(record.title), contentText(record)};
}

KeyRecord recordOf(const key_id_t &key, const key_atttribute_t &attribute)
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

// True for a file that goes to the panel as it is: no second copy of it is needed.
bool isKeyPicture(const QByteArray &file, const key_id_t &key)
{
    if (!file.startsWith("\x89PNG"))
        return false;
    const QImage image = decodePicture(file);
    return image.size() == keyPixelSize(key) && !image.hasAlphaChannel();
}

class Builder
{
public:
    Builder(const IFunctionManager &store, const MultiActionStore &actions)
        : mStore(store)
    {
        QString error;
        const auto entries = actions.readAll(error);
        if (!entries && error != QLatin1String("fileEmpty"))
            Log(LogLevel::Error, LogText::ActionsNotRead, qUtf8Printable(error));
        for (const MultiActionEntry &entry : entries.value_or(QVector<MultiActionEntry>{}))
            mActions.insert(entry.key, entry.actions);
    }

    QByteArray run()
    {
        for (const key_id_t &key : mStore.getKeys()) {
            const auto attribute = mStore.getKeyAttribute(key);
            if (!attribute) // deleted meanwhile
                continue;
            if (hasPlace(key))
                add(key, *attribute);
            else
                Log(LogLevel::Warn, LogText::KeyLeftOut, key.lid, key.pageid, key.kid);
        }
        return encodeScript(mScript);
    }

private:
    void add(const key_id_t &key, const key_atttribute_t &attribute)
    {
        const KeyRecord record = recordOf(key, attribute);
        pageOf(record).records.append(record);
        ScriptKey &extra = mScript.keys[key];
        if (const ScriptTexts texts{attribute.strTitle, attribute.strAppOrUrl}; texts != textsOf(record))
            extra.texts = texts;
        addPicture(key, attribute, extra);
        addVideo(key, attribute.defaultImage, extra);
        extra.actions = mActions.value(key);
    }

    PagePayload &pageOf(const KeyRecord &record) // keys come in ascending order
    {
        auto &pages = mScript.pages;
        if (pages.isEmpty() || pages.last().layoutId != record.layoutId ||
            pages.last().pageId != record.pageId)
            pages.append({record.layoutId, record.pageId, {}});
        return pages.last();
    }

    void addPicture(const key_id_t &key, const key_atttribute_t &attribute, ScriptKey &extra)
    {
        extra.customImage = attribute.nDisplayImageType != DefaultImage;
        extra.picture = encodedKeyPicture(mStore, key).value_or(QByteArray());
        if (!extra.customImage || attribute.customImage.isEmpty())
            return;
        if (attribute.customImage.startsWith(ResourcePrefix)) {
            extra.resource = attribute.customImage;
            return;
        }
        const QByteArray file = fileOf(key, attribute.customImage);
        if (isKeyPicture(file, key))
            extra.picture = file;
        else
            extra.pictureFile = file;
    }

    void addVideo(const key_id_t &key, const QString &path, ScriptKey &extra)
    {
        if (path.isEmpty() || path.startsWith(ResourcePrefix)) // the icon of the key's function
            return;
        extra.video = fileOf(key, path);
        extra.videoName = QFileInfo(path).fileName();
    }

    QByteArray fileOf(const key_id_t &key, const QString &path)
    {
        QString error;
        const auto bytes = readWholeFile(path, error, MaxScriptSize - mFileBytes);
        if (!bytes)
            Log(LogLevel::Warn, LogText::FileLeftOut, key.lid, key.pageid, key.kid, qUtf8Printable(path),
                qUtf8Printable(error));
        mFileBytes += bytes ? bytes->size() : 0;
        return bytes.value_or(QByteArray());
    }

    const IFunctionManager &mStore;
    QMap<key_id_t, QVector<MultiAction>> mActions;
    Script mScript;
    qint64 mFileBytes = 0;
};

class Applier
{
public:
    Applier(const Script &script, IFunctionManager &store)
        : mScript(script)
        , mStore(store)
    {}

    bool run(MultiActionStore &actions)
    {
        for (const PagePayload &page : mScript.pages) {
            mStore.deletePageKeys(page.layoutId, page.pageId);
            for (int kid = FirstKeyId; kid <= LastKeyId; ++kid)
                mReplaced.append({page.layoutId, page.pageId, kid});
            for (const KeyRecord &record : page.records)
                takeRecord(record);
        }
        QString error;
        const bool listsDone = mScript.pages.isEmpty() || actions.replaceEntries(mReplaced, mLists, error);
        return listsDone && mDone;
    }

private:
    void takeRecord(const KeyRecord &record)
    {
        const key_id_t key{record.layoutId, record.pageId, record.keyId};
        if (!hasPlace(key)) {
            Log(LogLevel::Error, LogText::ErrorKeyId, key.lid, key.pageid, key.kid);
            mDone = false;
            return;
        }
        const ScriptKey extra = mScript.keys.value(key);
        setAttributes(key, record, extra.texts.value_or(textsOf(record)));
        if (extra.customImage)
            mStore.setCustomImage(key, customImagePath(key, extra));
        if (!extra.video.isEmpty())
            setVideo(key, extra);
        if (!extra.actions.isEmpty())
            mLists.append({key, extra.actions});
    }

    void setAttributes(const key_id_t &key, const KeyRecord &record, const ScriptTexts &texts)
    {
        mStore.addKeyAttribute(key, record.functionId);
        mStore.setImageEffects(key, record.imageEffects);
        mStore.setDisplayMode(key, record.displayMode);
        mStore.setTitleAlignment(key, record.titleAlignment);
        mStore.setTitleFontSize(key, record.titleFontSize);
        mStore.setTitleFontColor(key, QColor(record.red, record.green, record.blue));
        mStore.setTitle(key, texts.title);
        mStore.setUrlOrPath(key, texts.content);
    }

    // @return empty when there is no picture: the key then shows none, as it did when the script was made.
    QString customImagePath(const key_id_t &key, const ScriptKey &extra)
    {
        if (extra.resource.startsWith(ResourcePrefix))
            return extra.resource;
        const QString path = Paths::keyPicture(key.lid, key.pageid, key.kid);
        if (!extra.pictureFile.isEmpty())
            return writeFile(path, extra.pictureFile) ? path : QString();
        if (extra.picture.isEmpty())
            return {};
        if (decodePicture(extra.picture).isNull()) {
            Log(LogLevel::Error, LogText::BadPicture, key.lid, key.pageid, key.kid);
            mDone = false;
            return {};
        }
        return writeFile(path, extra.picture) ? path : QString();
    }

    // Not into the image folder, which is emptied whenever the panel's configuration is read.
    void setVideo(const key_id_t &key, const ScriptKey &extra)
    {
        // Only letters and digits of the ending: the name comes from the file, and leads nowhere else.
        QString ending = QFileInfo(extra.videoName).suffix().left(8);
        if (!std::all_of(ending.begin(), ending.end(), [](QChar c) { return c.isLetterOrNumber(); }))
            ending.clear();
        const QString path = Paths::devConfigFolder() +
                             QStringLiteral("/video/%1_%2_%3.").arg(key.lid).arg(key.pageid).arg(key.kid) +
                             (ending.isEmpty() ? QStringLiteral("video") : ending);
        if (writeFile(path, extra.video))
            mStore.setCustomVideo(key, path);
    }

    bool writeFile(const QString &path, const QByteArray &bytes)
    {
        Paths::createPath(QFileInfo(path).path());
        QString error;
        if (writeWholeFile(path, bytes, error))
            return true;
        Log(LogLevel::Error, LogText::FileNotWritten, qUtf8Printable(path), qUtf8Printable(error));
        mDone = false;
        return false;
    }

    const Script &mScript;
    IFunctionManager &mStore;
    QVector<key_id_t> mReplaced;
    QVector<MultiActionEntry> mLists;
    bool mDone = true;
};

struct CurrentScript
{
    std::mutex mutex;
    QByteArray bytes;
};

CurrentScript &current()
{
    static CurrentScript script;
    return script;
}

} // namespace

QByteArray buildScript(const IFunctionManager &store, const MultiActionStore &actions)
{
    return Builder(store, actions).run();
}

bool applyScript(const Script &script, IFunctionManager &store, MultiActionStore &actions)
{
    return Applier(script, store).run(actions);
}

bool applyScriptBytes(const QByteArray &bytes, IFunctionManager &store, MultiActionStore &actions)
{
    const Script script = parseScript(bytes);
    for (const QString &name : script.damaged)
        Log(LogLevel::Error, LogText::Damaged, qUtf8Printable(name));
    return script.damaged.isEmpty() && applyScript(script, store, actions);
}

QByteArray currentScript()
{
    const std::lock_guard lock(current().mutex);
    return current().bytes;
}

void setCurrentScript(const QByteArray &bytes)
{
    const std::lock_guard lock(current().mutex);
    current().bytes = bytes;
}

} // namespace vorlinmodel
