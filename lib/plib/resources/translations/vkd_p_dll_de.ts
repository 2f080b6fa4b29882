<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>DesignParameter</name>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Remaining Groups</source>
        <translation>Übrige Gruppen</translation>
    </message>
    <message>
        <source>No design</source>
        <translation>Keine Bemessung</translation>
    </message>
    <message>
        <source>Two Layers (orthogonal)</source>
        <translation>Zwei Lagen (orthogonal)</translation>
    </message>
    <message>
        <source>Two Layers</source>
        <translation>Zwei Lagen</translation>
    </message>
    <message>
        <source>Three Layers</source>
        <translation>Drei Lagen</translation>
    </message>
    <message>
        <source>Circular</source>
        <translation>Ringförmig</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Direction and Distance</source>
        <translation>Richtung und Abstand</translation>
    </message>
    <message>
        <source>Reinforcement</source>
        <translation>Bewehrung</translation>
    </message>
    <message>
        <source>Crack Control</source>
        <translation>Rissbreite</translation>
    </message>
    <message>
        <source>Design parameter</source>
        <translation>Bemessungsparameter</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>No groups selected.
Possible loss of data!</source>
        <translation>Keine Gruppen ausgewählt.
Daten können verloren gehen!</translation>
    </message>
    <message>
        <source>Yes continues without the rows that have no groups; they are not stored. No returns to the page.</source>
        <translation>„Ja“ fährt ohne die Zeilen ohne Gruppen fort; sie werden nicht gespeichert. „Nein“ kehrt zur Seite zurück.</translation>
    </message>
    <message>
        <source>Remaining Groups: also in row %1</source>
        <translation>Übrige Gruppen: auch in Zeile %1</translation>
    </message>
    <message>
        <source>Group %1: also in row %2</source>
        <translation>Gruppe %1: auch in Zeile %2</translation>
    </message>
    <message>
        <source>The row shows values once it has a type. Its groups can be typed, for example 1-4, 7.</source>
        <translation>Die Zeile zeigt Werte, sobald sie eine Art hat. Ihre Gruppen lassen sich eintippen, etwa 1-4, 7.</translation>
    </message>
</context>
<context>
    <name>DesignParameterTable</name>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>dlgCrackControl</name>
    <message>
        <source>Crack Control</source>
        <translation>Begrenzung der Rissbreite</translation>
    </message>
    <message>
        <source>Upper</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Lower</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Principal Reinforcement</source>
        <translation>Hauptbewehrung</translation>
    </message>
    <message>
        <source>Cross Reinforcement</source>
        <translation>Querbewehrung</translation>
    </message>
    <message>
        <source>Third Layer</source>
        <translation>Dritte Lage</translation>
    </message>
    <message>
        <source>Crack width</source>
        <translation>Rissbreite</translation>
    </message>
    <message>
        <source>Steel stress</source>
        <translation>Stahlspannung</translation>
    </message>
    <message>
        <source>Permissible crack width for crack width control with or without direct calculation. Crack width control acc. to EN 1992-1-1, table 7.3N requires input for permissible steel stress.</source>
        <translation>Zulässige Rissbreite für die Begrenzung der Rissbreite mit oder ohne direkte Berechnung. Die Begrenzung nach EN 1992-1-1, Tabelle 7.3N erfordert die Eingabe der zulässigen Stahlspannung.</translation>
    </message>
    <message>
        <source>The table shows the crack widths of this type of row, but not its steel stresses.</source>
        <translation>Die Tabelle zeigt für diese Art die Rissbreiten, aber nicht die Stahlspannungen.</translation>
    </message>
    <message>
        <source>The table shows the steel stresses of this type of row, but not its crack widths.</source>
        <translation>Die Tabelle zeigt für diese Art die Stahlspannungen, aber nicht die Rissbreiten.</translation>
    </message>
