<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>AttributeEditor</name>
    <message>
        <source>Key %1 keeps its last title that could be sent.</source>
        <translation>按键 %1 保留最后一个可以发送的标题。</translation>
    </message>
    <message>
        <source>Key %1 keeps its last content that could be sent.</source>
        <translation>按键 %1 保留最后一个可以发送的内容。</translation>
    </message>
    <message>
        <source>Step %1: %2</source>
        <translation>步骤 %1：%2</translation>
    </message>
    <message>
        <source>Key %1: %2</source>
        <translation>按键 %1：%2</translation>
    </message>
    <message>
        <source>Key %1</source>
        <translation>按键 %1</translation>
    </message>
</context>
<context>
    <name>BackgroundBox</name>
    <message>
        <source>The picture could not be written. Is the disk full?</source>
        <translation>无法写入图片。磁盘是否已满？</translation>
    </message>
    <message>
        <source>Pages: %1</source>
        <translation>页面：%1</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>背景：</translation>
    </message>
    <message>
        <source>Choose a picture…</source>
        <translation>选择图片…</translation>
    </message>
    <message>
        <source>A picture that spreads over all keys</source>
        <translation>铺满所有按键的图片</translation>
    </message>
    <message>
        <source>Remove the background</source>
        <translation>移除背景</translation>
    </message>
    <message>
        <source>The pages on which the keys show it</source>
        <translation>按键显示背景的页面</translation>
    </message>
    <message>
        <source>Also on keys without a function</source>
        <translation>也用于没有功能的按键</translation>
    </message>
    <message>
        <source>Such a key shows its part of the picture, and does nothing when it is pressed</source>
        <translation>此类按键显示图片中属于它的部分，按下时不执行任何操作</translation>
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
        <translation>无法读取“%1”：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>无法写入“%1”：%2</translation>
    </message>
    <message>
        <source>The backup in &quot;%1&quot; reads back differently from what was written. It was removed: the disk may be failing.</source>
        <translation>“%1”中的备份读回后与写入的内容不一致，已将其移除：磁盘可能有故障。</translation>
    </message>
    <message>
        <source>Parts of the backup &quot;%1&quot; are damaged. Nothing was changed.</source>
        <translation>备份“%1”的部分内容已损坏。未作任何更改。</translation>
    </message>
    <message>
        <source>The backup &quot;%1&quot; holds nothing that can be restored.</source>
        <translation>备份“%1”中没有可恢复的内容。</translation>
    </message>
    <message>
        <source>An earlier restore could not be finished. Its files are in &quot;%1&quot;. Start the program again, and it will be tried again.</source>
        <translation>之前的恢复未能完成，其文件位于“%1”。请重新启动本程序，届时将再次尝试。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be replaced: %2 Nothing was changed.</source>
        <translation>无法替换“%1”：%2 未作任何更改。</translation>
    </message>
    <message>
        <source>key records of layout %1 page %2</source>
        <translation>布局 %1 第 %2 页的按键记录</translation>
    </message>
    <message>
        <source>texts of layout %1 page %2 key %3</source>
        <translation>布局 %1 第 %2 页按键 %3 的文本</translation>
    </message>
    <message>
        <source>picture of layout %1 page %2 key %3</source>
        <translation>布局 %1 第 %2 页按键 %3 的图片</translation>
    </message>
    <message>
        <source>picture file of layout %1 page %2 key %3</source>
        <translation>布局 %1 第 %2 页按键 %3 的图片文件</translation>
    </message>
    <message>
        <source>picture path of layout %1 page %2 key %3</source>
        <translation>布局 %1 第 %2 页按键 %3 的图片路径</translation>
    </message>
    <message>
        <source>video of layout %1 page %2 key %3</source>
        <translation>布局 %1 第 %2 页按键 %3 的视频</translation>
    </message>
    <message>
        <source>action list of layout %1 page %2 key %3</source>
        <translation>布局 %1 第 %2 页按键 %3 的操作列表</translation>
    </message>
    <message>
        <source>record of layout %1 page %2 key %3</source>
        <translation>布局 %1 第 %2 页按键 %3 的记录</translation>
    </message>
    <message>
        <source>unknown section of layout %1 page %2 key %3</source>
        <translation>布局 %1 第 %2 页按键 %3 的未知部分</translation>
    </message>
    <message>
        <source>header</source>
        <translation>文件头</translation>
    </message>
    <message>
        <source>sections %1 to %2</source>
        <translation>第 %1 至 %2 部分</translation>
    </message>
    <message>
        <source>bytes behind the last section</source>
        <translation>最后一部分之后的字节</translation>
    </message>
    <message>
        <source>layout %1 page %2 key %3</source>
        <translation>布局 %1 第 %2 页按键 %3</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%2 的 %1：%3</translation>
    </message>
    <message>
        <source>What an earlier restore left in &quot;%1&quot; cannot be removed. Close the programs that use its files, and try again.</source>
        <translation>先前的恢复在“%1”中留下的内容无法删除。请关闭正在使用这些文件的程序，然后重试。</translation>
    </message>
</context>
<context>
    <name>BackupPanel</name>
    <message>
        <source>The backup was deleted.</source>
        <translation>备份已删除。</translation>
    </message>
    <message>
        <source>The backup could not be deleted. Is one of its files open?</source>
        <translation>无法删除备份。是否有其中的文件正被打开？</translation>
    </message>
    <message>
        <source>Imported: %1</source>
        <translation>已导入：%1</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>未包含：%1</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was changed.</source>
        <translation>已取消。未作任何更改。</translation>
    </message>
    <message>
        <source>The panel has the whole configuration.</source>
        <translation>面板已获得全部配置。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Name (optional):</source>
        <translation>名称（可选）：</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Made</source>
        <translation>来源</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>布局</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not there now. Until it is back, backups are kept in the folder above.</source>
        <translation>“%1”现在不可用。在其恢复之前，备份保存在上面的文件夹中。</translation>
    </message>
    <message>
        <source>There are no backups in this folder yet.</source>
        <translation>此文件夹中还没有备份。</translation>
    </message>
    <message>
        <source>Choose a backup to see what it holds.</source>
        <translation>选择一个备份以查看其内容。</translation>
    </message>
    <message>
        <source>A plain export: only its keys can be checked for damage.</source>
        <translation>普通导出：只能检查其中的按键是否损坏。</translation>
    </message>
    <message>
        <source>Choose a backup in the list first.</source>
        <translation>请先在列表中选择一个备份。</translation>
    </message>
    <message>
        <source>The panel is not connected.</source>
        <translation>面板未连接。</translation>
    </message>
    <message>
        <source>Making the backup ...</source>
        <translation>正在创建备份……</translation>
    </message>
    <message>
        <source>Deleting the backup ...</source>
        <translation>正在删除备份……</translation>
    </message>
    <message>
        <source>Reading the backup ...</source>
        <translation>正在读取备份……</translation>
    </message>
    <message>
        <source>Importing ...</source>
        <translation>正在导入……</translation>
    </message>
    <message>
        <source>Sending to the panel ...</source>
        <translation>正在发送到面板……</translation>
    </message>
    <message>
        <source>The folder could not be opened: %1</source>
        <translation>无法打开文件夹：%1</translation>
    </message>
    <message>
        <source>Delete this backup?</source>
        <translation>删除此备份？</translation>
    </message>
    <message>
        <source>Its files are removed from the disk.</source>
        <translation>其文件将从磁盘中删除。</translation>
    </message>
    <message>
        <source>Cancelled. No backup was made.</source>
        <translation>已取消，未创建备份。</translation>
    </message>
    <message>
        <source>No backup was made: %1</source>
        <translation>未能创建备份：%1</translation>
    </message>
    <message>
        <source>The backup was made, and read back without a difference.</source>
        <translation>备份已创建，回读核对一致。</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>备份</translation>
    </message>
