#include "fakehid.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <deque>
#include <hidapi.h>
#include <string>
#include <vector>

struct FakeHid::State
{
    mutable std::mutex mutex;
    std::condition_variable changed;
    bool present = true;
    QVector<FakeCollection> collections{{DefaultPath, 0xFF00}};
    QList<QByteArray> openable{DefaultPath};
    int initResult = 0;
    std::optional<int> writeResult;
    int writesBeforeFailure = -1;
    std::optional<int> readResult;
    bool failRead = false;
    std::optional<QString> errorText = QStringLiteral("fake error");
    std::wstring lastErrorText;
    bool instantTimeouts = false;
    std::deque<QByteArray> toRead;
    std::function<void(const QByteArray &)> onWrite;
    // Not lists of Qt, which would share their data with the copies that are handed out: the thread checker
    // does not understand that.
    std::vector<QByteArray> written;
    std::vector<int> readTimeouts;
    std::vector<QByteArray> opened;
    int enumerations = 0;
    int openHandles = 0;
    int openListings = 0;
    int initCalls = 0;
    int exitCalls = 0;
};

struct hid_device_
{
    QByteArray path;
};

namespace {

std::unique_ptr<FakeHid> &current()
{
    static std::unique_ptr<FakeHid> fake = std::make_unique<FakeHid>();
    return fake;
}

/// A list entry with the texts that it points to.
struct Listed : hid_device_info
{
    std::string pathBytes;
    std::wstring serialText;
    std::wstring productText;
    std::wstring manufacturerText;
};

Listed *listed(const FakeCollection &collection)
{
    auto *entry = new Listed; // freed by hid_free_enumeration
    static_cast<hid_device_info &>(*entry) = {};
    entry->pathBytes = collection.path.toStdString();
    entry->serialText = collection.serialNumber.toStdWString();
    entry->productText = collection.product.toStdWString();
    entry->manufacturerText = collection.manufacturer.toStdWString();
    entry->path = entry->pathBytes.data();
    entry->vendor_id = 0x4869;
    entry->product_id = 0x1234;
    entry->release_number = 0x0100;
    entry->usage_page = static_cast<unsigned short>(collection.usagePage);
    entry->bus_type = HID_API_BUS_USB;
    if (!collection.nullTexts) {
        entry->serial_number = entry->serialText.data();
        entry->product_string = entry->productText.data();
        entry->manufacturer_string = entry->manufacturerText.data();
    }
    return entry;
}

/// Changes one thing under the lock and wakes a read.
template <typename Change>
void change(FakeHid::State &state, Change &&what)
{
    {
        const std::lock_guard lock(state.mutex);
        what(state);
    }
    state.changed.notify_all();
}

template <typename Value>
Value read(FakeHid::State &state, Value FakeHid::State::*member)
{
    const std::lock_guard lock(state.mutex);
    return state.*member;
}

template <typename Value>
QList<Value> listOf(const std::vector<Value> &values)
{
    return QList<Value>(values.begin(), values.end());
}

bool writeFails(FakeHid::State &state)
{
    if (!state.present)
        return true;
    if (state.writesBeforeFailure < 0)
        return false;
    return state.writesBeforeFailure-- == 0;
}

} // namespace

FakeHid::FakeHid()
    : mpState(std::make_unique<State>())
{}

FakeHid::~FakeHid() = default;

FakeHid &fakeHid()
{
    return *current();
}

void renewFakeHid()
{
    current() = std::make_unique<FakeHid>();
}

void FakeHid::setPresent(bool present)
{
    change(*mpState, [&](State &state) { state.present = present; });
}

void FakeHid::setCollections(QVector<FakeCollection> collections)
{
    change(*mpState, [&](State &state) { state.collections = std::move(collections); });
}

void FakeHid::setOpenable(QList<QByteArray> paths)
{
    change(*mpState, [&](State &state) { state.openable = std::move(paths); });
}

void FakeHid::setInitResult(int result)
{
    change(*mpState, [&](State &state) { state.initResult = result; });
}

void FakeHid::setWriteResult(std::optional<int> result)
{
    change(*mpState, [&](State &state) { state.writeResult = result; });
}

void FakeHid::failWriteAfter(int successes)
{
    change(*mpState, [&](State &state) { state.writesBeforeFailure = successes; });
}

void FakeHid::setReadResult(std::optional<int> result)
{
    change(*mpState, [&](State &state) { state.readResult = result; });
}

void FakeHid::failNextRead()
{
    change(*mpState, [&](State &state) { state.failRead = true; });
}

void FakeHid::setErrorText(std::optional<QString> text)
{
    change(*mpState, [&](State &state) { state.errorText = std::move(text); });
}

void FakeHid::setInstantTimeouts(bool on)
{
    change(*mpState, [&](State &state) { state.instantTimeouts = on; });
}

void FakeHid::send(const QByteArray &report)
{
    change(*mpState, [&](State &state) { state.toRead.push_back(report.leftJustified(64, '\0', true)); });
}