</context>
<context>
    <name>dlgDistanceDirection</name>
    <message>
        <source>Direction and Distance</source>
        <translation>Richtung und Abstand</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Direction / Distance</source>
        <translation>Richtung / Abstand</translation>
    </message>
    <message>
        <source>Upper</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Lower</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Principal Reinforcement</source>
        <translation>Hauptbewehrung</translation>
    </message>
    <message>
        <source>Cross Reinforcement</source>
        <translation>Querbewehrung</translation>
    </message>
    <message>
        <source>Third Layer</source>
        <translation>Dritte Lage</translation>
    </message>
    <message>
        <source>Third layer reinforcement (DDH)</source>
        <translation>Bewehrung der dritten Lage (DDH)</translation>
    </message>
    <message>
        <source>Direction (-180 ... 180)</source>
        <translation>Richtung (-180 ... 180)</translation>
    </message>
    <message>
        <source>Distance of Principal Reinforcement (H)</source>
        <translation>Abstand der Hauptbewehrung (H)</translation>
    </message>
    <message>
        <source>Distance of Cross Reinforcement (DH)</source>
        <translation>Abstand der Querbewehrung (DH)</translation>
    </message>
    <message>
        <source>Midpoint</source>
        <translation>Mittelpunkt</translation>
    </message>
    <message>
        <source>X coordinate</source>
        <translation>X-Koordinate</translation>
    </message>
    <message>
        <source>Y coordinate</source>
        <translation>Y-Koordinate</translation>
    </message>
    <message>
        <source>Z coordinate</source>
        <translation>Z-Koordinate</translation>
    </message>
    <message>
        <source>The local x-axis of the elements is the default direction of the principal reinforcement.</source>
        <translation>Ohne Angabe liegt die Hauptbewehrung in Richtung der lokalen x-Achse der Elemente.</translation>
    </message>
    <message>
        <source>Rotation angle of reinforcement towards local x-axis</source>
        <translation>Drehwinkel der Bewehrung gegen die lokale x-Achse</translation>
    </message>
    <message>
        <source>In a plane system the layers have no distances. Values entered here are not stored.</source>
        <translation>In einem ebenen System haben die Lagen keine Abstände. Eingaben werden hier nicht gespeichert.</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>entfällt</translation>
    </message>
    <message>
        <source>Axial Distance</source>
        <translation>Achsabstand</translation>
    </message>
    <message>
        <source>Reference point for circular reinforcement</source>
        <translation>Mittelpunkt der ringförmigen Bewehrung</translation>
    </message>
</context>
<context>
    <name>dlgReinforcement</name>
    <message>
        <source>Reinforcement</source>
        <translation>Bewehrung</translation>
    </message>
    <message>
        <source>Upper</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Lower</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Principal Reinforcement</source>
        <translation>Hauptbewehrung</translation>
    </message>
    <message>
        <source>Cross Reinforcement</source>
        <translation>Querbewehrung</translation>
    </message>
    <message>
        <source>Third Layer</source>
        <translation>Dritte Lage</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Durchmesser</translation>
    </message>
    <message>
        <source>Min. Reinforcement</source>
        <translation>Mindestbewehrung</translation>
    </message>
    <message>
        <source>Max. Reinforcement</source>
        <translation>Höchstbewehrung</translation>
    </message>
    <message>
        <source>max. Reinforcement</source>
        <translation>Höchstbewehrung</translation>
    </message>
    <message>
        <source>Minimum Reinforcement</source>
        <translation>Mindestbewehrung</translation>
    </message>
    <message>
        <source>Maximum Reinforcement</source>
        <translation>Höchstbewehrung</translation>
    </message>
    <message>
        <source>Calculate minimum reinforcement</source>
        <translation>Mindestbewehrung berechnen</translation>
    </message>
    <message>
        <source>Calculate maximum reinforcement</source>
        <translation>Höchstbewehrung berechnen</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Min greater than Max is not allowed!</source>
        <translation>Die Mindestbewehrung darf nicht größer als die Höchstbewehrung sein!</translation>
    </message>
</context>
<context>
    <name>dlgSelection</name>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Remaining Groups</source>
        <translation>Übrige Gruppen</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Select groups</source>
        <translation>Gruppen auswählen</translation>
    </message>
    <message>
        <source>Select secondary groups</source>
        <translation>Sekundärgruppen auswählen</translation>
    </message>
