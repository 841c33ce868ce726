<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>EventLog</name>
    <message>
        <source>%1 older entries were dropped: the log is full.</source>
        <translation>%1 entrées plus anciennes ont été retirées&#xa0;: le journal est plein.</translation>
    </message>
</context>
<context>
    <name>EventLogTableWidget</name>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
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
        <translation>Message</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Current rate/interval</source>
        <translation>Cadence/intervalle actuels</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Trous</translation>
    </message>
    <message>
        <source>Message statistics for the messages
in the %1 format.</source>
        <translation>Statistiques des messages
au format %1.</translation>
    </message>
    <message>
        <source>CRC Errors</source>
        <translation>Erreurs CRC</translation>
    </message>
</context>
<context>
    <name>MessageTreeWidget</name>
    <message>
        <source>&amp;Type</source>
        <translation>&amp;Type</translation>
    </message>
    <message>
        <source>&amp;Raw Value</source>
        <translation>Valeur b&amp;rute</translation>
    </message>
    <message>
        <source>Duplicate column</source>
        <translation>Colonne en double</translation>
    </message>
    <message>
        <source>Attempt to add to a MessageTreeWidget a column that is already present: %1. Duplicate column was not added.</source>
        <translation>Tentative d’ajouter à un MessageTreeWidget une colonne déjà présente&#xa0;: %1. La colonne en double n’a pas été ajoutée.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Raw value</source>
        <translation>Valeur brute</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Custom 1</source>
        <translation>Personnalisée 1</translation>
    </message>
    <message>
        <source>Custom 2</source>
        <translation>Personnalisée 2</translation>
    </message>
    <message>
        <source>Custom 3</source>
        <translation>Personnalisée 3</translation>
    </message>
    <message>
        <source>Custom 4</source>
        <translation>Personnalisée 4</translation>
    </message>
    <message>
        <source>Custom 5</source>
        <translation>Personnalisée 5</translation>
    </message>
    <message>
        <source>Custom 6</source>
        <translation>Personnalisée 6</translation>
    </message>
    <message>
        <source>Custom 7</source>
        <translation>Personnalisée 7</translation>
    </message>
    <message>
        <source>Custom 8</source>
        <translation>Personnalisée 8</translation>
    </message>
    <message>
        <source>Custom 9</source>
        <translation>Personnalisée 9</translation>
    </message>
    <message>
        <source>Custom 10</source>
        <translation>Personnalisée 10</translation>
    </message>
    <message>
        <source>Column type %1</source>
        <translation>Type de colonne %1</translation>
    </message>
</context>
<context>
    <name>MessageTreeWidgetItem</name>
    <message>
        <source>No message type set</source>
        <translation>Aucun type de message défini</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>No message</source>
        <translation>Aucun message</translation>
    </message>
    <message>
        <source>Hidden data</source>
        <translation>Données masquées</translation>
    </message>
    <message>
        <source>Due to confidentiality, the data in this message has been (partly) hidden.</source>
        <translation>Pour des raisons de confidentialité, les données de ce message ont été (en partie) masquées.</translation>
    </message>
</context>
<context>
    <name>MessageWidget</name>
    <message>
        <source>No message type set</source>
        <translation>Aucun type de message défini</translation>
    </message>
</context>
<context>
    <name>PathExpressionComboBox</name>
    <message>
        <source>Null path expression set!</source>
        <translation>L’expression de chemin est nulle&#x202f;!</translation>
    </message>
    <message>
        <source>Null options source path expression set!</source>
        <translation>L’expression de chemin source des options est nulle&#x202f;!</translation>
    </message>
    <message>
        <source>No options</source>
        <translation>Aucune option</translation>
    </message>
</context>
<context>
    <name>PathExpressionLabel</name>
    <message>
        <source>No path expression set!</source>
        <translation>Aucune expression de chemin définie&#x202f;!</translation>
    </message>
</context>
<context>
    <name>PathExpressionLineEdit</name>
    <message>
        <source>No path expression set!</source>
        <translation>Aucune expression de chemin définie&#x202f;!</translation>
    </message>
