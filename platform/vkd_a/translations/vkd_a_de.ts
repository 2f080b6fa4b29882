<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>BarAreaTable</name>
    <message>
        <source>Areas by bar diameter and spacing</source>
        <translation>Querschnitte nach Stabdurchmesser und Stababstand</translation>
    </message>
</context>
<context>
    <name>ReinforcementDialog</name>
    <message>
        <source>Reinforcement Calculation</source>
        <translation>Bewehrung ermitteln</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Stäbe</translation>
    </message>
    <message>
        <source>Arrangement</source>
        <translation>Anordnung</translation>
    </message>
    <message>
        <source>Single bars</source>
        <translation>Einzelstäbe</translation>
    </message>
    <message>
        <source>Pairs of bars</source>
        <translation>Doppelstäbe</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Stababstand</translation>
    </message>
    <message>
        <source>Number of bars</source>
        <translation>Anzahl der Stäbe</translation>
    </message>
    <message>
        <source>Bar &amp;diameter:</source>
        <translation>Stab&amp;durchmesser:</translation>
    </message>
    <message>
        <source>&amp;Arrangement:</source>
        <translation>A&amp;nordnung:</translation>
    </message>
    <message>
        <source>&amp;Spacing:</source>
        <translation>&amp;Stababstand:</translation>
    </message>
    <message>
        <source>&amp;Number per metre:</source>
        <translation>An&amp;zahl je Meter:</translation>
    </message>
    <message>
        <source>Areas in cm²/m by diameter and spacing in mm</source>
        <translation>Querschnitte in cm²/m nach Durchmesser und Abstand in mm</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Reinforcement:</source>
        <translation>Bewehrung:</translation>
    </message>
    <message>
        <source>Present value:</source>
        <translation>Bisheriger Wert:</translation>
    </message>
    <message>
        <source>An entry cannot be read.</source>
        <translation>Eine Eingabe ist nicht lesbar.</translation>
    </message>
    <message>
        <source>The bar diameter has to be greater than 0.</source>
        <translation>Der Stabdurchmesser muss größer als 0 sein.</translation>
    </message>
    <message>
        <source>The spacing has to be greater than 0.</source>
        <translation>Der Stababstand muss größer als 0 sein.</translation>
    </message>
    <message>
        <source>The bars overlap: the spacing has to be greater than %1.</source>
        <translation>Die Stäbe überschneiden sich: Der Abstand muss größer als %1 sein.</translation>
    </message>
    <message>
        <source>These bars give no usable area.</source>
        <translation>Diese Stäbe ergeben keinen brauchbaren Querschnitt.</translation>
    </message>
    <message>
        <source>The clear distance of %1 is below %2 (EN 1992-1-1, 8.2).</source>
        <translation>Der lichte Abstand von %1 ist kleiner als %2 (EN 1992-1-1, 8.2).</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>nicht gesetzt</translation>
    </message>
    <message>
        <source>%1 (chosen: %2 %)</source>
        <translation>%1 (gewählt: %2 %)</translation>
    </message>
</context>
<context>
    <name>VKD_A_BarDiameterCombo</name>
    <message>
        <source>Bar diameter</source>
        <translation>Stabdurchmesser</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>nicht gesetzt</translation>
    </message>
</context>
</TS>
