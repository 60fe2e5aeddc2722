#include "scriptcontainer.h"

#include "base/log.h"
#include "base/paths.h"
#include "model/functioncatalogue.h"
#include "model/ifunctionmanager.h"
#include "model/multiaction.h"
#include "scriptrecords.h"
#include "wholefile.h"

#include <QFileInfo>
#include <mutex>

namespace vorlinmodel {

using vorlindesk::Log;
using vorlindesk::LogLevel;
namespace Paths = vorlindesk::Paths;

namespace {

namespace LogText {
constexpr char Damaged[] = "script: damaged: %s\n";
constexpr char ErrorKeyId[] = "Error keyid Layoutid:%d Pageid:%d,nKeyoutId=%d \n";
constexpr char FileNotWritten[] = "script: [%s] not written: %s\n";
constexpr char BadPicture[] = "script: picture of lid:%d pageid:%d kid:%d cannot be decoded\n";
} // namespace LogText

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
        if (!hasPlaceInScript(key)) {
            Log(LogLevel::Error, LogText::ErrorKeyId, key.lid, key.pageid, key.kid);
            mDone = false;
            return;
        }
        const ScriptKey extra = mScript.keys.value(key);
        StoredKey stored = storedKey(record, extra);
        writeFiles(stored);
        mStore.setKeyAttribute(key, stored.attribute);
        if (!extra.actions.isEmpty())
            mLists.append({key, extra.actions});
    }

    // What cannot be written is not named in the record.
    void writeFiles(StoredKey &stored)
    {
        key_atttribute_t &attribute = stored.attribute;
        if (stored.badPicture) {
            Log(LogLevel::Error, LogText::BadPicture, stored.key.lid, stored.key.pageid, stored.key.kid);
            mDone = false;
        }
        if (!stored.picture.isEmpty() && !writeFile(attribute.customImage, stored.picture))
            attribute.customImage.clear();
        if (!stored.video.isEmpty() && !writeFile(attribute.defaultImage, stored.video))
            attribute.defaultImage = FunctionCatalogue::defaultIcon(attribute.mFId);
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