</context>
<context>
    <name>GraphicalOutputTreeWidget</name>
    <message>
        <source>File not found</source>
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>File %1 not found</source>
        <translation>Die Datei %1 wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open file</source>
        <translation>Datei konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Failed to open file %1</source>
        <translation>Die Datei %1 konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>No Entries in database!</source>
        <translation>Keine Einträge in der Datenbank!</translation>
    </message>
    <message>
        <source>Plots and loadcases</source>
        <translation>Grafiken und Lastfälle</translation>
    </message>
    <message>
        <source>Expand plots</source>
        <translation>Grafiken aufklappen</translation>
    </message>
    <message>
        <source>Expand loadcases</source>
        <translation>Lastfälle aufklappen</translation>
    </message>
    <message>
        <source>Close loadcases</source>
        <translation>Lastfälle zuklappen</translation>
    </message>
    <message>
        <source>Close all entries</source>
        <translation>Alle Einträge zuklappen</translation>
    </message>
</context>
<context>
    <name>plib::PlotKeys</name>
    <message>
        <source>Find Plots</source>
        <translation>Grafiken suchen</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Nächster Treffer</translation>
    </message>
    <message>
        <source>Find Previous</source>
        <translation>Voriger Treffer</translation>
    </message>
    <message>
        <source>Uncheck</source>
        <translation>Häkchen entfernen</translation>
    </message>
</context>
<context>
    <name>plib::SearchBar</name>
    <message>
        <source>Checked only</source>
        <translation>Nur angekreuzte</translation>
    </message>
    <message>
        <source>Previous hit (Shift+F3)</source>
        <translation>Voriger Treffer (Umschalt+F3)</translation>
    </message>
    <message>
        <source>Next hit (F3)</source>
        <translation>Nächster Treffer (F3)</translation>
    </message>
    <message>
        <source>End the search (Esc)</source>
        <translation>Suche beenden (Esc)</translation>
    </message>
    <message>
        <source>Words to find in the captions</source>
        <translation>Suchwörter für die Überschriften</translation>
    </message>
    <message>
        <source>Words from the captions</source>
        <translation>Wörter aus den Überschriften</translation>
    </message>
    <message>
        <source>Only plots and load cases that are checked are found</source>
        <translation>Nur angekreuzte Grafiken und Lastfälle werden gefunden</translation>
    </message>
    <message>
        <source>Boxes change only what is shown.</source>
        <translation>Kästchen ändern nur, was angezeigt wird.</translation>
    </message>
    <message>
        <source>No hits</source>
        <translation>Keine Treffer</translation>
    </message>
    <message>
        <source>Hits: %1</source>
        <translation>Treffer: %1</translation>
    </message>
    <message>
        <source>Hit %1 of %2</source>
        <translation>Treffer %1 von %2</translation>
    </message>
</context>
<context>
    <name>VKD_P_RadioGroupImpl</name>
    <message>
        <source>Manually</source>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>All Accidential</source>
        <translation>Alle außergewöhnlichen</translation>
    </message>
    <message>
        <source>All Fire</source>
        <translation>Alle Brandfälle</translation>
    </message>
    <message>
        <source>All Earthquake</source>
        <translation>Alle Erdbebenfälle</translation>
    </message>
    <message>
        <source>All Characteristic</source>
        <translation>Alle charakteristischen</translation>
    </message>
    <message>
        <source>All Frequent</source>
        <translation>Alle häufigen</translation>
    </message>
    <message>
        <source>All Quasi-Permanent</source>
        <translation>Alle quasi-ständigen</translation>
    </message>
    <message>
        <source>All Non-Frequent</source>
        <translation>Alle nicht-häufigen</translation>
    </message>
    <message>
        <source>Manually controlled</source>
        <translation>Manuell gesteuert</translation>
    </message>
    <message>
        <source>Manually controlled text output</source>
        <translation>Manuell gesteuerte Textausgabe</translation>
    </message>
    <message>
        <source>No text output</source>
        <translation>Keine Textausgabe</translation>
    </message>
    <message>
        <source>Smaller output without any text lists</source>
        <translation>Kleinere Ausgabe ohne Textlisten</translation>
    </message>
    <message>
        <source>Full text output</source>
        <translation>Vollständige Textausgabe</translation>
    </message>
    <message>
        <source>Extensive text output
