<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>The language of everything for people: %1. Default: that of the locale; beside --json always en.</source>
        <translation>Jazyk všetkého, čo je určené ľuďom: %1. Predvolený je jazyk prostredia; pri --json vždy en.</translation>
    </message>
    <message>
        <source>language</source>
        <translation>jazyk</translation>
    </message>
    <message>
        <source>Write the report as JSON, for scripts.</source>
        <translation>Zapíše správu ako JSON, pre skripty.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>súbor</translation>
    </message>
    <message>
        <source>Also write the report as a self-contained web page, for somebody without a terminal.</source>
        <translation>Správu zapíše aj ako samostatnú webovú stránku, pre niekoho bez terminálu.</translation>
    </message>
    <message>
        <source>The database password is read from --password-file, from the environment variable %1 or from --defaults-file.</source>
        <translation>Heslo databázy sa číta z --password-file, z premennej prostredia %1 alebo z --defaults-file.</translation>
    </message>
    <message>
        <source>Usage: mirovahrctl %1 [OPTION...]</source>
        <translation>Použitie: mirovahrctl %1 [VOĽBA...]</translation>
    </message>
    <message>
        <source>Missing argument %1; see --help</source>
        <translation>Chýba argument %1; pozri --help</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;</source>
        <translation>Nečakaný argument „%1“</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Upozornenie: %1</translation>
    </message>
    <message>
        <source>Unknown language &apos;%1&apos;; there are %2</source>
        <translation>Neznámy jazyk „%1“; k dispozícii sú %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be written: %2</source>
        <translation>„%1“ sa nedá zapísať: %2</translation>
    </message>
    <message>
        <source>The result would overwrite the export; name another file</source>
        <translation>Výsledok by prepísal export; uveďte iný súbor</translation>
    </message>
    <message>
        <source>Two results would be written to &apos;%1&apos;; name another file</source>
        <translation>Do „%1“ by sa zapísali dva výsledky; uveďte iný súbor</translation>
    </message>
</context>
</TS>
