<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>No findings</source>
        <translation>Žádné nálezy</translation>
    </message>
    <message>
        <source>There are findings that need attention</source>
        <translation>Jsou nálezy, které vyžadují pozornost</translation>
    </message>
    <message>
        <source>The command line, a file that it names, or the configuration cannot be used</source>
        <translation>Příkazový řádek, soubor v něm uvedený nebo konfiguraci nelze použít</translation>
    </message>
    <message>
        <source>The database cannot be reached or used</source>
        <translation>Databáze je nedostupná nebo ji nelze použít</translation>
    </message>
    <message>
        <source>The database violates what the plugin relies on</source>
        <translation>Databáze porušuje to, na co zásuvný modul spoléhá</translation>
    </message>
    <message>
        <source>A safeguard refused the request; nothing was changed</source>
        <translation>Pojistka požadavek odmítla; nic se nezměnilo</translation>
    </message>
    <message>
        <source>most likely %1</source>
        <translation>pravděpodobně %1</translation>
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
        <translation>Řádek</translation>
    </message>
    <message>
        <source>Who</source>
        <translation>Kdo</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Pole</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Výsledek</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Co je špatně</translation>
    </message>
    <message>
        <source>Written by mirovahrctl %1 on %2.</source>
        <translation>Zapsal mirovahrctl %1, %2.</translation>
    </message>
    <message numerus="yes">
        <source>Not shown on this page: %Ln more finding(s).</source>
        <translation>
            <numerusform>Na této stránce není zobrazen ještě %Ln nález.</numerusform>
            <numerusform>Na této stránce nejsou zobrazeny ještě %Ln nálezy.</numerusform>
            <numerusform>Na této stránce není zobrazeno ještě %Ln nálezů.</numerusform>
        </translation>
    </message>
    <message>
        <source>note</source>
        <translation>poznámka</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>upozornění</translation>
    </message>
    <message>
        <source>error</source>
        <translation>chyba</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>řádek %1</translation>
    </message>
    <message>
        <source>Tell HR: %1</source>
        <translation>Pro personální oddělení: %1</translation>
    </message>
    <message>
        <source>The line: %1</source>
        <translation>Řádek: %1</translation>
    </message>
    <message>
        <source>… and %1 more: %2.</source>
        <translation>… a ještě %1: %2.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln day(s)</source>
        <translation>
            <numerusform>%Ln den</numerusform>
            <numerusform>%Ln dny</numerusform>
            <numerusform>%Ln dní</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln hour(s)</source>
        <translation>
            <numerusform>%Ln hodina</numerusform>
            <numerusform>%Ln hodiny</numerusform>
            <numerusform>%Ln hodin</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln minute(s)</source>
        <translation>
            <numerusform>%Ln minuta</numerusform>
            <numerusform>%Ln minuty</numerusform>
            <numerusform>%Ln minut</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln second(s)</source>
        <translation>
            <numerusform>%Ln sekunda</numerusform>
            <numerusform>%Ln sekundy</numerusform>
            <numerusform>%Ln sekund</numerusform>
        </translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ano</translation>
    </message>
    <message>
        <source>no</source>
        <translation>ne</translation>
    </message>
</context>
</TS>
