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
    <name>corvane::BytesPanel</name>
    <message>
        <source>Bytes of the message</source>
        <translation>Bytes der Nachricht</translation>
    </message>
    <message>
        <source>Arrow keys move, with Shift they select; Ctrl+C copies as hexadecimal; Enter or a double click goes to the field of a byte</source>
        <translation>Pfeiltasten bewegen, mit Umschalt wählen sie aus; Strg+C kopiert hexadezimal; die Eingabetaste oder ein Doppelklick geht zum Feld eines Bytes</translation>
    </message>
    <message>
        <source>Choose a message or a field in the tree to see its bytes.</source>
        <translation>Wählen Sie im Baum eine Nachricht oder ein Feld, um die Bytes zu sehen.</translation>
    </message>
    <message>
        <source>%1: no message of this type has come yet.</source>
        <translation>%1: Von diesem Typ ist noch keine Nachricht gekommen.</translation>
    </message>
    <message>
        <source>%1: this message did not come as bytes.</source>
        <translation>%1: Diese Nachricht kam nicht als Bytes.</translation>
    </message>
    <message>
        <source>%1: %2 bytes.</source>
        <translation>%1: %2 Byte.</translation>
    </message>
    <message>
        <source>Masked (··): all that may be confidential.</source>
        <translation>Verdeckt (··): alles, was vertraulich sein kann.</translation>
    </message>
    <message>
        <source>%1: offset %2, length %3.</source>
        <translation>%1: Position %2, Länge %3.</translation>
    </message>
    <message>
        <source>%1 is computed and has no bytes of its own.</source>
        <translation>%1 wird berechnet und hat keine eigenen Bytes.</translation>
    </message>
    <message>
        <source>Where fields lie in the bytes is not known in this format.</source>
        <translation>In diesem Format ist nicht bekannt, wo in den Bytes die Felder liegen.</translation>
    </message>
    <message>
        <source>%1 has no bytes in this message.</source>
        <translation>%1 hat in dieser Nachricht keine Bytes.</translation>
    </message>
    <message>
        <source>Offset %1 (0x%2)</source>
        <translation>Position %1 (0x%2)</translation>
    </message>
    <message>
        <source>, %1 bytes</source>
        <translation>, %1 Byte</translation>
    </message>
    <message>
        <source>, in %1</source>
        <translation>, in %1</translation>
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
    <name>corvane::CrashTrace</name>
    <message>
        <source>The program has crashed before. What it did last is written in &quot;%1&quot;.</source>
        <translation>Das Programm ist zuvor abgestürzt. Was es zuletzt getan hat, steht in „%1“.</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>&amp;Ordner öffnen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
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
        <source>Entries: %1</source>
        <translation>Einträge: %1</translation>
    </message>
    <message>
        <source>Entries: %1 of %2</source>
        <translation>Einträge: %1 von %2</translation>
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
        <source>C&amp;hoose None</source>
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
    <name>corvane::FindBar</name>
    <message>
        <source>Find a name, a value or a path</source>
        <translation>Namen, Wert oder Pfad suchen</translation>
    </message>
    <message>
        <source>Find in the tree</source>
        <translation>Im Baum suchen</translation>
    </message>
    <message>
        <source>Looks in names, values and, with a dot or a bracket, in paths (&quot;position.lat&quot;, &quot;volt[2]&quot;); Escape closes</source>
        <translation>Sucht in Namen, Werten und, mit Punkt oder Klammer, in Pfaden („position.lat“, „volt[2]“); Esc schließt</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Vorheriger</translation>
    </message>
    <message>
        <source>Go to the previous one (Shift+F3, Shift+Enter)</source>
        <translation>Zum vorherigen Treffer (Umschalt+F3, Umschalt+Eingabe)</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nächster</translation>
    </message>
    <message>
        <source>Go to the next one (F3, Enter)</source>
        <translation>Zum nächsten Treffer (F3, Eingabe)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close and collapse what was expanded (Escape)</source>
        <translation>Schließen und zuklappen, was aufgeklappt wurde (Esc)</translation>
    </message>
    <message>
        <source>from the end again</source>
        <translation>wieder vom Ende an</translation>
    </message>
    <message>
        <source>from the top again</source>
        <translation>wieder von oben</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Suche läuft …</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 gefunden</translation>
    </message>
    <message>
        <source> so far</source>
        <translation> bisher</translation>
    </message>
