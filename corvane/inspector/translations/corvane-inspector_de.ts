<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>PlotSeries</name>
    <message>
        <source>Not described by the loaded definitions, or not a number</source>
        <translation>Von den geladenen Definitionen nicht beschrieben, oder keine Zahl</translation>
    </message>
    <message>
        <source>Confidential, not shown</source>
        <translation>Vertraulich, nicht gezeigt</translation>
    </message>
    <message>
        <source>Not received yet</source>
        <translation>Noch nicht empfangen</translation>
    </message>
    <message>
        <source>Absent in the last message</source>
        <translation>In der letzten Nachricht nicht vorhanden</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Empfangen</translation>
    </message>
    <message>
        <source>No finite number</source>
        <translation>Keine endliche Zahl</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
</context>
<context>
    <name>corvane::ConfidentialSwitch</name>
    <message>
        <source>Show &amp;Confidential Fields</source>
        <translation>&amp;Vertrauliche Felder zeigen</translation>
    </message>
    <message>
        <source>Show the content of fields that are marked as confidential</source>
        <translation>Den Inhalt von Feldern zeigen, die als vertraulich gekennzeichnet sind</translation>
    </message>
    <message>
        <source>Confidential fields become readable in all views, and in what is exported or copied from now on, until this window is closed.</source>
        <translation>Vertrauliche Felder werden in allen Ansichten lesbar, und in allem, was von nun an exportiert oder kopiert wird, bis dieses Fenster geschlossen wird.</translation>
    </message>
    <message>
        <source>&amp;Show Them</source>
        <translation>&amp;Zeigen</translation>
    </message>
    <message>
        <source>Keep Them Hidden</source>
        <translation>Verborgen lassen</translation>
    </message>
</context>
<context>
    <name>corvane::EventLogPanel</name>
    <message>
        <source>Show only events that contain…</source>
        <translation>Nur Ereignisse zeigen mit …</translation>
    </message>
    <message>
        <source>Filter of the event log</source>
        <translation>Filter des Ereignisprotokolls</translation>
    </message>
    <message>
        <source>To the end</source>
        <translation>Zum Ende</translation>
    </message>
    <message>
        <source>Scroll to the latest event and follow the log again</source>
        <translation>Zum neuesten Ereignis gehen und dem Protokoll wieder folgen</translation>
    </message>
    <message>
        <source>Event log</source>
        <translation>Ereignisprotokoll</translation>
    </message>
    <message>
        <source>No events: nothing was damaged, lost or unknown</source>
        <translation>Keine Ereignisse: Nichts war beschädigt, verloren oder unbekannt</translation>
    </message>
    <message>
        <source>%1 entries</source>
        <translation>%1 Einträge</translation>
    </message>
    <message>
        <source>%1 of %2 entries</source>
        <translation>%1 von %2 Einträgen</translation>
    </message>
    <message>
        <source>, not following</source>
        <translation>, folgt nicht</translation>
    </message>
</context>
<context>
    <name>corvane::ExportBar</name>
    <message>
        <source>Progress of the export</source>
        <translation>Fortschritt des Exports</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>corvane::ExportController</name>
    <message>
        <source>CSV (*.csv);;All files (*)</source>
        <translation>CSV (*.csv);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>&amp;Export Messages...</source>
        <translation>&amp;Nachrichten exportieren …</translation>
    </message>
    <message>
        <source>Write messages or some of their fields as CSV or JSON lines</source>
        <translation>Nachrichten oder einige ihrer Felder als CSV oder JSON-Zeilen schreiben</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>Export &amp;Statistics...</source>
        <translation>&amp;Statistik exportieren …</translation>
    </message>
    <message>
        <source>Write the counts of all message types as CSV</source>
        <translation>Die Zähler aller Nachrichtentypen als CSV schreiben</translation>
    </message>
    <message>
        <source>Export Event &amp;Log...</source>
        <translation>&amp;Ereignisprotokoll exportieren …</translation>
    </message>
    <message>
        <source>Write the event log as CSV</source>
        <translation>Das Ereignisprotokoll als CSV schreiben</translation>
    </message>
    <message>
        <source>All of &quot;%1&quot; will be exported, from its start.</source>
        <translation>Alles aus „%1“ wird exportiert, vom Anfang an.</translation>
    </message>
    <message>
        <source>What %1 sends will be exported from now on, until you stop it.</source>
        <translation>Was %1 sendet, wird von jetzt an exportiert, bis Sie es beenden.</translation>
    </message>
    <message>
        <source>There is nothing to export: no source is open.</source>
        <translation>Es gibt nichts zu exportieren: Keine Quelle ist geöffnet.</translation>
    </message>
    <message>
        <source>Export Statistics</source>
        <translation>Statistik exportieren</translation>
    </message>
    <message>
        <source>Export Event Log</source>
        <translation>Ereignisprotokoll exportieren</translation>
    </message>
    <message>
        <source>Exporting to &quot;%1&quot;: %2 messages</source>
        <translation>Export nach „%1“: %2 Nachrichten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>%1 messages exported to &quot;%2&quot;.</source>
        <translation>%1 Nachrichten nach „%2“ exportiert.</translation>
    </message>
    <message>
        <source>The export ended after %1 messages: %2.</source>
        <translation>Der Export endete nach %1 Nachrichten: %2.</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;.</source>
        <translation>Nach „%1“ exportiert.</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
