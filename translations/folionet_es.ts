<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Import</name>
    <message>
        <source>not told by the text</source>
        <translation>no lo dice el texto</translation>
    </message>
    <message>
        <source>Books: %1, chapters: %2, verses: %3</source>
        <translation>Libros: %1, capítulos: %2, versículos: %3</translation>
    </message>
    <message>
        <source>Language: %1</source>
        <translation>Idioma: %1</translation>
    </message>
    <message>
        <source>Charset: %1</source>
        <translation>Juego de caracteres: %1</translation>
    </message>
    <message>
        <source>Stem of its files: %1</source>
        <translation>Raíz de sus archivos: %1</translation>
    </message>
    <message>
        <source>Library: %1</source>
        <translation>Biblioteca: %1</translation>
    </message>
    <message>
        <source>The library holds a translation with this stem. It would be replaced.</source>
        <translation>La biblioteca contiene una traducción con esta raíz. Sería sustituida.</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>Y %1 más.</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>línea %1</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>No se ha escrito nada.</translation>
    </message>
    <message>
        <source>%1 comes twice; both are kept.</source>
        <translation>%1 aparece dos veces; se conservan ambos.</translation>
    </message>
    <message>
        <source>%1 is out of order.</source>
        <translation>%1 está fuera de orden.</translation>
    </message>
    <message>
        <source>%1 has no text.</source>
        <translation>%1 no tiene texto.</translation>
    </message>
    <message>
        <source>Not in the text: %1</source>
        <translation>No está en el texto: %1</translation>
    </message>
    <message>
        <source>%1: a text without control characters was expected.</source>
        <translation>%1: se esperaba un texto sin caracteres de control.</translation>
    </message>
    <message>
        <source>%1: a text of at most 200 bytes was expected.</source>
        <translation>%1: se esperaba un texto de 200 bytes como máximo.</translation>
    </message>
    <message>
        <source>%1: at most 60 letters and digits of ASCII, &quot;-&quot; and &quot;_&quot; were expected: %2</source>
        <translation>%1: se esperaban como máximo 60 letras y cifras de ASCII, «-» y «_»: %2</translation>
    </message>
    <message>
        <source>%1: a folder without control characters in its name was expected.</source>
        <translation>%1: se esperaba una carpeta sin caracteres de control en su nombre.</translation>
    </message>
    <message>
        <source>The unknown marker %1 is passed over, its text is kept.</source>
        <translation>La marca desconocida %1 se pasa por alto; su texto se conserva.</translation>
    </message>
    <message>
        <source>A note does not end: %1 was expected.</source>
        <translation>Una nota no termina: se esperaba %1.</translation>
    </message>
    <message>
        <source>Text in the unknown style %1 is kept.</source>
        <translation>El texto en el estilo desconocido %1 se conserva.</translation>
    </message>
    <message>
        <source>%1: a code such as he or pt-br was expected: %2</source>
        <translation>%1: se esperaba un código como he o pt-br: %2</translation>
    </message>
    <message>
        <source>Left out, as it is %1 and the other files are not.</source>
        <translation>Se omite, pues es %1 y los demás archivos no.</translation>
    </message>
    <message>
        <source>Left out, as it is no verse: %1</source>
        <translation>Se omite, pues no es ningún versículo: %1</translation>
    </message>
    <message>
        <source>Paths that stay in the archive were expected: %1</source>
        <translation>Se esperaban rutas que no salgan del archivo comprimido: %1</translation>
    </message>
    <message>
        <source>At most %1 files were expected.</source>
        <translation>Se esperaban como máximo %1 archivos.</translation>
    </message>
    <message>
        <source>An archive that unpacks into at most 512 MiB was expected.</source>
        <translation>Se esperaba un archivo comprimido que ocupe como máximo 512 MiB al extraerlo.</translation>
    </message>
    <message>
        <source>A sound archive was expected.</source>
        <translation>Se esperaba un archivo comprimido sin daños.</translation>
    </message>
    <message>
        <source>A sound archive was expected: %1</source>
        <translation>Se esperaba un archivo comprimido sin daños: %1</translation>
    </message>
    <message>
        <source>the code or the name of a book was expected</source>
        <translation>se esperaba el código o el nombre de un libro</translation>
    </message>
    <message>
        <source>there are more than 1000 different names of books</source>
        <translation>hay más de 1000 nombres distintos de libros</translation>
    </message>
    <message>
        <source>a book was expected before chapter %1</source>
        <translation>se esperaba un libro antes del capítulo %1</translation>
    </message>
    <message>
        <source>a chapter from 1 to 255 was expected: %1</source>
        <translation>se esperaba un capítulo del 1 al 255: %1</translation>
    </message>
    <message>
        <source>a book was expected before verse %1</source>
        <translation>se esperaba un libro antes del versículo %1</translation>
    </message>
    <message>
        <source>a chapter was expected before verse %1</source>
        <translation>se esperaba un capítulo antes del versículo %1</translation>
    </message>
    <message>
        <source>the number of a verse was expected: %1</source>
        <translation>se esperaba el número de un versículo: %1</translation>
    </message>
    <message>
        <source>a verse of at most 1 MiB was expected</source>
        <translation>se esperaba un versículo de 1 MiB como máximo</translation>
    </message>
    <message>
        <source>at most 255 verses in a chapter were expected</source>
        <translation>se esperaban como máximo 255 versículos en un capítulo</translation>
    </message>
    <message>
        <source>a text with verses was expected; there is none</source>
        <translation>se esperaba un texto con versículos; no hay ninguno</translation>
    </message>
    <message>
        <source>verses of one of the 66 books were expected; the books are others, such as %1</source>
        <translation>se esperaban versículos de uno de los 66 libros; los libros son otros, como %1</translation>
    </message>
    <message>
        <source>A free number from 1 to 999 was expected for the translation.</source>
        <translation>Se esperaba un número libre del 1 al 999 para la traducción.</translation>
    </message>
    <message>
        <source>It is longer than 64 MiB.</source>
        <translation>Ocupa más de 64 MiB.</translation>
    </message>
    <message>
        <source>A Bible text was expected: USFM, USX, USFX, OSIS, Zefania XML, or one verse a line.</source>
        <translation>Se esperaba un texto bíblico: USFM, USX, USFX, OSIS, Zefania XML o un versículo por línea.</translation>
    </message>
    <message>
        <source>Files of one form were expected: this one is %1, %2 is %3.</source>
        <translation>Se esperaban archivos de un mismo formato: este es %1, %2 es %3.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <translation>No es un archivo normal.</translation>
    </message>
    <message>
        <source>A folder with at most 10000 files was expected.</source>
        <translation>Se esperaba una carpeta con 10000 archivos como máximo.</translation>
    </message>
    <message>
        <source>The titles of 66 books were expected, %1 found.</source>
        <translation>Se esperaban los títulos de 66 libros y hay %1.</translation>
    </message>
    <message>
        <source>HOME names no folder that it could be in. Give one with --into FOLDER.</source>
        <translation>HOME no indica ninguna carpeta en la que pueda estar. Indique una con --into FOLDER.</translation>
    </message>
    <message>
        <source>Another import is writing into this library: %1. Import again when it has ended.</source>
        <translation>Otra importación está escribiendo en esta biblioteca: %1. Importe de nuevo cuando haya terminado.</translation>
    </message>
    <message>
        <source>Another program has changed this library. Import again.</source>
        <translation>Otro programa ha cambiado esta biblioteca. Importe de nuevo.</translation>
    </message>
    <message>
        <source>a line of at most 4 MiB was expected</source>
        <translation>se esperaba una línea de 4 MiB como máximo</translation>
    </message>
    <message>
        <source>a closing quote was expected: %1</source>
        <translation>se esperaban unas comillas de cierre: %1</translation>
    </message>
    <message>
        <source>a verse such as &quot;GEN 1:1 In the beginning&quot; was expected: %1</source>
        <translation>se esperaba un versículo como «GEN 1:1 En el principio»: %1</translation>
    </message>
    <message>
        <source>the osisID of a verse, such as &quot;Gen.1.1&quot;, was expected: %1</source>
        <translation>se esperaba el osisID de un versículo, como «Gen.1.1»: %1</translation>
    </message>
    <message>
        <source>the name of a charset, such as windows-1251, was expected: %1</source>
        <translation>se esperaba el nombre de un juego de caracteres, como windows-1251: %1</translation>
    </message>
    <message>
        <source>\id and the code of a book were expected before %1 %2</source>
        <translation>se esperaban \id y el código de un libro antes de %1 %2</translation>
    </message>
    <message>
        <source>character styles at most 40 deep were expected</source>
        <translation>se esperaban como máximo 40 estilos de carácter anidados</translation>
    </message>
    <message>
        <source>the end of %1 (line %2) was expected before %3</source>
        <translation>se esperaba el final de %1 (línea %2) antes de %3</translation>
    </message>
    <message>
        <source>elements at most %1 deep were expected</source>
        <translation>se esperaban como máximo %1 elementos anidados</translation>
    </message>
    <message>
        <source>well-formed XML was expected: the end of %1, not of %2</source>
        <translation>se esperaba XML bien formado: el final de %1, no el de %2</translation>
    </message>
    <message>
        <source>well-formed XML was expected: the end of %1 (line %2), not of the file</source>
        <translation>se esperaba XML bien formado: el final de %1 (línea %2), no el del archivo</translation>
    </message>
    <message>
        <source>well-formed XML was expected: %1</source>
        <translation>se esperaba XML bien formado: %1</translation>
    </message>
    <message>
        <source>a text without entities of its own was expected: %1</source>
        <translation>se esperaba un texto sin entidades propias: %1</translation>
    </message>
    <message>
        <source>%1 book of the translation that is replaced had another name, such as %2, now %3: their pages get other addresses.</source>
        <translation>%1 libro de la traducción que se sustituye tenía otro nombre, como %2, ahora %3: sus páginas reciben otras direcciones.</translation>
    </message>
    <message>
        <source>%1 books of the translation that is replaced had another name, such as %2, now %3: their pages get other addresses.</source>
        <translation>%1 libros de la traducción que se sustituye tenían otro nombre, como %2, ahora %3: sus páginas reciben otras direcciones.</translation>
    </message>
    <message>
        <source>The text names no language.</source>
        <translation>El texto no indica ningún idioma.</translation>
    </message>
    <message>
        <source>The text names no language; its pages declare %1, that of the settings.</source>
        <translation>El texto no indica ningún idioma; sus páginas declaran %1, el de la configuración.</translation>
    </message>
    <message>
        <source>The text names no language; by its letters it is %1.</source>
        <translation>El texto no indica ningún idioma; por sus letras es %1.</translation>
    </message>
    <message>
        <source>The text names no language; it stays %1, as before.</source>
        <translation>El texto no indica ningún idioma; sigue siendo %1, como antes.</translation>
    </message>
    <message>
        <source>The text names no language; by its book titles it is %1.</source>
        <translation>El texto no indica ningún idioma; por los títulos de sus libros es %1.</translation>
    </message>
    <message>
        <source>Left out, as it is none of the 66 books: %2 (%1 verse)</source>
        <translation>Omitido, porque no es ninguno de los 66 libros: %2 (%1 versículo)</translation>
    </message>
    <message>
        <source>Left out, as it is none of the 66 books: %2 (%1 verses)</source>
        <translation>Omitido, porque no es ninguno de los 66 libros: %2 (%1 versículos)</translation>
    </message>
    <message>
        <source>The text does not name all of its books; the names of the others are English.</source>
        <translation>El texto no nombra todos sus libros; los nombres de los demás están en inglés.</translation>
    </message>
    <message>
        <source>%1 is no number of a verse such as 3, 3a or 3-4; it is kept.</source>
        <translation>%1 no es un número de versículo como 3, 3a o 3-4; se conserva.</translation>
    </message>
    <message>
        <source>The text names none of its books; their names are English.</source>
        <translation>El texto no nombra ninguno de sus libros; sus nombres están en inglés.</translation>
    </message>
    <message>
        <source>A note does not end: %1 was expected; more of them in the file: %2.</source>
        <translation>Una nota no termina: se esperaba %1; más de ellas en el archivo: %2.</translation>
    </message>
    <message>
        <source>An element ends in the wrong place: %1.</source>
        <translation>Un elemento termina en un lugar equivocado: %1.</translation>
    </message>
    <message>
        <source>An element ends in the wrong place: %1; more of them in the file: %2.</source>
        <translation>Un elemento termina en un lugar equivocado: %1; más de ellos en el archivo: %2.</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Aviso: %1</translation>
    </message>
    <message>
        <source>The help says how to name them: &quot;Names of the books in your own language&quot;.</source>
        <translation>La ayuda dice cómo nombrarlos: «Los nombres de los libros en su idioma».</translation>
    </message>
    <message>
        <source>Another one is chosen in Page Encoding, once the text is imported.</source>
        <translation>Otro se elige en «Page Encoding», una vez importado el texto.</translation>
    </message>
    <message>
        <source>A Bible text was expected; the file is empty.</source>
        <translation>Se esperaba un texto bíblico; el archivo está vacío.</translation>
    </message>
    <message>
        <source>text in %1 was expected; &quot;folionet-cli import --charset NAME&quot; reads one in another charset</source>
        <translation>se esperaba texto en %1; «folionet-cli import --charset NAME» lee uno en otro juego de caracteres</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Copy as command line</source>
        <translation>Copiar como línea de órdenes</translation>
    </message>
    <message>
        <source>The command is on the clipboard.</source>
        <translation>La orden está en el portapapeles.</translation>
    </message>
    <message>
        <source>No browser could be started. The page is:</source>
        <translation>No se pudo abrir ningún navegador. La página es:</translation>
    </message>
    <message>
        <source>Verify site</source>
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
        <source>See that what cannot be read is a file, and to its permissions.</source>
        <translation>Compruebe que lo que no se puede leer sea un archivo, y sus permisos.</translation>
    </message>
    <message>
        <source>Save the pages in UTF-16 as UTF-8.</source>
        <translation>Guarde como UTF-8 las páginas que están en UTF-16.</translation>
    </message>
    <message>
        <source>Copy the missing pictures into the folder, or choose others.</source>
        <translation>Copie las imágenes que faltan en la carpeta o elija otras.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>Pages: %1, links: %2, broken: %3, not reached: %4.</source>
        <translation>Páginas: %1, enlaces: %2, rotos: %3, no alcanzadas: %4.</translation>
    </message>
    <message>
        <source>Links that lead out of the folder and were not followed: %1.</source>
        <translation>Enlaces que salen de la carpeta y no se siguieron: %1.</translation>
    </message>
    <message>
        <source>Stopped before all pages were read.</source>
        <translation>Detenido antes de leer todas las páginas.</translation>
    </message>
    <message>
        <source>Reading the site ...</source>
        <translation>Leyendo el sitio…</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Remove pages</source>
        <translation>Borrar páginas</translation>
    </message>
    <message>
        <source>Nothing leads to these %1 pages of Folionet:</source>
        <translation>Nada lleva a estas %1 páginas de Folionet:</translation>
    </message>
    <message>
        <source>Delete them?</source>
        <translation>¿Borrarlas?</translation>
    </message>
    <message>
        <source>%1 pages were deleted. Remove them from your server too.</source>
        <translation>Se han borrado %1 páginas. Quítelas también de su servidor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not there.</source>
        <translation>«%1» no está.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not there (%2 pages, this one first).</source>
        <translation>«%1» no está (%2 páginas, esta la primera).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there in another letter case only, %3.</source>
        <translation>«%1» solo está con otras mayúsculas y minúsculas: %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there in another letter case only, %3 (%2 pages, this one first).</source>
        <translation>«%1» solo está con otras mayúsculas y minúsculas: %3 (%2 páginas, esta la primera).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds &quot;\&quot;, which no address does.</source>
        <translation>«%1» contiene «\», que no va en ninguna dirección.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds &quot;\&quot;, which no address does (%2 pages, this one first).</source>
        <translation>«%1» contiene «\», que no va en ninguna dirección (%2 páginas, esta la primera).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>«%1» no se puede leer.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read (%2 pages, this one first).</source>
        <translation>«%1» no se puede leer (%2 páginas, esta la primera).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder without an index.html.</source>
        <translation>«%1» es una carpeta sin index.html.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder without an index.html (%2 pages, this one first).</source>
        <translation>«%1» es una carpeta sin index.html (%2 páginas, esta la primera).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, and a file was expected.</source>
        <translation>«%1» es una carpeta, y se esperaba un archivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, and a file was expected (%2 pages, this one first).</source>
        <translation>«%1» es una carpeta, y se esperaba un archivo (%2 páginas, esta la primera).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in the page&apos;s charset, so that browsers look for another name.</source>
        <translation>«%1» no está en el juego de caracteres de la página, así que los navegadores buscan otro nombre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in the page&apos;s charset, so that browsers look for another name (%2 pages, this one first).</source>
        <translation>«%1» no está en el juego de caracteres de la página, así que los navegadores buscan otro nombre (%2 páginas, esta la primera).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, but &quot;#&quot;, &quot;?&quot;, &quot;%&quot; and &quot;:&quot; have another meaning in an address.</source>
        <translation>«%1» es un archivo, pero «#», «?», «%» y «:» tienen otro significado en una dirección.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, but &quot;#&quot;, &quot;?&quot;, &quot;%&quot; and &quot;:&quot; have another meaning in an address (%2 pages, this one first).</source>
        <translation>«%1» es un archivo, pero «#», «?», «%» y «:» tienen otro significado en una dirección (%2 páginas, esta la primera).</translation>
    </message>
    <message>
        <source>cannot be read: %1.</source>
        <translation>no se puede leer: %1.</translation>
    </message>
    <message>
        <source>cannot be read: It is UTF-16.</source>
        <translation>no se puede leer: está en UTF-16.</translation>
    </message>
    <message>
        <source>a symbolic link to another folder, whose pages were not read: see that the server has it.</source>
        <translation>un enlace simbólico a otra carpeta, cuyas páginas no se han leído: procure que el servidor la tenga.</translation>
    </message>
    <message>
        <source>no page that %1 leads to links here: left from an earlier compile, or outside the chosen books.</source>
        <translation>ninguna página a la que lleva %1 enlaza aquí: quedó de una compilación anterior o está fuera de los libros elegidos.</translation>
    </message>
    <message>
        <source>%2 pages, up to %3: no page that %1 leads to links to them: left from an earlier compile, or outside the chosen books.</source>
        <translation>%2 páginas, hasta %3: ninguna página a la que lleva %1 las enlaza: quedaron de una compilación anterior o están fuera de los libros elegidos.</translation>
    </message>
    <message>
        <source>leads to no chapter.</source>
        <translation>no lleva a ningún capítulo.</translation>
    </message>
    <message>
        <source>Compile again with the charset that the book titles are in (%1), or with short file names (%2).</source>
        <translation>Compile de nuevo con el juego de caracteres de los títulos de los libros (%1) o con nombres de archivo cortos (%2).</translation>
    </message>
    <message>
        <source>Compile again with short file names (%1), or with book titles that lack these signs.</source>
        <translation>Compile de nuevo con nombres de archivo cortos (%1) o con títulos de libros sin estos signos.</translation>
    </message>
    <message>
        <source>See that the starting book stands before the ending book, and that this is the index page; compile again.</source>
        <translation>Procure que el primer libro esté antes del último y que esta sea la página de índice; compile de nuevo.</translation>
    </message>
    <message>
        <source>Choose all books and compile again, or remove the pages that nothing leads to%1.</source>
        <translation>Elija todos los libros y compile de nuevo, o quite las páginas a las que nada lleva%1.</translation>
    </message>
    <message>
        <source>Compile into this folder again; then correct what is still broken in the custom header and footer and in your own pages and style sheets, or put the missing file there.</source>
        <translation>Compile de nuevo en esta carpeta; corrija después lo que aún falte en el encabezado y el pie propios y en sus propias páginas y hojas de estilo, o ponga allí el archivo que falta.</translation>
    </message>
    <message>
        <source>is no page of Folionet, and was not removed.</source>
        <translation>no es una página de Folionet y no se ha borrado.</translation>
    </message>
    <message>
        <source>cannot be removed: %1.</source>
        <translation>no se puede borrar: %1.</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>Preview page</source>
        <translation>Ver página</translation>
    </message>
    <message>
        <source>The translation has no chapter 1 of the starting book.</source>
        <translation>La traducción no tiene el capítulo 1 del libro inicial.</translation>
    </message>
    <message>
        <source>Versalia is the program that installs the translations which Folionet turns into sites. Without it, import a Bible text that you have: Folionet keeps it in a library of its own.</source>
        <translation>Versalia es el programa que instala las traducciones que Folionet convierte en sitios. Sin él, importe un texto bíblico que tenga: Folionet lo guarda en una biblioteca propia.</translation>
    </message>
    <message>
        <source>&amp;Import a text...</source>
        <translation>&amp;Importar un texto...</translation>
    </message>
    <message>
        <source>There is no translation, for there is no folder %1 of Versalia&apos;s modules.</source>
        <translation>No hay ninguna traducción, pues no existe la carpeta %1 de los módulos de Versalia.</translation>
    </message>
    <message>
        <source>There is no translation, for the catalogue %1 lists none.</source>
        <translation>No hay ninguna traducción, pues el catálogo %1 no contiene ninguna.</translation>
    </message>
    <message>
        <source>There is no translation, for the text of none can be read: %1 lists %2, and the text of the first was looked for in %3.</source>
        <translation>No hay ninguna traducción, pues no se puede leer el texto de ninguna: %1 contiene %2, y el texto de la primera se buscó en %3.</translation>
    </message>
    <message>
        <source>%1 in the setting %2 is no dynamic word, and stands in the pages as it is; the words are %bible%, %bk%, %ch% and %vs%.</source>
        <translation>%1 en la opción %2 no es una palabra dinámica y queda tal cual en las páginas; las palabras son %bible%, %bk%, %ch% y %vs%.</translation>
    </message>
    <message>
        <source>%1 in %2 stands in the pages as it is: only titles, META texts and the text of the link have dynamic words.</source>
        <translation>%1 en %2 queda tal cual en las páginas: solo los títulos, los textos META y el texto del enlace tienen palabras dinámicas.</translation>
    </message>
    <message>
        <source>No list of languages knows the page language %1.</source>
        <translation>Ninguna lista de idiomas conoce el idioma %1 de las páginas.</translation>
    </message>
    <message>
        <source>No browser knows the charset %1; the pages are written in %2.</source>
        <translation>Ningún navegador conoce el juego de caracteres %1; las páginas se escriben en %2.</translation>
    </message>
    <message>
        <source>Pages cannot be in the charset %1; they are written in %2 all the same.</source>
        <translation>Las páginas no pueden tener el juego de caracteres %1; se escriben de todos modos en %2.</translation>
    </message>
    <message>
        <source>The book titles are UTF-8, the pages %1.</source>
        <translation>Los títulos de los libros están en UTF-8 y las páginas en %1.</translation>
    </message>
    <message>
        <source>The text of the translation is UTF-8, the pages %1.</source>
        <translation>El texto de la traducción está en UTF-8 y las páginas en %1.</translation>
    </message>
    <message>
        <source>The book titles are not UTF-8, the pages are.</source>
        <translation>Los títulos de los libros no están en UTF-8 y las páginas sí.</translation>
    </message>
    <message>
        <source>The text of the translation is not UTF-8, the pages are.</source>
        <translation>El texto de la traducción no está en UTF-8 y las páginas sí.</translation>
    </message>
    <message>
        <source>The text of the translation is UTF-8 and the book titles are not: no charset of the pages fits both.</source>
        <translation>El texto de la traducción está en UTF-8 y los títulos de los libros no: ningún juego de caracteres de las páginas sirve para ambos.</translation>
    </message>
    <message>
        <source>The book titles are UTF-8 and the text of the translation is not: no charset of the pages fits both.</source>
        <translation>Los títulos de los libros están en UTF-8 y el texto de la traducción no: ningún juego de caracteres de las páginas sirve para ambos.</translation>
    </message>
    <message>
        <source>The folder holds pages of another translation: %1.</source>
        <translation>La carpeta contiene páginas de otra traducción: %1.</translation>
    </message>
    <message>
        <source>%1 pages of earlier compiles, such as %2, lie in the folder. This one does not write them, and its index page does not lead to them.</source>
        <translation>En la carpeta hay %1 páginas de compilaciones anteriores, como %2. Esta no las escribe, y su página de índice no lleva a ellas.</translation>
    </message>
    <message>
        <source>The index page %1 takes the place of a chapter&apos;s page.</source>
        <translation>La página de índice %1 ocupa el lugar de la página de un capítulo.</translation>
    </message>
    <message>
        <source>The books %2 have the same page names, such as %1: only the pages of the last one are kept.</source>
        <translation>Los libros %2 tienen los mismos nombres de página, como %1: solo quedan las páginas del último.</translation>
    </message>
    <message>
        <source>The ending book stands before the starting book: the index page has no links.</source>
        <translation>El último libro está antes del primero: la página de índice no tiene enlaces.</translation>
    </message>
    <message>
        <source>%1 pages are removed, those of the books before the starting book.</source>
        <translation>Se eliminan %1 páginas: las de los libros anteriores al primero.</translation>
    </message>
    <message>
        <source>%1 pages are removed, those of the books after the ending book.</source>
        <translation>Se eliminan %1 páginas: las de los libros posteriores al último.</translation>
    </message>
    <message>
        <source>No translation is named: of %2, the first is taken, %1.</source>
        <translation>No se ha nombrado ninguna traducción: de %2 se toma la primera, %1.</translation>
    </message>
    <message>
        <source>No browser finds the pages of the books %2, such as %1: &quot;?&quot;, &quot;#&quot;, &quot;:&quot; and a quotation mark have another meaning in a link.</source>
        <translation>Ningún navegador encuentra las páginas de los libros %2, como %1: «?», «#», «:» y las comillas tienen otro significado en un enlace.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 no se puede leer: %2</translation>
    </message>
    <message>
        <source>%1 does not hold the settings of a site, which stand below [Site] and [Keys].</source>
        <translation>%1 no contiene los ajustes de un sitio, que están bajo [Site] y [Keys].</translation>
    </message>
    <message>
        <source>%1 holds a setting that no site has: %2</source>
        <translation>%1 contiene un ajuste que ningún sitio tiene: %2</translation>
    </message>
    <message>
        <source>%1: %2 must be 0 or 1: &quot;%3&quot;</source>
        <translation>%1: %2 debe ser 0 o 1: &quot;%3&quot;</translation>
    </message>
    <message>
        <source>The text of the translation is not in %1, which its import has noted in %2.</source>
        <translation>El texto de la traducción no está en %1, como la importación anotó en %2.</translation>
    </message>
    <message>
        <source>no page that %1 leads to links here; it is not marked as a page of Folionet.</source>
        <translation>ninguna página a la que lleva %1 enlaza aquí; no está marcada como página de Folionet.</translation>
    </message>
    <message>
        <source>%2 pages, up to %3: no page that %1 leads to links to them; they are not marked as pages of Folionet.</source>
        <translation>%2 páginas, hasta %3: ninguna página a la que lleva %1 las enlaza; no están marcadas como páginas de Folionet.</translation>
    </message>
    <message>
        <source>Link to it from one of your pages, or move it away.</source>
        <translation>Enlácela desde una de sus páginas, o sáquela de la carpeta.</translation>
    </message>
    <message>
        <source>The chapter index counts no chapter of the chosen books: the index page has no links.</source>
        <translation>El índice de capítulos no cuenta ningún capítulo de los libros elegidos: la página de índice no tiene enlaces.</translation>
    </message>
    <message>
        <source>Nothing leads to this page of Folionet:</source>
        <translation>Nada lleva a esta página de Folionet:</translation>
    </message>
    <message>
        <source>Delete it?</source>
        <translation>¿Borrarla?</translation>
    </message>
    <message>
        <source>1 page was deleted. Remove it from your server too.</source>
        <translation>Se ha borrado 1 página. Quítela también de su servidor.</translation>
    </message>
    <message>
        <source>A page of an earlier compile, %2, lies in the folder. This one does not write it, and its index page does not lead to it.</source>
        <translation>En la carpeta hay una página de una compilación anterior, %2. Esta no la escribe, y su página de índice no lleva a ella.</translation>
    </message>
    <message>
        <source>1 page is removed, that of a book before the starting book.</source>
        <translation>Se elimina 1 página: la de un libro anterior al primero.</translation>
    </message>
    <message>
        <source>1 page is removed, that of a book after the ending book.</source>
        <translation>Se elimina 1 página: la de un libro posterior al último.</translation>
    </message>
    <message>
        <source>%1 is read as %2 and is UTF-8: its letters come out wrong.</source>
        <translation>%1 se lee como %2 y es UTF-8: sus letras salen mal.</translation>
    </message>
    <message>
        <source>The name of the translation is UTF-8, the pages %1.</source>
        <translation>El nombre de la traducción está en UTF-8 y las páginas en %1.</translation>
    </message>
    <message>
        <source>The name of the translation is not UTF-8, the pages are.</source>
        <translation>El nombre de la traducción no está en UTF-8 y las páginas sí.</translation>
    </message>
    <message>
        <source>No browser finds the background image %1: &quot;?&quot;, &quot;#&quot;, &quot;:&quot; and a quotation mark have another meaning in a link.</source>
        <translation>Ningún navegador encuentra la imagen de fondo %1: «?», «#», «:» y las comillas tienen otro significado en un enlace.</translation>
    </message>
    <message>
        <source>No browser finds the index page %1: &quot;?&quot;, &quot;#&quot;, &quot;:&quot; and a quotation mark have another meaning in a link.</source>
        <translation>Ningún navegador encuentra la página de índice %1: «?», «#», «:» y las comillas tienen otro significado en un enlace.</translation>
    </message>
    <message>
        <source>The book titles are not in %1, the charset of the pages.</source>
        <translation>Los títulos de los libros no están en %1, el juego de caracteres de las páginas.</translation>
    </message>
    <message>
        <source>The book titles cannot be read from %1, which the imported text %2 brings.
