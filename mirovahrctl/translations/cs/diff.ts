<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>Values of the newer export are misread that were not before.</source>
        <translation>Některé hodnoty, které se předtím četly správně, se v novějším exportu čtou nesprávně.</translation>
    </message>
    <message>
        <source>check-file names the lines and what is wrong with each.</source>
        <translation>Řádky a co je v kterém špatně uvede check-file.</translation>
    </message>
    <message>
        <source>Many balances are the same multiple, or the same fraction, of what they were.</source>
        <translation>Mnohé zůstatky jsou stejným násobkem nebo stejným zlomkem předchozích.</translation>
    </message>
    <message>
        <source>Ask HR whether they are hours instead of days, or have lost their decimal points.</source>
        <translation>Ověřte u personálního oddělení, zda to nejsou hodiny místo dnů nebo zda nevypadly desetinné tečky.</translation>
    </message>
    <message>
        <source>Compares two HR exports as the plugin reads them, and changes nothing. Reports who is new, leaves, returns or gets another cost centre, and for each field how many values changed, were emptied, or are misread by the plugin now.</source>
        <translation>Porovná dva exporty personálního oddělení tak, jak je čte zásuvný modul, a nic nezmění. Uvede, kdo je nový, kdo odchází, vrací se nebo mění středisko, a u každého pole, kolik hodnot se změnilo, vymazalo nebo je zásuvný modul nyní čte nesprávně.</translation>
    </message>
    <message>
        <source>Reading the exports</source>
        <translation>Čtení exportů</translation>
    </message>
    <message>
        <source>HR export %1 compared with %2</source>
        <translation>Export %1 v porovnání s %2</translation>
    </message>
    <message>
        <source>Neither export has a person &apos;%1&apos;</source>
        <translation>Osoba „%1“ není ani v jednom exportu</translation>
    </message>
    <message>
        <source>Person %1 in two HR exports</source>
        <translation>Osoba %1 ve dvou exportech</translation>
    </message>
    <message>
        <source>This is what the exports say.</source>
        <translation>Toto uvádějí exporty.</translation>
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
        <translation>Novější export.</translation>
    </message>
    <message>
        <source>id</source>
        <translation>id</translation>
    </message>
    <message>
        <source>Show only what differs for one person: a payroll id such as 1234.1, a personal number or a pid.</source>
        <translation>Ukáže rozdíly jen u jedné osoby: identifikátor pro mzdy, například 1234.1, osobní číslo nebo pid.</translation>
    </message>
    <message>
        <source>Show all people of each list, not only the first 20.</source>
        <translation>V každém seznamu ukáže všechny osoby, nejen prvních 20.</translation>
    </message>
    <message numerus="yes">
        <source>The plugin misreads the %1 of %Ln person(s): %2</source>
        <translation>
            <numerusform>Zásuvný modul u %Ln osoby nesprávně čte pole „%1“: %2</numerusform>
            <numerusform>Zásuvný modul u %Ln osob nesprávně čte pole „%1“: %2</numerusform>
            <numerusform>Zásuvný modul u %Ln osob nesprávně čte pole „%1“: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The vacation balances of %Ln person(s) are %1 times what they were.</source>
        <translation>
            <numerusform>Zůstatek dovolené %Ln osoby je %1násobkem předchozího.</numerusform>
            <numerusform>Zůstatky dovolené %Ln osob jsou %1násobkem předchozích.</numerusform>
            <numerusform>Zůstatky dovolené %Ln osob jsou %1násobkem předchozích.</numerusform>
        </translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Nálezy</translation>
    </message>
    <message>
        <source>No value that was read before is misread now.</source>
        <translation>Co se předtím četlo správně, čte se správně i nyní.</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Osoby</translation>
    </message>
    <message>
        <source>Nobody is new, leaves, returns or moves.</source>
        <translation>Nikdo není nový, neodchází, nevrací se ani nemění středisko.</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nové</translation>
    </message>
    <message>
        <source>Missing from the newer export</source>
        <translation>Chybějí v novějším exportu</translation>
    </message>
    <message>
        <source>Leaving</source>
        <translation>Odcházejí</translation>
    </message>
    <message>
        <source>Returning</source>
        <translation>Vracejí se</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Pole</translation>
    </message>
    <message>
        <source>Misread</source>
        <translation>Nesprávně přečtené</translation>
    </message>
    <message>
        <source>Emptied</source>
        <translation>Vymazané</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Změněné</translation>
    </message>
    <message>
        <source>Repaired</source>
        <translation>Napravené</translation>
    </message>
    <message>
        <source>Balances that are read change by %1 days altogether, with a median of %2 days.</source>
        <translation>Přečtené zůstatky se změní celkem o %1 dne, medián změn je %2 dne.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Souhrn</translation>
    </message>
    <message>
        <source>People in the older export</source>
        <translation>Osoby ve starším exportu</translation>
    </message>
    <message>
        <source>People in the newer export</source>
        <translation>Osoby v novějším exportu</translation>
    </message>
    <message>
        <source>Lines about somebody of an earlier line, which is not compared</source>
        <translation>Řádky o osobě z dřívějšího řádku, který se neporovnává</translation>
    </message>
    <message>
        <source>Moving</source>
        <translation>Mění středisko</translation>
    </message>
    <message>
        <source>With another supervisor</source>
        <translation>S jiným nadřízeným</translation>
    </message>
    <message>
        <source>With another calendar</source>
        <translation>S jiným kalendářem</translation>
    </message>
    <message>
        <source>With another vacation balance</source>
        <translation>S jiným zůstatkem dovolené</translation>
    </message>
    <message>
        <source>Sum of the changes of balances, in days</source>
        <translation>Součet změn zůstatků ve dnech</translation>
    </message>
    <message>
        <source>Median of the changes of balances, in days</source>
        <translation>Medián změn zůstatků ve dnech</translation>
    </message>
    <message>
        <source>The exports differ.</source>
        <translation>Exporty se liší.</translation>
    </message>
    <message>
        <source>The plugin reads the same people from both exports.</source>
        <translation>Zásuvný modul přečte z obou exportů tytéž údaje.</translation>
    </message>
    <message>
        <source>Misread: %1</source>
        <translation>Nesprávně přečteno: %1</translation>
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
        <translation>Předtím</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nyní</translation>
    </message>
    <message>
        <source>What the plugin makes of it</source>
        <translation>Jak to zpracuje zásuvný modul</translation>
    </message>
    <message>
        <source>The person is new.</source>
        <translation>Osoba je nová.</translation>
    </message>
    <message>
        <source>The person is missing from the newer export.</source>
        <translation>Osoba v novějším exportu chybí.</translation>
    </message>
    <message>
        <source>Nothing has changed.</source>
        <translation>Nic se nezměnilo.</translation>
    </message>
    <message>
        <source>These fields differ:</source>
        <translation>Liší se tato pole:</translation>
    </message>
</context>
</TS>
