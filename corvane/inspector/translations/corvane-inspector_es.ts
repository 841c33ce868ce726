<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>PlotSeries</name>
    <message>
        <source>Not described by the loaded definitions, or not a number</source>
        <translation>No descrito por las definiciones cargadas, o no es un número</translation>
    </message>
    <message>
        <source>Confidential, not shown</source>
        <translation>Confidencial, no se muestra</translation>
    </message>
    <message>
        <source>Not received yet</source>
        <translation>Aún no recibido</translation>
    </message>
    <message>
        <source>Absent in the last message</source>
        <translation>Ausente en el último mensaje</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Recibido</translation>
    </message>
    <message>
        <source>No finite number</source>
        <translation>No es un número finito</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguna</translation>
    </message>
</context>
<context>
    <name>corvane::BytesPanel</name>
    <message>
        <source>Bytes of the message</source>
        <translation>Bytes del mensaje</translation>
    </message>
    <message>
        <source>Arrow keys move, with Shift they select; Ctrl+C copies as hexadecimal; Enter or a double click goes to the field of a byte</source>
        <translation>Las flechas mueven, con Mayús seleccionan; Ctrl+C copia en hexadecimal; Intro o un doble clic va al campo de un byte</translation>
    </message>
    <message>
        <source>Choose a message or a field in the tree to see its bytes.</source>
        <translation>Elija en el árbol un mensaje o un campo para ver sus bytes.</translation>
    </message>
    <message>
        <source>%1: no message of this type has come yet.</source>
        <translation>%1: aún no ha llegado ningún mensaje de este tipo.</translation>
    </message>
    <message>
        <source>%1: this message did not come as bytes.</source>
        <translation>%1: este mensaje no llegó en forma de bytes.</translation>
    </message>
    <message>
        <source>%1: %2 bytes.</source>
        <translation>%1: %2 bytes.</translation>
    </message>
    <message>
        <source>Masked (··): all that may be confidential.</source>
        <translation>Oculto (··): todo lo que puede ser confidencial.</translation>
    </message>
    <message>
        <source>%1: offset %2, length %3.</source>
        <translation>%1: posición %2, longitud %3.</translation>
    </message>
    <message>
        <source>%1 is computed and has no bytes of its own.</source>
        <translation>%1 se calcula y no tiene bytes propios.</translation>
    </message>
    <message>
        <source>Where fields lie in the bytes is not known in this format.</source>
        <translation>En este formato no se sabe en qué bytes están los campos.</translation>
    </message>
    <message>
        <source>%1 has no bytes in this message.</source>
        <translation>%1 no tiene bytes en este mensaje.</translation>
    </message>
    <message>
        <source>Offset %1 (0x%2)</source>
        <translation>Posición %1 (0x%2)</translation>
    </message>
    <message>
        <source>, %1 bytes</source>
        <translation>, %1 bytes</translation>
    </message>
    <message>
        <source>, in %1</source>
        <translation>, en %1</translation>
    </message>
</context>
<context>
    <name>corvane::ConfidentialSwitch</name>
    <message>
        <source>Show &amp;Confidential Fields</source>
        <translation>Mostrar campos &amp;confidenciales</translation>
    </message>
    <message>
        <source>Show the content of fields that are marked as confidential</source>
        <translation>Mostrar el contenido de los campos marcados como confidenciales</translation>
    </message>
    <message>
        <source>Confidential fields become readable in all views, and in what is exported or copied from now on, until this window is closed.</source>
        <translation>Los campos confidenciales se podrán leer en todas las vistas, y en lo que se exporte o copie desde ahora, hasta que se cierre esta ventana.</translation>
    </message>
    <message>
        <source>&amp;Show Them</source>
        <translation>&amp;Mostrarlos</translation>
    </message>
    <message>
        <source>Keep Them Hidden</source>
        <translation>Mantenerlos ocultos</translation>
    </message>
</context>
<context>
    <name>corvane::CrashTrace</name>
    <message>
        <source>The program has crashed before. What it did last is written in &quot;%1&quot;.</source>
        <translation>El programa se cerró antes de forma inesperada. Lo último que hizo está escrito en «%1».</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>Abrir la &amp;carpeta</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
</context>
<context>
    <name>corvane::EventLogPanel</name>
    <message>
        <source>Show only events that contain…</source>
        <translation>Solo eventos que contengan…</translation>
    </message>
    <message>
        <source>Filter of the event log</source>
        <translation>Filtro del registro de eventos</translation>
    </message>
    <message>
        <source>To the end</source>
        <translation>Al final</translation>
    </message>
    <message>
        <source>Scroll to the latest event and follow the log again</source>
        <translation>Ir al último evento y volver a seguir el registro</translation>
    </message>
    <message>
        <source>Event log</source>
        <translation>Registro de eventos</translation>
    </message>
    <message>
        <source>No events: nothing was damaged, lost or unknown</source>
        <translation>Ningún evento: nada se dañó, se perdió ni era desconocido</translation>
    </message>
    <message>
        <source>Entries: %1</source>
        <translation>Entradas: %1</translation>
    </message>
    <message>
        <source>Entries: %1 of %2</source>
        <translation>Entradas: %1 de %2</translation>
    </message>
    <message>
        <source>, not following</source>
        <translation>, sin seguir</translation>
    </message>
</context>
<context>
    <name>corvane::ExportBar</name>
    <message>
        <source>Progress of the export</source>
        <translation>Progreso de la exportación</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>corvane::ExportController</name>
    <message>
        <source>CSV (*.csv);;All files (*)</source>
        <translation>CSV (*.csv);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>&amp;Export Messages...</source>
        <translation>&amp;Exportar mensajes…</translation>
    </message>
    <message>
        <source>Write messages or some of their fields as CSV or JSON lines</source>
        <translation>Escribir mensajes o algunos de sus campos como CSV o líneas JSON</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>Export &amp;Statistics...</source>
        <translation>Exportar es&amp;tadísticas…</translation>
    </message>
    <message>
        <source>Write the counts of all message types as CSV</source>
        <translation>Escribir los recuentos de todos los tipos de mensaje como CSV</translation>
    </message>
    <message>
        <source>Export Event &amp;Log...</source>
        <translation>Exportar el &amp;registro de eventos…</translation>
    </message>
    <message>
        <source>Write the event log as CSV</source>
        <translation>Escribir el registro de eventos como CSV</translation>
    </message>
    <message>
        <source>All of &quot;%1&quot; will be exported, from its start.</source>
        <translation>Se exportará todo «%1», desde su comienzo.</translation>
    </message>
    <message>
        <source>What %1 sends will be exported from now on, until you stop it.</source>
        <translation>Lo que envíe %1 se exportará desde ahora, hasta que lo detenga.</translation>
    </message>
    <message>
        <source>There is nothing to export: no source is open.</source>
        <translation>No hay nada que exportar: ninguna fuente está abierta.</translation>
    </message>
    <message>
        <source>Export Statistics</source>
        <translation>Exportar estadísticas</translation>
    </message>
    <message>
        <source>Export Event Log</source>
        <translation>Exportar el registro de eventos</translation>
    </message>
    <message>
        <source>Exporting to &quot;%1&quot;: %2 messages</source>
        <translation>Exportando a «%1»: %2 mensajes</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>%1 messages exported to &quot;%2&quot;.</source>
        <translation>%1 mensajes exportados a «%2».</translation>
    </message>
    <message>
        <source>The export ended after %1 messages: %2.</source>
        <translation>La exportación terminó tras %1 mensajes: %2.</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;.</source>
        <translation>Exportado a «%1».</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation>No se puede escribir «%1»: %2.</translation>
    </message>
