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
        <source>Leaves this dialog to pick the groups in the 3D view, beginning with those checked here. They replace all groups of the row.</source>
        <translation>Verlässt diesen Dialog, um die Gruppen in der 3D-Ansicht zu wählen, ausgehend von den hier angekreuzten. Sie ersetzen alle Gruppen der Zeile.</translation>
    </message>
    <message>
        <source>the picked groups cannot be stored: %1 is not a group</source>
        <translation>die gewählten Gruppen können nicht gespeichert werden: %1 ist keine Gruppe</translation>
    </message>
</context>
</TS>
