/// How far a read of the panel's configuration is.
#pragma once

/// The panel sends page by page, each followed by the pictures of its keys, and never says which page is the
/// last. So a read is over when a page is complete and nothing more comes. User-interface thread only; no
/// timers here.
class ReadProgress
{
public:
    enum class State {
        Idle,      ///< nothing is being read
        Requested, ///< asked for, no page yet
        Receiving, ///< a page has come, some of its pictures have not
        PageRead,  ///< complete as far as announced; another page may follow
    };

    void begin();
    /// At the arrival of a page. @return whether it is the first since begin().
    bool takeFirstPage();
    void pageReceived(int keyCount);
    void pictureReceived(int total, int received); ///< of the page under way
    void pageComplete();
    /// Nothing more comes. @return false when the read ends before its page was complete.
    bool finish();
    /// The link broke: a read under way must be repeated when the panel is back, however late that is.
    void linkLost();
    bool mustReadAgain() const { return isReading() || mInterrupted; }

    /// What is being read, or was read last, is the answer to a begin().
    bool wasAskedFor() const { return mAskedFor; }

    State state() const { return mState; }
    bool isReading() const { return mState != State::Idle; }
    int keysAnnounced() const { return mKeysOfCompletePages + mPageTotal; }
    int keysReceived() const { return mKeysOfCompletePages + mPageReceived; }
    int pages() const { return mPages; }

private:
    State mState = State::Idle;
    bool mAskedFor = false;
    bool mFirstPageAwaited = false;
    bool mInterrupted = false;
    int mKeysOfCompletePages = 0;
    int mPageTotal = 0;
    int mPageReceived = 0;
    int mPages = 0;
};
