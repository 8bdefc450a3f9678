<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Text</name>
    <message numerus="yes">
        <source>There are %Ln rule(s).</source>
        <translation>
            <numerusform>There is %Ln rule.</numerusform>
            <numerusform>There are %Ln rules.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln subcommand(s) have this rule.</source>
        <translation>
            <numerusform>%Ln subcommand has this rule.</numerusform>
            <numerusform>%Ln subcommands have this rule.</numerusform>
        </translation>
    </message>
</context>
</TS>