</context>
<context>
    <name>corvane::FormPanel</name>
    <message>
        <source>Fields of the chosen message type</source>
        <translation>Felder des gewählten Nachrichtentyps</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
</context>
<context>
    <name>corvane::HelpPanel</name>
    <message>
        <source>Open a source</source>
        <translation>Eine Quelle öffnen</translation>
    </message>
    <message>
        <source>A recording, a network address, a serial port or a program, together with the files that describe its messages. Files can be dropped onto the window.</source>
        <translation>Eine Aufzeichnung, eine Netzwerkadresse, eine serielle Schnittstelle oder ein Programm, zusammen mit den Dateien, die die Nachrichten beschreiben. Dateien können auf das Fenster gezogen werden.</translation>
    </message>
    <message>
        <source>Look at messages</source>
        <translation>Nachrichten ansehen</translation>
    </message>
    <message>
        <source>The tree in the middle shows the last message of each type. A row that is chosen there, or in the list of types, fills the form. Choose what the tree shows in the menu Tree.</source>
        <translation>Der Baum in der Mitte zeigt die letzte Nachricht jedes Typs. Eine Zeile, die dort oder in der Liste der Typen gewählt wird, füllt das Formular. Was der Baum zeigt, wählen Sie im Menü „Baum“.</translation>
    </message>
    <message>
        <source>Watch some fields</source>
        <translation>Einige Felder beobachten</translation>
    </message>
    <message>
        <source>Watch and Plot take paths of fields, FORMAT.MESSAGE.FIELD; * stands for any text.</source>
        <translation>Beobachtung und Diagramm nehmen Pfade von Feldern, FORMAT.NACHRICHT.FELD; * steht für beliebigen Text.</translation>
    </message>
    <message>
        <source>See what is lost</source>
        <translation>Sehen, was verloren geht</translation>
    </message>
    <message>
        <source>Statistics, senders and event log tell of rates, gaps, losses and damage of every message, shown or not, also while the views are paused.</source>
        <translation>Statistik, Sender und Ereignisprotokoll sagen Raten, Lücken, Verluste und Schäden jeder Nachricht, gezeigt oder nicht, auch während die Ansichten angehalten sind.</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>Es behalten</translation>
    </message>
    <message>
        <source>Record writes the bytes of the source as they come. Export writes messages or some of their fields as text for other programs.</source>
        <translation>„Aufzeichnen“ schreibt die Bytes der Quelle, wie sie kommen. „Exportieren“ schreibt Nachrichten oder einige ihrer Felder als Text für andere Programme.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Corvane Inspector %1
Framework %1
Qt %2
Protocol Buffers %3</source>
        <translation>Corvane-Inspektor %1
