#include "fakehid.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <hidapi.h>
#include <memory>

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

/// The state of the fake, for as long as one operation needs it.
struct Locked
{
    FakeHid::State &state = fakeHid().state();
    const std::lock_guard<std::mutex> lock{state.mutex};
    FakeHid::State *operator->() const { return &state; }
};

/// A list entry with the texts that it points to.
struct Listed : hid_device_info
{
    FakeCollection texts;
};

Listed *listed(const FakeCollection &collection)
{
    auto *entry = new Listed{{}, collection}; // freed by hid_free_enumeration
    entry->path = entry->texts.path.data();
    entry->release_number = 0x0100;
    entry->usage_page = static_cast<unsigned short>(collection.usagePage);
    if (!collection.nullTexts) {
        entry->serial_number = entry->texts.serialNumber.data();
        entry->product_string = entry->texts.product.data();
        entry->manufacturer_string = entry->texts.manufacturer.data();
    }
    return entry;
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

FakeHid &fakeHid()
{
    return *current();
}

void renewFakeHid()
{
    current() = std::make_unique<FakeHid>();
}

void FakeHid::send(const QByteArray &report)
{
    const std::lock_guard lock(mState.mutex);
    mState.toRead.push_back(report.leftJustified(64, '\0', true));
    mState.changed.notify_all();
}

extern "C" int hid_init()
{
    return Locked()->initResult;
}

extern "C" int hid_exit()
{
    return 0;
}

extern "C" hid_device_info *hid_enumerate(unsigned short, unsigned short)
{
    const Locked state;
    ++state->enumerations;
    hid_device_info *pFirst = nullptr;
    hid_device_info **pNext = &pFirst;
    for (const FakeCollection &collection : qAsConst(state->collections)) {
        if (!state->present)
            break;
        *pNext = listed(collection);
        pNext = &(*pNext)->next;
    }
    if (pFirst != nullptr)
        ++state->openListings;
    return pFirst;
}

extern "C" void hid_free_enumeration(hid_device_info *pFirst)
{
    if (pFirst == nullptr)
        return;
    --Locked()->openListings;
    while (pFirst != nullptr)
        delete static_cast<Listed *>(std::exchange(pFirst, pFirst->next));
}

extern "C" hid_device *hid_open_path(const char *path)
{
    const Locked state;
    state->opened.emplace_back(path);
    if (!state->present || !state->openable.contains(QByteArray(path)))
        return nullptr;
    ++state->openHandles;
    return new hid_device_{path}; // freed by hid_close
}

extern "C" void hid_close(hid_device *device)
{
    const Locked state;
    --state->openHandles;
    state->toRead.clear(); // what waited is gone with the handle
    delete device;
}

extern "C" int hid_write(hid_device *, const unsigned char *data, size_t length)
{
    const QByteArray report(reinterpret_cast<const char *>(data), static_cast<int>(length));
    FakeHid::Hook hook;
    {
        const Locked state;
        if (writeFails(state.state))
            return -1;
        if (state->writeResult)
            return *state->writeResult;
        state->written.push_back(report);
        hook = state->onWrite;
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
        return !state.present || !state.toRead.empty() || state.failRead;
    };
    if (!state.instantTimeouts)
        state.changed.wait_for(lock, std::chrono::milliseconds(milliseconds), somethingHappened);
    if (!state.present)
        return -1;
    if (state.toRead.empty())
        return std::exchange(state.failRead, false) ? -1 : 0;
    const QByteArray report = std::move(state.toRead.front());
    state.toRead.pop_front();
    const size_t count = std::min(length, static_cast<size_t>(report.size()));
    std::memcpy(data, report.constData(), count);
    return static_cast<int>(count);
}

extern "C" const wchar_t *hid_error(hid_device *)
{
    const Locked state;
    return state->errorText ? state->errorText->c_str() : nullptr;
}
