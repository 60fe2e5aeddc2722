/// The first byte of an application message, and the subcodes of the upgrade channel.
#pragma once

#include <QtGlobal>

enum class FunctionCode : quint8 {
    MD_FUNCTION_CODE_KEY_ATTRIBUTE = 0x01,
    MD_FUNCTION_CODE_HARDWARE_VERSION = 0x03,
    MD_FUNCTION_CODE_SOFTWARE_VERSION = 0x04,
    MD_FUNCTION_CODE_CONFIGFILE = 0x05,
    UpgradeChannel = 0x06, ///< firmware upgrade and file upload, by subcode
    MD_FUNCTION_CODE_SELECT_PAGE = 0x07,
    MD_FUNCTION_CODE_READ_CONFIGFILE = 0x08,
    MD_FUNCTION_CODE_CUSTOMLAYOUT_SET = 0x0D,
    MD_FUNCTION_CODE_CUSTOMLAYOUT_DEL = 0x0E,
    MD_FUNCTION_CODE_DEL_CONFIGFILE = 0x0F,
    MD_FUNCTION_CODE_LCD_LIGHT = 0x10,
    MD_FUNCTION_CODE_HOME_LAYOUT = 0x11,
    MD_FUNCTION_CODE_SYSTEM_TYPE = 0x12,
};

enum class Subcode : quint8 {
    UpgradeRequest = 0x01,
    UpgradeResponse = 0x02,
    FirmwareData = 0x03,
    CrcReport = 0x04,
    UpgradeStatus = 0x05,
    EraseRequest = 0x06,
    EraseResponse = 0x07,
    FileUpload = 0x10,
};

/// The byte that a "delete configuration" message must carry.
constexpr quint8 DeleteConfigMark = 0x5A;