</context>
<context>
    <name>corvane::ExportDialog</name>
    <message>
        <source>&amp;Names in place of numbers, where values have names</source>
        <translation>&amp;Namen statt Zahlen, wo Werte Namen haben</translation>
    </message>
    <message>
        <source>Export Messages</source>
        <translation>Nachrichten exportieren</translation>
    </message>
    <message>
        <source>Messages and fields</source>
        <translation>Nachrichten und Felder</translation>
    </message>
    <message>
        <source>Message or field</source>
        <translation>Nachricht oder Feld</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Empfangen</translation>
    </message>
    <message>
        <source>CSV: a table</source>
        <translation>CSV: eine Tabelle</translation>
    </message>
    <message>
        <source>JSON lines: an object for each message</source>
        <translation>JSON-Zeilen: ein Objekt für jede Nachricht</translation>
    </message>
    <message>
        <source>Find messages and fields</source>
        <translation>Nachrichten und Felder suchen</translation>
    </message>
    <message>
        <source>F&amp;orm:</source>
        <translation>F&amp;orm:</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>&amp;Datei:</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>Choose &amp;All</source>
        <translation>&amp;Alle auswählen</translation>
    </message>
    <message>
        <source>Choose N&amp;one</source>
        <translation>&amp;Keine auswählen</translation>
    </message>
    <message>
        <source>Of what the list shows</source>
        <translation>Von denen, die die Liste zeigt</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation>A&amp;uswählen …</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>CSV (*.csv);;JSON lines (*.jsonl);;All files (*)</source>
        <translation>CSV (*.csv);;JSON-Zeilen (*.jsonl);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Choose messages or fields to export.</source>
        <translation>Wählen Sie Nachrichten oder Felder zum Exportieren.</translation>
    </message>
    <message>
        <source>Choose the file to write.</source>
        <translation>Wählen Sie die Datei, in die geschrieben wird.</translation>
    </message>
    <message>
        <source>The file exists and will be replaced.</source>
        <translation>Die Datei existiert und wird ersetzt.</translation>
    </message>
</context>
<context>
    <name>corvane::ExportJob</name>
    <message>
        <source>cannot write &quot;%1&quot;: it is the source</source>
        <translation>„%1“ kann nicht geschrieben werden: Es ist die Quelle</translation>
    </message>
</context>
<context>
    <name>corvane::ExportWriter</name>
    <message>
        <source>cannot write &quot;%1&quot;: %2</source>
        <translation>„%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>cannot write to standard output: %1</source>
        <translation>Auf die Standardausgabe kann nicht geschrieben werden: %1</translation>
    </message>
</context>
<context>
    <name>corvane::FileList</name>
    <message>
        <source>Add…</source>
        <translation>Hinzufügen …</translation>
    </message>
    <message>
        <source>Add to: %1</source>
        <translation>Hinzufügen zu: %1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove from: %1</source>
        <translation>Entfernen aus: %1</translation>
    </message>
</context>
<context>
    <name>corvane::FormPanel</name>
    <message>
        <source>Fields of the chosen message type</source>
        <translation>Felder des gewählten Nachrichtentyps</translation>
    </message>
