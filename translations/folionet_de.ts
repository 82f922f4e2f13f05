<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Import</name>
    <message>
        <source>not told by the text</source>
        <translation>vom Text nicht genannt</translation>
    </message>
    <message>
        <source>Books: %1, chapters: %2, verses: %3</source>
        <translation>Bücher: %1, Kapitel: %2, Verse: %3</translation>
    </message>
    <message>
        <source>Language: %1</source>
        <translation>Sprache: %1</translation>
    </message>
    <message>
        <source>Charset: %1</source>
        <translation>Zeichensatz: %1</translation>
    </message>
    <message>
        <source>Stem of its files: %1</source>
        <translation>Stamm seiner Dateien: %1</translation>
    </message>
    <message>
        <source>Library: %1</source>
        <translation>Bibliothek: %1</translation>
    </message>
    <message>
        <source>The library holds a translation with this stem. It would be replaced.</source>
        <translation>Die Bibliothek enthält eine Übersetzung mit diesem Stamm. Sie würde ersetzt.</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>Und %1 weitere.</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>%1 comes twice; both are kept.</source>
        <translation>%1 kommt zweimal vor; beide bleiben.</translation>
    </message>
    <message>
        <source>%1 is out of order.</source>
        <translation>%1 steht nicht in der Reihenfolge.</translation>
    </message>
    <message>
        <source>%1 has no text.</source>
        <translation>%1 hat keinen Text.</translation>
    </message>
    <message>
        <source>Not in the text: %1</source>
        <translation>Nicht im Text: %1</translation>
    </message>
    <message>
        <source>%1: a text without control characters was expected.</source>
        <translation>%1: Ein Text ohne Steuerzeichen wurde erwartet.</translation>
    </message>
    <message>
        <source>%1: a text of at most 200 bytes was expected.</source>
        <translation>%1: Ein Text von höchstens 200 Bytes wurde erwartet.</translation>
    </message>
    <message>
        <source>%1: at most 60 letters and digits of ASCII, &quot;-&quot; and &quot;_&quot; were expected: %2</source>
        <translation>%1: Höchstens 60 Buchstaben und Ziffern von ASCII, „-“ und „_“ wurden erwartet: %2</translation>
    </message>
    <message>
        <source>%1: a folder without control characters in its name was expected.</source>
        <translation>%1: Ein Ordner ohne Steuerzeichen im Namen wurde erwartet.</translation>
    </message>
    <message>
        <source>The unknown marker %1 is passed over, its text is kept.</source>
        <translation>Die unbekannte Marke %1 wird übergangen, ihr Text bleibt.</translation>
    </message>
    <message>
        <source>A note does not end: %1 was expected.</source>
        <translation>Eine Anmerkung endet nicht: %1 wurde erwartet.</translation>
    </message>
    <message>
        <source>Text in the unknown style %1 is kept.</source>
        <translation>Text in der unbekannten Formatvorlage %1 bleibt.</translation>
    </message>
    <message>
        <source>%1: a code such as he or pt-br was expected: %2</source>
        <translation>%1: ein Kürzel wie he oder pt-br wurde erwartet: %2</translation>
    </message>
    <message>
        <source>Left out, as it is %1 and the other files are not.</source>
        <translation>Ausgelassen, da sie %1 ist und die anderen Dateien nicht.</translation>
    </message>
    <message>
        <source>Left out, as it is no verse: %1</source>
        <translation>Ausgelassen, da es kein Vers ist: %1</translation>
    </message>
    <message>
        <source>Paths that stay in the archive were expected: %1</source>
        <translation>Pfade, die im Archiv bleiben, wurden erwartet: %1</translation>
    </message>
    <message>
        <source>At most %1 files were expected.</source>
        <translation>Höchstens %1 Dateien wurden erwartet.</translation>
    </message>
    <message>
        <source>An archive that unpacks into at most 512 MiB was expected.</source>
        <translation>Ein Archiv, das entpackt höchstens 512 MiB groß ist, wurde erwartet.</translation>
    </message>
    <message>
        <source>A sound archive was expected.</source>
        <translation>Ein unbeschädigtes Archiv wurde erwartet.</translation>
    </message>
    <message>
        <source>A sound archive was expected: %1</source>
        <translation>Ein unbeschädigtes Archiv wurde erwartet: %1</translation>
    </message>
    <message>
        <source>the code or the name of a book was expected</source>
        <translation>Kürzel oder Name eines Buches wurde erwartet</translation>
    </message>
    <message>
        <source>there are more than 1000 different names of books</source>
        <translation>Es gibt mehr als 1000 verschiedene Namen von Büchern</translation>
    </message>
    <message>
        <source>a book was expected before chapter %1</source>
        <translation>vor Kapitel %1 wurde ein Buch erwartet</translation>
    </message>
    <message>
        <source>a chapter from 1 to 255 was expected: %1</source>
        <translation>ein Kapitel von 1 bis 255 wurde erwartet: %1</translation>
    </message>
    <message>
        <source>a book was expected before verse %1</source>
        <translation>vor Vers %1 wurde ein Buch erwartet</translation>
    </message>
    <message>
        <source>a chapter was expected before verse %1</source>
        <translation>vor Vers %1 wurde ein Kapitel erwartet</translation>
    </message>
    <message>
        <source>the number of a verse was expected: %1</source>
        <translation>die Nummer eines Verses wurde erwartet: %1</translation>
    </message>
    <message>
        <source>a verse of at most 1 MiB was expected</source>
        <translation>ein Vers von höchstens 1 MiB wurde erwartet</translation>
    </message>
    <message>
        <source>at most 255 verses in a chapter were expected</source>
        <translation>höchstens 255 Verse in einem Kapitel wurden erwartet</translation>
    </message>
    <message>
        <source>a text with verses was expected; there is none</source>
        <translation>ein Text mit Versen wurde erwartet; es gibt keinen Vers</translation>
    </message>
    <message>
        <source>verses of one of the 66 books were expected; the books are others, such as %1</source>
        <translation>Verse aus einem der 66 Bücher wurden erwartet; es sind andere Bücher, etwa %1</translation>
    </message>
    <message>
        <source>A free number from 1 to 999 was expected for the translation.</source>
        <translation>Eine freie Nummer von 1 bis 999 wurde für die Übersetzung erwartet.</translation>
    </message>
    <message>
        <source>It is longer than 64 MiB.</source>
        <translation>Er ist länger als 64 MiB.</translation>
    </message>
    <message>
        <source>A Bible text was expected: USFM, USX, USFX, OSIS, Zefania XML, or one verse a line.</source>
        <translation>Ein Bibeltext wurde erwartet: USFM, USX, USFX, OSIS, Zefania XML oder ein Vers je Zeile.</translation>
    </message>
    <message>
        <source>Files of one form were expected: this one is %1, %2 is %3.</source>
        <translation>Dateien einer Form wurden erwartet: Diese ist %1, %2 ist %3.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <translation>Es ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>A folder with at most 10000 files was expected.</source>
        <translation>Ein Ordner mit höchstens 10000 Dateien wurde erwartet.</translation>
    </message>
    <message>
        <source>The titles of 66 books were expected, %1 found.</source>
        <translation>Die Titel von 66 Büchern wurden erwartet, %1 gefunden.</translation>
    </message>
    <message>
        <source>HOME names no folder that it could be in. Give one with --into FOLDER.</source>
        <translation>HOME nennt keinen Ordner, in dem sie liegen könnte. Nennen Sie einen mit --into FOLDER.</translation>
    </message>
    <message>
        <source>Another import is writing into this library: %1. Import again when it has ended.</source>
        <translation>Ein anderer Import schreibt in diese Bibliothek: %1. Importieren Sie noch einmal, wenn er zu Ende ist.</translation>
    </message>
    <message>
        <source>Another program has changed this library. Import again.</source>
        <translation>Ein anderes Programm hat diese Bibliothek verändert. Importieren Sie noch einmal.</translation>
    </message>
    <message>
        <source>a line of at most 4 MiB was expected</source>
        <translation>eine Zeile von höchstens 4 MiB wurde erwartet</translation>
    </message>
    <message>
        <source>a closing quote was expected: %1</source>
        <translation>ein schließendes Anführungszeichen wurde erwartet: %1</translation>
    </message>
    <message>
        <source>a verse such as &quot;GEN 1:1 In the beginning&quot; was expected: %1</source>
        <translation>ein Vers wie „GEN 1:1 Am Anfang“ wurde erwartet: %1</translation>
    </message>
    <message>
        <source>the osisID of a verse, such as &quot;Gen.1.1&quot;, was expected: %1</source>
        <translation>die osisID eines Verses, etwa „Gen.1.1“, wurde erwartet: %1</translation>
    </message>
    <message>
        <source>the name of a charset, such as windows-1251, was expected: %1</source>
        <translation>der Name eines Zeichensatzes, etwa windows-1251, wurde erwartet: %1</translation>
    </message>
    <message>
        <source>\id and the code of a book were expected before %1 %2</source>
        <translation>vor %1 %2 wurden \id und das Kürzel eines Buches erwartet</translation>
    </message>
    <message>
        <source>character styles at most 40 deep were expected</source>
        <translation>höchstens 40 ineinander liegende Zeichenformate wurden erwartet</translation>
    </message>
    <message>
        <source>the end of %1 (line %2) was expected before %3</source>
        <translation>vor %3 wurde das Ende von %1 (Zeile %2) erwartet</translation>
    </message>
    <message>
        <source>elements at most %1 deep were expected</source>
        <translation>höchstens %1 ineinander liegende Elemente wurden erwartet</translation>
    </message>
    <message>
        <source>well-formed XML was expected: the end of %1, not of %2</source>
        <translation>wohlgeformtes XML wurde erwartet: das Ende von %1, nicht von %2</translation>
    </message>
    <message>
        <source>well-formed XML was expected: the end of %1 (line %2), not of the file</source>
        <translation>wohlgeformtes XML wurde erwartet: das Ende von %1 (Zeile %2), nicht der Datei</translation>
    </message>
    <message>
        <source>well-formed XML was expected: %1</source>
        <translation>wohlgeformtes XML wurde erwartet: %1</translation>
    </message>
    <message>
        <source>a text without entities of its own was expected: %1</source>
        <translation>ein Text ohne eigene Entitäten wurde erwartet: %1</translation>
    </message>
    <message>
        <source>%1 book of the translation that is replaced had another name, such as %2, now %3: their pages get other addresses.</source>
        <translation>%1 Buch der Übersetzung, die ersetzt wird, hieß anders, etwa %2, jetzt %3: Die Seiten bekommen andere Adressen.</translation>
    </message>
    <message>
        <source>%1 books of the translation that is replaced had another name, such as %2, now %3: their pages get other addresses.</source>
        <translation>%1 Bücher der Übersetzung, die ersetzt wird, hießen anders, etwa %2, jetzt %3: Ihre Seiten bekommen andere Adressen.</translation>
    </message>
    <message>
        <source>The text names no language.</source>
        <translation>Der Text nennt keine Sprache.</translation>
    </message>
    <message>
        <source>The text names no language; its pages declare %1, that of the settings.</source>
        <translation>Der Text nennt keine Sprache; seine Seiten geben %1 an, die der Einstellungen.</translation>
    </message>
    <message>
        <source>The text names no language; by its letters it is %1.</source>
        <translation>Der Text nennt keine Sprache; nach seinen Buchstaben ist es %1.</translation>
    </message>
    <message>
        <source>The text names no language; it stays %1, as before.</source>
        <translation>Der Text nennt keine Sprache; es bleibt %1, wie bisher.</translation>
    </message>
    <message>
        <source>The text names no language; by its book titles it is %1.</source>
        <translation>Der Text nennt keine Sprache; nach seinen Buchtiteln ist es %1.</translation>
    </message>
    <message>
        <source>Left out, as it is none of the 66 books: %2 (%1 verse)</source>
        <translation>Ausgelassen, weil es keins der 66 Bücher ist: %2 (%1 Vers)</translation>
    </message>
    <message>
        <source>Left out, as it is none of the 66 books: %2 (%1 verses)</source>
        <translation>Ausgelassen, weil es keins der 66 Bücher ist: %2 (%1 Verse)</translation>
    </message>
    <message>
        <source>The text does not name all of its books; the names of the others are English.</source>
        <translation>Der Text nennt nicht alle seine Bücher; die Namen der übrigen sind englisch.</translation>
    </message>
    <message>
        <source>%1 is no number of a verse such as 3, 3a or 3-4; it is kept.</source>
        <translation>%1 ist keine Versnummer wie 3, 3a oder 3-4; sie bleibt so.</translation>
    </message>
    <message>
        <source>The text names none of its books; their names are English.</source>
        <translation>Der Text nennt keinen Namen seiner Bücher; ihre Namen sind englisch.</translation>
    </message>
    <message>
        <source>A note does not end: %1 was expected; more of them in the file: %2.</source>
        <translation>Eine Anmerkung endet nicht: %1 wurde erwartet; weitere in der Datei: %2.</translation>
    </message>
    <message>
        <source>An element ends in the wrong place: %1.</source>
        <translation>Ein Element endet an der falschen Stelle: %1.</translation>
    </message>
    <message>
        <source>An element ends in the wrong place: %1; more of them in the file: %2.</source>
        <translation>Ein Element endet an der falschen Stelle: %1; weitere in der Datei: %2.</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>The help says how to name them: &quot;Names of the books in your own language&quot;.</source>
        <translation>Wie man sie benennt, sagt die Hilfe: „Namen der Bücher in Ihrer Sprache“.</translation>
    </message>
    <message>
        <source>Another one is chosen in Page Encoding, once the text is imported.</source>
        <translation>Eine andere wird unter „Page Encoding“ gewählt, sobald der Text importiert ist.</translation>
    </message>
    <message>
        <source>A Bible text was expected; the file is empty.</source>
        <translation>Ein Bibeltext wurde erwartet; die Datei ist leer.</translation>
    </message>
    <message>
        <source>text in %1 was expected; &quot;folionet-cli import --charset NAME&quot; reads one in another charset</source>
        <translation>Text in %1 wurde erwartet; „folionet-cli import --charset NAME“ liest einen in einem anderen Zeichensatz</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Copy as command line</source>
        <translation>Als Befehlszeile kopieren</translation>
    </message>
    <message>
        <source>The command is on the clipboard.</source>
        <translation>Der Befehl steht in der Zwischenablage.</translation>
    </message>
    <message>
        <source>No browser could be started. The page is:</source>
        <translation>Es konnte kein Browser gestartet werden. Die Seite ist:</translation>
    </message>
    <message>
        <source>Verify site</source>
        <translation>Website prüfen</translation>
    </message>
    <message>
        <source>, hard to read: choose a darker color</source>
        <translation>, schwer zu lesen: dunklere Farbe wählen</translation>
    </message>
    <message>
        <source>, hard to read: choose a lighter color</source>
        <translation>, schwer zu lesen: hellere Farbe wählen</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Persönlicher Ordner</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>See that what cannot be read is a file, and to its permissions.</source>
        <translation>Prüfen Sie, ob das, was nicht gelesen werden kann, eine Datei ist, und ihre Zugriffsrechte.</translation>
    </message>
    <message>
        <source>Save the pages in UTF-16 as UTF-8.</source>
        <translation>Speichern Sie die Seiten in UTF-16 als UTF-8.</translation>
    </message>
    <message>
        <source>Copy the missing pictures into the folder, or choose others.</source>
        <translation>Kopieren Sie die fehlenden Bilder in den Ordner, oder wählen Sie andere.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Pages: %1, links: %2, broken: %3, not reached: %4.</source>
        <translation>Seiten: %1, Links: %2, ohne Ziel: %3, nicht erreicht: %4.</translation>
    </message>
    <message>
        <source>Links that lead out of the folder and were not followed: %1.</source>
        <translation>Links, die aus dem Ordner hinausführen und nicht verfolgt wurden: %1.</translation>
    </message>
    <message>
        <source>Stopped before all pages were read.</source>
        <translation>Angehalten, bevor alle Seiten gelesen waren.</translation>
    </message>
    <message>
        <source>Reading the site ...</source>
        <translation>Die Site wird gelesen …</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Remove pages</source>
        <translation>Seiten löschen</translation>
    </message>
    <message>
        <source>Nothing leads to these %1 pages of Folionet:</source>
        <translation>Zu diesen %1 Seiten von Folionet führt nichts:</translation>
    </message>
    <message>
        <source>Delete them?</source>
        <translation>Sollen sie gelöscht werden?</translation>
    </message>
    <message>
        <source>%1 pages were deleted. Remove them from your server too.</source>
        <translation>%1 Seiten wurden gelöscht. Entfernen Sie sie auch von Ihrem Server.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not there.</source>
        <translation>„%1“ ist nicht da.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not there (%2 pages, this one first).</source>
        <translation>„%1“ ist nicht da (%2 Seiten, diese zuerst).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there in another letter case only, %3.</source>
        <translation>„%1“ ist nur in anderer Groß- und Kleinschreibung da: %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there in another letter case only, %3 (%2 pages, this one first).</source>
        <translation>„%1“ ist nur in anderer Groß- und Kleinschreibung da: %3 (%2 Seiten, diese zuerst).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds &quot;\&quot;, which no address does.</source>
        <translation>„%1“ enthält „\“, was in keiner Adresse steht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds &quot;\&quot;, which no address does (%2 pages, this one first).</source>
        <translation>„%1“ enthält „\“, was in keiner Adresse steht (%2 Seiten, diese zuerst).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>„%1“ ist nicht lesbar.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read (%2 pages, this one first).</source>
        <translation>„%1“ ist nicht lesbar (%2 Seiten, diese zuerst).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder without an index.html.</source>
        <translation>„%1“ ist ein Ordner ohne index.html.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder without an index.html (%2 pages, this one first).</source>
        <translation>„%1“ ist ein Ordner ohne index.html (%2 Seiten, diese zuerst).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, and a file was expected.</source>
        <translation>„%1“ ist ein Ordner, erwartet wurde eine Datei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, and a file was expected (%2 pages, this one first).</source>
        <translation>„%1“ ist ein Ordner, erwartet wurde eine Datei (%2 Seiten, diese zuerst).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in the page&apos;s charset, so that browsers look for another name.</source>
        <translation>„%1“ ist nicht im Zeichensatz der Seite, so dass Browser einen anderen Namen suchen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in the page&apos;s charset, so that browsers look for another name (%2 pages, this one first).</source>
        <translation>„%1“ ist nicht im Zeichensatz der Seite, so dass Browser einen anderen Namen suchen (%2 Seiten, diese zuerst).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, but &quot;#&quot;, &quot;?&quot;, &quot;%&quot; and &quot;:&quot; have another meaning in an address.</source>
        <translation>„%1“ ist eine Datei, aber „#“, „?“, „%“ und „:“ haben in einer Adresse eine andere Bedeutung.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, but &quot;#&quot;, &quot;?&quot;, &quot;%&quot; and &quot;:&quot; have another meaning in an address (%2 pages, this one first).</source>
        <translation>„%1“ ist eine Datei, aber „#“, „?“, „%“ und „:“ haben in einer Adresse eine andere Bedeutung (%2 Seiten, diese zuerst).</translation>
    </message>
    <message>
        <source>cannot be read: %1.</source>
        <translation>nicht lesbar: %1.</translation>
    </message>
    <message>
        <source>cannot be read: It is UTF-16.</source>
        <translation>nicht lesbar: Es ist UTF-16.</translation>
    </message>
    <message>
        <source>a symbolic link to another folder, whose pages were not read: see that the server has it.</source>
        <translation>eine symbolische Verknüpfung zu einem anderen Ordner, dessen Seiten nicht gelesen wurden: Sorgen Sie dafür, dass der Server ihn hat.</translation>
    </message>
    <message>
        <source>no page that %1 leads to links here: left from an earlier compile, or outside the chosen books.</source>
        <translation>keine Seite, zu der %1 führt, verweist hierher: übrig von einem früheren Lauf oder außerhalb der gewählten Bücher.</translation>
    </message>
    <message>
        <source>%2 pages, up to %3: no page that %1 leads to links to them: left from an earlier compile, or outside the chosen books.</source>
        <translation>%2 Seiten, bis %3: keine Seite, zu der %1 führt, verweist auf sie: übrig von einem früheren Lauf oder außerhalb der gewählten Bücher.</translation>
    </message>
    <message>
        <source>leads to no chapter.</source>
        <translation>führt zu keinem Kapitel.</translation>
    </message>
    <message>
        <source>Compile again with the charset that the book titles are in (%1), or with short file names (%2).</source>
        <translation>Kompilieren Sie noch einmal mit dem Zeichensatz der Buchtitel (%1) oder mit kurzen Dateinamen (%2).</translation>
    </message>
    <message>
        <source>Compile again with short file names (%1), or with book titles that lack these signs.</source>
        <translation>Kompilieren Sie noch einmal mit kurzen Dateinamen (%1) oder mit Buchtiteln ohne diese Zeichen.</translation>
    </message>
    <message>
        <source>See that the starting book stands before the ending book, and that this is the index page; compile again.</source>
        <translation>Sorgen Sie dafür, dass das erste Buch vor dem letzten steht und dass dies die Indexseite ist; kompilieren Sie noch einmal.</translation>
    </message>
    <message>
        <source>Choose all books and compile again, or remove the pages that nothing leads to%1.</source>
        <translation>Wählen Sie alle Bücher und kompilieren Sie noch einmal, oder entfernen Sie die Seiten, zu denen nichts führt%1.</translation>
    </message>
    <message>
        <source>Compile into this folder again; then correct what is still broken in the custom header and footer and in your own pages and style sheets, or put the missing file there.</source>
        <translation>Kompilieren Sie noch einmal in diesen Ordner; berichtigen Sie dann, was noch fehlt, in eigener Kopf- und Fußzeile und in Ihren eigenen Seiten und Formatvorlagen, oder legen Sie die fehlende Datei dorthin.</translation>
    </message>
    <message>
        <source>is no page of Folionet, and was not removed.</source>
        <translation>ist keine Seite von Folionet und wurde nicht gelöscht.</translation>
    </message>
    <message>
        <source>cannot be removed: %1.</source>
        <translation>lässt sich nicht löschen: %1.</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>Preview page</source>
        <translation>Seite ansehen</translation>
    </message>
    <message>
        <source>The translation has no chapter 1 of the starting book.</source>
        <translation>Die Übersetzung hat kein Kapitel 1 des ersten Buches.</translation>
    </message>
    <message>
        <source>Versalia is the program that installs the translations which Folionet turns into sites. Without it, import a Bible text that you have: Folionet keeps it in a library of its own.</source>
        <translation>Versalia ist das Programm, das die Übersetzungen installiert, aus denen Folionet Websites macht. Ohne es importieren Sie einen Bibeltext, den Sie haben: Folionet bewahrt ihn in einer eigenen Bibliothek auf.</translation>
    </message>
    <message>
        <source>&amp;Import a text...</source>
        <translation>Text &amp;importieren...</translation>
    </message>
    <message>
        <source>There is no translation, for there is no folder %1 of Versalia&apos;s modules.</source>
        <translation>Es gibt keine Übersetzung, denn der Ordner %1 mit Versalias Modulen ist nicht da.</translation>
    </message>
    <message>
        <source>There is no translation, for the catalogue %1 lists none.</source>
        <translation>Es gibt keine Übersetzung, denn der Katalog %1 nennt keine.</translation>
    </message>
    <message>
        <source>There is no translation, for the text of none can be read: %1 lists %2, and the text of the first was looked for in %3.</source>
        <translation>Es gibt keine Übersetzung, denn von keiner ist der Text lesbar: %1 nennt %2, und der Text der ersten wurde in %3 gesucht.</translation>
    </message>
    <message>
        <source>%1 in the setting %2 is no dynamic word, and stands in the pages as it is; the words are %bible%, %bk%, %ch% and %vs%.</source>
        <translation>%1 in der Einstellung %2 ist kein dynamisches Wort und steht unverändert in den Seiten; die Wörter sind %bible%, %bk%, %ch% und %vs%.</translation>
    </message>
    <message>
        <source>%1 in %2 stands in the pages as it is: only titles, META texts and the text of the link have dynamic words.</source>
        <translation>%1 in %2 steht unverändert in den Seiten: Dynamische Wörter gibt es nur in Titeln, META-Texten und dem Text des Links.</translation>
    </message>
    <message>
        <source>No list of languages knows the page language %1.</source>
        <translation>Keine Liste von Sprachen kennt die Sprache %1 der Seiten.</translation>
    </message>
    <message>
        <source>No browser knows the charset %1; the pages are written in %2.</source>
        <translation>Kein Browser kennt den Zeichensatz %1; die Seiten werden in %2 geschrieben.</translation>
    </message>
    <message>
        <source>Pages cannot be in the charset %1; they are written in %2 all the same.</source>
        <translation>Seiten können den Zeichensatz %1 nicht haben; sie werden trotzdem in %2 geschrieben.</translation>
    </message>
    <message>
        <source>The book titles are UTF-8, the pages %1.</source>
        <translation>Die Buchtitel sind in UTF-8, die Seiten in %1.</translation>
    </message>
    <message>
        <source>The text of the translation is UTF-8, the pages %1.</source>
        <translation>Der Text der Übersetzung ist in UTF-8, die Seiten in %1.</translation>
    </message>
    <message>
        <source>The book titles are not UTF-8, the pages are.</source>
        <translation>Die Buchtitel sind nicht in UTF-8, die Seiten sind es.</translation>
    </message>
    <message>
        <source>The text of the translation is not UTF-8, the pages are.</source>
        <translation>Der Text der Übersetzung ist nicht in UTF-8, die Seiten sind es.</translation>
    </message>
    <message>
        <source>The text of the translation is UTF-8 and the book titles are not: no charset of the pages fits both.</source>
        <translation>Der Text der Übersetzung ist in UTF-8, die Buchtitel sind es nicht: Kein Zeichensatz der Seiten passt zu beiden.</translation>
    </message>
    <message>
        <source>The book titles are UTF-8 and the text of the translation is not: no charset of the pages fits both.</source>
        <translation>Die Buchtitel sind in UTF-8, der Text der Übersetzung ist es nicht: Kein Zeichensatz der Seiten passt zu beiden.</translation>
    </message>
    <message>
        <source>The folder holds pages of another translation: %1.</source>
        <translation>Der Ordner enthält Seiten einer anderen Übersetzung: %1.</translation>
    </message>
    <message>
        <source>%1 pages of earlier compiles, such as %2, lie in the folder. This one does not write them, and its index page does not lead to them.</source>
        <translation>Im Ordner liegen %1 Seiten früherer Läufe, etwa %2. Dieser schreibt sie nicht, und seine Indexseite führt nicht zu ihnen.</translation>
    </message>
    <message>
        <source>The index page %1 takes the place of a chapter&apos;s page.</source>
        <translation>Die Indexseite %1 nimmt den Platz der Seite eines Kapitels ein.</translation>
    </message>
    <message>
        <source>The books %2 have the same page names, such as %1: only the pages of the last one are kept.</source>
        <translation>Die Bücher %2 haben dieselben Seitennamen, etwa %1: Nur die Seiten des letzten bleiben.</translation>
    </message>
    <message>
        <source>The ending book stands before the starting book: the index page has no links.</source>
        <translation>Das letzte Buch steht vor dem ersten: Die Indexseite hat keine Links.</translation>
    </message>
    <message>
        <source>%1 pages are removed, those of the books before the starting book.</source>
        <translation>%1 Seiten werden gelöscht: die der Bücher vor dem ersten.</translation>
    </message>
    <message>
        <source>%1 pages are removed, those of the books after the ending book.</source>
        <translation>%1 Seiten werden gelöscht: die der Bücher nach dem letzten.</translation>
    </message>
    <message>
        <source>No translation is named: of %2, the first is taken, %1.</source>
        <translation>Es ist keine Übersetzung genannt: Von %2 wird die erste genommen, %1.</translation>
    </message>
    <message>
        <source>No browser finds the pages of the books %2, such as %1: &quot;?&quot;, &quot;#&quot;, &quot;:&quot; and a quotation mark have another meaning in a link.</source>
        <translation>Kein Browser findet die Seiten der Bücher %2, etwa %1: „?“, „#“, „:“ und ein Anführungszeichen haben in einem Link eine andere Bedeutung.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 does not hold the settings of a site, which stand below [Site] and [Keys].</source>
        <translation>%1 enthält nicht die Einstellungen einer Website, die unter [Site] und [Keys] stehen.</translation>
    </message>
    <message>
        <source>%1 holds a setting that no site has: %2</source>
        <translation>%1 enthält eine Einstellung, die keine Website hat: %2</translation>
    </message>
    <message>
        <source>%1: %2 must be 0 or 1: &quot;%3&quot;</source>
        <translation>%1: %2 muss 0 oder 1 sein: &quot;%3&quot;</translation>
    </message>
    <message>
        <source>The text of the translation is not in %1, which its import has noted in %2.</source>
        <translation>Der Text der Übersetzung ist nicht in %1, wie der Import in %2 vermerkt hat.</translation>
    </message>
    <message>
        <source>no page that %1 leads to links here; it is not marked as a page of Folionet.</source>
        <translation>keine Seite, zu der %1 führt, verweist hierher; sie ist nicht als Seite von Folionet gekennzeichnet.</translation>
    </message>
    <message>
        <source>%2 pages, up to %3: no page that %1 leads to links to them; they are not marked as pages of Folionet.</source>
        <translation>%2 Seiten, bis %3: keine Seite, zu der %1 führt, verweist auf sie; sie sind nicht als Seiten von Folionet gekennzeichnet.</translation>
    </message>
    <message>
        <source>Link to it from one of your pages, or move it away.</source>
        <translation>Verweisen Sie von einer Ihrer Seiten darauf, oder bringen Sie sie weg.</translation>
    </message>
    <message>
        <source>The chapter index counts no chapter of the chosen books: the index page has no links.</source>
        <translation>Der Kapitelindex zählt kein Kapitel der gewählten Bücher: Die Indexseite hat keine Links.</translation>
    </message>
    <message>
        <source>Nothing leads to this page of Folionet:</source>
        <translation>Zu dieser Seite von Folionet führt nichts:</translation>
    </message>
    <message>
        <source>Delete it?</source>
        <translation>Soll sie gelöscht werden?</translation>
    </message>
    <message>
        <source>1 page was deleted. Remove it from your server too.</source>
        <translation>1 Seite wurde gelöscht. Entfernen Sie sie auch von Ihrem Server.</translation>
    </message>
    <message>
        <source>A page of an earlier compile, %2, lies in the folder. This one does not write it, and its index page does not lead to it.</source>
        <translation>Im Ordner liegt eine Seite eines früheren Laufs, %2. Dieser schreibt sie nicht, und seine Indexseite führt nicht zu ihr.</translation>
    </message>
    <message>
        <source>1 page is removed, that of a book before the starting book.</source>
        <translation>1 Seite wird gelöscht: die eines Buchs vor dem ersten.</translation>
    </message>
    <message>
        <source>1 page is removed, that of a book after the ending book.</source>
        <translation>1 Seite wird gelöscht: die eines Buchs nach dem letzten.</translation>
    </message>
    <message>
        <source>%1 is read as %2 and is UTF-8: its letters come out wrong.</source>
        <translation>%1 wird als %2 gelesen und ist UTF-8: Die Buchstaben darin werden falsch.</translation>
    </message>
    <message>
        <source>The name of the translation is UTF-8, the pages %1.</source>
        <translation>Der Name der Übersetzung ist in UTF-8, die Seiten in %1.</translation>
    </message>
    <message>
        <source>The name of the translation is not UTF-8, the pages are.</source>
        <translation>Der Name der Übersetzung ist nicht in UTF-8, die Seiten sind es.</translation>
    </message>
    <message>
        <source>No browser finds the background image %1: &quot;?&quot;, &quot;#&quot;, &quot;:&quot; and a quotation mark have another meaning in a link.</source>
        <translation>Kein Browser findet das Hintergrundbild %1: „?“, „#“, „:“ und ein Anführungszeichen haben in einem Link eine andere Bedeutung.</translation>
    </message>
    <message>
        <source>No browser finds the index page %1: &quot;?&quot;, &quot;#&quot;, &quot;:&quot; and a quotation mark have another meaning in a link.</source>
        <translation>Kein Browser findet die Indexseite %1: „?“, „#“, „:“ und ein Anführungszeichen haben in einem Link eine andere Bedeutung.</translation>
    </message>
    <message>
        <source>The book titles are not in %1, the charset of the pages.</source>
        <translation>Die Buchtitel sind nicht in %1, dem Zeichensatz der Seiten.</translation>
    </message>
    <message>
        <source>The book titles cannot be read from %1, which the imported text %2 brings.
