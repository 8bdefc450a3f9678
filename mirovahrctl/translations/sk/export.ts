<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>Line %1 has the same employment relationship. The plugin processes both, and the last line wins.</source>
        <translation>Riadok %1 má rovnaký pracovný pomer. Zásuvný modul spracuje oba a platí posledný riadok.</translation>
    </message>
    <message>
        <source>The person in line %1, %2.%3, has the same number %4: the plugin treats both as one person, and the last line wins.</source>
        <translation>Osoba v riadku %1, %2.%3, má rovnaké číslo %4: zásuvný modul považuje obe za jednu osobu a platí posledný riadok.</translation>
    </message>
    <message>
        <source>The file contains no people: the plugin would do nothing.</source>
        <translation>Súbor neobsahuje žiadne osoby: zásuvný modul by nič neurobil.</translation>
    </message>
    <message>
        <source>The last line does not end with a line feed. The plugin reads it, but the file may be truncated.</source>
        <translation>Posledný riadok nie je ukončený znakom konca riadka. Zásuvný modul ho prečíta, ale súbor môže byť neúplný.</translation>
    </message>
    <message>
        <source>Too many people occur more than once: not all of them were compared.</source>
        <translation>Príliš veľa osôb sa vyskytuje viackrát: neporovnali sa všetky.</translation>
    </message>
    <message>
        <source>employment counts from 1 January 2000.</source>
        <translation>pracovný pomer sa počíta od 1.&#xa0;januára 2000.</translation>
    </message>
    <message>
        <source>the person counts as not leaving.</source>
        <translation>osoba sa považuje za neodchádzajúcu.</translation>
    </message>
    <message>
        <source>the person is assigned to no branch.</source>
        <translation>osoba sa nezaradí do žiadnej pobočky.</translation>
    </message>
    <message>
        <source>the person is assigned to no calendar group.</source>
        <translation>osoba sa nezaradí do žiadnej kalendárovej skupiny.</translation>
    </message>
    <message>
        <source>the calendar has no start date, and all attendance of the person is recalculated.</source>
        <translation>kalendár nemá dátum začiatku a prepočíta sa celá dochádzka osoby.</translation>
    </message>
    <message>
        <source>the person has no employment type and no payroll export.</source>
        <translation>osoba nemá druh pracovného pomeru ani export pre mzdy.</translation>
    </message>
    <message>
        <source>the employment counts as running.</source>
        <translation>pracovný pomer sa považuje za trvajúci.</translation>
    </message>
    <message>
        <source>the register state counts as 0.</source>
        <translation>evidenčný stav sa považuje za 0.</translation>
    </message>
    <message>
        <source>the vacation balance is set to 0 days.</source>
        <translation>zostatok dovolenky sa nastaví na 0 dní.</translation>
    </message>
    <message>
        <source>the person gets no new supervisor.</source>
        <translation>osoba nedostane nového nadriadeného.</translation>
    </message>
    <message>
        <source>the text arrives with wrong characters.</source>
        <translation>text príde s nesprávnymi znakmi.</translation>
    </message>
    <message>
        <source>Write the date with a time, as in %1 00:00:00.000.</source>
        <translation>Napíšte dátum s časom, napríklad %1 00:00:00.000.</translation>
    </message>
    <message>
        <source>Write the balance with a decimal point, as in 12.5.</source>
        <translation>Napíšte zostatok s desatinnou bodkou, napríklad 12.5.</translation>
    </message>
    <message>
        <source>Write the balance as a number of days, as in 12.5.</source>
        <translation>Napíšte zostatok ako počet dní, napríklad 12.5.</translation>
    </message>
    <message>
        <source>Without a personal number the plugin drops the line.</source>
        <translation>Bez osobného čísla zásuvný modul riadok vynechá.</translation>
    </message>
    <message>
        <source>Without the number of the employment relationship the plugin drops the line.</source>
        <translation>Bez čísla pracovného pomeru zásuvný modul riadok vynechá.</translation>
    </message>
    <message>
        <source>The line has neither a first name nor a surname. The plugin drops it.</source>
        <translation>Riadok nemá meno ani priezvisko. Zásuvný modul ho vynechá.</translation>
    </message>
    <message>
        <source>Personal number and relationship number form one number, %1%2, which exceeds 4294967295: the person gets the number 0, like everybody with such a number.</source>
        <translation>Osobné číslo a číslo pomeru tvoria spolu číslo %1%2, ktoré je väčšie ako 4294967295: osoba dostane číslo 0 ako každý s takým číslom.</translation>
    </message>
    <message>
        <source>The text %1 contains a character above U+FFFF, such as an emoji. The connection to the database cannot carry it: the person is not written, or the text is truncated there.</source>
        <translation>Text %1 obsahuje znak nad U+FFFF, napríklad emotikon. Spojenie s databázou ho nedokáže preniesť: osoba sa nezapíše alebo sa text na tom mieste skráti.</translation>
    </message>
    <message>
        <source>The text %1 contains an apostrophe. It enters the SQL statement unescaped, and the statement fails or does something else: the person is not written.</source>
        <translation>Text %1 obsahuje apostrof. Do príkazu SQL sa dostane bez ošetrenia a príkaz zlyhá alebo urobí niečo iné: osoba sa nezapíše.</translation>
    </message>
    <message>
        <source>The text %1 contains a backslash. It enters the SQL statement unescaped: the text arrives changed, or the statement fails.</source>
        <translation>Text %1 obsahuje opačnú lomku. Do príkazu SQL sa dostane bez ošetrenia: text príde zmenený alebo príkaz zlyhá.</translation>
    </message>
    <message>
        <source>The text %1 contains a percent sign followed by a digit. The plugin replaces the two with another value: wrong data is written, or the statement fails.</source>
        <translation>Text %1 obsahuje znak percenta a za ním číslicu. Zásuvný modul tieto dva znaky nahradí inou hodnotou: zapíšu sa nesprávne údaje alebo príkaz zlyhá.</translation>
    </message>
    <message>
        <source>The text has %1 characters, but the column holds %2. Depending on its SQL mode, the database truncates the text or rejects the person.</source>
        <translation>Text má %1 znakov, ale do stĺpca sa ich zmestí %2. Databáza podľa režimu SQL text skráti alebo osobu odmietne.</translation>
    </message>
    <message numerus="yes">
        <source>Shorten the text to %Ln character(s).</source>
        <translation>
            <numerusform>Skráťte text na %Ln znak.</numerusform>
            <numerusform>Skráťte text na %Ln znaky.</numerusform>
            <numerusform>Skráťte text na %Ln znakov.</numerusform>
        </translation>
    </message>
    <message>
        <source>The person leaves on %1, before employment begins on %2.</source>
        <translation>Osoba odchádza %1, skôr ako sa pracovný pomer začína %2.</translation>
    </message>
    <message>
        <source>The date is missing: %1</source>
        <translation>Dátum chýba: %1</translation>
    </message>
    <message>
        <source>The plugin cannot read %1 as a date: %2</source>
        <translation>Zásuvný modul nedokáže prečítať %1 ako dátum: %2</translation>
    </message>
    <message>
        <source>The plugin can store days from 1970 to 2106; %1 comes back from the database as another day.</source>
        <translation>Zásuvný modul dokáže uložiť dni od roku 1970 do roku 2106; %1 sa z databázy vráti ako iný deň.</translation>
    </message>
    <message>
        <source>Leave the leaving date empty for a person who does not leave.</source>
        <translation>Ak osoba neodchádza, nechajte dátum odchodu prázdny.</translation>
    </message>
    <message>
        <source>%1 It is read as 0: %2</source>
        <translation>%1 Prečíta sa ako 0: %2</translation>
    </message>
    <message>
        <source>Codes go up to 65535; %1 is read as %2.</source>
        <translation>Najväčší kód je 65535; %1 sa prečíta ako %2.</translation>
    </message>
    <message>
        <source>A balance of %1 days cannot be stored: the balance is not changed.</source>
        <translation>Zostatok %1 dní sa nedá uložiť: zostatok sa nezmení.</translation>
    </message>
    <message>
        <source>The field is empty.</source>
        <translation>Pole je prázdne.</translation>
    </message>
    <message>
        <source>The number is 0.</source>
        <translation>Číslo je 0.</translation>
    </message>
    <message>
        <source>The plugin cannot read %1 as a number.</source>
        <translation>Zásuvný modul nedokáže prečítať %1 ako číslo.</translation>
    </message>
    <message>
        <source>personal number %1</source>
        <translation>osobné číslo %1</translation>
    </message>
    <message>
        <source>The file is encoded in UTF-16; the plugin reads UTF-8 only.</source>
        <translation>Súbor je v kódovaní UTF-16; zásuvný modul číta len UTF-8.</translation>
    </message>
    <message>
        <source>The line begins with a byte order mark, which the plugin skips.</source>
        <translation>Riadok sa začína značkou poradia bajtov (BOM), ktorú zásuvný modul preskočí.</translation>
    </message>
    <message>
        <source>The line contains a NUL byte; the plugin reads nothing after it.</source>
        <translation>Riadok obsahuje bajt NUL; čo je za ním, zásuvný modul nečíta.</translation>
    </message>
    <message>
        <source>Some bytes are not UTF-8; each is read as the character �.</source>
        <translation>Niektoré bajty nie sú v kódovaní UTF-8; každý sa prečíta ako znak �.</translation>
    </message>
    <message>
        <source>The line is longer than %1 bytes; the plugin skips it.</source>
        <translation>Riadok je dlhší ako %1 bajtov; zásuvný modul ho preskočí.</translation>
    </message>
    <message>
        <source>Separate fields with the character |, nothing else.</source>
        <translation>Polia oddeľujte znakom | a ničím iným.</translation>
    </message>
    <message>
        <source>There must be no | after the last field.</source>
        <translation>Za posledným poľom nesmie byť znak |.</translation>
    </message>
    <message>
        <source>No text may contain the character |.</source>
        <translation>Žiadny text nesmie obsahovať znak |.</translation>
    </message>
    <message>
        <source>Write empty fields too, each with its |.</source>
        <translation>Zapisujte aj prázdne polia, každé s jeho znakom |.</translation>
    </message>
    <message numerus="yes">
        <source>The line has %Ln field(s) instead of %1.</source>
        <translation>
            <numerusform>Riadok má %Ln pole namiesto %1.</numerusform>
            <numerusform>Riadok má %Ln polia namiesto %1.</numerusform>
            <numerusform>Riadok má %Ln polí namiesto %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>This is a header line; the plugin reads it as a person without a number.</source>
        <translation>Toto je hlavička; zásuvný modul ju prečíta ako osobu bez čísla.</translation>
    </message>
    <message>
        <source>There is no file &apos;%1&apos;</source>
        <translation>Súbor „%1“ neexistuje</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be opened: %2</source>
        <translation>„%1“ sa nedá otvoriť: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read to its end: %2</source>
        <translation>„%1“ sa nedá prečítať do konca: %2</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Riadok %1: %2</translation>
    </message>
    <message>
        <source>Line %1 (%2): %3</source>
        <translation>Riadok %1 (%2): %3</translation>
    </message>
    <message>
        <source>Lines of the export %1 that the attendance system drops, cannot store correctly, or misreads.</source>
        <translation>Riadky exportu %1, ktoré dochádzkový systém vynechá, nedokáže správne uložiť alebo prečíta nesprávne.</translation>
    </message>
    <message>
        <source>Checked on %1. Each line follows its reasons.</source>
        <translation>Skontrolované %1. Každý riadok nasleduje za svojimi dôvodmi.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln line(s).</source>
        <translation>
            <numerusform>%Ln riadok.</numerusform>
            <numerusform>%Ln riadky.</numerusform>
            <numerusform>%Ln riadkov.</numerusform>
        </translation>
    </message>
</context>
</TS>
