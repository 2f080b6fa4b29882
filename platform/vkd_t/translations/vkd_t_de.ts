<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>HelpWindow</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search the help</source>
        <translation>Hilfe durchsuchen</translation>
    </message>
    <message>
        <source>Search in all topics (%1)
Next place: Enter or F3, previous place: Shift+F3</source>
        <translation>Alle Themen durchsuchen (%1)
Nächste Fundstelle: Eingabetaste oder F3, vorherige Fundstelle: Umschalt+F3</translation>
    </message>
    <message>
        <source>Topics found</source>
        <translation>Gefundene Themen</translation>
    </message>
    <message>
        <source>Help topic</source>
        <translation>Hilfethema</translation>
    </message>
    <message>
        <source>Help - %1</source>
        <translation>Hilfe - %1</translation>
    </message>
    <message>
        <source>Found in these topics:</source>
        <translation>Gefunden in diesen Themen:</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
</context>
</TS>
