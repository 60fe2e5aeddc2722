/// A panel in software where the fake HID library has its device.
#pragma once

#include "panel_model/panelmodel.h"
#include "support/fakehid.h"
#include "support/texts.h"

#include <QElapsedTimer>

/// The protocol thread and the test take turns.
class PanelBehindFake
{
public:
    PanelBehindFake()
    {
        fakeHid().setOnWrite([this](const QByteArray &report) { receive(report); });
    }
    ~PanelBehindFake() { fakeHid().setOnWrite({}); }
    PanelBehindFake(const PanelBehindFake &) = delete;
    PanelBehindFake &operator=(const PanelBehindFake &) = delete;

    PanelState state()
    {
        const std::lock_guard lock(mMutex);
        PanelState copy = mPanel.state();
        // What is shared would be let go without the lock, which the thread checker misreads.
        for (PanelKey &key : copy.keys) {
            for (QByteArray *bytes : {&key.record.title, &key.record.content, &key.content, &key.picture,
                                      &key.video, &key.actions})
                *bytes = QByteArray(bytes->constData(), bytes->size());
        }
        return copy;
    }
    QStringList violations()
    {
        const std::lock_guard lock(mMutex);
        return mPanel.violations();
    }
    /// Every message that has arrived whole, in hex: function code, length, body.
    QStringList messages()
    {
        const std::lock_guard lock(mMutex);
        return QStringList(mMessages.begin(), mMessages.end());
    }
    void clearMessages()
    {
        const std::lock_guard lock(mMutex);
        mMessages.clear();
    }
    /// Calls @p change with the panel, no report coming in between.
    void with(const std::function<void(PanelModel &)> &change)
    {
        const std::lock_guard lock(mMutex);
        change(mPanel);
        deliver();
    }
    void unplug()
    {
        fakeHid().setPresent(false);
        const std::lock_guard lock(mMutex);
        mIsPlugged = false;
        mPanel.resetLink();
        mPayload.clear();
    }
    void plug()
    {
        {
            const std::lock_guard lock(mMutex);
            mIsPlugged = true;
        }
        fakeHid().setPresent(true);
    }

private:
    void receive(const QByteArray &report)
    {
        const std::lock_guard lock(mMutex);
        if (!mIsPlugged) // pulled out while this report was on its way: it would be half a message
            return;
        mPayload += report.mid(7, report.at(5));
        if (report.at(2) != 1)
            mMessages.push_back(QString::fromLatin1(std::exchange(mPayload, {}).toHex(' ')));
        if (mPanel.awaitsPausedBlock() && mSinceLast.nsecsElapsed() < 2'000'000)
            mPanel.noteViolation("no pause between two blocks"_s);
        mPanel.receive(report);
        mSinceLast.start();
        deliver();
    }
    void deliver()
    {
        for (const QByteArray &answer : mPanel.takeOutgoing())
            fakeHid().send(answer);
    }

    std::mutex mMutex;
    PanelModel mPanel;
    bool mIsPlugged = true; ///< since the last plug() or unplug()
    QElapsedTimer mSinceLast;
    QByteArray mPayload;
    std::vector<QString> mMessages; // no list of Qt: see FakeHid::State
};
