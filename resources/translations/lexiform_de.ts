<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ApplicationActions</name>
    <message>
        <source>&amp;Colours</source>
        <translation>&amp;Farben</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Palette</translation>
    </message>
    <message>
        <source>Lexiform &amp;Help</source>
        <translation>Lexiform-&amp;Hilfe</translation>
    </message>
    <message>
        <source>Application &amp;Updates</source>
        <translation>&amp;Aktualisierungen</translation>
    </message>
    <message>
        <source>&amp;Support</source>
        <translation>&amp;Unterstützung</translation>
    </message>
</context>
<context>
    <name>DocumentQuestions</name>
    <message>
        <source>Save the changes to “%1”?</source>
        <translation>Änderungen an „%1“ sichern?</translation>
    </message>
    <message>
        <source>They are lost if they are not saved.</source>
        <translation>Sie gehen sonst verloren.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Sichern</translation>
    </message>
    <message>
        <source>&amp;Don’t Save</source>
        <translation>&amp;Nicht sichern</translation>
    </message>
    <message>
        <source>Replace the text of “%1” with the output pane?</source>
        <translation>Den Text von „%1“ durch die Ausgabe ersetzen?</translation>
    </message>
    <message>
        <source>What is saved is the output pane, which holds other characters than the text. Parsing again puts the text there.</source>
        <translation>Gesichert wird die Ausgabe, und sie enthält andere Zeichen als der Text. Neu analysieren bringt den Text dorthin.</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Sichern &amp;unter …</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>Save “%1” without its latest changes?</source>
        <translation>„%1“ ohne die letzten Änderungen sichern?</translation>
    </message>
    <message>
        <source>What is saved is the output pane, which does not show them. Parsing puts them there.</source>
        <translation>Gesichert wird die Ausgabe, in der diese Änderungen fehlen. Analysieren bringt sie dorthin.</translation>
    </message>
    <message>
        <source>&amp;Save Without</source>
        <translation>&amp;Ohne sichern</translation>
    </message>
    <message>
        <source>“%1” was changed by another program.</source>
        <translation>„%1“ wurde von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>Saving replaces what it holds now.</source>
        <translation>Sichern ersetzt, was jetzt darin steht.</translation>
    </message>
    <message>
        <source>Go back to “%1” as it was saved?</source>
        <translation>„%1“ so wiederherstellen, wie es gesichert war?</translation>
    </message>
    <message>
        <source>The document then counts as unchanged. Its input pane keeps its text.</source>
        <translation>Das Dokument gilt dann als unverändert. Die Eingabe behält ihren Text.</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>The document “%1” could not be saved.</source>
        <translation>Das Dokument „%1“ konnte nicht gesichert werden.</translation>
    </message>
</context>
<context>
    <name>DocumentSaver</name>
    <message>
        <source>Its window shows nothing that can be saved (%1 %2).</source>
        <translation>Das Fenster zeigt nichts, was sich sichern lässt (%1 %2).</translation>
    </message>
    <message>
        <source>A file of that name is open in another window. Close that window first, or take another name.</source>
        <translation>Eine Datei dieses Namens ist in einem anderen Fenster offen. Schließen Sie zuerst jenes Fenster oder nehmen Sie einen anderen Namen.</translation>
    </message>