To import that text again in its place, by folionet-cli import --replace, or to name another file of that folder for cboLang in %3 lets the program start again.</source>
        <translation>Die Buchtitel lassen sich nicht aus %1 lesen, das der importierte Text %2 mitbringt.
Diesen Text mit folionet-cli import --replace noch einmal zu importieren oder für cboLang in %3 eine andere Datei jenes Ordners zu nennen lässt das Programm wieder starten.</translation>
    </message>
    <message>
        <source>The book titles cannot be read from %1, and its folder holds no other Language File that can be.
To install Versalia anew, or to write such a file with the titles of 66 books, lets the program start again.</source>
        <translation>Die Buchtitel können nicht aus %1 gelesen werden, und in seinem Ordner ist keine andere lesbare Language File.
Versalia neu zu installieren oder eine solche Datei mit den Titeln von 66 Büchern zu schreiben lässt das Programm wieder starten.</translation>
    </message>
    <message>
        <source>The book titles cannot be read from %1, the Language File that is chosen.
Restore ALL Defaults, or another name for cboLang in %2, lets the program start again.
Return all settings to default now?</source>
        <translation>Die Buchtitel können nicht aus %1 gelesen werden, der gewählten Language File.
„Restore ALL Defaults“ oder ein anderer Name für cboLang in %2 lässt das Programm wieder starten.
Jetzt alle Einstellungen zurücksetzen?</translation>
    </message>
    <message>
        <source>The book titles cannot be read from %1, the Language File that is chosen.
