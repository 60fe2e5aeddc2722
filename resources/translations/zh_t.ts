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
    <name>BackgroundBox</name>
    <message>
        <source>The picture could not be written. Is the disk full?</source>
        <translation>無法寫入圖片。磁碟是否已滿？</translation>
    </message>
    <message>
        <source>Pages: %1</source>
        <translation>頁面：%1</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>頁面</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>背景：</translation>
    </message>
    <message>
        <source>Choose a picture…</source>
        <translation>選擇圖片…</translation>
    </message>
    <message>
        <source>A picture that spreads over all keys</source>
        <translation>鋪滿所有按鍵的圖片</translation>
    </message>
    <message>
        <source>Remove the background</source>
        <translation>移除背景</translation>
    </message>
    <message>
        <source>The pages on which the keys show it</source>
        <translation>按鍵顯示背景的頁面</translation>
    </message>
    <message>
        <source>Also on keys without a function</source>
        <translation>也用於沒有功能的按鍵</translation>
    </message>
    <message>
        <source>Such a key shows its part of the picture, and does nothing when it is pressed</source>
        <translation>此類按鍵顯示圖片中屬於它的部分，按下時不執行任何動作</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>Backup</name>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>無法讀取「%1」：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>無法寫入「%1」：%2</translation>
    </message>
    <message>
        <source>The backup in &quot;%1&quot; reads back differently from what was written. It was removed: the disk may be failing.</source>
        <translation>「%1」中的備份讀回後與寫入的內容不一致，已將其移除：磁碟可能有故障。</translation>
    </message>
    <message>
        <source>Parts of the backup &quot;%1&quot; are damaged. Nothing was changed.</source>
        <translation>備份「%1」的部分內容已損壞。未做任何變更。</translation>
    </message>
    <message>
        <source>The backup &quot;%1&quot; holds nothing that can be restored.</source>
        <translation>備份「%1」中沒有可還原的內容。</translation>
    </message>
    <message>
        <source>An earlier restore could not be finished. Its files are in &quot;%1&quot;. Start the program again, and it will be tried again.</source>
        <translation>先前的還原未能完成，其檔案位於「%1」。請重新啟動本程式，屆時將再次嘗試。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be replaced: %2 Nothing was changed.</source>
        <translation>無法取代「%1」：%2 未做任何變更。</translation>
    </message>
    <message>
        <source>key records of layout %1 page %2</source>
        <translation>版面 %1 第 %2 頁的按鍵記錄</translation>
    </message>
    <message>
        <source>texts of layout %1 page %2 key %3</source>
        <translation>版面 %1 第 %2 頁按鍵 %3 的文字</translation>
    </message>
    <message>
        <source>picture of layout %1 page %2 key %3</source>
        <translation>版面 %1 第 %2 頁按鍵 %3 的圖片</translation>
    </message>
    <message>
        <source>picture file of layout %1 page %2 key %3</source>
        <translation>版面 %1 第 %2 頁按鍵 %3 的圖片檔案</translation>
    </message>
    <message>
        <source>picture path of layout %1 page %2 key %3</source>
        <translation>版面 %1 第 %2 頁按鍵 %3 的圖片路徑</translation>
    </message>
    <message>
        <source>video of layout %1 page %2 key %3</source>
        <translation>版面 %1 第 %2 頁按鍵 %3 的影片</translation>
    </message>
    <message>
        <source>action list of layout %1 page %2 key %3</source>
        <translation>版面 %1 第 %2 頁按鍵 %3 的動作清單</translation>
    </message>
    <message>
        <source>record of layout %1 page %2 key %3</source>
        <translation>版面 %1 第 %2 頁按鍵 %3 的記錄</translation>
    </message>
    <message>
        <source>unknown section of layout %1 page %2 key %3</source>
        <translation>版面 %1 第 %2 頁按鍵 %3 的未知部分</translation>
    </message>
    <message>
        <source>header</source>
        <translation>檔案標頭</translation>
    </message>
    <message>
        <source>sections %1 to %2</source>
        <translation>第 %1 至 %2 部分</translation>
    </message>
    <message>
        <source>bytes behind the last section</source>
        <translation>最後一部分之後的位元組</translation>
    </message>
    <message>
        <source>layout %1 page %2 key %3</source>
        <translation>版面 %1 第 %2 頁按鍵 %3</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%2 的 %1：%3</translation>
    </message>
    <message>
        <source>What an earlier restore left in &quot;%1&quot; cannot be removed. Close the programs that use its files, and try again.</source>
        <translation>先前的還原在「%1」中留下的內容無法刪除。請關閉正在使用這些檔案的程式，然後重試。</translation>
    </message>
