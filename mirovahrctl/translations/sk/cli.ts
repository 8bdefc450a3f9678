<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>There is no file &apos;%1&apos;</source>
        <translation>Súbor „%1“ neexistuje</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read</source>
        <translation>„%1“ sa nedá prečítať</translation>
    </message>
    <message>
        <source>Every user of the machine can read &apos;%1&apos;: the password in it is not used. Remove the permission (chmod o-r)</source>
        <translation>„%1“ môže čítať každý používateľ počítača: heslo v ňom sa nepoužije. Odoberte oprávnenie (chmod o-r)</translation>
    </message>
    <message>
        <source>the key &apos;%1&apos; belongs to no group; write [client] above it</source>
        <translation>kľúč „%1“ nepatrí do žiadnej skupiny; napíšte nad neho [client]</translation>
    </message>
    <message>
        <source>the value of &apos;%1&apos; has a semicolon; put it in quotation marks</source>
        <translation>hodnota kľúča „%1“ obsahuje bodkočiarku; dajte ju do úvodzoviek</translation>
    </message>
    <message>
        <source>there are lines that are neither [group], nor key = value, nor a comment that begins with a semicolon</source>
        <translation>sú v ňom riadky, ktoré nie sú ani [skupina], ani kľúč = hodnota, ani komentár začínajúci sa bodkočiarkou</translation>
    </message>
    <message>
        <source>the value of &apos;%1&apos; has a comma; put it in quotation marks</source>
        <translation>hodnota kľúča „%1“ obsahuje čiarku; dajte ju do úvodzoviek</translation>
    </message>
    <message>
        <source>the port is a number from 0 to %1</source>
        <translation>port je číslo od 0 do %1</translation>
    </message>
    <message>
        <source>the read timeout is a number of seconds from 0 to %1</source>
        <translation>časový limit čítania je počet sekúnd od 0 do %1</translation>
    </message>
    <message>
        <source>the key &apos;%1&apos; is unknown</source>
        <translation>kľúč „%1“ je neznámy</translation>
    </message>
    <message>
        <source>it names both a host and a socket</source>
        <translation>uvádza počítač aj soket</translation>
    </message>
    <message>
        <source>it names both a password and a password-file</source>
        <translation>uvádza heslo aj súbor s heslom (password-file)</translation>
    </message>
    <message>
        <source>%1 (server %2)</source>
        <translation>%1 (server %2)</translation>
    </message>
    <message>
        <source>Qt&apos;s MySQL driver is missing: install the package libqt5sql5-mysql</source>
        <translation>Chýba ovládač MySQL knižnice Qt: nainštalujte balík libqt5sql5-mysql</translation>
    </message>
    <message>
        <source>A file with these options in its group [client].</source>
        <translation>Súbor s týmito voľbami v skupine [client].</translation>
    </message>
    <message>
        <source>A file with these options in its group [client]. Default: %1, if it exists.</source>
        <translation>Súbor s týmito voľbami v skupine [client]. Predvolený: %1, ak existuje.</translation>
    </message>
    <message>
        <source>The port is a number from 0 to %1</source>
        <translation>Port je číslo od 0 do %1</translation>
    </message>
    <message>
        <source>The read timeout is a number of seconds from 0 to %1</source>
        <translation>Časový limit čítania je počet sekúnd od 0 do %1</translation>
    </message>
    <message>
        <source>Name the database server with either --host or --socket</source>
        <translation>Uveďte databázový server voľbou --host alebo --socket</translation>
    </message>
    <message>
        <source>Name the attendance database with --database</source>
        <translation>Uveďte dochádzkovú databázu voľbou --database</translation>
    </message>
    <message>
        <source>Name the database user with --user</source>
        <translation>Uveďte používateľa databázy voľbou --user</translation>
    </message>
    <message>
        <source>%1; the file &apos;%2&apos; cannot be read</source>
        <translation>%1; súbor „%2“ sa nedá prečítať</translation>
    </message>
    <message>
        <source>%1, or in the file %2</source>
        <translation>%1 alebo v súbore %2</translation>
    </message>
    <message>
        <source>The database server&apos;s host.</source>
        <translation>Počítač databázového servera.</translation>
    </message>
    <message>
        <source>host</source>
        <translation>počítač</translation>
    </message>
    <message>
        <source>The database server&apos;s port.</source>
        <translation>Port databázového servera.</translation>
    </message>
    <message>
        <source>port</source>
        <translation>port</translation>
    </message>
    <message>
        <source>The database server&apos;s UNIX socket, instead of a host.</source>
        <translation>Soket UNIX databázového servera, namiesto počítača.</translation>
    </message>
    <message>
        <source>path</source>
        <translation>cesta</translation>
    </message>
    <message>
        <source>The attendance database&apos;s name.</source>
        <translation>Názov dochádzkovej databázy.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>názov</translation>
    </message>
    <message>
        <source>The database user.</source>
        <translation>Používateľ databázy.</translation>
    </message>
    <message>
        <source>user</source>
        <translation>používateľ</translation>
    </message>
    <message>
        <source>A file whose first line is the password.</source>
        <translation>Súbor, ktorého prvý riadok je heslo.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>súbor</translation>
    </message>
    <message>
        <source>Options of Qt&apos;s MySQL driver, joined by &apos;;&apos;.</source>
        <translation>Voľby ovládača MySQL knižnice Qt, oddelené znakom „;“.</translation>
    </message>
    <message>
        <source>options</source>
        <translation>voľby</translation>
    </message>
    <message>
        <source>How long the server may be silent, 0 for any time. Default: %1.</source>
        <translation>Ako dlho smie server mlčať, 0 znamená bez obmedzenia. Predvolené: %1.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>sekundy</translation>
    </message>
    <message>
        <source>Name the database server with either --host or --socket, not both</source>
        <translation>Uveďte databázový server voľbou --host alebo --socket, nie oboma</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>Návratový kód:</translation>
    </message>
    <message>
        <source>The password file &apos;%1&apos; cannot be read: %2</source>
        <translation>Súbor s heslom „%1“ sa nedá prečítať: %2</translation>
    </message>
    <message>
        <source>Every user of the machine can read the password file &apos;%1&apos;. Remove the permission (chmod o-r)</source>
        <translation>Súbor s heslom „%1“ môže čítať každý používateľ počítača. Odoberte oprávnenie (chmod o-r)</translation>
    </message>
    <message>
        <source>Print this help and exit.</source>
        <translation>Vypíše túto pomoc a skončí.</translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <translation>Vypíše verziu a skončí.</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Prekročená disková kvóta</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Chyba vstupu alebo výstupu</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Je to priečinok</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Na disku už nie je voľné miesto</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Súbor alebo priečinok neexistuje</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>Nie je to priečinok</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Operácia nie je povolená</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Prístup zamietnutý</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Súborový systém je len na čítanie</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>Príliš veľa úrovní symbolických odkazov</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Príliš veľa otvorených súborov</translation>
    </message>
</context>
</TS>
