<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>EventLog</name>
    <message>
        <source>%1 older entries were dropped: the log is full.</source>
        <translation>%1 ältere Einträge wurden entfernt: Das Protokoll ist voll.</translation>
    </message>
</context>
<context>
    <name>EventLogTableWidget</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>k. A.</translation>
    </message>
</context>
<context>
    <name>FieldValueLabel</name>
    <message>
        <source>N/A</source>
        <translation>k. A.</translation>
    </message>
    <message>
        <source> [...]</source>
        <translation> [...]</translation>
    </message>
</context>
<context>
    <name>MessageStatisticsWidget</name>
    <message>
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Current rate/interval</source>
        <translation>Aktuelle Rate/aktueller Abstand</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Lücken</translation>
    </message>
    <message>
        <source>Message statistics for the messages
in the %1 format.</source>
        <translation>Nachrichtenstatistik der Nachrichten
im Format %1.</translation>
    </message>
    <message>
        <source>CRC Errors</source>
        <translation>CRC-Fehler</translation>
    </message>
</context>
<context>
    <name>MessageTreeWidget</name>
    <message>
        <source>&amp;Type</source>
        <translation>&amp;Typ</translation>
    </message>
    <message>
        <source>&amp;Raw Value</source>
        <translation>&amp;Rohwert</translation>
    </message>
    <message>
        <source>Duplicate column</source>
        <translation>Doppelte Spalte</translation>
    </message>
    <message>
        <source>Attempt to add to a MessageTreeWidget a column that is already present: %1. Duplicate column was not added.</source>
        <translation>Einem MessageTreeWidget sollte eine Spalte hinzugefügt werden, die es schon hat: %1. Die doppelte Spalte wurde nicht hinzugefügt.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Raw value</source>
        <translation>Rohwert</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Custom 1</source>
        <translation>Eigene 1</translation>
    </message>
    <message>
        <source>Custom 2</source>
        <translation>Eigene 2</translation>
    </message>
    <message>
        <source>Custom 3</source>
        <translation>Eigene 3</translation>
    </message>
    <message>
        <source>Custom 4</source>
        <translation>Eigene 4</translation>
    </message>
    <message>
        <source>Custom 5</source>
        <translation>Eigene 5</translation>
    </message>
    <message>
        <source>Custom 6</source>
        <translation>Eigene 6</translation>
    </message>
    <message>
        <source>Custom 7</source>
        <translation>Eigene 7</translation>
    </message>
    <message>
        <source>Custom 8</source>
        <translation>Eigene 8</translation>
    </message>
    <message>
        <source>Custom 9</source>
        <translation>Eigene 9</translation>
    </message>
    <message>
        <source>Custom 10</source>
        <translation>Eigene 10</translation>
    </message>
    <message>
        <source>Column type %1</source>
        <translation>Spaltenart %1</translation>
    </message>
</context>
<context>
    <name>MessageTreeWidgetItem</name>
    <message>
        <source>No message type set</source>
        <translation>Kein Nachrichtentyp gesetzt</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>No message</source>
        <translation>Keine Nachricht</translation>
    </message>
    <message>
        <source>Hidden data</source>
        <translation>Verborgene Daten</translation>
    </message>
    <message>
        <source>Due to confidentiality, the data in this message has been (partly) hidden.</source>
        <translation>Die Daten dieser Nachricht sind vertraulich und wurden (teilweise) verborgen.</translation>
    </message>
</context>
<context>
    <name>MessageWidget</name>
    <message>
        <source>No message type set</source>
        <translation>Kein Nachrichtentyp gesetzt</translation>
    </message>
</context>
<context>
    <name>PathExpressionComboBox</name>
    <message>
        <source>Null path expression set!</source>
        <translation>Der Pfadausdruck ist null!</translation>
    </message>
    <message>
        <source>Null options source path expression set!</source>
        <translation>Der Pfadausdruck für die Auswahl ist null!</translation>
    </message>
    <message>
        <source>No options</source>
        <translation>Keine Auswahl</translation>
    </message>
</context>
<context>
    <name>PathExpressionLabel</name>
    <message>
        <source>No path expression set!</source>
        <translation>Kein Pfadausdruck gesetzt!</translation>
    </message>