</context>
<context>
    <name>PathExpressionListWidget</name>
    <message>
        <source>Null options source path expression set!</source>
        <translation>L’expression de chemin source des options est nulle&#x202f;!</translation>
    </message>
    <message>
        <source>No options</source>
        <translation>Aucune option</translation>
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
        <translation>%1 (inconnu)</translation>
    </message>
    <message>
        <source>Number of times the %1
message has been received.</source>
        <translation>Nombre de réceptions
du message %1.</translation>
    </message>
    <message>
        <source>Most recent regular rate/interval at which the %1
message has been received.</source>
        <translation>Dernière cadence régulière (dernier intervalle régulier)
de réception du message %1.</translation>
    </message>
    <message>
        <source>Detected gaps in regular data segments with valid time, if any.</source>
        <translation>Trous détectés dans des segments réguliers à l’heure valide, s’il y en a.</translation>
    </message>
    <message>
        <source>Rates/Intervals</source>
        <translation>Cadences/intervalles</translation>
    </message>
    <message>
        <source>The rates/intervals in which this message has been received,
together with the corresponding count.</source>
        <translation>Les cadences/intervalles de réception de ce message,
avec le nombre correspondant.</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>%1 (%2 epochs)</source>
        <translation>%1 (%2 époques)</translation>
    </message>
    <message>
        <source>No time</source>
        <translation>Sans heure</translation>
    </message>
    <message>
        <source>The number of times this message 
has been received without a valid time tag.</source>
        <translation>Nombre de réceptions de ce message
sans heure valide.</translation>
    </message>
    <message>
        <source>Unknown interval/rate</source>
        <translation>Intervalle/cadence inconnus</translation>
    </message>
    <message>
        <source>Number of times this message has been received 
with a valid time tag but for which the interval 
could not be determined: 
there was no previous message with valid time, 
and the following messages did not 
come in at a regular rate.</source>
        <translation>Nombre de réceptions de ce message
avec une heure valide, mais dont l’intervalle
n’a pas pu être déterminé&#xa0;:
aucun message précédent n’avait d’heure valide,
et les messages suivants ne sont pas arrivés
à une cadence régulière.</translation>
    </message>
    <message>
        <source>Number of times the message was received at %1.</source>
        <translation>Nombre de réceptions du message à %1.</translation>
    </message>
    <message>
        <source>Number of times the messages was received
with the same time stamp as previous.</source>
        <translation>Nombre de réceptions du message
avec le même horodatage que le précédent.</translation>
    </message>
    <message>
        <source>Gaps, with time and duration</source>
        <translation>Trous, avec heure et durée</translation>
    </message>
    <message>
        <source>Gaps (incomplete list)</source>
        <translation>Trous (liste incomplète)</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Trous</translation>
    </message>
    <message>
        <source>Gaps start</source>
        <translation>Début du trou</translation>
    </message>
    <message>
        <source>Missing epochs</source>
        <translation>Époques manquantes</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Colonne %1</translation>
    </message>
    <message>
        <source>No field set</source>
        <translation>Aucun champ défini</translation>
    </message>
    <message>
        <source>No values for optional field</source>
        <translation>Aucune valeur pour le champ optionnel</translation>
    </message>
    <message>
        <source>submessage</source>
        <translation>sous-message</translation>
    </message>
    <message>
        <source>repeated value</source>
        <translation>valeur répétée</translation>
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
        <translation>Sous-message optionnel absent</translation>
    </message>
    <message>
        <source>No value for optional field</source>
        <translation>Aucune valeur pour le champ optionnel</translation>
    </message>
    <message>
        <source>string</source>
        <translation>texte</translation>
    </message>
