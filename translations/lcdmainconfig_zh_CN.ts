<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>reading</name>
    <message>
        <source>Invalid hueColor [%1] node.</source>
        <translation>色调颜色节点 [%1] 无效。</translation>
    </message>
    <message>
        <source>Parse error at line %1, column %2:
%3</source>
        <translation>第 %1 行第 %2 列解析错误：
%3</translation>
    </message>
    <message>
        <source>Invalid file path!
%1</source>
        <translation>文件路径无效！
%1</translation>
    </message>
    <message>
        <source>Fail to open file [%1]!</source>
        <translation>无法打开文件 [%1]！</translation>
    </message>
    <message>
        <source>The file is not a valid configuration file for device.</source>
        <translation>该文件不是有效的设备配置文件。</translation>
    </message>
    <message>
        <source>The file is not a valid configuration file of version 1.0 for device.</source>
        <translation>该文件不是有效的 1.0 版设备配置文件。</translation>
    </message>
    <message>
        <source>Invalid [%1] node.</source>
        <translation>节点 [%1] 无效。</translation>
    </message>
</context>
</TS>