Another name for cboLang in %2, such as %3, lets the program start again.
Choose %3 now?</source>
        <translation>Die Buchtitel können nicht aus %1 gelesen werden, der gewählten Language File.
Ein anderer Name für cboLang in %2, etwa %3, lässt das Programm wieder starten.
Jetzt %3 wählen?</translation>
    </message>
    <message>
        <source>%1 is read as %2 and is not: its letters come out wrong.</source>
        <translation>%1 wird als %2 gelesen und ist es nicht: Die Buchstaben darin werden falsch.</translation>
    </message>
    <message>
        <source>Save it as UTF-8 with a byte-order mark.</source>
        <translation>Speichern Sie die Datei als UTF-8 mit Byte-Order-Mark.</translation>
    </message>
    <message>
        <source>The text of the translation is not in %1, the charset of the pages.</source>
        <translation>Der Text der Übersetzung ist nicht in %1, dem Zeichensatz der Seiten.</translation>
    </message>
    <message>
        <source>The name of the translation is not in %1, the charset of the pages.</source>
        <translation>Der Name der Übersetzung ist nicht in %1, dem Zeichensatz der Seiten.</translation>
    </message>
    <message>
        <source>The index page %1 takes the place of a chapter&apos;s page, %2, where the letter case of names does not count, as on Windows.</source>
        <translation>Die Indexseite %1 nimmt den Platz der Seite eines Kapitels, %2, ein, wo die Groß- und Kleinschreibung von Namen nicht zählt, etwa unter Windows.</translation>
    </message>
    <message>
        <source>The folder holds pages of several translations: %1.</source>
        <translation>Der Ordner enthält Seiten mehrerer Übersetzungen: %1.</translation>
    </message>
