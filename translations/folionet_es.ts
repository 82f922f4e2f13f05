<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Choose the Output Path</source>
        <translation>Elegir la ruta de salida</translation>
    </message>
    <message>
        <source>No browser could be started. The page is:</source>
        <translation>No se pudo abrir ningún navegador. La página es:</translation>
    </message>
    <message>
        <source>%1 pages, %2 links: %3 broken, %4 pages not reached.</source>
        <translation>%1 páginas, %2 enlaces: %3 rotos, %4 páginas no alcanzadas.</translation>
    </message>
    <message>
        <source>%1: the index does not lead here.</source>
        <translation>%1: el índice no lleva aquí.</translation>
    </message>
    <message>
        <source>Check site</source>
        <translation>Comprobar el sitio</translation>
    </message>
    <message>
        <source>, hard to read: choose a darker color</source>
        <translation>, difícil de leer: elija un color más oscuro</translation>
    </message>
    <message>
        <source>, hard to read: choose a lighter color</source>
        <translation>, difícil de leer: elija un color más claro</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Carpeta personal</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>%1, line %2: &quot;%3&quot; is there in another letter case only, %4.</source>
        <translation>%1, línea %2: «%3» existe solo con otras mayúsculas y minúsculas, %4.</translation>
    </message>
    <message>
        <source>%1 links lead out of the folder and were not followed.</source>
        <translation>%1 enlaces salen de la carpeta y no se siguieron.</translation>
    </message>
    <message>
        <source>%1, line %2: &quot;%3&quot; holds &quot;\&quot;, which no address does.</source>
        <translation>%1, línea %2: «%3» contiene «\», que no aparece en ninguna dirección.</translation>
    </message>
    <message>
        <source>%1, line %2: &quot;%3&quot; is not there.</source>
        <translation>%1, línea %2: «%3» no existe.</translation>
    </message>
    <message>
        <source>%1, line %2: &quot;%3&quot; cannot be read.</source>
        <translation>%1, línea %2: «%3» no se puede leer.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 no se puede leer.</translation>
    </message>
    <message>
        <source>%1: a symbolic link to another folder, whose pages were not read.</source>
        <translation>%1: un enlace simbólico a otra carpeta, cuyas páginas no se han leído.</translation>
    </message>
</context>
<context>
    <name>folionet::CustomHtmlDialog</name>
    <message>
        <source>HTML code</source>
        <translation>Código HTML</translation>
    </message>
</context>
<context>
    <name>folionet::HelpWindow</name>
    <message>
        <source>Folionet Help</source>
        <translation>Ayuda de Folionet</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>C&amp;ontents</source>
        <translation>C&amp;ontenido</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>folionet::StatusPanels</name>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
</context>
<context>
    <name>folionet::frmBackground</name>
    <message>
        <source>Image name</source>
        <translation>Nombre de la imagen</translation>
    </message>
    <message>
        <source>Image &amp;name</source>
        <translation>&amp;Nombre de la imagen</translation>
    </message>
</context>
<context>
    <name>folionet::frmEffects</name>
    <message>
        <source>Contrast with the page background</source>
        <translation>Contraste con el fondo de la página</translation>
    </message>
    <message>
        <source>Text of the page</source>
        <translation>Texto de la página</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Muestra</translation>
    </message>
    <message>
        <source>Point at and click</source>
        <translation>Señale y pulse</translation>
    </message>
    <message>
        <source>this link</source>
        <translation>este enlace</translation>
    </message>
</context>
<context>
    <name>folionet::frmEncoding</name>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Language to be used</source>
        <translation>Idioma que se usará</translation>
    </message>
    <message>
        <source>Charset</source>
        <translation>Juego de caracteres</translation>
    </message>
    <message>
        <source>Charset to be used</source>
        <translation>Juego de caracteres que se usará</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>In &amp;pages</source>
        <translation>En las &amp;páginas</translation>
    </message>
    <message>
        <source>&amp;Charset</source>
        <translation>&amp;Juego de caracteres</translation>
    </message>
    <message>
        <source>In pa&amp;ges</source>
        <translation>En las pá&amp;ginas</translation>
    </message>