</context>
<context>
    <name>BackupPanel</name>
    <message>
        <source>The backup was deleted.</source>
        <translation>備份已刪除。</translation>
    </message>
    <message>
        <source>The backup could not be deleted. Is one of its files open?</source>
        <translation>無法刪除備份。是否有其中的檔案正被開啟？</translation>
    </message>
    <message>
        <source>Imported: %1</source>
        <translation>已匯入：%1</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>未包含：%1</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was changed.</source>
        <translation>已取消。未做任何變更。</translation>
    </message>
    <message>
        <source>The panel has the whole configuration.</source>
        <translation>面板已取得全部設定。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Name (optional):</source>
        <translation>名稱（選填）：</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Made</source>
        <translation>來源</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>版面</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>頁面</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按鍵</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>圖片</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>影片</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not there now. Until it is back, backups are kept in the folder above.</source>
        <translation>「%1」目前無法使用。在其恢復之前，備份會儲存在上方的資料夾中。</translation>
    </message>
    <message>
        <source>There are no backups in this folder yet.</source>
        <translation>此資料夾中還沒有備份。</translation>
    </message>
    <message>
        <source>Choose a backup to see what it holds.</source>
        <translation>選擇一個備份以檢視其內容。</translation>
    </message>
    <message>
        <source>A plain export: only its keys can be checked for damage.</source>
        <translation>一般匯出：只能檢查其中的按鍵是否損壞。</translation>
    </message>
    <message>
        <source>Choose a backup in the list first.</source>
        <translation>請先在清單中選擇一個備份。</translation>
    </message>
    <message>
        <source>The panel is not connected.</source>
        <translation>面板未連線。</translation>
    </message>
    <message>
        <source>Making the backup ...</source>
        <translation>正在建立備份……</translation>
    </message>
    <message>
        <source>Deleting the backup ...</source>
        <translation>正在刪除備份……</translation>
    </message>
    <message>
        <source>Reading the backup ...</source>
        <translation>正在讀取備份……</translation>
    </message>
    <message>
        <source>Importing ...</source>
        <translation>正在匯入……</translation>
    </message>
    <message>
        <source>Sending to the panel ...</source>
        <translation>正在傳送到面板……</translation>
    </message>
    <message>
        <source>The folder could not be opened: %1</source>
        <translation>無法開啟資料夾：%1</translation>
    </message>
    <message>
        <source>Delete this backup?</source>
        <translation>刪除此備份？</translation>
    </message>
    <message>
        <source>Its files are removed from the disk.</source>
        <translation>其檔案將從磁碟中刪除。</translation>
    </message>
    <message>
        <source>Cancelled. No backup was made.</source>
        <translation>已取消，未建立備份。</translation>
    </message>
    <message>
        <source>No backup was made: %1</source>
        <translation>未能建立備份：%1</translation>
    </message>
    <message>
        <source>The backup was made, and read back without a difference.</source>
        <translation>備份已建立，回讀核對一致。</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>備份</translation>
    </message>
</context>
<context>
    <name>BackupTexts</name>
    <message>
        <source>export</source>
        <translation>匯出</translation>
    </message>
    <message>
        <source>by hand</source>
        <translation>手動</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>before an import</source>
        <translation>匯入之前</translation>
    </message>
    <message>
        <source>Layouts: %1, pages: %2, keys: %3, pictures: %4, videos: %5</source>
        <translation>版面：%1，頁面：%2，按鍵：%3，圖片：%4，影片：%5</translation>
    </message>
    <message>
        <source>%1, page %2</source>
        <translation>%1，第 %2 頁</translation>
    </message>
    <message>
        <source>keys added: %1</source>
        <translation>新增按鍵：%1</translation>
    </message>
    <message>
        <source>changed: %1</source>
        <translation>變更：%1</translation>
    </message>
    <message>
        <source>removed: %1</source>
        <translation>移除：%1</translation>
    </message>
    <message>
        <source>Panel layouts</source>
        <translation>面板版面</translation>
    </message>
    <message>
        <source>Steps of the multiple actions</source>
        <translation>多重動作的步驟</translation>
    </message>
    <message>
        <source>Settings: language, switches, child pages, window</source>
        <translation>設定：語言、開關、子頁面、視窗</translation>
    </message>
    <message>
        <source>Background picture %1</source>
        <translation>背景圖片 %1</translation>
    </message>
</context>
<context>
    <name>Backups</name>
    <message>
        <source>Something else is still under way.</source>
        <translation>其他操作仍在進行中。</translation>
    </message>
    <message>
        <source>The panel is being read.</source>
        <translation>正在讀取面板。</translation>
    </message>
    <message>
        <source>The firmware is being updated.</source>
        <translation>正在更新韌體。</translation>
    </message>
    <message>
        <source>A video is being converted or sent. Wait for it, or cancel it.</source>
        <translation>正在轉換或傳送影片。請等待完成，或將其取消。</translation>
    </message>
    <message>
        <source>The panel is being cleared.</source>
        <translation>正在清除面板。</translation>
    </message>
</context>
<context>
    <name>BrightnessRow</name>
    <message>
        <source>The panel is not connected.</source>
        <translation>面板未連線。</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>尚未得知</translation>
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
    <name>ConfigurationImport</name>
    <message>
        <source>Import of a backup</source>
        <translation>匯入備份</translation>
    </message>
    <message>
        <source>The import could not be made again: %1</source>
        <translation>無法重新匯入：%1</translation>
    </message>
    <message>
        <source>The import could not be taken back: %1</source>
        <translation>無法復原匯入：%1</translation>
    </message>
    <message>
        <source>The configuration is too large to be sent at once. Its keys are sent one by one.</source>
        <translation>設定過大，無法一次傳送。將逐一傳送按鍵。</translation>
    </message>
    <message>
        <source>Sending was cancelled: the panel keeps what it has. It gets what differs when it is connected next time.</source>
        <translation>傳送已取消：面板保留原有內容。下次連線時將傳送不同之處。</translation>
    </message>
    <message>
        <source>The panel has not taken the configuration. It gets what differs when it is connected next time.</source>
        <translation>面板未接收設定。下次連線時將傳送不同之處。</translation>
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
    <name>CropDialog</name>
    <message>
        <source>%1 x %2 pixels</source>
        <translation>%1 x %2 像素</translation>
    </message>
    <message>
        <source>Reading the picture...</source>
        <translation>正在讀取圖片……</translation>
    </message>
    <message>
        <source>This file is a video, no picture.</source>
        <translation>此檔案是影片，不是圖片。</translation>
    </message>