</context>
<context>
    <name>folionet::CustomHtmlDialog</name>
    <message>
        <source>HTML code</source>
        <translation>HTML-Code</translation>
    </message>
    <message>
        <source>%1 has changed since it was read here, or could not be read. Write this text over it all the same?</source>
        <translation>%1 hat sich geändert, seit es hier gelesen wurde, oder war nicht lesbar. Trotzdem mit diesem Text überschreiben?</translation>
    </message>
</context>
<context>
    <name>folionet::FactLines</name>
    <message>
        <source>1 page of an earlier compile</source>
        <translation>1 Seite eines früheren Kompilierens</translation>
    </message>
    <message>
        <source>%1 pages of an earlier compile</source>
        <translation>%1 Seiten eines früheren Kompilierens</translation>
    </message>
    <message>
        <source>%1 pages of an earlier compile of %2</source>
        <translation>%1 Seiten eines früheren Kompilierens von %2</translation>
    </message>
    <message>
        <source>%1 there is not of Folionet and will be replaced.</source>
        <translation>%1 dort ist nicht von Folionet und wird ersetzt.</translation>
    </message>
    <message>
        <source>%1 and %2 more there are not of Folionet and will be replaced.</source>
        <translation>%1 und %2 weitere dort sind nicht von Folionet und werden ersetzt.</translation>
    </message>
    <message>
        <source>The folder cannot be read.</source>
        <translation>Der Ordner kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>1 other file stays untouched</source>
        <translation>1 andere Datei bleibt unberührt</translation>
    </message>
    <message>
        <source>%1 other files stay untouched</source>
        <translation>%1 andere Dateien bleiben unberührt</translation>
    </message>
    <message>
        <source>Empty folder.</source>
        <translation>Leerer Ordner.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>The pages of %1 will be deleted: %2.</source>
        <translation>Die Seiten von %1 werden gelöscht: %2.</translation>
    </message>
    <message>
        <source>The pages of %1 are written too; the index does not lead to them.</source>
        <translation>Auch die Seiten von %1 werden geschrieben; der Index führt nicht zu ihnen.</translation>
    </message>
    <message>
        <source>Looking at the folder...</source>
        <translation>Der Ordner wird angesehen...</translation>
    </message>
    <message>
        <source>The ending book stands before the starting book: the index will be empty.</source>
        <translation>Das letzte Buch steht vor dem ersten: Der Index wird leer sein.</translation>
    </message>
    <message>
        <source>No files, only folders.</source>
        <translation>Keine Dateien, nur Ordner.</translation>
    </message>
    <message>
        <source>Choose another Language File, or Use 8.3 File Names.</source>
        <translation>Wählen Sie eine andere Language File oder „Use 8.3 File Names“.</translation>
    </message>
    <message>
        <source>Choose another Language File, or convert one of the two files.</source>
        <translation>Wählen Sie eine andere Language File, oder wandeln Sie eine der beiden Dateien um.</translation>
    </message>
    <message>
        <source>Choose another one in Page Encoding.</source>
        <translation>Wählen Sie eine andere unter „Page Encoding“.</translation>
    </message>
    <message>
        <source>Enter another name for the index page.</source>
        <translation>Geben Sie einen anderen Namen für die Indexseite ein.</translation>
    </message>
    <message>
        <source>Choose the right charset in Page Encoding.</source>
        <translation>Wählen Sie den richtigen Zeichensatz unter „Page Encoding“.</translation>
    </message>
    <message>
        <source>Choose &quot;%1&quot; in Page Encoding.</source>
        <translation>Wählen Sie „%1“ unter „Page Encoding“.</translation>
    </message>
    <message>
        <source>without a name: %1</source>
        <translation>ohne Namen: %1</translation>
    </message>
    <message>
        <source>%1 pages of earlier compiles (%2)</source>
        <translation>%1 Seiten früherer Läufe (%2)</translation>
    </message>
    <message>
        <source>%1 pages of earlier compiles</source>
        <translation>%1 Seiten früherer Läufe</translation>
    </message>
