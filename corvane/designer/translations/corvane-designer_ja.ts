<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>corvane::FormWidget</name>
    <message>
        <source>The live value of one field of a message</source>
        <translation>メッセージのフィールド 1 つの現在の値</translation>
    </message>
    <message>
        <source>A form of all fields of one message type</source>
        <translation>1 つのメッセージ型のすべてのフィールドのフォーム</translation>
    </message>
    <message>
        <source>A live tree of message types with their fields</source>
        <translation>メッセージ型とそのフィールドの現在の値のツリー</translation>
    </message>
    <message>
        <source>Reception statistics of all message types; holds the place of one that is made with its coordinator</source>
        <translation>すべてのメッセージ型の受信統計。コーディネーターを渡して作成するウィジェットの場所を確保します</translation>
    </message>
    <message>
        <source>The events of a stream</source>
        <translation>ストリームのイベント</translation>
    </message>
    <message>
        <source>Shows a path expression</source>
        <translation>パス式を表示します</translation>
    </message>
    <message>
        <source>Edits a path expression as a text</source>
        <translation>パス式をテキストとして編集します</translation>
    </message>
    <message>
        <source>Chooses the text of a path expression out of a drop-down list</source>
        <translation>パス式のテキストをドロップダウンリストから選択します</translation>
    </message>
    <message>
        <source>Chooses the text of a path expression out of a list</source>
        <translation>パス式のテキストをリストから選択します</translation>
    </message>
</context>
</TS>