</context>
<context>
    <name>PathExpressionLineEdit</name>
    <message>
        <source>No path expression set!</source>
        <translation>Kein Pfadausdruck gesetzt!</translation>
    </message>
</context>
<context>
    <name>PathExpressionListWidget</name>
    <message>
        <source>Null options source path expression set!</source>
        <translation>Der Pfadausdruck für die Auswahl ist null!</translation>
    </message>
    <message>
        <source>No options</source>
        <translation>Keine Auswahl</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 (unknown)</source>
        <translation>%1 (unbekannt)</translation>
    </message>
    <message>
        <source>Number of times the %1
message has been received.</source>
        <translation>Wie oft die Nachricht %1
empfangen wurde.</translation>
    </message>
    <message>
        <source>Most recent regular rate/interval at which the %1
message has been received.</source>
        <translation>Letzte regelmäßige Rate (letzter regelmäßiger Abstand),
mit der die Nachricht %1 empfangen wurde.</translation>
    </message>
    <message>
        <source>Detected gaps in regular data segments with valid time, if any.</source>
        <translation>Erkannte Lücken in regelmäßigen Abschnitten mit gültiger Zeit, falls vorhanden.</translation>
    </message>
    <message>
        <source>Rates/Intervals</source>
        <translation>Raten/Abstände</translation>
    </message>
    <message>
        <source>The rates/intervals in which this message has been received,
together with the corresponding count.</source>
        <translation>Die Raten/Abstände, in denen diese Nachricht empfangen wurde,
mit der jeweiligen Anzahl.</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>k. A.</translation>
    </message>
    <message>
        <source>%1 (%2 epochs)</source>
        <translation>%1 (%2 Epochen)</translation>
    </message>
    <message>
        <source>No time</source>
        <translation>Keine Zeit</translation>
    </message>
    <message>
        <source>The number of times this message 
has been received without a valid time tag.</source>
        <translation>Wie oft diese Nachricht
ohne gültige Zeitangabe empfangen wurde.</translation>
    </message>
    <message>
        <source>Unknown interval/rate</source>
        <translation>Abstand/Rate unbekannt</translation>
    </message>
    <message>
        <source>Number of times this message has been received 
with a valid time tag but for which the interval 
could not be determined: 
there was no previous message with valid time, 
and the following messages did not 
come in at a regular rate.</source>
        <translation>Wie oft diese Nachricht mit gültiger Zeitangabe
empfangen wurde, aber ohne dass der Abstand
bestimmt werden konnte:
Es gab keine frühere Nachricht mit gültiger Zeit,
und die folgenden Nachrichten kamen
nicht in regelmäßiger Rate.</translation>
    </message>
    <message>
        <source>Number of times the message was received at %1.</source>
        <translation>Wie oft die Nachricht mit %1 empfangen wurde.</translation>
    </message>
    <message>
        <source>Number of times the messages was received
with the same time stamp as previous.</source>
        <translation>Wie oft die Nachricht mit demselben
Zeitstempel wie die vorige empfangen wurde.</translation>
    </message>
    <message>
        <source>Gaps, with time and duration</source>
        <translation>Lücken, mit Zeit und Dauer</translation>
    </message>
    <message>
        <source>Gaps (incomplete list)</source>
        <translation>Lücken (unvollständige Liste)</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Lücken</translation>
    </message>
    <message>
        <source>Gaps start</source>
        <translation>Beginn der Lücke</translation>
    </message>
    <message>
        <source>Missing epochs</source>
        <translation>Fehlende Epochen</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>No field set</source>
        <translation>Kein Feld gesetzt</translation>
    </message>
    <message>
        <source>No values for optional field</source>
        <translation>Keine Werte für das optionale Feld</translation>
    </message>
    <message>
        <source>submessage</source>
        <translation>Teilnachricht</translation>
    </message>
    <message>
        <source>repeated value</source>
        <translation>Einzelwert</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 %2s</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source> [%1]</source>
        <translation> [%1]</translation>
    </message>
    <message>
        <source>Optional submessage not present</source>
        <translation>Optionale Teilnachricht nicht vorhanden</translation>
    </message>
    <message>
        <source>No value for optional field</source>
        <translation>Kein Wert für das optionale Feld</translation>
    </message>
    <message>
        <source>string</source>
        <translation>Text</translation>
    </message>
