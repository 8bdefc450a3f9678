<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Text</name>
    <message numerus="yes">
        <source>%Ln personal number(s) stay as they are: with other numbers, other people would have the same pid</source>
        <translation>
            <numerusform>%Ln personal number stays as it is: with other numbers, other people would have the same pid</numerusform>
            <numerusform>%Ln personal numbers stay as they are: with other numbers, other people would have the same pid</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln line(s) have too few or too many fields: there all dates and all numbers below 1000 stay, whatever they are.</source>
        <translation>
            <numerusform>%Ln line has too few or too many fields: there all dates and all numbers below 1000 stay, whatever they are.</numerusform>
            <numerusform>%Ln lines have too few or too many fields: there all dates and all numbers below 1000 stay, whatever they are.</numerusform>
        </translation>
    </message>
</context>
</TS>