</context>
<context>
    <name>corvane::ExportDialog</name>
    <message>
        <source>&amp;Names in place of numbers, where values have names</source>
        <translation>&amp;Nombres en vez de números, donde los valores los tengan</translation>
    </message>
    <message>
        <source>Export Messages</source>
        <translation>Exportar mensajes</translation>
    </message>
    <message>
        <source>Messages and fields</source>
        <translation>Mensajes y campos</translation>
    </message>
    <message>
        <source>Message or field</source>
        <translation>Mensaje o campo</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Recibido</translation>
    </message>
    <message>
        <source>CSV: a table</source>
        <translation>CSV: una tabla</translation>
    </message>
    <message>
        <source>JSON lines: an object for each message</source>
        <translation>Líneas JSON: un objeto por mensaje</translation>
    </message>
    <message>
        <source>Find messages and fields</source>
        <translation>Buscar mensajes y campos</translation>
    </message>
    <message>
        <source>F&amp;orm:</source>
        <translation>F&amp;orma:</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>&amp;Archivo:</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportar</translation>
    </message>
    <message>
        <source>Choose &amp;All</source>
        <translation>Elegir &amp;todo</translation>
    </message>
    <message>
        <source>C&amp;hoose None</source>
        <translation>No ele&amp;gir nada</translation>
    </message>
    <message>
        <source>Of what the list shows</source>
        <translation>De lo que muestra la lista</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation>E&amp;legir…</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>CSV (*.csv);;JSON lines (*.jsonl);;All files (*)</source>
        <translation>CSV (*.csv);;Líneas JSON (*.jsonl);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Choose messages or fields to export.</source>
        <translation>Elija mensajes o campos para exportar.</translation>
    </message>
    <message>
        <source>Choose the file to write.</source>
        <translation>Elija el archivo en que se escribirá.</translation>
    </message>
    <message>
        <source>The file exists and will be replaced.</source>
        <translation>El archivo existe y se reemplazará.</translation>
    </message>
</context>
<context>
    <name>corvane::ExportJob</name>
    <message>
        <source>cannot write &quot;%1&quot;: it is the source</source>
        <translation>no se puede escribir «%1»: es la fuente</translation>
    </message>
</context>
<context>
    <name>corvane::ExportWriter</name>
    <message>
        <source>cannot write &quot;%1&quot;: %2</source>
        <translation>no se puede escribir «%1»: %2</translation>
    </message>
    <message>
        <source>cannot write to standard output: %1</source>
        <translation>no se puede escribir en la salida estándar: %1</translation>
    </message>
</context>
<context>
    <name>corvane::FileList</name>
    <message>
        <source>Add…</source>
        <translation>Añadir…</translation>
    </message>
    <message>
        <source>Add to: %1</source>
        <translation>Añadir a: %1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Remove from: %1</source>
        <translation>Quitar de: %1</translation>
    </message>
</context>
<context>
    <name>corvane::FindBar</name>
    <message>
        <source>Find a name, a value or a path</source>
        <translation>Buscar un nombre, un valor o una ruta</translation>
    </message>
    <message>
        <source>Find in the tree</source>
        <translation>Buscar en el árbol</translation>
    </message>
    <message>
        <source>Looks in names, values and, with a dot or a bracket, in paths (&quot;position.lat&quot;, &quot;volt[2]&quot;); Escape closes</source>
        <translation>Busca en nombres, valores y, con un punto o un corchete, en rutas («position.lat», «volt[2]»); Esc cierra</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Go to the previous one (Shift+F3, Shift+Enter)</source>
        <translation>Ir al anterior (Mayús+F3, Mayús+Intro)</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Go to the next one (F3, Enter)</source>
        <translation>Ir al siguiente (F3, Intro)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Close and collapse what was expanded (Escape)</source>
        <translation>Cerrar y plegar lo que se desplegó (Esc)</translation>
    </message>
    <message>
        <source>from the end again</source>
        <translation>de nuevo desde el final</translation>
    </message>
    <message>
        <source>from the top again</source>
        <translation>de nuevo desde el principio</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Buscando…</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nada encontrado</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>Encontrados: %1</translation>
    </message>
    <message>
        <source> so far</source>
        <translation> hasta ahora</translation>
    </message>
</context>
<context>
    <name>corvane::FormPanel</name>
    <message>
        <source>Fields of the chosen message type</source>
        <translation>Campos del tipo de mensaje elegido</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formulario</translation>
    </message>
</context>
<context>
    <name>corvane::HelpPanel</name>
    <message>
        <source>Open a source</source>
        <translation>Abrir una fuente</translation>
    </message>
    <message>
        <source>A recording, a network address, a serial port or a program, together with the files that describe its messages. Files can be dropped onto the window.</source>
        <translation>Una grabación, una dirección de red, un puerto serie o un programa, junto con los archivos que describen sus mensajes. Se pueden soltar archivos sobre la ventana.</translation>
    </message>
    <message>
        <source>Look at messages</source>
        <translation>Mirar los mensajes</translation>
    </message>
    <message>
        <source>The tree in the middle shows the last message of each type. A row that is chosen there, or in the list of types, fills the form. Choose what the tree shows in the menu Tree.</source>
        <translation>El árbol del centro muestra el último mensaje de cada tipo. Una fila elegida ahí, o en la lista de tipos, llena el formulario. Elija en el menú Árbol lo que muestra el árbol.</translation>
    </message>
    <message>
        <source>Watch some fields</source>
        <translation>Vigilar algunos campos</translation>
    </message>
    <message>
        <source>Watch and Plot take paths of fields, FORMAT.MESSAGE.FIELD; * stands for any text.</source>
        <translation>Vigilar y Gráfica toman rutas de campos, FORMATO.MENSAJE.CAMPO; * vale por cualquier texto.</translation>
    </message>
    <message>
        <source>See what is lost</source>
        <translation>Ver lo que se pierde</translation>
    </message>
    <message>
        <source>Statistics, senders and event log tell of rates, gaps, losses and damage of every message, shown or not, also while the views are paused.</source>
        <translation>Estadísticas, emisores y registro de eventos dan las frecuencias, huecos, pérdidas y daños de cada mensaje, mostrado o no, también con las vistas en pausa.</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>Conservarlo</translation>
    </message>
    <message>
        <source>Record writes the bytes of the source as they come. Export writes messages or some of their fields as text for other programs.</source>
        <translation>Grabar escribe los bytes de la fuente según llegan. Exportar escribe mensajes o algunos de sus campos como texto para otros programas.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Corvane Inspector %1
