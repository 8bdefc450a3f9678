<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Text</name>
    <message numerus="yes">
        <source>The plugin misreads the %1 of %Ln person(s): %2</source>
        <translation>
            <numerusform>The plugin misreads the %1 of %Ln person: %2</numerusform>
            <numerusform>The plugin misreads the %1 of %Ln people: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The vacation balances of %Ln person(s) are %1 times what they were.</source>
        <translation>
            <numerusform>The vacation balances of %Ln person are %1 times what they were.</numerusform>
            <numerusform>The vacation balances of %Ln people are %1 times what they were.</numerusform>
        </translation>
    </message>
</context>
</TS>
