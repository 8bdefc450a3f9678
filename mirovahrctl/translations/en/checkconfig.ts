<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Text</name>
    <message numerus="yes">
        <source>a synchronisation at the first tick, then every %Ln tick(s), which is %1</source>
        <translation>
            <numerusform>a synchronisation at the first tick, then every %Ln tick, which is %1</numerusform>
            <numerusform>a synchronisation at the first tick, then every %Ln ticks, which is %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The text is longer than the %Ln character(s) that %1 has in reference-db/schema.sql: a column of that length refuses people in this state, or cuts the text.</source>
        <translation>
            <numerusform>The text is longer than the %Ln character that %1 has in reference-db/schema.sql: a column of that length refuses people in this state, or cuts the text.</numerusform>
            <numerusform>The text is longer than the %Ln characters that %1 has in reference-db/schema.sql: a column of that length refuses people in this state, or cuts the text.</numerusform>
        </translation>
    </message>
</context>
</TS>