</context>
<context>
    <name>BackupTexts</name>
    <message>
        <source>export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>by hand</source>
        <translation>手动</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>before an import</source>
        <translation>导入之前</translation>
    </message>
    <message>
        <source>Layouts: %1, pages: %2, keys: %3, pictures: %4, videos: %5</source>
        <translation>布局：%1，页面：%2，按键：%3，图片：%4，视频：%5</translation>
    </message>
    <message>
        <source>%1, page %2</source>
        <translation>%1，第 %2 页</translation>
    </message>
    <message>
        <source>keys added: %1</source>
        <translation>新增按键：%1</translation>
    </message>
    <message>
        <source>changed: %1</source>
        <translation>更改：%1</translation>
    </message>
    <message>
        <source>removed: %1</source>
        <translation>移除：%1</translation>
    </message>
    <message>
        <source>Panel layouts</source>
        <translation>面板布局</translation>
    </message>
    <message>
        <source>Steps of the multiple actions</source>
        <translation>多重操作的步骤</translation>
    </message>
    <message>
        <source>Settings: language, switches, child pages, window</source>
        <translation>设置：语言、开关、子页面、窗口</translation>
    </message>
    <message>
        <source>Background picture %1</source>
        <translation>背景图片 %1</translation>
    </message>
</context>
<context>
    <name>Backups</name>
    <message>
        <source>Something else is still under way.</source>
        <translation>其他操作仍在进行中。</translation>
    </message>
    <message>
        <source>The panel is being read.</source>
        <translation>正在读取面板。</translation>
    </message>
    <message>
        <source>The firmware is being updated.</source>
        <translation>正在更新固件。</translation>
    </message>
    <message>
        <source>A video is being converted or sent. Wait for it, or cancel it.</source>
        <translation>正在转换或发送视频。请等待完成，或将其取消。</translation>
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
        <translation>面板未连接。</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>尚未获知</translation>
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
        <translation>红色</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>橙色</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄色</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿色</translation>
    </message>
    <message>
        <source>Turquoise</source>
        <translation>青绿色</translation>
    </message>
    <message>
        <source>Light blue</source>
        <translation>浅蓝色</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝色</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>紫色</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>粉色</translation>
    </message>
    <message>
        <source>Title colour</source>
        <translation>标题颜色</translation>
    </message>
    <message>
        <source>More colours...</source>
        <translation>更多颜色...</translation>
    </message>
</context>
<context>
    <name>CombinationField</name>
    <message>
        <source>Key %1 of the combination</source>
        <translation>组合键的第 %1 个键</translation>
    </message>
</context>
<context>
    <name>ConfigurationImport</name>
    <message>
        <source>Import of a backup</source>
        <translation>导入备份</translation>
    </message>
    <message>
        <source>The import could not be made again: %1</source>
        <translation>无法重新导入：%1</translation>
    </message>
    <message>
        <source>The import could not be taken back: %1</source>
        <translation>无法撤销导入：%1</translation>
    </message>
    <message>
        <source>The configuration is too large to be sent at once. Its keys are sent one by one.</source>
        <translation>配置过大，无法一次发送。将逐个发送按键。</translation>
    </message>
    <message>
        <source>Sending was cancelled: the panel keeps what it has. It gets what differs when it is connected next time.</source>
        <translation>发送已取消：面板保留原有内容。下次连接时将发送不同之处。</translation>
    </message>
    <message>
        <source>The panel has not taken the configuration. It gets what differs when it is connected next time.</source>
        <translation>面板未接收配置。下次连接时将发送不同之处。</translation>
    </message>
</context>
<context>
    <name>ContentEditor</name>
    <message>
        <source>Choose the file that the key opens</source>
        <translation>选择按键要打开的文件</translation>
    </message>
    <message>
        <source>Web address:</source>
        <translation>网址：</translation>
    </message>
    <message>
        <source>None chosen</source>
        <translation>未选择</translation>
    </message>
    <message>
        <source>Video of the key</source>
        <translation>按键的视频</translation>
    </message>
    <message>
        <source>Choose the video that the key plays</source>
        <translation>选择按键要播放的视频</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>Web address</source>
        <translation>网址</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Key combination</source>
        <translation>组合键</translation>
    </message>
    <message>
        <source>Opens the home page of the browser on this computer.</source>
        <translation>在这台电脑上打开浏览器主页。</translation>
    </message>
    <message>
        <source>Runs several actions one after the other. Double click the key, or press Enter on it, to edit them.</source>
        <translation>依次执行多个操作。双击按键，或在按键上按 Enter，即可编辑这些操作。</translation>
    </message>
    <message>
        <source>Shows a page of its own with further keys. Double click the key, or press Enter on it, to open that page.</source>
        <translation>显示带有更多按键的独立页面。双击按键，或在按键上按 Enter，即可打开该页面。</translation>
    </message>
    <message>
        <source>Leads from a child page back to the main page.</source>
        <translation>从子页面返回主页面。</translation>
    </message>
    <message>
        <source>The panel does this by itself. There is nothing more to set.</source>
        <translation>此功能由面板自行完成，无需其他设置。</translation>
    </message>
    <message>
        <source>This program does not know the function %1 of the key.</source>
        <translation>本程序不认识该按键的功能 %1。</translation>
    </message>
</context>
<context>
    <name>Conversion</name>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation>无法打开“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture that can be read.</source>
        <translation>“%1”不是可读取的图片。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a video that can be read.</source>
        <translation>“%1”不是可读取的视频。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large: a picture may have up to %2 x %2 pixels.</source>
        <translation>“%1”太大：图片最大为 %2 x %2 像素。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged or not complete.</source>
        <translation>“%1”已损坏或不完整。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be converted to a size without pixels.</source>
        <translation>无法将“%1”转换为没有像素的尺寸。</translation>
    </message>
    <message>
        <source>The program that converts pictures and videos is missing or cannot be started: %1</source>
        <translation>用于转换图片和视频的程序缺失或无法启动：%1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be converted.</source>
        <translation>无法转换“%1”。</translation>
    </message>
    <message>
        <source>The conversion of &quot;%1&quot; took too long and was given up.</source>
        <translation>转换“%1”耗时过长，已放弃。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be converted: the disk is full.</source>
        <translation>无法转换“%1”：磁盘已满。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be written to.</source>
        <translation>无法写入文件夹“%1”。</translation>
    </message>
    <message>
        <source>The conversion of &quot;%1&quot; was cancelled.</source>
        <translation>已取消转换“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too long: even at the lowest quality at most %2 seconds of it fit into %3 MB.</source>
        <translation>“%1”太长：即使使用最低质量，%3 MB 也最多只能容纳其中的 %2 秒。</translation>
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
        <translation>正在读取图片……</translation>
    </message>
    <message>
        <source>This file is a video, no picture.</source>
        <translation>此文件是视频，不是图片。</translation>
    </message>
