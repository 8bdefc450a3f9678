<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>The data folder of the private MariaDB server could not be made.
%1</source>
        <translation>Datovou složku dočasného serveru MariaDB se nepodařilo vytvořit.
%1</translation>
    </message>
    <message>
        <source>%1 could not be copied: %2</source>
        <translation>Kopírování %1 se nezdařilo: %2</translation>
    </message>
    <message>
        <source>The private MariaDB server did not shut down and was killed.
%1</source>
        <translation>Dočasný server MariaDB se neukončil a byl ukončen násilně.
%1</translation>
    </message>
    <message>
        <source>The private MariaDB server goes on running.</source>
        <translation>Dočasný server MariaDB dál běží.</translation>
    </message>
    <message>
        <source>%1 could not be loaded: %2</source>
        <translation>Načtení %1 se nezdařilo: %2</translation>
    </message>
    <message>
        <source>Qt&apos;s MySQL driver (QMYSQL) is missing: install the package libqt5sql5-mysql.</source>
        <translation>Chybí ovladač MySQL (QMYSQL) knihovny Qt: nainstalujte balík libqt5sql5-mysql.</translation>
    </message>
    <message>
        <source>mariadbd could not be started: %1</source>
        <translation>Program mariadbd se nepodařilo spustit: %1</translation>
    </message>
    <message>
        <source>The private MariaDB server ended while it was starting. The end of its log:
%1</source>
        <translation>Dočasný server MariaDB skončil už během spouštění. Konec jeho protokolu:
%1</translation>
    </message>
    <message>
        <source>The private MariaDB server did not answer within %1 s. The end of its log:
%2</source>
        <translation>Dočasný server MariaDB neodpověděl do %1 s. Konec jeho protokolu:
%2</translation>
    </message>
    <message>
        <source>The program %1 is missing: install the package %2.</source>
        <translation>Chybí program %1: nainstalujte balík %2.</translation>
    </message>
    <message>
        <source>The socket path %1 is longer than %2 bytes: set TMPDIR to a folder with a shorter name.</source>
        <translation>Cesta soketu %1 je delší než %2 bajtů: nastavte TMPDIR na složku s kratším názvem.</translation>
    </message>
    <message>
        <source>mariadbd would take the folder %1 for several, separated by &quot;:&quot;: set TMPDIR to a folder with another name.</source>
        <translation>Program mariadbd by složku %1 považoval za několik složek oddělených znakem „:“: nastavte TMPDIR na složku s jiným názvem.</translation>
    </message>
    <message>
        <source>No folder for the private MariaDB server could be made in %1: %2</source>
        <translation>Ve složce %1 se nepodařilo vytvořit složku pro dočasný server MariaDB: %2</translation>
    </message>
</context>
</TS>
