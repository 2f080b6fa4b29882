<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>VKD_QT_TreeWidget</name>
    <message>
        <source>Expand All</source>
        <translation>Alle aufklappen</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>Alle zuklappen</translation>
    </message>
</context>
<context>
    <name>standardButtons</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <translation>Schließen ohne Speichern</translation>
    </message>
</context>
<context>
    <name>ZobTexts</name>
    <message>
        <source>cannot open %1: %2</source>
        <translation>%1 kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>cannot create %1: %2</source>
        <translation>%1 kann nicht angelegt werden: %2</translation>
    </message>
    <message>
        <source>cannot close %1: %2</source>
        <translation>%1 kann nicht geschlossen werden: %2</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>cannot search %1: %2</source>
        <translation>%1 kann nicht durchsucht werden: %2</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>cannot lock %1: %2</source>
        <translation>%1 kann nicht gesperrt werden: %2</translation>
    </message>
    <message>
        <source>cannot store the changes in %1: %2</source>
        <translation>Die Änderungen in %1 können nicht gespeichert werden: %2</translation>
    </message>
    <message>
        <source>cannot undo the changes in %1: %2</source>
        <translation>Die Änderungen in %1 können nicht zurückgenommen werden: %2</translation>
    </message>
    <message>
        <source>cannot use database %1: %2</source>
        <translation>Die Datenbank %1 kann nicht benutzt werden: %2</translation>
    </message>
    <message>
        <source>no project is open with this index</source>
        <translation>unter diesem Index ist kein Projekt geöffnet</translation>
    </message>
    <message>
        <source>the file does not exist or cannot be opened</source>
        <translation>die Datei ist nicht vorhanden oder kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>the file is not a project file</source>
        <translation>die Datei ist keine Projektdatei</translation>
    </message>
    <message>
        <source>the file was written by a newer version</source>
        <translation>die Datei wurde mit einer neueren Version geschrieben</translation>
    </message>
    <message>
        <source>the file is damaged</source>
        <translation>die Datei ist beschädigt</translation>
    </message>
    <message>
        <source>the file or its folder is write-protected</source>
        <translation>die Datei oder ihr Ordner ist schreibgeschützt</translation>
    </message>
    <message>
        <source>the disk is full or does not accept the data</source>
        <translation>der Datenträger ist voll oder nimmt die Daten nicht an</translation>
    </message>
    <message>
        <source>another program has locked the project</source>
        <translation>ein anderes Programm hat das Projekt gesperrt</translation>
    </message>
    <message>
        <source>the file was deleted, moved or replaced while it was open</source>
        <translation>die Datei wurde gelöscht, verschoben oder ersetzt, während sie geöffnet war</translation>
    </message>
    <message>
        <source>an argument is out of range</source>
        <translation>ein Argument liegt außerhalb des zulässigen Bereichs</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translation>der Vorgang wurde abgebrochen</translation>
    </message>
    <message>
        <source>the system failed to read or write</source>
        <translation>das System konnte nicht lesen oder schreiben</translation>
    </message>
</context>
<context>
    <name>vkd::dbo::ModelFileError</name>
    <message>
        <source>node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>element</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>cross section</source>
        <translation>Querschnitt</translation>
    </message>
    <message>
        <source>point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>a number is required</source>
        <translation>eine Zahl wird erwartet</translation>
    </message>
    <message>
        <source>a whole number is required</source>
        <translation>eine ganze Zahl wird erwartet</translation>
    </message>
    <message>
        <source>a number of 1 or more is required</source>
        <translation>eine Zahl ab 1 wird erwartet</translation>
    </message>
    <message>
        <source>a string is required</source>
        <translation>ein Text wird erwartet</translation>
    </message>
    <message>
        <source>a list is required</source>
        <translation>eine Liste wird erwartet</translation>
    </message>
    <message>
        <source>%1 values are required</source>
        <translation>%1 Werte werden erwartet</translation>
    </message>
    <message>
        <source>at most %1 values are allowed here</source>
        <translation>höchstens %1 Werte können hier stehen</translation>
    </message>
    <message>
        <source>an object is required</source>
        <translation>ein Objekt wird erwartet</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;</source>
        <translation>unbekannter Schlüssel „%1“</translation>
    </message>
    <message>
        <source>the key &quot;%1&quot; is missing</source>
        <translation>der Schlüssel „%1“ fehlt</translation>
    </message>
    <message>
        <source>unknown direction &quot;%1&quot;</source>
        <translation>unbekannte Richtung „%1“</translation>
    </message>
    <message>
        <source>the kind must be 1 or 2</source>
        <translation>die Art muss 1 oder 2 sein</translation>
    </message>
    <message>
        <source>a name of one to four ASCII letters and digits, not only digits, is required</source>
        <translation>ein Name aus ein bis vier ASCII-Buchstaben und Ziffern, nicht nur aus Ziffern, wird erwartet</translation>
    </message>
    <message>
        <source>an object has more than %1 keys</source>
        <translation>ein Objekt hat mehr als %1 Schlüssel</translation>
    </message>
    <message>
        <source>&quot;%1&quot; occurs twice</source>
        <translation>„%1“ steht hier zweimal</translation>
    </message>
    <message>
        <source>group %1 does not exist or occurs twice</source>
        <translation>die Gruppe %1 gibt es nicht, oder sie steht hier zweimal</translation>
    </message>
    <message>
        <source>the number %1 occurs twice</source>
        <translation>die Nummer %1 steht hier zweimal</translation>
    </message>
    <message>
        <source>%1 %2 does not exist</source>
        <translation>%1 %2 gibt es nicht</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>a number of %1 or less is required</source>
        <translation>eine Zahl bis %1 wird erwartet</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translation>der Vorgang wurde abgebrochen</translation>
    </message>
    <message>
        <source>a record with the keys %1, %2 is too short and is skipped</source>
        <translation>ein Datensatz unter %1, %2 ist zu kurz und wird ausgelassen</translation>
    </message>
</context>
</TS>