</context>
<context>
    <name>corvane::BoundSocket</name>
    <message>
        <source>Cannot receive at %1: </source>
        <translation>Empfang an %1 nicht möglich: </translation>
    </message>
    <message>
        <source>another program already uses this port. End it, or choose another port.</source>
        <translation>Ein anderes Programm benutzt diesen Port schon. Beenden Sie es oder wählen Sie einen anderen Port.</translation>
    </message>
    <message>
        <source>no permission. Choose a port above 1023.</source>
        <translation>keine Berechtigung. Wählen Sie einen Port über 1023.</translation>
    </message>
    <message>
        <source>this machine does not have this address. Leave it empty to mean all.</source>
        <translation>Dieser Rechner hat diese Adresse nicht. Lassen Sie sie leer, um alle zu meinen.</translation>
    </message>
</context>
<context>
    <name>corvane::EventGatherer</name>
    <message>
        <source>Unknown messages of various ids</source>
        <translation>Unbekannte Nachrichten mit verschiedenen Kennungen</translation>
    </message>
    <message>
        <source>CRC errors of various messages</source>
        <translation>CRC-Fehler verschiedener Nachrichten</translation>
    </message>
    <message>
        <source>Messages of various senders lost</source>
        <translation>Nachrichten verschiedener Sender verloren</translation>
    </message>
    <message>
        <source>Various events</source>
        <translation>Verschiedene Ereignisse</translation>
    </message>
    <message>
        <source>%1: %2 more in the same second</source>
        <translation>%1: %2 weitere in derselben Sekunde</translation>
    </message>
</context>
<context>
    <name>corvane::FdSource</name>
    <message>
        <source>Cannot read %1: it is a folder. Name a file.</source>
        <translation>%1 kann nicht gelesen werden: Es ist ein Ordner. Geben Sie eine Datei an.</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>%1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>Reading %1 failed: %2.</source>
        <translation>Lesen von %1 fehlgeschlagen: %2.</translation>
    </message>
    <message>
        <source>%1 has become shorter, so it is another recording now. Open it again.</source>
        <translation>%1 ist kürzer geworden und daher jetzt eine andere Aufzeichnung. Öffnen Sie sie neu.</translation>
    </message>
</context>
<context>
    <name>corvane::FileIndex</name>
    <message>
        <source>Cannot index %1: %2.</source>
        <translation>%1 kann nicht indiziert werden: %2.</translation>
    </message>
</context>
<context>
    <name>corvane::FileSource</name>
    <message>
        <source>Cannot open &quot;%1&quot;: </source>
        <translation>„%1“ kann nicht geöffnet werden: </translation>
    </message>
    <message>
        <source>there is no such file. Check the path.</source>
        <translation>Es gibt keine solche Datei. Prüfen Sie den Pfad.</translation>
    </message>
    <message>
        <source>it is a folder. Name a file in it.</source>
        <translation>Es ist ein Ordner. Geben Sie eine Datei darin an.</translation>
    </message>
    <message>
        <source>no permission to read it. Change its permissions or its owner.</source>
        <translation>keine Berechtigung zum Lesen. Ändern Sie die Berechtigungen oder den Besitzer.</translation>
    </message>
</context>
<context>
    <name>corvane::MavlinkDecoder</name>
    <message>
        <source>checksum %1 received, %2 computed</source>
        <translation>Prüfsumme %1 empfangen, %2 berechnet</translation>
    </message>
    <message>
        <source>; it fits the payload extended with zeros to %1 bytes, so a relay has cut the zeros after the checksum was made</source>
        <translation>; sie passt zu den mit Nullen auf %1 Byte verlängerten Nutzdaten, also hat eine Zwischenstation die Nullen nach dem Bilden der Prüfsumme abgeschnitten</translation>
    </message>