Framework %1
Qt %2
Protocol Buffers %3</translation>
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
        <source>Waiting for messages from %1.</source>
        <translation>Warten auf Nachrichten von %1.</translation>
    </message>
    <message>
        <source>Show or hide the tool bar</source>
        <translation>Die Werkzeugleiste zeigen oder verbergen</translation>
    </message>
    <message>
        <source>Notices</source>
        <translation>Hinweise</translation>
    </message>
    <message>
        <source>Close the window; what it shows is remembered</source>
        <translation>Das Fenster schließen; was es zeigt, wird gemerkt</translation>
    </message>
    <message>
        <source>Show or hide the bar that plays recordings</source>
        <translation>Die Leiste zum Abspielen von Aufzeichnungen zeigen oder verbergen</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>Show or hide the panel &quot;%1&quot;</source>
        <translation>Das Feld „%1“ zeigen oder verbergen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Uses and Keys</source>
        <translation>&amp;Verwendung und Tasten</translation>
    </message>
    <message>
        <source>What the window is for, and all keys</source>
        <translation>Wofür das Fenster da ist, und alle Tasten</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Über</translation>
    </message>
    <message>
        <source>The versions of the program and of what it uses</source>
        <translation>Die Versionen des Programms und dessen, was es verwendet</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>%1 has ended.</source>
        <translation>%1 ist zu Ende.</translation>
    </message>
    <message>
        <source>No source is open. Choose one with &quot;Open…&quot; in the menu &quot;File&quot;.</source>
        <translation>Es ist keine Quelle offen. Wählen Sie eine mit „Öffnen …“ im Menü „Datei“.</translation>
    </message>
    <message>
        <source>%1 No bytes have come.</source>
        <translation>%1 Es sind keine Bytes gekommen.</translation>
    </message>
    <message>
        <source>%1 None of its %2 bytes could be decoded: they are no messages of this format, or in another framing.</source>
        <translation>%1 Keines der %2 Bytes konnte dekodiert werden: Es sind keine Nachrichten dieses Formats, oder sie haben eine andere Rahmung.</translation>
    </message>
    <message>
        <source>%1 %2 bytes have come, but no message of the loaded definitions among them.</source>
        <translation>%1 %2 Bytes sind gekommen, aber darunter keine Nachricht der geladenen Definitionen.</translation>
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
        <translation>&amp;Berechnete Felder</translation>
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
        <translation>Alle &amp;aufklappen</translation>
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
        <source>Show or hide this column</source>
        <translation>Diese Spalte zeigen oder verbergen</translation>
    </message>
    <message>
        <source>Current Ro&amp;w</source>
        <translation>Aktue&amp;lle Zeile</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Suchen …</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Find a row by name, value or path</source>
        <translation>Eine Zeile nach Name, Wert oder Pfad suchen</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>F3</source>
        <translation>F3</translation>
    </message>
    <message>
        <source>Go to the next row that was found</source>
        <translation>Zur nächsten gefundenen Zeile</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>Rü&amp;ckwärts suchen</translation>
    </message>
    <message>
        <source>Shift+F3</source>
        <translation>Shift+F3</translation>
    </message>
    <message>
        <source>Go to the row that was found before</source>
        <translation>Zur vorher gefundenen Zeile</translation>
    </message>
    <message>
        <source>&amp;Units</source>
        <translation>&amp;Einheiten</translation>
    </message>
    <message>
        <source>Show units beside numbers</source>
        <translation>Einheiten neben Zahlen zeigen</translation>
    </message>
    <message>
        <source>He&amp;xadecimal</source>
        <translation>He&amp;xadezimal</translation>
    </message>
    <message>
        <source>Show integers in hexadecimal digits as well</source>
        <translation>Ganze Zahlen auch hexadezimal zeigen</translation>
    </message>
    <message>
        <source>Show fields that are computed from others</source>
        <translation>Felder zeigen, die aus anderen berechnet werden</translation>
    </message>
    <message>
        <source>Show details that few readers want</source>
        <translation>Einzelheiten zeigen, die wenige Leser brauchen</translation>
    </message>
    <message>
        <source>Show types of which no message has come yet as well</source>
        <translation>Auch Typen zeigen, von denen noch keine Nachricht gekommen ist</translation>
    </message>
    <message>
        <source>Ctrl+Right</source>
        <translation>Ctrl+Right</translation>
    </message>
    <message>
        <source>Expand all rows</source>
        <translation>Alle Zeilen aufklappen</translation>
    </message>
    <message>
        <source>Ctrl+Left</source>
        <translation>Ctrl+Left</translation>
    </message>
    <message>
        <source>Collapse all rows</source>
        <translation>Alle Zeilen zuklappen</translation>
    </message>
    <message>
        <source>Nothing to filter: no message type has repeated sub-messages</source>
        <translation>Nichts zu filtern: Kein Nachrichtentyp hat wiederholte Teilnachrichten</translation>
    </message>
    <message>
        <source>No definitions are loaded, so nothing can be shown. Open a source together with the definitions of its messages.</source>
        <translation>Keine Definitionen sind geladen, also kann nichts gezeigt werden. Öffnen Sie eine Quelle zusammen mit den Definitionen ihrer Nachrichten.</translation>
    </message>
    <message>
        <source>No message has come yet. Each message type gets its row with its first message. The menu &quot;Show&quot; lists all %1 known types, messages or not.</source>
        <translation>Noch ist keine Nachricht gekommen. Jeder Nachrichtentyp bekommt seine Zeile mit seiner ersten Nachricht. Das Menü „Zeigen“ führt alle %1 bekannten Typen auf, mit oder ohne Nachrichten.</translation>
    </message>
    <message>
        <source>Choose a row to read about it. A right click offers more.</source>
        <translation>Wählen Sie eine Zeile, um über sie zu lesen. Ein Rechtsklick bietet mehr.</translation>
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
        <translation>Daten die&amp;ses Rechners</translation>
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
        <translation>Adr&amp;esse</translation>
    </message>
    <message>
        <source>&amp;Definitions</source>
        <translation>Def&amp;initionen</translation>
    </message>
    <message>
        <source>Overla&amp;ys</source>
        <translation>O&amp;verlays</translation>
    </message>
    <message>
        <source>Frami&amp;ng</source>
        <translation>&amp;Rahmung</translation>
    </message>
    <message>
        <source>Root ty&amp;pe</source>
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
        <source>Files that describe the messages: MAVLink dialects, .proto files or descriptor sets</source>
        <translation>Dateien, die die Nachrichten beschreiben: MAVLink-Dialekte, .proto-Dateien oder Deskriptorsätze</translation>
    </message>
    <message>
        <source>Files that add roles, units or computed fields to the definitions</source>
        <translation>Dateien, die den Definitionen Rollen, Einheiten oder berechnete Felder hinzufügen</translation>
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
        <source>This starts a program on this machine: %1