To import that text again in its place, by folionet-cli import --replace, or to name another file of that folder for cboLang in %3 lets the program start again.</source>
        <translation>No se pueden leer los títulos de los libros de %1, que trae el texto importado %2.
Importar ese texto otra vez en su lugar, con folionet-cli import --replace, o nombrar otro archivo de esa carpeta para cboLang en %3 deja que el programa arranque de nuevo.</translation>
    </message>
    <message>
        <source>The book titles cannot be read from %1, and its folder holds no other Language File that can be.
To install Versalia anew, or to write such a file with the titles of 66 books, lets the program start again.</source>
        <translation>No se pueden leer los títulos de los libros de %1, y su carpeta no contiene otro Language File legible.
Instalar Versalia de nuevo, o escribir un archivo así con los títulos de 66 libros, permite que el programa vuelva a arrancar.</translation>
    </message>
    <message>
        <source>The book titles cannot be read from %1, the Language File that is chosen.
Restore ALL Defaults, or another name for cboLang in %2, lets the program start again.
Return all settings to default now?</source>
        <translation>No se pueden leer los títulos de los libros de %1, el Language File elegido.
«Restore ALL Defaults», u otro nombre para cboLang en %2, permite que el programa vuelva a arrancar.
¿Restablecer ahora todos los ajustes?</translation>
    </message>
    <message>
        <source>The book titles cannot be read from %1, the Language File that is chosen.
