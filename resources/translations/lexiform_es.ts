<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>ApplicationActions</name>
    <message>
        <source>&amp;Colours</source>
        <translation>&amp;Colores</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Paleta</translation>
    </message>
    <message>
        <source>Lexiform &amp;Help</source>
        <translation>A&amp;yuda de Lexiform</translation>
    </message>
    <message>
        <source>Application &amp;Updates</source>
        <translation>A&amp;ctualizaciones</translation>
    </message>
    <message>
        <source>&amp;Support</source>
        <translation>&amp;Soporte</translation>
    </message>
</context>
<context>
    <name>DocumentQuestions</name>
    <message>
        <source>Save the changes to “%1”?</source>
        <translation>¿Guardar los cambios de «%1»?</translation>
    </message>
    <message>
        <source>They are lost if they are not saved.</source>
        <translation>De lo contrario se perderán.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Don’t Save</source>
        <translation>&amp;No guardar</translation>
    </message>
    <message>
        <source>Replace the text of “%1” with the output pane?</source>
        <translation>¿Sustituir el texto de «%1» por el contenido del panel de salida?</translation>
    </message>
    <message>
        <source>What is saved is the output pane, which holds other characters than the text. Parsing again puts the text there.</source>
        <translation>Se guarda el panel de salida, que contiene caracteres distintos de los del texto. Si se analiza de nuevo, vuelve a contener el texto.</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Guardar c&amp;omo…</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Sustituir</translation>
    </message>
    <message>
        <source>Save “%1” without its latest changes?</source>
        <translation>¿Guardar «%1» sin los últimos cambios?</translation>
    </message>
    <message>
        <source>What is saved is the output pane, which does not show them. Parsing puts them there.</source>
        <translation>Se guarda el panel de salida, que no muestra esos cambios. Si se analiza el texto, aparecen en él.</translation>
    </message>
    <message>
        <source>&amp;Save Without</source>
        <translation>&amp;Guardar sin ellos</translation>
    </message>
    <message>
        <source>“%1” was changed by another program.</source>
        <translation>Otro programa ha modificado «%1».</translation>
    </message>
    <message>
        <source>Saving replaces what it holds now.</source>
        <translation>Al guardar se sustituye su contenido actual.</translation>
    </message>
    <message>
        <source>Go back to “%1” as it was saved?</source>
        <translation>¿Volver a «%1» tal como estaba guardado?</translation>
    </message>
    <message>
        <source>The document then counts as unchanged. Its input pane keeps its text.</source>
        <translation>El documento se considera entonces sin cambios. El panel de entrada conserva su texto.</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>Re&amp;vertir</translation>
    </message>
    <message>
        <source>The document “%1” could not be saved.</source>
        <translation>No se pudo guardar el documento «%1».</translation>
    </message>
</context>
<context>
    <name>DocumentSaver</name>
    <message>
        <source>Its window shows nothing that can be saved (%1 %2).</source>
        <translation>Su ventana no muestra nada que se pueda guardar (%1 %2).</translation>
    </message>
    <message>
        <source>A file of that name is open in another window. Close that window first, or take another name.</source>
        <translation>Un archivo con ese nombre está abierto en otra ventana. Cierre antes esa ventana o elija otro nombre.</translation>
    </message>
