<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>AttributeEditor</name>
    <message>
        <source>Key %1 keeps its last title that could be sent.</source>
        <translation>Key %1 keeps its last title that could be sent.</translation>
    </message>
    <message>
        <source>Key %1 keeps its last content that could be sent.</source>
        <translation>Key %1 keeps its last content that could be sent.</translation>
    </message>
    <message>
        <source>Step %1: %2</source>
        <translation>Step %1: %2</translation>
    </message>
    <message>
        <source>Key %1: %2</source>
        <translation>Key %1: %2</translation>
    </message>
    <message>
        <source>Key %1</source>
        <translation>Key %1</translation>
    </message>
</context>
<context>
    <name>BackgroundBox</name>
    <message>
        <source>The picture could not be written. Is the disk full?</source>
        <translation>The picture could not be written. Is the disk full?</translation>
    </message>
    <message>
        <source>Pages: %1</source>
        <translation>Pages: %1</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>Background:</translation>
    </message>
    <message>
        <source>Choose a picture…</source>
        <translation>Choose a picture…</translation>
    </message>
    <message>
        <source>A picture that spreads over all keys</source>
        <translation>A picture that spreads over all keys</translation>
    </message>
    <message>
        <source>Remove the background</source>
        <translation>Remove the background</translation>
    </message>
    <message>
        <source>The pages on which the keys show it</source>
        <translation>The pages on which the keys show it</translation>
    </message>
    <message>
        <source>Also on keys without a function</source>
        <translation>Also on keys without a function</translation>
    </message>
    <message>
        <source>Such a key shows its part of the picture, and does nothing when it is pressed</source>
        <translation>Such a key shows its part of the picture, and does nothing when it is pressed</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>Backup</name>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>&quot;%1&quot; cannot be read: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>&quot;%1&quot; could not be written: %2</translation>
    </message>
    <message>
        <source>The backup in &quot;%1&quot; reads back differently from what was written. It was removed: the disk may be failing.</source>
        <translation>The backup in &quot;%1&quot; reads back differently from what was written. It was removed: the disk may be failing.</translation>
    </message>
    <message>
        <source>Parts of the backup &quot;%1&quot; are damaged. Nothing was changed.</source>
        <translation>Parts of the backup &quot;%1&quot; are damaged. Nothing was changed.</translation>
    </message>
    <message>
        <source>The backup &quot;%1&quot; holds nothing that can be restored.</source>
        <translation>The backup &quot;%1&quot; holds nothing that can be restored.</translation>
    </message>
    <message>
        <source>An earlier restore could not be finished. Its files are in &quot;%1&quot;. Start the program again, and it will be tried again.</source>
        <translation>An earlier restore could not be finished. Its files are in &quot;%1&quot;. Start the program again, and it will be tried again.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be replaced: %2 Nothing was changed.</source>
        <translation>&quot;%1&quot; could not be replaced: %2 Nothing was changed.</translation>
    </message>
    <message>
        <source>key records of layout %1 page %2</source>
        <translation>key records of layout %1 page %2</translation>
    </message>
    <message>
        <source>texts of layout %1 page %2 key %3</source>
        <translation>texts of layout %1 page %2 key %3</translation>
    </message>
    <message>
        <source>picture of layout %1 page %2 key %3</source>
        <translation>picture of layout %1 page %2 key %3</translation>
    </message>
    <message>
        <source>picture file of layout %1 page %2 key %3</source>
        <translation>picture file of layout %1 page %2 key %3</translation>
    </message>
    <message>
        <source>picture path of layout %1 page %2 key %3</source>
        <translation>picture path of layout %1 page %2 key %3</translation>
    </message>
    <message>
        <source>video of layout %1 page %2 key %3</source>
        <translation>video of layout %1 page %2 key %3</translation>
    </message>
    <message>
        <source>action list of layout %1 page %2 key %3</source>
        <translation>action list of layout %1 page %2 key %3</translation>
    </message>
    <message>
        <source>record of layout %1 page %2 key %3</source>
        <translation>record of layout %1 page %2 key %3</translation>
    </message>
    <message>
        <source>unknown section of layout %1 page %2 key %3</source>
        <translation>unknown section of layout %1 page %2 key %3</translation>
    </message>
    <message>
        <source>header</source>
        <translation>header</translation>
    </message>
    <message>
        <source>sections %1 to %2</source>
        <translation>sections %1 to %2</translation>
    </message>
    <message>
        <source>bytes behind the last section</source>
        <translation>bytes behind the last section</translation>
    </message>
    <message>
        <source>layout %1 page %2 key %3</source>
        <translation>layout %1 page %2 key %3</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 of %2: %3</translation>
    </message>
    <message>
        <source>What an earlier restore left in &quot;%1&quot; cannot be removed. Close the programs that use its files, and try again.</source>
        <translation>What an earlier restore left in &quot;%1&quot; cannot be removed. Close the programs that use its files, and try again.</translation>
    </message>
</context>
<context>
    <name>BackupPanel</name>
    <message>
        <source>The backup was deleted.</source>
        <translation>The backup was deleted.</translation>
    </message>
    <message>
        <source>The backup could not be deleted. Is one of its files open?</source>
        <translation>The backup could not be deleted. Is one of its files open?</translation>
    </message>
    <message>
        <source>Imported: %1</source>
        <translation>Imported: %1</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>Left out: %1</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was changed.</source>
        <translation>Cancelled. Nothing was changed.</translation>
    </message>
    <message>
        <source>The panel has the whole configuration.</source>
        <translation>The panel has the whole configuration.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Name (optional):</source>
        <translation>Name (optional):</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Made</source>
        <translation>Made</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Layouts</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Keys</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Pictures</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Videos</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not there now. Until it is back, backups are kept in the folder above.</source>
        <translation>&quot;%1&quot; is not there now. Until it is back, backups are kept in the folder above.</translation>
    </message>
    <message>
        <source>There are no backups in this folder yet.</source>
        <translation>There are no backups in this folder yet.</translation>
    </message>
    <message>
        <source>Choose a backup to see what it holds.</source>
        <translation>Choose a backup to see what it holds.</translation>
    </message>
    <message>
        <source>A plain export: only its keys can be checked for damage.</source>
        <translation>A plain export: only its keys can be checked for damage.</translation>
    </message>
    <message>
        <source>Choose a backup in the list first.</source>
        <translation>Choose a backup in the list first.</translation>
    </message>
    <message>
        <source>The panel is not connected.</source>
        <translation>The panel is not connected.</translation>
    </message>
    <message>
        <source>Making the backup ...</source>
        <translation>Making the backup ...</translation>
    </message>
    <message>
        <source>Deleting the backup ...</source>
        <translation>Deleting the backup ...</translation>
    </message>
    <message>
        <source>Reading the backup ...</source>
        <translation>Reading the backup ...</translation>
    </message>
    <message>
        <source>Importing ...</source>
        <translation>Importing ...</translation>
    </message>
    <message>
        <source>Sending to the panel ...</source>
        <translation>Sending to the panel ...</translation>
    </message>
    <message>
        <source>The folder could not be opened: %1</source>
        <translation>The folder could not be opened: %1</translation>
    </message>
    <message>
        <source>Delete this backup?</source>
        <translation>Delete this backup?</translation>
    </message>
    <message>
        <source>Its files are removed from the disk.</source>
        <translation>Its files are removed from the disk.</translation>
    </message>
    <message>
        <source>Cancelled. No backup was made.</source>
        <translation>Cancelled. No backup was made.</translation>
    </message>
    <message>
        <source>No backup was made: %1</source>
        <translation>No backup was made: %1</translation>
    </message>
    <message>
        <source>The backup was made, and read back without a difference.</source>
        <translation>The backup was made, and read back without a difference.</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Backups</translation>
    </message>