</context>
<context>
    <name>corvane::BoundSocket</name>
    <message>
        <source>Cannot receive at %1: </source>
        <translation>Réception impossible sur %1&#xa0;: </translation>
    </message>
    <message>
        <source>another program already uses this port. End it, or choose another port.</source>
        <translation>un autre programme utilise déjà ce port. Fermez-le ou choisissez un autre port.</translation>
    </message>
    <message>
        <source>no permission. Choose a port above 1023.</source>
        <translation>permission refusée. Choisissez un port supérieur à 1023.</translation>
    </message>
    <message>
        <source>this machine does not have this address. Leave it empty to mean all.</source>
        <translation>cette machine n’a pas cette adresse. Laissez-la vide pour les désigner toutes.</translation>
    </message>
</context>
<context>
    <name>corvane::EventGatherer</name>
    <message>
        <source>Unknown messages of various ids</source>
        <translation>Messages inconnus de divers identifiants</translation>
    </message>
    <message>
        <source>CRC errors of various messages</source>
        <translation>Erreurs CRC de divers messages</translation>
    </message>
    <message>
        <source>Messages of various senders lost</source>
        <translation>Messages de divers émetteurs perdus</translation>
    </message>
    <message>
        <source>Various events</source>
        <translation>Événements divers</translation>
    </message>
    <message>
        <source>%1: %2 more in the same second</source>
        <translation>%1&#xa0;: %2 de plus dans la même seconde</translation>
    </message>
</context>
<context>
    <name>corvane::FdSource</name>
    <message>
        <source>Cannot read %1: it is a folder. Name a file.</source>
        <translation>Impossible de lire %1&#xa0;: c’est un dossier. Indiquez un fichier.</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>Impossible de lire %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Reading %1 failed: %2.</source>
        <translation>Échec de la lecture de %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 has become shorter, so it is another recording now. Open it again.</source>
        <translation>%1 est devenu plus court&#xa0;: c’est désormais un autre enregistrement. Rouvrez-le.</translation>
    </message>
</context>
<context>
    <name>corvane::FileIndex</name>
    <message>
        <source>Cannot index %1: %2.</source>
        <translation>Impossible d’indexer %1&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>corvane::FileSource</name>
    <message>
        <source>Cannot open &quot;%1&quot;: </source>
        <translation>Impossible d’ouvrir «&#xa0;%1&#xa0;»&#xa0;: </translation>
    </message>
    <message>
        <source>there is no such file. Check the path.</source>
        <translation>ce fichier n’existe pas. Vérifiez le chemin.</translation>
    </message>
    <message>
        <source>it is a folder. Name a file in it.</source>
        <translation>c’est un dossier. Indiquez un fichier qu’il contient.</translation>
    </message>
    <message>
        <source>no permission to read it. Change its permissions or its owner.</source>
        <translation>lecture non autorisée. Changez ses permissions ou son propriétaire.</translation>
    </message>
</context>
<context>
    <name>corvane::MavlinkDecoder</name>
    <message>
        <source>checksum %1 received, %2 computed</source>
        <translation>somme de contrôle %1 reçue, %2 calculée</translation>
    </message>
    <message>
        <source>; it fits the payload extended with zeros to %1 bytes, so a relay has cut the zeros after the checksum was made</source>
        <translation>&#x202f;; elle correspond à la charge utile complétée de zéros à %1 octets&#xa0;: un relais a donc coupé les zéros après le calcul de la somme</translation>
    </message>
