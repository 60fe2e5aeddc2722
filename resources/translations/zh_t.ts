<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>AttributeEditor</name>
    <message>
        <source>Key %1 keeps its last title that could be sent.</source>
        <translation>按鍵 %1 保留最後一個可以傳送的標題。</translation>
    </message>
    <message>
        <source>Key %1 keeps its last content that could be sent.</source>
        <translation>按鍵 %1 保留最後一個可以傳送的內容。</translation>
    </message>
    <message>
        <source>Step %1: %2</source>
        <translation>步驟 %1：%2</translation>
    </message>
    <message>
        <source>Key %1: %2</source>
        <translation>按鍵 %1：%2</translation>
    </message>
    <message>
        <source>Key %1</source>
        <translation>按鍵 %1</translation>
    </message>
</context>
<context>
    <name>ColourButton</name>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>灰色</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黑色</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>紅色</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>橙色</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黃色</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>綠色</translation>
    </message>
    <message>
        <source>Turquoise</source>
        <translation>青綠色</translation>
    </message>
    <message>
        <source>Light blue</source>
        <translation>淺藍色</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>藍色</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>紫色</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>粉紅色</translation>
    </message>
    <message>
        <source>Title colour</source>
        <translation>標題顏色</translation>
    </message>
    <message>
        <source>More colours...</source>
        <translation>更多顏色...</translation>
    </message>
</context>
<context>
    <name>CombinationField</name>
    <message>
        <source>Key %1 of the combination</source>
        <translation>組合鍵的第 %1 個鍵</translation>
    </message>
</context>
<context>
    <name>ContentEditor</name>
    <message>
        <source>Choose the file that the key opens</source>
        <translation>選擇按鍵要開啟的檔案</translation>
    </message>
    <message>
        <source>Web address:</source>
        <translation>網址：</translation>
    </message>
    <message>
        <source>None chosen</source>
        <translation>未選擇</translation>
    </message>
    <message>
        <source>Video of the key</source>
        <translation>按鍵的影片</translation>
    </message>
    <message>
        <source>Choose the video that the key plays</source>
        <translation>選擇按鍵要播放的影片</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路徑</translation>
    </message>
    <message>
        <source>Web address</source>
        <translation>網址</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Key combination</source>
        <translation>組合鍵</translation>
    </message>
    <message>
        <source>Opens the home page of the browser on this computer.</source>
        <translation>在這台電腦上開啟瀏覽器首頁。</translation>
    </message>
    <message>
        <source>Runs several actions one after the other. Double click the key, or press Enter on it, to edit them.</source>
        <translation>依序執行多個動作。按兩下按鍵，或在按鍵上按 Enter，即可編輯這些動作。</translation>
    </message>
    <message>
        <source>Shows a page of its own with further keys. Double click the key, or press Enter on it, to open that page.</source>
        <translation>顯示帶有更多按鍵的獨立頁面。按兩下按鍵，或在按鍵上按 Enter，即可開啟該頁面。</translation>
    </message>
    <message>
        <source>Leads from a child page back to the main page.</source>
        <translation>從子頁面返回主頁面。</translation>
    </message>
    <message>
        <source>The panel does this by itself. There is nothing more to set.</source>
        <translation>此功能由面板自行完成，無需其他設定。</translation>
    </message>
    <message>
        <source>This program does not know the function %1 of the key.</source>
        <translation>本程式不認得該按鍵的功能 %1。</translation>
    </message>
</context>
<context>
    <name>Conversion</name>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation>無法開啟「%1」。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture that can be read.</source>
        <translation>「%1」不是可讀取的圖片。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a video that can be read.</source>
        <translation>「%1」不是可讀取的影片。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large: a picture may have up to %2 x %2 pixels.</source>
        <translation>「%1」太大：圖片最大為 %2 x %2 像素。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged or not complete.</source>
        <translation>「%1」已損壞或不完整。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be converted to a size without pixels.</source>
        <translation>無法將「%1」轉換為沒有像素的尺寸。</translation>
    </message>
    <message>
        <source>The program that converts pictures and videos is missing or cannot be started: %1</source>
        <translation>用於轉換圖片和影片的程式遺失或無法啟動：%1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be converted.</source>
        <translation>無法轉換「%1」。</translation>
    </message>
    <message>
        <source>The conversion of &quot;%1&quot; took too long and was given up.</source>
        <translation>轉換「%1」耗時過長，已放棄。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be converted: the disk is full.</source>
        <translation>無法轉換「%1」：磁碟已滿。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be written to.</source>
        <translation>無法寫入資料夾「%1」。</translation>
    </message>
    <message>
        <source>The conversion of &quot;%1&quot; was cancelled.</source>
        <translation>已取消轉換「%1」。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too long: even at the lowest quality at most %2 seconds of it fit into %3 MB.</source>
        <translation>「%1」太長：即使使用最低品質，%3 MB 也最多只能容納其中的 %2 秒。</translation>
    </message>