</context>
<context>
    <name>folionet::FolderPickers</name>
    <message>
        <source>Choose the Output Path</source>
        <translation>Ausgabepfad wählen</translation>
    </message>
</context>
<context>
    <name>folionet::FolderTree</name>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
</context>
<context>
    <name>folionet::HelpWindow</name>
    <message>
        <source>Folionet Help</source>
        <translation>Folionet-Hilfe</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>C&amp;ontents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>index.html</source>
        <comment>the help in this language</comment>
        <translation>de/index.html</translation>
    </message>
</context>
<context>
    <name>folionet::HistoryBox</name>
    <message>
        <source>Last addresses</source>
        <translation>Letzte Adressen</translation>
    </message>
</context>
<context>
    <name>folionet::ImportButton</name>
    <message>
        <source>The text is in the library of imported texts, %1.
The translations of another library are listed: %2.
List those of the imported texts instead, until Folionet is closed? Later, folionet --versalia-path with the first folder does so.</source>
        <translation>Der Text steht in der Bibliothek der importierten Texte, %1.
Die Liste zeigt die Übersetzungen einer anderen Bibliothek: %2.
Stattdessen die der importierten Texte zeigen, bis Folionet geschlossen wird? Später tut das folionet --versalia-path mit dem ersten Ordner.</translation>
    </message>
    <message>
        <source>Import a text</source>
        <translation>Text importieren</translation>
    </message>