</context>
<context>
    <name>CropPanel</name>
    <message>
        <source>Zoom:</source>
        <translation>縮放：</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>縮放</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Part of the picture that is used</source>
        <translation>圖片中使用的部分</translation>
    </message>
    <message>
        <source>Drag the picture or use the arrow keys to move it. The wheel, + and - zoom.</source>
        <translation>拖曳圖片或使用方向鍵可移動圖片，使用滾輪、+ 和 - 可縮放。</translation>
    </message>
</context>
<context>
    <name>CustomLayouts</name>
    <message>
        <source>Some lines cannot be read. The file as it was is kept beside it.</source>
        <translation>有些行無法讀取。原檔案已保存在旁邊。</translation>
    </message>
    <message>
        <source>Layout %1: %2.</source>
        <translation>版面 %1：%2。</translation>
    </message>
    <message>
        <source>Layout %1 (%2): %3.</source>
        <translation>版面 %1（%2）：%3。</translation>
    </message>
    <message>
        <source>the number of its keys is missing</source>
        <translation>缺少按鍵數</translation>
    </message>
    <message>
        <source>the number of its keys is &quot;%1&quot;, not 1 to 15</source>
        <translation>按鍵數為「%1」，不在 1 到 15 之間</translation>
    </message>
    <message>
        <source>key %1 does not name its physical keys, so those of its bitmap count</source>
        <translation>按鍵 %1 未列出其實體按鍵，因此以其位元圖中的按鍵為準</translation>
    </message>
    <message>
        <source>the physical keys of key %1 differ from its bitmap</source>
        <translation>按鍵 %1 的實體按鍵與其位元圖不一致</translation>
    </message>
    <message>
        <source>key %1 has no bitmap</source>
        <translation>按鍵 %1 沒有位元圖</translation>
    </message>
    <message>
        <source>the physical keys of key %1 form no rectangle</source>
        <translation>按鍵 %1 的實體按鍵未構成矩形</translation>
    </message>
    <message>
        <source>key %1 overlaps key %2</source>
        <translation>按鍵 %1 與按鍵 %2 重疊</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot; is left out: layouts have the numbers %2 to %3.</source>
        <translation>已略過群組「%1」：版面編號為 %2 到 %3。</translation>
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
    <message>
        <source>Select a key that has a function first.</source>
        <translation>請先選擇一個有功能的按鍵。</translation>
    </message>
    <message>
        <source>Only keys with the function for videos play them.</source>
        <translation>只有設為影片功能的按鍵才能播放影片。</translation>
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
        <source>Could not be deleted:</source>
        <translation>無法刪除：</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>找不到任何內容。</translation>
    </message>
    <message>
        <source>There is nothing here yet. Add pictures and videos with the button above, or drop or paste files or a folder here. Then drag them from here onto the keys.</source>
        <translation>這裡還沒有內容。請用上方的按鈕加入圖片和影片，或將檔案或資料夾拖放或貼上到此處，然後從這裡將其拖曳到按鍵上。</translation>
    </message>
    <message>
        <source>... and %1 more.</source>
        <translation>... 以及另外 %1 個。</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>加入...</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼上</translation>
    </message>
    <message>
        <source>Videos are shown without a picture: the program ffmpeg is missing.</source>
        <translation>影片無法顯示畫面：缺少程式 ffmpeg。</translation>
    </message>
    <message>
        <source>Add pictures and videos</source>
        <translation>加入圖片和影片</translation>
    </message>
    <message>
        <source>Pasted picture</source>
        <translation>貼上的圖片</translation>
    </message>
    <message>
        <source>Delete %1 pictures and videos from the gallery?</source>
        <translation>要從圖庫中刪除 %1 個圖片和影片嗎？</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot; from the gallery?</source>
        <translation>要從圖庫中刪除「%1」嗎？</translation>
    </message>
    <message>
        <source>Keys keep the pictures that they show. A key that plays one of these videos needs its file.</source>
        <translation>按鍵會保留其顯示的圖片；播放這些影片的按鍵需要影片檔案。</translation>
    </message>
</context>
<context>
    <name>GalleryModel</name>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 像素</translation>
    </message>
</context>
<context>
    <name>GalleryPictures</name>
    <message>
        <source>Only the first %1 files were looked at.</source>
        <translation>僅檢視了前 %1 個檔案。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than 32 MiB.</source>
        <translation>「%1」大於 32 MiB。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no picture or video that can be read.</source>
        <translation>「%1」不是可讀取的圖片或影片。</translation>
    </message>
    <message>
        <source>There are no pictures or videos in this folder.</source>
        <translation>此資料夾中沒有圖片或影片。</translation>
    </message>
    <message>
        <source>This picture cannot be added.</source>
        <translation>無法加入此圖片。</translation>
    </message>
</context>
<context>
    <name>GalleryProgress</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>GalleryTools</name>
    <message>
        <source>Search</source>
        <translation>搜尋</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