Another name for cboLang in %2, such as %3, lets the program start again.
Choose %3 now?</source>
        <translation>No se pueden leer los títulos de los libros de %1, el Language File elegido.
Otro nombre para cboLang en %2, como %3, permite que el programa vuelva a arrancar.
¿Elegir %3 ahora?</translation>
    </message>
    <message>
        <source>%1 is read as %2 and is not: its letters come out wrong.</source>
        <translation>%1 se lee como %2 y no lo es: sus letras salen mal.</translation>
    </message>
    <message>
        <source>Save it as UTF-8 with a byte-order mark.</source>
        <translation>Guárdelo como UTF-8 con marca de orden de bytes.</translation>
    </message>
    <message>
        <source>The text of the translation is not in %1, the charset of the pages.</source>
        <translation>El texto de la traducción no está en %1, el juego de caracteres de las páginas.</translation>
    </message>
    <message>
        <source>The name of the translation is not in %1, the charset of the pages.</source>
        <translation>El nombre de la traducción no está en %1, el juego de caracteres de las páginas.</translation>
    </message>
    <message>
        <source>The index page %1 takes the place of a chapter&apos;s page, %2, where the letter case of names does not count, as on Windows.</source>
        <translation>La página de índice %1 ocupa el lugar de la página de un capítulo, %2, donde las mayúsculas de los nombres no cuentan, como en Windows.</translation>
    </message>
    <message>
        <source>The folder holds pages of several translations: %1.</source>
        <translation>La carpeta contiene páginas de varias traducciones: %1.</translation>
    </message>
