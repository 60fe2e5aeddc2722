#include "protocolthread.h"

#include "base/log.h"
#include "logtext.h"
#include "protocolworker.h"

namespace vorlinmodel {

using vorlindesk::Log;
using vorlindesk::LogLevel;

ProtocolThread::ProtocolThread(const IFunctionManager &store, QObject *parent)
    : IProtocolThread(parent)
    , mStore(store)
    , mpShared(std::make_unique<ProtocolShared>())
{}

ProtocolThread::~ProtocolThread()
{
    ProtocolThread::stop();
    wait(); // a thread that is stuck in the system's HID calls cannot be left: it would use freed memory
    // Qt's own hand-over at the end of a thread is invisible to the thread checker; this one is not.
    if (mpShared->running)
        qFatal("the protocol thread outlived its object");
    if (mpWorker)
        mpWorker->uninitialise();
}

bool ProtocolThread::Init()
{
    mpWorker = std::make_unique<ProtocolWorker>(*this, mStore, *mpShared);
    const bool ok = mpWorker->init();
    if (ok)
        Log(LogLevel::Info, ProtocolText::InitOk);
    else
        Log(LogLevel::Error, ProtocolText::InitFailed);
    return ok;
}

void ProtocolThread::postRequest(const Request &request)
{
    mpShared->queue.post(request);
}

void ProtocolThread::clearRequests()
{
    mpShared->queue.clear();
}

bool ProtocolThread::takeRequest(Request &request)
{
    std::optional<Request> oldest = mpShared->queue.take();
    if (!oldest)
        return false;
    request = std::move(*oldest);
    return true;
}

void ProtocolThread::cancelTransfer(const Request &request)
{
    mpShared->queue.cancel(request);
}

bool ProtocolThread::isUpgrading() const
{
    return mpShared->upgrading;
}

int ProtocolThread::pollingPeriod() const
{
    return mpShared->pollingPeriod;
}

void ProtocolThread::setPollingPeriod(int milliseconds)
{
    mpShared->pollingPeriod = milliseconds;
}

void ProtocolThread::stop()
{
    requestInterruption();
    mpShared->queue.interrupt();
    if (!wait(StopTimeout))
        Log(LogLevel::Error, ProtocolText::StopTimedOut, StopTimeout);
}

void ProtocolThread::run()
{
    mpShared->running.exchange(
        true); // reads it, too: what an earlier run has done is done, also for the checker
    mpShared->queue.resume();
    if (mpWorker)
        mpWorker->run();
    mpShared->running = false;
}

} // namespace vorlinmodel
