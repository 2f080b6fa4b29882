<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>chooseFileToSave</name>
    <message>
        <source>The project %1 is open.
Choose another name.</source>
        <translation>Das Projekt %1 ist geöffnet.
Bitte einen anderen Namen wählen.</translation>
    </message>
</context>
<context>
    <name>askAboutNewer</name>
    <message>
        <source>Workbench</source>
        <translation>Workbench</translation>
    </message>
    <message>
        <source>Another program has changed this data in the project since the dialog was opened.
Overwrite replaces it with your entries. Reload discards your entries and shows the data in the project.</source>
        <translation>Ein anderes Programm hat diese Daten im Projekt geändert, seit der Dialog geöffnet wurde.
„Überschreiben“ ersetzt sie durch die eigenen Eingaben. „Neu laden“ verwirft die eigenen Eingaben und zeigt die Daten im Projekt.</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>Ü&amp;berschreiben</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>Neu &amp;laden</translation>
    </message>
    <message>
        <source>&amp;Go Back</source>
        <translation>&amp;Zurück</translation>
    </message>
</context>
<context>
    <name>storeErrorText</name>
    <message>
        <source>It is a folder.</source>
        <translation>Sie ist ein Ordner.</translation>
    </message>
    <message>
        <source>Its folder does not exist.</source>
        <translation>Ihr Ordner ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>It does not exist.</source>
        <translation>Sie ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>You do not have permission to read it.</source>
        <translation>Sie darf nicht gelesen werden.</translation>
    </message>
    <message>
        <source>It is not a project file.</source>
        <translation>Sie ist keine Projektdatei.</translation>
    </message>
    <message>
        <source>It was written by a newer version of the programs.</source>
        <translation>Sie wurde von einer neueren Version der Programme geschrieben.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Sie ist beschädigt.</translation>
    </message>
    <message>
        <source>It or its folder is write-protected.</source>
        <translation>Sie oder ihr Ordner ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>There is no space left on the disk.</source>
        <translation>Auf dem Datenträger ist kein Platz mehr.</translation>
    </message>
    <message>
        <source>Another program is writing to it.</source>
        <translation>Ein anderes Programm schreibt gerade hinein.</translation>
    </message>
    <message>
        <source>The system cannot read or write it.</source>
        <translation>Das System kann sie nicht lesen oder schreiben.</translation>
    </message>
    <message>
        <source>It was replaced by another file while it was open.</source>
        <translation>Sie wurde durch eine andere Datei ersetzt, während sie geöffnet war.</translation>
    </message>
    <message>
        <source>It was deleted or moved while it was open.</source>
        <translation>Sie wurde gelöscht oder verschoben, während sie geöffnet war.</translation>
    </message>
</context>
<context>
    <name>workbench::ChangeBar</name>
    <message>
        <source>Another program has changed the project.</source>
        <translation>Ein anderes Programm hat das Projekt geändert.</translation>
    </message>
    <message>
        <source>The project file was deleted or moved. The open project can still be saved under another name.</source>
        <translation>Die Projektdatei wurde gelöscht oder verschoben. Das geöffnete Projekt kann noch unter einem anderen Namen gespeichert werden.</translation>
    </message>
    <message>
        <source>The project file was replaced by another file. The open project can still be saved under another name.</source>
        <translation>Die Projektdatei wurde durch eine andere Datei ersetzt. Das geöffnete Projekt kann noch unter einem anderen Namen gespeichert werden.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Another program has changed the design parameters. Your unsaved rows are preserved; Apply asks for confirmation before it overwrites the newer rows.</source>
        <translation>Ein anderes Programm hat die Bemessungsparameter geändert. Die eigenen ungespeicherten Zeilen bleiben erhalten; Übernehmen fragt nach, bevor es die neueren überschreibt.</translation>
    </message>
</context>
<context>
    <name>workbench::CombinationTable</name>
    <message>
        <source>Fundamental, other</source>
        <translation>Grundkombination, sonstige</translation>
    </message>
    <message>
        <source>Accidental</source>
        <translation>Außergewöhnlich</translation>
    </message>
    <message>
        <source>Fire</source>
        <translation>Brand</translation>
    </message>
    <message>
        <source>Earthquake</source>
        <translation>Erdbeben</translation>
    </message>
    <message>
        <source>Characteristic</source>
        <translation>Charakteristisch</translation>
    </message>
    <message>
        <source>Frequent</source>
        <translation>Häufig</translation>
    </message>
    <message>
        <source>Quasi-permanent</source>
        <translation>Quasi-ständig</translation>
    </message>
    <message>
        <source>Non-frequent</source>
        <translation>Nicht-häufig</translation>
    </message>
    <message>
        <source>Kind of combination</source>
        <translation>Art der Kombination</translation>
    </message>
    <message>
        <source>Kind of combination %1</source>
        <translation>Art der Kombination %1</translation>
    </message>
</context>
<context>
    <name>workbench::DesignPage</name>
    <message>
        <source>Design Parameters</source>
        <translation>Bemessungsparameter</translation>
    </message>
    <message>
        <source>“Remaining Groups”</source>
        <translation>„Übrige Gruppen“</translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation>Gruppe %1</translation>
    </message>
    <message>
        <source>%1 is in rows %2 and %3; two records would be stored.</source>
        <translation>%1 steht in den Zeilen %2 und %3; es würden zwei Datensätze gespeichert.</translation>
    </message>
    <message>
        <source>%1 is in rows %2 and %3; %4 records would be stored.</source>
        <translation>%1 steht in den Zeilen %2 und %3; es würden %4 Datensätze gespeichert.</translation>
    </message>
    <message>
        <source>%1 more groups are in several rows.</source>
        <translation>%1 weitere Gruppen stehen in mehreren Zeilen.</translation>
    </message>
    <message>
        <source>&amp;Store All the Same</source>
        <translation>Trotzdem &amp;speichern</translation>
    </message>
    <message>
        <source>&amp;Go Back</source>
        <translation>&amp;Zurück</translation>
    </message>
</context>
<context>
    <name>workbench::ExtentFields</name>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Loads</source>
        <translation>Lasten</translation>
    </message>
    <message>
        <source>Displacements</source>
        <translation>Verschiebungen</translation>
    </message>
    <message>
        <source>Internal forces</source>
        <translation>Schnittgrößen</translation>
    </message>
    <message>
        <source>Support reactions</source>
        <translation>Auflagerkräfte</translation>
    </message>
    <message>
        <source>&amp;Result values:</source>
        <translation>&amp;Ergebniswerte:</translation>
    </message>
    <message>
        <source>Result values</source>
        <translation>Ergebniswerte</translation>
    </message>
    <message>
        <source>All nodes and elements</source>
        <translation>Alle Knoten und Elemente</translation>
    </message>
    <message>
        <source>Extreme values</source>
        <translation>Extremwerte</translation>
    </message>
</context>
<context>
    <name>workbench::GroupList</name>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Groups of the model. The group under the mouse pointer is highlighted in the view.</source>
        <translation>Gruppen des Modells. Die Gruppe unter dem Mauszeiger leuchtet in der Ansicht auf.</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
