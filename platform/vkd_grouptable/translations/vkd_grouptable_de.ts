<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>VKD_H_SelGRP_Dialog</name>
    <message>
        <source>Group Selection</source>
        <translation>Gruppenauswahl</translation>
    </message>
    <message>
        <source>&amp;Pick in 3D View</source>
        <translation>In 3D-Ansicht &amp;wählen</translation>
    </message>
    <message>
        <source>Closes this dialog so that you can pick groups in the 3D view, starting with those that are checked here. The picked groups replace all groups of the row.</source>
        <translation>Schließt diesen Dialog, um Gruppen in der 3D-Ansicht zu wählen, ausgehend von den hier angekreuzten. Die gewählten Gruppen ersetzen alle Gruppen der Zeile.</translation>
    </message>
    <message>
        <source>the picked groups cannot be stored: %1 is not a group</source>
        <translation>die gewählten Gruppen können nicht gespeichert werden: %1 ist keine Gruppe</translation>
    </message>
</context>
</TS>