</context>
<context>
    <name>folionet::frmErr</name>
    <message>
        <source>Error report</source>
        <translation>Informe de error</translation>
    </message>
</context>
<context>
    <name>folionet::frmKeywords</name>
    <message>
        <source>&amp;Index Page</source>
        <translation>Página ín&amp;dice</translation>
    </message>
    <message>
        <source>I&amp;ndex Page</source>
        <translation>Pági&amp;na índice</translation>
    </message>
    <message>
        <source>META Keywords - Index page</source>
        <translation>Palabras clave META – Página índice</translation>
    </message>
    <message>
        <source>META Description Index page</source>
        <translation>Descripción META de la página índice</translation>
    </message>
</context>
<context>
    <name>folionet::frmLinkToMAin</name>
    <message>
        <source>&amp;HTML of the link</source>
        <translation>&amp;HTML del enlace</translation>
    </message>
</context>
<context>
    <name>folionet::frmMain</name>
    <message>
        <source>Bible</source>
        <translation>Biblia</translation>
    </message>
    <message>
        <source>&amp;Translation</source>
        <translation>&amp;Traducción</translation>
    </message>
    <message>
        <source>Translation</source>
        <translation>Traducción</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Dri&amp;ve</source>
        <translation>&amp;Volumen</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>Examinar...</translation>
    </message>
    <message>
        <source>Choose the folder in the desktop&apos;s own window.</source>
        <translation>Elegir la carpeta en la ventana del escritorio.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Output Path</source>
        <translation>Ruta de salida</translation>
    </message>
    <message>
        <source>No folder chosen yet</source>
        <translation>Aún no se ha elegido carpeta</translation>
    </message>
    <message>
        <source>&amp;HTTP root</source>
        <translation>Raíz &amp;HTTP</translation>
    </message>
    <message>
        <source>HTTP root: the address of the index page</source>
        <translation>Raíz HTTP: la dirección de la página índice</translation>
    </message>
    <message>
        <source>The address of the index page, such as index.html or http://www.example.org/index.html.</source>
        <translation>La dirección de la página índice, como index.html o http://www.example.org/index.html.</translation>
    </message>
    <message>
        <source>Page text</source>
        <translation>Texto de las páginas</translation>
    </message>
    <message>
        <source>Sample text</source>
        <translation>Texto de muestra</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Page details</source>
        <translation>Detalles de las páginas</translation>
    </message>
    <message>
        <source>Pages compiled</source>
        <translation>Páginas compiladas</translation>
    </message>
    <message>
        <source>Open index page</source>
        <translation>Abrir la página índice</translation>
    </message>
    <message>
        <source>Check site</source>
        <translation>Comprobar el sitio</translation>
    </message>
    <message>
        <source>Index page, such as index.html</source>
        <translation>Página índice, como index.html</translation>
    </message>
    <message>
        <source>Show the index page of the site that was compiled last (Ctrl+O).</source>
        <translation>Mostrar la página índice del último sitio compilado (Ctrl+O).</translation>
    </message>
    <message>
        <source>Look for links that lead nowhere in the site that was compiled last (F8).</source>
        <translation>Buscar enlaces que no llevan a ninguna parte en el último sitio compilado (F8).</translation>
    </message>
    <message>
        <source>Open the help (F1).</source>
        <translation>Abrir la ayuda (F1).</translation>
    </message>
    <message>
        <source>Save all settings, after asking, and end the program (Ctrl+Q).</source>
        <translation>Guardar todos los ajustes, tras preguntar, y cerrar el programa (Ctrl+Q).</translation>
    </message>
</context>
<context>
    <name>folionet::frmPAgeTitles</name>
    <message>
        <source>Page Titles</source>
        <translation>Títulos de las páginas</translation>
    </message>
    <message>
        <source>&amp;Index Page</source>
        <translation>Página ín&amp;dice</translation>
    </message>
    <message>
        <source>&amp;All other Pages</source>
        <translation>Tod&amp;as las demás páginas</translation>
    </message>
    <message>
        <source>Index Page</source>
        <translation>Página índice</translation>
    </message>
    <message>
        <source>All other Pages</source>
        <translation>Todas las demás páginas</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>Vista &amp;previa</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
</TS>