</context>
<context>
    <name>EditToolBar</name>
    <message>
        <source>Undo: %1</source>
        <translation>復原：%1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>復原</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>重做：%1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪下</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼上</translation>
    </message>
    <message>
        <source>Put on every page</source>
        <translation>放到每一頁</translation>
    </message>
</context>
<context>
    <name>FunctionConfigWidget</name>
    <message>
        <source>Layout %1</source>
        <translation>版面 %1</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>版面</translation>
    </message>
</context>
<context>
    <name>FunctionList</name>
    <message>
        <source>Filter</source>
        <translation>篩選</translation>
    </message>
    <message>
        <source>No function has this in its name.</source>
        <translation>沒有名稱包含此內容的功能。</translation>
    </message>
</context>
<context>
    <name>GalleryFrame</name>
    <message>
        <source>Delete &quot;%1&quot; from the gallery?</source>
        <translation>要從圖庫中刪除「%1」嗎？</translation>
    </message>
    <message>
        <source>Delete %1 pictures from the gallery?</source>
        <translation>要從圖庫中刪除 %1 張圖片嗎？</translation>
    </message>
    <message>
        <source>Could not be deleted:
%1</source>
        <translation>無法刪除：
%1</translation>
    </message>
    <message>
        <source>Add pictures...</source>
        <translation>加入圖片...</translation>
    </message>
    <message>
        <source>There are no pictures yet. Add some with the button below, or drop picture files here. Then drag them from here onto the keys.</source>
        <translation>還沒有圖片。請用下面的按鈕加入，或將圖片檔案拖曳到此處，然後再從此處拖曳到按鍵上。</translation>
    </message>
    <message>
        <source>Keys keep the pictures that they show.</source>
        <translation>按鍵會保留其顯示的圖片。</translation>
    </message>
</context>
<context>
    <name>GalleryPictures</name>
    <message>
        <source>%1 is larger than 32 MiB.</source>
        <translation>%1 大於 32 MiB。</translation>
    </message>
    <message>
        <source>%1 is no picture that can be read.</source>
        <translation>%1 不是可讀取的圖片。</translation>
    </message>
</context>
<context>
    <name>KeyCaptureButton</name>
    <message>
        <source>Press now</source>
        <translation>請按鍵</translation>
    </message>
    <message>
        <source>Press keys</source>
        <translation>擷取按鍵</translation>
    </message>
    <message>
        <source>Takes the keys that you press together, up to four</source>
        <translation>擷取同時按下的鍵，最多四個</translation>
    </message>
</context>
<context>
    <name>KeyCommands</name>
    <message>
        <source>Delete the keys of its child page too?</source>
        <translation>要同時刪除其子頁面上的按鍵嗎？</translation>
    </message>
    <message>
        <source>Delete the keys of their child pages too?</source>
        <translation>要同時刪除它們的子頁面上的按鍵嗎？</translation>
    </message>
    <message>
        <source>Keys there that have a function: %1</source>
        <translation>其中已設定功能的按鍵數：%1</translation>
    </message>
    <message>
        <source>Delete them too</source>
        <translation>一併刪除</translation>
    </message>
    <message>
        <source>Keep them</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>There are no keys on the clipboard.</source>
        <translation>剪貼簿上沒有按鍵。</translation>
    </message>
    <message>
        <source>Select a key first.</source>
        <translation>請先選擇一個按鍵。</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼上</translation>
    </message>
    <message>
        <source>Select a key with a function first.</source>
        <translation>請先選擇一個有功能的按鍵。</translation>
    </message>
    <message>
        <source>Put on every page</source>
        <translation>放到每一頁</translation>
    </message>
    <message>
        <source>Keys of other pages that were replaced: %1. Undo brings them back.</source>
        <translation>其他頁面上被取代的按鍵數：%1。可使用復原還原。</translation>
    </message>
    <message>
        <source>Key %1 leads to the page that it is on.</source>
        <translation>按鍵 %1 指向其所在的頁面。</translation>
    </message>
    <message>
        <source>Key %1 of page %2 leads to the same child page.</source>
        <translation>第 %2 頁的按鍵 %1 也指向同一個子頁面。</translation>
    </message>
    <message>
        <source>Page %1 has no key that leads back, and key %2 there is not free.</source>
        <translation>第 %1 頁沒有返回按鍵，而且該頁的按鍵 %2 已被佔用。</translation>
    </message>
    <message>
        <source>Child page</source>
        <translation>子頁面</translation>
    </message>