</context>
<context>
    <name>folionet::CustomHtmlDialog</name>
    <message>
        <source>HTML code</source>
        <translation>Código HTML</translation>
    </message>
    <message>
        <source>%1 has changed since it was read here, or could not be read. Write this text over it all the same?</source>
        <translation>%1 ha cambiado desde que se leyó aquí, o no se pudo leer. ¿Sustituirlo de todos modos por este texto?</translation>
    </message>
</context>
<context>
    <name>folionet::FactLines</name>
    <message>
        <source>1 page of an earlier compile</source>
        <translation>1 página de una compilación anterior</translation>
    </message>
    <message>
        <source>%1 pages of an earlier compile</source>
        <translation>%1 páginas de una compilación anterior</translation>
    </message>
    <message>
        <source>%1 pages of an earlier compile of %2</source>
        <translation>%1 páginas de una compilación anterior de %2</translation>
    </message>
    <message>
        <source>%1 there is not of Folionet and will be replaced.</source>
        <translation>%1 de allí no es de Folionet y se reemplazará.</translation>
    </message>
    <message>
        <source>%1 and %2 more there are not of Folionet and will be replaced.</source>
        <translation>%1 y %2 más de allí no son de Folionet y se reemplazarán.</translation>
    </message>
    <message>
        <source>The folder cannot be read.</source>
        <translation>No se puede leer la carpeta.</translation>
    </message>
    <message>
        <source>1 other file stays untouched</source>
        <translation>1 otro archivo queda intacto</translation>
    </message>
    <message>
        <source>%1 other files stay untouched</source>
        <translation>%1 otros archivos quedan intactos</translation>
    </message>
    <message>
        <source>Empty folder.</source>
        <translation>Carpeta vacía.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>The pages of %1 will be deleted: %2.</source>
        <translation>Se borrarán las páginas de %1: %2.</translation>
    </message>
    <message>
        <source>The pages of %1 are written too; the index does not lead to them.</source>
        <translation>También se escriben las páginas de %1; el índice no lleva a ellas.</translation>
    </message>
    <message>
        <source>Looking at the folder...</source>
        <translation>Examinando la carpeta...</translation>
    </message>
    <message>
        <source>The ending book stands before the starting book: the index will be empty.</source>
        <translation>El libro final está antes del inicial: el índice quedará vacío.</translation>
    </message>
    <message>
        <source>No files, only folders.</source>
        <translation>Ningún archivo, solo carpetas.</translation>
    </message>
    <message>
        <source>Choose another Language File, or Use 8.3 File Names.</source>
        <translation>Elija otro Language File o «Use 8.3 File Names».</translation>
    </message>
    <message>
        <source>Choose another Language File, or convert one of the two files.</source>
        <translation>Elija otro Language File, o convierta uno de los dos archivos.</translation>
    </message>
    <message>
        <source>Choose another one in Page Encoding.</source>
        <translation>Elija otro en «Page Encoding».</translation>
    </message>
    <message>
        <source>Enter another name for the index page.</source>
        <translation>Escriba otro nombre para la página de índice.</translation>
    </message>
    <message>
        <source>Choose the right charset in Page Encoding.</source>
        <translation>Elija el juego de caracteres correcto en «Page Encoding».</translation>
    </message>
    <message>
        <source>Choose &quot;%1&quot; in Page Encoding.</source>
        <translation>Elija «%1» en «Page Encoding».</translation>
    </message>
    <message>
        <source>without a name: %1</source>
        <translation>sin nombre: %1</translation>
    </message>
    <message>
        <source>%1 pages of earlier compiles (%2)</source>
        <translation>%1 páginas de compilaciones anteriores (%2)</translation>
    </message>
    <message>
        <source>%1 pages of earlier compiles</source>
        <translation>%1 páginas de compilaciones anteriores</translation>
    </message>
