<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Arguments:</source>
        <translation>Argumenty:</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Chybí hodnota za „%1“.</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Volby:</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Neočekávaná hodnota za „%1“.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Neznámá volba „%1“.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Neznámé volby: %1.</translation>
    </message>
</context>
<context>
    <name>QSaveFile</name>
    <message>
        <source>Existing file %1 is not writable</source>
        <translation>Do existujícího souboru %1 nelze zapisovat</translation>
    </message>
    <message>
        <source>Filename refers to a directory</source>
        <translation>Název souboru označuje složku</translation>
    </message>
</context>
</TS>