int FakeHid::unread() const
{
    return static_cast<int>(read(*mpState, &State::toRead).size());
}

void FakeHid::setOnWrite(std::function<void(const QByteArray &)> hook)
{
    change(*mpState, [&](State &state) { state.onWrite = std::move(hook); });
}

QList<QByteArray> FakeHid::written() const
{
    return listOf(read(*mpState, &State::written));
}

void FakeHid::forgetWritten()
{
    change(*mpState, [](State &state) { state.written.clear(); });
}

QList<int> FakeHid::readTimeouts() const
{
    return listOf(read(*mpState, &State::readTimeouts));
}

QList<QByteArray> FakeHid::opened() const
{
    return listOf(read(*mpState, &State::opened));
}

int FakeHid::enumerations() const
{
    return read(*mpState, &State::enumerations);
}

int FakeHid::openHandles() const
{
    return read(*mpState, &State::openHandles);
}

int FakeHid::openListings() const
{
    return read(*mpState, &State::openListings);
}

int FakeHid::initCalls() const
{
    return read(*mpState, &State::initCalls);
}

int FakeHid::exitCalls() const
{
    return read(*mpState, &State::exitCalls);
}

extern "C" int hid_init()
{
    FakeHid::State &state = fakeHid().state();
    const std::lock_guard lock(state.mutex);
    ++state.initCalls;
    return state.initResult;
}

extern "C" int hid_exit()
{
    FakeHid::State &state = fakeHid().state();
    const std::lock_guard lock(state.mutex);
    ++state.exitCalls;
    return 0;
}

extern "C" hid_device_info *hid_enumerate(unsigned short, unsigned short)
{
    FakeHid::State &state = fakeHid().state();
    const std::lock_guard lock(state.mutex);
    ++state.enumerations;
    hid_device_info *pFirst = nullptr;
    hid_device_info **pNext = &pFirst;
    for (const FakeCollection &collection : qAsConst(state.collections)) {
        if (!state.present)
            break;
        *pNext = listed(collection);
        pNext = &(*pNext)->next;
    }
    if (pFirst != nullptr)
        ++state.openListings;
    return pFirst;
}

extern "C" void hid_free_enumeration(hid_device_info *pFirst)
{
    if (pFirst == nullptr)
        return;
    FakeHid::State &state = fakeHid().state();
    const std::lock_guard lock(state.mutex);
    --state.openListings;
    while (pFirst != nullptr) {
        hid_device_info *const pNext = pFirst->next;
        delete static_cast<Listed *>(pFirst);
        pFirst = pNext;
    }
}

extern "C" hid_device *hid_open_path(const char *path)
{
    FakeHid::State &state = fakeHid().state();
    const std::lock_guard lock(state.mutex);
    state.opened.emplace_back(path);
    if (!state.present || !state.openable.contains(QByteArray(path)))
        return nullptr;
    ++state.openHandles;
    return new hid_device_{path}; // freed by hid_close
}

extern "C" void hid_close(hid_device *device)
{
    FakeHid::State &state = fakeHid().state();
    const std::lock_guard lock(state.mutex);
    --state.openHandles;
    state.toRead.clear(); // what waited is gone with the handle
    delete device;
}

extern "C" int hid_write(hid_device *, const unsigned char *data, size_t length)
{
    FakeHid::State &state = fakeHid().state();
    const QByteArray report(reinterpret_cast<const char *>(data), static_cast<int>(length));
    std::function<void(const QByteArray &)> hook;
    {
        const std::lock_guard lock(state.mutex);
        if (writeFails(state))
            return -1;
        if (state.writeResult)
            return *state.writeResult;
        state.written.push_back(report);
        hook = state.onWrite;
    }
    if (hook)
        hook(report);
    return static_cast<int>(length);
}

extern "C" int hid_read_timeout(hid_device *, unsigned char *data, size_t length, int milliseconds)
{
    FakeHid::State &state = fakeHid().state();
    std::unique_lock lock(state.mutex);
    state.readTimeouts.push_back(milliseconds);
    const auto somethingHappened = [&state] {
        return !state.present || !state.toRead.empty() || state.failRead || state.readResult;
    };
    if (!state.instantTimeouts)
        state.changed.wait_for(lock, std::chrono::milliseconds(milliseconds), somethingHappened);
    if (!state.present)
        return -1;
    if (state.readResult)
        return *state.readResult;
    if (state.toRead.empty()) {
        const bool fails = state.failRead;
        state.failRead = false;
        return fails ? -1 : 0;
    }
    const QByteArray report = std::move(state.toRead.front());
    state.toRead.pop_front();
    const size_t count = std::min(length, static_cast<size_t>(report.size()));
    std::memcpy(data, report.constData(), count);
    return static_cast<int>(count);
}

extern "C" const wchar_t *hid_error(hid_device *)
{
    FakeHid::State &state = fakeHid().state();
    const std::lock_guard lock(state.mutex);
    if (!state.errorText)
        return nullptr;
    state.lastErrorText = state.errorText->toStdWString();
    return state.lastErrorText.c_str();
}
