<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>EventLog</name>
    <message>
        <source>%1 older entries were dropped: the log is full.</source>
        <translation>Se han quitado %1 entradas antiguas: el registro está lleno.</translation>
    </message>
</context>
<context>
    <name>EventLogTableWidget</name>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
</context>
<context>
    <name>FieldValueLabel</name>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
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
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>Current rate/interval</source>
        <translation>Frecuencia/intervalo actual</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Huecos</translation>
    </message>
    <message>
        <source>Message statistics for the messages
in the %1 format.</source>
        <translation>Estadísticas de los mensajes
del formato %1.</translation>
    </message>
    <message>
        <source>CRC Errors</source>
        <translation>Errores de CRC</translation>
    </message>
</context>
<context>
    <name>MessageTreeWidget</name>
    <message>
        <source>&amp;Type</source>
        <translation>&amp;Tipo</translation>
    </message>
    <message>
        <source>&amp;Raw Value</source>
        <translation>Valo&amp;r sin procesar</translation>
    </message>
    <message>
        <source>Duplicate column</source>
        <translation>Columna duplicada</translation>
    </message>
    <message>
        <source>Attempt to add to a MessageTreeWidget a column that is already present: %1. Duplicate column was not added.</source>
        <translation>Se intentó añadir a un MessageTreeWidget una columna que ya tiene: %1. La columna duplicada no se ha añadido.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Raw value</source>
        <translation>Valor sin procesar</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Custom 1</source>
        <translation>Propia 1</translation>
    </message>
    <message>
        <source>Custom 2</source>
        <translation>Propia 2</translation>
    </message>
    <message>
        <source>Custom 3</source>
        <translation>Propia 3</translation>
    </message>
    <message>
        <source>Custom 4</source>
        <translation>Propia 4</translation>
    </message>
    <message>
        <source>Custom 5</source>
        <translation>Propia 5</translation>
    </message>
    <message>
        <source>Custom 6</source>
        <translation>Propia 6</translation>
    </message>
    <message>
        <source>Custom 7</source>
        <translation>Propia 7</translation>
    </message>
    <message>
        <source>Custom 8</source>
        <translation>Propia 8</translation>
    </message>
    <message>
        <source>Custom 9</source>
        <translation>Propia 9</translation>
    </message>
    <message>
        <source>Custom 10</source>
        <translation>Propia 10</translation>
    </message>
    <message>
        <source>Column type %1</source>
        <translation>Tipo de columna %1</translation>
    </message>
</context>
<context>
    <name>MessageTreeWidgetItem</name>
    <message>
        <source>No message type set</source>
        <translation>Ningún tipo de mensaje asignado</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>No message</source>
        <translation>Ningún mensaje</translation>
    </message>
    <message>
        <source>Hidden data</source>
        <translation>Datos ocultos</translation>
    </message>
    <message>
        <source>Due to confidentiality, the data in this message has been (partly) hidden.</source>
        <translation>Por confidencialidad, los datos de este mensaje se han ocultado (en parte).</translation>
    </message>
</context>
<context>
    <name>MessageWidget</name>
    <message>
        <source>No message type set</source>
        <translation>Ningún tipo de mensaje asignado</translation>
    </message>
</context>
<context>
    <name>PathExpressionComboBox</name>
    <message>
        <source>Null path expression set!</source>
        <translation>¡La expresión de ruta es nula!</translation>
    </message>
    <message>
        <source>Null options source path expression set!</source>
        <translation>¡La expresión de ruta de las opciones es nula!</translation>
    </message>
    <message>
        <source>No options</source>
        <translation>Ninguna opción</translation>
    </message>
</context>
<context>
    <name>PathExpressionLabel</name>
    <message>
        <source>No path expression set!</source>
        <translation>¡Ninguna expresión de ruta asignada!</translation>
    </message>
</context>
<context>
    <name>PathExpressionLineEdit</name>
    <message>
        <source>No path expression set!</source>
        <translation>¡Ninguna expresión de ruta asignada!</translation>
    </message>