</context>
<context>
    <name>CropPanel</name>
    <message>
        <source>Zoom:</source>
        <translation>缩放：</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Part of the picture that is used</source>
        <translation>图片中使用的部分</translation>
    </message>
    <message>
        <source>Drag the picture or use the arrow keys to move it. The wheel, + and - zoom.</source>
        <translation>拖动图片或使用方向键可移动图片，使用滚轮、+ 和 - 可缩放。</translation>
    </message>
</context>
<context>
    <name>CustomLayouts</name>
    <message>
        <source>Some lines cannot be read. The file as it was is kept beside it.</source>
        <translation>有些行无法读取。原文件已保存在旁边。</translation>
    </message>
    <message>
        <source>Layout %1: %2.</source>
        <translation>布局 %1：%2。</translation>
    </message>
    <message>
        <source>Layout %1 (%2): %3.</source>
        <translation>布局 %1（%2）：%3。</translation>
    </message>
    <message>
        <source>the number of its keys is missing</source>
        <translation>缺少按键数</translation>
    </message>
    <message>
        <source>the number of its keys is &quot;%1&quot;, not 1 to 15</source>
        <translation>按键数为“%1”，不在 1 到 15 之间</translation>
    </message>
    <message>
        <source>key %1 does not name its physical keys, so those of its bitmap count</source>
        <translation>按键 %1 未列出其实体按键，因此以其位图中的按键为准</translation>
    </message>
    <message>
        <source>the physical keys of key %1 differ from its bitmap</source>
        <translation>按键 %1 的实体按键与其位图不一致</translation>
    </message>
    <message>
        <source>key %1 has no bitmap</source>
        <translation>按键 %1 没有位图</translation>
    </message>
    <message>
        <source>the physical keys of key %1 form no rectangle</source>
        <translation>按键 %1 的实体按键未构成矩形</translation>
    </message>
    <message>
        <source>key %1 overlaps key %2</source>
        <translation>按键 %1 与按键 %2 重叠</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot; is left out: layouts have the numbers %2 to %3.</source>
        <translation>已忽略组“%1”：布局编号为 %2 到 %3。</translation>
    </message>
</context>
<context>
    <name>EditToolBar</name>
    <message>
        <source>Undo: %1</source>
        <translation>撤销：%1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
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
        <translation>剪切</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Put on every page</source>
        <translation>放到每一页</translation>
    </message>
</context>
<context>
    <name>FunctionConfigWidget</name>
    <message>
        <source>Layout %1</source>
        <translation>布局 %1</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>布局</translation>
    </message>
    <message>
        <source>Select a key that has a function first.</source>
        <translation>请先选择一个有功能的按键。</translation>
    </message>
    <message>
        <source>Only keys with the function for videos play them.</source>
        <translation>只有设为视频功能的按键才能播放视频。</translation>
    </message>
</context>
<context>
    <name>FunctionList</name>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>No function has this in its name.</source>
        <translation>没有名称包含此内容的功能。</translation>
    </message>
</context>
<context>
    <name>GalleryFrame</name>
    <message>
        <source>Could not be deleted:</source>
        <translation>无法删除：</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>未找到任何内容。</translation>
    </message>
    <message>
        <source>There is nothing here yet. Add pictures and videos with the button above, or drop or paste files or a folder here. Then drag them from here onto the keys.</source>
        <translation>这里还没有内容。请用上方的按钮添加图片和视频，或将文件或文件夹拖放或粘贴到此处，然后从这里将其拖到按键上。</translation>
    </message>
    <message>
        <source>... and %1 more.</source>
        <translation>... 以及另外 %1 个。</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>添加...</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Videos are shown without a picture: the program ffmpeg is missing.</source>
        <translation>视频无法显示画面：缺少程序 ffmpeg。</translation>
    </message>
    <message>
        <source>Add pictures and videos</source>
        <translation>添加图片和视频</translation>
    </message>
    <message>
        <source>Pasted picture</source>
        <translation>粘贴的图片</translation>
    </message>
    <message>
        <source>Delete %1 pictures and videos from the gallery?</source>
        <translation>要从图库中删除 %1 个图片和视频吗？</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot; from the gallery?</source>
        <translation>从图库中删除“%1”吗？</translation>
    </message>
    <message>
        <source>Keys keep the pictures that they show. A key that plays one of these videos needs its file.</source>
        <translation>按键会保留其显示的图片；播放这些视频的按键需要视频文件。</translation>
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
        <translation>仅查看了前 %1 个文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than 32 MiB.</source>
        <translation>“%1”大于 32 MiB。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no picture or video that can be read.</source>
        <translation>“%1”不是可读取的图片或视频。</translation>
    </message>
    <message>
        <source>There are no pictures or videos in this folder.</source>
        <translation>此文件夹中没有图片或视频。</translation>
    </message>
    <message>
        <source>This picture cannot be added.</source>
        <translation>无法添加此图片。</translation>
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
        <translation>搜索</translation>
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
        <translation>请先选择文件。</translation>
    </message>
    <message>
        <source>The configuration was saved in %1</source>
        <translation>配置已保存到 %1</translation>
    </message>
    <message>
        <source>The configuration could not be saved. Upgrade all the same?</source>
        <translation>无法保存配置。仍要升级吗？</translation>
    </message>
    <message>
        <source>What the panel holds may be lost if the upgrade fails.</source>
        <translation>如果升级失败，面板中的内容可能会丢失。</translation>
    </message>
    <message>
        <source>The time must be a number of milliseconds from 0 to %1.</source>
        <translation>时间必须是 0 到 %1 之间的毫秒数。</translation>
    </message>
    <message>
        <source>HID path of the panel</source>
        <translation>面板的 HID 路径</translation>
    </message>
    <message>
        <source>Milliseconds between two blocks</source>
        <translation>两个数据块之间的毫秒数</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>文件不存在。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>文件为空。</translation>
    </message>
    <message>
        <source>The file is too large: %L1 bytes. The panel takes at most %L2 bytes.</source>
        <translation>文件太大：%L1 字节。面板最多接受 %L2 字节。</translation>
    </message>
    <message>
        <source>The file cannot be read to its end. %1</source>
        <translation>文件无法完整读取。%1</translation>
    </message>
    <message>
        <source>No file is chosen.</source>
        <translation>未选择文件。</translation>
    </message>
    <message>
        <source>The file is being read.</source>
        <translation>正在读取文件。</translation>
    </message>
    <message>
        <source>%L1 bytes, CRC-16 0x%2</source>
        <translation>%L1 字节，CRC-16 0x%2</translation>
    </message>
    <message>
        <source>Keep the panel plugged in until the upgrade has ended.</source>
        <translation>升级结束前请勿拔下面板。</translation>
    </message>
    <message>
        <source>The file is checked and the configuration is saved.</source>
        <translation>正在检查文件并保存配置。</translation>
    </message>
    <message>
        <source>The file is checked.</source>
        <translation>正在检查文件。</translation>
    </message>
    <message>
        <source>Waiting for the panel. The upgrade starts as soon as it answers; close this window to give up.</source>
        <translation>正在等待面板。面板一响应即开始升级；如要放弃，请关闭此窗口。</translation>
    </message>
    <message>
        <source>The panel does not answer. If this lasts, pull its plug. </source>
        <translation>面板没有响应。如果一直如此，请拔下面板。 </translation>
    </message>
    <message>
        <source>The upgrade runs. Do not unplug the panel.</source>
        <translation>正在升级，请勿拔下面板。</translation>
    </message>
    <message>
        <source>The upgrade is done. The panel restarts by itself.</source>
        <translation>升级已完成。面板将自动重启。</translation>
    </message>
    <message>
        <source>The panel received something else than the file. </source>
        <translation>面板收到的内容与文件不一致。 </translation>
    </message>
    <message>
        <source>The upgrade did not come to its end. </source>
        <translation>升级未能完成。 </translation>
    </message>
    <message>
        <source>Power the panel off and on, choose the file again and start the upgrade once more.</source>
        <translation>请将面板断电后重新通电，重新选择文件并再次开始升级。</translation>
    </message>
    <message>
        <source>Your configuration is saved in %1</source>
        <translation>您的配置已保存在 %1</translation>
    </message>
    <message>
        <source>The backup does not hold everything. Upgrade all the same?</source>
        <translation>备份不包含全部内容。仍要升级吗？</translation>
    </message>
