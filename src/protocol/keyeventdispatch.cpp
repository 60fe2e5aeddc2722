#include "keyeventdispatch.h"

#include "base/log.h"
#include "logtext.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "platform/desktop.h"

namespace vorlinmodel {
namespace {

QString commandText(const key_atttribute_t &record)
{
    switch (record.mFId) {
    case HOME_PAGE_FID:
        return QString::fromLatin1(vorlindesk::DefaultHomePage);
    case OPEN_FILE_FID:
    case OPEN_WEB_FID:
    case TEXT_OUTPUT_FID:
        return record.strAppOrUrl;
    default:
        return {};
    }
}

} // namespace

std::optional<KeyCommand> commandOfKey(const IFunctionManager &store, const key_id_t &key)
{
    using namespace vorlindesk;
    const std::optional<key_atttribute_t> record = store.getKeyAttribute(key);
    if (!record)
        return std::nullopt;
    Log(LogLevel::Info, ProtocolText::ExecCommand, key.lid, key.pageid, key.kid, record->mFId);
    KeyCommand command{record->mFId, commandText(*record)};
    Log(LogLevel::Info, ProtocolText::ExecCommandText, qUtf8Printable(command.text));
    return command;
}

} // namespace vorlinmodel