useful to find errors or to compare variants</source>
        <translation>Ausführliche Textausgabe,
nützlich zur Fehlersuche oder zum Vergleich von Varianten</translation>
    </message>
</context>
<context>
    <name>VKD_P_WidgetGraphicalOutput</name>
    <message>
        <source>Graphical Output</source>
        <translation>Grafische Ausgabe</translation>
    </message>
    <message>
        <source>Standard graphics</source>
        <translation>Standardgrafiken</translation>
    </message>
    <message>
        <source>Default Settings</source>
        <translation>Voreinstellungen</translation>
    </message>
    <message>
        <source>All settings on this page will be set to the default</source>
        <translation>Setzt alle Einstellungen dieser Seite auf die Voreinstellung zurück</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Maßstab</translation>
    </message>
    <message>
        <source>Engineering scale</source>
        <translation>Ingenieurmaßstab</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>Formatfüllend</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Page Splitting</source>
        <comment>Blattteilung</comment>
        <translation>Blattteilung</translation>
    </message>
    <message>
        <source>Font Size (mm) : </source>
        <translation>Schriftgröße (mm) : </translation>
    </message>
    <message>
        <source>The size of the font</source>
        <translation>Größe der Schrift</translation>
    </message>
    <message>
        <source>Page Format</source>
        <translation>Seitenformat</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>One per Page</source>
        <translation>Eines je Seite</translation>
    </message>
    <message>
        <source>Two per Page</source>
        <translation>Zwei je Seite</translation>
    </message>
    <message>
        <source>Iso Areas</source>
        <translation>Isoflächen</translation>
    </message>
    <message>
        <source>All area iso lines will represented as coloured filled iso areas</source>
        <translation>Stellt alle Isolinien auf Flächen als farbig gefüllte Isoflächen dar</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>X/Y -Plane</source>
        <translation>X/Y-Ebene</translation>
    </message>
    <message>
        <source>X/Z -Plane</source>
        <translation>X/Z-Ebene</translation>
    </message>
    <message>
        <source>Y/Z -Plane</source>
        <translation>Y/Z-Ebene</translation>
    </message>
    <message>
        <source>3D Standard</source>
        <translation>3D-Standard</translation>
    </message>
    <message>
        <source>User defined</source>
        <translation>Benutzerdefiniert</translation>
    </message>
</context>
<context>
    <name>RowsChange</name>
    <message>
        <source>Groups of row %1</source>
        <translation>Gruppen der Zeile %1</translation>
    </message>
    <message>
        <source>Groups of %1 rows</source>
        <translation>Gruppen von %1 Zeilen</translation>
    </message>
    <message>
        <source>Type of row %1</source>
        <translation>Art der Zeile %1</translation>
    </message>
    <message>
        <source>Type of %1 rows</source>
        <translation>Art von %1 Zeilen</translation>
    </message>
    <message>
        <source>Direction and distance of row %1</source>
        <translation>Richtung und Abstand der Zeile %1</translation>
    </message>
    <message>
        <source>Direction and distance of %1 rows</source>
        <translation>Richtung und Abstand von %1 Zeilen</translation>
    </message>
    <message>
        <source>Reinforcement of row %1</source>
        <translation>Bewehrung der Zeile %1</translation>
    </message>
    <message>
        <source>Reinforcement of %1 rows</source>
        <translation>Bewehrung von %1 Zeilen</translation>
    </message>
    <message>
        <source>Crack control of row %1</source>
        <translation>Rissbreite der Zeile %1</translation>
    </message>
    <message>
        <source>Crack control of %1 rows</source>
        <translation>Rissbreite von %1 Zeilen</translation>
    </message>
    <message>
        <source>New row %1</source>
        <translation>Neue Zeile %1</translation>
    </message>
    <message>
        <source>%1 new rows</source>
        <translation>%1 neue Zeilen</translation>
    </message>
    <message>
        <source>Deletion of row %1</source>
        <translation>Löschen der Zeile %1</translation>
    </message>
    <message>
        <source>Deletion of %1 rows</source>
        <translation>Löschen von %1 Zeilen</translation>
    </message>
    <message>
        <source>Moving up of row %1</source>
        <translation>Verschieben der Zeile %1 nach oben</translation>
    </message>
    <message>
        <source>Moving down of row %1</source>
        <translation>Verschieben der Zeile %1 nach unten</translation>
    </message>
    <message>
        <source>Pasting into row %1</source>
        <translation>Einfügen in Zeile %1</translation>
    </message>
    <message>
        <source>Pasting into %1 rows</source>
        <translation>Einfügen in %1 Zeilen</translation>
    </message>
    <message>
        <source>Duplicate of row %1</source>
        <translation>Duplikat der Zeile %1</translation>
    </message>
    <message>
        <source>Duplicates of %1 rows</source>
        <translation>Duplikate von %1 Zeilen</translation>
    </message>
