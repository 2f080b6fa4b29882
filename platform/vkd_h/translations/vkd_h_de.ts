<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>VKD_H_GroupDialog</name>
    <message>
        <source>1 area</source>
        <translation>1 Flächenelement</translation>
    </message>
    <message>
        <source>%1 areas</source>
        <translation>%1 Flächenelemente</translation>
    </message>
    <message>
        <source>1 beam</source>
        <translation>1 Stab</translation>
    </message>
    <message>
        <source>%1 beams</source>
        <translation>%1 Stäbe</translation>
    </message>
    <message>
        <source>1 truss</source>
        <translation>1 Fachwerkstab</translation>
    </message>
    <message>
        <source>%1 trusses</source>
        <translation>%1 Fachwerkstäbe</translation>
    </message>
    <message>
        <source>1 cable</source>
        <translation>1 Seil</translation>
    </message>
    <message>
        <source>%1 cables</source>
        <translation>%1 Seile</translation>
    </message>
    <message>
        <source>1 spring</source>
        <translation>1 Feder</translation>
    </message>
    <message>
        <source>%1 springs</source>
        <translation>%1 Federn</translation>
    </message>
    <message>
        <source>1 brick</source>
        <translation>1 Volumenelement</translation>
    </message>
    <message>
        <source>%1 bricks</source>
        <translation>%1 Volumenelemente</translation>
    </message>
    <message>
        <source>no elements</source>
        <translation>keine Elemente</translation>
    </message>
    <message>
        <source>not in the model</source>
        <translation>nicht im Modell</translation>
    </message>
    <message>
        <source>no area elements</source>
        <translation>keine Flächenelemente</translation>
    </message>
    <message>
        <source>also in another row</source>
        <translation>auch in einer anderen Zeile</translation>
    </message>
    <message>
        <source>used by another row</source>
        <translation>in anderer Zeile verwendet</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
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
        <source>Remark</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>The model has no secondary groups.</source>
        <translation>Das Modell enthält keine Sekundärgruppen.</translation>
    </message>
    <message>
        <source>The model has no groups.</source>
        <translation>Das Modell enthält keine Gruppen.</translation>
    </message>
    <message>
        <source>Name or title</source>
        <translation>Name oder Bezeichnung</translation>
    </message>
    <message>
        <source>Number or title</source>
        <translation>Nummer oder Bezeichnung</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>&amp;Filter:</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Keine</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Names to check</source>
        <translation>Anzukreuzende Namen</translation>
    </message>
    <message>
        <source>Numbers, e.g. 1-5 9</source>
        <translation>Nummern, z. B. 1-5 9</translation>
    </message>
    <message>
        <source>Na&amp;mes:</source>
        <translation>&amp;Namen:</translation>
    </message>
    <message>
        <source>N&amp;umbers:</source>
        <translation>N&amp;ummern:</translation>
    </message>
    <message>
        <source>Chec&amp;k</source>
        <translation>Ankreu&amp;zen</translation>
    </message>
    <message>
        <source>Cannot read: %1. Type numbers and ranges such as 1-5 9.</source>
        <translation>Nicht lesbar: %1. Bitte Nummern und Bereiche wie 1-5 9 eingeben.</translation>
    </message>
    <message>
        <source>There is no group %1.</source>
        <translation>Es gibt keine Gruppe %1.</translation>
    </message>
    <message>
        <source>%1 of %2 groups checked</source>
        <translation>%1 von %2 Gruppen angekreuzt</translation>
    </message>
    <message>
        <source>%1 also in another row</source>
        <translation>%1 auch in einer anderen Zeile</translation>
    </message>
    <message>
        <source>%1 hidden by the filter</source>
        <translation>%1 durch den Filter ausgeblendet</translation>
    </message>
    <message>
        <source>Without area elements: %1</source>
        <translation>Ohne Flächenelemente: %1</translation>
    </message>
    <message>
        <source>%1 without area elements</source>
        <translation>%1 ohne Flächenelemente</translation>
    </message>
    <message>
        <source>OK replaces 1 group of the row that is not shown here: %1</source>
        <translation>OK ersetzt 1 Gruppe der Zeile, die hier nicht gezeigt wird: %1</translation>
    </message>
    <message>
        <source>OK replaces %1 groups of the row that are not shown here: %2</source>
        <translation>OK ersetzt %1 Gruppen der Zeile, die hier nicht gezeigt werden: %2</translation>
    </message>
    <message>
        <source>1 group of the row is not shown here: %1. OK keeps it if nothing is changed, and otherwise replaces it.</source>
        <translation>1 Gruppe der Zeile wird hier nicht gezeigt: %1. Ohne Änderung behält OK sie bei, sonst ersetzt OK sie.</translation>
    </message>
    <message>
        <source>%1 groups of the row are not shown here: %2. OK keeps them if nothing is changed, and otherwise replaces them.</source>
        <translation>%1 Gruppen der Zeile werden hier nicht gezeigt: %2. Ohne Änderung behält OK sie bei, sonst ersetzt OK sie.</translation>
    </message>
</context>
<context>
    <name>VKD_H_LineEdit</name>
    <message>
        <source>“%1” has more than one decimal separator.
A comma and a point are both decimal separators; there is no thousands separator.</source>
        <translation>„%1“ hat mehr als ein Dezimaltrennzeichen.
Als Dezimaltrennzeichen gelten Komma und Punkt; Tausendertrennzeichen sind nicht zulässig.</translation>
    </message>
    <message>
        <source>%1 is too large; the greatest value is %2.</source>
        <translation>%1 ist zu groß; der größte Wert ist %2.</translation>
    </message>
    <message>
        <source>Usual values are %1 to %2. The value is accepted all the same.</source>
        <translation>Üblich ist hier %1 bis %2. Der Wert gilt trotzdem.</translation>
    </message>
    <message>
        <source>%1 is too small; the smallest value is %2.</source>
        <translation>%1 ist zu klein; der kleinste Wert ist %2.</translation>
    </message>
    <message>
        <source>A value is required here.</source>
        <translation>Hier muss ein Wert stehen.</translation>
    </message>
    <message>
        <source>“%1” is not a number.</source>
        <translation>„%1“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>The value is still not set. Esc empties the field.</source>
        <translation>Der Wert ist weiterhin nicht gesetzt. Esc leert das Feld.</translation>
    </message>
    <message>
        <source>The value is still %1. Esc restores it.</source>
        <translation>Es gilt weiterhin der Wert %1. Esc stellt ihn wieder her.</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
</context>
<context>
    <name>VKD_H_SecondaryGroupDialog</name>
    <message>
        <source>Secondary Group Selection</source>
        <translation>Sekundärgruppenauswahl</translation>
    </message>
</context>
<context>
    <name>VKD_H_TableWidget</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Copy Cell Texts</source>
        <translation>Zelltexte kopieren</translation>
    </message>
</context>
<context>
    <name>VKD_H_TableWidgetBox</name>
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
    <name>vkd::h::GroupView</name>
    <message>
        <source>No group matches the filter.</source>
        <translation>Keine Gruppe entspricht dem Filter.</translation>
    </message>
</context>
</TS>
