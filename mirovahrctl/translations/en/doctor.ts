<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Text</name>
    <message numerus="yes">
        <source>And %Ln more finding(s) of this rule.</source>
        <translation>
            <numerusform>And %Ln more finding of this rule.</numerusform>
            <numerusform>And %Ln more findings of this rule.</numerusform>
        </translation>
    </message>
</context>
</TS>