</context>
<context>
    <name>KeyCaptureButton</name>
    <message>
        <source>Press now</source>
        <translation>请按键</translation>
    </message>
    <message>
        <source>Press keys</source>
        <translation>录入按键</translation>
    </message>
    <message>
        <source>Takes the keys that you press together, up to four</source>
        <translation>录入同时按下的键，最多四个</translation>
    </message>
</context>
<context>
    <name>KeyCommands</name>
    <message>
        <source>Delete the keys of its child page too?</source>
        <translation>要同时删除其子页面上的按键吗？</translation>
    </message>
    <message>
        <source>Delete the keys of their child pages too?</source>
        <translation>要同时删除它们的子页面上的按键吗？</translation>
    </message>
    <message>
        <source>Keys there that have a function: %1</source>
        <translation>其中已设置功能的按键数：%1</translation>
    </message>
    <message>
        <source>Delete them too</source>
        <translation>一并删除</translation>
    </message>
    <message>
        <source>Keep them</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>There are no keys on the clipboard.</source>
        <translation>剪贴板上没有按键。</translation>
    </message>
    <message>
        <source>Select a key first.</source>
        <translation>请先选择一个按键。</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Select a key with a function first.</source>
        <translation>请先选择一个有功能的按键。</translation>
    </message>
    <message>
        <source>Put on every page</source>
        <translation>放到每一页</translation>
    </message>
    <message>
        <source>Keys of other pages that were replaced: %1. Undo brings them back.</source>
        <translation>其他页面上被替换的按键数：%1。可通过撤销恢复。</translation>
    </message>
    <message>
        <source>Key %1 leads to the page that it is on.</source>
        <translation>按键 %1 指向其所在的页面。</translation>
    </message>
    <message>
        <source>Key %1 of page %2 leads to the same child page.</source>
        <translation>第 %2 页的按键 %1 也指向同一个子页面。</translation>
    </message>
    <message>
        <source>Page %1 has no key that leads back, and key %2 there is not free.</source>
        <translation>第 %1 页没有返回按键，并且该页的按键 %2 已被占用。</translation>
    </message>
    <message>
        <source>Child page</source>
        <translation>子页面</translation>
    </message>
</context>
<context>
    <name>KeyDrag</name>
    <message>
        <source>Copy key</source>
        <translation>复制按键</translation>
    </message>
    <message>
        <source>Swap keys</source>
        <translation>交换按键</translation>
    </message>
    <message>
        <source>Move key</source>
        <translation>移动按键</translation>
    </message>
</context>
<context>
    <name>KeyEdits</name>
    <message>
        <source>The keys could not be saved. Is the disk full?</source>
        <translation>无法保存按键。磁盘是否已满？</translation>
    </message>
    <message>
        <source>The multiple actions could not be saved: %1</source>
        <translation>无法保存多重操作：%1</translation>
    </message>
    <message>
        <source>A picture could not be saved. Is the disk full?</source>
        <translation>有一张图片无法保存。磁盘是否已满？</translation>
    </message>
    <message>
        <source>Read from the panel</source>
        <translation>从面板读取</translation>
    </message>
    <message>
        <source>Cancel the video</source>
        <translation>取消视频</translation>
    </message>
    <message>
        <source>A backup is being imported. Nothing was changed.</source>
        <translation>正在导入备份。未作任何更改。</translation>
    </message>
</context>
<context>
    <name>KeyWidget</name>
    <message>
        <source>Rows %1-%2</source>
        <translation>第 %1-%2 行</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>columns %1-%2</source>
        <translation>第 %1-%2 列</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>第 %1 列</translation>
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
        <translation>空</translation>
    </message>
    <message>
        <source>%1, title &apos;%2&apos;</source>
        <translation>%1，标题“%2”</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>功能</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>The multiple actions could not be saved: %1</source>
        <translation>无法保存多重操作：%1</translation>
    </message>
</context>
<context>
    <name>KeyboardWidget</name>
    <message>
        <source>Clear page</source>
        <translation>清空页面</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>LayoutBar</name>
    <message>
        <source>All layouts</source>
        <translation>所有布局</translation>
    </message>
</context>
<context>
    <name>LayoutDraft</name>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Pages of the background</source>
        <translation>背景的页面</translation>
    </message>
    <message>
        <source>Background on keys without a function</source>
        <translation>无功能按键的背景</translation>
    </message>
</context>
<context>
    <name>LayoutEdits</name>
    <message>
        <source>There is no room for another layout.</source>
        <translation>没有空间容纳更多布局。</translation>
    </message>
    <message>
        <source>There are %1 layouts already.</source>
        <translation>已有 %1 个布局。</translation>
    </message>
    <message>
        <source>Change the layout</source>
        <translation>更改布局</translation>
    </message>
    <message>
        <source>New layout</source>
        <translation>新建布局</translation>
    </message>
    <message>
        <source>The layout does not exist any more.</source>
        <translation>该布局已不存在。</translation>
    </message>
    <message>
        <source>Delete the layout</source>
        <translation>删除布局</translation>
    </message>
    <message>
        <source>Duplicate the layout</source>
        <translation>创建布局副本</translation>
    </message>
    <message>
        <source>The pictures of the background could not be saved. Is the disk full?</source>
        <translation>无法保存背景的图片。磁盘是否已满？</translation>
    </message>
    <message>
        <source>The layout could not be saved. Is the disk full?</source>
        <translation>无法保存布局。磁盘是否已满？</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture that can be read.</source>
        <translation>“%1”不是可读取的图片。</translation>
    </message>
    <message>
        <source>The picture could not be saved. Is the disk full?</source>
        <translation>无法保存图片。磁盘是否已满？</translation>
    </message>
    <message>
        <source>Background of the layout</source>
        <translation>布局的背景</translation>
    </message>
    <message>
        <source>The layouts could not be kept aside, so those of this computer stay.</source>
        <translation>无法另行保留布局，因此这台电脑上的布局保持不变。</translation>
    </message>
    <message>
        <source>The panel sent layout %1 with keys that are no rectangles or overlap. It was left out.</source>
        <translation>面板发来的布局 %1 含有非矩形或重叠的按键，已忽略该布局。</translation>
    </message>
    <message>
        <source>The panel has not taken the home layout.</source>
        <translation>面板未接受首页布局。</translation>
    </message>