</context>
<context>
    <name>workbench::LoadCaseTable</name>
    <message>
        <source>Load cases</source>
        <translation>Lastfälle</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Number of the load case</source>
        <translation>Nummer des Lastfalls</translation>
    </message>
    <message>
        <source>Offer</source>
        <translation>Anbieten</translation>
    </message>
    <message>
        <source>Whether the load case is offered for the plots</source>
        <translation>Ob der Lastfall bei den Grafiken angeboten wird</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>Title of the load case</source>
        <translation>Bezeichnung des Lastfalls</translation>
    </message>
</context>
<context>
    <name>workbench::MainWindow</name>
    <message>
        <source>Workbench</source>
        <translation>Workbench</translation>
    </message>
    <message>
        <source>No project</source>
        <translation>Kein Projekt</translation>
    </message>
    <message>
        <source>Groups: %1, load cases: %2</source>
        <translation>Gruppen: %1, Lastfälle: %2</translation>
    </message>
    <message>
        <source>The language is now English.</source>
        <translation>Die Sprache ist jetzt Deutsch.</translation>
    </message>
</context>
<context>
    <name>LoadCaseKinds</name>
    <message>
        <source>Prestress</source>
        <translation>Vorspannung</translation>
    </message>
    <message>
        <source>Permanent loads</source>
        <translation>Ständige Lasten</translation>
    </message>
    <message>
        <source>Snow</source>
        <translation>Schnee</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>Wind</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Cranes</source>
        <translation>Kranlasten</translation>
    </message>
    <message>
        <source>Live loads</source>
        <translation>Nutzlasten</translation>
    </message>
    <message>
        <source>Other loads</source>
        <translation>Sonstige Lasten</translation>
    </message>
</context>
<context>
    <name>workbench::ChoiceBar</name>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Checks all rows that are shown</source>
        <translation>Kreuzt alle angezeigten Zeilen an</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Unchecks all rows that are shown</source>
        <translation>Entfernt das Häkchen aller angezeigten Zeilen</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Umkehren</translation>
    </message>
    <message>
        <source>Checks the unchecked rows that are shown, and unchecks the others</source>
        <translation>Kreuzt die angezeigten Zeilen ohne Häkchen an und entfernt das Häkchen der anderen</translation>
    </message>
    <message>
        <source>Only These</source>
        <translation>Nur diese</translation>
    </message>
    <message>
        <source>Checks the rows that are shown, and unchecks all others (Return)</source>
        <translation>Kreuzt die angezeigten Zeilen an und entfernt das Häkchen aller anderen (Eingabetaste)</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Checks only the rows of one kind</source>
        <translation>Kreuzt nur die Zeilen einer Art an</translation>
    </message>
    <message>
        <source>1-20, 101 or words</source>
        <translation>1-20, 101 oder Wörter</translation>
    </message>
    <message>
        <source>Filter for numbers and titles</source>
        <translation>Filter für Nummern und Bezeichnungen</translation>
    </message>
    <message>
        <source>Shows the rows with these numbers, in these ranges or with these words in the title. Return checks exactly these rows.</source>
        <translation>Zeigt die Zeilen mit diesen Nummern, in diesen Bereichen oder mit diesen Wörtern in der Bezeichnung. Die Eingabetaste kreuzt genau diese Zeilen an.</translation>
    </message>
    <message>
        <source>Shown: %1 of %2</source>
        <translation>Angezeigt: %1 von %2</translation>
    </message>
</context>
<context>
    <name>workbench::OutputOffers</name>
    <message>
        <source>Default Settings</source>
        <translation>Voreinstellungen</translation>
    </message>
    <message>
        <source>Load cases</source>
        <translation>Lastfälle</translation>
    </message>
    <message>
        <source>The plots offer the load cases that are checked here. The plots that you have checked stay checked.</source>
        <translation>Bei den Grafiken werden die hier angekreuzten Lastfälle angeboten. Die angekreuzten Grafiken bleiben angekreuzt.</translation>
    </message>
    <message>
        <source>Plots that suit the model</source>
        <translation>Zum Modell passende Grafiken</translation>
    </message>
    <message>
        <source>Also plots of bricks</source>
        <translation>Auch Grafiken von Volumenelementen</translation>
    </message>
    <message>
        <source>Offered plots</source>
        <translation>Angebotene Grafiken</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Offered Load Cases</source>
        <translation>Angebotene Lastfälle</translation>
    </message>
    <message>
        <source>Offer Load Case %1</source>
        <translation>Lastfall %1 anbieten</translation>
    </message>
    <message>
        <source>Leave Out Load Case %1</source>
        <translation>Lastfall %1 weglassen</translation>
    </message>
</context>
<context>
    <name>workbench::OutputDock</name>
    <message>
        <source>Graphical Output</source>
        <translation>Grafische Ausgabe</translation>
    </message>
</context>
<context>
    <name>workbench::OutputDialog</name>
    <message>
        <source>&amp;Apply</source>
        <translation>Ü&amp;bernehmen</translation>
    </message>
    <message>
        <source>Stores the choice of plots in the project file (Ctrl+S)</source>
        <translation>Speichert die Auswahl der Grafiken in der Projektdatei (Strg+S)</translation>
    </message>
    <message>
        <source>Dis&amp;card</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>Restores the choice of plots from the project file</source>
        <translation>Stellt die Auswahl der Grafiken aus der Projektdatei wieder her</translation>
    </message>
    <message>
        <source>Choose “User defined” to turn the model.</source>
        <translation>Zum Drehen des Modells „Benutzerdefiniert“ wählen.</translation>
    </message>
    <message>
        <source>A landscape page has one picture.</source>
        <translation>Eine Seite im Querformat hat ein Bild.</translation>
    </message>
    <message>
        <source>Plots</source>
        <translation>Grafiken</translation>
    </message>
</context>
<context>
    <name>workbench::PickBanner</name>
    <message>
        <source>&amp;Done</source>
        <translation>Ferti&amp;g</translation>
    </message>
    <message>
        <source>Row %1: click groups to add or remove them.</source>
        <translation>Zeile %1: Gruppen durch Anklicken hinzufügen oder entfernen.</translation>
    </message>
    <message>
        <source>Select the row whose groups are to be picked.</source>
        <translation>Zuerst die Zeile auswählen, deren Gruppen gewählt werden sollen.</translation>
    </message>
    <message>
        <source>The groups of row 1 cannot be changed.</source>
        <translation>Die Gruppen der Zeile 1 sind nicht änderbar.</translation>
    </message>
    <message>
        <source>No row is selected.</source>
        <translation>Keine Zeile ist ausgewählt.</translation>
    </message>
    <message>
        <source>The row has no groups yet.</source>
        <translation>Die Zeile hat noch keine Gruppen.</translation>
    </message>
    <message>
        <source>Groups: %1</source>
        <translation>Gruppen: %1</translation>
    </message>
    <message>
        <source>Groups: %1. Without area elements: %2</source>
        <translation>Gruppen: %1. Ohne Flächenelemente: %2</translation>
    </message>
</context>
<context>
    <name>workbench::PickTable</name>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Bezeichnung</translation>
    </message>