</context>
<context>
    <name>BackupTexts</name>
    <message>
        <source>export</source>
        <translation>export</translation>
    </message>
    <message>
        <source>by hand</source>
        <translation>by hand</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatic</translation>
    </message>
    <message>
        <source>before an import</source>
        <translation>before an import</translation>
    </message>
    <message>
        <source>Layouts: %1, pages: %2, keys: %3, pictures: %4, videos: %5</source>
        <translation>Layouts: %1, pages: %2, keys: %3, pictures: %4, videos: %5</translation>
    </message>
    <message>
        <source>%1, page %2</source>
        <translation>%1, page %2</translation>
    </message>
    <message>
        <source>keys added: %1</source>
        <translation>keys added: %1</translation>
    </message>
    <message>
        <source>changed: %1</source>
        <translation>changed: %1</translation>
    </message>
    <message>
        <source>removed: %1</source>
        <translation>removed: %1</translation>
    </message>
    <message>
        <source>Panel layouts</source>
        <translation>Panel layouts</translation>
    </message>
    <message>
        <source>Steps of the multiple actions</source>
        <translation>Steps of the multiple actions</translation>
    </message>
    <message>
        <source>Settings: language, switches, child pages, window</source>
        <translation>Settings: language, switches, child pages, window</translation>
    </message>
    <message>
        <source>Background picture %1</source>
        <translation>Background picture %1</translation>
    </message>
</context>
<context>
    <name>Backups</name>
    <message>
        <source>Something else is still under way.</source>
        <translation>Something else is still under way.</translation>
    </message>
    <message>
        <source>The panel is being read.</source>
        <translation>The panel is being read.</translation>
    </message>
    <message>
        <source>The firmware is being updated.</source>
        <translation>The firmware is being updated.</translation>
    </message>
    <message>
        <source>A video is being converted or sent. Wait for it, or cancel it.</source>
        <translation>A video is being converted or sent. Wait for it, or cancel it.</translation>
    </message>
    <message>
        <source>The panel is being cleared.</source>
        <translation>The panel is being cleared.</translation>
    </message>
</context>
<context>
    <name>BrightnessRow</name>
    <message>
        <source>The panel is not connected.</source>
        <translation>The panel is not connected.</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>not known yet</translation>
    </message>
</context>
<context>
    <name>ColourButton</name>
    <message>
        <source>White</source>
        <translation>White</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grey</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Black</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Yellow</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>Turquoise</source>
        <translation>Turquoise</translation>
    </message>
    <message>
        <source>Light blue</source>
        <translation>Light blue</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violet</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Pink</translation>
    </message>
    <message>
        <source>Title colour</source>
        <translation>Title colour</translation>
    </message>
    <message>
        <source>More colours...</source>
        <translation>More colours...</translation>
    </message>
</context>
<context>
    <name>CombinationField</name>
    <message>
        <source>Key %1 of the combination</source>
        <translation>Key %1 of the combination</translation>
    </message>
</context>
<context>
    <name>ConfigurationImport</name>
    <message>
        <source>Import of a backup</source>
        <translation>Import of a backup</translation>
    </message>
    <message>
        <source>The import could not be made again: %1</source>
        <translation>The import could not be made again: %1</translation>
    </message>
    <message>
        <source>The import could not be taken back: %1</source>
        <translation>The import could not be taken back: %1</translation>
    </message>
    <message>
        <source>The configuration is too large to be sent at once. Its keys are sent one by one.</source>
        <translation>The configuration is too large to be sent at once. Its keys are sent one by one.</translation>
    </message>
    <message>
        <source>Sending was cancelled: the panel keeps what it has. It gets what differs when it is connected next time.</source>
        <translation>Sending was cancelled: the panel keeps what it has. It gets what differs when it is connected next time.</translation>
    </message>
    <message>
        <source>The panel has not taken the configuration. It gets what differs when it is connected next time.</source>
        <translation>The panel has not taken the configuration. It gets what differs when it is connected next time.</translation>
    </message>
</context>
<context>
    <name>ContentEditor</name>
    <message>
        <source>Choose the file that the key opens</source>
        <translation>Choose the file that the key opens</translation>
    </message>
    <message>
        <source>Web address:</source>
        <translation>Web address:</translation>
    </message>
    <message>
        <source>None chosen</source>
        <translation>None chosen</translation>
    </message>
    <message>
        <source>Video of the key</source>
        <translation>Video of the key</translation>
    </message>
    <message>
        <source>Choose the video that the key plays</source>
        <translation>Choose the video that the key plays</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Path</translation>
    </message>
    <message>
        <source>Web address</source>
        <translation>Web address</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Key combination</source>
        <translation>Key combination</translation>
    </message>
    <message>
        <source>Opens the home page of the browser on this computer.</source>
        <translation>Opens the home page of the browser on this computer.</translation>
    </message>
    <message>
        <source>Runs several actions one after the other. Double click the key, or press Enter on it, to edit them.</source>
        <translation>Runs several actions one after the other. Double click the key, or press Enter on it, to edit them.</translation>
    </message>
    <message>
        <source>Shows a page of its own with further keys. Double click the key, or press Enter on it, to open that page.</source>
        <translation>Shows a page of its own with further keys. Double click the key, or press Enter on it, to open that page.</translation>
    </message>
    <message>
        <source>Leads from a child page back to the main page.</source>
        <translation>Leads from a child page back to the main page.</translation>
    </message>
    <message>
        <source>The panel does this by itself. There is nothing more to set.</source>
        <translation>The panel does this by itself. There is nothing more to set.</translation>
    </message>
    <message>
        <source>This program does not know the function %1 of the key.</source>
        <translation>This program does not know the function %1 of the key.</translation>
    </message>
</context>
<context>
    <name>Conversion</name>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation>&quot;%1&quot; cannot be opened.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture that can be read.</source>
        <translation>&quot;%1&quot; is not a picture that can be read.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a video that can be read.</source>
        <translation>&quot;%1&quot; is not a video that can be read.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large: a picture may have up to %2 x %2 pixels.</source>
        <translation>&quot;%1&quot; is too large: a picture may have up to %2 x %2 pixels.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged or not complete.</source>
        <translation>&quot;%1&quot; is damaged or not complete.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be converted to a size without pixels.</source>
        <translation>&quot;%1&quot; cannot be converted to a size without pixels.</translation>
    </message>
    <message>
        <source>The program that converts pictures and videos is missing or cannot be started: %1</source>
        <translation>The program that converts pictures and videos is missing or cannot be started: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be converted.</source>
        <translation>&quot;%1&quot; could not be converted.</translation>
    </message>
    <message>
        <source>The conversion of &quot;%1&quot; took too long and was given up.</source>
        <translation>The conversion of &quot;%1&quot; took too long and was given up.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be converted: the disk is full.</source>
        <translation>&quot;%1&quot; could not be converted: the disk is full.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be written to.</source>
        <translation>The folder &quot;%1&quot; cannot be written to.</translation>
    </message>
    <message>
        <source>The conversion of &quot;%1&quot; was cancelled.</source>
        <translation>The conversion of &quot;%1&quot; was cancelled.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too long: even at the lowest quality at most %2 seconds of it fit into %3 MB.</source>
        <translation>&quot;%1&quot; is too long: even at the lowest quality at most %2 seconds of it fit into %3 MB.</translation>
    </message>
