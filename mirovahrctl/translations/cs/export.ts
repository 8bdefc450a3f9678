<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>Line %1 has the same employment relationship. The plugin processes both, and the last line wins.</source>
        <translation>Řádek %1 má stejný pracovní poměr. Zásuvný modul zpracuje oba a platí poslední řádek.</translation>
    </message>
    <message>
        <source>The person in line %1, %2.%3, has the same number %4: the plugin treats both as one person, and the last line wins.</source>
        <translation>Osoba na řádku %1, %2.%3, má stejné číslo %4: zásuvný modul považuje obě za jednu osobu a platí poslední řádek.</translation>
    </message>
    <message>
        <source>The file contains no people: the plugin would do nothing.</source>
        <translation>Soubor neobsahuje žádné osoby: zásuvný modul by nic neudělal.</translation>
    </message>
    <message>
        <source>The last line does not end with a line feed. The plugin reads it, but the file may be truncated.</source>
        <translation>Poslední řádek není ukončen znakem konce řádku. Zásuvný modul ho přečte, ale soubor může být neúplný.</translation>
    </message>
    <message>
        <source>Too many people occur more than once: not all of them were compared.</source>
        <translation>Příliš mnoho osob se vyskytuje vícekrát: neporovnaly se všechny.</translation>
    </message>
    <message>
        <source>employment counts from 1 January 2000.</source>
        <translation>pracovní poměr se počítá od 1.&#xa0;ledna 2000.</translation>
    </message>
    <message>
        <source>the person counts as not leaving.</source>
        <translation>osoba se považuje za neodcházející.</translation>
    </message>
    <message>
        <source>the person is assigned to no branch.</source>
        <translation>osoba se nezařadí do žádné pobočky.</translation>
    </message>
    <message>
        <source>the person is assigned to no calendar group.</source>
        <translation>osoba se nezařadí do žádné kalendářové skupiny.</translation>
    </message>
    <message>
        <source>the calendar has no start date, and all attendance of the person is recalculated.</source>
        <translation>kalendář nemá datum začátku a přepočítá se celá docházka osoby.</translation>
    </message>
    <message>
        <source>the person has no employment type and no payroll export.</source>
        <translation>osoba nemá druh pracovního poměru ani export pro mzdy.</translation>
    </message>
    <message>
        <source>the employment counts as running.</source>
        <translation>pracovní poměr se považuje za trvající.</translation>
    </message>
    <message>
        <source>the register state counts as 0.</source>
        <translation>evidenční stav se považuje za 0.</translation>
    </message>
    <message>
        <source>the vacation balance is set to 0 days.</source>
        <translation>zůstatek dovolené se nastaví na 0 dní.</translation>
    </message>
    <message>
        <source>the person gets no new supervisor.</source>
        <translation>osoba nedostane nového nadřízeného.</translation>
    </message>
    <message>
        <source>the text arrives with wrong characters.</source>
        <translation>text přijde s nesprávnými znaky.</translation>
    </message>
    <message>
        <source>Write the date with a time, as in %1 00:00:00.000.</source>
        <translation>Napište datum s časem, například %1 00:00:00.000.</translation>
    </message>
    <message>
        <source>Write the balance with a decimal point, as in 12.5.</source>
        <translation>Napište zůstatek s desetinnou tečkou, například 12.5.</translation>
    </message>
    <message>
        <source>Write the balance as a number of days, as in 12.5.</source>
        <translation>Napište zůstatek jako počet dní, například 12.5.</translation>
    </message>
    <message>
        <source>Without a personal number the plugin drops the line.</source>
        <translation>Bez osobního čísla zásuvný modul řádek vynechá.</translation>
    </message>
    <message>
        <source>Without the number of the employment relationship the plugin drops the line.</source>
        <translation>Bez čísla pracovního poměru zásuvný modul řádek vynechá.</translation>
    </message>
    <message>
        <source>The line has neither a first name nor a surname. The plugin drops it.</source>
        <translation>Řádek nemá jméno ani příjmení. Zásuvný modul ho vynechá.</translation>
    </message>
    <message>
        <source>Personal number and relationship number form one number, %1%2, which exceeds 4294967295: the person gets the number 0, like everybody with such a number.</source>
        <translation>Osobní číslo a číslo poměru tvoří spolu číslo %1%2, které je větší než 4294967295: osoba dostane číslo 0 jako každý s takovým číslem.</translation>
    </message>
    <message>
        <source>The text %1 contains a character above U+FFFF, such as an emoji. The connection to the database cannot carry it: the person is not written, or the text is truncated there.</source>
        <translation>Text %1 obsahuje znak nad U+FFFF, například emotikon. Spojení s databází ho nedokáže přenést: osoba se nezapíše nebo se text v tom místě zkrátí.</translation>
    </message>
    <message>
        <source>The text %1 contains an apostrophe. It enters the SQL statement unescaped, and the statement fails or does something else: the person is not written.</source>
        <translation>Text %1 obsahuje apostrof. Do příkazu SQL se dostane bez ošetření a příkaz selže nebo udělá něco jiného: osoba se nezapíše.</translation>
    </message>
    <message>
        <source>The text %1 contains a backslash. It enters the SQL statement unescaped: the text arrives changed, or the statement fails.</source>
        <translation>Text %1 obsahuje zpětné lomítko. Do příkazu SQL se dostane bez ošetření: text přijde změněný nebo příkaz selže.</translation>
    </message>
    <message>
        <source>The text %1 contains a percent sign followed by a digit. The plugin replaces the two with another value: wrong data is written, or the statement fails.</source>
        <translation>Text %1 obsahuje znak procenta a za ním číslici. Zásuvný modul tyto dva znaky nahradí jinou hodnotou: zapíšou se nesprávné údaje nebo příkaz selže.</translation>
    </message>
    <message>
        <source>The text has %1 characters, but the column holds %2. Depending on its SQL mode, the database truncates the text or rejects the person.</source>
        <translation>Text má %1 znaků, ale do sloupce se jich vejde %2. Databáze podle režimu SQL text zkrátí nebo osobu odmítne.</translation>
    </message>
    <message numerus="yes">
        <source>Shorten the text to %Ln character(s).</source>
        <translation>
            <numerusform>Zkraťte text na %Ln znak.</numerusform>
            <numerusform>Zkraťte text na %Ln znaky.</numerusform>
            <numerusform>Zkraťte text na %Ln znaků.</numerusform>
        </translation>
    </message>
    <message>
        <source>The person leaves on %1, before employment begins on %2.</source>
        <translation>Osoba odchází %1, dříve než pracovní poměr začíná %2.</translation>
    </message>
    <message>
        <source>The date is missing: %1</source>
        <translation>Datum chybí: %1</translation>
    </message>
    <message>
        <source>The plugin cannot read %1 as a date: %2</source>
        <translation>Zásuvný modul nedokáže přečíst %1 jako datum: %2</translation>
    </message>
    <message>
        <source>The plugin can store days from 1970 to 2106; %1 comes back from the database as another day.</source>
        <translation>Zásuvný modul dokáže uložit dny od roku 1970 do roku 2106; %1 se z databáze vrátí jako jiný den.</translation>
    </message>
    <message>
        <source>Leave the leaving date empty for a person who does not leave.</source>
        <translation>Pokud osoba neodchází, nechte datum odchodu prázdné.</translation>
    </message>
    <message>
        <source>%1 It is read as 0: %2</source>
        <translation>%1 Přečte se jako 0: %2</translation>
    </message>
    <message>
        <source>Codes go up to 65535; %1 is read as %2.</source>
        <translation>Největší kód je 65535; %1 se přečte jako %2.</translation>
    </message>
    <message>
        <source>A balance of %1 days cannot be stored: the balance is not changed.</source>
        <translation>Zůstatek %1 dní nelze uložit: zůstatek se nezmění.</translation>
    </message>
    <message>
        <source>The field is empty.</source>
        <translation>Pole je prázdné.</translation>
    </message>
    <message>
        <source>The number is 0.</source>
        <translation>Číslo je 0.</translation>
    </message>
    <message>
        <source>The plugin cannot read %1 as a number.</source>
        <translation>Zásuvný modul nedokáže přečíst %1 jako číslo.</translation>
    </message>
    <message>
        <source>personal number %1</source>
        <translation>osobní číslo %1</translation>
    </message>
    <message>
        <source>The file is encoded in UTF-16; the plugin reads UTF-8 only.</source>
        <translation>Soubor je v kódování UTF-16; zásuvný modul čte jen UTF-8.</translation>
    </message>
    <message>
        <source>The line begins with a byte order mark, which the plugin skips.</source>
        <translation>Řádek začíná značkou pořadí bajtů (BOM), kterou zásuvný modul přeskočí.</translation>
    </message>
    <message>
        <source>The line contains a NUL byte; the plugin reads nothing after it.</source>
        <translation>Řádek obsahuje bajt NUL; co je za ním, zásuvný modul nečte.</translation>
    </message>
    <message>
        <source>Some bytes are not UTF-8; each is read as the character �.</source>
        <translation>Některé bajty nejsou v kódování UTF-8; každý se přečte jako znak �.</translation>
    </message>
    <message>
        <source>The line is longer than %1 bytes; the plugin skips it.</source>
        <translation>Řádek je delší než %1 bajtů; zásuvný modul ho přeskočí.</translation>
    </message>
    <message>
        <source>Separate fields with the character |, nothing else.</source>
        <translation>Pole oddělujte znakem | a ničím jiným.</translation>
    </message>
    <message>
        <source>There must be no | after the last field.</source>
        <translation>Za posledním polem nesmí být znak |.</translation>
    </message>
    <message>
        <source>No text may contain the character |.</source>
        <translation>Žádný text nesmí obsahovat znak |.</translation>
    </message>
    <message>
        <source>Write empty fields too, each with its |.</source>
        <translation>Zapisujte i prázdná pole, každé s jeho znakem |.</translation>
    </message>
    <message numerus="yes">
        <source>The line has %Ln field(s) instead of %1.</source>
        <translation>
            <numerusform>Řádek má %Ln pole místo %1.</numerusform>
            <numerusform>Řádek má %Ln pole místo %1.</numerusform>
            <numerusform>Řádek má %Ln polí místo %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>This is a header line; the plugin reads it as a person without a number.</source>
        <translation>Toto je záhlaví; zásuvný modul je přečte jako osobu bez čísla.</translation>
    </message>
    <message>
        <source>There is no file &apos;%1&apos;</source>
        <translation>Soubor „%1“ neexistuje</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be opened: %2</source>
        <translation>„%1“ nelze otevřít: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read to its end: %2</source>
        <translation>„%1“ nelze přečíst do konce: %2</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Řádek %1: %2</translation>
    </message>
    <message>
        <source>Line %1 (%2): %3</source>
        <translation>Řádek %1 (%2): %3</translation>
    </message>
    <message>
        <source>Lines of the export %1 that the attendance system drops, cannot store correctly, or misreads.</source>
        <translation>Řádky exportu %1, které docházkový systém vynechá, nedokáže správně uložit nebo přečte nesprávně.</translation>
    </message>
    <message>
        <source>Checked on %1. Each line follows its reasons.</source>
        <translation>Zkontrolováno %1. Každý řádek následuje za svými důvody.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln line(s).</source>
        <translation>
            <numerusform>%Ln řádek.</numerusform>
            <numerusform>%Ln řádky.</numerusform>
            <numerusform>%Ln řádků.</numerusform>
        </translation>
    </message>
</context>
</TS>
