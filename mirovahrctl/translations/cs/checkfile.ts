<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>The line has too few or too many fields, so the plugin drops it.</source>
        <translation>Řádek má příliš málo nebo příliš mnoho polí, proto ho zásuvný modul vynechá.</translation>
    </message>
    <message>
        <source>Write every field, even an empty one, and separate them with the character |, which no text may contain.</source>
        <translation>Zapište každé pole, i prázdné, a pole oddělte znakem |, který se nesmí vyskytnout v žádném textu.</translation>
    </message>
    <message>
        <source>The line is a header, which the plugin reads as a person without a number and drops.</source>
        <translation>Řádek je záhlaví, které zásuvný modul přečte jako osobu bez čísla a vynechá.</translation>
    </message>
    <message>
        <source>Export without a header.</source>
        <translation>Exportujte bez záhlaví.</translation>
    </message>
    <message>
        <source>The line exceeds the longest that the plugin reads, so the plugin skips it.</source>
        <translation>Řádek je delší než nejdelší, jaký zásuvný modul čte, proto ho přeskočí.</translation>
    </message>
    <message>
        <source>The export is damaged; perhaps line feeds are missing.</source>
        <translation>Export je poškozený; možná v něm chybějí konce řádků.</translation>
    </message>
    <message>
        <source>The line has neither a first name nor a surname, so the plugin drops it.</source>
        <translation>Řádek nemá jméno ani příjmení, proto ho zásuvný modul vynechá.</translation>
    </message>
    <message>
        <source>Provide at least one of the two.</source>
        <translation>Uveďte alespoň jedno z nich.</translation>
    </message>
    <message>
        <source>The line has no personal number above 0, so the plugin drops it.</source>
        <translation>Řádek nemá osobní číslo větší než 0, proto ho zásuvný modul vynechá.</translation>
    </message>
    <message>
        <source>Write the personal number into the first field: digits, above 0.</source>
        <translation>Do prvního pole napište osobní číslo: číslice, více než 0.</translation>
    </message>
    <message>
        <source>The line has no relationship number above 0, so the plugin drops it.</source>
        <translation>Řádek nemá číslo poměru větší než 0, proto ho zásuvný modul vynechá.</translation>
    </message>
    <message>
        <source>Write the number of the employment relationship into the second field: digits, above 0.</source>
        <translation>Do druhého pole napište číslo pracovního poměru: číslice, více než 0.</translation>
    </message>
    <message>
        <source>The line contains a NUL byte; the plugin reads nothing after it.</source>
        <translation>Řádek obsahuje bajt NUL; co je za ním, zásuvný modul nečte.</translation>
    </message>
    <message>
        <source>The export is damaged, or not encoded in UTF-8.</source>
        <translation>Export je poškozený nebo není v kódování UTF-8.</translation>
    </message>
    <message>
        <source>A text contains a backslash: it arrives changed, or its statement fails.</source>
        <translation>Text obsahuje zpětné lomítko: přijde změněný nebo jeho příkaz selže.</translation>
    </message>
    <message>
        <source>mirovahrctl gate writes such a text so that it arrives; without the gate, write it without \.</source>
        <translation>mirovahrctl gate zapíše takový text tak, aby přišel správně; bez brány ho napište bez znaku \.</translation>
    </message>
    <message>
        <source>Two people have numbers that join to the same pid; the plugin treats both as one person.</source>
        <translation>Dvě osoby mají čísla, která se spojí do stejného pid; zásuvný modul je považuje za jednu osobu.</translation>
    </message>
    <message>
        <source>One of the two needs another personal number.</source>
        <translation>Jedna z nich potřebuje jiné osobní číslo.</translation>
    </message>
    <message>
        <source>The person&apos;s numbers join to more than 32 bits, so the pid becomes 0.</source>
        <translation>Čísla osoby tvoří spolu více než 32 bitů, proto je její pid 0.</translation>
    </message>
    <message>
        <source>The person needs a shorter personal number.</source>
        <translation>Osoba potřebuje kratší osobní číslo.</translation>
    </message>
    <message>
        <source>A text contains a percent sign and a digit, which the plugin replaces with another value.</source>
        <translation>Text obsahuje znak procenta a číslici, které zásuvný modul nahradí jinou hodnotou.</translation>
    </message>
    <message>
        <source>mirovahrctl gate writes such a text so that it arrives; without the gate, write it without %.</source>
        <translation>mirovahrctl gate zapíše takový text tak, aby přišel správně; bez brány ho napište bez znaku %.</translation>
    </message>
    <message>
        <source>A text contains an apostrophe, which breaks its statement: the person is not written.</source>
        <translation>Text obsahuje apostrof, který pokazí jeho příkaz: osoba se nezapíše.</translation>
    </message>
    <message>
        <source>mirovahrctl gate writes such a text so that it arrives; without the gate, write it without &apos;, or with the character ’.</source>
        <translation>mirovahrctl gate zapíše takový text tak, aby přišel správně; bez brány ho napište bez znaku &apos; nebo se znakem ’.</translation>
    </message>
    <message>
        <source>A text is longer than its column.</source>
        <translation>Text je delší než jeho sloupec.</translation>
    </message>
    <message>
        <source>Shorten the text.</source>
        <translation>Zkraťte text.</translation>
    </message>
    <message>
        <source>A text contains a character above U+FFFF, which the connection cannot carry.</source>
        <translation>Text obsahuje znak nad U+FFFF, který spojení nedokáže přenést.</translation>
    </message>
    <message>
        <source>Write the text without it.</source>
        <translation>Napište text bez tohoto znaku.</translation>
    </message>
    <message>
        <source>The plugin cannot read the field as a date.</source>
        <translation>Zásuvný modul nedokáže pole přečíst jako datum.</translation>
    </message>
    <message>
        <source>Write dates as in 2021-03-31 00:00:00.000.</source>
        <translation>Data pište jako 2021-03-31 00:00:00.000.</translation>
    </message>
    <message>
        <source>The plugin cannot read the field as a number and takes 0.</source>
        <translation>Zásuvný modul nedokáže pole přečíst jako číslo a použije 0.</translation>
    </message>
    <message>
        <source>Write digits only, up to 4294967295.</source>
        <translation>Pište jen číslice, nejvýše 4294967295.</translation>
    </message>
    <message>
        <source>The vacation balance cannot be stored, so the plugin leaves it unchanged.</source>
        <translation>Zůstatek dovolené nelze uložit, proto ho zásuvný modul ponechá beze změny.</translation>
    </message>
    <message>
        <source>Correct the balance.</source>
        <translation>Opravte zůstatek.</translation>
    </message>
    <message>
        <source>The line begins with a byte order mark, which the plugin skips.</source>
        <translation>Řádek začíná značkou pořadí bajtů (BOM), kterou zásuvný modul přeskočí.</translation>
    </message>
    <message>
        <source>Save the export as UTF-8 without a byte order mark.</source>
        <translation>Uložte export v kódování UTF-8 bez značky pořadí bajtů (BOM).</translation>
    </message>
    <message>
        <source>A code exceeds 16 bits and is read as another code.</source>
        <translation>Kód přesahuje 16 bitů a přečte se jako jiný kód.</translation>
    </message>
    <message>
        <source>Correct the code.</source>
        <translation>Opravte kód.</translation>
    </message>
    <message>
        <source>The plugin stores days from 1970 to 2106 only; the day comes back as another one.</source>
        <translation>Zásuvný modul ukládá jen dny od roku 1970 do roku 2106; den se vrátí jako jiný.</translation>
    </message>
    <message>
        <source>Correct the date.</source>
        <translation>Opravte datum.</translation>
    </message>
    <message>
        <source>The same employment relationship occurs more than once; the last line wins.</source>
        <translation>Stejný pracovní poměr se vyskytuje vícekrát; platí poslední řádek.</translation>
    </message>
    <message>
        <source>Export each relationship once.</source>
        <translation>Exportujte každý poměr jednou.</translation>
    </message>
    <message>
        <source>A date is missing that the plugin needs.</source>
        <translation>Chybí datum, které zásuvný modul potřebuje.</translation>
    </message>
    <message>
        <source>Provide the date.</source>
        <translation>Doplňte datum.</translation>
    </message>
    <message>
        <source>A number is missing that the plugin needs; it takes 0.</source>
        <translation>Chybí číslo, které zásuvný modul potřebuje; použije 0.</translation>
    </message>
    <message>
        <source>The person leaves before employment begins.</source>
        <translation>Osoba odchází dříve, než pracovní poměr začíná.</translation>
    </message>
    <message>
        <source>One of the two dates is wrong.</source>
        <translation>Jedno ze dvou dat je nesprávné.</translation>
    </message>
    <message>
        <source>The last line does not end with a line feed; the file may be truncated.</source>
        <translation>Poslední řádek není ukončen znakem konce řádku; soubor může být neúplný.</translation>
    </message>
    <message>
        <source>Check whether the export is complete.</source>
        <translation>Ověřte, zda je export úplný.</translation>
    </message>
    <message>
        <source>The file contains no people.</source>
        <translation>Soubor neobsahuje žádné osoby.</translation>
    </message>
    <message>
        <source>Check whether the export went wrong.</source>
        <translation>Ověřte, zda export proběhl správně.</translation>
    </message>
    <message>
        <source>Some bytes are not UTF-8 and are read as replacement characters.</source>
        <translation>Některé bajty nejsou v kódování UTF-8 a přečtou se jako náhradní znaky.</translation>
    </message>
    <message>
        <source>Save the export as UTF-8.</source>
        <translation>Uložte export v kódování UTF-8.</translation>
    </message>
    <message>
        <source>Too many people occur more than once, so not all of them were compared.</source>
        <translation>Příliš mnoho osob se vyskytuje vícekrát, proto se neporovnaly všechny.</translation>
    </message>
    <message>
        <source>Check whether the export was written several times into one file.</source>
        <translation>Ověřte, zda se export nezapsal vícekrát do jednoho souboru.</translation>
    </message>
    <message>
        <source>The file is encoded in UTF-16, which the plugin cannot read.</source>
        <translation>Soubor je v kódování UTF-16, které zásuvný modul neumí číst.</translation>
    </message>
    <message>
        <source>Reads an HR export exactly as the plugin does, and changes nothing. Reports every line that the plugin would drop, every field that it would misread, people who appear twice or have the same number, and texts that break a statement. With a database it also reports texts that are longer than its columns.</source>
        <translation>Přečte export personálního oddělení přesně tak jako zásuvný modul a nic nezmění. Uvede každý řádek, který by zásuvný modul vynechal, každé pole, které by přečetl nesprávně, osoby, které se vyskytují dvakrát nebo mají stejné číslo, a texty, které pokazí příkaz. S databází uvede i texty delší než její sloupce.</translation>
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
        <translation>Export je v pořádku.</translation>
    </message>
    <message>
        <source>Everybody in the export arrives, but there are findings.</source>
        <translation>Každá osoba z exportu přijde, ale jsou nálezy.</translation>
    </message>
    <message numerus="yes">
        <source>The export has %Ln line(s) with errors; the plugin drops %1 of them.</source>
        <translation>
            <numerusform>Export obsahuje %Ln řádek s chybami; z toho vynechá zásuvný modul: %1.</numerusform>
            <numerusform>Export obsahuje %Ln řádky s chybami; z toho vynechá zásuvný modul: %1.</numerusform>
            <numerusform>Export obsahuje %Ln řádků s chybami; z toho vynechá zásuvný modul: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>HR export %1</source>
        <translation>Export personálního oddělení %1</translation>
    </message>
    <message>
        <source>Checking the export</source>
        <translation>Kontrola exportu</translation>
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
        <source>Read as people</source>
        <translation>Přečtené jako osoby</translation>
    </message>
    <message>
        <source>Dropped by the plugin</source>
        <translation>Vynechané zásuvným modulem</translation>
    </message>
    <message>
        <source>Lines with errors</source>
        <translation>Řádky s chybami</translation>
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
        <source>Also write the lines with errors or warnings into a file, with the reasons, to send to HR.</source>
        <translation>Zapíše také řádky s chybami nebo upozorněními do souboru, s důvody, k odeslání personálnímu oddělení.</translation>
    </message>
</context>
</TS>