</context>
<context>
    <name>folionet::LibraryLists</name>
    <message>
        <source>Translation not found</source>
        <translation>Übersetzung nicht gefunden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can no longer be read. Its text would be:</source>
        <translation>„%1“ kann nicht mehr gelesen werden. Ihr Text wäre:</translation>
    </message>
    <message>
        <source>The library does not hold the translation of this site: &quot;%1&quot;</source>
        <translation>Die Bibliothek enthält die Übersetzung dieser Website nicht: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The Language File does not name the books of this site: &quot;%1&quot;</source>
        <translation>Die Sprachdatei nennt die Bücher dieser Website nicht: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Not as the site has it</source>
        <translation>Anders als in der Website</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was imported anew since it was chosen. Its books, charset and language are shown now: look at them, and compile again.</source>
        <translation>„%1“ wurde neu importiert, seit es gewählt wurde. Seine Bücher, sein Zeichensatz und seine Sprache stehen jetzt da: sehen Sie nach und kompilieren Sie noch einmal.</translation>
    </message>
    <message>
        <source>Another text</source>
        <translation>Ein anderer Text</translation>
    </message>
</context>
<context>
    <name>folionet::SiteMenu</name>
    <message>
        <source>&amp;Open a site...</source>
        <translation>Website ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>&amp;Save as a site...</source>
        <translation>Als Website &amp;speichern...</translation>
    </message>
    <message>
        <source>&amp;Back to my own settings</source>
        <translation>&amp;Zurück zu meinen Einstellungen</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Websites</translation>
    </message>
    <message>
        <source>Sites that have settings of their own, each in a file.</source>
        <translation>Websites mit eigenen Einstellungen, jede in einer Datei.</translation>
    </message>
    <message>
        <source>The settings of this site are in %1.</source>
        <translation>Die Einstellungen dieser Website sind in %1.</translation>
    </message>
    <message>
        <source>Another site</source>
        <translation>Andere Website</translation>
    </message>
    <message>
        <source>Not a site</source>
        <translation>Keine Website</translation>
    </message>