</context>
<context>
    <name>workbench::OutputsPane</name>
    <message>
        <source>Not yet saved in the project</source>
        <translation>Noch nicht im Projekt gespeichert</translation>
    </message>
    <message>
        <source>Checked plots that this model lacks: %1. They are kept.</source>
        <translation>Angekreuzte Grafiken, die es in diesem Modell nicht gibt: %1. Sie bleiben erhalten.</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Ausgaben</translation>
    </message>
    <message>
        <source>&amp;Outputs</source>
        <translation>&amp;Ausgaben</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>&amp;New Output</source>
        <translation>&amp;Neue Ausgabe</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Adds an output without plots, with the settings of the current one</source>
        <translation>Fügt eine Ausgabe ohne Grafiken mit den Einstellungen der aktuellen hinzu</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>Adds a copy of the current output</source>
        <translation>Fügt eine Kopie der aktuellen Ausgabe hinzu</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>D&amp;elete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Move Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Nach un&amp;ten</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Vorherige</translation>
    </message>
    <message>
        <source>Ne&amp;xt</source>
        <translation>Nä&amp;chste</translation>
    </message>
    <message>
        <source>Copy &amp;from Project...</source>
        <translation>Aus &amp;Projekt kopieren ...</translation>
    </message>
    <message>
        <source>&amp;Save All Scripts...</source>
        <translation>Alle &amp;Skripte speichern ...</translation>
    </message>
    <message>
        <source>Expor&amp;t All Sheets...</source>
        <translation>Alle &amp;Blätter exportieren ...</translation>
    </message>
</context>
<context>
    <name>workbench::CopyOutputsDialog</name>
    <message>
        <source>Copy from Project</source>
        <translation>Aus Projekt kopieren</translation>
    </message>
    <message>
        <source>&amp;Outputs to copy:</source>
        <translation>&amp;Zu kopierende Ausgaben:</translation>
    </message>
</context>
<context>
    <name>workbench::WholeFiles</name>
    <message>
        <source>it is not a file</source>
        <translation>Das ist keine Datei.</translation>
    </message>
    <message>
        <source>the existing file cannot be backed up</source>
        <translation>Die vorhandene Datei kann nicht gesichert werden.</translation>
    </message>
</context>
<context>
    <name>workbench::OutputFiles</name>
    <message>
        <source>Already replaced:</source>
        <translation>Bereits ersetzt:</translation>
    </message>
    <message>
        <source>Outputs without plots: %1</source>
        <translation>Ausgaben ohne Grafiken: %1</translation>
    </message>
    <message>
        <source>These files already exist:</source>
        <translation>Diese Dateien gibt es schon:</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The scripts are being generated.</source>
        <translation>Die Skripte werden erzeugt.</translation>
    </message>
    <message>
        <source>Save All Scripts</source>
        <translation>Alle Skripte speichern</translation>
    </message>
    <message>
        <source>Scripts saved in %1: %2</source>
        <translation>In %1 gespeicherte Skripte: %2</translation>
    </message>
    <message>
        <source>Export All Sheets</source>
        <translation>Alle Blätter exportieren</translation>
    </message>
    <message>
        <source>PDF files saved in %1: %2</source>
        <translation>In %1 gespeicherte PDF-Dateien: %2</translation>
    </message>
    <message>
        <source>The sheets are being exported.</source>
        <translation>Die Blätter werden exportiert.</translation>
    </message>
    <message>
        <source>Cancelled. No PDF file was saved.</source>
        <translation>Abgebrochen. Es wurde keine PDF-Datei gespeichert.</translation>
    </message>
    <message>
        <source>Cancelled. PDF files saved in %1: %2</source>
        <translation>Abgebrochen. In %1 gespeicherte PDF-Dateien: %2</translation>
    </message>
    <message>
        <source>Already saved:</source>
        <translation>Bereits gespeichert:</translation>
    </message>
    <message>
        <source>Not saved:</source>
        <translation>Nicht gespeichert:</translation>
    </message>
    <message>
        <source>No script was saved.</source>
        <translation>Es wurde kein Skript gespeichert.</translation>
    </message>
</context>
<context>
    <name>workbench::OutputsHistory</name>
    <message>
        <source>New Output &quot;%1&quot;</source>
        <translation>Neue Ausgabe „%1“</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>„%1“ duplizieren</translation>
    </message>
    <message>
        <source>Rename &quot;%1&quot;</source>
        <translation>„%1“ umbenennen</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>„%1“ löschen</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>„%1“ verschieben</translation>
    </message>
    <message>
        <source>Copy from &quot;%1&quot;</source>
        <translation>Aus „%1“ kopieren</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Red&amp;o %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>Red&amp;o</source>
        <translation>&amp;Wiederholen</translation>
    </message>
</context>
<context>
    <name>workbench::OutputCommands</name>
    <message>
        <source>The output &quot;%1&quot; has been deleted. Undo restores it.</source>
        <translation>Die Ausgabe „%1“ wurde gelöscht. „Rückgängig“ stellt sie wieder her.</translation>
    </message>
    <message>
        <source>Copy from Project</source>
        <translation>Aus Projekt kopieren</translation>
    </message>
    <message>
        <source>Projects (*.zob)</source>
        <translation>Projekte (*.zob)</translation>
    </message>
    <message>
        <source>This project is already open. Use Duplicate to copy one of its outputs.</source>
        <translation>Dieses Projekt ist bereits geöffnet. „Duplizieren“ kopiert eine seiner Ausgaben.</translation>
    </message>
    <message>
        <source>The project is being opened.</source>
        <translation>Das Projekt wird geöffnet.</translation>
    </message>
    <message>
        <source>The file %1 cannot be opened.</source>
        <translation>Die Datei %1 kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Outputs copied: %1</source>
        <translation>Kopierte Ausgaben: %1</translation>
    </message>
</context>
<context>
    <name>presetJson</name>
    <message>
        <source>The JSON is invalid at byte %1: %2.</source>
        <translation>Das JSON ist ab Byte %1 ungültig: %2.</translation>
    </message>
    <message>
        <source>It does not contain design presets.</source>
        <translation>Sie enthält keine Vorlagen für die Bemessung.</translation>
    </message>
    <message>
        <source>It was written by a newer version of this program: version %1 of the format, and this program reads up to version %2.</source>
        <translation>Sie stammt aus einer neueren Version dieses Programms: Formatversion %1; dieses Programm liest bis Version %2.</translation>
    </message>
    <message>
        <source>The field "%1" is unknown.</source>
        <translation>Das Feld „%1“ ist unbekannt.</translation>
    </message>
    <message>
        <source>The field "%1" is missing.</source>
        <translation>Das Feld „%1“ fehlt.</translation>
    </message>
    <message>
        <source>Preset %1 needs a name of at most %2 characters.</source>
        <translation>Vorlage %1 braucht einen Namen mit höchstens %2 Zeichen.</translation>
    </message>
    <message>
        <source>There are two presets "%1".</source>
        <translation>Die Vorlage „%1“ ist doppelt.</translation>
    </message>
    <message>
        <source>"%1": the value of "%2" is not a number.</source>
        <translation>„%1“: Der Wert von „%2“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>"%1" has no parameters.</source>
        <translation>„%1“ enthält keine Parameter.</translation>
    </message>
    <message>
        <source>It does not contain presets of plots.</source>
        <translation>Sie enthält keine Vorlagen für Grafiken.</translation>
    </message>
    <message>
        <source>"%1" has no plots.</source>
        <translation>„%1“ enthält keine Grafiken.</translation>
    </message>
    <message>
        <source>"%1": the captions of "%2" are not a list of strings.</source>
        <translation>„%1“: Die Titel von „%2“ sind keine Liste von Texten.</translation>
    </message>