</context>
<context>
    <name>KeyDrag</name>
    <message>
        <source>Copy key</source>
        <translation>複製按鍵</translation>
    </message>
    <message>
        <source>Swap keys</source>
        <translation>交換按鍵</translation>
    </message>
    <message>
        <source>Move key</source>
        <translation>移動按鍵</translation>
    </message>
</context>
<context>
    <name>KeyEdits</name>
    <message>
        <source>The keys could not be saved. Is the disk full?</source>
        <translation>無法儲存按鍵。磁碟是否已滿？</translation>
    </message>
    <message>
        <source>The multiple actions could not be saved: %1</source>
        <translation>無法儲存多重動作：%1</translation>
    </message>
    <message>
        <source>A picture could not be saved. Is the disk full?</source>
        <translation>有一張圖片無法儲存。磁碟是否已滿？</translation>
    </message>
    <message>
        <source>Read from the panel</source>
        <translation>從面板讀取</translation>
    </message>
</context>
<context>
    <name>KeyWidget</name>
    <message>
        <source>Rows %1-%2</source>
        <translation>第 %1-%2 列</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>第 %1 列</translation>
    </message>
    <message>
        <source>columns %1-%2</source>
        <translation>第 %1-%2 欄</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>第 %1 欄</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>row and column</comment>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>place and function</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>空白</translation>
    </message>
    <message>
        <source>%1, title &apos;%2&apos;</source>
        <translation>%1，標題「%2」</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>功能</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>圖片</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>影片</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>The multiple actions could not be saved: %1</source>
        <translation>無法儲存多重動作：%1</translation>
    </message>
</context>
<context>
    <name>KeyboardWidget</name>
    <message>
        <source>Clear page</source>
        <translation>清除頁面</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
</context>
<context>
    <name>LayoutBar</name>
    <message>
        <source>All layouts</source>
        <translation>所有版面</translation>
    </message>
</context>
<context>
    <name>LayoutPage</name>
    <message>
        <source>Show in the editor</source>
        <translation>在編輯器中顯示</translation>
    </message>
    <message>
        <source>Keys: %1</source>
        <translation>按鍵數：%1</translation>
    </message>
    <message>
        <source>Layout %1</source>
        <translation>版面 %1</translation>
    </message>
</context>
<context>
    <name>LimitedText</name>
    <message>
        <source>Bytes of the text, and how many the panel has room for</source>
        <translation>文字的位元組數，以及面板可容納的位元組數</translation>
    </message>
    <message>
        <source>The panel has no %1</source>
        <translation>面板沒有字元 %1</translation>
    </message>
    <message>
        <source>%1 of %2 bytes</source>
        <translation>%1 / %2 位元組</translation>
    </message>
    <message>
        <source>not sent yet</source>
        <translation>尚未傳送</translation>
    </message>
    <message>
        <source>the panel shows only a part</source>
        <translation>面板只顯示一部分</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>ModeEditor</name>
    <message>
        <source>Display mode</source>
        <translation>顯示模式</translation>
    </message>
    <message>
        <source>Image effect</source>
        <translation>圖片效果</translation>
    </message>