</context>
<context>
    <name>HIDUpgradeDialog</name>
    <message>
        <source>Choose the file first.</source>
        <translation>請先選擇檔案。</translation>
    </message>
    <message>
        <source>The configuration was saved in %1</source>
        <translation>設定已儲存到 %1</translation>
    </message>
    <message>
        <source>The configuration could not be saved. Upgrade all the same?</source>
        <translation>無法儲存設定。仍要升級嗎？</translation>
    </message>
    <message>
        <source>What the panel holds may be lost if the upgrade fails.</source>
        <translation>如果升級失敗，面板中的內容可能會遺失。</translation>
    </message>
    <message>
        <source>The time must be a number of milliseconds from 0 to %1.</source>
        <translation>時間必須是 0 到 %1 之間的毫秒數。</translation>
    </message>
    <message>
        <source>HID path of the panel</source>
        <translation>面板的 HID 路徑</translation>
    </message>
    <message>
        <source>Milliseconds between two blocks</source>
        <translation>兩個資料區塊之間的毫秒數</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>檔案不存在。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>檔案是空的。</translation>
    </message>
    <message>
        <source>The file is too large: %L1 bytes. The panel takes at most %L2 bytes.</source>
        <translation>檔案太大：%L1 位元組。面板最多接受 %L2 位元組。</translation>
    </message>
    <message>
        <source>The file cannot be read to its end. %1</source>
        <translation>檔案無法完整讀取。%1</translation>
    </message>
    <message>
        <source>No file is chosen.</source>
        <translation>未選擇檔案。</translation>
    </message>
    <message>
        <source>The file is being read.</source>
        <translation>正在讀取檔案。</translation>
    </message>
    <message>
        <source>%L1 bytes, CRC-16 0x%2</source>
        <translation>%L1 位元組，CRC-16 0x%2</translation>
    </message>
    <message>
        <source>Keep the panel plugged in until the upgrade has ended.</source>
        <translation>升級結束前請勿拔下面板。</translation>
    </message>
    <message>
        <source>The file is checked and the configuration is saved.</source>
        <translation>正在檢查檔案並儲存設定。</translation>
    </message>
    <message>
        <source>The file is checked.</source>
        <translation>正在檢查檔案。</translation>
    </message>
    <message>
        <source>Waiting for the panel. The upgrade starts as soon as it answers; close this window to give up.</source>
        <translation>正在等待面板。面板一回應即開始升級；如要放棄，請關閉此視窗。</translation>
    </message>
    <message>
        <source>The panel does not answer. If this lasts, pull its plug. </source>
        <translation>面板沒有回應。如果一直如此，請拔下面板。 </translation>
    </message>
    <message>
        <source>The upgrade runs. Do not unplug the panel.</source>
        <translation>正在升級，請勿拔下面板。</translation>
    </message>
    <message>
        <source>The upgrade is done. The panel restarts by itself.</source>
        <translation>升級已完成。面板將自動重新啟動。</translation>
    </message>
    <message>
        <source>The panel received something else than the file. </source>
        <translation>面板收到的內容與檔案不一致。 </translation>
    </message>
    <message>
        <source>The upgrade did not come to its end. </source>
        <translation>升級未能完成。 </translation>
    </message>
    <message>
        <source>Power the panel off and on, choose the file again and start the upgrade once more.</source>
        <translation>請將面板斷電後重新通電，重新選擇檔案並再次開始升級。</translation>
    </message>
    <message>
        <source>Your configuration is saved in %1</source>
        <translation>您的設定已儲存在 %1</translation>
    </message>
    <message>
        <source>The backup does not hold everything. Upgrade all the same?</source>
        <translation>備份不包含全部內容。仍要升級嗎？</translation>
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
    <message>
        <source>Cancel the video</source>
        <translation>取消影片</translation>
    </message>
    <message>
        <source>A backup is being imported. Nothing was changed.</source>
        <translation>正在匯入備份。未做任何變更。</translation>
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
    <name>LayoutDraft</name>
    <message>
        <source>Title</source>
        <translation>標題</translation>
    </message>
    <message>
        <source>Pages of the background</source>
        <translation>背景的頁面</translation>
    </message>
    <message>
        <source>Background on keys without a function</source>
        <translation>無功能按鍵的背景</translation>
    </message>
</context>
<context>
    <name>LayoutEdits</name>
    <message>
        <source>There is no room for another layout.</source>
        <translation>沒有空間容納更多版面。</translation>
    </message>
    <message>
        <source>There are %1 layouts already.</source>
        <translation>已有 %1 個版面。</translation>
    </message>
    <message>
        <source>Change the layout</source>
        <translation>變更版面</translation>
    </message>
    <message>
        <source>New layout</source>
        <translation>新增版面</translation>
    </message>
    <message>
        <source>The layout does not exist any more.</source>
        <translation>該版面已不存在。</translation>
    </message>
    <message>
        <source>Delete the layout</source>
        <translation>刪除版面</translation>
    </message>
    <message>
        <source>Duplicate the layout</source>
        <translation>建立版面複本</translation>
    </message>
    <message>
        <source>The pictures of the background could not be saved. Is the disk full?</source>
        <translation>無法儲存背景的圖片。磁碟是否已滿？</translation>
    </message>
    <message>
        <source>The layout could not be saved. Is the disk full?</source>
        <translation>無法儲存版面。磁碟是否已滿？</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture that can be read.</source>
        <translation>「%1」不是可讀取的圖片。</translation>
    </message>
    <message>
        <source>The picture could not be saved. Is the disk full?</source>
        <translation>無法儲存圖片。磁碟是否已滿？</translation>
    </message>
    <message>
        <source>Background of the layout</source>
        <translation>版面的背景</translation>
    </message>
    <message>
        <source>The layouts could not be kept aside, so those of this computer stay.</source>
        <translation>無法另行保留版面，因此這台電腦上的版面保持不變。</translation>
    </message>
    <message>
        <source>The panel sent layout %1 with keys that are no rectangles or overlap. It was left out.</source>
        <translation>面板傳來的版面 %1 含有非矩形或重疊的按鍵，已略過該版面。</translation>
    </message>
    <message>
        <source>The panel has not taken the home layout.</source>
        <translation>面板未接受首頁版面。</translation>
    </message>