</context>
<context>
    <name>presetPlaces</name>
    <message>
        <source>The supplied presets are missing.</source>
        <translation>Die mitgelieferten Vorlagen fehlen.</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>Sie ist zu groß.</translation>
    </message>
    <message>
        <source>Supplied presets cannot be changed.</source>
        <translation>Mitgelieferte Vorlagen können nicht geändert werden.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>workbench::DesignPresetsDialog</name>
    <message>
        <source>&amp;From Row...</source>
        <translation>Aus &amp;Zeile ...</translation>
    </message>
    <message>
        <source>Parts to apply</source>
        <translation>Anzuwendende Teile</translation>
    </message>
    <message>
        <source>Applies the checked parts to the selected row.</source>
        <translation>Setzt die angekreuzten Teile in der ausgewählten Zeile.</translation>
    </message>
    <message>
        <source>Applies the checked parts to %1 selected rows.</source>
        <translation>Setzt die angekreuzten Teile in %1 ausgewählten Zeilen.</translation>
    </message>
    <message>
        <source>Preset from Row</source>
        <translation>Vorlage aus Zeile</translation>
    </message>
</context>
<context>
    <name>workbench::PlotPresetsDialog</name>
    <message>
        <source>&amp;Keep the plots that are already checked</source>
        <translation>Bereits angekreuzte Grafiken &amp;behalten</translation>
    </message>
    <message>
        <source>&amp;From Choice...</source>
        <translation>Aus Aus&amp;wahl ...</translation>
    </message>
    <message>
        <source>Plots: %1</source>
        <translation>Grafiken: %1</translation>
    </message>
    <message>
        <source>Plots that are not offered here: %1</source>
        <translation>Hier nicht angebotene Grafiken: %1</translation>
    </message>
    <message>
        <source>Saves the checked plots without their load cases.</source>
        <translation>Speichert die angekreuzten Grafiken ohne ihre Lastfälle.</translation>
    </message>
    <message>
        <source>Preset from Choice</source>
        <translation>Vorlage aus Auswahl</translation>
    </message>
    <message>
        <source>This preset adds %1 pictures to the script. Do you want to continue?</source>
        <translation>Diese Vorlage fügt dem Skript %1 Bilder hinzu. Fortfahren?</translation>
    </message>
</context>
<context>
    <name>workbench::PresetForm</name>
    <message>
        <source>&amp;Name:</source>
        <translation>Na&amp;me:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Beschreibung:</translation>
    </message>
    <message>
        <source>&amp;Store in:</source>
        <translation>&amp;Speichern in:</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Another preset has this name.</source>
        <translation>Eine andere Vorlage hat diesen Namen.</translation>
    </message>
</context>
<context>
    <name>workbench::PresetPartBoxes</name>
    <message>
        <source>&amp;Type</source>
        <translation>Ar&amp;t</translation>
    </message>
    <message>
        <source>Di&amp;rections</source>
        <translation>&amp;Richtungen</translation>
    </message>
    <message>
        <source>Co&amp;ver</source>
        <translation>Beton&amp;deckung</translation>
    </message>
    <message>
        <source>&amp;Bars</source>
        <translation>Stäb&amp;e</translation>
    </message>
    <message>
        <source>&amp;Limits</source>
        <translation>&amp;Grenzen</translation>
    </message>
    <message>
        <source>Crac&amp;ks</source>
        <translation>R&amp;isse</translation>
    </message>
</context>
<context>
    <name>workbench::PresetsDialog</name>
    <message>
        <source>Pr&amp;esets...</source>
        <translation>&amp;Vorlagen ...</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Vorlagen</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>Re&amp;name...</source>
        <translation>&amp;Umbenennen ...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Behalten</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>I&amp;mportieren ...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>E&amp;xportieren ...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Supplied</source>
        <translation>Mitgeliefert</translation>
    </message>
    <message>
        <source>My presets</source>
        <translation>Meine Vorlagen</translation>
    </message>
    <message>
        <source>Presets of this project</source>
        <translation>Vorlagen dieses Projekts</translation>
    </message>
    <message>
        <source>The presets cannot be stored.</source>
        <translation>Die Vorlagen können nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Preset "%1"</source>
        <translation>Vorlage „%1“</translation>
    </message>
    <message>
        <source>The preset was not applied.</source>
        <translation>Die Vorlage wurde nicht angewendet.</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Vorlage umbenennen</translation>
    </message>
    <message>
        <source>Delete the preset "%1"?</source>
        <translation>Die Vorlage „%1“ löschen?</translation>
    </message>
    <message>
        <source>"%1": %2</source>
        <translation>„%1“: %2</translation>
    </message>
    <message>
        <source>Import Presets</source>
        <translation>Vorlagen importieren</translation>
    </message>
    <message>
        <source>Presets (*.json)</source>
        <translation>Vorlagen (*.json)</translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>Es wurde nichts importiert.</translation>
    </message>
    <message>
        <source>Export Presets</source>
        <translation>Vorlagen exportieren</translation>
    </message>
</context>
<context>
    <name>workbench::RecordTableModel</name>
    <message>
        <source>Record %1</source>
        <translation>Datensatz %1</translation>
    </message>
</context>
<context>
    <name>workbench::RecordsPane</name>
    <message>
        <source>Design records</source>
        <translation>Bemessungsdatensätze</translation>
    </message>
    <message>
        <source>The design records as they are stored in the project file. Each row is a word of four bytes.</source>
        <translation>Die Bemessungsdatensätze, wie sie in der Projektdatei stehen. Jede Zeile ist ein Wort von vier Byte.</translation>
    </message>
</context>
<context>
    <name>workbench::ScriptPane</name>
    <message>
        <source>&amp;Keywords:</source>
        <translation>Schlüssel&amp;wörter:</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Englisch</translation>
    </message>
    <message>
        <source>Language of the keywords</source>
        <translation>Sprache der Schlüsselwörter</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Skript</translation>
    </message>
    <message>
        <source>No plot is checked. Check plots in Graphical Output.</source>
        <translation>Es ist keine Grafik angekreuzt. Grafiken werden in der grafischen Ausgabe angekreuzt.</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Suchen ...</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Finds words in the script (Ctrl+F)</source>
        <translation>Sucht Wörter im Skript (Strg+F)</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>&amp;Nächster Treffer</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>&amp;Voriger Treffer</translation>
    </message>
    <message>
        <source>&amp;Wrap Lines</source>
        <translation>&amp;Zeilen umbrechen</translation>
    </message>
    <message>
        <source>Wrap</source>
        <translation>Umbruch</translation>
    </message>
    <message>
        <source>Wraps long lines to the width of the panel</source>
        <translation>Bricht lange Zeilen auf die Breite des Bereichs um</translation>
    </message>
</context>
<context>
    <name>workbench::ScriptView</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
</context>
<context>
    <name>workbench::ContentsList</name>
    <message>
        <source>Nothing is printed.</source>
        <translation>Es wird nichts ausgegeben.</translation>
    </message>