</context>
<context>
    <name>corvane::MavlinkDefinitionReader</name>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>Die Datei „%1“ existiert nicht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; includes itself, directly or through others.</source>
        <translation>„%1“ bindet sich selbst ein, direkt oder über andere Dateien.</translation>
    </message>
    <message>
        <source>More than %1 files are included.</source>
        <translation>Mehr als %1 Dateien werden eingebunden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>„%1“ ist keine Datei.</translation>
    </message>
    <message>
        <source>Cannot read &quot;%1&quot;: %2.</source>
        <translation>„%1“ kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than a definition file can be (32 MiB).</source>
        <translation>„%1“ ist größer, als eine Definitionsdatei sein darf (32 MiB).</translation>
    </message>
    <message>
        <source>The included files are larger than 64 MiB in all.</source>
        <translation>Die eingebundenen Dateien sind zusammen größer als 64 MiB.</translation>
    </message>
    <message>
        <source>A MAVLink definition file begins with &lt;mavlink&gt;, not with &lt;%1&gt;.</source>
        <translation>Eine MAVLink-Definitionsdatei beginnt mit &lt;mavlink&gt;, nicht mit &lt;%1&gt;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be included: name a file in this file&apos;s folder.</source>
        <translation>„%1“ kann nicht eingebunden werden: Nennen Sie eine Datei im Ordner dieser Datei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name for an enum: use letters, digits and underscores.</source>
        <translation>„%1“ ist kein Name für eine Aufzählung: Verwenden Sie Buchstaben, Ziffern und Unterstriche.</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; of %2 needs a name of letters, digits and underscores and a whole number as its value, not &quot;%3&quot;.</source>
        <translation>Der Eintrag „%1“ von %2 braucht einen Namen aus Buchstaben, Ziffern und Unterstrichen und eine ganze Zahl als Wert, nicht „%3“.</translation>
    </message>
    <message>
        <source>There are more than %1 enum entries.</source>
        <translation>Es gibt mehr als %1 Einträge in Aufzählungen.</translation>
    </message>
    <message>
        <source>%1 = %2 of %3 is passed over: the name or the value is taken.</source>
        <translation>%1 = %2 von %3 wird übergangen: Name oder Wert ist vergeben.</translation>
    </message>
    <message>
        <source>The message &quot;%1&quot; needs a name of letters, digits and underscores and an id from 0 to 16777215, not &quot;%2&quot;.</source>
        <translation>Die Nachricht „%1“ braucht einen Namen aus Buchstaben, Ziffern und Unterstrichen und eine Kennung von 0 bis 16777215, nicht „%2“.</translation>
    </message>
    <message>
        <source>There are more than %1 messages, or more than %2 fields and bits of fields.</source>
        <translation>Es gibt mehr als %1 Nachrichten oder mehr als %2 Felder und Bits von Feldern.</translation>
    </message>
    <message>
        <source>The message %1 with id %2 is there already: %3 with id %4, line %5 of %6.</source>
        <translation>Die Nachricht %1 mit der Kennung %2 gibt es schon: %3 mit der Kennung %4, Zeile %5 von %6.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name for a field: use letters, digits and underscores.</source>
        <translation>„%1“ ist kein Name für ein Feld: Verwenden Sie Buchstaben, Ziffern und Unterstriche.</translation>
    </message>
    <message>
        <source>%1 has two fields named %2.</source>
        <translation>%1 hat zwei Felder namens %2.</translation>
    </message>
    <message>
        <source>The field %1 has the unknown type &quot;%2&quot;. Known are int8_t to int64_t, uint8_t to uint64_t, float, double and char, each also with a length from 1 to 255 in brackets.</source>
        <translation>Das Feld %1 hat den unbekannten Typ „%2“. Bekannt sind int8_t bis int64_t, uint8_t bis uint64_t, float, double und char, jeweils auch mit einer Länge von 1 bis 255 in Klammern.</translation>
    </message>
    <message>
        <source>The fields of %1 take more than the %2 bytes that a frame has room for.</source>
        <translation>Die Felder von %1 brauchen mehr als die %2 Byte, für die in einem Rahmen Platz ist.</translation>
    </message>
    <message>
        <source>The elements are nested too deeply.</source>
        <translation>Die Elemente sind zu tief verschachtelt.</translation>
    </message>
</context>
<context>
    <name>corvane::MavlinkFormat</name>
    <message>
        <source>The message %1 with id %2 contradicts %3 with id %4, which is loaded already.</source>
        <translation>Die Nachricht %1 mit der Kennung %2 widerspricht %3 mit der Kennung %4, die schon geladen ist.</translation>
    </message>
