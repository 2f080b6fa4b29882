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
</TS>
