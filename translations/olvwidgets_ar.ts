<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="zh">
<context>
    <name>OlvControlBar</name>
    <message>
        <source>悬浮</source>
        <translation>تعويم</translation>
    </message>
    <message>
        <source>置底</source>
        <translation>الإبقاء في الخلف</translation>
    </message>
    <message>
        <source>置顶</source>
        <translation>الإبقاء في الأمام</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>تصغير</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>تكبير</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>استعادة</translation>
    </message>
</context>
<context>
    <name>OlvGridLayout</name>
    <message>
        <source>空</source>
        <translation>فارغ</translation>
    </message>
</context>
<context>
    <name>OlvLineEdit</name>
    <message>
        <source>显示密码</source>
        <translation>إظهار كلمة المرور</translation>
    </message>
</context>
<context>
    <name>OlvShortcutEdit</name>
    <message>
        <source>请直接在键盘上输入新的快捷键</source>
        <translation>اضغط على الاختصار الجديد في لوحة المفاتيح</translation>
    </message>
</context>
</TS>