</context>
<context>
    <name>corvane::McapDecoder</name>
    <message>
        <source>%1 bytes of channel %2, at offset %3 of the file, are no message of type %4.</source>
        <translation>%1 Byte von Kanal %2 an Position %3 der Datei sind keine Nachricht vom Typ %4.</translation>
    </message>
    <message>
        <source>%1 (at offset %2)</source>
        <translation>%1 (an Position %2)</translation>
    </message>
</context>
<context>
    <name>corvane::McapDefinitions</name>
    <message>
        <source>Cannot be read: %1.</source>
        <translation>Kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>This is no MCAP file, or one of another version.</source>
        <translation>Das ist keine MCAP-Datei oder eine von anderer Version.</translation>
    </message>
    <message>
        <source>The file contains no channels.</source>
        <translation>Die Datei enthält keine Kanäle.</translation>
    </message>
</context>
<context>
    <name>corvane::McapFormat</name>
    <message>
        <source>Only one MCAP file can be loaded.</source>
        <translation>Nur eine MCAP-Datei kann geladen werden.</translation>
    </message>
    <message>
        <source>None of the channels has messages of Protocol Buffers.</source>
        <translation>Keiner der Kanäle hat Nachrichten von Protocol Buffers.</translation>
    </message>
    <message>
        <source>schema %1</source>
        <translation>Schema %1</translation>
    </message>
    <message>
        <source>The schema %1 does not define the message type of that name.</source>
        <translation>Das Schema %1 definiert den Nachrichtentyp dieses Namens nicht.</translation>
    </message>
    <message>
        <source>The message type %1 has too many parts to be shown.</source>
        <translation>Der Nachrichtentyp %1 hat zu viele Teile, um gezeigt zu werden.</translation>
    </message>
    <message>
        <source>channel %1</source>
        <translation>Kanal %1</translation>
    </message>
</context>
<context>
    <name>corvane::McapReader</name>
    <message>
        <source>A chunk is compressed with &quot;%1&quot;, which is not known.</source>
        <translation>Ein Block ist mit „%1“ komprimiert, das nicht bekannt ist.</translation>
    </message>
    <message>
        <source>A chunk cannot be decompressed.</source>
        <translation>Ein Block kann nicht entpackt werden.</translation>
    </message>
    <message>
        <source>A chunk holds more than the %1 bytes it tells of.</source>
        <translation>Ein Block enthält mehr als die %1 Byte, die er angibt.</translation>
    </message>
    <message>
        <source>A chunk holds less than the %1 bytes it tells of.</source>
        <translation>Ein Block enthält weniger als die %1 Byte, die er angibt.</translation>
    </message>
    <message>
        <source>The checksum of a chunk is wrong.</source>
        <translation>Die Prüfsumme eines Blocks ist falsch.</translation>
    </message>
    <message>
        <source>This is no MCAP file, or one of another version.</source>
        <translation>Das ist keine MCAP-Datei oder eine von anderer Version.</translation>
    </message>
    <message>
        <source>The mark at the end of the file is wrong.</source>
        <translation>Die Marke am Ende der Datei ist falsch.</translation>
    </message>
    <message>
        <source>There is no record where one must be.</source>
        <translation>Wo ein Datensatz sein muss, ist keiner.</translation>
    </message>
    <message>
        <source>A record of %1 bytes is larger than the %2 that are allowed.</source>
        <translation>Ein Datensatz von %1 Byte ist größer als die erlaubten %2.</translation>
    </message>
    <message>
        <source>The records of a chunk do not end where the chunk does.</source>
        <translation>Die Datensätze eines Blocks enden nicht dort, wo der Block endet.</translation>
    </message>
    <message>
        <source>There is a chunk inside a chunk.</source>
        <translation>In einem Block steckt ein Block.</translation>
    </message>
    <message>
        <source>There are bytes behind the end of the file.</source>
        <translation>Hinter dem Ende der Datei stehen Bytes.</translation>
    </message>
    <message>
        <source>The file is cut off here.</source>
        <translation>Die Datei ist hier abgeschnitten.</translation>
    </message>
    <message>
        <source>A schema is incomplete.</source>
        <translation>Ein Schema ist unvollständig.</translation>
    </message>
    <message>
        <source>Schema %1 is not the one that had this number before.</source>
        <translation>Schema %1 ist nicht das, das diese Nummer vorher hatte.</translation>
    </message>
    <message>
        <source>There are more or larger schemas than are allowed.</source>
        <translation>Es gibt mehr oder größere Schemata als erlaubt.</translation>
    </message>
    <message>
        <source>A channel is incomplete.</source>
        <translation>Ein Kanal ist unvollständig.</translation>
    </message>
    <message>
        <source>Channel %1 is not the one that had this number before.</source>
        <translation>Kanal %1 ist nicht der, der diese Nummer vorher hatte.</translation>
    </message>
    <message>
        <source>Channel %1 names schema %2, which the file does not contain.</source>
        <translation>Kanal %1 nennt Schema %2, das die Datei nicht enthält.</translation>
    </message>
    <message>
        <source>There are more channels than are allowed.</source>
        <translation>Es gibt mehr Kanäle als erlaubt.</translation>
    </message>
    <message>
        <source>A message is incomplete.</source>
        <translation>Eine Nachricht ist unvollständig.</translation>
    </message>
    <message>
        <source>A message names channel %1, which the file does not contain.</source>
        <translation>Eine Nachricht nennt Kanal %1, den die Datei nicht enthält.</translation>
    </message>
    <message>
        <source>A chunk is incomplete.</source>
        <translation>Ein Block ist unvollständig.</translation>
    </message>
    <message>
        <source>A chunk tells of %1 bytes, more than the %2 that are allowed.</source>
        <translation>Ein Block gibt %1 Byte an, mehr als die erlaubten %2.</translation>
    </message>
