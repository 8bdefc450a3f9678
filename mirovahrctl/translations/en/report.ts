<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Text</name>
    <message numerus="yes">
        <source>Not shown on this page: %Ln more finding(s).</source>
        <translation>
            <numerusform>Not shown on this page: %Ln more finding.</numerusform>
            <numerusform>Not shown on this page: %Ln more findings.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln day(s)</source>
        <translation>
            <numerusform>%Ln day</numerusform>
            <numerusform>%Ln days</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln hour(s)</source>
        <translation>
            <numerusform>%Ln hour</numerusform>
            <numerusform>%Ln hours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln minute(s)</source>
        <translation>
            <numerusform>%Ln minute</numerusform>
            <numerusform>%Ln minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln second(s)</source>
        <translation>
            <numerusform>%Ln second</numerusform>
            <numerusform>%Ln seconds</numerusform>
        </translation>
    </message>
</context>
</TS>
