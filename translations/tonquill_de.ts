<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AtomicFile</name>
    <message>
        <source>This is not an ordinary file.</source>
        <translation>Das ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>Not everything could be written. Is the disk full?</source>
        <translation>Es konnte nicht alles geschrieben werden. Ist der Datenträger voll?</translation>
    </message>
    <message>
        <source>The file would get another owner or lose its other names if it were replaced, and what it holds cannot be kept safe while it is written: %1</source>
        <translation>Beim Ersetzen bekäme die Datei einen anderen Besitzer oder verlöre ihre anderen Namen, und ihr Inhalt kann während des Schreibens nicht gesichert werden: %1</translation>
    </message>
    <message>
        <source>%1
The file is damaged now. What it held before is in “%2”.</source>
        <translation>%1
Die Datei ist jetzt beschädigt. Ihr früherer Inhalt steht in „%2“.</translation>
    </message>
    <message>
        <source>The name has characters that are not UTF-8. Please choose another name.</source>
        <translation>Der Name enthält Zeichen, die kein UTF-8 sind. Bitte wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>The file is write-protected.</source>
        <translation>Die Datei ist schreibgeschützt.</translation>
    </message>
</context>
<context>
    <name>BuiltInHost</name>
    <message>
        <source>%1 exists and cannot be replaced.</source>
        <translation>%1 existiert bereits und kann nicht ersetzt werden.</translation>
    </message>
</context>
<context>
    <name>DocumentBounds</name>
    <message>
        <source>There are more items than a document can have.</source>
        <translation>Es sind mehr Elemente, als ein Dokument haben kann.</translation>
    </message>
    <message>
        <source>The item is too large or too far away.</source>
        <translation>Das Element ist zu groß oder zu weit entfernt.</translation>
    </message>
    <message>
        <source>The parts of this text are nested too deeply.</source>
        <translation>Die Teile dieses Textes sind zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>The tables in this text are too large.</source>
        <translation>Die Tabellen in diesem Text sind zu groß.</translation>
    </message>
    <message>
        <source>The pictures in this text are too large.</source>
        <translation>Die Bilder in diesem Text sind zu groß.</translation>
    </message>
    <message>
        <source>This text is too large.</source>
        <translation>Dieser Text ist zu groß.</translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>… and %1 more.</source>
        <translation>… und %1 weitere.</translation>
    </message>
    <message>
        <source>There is not enough memory for this document.</source>
        <translation>Für dieses Dokument reicht der Speicher nicht.</translation>
    </message>
    <message>
        <source>The file is as it was before.</source>
        <translation>Die Datei ist, wie sie vorher war.</translation>
    </message>
    <message>
        <source>The file is written, but a power cut may take it back until it is saved again.</source>
        <translation>Die Datei ist geschrieben, doch ein Stromausfall kann das zurücknehmen, bis sie noch einmal gespeichert wird.</translation>
    </message>
</context>
<context>
    <name>DocumentFileReader</name>
    <message>
        <source>The file is larger than any document.</source>
        <translation>Die Datei ist größer als jedes Dokument.</translation>
    </message>
    <message>
        <source>Some characters are not UTF-8.</source>
        <translation>Einige Zeichen sind nicht UTF-8.</translation>
    </message>
    <message>
        <source>This is not a Tonquill document.</source>
        <translation>Das ist kein Tonquill-Dokument.</translation>
    </message>
    <message>
        <source>The document was written by a newer version of Tonquill (format %1; this program knows %2).</source>
        <translation>Das Dokument wurde von einer neueren Version von Tonquill geschrieben (Format %1; dieses Programm kennt %2).</translation>
    </message>
    <message>
        <source>The document breaks off here.</source>
        <translation>Das Dokument bricht hier ab.</translation>
    </message>
    <message>
        <source>There is more behind the document&apos;s end.</source>
        <translation>Hinter dem Ende des Dokuments steht noch etwas.</translation>
    </message>
    <message>
        <source>The field “%1” is not known.</source>
        <translation>Das Feld „%1“ ist nicht bekannt.</translation>
    </message>
    <message>
        <source>The end of this text block is missing.</source>
        <translation>Das Ende dieses Textblocks fehlt.</translation>
    </message>
    <message>
        <source>The number of pages cannot be right.</source>
        <translation>Die Zahl der Seiten kann nicht stimmen.</translation>
    </message>
    <message>
        <source>The size of the paper cannot be right.</source>
        <translation>Die Größe des Papiers kann nicht stimmen.</translation>
    </message>
    <message>
        <source>This record cannot be read.</source>
        <translation>Dieser Eintrag ist nicht lesbar.</translation>
    </message>