</context>
<context>
    <name>corvane::ProcessSource</name>
    <message>
        <source>Cannot start &quot;%1&quot;: %2.</source>
        <translation>„%1“ kann nicht gestartet werden: %2.</translation>
    </message>
    <message>
        <source>Reading from &quot;%1&quot; failed: %2.</source>
        <translation>Lesen von „%1“ fehlgeschlagen: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ended with exit code %2.</source>
        <translation>„%1“ endete mit dem Exit-Code %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was ended by signal %2.</source>
        <translation>„%1“ wurde durch das Signal %2 beendet.</translation>
    </message>
    <message>
        <source>It said last:</source>
        <translation>Die letzte Ausgabe war:</translation>
    </message>
</context>
<context>
    <name>corvane::ProtobufDecoder</name>
    <message>
        <source>no definitions are loaded</source>
        <translation>Es sind keine Definitionen geladen</translation>
    </message>
    <message>
        <source>they should be the length of a message and are none</source>
        <translation>Sie müssten die Länge einer Nachricht sein und sind keine</translation>
    </message>
    <message>
        <source>the stream ends inside of a message</source>
        <translation>Der Strom endet mitten in einer Nachricht</translation>
    </message>
    <message>
        <source>the message would take more than %1 bytes of memory</source>
        <translation>Die Nachricht bräuchte mehr als %1 Byte Speicher</translation>
    </message>
    <message>
        <source>they are no message of type %1</source>
        <translation>Sie sind keine Nachricht vom Typ %1</translation>
    </message>
    <message>
        <source>The message at offset %1 would be %2 bytes long, more than %3; it is passed over. Is the framing right?</source>
        <translation>Die Nachricht an Position %1 wäre %2 Byte lang, mehr als %3; sie wird übergangen. Stimmt die Rahmung?</translation>
    </message>
</context>
<context>
    <name>corvane::ProtobufFormat</name>
    <message>
        <source>Definitions are loaded already.</source>
        <translation>Es sind schon Definitionen geladen.</translation>
    </message>
    <message>
        <source>The message type %1 has too many parts to be shown.</source>
        <translation>Der Nachrichtentyp %1 hat zu viele Teile, um gezeigt zu werden.</translation>
    </message>
    <message>
        <source>Which message type does the stream consist of? Name it with --root, such as one of: %1.</source>
        <translation>Aus welchem Nachrichtentyp besteht der Strom? Nennen Sie ihn mit --root, etwa einen von: %1.</translation>
    </message>
    <message>
        <source>There is no message type %1; expected &quot;package.Type&quot;, such as one of: %2.</source>
        <translation>Es gibt keinen Nachrichtentyp %1; erwartet wird „paket.Typ“, etwa einer von: %2.</translation>
    </message>
    <message>
        <source>stream</source>
        <translation>Strom</translation>
    </message>