</context>
<context>
    <name>FileType</name>
    <message>
        <source>Plain text (*.txt)</source>
        <translation>Texto sin formato (*.txt)</translation>
    </message>
    <message>
        <source>Rich text (*.rtf)</source>
        <translation>Texto con formato (*.rtf)</translation>
    </message>
    <message>
        <source>Texts (%1)</source>
        <translation>Textos (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>FileWriter</name>
    <message>
        <source>“%1” could not be saved in “%2”: %3.</source>
        <translation>No se pudo guardar «%1» en «%2»: %3.</translation>
    </message>
</context>
<context>
    <name>OpenFailure</name>
    <message>
        <source>There is no such file.</source>
        <translation>Este archivo no existe.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>Es una carpeta.</translation>
    </message>
    <message>
        <source>It is not an ordinary file.</source>
        <translation>No es un archivo ordinario.</translation>
    </message>
    <message>
        <source>You do not have permission to read it.</source>
        <translation>No tiene permiso para leerlo.</translation>
    </message>
    <message>
        <source>It is larger than 1 GB, more than a window can show.</source>
        <translation>Ocupa más de 1 GB, más de lo que una ventana puede mostrar.</translation>
    </message>
    <message>
        <source>It could not be read to its end.</source>
        <translation>No se pudo leer hasta el final.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <source>Reading it was stopped.</source>
        <translation>Se interrumpió la lectura.</translation>
    </message>
    <message>
        <source>“%1” could not be opened.</source>
        <translation>No se pudo abrir «%1».</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>«%1»: %2</translation>
    </message>
    <message>
        <source>%1 files could not be opened.</source>
        <translation>No se pudieron abrir %1 archivos.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Save List of Words</source>
        <translation>Guardar la lista de palabras</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Words are shown without the colours of their classes.</source>
        <translation>Las palabras se muestran sin los colores de sus clases.</translation>
    </message>
    <message>
        <source>&amp;Wrap Lines of Input</source>
        <translation>Ajustar las líneas de la &amp;entrada</translation>
    </message>
    <message>
        <source>Wrap &amp;Lines of Output</source>
        <translation>Ajustar las líneas de la &amp;salida</translation>
    </message>
</context>
<context>
    <name>TextActions</name>
    <message>
        <source>&amp;Parse</source>
        <translation>&amp;Analizar</translation>
    </message>
    <message>
        <source>Colour every word by its class</source>
        <translation>Colorear cada palabra según su clase</translation>
    </message>
    <message>
        <source>&amp;Multi-parse</source>
        <translation>Análisis &amp;múltiple</translation>
    </message>
    <message>
        <source>Find the script, language, class and lemma of every word</source>
        <translation>Determinar la escritura, el idioma, la clase y el lema de cada palabra</translation>
    </message>
    <message>
        <source>&amp;List words</source>
        <translation>&amp;Listar palabras</translation>
    </message>
    <message>
        <source>List the words of each class with their counts</source>
        <translation>Listar las palabras de cada clase con su número de apariciones</translation>
    </message>
    <message>
        <source>&amp;Save list…</source>
        <translation>&amp;Guardar lista…</translation>
    </message>
    <message>
        <source>Save the list of words to a file</source>
        <translation>Guardar la lista de palabras en un archivo</translation>
    </message>
</context>
<context>
    <name>WordDetails</name>
    <message>
        <source>noun</source>
        <translation>sustantivo</translation>
    </message>
    <message>
        <source>verb</source>
        <translation>verbo</translation>
    </message>
    <message>
        <source>adjective</source>
        <translation>adjetivo</translation>
    </message>
    <message>
        <source>adverb</source>
        <translation>adverbio</translation>
    </message>
    <message>
        <source>pronoun</source>
        <translation>pronombre</translation>
    </message>
    <message>
        <source>determiner</source>
        <translation>determinante</translation>
    </message>
    <message>
        <source>particle</source>
        <translation>partícula</translation>
    </message>
    <message>
        <source>preposition</source>
        <translation>preposición</translation>
    </message>
    <message>
        <source>number</source>
        <translation>número</translation>
    </message>
    <message>
        <source>conjunction</source>
        <translation>conjunción</translation>
    </message>
    <message>
        <source>interjection</source>
        <translation>interjección</translation>
    </message>
    <message>
        <source>classifier</source>
        <translation>clasificador</translation>
    </message>
    <message>
        <source>idiom</source>
        <translation>locución</translation>
    </message>
    <message>
        <source>other word</source>
        <translation>otra palabra</translation>
    </message>
    <message>
        <source>end of a sentence</source>
        <translation>fin de oración</translation>
    </message>
    <message>
        <source>opening quotation mark</source>
        <translation>comilla de apertura</translation>
    </message>
    <message>
        <source>closing quotation mark</source>
        <translation>comilla de cierre</translation>
    </message>
    <message>
        <source>opening bracket</source>
        <translation>paréntesis de apertura</translation>
    </message>
    <message>
        <source>closing bracket</source>
        <translation>paréntesis de cierre</translation>
    </message>
    <message>
        <source>word joiner</source>
        <translation>unión de palabras</translation>
    </message>
    <message>
        <source>dash</source>
        <translation>raya</translation>
    </message>
    <message>
        <source>punctuation</source>
        <translation>puntuación</translation>
    </message>
    <message>
        <source>name of a person</source>
        <translation>nombre de persona</translation>
    </message>
    <message>
        <source>name of a place</source>
        <translation>nombre de lugar</translation>
    </message>
    <message>
        <source>name of an organisation</source>
        <translation>nombre de organización</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language that this is translated into; languages and scripts are named in it.</extracomment>
        <translation>es</translation>
    </message>
    <message>
        <source>Lemma: %1</source>
        <translation>Lema: %1</translation>
    </message>
    <message>
        <source>Language: %1</source>
        <translation>Idioma: %1</translation>
    </message>
    <message>
        <source>Script: %1</source>
        <translation>Sistema de escritura: %1</translation>
    </message>
</context>
<context>
    <name>commandLine</name>
    <message>
        <source>Reads a text and colours every word by its class.</source>
        <translation>Lee un texto y colorea cada palabra según su clase.</translation>
    </message>
    <message>
        <source>Texts to open.</source>
        <translation>Textos que abrir.</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::AppearanceMenu</name>
    <message>
        <source>&amp;Appearance</source>
        <translation>A&amp;pariencia</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;Sistema</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Claro</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Oscuro</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::BusyLine</name>
    <message>
        <source>Busy</source>
        <translation>Ocupado</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::ClassMarkActions</name>
    <message>
        <source>&amp;Colour-Blind Palette</source>
        <translation>Colores para &amp;daltónicos</translation>
    </message>
    <message>
        <source>&amp;Underline Classes</source>
        <translation>S&amp;ubrayar las clases</translation>
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
        <translation>partícula</translation>
    </message>
    <message>
        <source>red</source>
        <translation>rojo</translation>
    </message>
    <message>
        <source>verb</source>
        <translation>verbo</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>azul</translation>
    </message>
    <message>
        <source>noun</source>
        <translation>sustantivo</translation>
    </message>
    <message>
        <source>green</source>
        <translation>verde</translation>
    </message>
    <message>
        <source>adjective</source>
        <translation>adjetivo</translation>
    </message>
    <message>
        <source>purple</source>
        <translation>violeta</translation>
    </message>
    <message>
        <source>adverb</source>
        <translation>adverbio</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>amarillo</translation>
    </message>
    <message>
        <source>pronoun</source>
        <translation>pronombre</translation>
    </message>
    <message>
        <source>brown</source>
        <translation>marrón</translation>
    </message>
    <message>
        <source>determiner</source>
        <translation>determinante</translation>
    </message>
    <message>
        <source>pink</source>
        <translation>rosa</translation>
    </message>
    <message>
        <source>preposition</source>
        <translation>preposición</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>naranja</translation>
    </message>
    <message>
        <source>conjunction</source>
        <translation>conjunción</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texto</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nombre propio</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Clase</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::DocumentController</name>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation>Sin título %1</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::DocumentMenuBar</name>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Texto</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>T&amp;ools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;About Lexiform</source>
        <translation>Acerca &amp;de Lexiform</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::DocumentPanes</name>
    <message>
        <source>Input</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Clave</translation>
    </message>
    <message>
        <source>Concordance</source>
        <translation>Concordancia</translation>
    </message>
    <message>
        <source>Type or paste a text here, or open a file. Parse then colours its words.</source>
        <translation>Escriba o pegue aquí un texto, o abra un archivo. «Analizar» colorea después las palabras.</translation>
    </message>
    <message>
        <source>Click a line to see its words alone, and once more to see all</source>
        <translation>Haga clic en una línea para ver solo sus palabras, y otra vez para volver a verlas todas</translation>
    </message>
    <message>
        <source>Click a word twice to find it in the output</source>
        <translation>Haga doble clic en una palabra para encontrarla en la salida</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::DocumentToolBar</name>
    <message>
        <source>Tool bar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Choose what the colours of the output show, after a multi-parse</source>
        <translation>Elegir qué muestran los colores de la salida, tras un análisis múltiple</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::FileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Abrir &amp;reciente</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Guardar c&amp;omo…</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>Re&amp;vertir</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Imprimir…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>R&amp;eopen Files at Start</source>
        <translation>Rea&amp;brir los archivos al iniciar</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Clear Menu</source>
        <translation>&amp;Vaciar el menú</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::FileTypeDialog</name>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::FindBar</name>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Result of the search</source>
        <translation>Resultado de la búsqueda</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Find the place before (Shift+F3)</source>
        <translation>Ir al resultado anterior (Mayús+F3)</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Find the next place (F3)</source>
        <translation>Ir al resultado siguiente (F3)</translation>
    </message>
    <message>
        <source>Match &amp;case</source>
        <translation>Ma&amp;yúsculas</translation>
    </message>
    <message>
        <source>Whole &amp;word</source>
        <translation>&amp;Palabra entera</translation>
    </message>
    <message>
        <source>Regular e&amp;xpression</source>
        <translation>E&amp;xpresión regular</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Close the find bar (Esc)</source>
        <translation>Cerrar la barra de búsqueda (Esc)</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Buscar en: %1</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::FindCommands</name>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Buscar…</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Buscar sig&amp;uiente</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>Buscar &amp;anterior</translation>
    </message>
    <message>
        <source>from the top</source>
        <translation>desde el principio</translation>
    </message>
    <message>
        <source>from the end</source>
        <translation>desde el final</translation>
    </message>
    <message>
        <source>Not a regular expression: %1, at character %2</source>
        <translation>Expresión regular no válida: %1, en el carácter %2</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>No encontrado</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>más de %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
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
        <translation>Salir de pantalla &amp;completa</translation>
    </message>
    <message>
        <source>Enter &amp;Full Screen</source>
        <translation>Pantalla &amp;completa</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::ManualView</name>
    <message>
        <source>Previous page</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Página siguiente</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Más pequeño</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Más grande</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Ancho de página</translation>
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
        <translation>&amp;Ir al principio</translation>
    </message>
    <message>
        <source>Go to &amp;End</source>
        <translation>Ir al &amp;final</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::SaveDialog</name>
    <message>
        <source>Text files (%1)</source>
        <translation>Archivos de texto (%1)</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::StatusLine</name>
    <message>
        <source>Parsed</source>
        <translation>Texto analizado</translation>
    </message>
    <message>
        <source>%1, parsed</source>
        <translation>%1, texto analizado</translation>
    </message>
    <message>
        <source>Multi-parsed</source>
        <translation>Análisis múltiple hecho</translation>
    </message>
    <message>
        <source>%1, multi-parsed</source>
        <translation>%1, análisis múltiple hecho</translation>
    </message>
    <message>
        <source>1 word</source>
        <translation>1 palabra</translation>
    </message>
    <message>
        <source>%1 words</source>
        <translation>%1 palabras</translation>
    </message>
    <message>
        <source>Not parsed yet</source>
        <translation>Aún sin analizar</translation>
    </message>
    <message>
        <source>Edited</source>
        <translation>Modificado</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::WindowMenu</name>
    <message>
        <source>&amp;Window</source>
        <translation>Ve&amp;ntana</translation>
    </message>
</context>
<context>
    <name>lexiform::qt::ZoomCommands</name>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Ampliar</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Reducir</translation>
    </message>
    <message>
        <source>Actual &amp;Size</source>
        <translation>&amp;Tamaño normal</translation>
    </message>
</context>
<context>
    <name>missingDisplay</name>
    <message>
        <source>There is no display to show windows on. In a terminal, lexiform-cli reads texts.</source>
        <translation>No hay pantalla donde mostrar ventanas. En un terminal, lexiform-cli lee los textos.</translation>
    </message>
</context>
<context>
    <name>readInBackground</name>
    <message>
        <source>Opening “%1”</source>
        <translation>Abriendo «%1»</translation>
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
        <translation>Hay una carpeta con ese nombre.</translation>
    </message>
    <message>
        <source>It is not an ordinary file.</source>
        <translation>No es un archivo ordinario.</translation>
    </message>
    <message>
        <source>The file may only be read.</source>
        <translation>El archivo es de solo lectura.</translation>
    </message>
    <message>
        <source>Its folder is no longer there.</source>
        <translation>Su carpeta ya no existe.</translation>
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
        <translation>Lee un texto y colorea cada palabra según su clase, junto a una clave de los colores.</translation>
    </message>
</context>
<context>
    <name>sideScenes</name>
    <message>
        <source>Colours</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
</context>
</TS>