</context>
<context>
    <name>DocumentSession</name>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
</context>
<context>
    <name>Exporter</name>
    <message>
        <source>%1: the name must end in .pdf, .png or .svg</source>
        <translation>%1: Der Name muss auf .pdf, .png oder .svg enden</translation>
    </message>
    <message>
        <source>the resolution must be between %1 and %2</source>
        <translation>die Auflösung muss zwischen %1 und %2 liegen</translation>
    </message>
    <message>
        <source>The picture would be too large. A lower resolution may help.</source>
        <translation>Das Bild würde zu groß. Eine geringere Auflösung hilft vielleicht.</translation>
    </message>
    <message>
        <source>there is no page %1; the document has pages 1 to %2</source>
        <translation>es gibt keine Seite %1; das Dokument hat die Seiten 1 bis %2</translation>
    </message>
    <message>
        <source>%1: the document itself cannot be overwritten</source>
        <translation>%1: Das Dokument selbst kann nicht überschrieben werden</translation>
    </message>
    <message>
        <source>The pages cannot be written to the temporary folder %1. Is the disk full?</source>
        <translation>Die Seiten können nicht in den Ordner für Zwischendateien, %1, geschrieben werden. Ist der Datenträger voll?</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Tonquill documents (*.tonquill);;All files (*)</source>
        <translation>Tonquill-Dokumente (*.tonquill);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>“%1” cannot be opened.</source>
        <translation>„%1“ kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Export as PDF</source>
        <translation>Als PDF exportieren</translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation>PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Save changes to “%1”?</source>
        <translation>Änderungen an „%1“ speichern?</translation>
    </message>
    <message>
        <source>Unsaved changes will be lost.</source>
        <translation>Nicht gespeicherte Änderungen gehen verloren.</translation>
    </message>
    <message>
        <source>%1

Open the rest (%2 items)? The file is not changed until you save.</source>
        <translation>%1

