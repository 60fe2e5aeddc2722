#include "language.h"

#include <array>

namespace vorlindesk {
namespace {

struct Row
{
    const char *english;
    const char *simplifiedChinese;
    const char *traditionalChinese;
};

// The position of a row is its id. The English wording is fixed, with its misspellings, its trailing blanks
// and the full-width commas of 89, 116 and 117: documents and users' habits hang on it. A filter such as
// "(*.bin)" must stay in every column. Equal English texts have equal Chinese ones.
constexpr std::array<Row, LanguageManager::TextCount> Table = {{
    // 0 to 9
    {"Import Backup ", "导入备份", "匯入備份"},
    {"Select Profile", "选择配置文件", "選擇設定檔"},
    {"Import To Ostrevane", "导入到 Ostrevane", "匯入到 Ostrevane"},
    {"Create Backup", "创建备份", "建立備份"},
    {"Gallery", "图库", "圖庫"},
    {"Select All", "全选", "全選"},
    {"Delete", "删除", "刪除"},
    {"Function Configuration", "功能配置", "功能設定"},
    {"Panel Layout", "面板布局", "面板版面"},
    {"Picture Upload", "图片上传", "圖片上傳"},
    // 10 to 19
    {"System Settings", "系统设置", "系統設定"},
    {"System Panel Layout 1", "系统面板布局 1", "系統面板版面 1"},
    {"System Panel Layout 2", "系统面板布局 2", "系統面板版面 2"},
    {"System Panel Layout 3", "系统面板布局 3", "系統面板版面 3"},
    {"Please Select A Picture File: ", "请选择图片文件：", "請選擇圖片檔案："},
    {"Select Picture", "选择图片", "選擇圖片"},
    {"Add To Gallery", "添加到图库", "加入圖庫"},
    {"Create Backup", "创建备份", "建立備份"},
    {"Import Configuration To Host Now", "立即将配置导入主机", "立即將設定匯入主機"},
    {"IPC Version:", "上位机版本：", "上位機版本："},
    // 20 to 29
    {"PIC Software Version: ", "PIC 软件版本：", "PIC 軟體版本："},
    {"PIC Hardware Version:", "PIC 硬件版本：", "PIC 硬體版本："},
    {"Language:", "语言：", "語言："},
    {"Simplified Chinese", "简体中文", "簡體中文"},
    {"Tranditional Chinese", "繁体中文", "繁體中文"},
    {"English", "英文", "英文"},
    {"Import Host Configuration: ", "导入主机配置：", "匯入主機設定："},
    {"Select USB Connection", "选择 USB 连接", "選擇 USB 連線"},
    {"Select Network Connection", "选择网络连接", "選擇網路連線"},
    {"Serial Port Upgrade Settings", "串口升级设置", "序列埠升級設定"},
    // 30 to 39
    {"Network IP Settings", "网络 IP 设置", "網路 IP 設定"},
    {"Upgrade Settings", "升级设置", "升級設定"},
    {"Font Library Settings", "字库设置", "字型庫設定"},
    {"Reset All Data", "重置所有数据", "重設所有資料"},
    {"Open Browser Home Page", "打开浏览器主页", "開啟瀏覽器首頁"},
    {"Open File", "打开文件", "開啟檔案"},
    {"Open Web Address", "打开网址", "開啟網址"},
    {"Multiple Actions", "多重操作", "多重動作"},
    {"Playing/Pausing", "播放/暂停", "播放/暫停"},
    {"Increase The Volume", "增大音量", "提高音量"},
    // 40 to 49
    {"Volume Down", "减小音量", "降低音量"},
    {"Mute", "静音", "靜音"},
    {"Previous Paragraph", "上一曲", "上一首"},
    {"Next Paragraph", "下一曲", "下一首"},
    {"Previous Page", "上一页", "上一頁"},
    {"Next Page", "下一页", "下一頁"},
    {"Brightness Increase", "增加亮度", "提高亮度"},
    {"Brightness Reduction", "降低亮度", "降低亮度"},
    {"Text Output", "文本输出", "文字輸出"},
    {"Key Combination", "组合键", "組合鍵"},
    // 50 to 59
    {"Video Functions", "视频功能", "影片功能"},
    {"System Shortcut", "系统快捷键", "系統快速鍵"},
    {"Function", "功能", "功能"},
    {"Drag the picture in the left gallery here to set the key picture",
     "将左侧图库中的图片拖到此处，即可设置按键图片", "將左側圖庫中的圖片拖曳到此處，即可設定按鍵圖片"},
    {"Image Effects: ", "图片效果：", "圖片效果："},
    {"None", "无", "無"},
    {"Image Zooming", "图片缩放", "圖片縮放"},
    {"Picture Fanse", "图片反色", "圖片反色"},
    {"Horse Race Lamp", "跑马灯", "跑馬燈"},
    {"Display Mode: ", "显示模式：", "顯示模式："},
    // 60 to 69
    {"No Self Locking", "不自锁", "不自鎖"},
    {"Self Locking", "自锁", "自鎖"},
    {"Title: ", "标题：", "標題："},
    {"Bottom", "底部", "底部"},
    {"Center", "居中", "置中"},
    {"Top", "顶部", "頂部"},
    {"Save", "保存", "儲存"},
    {"Drag the operation in the right function to the top key box to complete the configuration",
     "将右侧功能栏中的操作拖到上方的按键框中，即可完成配置",
     "將右側功能欄中的操作拖曳到上方的按鍵框中，即可完成設定"},
    {"Send Settings", "发送设置", "傳送設定"},
    {"Receive Settings", "接收设置", "接收設定"},
    // 70 to 79
    {"Send Data", "发送数据", "傳送資料"},
    {"Select Upgrade File", "选择升级文件", "選擇升級檔案"},
    {"Upgrade Now", "立即升级", "立即升級"},
    {"Clear", "清空", "清除"},
    {"Receive Data", "接收数据", "接收資料"},
    {"Upgrade File (*.bin)", "升级文件 (*.bin)", "升級檔案 (*.bin)"},
    {"Upgrade File: ", "升级文件：", "升級檔案："},
    {"Choose", "选择", "選擇"},
    {"Document: ", "文件：", "檔案："},
    {"Text Content: ", "文本内容：", "文字內容："},
    // 80 to 89
    {"Reset", "重置", "重設"},
    {"Key Combination: ", "组合键：", "組合鍵："},
    {"Video Functions: ", "视频功能：", "影片功能："},
    {"Open", "打开", "開啟"},
    {"All Files(*.*)", "所有文件 (*.*)", "所有檔案 (*.*)"},
    {"Type: ", "类型：", "類型："},
    {"Image", "图片", "圖片"},
    {"Video", "视频", "影片"},
    {"Read device config", "读取设备配置", "讀取裝置設定"},
    {"Read failed，Please try again", "读取失败，请重试", "讀取失敗，請重試"},
    // 90 to 99
    {"Select Backup Directory", "选择备份目录", "選擇備份目錄"},
    {"Prev Page", "上一页", "上一頁"},
    {"Next Page", "下一页", "下一頁"},
    {"New Layout", "新建布局", "新增版面"},
    {"Panel Title", "面板标题", "面板標題"},
    {"Input panel title", "请输入面板标题", "請輸入面板標題"},
    {"Set", "设置", "設定"},
    {"Reset", "重置", "重設"},
    {"Return", "返回", "返回"},
    {"Save multiple actions", "保存多重操作", "儲存多重動作"},
    // 100 to 109
    {"Timer", "定时器", "計時器"},
    {"Timer", "定时器", "計時器"},
    {"Child page", "子页面", "子頁面"},
    {"Back", "返回", "返回"},
    {"Select File", "选择文件", "選擇檔案"},
    {"File (*.xft)", "文件 (*.xft)", "檔案 (*.xft)"},
    {"File: ", "文件：", "檔案："},
    {"Format SD Card", "格式化 SD 卡", "格式化 SD 卡"},
    {"LCD Light: ", "LCD 亮度：", "LCD 亮度："},
    {"Home ", "首页", "首頁"},
    // 110 to 119
    {"Firmware Update", "固件更新", "韌體更新"},
    {"Reset All Data", "重置所有数据", "重設所有資料"},
    {"Font Library", "字库", "字型庫"},
    {"System Type", "系统类型", "系統類型"},
    {"Windows", "Windows", "Windows"},
    {"Linux", "Linux", "Linux"},
    {"Import failed，Please try again", "导入失败，请重试", "匯入失敗，請重試"},
    {"Import video failed，Please try again", "导入视频失败，请重试", "匯入影片失敗，請重試"},
    {"Are you sure to Start", "确定要开始吗", "確定要開始嗎"},
    {"Import To Ostrevane", "导入到 Ostrevane", "匯入到 Ostrevane"},
    // 120 to 122
    {"Format SD Card, Manually restart the device", "格式化 SD 卡，请手动重启设备",
     "格式化 SD 卡，請手動重新啟動裝置"},
    {"Switching the homepage layout will clear all layout information", "切换首页布局将清除所有布局信息",
     "切換首頁版面將清除所有版面資訊"},
    {"The panel layout count has reached the maximum.", "面板布局数量已达上限。", "面板版面數量已達上限。"},
}};

const char *column(const Row &row, int language)
{
    switch (language) {
    case 1:
        return row.simplifiedChinese;
    case 2:
        return row.traditionalChinese;
    default:
        return row.english;
    }
}

} // namespace

QString tableText(int id, int language)
{
    if (id < 0 || id >= LanguageManager::TextCount)
        return {};
    return QString::fromUtf8(column(Table[static_cast<std::size_t>(id)], language));
}

} // namespace vorlindesk