</context>
<context>
    <name>corvane::MavlinkDefinitionReader</name>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; includes itself, directly or through others.</source>
        <translation>«&#xa0;%1&#xa0;» s’inclut lui-même, directement ou par d’autres fichiers.</translation>
    </message>
    <message>
        <source>More than %1 files are included.</source>
        <translation>Plus de %1 fichiers sont inclus.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un fichier.</translation>
    </message>
    <message>
        <source>Cannot read &quot;%1&quot;: %2.</source>
        <translation>Impossible de lire «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than a definition file can be (32 MiB).</source>
        <translation>«&#xa0;%1&#xa0;» dépasse la taille permise d’un fichier de définitions (32 Mio).</translation>
    </message>
    <message>
        <source>The included files are larger than 64 MiB in all.</source>
        <translation>Les fichiers inclus dépassent 64 Mio au total.</translation>
    </message>
    <message>
        <source>A MAVLink definition file begins with &lt;mavlink&gt;, not with &lt;%1&gt;.</source>
        <translation>Un fichier de définitions MAVLink commence par &lt;mavlink&gt;, pas par &lt;%1&gt;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be included: name a file in this file&apos;s folder.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être inclus&#xa0;: indiquez un fichier du dossier de ce fichier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name for an enum: use letters, digits and underscores.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nom d’énumération&#xa0;: utilisez des lettres, des chiffres et des tirets bas.</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; of %2 needs a name of letters, digits and underscores and a whole number as its value, not &quot;%3&quot;.</source>
        <translation>L’entrée «&#xa0;%1&#xa0;» de %2 a besoin d’un nom fait de lettres, de chiffres et de tirets bas et d’un nombre entier pour valeur, pas «&#xa0;%3&#xa0;».</translation>
    </message>
    <message>
        <source>There are more than %1 enum entries.</source>
        <translation>Il y a plus de %1 entrées d’énumération.</translation>
    </message>
    <message>
        <source>%1 = %2 of %3 is passed over: the name or the value is taken.</source>
        <translation>%1 = %2 de %3 est ignoré&#xa0;: le nom ou la valeur est déjà pris.</translation>
    </message>
    <message>
        <source>The message &quot;%1&quot; needs a name of letters, digits and underscores and an id from 0 to 16777215, not &quot;%2&quot;.</source>
        <translation>Le message «&#xa0;%1&#xa0;» a besoin d’un nom fait de lettres, de chiffres et de tirets bas et d’un identifiant de 0 à 16777215, pas «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>There are more than %1 messages, or more than %2 fields and bits of fields.</source>
        <translation>Il y a plus de %1 messages, ou plus de %2 champs et bits de champs.</translation>
    </message>
    <message>
        <source>The message %1 with id %2 is there already: %3 with id %4, line %5 of %6.</source>
        <translation>Le message %1 d’identifiant %2 existe déjà&#xa0;: %3 d’identifiant %4, ligne %5 de %6.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name for a field: use letters, digits and underscores.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nom de champ&#xa0;: utilisez des lettres, des chiffres et des tirets bas.</translation>
    </message>
    <message>
        <source>%1 has two fields named %2.</source>
        <translation>%1 a deux champs nommés %2.</translation>
    </message>
    <message>
        <source>The field %1 has the unknown type &quot;%2&quot;. Known are int8_t to int64_t, uint8_t to uint64_t, float, double and char, each also with a length from 1 to 255 in brackets.</source>
        <translation>Le champ %1 a le type inconnu «&#xa0;%2&#xa0;». Sont connus int8_t à int64_t, uint8_t à uint64_t, float, double et char, chacun aussi avec une longueur de 1 à 255 entre crochets.</translation>
    </message>
    <message>
        <source>The fields of %1 take more than the %2 bytes that a frame has room for.</source>
        <translation>Les champs de %1 occupent plus que les %2 octets qu’une trame peut contenir.</translation>
    </message>
    <message>
        <source>The elements are nested too deeply.</source>
        <translation>Les éléments sont imbriqués trop profondément.</translation>
    </message>
</context>
<context>
    <name>corvane::MavlinkFormat</name>
    <message>
        <source>The message %1 with id %2 contradicts %3 with id %4, which is loaded already.</source>
        <translation>Le message %1 d’identifiant %2 contredit %3 d’identifiant %4, déjà chargé.</translation>
    </message>
</context>
<context>
    <name>corvane::McapDecoder</name>
    <message>
        <source>%1 bytes of channel %2, at offset %3 of the file, are no message of type %4.</source>
        <translation>%1 octets du canal %2, à la position %3 du fichier, ne forment pas un message de type %4.</translation>
    </message>
    <message>
        <source>%1 (at offset %2)</source>
        <translation>%1 (à la position %2)</translation>
    </message>
