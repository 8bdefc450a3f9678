<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message numerus="yes">
        <source>%Ln personal number(s) stay as they are: with other numbers, other people would have the same pid</source>
        <translation>
            <numerusform>%Ln osobné číslo zostáva nezmenené: s inými číslami by iné osoby mali rovnaký pid</numerusform>
            <numerusform>%Ln osobné čísla zostávajú nezmenené: s inými číslami by iné osoby mali rovnaký pid</numerusform>
            <numerusform>%Ln osobných čísel zostáva nezmenených: s inými číslami by iné osoby mali rovnaký pid</numerusform>
        </translation>
    </message>
    <message>
        <source>--json needs --output: the export would follow on standard output</source>
        <translation>--json vyžaduje --output: export by nasledoval na štandardnom výstupe</translation>
    </message>
    <message>
        <source>Anonymising the export</source>
        <translation>Anonymizácia exportu</translation>
    </message>
    <message>
        <source>HR export %1</source>
        <translation>Export personálneho oddelenia %1</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Súhrn</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Riadky</translation>
    </message>
    <message>
        <source>Personal numbers that stay</source>
        <translation>Nezmenené osobné čísla</translation>
    </message>
    <message>
        <source>The export is in %1, with other names and numbers.</source>
        <translation>Export je v súbore %1, s inými menami a číslami.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>súbor</translation>
    </message>
    <message>
        <source>The export.</source>
        <translation>Export.</translation>
    </message>
    <message>
        <source>Write to this file, which only its owner may read, and report what is in it; otherwise to standard output.</source>
        <translation>Zapísať do tohto súboru, ktorý smie čítať iba jeho vlastník, a vypísať, čo obsahuje; inak na štandardný výstup.</translation>
    </message>
    <message>
        <source>Writes an HR export again for a support case: with other texts, phone numbers, personal numbers and cost centres, but the same people and supervisors, and every mistake where it was. Dates, relationships, calendars, codes and vacation balances stay: the plugin decides by them.</source>
        <translation>Zapíše export personálneho oddelenia znova, na účely podpory: s inými textami, telefónnymi číslami, osobnými číslami a strediskami, ale s tými istými osobami a nadriadenými a s každou chybou na jej mieste. Dátumy, pomery, kalendáre, kódy a zostatky dovolenky zostávajú: zásuvný modul podľa nich rozhoduje.</translation>
    </message>
    <message>
        <source>All texts, phone numbers, personal numbers and cost centres were replaced. Dates, relationships, calendars, codes and vacation balances are those of the export: whoever knows the people may recognise somebody by them.</source>
        <translation>Všetky texty, telefónne čísla, osobné čísla a strediská boli nahradené. Dátumy, pomery, kalendáre, kódy a zostatky dovolenky sú z exportu: kto ľudí pozná, môže podľa nich niekoho spoznať.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln line(s) have too few or too many fields: there all dates and all numbers below 1000 stay, whatever they are.</source>
        <translation>
            <numerusform>%Ln riadok má príliš málo alebo príliš veľa polí: v ňom zostávajú všetky dátumy a všetky čísla menšie ako 1000, nech znamenajú čokoľvek.</numerusform>
            <numerusform>%Ln riadky majú príliš málo alebo príliš veľa polí: v nich zostávajú všetky dátumy a všetky čísla menšie ako 1000, nech znamenajú čokoľvek.</numerusform>
            <numerusform>%Ln riadkov má príliš málo alebo príliš veľa polí: v nich zostávajú všetky dátumy a všetky čísla menšie ako 1000, nech znamenajú čokoľvek.</numerusform>
        </translation>
    </message>
</context>
</TS>
