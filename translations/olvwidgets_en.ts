<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh">
<context>
    <name>OlvControlBar</name>
    <message>
        <source>悬浮</source>
        <translation>Float</translation>
    </message>
    <message>
        <source>置底</source>
        <translation>Keep below others</translation>
    </message>
    <message>
        <source>置顶</source>
        <translation>Keep above others</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimise</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximise</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>Restore</translation>
    </message>
</context>
<context>
    <name>OlvGridLayout</name>
    <message>
        <source>空</source>
        <translation>Empty</translation>
    </message>
</context>
<context>
    <name>OlvLineEdit</name>
    <message>
        <source>显示密码</source>
        <translation>Show password</translation>
    </message>
</context>
<context>
    <name>OlvShortcutEdit</name>
    <message>
        <source>请直接在键盘上输入新的快捷键</source>
        <translation>Press the new shortcut on the keyboard</translation>
    </message>
</context>
</TS>
