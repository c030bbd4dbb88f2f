<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ApplicationActions</name>
    <message>
        <source>&amp;Colours</source>
        <translation>&amp;Couleurs</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Palette</translation>
    </message>
    <message>
        <source>Lexiform &amp;Help</source>
        <translation>&amp;Aide de Lexiform</translation>
    </message>
    <message>
        <source>Application &amp;Updates</source>
        <translation>&amp;Mises à jour</translation>
    </message>
    <message>
        <source>&amp;Support</source>
        <translation>Assi&amp;stance</translation>
    </message>
</context>
<context>
    <name>DocumentQuestions</name>
    <message>
        <source>Save the changes to “%1”?</source>
        <translation>Enregistrer les modifications de «&#x202f;%1&#x202f;»&#x202f;?</translation>
    </message>
    <message>
        <source>They are lost if they are not saved.</source>
        <translation>Sinon, elles seront perdues.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Don’t Save</source>
        <translation>&amp;Ne pas enregistrer</translation>
    </message>
    <message>
        <source>Replace the text of “%1” with the output pane?</source>
        <translation>Remplacer le texte de «&#x202f;%1&#x202f;» par le contenu du volet de sortie&#x202f;?</translation>
    </message>
    <message>
        <source>What is saved is the output pane, which holds other characters than the text. Parsing again puts the text there.</source>
        <translation>C’est le volet de sortie qui est enregistré, et il contient d’autres caractères que le texte. Une nouvelle analyse y remet le texte.</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Remplacer</translation>
    </message>
    <message>
        <source>Save “%1” without its latest changes?</source>
        <translation>Enregistrer «&#x202f;%1&#x202f;» sans ses dernières modifications&#x202f;?</translation>
    </message>
    <message>
        <source>What is saved is the output pane, which does not show them. Parsing puts them there.</source>
        <translation>C’est le volet de sortie qui est enregistré, et ces modifications n’y figurent pas. Une analyse les y fait apparaître.</translation>
    </message>
    <message>
        <source>&amp;Save Without</source>
        <translation>&amp;Enregistrer sans</translation>
    </message>
    <message>
        <source>“%1” was changed by another program.</source>
        <translation>«&#x202f;%1&#x202f;» a été modifié par un autre programme.</translation>
    </message>
    <message>
        <source>Saving replaces what it holds now.</source>
        <translation>L’enregistrement remplace son contenu actuel.</translation>
    </message>
    <message>
        <source>Go back to “%1” as it was saved?</source>
        <translation>Revenir à «&#x202f;%1&#x202f;» tel qu’il était enregistré&#x202f;?</translation>
    </message>
    <message>
        <source>The document then counts as unchanged. Its input pane keeps its text.</source>
        <translation>Le document passe alors pour inchangé. Le volet d’entrée garde son texte.</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>Re&amp;venir</translation>
    </message>
    <message>
        <source>The document “%1” could not be saved.</source>
        <translation>Le document «&#x202f;%1&#x202f;» n’a pas pu être enregistré.</translation>
    </message>
</context>
<context>
    <name>DocumentSaver</name>
    <message>
        <source>Its window shows nothing that can be saved (%1 %2).</source>
        <translation>Sa fenêtre ne montre rien qui puisse être enregistré (%1 %2).</translation>
    </message>
    <message>
        <source>A file of that name is open in another window. Close that window first, or take another name.</source>
        <translation>Un fichier de ce nom est ouvert dans une autre fenêtre. Fermez d’abord cette fenêtre ou prenez un autre nom.</translation>
    </message>
