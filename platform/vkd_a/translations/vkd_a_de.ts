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
    <name>BarPicture</name>
    <message>
        <source>A metre of the plate with its bars. Diameters and spacings are to scale; covers and distances between layers are not.</source>
        <translation>Ein Meter der Platte mit ihren Stäben. Durchmesser und Abstände sind maßstäblich, Deckungen und Abstände der Lagen nicht.</translation>
    </message>
    <message>
        <source>Picture of the bars</source>
        <translation>Bild der Stäbe</translation>
    </message>
</context>
<context>
    <name>BarsPanel</name>
    <message>
        <source>Bars and welded fabric</source>
        <translation>Stäbe und Betonstahlmatten</translation>
    </message>
    <message>
        <source>Second &amp;layer</source>
        <translation>Zweite &amp;Lage</translation>
    </message>
    <message>
        <source>La&amp;rgest aggregate</source>
        <translation>&amp;Größtkorn</translation>
    </message>
    <message>
        <source>First layer</source>
        <translation>Erste Lage</translation>
    </message>
    <message>
        <source>Areas in cm²/m by diameter and spacing in mm</source>
        <translation>Querschnitte in cm²/m nach Durchmesser und Abstand in mm</translation>
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
        <source>These bars do not result in a valid area.</source>
        <translation>Diese Stäbe ergeben keinen brauchbaren Querschnitt.</translation>
    </message>
    <message>
        <source>The clear distance of %1 is below %2 (EN 1992-1-1, 8.2).</source>
        <translation>Der lichte Abstand von %1 ist kleiner als %2 (EN 1992-1-1, 8.2).</translation>
    </message>
    <message>
        <source>%1 (at least %2)</source>
        <translation>%1 (mindestens %2)</translation>
    </message>
    <message>
        <source>Clear distance: %1</source>
        <translation>Lichter Abstand: %1</translation>
    </message>
</context>
<context>
    <name>LayerFields</name>
    <message>
        <source>Spacing, layer %1</source>
        <translation>Stababstand, Lage %1</translation>
    </message>
    <message>
        <source>Number of bars, layer %1</source>
        <translation>Anzahl der Stäbe, Lage %1</translation>
    </message>
    <message>
        <source>Bar diameter, layer %1</source>
        <translation>Stabdurchmesser, Lage %1</translation>
    </message>
    <message>
        <source>Arrangement, layer %1</source>
        <translation>Anordnung, Lage %1</translation>
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
        <source>Fabric, longitudinal</source>
        <translation>Matte, längs</translation>
    </message>
    <message>
        <source>Fabric, transverse</source>
        <translation>Matte, quer</translation>
    </message>
    <message>
        <source>Welded fabric, layer %1</source>
        <translation>Betonstahlmatte, Lage %1</translation>
    </message>
    <message>
        <source>&amp;Arrangement</source>
        <translation>A&amp;nordnung</translation>
    </message>
    <message>
        <source>Bar &amp;diameter or fabric</source>
        <translation>Stab&amp;durchmesser oder Matte</translation>
    </message>
    <message>
        <source>&amp;Spacing</source>
        <translation>Stab&amp;abstand</translation>
    </message>
    <message>
        <source>&amp;Number per metre</source>
        <translation>An&amp;zahl je Meter</translation>
    </message>
</context>
<context>
    <name>MinimumPanel</name>
    <message>
        <source>Slab</source>
        <translation>Platte</translation>
    </message>
    <message>
        <source>Effective depth</source>
        <translation>Statische Nutzhöhe</translation>
    </message>
    <message>
        <source>principal</source>
        <translation>Haupttragrichtung</translation>
    </message>
    <message>
        <source>secondary, one-way slab</source>
        <translation>Querrichtung, einachsig gespannte Platte</translation>
    </message>
    <message>
        <source>Principal reinforcement</source>
        <translation>Hauptbewehrung</translation>
    </message>
    <message>
        <source>&amp;Effective depth d:</source>
        <translation>Statische &amp;Nutzhöhe d:</translation>
    </message>
    <message>
        <source>D&amp;irection:</source>
        <translation>&amp;Richtung:</translation>
    </message>
    <message>
        <source>&amp;Concrete:</source>
        <translation>B&amp;eton:</translation>
    </message>
    <message>
        <source>&amp;Principal reinforcement:</source>
        <translation>&amp;Hauptbewehrung:</translation>
    </message>
    <message>
        <source>&amp;Yield strength of the steel:</source>
        <translation>Strec&amp;kgrenze des Betonstahls:</translation>
    </message>
    <message>
        <source>Calculation</source>
        <translation>Berechnung</translation>
    </message>
    <message>
        <source>An entry cannot be read.</source>
        <translation>Eine Eingabe ist nicht lesbar.</translation>
    </message>
    <message>
        <source>The effective depth is required.</source>
        <translation>Die statische Nutzhöhe fehlt.</translation>
    </message>
    <message>
        <source>EN 1992-1-1, 9.3.1.1 (1) and 9.2.1.1 (1), Equation (9.1N)</source>
        <translation>EN 1992-1-1, 9.3.1.1 (1) und 9.2.1.1 (1), Gleichung (9.1N)</translation>
    </message>
    <message>
        <source>EN 1992-1-1, 9.2.1.1 (1), lower limit</source>
        <translation>EN 1992-1-1, 9.2.1.1 (1), untere Grenze</translation>
    </message>
    <message>
        <source>EN 1992-1-1, Table 3.1</source>
        <translation>EN 1992-1-1, Tabelle 3.1</translation>
    </message>
    <message>
        <source>EN 1992-1-1, 9.3.1.1 (2): a fifth of the principal reinforcement</source>
        <translation>EN 1992-1-1, 9.3.1.1 (2): ein Fünftel der Hauptbewehrung</translation>
    </message>
</context>
<context>
    <name>ReinforcementDialog</name>
    <message>
        <source>Reinforcement Calculation</source>
        <translation>Bewehrung ermitteln</translation>
    </message>
    <message>
        <source>&amp;Bars and Fabric</source>
        <translation>&amp;Stäbe und Matten</translation>
    </message>
    <message>
        <source>&amp;Minimum Reinforcement</source>
        <translation>&amp;Mindestbewehrung</translation>
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
        <source>Use %1 as &amp;the bar diameter, too</source>
        <translation>%1 auch als Stabdurchmesser &amp;übernehmen</translation>
    </message>
    <message>
        <source>Use &amp;the bar diameter, too</source>
        <translation>Auch den Stabdurchmesser &amp;übernehmen</translation>
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
    <message>
        <source>There is no bar %1.</source>
        <translation>Den Stab %1 gibt es nicht.</translation>
    </message>
</context>
</TS>
