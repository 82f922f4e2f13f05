<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Choose the Output Path</source>
        <translation>Ausgabepfad wählen</translation>
    </message>
    <message>
        <source>No browser could be started. The page is:</source>
        <translation>Es konnte kein Browser gestartet werden. Die Seite ist:</translation>
    </message>
    <message>
        <source>%1 pages, %2 links: %3 broken, %4 pages not reached.</source>
        <translation>%1 Seiten, %2 Links: %3 ohne Ziel, %4 Seiten nicht erreicht.</translation>
    </message>
    <message>
        <source>%1: the index does not lead here.</source>
        <translation>%1: Die Indexseite führt nicht hierher.</translation>
    </message>
    <message>
        <source>Check site</source>
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
        <source>%1, line %2: &quot;%3&quot; is there in another letter case only, %4.</source>
        <translation>%1, Zeile %2: „%3“ gibt es nur in anderer Groß- und Kleinschreibung, %4.</translation>
    </message>
    <message>
        <source>%1 links lead out of the folder and were not followed.</source>
        <translation>%1 Links führen aus dem Ordner hinaus und wurden nicht verfolgt.</translation>
    </message>
    <message>
        <source>%1, line %2: &quot;%3&quot; holds &quot;\&quot;, which no address does.</source>
        <translation>%1, Zeile %2: „%3“ enthält „\“, was in keiner Adresse vorkommt.</translation>
    </message>
    <message>
        <source>%1, line %2: &quot;%3&quot; is not there.</source>
        <translation>%1, Zeile %2: „%3“ ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>%1, line %2: &quot;%3&quot; cannot be read.</source>
        <translation>%1, Zeile %2: „%3“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>%1: a symbolic link to another folder, whose pages were not read.</source>
        <translation>%1: eine symbolische Verknüpfung zu einem anderen Ordner, dessen Seiten nicht gelesen wurden.</translation>
    </message>
</context>
<context>
    <name>folionet::CustomHtmlDialog</name>
    <message>
        <source>HTML code</source>
        <translation>HTML-Code</translation>
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
</context>
<context>
    <name>folionet::StatusPanels</name>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
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
    <name>folionet::frmKeywords</name>
    <message>
        <source>&amp;Index Page</source>
        <translation>&amp;Indexseite</translation>
    </message>
    <message>
        <source>I&amp;ndex Page</source>
        <translation>I&amp;ndexseite</translation>
    </message>
    <message>
        <source>META Keywords - Index page</source>
        <translation>META-Schlüsselwörter – Indexseite</translation>
    </message>
    <message>
        <source>META Description Index page</source>
        <translation>META-Beschreibung der Indexseite</translation>
    </message>
</context>
<context>
    <name>folionet::frmLinkToMAin</name>
    <message>
        <source>&amp;HTML of the link</source>
        <translation>&amp;HTML des Links</translation>
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
        <source>The address of the index page, such as index.html or http://www.example.org/index.html.</source>
        <translation>Die Adresse der Indexseite, etwa index.html oder http://www.example.org/index.html.</translation>
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
        <source>Check site</source>
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
        <source>Open the help (F1).</source>
        <translation>Die Hilfe öffnen (F1).</translation>
    </message>
    <message>
        <source>Save all settings, after asking, and end the program (Ctrl+Q).</source>
        <translation>Nach einer Rückfrage alle Einstellungen speichern und das Programm beenden (Strg+Q).</translation>
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
</context>
</TS>
