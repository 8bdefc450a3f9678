<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>There is no file &apos;%1&apos;</source>
        <translation>Soubor „%1“ neexistuje</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read</source>
        <translation>„%1“ nelze přečíst</translation>
    </message>
    <message>
        <source>Every user of the machine can read &apos;%1&apos;: the password in it is not used. Remove the permission (chmod o-r)</source>
        <translation>„%1“ může číst každý uživatel počítače: heslo v něm se nepoužije. Odeberte oprávnění (chmod o-r)</translation>
    </message>
    <message>
        <source>the key &apos;%1&apos; belongs to no group; write [client] above it</source>
        <translation>klíč „%1“ nepatří do žádné skupiny; napište nad něj [client]</translation>
    </message>
    <message>
        <source>the value of &apos;%1&apos; has a semicolon; put it in quotation marks</source>
        <translation>hodnota klíče „%1“ obsahuje středník; dejte ji do uvozovek</translation>
    </message>
    <message>
        <source>there are lines that are neither [group], nor key = value, nor a comment that begins with a semicolon</source>
        <translation>jsou v něm řádky, které nejsou ani [skupina], ani klíč = hodnota, ani komentář začínající středníkem</translation>
    </message>
    <message>
        <source>the value of &apos;%1&apos; has a comma; put it in quotation marks</source>
        <translation>hodnota klíče „%1“ obsahuje čárku; dejte ji do uvozovek</translation>
    </message>
    <message>
        <source>the port is a number from 0 to %1</source>
        <translation>port je číslo od 0 do %1</translation>
    </message>
    <message>
        <source>the read timeout is a number of seconds from 0 to %1</source>
        <translation>časový limit čtení je počet sekund od 0 do %1</translation>
    </message>
    <message>
        <source>the key &apos;%1&apos; is unknown</source>
        <translation>klíč „%1“ je neznámý</translation>
    </message>
    <message>
        <source>it names both a host and a socket</source>
        <translation>uvádí počítač i soket</translation>
    </message>
    <message>
        <source>it names both a password and a password-file</source>
        <translation>uvádí heslo i soubor s heslem (password-file)</translation>
    </message>
    <message>
        <source>%1 (server %2)</source>
        <translation>%1 (server %2)</translation>
    </message>
    <message>
        <source>Qt&apos;s MySQL driver is missing: install the package libqt5sql5-mysql</source>
        <translation>Chybí ovladač MySQL knihovny Qt: nainstalujte balík libqt5sql5-mysql</translation>
    </message>
    <message>
        <source>A file with these options in its group [client].</source>
        <translation>Soubor s těmito volbami ve skupině [client].</translation>
    </message>
    <message>
        <source>A file with these options in its group [client]. Default: %1, if it exists.</source>
        <translation>Soubor s těmito volbami ve skupině [client]. Výchozí: %1, pokud existuje.</translation>
    </message>
    <message>
        <source>The port is a number from 0 to %1</source>
        <translation>Port je číslo od 0 do %1</translation>
    </message>
    <message>
        <source>The read timeout is a number of seconds from 0 to %1</source>
        <translation>Časový limit čtení je počet sekund od 0 do %1</translation>
    </message>
    <message>
        <source>Name the database server with either --host or --socket</source>
        <translation>Uveďte databázový server volbou --host nebo --socket</translation>
    </message>
    <message>
        <source>Name the attendance database with --database</source>
        <translation>Uveďte docházkovou databázi volbou --database</translation>
    </message>
    <message>
        <source>Name the database user with --user</source>
        <translation>Uveďte uživatele databáze volbou --user</translation>
    </message>
    <message>
        <source>%1; the file &apos;%2&apos; cannot be read</source>
        <translation>%1; soubor „%2“ nelze přečíst</translation>
    </message>
    <message>
        <source>%1, or in the file %2</source>
        <translation>%1 nebo v souboru %2</translation>
    </message>
    <message>
        <source>The database server&apos;s host.</source>
        <translation>Počítač databázového serveru.</translation>
    </message>
    <message>
        <source>host</source>
        <translation>počítač</translation>
    </message>
    <message>
        <source>The database server&apos;s port.</source>
        <translation>Port databázového serveru.</translation>
    </message>
    <message>
        <source>port</source>
        <translation>port</translation>
    </message>
    <message>
        <source>The database server&apos;s UNIX socket, instead of a host.</source>
        <translation>Soket UNIX databázového serveru, místo počítače.</translation>
    </message>
    <message>
        <source>path</source>
        <translation>cesta</translation>
    </message>
    <message>
        <source>The attendance database&apos;s name.</source>
        <translation>Název docházkové databáze.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>název</translation>
    </message>
    <message>
        <source>The database user.</source>
        <translation>Uživatel databáze.</translation>
    </message>
    <message>
        <source>user</source>
        <translation>uživatel</translation>
    </message>
    <message>
        <source>A file whose first line is the password.</source>
        <translation>Soubor, jehož první řádek je heslo.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>soubor</translation>
    </message>
    <message>
        <source>Options of Qt&apos;s MySQL driver, joined by &apos;;&apos;.</source>
        <translation>Volby ovladače MySQL knihovny Qt, oddělené znakem „;“.</translation>
    </message>
    <message>
        <source>options</source>
        <translation>volby</translation>
    </message>
    <message>
        <source>How long the server may be silent, 0 for any time. Default: %1.</source>
        <translation>Jak dlouho smí server mlčet, 0 znamená bez omezení. Výchozí: %1.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>sekundy</translation>
    </message>
    <message>
        <source>Name the database server with either --host or --socket, not both</source>
        <translation>Uveďte databázový server volbou --host nebo --socket, ne oběma</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>Návratový kód:</translation>
    </message>
    <message>
        <source>The password file &apos;%1&apos; cannot be read: %2</source>
        <translation>Soubor s heslem „%1“ nelze přečíst: %2</translation>
    </message>
    <message>
        <source>Every user of the machine can read the password file &apos;%1&apos;. Remove the permission (chmod o-r)</source>
        <translation>Soubor s heslem „%1“ může číst každý uživatel počítače. Odeberte oprávnění (chmod o-r)</translation>
    </message>
    <message>
        <source>Print this help and exit.</source>
        <translation>Vypíše tuto nápovědu a skončí.</translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <translation>Vypíše verzi a skončí.</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Překročena disková kvóta</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Chyba vstupu nebo výstupu</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Je to složka</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Na disku už není volné místo</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Soubor nebo složka neexistuje</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>Není to složka</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Operace není povolena</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Přístup odepřen</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Souborový systém je jen pro čtení</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>Příliš mnoho úrovní symbolických odkazů</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Příliš mnoho otevřených souborů</translation>
    </message>
</context>
</TS>