</context>
<context>
    <name>folionet::FolderPickers</name>
    <message>
        <source>Choose the Output Path</source>
        <translation>Elegir la ruta de salida</translation>
    </message>
</context>
<context>
    <name>folionet::FolderTree</name>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
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
    <message>
        <source>index.html</source>
        <comment>the help in this language</comment>
        <translation>es/index.html</translation>
    </message>
</context>
<context>
    <name>folionet::HistoryBox</name>
    <message>
        <source>Last addresses</source>
        <translation>Últimas direcciones</translation>
    </message>
</context>
<context>
    <name>folionet::ImportButton</name>
    <message>
        <source>The text is in the library of imported texts, %1.
The translations of another library are listed: %2.
List those of the imported texts instead, until Folionet is closed? Later, folionet --versalia-path with the first folder does so.</source>
        <translation>El texto está en la biblioteca de textos importados, %1.
La lista muestra las traducciones de otra biblioteca: %2.
¿Mostrar en su lugar las de los textos importados, hasta que se cierre Folionet? Más tarde lo hace folionet --versalia-path con la primera carpeta.</translation>
    </message>
    <message>
        <source>Import a text</source>
        <translation>Importar un texto</translation>
    </message>
</context>
<context>
    <name>folionet::LibraryLists</name>
    <message>
        <source>Translation not found</source>
        <translation>No se encuentra la traducción</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can no longer be read. Its text would be:</source>
        <translation>«%1» ya no se puede leer. Su texto sería:</translation>
    </message>
    <message>
        <source>The library does not hold the translation of this site: &quot;%1&quot;</source>
        <translation>La biblioteca no contiene la traducción de este sitio: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The Language File does not name the books of this site: &quot;%1&quot;</source>
        <translation>El archivo de idioma no nombra los libros de este sitio: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Not as the site has it</source>
        <translation>No como lo tiene el sitio</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was imported anew since it was chosen. Its books, charset and language are shown now: look at them, and compile again.</source>
        <translation>«%1» se ha importado de nuevo desde que se eligió. Ahora se muestran sus libros, su juego de caracteres y su idioma: revíselos y compile otra vez.</translation>
    </message>
    <message>
        <source>Another text</source>
        <translation>Otro texto</translation>
    </message>