</context>
<context>
    <name>FileType</name>
    <message>
        <source>Plain text (*.txt)</source>
        <translation>Reiner Text (*.txt)</translation>
    </message>
    <message>
        <source>Rich text (*.rtf)</source>
        <translation>Formatierter Text (*.rtf)</translation>
    </message>
    <message>
        <source>Texts (%1)</source>
        <translation>Texte (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>FileWriter</name>
    <message>
        <source>“%1” could not be saved in “%2”: %3.</source>
        <translation>„%1“ konnte nicht in „%2“ gesichert werden: %3.</translation>
    </message>
</context>
<context>
    <name>OpenFailure</name>
    <message>
        <source>There is no such file.</source>
        <translation>Diese Datei gibt es nicht.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>Das ist ein Ordner.</translation>
    </message>
    <message>
        <source>It is not an ordinary file.</source>
        <translation>Das ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>You do not have permission to read it.</source>
        <translation>Sie dürfen diese Datei nicht lesen.</translation>
    </message>
    <message>
        <source>It is larger than 1 GB, more than a window can show.</source>
        <translation>Die Datei ist größer als 1 GB; mehr kann ein Fenster nicht zeigen.</translation>
    </message>
    <message>
        <source>It could not be read to its end.</source>
        <translation>Die Datei konnte nicht bis zum Ende gelesen werden.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>Reading it was stopped.</source>
        <translation>Das Lesen wurde abgebrochen.</translation>
    </message>
    <message>
        <source>“%1” could not be opened.</source>
        <translation>„%1“ konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>„%1“: %2</translation>
    </message>
    <message>
        <source>%1 files could not be opened.</source>
        <translation>%1 Dateien konnten nicht geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Save List of Words</source>
        <translation>Wortliste sichern</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Words are shown without the colours of their classes.</source>
        <translation>Die Wörter erscheinen ohne die Farben ihrer Klassen.</translation>
    </message>
    <message>
        <source>&amp;Wrap Lines of Input</source>
        <translation>Zeilen der &amp;Eingabe umbrechen</translation>
    </message>
    <message>
        <source>Wrap &amp;Lines of Output</source>
        <translation>Zeilen der &amp;Ausgabe umbrechen</translation>
    </message>
</context>
<context>
    <name>TextActions</name>
    <message>
        <source>&amp;Parse</source>
        <translation>&amp;Analysieren</translation>
    </message>
    <message>
        <source>Colour every word by its class</source>
        <translation>Jedes Wort nach seiner Klasse färben</translation>
    </message>
    <message>
        <source>&amp;Multi-parse</source>
        <translation>&amp;Mehrfach analysieren</translation>
    </message>
    <message>
        <source>Find the script, language, class and lemma of every word</source>
        <translation>Schrift, Sprache, Klasse und Lemma jedes Wortes bestimmen</translation>
    </message>
    <message>
        <source>&amp;List words</source>
        <translation>&amp;Wörter auflisten</translation>
    </message>
    <message>
        <source>List the words of each class with their counts</source>
        <translation>Die Wörter jeder Klasse mit ihrer Häufigkeit auflisten</translation>
    </message>
    <message>
        <source>&amp;Save list…</source>
        <translation>Liste &amp;sichern …</translation>
    </message>
    <message>
        <source>Save the list of words to a file</source>
        <translation>Die Wortliste in eine Datei sichern</translation>
    </message>
</context>
<context>
    <name>WordDetails</name>
    <message>
        <source>noun</source>
        <translation>Substantiv</translation>
    </message>
    <message>
        <source>verb</source>
        <translation>Verb</translation>
    </message>
    <message>
        <source>adjective</source>
        <translation>Adjektiv</translation>
    </message>
    <message>
        <source>adverb</source>
        <translation>Adverb</translation>
    </message>
    <message>
        <source>pronoun</source>
        <translation>Pronomen</translation>
    </message>
    <message>
        <source>determiner</source>
        <translation>Artikelwort</translation>
    </message>
    <message>
        <source>particle</source>
        <translation>Partikel</translation>
    </message>
    <message>
        <source>preposition</source>
        <translation>Präposition</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>conjunction</source>
        <translation>Konjunktion</translation>
    </message>
    <message>
        <source>interjection</source>
        <translation>Interjektion</translation>
    </message>
    <message>
        <source>classifier</source>
        <translation>Zähleinheitswort</translation>
    </message>
    <message>
        <source>idiom</source>
        <translation>feste Wendung</translation>
    </message>
    <message>
        <source>other word</source>
        <translation>anderes Wort</translation>
    </message>
    <message>
        <source>end of a sentence</source>
        <translation>Satzende</translation>
    </message>
    <message>
        <source>opening quotation mark</source>
        <translation>öffnendes Anführungszeichen</translation>
    </message>
    <message>
        <source>closing quotation mark</source>
        <translation>schließendes Anführungszeichen</translation>
    </message>
    <message>
        <source>opening bracket</source>
        <translation>öffnende Klammer</translation>
    </message>
    <message>
        <source>closing bracket</source>
        <translation>schließende Klammer</translation>
    </message>
    <message>
        <source>word joiner</source>
        <translation>Wortverbinder</translation>
    </message>
    <message>
        <source>dash</source>
        <translation>Gedankenstrich</translation>
    </message>
    <message>
        <source>punctuation</source>
        <translation>Satzzeichen</translation>
    </message>
    <message>
        <source>name of a person</source>
        <translation>Personenname</translation>
    </message>
    <message>
        <source>name of a place</source>
        <translation>Ortsname</translation>
    </message>
    <message>
        <source>name of an organisation</source>
        <translation>Name einer Organisation</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language that this is translated into; languages and scripts are named in it.</extracomment>
        <translation>de</translation>
    </message>
    <message>
        <source>Lemma: %1</source>
        <translation>Lemma: %1</translation>
    </message>
    <message>
        <source>Language: %1</source>
        <translation>Sprache: %1</translation>
    </message>
    <message>
        <source>Script: %1</source>
        <translation>Schrift: %1</translation>
    </message>
</context>
<context>
    <name>commandLine</name>
    <message>
        <source>Reads a text and colours every word by its class.</source>
        <translation>Liest einen Text und färbt jedes Wort nach seiner Klasse.</translation>
    </message>
    <message>
        <source>Texts to open.</source>
        <translation>Texte, die geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::AppearanceMenu</name>
    <message>
        <source>&amp;Appearance</source>
        <translation>&amp;Darstellung</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;System</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::BusyLine</name>
    <message>
        <source>Busy</source>
        <translation>Beschäftigt</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::ClassMarkActions</name>
    <message>
        <source>&amp;Colour-Blind Palette</source>
        <translation>Farben für Farben&amp;blinde</translation>
    </message>
    <message>
        <source>&amp;Underline Classes</source>
        <translation>Klassen &amp;unterstreichen</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::ColourTable</name>
    <message>
        <source>gray</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>particle</source>
        <translation>Partikel</translation>
    </message>
    <message>
        <source>red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>verb</source>
        <translation>Verb</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>noun</source>
        <translation>Substantiv</translation>
    </message>
    <message>
        <source>green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>adjective</source>
        <translation>Adjektiv</translation>
    </message>
    <message>
        <source>purple</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>adverb</source>
        <translation>Adverb</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>pronoun</source>
        <translation>Pronomen</translation>
    </message>
    <message>
        <source>brown</source>
        <translation>Braun</translation>
    </message>
    <message>
        <source>determiner</source>
        <translation>Artikelwort</translation>
    </message>
    <message>
        <source>pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>preposition</source>
        <translation>Präposition</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>conjunction</source>
        <translation>Konjunktion</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Klasse</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::DocumentController</name>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation>Unbenannt %1</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::DocumentMenuBar</name>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Text</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>T&amp;ools</source>
        <translation>&amp;Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About Lexiform</source>
        <translation>&amp;Über Lexiform</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::DocumentPanes</name>
    <message>
        <source>Input</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Concordance</source>
        <translation>Konkordanz</translation>
    </message>
    <message>
        <source>Type or paste a text here, or open a file. Parse then colours its words.</source>
        <translation>Hier einen Text eintippen oder einfügen oder eine Datei öffnen. „Analysieren“ färbt dann die Wörter.</translation>
    </message>
    <message>
        <source>Click a line to see its words alone, and once more to see all</source>
        <translation>Auf eine Zeile klicken, um nur ihre Wörter zu sehen, und noch einmal, um alle zu sehen</translation>
    </message>
    <message>
        <source>Click a word twice to find it in the output</source>
        <translation>Ein Wort doppelt anklicken, um es in der Ausgabe zu finden</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::DocumentToolBar</name>
    <message>
        <source>Tool bar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Choose what the colours of the output show, after a multi-parse</source>
        <translation>Wählen, was die Farben der Ausgabe nach einer Mehrfachanalyse zeigen</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>A&amp;lles auswählen</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::FileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Sichern</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Sichern &amp;unter …</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Drucken …</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>R&amp;eopen Files at Start</source>
        <translation>Dateien beim S&amp;tart wieder öffnen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Clear Menu</source>
        <translation>Menü &amp;leeren</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::FileTypeDialog</name>
    <message>
        <source>Save As</source>
        <translation>Sichern unter</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::FindBar</name>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Result of the search</source>
        <translation>Ergebnis der Suche</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Find the place before (Shift+F3)</source>
        <translation>Zur vorigen Fundstelle (Umschalt+F3)</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Find the next place (F3)</source>
        <translation>Zur nächsten Fundstelle (F3)</translation>
    </message>
    <message>
        <source>Match &amp;case</source>
        <translation>&amp;Groß/klein</translation>
    </message>
    <message>
        <source>Whole &amp;word</source>
        <translation>Ganzes &amp;Wort</translation>
    </message>
    <message>
        <source>Regular e&amp;xpression</source>
        <translation>Regulärer Aus&amp;druck</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close the find bar (Esc)</source>
        <translation>Suchleiste schließen (Esc)</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Suchen in: %1</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::FindCommands</name>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Suchen …</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>&amp;Nächste Stelle</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>&amp;Vorige Stelle</translation>
    </message>
    <message>
        <source>from the top</source>
        <translation>von oben</translation>
    </message>
    <message>
        <source>from the end</source>
        <translation>von unten</translation>
    </message>
    <message>
        <source>Not a regular expression: %1, at character %2</source>
        <translation>Kein gültiger regulärer Ausdruck: %1, bei Zeichen %2</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>mehr als %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
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
        <translation>&amp;Vollbild verlassen</translation>
    </message>
    <message>
        <source>Enter &amp;Full Screen</source>
        <translation>&amp;Vollbild</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::ManualView</name>
    <message>
        <source>Previous page</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Größer</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Seitenbreite</translation>
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
        <translation>Zum Anfan&amp;g</translation>
    </message>
    <message>
        <source>Go to &amp;End</source>
        <translation>Zum En&amp;de</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::SaveDialog</name>
    <message>
        <source>Text files (%1)</source>
        <translation>Textdateien (%1)</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::StatusLine</name>
    <message>
        <source>Parsed</source>
        <translation>Analysiert</translation>
    </message>
    <message>
        <source>%1, parsed</source>
        <translation>%1, analysiert</translation>
    </message>
    <message>
        <source>Multi-parsed</source>
        <translation>Mehrfach analysiert</translation>
    </message>
    <message>
        <source>%1, multi-parsed</source>
        <translation>%1, mehrfach analysiert</translation>
    </message>
    <message>
        <source>1 word</source>
        <translation>1 Wort</translation>
    </message>
    <message>
        <source>%1 words</source>
        <translation>%1 Wörter</translation>
    </message>
    <message>
        <source>Not parsed yet</source>
        <translation>Noch nicht analysiert</translation>
    </message>
    <message>
        <source>Edited</source>
        <translation>Bearbeitet</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::WindowMenu</name>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::ZoomCommands</name>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Größer</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Kleiner</translation>
    </message>
    <message>
        <source>Actual &amp;Size</source>
        <translation>&amp;Normale Größe</translation>
    </message>
</context>
<context>
    <name>missingDisplay</name>
    <message>
        <source>There is no display to show windows on. In a terminal, lexiform-cli reads texts.</source>
        <translation>Es gibt keinen Bildschirm für Fenster. Im Terminal liest lexiform-cli Texte.</translation>
    </message>
</context>
<context>
    <name>readInBackground</name>
    <message>
        <source>Opening “%1”</source>
        <translation>„%1“ wird geöffnet</translation>
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
        <translation>Es gibt einen Ordner dieses Namens.</translation>
    </message>
    <message>
        <source>It is not an ordinary file.</source>
        <translation>Das ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>The file may only be read.</source>
        <translation>Die Datei darf nur gelesen werden.</translation>
    </message>
    <message>
        <source>Its folder is no longer there.</source>
        <translation>Der Ordner ist nicht mehr da.</translation>
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
        <translation>Liest einen Text und färbt jedes Wort nach seiner Klasse, neben einem Schlüssel zu den Farben.</translation>
    </message>
</context>
<context>
    <name>sideScenes</name>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
</context>
</TS>