</context>
<context>
    <name>CropDialog</name>
    <message>
        <source>%1 x %2 pixels</source>
        <translation>%1 x %2 pixels</translation>
    </message>
    <message>
        <source>Reading the picture...</source>
        <translation>Reading the picture...</translation>
    </message>
    <message>
        <source>This file is a video, no picture.</source>
        <translation>This file is a video, no picture.</translation>
    </message>
</context>
<context>
    <name>CropPanel</name>
    <message>
        <source>Zoom:</source>
        <translation>Zoom:</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Smaller</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Larger</translation>
    </message>
    <message>
        <source>Part of the picture that is used</source>
        <translation>Part of the picture that is used</translation>
    </message>
    <message>
        <source>Drag the picture or use the arrow keys to move it. The wheel, + and - zoom.</source>
        <translation>Drag the picture or use the arrow keys to move it. The wheel, + and - zoom.</translation>
    </message>
</context>
<context>
    <name>CustomLayouts</name>
    <message>
        <source>Some lines cannot be read. The file as it was is kept beside it.</source>
        <translation>Some lines cannot be read. The file as it was is kept beside it.</translation>
    </message>
    <message>
        <source>Layout %1: %2.</source>
        <translation>Layout %1: %2.</translation>
    </message>
    <message>
        <source>Layout %1 (%2): %3.</source>
        <translation>Layout %1 (%2): %3.</translation>
    </message>
    <message>
        <source>the number of its keys is missing</source>
        <translation>the number of its keys is missing</translation>
    </message>
    <message>
        <source>the number of its keys is &quot;%1&quot;, not 1 to 15</source>
        <translation>the number of its keys is &quot;%1&quot;, not 1 to 15</translation>
    </message>
    <message>
        <source>key %1 does not name its physical keys, so those of its bitmap count</source>
        <translation>key %1 does not name its physical keys, so those of its bitmap count</translation>
    </message>
    <message>
        <source>the physical keys of key %1 differ from its bitmap</source>
        <translation>the physical keys of key %1 differ from its bitmap</translation>
    </message>
    <message>
        <source>key %1 has no bitmap</source>
        <translation>key %1 has no bitmap</translation>
    </message>
    <message>
        <source>the physical keys of key %1 form no rectangle</source>
        <translation>the physical keys of key %1 form no rectangle</translation>
    </message>
    <message>
        <source>key %1 overlaps key %2</source>
        <translation>key %1 overlaps key %2</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot; is left out: layouts have the numbers %2 to %3.</source>
        <translation>Group &quot;%1&quot; is left out: layouts have the numbers %2 to %3.</translation>
    </message>
</context>
<context>
    <name>EditToolBar</name>
    <message>
        <source>Undo: %1</source>
        <translation>Undo: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Redo: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cut</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>Put on every page</source>
        <translation>Put on every page</translation>
    </message>
</context>
<context>
    <name>FunctionConfigWidget</name>
    <message>
        <source>Layout %1</source>
        <translation>Layout %1</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Select a key that has a function first.</source>
        <translation>Select a key that has a function first.</translation>
    </message>
    <message>
        <source>Only keys with the function for videos play them.</source>
        <translation>Only keys with the function for videos play them.</translation>
    </message>
</context>
<context>
    <name>FunctionList</name>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>No function has this in its name.</source>
        <translation>No function has this in its name.</translation>
    </message>
</context>
<context>
    <name>GalleryFrame</name>
    <message>
        <source>Could not be deleted:</source>
        <translation>Could not be deleted:</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Nothing found.</translation>
    </message>
    <message>
        <source>There is nothing here yet. Add pictures and videos with the button above, or drop or paste files or a folder here. Then drag them from here onto the keys.</source>
        <translation>There is nothing here yet. Add pictures and videos with the button above, or drop or paste files or a folder here. Then drag them from here onto the keys.</translation>
    </message>
    <message>
        <source>... and %1 more.</source>
        <translation>... and %1 more.</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Add...</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>Videos are shown without a picture: the program ffmpeg is missing.</source>
        <translation>Videos are shown without a picture: the program ffmpeg is missing.</translation>
    </message>
    <message>
        <source>Add pictures and videos</source>
        <translation>Add pictures and videos</translation>
    </message>
    <message>
        <source>Pasted picture</source>
        <translation>Pasted picture</translation>
    </message>
    <message>
        <source>Delete %1 pictures and videos from the gallery?</source>
        <translation>Delete %1 pictures and videos from the gallery?</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot; from the gallery?</source>
        <translation>Delete &quot;%1&quot; from the gallery?</translation>
    </message>
    <message>
        <source>Keys keep the pictures that they show. A key that plays one of these videos needs its file.</source>
        <translation>Keys keep the pictures that they show. A key that plays one of these videos needs its file.</translation>
    </message>
</context>
<context>
    <name>GalleryModel</name>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 pixels</translation>
    </message>
</context>
<context>
    <name>GalleryPictures</name>
    <message>
        <source>Only the first %1 files were looked at.</source>
        <translation>Only the first %1 files were looked at.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than 32 MiB.</source>
        <translation>&quot;%1&quot; is larger than 32 MiB.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no picture or video that can be read.</source>
        <translation>&quot;%1&quot; is no picture or video that can be read.</translation>
    </message>
    <message>
        <source>There are no pictures or videos in this folder.</source>
        <translation>There are no pictures or videos in this folder.</translation>
    </message>
    <message>
        <source>This picture cannot be added.</source>
        <translation>This picture cannot be added.</translation>
    </message>
</context>
<context>
    <name>GalleryProgress</name>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>GalleryTools</name>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>All</source>
        <translation>All</translation>
    </message>
</context>
<context>
    <name>HIDUpgradeDialog</name>
    <message>
        <source>Choose the file first.</source>
        <translation>Choose the file first.</translation>
    </message>
    <message>
        <source>The configuration was saved in %1</source>
        <translation>The configuration was saved in %1</translation>
    </message>
    <message>
        <source>The configuration could not be saved. Upgrade all the same?</source>
        <translation>The configuration could not be saved. Upgrade all the same?</translation>
    </message>
    <message>
        <source>What the panel holds may be lost if the upgrade fails.</source>
        <translation>What the panel holds may be lost if the upgrade fails.</translation>
    </message>
    <message>
        <source>The time must be a number of milliseconds from 0 to %1.</source>
        <translation>The time must be a number of milliseconds from 0 to %1.</translation>
    </message>
    <message>
        <source>HID path of the panel</source>
        <translation>HID path of the panel</translation>
    </message>
    <message>
        <source>Milliseconds between two blocks</source>
        <translation>Milliseconds between two blocks</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>The file does not exist.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>The file is empty.</translation>
    </message>
    <message>
        <source>The file is too large: %L1 bytes. The panel takes at most %L2 bytes.</source>
        <translation>The file is too large: %L1 bytes. The panel takes at most %L2 bytes.</translation>
    </message>
    <message>
        <source>The file cannot be read to its end. %1</source>
        <translation>The file cannot be read to its end. %1</translation>
    </message>
    <message>
        <source>No file is chosen.</source>
        <translation>No file is chosen.</translation>
    </message>
    <message>
        <source>The file is being read.</source>
        <translation>The file is being read.</translation>
    </message>
    <message>
        <source>%L1 bytes, CRC-16 0x%2</source>
        <translation>%L1 bytes, CRC-16 0x%2</translation>
    </message>
    <message>
        <source>Keep the panel plugged in until the upgrade has ended.</source>
        <translation>Keep the panel plugged in until the upgrade has ended.</translation>
    </message>
    <message>
        <source>The file is checked and the configuration is saved.</source>
        <translation>The file is checked and the configuration is saved.</translation>
    </message>
    <message>
        <source>The file is checked.</source>
        <translation>The file is checked.</translation>
    </message>
    <message>
        <source>Waiting for the panel. The upgrade starts as soon as it answers; close this window to give up.</source>
        <translation>Waiting for the panel. The upgrade starts as soon as it answers; close this window to give up.</translation>
    </message>
    <message>
        <source>The panel does not answer. If this lasts, pull its plug. </source>
        <translation>The panel does not answer. If this lasts, pull its plug. </translation>
    </message>
    <message>
        <source>The upgrade runs. Do not unplug the panel.</source>
        <translation>The upgrade runs. Do not unplug the panel.</translation>
    </message>
    <message>
        <source>The upgrade is done. The panel restarts by itself.</source>
        <translation>The upgrade is done. The panel restarts by itself.</translation>
    </message>
    <message>
        <source>The panel received something else than the file. </source>
        <translation>The panel received something else than the file. </translation>
    </message>
    <message>
        <source>The upgrade did not come to its end. </source>
        <translation>The upgrade did not come to its end. </translation>
    </message>
    <message>
        <source>Power the panel off and on, choose the file again and start the upgrade once more.</source>
        <translation>Power the panel off and on, choose the file again and start the upgrade once more.</translation>
    </message>
    <message>
        <source>Your configuration is saved in %1</source>
        <translation>Your configuration is saved in %1</translation>
    </message>
    <message>
        <source>The backup does not hold everything. Upgrade all the same?</source>
        <translation>The backup does not hold everything. Upgrade all the same?</translation>
    </message>