</context>
<context>
    <name>corvane::MainWindow</name>
    <message>
        <source>Message types</source>
        <translation>Nachrichtentypen</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>Choose another source, or other definitions</source>
        <translation>Eine andere Quelle oder andere Definitionen wählen</translation>
    </message>
    <message>
        <source>&amp;Pause the Views</source>
        <translation>Ansichten &amp;anhalten</translation>
    </message>
    <message>
        <source>Ctrl+P</source>
        <translation>Ctrl+P</translation>
    </message>
    <message>
        <source>Leave the views as they are; everything is counted all the same</source>
        <translation>Die Ansichten bleiben, wie sie sind; gezählt wird dennoch alles</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Beobachten</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Event log</source>
        <translation>Ereignisprotokoll</translation>
    </message>
    <message>
        <source>Senders</source>
        <translation>Sender</translation>
    </message>
    <message>
        <source>Plot (not in this build)</source>
        <translation>Diagramm (nicht in dieser Fassung)</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>No definition describes this message. Load the definitions of its dialect with --definitions FILE.</source>
        <translation>Keine Definition beschreibt diese Nachricht. Laden Sie die Definitionen ihres Dialekts mit --definitions FILE.</translation>
    </message>
    <message>
        <source>No source is open. Start the inspector with a source: corvane-inspector --definitions FILE SOURCE. The option --help lists the kinds of sources.</source>
        <translation>Keine Quelle ist geöffnet. Starten Sie den Inspektor mit einer Quelle: corvane-inspector --definitions FILE SOURCE. Die Option --help nennt die Arten von Quellen.</translation>
    </message>
    <message>
        <source>Waiting for messages from %1.</source>
        <translation>Warten auf Nachrichten von %1.</translation>
    </message>
</context>
<context>
    <name>corvane::MessageTreePanel</name>
    <message>
        <source>&amp;Tree</source>
        <translation>&amp;Baum</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Choose what the tree shows</source>
        <translation>Wählen, was der Baum zeigt</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Nachrichten</translation>
    </message>
    <message>
        <source>Filter of repeated sub-messages</source>
        <translation>Filter wiederholter Teilnachrichten</translation>
    </message>
    <message>
        <source>&amp;Computed Fields</source>
        <translation>Be&amp;rechnete Felder</translation>
    </message>
    <message>
        <source>&amp;Secondary Fields</source>
        <translation>&amp;Nebensächliche Felder</translation>
    </message>
    <message>
        <source>All &amp;Known Message Types</source>
        <translation>Alle be&amp;kannten Nachrichtentypen</translation>
    </message>
    <message>
        <source>&amp;Expand All</source>
        <translation>Alle auf&amp;klappen</translation>
    </message>
    <message>
        <source>C&amp;ollapse All</source>
        <translation>Alle &amp;zuklappen</translation>
    </message>
    <message>
        <source>Show only repeated sub-messages with this name of a value</source>
        <translation>Nur wiederholte Teilnachrichten zeigen, in denen ein Wert diesen Namen hat</translation>
    </message>
    <message>
        <source>Nothing to filter: no message type has repeated sub-messages with named values</source>
        <translation>Nichts zu filtern: Kein Nachrichtentyp hat wiederholte Teilnachrichten mit benannten Werten</translation>
    </message>
</context>
<context>
    <name>corvane::MessageTypeModel</name>
    <message>
        <source>No definition describes this message.</source>
        <translation>Keine Definition beschreibt diese Nachricht.</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Anzahl</translation>
    </message>