Framework %1
Qt %2
Protocol Buffers %3</source>
        <translation>Inspector Corvane %1
Framework %1
Qt %2
Protocol Buffers %3</translation>
    </message>
</context>
<context>
    <name>corvane::MainWindow</name>
    <message>
        <source>Message types</source>
        <translation>Tipos de mensaje</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message>
        <source>Choose another source, or other definitions</source>
        <translation>Elegir otra fuente u otras definiciones</translation>
    </message>
    <message>
        <source>&amp;Pause the Views</source>
        <translation>&amp;Pausar las vistas</translation>
    </message>
    <message>
        <source>Ctrl+P</source>
        <translation>Ctrl+P</translation>
    </message>
    <message>
        <source>Leave the views as they are; everything is counted all the same</source>
        <translation>Dejar las vistas como están; se cuenta todo igualmente</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formulario</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Vigilar</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Estadísticas</translation>
    </message>
    <message>
        <source>Event log</source>
        <translation>Registro de eventos</translation>
    </message>
    <message>
        <source>Senders</source>
        <translation>Emisores</translation>
    </message>
    <message>
        <source>Plot (not in this build)</source>
        <translation>Gráfica (no en esta versión)</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>Gráfica</translation>
    </message>
    <message>
        <source>No definition describes this message. Load the definitions of its dialect with --definitions FILE.</source>
        <translation>Ninguna definición describe este mensaje. Cargue las definiciones de su dialecto con --definitions FILE.</translation>
    </message>
    <message>
        <source>Waiting for messages from %1.</source>
        <translation>Esperando mensajes de %1.</translation>
    </message>
    <message>
        <source>Show or hide the tool bar</source>
        <translation>Mostrar u ocultar la barra de herramientas</translation>
    </message>
    <message>
        <source>Notices</source>
        <translation>Avisos</translation>
    </message>
    <message>
        <source>Close the window; what it shows is remembered</source>
        <translation>Cerrar la ventana; lo que muestra se recuerda</translation>
    </message>
    <message>
        <source>Show or hide the bar that plays recordings</source>
        <translation>Mostrar u ocultar la barra que reproduce grabaciones</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>Show or hide the panel &quot;%1&quot;</source>
        <translation>Mostrar u ocultar el panel «%1»</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Uses and Keys</source>
        <translation>&amp;Usos y teclas</translation>
    </message>
    <message>
        <source>What the window is for, and all keys</source>
        <translation>Para qué sirve la ventana, y todas las teclas</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Acerca de</translation>
    </message>
    <message>
        <source>The versions of the program and of what it uses</source>
        <translation>Las versiones del programa y de lo que usa</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>%1 has ended.</source>
        <translation>%1 ha terminado.</translation>
    </message>
    <message>
        <source>No source is open. Choose one with &quot;Open…&quot; in the menu &quot;File&quot;.</source>
        <translation>No hay ninguna fuente abierta. Elija una con «Abrir…» en el menú «Archivo».</translation>
    </message>
    <message>
        <source>%1 No bytes have come.</source>
        <translation>%1 No ha llegado ningún byte.</translation>
    </message>
    <message>
        <source>%1 None of its %2 bytes could be decoded: they are no messages of this format, or in another framing.</source>
        <translation>%1 No se pudo decodificar ninguno de sus %2 bytes: no son mensajes de este formato, o tienen otro encuadre.</translation>
    </message>
    <message>
        <source>%1 %2 bytes have come, but no message of the loaded definitions among them.</source>
        <translation>%1 Han llegado %2 bytes, pero entre ellos ningún mensaje de las definiciones cargadas.</translation>
    </message>