</context>
<context>
    <name>corvane::Reception</name>
    <message>
        <source>Unknown message: %1</source>
        <translation>Unbekannte Nachricht: %1</translation>
    </message>
    <message>
        <source>%1. Load the definitions that describe this id.</source>
        <translation>%1. Laden Sie die Definitionen, die diese Kennung beschreiben.</translation>
    </message>
    <message>
        <source>CRC error: %1</source>
        <translation>CRC-Fehler: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 bytes from offset %2 belong to no frame.</source>
        <translation>%1 Byte ab Position %2 gehören zu keinem Rahmen.</translation>
    </message>
    <message>
        <source>Bytes that belong to no frame</source>
        <translation>Bytes, die zu keinem Rahmen gehören</translation>
    </message>
    <message>
        <source>%1 bytes from offset %2 are lost: %3.</source>
        <translation>%1 Byte ab Position %2 sind verloren: %3.</translation>
    </message>
    <message>
        <source>Bytes lost: %1</source>
        <translation>Verlorene Bytes: %1</translation>
    </message>
    <message>
        <source>Sender %1: %2 messages lost before sequence number %3.</source>
        <translation>Sender %1: %2 Nachrichten vor der Folgenummer %3 verloren.</translation>
    </message>
    <message>
        <source>Sender %1: messages lost</source>
        <translation>Sender %1: Nachrichten verloren</translation>
    </message>
    <message>
        <source>id %1</source>
        <translation>Kennung %1</translation>
    </message>
    <message>
        <source>%1 from sender %2</source>
        <translation>%1 von Sender %2</translation>
    </message>
</context>
<context>
    <name>corvane::Reconnector</name>
    <message>
        <source>Connection lost, trying again in %1 s</source>
        <translation>Verbindung verloren, neuer Versuch in %1 s</translation>
    </message>
    <message>
        <source>%1 Trying again in %2 s.</source>
        <translation>%1 Neuer Versuch in %2 s.</translation>
    </message>
</context>
<context>
    <name>corvane::Recorder</name>
    <message>
        <source>there is no such folder. Choose another one.</source>
        <translation>Es gibt keinen solchen Ordner. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>it is a folder. Name a file in it.</source>
        <translation>Es ist ein Ordner. Geben Sie eine Datei darin an.</translation>
    </message>
    <message>
        <source>no permission to write there. Choose another folder.</source>
        <translation>keine Berechtigung, dort zu schreiben. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>it is no file. Choose another name.</source>
        <translation>Es ist keine Datei. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>Cannot record to &quot;%1&quot;: %2</source>
        <translation>Aufzeichnen nach „%1“ nicht möglich: %2</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>Der Datenträger ist voll</translation>
    </message>
    <message>
        <source>the disk is slower than the stream</source>
        <translation>Der Datenträger ist langsamer als der Strom</translation>
    </message>
    <message>
        <source>Recording to &quot;%1&quot; has stopped: %2. The first %3 bytes were kept; watching goes on.</source>
        <translation>Die Aufzeichnung nach „%1“ wurde beendet: %2. Die ersten %3 Byte wurden behalten; die Beobachtung geht weiter.</translation>
    </message>
</context>
<context>
    <name>corvane::SerialSource</name>
    <message>
        <source>Reading %1 failed: the device is gone. Plug it in, and open it again.</source>
        <translation>Lesen von %1 fehlgeschlagen: Das Gerät ist weg. Stecken Sie es ein und öffnen Sie es neu.</translation>
    </message>
    <message>
        <source>Cannot open %1: </source>
        <translation>%1 kann nicht geöffnet werden: </translation>
    </message>
    <message>
        <source>there is no such device. Check the name, and whether it is plugged in.</source>
        <translation>Es gibt kein solches Gerät. Prüfen Sie den Namen und ob es eingesteckt ist.</translation>
    </message>
    <message>
        <source>no permission, or in use by another program. End that program, or become a member of the group that owns the device (often &quot;dialout&quot;).</source>
        <translation>keine Berechtigung, oder ein anderes Programm benutzt es. Beenden Sie dieses Programm oder werden Sie Mitglied der Gruppe, der das Gerät gehört (oft „dialout“).</translation>
    </message>