</context>
<context>
    <name>LayoutGrid</name>
    <message>
        <source>Key %1 of %2, selected: %3</source>
        <translation>第 %1 個按鍵，共 %2 個，已選擇：%3</translation>
    </message>
</context>
<context>
    <name>LayoutList</name>
    <message>
        <source>Keys: %1</source>
        <translation>按鍵數：%1</translation>
    </message>
    <message>
        <source>Not saved yet</source>
        <translation>尚未儲存</translation>
    </message>
    <message>
        <source>Not on the panel yet</source>
        <translation>尚未傳送到面板</translation>
    </message>
    <message>
        <source>Home layout of the panel</source>
        <translation>面板的首頁版面</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>建立複本</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>版面</translation>
    </message>
</context>
<context>
    <name>LayoutPage</name>
    <message>
        <source>Show in the editor</source>
        <translation>在編輯器中顯示</translation>
    </message>
    <message>
        <source>Layout %1</source>
        <translation>版面 %1</translation>
    </message>
    <message>
        <source>Remove the background</source>
        <translation>移除背景</translation>
    </message>
    <message>
        <source>Use as home layout</source>
        <translation>作為首頁版面</translation>
    </message>
    <message>
        <source>Keys of the layout</source>
        <translation>版面的按鍵</translation>
    </message>
    <message>
        <source>Save the changes to the layout &quot;%1&quot;?</source>
        <translation>要儲存對版面「%1」的變更嗎？</translation>
    </message>
    <message>
        <source>What is not saved is lost.</source>
        <translation>未儲存的內容將會遺失。</translation>
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
        <source>%1 (copy)</source>
        <translation>%1（複本）</translation>
    </message>
    <message>
        <source>Delete the layout &quot;%1&quot;?</source>
        <translation>要刪除版面「%1」嗎？</translation>
    </message>
    <message>
        <source>None of its keys has a function.</source>
        <translation>其按鍵均未設定功能。</translation>
    </message>
    <message>
        <source>Keys with a function that go with it, on all pages: %1</source>
        <translation>所有頁面上將一併刪除的有功能的按鍵數：%1</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>合併</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>分割</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>The title cannot be saved as it is: see the mark below it.</source>
        <translation>標題無法依原樣儲存：請查看其下方的提示。</translation>
    </message>
    <message>
        <source>Save the layout</source>
        <translation>儲存版面</translation>
    </message>
    <message>
        <source>And %1 more</source>
        <translation>以及另外 %1 個</translation>
    </message>
    <message>
        <source>These keys lose their functions, since they become part of others:</source>
        <translation>以下按鍵將併入其他按鍵，因此會失去功能：</translation>
    </message>
    <message>
        <source>Page %1, key %2: %3</source>
        <translation>第 %1 頁，按鍵 %2：%3</translation>
    </message>
    <message>
        <source>Keys: %1, page %2</source>
        <translation>按鍵數：%1，第 %2 頁</translation>
    </message>
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
        <source>The panel is not connected.</source>
        <translation>面板未連線。</translation>
    </message>
    <message>
        <source>The layout is not saved yet.</source>
        <translation>該版面尚未儲存。</translation>
    </message>
    <message>
        <source>It is the home layout.</source>
        <translation>它已是首頁版面。</translation>
    </message>
    <message>
        <source>The panel shows it after its start</source>
        <translation>面板啟動後顯示此版面</translation>
    </message>
    <message>
        <source>Some layouts in the file cannot be used as they are. Nothing of the file is lost.</source>
        <translation>檔案中的某些版面無法依原樣使用。檔案內容不會遺失。</translation>
    </message>
    <message>
        <source>The background is still being prepared. Save when it is shown.</source>
        <translation>背景仍在準備中，請在其顯示後儲存。</translation>
    </message>
    <message>
        <source>It is the home layout: choose another one for the panel to start with.</source>
        <translation>它是首頁版面：請為面板另選一個啟動時顯示的版面。</translation>
    </message>
</context>
<context>
    <name>LayoutTools</name>
    <message>
        <source>Starting point</source>
        <translation>起始方案</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>合併</translation>
    </message>
    <message>
        <source>Makes one key of those that are selected (Enter)</source>
        <translation>將所選按鍵合併為一個按鍵（Enter）</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>分割</translation>
    </message>
    <message>
        <source>Makes single keys of the selected ones (Delete, or double click)</source>
        <translation>將所選按鍵分割為單一按鍵（Delete 或按兩下）</translation>
    </message>
    <message>
        <source>Back to 15 single keys</source>
        <translation>還原為 15 個單一按鍵</translation>
    </message>
    <message>
        <source>Starting points</source>
        <translation>起始方案</translation>
    </message>
    <message>
        <source>Begin with another grouping</source>
        <translation>以其他按鍵分組開始</translation>
    </message>
    <message>
        <source>%1 keys</source>
        <translation>%1 個按鍵</translation>
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
    <name>MainFrame</name>
    <message>
        <source>Switch</source>
        <translation>切換</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
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
    <name>PagesMenu</name>
    <message>
        <source>All pages with keys</source>
        <translation>所有有按鍵的頁面</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>第 %1 頁</translation>
    </message>