</context>
<context>
    <name>corvane::NoticeArea</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>corvane::OpenPanel</name>
    <message>
        <source>File or recording</source>
        <translation>Datei oder Aufzeichnung</translation>
    </message>
    <message>
        <source>Network: connect (TCP)</source>
        <translation>Netzwerk: verbinden (TCP)</translation>
    </message>
    <message>
        <source>Network: wait for a connection (TCP)</source>
        <translation>Netzwerk: auf eine Verbindung warten (TCP)</translation>
    </message>
    <message>
        <source>Network: datagrams (UDP)</source>
        <translation>Netzwerk: Datagramme (UDP)</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Serielle Schnittstelle</translation>
    </message>
    <message>
        <source>Output of a program</source>
        <translation>Ausgabe eines Programms</translation>
    </message>
    <message>
        <source>Open a Source</source>
        <translation>Eine Quelle öffnen</translation>
    </message>
    <message>
        <source>&amp;Recent sources</source>
        <translation>&amp;Zuletzt geöffnete Quellen</translation>
    </message>
    <message>
        <source>Recent sources</source>
        <translation>Zuletzt geöffnete Quellen</translation>
    </message>
    <message>
        <source>This &amp;machine&apos;s own feed</source>
        <translation>&amp;Daten dieses Rechners</translation>
    </message>
    <message>
        <source>Load, memory, network, disks and processes of this machine, live</source>
        <translation>Last, Speicher, Netzwerk, Datenträger und Prozesse dieses Rechners, live</translation>
    </message>
    <message>
        <source>Kind of source</source>
        <translation>Art der Quelle</translation>
    </message>
    <message>
        <source>Address of the source</source>
        <translation>Adresse der Quelle</translation>
    </message>
    <message>
        <source>Definitions</source>
        <translation>Definitionen</translation>
    </message>
    <message>
        <source>Definitions (*.xml *.proto *.desc *.pb);;All files (*)</source>
        <translation>Definitionen (*.xml *.proto *.desc *.pb);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Overlays</source>
        <translation>Overlays</translation>
    </message>
    <message>
        <source>Overlays (*.json);;All files (*)</source>
        <translation>Overlays (*.json);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Framing</source>
        <translation>Rahmung</translation>
    </message>
    <message>
        <source>By itself</source>
        <translation>Selbsttätig</translation>
    </message>
    <message>
        <source>Root message type</source>
        <translation>Wurzel-Nachrichtentyp</translation>
    </message>
    <message>
        <source>Protocol Buffers only: package.Type</source>
        <translation>Nur für Protocol Buffers: paket.Typ</translation>
    </message>
    <message>
        <source>&amp;Source</source>
        <translation>&amp;Quelle</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>&amp;Adresse</translation>
    </message>
    <message>
        <source>&amp;Definitions</source>
        <translation>&amp;Definitionen</translation>
    </message>
    <message>
        <source>O&amp;verlays</source>
        <translation>O&amp;verlays</translation>
    </message>
    <message>
        <source>&amp;Framing</source>
        <translation>&amp;Rahmung</translation>
    </message>
    <message>
        <source>Root &amp;type</source>
        <translation>&amp;Wurzeltyp</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>Durchsuchen …</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>Schnittstellen</translation>
    </message>
    <message>
        <source>Choose the file</source>
        <translation>Die Datei wählen</translation>
    </message>
    <message>
        <source>Choose the port</source>
        <translation>Die Schnittstelle wählen</translation>
    </message>
    <message>
        <source>This machine has no serial port</source>
        <translation>Dieser Rechner hat keine serielle Schnittstelle</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Nothing yet: what you open is listed here.</source>
        <translation>Noch nichts: Was Sie öffnen, steht dann hier.</translation>
    </message>
    <message>
        <source>Name the source: %1.</source>
        <translation>Nennen Sie die Quelle: %1.</translation>
    </message>
    <message>
        <source>Messages cannot be read without their definitions. Add the files that describe them: a MAVLink dialect (.xml), such as common.xml, or Protocol Buffers files (.proto, or a descriptor set .desc).</source>
        <translation>Nachrichten können ohne ihre Definitionen nicht gelesen werden. Fügen Sie die Dateien hinzu, die sie beschreiben: einen MAVLink-Dialekt (.xml) wie common.xml, oder Dateien von Protocol Buffers (.proto, oder eine Deskriptorsammlung .desc).</translation>
    </message>
    <message>
        <source>This starts a program on this machine: %1
Press Open again to start it.</source>
        <translation>Dies startet ein Programm auf diesem Rechner: %1
Drücken Sie noch einmal auf „Öffnen“, um es zu starten.</translation>
    </message>
</context>
<context>
    <name>corvane::PlotLegend</name>
    <message>
        <source>Plotted series</source>
        <translation>Gezeichnete Reihen</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Reihe</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>At cursor</source>
        <translation>Am Zeiger</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Axis</source>
        <translation>Achse</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>The newest value at the cursor&apos;s time</source>
        <translation>Der neueste Wert zur Zeit des Zeigers</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Draw at the Other Axis</source>
        <translation>An der anderen Achse zeichnen</translation>
    </message>
    <message>
        <source>Ctrl+T</source>
        <translation>Ctrl+T</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