Den Rest öffnen (%2 Elemente)? Die Datei wird erst beim Speichern geändert.</translation>
    </message>
    <message>
        <source>Only part of “%1” can be read.</source>
        <translation>„%1“ ist nur zum Teil lesbar.</translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation>Trotzdem öffnen</translation>
    </message>
    <message>
        <source>“%1” cannot be saved.</source>
        <translation>„%1“ kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>“%1” does not contain all items.</source>
        <translation>„%1“ enthält nicht alle Elemente.</translation>
    </message>
    <message>
        <source>Items of these classes cannot be saved and are only on the page: %1.</source>
        <translation>Elemente dieser Klassen können nicht gespeichert werden und sind nur auf der Seite: %1.</translation>
    </message>
    <message>
        <source>The PDF cannot be written.</source>
        <translation>Das PDF kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>HelpPages</name>
    <message>
        <source>Mouse</source>
        <translation>Maus</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Wirkung</translation>
    </message>
    <message>
        <source>A palette button, then a click</source>
        <translation>Ein Knopf der Palette, dann ein Klick</translation>
    </message>
    <message>
        <source>places an item on the page</source>
        <translation>setzt ein Element auf die Seite</translation>
    </message>
    <message>
        <source>A second click</source>
        <translation>Ein zweiter Klick</translation>
    </message>
    <message>
        <source>Right button held while placing</source>
        <translation>Rechte Taste beim Setzen gehalten</translation>
    </message>
    <message>
        <source>Drag on empty paper</source>
        <translation>Ziehen auf leerem Papier</translation>
    </message>
    <message>
        <source>Drag an item</source>
        <translation>Ein Element ziehen</translation>
    </message>
    <message>
        <source>moves the selection</source>
        <translation>bewegt die Auswahl</translation>
    </message>
    <message>
        <source>Drag a green anchor</source>
        <translation>Einen grünen Anker ziehen</translation>
    </message>
    <message>
        <source>stretches a figure or a text block</source>
        <translation>dehnt eine Figur oder einen Textblock</translation>
    </message>
    <message>
        <source>zooms at the pointer</source>
        <translation>vergrößert am Zeiger</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>Ctrl, held</source>
        <translation>Strg, gehalten</translation>
    </message>
    <message>
        <source>the note buttons insert rests</source>
        <translation>die Notenknöpfe setzen Pausen</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>Pfeiltasten</translation>
    </message>
    <message>
        <source>Delete, Backspace</source>
        <translation>Entf, Rücktaste</translation>
    </message>
    <message>
        <source>delete the selection</source>
        <translation>löschen die Auswahl</translation>
    </message>
    <message>
        <source>Ctrl+C, Ctrl+V</source>
        <translation>Strg+C, Strg+V</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>Ctrl+Z, Ctrl+Shift+Z</source>
        <translation>Strg+Z, Strg+Umschalt+Z</translation>
    </message>
    <message>
        <source>undo and redo</source>
        <translation>rückgängig machen und wiederholen</translation>
    </message>
    <message>
        <source>Ctrl+A</source>
        <translation>Strg+A</translation>
    </message>
    <message>
        <source>select everything</source>
        <translation>alles auswählen</translation>
    </message>
    <message>
        <source>Ctrl++, Ctrl+-, Ctrl+0, Ctrl+9</source>
        <translation>Strg++, Strg+-, Strg+0, Strg+9</translation>
    </message>
    <message>
        <source>zoom in, zoom out, 100 %, fit width</source>
        <translation>größer, kleiner, 100 %, Seitenbreite</translation>
    </message>
    <message>
        <source>Ctrl+N, Ctrl+O, Ctrl+S</source>
        <translation>Strg+N, Strg+O, Strg+S</translation>
    </message>
    <message>
        <source>new, open, save</source>
        <translation>neu, öffnen, speichern</translation>
    </message>
    <message>
        <source>Ctrl+E, Ctrl+P, Ctrl+Q</source>
        <translation>Strg+E, Strg+P, Strg+Q</translation>
    </message>
    <message>
        <source>export as PDF, print, quit</source>
        <translation>als PDF exportieren, drucken, beenden</translation>
    </message>
    <message>
        <source>Keys and Mouse</source>
        <translation>Tasten und Maus</translation>
    </message>
    <message>
        <source>About Tonquill</source>
        <translation>Über Tonquill</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Tonquill %1&lt;/h3&gt;&lt;p&gt;A sketch pad for music notation: symbols laid by hand, exactly where you want them.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Tonquill %1&lt;/h3&gt;&lt;p&gt;Ein Skizzenblock für Notenschrift: Zeichen von Hand gesetzt, genau dort, wo man sie will.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>places the other end of a staff, tie, bracket or line</source>
        <translation>setzt das andere Ende von System, Bogen, Klammer oder Linie</translation>
    </message>
    <message>
        <source>flips a note</source>
        <translation>dreht eine Note um</translation>
    </message>
    <message>
        <source>selects the items inside</source>
        <translation>wählt die Elemente darin aus</translation>
    </message>
    <message>
        <source>Double-click a text block</source>
        <translation>Doppelklick auf einen Textblock</translation>
    </message>
    <message>
        <source>edits its text</source>
        <translation>bearbeitet seinen Text</translation>
    </message>
    <message>
        <source>Right-click a text</source>
        <translation>Rechtsklick auf einen Text</translation>
    </message>
    <message>
        <source>changes its text, font, colour and angle</source>
        <translation>ändert Text, Schrift, Farbe und Winkel</translation>
    </message>
    <message>
        <source>Right-click a text block</source>
        <translation>Rechtsklick auf einen Textblock</translation>
    </message>
    <message>
        <source>changes its font size</source>
        <translation>ändert seine Schriftgröße</translation>
    </message>
    <message>
        <source>Ctrl and the mouse wheel</source>
        <translation>Strg und das Mausrad</translation>
    </message>
    <message>
        <source>nudge the selection</source>
        <translation>verschieben die Auswahl ein wenig</translation>
    </message>
    <message>
        <source>copy the selection; paste everything copied so far</source>
        <translation>kopieren die Auswahl; fügen alles bisher Kopierte ein</translation>
    </message>
    <message>
        <source>adds another item like the last one</source>
        <translation>fügt ein weiteres Element wie das letzte hinzu</translation>
    </message>
    <message>
        <source>quick text on or off: typing on the page opens a text block</source>
        <translation>Schnelltext ein oder aus: Tippen auf der Seite öffnet einen Textblock</translation>
    </message>
    <message>
        <source>Letters of the Musica Font</source>
        <translation>Buchstaben der Schrift Musica</translation>
    </message>
