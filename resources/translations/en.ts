<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>MainFrame</name>
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
    <message>
        <source>Connected</source>
        <translation>Connected</translation>
    </message>
    <message>
        <source>Custom layout: %1</source>
        <translation>Custom layout: %1</translation>
    </message>
    <message>
        <source>Brightness: %1</source>
        <translation>Brightness: %1</translation>
    </message>
    <message>
        <source>Home layout: %1</source>
        <translation>Home layout: %1</translation>
    </message>
    <message>
        <source>System type: %1</source>
        <translation>System type: %1</translation>
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
    <name>StatusFrame</name>
    <message>
        <source>Connected</source>
        <translation>Connected</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Not connected</translation>
    </message>
</context>
</TS>