</context>
<context>
    <name>workbench::ContentsPreview</name>
    <message>
        <source>Table of contents</source>
        <translation>Inhaltsverzeichnis</translation>
    </message>
    <message>
        <source>Co&amp;py</source>
        <translation>Ko&amp;pieren</translation>
    </message>
    <message>
        <source>Copies the table of contents as text</source>
        <translation>Kopiert das Inhaltsverzeichnis als Text</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>E&amp;xportieren ...</translation>
    </message>
    <message>
        <source>Saves the table of contents as a text file</source>
        <translation>Speichert das Inhaltsverzeichnis als Textdatei</translation>
    </message>
    <message>
        <source>Each list, and below it the load cases and combinations for which it is printed.</source>
        <translation>Jede Liste und darunter die Lastfälle und Kombinationen, für die sie ausgegeben wird.</translation>
    </message>
</context>
<context>
    <name>workbench::PrintedContents</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Printed lists: none</source>
        <translation>Ausgegebene Listen: keine</translation>
    </message>
    <message>
        <source>Printed lists: %1</source>
        <translation>Ausgegebene Listen: %1</translation>
    </message>
    <message>
        <source>%1. Result values: %2</source>
        <translation>%1. Ergebniswerte: %2</translation>
    </message>
    <message>
        <source>Printed load cases: none, as neither loads nor results are printed</source>
        <translation>Ausgegebene Lastfälle: keine, da weder Lasten noch Ergebnisse ausgegeben werden</translation>
    </message>
    <message>
        <source>Printed load cases: none</source>
        <translation>Ausgegebene Lastfälle: keine</translation>
    </message>
    <message>
        <source>Printed load cases (%1 of %2): %3</source>
        <translation>Ausgegebene Lastfälle (%1 von %2): %3</translation>
    </message>
    <message>
        <source>Printed combinations: none, as no results are printed</source>
        <translation>Ausgegebene Kombinationen: keine, da keine Ergebnisse ausgegeben werden</translation>
    </message>
    <message>
        <source>Printed combinations: none</source>
        <translation>Ausgegebene Kombinationen: keine</translation>
    </message>
    <message>
        <source>Printed combinations (%1 of %2): %3</source>
        <translation>Ausgegebene Kombinationen (%1 von %2): %3</translation>
    </message>
</context>
<context>
    <name>workbench::TextOutputDialog</name>
    <message>
        <source>Text Output</source>
        <translation>Textausgabe</translation>
    </message>
    <message>
        <source>Extent of the text output</source>
        <translation>Umfang der Textausgabe</translation>
    </message>
    <message>
        <source>Determines which lists are printed. Manually controlled: those that are checked here.</source>
        <translation>Legt fest, welche Listen ausgegeben werden. Manuell gesteuert: die hier angekreuzten.</translation>
    </message>
    <message>
        <source>Load cases in the text output</source>
        <translation>Lastfälle in der Textausgabe</translation>
    </message>
    <message>
        <source>Determines the load cases for which loads and results are printed. Manually: those that are checked in the table.</source>
        <translation>Legt fest, für welche Lastfälle Lasten und Ergebnisse ausgegeben werden. Manuell: für die in der Tabelle angekreuzten.</translation>
    </message>
    <message>
        <source>Load cases</source>
        <translation>Lastfälle</translation>
    </message>
    <message>
        <source>Combinations in the text output</source>
        <translation>Kombinationen in der Textausgabe</translation>
    </message>
    <message>
        <source>Determines the combinations for which results are printed: all of one kind, or manually those that are checked in the table. The kinds can be changed while Manually is chosen.</source>
        <translation>Legt fest, für welche Kombinationen Ergebnisse ausgegeben werden: für alle einer Art oder manuell für die in der Tabelle angekreuzten. Die Arten lassen sich ändern, solange Manuell gewählt ist.</translation>
    </message>
    <message>
        <source>Combinations</source>
        <translation>Kombinationen</translation>
    </message>
</context>
<context>
    <name>workbench::SlowWork</name>
    <message>
        <source>Workbench</source>
        <translation>Workbench</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Another program is writing to the file %1.</source>
        <translation>Ein anderes Programm schreibt in die Datei %1.</translation>
    </message>
    <message>
        <source>The project is being saved.</source>
        <translation>Das Projekt wird gespeichert.</translation>
    </message>
</context>
<context>
    <name>workbench::SheetPainter</name>
    <message>
        <source>3D Standard</source>
        <translation>3D-Standard</translation>
    </message>
    <message>
        <source>Plane view</source>
        <translation>Ebene Ansicht</translation>
    </message>
    <message>
        <source>X/Y plane</source>
        <translation>X/Y-Ebene</translation>
    </message>
    <message>
        <source>X/Z plane</source>
        <translation>X/Z-Ebene</translation>
    </message>
    <message>
        <source>Y/Z plane</source>
        <translation>Y/Z-Ebene</translation>
    </message>
    <message>
        <source>User defined</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>View not set</source>
        <translation>Ansicht nicht gesetzt</translation>
    </message>
    <message>
        <source>1:%1</source>
        <translation>1:%1</translation>
    </message>
    <message>
        <source>%1, cut off</source>
        <translation>%1, abgeschnitten</translation>
    </message>
    <message>
        <source>%1, to fit</source>
        <translation>%1, formatfüllend</translation>
    </message>
    <message>
        <source>Load case %1</source>
        <translation>Lastfall %1</translation>
    </message>
    <message>
        <source>Load cases %1 and %2</source>
        <translation>Lastfälle %1 und %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Legende</translation>
    </message>
    <message>
        <source>The project contains no structural model.</source>
        <translation>Das Projekt enthält kein Tragwerksmodell.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Preview without results, which the graphics program draws</source>
        <translation>Vorschau ohne Ergebnisse; diese zeichnet das Grafikprogramm</translation>
    </message>
</context>
<context>
    <name>workbench::SheetPreview</name>
    <message>
        <source>Previous page</source>
        <translation>Vorherige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Pa&amp;ge</source>
        <translation>Sei&amp;te</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Whole page</source>
        <translation>Ganze Seite</translation>
    </message>
    <message>
        <source>Page width</source>
        <translation>Seitenbreite</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>von %1</translation>
    </message>
</context>
<context>
    <name>workbench::SheetView</name>
    <message>
        <source>Sheet</source>
        <translation>Blatt</translation>
    </message>
    <message>
        <source>No plot is checked. Check plots in Graphical Output.</source>
        <translation>Es ist keine Grafik angekreuzt. Grafiken werden in der grafischen Ausgabe angekreuzt.</translation>
    </message>