Press Open again to start it.</source>
        <translation>Dies startet ein Programm auf diesem Rechner: %1
Drücken Sie noch einmal auf „Öffnen“, um es zu starten.</translation>
    </message>
    <message>
        <source>The messages of %1 cannot be read without their definitions. Add the files that describe them: for MAVLink a dialect (.xml), such as common.xml, with the files that it includes beside it; for Protocol Buffers the .proto files, or a descriptor set (.desc, .pb), and the root type.</source>
        <translation>Die Nachrichten von %1 können ohne ihre Definitionen nicht gelesen werden. Fügen Sie die Dateien hinzu, die sie beschreiben: für MAVLink einen Dialekt (.xml) wie common.xml, mit den eingebundenen Dateien daneben; für Protocol Buffers die .proto-Dateien oder eine Deskriptorsammlung (.desc, .pb), und den Wurzeltyp.</translation>
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
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Show less time (+)</source>
        <translation>Weniger Zeit zeigen (+)</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Verkleinern</translation>
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
        <translation>Auf&amp;zeichnung beenden</translation>
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
    <name>corvane::RowActions</name>
    <message>
        <source>&amp;Copy Value</source>
        <translation>&amp;Wert kopieren</translation>
    </message>
    <message>
        <source>Copy the value as it is shown</source>
        <translation>Den Wert kopieren, wie er gezeigt wird</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>&amp;Pfad kopieren</translation>
    </message>
    <message>
        <source>Copy the path by which the watch list, the plot and exports know the row</source>
        <translation>Den Pfad kopieren, unter dem Beobachtung, Diagramm und Export die Zeile kennen</translation>
    </message>
    <message>
        <source>Copy &amp;Row</source>
        <translation>&amp;Zeile kopieren</translation>
    </message>
    <message>
        <source>Copy the texts of all columns, with tabs between</source>
        <translation>Die Texte aller Spalten kopieren, durch Tabulatoren getrennt</translation>
    </message>
    <message>
        <source>Copy Message as &amp;JSON</source>
        <translation>Nachricht als &amp;JSON kopieren</translation>
    </message>
    <message>
        <source>Copy the whole message that is shown, as in an export</source>
        <translation>Die ganze gezeigte Nachricht kopieren, wie in einem Export</translation>
    </message>
    <message>
        <source>Add to &amp;Watch</source>
        <translation>&amp;Beobachten</translation>
    </message>
    <message>
        <source>Show the field in the list of watched fields</source>
        <translation>Das Feld in der Liste der beobachteten Felder zeigen</translation>
    </message>
    <message>
        <source>P&amp;lot</source>
        <translation>Im &amp;Diagramm zeichnen</translation>
    </message>
    <message>
        <source>Draw the field over time</source>
        <translation>Das Feld über die Zeit zeichnen</translation>
    </message>
    <message>
        <source>Show &amp;Form</source>
        <translation>&amp;Formular zeigen</translation>
    </message>
    <message>
        <source>Show the message type as a form</source>
        <translation>Den Nachrichtentyp als Formular zeigen</translation>
    </message>
    <message>
        <source>Show &amp;Bytes</source>
        <translation>B&amp;ytes zeigen</translation>
    </message>
    <message>
        <source>Show the bytes of the message, with those of the field marked</source>
        <translation>Die Bytes der Nachricht zeigen, die des Feldes markiert</translation>
    </message>
    <message>
        <source>Filter by &amp;This Value</source>
        <translation>&amp;Nach diesem Wert filtern</translation>
    </message>
    <message>
        <source>Show only elements of lists that hold this value</source>
        <translation>Nur Listenelemente zeigen, die diesen Wert enthalten</translation>
    </message>
    <message>
        <source>E&amp;xpand Below</source>
        <translation>Darunter auf&amp;klappen</translation>
    </message>
    <message>
        <source>Expand the row and all below</source>
        <translation>Die Zeile und alles darunter aufklappen</translation>
    </message>
    <message>
        <source>C&amp;ollapse Below</source>
        <translation>Darunter z&amp;uklappen</translation>
    </message>
    <message>
        <source>Collapse the row and all below</source>
        <translation>Die Zeile und alles darunter zuklappen</translation>
    </message>
    <message>
        <source>No row is chosen</source>
        <translation>Keine Zeile ist gewählt</translation>
    </message>
    <message>
        <source>This row stands for no field</source>
        <translation>Diese Zeile steht für kein Feld</translation>
    </message>
    <message>
        <source>This row has no value of its own</source>
        <translation>Diese Zeile hat keinen eigenen Wert</translation>
    </message>
    <message>
        <source>No message of this type has come yet</source>
        <translation>Von diesem Typ ist noch keine Nachricht gekommen</translation>
    </message>
    <message>
        <source>A message type cannot be watched; choose a field</source>
        <translation>Ein Nachrichtentyp kann nicht beobachtet werden; wählen Sie ein Feld</translation>
    </message>
    <message>
        <source>Fields inside sub-messages cannot be watched</source>
        <translation>Felder innerhalb von Teilnachrichten können nicht beobachtet werden</translation>
    </message>
    <message>
        <source>This build has no plot</source>
        <translation>Diese Fassung hat kein Diagramm</translation>
    </message>
    <message>
        <source>A message type cannot be plotted; choose a numeric field</source>
        <translation>Ein Nachrichtentyp kann nicht gezeichnet werden; wählen Sie ein Zahlenfeld</translation>
    </message>
    <message>
        <source>Only numeric fields can be plotted; this one is of type %1</source>
        <translation>Nur Zahlenfelder können gezeichnet werden; dieses ist vom Typ %1</translation>
    </message>
    <message>
        <source>What this field holds is confidential</source>
        <translation>Was dieses Feld enthält, ist vertraulich</translation>
    </message>
    <message>
        <source>Only values inside the elements of a list of sub-messages can be filtered by</source>
        <translation>Gefiltert werden kann nur nach Werten innerhalb der Elemente einer Liste von Teilnachrichten</translation>
    </message>
    <message>
        <source>There is no value</source>
        <translation>Es gibt keinen Wert</translation>
    </message>
    <message>
        <source>There is nothing below this row</source>
        <translation>Unter dieser Zeile gibt es nichts</translation>
    </message>