</context>
<context>
    <name>corvane::PlotPanel</name>
    <message>
        <source>Path of a field to plot</source>
        <translation>Pfad eines Feldes zum Zeichnen</translation>
    </message>
    <message>
        <source>FORMAT.MESSAGE.FIELD; * stands for any text, FIELD[2] is the third element of a repeated field, FIELD[0..3] are the first four</source>
        <translation>FORMAT.NACHRICHT.FELD; * steht für beliebigen Text, FELD[2] ist das dritte Element eines wiederholten Feldes, FELD[0..3] sind die ersten vier</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Folgen</translation>
    </message>
    <message>
        <source>Follow the newest value (End)</source>
        <translation>Dem neuesten Wert folgen (Ende)</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Näher</translation>
    </message>
    <message>
        <source>Show less time (+)</source>
        <translation>Weniger Zeit zeigen (+)</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Show more time (-)</source>
        <translation>Mehr Zeit zeigen (-)</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>Show all that was recorded (Home)</source>
        <translation>Alles zeigen, was aufgezeichnet wurde (Pos1)</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Fit the value axes to what is shown (V)</source>
        <translation>Die Wertachsen an das Gezeigte anpassen (V)</translation>
    </message>
    <message>
        <source>Axis per Unit</source>
        <translation>Achse je Einheit</translation>
    </message>
    <message>
        <source>Give each unit a value axis of its own</source>
        <translation>Jeder Einheit eine eigene Wertachse geben</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the picture (Ctrl+C)</source>
        <translation>Das Bild kopieren (Strg+C)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save what is shown as PNG, SVG or CSV (Ctrl+S)</source>
        <translation>Was zu sehen ist als PNG, SVG oder CSV speichern (Strg+S)</translation>
    </message>
    <message>
        <source>No numeric field is named &quot;%1&quot;. A path is FORMAT.MESSAGE.FIELD; * stands for any text.</source>
        <translation>Kein Zahlenfeld heißt „%1“. Ein Pfad ist FORMAT.NACHRICHT.FELD; * steht für beliebigen Text.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names more than %2 fields; name fewer.</source>
        <translation>„%1“ bezeichnet mehr als %2 Felder; nennen Sie weniger.</translation>
    </message>
    <message>
        <source>More than %1 series are not plotted.</source>
        <translation>Mehr als %1 Reihen werden nicht gezeichnet.</translation>
    </message>
    <message>
        <source>The picture is in the clipboard.</source>
        <translation>Das Bild ist in der Zwischenablage.</translation>
    </message>
    <message>
        <source>Save the Plot</source>
        <translation>Das Diagramm speichern</translation>
    </message>
    <message>
        <source>Picture (*.png);;Drawing (*.svg);;Shown values (*.csv)</source>
        <translation>Bild (*.png);;Zeichnung (*.svg);;Gezeigte Werte (*.csv)</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Geschrieben: %1</translation>
    </message>
</context>
<context>
    <name>corvane::PlotView</name>
    <message>
        <source>Plot</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>%1 [%2]</source>
        <translation>%1 [%2]</translation>
    </message>
    <message>
        <source>Nothing is plotted yet. Type the path of a numeric field above, such as FORMAT.MESSAGE.FIELD, and press Enter; FIELD[2] is the third element of a repeated field.</source>
        <translation>Noch ist nichts gezeichnet. Geben Sie oben den Pfad eines Zahlenfeldes ein, etwa FORMAT.NACHRICHT.FELD, und drücken Sie die Eingabetaste; FELD[2] ist das dritte Element eines wiederholten Feldes.</translation>
    </message>
    <message>
        <source>No values yet. They appear as soon as messages with the chosen fields arrive.</source>
        <translation>Noch keine Werte. Sie erscheinen, sobald Nachrichten mit den gewählten Feldern kommen.</translation>
    </message>
    <message>
        <source>Following the newest value, %1 s</source>
        <translation>Folgt dem neuesten Wert, %1 s</translation>
    </message>
    <message>
        <source>Standing still, %1 s</source>
        <translation>Steht still, %1 s</translation>
    </message>
    <message>
        <source>Paused, values are kept; %1 s</source>
        <translation>Angehalten, Werte werden behalten; %1 s</translation>
    </message>
    <message>
        <source>; value axes as set by hand</source>
        <translation>; Wertachsen wie von Hand eingestellt</translation>
    </message>
    <message>
        <source>; cursor at %1</source>
        <translation>; Zeiger bei %1</translation>
    </message>
    <message>
        <source>The name of the file must end in .png, .svg or .csv.</source>
        <translation>Der Name der Datei muss auf .png, .svg oder .csv enden.</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2</source>
        <translation>„%1“ kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>corvane::RecordController</name>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>There is nothing to record: no source is open.</source>
        <translation>Es gibt nichts aufzuzeichnen: Keine Quelle ist geöffnet.</translation>
    </message>
    <message>
        <source>Record to a File</source>
        <translation>In eine Datei aufzeichnen</translation>
    </message>
    <message>
        <source>Recorded %1 to &quot;%2&quot;.</source>
        <translation>%1 nach „%2“ aufgezeichnet.</translation>
    </message>
    <message>
        <source>Stop &amp;Recording</source>
        <translation>Aufzeichnung &amp;beenden</translation>
    </message>
    <message>
        <source>&amp;Record…</source>
        <translation>Auf&amp;zeichnen …</translation>
    </message>
    <message>
        <source>End the recording and close its file</source>
        <translation>Die Aufzeichnung beenden und ihre Datei schließen</translation>
    </message>
    <message>
        <source>Write the bytes of the source to a file as they come</source>
        <translation>Die Bytes der Quelle in eine Datei schreiben, wie sie kommen</translation>
    </message>
    <message>
        <source>Recording to &quot;%1&quot;: %2</source>
        <translation>Aufzeichnung nach „%1“: %2</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Beenden</translation>
    </message>