</context>
<context>
    <name>LayoutGrid</name>
    <message>
        <source>Key %1 of %2, selected: %3</source>
        <translation>第 %1 个按键，共 %2 个，已选择：%3</translation>
    </message>
</context>
<context>
    <name>LayoutList</name>
    <message>
        <source>Keys: %1</source>
        <translation>按键数：%1</translation>
    </message>
    <message>
        <source>Not saved yet</source>
        <translation>尚未保存</translation>
    </message>
    <message>
        <source>Not on the panel yet</source>
        <translation>尚未发送到面板</translation>
    </message>
    <message>
        <source>Home layout of the panel</source>
        <translation>面板的首页布局</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>创建副本</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>布局</translation>
    </message>
</context>
<context>
    <name>LayoutPage</name>
    <message>
        <source>Show in the editor</source>
        <translation>在编辑器中显示</translation>
    </message>
    <message>
        <source>Layout %1</source>
        <translation>布局 %1</translation>
    </message>
    <message>
        <source>Remove the background</source>
        <translation>移除背景</translation>
    </message>
    <message>
        <source>Use as home layout</source>
        <translation>用作首页布局</translation>
    </message>
    <message>
        <source>Keys of the layout</source>
        <translation>布局的按键</translation>
    </message>
    <message>
        <source>Save the changes to the layout &quot;%1&quot;?</source>
        <translation>要保存对布局“%1”的更改吗？</translation>
    </message>
    <message>
        <source>What is not saved is lost.</source>
        <translation>未保存的内容将会丢失。</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1（副本）</translation>
    </message>
    <message>
        <source>Delete the layout &quot;%1&quot;?</source>
        <translation>要删除布局“%1”吗？</translation>
    </message>
    <message>
        <source>None of its keys has a function.</source>
        <translation>其按键均未设置功能。</translation>
    </message>
    <message>
        <source>Keys with a function that go with it, on all pages: %1</source>
        <translation>所有页面上将一并删除的有功能的按键数：%1</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>合并</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>拆分</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>The title cannot be saved as it is: see the mark below it.</source>
        <translation>标题无法按原样保存：请查看其下方的提示。</translation>
    </message>
    <message>
        <source>Save the layout</source>
        <translation>保存布局</translation>
    </message>
    <message>
        <source>And %1 more</source>
        <translation>以及另外 %1 个</translation>
    </message>
    <message>
        <source>These keys lose their functions, since they become part of others:</source>
        <translation>以下按键将并入其他按键，因此会失去功能：</translation>
    </message>
    <message>
        <source>Page %1, key %2: %3</source>
        <translation>第 %1 页，按键 %2：%3</translation>
    </message>
    <message>
        <source>Keys: %1, page %2</source>
        <translation>按键数：%1，第 %2 页</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>撤销：%1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
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
        <translation>面板未连接。</translation>
    </message>
    <message>
        <source>The layout is not saved yet.</source>
        <translation>该布局尚未保存。</translation>
    </message>
    <message>
        <source>It is the home layout.</source>
        <translation>它已是首页布局。</translation>
    </message>
    <message>
        <source>The panel shows it after its start</source>
        <translation>面板启动后显示此布局</translation>
    </message>
    <message>
        <source>Some layouts in the file cannot be used as they are. Nothing of the file is lost.</source>
        <translation>文件中的某些布局无法按原样使用。文件内容不会丢失。</translation>
    </message>
    <message>
        <source>The background is still being prepared. Save when it is shown.</source>
        <translation>背景仍在准备中，请在其显示后保存。</translation>
    </message>
    <message>
        <source>It is the home layout: choose another one for the panel to start with.</source>
        <translation>它是首页布局：请为面板另选一个启动时显示的布局。</translation>
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
        <translation>合并</translation>
    </message>
    <message>
        <source>Makes one key of those that are selected (Enter)</source>
        <translation>将所选按键合并为一个按键（Enter）</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>拆分</translation>
    </message>
    <message>
        <source>Makes single keys of the selected ones (Delete, or double click)</source>
        <translation>将所选按键拆分为单个按键（Delete 或双击）</translation>
    </message>
    <message>
        <source>Back to 15 single keys</source>
        <translation>恢复为 15 个单个按键</translation>
    </message>
    <message>
        <source>Starting points</source>
        <translation>起始方案</translation>
    </message>
    <message>
        <source>Begin with another grouping</source>
        <translation>以其他按键分组开始</translation>
    </message>
    <message>
        <source>%1 keys</source>
        <translation>%1 个按键</translation>
    </message>
</context>
<context>
    <name>LimitedText</name>
    <message>
        <source>Bytes of the text, and how many the panel has room for</source>
        <translation>文本的字节数，以及面板可容纳的字节数</translation>
    </message>
    <message>
        <source>The panel has no %1</source>
        <translation>面板没有字符 %1</translation>
    </message>
    <message>
        <source>%1 of %2 bytes</source>
        <translation>%1 / %2 字节</translation>
    </message>
    <message>
        <source>not sent yet</source>
        <translation>尚未发送</translation>
    </message>
    <message>
        <source>the panel shows only a part</source>
        <translation>面板只显示一部分</translation>
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
        <translation>切换</translation>
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
        <translation>显示模式</translation>
    </message>
    <message>
        <source>Image effect</source>
        <translation>图片效果</translation>
    </message>