</context>
<context>
    <name>PanelReset</name>
    <message>
        <source>The configuration could not be saved. Go on all the same?</source>
        <translation>無法儲存設定。仍要繼續嗎？</translation>
    </message>
    <message>
        <source>There would be no backup to bring it back from.</source>
        <translation>那樣就沒有可用於還原的備份。</translation>
    </message>
    <message>
        <source>The backup does not hold everything. Go on all the same?</source>
        <translation>備份不完整。仍要繼續嗎？</translation>
    </message>
    <message>
        <source>The panel did not take it. Nothing was cleared.</source>
        <translation>面板未接受。沒有清除任何內容。</translation>
    </message>
    <message>
        <source>All data has been reset. “Undo” in the editor brings back what was on this computer, until the program ends.</source>
        <translation>所有資料已重設。在程式結束之前，可在編輯器中用「復原」還原本電腦上的內容。</translation>
    </message>
    <message>
        <source>The configuration is being saved: %1 %</source>
        <translation>正在儲存設定：%1 %</translation>
    </message>
    <message>
        <source>Waiting until the panel has been cleared.</source>
        <translation>正在等待面板清除完畢。</translation>
    </message>
    <message>
        <source>Waiting until the panel has been read.</source>
        <translation>正在等待面板讀取完畢。</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>以及另外 %1 項</translation>
    </message>
    <message>
        <source>Lost on the panel: all keys with their pictures, videos and action lists.

What is on this computer stays, and is saved as a backup first. Importing that to the panel brings the keys back.</source>
        <translation>面板上將遺失：所有按鍵及其圖片、影片和動作清單。

本電腦上的內容保留不變，並會先儲存為備份。將備份匯入面板即可還原按鍵。</translation>
    </message>
    <message>
        <source>Lost on the panel and on this computer: all keys with their pictures, videos and action lists, and all panel layouts.

What is on this computer is saved as a backup first. “Undo” in the editor brings it back until the program ends, the backup at any time. What only the panel holds cannot be brought back.</source>
        <translation>面板和本電腦上將遺失：所有按鍵及其圖片、影片和動作清單，以及所有面板版面。

本電腦上的內容會先儲存為備份。在程式結束之前，可在編輯器中用「復原」還原；用備份則隨時可以還原。只存在於面板上的內容無法還原。</translation>
    </message>
    <message>
        <source>Safety backup: %1</source>
        <translation>安全備份：%1</translation>
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
    <message>
        <source>Sending was cancelled. It is sent again at the next connection.</source>
        <translation>已取消傳送。下次連線時將重新傳送。</translation>
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
    <name>PictureUploadJob</name>
    <message>
        <source>Converting...</source>
        <translation>正在轉換...</translation>
    </message>
    <message>
        <source>The picture cannot be kept: the disk may be full. %1</source>
        <translation>無法保留圖片：磁碟可能已滿。%1</translation>
    </message>
    <message>
        <source>The key has no function any more.</source>
        <translation>該按鍵已沒有功能。</translation>
    </message>
    <message>
        <source>Sending to the panel...</source>
        <translation>正在傳送到面板...</translation>
    </message>
    <message>
        <source>The panel is being read just now. Try again when that is done.</source>
        <translation>正在讀取面板，請在讀取完成後重試。</translation>
    </message>
</context>
<context>
    <name>PictureUploadOptions</name>
    <message>
        <source>On the key, %1 x %2 pixels:</source>
        <translation>在按鍵上，%1 x %2 像素：</translation>
    </message>
    <message>
        <source>%1, %2 x %3 pixels</source>
        <translation>%1，%2 x %3 像素</translation>
    </message>
    <message>
        <source>One key</source>
        <translation>單一按鍵</translation>
    </message>
    <message>
        <source>Fill the key</source>
        <translation>填滿按鍵</translation>
    </message>
    <message>
        <source>Show the whole video</source>
        <translation>顯示整個影片</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>顯示整張圖片</translation>
    </message>
    <message>
        <source>Stretch to the key</source>
        <translation>延展至按鍵大小</translation>
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
        <source>Use as:</source>
        <translation>用作：</translation>
    </message>
    <message>
        <source>Shape:</source>
        <translation>形狀：</translation>
    </message>
    <message>
        <source>Fit:</source>
        <translation>調整方式：</translation>
    </message>
    <message>
        <source>Leave out what does not fit</source>
        <translation>捨去放不下的部分</translation>
    </message>
