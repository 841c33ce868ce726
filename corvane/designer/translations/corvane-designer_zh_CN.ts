<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>corvane::FormWidget</name>
    <message>
        <source>The live value of one field of a message</source>
        <translation>消息中一个字段的实时值</translation>
    </message>
    <message>
        <source>A form of all fields of one message type</source>
        <translation>一个消息类型的全部字段的表单</translation>
    </message>
    <message>
        <source>A live tree of message types with their fields</source>
        <translation>各消息类型及其字段的实时树</translation>
    </message>
    <message>
        <source>Reception statistics of all message types; holds the place of one that is made with its coordinator</source>
        <translation>所有消息类型的接收统计；为随协调器一起创建的部件占位</translation>
    </message>
    <message>
        <source>The events of a stream</source>
        <translation>数据流的事件</translation>
    </message>
    <message>
        <source>Shows a path expression</source>
        <translation>显示路径表达式</translation>
    </message>
    <message>
        <source>Edits a path expression as a text</source>
        <translation>以文本形式编辑路径表达式</translation>
    </message>
    <message>
        <source>Chooses the text of a path expression out of a drop-down list</source>
        <translation>从下拉列表中选择路径表达式的文本</translation>
    </message>
    <message>
        <source>Chooses the text of a path expression out of a list</source>
        <translation>从列表中选择路径表达式的文本</translation>
    </message>
</context>
</TS>