</context>
<context>
    <name>MultiActionWidget</name>
    <message>
        <source>Switch to the window that shall get the text: %1 s</source>
        <translation>请切换到要接收文本的窗口：%1 秒</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>测试</translation>
    </message>
    <message>
        <source>Runs the steps on this computer, as far as it can</source>
        <translation>在这台电脑上执行可以执行的步骤</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>%1: row %2, column %3, page %4</source>
        <translation>%1：第 %2 行，第 %3 列，第 %4 页</translation>
    </message>
    <message>
        <source>Step %1: %2</source>
        <translation>步骤 %1：%2</translation>
    </message>
    <message>
        <source>Steps: %1, %2 of %3 bytes</source>
        <translation>步骤数：%1，%2 / %3 字节</translation>
    </message>
    <message>
        <source>not saved yet</source>
        <translation>尚未保存</translation>
    </message>
    <message>
        <source>The saved steps cannot be read: the file %1 is damaged. It stays as it is until you save.</source>
        <translation>无法读取已保存的步骤：文件 %1 已损坏。在您保存之前，该文件保持不变。</translation>
    </message>
    <message>
        <source>The key does not have multiple actions any more. Undo that first, or discard the steps.</source>
        <translation>该按键已不再具有多重操作。请先撤销该更改，或放弃这些步骤。</translation>
    </message>
    <message>
        <source>The steps are not saved. The panel cannot take these:</source>
        <translation>步骤未保存。面板无法接受以下步骤：</translation>
    </message>
    <message>
        <source>The steps are not saved. Together they need %1 bytes, and the panel takes %2.</source>
        <translation>步骤未保存。这些步骤共需 %1 字节，而面板最多接受 %2 字节。</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>以及另外 %1 个</translation>
    </message>
    <message>
        <source>The file %1 is damaged. Begin a new one?</source>
        <translation>文件 %1 已损坏。要新建一个文件吗？</translation>
    </message>
    <message>
        <source>The steps of the other keys cannot be read from the old one either. It is kept as %1.</source>
        <translation>其他按键的步骤也无法从旧文件中读取。旧文件将保留为 %1。</translation>
    </message>
    <message>
        <source>The damaged file cannot be renamed. The steps are not saved.</source>
        <translation>无法重命名已损坏的文件。步骤未保存。</translation>
    </message>
    <message>
        <source>Save multiple actions</source>
        <translation>保存多重操作</translation>
    </message>
    <message>
        <source>The steps could not be saved: %1</source>
        <translation>无法保存步骤：%1</translation>
    </message>
    <message>
        <source>Save the steps of this key?</source>
        <translation>要保存此按键的步骤吗？</translation>
    </message>
    <message>
        <source>They have been changed since they were saved.</source>
        <translation>这些步骤在上次保存后已更改。</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>The steps are running</source>
        <translation>正在执行步骤</translation>
    </message>
    <message>
        <source>Step %1 is running</source>
        <translation>正在执行步骤 %1</translation>
    </message>
    <message>
        <source>All steps have been run</source>
        <translation>所有步骤均已执行</translation>
    </message>
    <message>
        <source>The test was stopped</source>
        <translation>测试已停止</translation>
    </message>
</context>
<context>
    <name>NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>PageNavigation</name>
    <message>
        <source>Page %1</source>
        <translation>第 %1 页</translation>
    </message>
</context>
<context>
    <name>PagesMenu</name>
    <message>
        <source>All pages with keys</source>
        <translation>所有有按键的页面</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>第 %1 页</translation>
    </message>
</context>
<context>
    <name>PanelReset</name>
    <message>
        <source>The configuration could not be saved. Go on all the same?</source>
        <translation>无法保存配置。仍要继续吗？</translation>
    </message>
    <message>
        <source>There would be no backup to bring it back from.</source>
        <translation>那样就没有可用于恢复的备份。</translation>
    </message>
    <message>
        <source>The backup does not hold everything. Go on all the same?</source>
        <translation>备份不完整。仍要继续吗？</translation>
    </message>
    <message>
        <source>The panel did not take it. Nothing was cleared.</source>
        <translation>面板未接受。没有清除任何内容。</translation>
    </message>
    <message>
        <source>All data has been reset. “Undo” in the editor brings back what was on this computer, until the program ends.</source>
        <translation>所有数据已重置。在程序结束之前，可在编辑器中用“撤销”恢复本计算机上的内容。</translation>
    </message>
    <message>
        <source>The configuration is being saved: %1 %</source>
        <translation>正在保存配置：%1 %</translation>
    </message>
    <message>
        <source>Waiting until the panel has been cleared.</source>
        <translation>正在等待面板清除完毕。</translation>
    </message>
    <message>
        <source>Waiting until the panel has been read.</source>
        <translation>正在等待面板读取完毕。</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>以及另外 %1 项</translation>
    </message>
    <message>
        <source>Lost on the panel: all keys with their pictures, videos and action lists.

What is on this computer stays, and is saved as a backup first. Importing that to the panel brings the keys back.</source>
        <translation>面板上将丢失：所有按键及其图片、视频和操作列表。

本计算机上的内容保留不变，并会先保存为备份。将备份导入面板即可恢复按键。</translation>
    </message>
    <message>
        <source>Lost on the panel and on this computer: all keys with their pictures, videos and action lists, and all panel layouts.

What is on this computer is saved as a backup first. “Undo” in the editor brings it back until the program ends, the backup at any time. What only the panel holds cannot be brought back.</source>
        <translation>面板和本计算机上将丢失：所有按键及其图片、视频和操作列表，以及所有面板布局。

本计算机上的内容会先保存为备份。在程序结束之前，可在编辑器中用“撤销”恢复；用备份则随时可以恢复。只存在于面板上的内容无法恢复。</translation>
    </message>
    <message>
        <source>Safety backup: %1</source>
        <translation>安全备份：%1</translation>
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
        <translation>正在等待发送</translation>
    </message>
    <message>
        <source>The panel did not take it. It is sent again at the next connection.</source>
        <translation>面板未接受。下次连接时将重新发送。</translation>
    </message>
    <message>
        <source>Its picture, video or action list cannot be read, so it was not sent.</source>
        <translation>无法读取其图片、视频或操作列表，因此未发送。</translation>
    </message>
    <message>
        <source>Sending was cancelled. It is sent again at the next connection.</source>
        <translation>已取消发送。下次连接时将重新发送。</translation>
    </message>
</context>
<context>
    <name>PictureEdits</name>
    <message>
        <source>&quot;%1&quot; cannot be opened: %2</source>
        <translation>无法打开“%1”：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has %2 MB. The panel takes videos of up to 10 MB.</source>
        <translation>“%1”的大小为 %2 MB。面板最多接受 10 MB 的视频。</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Reset the picture</source>
        <translation>重置图片</translation>
    </message>
</context>
<context>
    <name>PicturePicker</name>
    <message>
        <source>Choose the picture of the key</source>
        <translation>选择按键的图片</translation>
    </message>
    <message>
        <source>Show the icon of the function again</source>
        <translation>重新显示功能图标</translation>
    </message>
    <message>
        <source>What the key shows</source>
        <translation>按键显示的内容</translation>
    </message>
</context>
<context>
    <name>PictureUploadJob</name>
    <message>
        <source>Converting...</source>
        <translation>正在转换...</translation>
    </message>
    <message>
        <source>The picture cannot be kept: the disk may be full. %1</source>
        <translation>无法保留图片：磁盘可能已满。%1</translation>
    </message>
    <message>
        <source>The key has no function any more.</source>
        <translation>该按键已没有功能。</translation>
    </message>
    <message>
        <source>Sending to the panel...</source>
        <translation>正在发送到面板...</translation>
    </message>
    <message>
        <source>The panel is being read just now. Try again when that is done.</source>
        <translation>正在读取面板，请在读取完成后重试。</translation>
    </message>
</context>
<context>
    <name>PictureUploadOptions</name>
    <message>
        <source>On the key, %1 x %2 pixels:</source>
        <translation>在按键上，%1 x %2 像素：</translation>
    </message>
    <message>
        <source>%1, %2 x %3 pixels</source>
        <translation>%1，%2 x %3 像素</translation>
    </message>
    <message>
        <source>One key</source>
        <translation>单个按键</translation>
    </message>
    <message>
        <source>Fill the key</source>
        <translation>填满按键</translation>
    </message>
    <message>
        <source>Show the whole video</source>
        <translation>显示整个视频</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>显示整张图片</translation>
    </message>
    <message>
        <source>Stretch to the key</source>
        <translation>拉伸至按键大小</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Use as:</source>
        <translation>用作：</translation>
    </message>
    <message>
        <source>Shape:</source>
        <translation>形状：</translation>
    </message>
    <message>
        <source>Fit:</source>
        <translation>适应方式：</translation>
    </message>
    <message>
        <source>Leave out what does not fit</source>
        <translation>舍去放不下的部分</translation>
    </message>