</context>
<context>
    <name>corvane::MessageTreePanel</name>
    <message>
        <source>&amp;Tree</source>
        <translation>Á&amp;rbol</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Choose what the tree shows</source>
        <translation>Elegir qué muestra el árbol</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Mensajes</translation>
    </message>
    <message>
        <source>Filter of repeated sub-messages</source>
        <translation>Filtro de submensajes repetidos</translation>
    </message>
    <message>
        <source>&amp;Computed Fields</source>
        <translation>Campos &amp;calculados</translation>
    </message>
    <message>
        <source>&amp;Secondary Fields</source>
        <translation>Campos s&amp;ecundarios</translation>
    </message>
    <message>
        <source>All &amp;Known Message Types</source>
        <translation>Todos los tipos de mensaje c&amp;onocidos</translation>
    </message>
    <message>
        <source>&amp;Expand All</source>
        <translation>&amp;Desplegar todo</translation>
    </message>
    <message>
        <source>C&amp;ollapse All</source>
        <translation>&amp;Plegar todo</translation>
    </message>
    <message>
        <source>Show only repeated sub-messages with this name of a value</source>
        <translation>Mostrar solo los submensajes repetidos en que un valor tiene este nombre</translation>
    </message>
    <message>
        <source>Show or hide this column</source>
        <translation>Mostrar u ocultar esta columna</translation>
    </message>
    <message>
        <source>Current Ro&amp;w</source>
        <translation>Fila &amp;actual</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Buscar…</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Find a row by name, value or path</source>
        <translation>Buscar una fila por nombre, valor o ruta</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Buscar &amp;siguiente</translation>
    </message>
    <message>
        <source>F3</source>
        <translation>F3</translation>
    </message>
    <message>
        <source>Go to the next row that was found</source>
        <translation>Ir a la siguiente fila encontrada</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>Buscar a&amp;nterior</translation>
    </message>
    <message>
        <source>Shift+F3</source>
        <translation>Shift+F3</translation>
    </message>
    <message>
        <source>Go to the row that was found before</source>
        <translation>Ir a la fila encontrada antes</translation>
    </message>
    <message>
        <source>&amp;Units</source>
        <translation>&amp;Unidades</translation>
    </message>
    <message>
        <source>Show units beside numbers</source>
        <translation>Mostrar unidades junto a los números</translation>
    </message>
    <message>
        <source>He&amp;xadecimal</source>
        <translation>He&amp;xadecimal</translation>
    </message>
    <message>
        <source>Show integers in hexadecimal digits as well</source>
        <translation>Mostrar también los enteros en cifras hexadecimales</translation>
    </message>
    <message>
        <source>Show fields that are computed from others</source>
        <translation>Mostrar los campos que se calculan a partir de otros</translation>
    </message>
    <message>
        <source>Show details that few readers want</source>
        <translation>Mostrar detalles que pocos lectores quieren</translation>
    </message>
    <message>
        <source>Show types of which no message has come yet as well</source>
        <translation>Mostrar también los tipos de los que aún no ha llegado ningún mensaje</translation>
    </message>
    <message>
        <source>Ctrl+Right</source>
        <translation>Ctrl+Right</translation>
    </message>
    <message>
        <source>Expand all rows</source>
        <translation>Desplegar todas las filas</translation>
    </message>
    <message>
        <source>Ctrl+Left</source>
        <translation>Ctrl+Left</translation>
    </message>
    <message>
        <source>Collapse all rows</source>
        <translation>Plegar todas las filas</translation>
    </message>
    <message>
        <source>Nothing to filter: no message type has repeated sub-messages</source>
        <translation>Nada que filtrar: ningún tipo de mensaje tiene submensajes repetidos</translation>
    </message>
    <message>
        <source>No definitions are loaded, so nothing can be shown. Open a source together with the definitions of its messages.</source>
        <translation>No hay definiciones cargadas, así que no se puede mostrar nada. Abra una fuente junto con las definiciones de sus mensajes.</translation>
    </message>
    <message>
        <source>No message has come yet. Each message type gets its row with its first message. The menu &quot;Show&quot; lists all %1 known types, messages or not.</source>
        <translation>Aún no ha llegado ningún mensaje. Cada tipo de mensaje recibe su fila con su primer mensaje. El menú «Mostrar» enumera los %1 tipos conocidos, con mensajes o sin ellos.</translation>
    </message>
    <message>
        <source>Choose a row to read about it. A right click offers more.</source>
        <translation>Elija una fila para leer sobre ella. El clic derecho ofrece más.</translation>
    </message>
</context>
<context>
    <name>corvane::MessageTypeModel</name>
    <message>
        <source>No definition describes this message.</source>
        <translation>Ninguna definición describe este mensaje.</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Cantidad</translation>
    </message>
</context>
<context>
    <name>corvane::NoticeArea</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>corvane::OpenPanel</name>
    <message>
        <source>File or recording</source>
        <translation>Archivo o grabación</translation>
    </message>
    <message>
        <source>Network: connect (TCP)</source>
        <translation>Red: conectar (TCP)</translation>
    </message>
    <message>
        <source>Network: wait for a connection (TCP)</source>
        <translation>Red: esperar una conexión (TCP)</translation>
    </message>
    <message>
        <source>Network: datagrams (UDP)</source>
        <translation>Red: datagramas (UDP)</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Puerto serie</translation>
    </message>
    <message>
        <source>Output of a program</source>
        <translation>Salida de un programa</translation>
    </message>
    <message>
        <source>Open a Source</source>
        <translation>Abrir una fuente</translation>
    </message>
    <message>
        <source>&amp;Recent sources</source>
        <translation>Fuentes rec&amp;ientes</translation>
    </message>
    <message>
        <source>Recent sources</source>
        <translation>Fuentes recientes</translation>
    </message>
    <message>
        <source>This &amp;machine&apos;s own feed</source>
        <translation>Los datos de esta &amp;máquina</translation>
    </message>
    <message>
        <source>Load, memory, network, disks and processes of this machine, live</source>
        <translation>Carga, memoria, red, discos y procesos de esta máquina, en directo</translation>
    </message>
    <message>
        <source>Kind of source</source>
        <translation>Clase de fuente</translation>
    </message>
    <message>
        <source>Address of the source</source>
        <translation>Dirección de la fuente</translation>
    </message>
    <message>
        <source>Definitions</source>
        <translation>Definiciones</translation>
    </message>
    <message>
        <source>Definitions (*.xml *.proto *.desc *.pb);;All files (*)</source>
        <translation>Definiciones (*.xml *.proto *.desc *.pb);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Overlays</source>
        <translation>Capas añadidas</translation>
    </message>
    <message>
        <source>Overlays (*.json);;All files (*)</source>
        <translation>Capas añadidas (*.json);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Framing</source>
        <translation>Encuadre</translation>
    </message>
    <message>
        <source>By itself</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Root message type</source>
        <translation>Tipo de mensaje raíz</translation>
    </message>
    <message>
        <source>Protocol Buffers only: package.Type</source>
        <translation>Solo Protocol Buffers: paquete.Tipo</translation>
    </message>
    <message>
        <source>&amp;Source</source>
        <translation>&amp;Fuente</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>&amp;Dirección</translation>
    </message>
    <message>
        <source>&amp;Definitions</source>
        <translation>Defi&amp;niciones</translation>
    </message>
    <message>
        <source>Overla&amp;ys</source>
        <translation>&amp;Capas añadidas</translation>
    </message>
    <message>
        <source>Frami&amp;ng</source>
        <translation>&amp;Encuadre</translation>
    </message>
    <message>
        <source>Root ty&amp;pe</source>
        <translation>&amp;Tipo raíz</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>A&amp;brir</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>Examinar…</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>Puertos</translation>
    </message>
    <message>
        <source>Choose the file</source>
        <translation>Elegir el archivo</translation>
    </message>
    <message>
        <source>Choose the port</source>
        <translation>Elegir el puerto</translation>
    </message>
    <message>
        <source>This machine has no serial port</source>
        <translation>Esta máquina no tiene puerto serie</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Files that describe the messages: MAVLink dialects, .proto files or descriptor sets</source>
        <translation>Archivos que describen los mensajes: dialectos MAVLink, archivos .proto o conjuntos de descriptores</translation>
    </message>
    <message>
        <source>Files that add roles, units or computed fields to the definitions</source>
        <translation>Archivos que añaden funciones, unidades o campos calculados a las definiciones</translation>
    </message>
    <message>
        <source>Nothing yet: what you open is listed here.</source>
        <translation>Nada todavía: lo que abra aparecerá aquí.</translation>
    </message>
    <message>
        <source>Name the source: %1.</source>
        <translation>Indique la fuente: %1.</translation>
    </message>
    <message>
        <source>This starts a program on this machine: %1