</context>
<context>
    <name>corvane::SenderChooser</name>
    <message>
        <source>Sender whose messages are shown</source>
        <translation>Sender, dessen Nachrichten gezeigt werden</translation>
    </message>
    <message>
        <source>Whose messages the views show. Everything is counted, whoever sends it.</source>
        <translation>Wessen Nachrichten die Ansichten zeigen. Gezählt wird alles, wer es auch sendet.</translation>
    </message>
    <message>
        <source>Only sender %1</source>
        <translation>Nur Sender %1</translation>
    </message>
    <message>
        <source>All %1 senders: the last one wins</source>
        <translation>Alle %1 Sender: Der letzte gilt</translation>
    </message>
</context>
<context>
    <name>corvane::SendersPanel</name>
    <message>
        <source>Here stands each sender with what it has sent and what was lost, once messages with sequence numbers come.</source>
        <translation>Hier steht jeder Sender mit dem, was er gesendet hat und was verloren ging, sobald Nachrichten mit Folgenummern kommen.</translation>
    </message>
    <message>
        <source>Senders</source>
        <translation>Sender</translation>
    </message>
    <message>
        <source>Sender</source>
        <translation>Sender</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Places with losses</source>
        <translation>Stellen mit Verlusten</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Verloren</translation>
    </message>
    <message>
        <source>CRC errors</source>
        <translation>CRC-Fehler</translation>
    </message>
    <message>
        <source>Below a sender: the message types that its damaged frames claim to be of</source>
        <translation>Unter einem Sender: die Nachrichtentypen, die seine beschädigten Rahmen zu sein angeben</translation>
    </message>
    <message>
        <source>Messages missing by their sequence numbers</source>
        <translation>Nach ihren Folgenummern fehlende Nachrichten</translation>
    </message>
    <message>
        <source>Enter or a double click shows the messages of one sender only</source>
        <translation>Die Eingabetaste oder ein Doppelklick zeigt nur die Nachrichten eines Senders</translation>
    </message>
</context>
<context>
    <name>corvane::Session</name>
    <message>
        <source>An MCAP file brings its own definitions. Leave out --definitions and --root.</source>
        <translation>Eine MCAP-Datei bringt ihre Definitionen mit. Lassen Sie --definitions und --root weg.</translation>
    </message>
    <message>
        <source>Definitions of different formats cannot be mixed.</source>
        <translation>Definitionen verschiedener Formate können nicht gemischt werden.</translation>
    </message>
    <message>
        <source>--root and --import-path go with definitions of Protocol Buffers.</source>
        <translation>--root und --import-path gehören zu Definitionen von Protocol Buffers.</translation>
    </message>
    <message>
        <source>--framing %1 does not go with %2; expected one of: %3.</source>
        <translation>--framing %1 passt nicht zu %2; erwartet wird eines von: %3.</translation>
    </message>
    <message>
        <source>Opened %1.</source>
        <translation>%1 geöffnet.</translation>
    </message>
    <message>
        <source>%1 has ended.</source>
        <translation>%1 ist zu Ende.</translation>
    </message>
    <message>
        <source>Cannot record to &quot;%1&quot;: it is the file that is being read. Choose another name.</source>
        <translation>Aufzeichnen nach „%1“ nicht möglich: Es ist die Datei, die gelesen wird. Wählen Sie einen anderen Namen.</translation>
    </message>