</context>
<context>
    <name>PictureUploadPage</name>
    <message>
        <source>The picture is in the gallery.</source>
        <translation>图片已在图库中。</translation>
    </message>
    <message>
        <source>Pasted picture</source>
        <translation>粘贴的图片</translation>
    </message>
    <message>
        <source>The picture cannot be taken over: the disk may be full.</source>
        <translation>无法载入图片：磁盘可能已满。</translation>
    </message>
    <message>
        <source>Reading the file...</source>
        <translation>正在读取文件...</translation>
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
        <translation>少于按键的像素：画面会显得模糊。</translation>
    </message>
    <message>
        <source>Choose the shape of the selected key to set it there.</source>
        <translation>请选择所选按键的形状，才能设置到该按键。</translation>
    </message>
    <message>
        <source>Set on the selected key</source>
        <translation>设置到所选按键</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Drop a picture or a video here, paste one, or choose a file.</source>
        <translation>将图片或视频拖放或粘贴到此处，或选择文件。</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was changed.</source>
        <translation>已取消。未作任何更改。</translation>
    </message>
    <message>
        <source>The video is on the key: %1.</source>
        <translation>视频已设置到按键：%1。</translation>
    </message>
    <message>
        <source>The picture is on the key: %1.</source>
        <translation>图片已设置到按键：%1。</translation>
    </message>
    <message>
        <source>The video is in the gallery; its end did not fit.</source>
        <translation>视频已在图库中；其结尾部分放不下。</translation>
    </message>
    <message>
        <source>The video is in the gallery.</source>
        <translation>视频已在图库中。</translation>
    </message>