</context>
<context>
    <name>PictureUploadPage</name>
    <message>
        <source>The picture is in the gallery.</source>
        <translation>圖片已在圖庫中。</translation>
    </message>
    <message>
        <source>Pasted picture</source>
        <translation>貼上的圖片</translation>
    </message>
    <message>
        <source>The picture cannot be taken over: the disk may be full.</source>
        <translation>無法載入圖片：磁碟可能已滿。</translation>
    </message>
    <message>
        <source>Reading the file...</source>
        <translation>正在讀取檔案...</translation>
    </message>
    <message>
        <source>%1 x %2 pixels</source>
        <translation>%1 x %2 像素</translation>
    </message>
    <message>
        <source>Used: %1 x %2</source>
        <translation>使用部分：%1 x %2</translation>
    </message>
    <message>
        <source>Fewer than the key has: it will look soft.</source>
        <translation>少於按鍵的像素：畫面會顯得模糊。</translation>
    </message>
    <message>
        <source>Choose the shape of the selected key to set it there.</source>
        <translation>請選擇所選按鍵的形狀，才能設定到該按鍵。</translation>
    </message>
    <message>
        <source>Set on the selected key</source>
        <translation>設定到所選按鍵</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Drop a picture or a video here, paste one, or choose a file.</source>
        <translation>將圖片或影片拖放或貼上到此處，或選擇檔案。</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was changed.</source>
        <translation>已取消。未做任何變更。</translation>
    </message>
    <message>
        <source>The video is on the key: %1.</source>
        <translation>影片已設定到按鍵：%1。</translation>
    </message>
    <message>
        <source>The picture is on the key: %1.</source>
        <translation>圖片已設定到按鍵：%1。</translation>
    </message>
    <message>
        <source>The video is in the gallery; its end did not fit.</source>
        <translation>影片已在圖庫中；其結尾部分放不下。</translation>
    </message>
    <message>
        <source>The video is in the gallery.</source>
        <translation>影片已在圖庫中。</translation>
    </message>
</context>
<context>
    <name>PictureUploadTarget</name>
    <message>
        <source>No key is selected in the editor.</source>
        <translation>編輯器中沒有選取按鍵。</translation>
    </message>
    <message>
        <source>The selected key has no function. Give it one in the editor first.</source>
        <translation>選取的按鍵沒有功能。請先在編輯器中為它設定功能。</translation>
    </message>
    <message>
        <source>The selected key has no video function. Give it one in the editor first.</source>
        <translation>選取的按鍵沒有影片功能。請先在編輯器中為它設定。</translation>
    </message>
    <message>
        <source>Key %1 of %2</source>
        <translation>按鍵 %1，%2</translation>
    </message>
</context>
<context>
    <name>PictureUploadVideo</name>
    <message>
        <source>%1 x %2 pixels</source>
        <translation>%1 x %2 像素</translation>
    </message>
    <message>
        <source>On the key: %1, at most %2 frames a second and %3 MB</source>
        <translation>在按鍵上：%1，最多每秒 %2 個影格、%3 MB</translation>
    </message>
    <message>
        <source>Maybe too long: about %1 fit.</source>
        <translation>可能太長：約可容納 %1。</translation>
    </message>
    <message>
        <source>Install vorlindesk again, or copy the program ffmpeg to this place.</source>
        <translation>請重新安裝 vorlindesk，或將程式 ffmpeg 複製到此位置。</translation>
    </message>
    <message>
        <source>Tick &quot;Leave out what does not fit&quot; to use its beginning.</source>
        <translation>勾選「捨去放不下的部分」即可使用其開頭部分。</translation>
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
    <name>RestorePreviewDialog</name>
    <message>
        <source>Take over what is not damaged</source>
        <translation>匯入未損壞的部分</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Damaged, and not in what can be taken over:</source>
        <translation>已損壞，無法匯入：</translation>
    </message>
    <message>
        <source>Lost, since no backup can hold it:</source>
        <translation>將會遺失，因為備份無法儲存：</translation>
    </message>
    <message>
        <source>Changes beside the keys:</source>
        <translation>按鍵以外的變更：</translation>
    </message>
    <message>
        <source>Nothing changes</source>
        <translation>沒有變更</translation>
    </message>
    <message>
        <source>The configuration here is the same.</source>
        <translation>目前設定與備份相同。</translation>
    </message>
    <message>
        <source>Pages that change:</source>
        <translation>將變更的頁面：</translation>
    </message>
    <message>
        <source>The present configuration cannot be backed up, so it cannot be replaced: %1</source>
        <translation>無法備份目前設定，因此不能取代它：%1</translation>
    </message>
    <message>
        <source>The present configuration is backed up first. The import is one step that can be undone.</source>
        <translation>會先備份目前設定。匯入是一個可以復原的步驟。</translation>
    </message>
    <message>
        <source>Then the panel is sent the whole configuration.</source>
        <translation>隨後將全部設定傳送到面板。</translation>
    </message>
    <message>
        <source>Then the panel is sent what changes.</source>
        <translation>隨後將變更傳送到面板。</translation>
    </message>
    <message>
        <source>The panel is sent what changes when it is connected.</source>
        <translation>面板連線後，將向其傳送變更。</translation>
    </message>
    <message>
        <source>Parts of the backup are damaged: first choose what becomes of the rest.</source>
        <translation>備份的部分內容已損壞：請先選擇如何處理其餘部分。</translation>
    </message>