Press Open again to start it.</source>
        <translation>Esto inicia un programa en esta máquina: %1
Pulse Abrir otra vez para iniciarlo.</translation>
    </message>
    <message>
        <source>The messages of %1 cannot be read without their definitions. Add the files that describe them: for MAVLink a dialect (.xml), such as common.xml, with the files that it includes beside it; for Protocol Buffers the .proto files, or a descriptor set (.desc, .pb), and the root type.</source>
        <translation>Los mensajes de %1 no se pueden leer sin sus definiciones. Añada los archivos que los describen: para MAVLink un dialecto (.xml), como common.xml, con los archivos que incluye a su lado; para Protocol Buffers los archivos .proto, o un conjunto de descriptores (.desc, .pb), y el tipo raíz.</translation>
    </message>
</context>
<context>
    <name>corvane::PlotLegend</name>
    <message>
        <source>Plotted series</source>
        <translation>Series trazadas</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Serie</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>At cursor</source>
        <translation>En el cursor</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Axis</source>
        <translation>Eje</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>The newest value at the cursor&apos;s time</source>
        <translation>El valor más reciente a la hora del cursor</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Draw at the Other Axis</source>
        <translation>Trazar en el otro eje</translation>
    </message>
    <message>
        <source>Ctrl+T</source>
        <translation>Ctrl+T</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Quitar %1</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
</context>
<context>
    <name>corvane::PlotPanel</name>
    <message>
        <source>Path of a field to plot</source>
        <translation>Ruta de un campo para trazar</translation>
    </message>
    <message>
        <source>FORMAT.MESSAGE.FIELD; * stands for any text, FIELD[2] is the third element of a repeated field, FIELD[0..3] are the first four</source>
        <translation>FORMATO.MENSAJE.CAMPO; * vale por cualquier texto, CAMPO[2] es el tercer elemento de un campo repetido, CAMPO[0..3] son los cuatro primeros</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Seguir</translation>
    </message>
    <message>
        <source>Follow the newest value (End)</source>
        <translation>Seguir el valor más reciente (Fin)</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Show less time (+)</source>
        <translation>Mostrar menos tiempo (+)</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Show more time (-)</source>
        <translation>Mostrar más tiempo (-)</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Show all that was recorded (Home)</source>
        <translation>Mostrar todo lo grabado (Inicio)</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Fit the value axes to what is shown (V)</source>
        <translation>Ajustar los ejes de valores a lo que se muestra (V)</translation>
    </message>
    <message>
        <source>Axis per Unit</source>
        <translation>Un eje por unidad</translation>
    </message>
    <message>
        <source>Give each unit a value axis of its own</source>
        <translation>Dar a cada unidad su propio eje de valores</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy the picture (Ctrl+C)</source>
        <translation>Copiar la imagen (Ctrl+C)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save what is shown as PNG, SVG or CSV (Ctrl+S)</source>
        <translation>Guardar lo que se muestra como PNG, SVG o CSV (Ctrl+S)</translation>
    </message>
    <message>
        <source>No numeric field is named &quot;%1&quot;. A path is FORMAT.MESSAGE.FIELD; * stands for any text.</source>
        <translation>Ningún campo numérico se llama «%1». Una ruta es FORMATO.MENSAJE.CAMPO; * vale por cualquier texto.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names more than %2 fields; name fewer.</source>
        <translation>«%1» designa más de %2 campos; designe menos.</translation>
    </message>
    <message>
        <source>More than %1 series are not plotted.</source>
        <translation>No se trazan más de %1 series.</translation>
    </message>
    <message>
        <source>The picture is in the clipboard.</source>
        <translation>La imagen está en el portapapeles.</translation>
    </message>
    <message>
        <source>Save the Plot</source>
        <translation>Guardar la gráfica</translation>
    </message>
    <message>
        <source>Picture (*.png);;Drawing (*.svg);;Shown values (*.csv)</source>
        <translation>Imagen (*.png);;Dibujo (*.svg);;Valores mostrados (*.csv)</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Escrito: %1</translation>
    </message>
</context>
<context>
    <name>corvane::PlotView</name>
    <message>
        <source>Plot</source>
        <translation>Gráfica</translation>
    </message>
    <message>
        <source>%1 [%2]</source>
        <translation>%1 [%2]</translation>
    </message>
    <message>
        <source>Nothing is plotted yet. Type the path of a numeric field above, such as FORMAT.MESSAGE.FIELD, and press Enter; FIELD[2] is the third element of a repeated field.</source>
        <translation>Aún no hay nada trazado. Escriba arriba la ruta de un campo numérico, como FORMATO.MENSAJE.CAMPO, y pulse Intro; CAMPO[2] es el tercer elemento de un campo repetido.</translation>
    </message>
    <message>
        <source>No values yet. They appear as soon as messages with the chosen fields arrive.</source>
        <translation>Aún no hay valores. Aparecerán en cuanto lleguen mensajes con los campos elegidos.</translation>
    </message>
    <message>
        <source>Following the newest value, %1 s</source>
        <translation>Sigue el valor más reciente, %1 s</translation>
    </message>
    <message>
        <source>Standing still, %1 s</source>
        <translation>Quieta, %1 s</translation>
    </message>
    <message>
        <source>Paused, values are kept; %1 s</source>
        <translation>En pausa, los valores se conservan; %1 s</translation>
    </message>
    <message>
        <source>; value axes as set by hand</source>
        <translation>; ejes de valores ajustados a mano</translation>
    </message>
    <message>
        <source>; cursor at %1</source>
        <translation>; cursor en %1</translation>
    </message>
    <message>
        <source>The name of the file must end in .png, .svg or .csv.</source>
        <translation>El nombre del archivo debe terminar en .png, .svg o .csv.</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2</source>
        <translation>No se puede escribir «%1»: %2</translation>
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
        <translation>No hay nada que grabar: ninguna fuente está abierta.</translation>
    </message>
    <message>
        <source>Record to a File</source>
        <translation>Grabar en un archivo</translation>
    </message>
    <message>
        <source>Recorded %1 to &quot;%2&quot;.</source>
        <translation>%1 grabado en «%2».</translation>
    </message>
    <message>
        <source>Stop &amp;Recording</source>
        <translation>Detener la &amp;grabación</translation>
    </message>
    <message>
        <source>&amp;Record…</source>
        <translation>&amp;Grabar…</translation>
    </message>
    <message>
        <source>End the recording and close its file</source>
        <translation>Terminar la grabación y cerrar su archivo</translation>
    </message>
    <message>
        <source>Write the bytes of the source to a file as they come</source>
        <translation>Escribir en un archivo los bytes de la fuente según llegan</translation>
    </message>
    <message>
        <source>Recording to &quot;%1&quot;: %2</source>
        <translation>Grabando en «%1»: %2</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Detener</translation>
    </message>
