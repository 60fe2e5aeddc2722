/// Decodes what the panel sends, and puts it into the model.
#pragma once

#include "model/keyid.h"

#include <QByteArray>
#include <QString>
#include <QVector>
#include <functional>

namespace vorlindesk {
class HandOver;
}
namespace vorlinmodel {
class IFunctionManager;
}
namespace ApplicationMessage {
struct View;
}

/// A page whose keys are in the store.
struct ReceivedPage
{
    int layoutId = 0;
    int pageId = 0;
    int keyCount = 0;   ///< as announced: so many pictures follow
    bool first = false; ///< of this read
    QVector<vorlinmodel::key_id_t> keys;
};

/// What has come out of a message. All calls are made on the user-interface thread, in the order of arrival.
class IReceivedData
{
public:
    virtual ~IReceivedData() = default;

    virtual void onPageReceived(const ReceivedPage &page) = 0;
    /// One message of the page under way: pictures announced and received so far.
    virtual void onRecordReceived(int total, int received) = 0;
    /// All that was announced has arrived.
    virtual void onConfigurationComplete() = 0;
    /// Codes 3 and 4: a version; 16: the brightness; 18: the system type.
    virtual void onTextReceived(int code, const QString &text) = 0;
    /// The entries of the record are in system.ini already, if they count.
    virtual void onHomeLayoutReceived(int layoutId) = 0;
    virtual void onCustomLayoutReceived(const QByteArray &payload) = 0;
};

struct ReceivedMessage
{
    QByteArray bytes;                ///< whole, as the protocol thread put it together
    bool firstPage = false;          ///< the first page since a read was asked for
    bool answersHomeSetting = false; ///< a home layout: where its entries lead counts, too
};

/// Reads no byte beyond the message, whatever its lengths say.
class ReceivedDataHandler
{
public:
    struct Options
    {
        int customLayoutPause = 100; ///< ms, before a custom layout is handed on
        /// Deletes the custom layouts of their page; empty while there is no such page. Called once per run,
        /// on the user-interface thread.
        std::function<void()> clearCustomLayouts;
    };

    /// @p handOver lives on the thread of @p receiver.
    ReceivedDataHandler(vorlinmodel::IFunctionManager &store, vorlindesk::HandOver &handOver,
                        IReceivedData &receiver, Options options);

    /// Any thread, but one call at a time. May take long: writes pictures, pauses.
    void handle(const ReceivedMessage &message);

private:
    void dispatch(const ApplicationMessage::View &view, const ReceivedMessage &message);
    void handlePage(const ApplicationMessage::View &view, bool firstPage);
    void handleKeyAttribute(const ApplicationMessage::View &view);
    void handleVersion(const ApplicationMessage::View &view);
    void handleCustomLayout(const ApplicationMessage::View &view);
    void handleLcdLight(const ApplicationMessage::View &view);
    void handleHomeLayout(const ApplicationMessage::View &view, bool answersSetting);
    void handleSystemType(const ApplicationMessage::View &view);
    void postText(int code, const QString &text);
    void postComplete();

    vorlinmodel::IFunctionManager &mStore;
    vorlindesk::HandOver &mHandOver;
    IReceivedData &mReceiver;
    const Options mOptions;
    bool mCustomLayoutCleared = false;
};