</context>
<context>
    <name>RowDescription</name>
    <message>
        <source>Upper</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Lower</source>
        <translation>Unten</translation>
    </message>
</context>
<context>
    <name>RowParameters</name>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>"%1" is not a type.</source>
        <translation>„%1“ ist keine Art.</translation>
    </message>
    <message>
        <source>There is no parameter "%1".</source>
        <translation>Es gibt keinen Parameter „%1“.</translation>
    </message>
</context>
<context>
    <name>RowTable</name>
    <message>
        <source>&quot;%1&quot; is too large</source>
        <translation>„%1“ ist zu groß</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too small</source>
        <translation>„%1“ ist zu klein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has two decimal separators</source>
        <translation>„%1“ hat zwei Dezimaltrennzeichen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number</source>
        <translation>„%1“ ist keine Zahl</translation>
    </message>
    <message>
        <source>There are no rows below the column headers.</source>
        <translation>Unter den Spaltenköpfen steht keine Zeile.</translation>
    </message>
    <message>
        <source>Row %1: &quot;%2&quot; is not a column header.</source>
        <translation>Zeile %1: „%2“ ist kein Spaltenkopf.</translation>
    </message>
    <message>
        <source>Row %1: there are two columns &quot;%2&quot;.</source>
        <translation>Zeile %1: Die Spalte „%2“ ist doppelt.</translation>
    </message>
    <message>
        <source>Row %1, %2: %3.</source>
        <translation>Zeile %1, %2: %3.</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no column header</source>
        <translation>„%1“ hat keinen Spaltenkopf</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a type</source>
        <translation>„%1“ ist keine Art</translation>
    </message>
    <message>
        <source>Row %1, %2: the minimum is greater than the maximum.</source>
        <translation>Zeile %1, %2: Der Wert ist größer als die Höchstbewehrung.</translation>
    </message>
    <message>
        <source>%1 rows are copied and %2 are selected. Select as many rows as are copied, or copy a single row.</source>
        <translation>%1 Zeilen sind kopiert und %2 ausgewählt. Bitte so viele Zeilen auswählen, wie kopiert sind, oder eine einzelne Zeile kopieren.</translation>
    </message>
</context>
<context>
    <name>plib::PictureWarning</name>
    <message>
        <source>Many Pictures</source>
        <translation>Viele Bilder</translation>
    </message>
    <message>
        <source>This click adds %1 pictures to the script. Do you want to continue?</source>
        <translation>Dieser Klick fügt dem Skript %1 Bilder hinzu. Fortfahren?</translation>
    </message>
</context>
<context>
    <name>plib::CountsLine</name>
    <message>
        <source>No plot is checked, so there is no script.</source>
        <translation>Es ist keine Grafik angekreuzt, daher gibt es kein Skript.</translation>
    </message>
    <message>
        <source>Plots: %1, pictures: %2, sheets: %3, script lines: %4</source>
        <translation>Grafiken: %1, Bilder: %2, Blätter: %3, Skriptzeilen: %4</translation>
    </message>
