/// Stands in for the HID library: the same functions, no device. Link fake_hid instead of the library.
#pragma once

#include <QByteArray>
#include <QList>
#include <QVector>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

/// One collection that the fake lists.
struct FakeCollection
{
    std::string path;
    int usagePage = 0;
    std::wstring product = L"Key panel";
    std::wstring manufacturer = {};
    std::wstring serialNumber = {};
    bool nullTexts = false; ///< as the library lists texts that it could not read
};

/// A scripted device. Fresh after renewFakeHid(), which belongs into init(). Every operation may be called
/// while a thread under test is in one of the HID functions.
class FakeHid
{
public:
    static constexpr char DefaultPath[] = "\\\\?\\hid#fake&Col02";
    using Hook = std::function<void(const QByteArray &report)>;

    struct State // for the functions of the library
    {
        std::mutex mutex;
        std::condition_variable changed;
        bool present = true;
        QVector<FakeCollection> collections{{DefaultPath, 0xFF00}};
        QList<QByteArray> openable{DefaultPath};
        int initResult = 0;
        std::optional<int> writeResult;
        int writesBeforeFailure = -1;
        bool failRead = false;
        std::optional<std::wstring> errorText = L"fake error";
        bool instantTimeouts = false;
        std::deque<QByteArray> toRead;
        Hook onWrite;
        // Not lists of Qt, which would share their data with the copies that are handed out: the thread
        // checker does not understand that.
        std::vector<QByteArray> written;
        std::vector<int> readTimeouts;
        std::vector<QByteArray> opened;
        int enumerations = 0;
        int openHandles = 0;
        int openListings = 0;
    };

    /// False: as if unplugged; a blocked read ends with an error.
    void setPresent(bool present) { set(&State::present, present); }
    void setCollections(QVector<FakeCollection> list) { set(&State::collections, std::move(list)); }
    /// Which paths can be opened; DefaultPath at first.
    void setOpenable(QList<QByteArray> paths) { set(&State::openable, std::move(paths)); }
    void setInitResult(int result) { set(&State::initResult, result); }
    /// What hid_write returns; nothing = all that was asked for.
    void setWriteResult(std::optional<int> result) { set(&State::writeResult, result); }
    /// So many writes succeed, then one fails, then all succeed again.
    void failWriteAfter(int successes) { set(&State::writesBeforeFailure, successes); }
    /// The next read that finds nothing else fails, once.
    void failNextRead() { set(&State::failRead, true); }
    /// Of hid_error; nothing = a null pointer.
    void setErrorText(std::optional<std::wstring> text) { set(&State::errorText, std::move(text)); }
    /// A read without data returns at once instead of after its time-out.
    void setInstantTimeouts(bool on) { set(&State::instantTimeouts, on); }
    /// Runs after each successful write, on the writing thread and without a lock; may call send().
    void setOnWrite(Hook hook) { set(&State::onWrite, std::move(hook)); }
    /// Appends a report (padded to 64 bytes) to what reads hand out.
    void send(const QByteArray &report);

    /// Every report that was written successfully, in order.
    QList<QByteArray> written() { return list(&State::written); }
    QList<int> readTimeouts() { return list(&State::readTimeouts); } ///< of the reads so far, ms
    QList<QByteArray> opened() { return list(&State::opened); } ///< paths of every attempt to open, in order
    int enumerations() { return get(&State::enumerations); }
    int openHandles() { return get(&State::openHandles); }   ///< above 0 when a test ends: a handle leaked
    int openListings() { return get(&State::openListings); } ///< enumerations that were not freed
    State &state() { return mState; }

private:
    /// Changes one thing under the lock and wakes a read.
    template <typename Value, typename Given>
    void set(Value State::*member, Given given)
    {
        const std::lock_guard lock(mState.mutex);
        mState.*member = std::move(given);
        mState.changed.notify_all();
    }

    template <typename Value>
    Value get(Value State::*member)
    {
        const std::lock_guard lock(mState.mutex);
        return mState.*member;
    }

    template <typename Value>
    QList<Value> list(std::vector<Value> State::*member)
    {
        const std::vector<Value> values = get(member);
        return QList<Value>(values.begin(), values.end());
    }

    State mState;
};

FakeHid &fakeHid();
void renewFakeHid(); ///< no thread may be in a HID function meanwhile