</context>
<context>
    <name>folionet::SiteMenu</name>
    <message>
        <source>&amp;Open a site...</source>
        <translation>&amp;Abrir un sitio...</translation>
    </message>
    <message>
        <source>&amp;Save as a site...</source>
        <translation>&amp;Guardar como sitio...</translation>
    </message>
    <message>
        <source>&amp;Back to my own settings</source>
        <translation>&amp;Volver a mis ajustes</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Sitios</translation>
    </message>
    <message>
        <source>Sites that have settings of their own, each in a file.</source>
        <translation>Sitios con ajustes propios, cada uno en un archivo.</translation>
    </message>
    <message>
        <source>The settings of this site are in %1.</source>
        <translation>Los ajustes de este sitio están en %1.</translation>
    </message>
    <message>
        <source>Another site</source>
        <translation>Otro sitio</translation>
    </message>
    <message>
        <source>Not a site</source>
        <translation>No es un sitio</translation>
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
    <name>folionet::frmImport</name>
    <message>
        <source>Import a text</source>
        <translation>Importar un texto</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Texto</translation>
    </message>
    <message>
        <source>A file, a folder, or a zip or tar archive. Return reads it.</source>
        <translation>Un archivo, una carpeta o un archivo zip o tar. La tecla Intro lo lee.</translation>
    </message>
    <message>
        <source>A file, a folder, or a zip or tar archive</source>
        <translation>Un archivo, una carpeta o un archivo zip o tar</translation>
    </message>
    <message>
        <source>&amp;File...</source>
        <translation>&amp;Archivo...</translation>
    </message>
    <message>
        <source>F&amp;older...</source>
        <translation>&amp;Carpeta...</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nombre</translation>
    </message>
    <message>
        <source>The name of the translation, as pages and lists show it.</source>
        <translation>El nombre de la traducción, como lo muestran las páginas y las listas.</translation>
    </message>
    <message>
        <source>&amp;Stem</source>
        <translation>&amp;Raíz</translation>
    </message>
    <message>
        <source>What the names of its files in the library begin with. Empty: made from the name.</source>
        <translation>Con lo que empiezan los nombres de sus archivos en la biblioteca. Vacío: se hace del nombre.</translation>
    </message>
    <message>
        <source>Fo&amp;und</source>
        <translation>&amp;Hallado</translation>
    </message>
    <message>
        <source>Choose a Bible text, or drop one here: USFM, USX, USFX, OSIS, Zefania XML, or one verse a line. What is found in it is shown here; nothing is written before you press Import.</source>
        <translation>Elija un texto bíblico o arrástrelo aquí: USFM, USX, USFX, OSIS, Zefania XML o un versículo por línea. Lo que se halle en él aparece aquí; no se escribe nada antes de que pulse «Importar».</translation>
    </message>
    <message>
        <source>Progress of the import</source>
        <translation>Progreso de la importación</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>C&amp;errar</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>Choose the folder of the text</source>
        <translation>Elegir la carpeta del texto</translation>
    </message>
    <message>
        <source>Reading %1 ...</source>
        <translation>Leyendo %1 ...</translation>
    </message>
    <message>
        <source>Stopped. Nothing was written.</source>
        <translation>Detenido. No se ha escrito nada.</translation>
    </message>
    <message>
        <source>The library holds a translation with the stem %1 already.
