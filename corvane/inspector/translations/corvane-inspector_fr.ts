<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>PlotSeries</name>
    <message>
        <source>Not described by the loaded definitions, or not a number</source>
        <translation>Non décrit par les définitions chargées, ou pas un nombre</translation>
    </message>
    <message>
        <source>Confidential, not shown</source>
        <translation>Confidentiel, non affiché</translation>
    </message>
    <message>
        <source>Not received yet</source>
        <translation>Pas encore reçu</translation>
    </message>
    <message>
        <source>Absent in the last message</source>
        <translation>Absent du dernier message</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Reçu</translation>
    </message>
    <message>
        <source>No finite number</source>
        <translation>Pas un nombre fini</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucune</translation>
    </message>
</context>
<context>
    <name>corvane::BytesPanel</name>
    <message>
        <source>Bytes of the message</source>
        <translation>Octets du message</translation>
    </message>
    <message>
        <source>Arrow keys move, with Shift they select; Ctrl+C copies as hexadecimal; Enter or a double click goes to the field of a byte</source>
        <translation>Les flèches déplacent, avec Maj elles sélectionnent&#xa0;; Ctrl+C copie en hexadécimal&#xa0;; Entrée ou un double clic va au champ d’un octet</translation>
    </message>
    <message>
        <source>Choose a message or a field in the tree to see its bytes.</source>
        <translation>Choisissez dans l’arbre un message ou un champ pour en voir les octets.</translation>
    </message>
    <message>
        <source>%1: no message of this type has come yet.</source>
        <translation>%1&#xa0;: aucun message de ce type n’est encore arrivé.</translation>
    </message>
    <message>
        <source>%1: this message did not come as bytes.</source>
        <translation>%1&#xa0;: ce message n’est pas arrivé sous forme d’octets.</translation>
    </message>
    <message>
        <source>%1: %2 bytes.</source>
        <translation>%1&#xa0;: %2 octets.</translation>
    </message>
    <message>
        <source>Masked (··): all that may be confidential.</source>
        <translation>Masqué (··)&#xa0;: tout ce qui peut être confidentiel.</translation>
    </message>
    <message>
        <source>%1: offset %2, length %3.</source>
        <translation>%1&#xa0;: position %2, longueur %3.</translation>
    </message>
    <message>
        <source>%1 is computed and has no bytes of its own.</source>
        <translation>%1 est calculé et n’a pas d’octets à lui.</translation>
    </message>
    <message>
        <source>Where fields lie in the bytes is not known in this format.</source>
        <translation>Dans ce format, on ne sait pas où se trouvent les champs dans les octets.</translation>
    </message>
    <message>
        <source>%1 has no bytes in this message.</source>
        <translation>%1 n’a pas d’octets dans ce message.</translation>
    </message>
    <message>
        <source>Offset %1 (0x%2)</source>
        <translation>Position %1 (0x%2)</translation>
    </message>
    <message>
        <source>, %1 bytes</source>
        <translation>, %1 octets</translation>
    </message>
    <message>
        <source>, in %1</source>
        <translation>, dans %1</translation>
    </message>
</context>
<context>
    <name>corvane::ConfidentialSwitch</name>
    <message>
        <source>Show &amp;Confidential Fields</source>
        <translation>Afficher les champs &amp;confidentiels</translation>
    </message>
    <message>
        <source>Show the content of fields that are marked as confidential</source>
        <translation>Afficher le contenu des champs marqués comme confidentiels</translation>
    </message>
    <message>
        <source>Confidential fields become readable in all views, and in what is exported or copied from now on, until this window is closed.</source>
        <translation>Les champs confidentiels deviennent lisibles dans toutes les vues, et dans tout ce qui est désormais exporté ou copié, jusqu’à la fermeture de cette fenêtre.</translation>
    </message>
    <message>
        <source>&amp;Show Them</source>
        <translation>&amp;Les afficher</translation>
    </message>
    <message>
        <source>Keep Them Hidden</source>
        <translation>Les garder masqués</translation>
    </message>
</context>
<context>
    <name>corvane::CrashTrace</name>
    <message>
        <source>The program has crashed before. What it did last is written in &quot;%1&quot;.</source>
        <translation>Le programme s’est arrêté brutalement. Ce qu’il a fait en dernier est écrit dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>Ouvrir le &amp;dossier</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
</context>
<context>
    <name>corvane::EventLogPanel</name>
    <message>
        <source>Show only events that contain…</source>
        <translation>Seulement les événements contenant…</translation>
    </message>
    <message>
        <source>Filter of the event log</source>
        <translation>Filtre du journal d’événements</translation>
    </message>
    <message>
        <source>To the end</source>
        <translation>Vers la fin</translation>
    </message>
    <message>
        <source>Scroll to the latest event and follow the log again</source>
        <translation>Aller au dernier événement et suivre de nouveau le journal</translation>
    </message>
    <message>
        <source>Event log</source>
        <translation>Journal d’événements</translation>
    </message>
    <message>
        <source>No events: nothing was damaged, lost or unknown</source>
        <translation>Aucun événement&#xa0;: rien n’a été endommagé, perdu ou inconnu</translation>
    </message>
    <message>
        <source>Entries: %1</source>
        <translation>Entrées : %1</translation>
    </message>
    <message>
        <source>Entries: %1 of %2</source>
        <translation>Entrées : %1 sur %2</translation>
    </message>
    <message>
        <source>, not following</source>
        <translation>, sans suivi</translation>
    </message>
