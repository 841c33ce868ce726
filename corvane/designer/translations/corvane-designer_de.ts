<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>corvane::FormWidget</name>
    <message>
        <source>The live value of one field of a message</source>
        <translation>Der aktuelle Wert eines Feldes einer Nachricht</translation>
    </message>
    <message>
        <source>A form of all fields of one message type</source>
        <translation>Ein Formular mit allen Feldern eines Nachrichtentyps</translation>
    </message>
    <message>
        <source>A live tree of message types with their fields</source>
        <translation>Ein Baum der Nachrichtentypen mit den aktuellen Werten ihrer Felder</translation>
    </message>
    <message>
        <source>Reception statistics of all message types; holds the place of one that is made with its coordinator</source>
        <translation>Empfangsstatistik aller Nachrichtentypen; Platzhalter für ein Widget, das mit seinem Koordinator erzeugt wird</translation>
    </message>
    <message>
        <source>The events of a stream</source>
        <translation>Die Ereignisse eines Stroms</translation>
    </message>
    <message>
        <source>Shows a path expression</source>
        <translation>Zeigt einen Pfadausdruck an</translation>
    </message>
    <message>
        <source>Edits a path expression as a text</source>
        <translation>Bearbeitet einen Pfadausdruck als Text</translation>
    </message>
    <message>
        <source>Chooses the text of a path expression out of a drop-down list</source>
        <translation>Wählt den Text eines Pfadausdrucks aus einer Auswahlliste</translation>
    </message>
    <message>
        <source>Chooses the text of a path expression out of a list</source>
        <translation>Wählt den Text eines Pfadausdrucks aus einer Liste</translation>
    </message>
</context>
</TS>
