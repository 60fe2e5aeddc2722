#include "backuptext.h"
#include "base/log.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "model/keypicture.h"
#include "model/scriptcontainer.h"
#include "model/wholefile.h"
#include "scriptrecords.h"

#include <QFileInfo>
#include <algorithm>

namespace vorlinmodel {

using vorlindesk::Log;
using vorlindesk::LogLevel;

namespace {

namespace LogText {
constexpr char KeyLeftOut[] = "script: lid:%d pageid:%d kid:%d has no place in it\n";
constexpr char FileLeftOut[] = "script: lid:%d pageid:%d kid:%d without [%s]: %s\n";
constexpr char ActionsNotRead[] = "读取失败:%s";
} // namespace LogText

constexpr qint64 MaxScriptSize = MaxWholeFile - 1024 * 1024; // leaves room for heads and records
const QLatin1String ResourcePrefix(":/");

// True for a file that goes to the panel as it is: no second copy of it is needed.
bool isKeyPicture(const QByteArray &file, const key_id_t &key)
{
    if (!file.startsWith("\x89PNG"))
        return false;
    const QImage image = decodePicture(file);
    return image.size() == keyPixelSize(key) && !image.hasAlphaChannel();
}

QString nameOf(const key_id_t &key)
{
    return BackupText::key(key.lid, key.pageid, key.kid);
}

using Records = QVector<QPair<key_id_t, key_atttribute_t>>;

Records recordsOf(const IFunctionManager &store)
{
    Records records;
    for (const key_id_t &key : store.getKeys()) {
        if (const auto attribute = store.getKeyAttribute(key)) // else deleted meanwhile
            records.append({key, *attribute});
    }
    return records;
}

/// The person may edit meanwhile, and swap two keys of which one has been read. Twice the same means that
/// none has changed between.
Records recordsOfOneMoment(const IFunctionManager &store)
{
    Records records = recordsOf(store);
    for (;;) {
        Records again = recordsOf(store);
        if (again == records)
            return again;
        records = std::move(again);
    }
}

class Builder
{
public:
    Builder(const IFunctionManager &store, const MultiActionStore &actions, QStringList &leftOut)
        : mStore(store)
        , mLeftOut(leftOut)
    {
        QString error;
        const auto entries = actions.readAll(error);
        if (!entries && error != QLatin1String("fileEmpty"))
            Log(LogLevel::Error, LogText::ActionsNotRead, qUtf8Printable(error));
        for (const MultiActionEntry &entry : entries.value_or(QVector<MultiActionEntry>{}))
            mActions.insert(entry.key, entry.actions);
    }

    std::optional<Script> run(const BackupWatch &watch)
    {
        const Records records = recordsOfOneMoment(mStore);
        for (int i = 0; i < records.size(); ++i) {
            mWatch = watch.item(i, int(records.size()));
            if (!mWatch.goesOn(0, 1))
                return std::nullopt;
            take(records.at(i).first, records.at(i).second);
        }
        if (watch.isGivenUp())
            return std::nullopt;
        if (!mScript.pages.isEmpty()) {
            mScript.layoutId = mScript.pages.first().layoutId;
            mScript.pageId = mScript.pages.first().pageId;
        }
        return mScript;
    }

private:
    void take(const key_id_t &key, const key_atttribute_t &attribute)
    {
        if (hasPlaceInScript(key))
            return add(key, attribute);
        Log(LogLevel::Warn, LogText::KeyLeftOut, key.lid, key.pageid, key.kid);
        mLeftOut.append(nameOf(key));
    }

    void add(const key_id_t &key, const key_atttribute_t &attribute)
    {
        const KeyRecord record = scriptRecord(key, attribute);
        pageOf(record).records.append(record);
        ScriptKey &extra = mScript.keys[key];
        if (const ScriptTexts texts{attribute.strTitle, attribute.strAppOrUrl}; texts != scriptTexts(record))
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
        const bool isFile = extra.customImage && !attribute.customImage.isEmpty() &&
                            !attribute.customImage.startsWith(ResourcePrefix);
        const QByteArray file = isFile ? fileOf(key, attribute.customImage) : QByteArray();
        if (isFile && isKeyPicture(file, key)) {
            extra.picture = file;
            return;
        }
        extra.picture = encodedKeyPicture(mStore, key, keyPixelSize(key)).value_or(QByteArray());
        mFileBytes += extra.picture.size();
        extra.pictureFile = file;
        if (extra.customImage && !isFile)
            extra.resource = attribute.customImage;
    }

    void addVideo(const key_id_t &key, const QString &path, ScriptKey &extra)
    {
        if (path.isEmpty() || path.startsWith(ResourcePrefix)) // the icon of the key's function
            return;
        extra.video = fileOf(key, path);
        // Not the name of the file, which is another after the way back: the script stays the same.
        extra.videoName = scriptVideoName(key, QFileInfo(path).fileName());
    }

    QByteArray fileOf(const key_id_t &key, const QString &path)
    {
        QString error;
        const qint64 limit = std::max<qint64>(MaxScriptSize - mFileBytes, 0);
        const auto bytes = readWholeFile(path, error, limit, mWatch);
        if (!bytes && !mWatch.isGivenUp()) {
            Log(LogLevel::Warn, LogText::FileLeftOut, key.lid, key.pageid, key.kid, qUtf8Printable(path),
                qUtf8Printable(error));
            mLeftOut.append(BackupText::fileOfKey(path, nameOf(key), error));
        }
        mFileBytes += bytes ? bytes->size() : 0;
        return bytes.value_or(QByteArray());
    }

    const IFunctionManager &mStore;
    QStringList &mLeftOut;
    BackupWatch mWatch; ///< of the key that is taken
    QMap<key_id_t, QVector<MultiAction>> mActions;
    Script mScript;
    qint64 mFileBytes = 0;
};

} // namespace

std::optional<Script> collectScript(const IFunctionManager &store, const MultiActionStore &actions,
                                    const BackupWatch &watch, QStringList &leftOut)
{
    return Builder(store, actions, leftOut).run(watch);
}

QByteArray buildScript(const IFunctionManager &store, const MultiActionStore &actions)
{
    QStringList leftOut; // in the log
    return encodeScript(collectScript(store, actions, {}, leftOut).value_or(Script{}));
}

} // namespace vorlinmodel
