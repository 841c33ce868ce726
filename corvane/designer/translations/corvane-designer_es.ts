<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>corvane::FormWidget</name>
    <message>
        <source>The live value of one field of a message</source>
        <translation>El valor actual de un campo de un mensaje</translation>
    </message>
    <message>
        <source>A form of all fields of one message type</source>
        <translation>Un formulario con todos los campos de un tipo de mensaje</translation>
    </message>
    <message>
        <source>A live tree of message types with their fields</source>
        <translation>Un árbol de los tipos de mensaje con los valores actuales de sus campos</translation>
    </message>
    <message>
        <source>Reception statistics of all message types; holds the place of one that is made with its coordinator</source>
        <translation>Estadísticas de recepción de todos los tipos de mensaje; ocupa el lugar de un widget que se crea con su coordinador</translation>
    </message>
    <message>
        <source>The events of a stream</source>
        <translation>Los eventos de un flujo</translation>
    </message>
    <message>
        <source>Shows a path expression</source>
        <translation>Muestra una expresión de ruta</translation>
    </message>
    <message>
        <source>Edits a path expression as a text</source>
        <translation>Edita una expresión de ruta como texto</translation>
    </message>
    <message>
        <source>Chooses the text of a path expression out of a drop-down list</source>
        <translation>Elige el texto de una expresión de ruta en una lista desplegable</translation>
    </message>
    <message>
        <source>Chooses the text of a path expression out of a list</source>
        <translation>Elige el texto de una expresión de ruta en una lista</translation>
    </message>
</context>
</TS>
