<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Text</name>
    <message numerus="yes">
        <source>Logged %Ln time(s): &quot;%1&quot;.</source>
        <translation>
            <numerusform>Logged %Ln time: &quot;%1&quot;.</numerusform>
            <numerusform>Logged %Ln times: &quot;%1&quot;.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Logged %Ln time(s) from %1 to %2: &quot;%3&quot;.</source>
        <translation>
            <numerusform>Logged %Ln time from %1 to %2: &quot;%3&quot;.</numerusform>
            <numerusform>Logged %Ln times from %1 to %2: &quot;%3&quot;.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>It concerns %Ln person(s), among them %1.</source>
        <translation>
            <numerusform>It concerns %Ln person, among them %1.</numerusform>
            <numerusform>It concerns %Ln people, among them %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No synchronisation came between %1 and %2, although one usually comes every %Ln second(s); the log ends then.</source>
        <translation>
            <numerusform>No synchronisation came between %1 and %2, although one usually comes every %Ln second; the log ends then.</numerusform>
            <numerusform>No synchronisation came between %1 and %2, although one usually comes every %Ln seconds; the log ends then.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No synchronisation came between %1 and %2, although one usually comes every %Ln second(s).</source>
        <translation>
            <numerusform>No synchronisation came between %1 and %2, although one usually comes every %Ln second.</numerusform>
            <numerusform>No synchronisation came between %1 and %2, although one usually comes every %Ln seconds.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No tick came between %1 and %2, although one usually comes every %Ln second(s); the log ends then.</source>
        <translation>
            <numerusform>No tick came between %1 and %2, although one usually comes every %Ln second; the log ends then.</numerusform>
            <numerusform>No tick came between %1 and %2, although one usually comes every %Ln seconds; the log ends then.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No tick came between %1 and %2, although one usually comes every %Ln second(s).</source>
        <translation>
            <numerusform>No tick came between %1 and %2, although one usually comes every %Ln second.</numerusform>
            <numerusform>No tick came between %1 and %2, although one usually comes every %Ln seconds.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln synchronisation(s)</source>
        <translation>
            <numerusform>%Ln synchronisation</numerusform>
            <numerusform>%Ln synchronisations</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln error(s)</source>
        <translation>
            <numerusform>%Ln error</numerusform>
            <numerusform>%Ln errors</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln warning(s)</source>
        <translation>
            <numerusform>%Ln warning</numerusform>
            <numerusform>%Ln warnings</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln line(s) begin like the plugin&apos;s and none that is known, the first of them %1.</source>
        <translation>
            <numerusform>%Ln line begins like the plugin&apos;s and none that is known, the first of them %1.</numerusform>
            <numerusform>%Ln lines begin like the plugin&apos;s and none that is known, the first of them %1.</numerusform>
        </translation>
    </message>
</context>
</TS>