</context>
<context>
    <name>corvane::SourceAddress</name>
    <message>
        <source> Expected %1.</source>
        <translation> Erwartet wird %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no source: %2.</source>
        <translation>„%1“ bezeichnet keine Quelle: %2.</translation>
    </message>
    <message>
        <source>it is empty; expected a file, or - for standard input</source>
        <translation>Die Angabe ist leer; erwartet wird eine Datei oder - für die Standardeingabe</translation>
    </message>
    <message>
        <source>the scheme &quot;%1&quot; is unknown; known are tcp://, tcp-listen://, udp://, serial: and exec:</source>
        <translation>Das Schema „%1“ ist unbekannt; bekannt sind tcp://, tcp-listen://, udp://, serial: und exec:</translation>
    </message>
    <message>
        <source>&quot;//&quot; is missing after &quot;%1:&quot;</source>
        <translation>„//“ fehlt hinter „%1:“</translation>
    </message>
    <message>
        <source>the port is missing</source>
        <translation>Der Port fehlt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in brackets is no IPv6 address</source>
        <translation>„%1“ in Klammern ist keine IPv6-Adresse</translation>
    </message>
    <message>
        <source>an IPv6 address is written in brackets, such as [::1]</source>
        <translation>Eine IPv6-Adresse steht in Klammern, etwa [::1]</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name of a host</source>
        <translation>„%1“ ist kein Name eines Rechners</translation>
    </message>
    <message>
        <source>the host is missing</source>
        <translation>Der Rechner fehlt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no IPv4 address of this machine</source>
        <translation>„%1“ ist keine IPv4-Adresse dieses Rechners</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no port, which is a number from %2 to %3</source>
        <translation>„%1“ ist kein Port; das ist eine Zahl von %2 bis %3</translation>
    </message>
    <message>
        <source>the device is missing</source>
        <translation>Das Gerät fehlt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unknown after the question mark</source>
        <translation>„%1“ hinter dem Fragezeichen ist unbekannt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no baud rate, which is a number such as 57600 or 115200</source>
        <translation>„%1“ ist keine Baudrate; das ist eine Zahl wie 57600 oder 115200</translation>
    </message>
    <message>
        <source>the command is missing</source>
        <translation>Der Befehl fehlt</translation>
    </message>
</context>
<context>
    <name>corvane::StdinSource</name>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>Cannot read standard input: it is closed. Redirect a file or a pipe to it.</source>
        <translation>Die Standardeingabe kann nicht gelesen werden: Sie ist geschlossen. Leiten Sie eine Datei oder eine Pipe um.</translation>
    </message>
</context>
<context>
    <name>corvane::StreamPump</name>
    <message>
        <source>There is not enough memory to read on; what was read before stays.</source>
        <translation>Der Speicher reicht nicht, um weiterzulesen; was vorher gelesen wurde, bleibt.</translation>
    </message>
</context>
<context>
    <name>corvane::TcpClientSource</name>
    <message>
        <source>The connection to %1 broke: %2.</source>
        <translation>Die Verbindung mit %1 ist abgebrochen: %2.</translation>
    </message>
    <message>
        <source>Cannot connect to %1: </source>
        <translation>Keine Verbindung mit %1: </translation>
    </message>
    <message>
        <source>nobody listens there. Start the sender first, or check address and port.</source>
        <translation>Dort hört niemand. Starten Sie zuerst den Sender oder prüfen Sie Adresse und Port.</translation>
    </message>
    <message>
        <source>there is no machine of this name. Check the name.</source>
        <translation>Es gibt keinen Rechner dieses Namens. Prüfen Sie den Namen.</translation>
    </message>
    <message>
        <source>no answer. Check the address, and whether a firewall is in the way.</source>
        <translation>keine Antwort. Prüfen Sie die Adresse und ob eine Firewall im Weg ist.</translation>
    </message>
</context>
<context>
    <name>corvane::TcpListenerSource</name>
    <message>
        <source>Cannot accept connections at %1: %2.</source>
        <translation>An %1 können keine Verbindungen angenommen werden: %2.</translation>
    </message>
</context>
<context>
    <name>corvane::UdpSource</name>
    <message>
        <source>Receiving at %1 failed: %2.</source>
        <translation>Empfang an %1 fehlgeschlagen: %2.</translation>
    </message>
</context>
</TS>