</context>
<context>
    <name>corvane::ExportBar</name>
    <message>
        <source>Progress of the export</source>
        <translation>Progression de l’exportation</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>corvane::ExportController</name>
    <message>
        <source>CSV (*.csv);;All files (*)</source>
        <translation>CSV (*.csv);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>&amp;Export Messages...</source>
        <translation>&amp;Exporter des messages…</translation>
    </message>
    <message>
        <source>Write messages or some of their fields as CSV or JSON lines</source>
        <translation>Écrire des messages ou certains de leurs champs en CSV ou en lignes JSON</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>Export &amp;Statistics...</source>
        <translation>Exporter les &amp;statistiques…</translation>
    </message>
    <message>
        <source>Write the counts of all message types as CSV</source>
        <translation>Écrire les compteurs de tous les types de messages en CSV</translation>
    </message>
    <message>
        <source>Export Event &amp;Log...</source>
        <translation>Exporter le &amp;journal d’événements…</translation>
    </message>
    <message>
        <source>Write the event log as CSV</source>
        <translation>Écrire le journal d’événements en CSV</translation>
    </message>
    <message>
        <source>All of &quot;%1&quot; will be exported, from its start.</source>
        <translation>Tout «&#xa0;%1&#xa0;» sera exporté, depuis son début.</translation>
    </message>
    <message>
        <source>What %1 sends will be exported from now on, until you stop it.</source>
        <translation>Ce que %1 envoie sera exporté dès maintenant, jusqu’à ce que vous l’arrêtiez.</translation>
    </message>
    <message>
        <source>There is nothing to export: no source is open.</source>
        <translation>Il n’y a rien à exporter&#xa0;: aucune source n’est ouverte.</translation>
    </message>
    <message>
        <source>Export Statistics</source>
        <translation>Exporter les statistiques</translation>
    </message>
    <message>
        <source>Export Event Log</source>
        <translation>Exporter le journal d’événements</translation>
    </message>
    <message>
        <source>Exporting to &quot;%1&quot;: %2 messages</source>
        <translation>Exportation vers «&#xa0;%1&#xa0;»&#xa0;: %2 messages</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>%1 messages exported to &quot;%2&quot;.</source>
        <translation>%1 messages exportés vers «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The export ended after %1 messages: %2.</source>
        <translation>L’exportation s’est terminée après %1 messages&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;.</source>
        <translation>Exporté vers «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation>Impossible d’écrire «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>corvane::ExportDialog</name>
    <message>
        <source>&amp;Names in place of numbers, where values have names</source>
        <translation>Des &amp;noms au lieu de nombres, là où les valeurs en ont</translation>
    </message>
    <message>
        <source>Export Messages</source>
        <translation>Exporter des messages</translation>
    </message>
    <message>
        <source>Messages and fields</source>
        <translation>Messages et champs</translation>
    </message>
    <message>
        <source>Message or field</source>
        <translation>Message ou champ</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Reçu</translation>
    </message>
    <message>
        <source>CSV: a table</source>
        <translation>CSV&#xa0;: un tableau</translation>
    </message>
    <message>
        <source>JSON lines: an object for each message</source>
        <translation>Lignes JSON&#xa0;: un objet par message</translation>
    </message>
    <message>
        <source>Find messages and fields</source>
        <translation>Chercher des messages et des champs</translation>
    </message>
    <message>
        <source>F&amp;orm:</source>
        <translation>F&amp;orme&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>&amp;Fichier&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exporter</translation>
    </message>
    <message>
        <source>Choose &amp;All</source>
        <translation>&amp;Tout choisir</translation>
    </message>
    <message>
        <source>C&amp;hoose None</source>
        <translation>Ne &amp;rien choisir</translation>
    </message>
    <message>
        <source>Of what the list shows</source>
        <translation>Parmi ce que montre la liste</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation>&amp;Choisir…</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>CSV (*.csv);;JSON lines (*.jsonl);;All files (*)</source>
        <translation>CSV (*.csv);;Lignes JSON (*.jsonl);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Choose messages or fields to export.</source>
        <translation>Choisissez les messages ou champs à exporter.</translation>
    </message>
    <message>
        <source>Choose the file to write.</source>
        <translation>Choisissez le fichier à écrire.</translation>
    </message>
    <message>
        <source>The file exists and will be replaced.</source>
        <translation>Le fichier existe et sera remplacé.</translation>
    </message>
</context>
<context>
    <name>corvane::ExportJob</name>
    <message>
        <source>cannot write &quot;%1&quot;: it is the source</source>
        <translation>impossible d’écrire «&#xa0;%1&#xa0;»&#xa0;: c’est la source</translation>
    </message>