</context>
<context>
    <name>KeyCaptureButton</name>
    <message>
        <source>Press now</source>
        <translation>Press now</translation>
    </message>
    <message>
        <source>Press keys</source>
        <translation>Press keys</translation>
    </message>
    <message>
        <source>Takes the keys that you press together, up to four</source>
        <translation>Takes the keys that you press together, up to four</translation>
    </message>
</context>
<context>
    <name>KeyCommands</name>
    <message>
        <source>Delete the keys of its child page too?</source>
        <translation>Delete the keys of its child page too?</translation>
    </message>
    <message>
        <source>Delete the keys of their child pages too?</source>
        <translation>Delete the keys of their child pages too?</translation>
    </message>
    <message>
        <source>Keys there that have a function: %1</source>
        <translation>Keys there that have a function: %1</translation>
    </message>
    <message>
        <source>Delete them too</source>
        <translation>Delete them too</translation>
    </message>
    <message>
        <source>Keep them</source>
        <translation>Keep them</translation>
    </message>
    <message>
        <source>There are no keys on the clipboard.</source>
        <translation>There are no keys on the clipboard.</translation>
    </message>
    <message>
        <source>Select a key first.</source>
        <translation>Select a key first.</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>Select a key with a function first.</source>
        <translation>Select a key with a function first.</translation>
    </message>
    <message>
        <source>Put on every page</source>
        <translation>Put on every page</translation>
    </message>
    <message>
        <source>Keys of other pages that were replaced: %1. Undo brings them back.</source>
        <translation>Keys of other pages that were replaced: %1. Undo brings them back.</translation>
    </message>
    <message>
        <source>Key %1 leads to the page that it is on.</source>
        <translation>Key %1 leads to the page that it is on.</translation>
    </message>
    <message>
        <source>Key %1 of page %2 leads to the same child page.</source>
        <translation>Key %1 of page %2 leads to the same child page.</translation>
    </message>
    <message>
        <source>Page %1 has no key that leads back, and key %2 there is not free.</source>
        <translation>Page %1 has no key that leads back, and key %2 there is not free.</translation>
    </message>
    <message>
        <source>Child page</source>
        <translation>Child page</translation>
    </message>
</context>
<context>
    <name>KeyDrag</name>
    <message>
        <source>Copy key</source>
        <translation>Copy key</translation>
    </message>
    <message>
        <source>Swap keys</source>
        <translation>Swap keys</translation>
    </message>
    <message>
        <source>Move key</source>
        <translation>Move key</translation>
    </message>
</context>
<context>
    <name>KeyEdits</name>
    <message>
        <source>The keys could not be saved. Is the disk full?</source>
        <translation>The keys could not be saved. Is the disk full?</translation>
    </message>
    <message>
        <source>The multiple actions could not be saved: %1</source>
        <translation>The multiple actions could not be saved: %1</translation>
    </message>
    <message>
        <source>A picture could not be saved. Is the disk full?</source>
        <translation>A picture could not be saved. Is the disk full?</translation>
    </message>
    <message>
        <source>Read from the panel</source>
        <translation>Read from the panel</translation>
    </message>
    <message>
        <source>Cancel the video</source>
        <translation>Cancel the video</translation>
    </message>
    <message>
        <source>A backup is being imported. Nothing was changed.</source>
        <translation>A backup is being imported. Nothing was changed.</translation>
    </message>
</context>
<context>
    <name>KeyWidget</name>
    <message>
        <source>Rows %1-%2</source>
        <translation>Rows %1-%2</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>Row %1</translation>
    </message>
    <message>
        <source>columns %1-%2</source>
        <translation>columns %1-%2</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>column %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>row and column</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>place and function</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>empty</translation>
    </message>
    <message>
        <source>%1, title &apos;%2&apos;</source>
        <translation>%1, title &apos;%2&apos;</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>Function</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>The multiple actions could not be saved: %1</source>
        <translation>The multiple actions could not be saved: %1</translation>
    </message>
</context>
<context>
    <name>KeyboardWidget</name>
    <message>
        <source>Clear page</source>
        <translation>Clear page</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
</context>
<context>
    <name>LayoutBar</name>
    <message>
        <source>All layouts</source>
        <translation>All layouts</translation>
    </message>
</context>
<context>
    <name>LayoutDraft</name>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>Pages of the background</source>
        <translation>Pages of the background</translation>
    </message>
    <message>
        <source>Background on keys without a function</source>
        <translation>Background on keys without a function</translation>
    </message>
</context>
<context>
    <name>LayoutEdits</name>
    <message>
        <source>There is no room for another layout.</source>
        <translation>There is no room for another layout.</translation>
    </message>
    <message>
        <source>There are %1 layouts already.</source>
        <translation>There are %1 layouts already.</translation>
    </message>
    <message>
        <source>Change the layout</source>
        <translation>Change the layout</translation>
    </message>
    <message>
        <source>New layout</source>
        <translation>New layout</translation>
    </message>
    <message>
        <source>The layout does not exist any more.</source>
        <translation>The layout does not exist any more.</translation>
    </message>
    <message>
        <source>Delete the layout</source>
        <translation>Delete the layout</translation>
    </message>
    <message>
        <source>Duplicate the layout</source>
        <translation>Duplicate the layout</translation>
    </message>
    <message>
        <source>The pictures of the background could not be saved. Is the disk full?</source>
        <translation>The pictures of the background could not be saved. Is the disk full?</translation>
    </message>
    <message>
        <source>The layout could not be saved. Is the disk full?</source>
        <translation>The layout could not be saved. Is the disk full?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture that can be read.</source>
        <translation>&quot;%1&quot; is not a picture that can be read.</translation>
    </message>
    <message>
        <source>The picture could not be saved. Is the disk full?</source>
        <translation>The picture could not be saved. Is the disk full?</translation>
    </message>
    <message>
        <source>Background of the layout</source>
        <translation>Background of the layout</translation>
    </message>
    <message>
        <source>The layouts could not be kept aside, so those of this computer stay.</source>
        <translation>The layouts could not be kept aside, so those of this computer stay.</translation>
    </message>
    <message>
        <source>The panel sent layout %1 with keys that are no rectangles or overlap. It was left out.</source>
        <translation>The panel sent layout %1 with keys that are no rectangles or overlap. It was left out.</translation>
    </message>
    <message>
        <source>The panel has not taken the home layout.</source>
        <translation>The panel has not taken the home layout.</translation>
    </message>