</context>
<context>
    <name>workbench::WindowActions</name>
    <message>
        <source>Design</source>
        <translation>Bemessung</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>Grafik</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Show &amp;All</source>
        <translation>&amp;Alles zeigen</translation>
    </message>
    <message>
        <source>&amp;3D Standard</source>
        <translation>&amp;3D-Standard</translation>
    </message>
    <message>
        <source>View X/&amp;Y</source>
        <translation>Ansicht X/&amp;Y</translation>
    </message>
    <message>
        <source>View X/&amp;Z</source>
        <translation>Ansicht X/&amp;Z</translation>
    </message>
    <message>
        <source>Vie&amp;w Y/Z</source>
        <translation>Ansic&amp;ht Y/Z</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New from Model</source>
        <translation>&amp;Neu aus Modell</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Project</source>
        <translation>&amp;Projekt</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Symbolleiste</translation>
    </message>
    <message>
        <source>&amp;Model File...</source>
        <translation>&amp;Modelldatei ...</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen ...</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter ...</translation>
    </message>
    <message>
        <source>&amp;Copy Script</source>
        <translation>Skript &amp;kopieren</translation>
    </message>
    <message>
        <source>Save Scr&amp;ipt...</source>
        <translation>Skript sp&amp;eichern ...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Stores all unsaved changes in the project file</source>
        <translation>Speichert alle Änderungen in der Projektdatei</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Graphical Output...</source>
        <translation>&amp;Grafische Ausgabe ...</translation>
    </message>
    <message>
        <source>&amp;German</source>
        <translation>&amp;Deutsch</translation>
    </message>
    <message>
        <source>&amp;English</source>
        <translation>&amp;Englisch</translation>
    </message>
    <message>
        <source>&amp;Design Parameters</source>
        <translation>&amp;Bemessungsparameter</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Über</translation>
    </message>
    <message>
        <source>&amp;Text Output...</source>
        <translation>&amp;Textausgabe ...</translation>
    </message>
    <message>
        <source>&amp;Export Sheets...</source>
        <translation>Blätter e&amp;xportieren ...</translation>
    </message>
    <message>
        <source>&amp;Sheet Preview</source>
        <translation>Blatt&amp;vorschau</translation>
    </message>
    <message>
        <source>&amp;Context Help</source>
        <translation>&amp;Kontexthilfe</translation>
    </message>
    <message>
        <source>&amp;Graphical Output</source>
        <translation>&amp;Grafische Ausgabe</translation>
    </message>
    <message>
        <source>&amp;Text Output</source>
        <translation>&amp;Textausgabe</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>Neu &amp;laden</translation>
    </message>
    <message>
        <source>Close &amp;Project</source>
        <translation>&amp;Projekt schließen</translation>
    </message>
    <message>
        <source>Creates a project from a model file</source>
        <translation>Legt ein Projekt aus einer Modelldatei an</translation>
    </message>
    <message>
        <source>Copies the script to the clipboard</source>
        <translation>Kopiert das Skript in die Zwischenablage</translation>
    </message>
    <message>
        <source>Saves the script in a file</source>
        <translation>Speichert das Skript in einer Datei</translation>
    </message>
    <message>
        <source>Saves all pages in a file</source>
        <translation>Speichert alle Seiten in einer Datei</translation>
    </message>
    <message>
        <source>Export PDF...</source>
        <translation>Als PDF ...</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
</context>
<context>
    <name>workbench::DesignEditor</name>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>Die Datei %1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The design parameters cannot be stored in the file %1.</source>
        <translation>Die Bemessungsparameter können nicht in der Datei %1 gespeichert werden.</translation>
    </message>
    <message>
        <source>The design parameters have been stored in the project file.</source>
        <translation>Die Bemessungsparameter wurden in der Projektdatei gespeichert.</translation>
    </message>
    <message>
        <source>1 row without groups has been saved with the page.</source>
        <translation>1 Zeile ohne Gruppen wurde mit der Seite gespeichert.</translation>
    </message>
    <message>
        <source>%1 rows without groups have been saved with the page.</source>
        <translation>%1 Zeilen ohne Gruppen wurden mit der Seite gespeichert.</translation>
    </message>
    <message>
        <source>Workbench</source>
        <translation>Workbench</translation>
    </message>
    <message>
        <source>&amp;Save Project As...</source>
        <translation>Projekt &amp;speichern unter ...</translation>
    </message>
    <message>
        <source>&amp;Go Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>The design parameters have been changed, but not yet stored in the project.
Do you want to store them?</source>
        <translation>Die Bemessungsparameter wurden geändert, aber noch nicht im Projekt gespeichert.
Sollen sie gespeichert werden?</translation>
    </message>
</context>
<context>
    <name>workbench::NewProject</name>
    <message>
        <source>Model for a New Project</source>
        <translation>Modell für ein neues Projekt</translation>
    </message>
    <message>
        <source>Models (*.json)</source>
        <translation>Modelle (*.json)</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>Projects (*.zob)</source>
        <translation>Projekte (*.zob)</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Die Datei %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The project is being created.</source>
        <translation>Das Projekt wird angelegt.</translation>
    </message>
    <message>
        <source>The project cannot be created.
%1</source>
        <translation>Das Projekt kann nicht angelegt werden.
%1</translation>
    </message>