</context>
<context>
    <name>folionet::frmBackground</name>
    <message>
        <source>Image name</source>
        <translation>Name des Bildes</translation>
    </message>
    <message>
        <source>Image &amp;name</source>
        <translation>Name des &amp;Bildes</translation>
    </message>
</context>
<context>
    <name>folionet::frmEffects</name>
    <message>
        <source>Contrast with the page background</source>
        <translation>Kontrast zum Seitenhintergrund</translation>
    </message>
    <message>
        <source>Text of the page</source>
        <translation>Text der Seite</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>Point at and click</source>
        <translation>Zeigen Sie auf und klicken Sie</translation>
    </message>
    <message>
        <source>this link</source>
        <translation>diesen Link</translation>
    </message>
</context>
<context>
    <name>folionet::frmEncoding</name>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Language to be used</source>
        <translation>Zu verwendende Sprache</translation>
    </message>
    <message>
        <source>Charset</source>
        <translation>Zeichensatz</translation>
    </message>
    <message>
        <source>Charset to be used</source>
        <translation>Zu verwendender Zeichensatz</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>In &amp;pages</source>
        <translation>In den S&amp;eiten</translation>
    </message>
    <message>
        <source>&amp;Charset</source>
        <translation>&amp;Zeichensatz</translation>
    </message>
    <message>
        <source>In pa&amp;ges</source>
        <translation>In den Se&amp;iten</translation>
    </message>
</context>
<context>
    <name>folionet::frmErr</name>
    <message>
        <source>Error report</source>
        <translation>Fehlerbericht</translation>
    </message>
</context>
<context>
    <name>folionet::frmImport</name>
    <message>
        <source>Import a text</source>
        <translation>Text importieren</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Text</translation>
    </message>
    <message>
        <source>A file, a folder, or a zip or tar archive. Return reads it.</source>
        <translation>Eine Datei, ein Ordner oder ein Zip- oder Tar-Archiv. Die Eingabetaste liest es.</translation>
    </message>
    <message>
        <source>A file, a folder, or a zip or tar archive</source>
        <translation>Eine Datei, ein Ordner oder ein Zip- oder Tar-Archiv</translation>
    </message>
    <message>
        <source>&amp;File...</source>
        <translation>&amp;Datei...</translation>
    </message>
    <message>
        <source>F&amp;older...</source>
        <translation>&amp;Ordner...</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>The name of the translation, as pages and lists show it.</source>
        <translation>Der Name der Übersetzung, wie Seiten und Listen ihn zeigen.</translation>
    </message>
    <message>
        <source>&amp;Stem</source>
        <translation>&amp;Stamm</translation>
    </message>
    <message>
        <source>What the names of its files in the library begin with. Empty: made from the name.</source>
        <translation>Womit die Namen ihrer Dateien in der Bibliothek beginnen. Leer: aus dem Namen gemacht.</translation>
    </message>
    <message>
        <source>Fo&amp;und</source>
        <translation>&amp;Gefunden</translation>
    </message>
    <message>
        <source>Choose a Bible text, or drop one here: USFM, USX, USFX, OSIS, Zefania XML, or one verse a line. What is found in it is shown here; nothing is written before you press Import.</source>
        <translation>Wählen Sie einen Bibeltext, oder ziehen Sie einen hierher: USFM, USX, USFX, OSIS, Zefania-XML oder ein Vers je Zeile. Was darin gefunden wird, erscheint hier; nichts wird geschrieben, bevor Sie „Importieren“ drücken.</translation>
    </message>
    <message>
        <source>Progress of the import</source>
        <translation>Fortschritt des Imports</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>Sto&amp;pp</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Choose the folder of the text</source>
        <translation>Ordner des Textes wählen</translation>
    </message>
    <message>
        <source>Reading %1 ...</source>
        <translation>%1 wird gelesen ...</translation>
    </message>
    <message>
        <source>Stopped. Nothing was written.</source>
        <translation>Angehalten. Nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>The library holds a translation with the stem %1 already.