</context>
<context>
    <name>PathExpressionListWidget</name>
    <message>
        <source>Null options source path expression set!</source>
        <translation>¡La expresión de ruta de las opciones es nula!</translation>
    </message>
    <message>
        <source>No options</source>
        <translation>Ninguna opción</translation>
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
        <translation>%1 (desconocido)</translation>
    </message>
    <message>
        <source>Number of times the %1
message has been received.</source>
        <translation>Número de veces que se ha recibido
el mensaje %1.</translation>
    </message>
    <message>
        <source>Most recent regular rate/interval at which the %1
message has been received.</source>
        <translation>Última frecuencia regular (o intervalo) con que
se ha recibido el mensaje %1.</translation>
    </message>
    <message>
        <source>Detected gaps in regular data segments with valid time, if any.</source>
        <translation>Huecos detectados en tramos regulares con hora válida, si los hay.</translation>
    </message>
    <message>
        <source>Rates/Intervals</source>
        <translation>Frecuencias/intervalos</translation>
    </message>
    <message>
        <source>The rates/intervals in which this message has been received,
together with the corresponding count.</source>
        <translation>Las frecuencias/intervalos con que se ha recibido este mensaje,
junto con la cantidad correspondiente.</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>%1 (%2 epochs)</source>
        <translation>%1 (%2 épocas)</translation>
    </message>
    <message>
        <source>No time</source>
        <translation>Sin hora</translation>
    </message>
    <message>
        <source>The number of times this message 
has been received without a valid time tag.</source>
        <translation>Número de veces que este mensaje
se ha recibido sin hora válida.</translation>
    </message>
    <message>
        <source>Unknown interval/rate</source>
        <translation>Intervalo/frecuencia desconocidos</translation>
    </message>
    <message>
        <source>Number of times this message has been received 
with a valid time tag but for which the interval 
could not be determined: 
there was no previous message with valid time, 
and the following messages did not 
come in at a regular rate.</source>
        <translation>Número de veces que este mensaje se ha recibido
con hora válida, pero sin que se pudiera
determinar el intervalo:
no hubo un mensaje anterior con hora válida
y los mensajes siguientes no llegaron
con una frecuencia regular.</translation>
    </message>
    <message>
        <source>Number of times the message was received at %1.</source>
        <translation>Número de veces que el mensaje se ha recibido con %1.</translation>
    </message>
    <message>
        <source>Number of times the messages was received
with the same time stamp as previous.</source>
        <translation>Número de veces que el mensaje se ha recibido
con la misma marca de tiempo que el anterior.</translation>
    </message>
    <message>
        <source>Gaps, with time and duration</source>
        <translation>Huecos, con hora y duración</translation>
    </message>
    <message>
        <source>Gaps (incomplete list)</source>
        <translation>Huecos (lista incompleta)</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Huecos</translation>
    </message>
    <message>
        <source>Gaps start</source>
        <translation>Comienzo del hueco</translation>
    </message>
    <message>
        <source>Missing epochs</source>
        <translation>Épocas que faltan</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Columna %1</translation>
    </message>
    <message>
        <source>No field set</source>
        <translation>Ningún campo asignado</translation>
    </message>
    <message>
        <source>No values for optional field</source>
        <translation>Ningún valor para el campo opcional</translation>
    </message>
    <message>
        <source>submessage</source>
        <translation>submensaje</translation>
    </message>
    <message>
        <source>repeated value</source>
        <translation>valor repetido</translation>
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
        <translation>Submensaje opcional ausente</translation>
    </message>
    <message>
        <source>No value for optional field</source>
        <translation>Ningún valor para el campo opcional</translation>
    </message>
    <message>
        <source>string</source>
        <translation>texto</translation>
    </message>