</context>
<context>
    <name>corvane::ExportWriter</name>
    <message>
        <source>cannot write &quot;%1&quot;: %2</source>
        <translation>impossible d’écrire «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>cannot write to standard output: %1</source>
        <translation>impossible d’écrire sur la sortie standard&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>corvane::FileList</name>
    <message>
        <source>Add…</source>
        <translation>Ajouter…</translation>
    </message>
    <message>
        <source>Add to: %1</source>
        <translation>Ajouter à&#xa0;: %1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Remove from: %1</source>
        <translation>Retirer de&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>corvane::FindBar</name>
    <message>
        <source>Find a name, a value or a path</source>
        <translation>Chercher un nom, une valeur ou un chemin</translation>
    </message>
    <message>
        <source>Find in the tree</source>
        <translation>Chercher dans l’arbre</translation>
    </message>
    <message>
        <source>Looks in names, values and, with a dot or a bracket, in paths (&quot;position.lat&quot;, &quot;volt[2]&quot;); Escape closes</source>
        <translation>Cherche dans les noms, les valeurs et, avec un point ou un crochet, dans les chemins («&#xa0;position.lat&#xa0;», «&#xa0;volt[2]&#xa0;»)&#xa0;; Échap ferme</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Go to the previous one (Shift+F3, Shift+Enter)</source>
        <translation>Aller au précédent (Maj+F3, Maj+Entrée)</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Go to the next one (F3, Enter)</source>
        <translation>Aller au suivant (F3, Entrée)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Close and collapse what was expanded (Escape)</source>
        <translation>Fermer et replier ce qui a été déplié (Échap)</translation>
    </message>
    <message>
        <source>from the end again</source>
        <translation>de nouveau depuis la fin</translation>
    </message>
    <message>
        <source>from the top again</source>
        <translation>de nouveau depuis le début</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Recherche…</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Rien trouvé</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>Trouvés&#xa0;: %1</translation>
    </message>
    <message>
        <source> so far</source>
        <translation> jusqu’ici</translation>
    </message>
</context>
<context>
    <name>corvane::FormPanel</name>
    <message>
        <source>Fields of the chosen message type</source>
        <translation>Champs du type de message choisi</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formulaire</translation>
    </message>
</context>
<context>
    <name>corvane::HelpPanel</name>
    <message>
        <source>Open a source</source>
        <translation>Ouvrir une source</translation>
    </message>
    <message>
        <source>A recording, a network address, a serial port or a program, together with the files that describe its messages. Files can be dropped onto the window.</source>
        <translation>Un enregistrement, une adresse de réseau, un port série ou un programme, avec les fichiers qui en décrivent les messages. Des fichiers peuvent être déposés sur la fenêtre.</translation>
    </message>
    <message>
        <source>Look at messages</source>
        <translation>Regarder les messages</translation>
    </message>
    <message>
        <source>The tree in the middle shows the last message of each type. A row that is chosen there, or in the list of types, fills the form. Choose what the tree shows in the menu Tree.</source>
        <translation>L’arbre au milieu montre le dernier message de chaque type. Une ligne choisie là, ou dans la liste des types, remplit le formulaire. Choisissez dans le menu Arbre ce que l’arbre montre.</translation>
    </message>
    <message>
        <source>Watch some fields</source>
        <translation>Surveiller quelques champs</translation>
    </message>
    <message>
        <source>Watch and Plot take paths of fields, FORMAT.MESSAGE.FIELD; * stands for any text.</source>
        <translation>Surveiller et Courbe prennent des chemins de champs, FORMAT.MESSAGE.CHAMP&#x202f;; * remplace tout texte.</translation>
    </message>
    <message>
        <source>See what is lost</source>
        <translation>Voir ce qui se perd</translation>
    </message>
    <message>
        <source>Statistics, senders and event log tell of rates, gaps, losses and damage of every message, shown or not, also while the views are paused.</source>
        <translation>Statistiques, émetteurs et journal d’événements disent les cadences, trous, pertes et dommages de chaque message, montré ou non, même quand les vues sont figées.</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>Le garder</translation>
    </message>
    <message>
        <source>Record writes the bytes of the source as they come. Export writes messages or some of their fields as text for other programs.</source>
        <translation>Enregistrer écrit les octets de la source comme ils arrivent. Exporter écrit des messages ou certains de leurs champs sous forme de texte pour d’autres programmes.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Corvane Inspector %1
Framework %1
Qt %2
Protocol Buffers %3</source>
        <translation>Inspecteur Corvane %1
Framework %1
Qt %2
Protocol Buffers %3</translation>
    </message>
</context>
<context>
    <name>corvane::MainWindow</name>
    <message>
        <source>Message types</source>
        <translation>Types de messages</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>Choose another source, or other definitions</source>
        <translation>Choisir une autre source ou d’autres définitions</translation>
    </message>
    <message>
        <source>&amp;Pause the Views</source>
        <translation>&amp;Figer les vues</translation>
    </message>
    <message>
        <source>Ctrl+P</source>
        <translation>Ctrl+P</translation>
    </message>
    <message>
        <source>Leave the views as they are; everything is counted all the same</source>
        <translation>Laisser les vues telles quelles&#x202f;; tout est compté quand même</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formulaire</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Surveiller</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>Event log</source>
        <translation>Journal d’événements</translation>
    </message>
    <message>
        <source>Senders</source>
        <translation>Émetteurs</translation>
    </message>
    <message>
        <source>Plot (not in this build)</source>
        <translation>Courbe (absente de cette version)</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>Courbe</translation>
    </message>
    <message>
        <source>No definition describes this message. Load the definitions of its dialect with --definitions FILE.</source>
        <translation>Aucune définition ne décrit ce message. Chargez les définitions de son dialecte avec --definitions FILE.</translation>
    </message>
    <message>
        <source>Waiting for messages from %1.</source>
        <translation>En attente de messages de %1.</translation>
    </message>
    <message>
        <source>Show or hide the tool bar</source>
        <translation>Montrer ou cacher la barre d’outils</translation>
    </message>
    <message>
        <source>Notices</source>
        <translation>Avis</translation>
    </message>
    <message>
        <source>Close the window; what it shows is remembered</source>
        <translation>Fermer la fenêtre&#x202f;; ce qu’elle montre est retenu</translation>
    </message>
    <message>
        <source>Show or hide the bar that plays recordings</source>
        <translation>Montrer ou cacher la barre de lecture des enregistrements</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Octets</translation>
    </message>
    <message>
        <source>Show or hide the panel &quot;%1&quot;</source>
        <translation>Montrer ou cacher le panneau «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>&amp;Uses and Keys</source>
        <translation>&amp;Usages et touches</translation>
    </message>
    <message>
        <source>What the window is for, and all keys</source>
        <translation>À quoi sert la fenêtre, et toutes les touches</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>The versions of the program and of what it uses</source>
        <translation>Les versions du programme et de ce qu’il utilise</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>%1 has ended.</source>
        <translation>%1 est terminé.</translation>
    </message>
    <message>
        <source>No source is open. Choose one with &quot;Open…&quot; in the menu &quot;File&quot;.</source>
        <translation>Aucune source n’est ouverte. Choisissez-en une avec « Ouvrir… » dans le menu « Fichier ».</translation>
    </message>
    <message>
        <source>%1 No bytes have come.</source>
        <translation>%1 Aucun octet n’est arrivé.</translation>
    </message>
    <message>
        <source>%1 None of its %2 bytes could be decoded: they are no messages of this format, or in another framing.</source>
        <translation>%1 Aucun de ses %2 octets n’a pu être décodé : ce ne sont pas des messages de ce format, ou leur cadrage est autre.</translation>
    </message>
    <message>
        <source>%1 %2 bytes have come, but no message of the loaded definitions among them.</source>
        <translation>%1 %2 octets sont arrivés, mais parmi eux aucun message des définitions chargées.</translation>
    </message>
</context>
<context>
    <name>corvane::MessageTreePanel</name>
    <message>
        <source>&amp;Tree</source>
        <translation>A&amp;rbre</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Choose what the tree shows</source>
        <translation>Choisir ce que montre l’arbre</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>Filter of repeated sub-messages</source>
        <translation>Filtre des sous-messages répétés</translation>
    </message>
    <message>
        <source>&amp;Computed Fields</source>
        <translation>Champs calcu&amp;lés</translation>
    </message>
    <message>
        <source>&amp;Secondary Fields</source>
        <translation>Champs sec&amp;ondaires</translation>
    </message>
    <message>
        <source>All &amp;Known Message Types</source>
        <translation>Tous les types de &amp;messages connus</translation>
    </message>
    <message>
        <source>&amp;Expand All</source>
        <translation>Tout &amp;déplier</translation>
    </message>
    <message>
        <source>C&amp;ollapse All</source>
        <translation>Tout repl&amp;ier</translation>
    </message>
    <message>
        <source>Show only repeated sub-messages with this name of a value</source>
        <translation>Ne montrer que les sous-messages répétés dont une valeur porte ce nom</translation>
    </message>
    <message>
        <source>Show or hide this column</source>
        <translation>Montrer ou cacher cette colonne</translation>
    </message>
    <message>
        <source>Current Ro&amp;w</source>
        <translation>Li&amp;gne courante</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Chercher…</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Find a row by name, value or path</source>
        <translation>Chercher une ligne par nom, valeur ou chemin</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Chercher le &amp;suivant</translation>
    </message>
    <message>
        <source>F3</source>
        <translation>F3</translation>
    </message>
    <message>
        <source>Go to the next row that was found</source>
        <translation>Aller à la ligne trouvée suivante</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>Chercher le &amp;précédent</translation>
    </message>
    <message>
        <source>Shift+F3</source>
        <translation>Shift+F3</translation>
    </message>
    <message>
        <source>Go to the row that was found before</source>
        <translation>Aller à la ligne trouvée avant</translation>
    </message>
    <message>
        <source>&amp;Units</source>
        <translation>&amp;Unités</translation>
    </message>
    <message>
        <source>Show units beside numbers</source>
        <translation>Montrer les unités à côté des nombres</translation>
    </message>
    <message>
        <source>He&amp;xadecimal</source>
        <translation>He&amp;xadécimal</translation>
    </message>
    <message>
        <source>Show integers in hexadecimal digits as well</source>
        <translation>Montrer aussi les entiers en chiffres hexadécimaux</translation>
    </message>
    <message>
        <source>Show fields that are computed from others</source>
        <translation>Montrer les champs calculés à partir d’autres</translation>
    </message>
    <message>
        <source>Show details that few readers want</source>
        <translation>Montrer les détails que peu de lecteurs veulent</translation>
    </message>
    <message>
        <source>Show types of which no message has come yet as well</source>
        <translation>Montrer aussi les types dont aucun message n’est encore arrivé</translation>
    </message>
    <message>
        <source>Ctrl+Right</source>
        <translation>Ctrl+Right</translation>
    </message>
    <message>
        <source>Expand all rows</source>
        <translation>Déplier toutes les lignes</translation>
    </message>
    <message>
        <source>Ctrl+Left</source>
        <translation>Ctrl+Left</translation>
    </message>
    <message>
        <source>Collapse all rows</source>
        <translation>Replier toutes les lignes</translation>
    </message>
    <message>
        <source>Nothing to filter: no message type has repeated sub-messages</source>
        <translation>Rien à filtrer&#xa0;: aucun type de message n’a de sous-messages répétés</translation>
    </message>
    <message>
        <source>No definitions are loaded, so nothing can be shown. Open a source together with the definitions of its messages.</source>
        <translation>Aucune définition n’est chargée, rien ne peut donc être montré. Ouvrez une source avec les définitions de ses messages.</translation>
    </message>
    <message>
        <source>No message has come yet. Each message type gets its row with its first message. The menu &quot;Show&quot; lists all %1 known types, messages or not.</source>
        <translation>Aucun message n’est encore arrivé. Chaque type de message reçoit sa ligne avec son premier message. Le menu «&#xa0;Afficher&#xa0;» énumère les %1 types connus, avec ou sans messages.</translation>
    </message>
    <message>
        <source>Choose a row to read about it. A right click offers more.</source>
        <translation>Choisissez une ligne pour lire à son sujet. Un clic droit en offre plus.</translation>
    </message>
</context>
<context>
    <name>corvane::MessageTypeModel</name>
    <message>
        <source>No definition describes this message.</source>
        <translation>Aucune définition ne décrit ce message.</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Nombre</translation>
    </message>
</context>
<context>
    <name>corvane::NoticeArea</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>corvane::OpenPanel</name>
    <message>
        <source>File or recording</source>
        <translation>Fichier ou enregistrement</translation>
    </message>
    <message>
        <source>Network: connect (TCP)</source>
        <translation>Réseau&#xa0;: se connecter (TCP)</translation>
    </message>
    <message>
        <source>Network: wait for a connection (TCP)</source>
        <translation>Réseau&#xa0;: attendre une connexion (TCP)</translation>
    </message>
    <message>
        <source>Network: datagrams (UDP)</source>
        <translation>Réseau&#xa0;: datagrammes (UDP)</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Port série</translation>
    </message>
    <message>
        <source>Output of a program</source>
        <translation>Sortie d’un programme</translation>
    </message>
    <message>
        <source>Open a Source</source>
        <translation>Ouvrir une source</translation>
    </message>
    <message>
        <source>&amp;Recent sources</source>
        <translation>Sources réce&amp;ntes</translation>
    </message>
    <message>
        <source>Recent sources</source>
        <translation>Sources récentes</translation>
    </message>
    <message>
        <source>This &amp;machine&apos;s own feed</source>
        <translation>Les données de cette &amp;machine</translation>
    </message>
    <message>
        <source>Load, memory, network, disks and processes of this machine, live</source>
        <translation>Charge, mémoire, réseau, disques et processus de cette machine, en direct</translation>
    </message>
    <message>
        <source>Kind of source</source>
        <translation>Sorte de source</translation>
    </message>
    <message>
        <source>Address of the source</source>
        <translation>Adresse de la source</translation>
    </message>
    <message>
        <source>Definitions</source>
        <translation>Définitions</translation>
    </message>
    <message>
        <source>Definitions (*.xml *.proto *.desc *.pb);;All files (*)</source>
        <translation>Définitions (*.xml *.proto *.desc *.pb);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Overlays</source>
        <translation>Surcouches</translation>
    </message>
    <message>
        <source>Overlays (*.json);;All files (*)</source>
        <translation>Surcouches (*.json);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Framing</source>
        <translation>Cadrage</translation>
    </message>
    <message>
        <source>By itself</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Root message type</source>
        <translation>Type de message racine</translation>
    </message>
    <message>
        <source>Protocol Buffers only: package.Type</source>
        <translation>Protocol Buffers seulement&#xa0;: paquet.Type</translation>
    </message>
    <message>
        <source>&amp;Source</source>
        <translation>&amp;Source</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>Adr&amp;esse</translation>
    </message>
    <message>
        <source>&amp;Definitions</source>
        <translation>&amp;Définitions</translation>
    </message>
    <message>
        <source>Overla&amp;ys</source>
        <translation>S&amp;urcouches</translation>
    </message>
    <message>
        <source>Frami&amp;ng</source>
        <translation>&amp;Cadrage</translation>
    </message>
    <message>
        <source>Root ty&amp;pe</source>
        <translation>&amp;Type racine</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>Parcourir…</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>Ports</translation>
    </message>
    <message>
        <source>Choose the file</source>
        <translation>Choisir le fichier</translation>
    </message>
    <message>
        <source>Choose the port</source>
        <translation>Choisir le port</translation>
    </message>
    <message>
        <source>This machine has no serial port</source>
        <translation>Cette machine n’a pas de port série</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Files that describe the messages: MAVLink dialects, .proto files or descriptor sets</source>
        <translation>Fichiers qui décrivent les messages : dialectes MAVLink, fichiers .proto ou jeux de descripteurs</translation>
    </message>
    <message>
        <source>Files that add roles, units or computed fields to the definitions</source>
        <translation>Fichiers qui ajoutent des rôles, des unités ou des champs calculés aux définitions</translation>
    </message>
    <message>
        <source>Nothing yet: what you open is listed here.</source>
        <translation>Rien encore&#xa0;: ce que vous ouvrez s’inscrira ici.</translation>
    </message>
    <message>
        <source>Name the source: %1.</source>
        <translation>Indiquez la source&#xa0;: %1.</translation>
    </message>
    <message>
        <source>This starts a program on this machine: %1
Press Open again to start it.</source>
        <translation>Ceci démarre un programme sur cette machine&#xa0;: %1
Appuyez encore sur Ouvrir pour le démarrer.</translation>
    </message>
    <message>
        <source>The messages of %1 cannot be read without their definitions. Add the files that describe them: for MAVLink a dialect (.xml), such as common.xml, with the files that it includes beside it; for Protocol Buffers the .proto files, or a descriptor set (.desc, .pb), and the root type.</source>
        <translation>Les messages de %1 ne peuvent pas être lus sans leurs définitions. Ajoutez les fichiers qui les décrivent&#xa0;: pour MAVLink un dialecte (.xml) comme common.xml, avec à côté les fichiers qu’il inclut&#x202f;; pour Protocol Buffers les fichiers .proto, ou un jeu de descripteurs (.desc, .pb), et le type racine.</translation>
    </message>
</context>
<context>
    <name>corvane::PlotLegend</name>
    <message>
        <source>Plotted series</source>
        <translation>Séries tracées</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Série</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>At cursor</source>
        <translation>Au curseur</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Axis</source>
        <translation>Axe</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>The newest value at the cursor&apos;s time</source>
        <translation>La valeur la plus récente à l’heure du curseur</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Draw at the Other Axis</source>
        <translation>Tracer sur l’autre axe</translation>
    </message>
    <message>
        <source>Ctrl+T</source>
        <translation>Ctrl+T</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Retirer %1</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
</context>
<context>
    <name>corvane::PlotPanel</name>
    <message>
        <source>Path of a field to plot</source>
        <translation>Chemin d’un champ à tracer</translation>
    </message>
    <message>
        <source>FORMAT.MESSAGE.FIELD; * stands for any text, FIELD[2] is the third element of a repeated field, FIELD[0..3] are the first four</source>
        <translation>FORMAT.MESSAGE.CHAMP&#x202f;; * remplace tout texte, CHAMP[2] est le troisième élément d’un champ répété, CHAMP[0..3] sont les quatre premiers</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Suivre</translation>
    </message>
    <message>
        <source>Follow the newest value (End)</source>
        <translation>Suivre la valeur la plus récente (Fin)</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Show less time (+)</source>
        <translation>Montrer moins de temps (+)</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Show more time (-)</source>
        <translation>Montrer plus de temps (-)</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>Show all that was recorded (Home)</source>
        <translation>Montrer tout l’enregistrement (Début)</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Fit the value axes to what is shown (V)</source>
        <translation>Ajuster les axes de valeurs à ce qui est montré (V)</translation>
    </message>
    <message>
        <source>Axis per Unit</source>
        <translation>Un axe par unité</translation>
    </message>
    <message>
        <source>Give each unit a value axis of its own</source>
        <translation>Donner à chaque unité son propre axe de valeurs</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy the picture (Ctrl+C)</source>
        <translation>Copier l’image (Ctrl+C)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save what is shown as PNG, SVG or CSV (Ctrl+S)</source>
        <translation>Enregistrer ce qui est montré en PNG, SVG ou CSV (Ctrl+S)</translation>
    </message>
    <message>
        <source>No numeric field is named &quot;%1&quot;. A path is FORMAT.MESSAGE.FIELD; * stands for any text.</source>
        <translation>Aucun champ numérique ne s’appelle «&#xa0;%1&#xa0;». Un chemin est FORMAT.MESSAGE.CHAMP&#x202f;; * remplace tout texte.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names more than %2 fields; name fewer.</source>
        <translation>«&#xa0;%1&#xa0;» désigne plus de %2 champs&#x202f;; désignez-en moins.</translation>
    </message>
    <message>
        <source>More than %1 series are not plotted.</source>
        <translation>Pas plus de %1 séries ne sont tracées.</translation>
    </message>
    <message>
        <source>The picture is in the clipboard.</source>
        <translation>L’image est dans le presse-papiers.</translation>
    </message>
    <message>
        <source>Save the Plot</source>
        <translation>Enregistrer la courbe</translation>
    </message>
    <message>
        <source>Picture (*.png);;Drawing (*.svg);;Shown values (*.csv)</source>
        <translation>Image (*.png);;Dessin (*.svg);;Valeurs montrées (*.csv)</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Écrit&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>corvane::PlotView</name>
    <message>
        <source>Plot</source>
        <translation>Courbe</translation>
    </message>
    <message>
        <source>%1 [%2]</source>
        <translation>%1 [%2]</translation>
    </message>
    <message>
        <source>Nothing is plotted yet. Type the path of a numeric field above, such as FORMAT.MESSAGE.FIELD, and press Enter; FIELD[2] is the third element of a repeated field.</source>
        <translation>Rien n’est encore tracé. Tapez ci-dessus le chemin d’un champ numérique, comme FORMAT.MESSAGE.CHAMP, et appuyez sur Entrée&#x202f;; CHAMP[2] est le troisième élément d’un champ répété.</translation>
    </message>
    <message>
        <source>No values yet. They appear as soon as messages with the chosen fields arrive.</source>
        <translation>Pas encore de valeurs. Elles apparaîtront à l’arrivée de messages contenant les champs choisis.</translation>
    </message>
    <message>
        <source>Following the newest value, %1 s</source>
        <translation>Suit la valeur la plus récente, %1 s</translation>
    </message>
    <message>
        <source>Standing still, %1 s</source>
        <translation>Immobile, %1 s</translation>
    </message>
    <message>
        <source>Paused, values are kept; %1 s</source>
        <translation>Figé, les valeurs sont gardées&#x202f;; %1 s</translation>
    </message>
    <message>
        <source>; value axes as set by hand</source>
        <translation>&#x202f;; axes de valeurs réglés à la main</translation>
    </message>
    <message>
        <source>; cursor at %1</source>
        <translation>&#x202f;; curseur à %1</translation>
    </message>
    <message>
        <source>The name of the file must end in .png, .svg or .csv.</source>
        <translation>Le nom du fichier doit finir par .png, .svg ou .csv.</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2</source>
        <translation>Impossible d’écrire «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
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
        <translation>Il n’y a rien à enregistrer&#xa0;: aucune source n’est ouverte.</translation>
    </message>
    <message>
        <source>Record to a File</source>
        <translation>Enregistrer dans un fichier</translation>
    </message>
    <message>
        <source>Recorded %1 to &quot;%2&quot;.</source>
        <translation>%1 enregistré dans «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>Stop &amp;Recording</source>
        <translation>Arrêter l’en&amp;registrement</translation>
    </message>
    <message>
        <source>&amp;Record…</source>
        <translation>En&amp;registrer…</translation>
    </message>
    <message>
        <source>End the recording and close its file</source>
        <translation>Terminer l’enregistrement et fermer son fichier</translation>
    </message>
    <message>
        <source>Write the bytes of the source to a file as they come</source>
        <translation>Écrire dans un fichier les octets de la source comme ils arrivent</translation>
    </message>
    <message>
        <source>Recording to &quot;%1&quot;: %2</source>
        <translation>Enregistrement dans «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Arrêter</translation>
    </message>
</context>
<context>
    <name>corvane::RowActions</name>
    <message>
        <source>&amp;Copy Value</source>
        <translation>&amp;Copier la valeur</translation>
    </message>
    <message>
        <source>Copy the value as it is shown</source>
        <translation>Copier la valeur comme elle est montrée</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>Copier le c&amp;hemin</translation>
    </message>
    <message>
        <source>Copy the path by which the watch list, the plot and exports know the row</source>
        <translation>Copier le chemin sous lequel la surveillance, la courbe et l’exportation connaissent la ligne</translation>
    </message>
    <message>
        <source>Copy &amp;Row</source>
        <translation>Copier la &amp;ligne</translation>
    </message>
    <message>
        <source>Copy the texts of all columns, with tabs between</source>
        <translation>Copier les textes de toutes les colonnes, séparés par des tabulations</translation>
    </message>
    <message>
        <source>Copy Message as &amp;JSON</source>
        <translation>Copier le message en &amp;JSON</translation>
    </message>
    <message>
        <source>Copy the whole message that is shown, as in an export</source>
        <translation>Copier tout le message montré, comme dans une exportation</translation>
    </message>
    <message>
        <source>Add to &amp;Watch</source>
        <translation>&amp;Surveiller</translation>
    </message>
    <message>
        <source>Show the field in the list of watched fields</source>
        <translation>Montrer le champ dans la liste des champs surveillés</translation>
    </message>
    <message>
        <source>P&amp;lot</source>
        <translation>&amp;Tracer</translation>
    </message>
    <message>
        <source>Draw the field over time</source>
        <translation>Tracer le champ au fil du temps</translation>
    </message>
    <message>
        <source>Show &amp;Form</source>
        <translation>Afficher le &amp;formulaire</translation>
    </message>
    <message>
        <source>Show the message type as a form</source>
        <translation>Montrer le type de message sous forme de formulaire</translation>
    </message>
    <message>
        <source>Show &amp;Bytes</source>
        <translation>Afficher les &amp;octets</translation>
    </message>
    <message>
        <source>Show the bytes of the message, with those of the field marked</source>
        <translation>Montrer les octets du message, ceux du champ étant marqués</translation>
    </message>
    <message>
        <source>Filter by &amp;This Value</source>
        <translation>Filtrer par cette &amp;valeur</translation>
    </message>
    <message>
        <source>Show only elements of lists that hold this value</source>
        <translation>Ne montrer que les éléments de listes qui contiennent cette valeur</translation>
    </message>
    <message>
        <source>E&amp;xpand Below</source>
        <translation>&amp;Déplier en dessous</translation>
    </message>
    <message>
        <source>Expand the row and all below</source>
        <translation>Déplier la ligne et tout ce qui est en dessous</translation>
    </message>
    <message>
        <source>C&amp;ollapse Below</source>
        <translation>&amp;Replier en dessous</translation>
    </message>
    <message>
        <source>Collapse the row and all below</source>
        <translation>Replier la ligne et tout ce qui est en dessous</translation>
    </message>
    <message>
        <source>No row is chosen</source>
        <translation>Aucune ligne n’est choisie</translation>
    </message>
    <message>
        <source>This row stands for no field</source>
        <translation>Cette ligne ne représente aucun champ</translation>
    </message>
    <message>
        <source>This row has no value of its own</source>
        <translation>Cette ligne n’a pas de valeur à elle</translation>
    </message>
    <message>
        <source>No message of this type has come yet</source>
        <translation>Aucun message de ce type n’est encore arrivé</translation>
    </message>
    <message>
        <source>A message type cannot be watched; choose a field</source>
        <translation>Un type de message ne peut pas être surveillé&#xa0;; choisissez un champ</translation>
    </message>
    <message>
        <source>Fields inside sub-messages cannot be watched</source>
        <translation>Les champs à l’intérieur de sous-messages ne peuvent pas être surveillés</translation>
    </message>
    <message>
        <source>This build has no plot</source>
        <translation>Cette version n’a pas de courbe</translation>
    </message>
    <message>
        <source>A message type cannot be plotted; choose a numeric field</source>
        <translation>Un type de message ne peut pas être tracé&#xa0;; choisissez un champ numérique</translation>
    </message>
    <message>
        <source>Only numeric fields can be plotted; this one is of type %1</source>
        <translation>Seuls les champs numériques peuvent être tracés&#xa0;; celui-ci est de type %1</translation>
    </message>
    <message>
        <source>What this field holds is confidential</source>
        <translation>Ce que contient ce champ est confidentiel</translation>
    </message>
    <message>
        <source>Only values inside the elements of a list of sub-messages can be filtered by</source>
        <translation>On ne peut filtrer que par des valeurs à l’intérieur des éléments d’une liste de sous-messages</translation>
    </message>
    <message>
        <source>There is no value</source>
        <translation>Il n’y a pas de valeur</translation>
    </message>
    <message>
        <source>There is nothing below this row</source>
        <translation>Il n’y a rien sous cette ligne</translation>
    </message>
</context>
<context>
    <name>corvane::RowDescription</name>
    <message>
        <source>list of %1</source>
        <translation>liste de %1</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>Empty in the newest message.</source>
        <translation>Vide dans le message le plus récent.</translation>
    </message>
    <message>
        <source>Absent: what it is computed from is not in the newest message.</source>
        <translation>Absent&#xa0;: ce à partir de quoi il est calculé n’est pas dans le message le plus récent.</translation>
    </message>
    <message>
        <source>Absent: the newest message has another case of &quot;%1&quot;, or none.</source>
        <translation>Absent&#xa0;: le message le plus récent a un autre cas de «&#xa0;%1&#xa0;», ou aucun.</translation>
    </message>
    <message>
        <source>Absent: the newest message came without this field.</source>
        <translation>Absent&#xa0;: le message le plus récent est arrivé sans ce champ.</translation>
    </message>
    <message>
        <source>Cut: only the beginning of %1 bytes is shown.</source>
        <translation>Tronqué&#xa0;: seul le début de %1 octets est montré.</translation>
    </message>
    <message>
        <source>Cut: only the beginning of %1 characters is shown.</source>
        <translation>Tronqué&#xa0;: seul le début de %1 caractères est montré.</translation>
    </message>
    <message>
        <source>%1 of %2 elements do not pass the filter.</source>
        <translation>%1 éléments sur %2 ne passent pas le filtre.</translation>
    </message>
    <message>
        <source>No message of this type has come yet.</source>
        <translation>Aucun message de ce type n’est encore arrivé.</translation>
    </message>
    <message>
        <source>Hidden: what it holds is confidential.</source>
        <translation>Masqué&#xa0;: son contenu est confidentiel.</translation>
    </message>
    <message>
        <source>Absent: the newest message came without the sub-message around it.</source>
        <translation>Absent&#xa0;: le message le plus récent est arrivé sans le sous-message qui le contient.</translation>
    </message>
</context>
<context>
    <name>corvane::SenderChooser</name>
    <message>
        <source>Sender whose messages are shown</source>
        <translation>Émetteur dont les messages sont montrés</translation>
    </message>
    <message>
        <source>Whose messages the views show. Everything is counted, whoever sends it.</source>
        <translation>De qui les vues montrent les messages. Tout est compté, quel que soit l’émetteur.</translation>
    </message>
    <message>
        <source>Only sender %1</source>
        <translation>Seulement l’émetteur %1</translation>
    </message>
    <message>
        <source>All %1 senders: the last one wins</source>
        <translation>Les %1 émetteurs&#xa0;: le dernier l’emporte</translation>
    </message>
</context>
<context>
    <name>corvane::SendersPanel</name>
    <message>
        <source>Here stands each sender with what it has sent and what was lost, once messages with sequence numbers come.</source>
        <translation>Ici figure chaque émetteur avec ce qu’il a envoyé et ce qui s’est perdu, dès que viennent des messages avec numéro de séquence.</translation>
    </message>
    <message>
        <source>Senders</source>
        <translation>Émetteurs</translation>
    </message>
    <message>
        <source>Sender</source>
        <translation>Émetteur</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Trames</translation>
    </message>
    <message>
        <source>Places with losses</source>
        <translation>Endroits avec pertes</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Perdus</translation>
    </message>
    <message>
        <source>CRC errors</source>
        <translation>Erreurs CRC</translation>
    </message>
    <message>
        <source>Below a sender: the message types that its damaged frames claim to be of</source>
        <translation>Sous un émetteur&#xa0;: les types de messages que ses trames endommagées prétendent être</translation>
    </message>
    <message>
        <source>Messages missing by their sequence numbers</source>
        <translation>Messages manquants d’après leurs numéros de séquence</translation>
    </message>
    <message>
        <source>Enter or a double click shows the messages of one sender only</source>
        <translation>Entrée ou un double clic ne montre que les messages d’un émetteur</translation>
    </message>
</context>
<context>
    <name>corvane::Session</name>
    <message>
        <source>An MCAP file brings its own definitions. Leave out --definitions and --root.</source>
        <translation>Un fichier MCAP apporte ses propres définitions. Omettez --definitions et --root.</translation>
    </message>
    <message>
        <source>Definitions of different formats cannot be mixed.</source>
        <translation>Des définitions de formats différents ne peuvent pas être mêlées.</translation>
    </message>
    <message>
        <source>--root and --import-path go with definitions of Protocol Buffers.</source>
        <translation>--root et --import-path vont avec des définitions Protocol Buffers.</translation>
    </message>
    <message>
        <source>--framing %1 does not go with %2; expected one of: %3.</source>
        <translation>--framing %1 ne va pas avec %2&#x202f;; attendu l’un de&#xa0;: %3.</translation>
    </message>
    <message>
        <source>Opened %1.</source>
        <translation>%1 ouvert.</translation>
    </message>
    <message>
        <source>%1 has ended.</source>
        <translation>%1 est terminé.</translation>
    </message>
    <message>
        <source>Cannot record to &quot;%1&quot;: it is the file that is being read. Choose another name.</source>
        <translation>Impossible d’enregistrer dans «&#xa0;%1&#xa0;»&#xa0;: c’est le fichier en cours de lecture. Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>There is not enough memory to read the definitions.</source>
        <translation>Il n’y a pas assez de mémoire pour lire les définitions.</translation>
    </message>
</context>
<context>
    <name>corvane::SettingsFile</name>
    <message>
        <source>it is no settings file</source>
        <translation>ce n’est pas un fichier de réglages</translation>
    </message>
    <message>
        <source>the value of &quot;%1&quot; is none that this program writes</source>
        <translation>la valeur de «&#xa0;%1&#xa0;» n’est pas de celles que ce programme écrit</translation>
    </message>
    <message>
        <source>The settings file could not be used: %1. Everything starts with its defaults; the old file is kept as &quot;%2&quot;.</source>
        <translation>Le fichier de réglages n’a pas pu être utilisé&#xa0;: %1. Tout commence avec les valeurs par défaut&#x202f;; l’ancien fichier est gardé sous «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; could not be used: %2. Everything starts with its defaults, and nothing will be remembered.</source>
        <translation>Le fichier de réglages «&#xa0;%1&#xa0;» n’a pas pu être utilisé&#xa0;: %2. Tout commence avec les valeurs par défaut, et rien ne sera retenu.</translation>
    </message>
    <message>
        <source>it cannot be read (%1)</source>
        <translation>il ne peut pas être lu (%1)</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>il est trop grand</translation>
    </message>
    <message>
        <source>it is no text</source>
        <translation>ce n’est pas du texte</translation>
    </message>
    <message>
        <source>it holds what this program does not write</source>
        <translation>il contient ce que ce programme n’écrit pas</translation>
    </message>
</context>
<context>
    <name>corvane::StatisticsPanel</name>
    <message>
        <source>Here stand count, rate, intervals and gaps of each message type, once messages come.</source>
        <translation>Ici figurent le nombre, la cadence, les intervalles et les trous de chaque type de message, dès que des messages arrivent.</translation>
    </message>
    <message>
        <source>Reception statistics</source>
        <translation>Statistiques de réception</translation>
    </message>
</context>
<context>
    <name>corvane::StatusFigures</name>
    <message>
        <source>Bytes that have come and wait to be read. A figure that grows says that more comes than can be shown.</source>
        <translation>Octets arrivés qui attendent d’être lus. Un chiffre qui croît dit qu’il en vient plus qu’il n’en peut être montré.</translation>
    </message>
    <message>
        <source>The longest time in the last 5 seconds in which the window did not react, because it was busy with messages or drawing</source>
        <translation>Le temps le plus long des 5 dernières secondes où la fenêtre n’a pas réagi, occupée par des messages ou par le dessin</translation>
    </message>
    <message>
        <source>Longest round: %1 ms</source>
        <translation>Tour le plus long&#xa0;: %1 ms</translation>
    </message>
    <message>
        <source>Messages: %1 (%2 per second)</source>
        <translation>Messages&#xa0;: %1 (%2 par seconde)</translation>
    </message>
    <message>
        <source>, CRC errors: %1</source>
        <translation>, erreurs CRC&#xa0;: %1</translation>
    </message>
    <message>
        <source>, unknown: %1</source>
        <translation>, inconnus&#xa0;: %1</translation>
    </message>
    <message>
        <source>, datagrams dropped: %1</source>
        <translation>, datagrammes rejetés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Backlog: %1</source>
        <translation>Retard&#xa0;: %1</translation>
    </message>
    <message>
        <source>The views stand still. Everything is counted all the same.</source>
        <translation>Les vues sont figées. Tout est compté quand même.</translation>
    </message>
    <message>
        <source>Paused for %1 s, new messages: %2</source>
        <translation>Figé depuis %1 s, nouveaux messages&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>corvane::TransportBar</name>
    <message>
        <source>Playback</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Ctrl+Space</source>
        <translation>Ctrl+Space</translation>
    </message>
    <message>
        <source>Next Message</source>
        <translation>Message suivant</translation>
    </message>
    <message>
        <source>Ctrl+.</source>
        <translation>Ctrl+.</translation>
    </message>
    <message>
        <source>Read on to the next message (Right, %1)</source>
        <translation>Lire jusqu’au message suivant (Droite, %1)</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>How fast the recording is played</source>
        <translation>À quelle vitesse l’enregistrement est lu</translation>
    </message>
    <message>
        <source>%1 x</source>
        <translation>%1 x</translation>
    </message>
    <message>
        <source>No waiting</source>
        <translation>Sans attendre</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>The place in the recording</source>
        <translation>L’endroit de l’enregistrement</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Indexing</source>
        <translation>Indexation</translation>
    </message>
    <message>
        <source>How much of the file has been indexed: places behind cannot be reached yet</source>
        <translation>La part indexée du fichier&#xa0;: ce qui suit n’est pas encore accessible</translation>
    </message>
    <message>
        <source>Indexing: %p %</source>
        <translation>Indexation&#xa0;: %p %</translation>
    </message>
    <message>
        <source>Stop Indexing</source>
        <translation>Arrêter l’indexation</translation>
    </message>
    <message>
        <source>Places that have not been indexed cannot be reached then</source>
        <translation>Les endroits non indexés ne seront alors pas accessibles</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>%1 (Space, %2)</source>
        <translation>%1 (Espace, %2)</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>corvane::TreeHistory</name>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Historique</translation>
    </message>
    <message>
        <source>A small line of the last 15 seconds of each numeric field</source>
        <translation>Une petite ligne des 15 dernières secondes de chaque champ numérique</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
</context>
<context>
    <name>corvane::ViewSettings</name>
    <message>
        <source>10 Times a Second</source>
        <translation>10 fois par seconde</translation>
    </message>
    <message>
        <source>4 Times a Second</source>
        <translation>4 fois par seconde</translation>
    </message>
    <message>
        <source>Once a Second</source>
        <translation>Une fois par seconde</translation>
    </message>
    <message>
        <source>Every 5 Seconds</source>
        <translation>Toutes les 5 secondes</translation>
    </message>
    <message>
        <source>Times in &amp;UTC</source>
        <translation>Heures en &amp;UTC</translation>
    </message>
    <message>
        <source>Show times in UTC instead of this machine&apos;s time zone</source>
        <translation>Montrer les heures en UTC au lieu du fuseau de cette machine</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Agrandir</translation>
    </message>
    <message>
        <source>Larger text in the views</source>
        <translation>Un texte plus grand dans les vues</translation>
    </message>
    <message>
        <source>Ctrl++</source>
        <translation>Ctrl++</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Réduire</translation>
    </message>
    <message>
        <source>Smaller text in the views</source>
        <translation>Un texte plus petit dans les vues</translation>
    </message>
    <message>
        <source>Ctrl+-</source>
        <translation>Ctrl+-</translation>
    </message>
    <message>
        <source>&amp;Normal Size</source>
        <translation>Taille &amp;normale</translation>
    </message>
    <message>
        <source>Text of the usual size in the views</source>
        <translation>Un texte de taille habituelle dans les vues</translation>
    </message>
    <message>
        <source>Ctrl+0</source>
        <translation>Ctrl+0</translation>
    </message>
    <message>
        <source>How often counts and statistics are refreshed</source>
        <translation>À quelle cadence les compteurs et statistiques sont rafraîchis</translation>
    </message>
    <message>
        <source>&amp;Refresh of Counts</source>
        <translation>Rafraîchisse&amp;ment des compteurs</translation>
    </message>
</context>
<context>
    <name>corvane::WatchPanel</name>
    <message>
        <source>Type the path of a field and press Enter, or pick one and press Watch.</source>
        <translation>Tapez le chemin d’un champ et appuyez sur Entrée, ou choisissez-en un et appuyez sur Surveiller.</translation>
    </message>
    <message>
        <source>Path of a field</source>
        <translation>Chemin d’un champ</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Message type</source>
        <translation>Type de message</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Champ</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Surveiller</translation>
    </message>
    <message>
        <source>Add the chosen fields</source>
        <translation>Ajouter les champs choisis</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move the current row up</source>
        <translation>Monter la ligne courante</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Move the current row down</source>
        <translation>Descendre la ligne courante</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Stop watching the current row (Delete)</source>
        <translation>Ne plus surveiller la ligne courante (Suppr)</translation>
    </message>
    <message>
        <source>Watched fields</source>
        <translation>Champs surveillés</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Stop Watching</source>
        <translation>Ne plus surveiller</translation>
    </message>
    <message>
        <source>No field is named &quot;%1&quot;. A path is FORMAT.MESSAGE.FIELD; * stands for any text.</source>
        <translation>Aucun champ ne s’appelle «&#xa0;%1&#xa0;». Un chemin est FORMAT.MESSAGE.CHAMP&#x202f;; * remplace tout texte.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names more than %2 fields; name fewer.</source>
        <translation>«&#xa0;%1&#xa0;» désigne plus de %2 champs&#x202f;; désignez-en moins.</translation>
    </message>
    <message>
        <source>Not described by the loaded definitions</source>
        <translation>Non décrit par les définitions chargées</translation>
    </message>
    <message>
        <source>Not received yet</source>
        <translation>Pas encore reçu</translation>
    </message>
    <message>
        <source>Timed out</source>
        <translation>Périmé</translation>
    </message>
    <message>
        <source>Absent in the last message</source>
        <translation>Absent du dernier message</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Actuel</translation>
    </message>
</context>
<context>
    <name>corvane::Workbench</name>
    <message>
        <source>Corvane Inspector</source>
        <translation>Inspecteur Corvane</translation>
    </message>
    <message>
        <source>End of %1</source>
        <translation>Fin de %1</translation>
    </message>
</context>
</TS>