</context>
<context>
    <name>plib::PageStepName</name>
    <message>
        <source>Font Size</source>
        <translation>Schriftgröße</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot;</source>
        <translation>%1 „%2“</translation>
    </message>
    <message>
        <source>Uncheck &quot;%1&quot;</source>
        <translation>Häkchen von „%1“ entfernen</translation>
    </message>
    <message>
        <source>Check &quot;%1&quot;</source>
        <translation>„%1“ ankreuzen</translation>
    </message>
</context>
<context>
    <name>plib::StepStack</name>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
</context>
<context>
    <name>plib::RowsClipboard</name>
    <message>
        <source>&amp;Copy Rows</source>
        <translation>Zeilen &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Paste as &amp;New Rows</source>
        <translation>Als &amp;neue Zeilen einfügen</translation>
    </message>
    <message>
        <source>&amp;Duplicate Rows</source>
        <translation>Zeilen &amp;duplizieren</translation>
    </message>
    <message>
        <source>The clipboard contains no rows of design parameters. A table must have the column headers of copied rows.</source>
        <translation>Die Zwischenablage enthält keine Zeilen mit Bemessungsparametern. Eine Tabelle braucht die Spaltenköpfe, die kopierte Zeilen haben.</translation>
    </message>
    <message>
        <source>Nothing was pasted.</source>
        <translation>Es wurde nichts eingefügt.</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 weitere</translation>
    </message>
</context>
<context>
    <name>RowTitle</name>
    <message>
        <source>remaining groups</source>
        <translation>übrige Gruppen</translation>
    </message>
    <message>
        <source>no groups</source>
        <translation>keine Gruppen</translation>
    </message>
    <message>
        <source>groups %1</source>
        <translation>Gruppen %1</translation>
    </message>
    <message>
        <source>%1 and remaining groups</source>
        <translation>%1 und übrige Gruppen</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Rows %1: %2</source>
        <translation>Zeilen %1: %2</translation>
    </message>
    <message>
        <source>group %1</source>
        <translation>Gruppe %1</translation>
    </message>
</context>
<context>
    <name>CommonRecord</name>
    <message>
        <source>not set</source>
        <translation>nicht gesetzt</translation>
    </message>
</context>
<context>
    <name>plib::CommonFields</name>
    <message>
        <source>several</source>
        <translation>mehrere</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>nicht gesetzt</translation>
    </message>
    <message>
        <source>Different values: %1</source>
        <translation>Verschiedene Werte: %1</translation>
    </message>
    <message>
        <source>An empty field leaves them unchanged. The Delete key in the empty field removes the value from all rows.</source>
        <translation>Ein leeres Feld lässt sie unverändert. Die Entf-Taste im leeren Feld entfernt den Wert aus allen Zeilen.</translation>
    </message>
    <message>
        <source>Row %1: the minimum would be %2 and the maximum %3.</source>
        <translation>Zeile %1: Die Mindestbewehrung wäre %2, die Höchstbewehrung %3.</translation>
    </message>
</context>
<context>
    <name>plib::RowStrip</name>
    <message>
        <source>OK and continue with the previous row (%1)</source>
        <translation>OK und weiter mit der vorigen Zeile (%1)</translation>
    </message>
    <message>
        <source>OK and continue with the next row (%1)</source>
        <translation>OK und weiter mit der nächsten Zeile (%1)</translation>
    </message>
</context>
<context>
    <name>plib::TypeEditor</name>
    <message>
        <source>several</source>
        <translation>mehrere</translation>
    </message>
</context>
<context>
    <name>plib::RowEditing</name>
    <message>
        <source>A row without design has no parameters.</source>
        <translation>Eine Zeile ohne Bemessung hat keine Parameter.</translation>
    </message>
</context>
<context>
    <name>plib::RowActions</name>
    <message>
        <source>&amp;Type</source>
        <translation>&amp;Art</translation>
    </message>
    <message>
        <source>Direction and Di&amp;stance...</source>
        <translation>Richtung und Ab&amp;stand ...</translation>
    </message>
    <message>
        <source>Rein&amp;forcement...</source>
        <translation>&amp;Bewehrung ...</translation>
    </message>
    <message>
        <source>Crack C&amp;ontrol...</source>
        <translation>Be&amp;grenzung der Rissbreite ...</translation>
    </message>
