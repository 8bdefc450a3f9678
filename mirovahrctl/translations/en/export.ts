<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Text</name>
    <message numerus="yes">
        <source>Shorten the text to %Ln character(s).</source>
        <translation>
            <numerusform>Shorten the text to %Ln character.</numerusform>
            <numerusform>Shorten the text to %Ln characters.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The line has %Ln field(s) instead of %1.</source>
        <translation>
            <numerusform>The line has %Ln field instead of %1.</numerusform>
            <numerusform>The line has %Ln fields instead of %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln line(s).</source>
        <translation>
            <numerusform>%Ln line.</numerusform>
            <numerusform>%Ln lines.</numerusform>
        </translation>
    </message>
</context>
</TS>
