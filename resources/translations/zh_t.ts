<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>MainFrame</name>
    <message>
        <source>Looking for the panel...</source>
        <translation>正在尋找面板...</translation>
    </message>
    <message>
        <source>Reading the configuration...</source>
        <translation>正在讀取設定...</translation>
    </message>
    <message>
        <source>Reading the configuration... %1 of %2 keys</source>
        <translation>正在讀取設定... 第 %1 個按鍵，共 %2 個</translation>
    </message>
    <message>
        <source>Connected. The configuration was not read to its end.</source>
        <translation>已連線。設定未能完整讀取。</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已連線</translation>
    </message>
    <message>
        <source>Custom layout: %1</source>
        <translation>自訂版面：%1</translation>
    </message>
    <message>
        <source>Brightness: %1</source>
        <translation>亮度：%1</translation>
    </message>
    <message>
        <source>Home layout: %1</source>
        <translation>首頁版面：%1</translation>
    </message>
    <message>
        <source>System type: %1</source>
        <translation>系統類型：%1</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>儲存</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>全部儲存</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開啟</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>全部皆是(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>全部皆否(&amp;O)</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重試</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>忽略</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>捨棄</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>套用</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>還原預設值</translation>
    </message>
</context>
<context>
    <name>StatusFrame</name>
    <message>
        <source>Connected</source>
        <translation>已連線</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未連線</translation>
    </message>
</context>
</TS>
