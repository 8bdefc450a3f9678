<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Text</name>
    <message numerus="yes">
        <source>The plugin sees the flag at its next tick, within %Ln second(s) when it is not busy.</source>
        <translation>
            <numerusform>The plugin sees the flag at its next tick, within %Ln second when it is not busy.</numerusform>
            <numerusform>The plugin sees the flag at its next tick, within %Ln seconds when it is not busy.</numerusform>
        </translation>
    </message>
</context>
</TS>