</context>
<context>
    <name>corvane::StatisticsPanel</name>
    <message>
        <source>Here stand count, rate, intervals and gaps of each message type, once messages come.</source>
        <translation>Hier stehen Anzahl, Rate, Abstände und Lücken jedes Nachrichtentyps, sobald Nachrichten kommen.</translation>
    </message>
    <message>
        <source>Reception statistics</source>
        <translation>Empfangsstatistik</translation>
    </message>
</context>
<context>
    <name>corvane::StatusFigures</name>
    <message>
        <source>Bytes that have come and wait to be read. A figure that grows says that more comes than can be shown.</source>
        <translation>Bytes, die gekommen sind und darauf warten, gelesen zu werden. Wächst die Zahl, so kommt mehr, als gezeigt werden kann.</translation>
    </message>
    <message>
        <source>The longest time in the last 5 seconds in which the window did not react, because it was busy with messages or drawing</source>
        <translation>Die längste Zeit in den letzten 5 Sekunden, in der das Fenster nicht reagierte, weil es mit Nachrichten oder Zeichnen beschäftigt war</translation>
    </message>
    <message>
        <source>Longest round: %1 ms</source>
        <translation>Längste Runde: %1 ms</translation>
    </message>
    <message>
        <source>Messages: %1 (%2 per second)</source>
        <translation>Nachrichten: %1 (%2 je Sekunde)</translation>
    </message>
    <message>
        <source>, CRC errors: %1</source>
        <translation>, CRC-Fehler: %1</translation>
    </message>
    <message>
        <source>, unknown: %1</source>
        <translation>, unbekannt: %1</translation>
    </message>
    <message>
        <source>, datagrams dropped: %1</source>
        <translation>, verworfene Datagramme: %1</translation>
    </message>
    <message>
        <source>Paused, new: %1; </source>
        <translation>Angehalten, neu: %1; </translation>
    </message>
    <message>
        <source>Backlog: %1</source>
        <translation>Rückstand: %1</translation>
    </message>
</context>
<context>
    <name>corvane::TransportBar</name>
    <message>
        <source>Playback</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Ctrl+Space</source>
        <translation>Ctrl+Space</translation>
    </message>
    <message>
        <source>Next Message</source>
        <translation>Nächste Nachricht</translation>
    </message>
    <message>
        <source>Ctrl+.</source>
        <translation>Ctrl+.</translation>
    </message>
    <message>
        <source>Read on to the next message (Right, %1)</source>
        <translation>Bis zur nächsten Nachricht lesen (Rechts, %1)</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>How fast the recording is played</source>
        <translation>Wie schnell die Aufzeichnung abgespielt wird</translation>
    </message>
    <message>
        <source>%1 x</source>
        <translation>%1 x</translation>
    </message>
    <message>
        <source>No waiting</source>
        <translation>Ohne Warten</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Stelle</translation>
    </message>
    <message>
        <source>The place in the recording</source>
        <translation>Die Stelle in der Aufzeichnung</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Indexing</source>
        <translation>Verzeichnis wird erstellt</translation>
    </message>
    <message>
        <source>How much of the file has been indexed: places behind cannot be reached yet</source>
        <translation>Wie viel der Datei verzeichnet ist: Stellen dahinter sind noch nicht zu erreichen</translation>
    </message>
    <message>
        <source>Indexing: %p %</source>
        <translation>Verzeichnen: %p %</translation>
    </message>
    <message>
        <source>Stop Indexing</source>
        <translation>Verzeichnen beenden</translation>
    </message>
    <message>
        <source>Places that have not been indexed cannot be reached then</source>
        <translation>Stellen, die nicht verzeichnet sind, sind dann nicht zu erreichen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>%1 (Space, %2)</source>
        <translation>%1 (Leertaste, %2)</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>corvane::TreeHistory</name>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Verlauf</translation>
    </message>
    <message>
        <source>A small line of the last 15 seconds of each numeric field</source>
        <translation>Eine kleine Linie der letzten 15 Sekunden jedes Zahlenfeldes</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