Replace it? To keep it, answer No and give this text another stem.</source>
        <translation>La biblioteca ya contiene una traducción con la raíz %1.
¿Sustituirla? Para conservarla, responda No y dé a este texto otra raíz.</translation>
    </message>
</context>
<context>
    <name>folionet::frmKeywords</name>
    <message>
        <source>META Keywords of the index page</source>
        <translation>Palabras clave META de la página índice</translation>
    </message>
    <message>
        <source>META Keywords of all other pages</source>
        <translation>Palabras clave META de las demás páginas</translation>
    </message>
    <message>
        <source>META Description of the index page</source>
        <translation>Descripción META de la página índice</translation>
    </message>
    <message>
        <source>META Description of all other pages</source>
        <translation>Descripción META de las demás páginas</translation>
    </message>
    <message>
        <source>Type above, or press Refresh</source>
        <translation>Escriba arriba o pulse «Refresh»</translation>
    </message>
</context>
<context>
    <name>folionet::frmLinkToMAin</name>
    <message>
        <source>&amp;HTML of the link</source>
        <translation>&amp;HTML del enlace</translation>
    </message>
    <message>
        <source>Press Refresh to see the link</source>
        <translation>Pulse «Refresh» para ver el enlace</translation>
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
        <source>Verify site</source>
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
        <source>Settings not saved</source>
        <translation>Ajustes no guardados</translation>
    </message>
    <message>
        <source>The settings cannot be saved.</source>
        <translation>Los ajustes no se pueden guardar.</translation>
    </message>
    <message>
        <source>Leave without saving them?</source>
        <translation>¿Salir sin guardarlos?</translation>
    </message>
    <message>
        <source>Book titles</source>
        <translation>Títulos</translation>
    </message>
    <message>
        <source>Recent folders</source>
        <translation>Carpetas recientes</translation>
    </message>
    <message>
        <source>Choose one of the folders that were compiled into last.</source>
        <translation>Elegir una de las últimas carpetas en las que se compiló.</translation>
    </message>
    <message>
        <source>The address of the index page, such as index.html or http://www.example.org/index.html. The Down key offers index.html and the last addresses; Return compiles.</source>
        <translation>La dirección de la página índice, como index.html o http://www.example.org/index.html. La tecla Abajo ofrece index.html y las últimas direcciones; Intro compila.</translation>
    </message>
    <message>
        <source>Preview page</source>
        <translation>Ver página</translation>
    </message>
    <message>
        <source>Show chapter 1 of the starting book in your browser as it would be made now (F7).</source>
        <translation>Mostrar en el navegador el capítulo 1 del libro inicial como se haría ahora (F7).</translation>
    </message>
    <message>
        <source>%1 pages in %2, %3</source>
        <translation>%1 páginas en %2, %3</translation>
    </message>
    <message>
        <source>Import a text...</source>
        <translation>Importar un texto...</translation>
    </message>
    <message>
        <source>Make a translation of a Bible text that you have (Ctrl+I).</source>
        <translation>Hacer una traducción de un texto bíblico que usted tenga (Ctrl+I).</translation>
    </message>
    <message>
        <source>The address of the sitemap, &quot;%1&quot;, is none of a folder such as https://example.org/bible/.</source>
        <translation>La dirección del mapa del sitio, &quot;%1&quot;, no es la de una carpeta como https://example.org/bible/.</translation>
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
    <message>
        <source>Preview of the title of the index page</source>
        <translation>Vista previa del título de la página índice</translation>
    </message>
    <message>
        <source>Type above, or press Preview</source>
        <translation>Escriba arriba o pulse «Vista previa»</translation>
    </message>
    <message>
        <source>Preview of the title of all other pages</source>
        <translation>Vista previa del título de las demás páginas</translation>
    </message>
</context>
</TS>