</context>
<context>
    <name>corvane::RowDescription</name>
    <message>
        <source>list of %1</source>
        <translation>Liste von %1</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>Empty in the newest message.</source>
        <translation>In der neuesten Nachricht leer.</translation>
    </message>
    <message>
        <source>Absent: what it is computed from is not in the newest message.</source>
        <translation>Nicht vorhanden: Woraus es berechnet wird, ist nicht in der neuesten Nachricht.</translation>
    </message>
    <message>
        <source>Absent: the newest message has another case of &quot;%1&quot;, or none.</source>
        <translation>Nicht vorhanden: Die neueste Nachricht hat einen anderen Fall von „%1“ oder keinen.</translation>
    </message>
    <message>
        <source>Absent: the newest message came without this field.</source>
        <translation>Nicht vorhanden: Die neueste Nachricht kam ohne dieses Feld.</translation>
    </message>
    <message>
        <source>Cut: only the beginning of %1 bytes is shown.</source>
        <translation>Gekürzt: Nur der Anfang von %1 Byte wird gezeigt.</translation>
    </message>
    <message>
        <source>Cut: only the beginning of %1 characters is shown.</source>
        <translation>Gekürzt: Nur der Anfang von %1 Zeichen wird gezeigt.</translation>
    </message>
    <message>
        <source>%1 of %2 elements do not pass the filter.</source>
        <translation>%1 von %2 Elementen entsprechen dem Filter nicht.</translation>
    </message>
    <message>
        <source>No message of this type has come yet.</source>
        <translation>Von diesem Typ ist noch keine Nachricht gekommen.</translation>
    </message>
    <message>
        <source>Hidden: what it holds is confidential.</source>
        <translation>Verborgen: Der Inhalt ist vertraulich.</translation>
    </message>
    <message>
        <source>Absent: the newest message came without the sub-message around it.</source>
        <translation>Nicht vorhanden: Die neueste Nachricht kam ohne die umgebende Teilnachricht.</translation>
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
    <message>
        <source>There is not enough memory to read the definitions.</source>
        <translation>Der Speicher reicht nicht, um die Definitionen zu lesen.</translation>
    </message>