</context>
<context>
    <name>LayoutGrid</name>
    <message>
        <source>Key %1 of %2, selected: %3</source>
        <translation>Key %1 of %2, selected: %3</translation>
    </message>
</context>
<context>
    <name>LayoutList</name>
    <message>
        <source>Keys: %1</source>
        <translation>Keys: %1</translation>
    </message>
    <message>
        <source>Not saved yet</source>
        <translation>Not saved yet</translation>
    </message>
    <message>
        <source>Not on the panel yet</source>
        <translation>Not on the panel yet</translation>
    </message>
    <message>
        <source>Home layout of the panel</source>
        <translation>Home layout of the panel</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicate</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Layouts</translation>
    </message>
</context>
<context>
    <name>LayoutPage</name>
    <message>
        <source>Show in the editor</source>
        <translation>Show in the editor</translation>
    </message>
    <message>
        <source>Layout %1</source>
        <translation>Layout %1</translation>
    </message>
    <message>
        <source>Remove the background</source>
        <translation>Remove the background</translation>
    </message>
    <message>
        <source>Use as home layout</source>
        <translation>Use as home layout</translation>
    </message>
    <message>
        <source>Keys of the layout</source>
        <translation>Keys of the layout</translation>
    </message>
    <message>
        <source>Save the changes to the layout &quot;%1&quot;?</source>
        <translation>Save the changes to the layout &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>What is not saved is lost.</source>
        <translation>What is not saved is lost.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Discard</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (copy)</translation>
    </message>
    <message>
        <source>Delete the layout &quot;%1&quot;?</source>
        <translation>Delete the layout &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>None of its keys has a function.</source>
        <translation>None of its keys has a function.</translation>
    </message>
    <message>
        <source>Keys with a function that go with it, on all pages: %1</source>
        <translation>Keys with a function that go with it, on all pages: %1</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Merge</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Split</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Background</translation>
    </message>
    <message>
        <source>The title cannot be saved as it is: see the mark below it.</source>
        <translation>The title cannot be saved as it is: see the mark below it.</translation>
    </message>
    <message>
        <source>Save the layout</source>
        <translation>Save the layout</translation>
    </message>
    <message>
        <source>And %1 more</source>
        <translation>And %1 more</translation>
    </message>
    <message>
        <source>These keys lose their functions, since they become part of others:</source>
        <translation>These keys lose their functions, since they become part of others:</translation>
    </message>
    <message>
        <source>Page %1, key %2: %3</source>
        <translation>Page %1, key %2: %3</translation>
    </message>
    <message>
        <source>Keys: %1, page %2</source>
        <translation>Keys: %1, page %2</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Undo: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Redo: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>The panel is not connected.</source>
        <translation>The panel is not connected.</translation>
    </message>
    <message>
        <source>The layout is not saved yet.</source>
        <translation>The layout is not saved yet.</translation>
    </message>
    <message>
        <source>It is the home layout.</source>
        <translation>It is the home layout.</translation>
    </message>
    <message>
        <source>The panel shows it after its start</source>
        <translation>The panel shows it after its start</translation>
    </message>
    <message>
        <source>Some layouts in the file cannot be used as they are. Nothing of the file is lost.</source>
        <translation>Some layouts in the file cannot be used as they are. Nothing of the file is lost.</translation>
    </message>
    <message>
        <source>The background is still being prepared. Save when it is shown.</source>
        <translation>The background is still being prepared. Save when it is shown.</translation>
    </message>
    <message>
        <source>It is the home layout: choose another one for the panel to start with.</source>
        <translation>It is the home layout: choose another one for the panel to start with.</translation>
    </message>
</context>
<context>
    <name>LayoutTools</name>
    <message>
        <source>Starting point</source>
        <translation>Starting point</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Merge</translation>
    </message>
    <message>
        <source>Makes one key of those that are selected (Enter)</source>
        <translation>Makes one key of those that are selected (Enter)</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Split</translation>
    </message>
    <message>
        <source>Makes single keys of the selected ones (Delete, or double click)</source>
        <translation>Makes single keys of the selected ones (Delete, or double click)</translation>
    </message>
    <message>
        <source>Back to 15 single keys</source>
        <translation>Back to 15 single keys</translation>
    </message>
    <message>
        <source>Starting points</source>
        <translation>Starting points</translation>
    </message>
    <message>
        <source>Begin with another grouping</source>
        <translation>Begin with another grouping</translation>
    </message>
    <message>
        <source>%1 keys</source>
        <translation>%1 keys</translation>
    </message>
</context>
<context>
    <name>LimitedText</name>
    <message>
        <source>Bytes of the text, and how many the panel has room for</source>
        <translation>Bytes of the text, and how many the panel has room for</translation>
    </message>
    <message>
        <source>The panel has no %1</source>
        <translation>The panel has no %1</translation>
    </message>
    <message>
        <source>%1 of %2 bytes</source>
        <translation>%1 of %2 bytes</translation>
    </message>
    <message>
        <source>not sent yet</source>
        <translation>not sent yet</translation>
    </message>
    <message>
        <source>the panel shows only a part</source>
        <translation>the panel shows only a part</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>MainFrame</name>
    <message>
        <source>Switch</source>
        <translation>Switch</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>ModeEditor</name>
    <message>
        <source>Display mode</source>
        <translation>Display mode</translation>
    </message>
    <message>
        <source>Image effect</source>
        <translation>Image effect</translation>
    </message>
</context>
<context>
    <name>MultiActionWidget</name>
    <message>
        <source>Switch to the window that shall get the text: %1 s</source>
        <translation>Switch to the window that shall get the text: %1 s</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>Runs the steps on this computer, as far as it can</source>
        <translation>Runs the steps on this computer, as far as it can</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>%1: row %2, column %3, page %4</source>
        <translation>%1: row %2, column %3, page %4</translation>
    </message>
    <message>
        <source>Step %1: %2</source>
        <translation>Step %1: %2</translation>
    </message>
    <message>
        <source>Steps: %1, %2 of %3 bytes</source>
        <translation>Steps: %1, %2 of %3 bytes</translation>
    </message>
    <message>
        <source>not saved yet</source>
        <translation>not saved yet</translation>
    </message>
    <message>
        <source>The saved steps cannot be read: the file %1 is damaged. It stays as it is until you save.</source>
        <translation>The saved steps cannot be read: the file %1 is damaged. It stays as it is until you save.</translation>
    </message>
    <message>
        <source>The key does not have multiple actions any more. Undo that first, or discard the steps.</source>
        <translation>The key does not have multiple actions any more. Undo that first, or discard the steps.</translation>
    </message>
    <message>
        <source>The steps are not saved. The panel cannot take these:</source>
        <translation>The steps are not saved. The panel cannot take these:</translation>
    </message>
    <message>
        <source>The steps are not saved. Together they need %1 bytes, and the panel takes %2.</source>
        <translation>The steps are not saved. Together they need %1 bytes, and the panel takes %2.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>and %1 more</translation>
    </message>
    <message>
        <source>The file %1 is damaged. Begin a new one?</source>
        <translation>The file %1 is damaged. Begin a new one?</translation>
    </message>
    <message>
        <source>The steps of the other keys cannot be read from the old one either. It is kept as %1.</source>
        <translation>The steps of the other keys cannot be read from the old one either. It is kept as %1.</translation>
    </message>
    <message>
        <source>The damaged file cannot be renamed. The steps are not saved.</source>
        <translation>The damaged file cannot be renamed. The steps are not saved.</translation>
    </message>
    <message>
        <source>Save multiple actions</source>
        <translation>Save multiple actions</translation>
    </message>
    <message>
        <source>The steps could not be saved: %1</source>
        <translation>The steps could not be saved: %1</translation>
    </message>
    <message>
        <source>Save the steps of this key?</source>
        <translation>Save the steps of this key?</translation>
    </message>
    <message>
        <source>They have been changed since they were saved.</source>
        <translation>They have been changed since they were saved.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Discard</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>The steps are running</source>
        <translation>The steps are running</translation>
    </message>
    <message>
        <source>Step %1 is running</source>
        <translation>Step %1 is running</translation>
    </message>
    <message>
        <source>All steps have been run</source>
        <translation>All steps have been run</translation>
    </message>
    <message>
        <source>The test was stopped</source>
        <translation>The test was stopped</translation>
    </message>
