<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>Values of the newer export are misread that were not before.</source>
        <translation>Niektoré hodnoty, ktoré sa predtým čítali správne, sa v novšom exporte čítajú nesprávne.</translation>
    </message>
    <message>
        <source>check-file names the lines and what is wrong with each.</source>
        <translation>Riadky a čo je v ktorom zlé uvedie check-file.</translation>
    </message>
    <message>
        <source>Many balances are the same multiple, or the same fraction, of what they were.</source>
        <translation>Mnohé zostatky sú rovnakým násobkom alebo rovnakým zlomkom predchádzajúcich.</translation>
    </message>
    <message>
        <source>Ask HR whether they are hours instead of days, or have lost their decimal points.</source>
        <translation>Overte u personálneho oddelenia, či to nie sú hodiny namiesto dní alebo či nevypadli desatinné bodky.</translation>
    </message>
    <message>
        <source>Compares two HR exports as the plugin reads them, and changes nothing. Reports who is new, leaves, returns or gets another cost centre, and for each field how many values changed, were emptied, or are misread by the plugin now.</source>
        <translation>Porovná dva exporty personálneho oddelenia tak, ako ich číta zásuvný modul, a nič nezmení. Uvedie, kto je nový, kto odchádza, vracia sa alebo mení stredisko, a pri každom poli, koľko hodnôt sa zmenilo, vymazalo alebo ich zásuvný modul teraz číta nesprávne.</translation>
    </message>
    <message>
        <source>Reading the exports</source>
        <translation>Čítanie exportov</translation>
    </message>
    <message>
        <source>HR export %1 compared with %2</source>
        <translation>Export %1 v porovnaní s %2</translation>
    </message>
    <message>
        <source>Neither export has a person &apos;%1&apos;</source>
        <translation>Osoba „%1“ nie je ani v jednom exporte</translation>
    </message>
    <message>
        <source>Person %1 in two HR exports</source>
        <translation>Osoba %1 v dvoch exportoch</translation>
    </message>
    <message>
        <source>This is what the exports say.</source>
        <translation>Toto uvádzajú exporty.</translation>
    </message>
    <message>
        <source>old</source>
        <translation>starý</translation>
    </message>
    <message>
        <source>The older export.</source>
        <translation>Starší export.</translation>
    </message>
    <message>
        <source>new</source>
        <translation>nový</translation>
    </message>
    <message>
        <source>The newer export.</source>
        <translation>Novší export.</translation>
    </message>
    <message>
        <source>id</source>
        <translation>id</translation>
    </message>
    <message>
        <source>Show only what differs for one person: a payroll id such as 1234.1, a personal number or a pid.</source>
        <translation>Ukáže rozdiely len pri jednej osobe: identifikátor pre mzdy, napríklad 1234.1, osobné číslo alebo pid.</translation>
    </message>
    <message>
        <source>Show all people of each list, not only the first 20.</source>
        <translation>V každom zozname ukáže všetky osoby, nie iba prvých 20.</translation>
    </message>
    <message numerus="yes">
        <source>The plugin misreads the %1 of %Ln person(s): %2</source>
        <translation>
            <numerusform>Zásuvný modul pri %Ln osobe nesprávne číta pole „%1“: %2</numerusform>
            <numerusform>Zásuvný modul pri %Ln osobách nesprávne číta pole „%1“: %2</numerusform>
            <numerusform>Zásuvný modul pri %Ln osobách nesprávne číta pole „%1“: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The vacation balances of %Ln person(s) are %1 times what they were.</source>
        <translation>
            <numerusform>Zostatok dovolenky %Ln osoby je %1-násobkom predchádzajúceho.</numerusform>
            <numerusform>Zostatky dovolenky %Ln osôb sú %1-násobkom predchádzajúcich.</numerusform>
            <numerusform>Zostatky dovolenky %Ln osôb sú %1-násobkom predchádzajúcich.</numerusform>
        </translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Nálezy</translation>
    </message>
    <message>
        <source>No value that was read before is misread now.</source>
        <translation>Čo sa predtým čítalo správne, číta sa správne aj teraz.</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Osoby</translation>
    </message>
    <message>
        <source>Nobody is new, leaves, returns or moves.</source>
        <translation>Nikto nie je nový, neodchádza, nevracia sa ani nemení stredisko.</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nové</translation>
    </message>
    <message>
        <source>Missing from the newer export</source>
        <translation>Chýbajú v novšom exporte</translation>
    </message>
    <message>
        <source>Leaving</source>
        <translation>Odchádzajú</translation>
    </message>
    <message>
        <source>Returning</source>
        <translation>Vracajú sa</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Polia</translation>
    </message>
    <message>
        <source>Misread</source>
        <translation>Nesprávne prečítané</translation>
    </message>
    <message>
        <source>Emptied</source>
        <translation>Vymazané</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Zmenené</translation>
    </message>
    <message>
        <source>Repaired</source>
        <translation>Napravené</translation>
    </message>
    <message>
        <source>Balances that are read change by %1 days altogether, with a median of %2 days.</source>
        <translation>Prečítané zostatky sa zmenia spolu o %1 dňa, medián zmien je %2 dňa.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Súhrn</translation>
    </message>
    <message>
        <source>People in the older export</source>
        <translation>Osoby v staršom exporte</translation>
    </message>
    <message>
        <source>People in the newer export</source>
        <translation>Osoby v novšom exporte</translation>
    </message>
    <message>
        <source>Lines about somebody of an earlier line, which is not compared</source>
        <translation>Riadky o osobe zo skoršieho riadka, ktorý sa neporovnáva</translation>
    </message>
    <message>
        <source>Moving</source>
        <translation>Menia stredisko</translation>
    </message>
    <message>
        <source>With another supervisor</source>
        <translation>S iným nadriadeným</translation>
    </message>
    <message>
        <source>With another calendar</source>
        <translation>S iným kalendárom</translation>
    </message>
    <message>
        <source>With another vacation balance</source>
        <translation>S iným zostatkom dovolenky</translation>
    </message>
    <message>
        <source>Sum of the changes of balances, in days</source>
        <translation>Súčet zmien zostatkov v dňoch</translation>
    </message>
    <message>
        <source>Median of the changes of balances, in days</source>
        <translation>Medián zmien zostatkov v dňoch</translation>
    </message>
    <message>
        <source>The exports differ.</source>
        <translation>Exporty sa líšia.</translation>
    </message>
    <message>
        <source>The plugin reads the same people from both exports.</source>
        <translation>Zásuvný modul prečíta z oboch exportov tie isté údaje.</translation>
    </message>
    <message>
        <source>Misread: %1</source>
        <translation>Nesprávne prečítané: %1</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Pole</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Význam</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Predtým</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Teraz</translation>
    </message>
    <message>
        <source>What the plugin makes of it</source>
        <translation>Ako to spracuje zásuvný modul</translation>
    </message>
    <message>
        <source>The person is new.</source>
        <translation>Osoba je nová.</translation>
    </message>
    <message>
        <source>The person is missing from the newer export.</source>
        <translation>Osoba v novšom exporte chýba.</translation>
    </message>
    <message>
        <source>Nothing has changed.</source>
        <translation>Nič sa nezmenilo.</translation>
    </message>
    <message>
        <source>These fields differ:</source>
        <translation>Líšia sa tieto polia:</translation>
    </message>
</context>
</TS>