</context>
<context>
    <name>corvane::BoundSocket</name>
    <message>
        <source>Cannot receive at %1: </source>
        <translation>No se puede recibir en %1: </translation>
    </message>
    <message>
        <source>another program already uses this port. End it, or choose another port.</source>
        <translation>otro programa ya usa este puerto. Ciérrelo o elija otro puerto.</translation>
    </message>
    <message>
        <source>no permission. Choose a port above 1023.</source>
        <translation>sin permiso. Elija un puerto mayor que 1023.</translation>
    </message>
    <message>
        <source>this machine does not have this address. Leave it empty to mean all.</source>
        <translation>esta máquina no tiene esta dirección. Déjela vacía para referirse a todas.</translation>
    </message>
</context>
<context>
    <name>corvane::EventGatherer</name>
    <message>
        <source>Unknown messages of various ids</source>
        <translation>Mensajes desconocidos de varios identificadores</translation>
    </message>
    <message>
        <source>CRC errors of various messages</source>
        <translation>Errores de CRC de varios mensajes</translation>
    </message>
    <message>
        <source>Messages of various senders lost</source>
        <translation>Mensajes de varios emisores perdidos</translation>
    </message>
    <message>
        <source>Various events</source>
        <translation>Eventos varios</translation>
    </message>
    <message>
        <source>%1: %2 more in the same second</source>
        <translation>%1: %2 más en el mismo segundo</translation>
    </message>
</context>
<context>
    <name>corvane::FdSource</name>
    <message>
        <source>Cannot read %1: it is a folder. Name a file.</source>
        <translation>No se puede leer %1: es una carpeta. Indique un archivo.</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>No se puede leer %1: %2.</translation>
    </message>
    <message>
        <source>Reading %1 failed: %2.</source>
        <translation>Error al leer %1: %2.</translation>
    </message>
    <message>
        <source>%1 has become shorter, so it is another recording now. Open it again.</source>
        <translation>%1 se ha acortado, así que ahora es otra grabación. Ábrala de nuevo.</translation>
    </message>
</context>
<context>
    <name>corvane::FileIndex</name>
    <message>
        <source>Cannot index %1: %2.</source>
        <translation>No se puede indexar %1: %2.</translation>
    </message>
</context>
<context>
    <name>corvane::FileSource</name>
    <message>
        <source>Cannot open &quot;%1&quot;: </source>
        <translation>No se puede abrir «%1»: </translation>
    </message>
    <message>
        <source>there is no such file. Check the path.</source>
        <translation>no existe ese archivo. Compruebe la ruta.</translation>
    </message>
    <message>
        <source>it is a folder. Name a file in it.</source>
        <translation>es una carpeta. Indique un archivo de ella.</translation>
    </message>
    <message>
        <source>no permission to read it. Change its permissions or its owner.</source>
        <translation>sin permiso de lectura. Cambie sus permisos o su propietario.</translation>
    </message>
</context>
<context>
    <name>corvane::MavlinkDecoder</name>
    <message>
        <source>checksum %1 received, %2 computed</source>
        <translation>suma de comprobación %1 recibida, %2 calculada</translation>
    </message>
    <message>
        <source>; it fits the payload extended with zeros to %1 bytes, so a relay has cut the zeros after the checksum was made</source>
        <translation>; corresponde a los datos ampliados con ceros hasta %1 bytes, así que un repetidor ha cortado los ceros tras calcular la suma</translation>
    </message>