</context>
<context>
    <name>workbench::FileCommands</name>
    <message>
        <source>Projects (*.zob)</source>
        <translation>Projekte (*.zob)</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Projects and models (*.zob *.json)</source>
        <translation>Projekte und Modelle (*.zob *.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The project is being opened.</source>
        <translation>Das Projekt wird geöffnet.</translation>
    </message>
    <message>
        <source>The file %1 cannot be opened.</source>
        <translation>Die Datei %1 kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>%1 is open.</source>
        <translation>%1 ist geöffnet.</translation>
    </message>
    <message>
        <source>The model is being read.</source>
        <translation>Das Modell wird gelesen.</translation>
    </message>
    <message>
        <source>The file %1 could not be read completely.
Some data may be missing from the display.</source>
        <translation>Die Datei %1 konnte nicht vollständig gelesen werden.
In der Anzeige fehlt möglicherweise etwas.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>%1 is reloaded.</source>
        <translation>%1 ist neu geladen.</translation>
    </message>
    <message>
        <source>%1 is closed.</source>
        <translation>%1 ist geschlossen.</translation>
    </message>
    <message>
        <source>Save Project As</source>
        <translation>Projekt speichern unter</translation>
    </message>
    <message>
        <source>The project cannot be saved in the file %1.</source>
        <translation>Das Projekt kann nicht in der Datei %1 gespeichert werden.</translation>
    </message>
    <message>
        <source>The project has been saved as %1.</source>
        <translation>Das Projekt wurde als %1 gespeichert.</translation>
    </message>
    <message>
        <source>The project file was deleted or moved.
Do you want to save the open project under another name?</source>
        <translation>Die Projektdatei wurde gelöscht oder verschoben.
Soll das geöffnete Projekt unter einem anderen Namen gespeichert werden?</translation>
    </message>
    <message>
        <source>There are no unsaved changes.</source>
        <translation>Es gibt keine ungespeicherten Änderungen.</translation>
    </message>
</context>
<context>
    <name>workbench::OutputEditor</name>
    <message>
        <source>The choice of plots from the project has been restored.</source>
        <translation>Die Auswahl der Grafiken aus dem Projekt ist wiederhergestellt.</translation>
    </message>
    <message>
        <source>The choice of plots cannot be stored in the file %1.</source>
        <translation>Die Auswahl der Grafiken kann nicht in der Datei %1 gespeichert werden.</translation>
    </message>
    <message>
        <source>The choice of plots has been stored in the project file.</source>
        <translation>Die Auswahl der Grafiken wurde in der Projektdatei gespeichert.</translation>
    </message>
    <message>
        <source>The choice of plots has been changed, but not yet stored in the project.
Do you want to store it?</source>
        <translation>Die Auswahl der Grafiken wurde geändert, aber noch nicht im Projekt gespeichert.
Soll sie gespeichert werden?</translation>
    </message>
    <message>
        <source>The output &quot;%1&quot; is not in the project. Its original plots are selected again.</source>
        <translation>Die Ausgabe „%1“ steht nicht im Projekt. Ihre ursprünglichen Grafiken sind wieder ausgewählt.</translation>
    </message>
    <message>
        <source>The output &quot;%1&quot; has not yet been stored in the project.
Do you want to store it? Discard selects its original plots again.</source>
        <translation>Die Ausgabe „%1“ steht noch nicht im Projekt.
Soll sie gespeichert werden? „Verwerfen“ wählt wieder ihre ursprünglichen Grafiken aus.</translation>
    </message>
    <message>
        <source>These outputs have not yet been stored in the project: %1
Do you want to store all outputs?</source>
        <translation>Diese Ausgaben stehen noch nicht im Projekt: %1
Sollen alle Ausgaben gespeichert werden?</translation>
    </message>
</context>
<context>
    <name>workbench::OutputScript</name>
    <message>
        <source>The script has been copied to the clipboard.</source>
        <translation>Das Skript wurde in die Zwischenablage kopiert.</translation>
    </message>
    <message>
        <source>Save Script</source>
        <translation>Skript speichern</translation>
    </message>
    <message>
        <source>Scripts (*.dat)</source>
        <translation>Skripte (*.dat)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The script has been saved as %1.</source>
        <translation>Das Skript wurde als %1 gespeichert.</translation>
    </message>
    <message>
        <source>Export Sheets</source>
        <translation>Blätter exportieren</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>PDF-Dateien (*.pdf)</translation>
    </message>
    <message>
        <source>The sheets have been saved as %1.</source>
        <translation>Die Blätter wurden als %1 gespeichert.</translation>
    </message>
    <message>
        <source>The sheets are being exported.</source>
        <translation>Die Blätter werden exportiert.</translation>
    </message>
    <message>
        <source>No sheet was saved.</source>
        <translation>Es wurde kein Blatt gespeichert.</translation>
    </message>
</context>
<context>
    <name>workbench::ProjectAccess</name>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>Die Datei %1 kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>workbench::TextOutputEditor</name>
    <message>
        <source>Export Table of Contents</source>
        <translation>Inhaltsverzeichnis exportieren</translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation>Textdateien (*.txt)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The table of contents has been saved as %1.</source>
        <translation>Das Inhaltsverzeichnis wurde als %1 gespeichert.</translation>
    </message>
    <message>
        <source>The text output was not changed.</source>
        <translation>Die Textausgabe wurde nicht geändert.</translation>
    </message>
    <message>
        <source>The text output cannot be stored in the file %1.</source>
        <translation>Die Textausgabe kann nicht in der Datei %1 gespeichert werden.</translation>
    </message>
    <message>
        <source>The text output has been stored in the project file.</source>
        <translation>Die Textausgabe wurde in der Projektdatei gespeichert.</translation>
    </message>
    <message>
        <source>The text output has been changed, but not yet stored in the project.
Do you want to store it?</source>
        <translation>Die Textausgabe wurde geändert, aber noch nicht im Projekt gespeichert.
Soll sie gespeichert werden?</translation>
    </message>
</context>
<context>
    <name>workbench::WindowHelp</name>
    <message>
        <source>The help is not installed.</source>
        <translation>Die Hilfe ist nicht installiert.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Workbench %1

Hosts the pages for design parameters and graphical output, with its own projects.</source>
        <translation>Workbench %1

Stellt die Seiten für Bemessungsparameter und grafische Ausgabe mit eigenen Projekten bereit.</translation>
    </message>
</context>
<context>
    <name>workbench::WindowMessages</name>
    <message>
        <source>Workbench</source>
        <translation>Workbench</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Die Datei %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
</context>
<context>
    <name>workbench::WindowPanes</name>
    <message>
        <source>Outputs</source>
        <translation>Ausgaben</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Skript</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Blatt</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Datensätze</translation>
    </message>
    <message>
        <source>Panels</source>
        <translation>Bereiche</translation>
    </message>
</context>
<context>
    <name>workbench::DesignDock</name>
    <message>
        <source>Design Parameters</source>
        <translation>Bemessungsparameter</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Überneh&amp;men</translation>
    </message>
    <message>
        <source>P&amp;resets...</source>
        <translation>&amp;Vorlagen ...</translation>
    </message>
    <message>
        <source>Applies or edits named sets of parameters (Ctrl+R)</source>
        <translation>Parametersätze mit Namen anwenden oder bearbeiten (Strg+R)</translation>
    </message>
    <message>
        <source>Stores the rows in the project file (Ctrl+S)</source>
        <translation>Speichert die Zeilen in der Projektdatei (Strg+S)</translation>
    </message>
</context>
<context>
    <name>workbench::RowsInView</name>
    <message>
        <source>Pick &amp;Groups</source>
        <translation>Gruppen wäh&amp;len</translation>
    </message>
    <message>
        <source>While this button is pressed, a click on a group in the view or in the list of groups, or Enter in the list, adds the group to the current row or removes it.</source>
        <translation>Solange die Schaltfläche gedrückt ist, fügt ein Klick auf eine Gruppe in der Ansicht oder in der Liste oder die Eingabetaste in der Liste die Gruppe der aktuellen Zeile hinzu oder entfernt sie.</translation>
    </message>
    <message>
        <source>Group %1 is now in row %2, no longer in row %3.</source>
        <translation>Gruppe %1 steht jetzt in Zeile %2, nicht mehr in Zeile %3.</translation>
    </message>
    <message>
        <source>%1 groups are now in row %2, no longer in other rows.</source>
        <translation>%1 Gruppen stehen jetzt in Zeile %2, nicht mehr in anderen Zeilen.</translation>
    </message>
</context>
<context>
    <name>workbench::RowLegend</name>
    <message>
        <source>Colours of the rows</source>
        <translation>Farben der Zeilen</translation>
    </message>
    <message>
        <source>%1 more rows</source>
        <translation>%1 weitere Zeilen</translation>
    </message>
</context>
<context>
    <name>workbench::RowColours</name>
    <message>
        <source>&amp;Colour Rows</source>
        <translation>Zeilen &amp;färben</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Übrige</translation>
    </message>
    <message>
        <source>Colours the groups in the view by their row. Groups without a row of their own are pale.</source>
        <translation>Färbt die Gruppen in der Ansicht nach ihrer Zeile. Gruppen ohne eigene Zeile sind blass.</translation>
    </message>
</context>
<context>
    <name>workbench::GroupPane</name>
    <message>
        <source>Group filter</source>
        <translation>Gruppenfilter</translation>
    </message>
    <message>
        <source>Shows the groups with these numbers, in these ranges or with these words in the title.</source>
        <translation>Zeigt die Gruppen mit diesen Nummern, in diesen Bereichen oder mit diesen Wörtern in der Bezeichnung.</translation>
    </message>
    <message>
        <source>Filter: 12, 3-7, title</source>
        <translation>Filter: 12, 3-7, Bezeichnung</translation>
    </message>
</context>
<context>
    <name>workbench::GroupMenu</name>
    <message>
        <source>&amp;Hide</source>
        <translation>Aus&amp;blenden</translation>
    </message>
    <message>
        <source>Show &amp;Only These</source>
        <translation>&amp;Nur diese zeigen</translation>
    </message>
    <message>
        <source>Show &amp;All</source>
        <translation>&amp;Alle zeigen</translation>
    </message>
    <message>
        <source>Select &amp;Row %1</source>
        <translation>Zeile %1 aus&amp;wählen</translation>
    </message>
    <message>
        <source>A&amp;dd to Row %1</source>
        <translation>Zu Zeile %1 &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Re&amp;move from Row %1</source>
        <translation>Aus Zeile %1 &amp;entfernen</translation>
    </message>
</context>
<context>
    <name>workbench::OutputList</name>
    <message>
        <source>Output %1</source>
        <translation>Ausgabe %1</translation>
    </message>
    <message>
        <source>An output needs a name.</source>
        <translation>Eine Ausgabe braucht einen Namen.</translation>
    </message>
    <message>
        <source>A name has at most %1 characters.</source>
        <translation>Ein Name hat höchstens %1 Zeichen.</translation>
    </message>
    <message>
        <source>Another output has this name.</source>
        <translation>Eine andere Ausgabe heißt bereits so.</translation>
    </message>
</context>
<context>
    <name>workbench::ScriptFinding</name>
    <message>
        <source>no plot produces a statement &quot;%1&quot;</source>
        <translation>keine Grafik erzeugt eine Anweisung „%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a keyword of this statement</source>
        <translation>„%1“ ist kein Schlüsselwort dieser Anweisung</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a keyword of the other language</source>
        <translation>„%1“ ist ein Schlüsselwort der anderen Sprache</translation>
    </message>
    <message>
        <source>no plot has &quot;%1&quot; after &quot;%2&quot;</source>
        <translation>keine Grafik hat „%1“ nach „%2“</translation>
    </message>
    <message>
        <source>a keyword is missing after &quot;%2&quot;</source>
        <translation>nach „%2“ fehlt ein Schlüsselwort</translation>
    </message>
    <message>
        <source>a value is missing after &quot;%2&quot;</source>
        <translation>nach „%2“ fehlt ein Wert</translation>
    </message>
    <message>
        <source>no plot has the value &quot;%1&quot; after &quot;%2&quot;</source>
        <translation>keine Grafik hat den Wert „%1“ nach „%2“</translation>
    </message>
    <message>
        <source>the bracket of &quot;%1&quot; is not closed</source>
        <translation>die Klammer von „%1“ ist nicht geschlossen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not defined</source>
        <translation>„%1“ ist nicht definiert</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is defined twice</source>
        <translation>„%1“ ist zweimal definiert</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is defined but not used</source>
        <translation>„%1“ ist definiert, wird aber nicht verwendet</translation>
    </message>
    <message>
        <source>a definition has the form #define NAME=VALUE</source>
        <translation>eine Definition hat die Form #define NAME=WERT</translation>
    </message>
    <message>
        <source>the model has no load case %1</source>
        <translation>das Modell hat keinen Lastfall %1</translation>
    </message>
    <message>
        <source>the design case %1 differs from the load case %2</source>
        <translation>der Bemessungsfall %1 weicht vom Lastfall %2 ab</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is outside a program block</source>
        <translation>„%1“ steht außerhalb eines Programmblocks</translation>
    </message>
    <message>
        <source>there is no program block</source>
        <translation>es gibt keinen Programmblock</translation>
    </message>
    <message>
        <source>the program block has no title line</source>
        <translation>der Programmblock hat keine Titelzeile</translation>
    </message>
    <message>
        <source>the program block has no page setup</source>
        <translation>der Programmblock richtet keine Seite ein</translation>
    </message>
    <message>
        <source>the program block has no end</source>
        <translation>der Programmblock hat kein Ende</translation>
    </message>
</context>
<context>
    <name>workbench::ScriptGutter</name>
    <message>
        <source>Lines removed here: %1</source>
        <translation>Hier entfernte Zeilen: %1</translation>
    </message>
</context>
<context>
    <name>workbench::FindBar</name>
    <message>
        <source>Words to find in the script</source>
        <translation>Im Skript gesuchte Wörter</translation>
    </message>
    <message>
        <source>Find in the script</source>
        <translation>Im Skript suchen</translation>
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
        <source>No hits</source>
        <translation>Keine Treffer</translation>
    </message>
    <message>
        <source>Hit %1 of %2</source>
        <translation>Treffer %1 von %2</translation>
    </message>
    <message>
        <source>Hits: %1</source>
        <translation>Treffer: %1</translation>
    </message>
</context>
<context>
    <name>workbench::CheckMark</name>
    <message>
        <source>Check of the script</source>
        <translation>Prüfung des Skripts</translation>
    </message>
    <message>
        <source>Check: no findings</source>
        <translation>Prüfung: keine Befunde</translation>
    </message>
    <message>
        <source>Check: %1 of %2, %3</source>
        <translation>Prüfung: %1 von %2, %3</translation>
    </message>
    <message>
        <source>Check: findings: %1</source>
        <translation>Prüfung: Befunde: %1</translation>
    </message>
    <message>
        <source>The plots can produce every line.</source>
        <translation>Jede Zeile kann von den Grafiken stammen.</translation>
    </message>
</context>
<context>
    <name>workbench::SampleModel</name>
    <message>
        <source>&amp;Building</source>
        <translation>&amp;Gebäude</translation>
    </message>
    <message>
        <source>&amp;Slab</source>
        <translation>&amp;Decke</translation>
    </message>
    <message>
        <source>&amp;Hall</source>
        <translation>&amp;Halle</translation>
    </message>
    <message>
        <source>Two-storey concrete office building with slabs, walls and columns</source>
        <translation>Zweigeschossiges Bürogebäude aus Stahlbeton mit Decken, Wänden und Stützen</translation>
    </message>
    <message>
        <source>Flat slab on columns and a wall</source>
        <translation>Flachdecke auf Stützen und einer Wand</translation>
    </message>
    <message>
        <source>Steel hall with crane girders on pad footings</source>
        <translation>Stahlhalle mit Kranbahnträgern auf Einzelfundamenten</translation>
    </message>
</context>
<context>
    <name>workbench::StartPage</name>
    <message>
        <source>Start page</source>
        <translation>Startseite</translation>
    </message>
    <message>
        <source>&amp;Recent Projects</source>
        <translation>&amp;Zuletzt geöffnete Projekte</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Zuletzt geöffnete Projekte</translation>
    </message>
    <message>
        <source>New Project from a Model</source>
        <translation>Neues Projekt aus einem Modell</translation>
    </message>
    <message>
        <source>Remove from List</source>
        <translation>Aus der Liste entfernen</translation>
    </message>
    <message>
        <source>%1 (not found)</source>
        <translation>%1 (nicht gefunden)</translation>
    </message>
    <message>
        <source>No project has been opened yet.</source>
        <translation>Es wurde noch kein Projekt geöffnet.</translation>
    </message>
    <message>
        <source>You can also drop a project or a model file onto this window.</source>
        <translation>Projekte und Modelldateien lassen sich auch auf dieses Fenster ziehen.</translation>
    </message>
</context>
</TS>
