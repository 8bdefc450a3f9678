<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>The data folder of the private MariaDB server could not be made.
%1</source>
        <translation>Dátový priečinok dočasného servera MariaDB sa nepodarilo vytvoriť.
%1</translation>
    </message>
    <message>
        <source>%1 could not be copied: %2</source>
        <translation>Kopírovanie %1 sa nepodarilo: %2</translation>
    </message>
    <message>
        <source>The private MariaDB server did not shut down and was killed.
%1</source>
        <translation>Dočasný server MariaDB sa neukončil a bol ukončený násilne.
%1</translation>
    </message>
    <message>
        <source>The private MariaDB server goes on running.</source>
        <translation>Dočasný server MariaDB naďalej beží.</translation>
    </message>
    <message>
        <source>%1 could not be loaded: %2</source>
        <translation>Načítanie %1 sa nepodarilo: %2</translation>
    </message>
    <message>
        <source>Qt&apos;s MySQL driver (QMYSQL) is missing: install the package libqt5sql5-mysql.</source>
        <translation>Chýba ovládač MySQL (QMYSQL) knižnice Qt: nainštalujte balík libqt5sql5-mysql.</translation>
    </message>
    <message>
        <source>mariadbd could not be started: %1</source>
        <translation>Program mariadbd sa nepodarilo spustiť: %1</translation>
    </message>
    <message>
        <source>The private MariaDB server ended while it was starting. The end of its log:
%1</source>
        <translation>Dočasný server MariaDB sa skončil už počas spúšťania. Koniec jeho protokolu:
%1</translation>
    </message>
    <message>
        <source>The private MariaDB server did not answer within %1 s. The end of its log:
%2</source>
        <translation>Dočasný server MariaDB neodpovedal do %1 s. Koniec jeho protokolu:
%2</translation>
    </message>
    <message>
        <source>The program %1 is missing: install the package %2.</source>
        <translation>Chýba program %1: nainštalujte balík %2.</translation>
    </message>
    <message>
        <source>The socket path %1 is longer than %2 bytes: set TMPDIR to a folder with a shorter name.</source>
        <translation>Cesta soketu %1 je dlhšia ako %2 bajtov: nastavte TMPDIR na priečinok s kratším názvom.</translation>
    </message>
    <message>
        <source>mariadbd would take the folder %1 for several, separated by &quot;:&quot;: set TMPDIR to a folder with another name.</source>
        <translation>Program mariadbd by priečinok %1 považoval za niekoľko priečinkov oddelených znakom „:“: nastavte TMPDIR na priečinok s iným názvom.</translation>
    </message>
    <message>
        <source>No folder for the private MariaDB server could be made in %1: %2</source>
        <translation>V priečinku %1 sa nepodarilo vytvoriť priečinok pre dočasný server MariaDB: %2</translation>
    </message>
</context>
</TS>
