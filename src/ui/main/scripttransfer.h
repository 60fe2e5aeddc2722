/// Sends the current script, the whole configuration, to the panel.
#pragma once

#include "base/handover.h"

#include <QObject>

namespace vorlindesk {
class IFrameworkContext;
}
namespace vorlinmodel {
enum class RequestOutcome;
struct Request;
} // namespace vorlinmodel

/// User-interface thread only. The protocol thread of @p context has to end before this object.
class ScriptTransfer : public QObject
{
    Q_OBJECT
public:
    explicit ScriptTransfer(vorlindesk::IFrameworkContext &context, QObject *parent = nullptr);

    void start();  ///< what vorlinmodel::currentScript() is when its turn comes
    void cancel(); ///< between two blocks
    bool isUnderWay() const { return mIsUnderWay; }

signals:
    void sigProgress(int sentBlocks, int allBlocks);
    void sigDone(vorlinmodel::RequestOutcome outcome);

private:
    void done(vorlinmodel::RequestOutcome outcome);

    vorlindesk::IFrameworkContext &mContext;
    bool mIsUnderWay = false;
    vorlindesk::HandOver mHandOver;
};
