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
        <translation>Typ</translation>
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
        <translation>Rissnachweis</translation>
    </message>
    <message>
        <source>Design parameter</source>
        <translation>Bemessungsparameter</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Aufwärts</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Abwärts</translation>
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
</context>
<context>
    <name>VKD_P_WidgetGraphicalOutput</name>
    <message>
        <source>Graphical Output</source>
        <translation>Grafische Ausgabe</translation>
    </message>
</context>
</TS>
