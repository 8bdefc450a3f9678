<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Text</name>
    <message numerus="yes">
        <source>%Ln active person(s)</source>
        <translation>
            <numerusform>%Ln active person</numerusform>
            <numerusform>%Ln active people</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln entry(s) in the terminal queue</source>
        <translation>
            <numerusform>%Ln entry in the terminal queue</numerusform>
            <numerusform>%Ln entries in the terminal queue</numerusform>
        </translation>
    </message>
</context>
</TS>