</context>
<context>
    <name>corvane::MavlinkDefinitionReader</name>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>El archivo «%1» no existe.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; includes itself, directly or through others.</source>
        <translation>«%1» se incluye a sí mismo, directamente o por otros archivos.</translation>
    </message>
    <message>
        <source>More than %1 files are included.</source>
        <translation>Se incluyen más de %1 archivos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>«%1» no es un archivo.</translation>
    </message>
    <message>
        <source>Cannot read &quot;%1&quot;: %2.</source>
        <translation>No se puede leer «%1»: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than a definition file can be (32 MiB).</source>
        <translation>«%1» supera el tamaño permitido de un archivo de definiciones (32 MiB).</translation>
    </message>
    <message>
        <source>The included files are larger than 64 MiB in all.</source>
        <translation>Los archivos incluidos superan en total 64 MiB.</translation>
    </message>
    <message>
        <source>A MAVLink definition file begins with &lt;mavlink&gt;, not with &lt;%1&gt;.</source>
        <translation>Un archivo de definiciones MAVLink empieza por &lt;mavlink&gt;, no por &lt;%1&gt;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be included: name a file in this file&apos;s folder.</source>
        <translation>«%1» no se puede incluir: indique un archivo de la carpeta de este archivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name for an enum: use letters, digits and underscores.</source>
        <translation>«%1» no es un nombre de enumeración: use letras, cifras y guiones bajos.</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; of %2 needs a name of letters, digits and underscores and a whole number as its value, not &quot;%3&quot;.</source>
        <translation>La entrada «%1» de %2 necesita un nombre de letras, cifras y guiones bajos y un número entero como valor, no «%3».</translation>
    </message>
    <message>
        <source>There are more than %1 enum entries.</source>
        <translation>Hay más de %1 entradas de enumeración.</translation>
    </message>
    <message>
        <source>%1 = %2 of %3 is passed over: the name or the value is taken.</source>
        <translation>%1 = %2 de %3 se pasa por alto: el nombre o el valor ya está ocupado.</translation>
    </message>
    <message>
        <source>The message &quot;%1&quot; needs a name of letters, digits and underscores and an id from 0 to 16777215, not &quot;%2&quot;.</source>
        <translation>El mensaje «%1» necesita un nombre de letras, cifras y guiones bajos y un identificador de 0 a 16777215, no «%2».</translation>
    </message>
    <message>
        <source>There are more than %1 messages, or more than %2 fields and bits of fields.</source>
        <translation>Hay más de %1 mensajes, o más de %2 campos y bits de campos.</translation>
    </message>
    <message>
        <source>The message %1 with id %2 is there already: %3 with id %4, line %5 of %6.</source>
        <translation>El mensaje %1 con identificador %2 ya existe: %3 con identificador %4, línea %5 de %6.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name for a field: use letters, digits and underscores.</source>
        <translation>«%1» no es un nombre de campo: use letras, cifras y guiones bajos.</translation>
    </message>
    <message>
        <source>%1 has two fields named %2.</source>
        <translation>%1 tiene dos campos llamados %2.</translation>
    </message>
    <message>
        <source>The field %1 has the unknown type &quot;%2&quot;. Known are int8_t to int64_t, uint8_t to uint64_t, float, double and char, each also with a length from 1 to 255 in brackets.</source>
        <translation>El campo %1 tiene el tipo desconocido «%2». Se conocen int8_t a int64_t, uint8_t a uint64_t, float, double y char, cada uno también con una longitud de 1 a 255 entre corchetes.</translation>
    </message>
    <message>
        <source>The fields of %1 take more than the %2 bytes that a frame has room for.</source>
        <translation>Los campos de %1 ocupan más que los %2 bytes que caben en una trama.</translation>
    </message>
    <message>
        <source>The elements are nested too deeply.</source>
        <translation>Los elementos están anidados a demasiada profundidad.</translation>
    </message>
</context>
<context>
    <name>corvane::MavlinkFormat</name>
    <message>
        <source>The message %1 with id %2 contradicts %3 with id %4, which is loaded already.</source>
        <translation>El mensaje %1 con identificador %2 contradice a %3 con identificador %4, que ya está cargado.</translation>
    </message>
</context>
<context>
    <name>corvane::McapDecoder</name>
    <message>
        <source>%1 bytes of channel %2, at offset %3 of the file, are no message of type %4.</source>
        <translation>%1 bytes del canal %2, en la posición %3 del archivo, no son un mensaje de tipo %4.</translation>
    </message>
    <message>
        <source>%1 (at offset %2)</source>
        <translation>%1 (en la posición %2)</translation>
    </message>
