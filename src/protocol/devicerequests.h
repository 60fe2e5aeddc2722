/// The requests that concern the whole panel: versions, pages, layouts, files and settings.
#pragma once

#include "devicecontext.h"

namespace vorlinmodel {

void processHardwareVersion(DeviceContext &context, const Request &request);
void processSoftwareVersion(DeviceContext &context, const Request &request);
void processConfigFile(DeviceContext &context, const Request &request);
void processSelectPage(DeviceContext &context, const Request &request);
void processReadConfigFile(DeviceContext &context, const Request &request);
void processSetDevicePath(DeviceContext &context, const Request &request);
void processSetBlockDelay(DeviceContext &context, const Request &request);
void processCustomLayoutSet(DeviceContext &context, const Request &request);
void processCustomLayoutDel(DeviceContext &context, const Request &request);
void processDelConfigFile(DeviceContext &context, const Request &request);
void processLcdLight(DeviceContext &context, const Request &request);
void processHomeLayout(DeviceContext &context, const Request &request);
void processSystemType(DeviceContext &context, const Request &request);
void processUploadFile(DeviceContext &context, const Request &request);

/// Takes the path of @p request, when it brings one, as the one to open from now on.
void takeDevicePath(DeviceContext &context, const Request &request);

} // namespace vorlinmodel
