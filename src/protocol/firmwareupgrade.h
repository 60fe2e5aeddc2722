/// Sends a firmware file to the panel and has the panel check it.
#pragma once

#include "devicecontext.h"

namespace vorlinmodel {

/// A kind-10 request. Holds the protocol thread to the end; its lines go to the upgrade dialog by
/// logMessageSignal, its outcome by sigSendUpdateAvailable and sigUpgradeFinished; sigTransferProgress tells
/// of the blocks, of a file of any size. The upgrading flag is set meanwhile.
void processUpgrade(DeviceContext &context, const Request &request);

} // namespace vorlinmodel
