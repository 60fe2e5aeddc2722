#include "devicerequests.h"

#include "base/log.h"
#include "base/systemsettings.h"
#include "logtext.h"
#include "model/customlayouts.h"
#include "model/keypicture.h"
#include "model/scriptcontainer.h"
#include "model/wholefile.h"
#include "transport/itransfer.h"
#include "wire/applicationmessage.h"
#include "wire/customlayout.h"
#include "wire/homelayout.h"
#include "wire/textcodec.h"

#include <QFileInfo>
#include <algorithm>
#include <limits>

namespace vorlinmodel {
namespace {

using vorlindesk::Log;
using vorlindesk::LogLevel;
using BlockTransfer = vorlindesk::MDProtocol::BlockTransfer;
namespace Text = ProtocolText;

constexpr BlockTransfer CustomLayoutTransfer{"transfer CustomLayout success",
                                             "transfer CustomLayout error\n"};
constexpr BlockTransfer HomeLayoutTransfer{"transfer HomeLayout success", "transfer HomeLayout error\n"};
constexpr BlockTransfer ConfigFileTransfer{"transfer ConfigFile success", "transfer ConfigFile error\n",
                                           false};
constexpr BlockTransfer UploadFileTransfer{"transfer UploadFile success", "transfer UploadFile error\n",
                                           false};

constexpr quint32 Query = 255; // in the layout id: ask for the value instead of setting it
constexpr char LightSet = 0;
constexpr char LightQuery = 1;
constexpr int UploadNameSize = 32; // bytes of the name field in front of an uploaded file
constexpr int LargestUpload =
    ApplicationMessage::MaxSize - ApplicationMessage::SubcodeDataOffset - UploadNameSize;

int signedOf(quint32 id)
{
    return static_cast<int>(id);
}

char lowByte(quint32 id)
{
    return static_cast<char>(id & 0xFFU);
}

QByteArray bodyOf(std::initializer_list<char> bytes)
{
    return QByteArray(bytes.begin(), static_cast<int>(bytes.size()));
}

void sendBare(DeviceContext &context, FunctionCode code)
{
    context.protocol.buildBare(code);
    context.protocol.sendSingle();
}

void sendPlain(DeviceContext &context, FunctionCode code, const QByteArray &body)
{
    context.protocol.buildPlain(code, body);
    context.protocol.sendSingle();
}

void readVersion(DeviceContext &context, FunctionCode code, bool software)
{
    Log(LogLevel::Info, Text::ReadVersion, software ? 1 : 0);
    sendBare(context, code);
}

CustomLayoutRecord::Record recordOf(quint32 layoutId, const CustomLayout &layout)
{
    CustomLayoutRecord::Record record;
    record.layoutNumber = signedOf(layoutId);
    record.title = layout.name;
    Log(LogLevel::Info, Text::CustomLayoutTitle, static_cast<int>(layout.keys.size()),
        qUtf8Printable(layout.name));
    for (const CustomLayoutKey &key : layout.keys) {
        record.keys << CustomLayoutRecord::Key{key.firstPhysical, key.lastPhysical};
        Log(LogLevel::Info, Text::CustomLayoutKey, static_cast<int>(record.keys.size()), key.firstPhysical,
            key.lastPhysical);
    }
    return record;
}

QVector<QSize> keySizesOf(const CustomLayout &layout)
{
    QVector<QSize> sizes;
    for (const CustomLayoutKey &key : layout.keys)
        sizes << keyPixelSize(key.mask);
    return sizes;
}

QByteArray storedHomeLayout(quint32 layoutId)
{
    HomeLayout::Record record;
    record.layoutId = signedOf(layoutId);
    for (const auto &entry : vorlindesk::SystemSettings::homeLayoutEntries())
        record.entries << HomeLayout::Entry{entry.keyId, entry.layoutId, entry.pageId, entry.sum};
    return HomeLayout::encode(record);
}

} // namespace

void processHardwareVersion(DeviceContext &context, const Request &)
{
    Log(LogLevel::Info, Text::HardwareVersion);
    readVersion(context, FunctionCode::MD_FUNCTION_CODE_HARDWARE_VERSION, false);
}

void processSoftwareVersion(DeviceContext &context, const Request &)
{
    Log(LogLevel::Info, Text::SoftwareVersion);
    readVersion(context, FunctionCode::MD_FUNCTION_CODE_SOFTWARE_VERSION, true);
}

void processConfigFile(DeviceContext &context, const Request &)
{
    Log(LogLevel::Info, Text::ConfigFile);
    const QByteArray script = currentScript();
    if (script.isEmpty()) {
        Log(LogLevel::Error, Text::NoConfigFile);
        context.unreadable = true;
    } else {
        const int size = context.protocol.buildPlain(FunctionCode::MD_FUNCTION_CODE_CONFIGFILE, script);
        context.unreadable = size < 0; // too long for a message
        context.protocol.sendInBlocks(ConfigFileTransfer);
    }
    emit context.events.sigSendScriptFinished(); // also after a failure: a dialog waits for it
}

void processSelectPage(DeviceContext &context, const Request &request)
{
    Log(LogLevel::Info, Text::SelectPage, signedOf(request.layoutId), signedOf(request.pageId));
    Log(LogLevel::Info, Text::SelectPageDetail, signedOf(request.layoutId), signedOf(request.pageId));
    sendPlain(context, FunctionCode::MD_FUNCTION_CODE_SELECT_PAGE,
              bodyOf({lowByte(request.layoutId), lowByte(request.pageId)}));
}

void processReadConfigFile(DeviceContext &context, const Request &request)
{
    Log(LogLevel::Info, Text::ReadConfigFile, signedOf(request.layoutId), signedOf(request.pageId));
    Log(LogLevel::Info, Text::ReadConfigFileDetail, signedOf(request.layoutId), signedOf(request.pageId));
    sendBare(context, FunctionCode::MD_FUNCTION_CODE_READ_CONFIGFILE);
}

void takeDevicePath(DeviceContext &context, const Request &request)
{
    if (request.devicePath.isEmpty())
        return;
    emit context.events.logMessageSignal(
        QString::asprintf(Text::NewDevicePath, qUtf8Printable(request.devicePath)));
    context.transfer.setDevicePath(request.devicePath);
}

void processSetDevicePath(DeviceContext &context, const Request &request)
{
    takeDevicePath(context, request);
}

void processSetBlockDelay(DeviceContext &context, const Request &request)
{
    constexpr quint32 Largest = std::numeric_limits<int>::max();
    context.protocol.setBlockDelay(static_cast<int>(std::min(request.value, Largest)));
    emit context.events.logMessageSignal(
        QString::asprintf(Text::NewBlockDelay, context.protocol.blockDelay()));
}

void processCustomLayoutSet(DeviceContext &context, const Request &request)
{
    Log(LogLevel::Info, Text::CustomLayoutSet);
    Log(LogLevel::Info, Text::CustomLayoutSetDetail, signedOf(request.layoutId), signedOf(request.pageId));
    const std::optional<CustomLayout> layout = loadCustomLayout(signedOf(request.layoutId));
    if (!layout) {
        Log(LogLevel::Error, Text::NoCustomLayout, signedOf(request.layoutId));
        context.unreadable = true;
        return;
    }
    const QByteArray body = CustomLayoutRecord::encode(recordOf(request.layoutId, *layout));
    context.protocol.buildPlain(FunctionCode::MD_FUNCTION_CODE_CUSTOMLAYOUT_SET, body);
    if (context.protocol.sendInBlocks(CustomLayoutTransfer))
        context.layouts.note(layout->layoutId, keySizesOf(*layout));
    else
        context.layouts.forget(layout->layoutId);
}

void processCustomLayoutDel(DeviceContext &context, const Request &request)
{
    Log(LogLevel::Info, Text::CustomLayoutDel);
    Log(LogLevel::Info, Text::CustomLayoutDelDetail, signedOf(request.layoutId), signedOf(request.pageId));
    context.layouts.forget(signedOf(request.layoutId));
    sendPlain(context, FunctionCode::MD_FUNCTION_CODE_CUSTOMLAYOUT_DEL, bodyOf({lowByte(request.layoutId)}));
}

void processDelConfigFile(DeviceContext &context, const Request &request)
{
    Log(LogLevel::Info, Text::DelConfigFile, signedOf(request.layoutId), signedOf(request.pageId));
    sendPlain(context, FunctionCode::MD_FUNCTION_CODE_DEL_CONFIGFILE, bodyOf({lowByte(DeleteConfigMark)}));
}

void processLcdLight(DeviceContext &context, const Request &request)
{
    Log(LogLevel::Info, Text::LcdLight, signedOf(request.layoutId));
    if (request.layoutId == Query) {
        Log(LogLevel::Info, Text::LcdLightQuery);
        sendPlain(context, FunctionCode::MD_FUNCTION_CODE_LCD_LIGHT, bodyOf({LightQuery, 0}));
        return;
    }
    Log(LogLevel::Info, Text::LcdLightSet, signedOf(request.layoutId), signedOf(request.pageId));
    sendPlain(context, FunctionCode::MD_FUNCTION_CODE_LCD_LIGHT,
              bodyOf({LightSet, lowByte(request.layoutId)}));
}

void processHomeLayout(DeviceContext &context, const Request &request)
{
    Log(LogLevel::Info, Text::HomeLayout, signedOf(request.layoutId));
    if (request.layoutId == Query) {
        Log(LogLevel::Info, Text::HomeLayoutQuery);
        sendBare(context, FunctionCode::MD_FUNCTION_CODE_HOME_LAYOUT);
        return;
    }
    context.protocol.buildPlain(FunctionCode::MD_FUNCTION_CODE_HOME_LAYOUT,
                                storedHomeLayout(request.layoutId));
    context.protocol.sendInBlocks(HomeLayoutTransfer);
}

void processSystemType(DeviceContext &context, const Request &request)
{
    Log(LogLevel::Info, Text::SystemType, signedOf(request.layoutId));
    Log(LogLevel::Info, Text::SystemTypeDetail, signedOf(request.layoutId));
    sendPlain(context, FunctionCode::MD_FUNCTION_CODE_SYSTEM_TYPE, bodyOf({lowByte(request.layoutId)}));
}

void processUploadFile(DeviceContext &context, const Request &request)
{
    Log(LogLevel::Info, Text::UploadFile);
    QString reason;
    const std::optional<QByteArray> file = readWholeFile(request.fileName, reason, LargestUpload);
    if (!file) {
        Log(LogLevel::Error, Text::NoUploadFile, qUtf8Printable(request.fileName), qUtf8Printable(reason));
        return;
    }
    const QString name = QFileInfo(request.fileName).fileName();
    const QByteArray nameField = TextCodec::toUtf8(name, UploadNameSize).leftJustified(UploadNameSize, '\0');
    context.protocol.buildSubcoded(Subcode::FileUpload, nameField + *file);
    context.protocol.sendInBlocks(UploadFileTransfer);
}

} // namespace vorlinmodel