</context>
<context>
    <name>PictureUploadTarget</name>
    <message>
        <source>No key is selected in the editor.</source>
        <translation>编辑器中没有选中按键。</translation>
    </message>
    <message>
        <source>The selected key has no function. Give it one in the editor first.</source>
        <translation>选中的按键没有功能。请先在编辑器中为它设置功能。</translation>
    </message>
    <message>
        <source>The selected key has no video function. Give it one in the editor first.</source>
        <translation>选中的按键没有视频功能。请先在编辑器中为它设置。</translation>
    </message>
    <message>
        <source>Key %1 of %2</source>
        <translation>按键 %1，%2</translation>
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
        <translation>在按键上：%1，最多每秒 %2 帧、%3 MB</translation>
    </message>
    <message>
        <source>Maybe too long: about %1 fit.</source>
        <translation>可能太长：约可容纳 %1。</translation>
    </message>
    <message>
        <source>Install vorlindesk again, or copy the program ffmpeg to this place.</source>
        <translation>请重新安装 vorlindesk，或将程序 ffmpeg 复制到此位置。</translation>
    </message>
    <message>
        <source>Tick &quot;Leave out what does not fit&quot; to use its beginning.</source>
        <translation>勾选“舍去放不下的部分”即可使用其开头部分。</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>全部保存</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>全部选是(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>全部选否(&amp;O)</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>忽略</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>恢复默认值</translation>
    </message>
</context>
<context>
    <name>RestorePreviewDialog</name>
    <message>
        <source>Take over what is not damaged</source>
        <translation>导入未损坏的部分</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Damaged, and not in what can be taken over:</source>
        <translation>已损坏，无法导入：</translation>
    </message>
    <message>
        <source>Lost, since no backup can hold it:</source>
        <translation>将会丢失，因为备份无法保存：</translation>
    </message>
    <message>
        <source>Changes beside the keys:</source>
        <translation>按键以外的更改：</translation>
    </message>
    <message>
        <source>Nothing changes</source>
        <translation>没有更改</translation>
    </message>
    <message>
        <source>The configuration here is the same.</source>
        <translation>当前配置与备份相同。</translation>
    </message>
    <message>
        <source>Pages that change:</source>
        <translation>将更改的页面：</translation>
    </message>
    <message>
        <source>The present configuration cannot be backed up, so it cannot be replaced: %1</source>
        <translation>无法备份当前配置，因此不能替换它：%1</translation>
    </message>
    <message>
        <source>The present configuration is backed up first. The import is one step that can be undone.</source>
        <translation>会先备份当前配置。导入是一个可以撤销的步骤。</translation>
    </message>
    <message>
        <source>Then the panel is sent the whole configuration.</source>
        <translation>随后将全部配置发送到面板。</translation>
    </message>
    <message>
        <source>Then the panel is sent what changes.</source>
        <translation>随后将更改发送到面板。</translation>
    </message>
    <message>
        <source>The panel is sent what changes when it is connected.</source>
        <translation>面板连接后，将向其发送更改。</translation>
    </message>
    <message>
        <source>Parts of the backup are damaged: first choose what becomes of the rest.</source>
        <translation>备份的部分内容已损坏：请先选择如何处理其余部分。</translation>
    </message>
</context>
<context>
    <name>SettingsSwitches</name>
    <message>
        <source>The setting could not be saved. Is the disk full?</source>
        <translation>无法保存设置。磁盘是否已满？</translation>
    </message>
    <message>
        <source>Synchronise by itself</source>
        <translation>自动同步</translation>
    </message>
    <message>
        <source>When the program starts, it looks for the panel and reads its configuration. Off: the panel is read only on request.</source>
        <translation>程序启动时查找面板并读取其配置。关闭时，仅在要求时读取面板。</translation>
    </message>
    <message>
        <source>Write what is sent into the log</source>
        <translation>将发送内容写入日志</translation>
    </message>
    <message>
        <source>Every report to the panel is written into the log, byte for byte. The log grows fast.</source>
        <translation>发送给面板的每个报文都逐字节写入日志。日志会迅速变大。</translation>
    </message>
    <message>
        <source>Custom layouts are still to be loaded</source>
        <translation>自定义布局尚待加载</translation>
    </message>
    <message>
        <source>Takes effect when the program is started again.</source>
        <translation>重新启动程序后生效。</translation>
    </message>
    <message>
        <source>A mark that the panel has yet to send its layouts. The program takes it away once they have come; nothing else depends on it.</source>
        <translation>标记面板尚未发送其布局。收到布局后程序会自动取消此标记；此外没有其他作用。</translation>
    </message>
</context>
<context>
    <name>Start</name>
    <message>
        <source>An earlier restore is not finished: a file is in use.</source>
        <translation>先前的恢复尚未完成：有文件正在使用中。</translation>
    </message>
    <message>
        <source>Close the programs that may use files in &quot;%1&quot;, then try again. Nothing is lost.</source>
        <translation>请关闭可能正在使用“%1”中文件的程序，然后重试。不会丢失任何内容。</translation>
    </message>
</context>
<context>
    <name>StatusFrame</name>
    <message>
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>Looking for the panel...</source>
        <translation>正在查找面板...</translation>
    </message>
    <message>
        <source>Reading the configuration...</source>
        <translation>正在读取配置...</translation>
    </message>
    <message>
        <source>Reading the configuration... %1 of %2 keys</source>
        <translation>正在读取配置... 第 %1 个按键，共 %2 个</translation>
    </message>
    <message>
        <source>Connected. The configuration was not read to its end.</source>
        <translation>已连接。配置未能读取完整。</translation>
    </message>
</context>
<context>
    <name>StepCombination</name>
    <message>
        <source>Choose keys</source>
        <translation>选择按键</translation>
    </message>
    <message>
        <source>Key %1</source>
        <translation>第 %1 个键</translation>
    </message>
    <message>
        <source>(no key)</source>
        <translation>（无按键）</translation>
    </message>
</context>
<context>
    <name>StepDelegate</name>
    <message>
        <source>running</source>
        <translation>正在执行</translation>
    </message>
    <message>
        <source>done</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>skipped: done by the panel</source>
        <translation>已跳过：由面板执行</translation>
    </message>
</context>
<context>
    <name>StepListView</name>
    <message>
        <source>Steps</source>
        <translation>步骤</translation>
    </message>
    <message>
        <source>Drag functions from the list here</source>
        <translation>将列表中的功能拖到此处</translation>
    </message>
</context>
<context>
    <name>StepRow</name>
    <message>
        <source>Choose the file to open</source>
        <translation>选择要打开的文件</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>所有文件</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>毫秒</translation>
    </message>
    <message>
        <source>Copy step %1</source>
        <translation>复制步骤 %1</translation>
    </message>
    <message>
        <source>Remove step %1</source>
        <translation>移除步骤 %1</translation>
    </message>
    <message>
        <source>Choose the file of step %1</source>
        <translation>选择步骤 %1 的文件</translation>
    </message>
    <message>
        <source>Content of step %1</source>
        <translation>步骤 %1 的内容</translation>
    </message>
</context>
<context>
    <name>StepText</name>
    <message>
        <source>Every character takes 2 bytes, an emoji takes 4.</source>
        <translation>每个字符占 2 字节，表情符号占 4 字节。</translation>
    </message>
    <message>
        <source>Letters without accents, digits and signs take 1 byte, other characters 2 to 4.</source>
        <translation>不带重音的字母、数字和符号占 1 字节，其他字符占 2 到 4 字节。</translation>
    </message>
    <message>
        <source>%1 bytes, but the panel takes %2.</source>
        <translation>%1 字节，而面板最多接受 %2 字节。</translation>
    </message>
    <message>
        <source>The panel has no key of this name: %1</source>
        <translation>面板没有此名称的键：%1</translation>
    </message>
    <message>
        <source>More keys than the %1 that the panel takes.</source>
        <translation>键数超过面板可接受的 %1 个。</translation>
    </message>
    <message>
        <source>A character with the number 0 would end the text before its end.</source>
        <translation>编号为 0 的字符会使文本提前结束。</translation>
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
        <translation>无法打开文件夹：%1</translation>
    </message>
    <message>
        <source>Home layout:</source>
        <translation>首页布局：</translation>
    </message>
    <message>
        <source>Folder of the logs:</source>
        <translation>日志文件夹：</translation>
    </message>
    <message>
        <source>Folder of the settings:</source>
        <translation>设置文件夹：</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>尚未获知</translation>
    </message>
    <message>
        <source>The panel is not connected.</source>
        <translation>面板未连接。</translation>
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
        <translation>正在读取面板。</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>面板</translation>
    </message>
    <message>
        <source>Care of the panel</source>
        <translation>面板维护</translation>
    </message>
    <message>
        <source>Switches</source>
        <translation>开关</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Clears the panel. What is on this computer stays.</source>
        <translation>清除面板。本计算机上的内容保留不变。</translation>
    </message>
    <message>
        <source>Clears the panel and what is on this computer: keys, layouts and action lists.</source>
        <translation>清除面板以及本计算机上的按键、布局和操作列表。</translation>
    </message>
    <message>
        <source>Sends a firmware file to the panel. The configuration is saved first.</source>
        <translation>向面板发送固件文件。会先保存配置。</translation>
    </message>
    <message>
        <source>Sends a font file to the panel. The configuration is saved first.</source>
        <translation>向面板发送字库文件。会先保存配置。</translation>
    </message>
    <message>
        <source>Addresses for a panel in a network. They are only written into the log: panels have no command for them yet.</source>
        <translation>网络中面板的地址。仅写入日志：面板目前还没有相应的命令。</translation>
    </message>
    <message>
        <source>A backup is being imported.</source>
        <translation>正在导入备份。</translation>
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
        <translation>标题大小</translation>
    </message>
    <message>
        <source>Size of the title, in points</source>
        <translation>标题大小（磅）</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>磅</translation>
    </message>
    <message>
        <source>Colour:</source>
        <translation>颜色：</translation>
    </message>
    <message>
        <source>Title alignment: %1</source>
        <translation>标题对齐：%1</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Title size</source>
        <translation>标题大小</translation>
    </message>
    <message>
        <source>Title colour</source>
        <translation>标题颜色</translation>
    </message>
    <message>
        <source>Title alignment</source>
        <translation>标题对齐</translation>
    </message>
</context>
<context>
    <name>TransferBar</name>
    <message>
        <source>1 more waits</source>
        <translation>另有 1 个等待中</translation>
    </message>
    <message>
        <source>%1 more wait</source>
        <translation>另有 %1 个等待中</translation>
    </message>
    <message>
        <source>Cancel the video for key %1</source>
        <translation>取消按键 %1 的视频</translation>
    </message>
    <message>
        <source>Converting %1 ... %2 %</source>
        <translation>正在转换 %1 ... %2 %</translation>
    </message>
    <message>
        <source>Sending to key %1 ...</source>
        <translation>正在发送到按键 %1 ...</translation>
    </message>
    <message>
        <source>Sending to key %1 ... %2 of %3 blocks</source>
        <translation>正在发送到按键 %1 ... 第 %2 块，共 %3 块</translation>
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
        <translation>第 %1 块，共 %2 块</translation>
    </message>
    <message>
        <source>Elapsed: %1</source>
        <translation>已用时间：%1</translation>
    </message>
    <message>
        <source>Remaining: about %1</source>
        <translation>剩余时间：约 %1</translation>
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
        <translation>约 1 秒</translation>
    </message>
    <message>
        <source>about %1 seconds</source>
        <translation>约 %1 秒</translation>
    </message>
    <message>
        <source>about %1 minutes</source>
        <translation>约 %1 分钟</translation>
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
        <translation>按键 %1 不播放视频。</translation>
    </message>
    <message>
        <source>Should the video end there, so that it fits?</source>
        <translation>要让视频在该处结束以便放得下吗？</translation>
    </message>
    <message>
        <source>Cut the video</source>
        <translation>截短视频</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be sent whole. It is sent again at the next connection.</source>
        <translation>“%1”未能完整发送。下次连接时将重新发送。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read, so it was not sent.</source>
        <translation>无法读取“%1”，因此未发送。</translation>
    </message>
    <message>
        <source>Its end was left out.</source>
        <translation>其结尾部分已舍去。</translation>
    </message>
</context>
</TS>
