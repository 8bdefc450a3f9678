<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>Lists the rules that the other subcommands check, with the severity of their findings, grouped by subcommand. With an id, such as field-count, explains that rule: what a finding means, and what to do about it.</source>
        <translation>Vypíše pravidlá, ktoré overujú ostatné podpríkazy, so závažnosťou ich nálezov, podľa podpríkazov. S identifikátorom, napríklad field-count, vysvetlí dané pravidlo: čo nález znamená a čo s ním urobiť.</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 alebo %2</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Pravidlo</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Závažnosť</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Význam</translation>
    </message>
    <message>
        <source>Also reports rules of %1.</source>
        <translation>Hlási aj pravidlá podpríkazov: %1.</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Pravidlá</translation>
    </message>
    <message numerus="yes">
        <source>There are %Ln rule(s).</source>
        <translation>
            <numerusform>Existuje %Ln pravidlo.</numerusform>
            <numerusform>Existujú %Ln pravidlá.</numerusform>
            <numerusform>Existuje %Ln pravidiel.</numerusform>
        </translation>
    </message>
    <message>
        <source>Rule %1</source>
        <translation>Pravidlo %1</translation>
    </message>
    <message>
        <source>What it means</source>
        <translation>Čo znamená</translation>
    </message>
    <message>
        <source>Subcommand</source>
        <translation>Podpríkaz</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Čo urobiť</translation>
    </message>
    <message numerus="yes">
        <source>%Ln subcommand(s) have this rule.</source>
        <translation>
            <numerusform>Toto pravidlo má %Ln podpríkaz.</numerusform>
            <numerusform>Toto pravidlo majú %Ln podpríkazy.</numerusform>
            <numerusform>Toto pravidlo má %Ln podpríkazov.</numerusform>
        </translation>
    </message>
    <message>
        <source>Unknown rule &apos;%1&apos;; mirovahrctl rules lists them</source>
        <translation>Neznáme pravidlo „%1“; zoznam vypíše mirovahrctl rules</translation>
    </message>
    <message>
        <source>id</source>
        <translation>id</translation>
    </message>
    <message>
        <source>The rule to explain.</source>
        <translation>Pravidlo, ktoré sa má vysvetliť.</translation>
    </message>
</context>
</TS>