</context>
<context>
    <name>corvane::McapDefinitions</name>
    <message>
        <source>Cannot be read: %1.</source>
        <translation>Impossible à lire&#xa0;: %1.</translation>
    </message>
    <message>
        <source>This is no MCAP file, or one of another version.</source>
        <translation>Ce n’est pas un fichier MCAP, ou il est d’une autre version.</translation>
    </message>
    <message>
        <source>The file contains no channels.</source>
        <translation>Le fichier ne contient aucun canal.</translation>
    </message>
</context>
<context>
    <name>corvane::McapFormat</name>
    <message>
        <source>Only one MCAP file can be loaded.</source>
        <translation>Un seul fichier MCAP peut être chargé.</translation>
    </message>
    <message>
        <source>None of the channels has messages of Protocol Buffers.</source>
        <translation>Aucun canal n’a de messages Protocol Buffers.</translation>
    </message>
    <message>
        <source>schema %1</source>
        <translation>schéma %1</translation>
    </message>
    <message>
        <source>The schema %1 does not define the message type of that name.</source>
        <translation>Le schéma %1 ne définit pas le type de message de ce nom.</translation>
    </message>
    <message>
        <source>The message type %1 has too many parts to be shown.</source>
        <translation>Le type de message %1 a trop de parties pour être affiché.</translation>
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
        <translation>Un bloc est compressé avec «&#xa0;%1&#xa0;», qui n’est pas connu.</translation>
    </message>
    <message>
        <source>A chunk cannot be decompressed.</source>
        <translation>Un bloc ne peut pas être décompressé.</translation>
    </message>
    <message>
        <source>A chunk holds more than the %1 bytes it tells of.</source>
        <translation>Un bloc contient plus que les %1 octets qu’il annonce.</translation>
    </message>
    <message>
        <source>A chunk holds less than the %1 bytes it tells of.</source>
        <translation>Un bloc contient moins que les %1 octets qu’il annonce.</translation>
    </message>
    <message>
        <source>The checksum of a chunk is wrong.</source>
        <translation>La somme de contrôle d’un bloc est fausse.</translation>
    </message>
    <message>
        <source>This is no MCAP file, or one of another version.</source>
        <translation>Ce n’est pas un fichier MCAP, ou il est d’une autre version.</translation>
    </message>
    <message>
        <source>The mark at the end of the file is wrong.</source>
        <translation>La marque de fin du fichier est fausse.</translation>
    </message>
    <message>
        <source>There is no record where one must be.</source>
        <translation>Il n’y a pas d’enregistrement là où il en faut un.</translation>
    </message>
    <message>
        <source>A record of %1 bytes is larger than the %2 that are allowed.</source>
        <translation>Un enregistrement de %1 octets dépasse les %2 permis.</translation>
    </message>
    <message>
        <source>The records of a chunk do not end where the chunk does.</source>
        <translation>Les enregistrements d’un bloc ne finissent pas où finit le bloc.</translation>
    </message>
    <message>
        <source>There is a chunk inside a chunk.</source>
        <translation>Il y a un bloc dans un bloc.</translation>
    </message>
    <message>
        <source>There are bytes behind the end of the file.</source>
        <translation>Il y a des octets après la fin du fichier.</translation>
    </message>
    <message>
        <source>The file is cut off here.</source>
        <translation>Le fichier est coupé ici.</translation>
    </message>
    <message>
        <source>A schema is incomplete.</source>
        <translation>Un schéma est incomplet.</translation>
    </message>
    <message>
        <source>Schema %1 is not the one that had this number before.</source>
        <translation>Le schéma %1 n’est pas celui qui avait ce numéro auparavant.</translation>
    </message>
    <message>
        <source>There are more or larger schemas than are allowed.</source>
        <translation>Il y a des schémas plus nombreux ou plus grands que permis.</translation>
    </message>
    <message>
        <source>A channel is incomplete.</source>
        <translation>Un canal est incomplet.</translation>
    </message>
    <message>
        <source>Channel %1 is not the one that had this number before.</source>
        <translation>Le canal %1 n’est pas celui qui avait ce numéro auparavant.</translation>
    </message>
    <message>
        <source>Channel %1 names schema %2, which the file does not contain.</source>
        <translation>Le canal %1 désigne le schéma %2, que le fichier ne contient pas.</translation>
    </message>
    <message>
        <source>There are more channels than are allowed.</source>
        <translation>Il y a plus de canaux que permis.</translation>
    </message>
    <message>
        <source>A message is incomplete.</source>
        <translation>Un message est incomplet.</translation>
    </message>
    <message>
        <source>A message names channel %1, which the file does not contain.</source>
        <translation>Un message désigne le canal %1, que le fichier ne contient pas.</translation>
    </message>
    <message>
        <source>A chunk is incomplete.</source>
        <translation>Un bloc est incomplet.</translation>
    </message>
    <message>
        <source>A chunk tells of %1 bytes, more than the %2 that are allowed.</source>
        <translation>Un bloc annonce %1 octets, plus que les %2 permis.</translation>
    </message>