</context>
<context>
    <name>MultiActionWidget</name>
    <message>
        <source>Switch to the window that shall get the text: %1 s</source>
        <translation>請切換到要接收文字的視窗：%1 秒</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>測試</translation>
    </message>
    <message>
        <source>Runs the steps on this computer, as far as it can</source>
        <translation>在這台電腦上執行可以執行的步驟</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>%1: row %2, column %3, page %4</source>
        <translation>%1：第 %2 列，第 %3 欄，第 %4 頁</translation>
    </message>
    <message>
        <source>Step %1: %2</source>
        <translation>步驟 %1：%2</translation>
    </message>
    <message>
        <source>Steps: %1, %2 of %3 bytes</source>
        <translation>步驟數：%1，%2 / %3 位元組</translation>
    </message>
    <message>
        <source>not saved yet</source>
        <translation>尚未儲存</translation>
    </message>
    <message>
        <source>The saved steps cannot be read: the file %1 is damaged. It stays as it is until you save.</source>
        <translation>無法讀取已儲存的步驟：檔案 %1 已損壞。在您儲存之前，該檔案保持不變。</translation>
    </message>
    <message>
        <source>The key does not have multiple actions any more. Undo that first, or discard the steps.</source>
        <translation>該按鍵已不再具有多重動作。請先復原該變更，或捨棄這些步驟。</translation>
    </message>
    <message>
        <source>The steps are not saved. The panel cannot take these:</source>
        <translation>步驟未儲存。面板無法接受以下步驟：</translation>
    </message>
    <message>
        <source>The steps are not saved. Together they need %1 bytes, and the panel takes %2.</source>
        <translation>步驟未儲存。這些步驟共需 %1 位元組，而面板最多接受 %2 位元組。</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>以及另外 %1 個</translation>
    </message>
    <message>
        <source>The file %1 is damaged. Begin a new one?</source>
        <translation>檔案 %1 已損壞。要建立新檔案嗎？</translation>
    </message>
    <message>
        <source>The steps of the other keys cannot be read from the old one either. It is kept as %1.</source>
        <translation>其他按鍵的步驟也無法從舊檔案中讀取。舊檔案將保留為 %1。</translation>
    </message>
    <message>
        <source>The damaged file cannot be renamed. The steps are not saved.</source>
        <translation>無法重新命名已損壞的檔案。步驟未儲存。</translation>
    </message>
    <message>
        <source>Save multiple actions</source>
        <translation>儲存多重動作</translation>
    </message>
    <message>
        <source>The steps could not be saved: %1</source>
        <translation>無法儲存步驟：%1</translation>
    </message>
    <message>
        <source>Save the steps of this key?</source>
        <translation>要儲存此按鍵的步驟嗎？</translation>
    </message>
    <message>
        <source>They have been changed since they were saved.</source>
        <translation>這些步驟在上次儲存後已變更。</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>捨棄</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>The steps are running</source>
        <translation>正在執行步驟</translation>
    </message>
    <message>
        <source>Step %1 is running</source>
        <translation>正在執行步驟 %1</translation>
    </message>
    <message>
        <source>All steps have been run</source>
        <translation>所有步驟均已執行</translation>
    </message>
    <message>
        <source>The test was stopped</source>
        <translation>測試已停止</translation>
    </message>
</context>
<context>
    <name>NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>PageNavigation</name>
    <message>
        <source>Page %1</source>
        <translation>第 %1 頁</translation>
    </message>
</context>
<context>
    <name>PendingEdits</name>
    <message>
        <source>Waits for the panel</source>
        <translation>正在等待面板</translation>
    </message>
    <message>
        <source>Waits to be sent</source>
        <translation>正在等待傳送</translation>
    </message>
    <message>
        <source>The panel did not take it. It is sent again at the next connection.</source>
        <translation>面板未接受。下次連線時將重新傳送。</translation>
    </message>
    <message>
        <source>Its picture, video or action list cannot be read, so it was not sent.</source>
        <translation>無法讀取其圖片、影片或動作清單，因此未傳送。</translation>
    </message>
</context>
<context>
    <name>PictureEdits</name>
    <message>
        <source>&quot;%1&quot; cannot be opened: %2</source>
        <translation>無法開啟「%1」：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has %2 MB. The panel takes videos of up to 10 MB.</source>
        <translation>「%1」的大小為 %2 MB。面板最多接受 10 MB 的影片。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture that can be read.</source>
        <translation>「%1」不是可讀取的圖片。</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>圖片</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>影片</translation>
    </message>
    <message>
        <source>Reset the picture</source>
        <translation>重設圖片</translation>
    </message>
</context>
<context>
    <name>PicturePicker</name>
    <message>
        <source>Choose the picture of the key</source>
        <translation>選擇按鍵的圖片</translation>
    </message>
    <message>
        <source>Show the icon of the function again</source>
        <translation>重新顯示功能圖示</translation>
    </message>
    <message>
        <source>What the key shows</source>
        <translation>按鍵顯示的內容</translation>
    </message>
