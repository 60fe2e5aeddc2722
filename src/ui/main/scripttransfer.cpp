#include "scripttransfer.h"

#include "base/iframeworkcontext.h"
#include "protocol/iprotocolthread.h"

using vorlinmodel::IProtocolThread;
using vorlinmodel::Request;
using vorlinmodel::RequestKind;
using vorlinmodel::RequestOutcome;

namespace {

constexpr quint32 Kind = static_cast<quint32>(RequestKind::MD_FUNCTION_CODE_CONFIGFILE);

} // namespace

/// Progress and outcome arrive on the protocol thread.
ScriptTransfer::ScriptTransfer(vorlindesk::IFrameworkContext &context, QObject *parent)
    : QObject(parent)
    , mContext(context)
{
    const IProtocolThread *thread = context.protocolThread();
    if (!thread)
        return;
    connect(
        thread, &IProtocolThread::sigTransferProgress, this,
        [this](const Request &request, int sent, int all) {
            if (request.functionCode == Kind)
                mHandOver.post([this, sent, all] { emit sigProgress(sent, all); });
        },
        Qt::DirectConnection);
    connect(
        thread, &IProtocolThread::sigRequestDone, this,
        [this](const Request &request, RequestOutcome outcome) {
            if (request.functionCode == Kind)
                mHandOver.post([this, outcome] { done(outcome); });
        },
        Qt::DirectConnection);
}

void ScriptTransfer::start()
{
    mIsUnderWay = true;
    emit sigProgress(0, 0);
    mContext.sendRequest(RequestKind::MD_FUNCTION_CODE_CONFIGFILE, 0, 0);
}

void ScriptTransfer::cancel()
{
    Request request;
    request.functionCode = Kind;
    if (IProtocolThread *thread = mContext.protocolThread(); thread && mIsUnderWay)
        thread->cancelTransfer(request);
}

void ScriptTransfer::done(RequestOutcome outcome)
{
    if (std::exchange(mIsUnderWay, false))
        emit sigDone(outcome);
}
