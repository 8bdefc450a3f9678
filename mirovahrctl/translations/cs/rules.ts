<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>Lists the rules that the other subcommands check, with the severity of their findings, grouped by subcommand. With an id, such as field-count, explains that rule: what a finding means, and what to do about it.</source>
        <translation>Vypíše pravidla, která ověřují ostatní podpříkazy, se závažností jejich nálezů, podle podpříkazů. S identifikátorem, například field-count, vysvětlí dané pravidlo: co nález znamená a co s ním udělat.</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 nebo %2</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Pravidlo</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Závažnost</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Význam</translation>
    </message>
    <message>
        <source>Also reports rules of %1.</source>
        <translation>Hlásí také pravidla podpříkazů: %1.</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Pravidla</translation>
    </message>
    <message numerus="yes">
        <source>There are %Ln rule(s).</source>
        <translation>
            <numerusform>Existuje %Ln pravidlo.</numerusform>
            <numerusform>Existují %Ln pravidla.</numerusform>
            <numerusform>Existuje %Ln pravidel.</numerusform>
        </translation>
    </message>
    <message>
        <source>Rule %1</source>
        <translation>Pravidlo %1</translation>
    </message>
    <message>
        <source>What it means</source>
        <translation>Co znamená</translation>
    </message>
    <message>
        <source>Subcommand</source>
        <translation>Podpříkaz</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Co udělat</translation>
    </message>
    <message numerus="yes">
        <source>%Ln subcommand(s) have this rule.</source>
        <translation>
            <numerusform>Toto pravidlo má %Ln podpříkaz.</numerusform>
            <numerusform>Toto pravidlo mají %Ln podpříkazy.</numerusform>
            <numerusform>Toto pravidlo má %Ln podpříkazů.</numerusform>
        </translation>
    </message>
    <message>
        <source>Unknown rule &apos;%1&apos;; mirovahrctl rules lists them</source>
        <translation>Neznámé pravidlo „%1“; seznam vypíše mirovahrctl rules</translation>
    </message>
    <message>
        <source>id</source>
        <translation>id</translation>
    </message>
    <message>
        <source>The rule to explain.</source>
        <translation>Pravidlo, které se má vysvětlit.</translation>
    </message>
</context>
</TS>