</context>
<context>
    <name>corvane::ViewSettings</name>
    <message>
        <source>10 Times a Second</source>
        <translation>10-mal je Sekunde</translation>
    </message>
    <message>
        <source>4 Times a Second</source>
        <translation>4-mal je Sekunde</translation>
    </message>
    <message>
        <source>Once a Second</source>
        <translation>Einmal je Sekunde</translation>
    </message>
    <message>
        <source>Every 5 Seconds</source>
        <translation>Alle 5 Sekunden</translation>
    </message>
    <message>
        <source>Times in &amp;UTC</source>
        <translation>Zeiten in &amp;UTC</translation>
    </message>
    <message>
        <source>Show times in UTC instead of this machine&apos;s time zone</source>
        <translation>Zeiten in UTC statt in der Zeitzone dieses Rechners zeigen</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Larger text in the views</source>
        <translation>Größerer Text in den Ansichten</translation>
    </message>
    <message>
        <source>Ctrl++</source>
        <translation>Ctrl++</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Smaller text in the views</source>
        <translation>Kleinerer Text in den Ansichten</translation>
    </message>
    <message>
        <source>Ctrl+-</source>
        <translation>Ctrl+-</translation>
    </message>
    <message>
        <source>&amp;Normal Size</source>
        <translation>&amp;Normale Größe</translation>
    </message>
    <message>
        <source>Text of the usual size in the views</source>
        <translation>Text der üblichen Größe in den Ansichten</translation>
    </message>
    <message>
        <source>Ctrl+0</source>
        <translation>Ctrl+0</translation>
    </message>
    <message>
        <source>How often counts and statistics are refreshed</source>
        <translation>Wie oft Zähler und Statistik aufgefrischt werden</translation>
    </message>
    <message>
        <source>&amp;Refresh of Counts</source>
        <translation>Zähler auf&amp;frischen</translation>
    </message>
</context>
<context>
    <name>corvane::WatchPanel</name>
    <message>
        <source>Type the path of a field and press Enter, or pick one and press Watch.</source>
        <translation>Geben Sie den Pfad eines Feldes ein und drücken Sie die Eingabetaste, oder wählen Sie eines und drücken Sie auf „Beobachten“.</translation>
    </message>
    <message>
        <source>Path of a field</source>
        <translation>Pfad eines Feldes</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Message type</source>
        <translation>Nachrichtentyp</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Beobachten</translation>
    </message>
    <message>
        <source>Add the chosen fields</source>
        <translation>Die gewählten Felder hinzufügen</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Move the current row up</source>
        <translation>Die aktuelle Zeile nach oben schieben</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Runter</translation>
    </message>
    <message>
        <source>Move the current row down</source>
        <translation>Die aktuelle Zeile nach unten schieben</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Stop watching the current row (Delete)</source>
        <translation>Die aktuelle Zeile nicht mehr beobachten (Entf)</translation>
    </message>
    <message>
        <source>Watched fields</source>
        <translation>Beobachtete Felder</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Stop Watching</source>
        <translation>Nicht mehr beobachten</translation>
    </message>
    <message>
        <source>No field is named &quot;%1&quot;. A path is FORMAT.MESSAGE.FIELD; * stands for any text.</source>
        <translation>Kein Feld heißt „%1“. Ein Pfad ist FORMAT.NACHRICHT.FELD; * steht für beliebigen Text.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names more than %2 fields; name fewer.</source>
        <translation>„%1“ bezeichnet mehr als %2 Felder; nennen Sie weniger.</translation>
    </message>
    <message>
        <source>Not described by the loaded definitions</source>
        <translation>Von den geladenen Definitionen nicht beschrieben</translation>
    </message>
    <message>
        <source>Not received yet</source>
        <translation>Noch nicht empfangen</translation>
    </message>
    <message>
        <source>Timed out</source>
        <translation>Abgelaufen</translation>
    </message>
    <message>
        <source>Absent in the last message</source>
        <translation>In der letzten Nachricht nicht vorhanden</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Aktuell</translation>
    </message>
</context>
<context>
    <name>corvane::Workbench</name>
    <message>
        <source>Corvane Inspector</source>
        <translation>Corvane-Inspektor</translation>
    </message>
    <message>
        <source>End of %1</source>
        <translation>Ende von %1</translation>
    </message>
</context>
</TS>
