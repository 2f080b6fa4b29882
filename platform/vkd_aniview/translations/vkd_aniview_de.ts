<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>AnimatorView</name>
    <message>
        <source>The project contains no structural model.</source>
        <translation>Das Projekt enthält kein Tragwerksmodell.</translation>
    </message>
    <message>
        <source>No project is open.</source>
        <translation>Es ist kein Projekt geöffnet.</translation>
    </message>
    <message>
        <source>Model view</source>
        <translation>Modellansicht</translation>
    </message>
    <message>
        <source>Arrow keys turn the model and, with Shift, move it. Plus and minus zoom, Home shows all.</source>
        <translation>Die Pfeiltasten drehen das Modell und verschieben es mit der Umschalttaste. Plus und Minus zoomen, Pos1 zeigt alles.</translation>
    </message>
    <message>
        <source>Left button: turn
Right button, or Shift and left: move
Wheel: zoom
Double click: show all</source>
        <translation>Linke Taste: drehen
Rechte Taste oder Umschalt und links: verschieben
Mausrad: zoomen
Doppelklick: alles zeigen</translation>
    </message>
    <message>
        <source>Click: pick or unpick a group</source>
        <translation>Klick: Gruppe auswählen oder abwählen</translation>
    </message>
</context>
</TS>