</context>
<context>
    <name>SettingsSwitches</name>
    <message>
        <source>The setting could not be saved. Is the disk full?</source>
        <translation>無法儲存設定。磁碟是否已滿？</translation>
    </message>
    <message>
        <source>Synchronise by itself</source>
        <translation>自動同步</translation>
    </message>
    <message>
        <source>When the program starts, it looks for the panel and reads its configuration. Off: the panel is read only on request.</source>
        <translation>程式啟動時尋找面板並讀取其設定。關閉時，僅在要求時讀取面板。</translation>
    </message>
    <message>
        <source>Write what is sent into the log</source>
        <translation>將傳送內容寫入記錄檔</translation>
    </message>
    <message>
        <source>Every report to the panel is written into the log, byte for byte. The log grows fast.</source>
        <translation>傳送給面板的每個報文都逐位元組寫入記錄檔。記錄檔會迅速變大。</translation>
    </message>
    <message>
        <source>Custom layouts are still to be loaded</source>
        <translation>自訂版面尚待載入</translation>
    </message>
    <message>
        <source>Takes effect when the program is started again.</source>
        <translation>重新啟動程式後生效。</translation>
    </message>
    <message>
        <source>A mark that the panel has yet to send its layouts. The program takes it away once they have come; nothing else depends on it.</source>
        <translation>標記面板尚未傳送其版面。收到版面後程式會自動取消此標記；此外沒有其他作用。</translation>
    </message>
</context>
<context>
    <name>Start</name>
    <message>
        <source>An earlier restore is not finished: a file is in use.</source>
        <translation>先前的還原尚未完成：有檔案正在使用中。</translation>
    </message>
    <message>
        <source>Close the programs that may use files in &quot;%1&quot;, then try again. Nothing is lost.</source>
        <translation>請關閉可能正在使用「%1」中檔案的程式，然後重試。不會遺失任何內容。</translation>
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
    <message>
        <source>The panel is not connected.</source>
        <translation>面板未連線。</translation>
    </message>
    <message>
        <source>Another one (%1)</source>
        <translation>其他（%1）</translation>
    </message>
    <message>
        <source>The panel is being cleared.</source>
        <translation>正在清除面板。</translation>
    </message>
    <message>
        <source>The panel is being read.</source>
        <translation>正在讀取面板。</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>程式</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>面板</translation>
    </message>
    <message>
        <source>Care of the panel</source>
        <translation>面板維護</translation>
    </message>
    <message>
        <source>Switches</source>
        <translation>開關</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>Clears the panel. What is on this computer stays.</source>
        <translation>清除面板。本電腦上的內容保留不變。</translation>
    </message>
    <message>
        <source>Clears the panel and what is on this computer: keys, layouts and action lists.</source>
        <translation>清除面板以及本電腦上的按鍵、版面和動作清單。</translation>
    </message>
    <message>
        <source>Sends a firmware file to the panel. The configuration is saved first.</source>
        <translation>向面板傳送韌體檔案。會先儲存設定。</translation>
    </message>
    <message>
        <source>Sends a font file to the panel. The configuration is saved first.</source>
        <translation>向面板傳送字型庫檔案。會先儲存設定。</translation>
    </message>
    <message>
        <source>Addresses for a panel in a network. They are only written into the log: panels have no command for them yet.</source>
        <translation>網路中面板的位址。僅寫入記錄檔：面板目前還沒有相應的命令。</translation>
    </message>
    <message>
        <source>A backup is being imported.</source>
        <translation>正在匯入備份。</translation>
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
<context>
    <name>TransferBar</name>
    <message>
        <source>1 more waits</source>
        <translation>另有 1 個等待中</translation>
    </message>
    <message>
        <source>%1 more wait</source>
        <translation>另有 %1 個等待中</translation>
    </message>
    <message>
        <source>Cancel the video for key %1</source>
        <translation>取消按鍵 %1 的影片</translation>
    </message>
    <message>
        <source>Converting %1 ... %2 %</source>
        <translation>正在轉換 %1 ... %2 %</translation>
    </message>
    <message>
        <source>Sending to key %1 ...</source>
        <translation>正在傳送到按鍵 %1 ...</translation>
    </message>
    <message>
        <source>Sending to key %1 ... %2 of %3 blocks</source>
        <translation>正在傳送到按鍵 %1 ... 第 %2 個區塊，共 %3 個</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>UpgradeProgress</name>
    <message>
        <source>Block %1 of %2</source>
        <translation>第 %1 個區塊，共 %2 個</translation>
    </message>
    <message>
        <source>Elapsed: %1</source>
        <translation>已用時間：%1</translation>
    </message>
    <message>
        <source>Remaining: about %1</source>
        <translation>剩餘時間：約 %1</translation>
    </message>
</context>
<context>
    <name>VideoFiles</name>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>about a second</source>
        <translation>約 1 秒</translation>
    </message>
    <message>
        <source>about %1 seconds</source>
        <translation>約 %1 秒</translation>
    </message>
    <message>
        <source>about %1 minutes</source>
        <translation>約 %1 分鐘</translation>
    </message>
    <message>
        <source>%1: %2 of at most %3, %4</source>
        <translation>%1：%2，最多 %3，%4</translation>
    </message>
    <message>
        <source>%1: %2 of at most %3</source>
        <translation>%1：%2，最多 %3</translation>
    </message>
</context>
<context>
    <name>VideoPlacement</name>
    <message>
        <source>Key %1 does not play videos.</source>
        <translation>按鍵 %1 不播放影片。</translation>
    </message>
    <message>
        <source>Should the video end there, so that it fits?</source>
        <translation>要讓影片在該處結束以便放得下嗎？</translation>
    </message>
    <message>
        <source>Cut the video</source>
        <translation>截短影片</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be sent whole. It is sent again at the next connection.</source>
        <translation>「%1」未能完整傳送。下次連線時將重新傳送。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read, so it was not sent.</source>
        <translation>無法讀取「%1」，因此未傳送。</translation>
    </message>
    <message>
        <source>Its end was left out.</source>
        <translation>其結尾部分已捨去。</translation>
    </message>
</context>
</TS>