</context>
<context>
    <name>InsertMenu</name>
    <message>
        <source>Rests</source>
        <translation>Pausen</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
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
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>&amp;Export as PDF…</source>
        <translation>Als PDF &amp;exportieren …</translation>
    </message>
    <message>
        <source>Print Pre&amp;view…</source>
        <translation>Druck&amp;vorschau …</translation>
    </message>
    <message>
        <source>Page Set&amp;up…</source>
        <translation>Seite ein&amp;richten …</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Drucken …</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
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
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Größer</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Kleiner</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translation>&amp;100 %</translation>
    </message>
    <message>
        <source>Fit &amp;Width</source>
        <translation>Seiten&amp;breite</translation>
    </message>
    <message>
        <source>&amp;Sheet Music Toolbar</source>
        <translation>Werkzeugleiste &amp;Noten</translation>
    </message>
    <message>
        <source>&amp;Tablature Toolbar</source>
        <translation>Werkzeugleiste &amp;Tabulatur</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Keys and Mouse</source>
        <translation>&amp;Tasten und Maus</translation>
    </message>
    <message>
        <source>&amp;About Tonquill</source>
        <translation>Ü&amp;ber Tonquill</translation>
    </message>
    <message>
        <source>Letters of the &amp;Musica Font</source>
        <translation>Buchstaben der Schrift &amp;Musica</translation>
    </message>
</context>
<context>
    <name>OrdinaryFile</name>
    <message>
        <source>Its name is not UTF-8. Give the file another name first.</source>
        <translation>Ihr Name ist kein UTF-8. Geben Sie der Datei zuerst einen anderen Namen.</translation>
    </message>
    <message>
        <source>This is a folder.</source>
        <translation>Das ist ein Ordner.</translation>
    </message>
    <message>
        <source>This is not an ordinary file.</source>
        <translation>Das ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>The file is too large: %1, where documents have at most %2.</source>
        <translation>Die Datei ist zu groß: %1; Dokumente haben höchstens %2.</translation>
    </message>
</context>
<context>
    <name>OutsideChange</name>
    <message>
        <source>“%1” was moved or deleted by another program.</source>
        <translation>„%1“ wurde von einem anderen Programm verschoben oder gelöscht.</translation>
    </message>
    <message>
        <source>“%1” was changed by another program.</source>
        <translation>„%1“ wurde von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Speichern unter …</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Reload it?</source>
        <translation>Neu laden?</translation>
    </message>
    <message>
        <source>Saving will create it again.</source>
        <translation>Beim Speichern wird sie neu angelegt.</translation>
    </message>
    <message>
        <source>Overwriting discards the other program&apos;s changes. Reloading discards yours.</source>
        <translation>Überschreiben verwirft die Änderungen des anderen Programms, Neuladen verwirft Ihre.</translation>
    </message>
    <message>
        <source>The document in this window is no longer saved anywhere.</source>
        <translation>Das Dokument in diesem Fenster ist nirgends mehr gespeichert.</translation>
    </message>
    <message>
        <source>Reload it and lose your changes?</source>
        <translation>Neu laden und Ihre Änderungen verlieren?</translation>
    </message>
    <message>
        <source>Keep This Version</source>
        <translation>Diese Fassung behalten</translation>
    </message>
</context>
<context>
    <name>PageControls</name>
    <message>
        <source>Delete Page %1</source>
        <translation>Seite %1 löschen</translation>
    </message>
    <message>
        <source>At the Beginning</source>
        <translation>Am Anfang</translation>
    </message>
    <message>
        <source>Before The Current Page</source>
        <translation>Vor der aktuellen Seite</translation>
    </message>
    <message>
        <source>After The Current Page</source>
        <translation>Nach der aktuellen Seite</translation>
    </message>
    <message>
        <source>At the End</source>
        <translation>Am Ende</translation>
    </message>
</context>
<context>
    <name>PagePrinter</name>
    <message>
        <source>The pages could not be printed.</source>
        <translation>Die Seiten konnten nicht gedruckt werden.</translation>
    </message>