</context>
<context>
    <name>corvane::SettingsFile</name>
    <message>
        <source>it is no settings file</source>
        <translation>sie ist keine Einstellungsdatei</translation>
    </message>
    <message>
        <source>the value of &quot;%1&quot; is none that this program writes</source>
        <translation>der Wert von „%1“ ist keiner, den dieses Programm schreibt</translation>
    </message>
    <message>
        <source>The settings file could not be used: %1. Everything starts with its defaults; the old file is kept as &quot;%2&quot;.</source>
        <translation>Die Einstellungsdatei konnte nicht verwendet werden: %1. Alles beginnt mit den Voreinstellungen; die alte Datei wird als „%2“ aufgehoben.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; could not be used: %2. Everything starts with its defaults, and nothing will be remembered.</source>
        <translation>Die Einstellungsdatei „%1“ konnte nicht verwendet werden: %2. Alles beginnt mit den Voreinstellungen, und nichts wird gemerkt.</translation>
    </message>
    <message>
        <source>it cannot be read (%1)</source>
        <translation>sie kann nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>sie ist zu groß</translation>
    </message>
    <message>
        <source>it is no text</source>
        <translation>sie ist kein Text</translation>
    </message>
    <message>
        <source>it holds what this program does not write</source>
        <translation>sie enthält, was dieses Programm nicht schreibt</translation>
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
        <source>Backlog: %1</source>
        <translation>Rückstand: %1</translation>
    </message>
    <message>
        <source>The views stand still. Everything is counted all the same.</source>
        <translation>Die Ansichten stehen still. Gezählt wird dennoch alles.</translation>
    </message>
    <message>
        <source>Paused for %1 s, new messages: %2</source>
        <translation>Angehalten seit %1 s, neue Nachrichten: %2</translation>
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