</context>
<context>
    <name>PictureUploadPage</name>
    <message>
        <source>This file is no picture that can be read.</source>
        <translation>此檔案不是可讀取的圖片。</translation>
    </message>
    <message>
        <source>The picture is in the gallery.</source>
        <translation>圖片已在圖庫中。</translation>
    </message>
    <message>
        <source>On a key:</source>
        <translation>在按鍵上：</translation>
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
</context>
<context>
    <name>StepCombination</name>
    <message>
        <source>Choose keys</source>
        <translation>選擇按鍵</translation>
    </message>
    <message>
        <source>Key %1</source>
        <translation>第 %1 個鍵</translation>
    </message>
    <message>
        <source>(no key)</source>
        <translation>（無按鍵）</translation>
    </message>
</context>
<context>
    <name>StepDelegate</name>
    <message>
        <source>running</source>
        <translation>正在執行</translation>
    </message>
    <message>
        <source>done</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>skipped: done by the panel</source>
        <translation>已略過：由面板執行</translation>
    </message>
</context>
<context>
    <name>StepListView</name>
    <message>
        <source>Steps</source>
        <translation>步驟</translation>
    </message>
    <message>
        <source>Drag functions from the list here</source>
        <translation>將清單中的功能拖曳到此處</translation>
    </message>
</context>
<context>
    <name>StepRow</name>
    <message>
        <source>Choose the file to open</source>
        <translation>選擇要開啟的檔案</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>所有檔案</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>毫秒</translation>
    </message>
    <message>
        <source>Copy step %1</source>
        <translation>複製步驟 %1</translation>
    </message>
    <message>
        <source>Remove step %1</source>
        <translation>移除步驟 %1</translation>
    </message>
    <message>
        <source>Choose the file of step %1</source>
        <translation>選擇步驟 %1 的檔案</translation>
    </message>
    <message>
        <source>Content of step %1</source>
        <translation>步驟 %1 的內容</translation>
    </message>
</context>
<context>
    <name>StepText</name>
    <message>
        <source>Every character takes 2 bytes, an emoji takes 4.</source>
        <translation>每個字元佔 2 位元組，表情符號佔 4 位元組。</translation>
    </message>
    <message>
        <source>Letters without accents, digits and signs take 1 byte, other characters 2 to 4.</source>
        <translation>不帶重音的字母、數字和符號佔 1 位元組，其他字元佔 2 到 4 位元組。</translation>
    </message>
    <message>
        <source>%1 bytes, but the panel takes %2.</source>
        <translation>%1 位元組，而面板最多接受 %2 位元組。</translation>
    </message>
    <message>
        <source>The panel has no key of this name: %1</source>
        <translation>面板沒有此名稱的鍵：%1</translation>
    </message>
    <message>
        <source>More keys than the %1 that the panel takes.</source>
        <translation>鍵數超過面板可接受的 %1 個。</translation>
    </message>
    <message>
        <source>A character with the number 0 would end the text before its end.</source>
        <translation>編號為 0 的字元會使文字提前結束。</translation>
    </message>
    <message>
        <source>Function %1</source>
        <translation>功能 %1</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 毫秒</translation>
    </message>
</context>
<context>
    <name>SystemSettingsPage</name>
    <message>
        <source>The folder could not be opened: %1</source>
        <translation>無法開啟資料夾：%1</translation>
    </message>
    <message>
        <source>Home layout:</source>
        <translation>首頁版面：</translation>
    </message>
    <message>
        <source>Custom layout:</source>
        <translation>自訂版面：</translation>
    </message>
    <message>
        <source>Folder of the logs:</source>
        <translation>記錄檔資料夾：</translation>
    </message>
    <message>
        <source>Folder of the settings:</source>
        <translation>設定資料夾：</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>尚未得知</translation>
    </message>
</context>
<context>
    <name>TitleEditor</name>
    <message>
        <source>Size:</source>
        <translation>大小：</translation>
    </message>
    <message>
        <source>Size of the title</source>
        <translation>標題大小</translation>
    </message>
    <message>
        <source>Size of the title, in points</source>
        <translation>標題大小（點）</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>點</translation>
    </message>
    <message>
        <source>Colour:</source>
        <translation>顏色：</translation>
    </message>
    <message>
        <source>Title alignment: %1</source>
        <translation>標題對齊：%1</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>標題</translation>
    </message>
    <message>
        <source>Title size</source>
        <translation>標題大小</translation>
    </message>
    <message>
        <source>Title colour</source>
        <translation>標題顏色</translation>
    </message>
    <message>
        <source>Title alignment</source>
        <translation>標題對齊</translation>
    </message>
</context>
</TS>