</context>
<context>
    <name>FileType</name>
    <message>
        <source>Plain text (*.txt)</source>
        <translation>Texte brut (*.txt)</translation>
    </message>
    <message>
        <source>Rich text (*.rtf)</source>
        <translation>Texte mis en forme (*.rtf)</translation>
    </message>
    <message>
        <source>Texts (%1)</source>
        <translation>Textes (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>FileWriter</name>
    <message>
        <source>“%1” could not be saved in “%2”: %3.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas pu être enregistré dans «&#x202f;%2&#x202f;»&#x202f;: %3.</translation>
    </message>
</context>
<context>
    <name>OpenFailure</name>
    <message>
        <source>There is no such file.</source>
        <translation>Ce fichier n’existe pas.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>C’est un dossier.</translation>
    </message>
    <message>
        <source>It is not an ordinary file.</source>
        <translation>Ce n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>You do not have permission to read it.</source>
        <translation>Vous n’avez pas le droit de le lire.</translation>
    </message>
    <message>
        <source>It is larger than 1 GB, more than a window can show.</source>
        <translation>Il dépasse 1 Go, plus qu’une fenêtre ne peut montrer.</translation>
    </message>
    <message>
        <source>It could not be read to its end.</source>
        <translation>Il n’a pas pu être lu jusqu’au bout.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>Reading it was stopped.</source>
        <translation>La lecture a été interrompue.</translation>
    </message>
    <message>
        <source>“%1” could not be opened.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas pu être ouvert.</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>«&#x202f;%1&#x202f;»&#x202f;: %2</translation>
    </message>
    <message>
        <source>%1 files could not be opened.</source>
        <translation>%1 fichiers n’ont pas pu être ouverts.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Save List of Words</source>
        <translation>Enregistrer la liste de mots</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Words are shown without the colours of their classes.</source>
        <translation>Les mots sont montrés sans les couleurs de leurs classes.</translation>
    </message>
    <message>
        <source>&amp;Wrap Lines of Input</source>
        <translation>Retour à la ligne dans l’&amp;entrée</translation>
    </message>
    <message>
        <source>Wrap &amp;Lines of Output</source>
        <translation>Retour à la ligne dans la &amp;sortie</translation>
    </message>
</context>
<context>
    <name>TextActions</name>
    <message>
        <source>&amp;Parse</source>
        <translation>&amp;Analyser</translation>
    </message>
    <message>
        <source>Colour every word by its class</source>
        <translation>Colorer chaque mot selon sa classe</translation>
    </message>
    <message>
        <source>&amp;Multi-parse</source>
        <translation>Analyse &amp;multiple</translation>
    </message>
    <message>
        <source>Find the script, language, class and lemma of every word</source>
        <translation>Déterminer l’écriture, la langue, la classe et le lemme de chaque mot</translation>
    </message>
    <message>
        <source>&amp;List words</source>
        <translation>&amp;Lister les mots</translation>
    </message>
    <message>
        <source>List the words of each class with their counts</source>
        <translation>Lister les mots de chaque classe avec leur nombre d’occurrences</translation>
    </message>
    <message>
        <source>&amp;Save list…</source>
        <translation>&amp;Enregistrer la liste…</translation>
    </message>
    <message>
        <source>Save the list of words to a file</source>
        <translation>Enregistrer la liste de mots dans un fichier</translation>
    </message>
</context>
<context>
    <name>WordDetails</name>
    <message>
        <source>noun</source>
        <translation>nom</translation>
    </message>
    <message>
        <source>verb</source>
        <translation>verbe</translation>
    </message>
    <message>
        <source>adjective</source>
        <translation>adjectif</translation>
    </message>
    <message>
        <source>adverb</source>
        <translation>adverbe</translation>
    </message>
    <message>
        <source>pronoun</source>
        <translation>pronom</translation>
    </message>
    <message>
        <source>determiner</source>
        <translation>déterminant</translation>
    </message>
    <message>
        <source>particle</source>
        <translation>particule</translation>
    </message>
    <message>
        <source>preposition</source>
        <translation>préposition</translation>
    </message>
    <message>
        <source>number</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>conjunction</source>
        <translation>conjonction</translation>
    </message>
    <message>
        <source>interjection</source>
        <translation>interjection</translation>
    </message>
    <message>
        <source>classifier</source>
        <translation>classificateur</translation>
    </message>
    <message>
        <source>idiom</source>
        <translation>locution</translation>
    </message>
    <message>
        <source>other word</source>
        <translation>autre mot</translation>
    </message>
    <message>
        <source>end of a sentence</source>
        <translation>fin de phrase</translation>
    </message>
    <message>
        <source>opening quotation mark</source>
        <translation>guillemet ouvrant</translation>
    </message>
    <message>
        <source>closing quotation mark</source>
        <translation>guillemet fermant</translation>
    </message>
    <message>
        <source>opening bracket</source>
        <translation>parenthèse ouvrante</translation>
    </message>
    <message>
        <source>closing bracket</source>
        <translation>parenthèse fermante</translation>
    </message>
    <message>
        <source>word joiner</source>
        <translation>liaison de mots</translation>
    </message>
    <message>
        <source>dash</source>
        <translation>tiret</translation>
    </message>
    <message>
        <source>punctuation</source>
        <translation>ponctuation</translation>
    </message>
    <message>
        <source>name of a person</source>
        <translation>nom de personne</translation>
    </message>
    <message>
        <source>name of a place</source>
        <translation>nom de lieu</translation>
    </message>
    <message>
        <source>name of an organisation</source>
        <translation>nom d’organisation</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language that this is translated into; languages and scripts are named in it.</extracomment>
        <translation>fr</translation>
    </message>
    <message>
        <source>Lemma: %1</source>
        <translation>Lemme&#x202f;: %1</translation>
    </message>
    <message>
        <source>Language: %1</source>
        <translation>Langue&#x202f;: %1</translation>
    </message>
    <message>
        <source>Script: %1</source>
        <translation>Système d’écriture&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>commandLine</name>
    <message>
        <source>Reads a text and colours every word by its class.</source>
        <translation>Lit un texte et colore chaque mot selon sa classe.</translation>
    </message>
    <message>
        <source>Texts to open.</source>
        <translation>Textes à ouvrir.</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::AppearanceMenu</name>
    <message>
        <source>&amp;Appearance</source>
        <translation>A&amp;pparence</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;Système</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Clair</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>S&amp;ombre</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::BusyLine</name>
    <message>
        <source>Busy</source>
        <translation>Occupé</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::ClassMarkActions</name>
    <message>
        <source>&amp;Colour-Blind Palette</source>
        <translation>Couleurs pour &amp;daltoniens</translation>
    </message>
    <message>
        <source>&amp;Underline Classes</source>
        <translation>So&amp;uligner les classes</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::ColourTable</name>
    <message>
        <source>gray</source>
        <translation>gris</translation>
    </message>
    <message>
        <source>particle</source>
        <translation>particule</translation>
    </message>
    <message>
        <source>red</source>
        <translation>rouge</translation>
    </message>
    <message>
        <source>verb</source>
        <translation>verbe</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>bleu</translation>
    </message>
    <message>
        <source>noun</source>
        <translation>nom</translation>
    </message>
    <message>
        <source>green</source>
        <translation>vert</translation>
    </message>
    <message>
        <source>adjective</source>
        <translation>adjectif</translation>
    </message>
    <message>
        <source>purple</source>
        <translation>violet</translation>
    </message>
    <message>
        <source>adverb</source>
        <translation>adverbe</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>jaune</translation>
    </message>
    <message>
        <source>pronoun</source>
        <translation>pronom</translation>
    </message>
    <message>
        <source>brown</source>
        <translation>marron</translation>
    </message>
    <message>
        <source>determiner</source>
        <translation>déterminant</translation>
    </message>
    <message>
        <source>pink</source>
        <translation>rose</translation>
    </message>
    <message>
        <source>preposition</source>
        <translation>préposition</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>orange</translation>
    </message>
    <message>
        <source>conjunction</source>
        <translation>conjonction</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texte</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nom propre</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Classe</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::DocumentController</name>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation>Sans titre %1</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::DocumentMenuBar</name>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Texte</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>T&amp;ools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>&amp;About Lexiform</source>
        <translation>À &amp;propos de Lexiform</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::DocumentPanes</name>
    <message>
        <source>Input</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Légende</translation>
    </message>
    <message>
        <source>Concordance</source>
        <translation>Concordance</translation>
    </message>
    <message>
        <source>Type or paste a text here, or open a file. Parse then colours its words.</source>
        <translation>Tapez ou collez un texte ici, ou ouvrez un fichier. «&#x202f;Analyser&#x202f;» en colore ensuite les mots.</translation>
    </message>
    <message>
        <source>Click a line to see its words alone, and once more to see all</source>
        <translation>Cliquez sur une ligne pour ne voir que ses mots, et encore une fois pour revoir tous les mots</translation>
    </message>
    <message>
        <source>Click a word twice to find it in the output</source>
        <translation>Cliquez deux fois sur un mot pour le trouver dans la sortie</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::DocumentToolBar</name>
    <message>
        <source>Tool bar</source>
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Choose what the colours of the output show, after a multi-parse</source>
        <translation>Choisir ce que montrent les couleurs de la sortie, après une analyse multiple</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::FileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Ouvrir un fichier &amp;récent</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>Re&amp;venir</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Imprimer…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>R&amp;eopen Files at Start</source>
        <translation>Rouvrir les fichiers au &amp;démarrage</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Clear Menu</source>
        <translation>&amp;Vider le menu</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::FileTypeDialog</name>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::FindBar</name>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Result of the search</source>
        <translation>Résultat de la recherche</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Find the place before (Shift+F3)</source>
        <translation>Aller au résultat précédent (Maj+F3)</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Find the next place (F3)</source>
        <translation>Aller au résultat suivant (F3)</translation>
    </message>
    <message>
        <source>Match &amp;case</source>
        <translation>&amp;Casse</translation>
    </message>
    <message>
        <source>Whole &amp;word</source>
        <translation>&amp;Mot entier</translation>
    </message>
    <message>
        <source>Regular e&amp;xpression</source>
        <translation>E&amp;xpression régulière</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Close the find bar (Esc)</source>
        <translation>Fermer la barre de recherche (Échap)</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Rechercher dans&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::FindCommands</name>
    <message>
        <source>&amp;Find…</source>
        <translation>Recherc&amp;her…</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>from the top</source>
        <translation>depuis le début</translation>
    </message>
    <message>
        <source>from the end</source>
        <translation>depuis la fin</translation>
    </message>
    <message>
        <source>Not a regular expression: %1, at character %2</source>
        <translation>Expression régulière incorrecte&#x202f;: %1, au caractère %2</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>plus de %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::FullScreenAction</name>
    <message>
        <source>Leave &amp;Full Screen</source>
        <translation>Quitter le plein é&amp;cran</translation>
    </message>
    <message>
        <source>Enter &amp;Full Screen</source>
        <translation>Plein é&amp;cran</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::ManualView</name>
    <message>
        <source>Previous page</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Plus petit</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Plus grand</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Largeur de page</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::PlaceCommands</name>
    <message>
        <source>&amp;Go to Top</source>
        <translation>Aller au &amp;début</translation>
    </message>
    <message>
        <source>Go to &amp;End</source>
        <translation>Aller à la &amp;fin</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::SaveDialog</name>
    <message>
        <source>Text files (%1)</source>
        <translation>Fichiers texte (%1)</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::StatusLine</name>
    <message>
        <source>Parsed</source>
        <translation>Texte analysé</translation>
    </message>
    <message>
        <source>%1, parsed</source>
        <translation>%1, texte analysé</translation>
    </message>
    <message>
        <source>Multi-parsed</source>
        <translation>Analyse multiple faite</translation>
    </message>
    <message>
        <source>%1, multi-parsed</source>
        <translation>%1, analyse multiple faite</translation>
    </message>
    <message>
        <source>1 word</source>
        <translation>1 mot</translation>
    </message>
    <message>
        <source>%1 words</source>
        <translation>%1 mots</translation>
    </message>
    <message>
        <source>Not parsed yet</source>
        <translation>Pas encore analysé</translation>
    </message>
    <message>
        <source>Edited</source>
        <translation>Modifié</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::WindowMenu</name>
    <message>
        <source>&amp;Window</source>
        <translation>Fe&amp;nêtre</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::ZoomCommands</name>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Agrandir</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Réduire</translation>
    </message>
    <message>
        <source>Actual &amp;Size</source>
        <translation>&amp;Taille normale</translation>
    </message>
</context>
<context>
    <name>missingDisplay</name>
    <message>
        <source>There is no display to show windows on. In a terminal, lexiform-cli reads texts.</source>
        <translation>Il n’y a pas d’écran où afficher des fenêtres. Dans un terminal, lexiform-cli lit les textes.</translation>
    </message>
</context>
<context>
    <name>readInBackground</name>
    <message>
        <source>Opening “%1”</source>
        <translation>Ouverture de «&#x202f;%1&#x202f;»</translation>
    </message>
</context>
<context>
    <name>saveFile</name>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>There is a folder of that name.</source>
        <translation>Un dossier porte ce nom.</translation>
    </message>
    <message>
        <source>It is not an ordinary file.</source>
        <translation>Ce n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>The file may only be read.</source>
        <translation>Le fichier est en lecture seule.</translation>
    </message>
    <message>
        <source>Its folder is no longer there.</source>
        <translation>Son dossier n’existe plus.</translation>
    </message>
</context>
<context>
    <name>showAbout</name>
    <message>
        <source>Lexiform %1</source>
        <translation>Lexiform %1</translation>
    </message>
    <message>
        <source>Reads a text and colours every word by its class, beside a key to the colours.</source>
        <translation>Lit un texte et colore chaque mot selon sa classe, à côté d’une légende des couleurs.</translation>
    </message>
</context>
<context>
    <name>sideScenes</name>
    <message>
        <source>Colours</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
</context>
</TS>