</context>
<context>
    <name>PaletteTable</name>
    <message>
        <source>Bring Trackwright to the front</source>
        <translation>Trackwright nach vorn holen</translation>
    </message>
    <message>
        <source>Show or hide the sheet music toolbar</source>
        <translation>Notenleiste ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Show or hide the tablature toolbar</source>
        <translation>Tabulaturleiste ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Print preview</source>
        <translation>Druckvorschau</translation>
    </message>
    <message>
        <source>Page setup</source>
        <translation>Seite einrichten</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Text block</source>
        <translation>Textblock</translation>
    </message>
    <message>
        <source>Tablature lines</source>
        <translation>Tabulaturlinien</translation>
    </message>
    <message>
        <source>Symbols reference</source>
        <translation>Zeichenschlüssel</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Grand staff</source>
        <translation>Klaviersystem</translation>
    </message>
    <message>
        <source>Clefs</source>
        <translation>Notenschlüssel</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Time signatures</source>
        <translation>Taktangaben</translation>
    </message>
    <message>
        <source>Accidentals</source>
        <translation>Vorzeichen</translation>
    </message>
    <message>
        <source>Triplet bracket</source>
        <translation>Triolenklammer</translation>
    </message>
    <message>
        <source>Tie</source>
        <translation>Haltebogen</translation>
    </message>
    <message>
        <source>hold Ctrl for the rest</source>
        <translation>für die Pause Strg halten</translation>
    </message>
</context>
<context>
    <name>PrintProgress</name>
    <message>
        <source>Printing...</source>
        <translation>Es wird gedruckt …</translation>
    </message>
</context>
<context>
    <name>RecoveryJournal</name>
    <message>
        <source>Nothing can be written to the folder %1.</source>
        <translation>In den Ordner %1 kann nichts geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>RecoveryOffer</name>
    <message>
        <source>Tonquill ended unexpectedly. Recover the unsaved changes?</source>
        <translation>Tonquill wurde unerwartet beendet. Die ungespeicherten Änderungen wiederherstellen?</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Not everything can be read:</source>
        <translation>Nicht alles ist lesbar:</translation>
    </message>
    <message>
        <source>Until this file is moved, no further changes can be recovered after a crash:</source>
        <translation>Solange diese Datei dort liegt, können weitere Änderungen nach einem Absturz nicht wiederhergestellt werden:</translation>
    </message>
    <message>
        <source>They are kept in this file:</source>
        <translation>Sie sind in dieser Datei aufgehoben:</translation>
    </message>
    <message>
        <source>Tonquill ended unexpectedly, and the unsaved changes cannot be read.</source>
        <translation>Tonquill wurde unerwartet beendet, und die ungespeicherten Änderungen sind nicht lesbar.</translation>
    </message>
    <message>
        <source>an untitled document</source>
        <translation>ein unbenanntes Dokument</translation>
    </message>
    <message>
        <source>%1, %2.
The file itself is not changed until you save.</source>
        <translation>%1, %2.
Die Datei selbst wird erst beim Speichern geändert.</translation>
    </message>
    <message>
        <source>Everything is kept in this file:</source>
        <translation>Alles ist in dieser Datei aufgehoben:</translation>
    </message>
</context>
<context>
    <name>SaveDialog</name>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>“%1” already exists.</source>
        <translation>„%1“ existiert bereits.</translation>
    </message>
    <message>
        <source>Replacing it will overwrite its contents.</source>
        <translation>Beim Ersetzen wird ihr Inhalt überschrieben.</translation>
    </message>
</context>
<context>
    <name>SingleInstance</name>
    <message>
        <source>Nothing can be written to the folder %1.</source>
        <translation>In den Ordner %1 kann nichts geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>SoloApplication</name>
    <message>
        <source>The document to open.</source>
        <translation>Das Dokument, das geöffnet wird.</translation>
    </message>
    <message>
        <source>--export needs a document</source>
        <translation>--export braucht ein Dokument</translation>
    </message>
    <message>
        <source>It keeps the document and its history. Tonquill can open as its editor, without files and menus of its own.</source>
        <translation>Es führt das Dokument und dessen Verlauf. Tonquill kann sich als sein Editor öffnen, ohne eigene Dateien und Menüs.</translation>
    </message>
    <message>
        <source>Open as Its Editor</source>
        <translation>Als dessen Editor öffnen</translation>
    </message>
    <message>
        <source>It may open “%1” later.</source>
        <translation>Es öffnet „%1“ vielleicht später.</translation>
    </message>
    <message>
        <source>A sketch pad for music notation.</source>
        <translation>Ein Skizzenblock für Notenschrift.</translation>
    </message>
    <message>
        <source>Export FILE as PDF, PNG or SVG, depending on the suffix of &lt;out&gt;, without showing a window.</source>
        <translation>DATEI als PDF, PNG oder SVG exportieren, je nach Endung von &lt;out&gt;, ohne ein Fenster zu zeigen.</translation>
    </message>
    <message>
        <source>The page to export as PNG or SVG (default: 1).</source>
        <translation>Die Seite, die als PNG oder SVG exportiert wird (Vorgabe: 1).</translation>
    </message>
    <message>
        <source>The resolution of a PNG picture in dots per inch (default: 150).</source>
        <translation>Die Auflösung eines PNG-Bildes in Punkten je Zoll (Vorgabe: 150).</translation>
    </message>
    <message>
        <source>Open a copy of &lt;file&gt; the first time the program is started.</source>
        <translation>Beim ersten Start des Programms eine Kopie von &lt;file&gt; öffnen.</translation>
    </message>
    <message>
        <source>If you start Tonquill again, it will not find this window.</source>
        <translation>Wenn Sie Tonquill noch einmal starten, findet es dieses Fenster nicht.</translation>
    </message>
    <message>
        <source>Undo and redo only work from the menu, not from the toolbar.</source>
        <translation>„Rückgängig“ und „Wiederholen“ sind nur im Menü verfügbar, nicht in der Werkzeugleiste.</translation>
    </message>
    <message>
        <source>Tonquill is already running but does not respond.</source>
        <translation>Tonquill läuft bereits, antwortet aber nicht.</translation>
    </message>
    <message>
        <source>A host for Tonquill is already running.</source>
        <translation>Ein Wirtsprogramm für Tonquill läuft bereits.</translation>
    </message>
