<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="zh">
<context>
    <name>OlvControlBar</name>
    <message>
        <source>悬浮</source>
        <translation>Schweben lassen</translation>
    </message>
    <message>
        <source>置底</source>
        <translation>Im Hintergrund halten</translation>
    </message>
    <message>
        <source>置顶</source>
        <translation>Im Vordergrund halten</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>Wiederherstellen</translation>
    </message>
</context>
<context>
    <name>OlvGridLayout</name>
    <message>
        <source>空</source>
        <translation>Leer</translation>
    </message>
</context>
<context>
    <name>OlvLineEdit</name>
    <message>
        <source>显示密码</source>
        <translation>Passwort anzeigen</translation>
    </message>
</context>
<context>
    <name>OlvShortcutEdit</name>
    <message>
        <source>请直接在键盘上输入新的快捷键</source>
        <translation>Drücken Sie das neue Tastenkürzel</translation>
    </message>
</context>
</TS>