</context>
<context>
    <name>NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>PageNavigation</name>
    <message>
        <source>Page %1</source>
        <translation>Page %1</translation>
    </message>
</context>
<context>
    <name>PagesMenu</name>
    <message>
        <source>All pages with keys</source>
        <translation>All pages with keys</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Page %1</translation>
    </message>
</context>
<context>
    <name>PanelReset</name>
    <message>
        <source>The configuration could not be saved. Go on all the same?</source>
        <translation>The configuration could not be saved. Go on all the same?</translation>
    </message>
    <message>
        <source>There would be no backup to bring it back from.</source>
        <translation>There would be no backup to bring it back from.</translation>
    </message>
    <message>
        <source>The backup does not hold everything. Go on all the same?</source>
        <translation>The backup does not hold everything. Go on all the same?</translation>
    </message>
    <message>
        <source>The panel did not take it. Nothing was cleared.</source>
        <translation>The panel did not take it. Nothing was cleared.</translation>
    </message>
    <message>
        <source>All data has been reset. “Undo” in the editor brings back what was on this computer, until the program ends.</source>
        <translation>All data has been reset. “Undo” in the editor brings back what was on this computer, until the program ends.</translation>
    </message>
    <message>
        <source>The configuration is being saved: %1 %</source>
        <translation>The configuration is being saved: %1 %</translation>
    </message>
    <message>
        <source>Waiting until the panel has been cleared.</source>
        <translation>Waiting until the panel has been cleared.</translation>
    </message>
    <message>
        <source>Waiting until the panel has been read.</source>
        <translation>Waiting until the panel has been read.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>and %1 more</translation>
    </message>
    <message>
        <source>Lost on the panel: all keys with their pictures, videos and action lists.

What is on this computer stays, and is saved as a backup first. Importing that to the panel brings the keys back.</source>
        <translation>Lost on the panel: all keys with their pictures, videos and action lists.

What is on this computer stays, and is saved as a backup first. Importing that to the panel brings the keys back.</translation>
    </message>
    <message>
        <source>Lost on the panel and on this computer: all keys with their pictures, videos and action lists, and all panel layouts.

What is on this computer is saved as a backup first. “Undo” in the editor brings it back until the program ends, the backup at any time. What only the panel holds cannot be brought back.</source>
        <translation>Lost on the panel and on this computer: all keys with their pictures, videos and action lists, and all panel layouts.

What is on this computer is saved as a backup first. “Undo” in the editor brings it back until the program ends, the backup at any time. What only the panel holds cannot be brought back.</translation>
    </message>
    <message>
        <source>Safety backup: %1</source>
        <translation>Safety backup: %1</translation>
    </message>
</context>
<context>
    <name>PendingEdits</name>
    <message>
        <source>Waits for the panel</source>
        <translation>Waits for the panel</translation>
    </message>
    <message>
        <source>Waits to be sent</source>
        <translation>Waits to be sent</translation>
    </message>
    <message>
        <source>The panel did not take it. It is sent again at the next connection.</source>
        <translation>The panel did not take it. It is sent again at the next connection.</translation>
    </message>
    <message>
        <source>Its picture, video or action list cannot be read, so it was not sent.</source>
        <translation>Its picture, video or action list cannot be read, so it was not sent.</translation>
    </message>
    <message>
        <source>Sending was cancelled. It is sent again at the next connection.</source>
        <translation>Sending was cancelled. It is sent again at the next connection.</translation>
    </message>
</context>
<context>
    <name>PictureEdits</name>
    <message>
        <source>&quot;%1&quot; cannot be opened: %2</source>
        <translation>&quot;%1&quot; cannot be opened: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has %2 MB. The panel takes videos of up to 10 MB.</source>
        <translation>&quot;%1&quot; has %2 MB. The panel takes videos of up to 10 MB.</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Reset the picture</source>
        <translation>Reset the picture</translation>
    </message>
</context>
<context>
    <name>PicturePicker</name>
    <message>
        <source>Choose the picture of the key</source>
        <translation>Choose the picture of the key</translation>
    </message>
    <message>
        <source>Show the icon of the function again</source>
        <translation>Show the icon of the function again</translation>
    </message>
    <message>
        <source>What the key shows</source>
        <translation>What the key shows</translation>
    </message>
</context>
<context>
    <name>PictureUploadJob</name>
    <message>
        <source>Converting...</source>
        <translation>Converting...</translation>
    </message>
    <message>
        <source>The picture cannot be kept: the disk may be full. %1</source>
        <translation>The picture cannot be kept: the disk may be full. %1</translation>
    </message>
    <message>
        <source>The key has no function any more.</source>
        <translation>The key has no function any more.</translation>
    </message>
    <message>
        <source>Sending to the panel...</source>
        <translation>Sending to the panel...</translation>
    </message>
    <message>
        <source>The panel is being read just now. Try again when that is done.</source>
        <translation>The panel is being read just now. Try again when that is done.</translation>
    </message>
</context>
<context>
    <name>PictureUploadOptions</name>
    <message>
        <source>On the key, %1 x %2 pixels:</source>
        <translation>On the key, %1 x %2 pixels:</translation>
    </message>
    <message>
        <source>%1, %2 x %3 pixels</source>
        <translation>%1, %2 x %3 pixels</translation>
    </message>
    <message>
        <source>One key</source>
        <translation>One key</translation>
    </message>
    <message>
        <source>Fill the key</source>
        <translation>Fill the key</translation>
    </message>
    <message>
        <source>Show the whole video</source>
        <translation>Show the whole video</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>Show the whole picture</translation>
    </message>
    <message>
        <source>Stretch to the key</source>
        <translation>Stretch to the key</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Use as:</source>
        <translation>Use as:</translation>
    </message>
    <message>
        <source>Shape:</source>
        <translation>Shape:</translation>
    </message>
    <message>
        <source>Fit:</source>
        <translation>Fit:</translation>
    </message>
    <message>
        <source>Leave out what does not fit</source>
        <translation>Leave out what does not fit</translation>
    </message>
