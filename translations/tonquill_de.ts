<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
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
        <source>Whole note (hold Ctrl for the rest)</source>
        <translation>Ganze Note (für die Pause Strg halten)</translation>
    </message>
    <message>
        <source>Half note (hold Ctrl for the rest)</source>
        <translation>Halbe Note (für die Pause Strg halten)</translation>
    </message>
    <message>
        <source>Quarter note (hold Ctrl for the rest)</source>
        <translation>Viertelnote (für die Pause Strg halten)</translation>
    </message>
    <message>
        <source>Eighth note (hold Ctrl for the rest)</source>
        <translation>Achtelnote (für die Pause Strg halten)</translation>
    </message>
    <message>
        <source>16th note (hold Ctrl for the rest)</source>
        <translation>Sechzehntelnote (für die Pause Strg halten)</translation>
    </message>
    <message>
        <source>32nd note (hold Ctrl for the rest)</source>
        <translation>Zweiunddreißigstelnote (für die Pause Strg halten)</translation>
    </message>
    <message>
        <source>64th note (hold Ctrl for the rest)</source>
        <translation>Vierundsechzigstelnote (für die Pause Strg halten)</translation>
    </message>
    <message>
        <source>128th note (hold Ctrl for the rest)</source>
        <translation>Hundertachtundzwanzigstelnote (für die Pause Strg halten)</translation>
    </message>
    <message>
        <source>Note dot</source>
        <translation>Verlängerungspunkt</translation>
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
        <source>G clef</source>
        <translation>Violinschlüssel</translation>
    </message>
    <message>
        <source>F clef</source>
        <translation>Bassschlüssel</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>Erniedrigungszeichen</translation>
    </message>
    <message>
        <source>Sharp</source>
        <translation>Kreuz</translation>
    </message>
    <message>
        <source>Natural</source>
        <translation>Auflösungszeichen</translation>
    </message>
    <message>
        <source>Common time</source>
        <translation>Viervierteltakt</translation>
    </message>
    <message>
        <source>Cut time</source>
        <translation>Allabreve-Takt</translation>
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
