<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>corvane::FormWidget</name>
    <message>
        <source>The live value of one field of a message</source>
        <translation>La valeur actuelle d’un champ d’un message</translation>
    </message>
    <message>
        <source>A form of all fields of one message type</source>
        <translation>Un formulaire de tous les champs d’un type de message</translation>
    </message>
    <message>
        <source>A live tree of message types with their fields</source>
        <translation>Un arbre des types de message avec les valeurs actuelles de leurs champs</translation>
    </message>
    <message>
        <source>Reception statistics of all message types; holds the place of one that is made with its coordinator</source>
        <translation>Statistiques de réception de tous les types de message&#x202f;; tient la place d’un widget créé avec son coordinateur</translation>
    </message>
    <message>
        <source>The events of a stream</source>
        <translation>Les événements d’un flux</translation>
    </message>
    <message>
        <source>Shows a path expression</source>
        <translation>Affiche une expression de chemin</translation>
    </message>
    <message>
        <source>Edits a path expression as a text</source>
        <translation>Modifie une expression de chemin sous forme de texte</translation>
    </message>
    <message>
        <source>Chooses the text of a path expression out of a drop-down list</source>
        <translation>Choisit le texte d’une expression de chemin dans une liste déroulante</translation>
    </message>
    <message>
        <source>Chooses the text of a path expression out of a list</source>
        <translation>Choisit le texte d’une expression de chemin dans une liste</translation>
    </message>
</context>
</TS>