</context>
<context>
    <name>corvane::McapDefinitions</name>
    <message>
        <source>Cannot be read: %1.</source>
        <translation>No se puede leer: %1.</translation>
    </message>
    <message>
        <source>This is no MCAP file, or one of another version.</source>
        <translation>No es un archivo MCAP, o es de otra versión.</translation>
    </message>
    <message>
        <source>The file contains no channels.</source>
        <translation>El archivo no contiene canales.</translation>
    </message>
</context>
<context>
    <name>corvane::McapFormat</name>
    <message>
        <source>Only one MCAP file can be loaded.</source>
        <translation>Solo se puede cargar un archivo MCAP.</translation>
    </message>
    <message>
        <source>None of the channels has messages of Protocol Buffers.</source>
        <translation>Ningún canal tiene mensajes de Protocol Buffers.</translation>
    </message>
    <message>
        <source>schema %1</source>
        <translation>esquema %1</translation>
    </message>
    <message>
        <source>The schema %1 does not define the message type of that name.</source>
        <translation>El esquema %1 no define el tipo de mensaje de ese nombre.</translation>
    </message>
    <message>
        <source>The message type %1 has too many parts to be shown.</source>
        <translation>El tipo de mensaje %1 tiene demasiadas partes para mostrarse.</translation>
    </message>
    <message>
        <source>channel %1</source>
        <translation>canal %1</translation>
    </message>
</context>
<context>
    <name>corvane::McapReader</name>
    <message>
        <source>A chunk is compressed with &quot;%1&quot;, which is not known.</source>
        <translation>Un bloque está comprimido con «%1», que no se conoce.</translation>
    </message>
    <message>
        <source>A chunk cannot be decompressed.</source>
        <translation>Un bloque no se puede descomprimir.</translation>
    </message>
    <message>
        <source>A chunk holds more than the %1 bytes it tells of.</source>
        <translation>Un bloque contiene más que los %1 bytes que anuncia.</translation>
    </message>
    <message>
        <source>A chunk holds less than the %1 bytes it tells of.</source>
        <translation>Un bloque contiene menos que los %1 bytes que anuncia.</translation>
    </message>
    <message>
        <source>The checksum of a chunk is wrong.</source>
        <translation>La suma de comprobación de un bloque es errónea.</translation>
    </message>
    <message>
        <source>This is no MCAP file, or one of another version.</source>
        <translation>No es un archivo MCAP, o es de otra versión.</translation>
    </message>
    <message>
        <source>The mark at the end of the file is wrong.</source>
        <translation>La marca del final del archivo es errónea.</translation>
    </message>
    <message>
        <source>There is no record where one must be.</source>
        <translation>No hay un registro donde debe haberlo.</translation>
    </message>
    <message>
        <source>A record of %1 bytes is larger than the %2 that are allowed.</source>
        <translation>Un registro de %1 bytes supera los %2 permitidos.</translation>
    </message>
    <message>
        <source>The records of a chunk do not end where the chunk does.</source>
        <translation>Los registros de un bloque no acaban donde acaba el bloque.</translation>
    </message>
    <message>
        <source>There is a chunk inside a chunk.</source>
        <translation>Hay un bloque dentro de un bloque.</translation>
    </message>
    <message>
        <source>There are bytes behind the end of the file.</source>
        <translation>Hay bytes tras el final del archivo.</translation>
    </message>
    <message>
        <source>The file is cut off here.</source>
        <translation>El archivo está cortado aquí.</translation>
    </message>
    <message>
        <source>A schema is incomplete.</source>
        <translation>Un esquema está incompleto.</translation>
    </message>
    <message>
        <source>Schema %1 is not the one that had this number before.</source>
        <translation>El esquema %1 no es el que tenía este número antes.</translation>
    </message>
    <message>
        <source>There are more or larger schemas than are allowed.</source>
        <translation>Hay más esquemas, o más grandes, de lo permitido.</translation>
    </message>
    <message>
        <source>A channel is incomplete.</source>
        <translation>Un canal está incompleto.</translation>
    </message>
    <message>
        <source>Channel %1 is not the one that had this number before.</source>
        <translation>El canal %1 no es el que tenía este número antes.</translation>
    </message>
    <message>
        <source>Channel %1 names schema %2, which the file does not contain.</source>
        <translation>El canal %1 nombra el esquema %2, que el archivo no contiene.</translation>
    </message>
    <message>
        <source>There are more channels than are allowed.</source>
        <translation>Hay más canales de lo permitido.</translation>
    </message>
    <message>
        <source>A message is incomplete.</source>
        <translation>Un mensaje está incompleto.</translation>
    </message>
    <message>
        <source>A message names channel %1, which the file does not contain.</source>
        <translation>Un mensaje nombra el canal %1, que el archivo no contiene.</translation>
    </message>
    <message>
        <source>A chunk is incomplete.</source>
        <translation>Un bloque está incompleto.</translation>
    </message>
    <message>
        <source>A chunk tells of %1 bytes, more than the %2 that are allowed.</source>
        <translation>Un bloque anuncia %1 bytes, más que los %2 permitidos.</translation>
    </message>
