/// Stands in for the HID library: the same functions, no device. Link fake_hid instead of the library.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QVector>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

/// One collection that the fake lists.
struct FakeCollection
{
    QByteArray path;
    int usagePage = 0;
    QString product = QStringLiteral("Key panel");
    QString manufacturer = {};
    QString serialNumber = {};
    bool nullTexts = false; ///< as the library lists texts that it could not read
};

/// A scripted device. Fresh after renewFakeHid(), which belongs into init(). Every operation may be called
/// while a thread under test is in one of the HID functions.
class FakeHid
{
public:
    static constexpr char DefaultPath[] = "\\\\?\\hid#fake&Col02";

    void setPresent(bool present); ///< false: as if unplugged; a blocked read ends with an error
    void setCollections(QVector<FakeCollection> collections); ///< one with DefaultPath at first
    void setOpenable(QList<QByteArray> paths); ///< which paths can be opened; DefaultPath at first

    void setInitResult(int result);
    void
    setWriteResult(std::optional<int> result); ///< what hid_write returns; nothing = all that was asked for
    void failWriteAfter(int successes); ///< so many writes succeed, then one fails, then all succeed again
    void setReadResult(std::optional<int> result);  ///< what every read returns
    void failNextRead();                            ///< the next read that finds nothing else fails, once
    void setErrorText(std::optional<QString> text); ///< of hid_error; nothing = a null pointer
    void setInstantTimeouts(bool on); ///< a read without data returns at once instead of after its time-out

    /// Appends a report (padded to 64 bytes) to what reads hand out.
    void send(const QByteArray &report);
    int unread() const;

    /// Runs after each successful write, on the writing thread and without a lock; may call send().
    void setOnWrite(std::function<void(const QByteArray &report)> hook);

    QList<QByteArray> written() const; ///< every report that was written successfully, in order
    void forgetWritten();
    QList<int> readTimeouts() const;  ///< time-outs of the reads so far, ms
    QList<QByteArray> opened() const; ///< paths of every attempt to open, in order
    int enumerations() const;
    int openHandles() const;  ///< above 0 when a test ends: a handle leaked
    int openListings() const; ///< enumerations that were not freed
    int initCalls() const;
    int exitCalls() const;

    struct State; // for the functions of the library
    FakeHid();
    ~FakeHid();
    State &state() { return *mpState; }

private:
    const std::unique_ptr<State> mpState;
};

FakeHid &fakeHid();
void renewFakeHid(); ///< no thread may be in a HID function meanwhile
