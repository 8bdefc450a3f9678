<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message numerus="yes">
        <source>%Ln personal number(s) stay as they are: with other numbers, other people would have the same pid</source>
        <translation>
            <numerusform>%Ln osobní číslo zůstává nezměněno: s jinými čísly by jiné osoby měly stejný pid</numerusform>
            <numerusform>%Ln osobní čísla zůstávají nezměněna: s jinými čísly by jiné osoby měly stejný pid</numerusform>
            <numerusform>%Ln osobních čísel zůstává nezměněno: s jinými čísly by jiné osoby měly stejný pid</numerusform>
        </translation>
    </message>
    <message>
        <source>--json needs --output: the export would follow on standard output</source>
        <translation>--json vyžaduje --output: export by následoval na standardním výstupu</translation>
    </message>
    <message>
        <source>Anonymising the export</source>
        <translation>Anonymizace exportu</translation>
    </message>
    <message>
        <source>HR export %1</source>
        <translation>Export personálního oddělení %1</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Souhrn</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Řádky</translation>
    </message>
    <message>
        <source>Personal numbers that stay</source>
        <translation>Nezměněná osobní čísla</translation>
    </message>
    <message>
        <source>The export is in %1, with other names and numbers.</source>
        <translation>Export je v souboru %1, s jinými jmény a čísly.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>soubor</translation>
    </message>
    <message>
        <source>The export.</source>
        <translation>Export.</translation>
    </message>
    <message>
        <source>Write to this file, which only its owner may read, and report what is in it; otherwise to standard output.</source>
        <translation>Zapsat do tohoto souboru, který smí číst jen jeho vlastník, a vypsat, co obsahuje; jinak na standardní výstup.</translation>
    </message>
    <message>
        <source>Writes an HR export again for a support case: with other texts, phone numbers, personal numbers and cost centres, but the same people and supervisors, and every mistake where it was. Dates, relationships, calendars, codes and vacation balances stay: the plugin decides by them.</source>
        <translation>Zapíše export personálního oddělení znovu, pro účely podpory: s jinými texty, telefonními čísly, osobními čísly a středisky, ale se stejnými osobami a nadřízenými a s každou chybou na jejím místě. Data, poměry, kalendáře, kódy a zůstatky dovolené zůstávají: zásuvný modul podle nich rozhoduje.</translation>
    </message>
    <message>
        <source>All texts, phone numbers, personal numbers and cost centres were replaced. Dates, relationships, calendars, codes and vacation balances are those of the export: whoever knows the people may recognise somebody by them.</source>
        <translation>Všechny texty, telefonní čísla, osobní čísla a střediska byly nahrazeny. Data, poměry, kalendáře, kódy a zůstatky dovolené jsou z exportu: kdo lidi zná, může podle nich někoho poznat.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln line(s) have too few or too many fields: there all dates and all numbers below 1000 stay, whatever they are.</source>
        <translation>
            <numerusform>%Ln řádek má příliš málo nebo příliš mnoho polí: v něm zůstávají všechna data a všechna čísla menší než 1000, ať znamenají cokoli.</numerusform>
            <numerusform>%Ln řádky mají příliš málo nebo příliš mnoho polí: v nich zůstávají všechna data a všechna čísla menší než 1000, ať znamenají cokoli.</numerusform>
            <numerusform>%Ln řádků má příliš málo nebo příliš mnoho polí: v nich zůstávají všechna data a všechna čísla menší než 1000, ať znamenají cokoli.</numerusform>
        </translation>
    </message>
</context>
</TS>
