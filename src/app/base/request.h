/// What the rest of the program asks of the panel: one record, copied by value into the protocol thread's
/// queue.
#pragma once

#include <QString>

namespace vorlinmodel {

/// Kinds of request. Most numbers equal the function code on the wire; 10, 11, 12 and 100 have none of their
/// own.
enum class RequestKind : quint32 {
    MD_FUNCTION_CODE_KEY_ATTRIBUTE = 1,
    MD_FUNCTION_CODE_HARDWARE_VERSION = 3,
    MD_FUNCTION_CODE_SOFTWARE_VERSION = 4,
    MD_FUNCTION_CODE_CONFIGFILE = 5,
    MD_FUNCTION_CODE_SELECT_PAGE = 7,
    MD_FUNCTION_CODE_READ_CONFIGFILE = 8,
    MD_FUNCTION_CODE_UPGRADE = 10,
    SetDevicePath = 11,
    SetBlockDelay = 12,
    MD_FUNCTION_CODE_CUSTOMLAYOUT_SET = 13,
    MD_FUNCTION_CODE_CUSTOMLAYOUT_DEL = 14,
    MD_FUNCTION_CODE_DEL_CONFIGFILE = 15,
    MD_FUNCTION_CODE_LCD_LIGHT = 16,
    MD_FUNCTION_CODE_HOME_LAYOUT = 17,
    MD_FUNCTION_CODE_SYSTEM_TYPE = 18,
    MD_FUNCTION_CODE_UPLOAD_FILE = 100,
};

/// Attribute ids of a MD_FUNCTION_CODE_KEY_ATTRIBUTE request; 4, 16 and any other number send nothing.
enum class AttributeId : quint32 {
    ImageEffects = 1,
    DisplayMode = 2,
    TitleAlignment = 3,
    Image = 5,
    Title = 6,
    TitleFontSize = 7,
    FunctionId = 8,
    Picture = 9, ///< a key picture too; the id under which the panel sends pictures back
    Video = 10,
    AppOrUrl = 11,
    TitleColour = 12,
    ClearKey = 13,
    KeyCombination = 14,
    MultiActions = 15,
    TextOutput = 17, ///< travels with id 11 on the wire
};

struct Request
{
    quint32 functionCode =
        0; ///< a RequestKind; kept as a number, since unknown ones are taken, logged and dropped
    quint32 layoutId = 0; ///< layout of the key; the value of kinds 16, 17 and 18 (255 = query)
    quint32 pageId = 0;
    quint32 keyId = 0;
    quint32 functionId = 0;
    quint32 attributeId = 0;
    QString devicePath; ///< kinds 10 and 11: HID path to use from now on; empty = keep the current one
    QString fileName;   ///< kind 10: firmware file; kind 100: file to upload
    quint32 value = 0;  ///< kind 12: delay between blocks in ms

    bool operator==(const Request &) const = default;
};

} // namespace vorlinmodel