</context>
<context>
    <name>corvane::ProcessSource</name>
    <message>
        <source>Cannot start &quot;%1&quot;: %2.</source>
        <translation>Impossible de démarrer «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Reading from &quot;%1&quot; failed: %2.</source>
        <translation>Échec de la lecture depuis «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ended with exit code %2.</source>
        <translation>«&#xa0;%1&#xa0;» s’est terminé avec le code %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was ended by signal %2.</source>
        <translation>«&#xa0;%1&#xa0;» a été terminé par le signal %2.</translation>
    </message>
    <message>
        <source>It said last:</source>
        <translation>Sa dernière sortie&#xa0;:</translation>
    </message>
</context>
<context>
    <name>corvane::ProtobufDecoder</name>
    <message>
        <source>no definitions are loaded</source>
        <translation>aucune définition n’est chargée</translation>
    </message>
    <message>
        <source>they should be the length of a message and are none</source>
        <translation>ils devraient être la longueur d’un message et n’en sont pas une</translation>
    </message>
    <message>
        <source>the stream ends inside of a message</source>
        <translation>le flux finit au milieu d’un message</translation>
    </message>
    <message>
        <source>the message would take more than %1 bytes of memory</source>
        <translation>le message prendrait plus de %1 octets de mémoire</translation>
    </message>
    <message>
        <source>they are no message of type %1</source>
        <translation>ils ne forment pas un message de type %1</translation>
    </message>
    <message>
        <source>The message at offset %1 would be %2 bytes long, more than %3; it is passed over. Is the framing right?</source>
        <translation>Le message à la position %1 aurait %2 octets, plus que %3&#x202f;; il est ignoré. Le cadrage est-il le bon&#x202f;?</translation>
    </message>
</context>
<context>
    <name>corvane::ProtobufFormat</name>
    <message>
        <source>Definitions are loaded already.</source>
        <translation>Des définitions sont déjà chargées.</translation>
    </message>
    <message>
        <source>The message type %1 has too many parts to be shown.</source>
        <translation>Le type de message %1 a trop de parties pour être affiché.</translation>
    </message>
    <message>
        <source>Which message type does the stream consist of? Name it with --root, such as one of: %1.</source>
        <translation>De quel type de message le flux est-il fait&#x202f;? Indiquez-le avec --root, par exemple l’un de&#xa0;: %1.</translation>
    </message>
    <message>
        <source>There is no message type %1; expected &quot;package.Type&quot;, such as one of: %2.</source>
        <translation>Il n’y a pas de type de message %1&#x202f;; attendu «&#xa0;paquet.Type&#xa0;», par exemple l’un de&#xa0;: %2.</translation>
    </message>
    <message>
        <source>stream</source>
        <translation>flux</translation>
    </message>
