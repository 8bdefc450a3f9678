<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Text</name>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 and %Ln more</numerusform>
            <numerusform>%1 and %Ln more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Each of these %Ln people</source>
        <translation>
            <numerusform>Each of these %Ln people</numerusform>
            <numerusform>Each of these %Ln people</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln person(s)</source>
        <translation>
            <numerusform>%Ln person</numerusform>
            <numerusform>%Ln people</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln person(s)</source>
        <comment>whom a synchronisation would create or change</comment>
        <translation>
            <numerusform>%Ln person</numerusform>
            <numerusform>%Ln people</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A synchronisation would change nobody, only %Ln row(s) besides.</source>
        <translation>
            <numerusform>A synchronisation would change nobody, only %Ln row besides.</numerusform>
            <numerusform>A synchronisation would change nobody, only %Ln rows besides.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The plugin would warn %Ln time(s).</source>
        <translation>
            <numerusform>The plugin would warn %Ln time.</numerusform>
            <numerusform>The plugin would warn %Ln times.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln day(s)</source>
        <translation>
            <numerusform>%Ln day</numerusform>
            <numerusform>%Ln days</numerusform>
        </translation>
    </message>
</context>
</TS>
