<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>No findings</source>
        <translation>Žiadne nálezy</translation>
    </message>
    <message>
        <source>There are findings that need attention</source>
        <translation>Sú nálezy, ktoré si vyžadujú pozornosť</translation>
    </message>
    <message>
        <source>The command line, a file that it names, or the configuration cannot be used</source>
        <translation>Príkazový riadok, súbor v ňom uvedený alebo konfigurácia sa nedá použiť</translation>
    </message>
    <message>
        <source>The database cannot be reached or used</source>
        <translation>Databáza je nedostupná alebo sa nedá použiť</translation>
    </message>
    <message>
        <source>The database violates what the plugin relies on</source>
        <translation>Databáza porušuje to, na čo sa zásuvný modul spolieha</translation>
    </message>
    <message>
        <source>A safeguard refused the request; nothing was changed</source>
        <translation>Poistka požiadavku odmietla; nič sa nezmenilo</translation>
    </message>
    <message>
        <source>most likely %1</source>
        <translation>pravdepodobne %1</translation>
    </message>
    <message>
        <source>dropped</source>
        <translation>vynechaný</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Podrobnosti</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Riadok</translation>
    </message>
    <message>
        <source>Who</source>
        <translation>Kto</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Pole</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Výsledok</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Čo je zlé</translation>
    </message>
    <message>
        <source>Written by mirovahrctl %1 on %2.</source>
        <translation>Zapísal mirovahrctl %1, %2.</translation>
    </message>
    <message numerus="yes">
        <source>Not shown on this page: %Ln more finding(s).</source>
        <translation>
            <numerusform>Na tejto stránke nie je zobrazený ešte %Ln nález.</numerusform>
            <numerusform>Na tejto stránke nie sú zobrazené ešte %Ln nálezy.</numerusform>
            <numerusform>Na tejto stránke nie je zobrazených ešte %Ln nálezov.</numerusform>
        </translation>
    </message>
    <message>
        <source>note</source>
        <translation>poznámka</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>upozornenie</translation>
    </message>
    <message>
        <source>error</source>
        <translation>chyba</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>riadok %1</translation>
    </message>
    <message>
        <source>Tell HR: %1</source>
        <translation>Pre personálne oddelenie: %1</translation>
    </message>
    <message>
        <source>The line: %1</source>
        <translation>Riadok: %1</translation>
    </message>
    <message>
        <source>… and %1 more: %2.</source>
        <translation>… a ešte %1: %2.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln day(s)</source>
        <translation>
            <numerusform>%Ln deň</numerusform>
            <numerusform>%Ln dni</numerusform>
            <numerusform>%Ln dní</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln hour(s)</source>
        <translation>
            <numerusform>%Ln hodina</numerusform>
            <numerusform>%Ln hodiny</numerusform>
            <numerusform>%Ln hodín</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln minute(s)</source>
        <translation>
            <numerusform>%Ln minúta</numerusform>
            <numerusform>%Ln minúty</numerusform>
            <numerusform>%Ln minút</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln second(s)</source>
        <translation>
            <numerusform>%Ln sekunda</numerusform>
            <numerusform>%Ln sekundy</numerusform>
            <numerusform>%Ln sekúnd</numerusform>
        </translation>
    </message>
    <message>
        <source>yes</source>
        <translation>áno</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nie</translation>
    </message>
</context>
</TS>