</context>
<context>
    <name>corvane::RowActions</name>
    <message>
        <source>&amp;Copy Value</source>
        <translation>&amp;Copiar valor</translation>
    </message>
    <message>
        <source>Copy the value as it is shown</source>
        <translation>Copiar el valor tal como se muestra</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>Copiar &amp;ruta</translation>
    </message>
    <message>
        <source>Copy the path by which the watch list, the plot and exports know the row</source>
        <translation>Copiar la ruta con la que la lista de vigilancia, la gráfica y la exportación conocen la fila</translation>
    </message>
    <message>
        <source>Copy &amp;Row</source>
        <translation>Copiar &amp;fila</translation>
    </message>
    <message>
        <source>Copy the texts of all columns, with tabs between</source>
        <translation>Copiar los textos de todas las columnas, separados por tabuladores</translation>
    </message>
    <message>
        <source>Copy Message as &amp;JSON</source>
        <translation>Copiar mensaje como &amp;JSON</translation>
    </message>
    <message>
        <source>Copy the whole message that is shown, as in an export</source>
        <translation>Copiar todo el mensaje que se muestra, como en una exportación</translation>
    </message>
    <message>
        <source>Add to &amp;Watch</source>
        <translation>&amp;Vigilar</translation>
    </message>
    <message>
        <source>Show the field in the list of watched fields</source>
        <translation>Mostrar el campo en la lista de campos vigilados</translation>
    </message>
    <message>
        <source>P&amp;lot</source>
        <translation>&amp;Trazar</translation>
    </message>
    <message>
        <source>Draw the field over time</source>
        <translation>Trazar el campo a lo largo del tiempo</translation>
    </message>
    <message>
        <source>Show &amp;Form</source>
        <translation>Mostrar f&amp;ormulario</translation>
    </message>
    <message>
        <source>Show the message type as a form</source>
        <translation>Mostrar el tipo de mensaje como formulario</translation>
    </message>
    <message>
        <source>Show &amp;Bytes</source>
        <translation>Mostrar &amp;bytes</translation>
    </message>
    <message>
        <source>Show the bytes of the message, with those of the field marked</source>
        <translation>Mostrar los bytes del mensaje, con los del campo marcados</translation>
    </message>
    <message>
        <source>Filter by &amp;This Value</source>
        <translation>Fi&amp;ltrar por este valor</translation>
    </message>
    <message>
        <source>Show only elements of lists that hold this value</source>
        <translation>Mostrar solo los elementos de listas que contienen este valor</translation>
    </message>
    <message>
        <source>E&amp;xpand Below</source>
        <translation>&amp;Desplegar debajo</translation>
    </message>
    <message>
        <source>Expand the row and all below</source>
        <translation>Desplegar la fila y todo lo que hay debajo</translation>
    </message>
    <message>
        <source>C&amp;ollapse Below</source>
        <translation>&amp;Plegar debajo</translation>
    </message>
    <message>
        <source>Collapse the row and all below</source>
        <translation>Plegar la fila y todo lo que hay debajo</translation>
    </message>
    <message>
        <source>No row is chosen</source>
        <translation>No hay ninguna fila elegida</translation>
    </message>
    <message>
        <source>This row stands for no field</source>
        <translation>Esta fila no representa ningún campo</translation>
    </message>
    <message>
        <source>This row has no value of its own</source>
        <translation>Esta fila no tiene valor propio</translation>
    </message>
    <message>
        <source>No message of this type has come yet</source>
        <translation>Aún no ha llegado ningún mensaje de este tipo</translation>
    </message>
    <message>
        <source>A message type cannot be watched; choose a field</source>
        <translation>Un tipo de mensaje no se puede vigilar; elija un campo</translation>
    </message>
    <message>
        <source>Fields inside sub-messages cannot be watched</source>
        <translation>Los campos dentro de submensajes no se pueden vigilar</translation>
    </message>
    <message>
        <source>This build has no plot</source>
        <translation>Esta versión no tiene gráfica</translation>
    </message>
    <message>
        <source>A message type cannot be plotted; choose a numeric field</source>
        <translation>Un tipo de mensaje no se puede trazar; elija un campo numérico</translation>
    </message>
    <message>
        <source>Only numeric fields can be plotted; this one is of type %1</source>
        <translation>Solo se pueden trazar campos numéricos; este es de tipo %1</translation>
    </message>
    <message>
        <source>What this field holds is confidential</source>
        <translation>Lo que contiene este campo es confidencial</translation>
    </message>
    <message>
        <source>Only values inside the elements of a list of sub-messages can be filtered by</source>
        <translation>Solo se puede filtrar por valores que estén dentro de los elementos de una lista de submensajes</translation>
    </message>
    <message>
        <source>There is no value</source>
        <translation>No hay valor</translation>
    </message>
    <message>
        <source>There is nothing below this row</source>
        <translation>No hay nada debajo de esta fila</translation>
    </message>
</context>
<context>
    <name>corvane::RowDescription</name>
    <message>
        <source>list of %1</source>
        <translation>lista de %1</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>Empty in the newest message.</source>
        <translation>Vacío en el mensaje más reciente.</translation>
    </message>
    <message>
        <source>Absent: what it is computed from is not in the newest message.</source>
        <translation>Ausente: aquello a partir de lo cual se calcula no está en el mensaje más reciente.</translation>
    </message>
    <message>
        <source>Absent: the newest message has another case of &quot;%1&quot;, or none.</source>
        <translation>Ausente: el mensaje más reciente tiene otro caso de «%1», o ninguno.</translation>
    </message>
    <message>
        <source>Absent: the newest message came without this field.</source>
        <translation>Ausente: el mensaje más reciente llegó sin este campo.</translation>
    </message>
    <message>
        <source>Cut: only the beginning of %1 bytes is shown.</source>
        <translation>Recortado: solo se muestra el comienzo de %1 bytes.</translation>
    </message>
    <message>
        <source>Cut: only the beginning of %1 characters is shown.</source>
        <translation>Recortado: solo se muestra el comienzo de %1 caracteres.</translation>
    </message>
    <message>
        <source>%1 of %2 elements do not pass the filter.</source>
        <translation>%1 de %2 elementos no pasan el filtro.</translation>
    </message>
    <message>
        <source>No message of this type has come yet.</source>
        <translation>Aún no ha llegado ningún mensaje de este tipo.</translation>
    </message>
    <message>
        <source>Hidden: what it holds is confidential.</source>
        <translation>Oculto: su contenido es confidencial.</translation>
    </message>
    <message>
        <source>Absent: the newest message came without the sub-message around it.</source>
        <translation>Ausente: el mensaje más reciente llegó sin el submensaje que lo contiene.</translation>
    </message>