</context>
<context>
    <name>corvane::ProcessSource</name>
    <message>
        <source>Cannot start &quot;%1&quot;: %2.</source>
        <translation>No se puede iniciar «%1»: %2.</translation>
    </message>
    <message>
        <source>Reading from &quot;%1&quot; failed: %2.</source>
        <translation>Error al leer de «%1»: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ended with exit code %2.</source>
        <translation>«%1» terminó con el código %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was ended by signal %2.</source>
        <translation>«%1» fue terminado por la señal %2.</translation>
    </message>
    <message>
        <source>It said last:</source>
        <translation>Su última salida fue:</translation>
    </message>
</context>
<context>
    <name>corvane::ProtobufDecoder</name>
    <message>
        <source>no definitions are loaded</source>
        <translation>no hay definiciones cargadas</translation>
    </message>
    <message>
        <source>they should be the length of a message and are none</source>
        <translation>deberían ser la longitud de un mensaje y no lo son</translation>
    </message>
    <message>
        <source>the stream ends inside of a message</source>
        <translation>el flujo termina en medio de un mensaje</translation>
    </message>
    <message>
        <source>the message would take more than %1 bytes of memory</source>
        <translation>el mensaje ocuparía más de %1 bytes de memoria</translation>
    </message>
    <message>
        <source>they are no message of type %1</source>
        <translation>no son un mensaje de tipo %1</translation>
    </message>
    <message>
        <source>The message at offset %1 would be %2 bytes long, more than %3; it is passed over. Is the framing right?</source>
        <translation>El mensaje en la posición %1 tendría %2 bytes, más que %3; se pasa por alto. ¿Es correcto el encuadre?</translation>
    </message>
</context>
<context>
    <name>corvane::ProtobufFormat</name>
    <message>
        <source>Definitions are loaded already.</source>
        <translation>Ya hay definiciones cargadas.</translation>
    </message>
    <message>
        <source>The message type %1 has too many parts to be shown.</source>
        <translation>El tipo de mensaje %1 tiene demasiadas partes para mostrarse.</translation>
    </message>
    <message>
        <source>Which message type does the stream consist of? Name it with --root, such as one of: %1.</source>
        <translation>¿De qué tipo de mensaje consta el flujo? Indíquelo con --root, por ejemplo uno de: %1.</translation>
    </message>
    <message>
        <source>There is no message type %1; expected &quot;package.Type&quot;, such as one of: %2.</source>
        <translation>No hay ningún tipo de mensaje %1; se esperaba «paquete.Tipo», por ejemplo uno de: %2.</translation>
    </message>
    <message>
        <source>stream</source>
        <translation>flujo</translation>
    </message>