</context>
<context>
    <name>corvane::Reception</name>
    <message>
        <source>Unknown message: %1</source>
        <translation>Message inconnu&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1. Load the definitions that describe this id.</source>
        <translation>%1. Chargez les définitions qui décrivent cet identifiant.</translation>
    </message>
    <message>
        <source>CRC error: %1</source>
        <translation>Erreur CRC&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 bytes from offset %2 belong to no frame.</source>
        <translation>%1 octets à partir de la position %2 n’appartiennent à aucune trame.</translation>
    </message>
    <message>
        <source>Bytes that belong to no frame</source>
        <translation>Octets n’appartenant à aucune trame</translation>
    </message>
    <message>
        <source>%1 bytes from offset %2 are lost: %3.</source>
        <translation>%1 octets à partir de la position %2 sont perdus&#xa0;: %3.</translation>
    </message>
    <message>
        <source>Bytes lost: %1</source>
        <translation>Octets perdus&#xa0;: %1</translation>
    </message>
    <message>
        <source>Sender %1: %2 messages lost before sequence number %3.</source>
        <translation>Émetteur %1&#xa0;: %2 messages perdus avant le numéro de séquence %3.</translation>
    </message>
    <message>
        <source>Sender %1: messages lost</source>
        <translation>Émetteur %1&#xa0;: messages perdus</translation>
    </message>
    <message>
        <source>id %1</source>
        <translation>identifiant %1</translation>
    </message>
    <message>
        <source>%1 from sender %2</source>
        <translation>%1 de l’émetteur %2</translation>
    </message>
</context>
<context>
    <name>corvane::Reconnector</name>
    <message>
        <source>Connection lost, trying again in %1 s</source>
        <translation>Connexion perdue, nouvel essai dans %1 s</translation>
    </message>
    <message>
        <source>%1 Trying again in %2 s.</source>
        <translation>%1 Nouvel essai dans %2 s.</translation>
    </message>
</context>
<context>
    <name>corvane::Recorder</name>
    <message>
        <source>there is no such folder. Choose another one.</source>
        <translation>ce dossier n’existe pas. Choisissez-en un autre.</translation>
    </message>
    <message>
        <source>it is a folder. Name a file in it.</source>
        <translation>c’est un dossier. Indiquez un fichier qu’il contient.</translation>
    </message>
    <message>
        <source>no permission to write there. Choose another folder.</source>
        <translation>écriture non autorisée à cet endroit. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>it is no file. Choose another name.</source>
        <translation>ce n’est pas un fichier. Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>Cannot record to &quot;%1&quot;: %2</source>
        <translation>Impossible d’enregistrer dans «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>le disque est plein</translation>
    </message>
    <message>
        <source>the disk is slower than the stream</source>
        <translation>le disque est plus lent que le flux</translation>
    </message>
    <message>
        <source>Recording to &quot;%1&quot; has stopped: %2. The first %3 bytes were kept; watching goes on.</source>
        <translation>L’enregistrement dans «&#xa0;%1&#xa0;» s’est arrêté&#xa0;: %2. Les %3 premiers octets ont été gardés&#x202f;; l’observation continue.</translation>
    </message>