</context>
<context>
    <name>corvane::SenderChooser</name>
    <message>
        <source>Sender whose messages are shown</source>
        <translation>Emisor cuyos mensajes se muestran</translation>
    </message>
    <message>
        <source>Whose messages the views show. Everything is counted, whoever sends it.</source>
        <translation>De quién son los mensajes que muestran las vistas. Se cuenta todo, lo envíe quien lo envíe.</translation>
    </message>
    <message>
        <source>Only sender %1</source>
        <translation>Solo el emisor %1</translation>
    </message>
    <message>
        <source>All %1 senders: the last one wins</source>
        <translation>Los %1 emisores: vale el último</translation>
    </message>
</context>
<context>
    <name>corvane::SendersPanel</name>
    <message>
        <source>Here stands each sender with what it has sent and what was lost, once messages with sequence numbers come.</source>
        <translation>Aquí figura cada emisor con lo que ha enviado y lo que se ha perdido, en cuanto lleguen mensajes con números de secuencia.</translation>
    </message>
    <message>
        <source>Senders</source>
        <translation>Emisores</translation>
    </message>
    <message>
        <source>Sender</source>
        <translation>Emisor</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Tramas</translation>
    </message>
    <message>
        <source>Places with losses</source>
        <translation>Lugares con pérdidas</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Perdidos</translation>
    </message>
    <message>
        <source>CRC errors</source>
        <translation>Errores de CRC</translation>
    </message>
    <message>
        <source>Below a sender: the message types that its damaged frames claim to be of</source>
        <translation>Bajo un emisor: los tipos de mensaje que sus tramas dañadas dicen ser</translation>
    </message>
    <message>
        <source>Messages missing by their sequence numbers</source>
        <translation>Mensajes que faltan según sus números de secuencia</translation>
    </message>
    <message>
        <source>Enter or a double click shows the messages of one sender only</source>
        <translation>Intro o un doble clic muestra solo los mensajes de un emisor</translation>
    </message>
</context>
<context>
    <name>corvane::Session</name>
    <message>
        <source>An MCAP file brings its own definitions. Leave out --definitions and --root.</source>
        <translation>Un archivo MCAP trae sus propias definiciones. Omita --definitions y --root.</translation>
    </message>
    <message>
        <source>Definitions of different formats cannot be mixed.</source>
        <translation>No se pueden mezclar definiciones de formatos distintos.</translation>
    </message>
    <message>
        <source>--root and --import-path go with definitions of Protocol Buffers.</source>
        <translation>--root y --import-path van con definiciones de Protocol Buffers.</translation>
    </message>
    <message>
        <source>--framing %1 does not go with %2; expected one of: %3.</source>
        <translation>--framing %1 no va con %2; se esperaba uno de: %3.</translation>
    </message>
    <message>
        <source>Opened %1.</source>
        <translation>%1 abierto.</translation>
    </message>
    <message>
        <source>%1 has ended.</source>
        <translation>%1 ha terminado.</translation>
    </message>
    <message>
        <source>Cannot record to &quot;%1&quot;: it is the file that is being read. Choose another name.</source>
        <translation>No se puede grabar en «%1»: es el archivo que se está leyendo. Elija otro nombre.</translation>
    </message>
    <message>
        <source>There is not enough memory to read the definitions.</source>
        <translation>No hay memoria suficiente para leer las definiciones.</translation>
    </message>
</context>
<context>
    <name>corvane::SettingsFile</name>
    <message>
        <source>it is no settings file</source>
        <translation>no es un archivo de ajustes</translation>
    </message>
    <message>
        <source>the value of &quot;%1&quot; is none that this program writes</source>
        <translation>el valor de «%1» no es de los que escribe este programa</translation>
    </message>
    <message>
        <source>The settings file could not be used: %1. Everything starts with its defaults; the old file is kept as &quot;%2&quot;.</source>
        <translation>El archivo de ajustes no se pudo usar: %1. Todo empieza con los valores predeterminados; el archivo antiguo se conserva como «%2».</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; could not be used: %2. Everything starts with its defaults, and nothing will be remembered.</source>
        <translation>El archivo de ajustes «%1» no se pudo usar: %2. Todo empieza con los valores predeterminados y no se recordará nada.</translation>
    </message>
    <message>
        <source>it cannot be read (%1)</source>
        <translation>no se puede leer (%1)</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>es demasiado grande</translation>
    </message>
    <message>
        <source>it is no text</source>
        <translation>no es texto</translation>
    </message>
    <message>
        <source>it holds what this program does not write</source>
        <translation>contiene lo que este programa no escribe</translation>
    </message>
</context>
<context>
    <name>corvane::StatisticsPanel</name>
    <message>
        <source>Here stand count, rate, intervals and gaps of each message type, once messages come.</source>
        <translation>Aquí figuran cantidad, frecuencia, intervalos y huecos de cada tipo de mensaje, en cuanto lleguen mensajes.</translation>
    </message>
    <message>
        <source>Reception statistics</source>
        <translation>Estadísticas de recepción</translation>
    </message>
</context>
<context>
    <name>corvane::StatusFigures</name>
    <message>
        <source>Bytes that have come and wait to be read. A figure that grows says that more comes than can be shown.</source>
        <translation>Bytes que han llegado y esperan ser leídos. Una cifra que crece dice que llega más de lo que se puede mostrar.</translation>
    </message>
    <message>
        <source>The longest time in the last 5 seconds in which the window did not react, because it was busy with messages or drawing</source>
        <translation>El tiempo más largo de los últimos 5 segundos en que la ventana no reaccionó, ocupada con mensajes o dibujando</translation>
    </message>
    <message>
        <source>Longest round: %1 ms</source>
        <translation>Vuelta más larga: %1 ms</translation>
    </message>
    <message>
        <source>Messages: %1 (%2 per second)</source>
        <translation>Mensajes: %1 (%2 por segundo)</translation>
    </message>
    <message>
        <source>, CRC errors: %1</source>
        <translation>, errores de CRC: %1</translation>
    </message>
    <message>
        <source>, unknown: %1</source>
        <translation>, desconocidos: %1</translation>
    </message>
    <message>
        <source>, datagrams dropped: %1</source>
        <translation>, datagramas descartados: %1</translation>
    </message>
    <message>
        <source>Backlog: %1</source>
        <translation>Atraso: %1</translation>
    </message>
    <message>
        <source>The views stand still. Everything is counted all the same.</source>
        <translation>Las vistas están quietas. Se cuenta todo igualmente.</translation>
    </message>
    <message>
        <source>Paused for %1 s, new messages: %2</source>
        <translation>En pausa desde hace %1 s, mensajes nuevos: %2</translation>
    </message>
