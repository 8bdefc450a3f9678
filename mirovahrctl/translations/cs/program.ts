<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>The language of everything for people: %1. Default: that of the locale; beside --json always en.</source>
        <translation>Jazyk všeho, co je určeno lidem: %1. Výchozí je jazyk prostředí; při --json vždy en.</translation>
    </message>
    <message>
        <source>language</source>
        <translation>jazyk</translation>
    </message>
    <message>
        <source>Write the report as JSON, for scripts.</source>
        <translation>Zapíše zprávu jako JSON, pro skripty.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>soubor</translation>
    </message>
    <message>
        <source>Also write the report as a self-contained web page, for somebody without a terminal.</source>
        <translation>Zprávu zapíše také jako samostatnou webovou stránku, pro někoho bez terminálu.</translation>
    </message>
    <message>
        <source>The database password is read from --password-file, from the environment variable %1 or from --defaults-file.</source>
        <translation>Heslo databáze se čte z --password-file, z proměnné prostředí %1 nebo z --defaults-file.</translation>
    </message>
    <message>
        <source>Usage: mirovahrctl %1 [OPTION...]</source>
        <translation>Použití: mirovahrctl %1 [VOLBA...]</translation>
    </message>
    <message>
        <source>Missing argument %1; see --help</source>
        <translation>Chybí argument %1; viz --help</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;</source>
        <translation>Neočekávaný argument „%1“</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Upozornění: %1</translation>
    </message>
    <message>
        <source>Unknown language &apos;%1&apos;; there are %2</source>
        <translation>Neznámý jazyk „%1“; k dispozici jsou %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be written: %2</source>
        <translation>„%1“ nelze zapsat: %2</translation>
    </message>
    <message>
        <source>The result would overwrite the export; name another file</source>
        <translation>Výsledek by přepsal export; uveďte jiný soubor</translation>
    </message>
    <message>
        <source>Two results would be written to &apos;%1&apos;; name another file</source>
        <translation>Do „%1“ by se zapsaly dva výsledky; uveďte jiný soubor</translation>
    </message>
</context>
</TS>