</context>
<context>
    <name>GroupsNotice</name>
    <message>
        <source>Groups also in row %1: %2.</source>
        <translation>Gruppen auch in Zeile %1: %2.</translation>
    </message>
    <message>
        <source>Removed from row %1: %2 (see Undo).</source>
        <translation>Aus Zeile %1 entfernt: %2 (siehe Rückgängig).</translation>
    </message>
</context>
<context>
    <name>plib::GroupsEntry</name>
    <message>
        <source>Unknown groups: %1.</source>
        <translation>Unbekannte Gruppen: %1.</translation>
    </message>
    <message>
        <source>The remaining groups belong to another row.</source>
        <translation>Die übrigen Gruppen gehören zu einer anderen Zeile.</translation>
    </message>
    <message>
        <source>The groups of the first row cannot be changed.</source>
        <translation>Die Gruppen der ersten Zeile sind unveränderlich.</translation>
    </message>
    <message>
        <source>%1 Row %2 keeps its groups.</source>
        <translation>%1 Zeile %2 behält ihre Gruppen.</translation>
    </message>
</context>
<context>
    <name>plib::GroupsLine</name>
    <message>
        <source>Groups of the row</source>
        <translation>Gruppen der Zeile</translation>
    </message>
    <message>
        <source>e.g. 1-4, 7</source>
        <translation>z. B. 1-4, 7</translation>
    </message>
</context>
<context>
    <name>plib::RowToolTip</name>
    <message>
        <source>A row without design shows its values once it has another type.</source>
        <translation>Eine Zeile ohne Bemessung zeigt ihre Werte erst mit einer anderen Art.</translation>
    </message>
</context>
<context>
    <name>RowRefusals</name>
    <message>
        <source>The first row can be neither moved nor deleted.</source>
        <translation>Die erste Zeile lässt sich weder verschieben noch löschen.</translation>
    </message>
    <message>
        <source>This is the last row.</source>
        <translation>Dies ist die letzte Zeile.</translation>
    </message>
    <message>
        <source>No row is selected.</source>
        <translation>Keine Zeile ist ausgewählt.</translation>
    </message>
    <message>
        <source>The first row stays first.</source>
        <translation>Die erste Zeile bleibt die erste.</translation>
    </message>
    <message>
        <source>The rows above have no design.</source>
        <translation>Die Zeilen darüber haben keine Bemessung.</translation>
    </message>
    <message>
        <source>The rows below have no design.</source>
        <translation>Die Zeilen darunter haben keine Bemessung.</translation>
    </message>
    <message>
        <source>This is the first row.</source>
        <translation>Dies ist die erste Zeile.</translation>
    </message>
</context>
<context>
    <name>plib::SameValue</name>
    <message>
        <source>Same Everywhere</source>
        <translation>Überall gleich</translation>
    </message>
    <message>
        <source>Uses the value of the current field on both sides, and for bars, limits and crack control in all layers (%1)</source>
        <translation>Verwendet den Wert des aktuellen Felds auf beiden Seiten, bei Stäben, Grenzwerten und Rissbreite auch in allen Lagen (%1)</translation>
    </message>
    <message>
        <source>Choose a field first.</source>
        <translation>Zuerst ein Feld wählen.</translation>
    </message>
    <message>
        <source>The field has no value.</source>
        <translation>Das Feld hat keinen Wert.</translation>
    </message>
    <message>
        <source>There is no other field of this kind.</source>
        <translation>Es gibt kein weiteres Feld dieser Art.</translation>
    </message>
    <message>
        <source>Set in the other field.</source>
        <translation>Im anderen Feld gesetzt.</translation>
    </message>
    <message>
        <source>Set in %1 other fields.</source>
        <translation>In %1 weiteren Feldern gesetzt.</translation>
    </message>
</context>
</TS>