</context>
<context>
    <name>PictureUploadPage</name>
    <message>
        <source>The picture is in the gallery.</source>
        <translation>The picture is in the gallery.</translation>
    </message>
    <message>
        <source>Pasted picture</source>
        <translation>Pasted picture</translation>
    </message>
    <message>
        <source>The picture cannot be taken over: the disk may be full.</source>
        <translation>The picture cannot be taken over: the disk may be full.</translation>
    </message>
    <message>
        <source>Reading the file...</source>
        <translation>Reading the file...</translation>
    </message>
    <message>
        <source>%1 x %2 pixels</source>
        <translation>%1 x %2 pixels</translation>
    </message>
    <message>
        <source>Used: %1 x %2</source>
        <translation>Used: %1 x %2</translation>
    </message>
    <message>
        <source>Fewer than the key has: it will look soft.</source>
        <translation>Fewer than the key has: it will look soft.</translation>
    </message>
    <message>
        <source>Choose the shape of the selected key to set it there.</source>
        <translation>Choose the shape of the selected key to set it there.</translation>
    </message>
    <message>
        <source>Set on the selected key</source>
        <translation>Set on the selected key</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Drop a picture or a video here, paste one, or choose a file.</source>
        <translation>Drop a picture or a video here, paste one, or choose a file.</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was changed.</source>
        <translation>Cancelled. Nothing was changed.</translation>
    </message>
    <message>
        <source>The video is on the key: %1.</source>
        <translation>The video is on the key: %1.</translation>
    </message>
    <message>
        <source>The picture is on the key: %1.</source>
        <translation>The picture is on the key: %1.</translation>
    </message>
    <message>
        <source>The video is in the gallery; its end did not fit.</source>
        <translation>The video is in the gallery; its end did not fit.</translation>
    </message>
    <message>
        <source>The video is in the gallery.</source>
        <translation>The video is in the gallery.</translation>
    </message>
</context>
<context>
    <name>PictureUploadTarget</name>
    <message>
        <source>No key is selected in the editor.</source>
        <translation>No key is selected in the editor.</translation>
    </message>
    <message>
        <source>The selected key has no function. Give it one in the editor first.</source>
        <translation>The selected key has no function. Give it one in the editor first.</translation>
    </message>
    <message>
        <source>The selected key has no video function. Give it one in the editor first.</source>
        <translation>The selected key has no video function. Give it one in the editor first.</translation>
    </message>
    <message>
        <source>Key %1 of %2</source>
        <translation>Key %1 of %2</translation>
    </message>
</context>
<context>
    <name>PictureUploadVideo</name>
    <message>
        <source>%1 x %2 pixels</source>
        <translation>%1 x %2 pixels</translation>
    </message>
    <message>
        <source>On the key: %1, at most %2 frames a second and %3 MB</source>
        <translation>On the key: %1, at most %2 frames a second and %3 MB</translation>
    </message>
    <message>
        <source>Maybe too long: about %1 fit.</source>
        <translation>Maybe too long: about %1 fit.</translation>
    </message>
    <message>
        <source>Install vorlindesk again, or copy the program ffmpeg to this place.</source>
        <translation>Install vorlindesk again, or copy the program ffmpeg to this place.</translation>
    </message>
    <message>
        <source>Tick &quot;Leave out what does not fit&quot; to use its beginning.</source>
        <translation>Tick &quot;Leave out what does not fit&quot; to use its beginning.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Save All</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Yes to &amp;All</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>N&amp;o to All</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abort</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Retry</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignore</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Discard</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Restore Defaults</translation>
    </message>
</context>
<context>
    <name>RestorePreviewDialog</name>
    <message>
        <source>Take over what is not damaged</source>
        <translation>Take over what is not damaged</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Damaged, and not in what can be taken over:</source>
        <translation>Damaged, and not in what can be taken over:</translation>
    </message>
    <message>
        <source>Lost, since no backup can hold it:</source>
        <translation>Lost, since no backup can hold it:</translation>
    </message>
    <message>
        <source>Changes beside the keys:</source>
        <translation>Changes beside the keys:</translation>
    </message>
    <message>
        <source>Nothing changes</source>
        <translation>Nothing changes</translation>
    </message>
    <message>
        <source>The configuration here is the same.</source>
        <translation>The configuration here is the same.</translation>
    </message>
    <message>
        <source>Pages that change:</source>
        <translation>Pages that change:</translation>
    </message>
    <message>
        <source>The present configuration cannot be backed up, so it cannot be replaced: %1</source>
        <translation>The present configuration cannot be backed up, so it cannot be replaced: %1</translation>
    </message>
    <message>
        <source>The present configuration is backed up first. The import is one step that can be undone.</source>
        <translation>The present configuration is backed up first. The import is one step that can be undone.</translation>
    </message>
    <message>
        <source>Then the panel is sent the whole configuration.</source>
        <translation>Then the panel is sent the whole configuration.</translation>
    </message>
    <message>
        <source>Then the panel is sent what changes.</source>
        <translation>Then the panel is sent what changes.</translation>
    </message>
    <message>
        <source>The panel is sent what changes when it is connected.</source>
        <translation>The panel is sent what changes when it is connected.</translation>
    </message>
    <message>
        <source>Parts of the backup are damaged: first choose what becomes of the rest.</source>
        <translation>Parts of the backup are damaged: first choose what becomes of the rest.</translation>
    </message>
</context>
<context>
    <name>SettingsSwitches</name>
    <message>
        <source>The setting could not be saved. Is the disk full?</source>
        <translation>The setting could not be saved. Is the disk full?</translation>
    </message>
    <message>
        <source>Synchronise by itself</source>
        <translation>Synchronise by itself</translation>
    </message>
    <message>
        <source>When the program starts, it looks for the panel and reads its configuration. Off: the panel is read only on request.</source>
        <translation>When the program starts, it looks for the panel and reads its configuration. Off: the panel is read only on request.</translation>
    </message>
    <message>
        <source>Write what is sent into the log</source>
        <translation>Write what is sent into the log</translation>
    </message>
    <message>
        <source>Every report to the panel is written into the log, byte for byte. The log grows fast.</source>
        <translation>Every report to the panel is written into the log, byte for byte. The log grows fast.</translation>
    </message>
    <message>
        <source>Custom layouts are still to be loaded</source>
        <translation>Custom layouts are still to be loaded</translation>
    </message>
    <message>
        <source>Takes effect when the program is started again.</source>
        <translation>Takes effect when the program is started again.</translation>
    </message>
    <message>
        <source>A mark that the panel has yet to send its layouts. The program takes it away once they have come; nothing else depends on it.</source>
        <translation>A mark that the panel has yet to send its layouts. The program takes it away once they have come; nothing else depends on it.</translation>
    </message>
</context>
<context>
    <name>Start</name>
    <message>
        <source>An earlier restore is not finished: a file is in use.</source>
        <translation>An earlier restore is not finished: a file is in use.</translation>
    </message>
    <message>
        <source>Close the programs that may use files in &quot;%1&quot;, then try again. Nothing is lost.</source>
        <translation>Close the programs that may use files in &quot;%1&quot;, then try again. Nothing is lost.</translation>
    </message>
</context>
<context>
    <name>StatusFrame</name>
    <message>
        <source>Connected</source>
        <translation>Connected</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Not connected</translation>
    </message>
    <message>
        <source>Looking for the panel...</source>
        <translation>Looking for the panel...</translation>
    </message>
    <message>
        <source>Reading the configuration...</source>
        <translation>Reading the configuration...</translation>
    </message>
    <message>
        <source>Reading the configuration... %1 of %2 keys</source>
        <translation>Reading the configuration... %1 of %2 keys</translation>
    </message>
    <message>
        <source>Connected. The configuration was not read to its end.</source>
        <translation>Connected. The configuration was not read to its end.</translation>
    </message>
</context>
<context>
    <name>StepCombination</name>
    <message>
        <source>Choose keys</source>
        <translation>Choose keys</translation>
    </message>
    <message>
        <source>Key %1</source>
        <translation>Key %1</translation>
    </message>
    <message>
        <source>(no key)</source>
        <translation>(no key)</translation>
    </message>
