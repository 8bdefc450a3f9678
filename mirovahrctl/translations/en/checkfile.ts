<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Text</name>
    <message numerus="yes">
        <source>The export has %Ln line(s) with errors; the plugin drops %1 of them.</source>
        <translation>
            <numerusform>The export has %Ln line with errors; the plugin drops %1 of them.</numerusform>
            <numerusform>The export has %Ln lines with errors; the plugin drops %1 of them.</numerusform>
        </translation>
    </message>
</context>
</TS>
