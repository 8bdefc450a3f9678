<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>The line has too few or too many fields, so the plugin drops it.</source>
        <translation>Riadok má príliš málo alebo príliš veľa polí, preto ho zásuvný modul vynechá.</translation>
    </message>
    <message>
        <source>Write every field, even an empty one, and separate them with the character |, which no text may contain.</source>
        <translation>Zapíšte každé pole, aj prázdne, a polia oddeľte znakom |, ktorý sa nesmie vyskytnúť v žiadnom texte.</translation>
    </message>
    <message>
        <source>The line is a header, which the plugin reads as a person without a number and drops.</source>
        <translation>Riadok je hlavička, ktorú zásuvný modul prečíta ako osobu bez čísla a vynechá.</translation>
    </message>
    <message>
        <source>Export without a header.</source>
        <translation>Exportujte bez hlavičky.</translation>
    </message>
    <message>
        <source>The line exceeds the longest that the plugin reads, so the plugin skips it.</source>
        <translation>Riadok je dlhší než najdlhší, aký zásuvný modul číta, preto ho preskočí.</translation>
    </message>
    <message>
        <source>The export is damaged; perhaps line feeds are missing.</source>
        <translation>Export je poškodený; možno v ňom chýbajú konce riadkov.</translation>
    </message>
    <message>
        <source>The line has neither a first name nor a surname, so the plugin drops it.</source>
        <translation>Riadok nemá meno ani priezvisko, preto ho zásuvný modul vynechá.</translation>
    </message>
    <message>
        <source>Provide at least one of the two.</source>
        <translation>Uveďte aspoň jedno z nich.</translation>
    </message>
    <message>
        <source>The line has no personal number above 0, so the plugin drops it.</source>
        <translation>Riadok nemá osobné číslo väčšie ako 0, preto ho zásuvný modul vynechá.</translation>
    </message>
    <message>
        <source>Write the personal number into the first field: digits, above 0.</source>
        <translation>Do prvého poľa napíšte osobné číslo: číslice, viac ako 0.</translation>
    </message>
    <message>
        <source>The line has no relationship number above 0, so the plugin drops it.</source>
        <translation>Riadok nemá číslo pomeru väčšie ako 0, preto ho zásuvný modul vynechá.</translation>
    </message>
    <message>
        <source>Write the number of the employment relationship into the second field: digits, above 0.</source>
        <translation>Do druhého poľa napíšte číslo pracovného pomeru: číslice, viac ako 0.</translation>
    </message>
    <message>
        <source>The line contains a NUL byte; the plugin reads nothing after it.</source>
        <translation>Riadok obsahuje bajt NUL; čo je za ním, zásuvný modul nečíta.</translation>
    </message>
    <message>
        <source>The export is damaged, or not encoded in UTF-8.</source>
        <translation>Export je poškodený alebo nie je v kódovaní UTF-8.</translation>
    </message>
    <message>
        <source>A text contains a backslash: it arrives changed, or its statement fails.</source>
        <translation>Text obsahuje opačnú lomku: príde zmenený alebo jeho príkaz zlyhá.</translation>
    </message>
    <message>
        <source>mirovahrctl gate writes such a text so that it arrives; without the gate, write it without \.</source>
        <translation>mirovahrctl gate zapíše taký text tak, aby prišiel správne; bez brány ho napíšte bez znaku \.</translation>
    </message>
    <message>
        <source>Two people have numbers that join to the same pid; the plugin treats both as one person.</source>
        <translation>Dve osoby majú čísla, ktoré sa spoja do rovnakého pid; zásuvný modul ich považuje za jednu osobu.</translation>
    </message>
    <message>
        <source>One of the two needs another personal number.</source>
        <translation>Jedna z nich potrebuje iné osobné číslo.</translation>
    </message>
    <message>
        <source>The person&apos;s numbers join to more than 32 bits, so the pid becomes 0.</source>
        <translation>Čísla osoby tvoria spolu viac ako 32 bitov, preto je jej pid 0.</translation>
    </message>
    <message>
        <source>The person needs a shorter personal number.</source>
        <translation>Osoba potrebuje kratšie osobné číslo.</translation>
    </message>
    <message>
        <source>A text contains a percent sign and a digit, which the plugin replaces with another value.</source>
        <translation>Text obsahuje znak percenta a číslicu, ktoré zásuvný modul nahradí inou hodnotou.</translation>
    </message>
    <message>
        <source>mirovahrctl gate writes such a text so that it arrives; without the gate, write it without %.</source>
        <translation>mirovahrctl gate zapíše taký text tak, aby prišiel správne; bez brány ho napíšte bez znaku %.</translation>
    </message>
    <message>
        <source>A text contains an apostrophe, which breaks its statement: the person is not written.</source>
        <translation>Text obsahuje apostrof, ktorý pokazí jeho príkaz: osoba sa nezapíše.</translation>
    </message>
    <message>
        <source>mirovahrctl gate writes such a text so that it arrives; without the gate, write it without &apos;, or with the character ’.</source>
        <translation>mirovahrctl gate zapíše taký text tak, aby prišiel správne; bez brány ho napíšte bez znaku &apos; alebo so znakom ’.</translation>
    </message>
    <message>
        <source>A text is longer than its column.</source>
        <translation>Text je dlhší než jeho stĺpec.</translation>
    </message>
    <message>
        <source>Shorten the text.</source>
        <translation>Skráťte text.</translation>
    </message>
    <message>
        <source>A text contains a character above U+FFFF, which the connection cannot carry.</source>
        <translation>Text obsahuje znak nad U+FFFF, ktorý spojenie nedokáže preniesť.</translation>
    </message>
    <message>
        <source>Write the text without it.</source>
        <translation>Napíšte text bez tohto znaku.</translation>
    </message>
    <message>
        <source>The plugin cannot read the field as a date.</source>
        <translation>Zásuvný modul nedokáže pole prečítať ako dátum.</translation>
    </message>
    <message>
        <source>Write dates as in 2021-03-31 00:00:00.000.</source>
        <translation>Dátumy píšte ako 2021-03-31 00:00:00.000.</translation>
    </message>
    <message>
        <source>The plugin cannot read the field as a number and takes 0.</source>
        <translation>Zásuvný modul nedokáže pole prečítať ako číslo a použije 0.</translation>
    </message>
    <message>
        <source>Write digits only, up to 4294967295.</source>
        <translation>Píšte len číslice, najviac 4294967295.</translation>
    </message>
    <message>
        <source>The vacation balance cannot be stored, so the plugin leaves it unchanged.</source>
        <translation>Zostatok dovolenky sa nedá uložiť, preto ho zásuvný modul ponechá nezmenený.</translation>
    </message>
    <message>
        <source>Correct the balance.</source>
        <translation>Opravte zostatok.</translation>
    </message>
    <message>
        <source>The line begins with a byte order mark, which the plugin skips.</source>
        <translation>Riadok sa začína značkou poradia bajtov (BOM), ktorú zásuvný modul preskočí.</translation>
    </message>
    <message>
        <source>Save the export as UTF-8 without a byte order mark.</source>
        <translation>Uložte export v kódovaní UTF-8 bez značky poradia bajtov (BOM).</translation>
    </message>
    <message>
        <source>A code exceeds 16 bits and is read as another code.</source>
        <translation>Kód presahuje 16 bitov a prečíta sa ako iný kód.</translation>
    </message>
    <message>
        <source>Correct the code.</source>
        <translation>Opravte kód.</translation>
    </message>
    <message>
        <source>The plugin stores days from 1970 to 2106 only; the day comes back as another one.</source>
        <translation>Zásuvný modul ukladá len dni od roku 1970 do roku 2106; deň sa vráti ako iný.</translation>
    </message>
    <message>
        <source>Correct the date.</source>
        <translation>Opravte dátum.</translation>
    </message>
    <message>
        <source>The same employment relationship occurs more than once; the last line wins.</source>
        <translation>Rovnaký pracovný pomer sa vyskytuje viackrát; platí posledný riadok.</translation>
    </message>
    <message>
        <source>Export each relationship once.</source>
        <translation>Exportujte každý pomer raz.</translation>
    </message>
    <message>
        <source>A date is missing that the plugin needs.</source>
        <translation>Chýba dátum, ktorý zásuvný modul potrebuje.</translation>
    </message>
    <message>
        <source>Provide the date.</source>
        <translation>Doplňte dátum.</translation>
    </message>
    <message>
        <source>A number is missing that the plugin needs; it takes 0.</source>
        <translation>Chýba číslo, ktoré zásuvný modul potrebuje; použije 0.</translation>
    </message>
    <message>
        <source>The person leaves before employment begins.</source>
        <translation>Osoba odchádza skôr, ako sa pracovný pomer začína.</translation>
    </message>
    <message>
        <source>One of the two dates is wrong.</source>
        <translation>Jeden z dvoch dátumov je nesprávny.</translation>
    </message>
    <message>
        <source>The last line does not end with a line feed; the file may be truncated.</source>
        <translation>Posledný riadok nie je ukončený znakom konca riadka; súbor môže byť neúplný.</translation>
    </message>
    <message>
        <source>Check whether the export is complete.</source>
        <translation>Overte, či je export úplný.</translation>
    </message>
    <message>
        <source>The file contains no people.</source>
        <translation>Súbor neobsahuje žiadne osoby.</translation>
    </message>
    <message>
        <source>Check whether the export went wrong.</source>
        <translation>Overte, či export prebehol správne.</translation>
    </message>
    <message>
        <source>Some bytes are not UTF-8 and are read as replacement characters.</source>
        <translation>Niektoré bajty nie sú v kódovaní UTF-8 a prečítajú sa ako náhradné znaky.</translation>
    </message>
    <message>
        <source>Save the export as UTF-8.</source>
        <translation>Uložte export v kódovaní UTF-8.</translation>
    </message>
    <message>
        <source>Too many people occur more than once, so not all of them were compared.</source>
        <translation>Príliš veľa osôb sa vyskytuje viackrát, preto sa neporovnali všetky.</translation>
    </message>
    <message>
        <source>Check whether the export was written several times into one file.</source>
        <translation>Overte, či sa export nezapísal viackrát do jedného súboru.</translation>
    </message>
    <message>
        <source>The file is encoded in UTF-16, which the plugin cannot read.</source>
        <translation>Súbor je v kódovaní UTF-16, ktoré zásuvný modul nevie čítať.</translation>
    </message>
    <message>
        <source>Reads an HR export exactly as the plugin does, and changes nothing. Reports every line that the plugin would drop, every field that it would misread, people who appear twice or have the same number, and texts that break a statement. With a database it also reports texts that are longer than its columns.</source>
        <translation>Prečíta export personálneho oddelenia presne tak ako zásuvný modul a nič nezmení. Uvedie každý riadok, ktorý by zásuvný modul vynechal, každé pole, ktoré by prečítal nesprávne, osoby, ktoré sa vyskytujú dvakrát alebo majú rovnaké číslo, a texty, ktoré pokazia príkaz. S databázou uvedie aj texty dlhšie než jej stĺpce.</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Pravidlo</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Nálezy</translation>
    </message>
    <message>
        <source>The export is fine.</source>
        <translation>Export je v poriadku.</translation>
    </message>
    <message>
        <source>Everybody in the export arrives, but there are findings.</source>
        <translation>Každá osoba z exportu príde, ale sú nálezy.</translation>
    </message>
    <message numerus="yes">
        <source>The export has %Ln line(s) with errors; the plugin drops %1 of them.</source>
        <translation>
            <numerusform>Export obsahuje %Ln riadok s chybami; z toho vynechá zásuvný modul: %1.</numerusform>
            <numerusform>Export obsahuje %Ln riadky s chybami; z toho vynechá zásuvný modul: %1.</numerusform>
            <numerusform>Export obsahuje %Ln riadkov s chybami; z toho vynechá zásuvný modul: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>HR export %1</source>
        <translation>Export personálneho oddelenia %1</translation>
    </message>
    <message>
        <source>Checking the export</source>
        <translation>Kontrola exportu</translation>
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
        <source>Read as people</source>
        <translation>Prečítané ako osoby</translation>
    </message>
    <message>
        <source>Dropped by the plugin</source>
        <translation>Vynechané zásuvným modulom</translation>
    </message>
    <message>
        <source>Lines with errors</source>
        <translation>Riadky s chybami</translation>
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
        <source>Also write the lines with errors or warnings into a file, with the reasons, to send to HR.</source>
        <translation>Zapíše aj riadky s chybami alebo upozorneniami do súboru, s dôvodmi, na odoslanie personálnemu oddeleniu.</translation>
    </message>
</context>
</TS>