</context>
<context>
    <name>corvane::TransportBar</name>
    <message>
        <source>Playback</source>
        <translation>Reproducción</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Ctrl+Space</source>
        <translation>Ctrl+Space</translation>
    </message>
    <message>
        <source>Next Message</source>
        <translation>Mensaje siguiente</translation>
    </message>
    <message>
        <source>Ctrl+.</source>
        <translation>Ctrl+.</translation>
    </message>
    <message>
        <source>Read on to the next message (Right, %1)</source>
        <translation>Leer hasta el mensaje siguiente (Derecha, %1)</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>How fast the recording is played</source>
        <translation>A qué velocidad se reproduce la grabación</translation>
    </message>
    <message>
        <source>%1 x</source>
        <translation>%1 x</translation>
    </message>
    <message>
        <source>No waiting</source>
        <translation>Sin esperar</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>The place in the recording</source>
        <translation>El lugar en la grabación</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Indexing</source>
        <translation>Indexación</translation>
    </message>
    <message>
        <source>How much of the file has been indexed: places behind cannot be reached yet</source>
        <translation>Cuánto del archivo está indexado: lo que sigue aún no se puede alcanzar</translation>
    </message>
    <message>
        <source>Indexing: %p %</source>
        <translation>Indexación: %p %</translation>
    </message>
    <message>
        <source>Stop Indexing</source>
        <translation>Detener la indexación</translation>
    </message>
    <message>
        <source>Places that have not been indexed cannot be reached then</source>
        <translation>Los lugares no indexados no se podrán alcanzar entonces</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>%1 (Space, %2)</source>
        <translation>%1 (Espacio, %2)</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>corvane::TreeHistory</name>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Historial</translation>
    </message>
    <message>
        <source>A small line of the last 15 seconds of each numeric field</source>
        <translation>Una pequeña línea de los últimos 15 segundos de cada campo numérico</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
</context>
<context>
    <name>corvane::ViewSettings</name>
    <message>
        <source>10 Times a Second</source>
        <translation>10 veces por segundo</translation>
    </message>
    <message>
        <source>4 Times a Second</source>
        <translation>4 veces por segundo</translation>
    </message>
    <message>
        <source>Once a Second</source>
        <translation>Una vez por segundo</translation>
    </message>
    <message>
        <source>Every 5 Seconds</source>
        <translation>Cada 5 segundos</translation>
    </message>
    <message>
        <source>Times in &amp;UTC</source>
        <translation>Horas en &amp;UTC</translation>
    </message>
    <message>
        <source>Show times in UTC instead of this machine&apos;s time zone</source>
        <translation>Mostrar las horas en UTC en vez de la zona de esta máquina</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Ampliar</translation>
    </message>
    <message>
        <source>Larger text in the views</source>
        <translation>Texto más grande en las vistas</translation>
    </message>
    <message>
        <source>Ctrl++</source>
        <translation>Ctrl++</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Reducir</translation>
    </message>
    <message>
        <source>Smaller text in the views</source>
        <translation>Texto más pequeño en las vistas</translation>
    </message>
    <message>
        <source>Ctrl+-</source>
        <translation>Ctrl+-</translation>
    </message>
    <message>
        <source>&amp;Normal Size</source>
        <translation>Tamaño &amp;normal</translation>
    </message>
    <message>
        <source>Text of the usual size in the views</source>
        <translation>Texto del tamaño habitual en las vistas</translation>
    </message>
    <message>
        <source>Ctrl+0</source>
        <translation>Ctrl+0</translation>
    </message>
    <message>
        <source>How often counts and statistics are refreshed</source>
        <translation>Cada cuánto se refrescan recuentos y estadísticas</translation>
    </message>
    <message>
        <source>&amp;Refresh of Counts</source>
        <translation>Re&amp;fresco de recuentos</translation>
    </message>
</context>
<context>
    <name>corvane::WatchPanel</name>
    <message>
        <source>Type the path of a field and press Enter, or pick one and press Watch.</source>
        <translation>Escriba la ruta de un campo y pulse Intro, o elija uno y pulse Vigilar.</translation>
    </message>
    <message>
        <source>Path of a field</source>
        <translation>Ruta de un campo</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Message type</source>
        <translation>Tipo de mensaje</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Campo</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Vigilar</translation>
    </message>
    <message>
        <source>Add the chosen fields</source>
        <translation>Añadir los campos elegidos</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move the current row up</source>
        <translation>Subir la fila actual</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Move the current row down</source>
        <translation>Bajar la fila actual</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Stop watching the current row (Delete)</source>
        <translation>Dejar de vigilar la fila actual (Supr)</translation>
    </message>
    <message>
        <source>Watched fields</source>
        <translation>Campos vigilados</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ruta</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Stop Watching</source>
        <translation>Dejar de vigilar</translation>
    </message>
    <message>
        <source>No field is named &quot;%1&quot;. A path is FORMAT.MESSAGE.FIELD; * stands for any text.</source>
        <translation>Ningún campo se llama «%1». Una ruta es FORMATO.MENSAJE.CAMPO; * vale por cualquier texto.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names more than %2 fields; name fewer.</source>
        <translation>«%1» designa más de %2 campos; designe menos.</translation>
    </message>
    <message>
        <source>Not described by the loaded definitions</source>
        <translation>No descrito por las definiciones cargadas</translation>
    </message>
    <message>
        <source>Not received yet</source>
        <translation>Aún no recibido</translation>
    </message>
    <message>
        <source>Timed out</source>
        <translation>Caducado</translation>
    </message>
    <message>
        <source>Absent in the last message</source>
        <translation>Ausente en el último mensaje</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Actual</translation>
    </message>
</context>
<context>
    <name>corvane::Workbench</name>
    <message>
        <source>Corvane Inspector</source>
        <translation>Inspector Corvane</translation>
    </message>
    <message>
        <source>End of %1</source>
        <translation>Fin de %1</translation>
    </message>
</context>
</TS>