</context>
<context>
    <name>corvane::SerialSource</name>
    <message>
        <source>Reading %1 failed: the device is gone. Plug it in, and open it again.</source>
        <translation>Échec de la lecture de %1&#xa0;: le périphérique a disparu. Rebranchez-le et rouvrez-le.</translation>
    </message>
    <message>
        <source>Cannot open %1: </source>
        <translation>Impossible d’ouvrir %1&#xa0;: </translation>
    </message>
    <message>
        <source>there is no such device. Check the name, and whether it is plugged in.</source>
        <translation>ce périphérique n’existe pas. Vérifiez son nom et s’il est branché.</translation>
    </message>
    <message>
        <source>no permission, or in use by another program. End that program, or become a member of the group that owns the device (often &quot;dialout&quot;).</source>
        <translation>permission refusée, ou utilisé par un autre programme. Fermez ce programme, ou devenez membre du groupe auquel appartient le périphérique (souvent «&#xa0;dialout&#xa0;»).</translation>
    </message>
</context>
<context>
    <name>corvane::SourceAddress</name>
    <message>
        <source> Expected %1.</source>
        <translation> Attendu&#xa0;: %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no source: %2.</source>
        <translation>«&#xa0;%1&#xa0;» ne désigne aucune source&#xa0;: %2.</translation>
    </message>
    <message>
        <source>it is empty; expected a file, or - for standard input</source>
        <translation>elle est vide&#x202f;; attendu un fichier, ou - pour l’entrée standard</translation>
    </message>
    <message>
        <source>the scheme &quot;%1&quot; is unknown; known are tcp://, tcp-listen://, udp://, serial: and exec:</source>
        <translation>le schéma «&#xa0;%1&#xa0;» est inconnu&#x202f;; sont connus tcp://, tcp-listen://, udp://, serial: et exec:</translation>
    </message>
    <message>
        <source>&quot;//&quot; is missing after &quot;%1:&quot;</source>
        <translation>«&#xa0;//&#xa0;» manque après «&#xa0;%1:&#xa0;»</translation>
    </message>
    <message>
        <source>the port is missing</source>
        <translation>le port manque</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in brackets is no IPv6 address</source>
        <translation>«&#xa0;%1&#xa0;» entre crochets n’est pas une adresse IPv6</translation>
    </message>
    <message>
        <source>an IPv6 address is written in brackets, such as [::1]</source>
        <translation>une adresse IPv6 s’écrit entre crochets, comme [::1]</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name of a host</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nom d’hôte</translation>
    </message>
    <message>
        <source>the host is missing</source>
        <translation>l’hôte manque</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no IPv4 address of this machine</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une adresse IPv4 de cette machine</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no port, which is a number from %2 to %3</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un port, qui est un nombre de %2 à %3</translation>
    </message>
    <message>
        <source>the device is missing</source>
        <translation>le périphérique manque</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unknown after the question mark</source>
        <translation>«&#xa0;%1&#xa0;» est inconnu après le point d’interrogation</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no baud rate, which is a number such as 57600 or 115200</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un débit en bauds, qui est un nombre comme 57600 ou 115200</translation>
    </message>
    <message>
        <source>the command is missing</source>
        <translation>la commande manque</translation>
    </message>
</context>
<context>
    <name>corvane::StdinSource</name>
    <message>
        <source>standard input</source>
        <translation>entrée standard</translation>
    </message>
    <message>
        <source>Cannot read standard input: it is closed. Redirect a file or a pipe to it.</source>
        <translation>Impossible de lire l’entrée standard&#xa0;: elle est fermée. Redirigez-y un fichier ou un tube.</translation>
    </message>
</context>
<context>
    <name>corvane::StreamPump</name>
    <message>
        <source>There is not enough memory to read on; what was read before stays.</source>
        <translation>Il n’y a pas assez de mémoire pour continuer la lecture&#x202f;; ce qui a été lu avant reste.</translation>
    </message>
</context>
<context>
    <name>corvane::TcpClientSource</name>
    <message>
        <source>The connection to %1 broke: %2.</source>
        <translation>La connexion à %1 a été rompue&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Cannot connect to %1: </source>
        <translation>Impossible de se connecter à %1&#xa0;: </translation>
    </message>
    <message>
        <source>nobody listens there. Start the sender first, or check address and port.</source>
        <translation>personne n’y écoute. Démarrez d’abord l’émetteur, ou vérifiez l’adresse et le port.</translation>
    </message>
    <message>
        <source>there is no machine of this name. Check the name.</source>
        <translation>aucune machine ne porte ce nom. Vérifiez le nom.</translation>
    </message>
    <message>
        <source>no answer. Check the address, and whether a firewall is in the way.</source>
        <translation>pas de réponse. Vérifiez l’adresse, et qu’aucun pare-feu ne gêne.</translation>
    </message>
</context>
<context>
    <name>corvane::TcpListenerSource</name>
    <message>
        <source>Cannot accept connections at %1: %2.</source>
        <translation>Impossible d’accepter des connexions sur %1&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>corvane::UdpSource</name>
    <message>
        <source>Receiving at %1 failed: %2.</source>
        <translation>Échec de la réception sur %1&#xa0;: %2.</translation>
    </message>
</context>
</TS>