</context>
<context>
    <name>SoloWindow</name>
    <message>
        <source>%1[*] – Tonquill</source>
        <translation>%1[*] – Tonquill</translation>
    </message>
    <message>
        <source>Unsaved changes cannot be recovered after a crash.</source>
        <translation>Ungespeicherte Änderungen können nach einem Absturz nicht wiederhergestellt werden.</translation>
    </message>
</context>
<context>
    <name>SymbolTable</name>
    <message>
        <source>Common time</source>
        <translation>Viervierteltakt</translation>
    </message>
    <message>
        <source>Cut time</source>
        <translation>Allabreve-Takt</translation>
    </message>
    <message>
        <source>G clef</source>
        <translation>Violinschlüssel</translation>
    </message>
    <message>
        <source>F clef</source>
        <translation>Bassschlüssel</translation>
    </message>
    <message>
        <source>Sharp</source>
        <translation>Kreuz</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>Erniedrigungszeichen</translation>
    </message>
    <message>
        <source>Natural</source>
        <translation>Auflösungszeichen</translation>
    </message>
    <message>
        <source>Repeat begin</source>
        <translation>Wiederholungsanfang</translation>
    </message>
    <message>
        <source>Repeat end</source>
        <translation>Wiederholungsende</translation>
    </message>
    <message>
        <source>Staff line</source>
        <translation>Notenlinie</translation>
    </message>
    <message>
        <source>Note dot</source>
        <translation>Verlängerungspunkt</translation>
    </message>
    <message>
        <source>Whole note</source>
        <translation>Ganze Note</translation>
    </message>
    <message>
        <source>Whole rest</source>
        <translation>Ganze Pause</translation>
    </message>
    <message>
        <source>Half note</source>
        <translation>Halbe Note</translation>
    </message>
    <message>
        <source>Half rest</source>
        <translation>Halbe Pause</translation>
    </message>
    <message>
        <source>Quarter note</source>
        <translation>Viertelnote</translation>
    </message>
    <message>
        <source>Quarter rest</source>
        <translation>Viertelpause</translation>
    </message>
    <message>
        <source>Eighth note</source>
        <translation>Achtelnote</translation>
    </message>
    <message>
        <source>Eighth rest</source>
        <translation>Achtelpause</translation>
    </message>
    <message>
        <source>16th note</source>
        <translation>Sechzehntelnote</translation>
    </message>
    <message>
        <source>16th rest</source>
        <translation>16tel-Pause</translation>
    </message>
    <message>
        <source>32nd note</source>
        <translation>Zweiunddreißigstelnote</translation>
    </message>
    <message>
        <source>32nd rest</source>
        <translation>32stel-Pause</translation>
    </message>
    <message>
        <source>64th note</source>
        <translation>Vierundsechzigstelnote</translation>
    </message>
    <message>
        <source>64th rest</source>
        <translation>64stel-Pause</translation>
    </message>
    <message>
        <source>128th note</source>
        <translation>Hundertachtundzwanzigstelnote</translation>
    </message>
    <message>
        <source>128th rest</source>
        <translation>128stel-Pause</translation>
    </message>
</context>
<context>
    <name>TonquillMainWin</name>
    <message>
        <source>Goto Page</source>
        <translation>Zur Seite gehen</translation>
    </message>
</context>
</TS>