</context>
<context>
    <name>corvane::Reception</name>
    <message>
        <source>Unknown message: %1</source>
        <translation>Mensaje desconocido: %1</translation>
    </message>
    <message>
        <source>%1. Load the definitions that describe this id.</source>
        <translation>%1. Cargue las definiciones que describen este identificador.</translation>
    </message>
    <message>
        <source>CRC error: %1</source>
        <translation>Error de CRC: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 bytes from offset %2 belong to no frame.</source>
        <translation>%1 bytes desde la posición %2 no pertenecen a ninguna trama.</translation>
    </message>
    <message>
        <source>Bytes that belong to no frame</source>
        <translation>Bytes que no pertenecen a ninguna trama</translation>
    </message>
    <message>
        <source>%1 bytes from offset %2 are lost: %3.</source>
        <translation>%1 bytes desde la posición %2 se han perdido: %3.</translation>
    </message>
    <message>
        <source>Bytes lost: %1</source>
        <translation>Bytes perdidos: %1</translation>
    </message>
    <message>
        <source>Sender %1: %2 messages lost before sequence number %3.</source>
        <translation>Emisor %1: %2 mensajes perdidos antes del número de secuencia %3.</translation>
    </message>
    <message>
        <source>Sender %1: messages lost</source>
        <translation>Emisor %1: mensajes perdidos</translation>
    </message>
    <message>
        <source>id %1</source>
        <translation>identificador %1</translation>
    </message>
    <message>
        <source>%1 from sender %2</source>
        <translation>%1 del emisor %2</translation>
    </message>
</context>
<context>
    <name>corvane::Reconnector</name>
    <message>
        <source>Connection lost, trying again in %1 s</source>
        <translation>Conexión perdida, nuevo intento en %1 s</translation>
    </message>
    <message>
        <source>%1 Trying again in %2 s.</source>
        <translation>%1 Nuevo intento en %2 s.</translation>
    </message>
</context>
<context>
    <name>corvane::Recorder</name>
    <message>
        <source>there is no such folder. Choose another one.</source>
        <translation>no existe esa carpeta. Elija otra.</translation>
    </message>
    <message>
        <source>it is a folder. Name a file in it.</source>
        <translation>es una carpeta. Indique un archivo de ella.</translation>
    </message>
    <message>
        <source>no permission to write there. Choose another folder.</source>
        <translation>sin permiso para escribir ahí. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>it is no file. Choose another name.</source>
        <translation>no es un archivo. Elija otro nombre.</translation>
    </message>
    <message>
        <source>Cannot record to &quot;%1&quot;: %2</source>
        <translation>No se puede grabar en «%1»: %2</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>el disco está lleno</translation>
    </message>
    <message>
        <source>the disk is slower than the stream</source>
        <translation>el disco es más lento que el flujo</translation>
    </message>
    <message>
        <source>Recording to &quot;%1&quot; has stopped: %2. The first %3 bytes were kept; watching goes on.</source>
        <translation>La grabación en «%1» se ha detenido: %2. Se han conservado los primeros %3 bytes; la observación continúa.</translation>
    </message>
</context>
<context>
    <name>corvane::SerialSource</name>
    <message>
        <source>Reading %1 failed: the device is gone. Plug it in, and open it again.</source>
        <translation>Error al leer %1: el dispositivo ha desaparecido. Conéctelo y ábralo de nuevo.</translation>
    </message>
    <message>
        <source>Cannot open %1: </source>
        <translation>No se puede abrir %1: </translation>
    </message>
    <message>
        <source>there is no such device. Check the name, and whether it is plugged in.</source>
        <translation>no existe ese dispositivo. Compruebe el nombre y si está conectado.</translation>
    </message>
    <message>
        <source>no permission, or in use by another program. End that program, or become a member of the group that owns the device (often &quot;dialout&quot;).</source>
        <translation>sin permiso, o lo usa otro programa. Cierre ese programa o hágase miembro del grupo al que pertenece el dispositivo (a menudo «dialout»).</translation>
    </message>
