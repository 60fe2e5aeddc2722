/// Writes one attribute of a key to the panel.
#pragma once

#include "devicecontext.h"

namespace vorlinmodel {

/// A kind-1 request: the value comes from the store as it is now. Without a record nothing is sent, except
/// for "clear the key", and for the function id, which the request brings itself.
void processKeyAttribute(DeviceContext &context, const Request &request);

/// Reports the result of such a request that was cancelled before its turn came.
void reportCancelledAttribute(DeviceContext &context, const Request &request);

} // namespace vorlinmodel