</context>
<context>
    <name>StepDelegate</name>
    <message>
        <source>running</source>
        <translation>running</translation>
    </message>
    <message>
        <source>done</source>
        <translation>done</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>failed</translation>
    </message>
    <message>
        <source>skipped: done by the panel</source>
        <translation>skipped: done by the panel</translation>
    </message>
</context>
<context>
    <name>StepListView</name>
    <message>
        <source>Steps</source>
        <translation>Steps</translation>
    </message>
    <message>
        <source>Drag functions from the list here</source>
        <translation>Drag functions from the list here</translation>
    </message>
</context>
<context>
    <name>StepRow</name>
    <message>
        <source>Choose the file to open</source>
        <translation>Choose the file to open</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>All files</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Copy step %1</source>
        <translation>Copy step %1</translation>
    </message>
    <message>
        <source>Remove step %1</source>
        <translation>Remove step %1</translation>
    </message>
    <message>
        <source>Choose the file of step %1</source>
        <translation>Choose the file of step %1</translation>
    </message>
    <message>
        <source>Content of step %1</source>
        <translation>Content of step %1</translation>
    </message>
</context>
<context>
    <name>StepText</name>
    <message>
        <source>Every character takes 2 bytes, an emoji takes 4.</source>
        <translation>Every character takes 2 bytes, an emoji takes 4.</translation>
    </message>
    <message>
        <source>Letters without accents, digits and signs take 1 byte, other characters 2 to 4.</source>
        <translation>Letters without accents, digits and signs take 1 byte, other characters 2 to 4.</translation>
    </message>
    <message>
        <source>%1 bytes, but the panel takes %2.</source>
        <translation>%1 bytes, but the panel takes %2.</translation>
    </message>
    <message>
        <source>The panel has no key of this name: %1</source>
        <translation>The panel has no key of this name: %1</translation>
    </message>
    <message>
        <source>More keys than the %1 that the panel takes.</source>
        <translation>More keys than the %1 that the panel takes.</translation>
    </message>
    <message>
        <source>A character with the number 0 would end the text before its end.</source>
        <translation>A character with the number 0 would end the text before its end.</translation>
    </message>
    <message>
        <source>Function %1</source>
        <translation>Function %1</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
</context>
<context>
    <name>SystemSettingsPage</name>
    <message>
        <source>The folder could not be opened: %1</source>
        <translation>The folder could not be opened: %1</translation>
    </message>
    <message>
        <source>Home layout:</source>
        <translation>Home layout:</translation>
    </message>
    <message>
        <source>Folder of the logs:</source>
        <translation>Folder of the logs:</translation>
    </message>
    <message>
        <source>Folder of the settings:</source>
        <translation>Folder of the settings:</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>not known yet</translation>
    </message>
    <message>
        <source>The panel is not connected.</source>
        <translation>The panel is not connected.</translation>
    </message>
    <message>
        <source>Another one (%1)</source>
        <translation>Another one (%1)</translation>
    </message>
    <message>
        <source>The panel is being cleared.</source>
        <translation>The panel is being cleared.</translation>
    </message>
    <message>
        <source>The panel is being read.</source>
        <translation>The panel is being read.</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>Care of the panel</source>
        <translation>Care of the panel</translation>
    </message>
    <message>
        <source>Switches</source>
        <translation>Switches</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Folders</translation>
    </message>
    <message>
        <source>Clears the panel. What is on this computer stays.</source>
        <translation>Clears the panel. What is on this computer stays.</translation>
    </message>
    <message>
        <source>Clears the panel and what is on this computer: keys, layouts and action lists.</source>
        <translation>Clears the panel and what is on this computer: keys, layouts and action lists.</translation>
    </message>
    <message>
        <source>Sends a firmware file to the panel. The configuration is saved first.</source>
        <translation>Sends a firmware file to the panel. The configuration is saved first.</translation>
    </message>
    <message>
        <source>Sends a font file to the panel. The configuration is saved first.</source>
        <translation>Sends a font file to the panel. The configuration is saved first.</translation>
    </message>
    <message>
        <source>Addresses for a panel in a network. They are only written into the log: panels have no command for them yet.</source>
        <translation>Addresses for a panel in a network. They are only written into the log: panels have no command for them yet.</translation>
    </message>
    <message>
        <source>A backup is being imported.</source>
        <translation>A backup is being imported.</translation>
    </message>
</context>
<context>
    <name>TitleEditor</name>
    <message>
        <source>Size:</source>
        <translation>Size:</translation>
    </message>
    <message>
        <source>Size of the title</source>
        <translation>Size of the title</translation>
    </message>
    <message>
        <source>Size of the title, in points</source>
        <translation>Size of the title, in points</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>Colour:</source>
        <translation>Colour:</translation>
    </message>
    <message>
        <source>Title alignment: %1</source>
        <translation>Title alignment: %1</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>Title size</source>
        <translation>Title size</translation>
    </message>
    <message>
        <source>Title colour</source>
        <translation>Title colour</translation>
    </message>
    <message>
        <source>Title alignment</source>
        <translation>Title alignment</translation>
    </message>
</context>
<context>
    <name>TransferBar</name>
    <message>
        <source>1 more waits</source>
        <translation>1 more waits</translation>
    </message>
    <message>
        <source>%1 more wait</source>
        <translation>%1 more wait</translation>
    </message>
    <message>
        <source>Cancel the video for key %1</source>
        <translation>Cancel the video for key %1</translation>
    </message>
    <message>
        <source>Converting %1 ... %2 %</source>
        <translation>Converting %1 ... %2 %</translation>
    </message>
    <message>
        <source>Sending to key %1 ...</source>
        <translation>Sending to key %1 ...</translation>
    </message>
    <message>
        <source>Sending to key %1 ... %2 of %3 blocks</source>
        <translation>Sending to key %1 ... %2 of %3 blocks</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>UpgradeProgress</name>
    <message>
        <source>Block %1 of %2</source>
        <translation>Block %1 of %2</translation>
    </message>
    <message>
        <source>Elapsed: %1</source>
        <translation>Elapsed: %1</translation>
    </message>
    <message>
        <source>Remaining: about %1</source>
        <translation>Remaining: about %1</translation>
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
        <translation>about a second</translation>
    </message>
    <message>
        <source>about %1 seconds</source>
        <translation>about %1 seconds</translation>
    </message>
    <message>
        <source>about %1 minutes</source>
        <translation>about %1 minutes</translation>
    </message>
    <message>
        <source>%1: %2 of at most %3, %4</source>
        <translation>%1: %2 of at most %3, %4</translation>
    </message>
    <message>
        <source>%1: %2 of at most %3</source>
        <translation>%1: %2 of at most %3</translation>
    </message>
</context>
<context>
    <name>VideoPlacement</name>
    <message>
        <source>Key %1 does not play videos.</source>
        <translation>Key %1 does not play videos.</translation>
    </message>
    <message>
        <source>Should the video end there, so that it fits?</source>
        <translation>Should the video end there, so that it fits?</translation>
    </message>
    <message>
        <source>Cut the video</source>
        <translation>Cut the video</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be sent whole. It is sent again at the next connection.</source>
        <translation>&quot;%1&quot; could not be sent whole. It is sent again at the next connection.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read, so it was not sent.</source>
        <translation>&quot;%1&quot; cannot be read, so it was not sent.</translation>
    </message>
    <message>
        <source>Its end was left out.</source>
        <translation>Its end was left out.</translation>
    </message>
</context>
</TS>
