<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Arguments:</source>
        <translation>Argumenty:</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Chýba hodnota za „%1“.</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Voľby:</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Nečakaná hodnota za „%1“.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Neznáma voľba „%1“.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Neznáme voľby: %1.</translation>
    </message>
</context>
<context>
    <name>QSaveFile</name>
    <message>
        <source>Existing file %1 is not writable</source>
        <translation>Do existujúceho súboru %1 sa nedá zapisovať</translation>
    </message>
    <message>
        <source>Filename refers to a directory</source>
        <translation>Názov súboru označuje priečinok</translation>
    </message>
</context>
</TS>