Replace it? To keep it, answer No and give this text another stem.</source>
        <translation>Die Bibliothek enthält schon eine Übersetzung mit dem Stamm %1.
Ersetzen? Um sie zu behalten, antworten Sie mit Nein und geben diesem Text einen anderen Stamm.</translation>
    </message>
</context>
<context>
    <name>folionet::frmKeywords</name>
    <message>
        <source>META Keywords of the index page</source>
        <translation>META-Stichwörter der Indexseite</translation>
    </message>
    <message>
        <source>META Keywords of all other pages</source>
        <translation>META-Stichwörter aller anderen Seiten</translation>
    </message>
    <message>
        <source>META Description of the index page</source>
        <translation>META-Beschreibung der Indexseite</translation>
    </message>
    <message>
        <source>META Description of all other pages</source>
        <translation>META-Beschreibung aller anderen Seiten</translation>
    </message>
    <message>
        <source>Type above, or press Refresh</source>
        <translation>Oben schreiben oder „Refresh“ drücken</translation>
    </message>
</context>
<context>
    <name>folionet::frmLinkToMAin</name>
    <message>
        <source>&amp;HTML of the link</source>
        <translation>&amp;HTML des Links</translation>
    </message>
    <message>
        <source>Press Refresh to see the link</source>
        <translation>„Refresh“ zeigt den Link</translation>
    </message>
</context>
<context>
    <name>folionet::frmMain</name>
    <message>
        <source>Bible</source>
        <translation>Bibel</translation>
    </message>
    <message>
        <source>&amp;Translation</source>
        <translation>Überse&amp;tzung</translation>
    </message>
    <message>
        <source>Translation</source>
        <translation>Übersetzung</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>Dri&amp;ve</source>
        <translation>Lauf&amp;werk</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>Durc&amp;hsuchen...</translation>
    </message>
    <message>
        <source>Choose the folder in the desktop&apos;s own window.</source>
        <translation>Den Ordner im Fenster des Desktops wählen.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Output Path</source>
        <translation>Ausgabepfad</translation>
    </message>
    <message>
        <source>No folder chosen yet</source>
        <translation>Noch kein Ordner gewählt</translation>
    </message>
    <message>
        <source>&amp;HTTP root</source>
        <translation>HTTP-Wur&amp;zel</translation>
    </message>
    <message>
        <source>HTTP root: the address of the index page</source>
        <translation>HTTP-Wurzel: die Adresse der Indexseite</translation>
    </message>
    <message>
        <source>Page text</source>
        <translation>Text der Seiten</translation>
    </message>
    <message>
        <source>Sample text</source>
        <translation>Mustertext</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Page details</source>
        <translation>Einzelheiten der Seiten</translation>
    </message>
    <message>
        <source>Pages compiled</source>
        <translation>Erzeugte Seiten</translation>
    </message>
    <message>
        <source>Open index page</source>
        <translation>Indexseite öffnen</translation>
    </message>
    <message>
        <source>Verify site</source>
        <translation>Website prüfen</translation>
    </message>
    <message>
        <source>Index page, such as index.html</source>
        <translation>Indexseite, etwa index.html</translation>
    </message>
    <message>
        <source>Show the index page of the site that was compiled last (Ctrl+O).</source>
        <translation>Die Indexseite der zuletzt erzeugten Website zeigen (Strg+O).</translation>
    </message>
    <message>
        <source>Look for links that lead nowhere in the site that was compiled last (F8).</source>
        <translation>In der zuletzt erzeugten Website nach Links ohne Ziel suchen (F8).</translation>
    </message>
    <message>
        <source>Settings not saved</source>
        <translation>Einstellungen nicht gespeichert</translation>
    </message>
    <message>
        <source>The settings cannot be saved.</source>
        <translation>Die Einstellungen können nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Leave without saving them?</source>
        <translation>Ohne Speichern beenden?</translation>
    </message>
    <message>
        <source>Book titles</source>
        <translation>Buchtitel</translation>
    </message>
    <message>
        <source>Recent folders</source>
        <translation>Letzte Ordner</translation>
    </message>
    <message>
        <source>Choose one of the folders that were compiled into last.</source>
        <translation>Einen der Ordner wählen, in die zuletzt kompiliert wurde.</translation>
    </message>
    <message>
        <source>The address of the index page, such as index.html or http://www.example.org/index.html. The Down key offers index.html and the last addresses; Return compiles.</source>
        <translation>Die Adresse der Indexseite, wie index.html oder http://www.example.org/index.html. Die Taste „Pfeil ab“ bietet index.html und die letzten Adressen an; die Eingabetaste kompiliert.</translation>
    </message>
    <message>
        <source>Preview page</source>
        <translation>Seite ansehen</translation>
    </message>
    <message>
        <source>Show chapter 1 of the starting book in your browser as it would be made now (F7).</source>
        <translation>Kapitel 1 des ersten Buches so im Browser zeigen, wie es jetzt gemacht würde (F7).</translation>
    </message>
    <message>
        <source>%1 pages in %2, %3</source>
        <translation>%1 Seiten in %2, %3</translation>
    </message>
    <message>
        <source>Import a text...</source>
        <translation>Text importieren...</translation>
    </message>
    <message>
        <source>Make a translation of a Bible text that you have (Ctrl+I).</source>
        <translation>Aus einem Bibeltext, den Sie haben, eine Übersetzung machen (Strg+I).</translation>
    </message>
    <message>
        <source>The address of the sitemap, &quot;%1&quot;, is none of a folder such as https://example.org/bible/.</source>
        <translation>Die Adresse der Sitemap, &quot;%1&quot;, ist nicht die eines Ordners wie https://example.org/bible/.</translation>
    </message>
</context>
<context>
    <name>folionet::frmPAgeTitles</name>
    <message>
        <source>Page Titles</source>
        <translation>Seitentitel</translation>
    </message>
    <message>
        <source>&amp;Index Page</source>
        <translation>&amp;Indexseite</translation>
    </message>
    <message>
        <source>&amp;All other Pages</source>
        <translation>&amp;Alle anderen Seiten</translation>
    </message>
    <message>
        <source>Index Page</source>
        <translation>Indexseite</translation>
    </message>
    <message>
        <source>All other Pages</source>
        <translation>Alle anderen Seiten</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Preview of the title of the index page</source>
        <translation>Vorschau des Titels der Indexseite</translation>
    </message>
    <message>
        <source>Type above, or press Preview</source>
        <translation>Oben schreiben oder „Vorschau“ drücken</translation>
    </message>
    <message>
        <source>Preview of the title of all other pages</source>
        <translation>Vorschau des Titels aller anderen Seiten</translation>
    </message>
</context>
</TS>
