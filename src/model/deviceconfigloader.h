/// Turns what the panel sends of its configuration into records, picture files and action lists.
#pragma once

#include "model/ifunctionmanager.h"

#include <atomic>
#include <functional>
#include <mutex>

namespace vorlinmodel {

class KeyAttributeMap;

/// Any thread; meant for the receive workers, which work one after the other. Payloads are foreign bytes:
/// nothing is read beyond their length.
class DeviceConfigLoader
{
public:
    /// Carries out one step of a list that the panel wants run at once.
    using RunStep = std::function<bool(const key_id_t &key, int fid, const QString &command)>;

    DeviceConfigLoader(KeyAttributeMap &records, RunStep runStep);

    /// Takes one page of key records (layout, page, n x 272 bytes). A page of 2 bytes has no keys.
    /// @return layout and page, with key id 0; nothing when the payload was refused.
    std::optional<key_id_t> loadPage(const quint8 *payload, int length);
    void applyRecord(const key_id_t &key, const KeyRecord &record);
    /// Takes one attribute (layout, page, key, attribute id, data).
    /// @return true when the pictures received equal the keys announced; false for an action list.
    bool loadAttribute(const quint8 *payload, int length);

    void setTotal(int total); ///< sets the current count to 0
    IFunctionManager::ReceivedCounts counts() const;
    void setRecordPause(int milliseconds) { mRecordPause = milliseconds; }

private:
    void loadRecords(const quint8 *records, const QVector<KeyRecord> &decoded);
    void loadPicture(const key_id_t &key, const QByteArray &bytes);
    void loadActionList(const key_id_t &key, bool runNow, const QByteArray &value);
    void countPicture();

    KeyAttributeMap &mRecords;
    RunStep mRunStep;
    std::atomic<int> mRecordPause =
        20;                    // ms after each record: leaves the computer to others while a panel is read
    mutable std::mutex mMutex; // of the two counts, which are only true together
    int mRecvTotalKeyCount = 0;
    int mRecvCurKeyCount = 0;
};

} // namespace vorlinmodel