</context>
<context>
    <name>corvane::SourceAddress</name>
    <message>
        <source> Expected %1.</source>
        <translation> Se esperaba %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no source: %2.</source>
        <translation>«%1» no designa ninguna fuente: %2.</translation>
    </message>
    <message>
        <source>it is empty; expected a file, or - for standard input</source>
        <translation>está vacía; se esperaba un archivo, o - para la entrada estándar</translation>
    </message>
    <message>
        <source>the scheme &quot;%1&quot; is unknown; known are tcp://, tcp-listen://, udp://, serial: and exec:</source>
        <translation>el esquema «%1» es desconocido; se conocen tcp://, tcp-listen://, udp://, serial: y exec:</translation>
    </message>
    <message>
        <source>&quot;//&quot; is missing after &quot;%1:&quot;</source>
        <translation>falta «//» tras «%1:»</translation>
    </message>
    <message>
        <source>the port is missing</source>
        <translation>falta el puerto</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in brackets is no IPv6 address</source>
        <translation>«%1» entre corchetes no es una dirección IPv6</translation>
    </message>
    <message>
        <source>an IPv6 address is written in brackets, such as [::1]</source>
        <translation>una dirección IPv6 se escribe entre corchetes, como [::1]</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name of a host</source>
        <translation>«%1» no es un nombre de máquina</translation>
    </message>
    <message>
        <source>the host is missing</source>
        <translation>falta la máquina</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no IPv4 address of this machine</source>
        <translation>«%1» no es una dirección IPv4 de esta máquina</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no port, which is a number from %2 to %3</source>
        <translation>«%1» no es un puerto, que es un número de %2 a %3</translation>
    </message>
    <message>
        <source>the device is missing</source>
        <translation>falta el dispositivo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unknown after the question mark</source>
        <translation>«%1» es desconocido tras el signo de interrogación</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no baud rate, which is a number such as 57600 or 115200</source>
        <translation>«%1» no es una velocidad en baudios, que es un número como 57600 o 115200</translation>
    </message>
    <message>
        <source>the command is missing</source>
        <translation>falta la orden</translation>
    </message>
</context>
<context>
    <name>corvane::StdinSource</name>
    <message>
        <source>standard input</source>
        <translation>entrada estándar</translation>
    </message>
    <message>
        <source>Cannot read standard input: it is closed. Redirect a file or a pipe to it.</source>
        <translation>No se puede leer la entrada estándar: está cerrada. Redirija a ella un archivo o una tubería.</translation>
    </message>
</context>
<context>
    <name>corvane::StreamPump</name>
    <message>
        <source>There is not enough memory to read on; what was read before stays.</source>
        <translation>No hay memoria suficiente para seguir leyendo; lo leído antes se conserva.</translation>
    </message>
</context>
<context>
    <name>corvane::TcpClientSource</name>
    <message>
        <source>The connection to %1 broke: %2.</source>
        <translation>La conexión con %1 se ha roto: %2.</translation>
    </message>
    <message>
        <source>Cannot connect to %1: </source>
        <translation>No se puede conectar con %1: </translation>
    </message>
    <message>
        <source>nobody listens there. Start the sender first, or check address and port.</source>
        <translation>nadie escucha ahí. Inicie primero el emisor, o compruebe la dirección y el puerto.</translation>
    </message>
    <message>
        <source>there is no machine of this name. Check the name.</source>
        <translation>no hay ninguna máquina con ese nombre. Compruebe el nombre.</translation>
    </message>
    <message>
        <source>no answer. Check the address, and whether a firewall is in the way.</source>
        <translation>no hay respuesta. Compruebe la dirección y si lo impide un cortafuegos.</translation>
    </message>
</context>
<context>
    <name>corvane::TcpListenerSource</name>
    <message>
        <source>Cannot accept connections at %1: %2.</source>
        <translation>No se pueden aceptar conexiones en %1: %2.</translation>
    </message>
</context>
<context>
    <name>corvane::UdpSource</name>
    <message>
        <source>Receiving at %1 failed: %2.</source>
        <translation>Error al recibir en %1: %2.</translation>
    </message>
</context>
</TS>
