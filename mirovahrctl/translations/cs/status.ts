<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>The gate has refused the last file.</source>
        <translation>Brána poslední soubor odmítla.</translation>
    </message>
    <message>
        <source>Until a file is admitted nothing new reaches the plugin.</source>
        <translation>Dokud nebude některý soubor přijat, k zásuvnému modulu se nic nového nedostane.</translation>
    </message>
    <message>
        <source>Statements of the plugin failed through a deadlock, a lock&apos;s timeout or a lost connection.</source>
        <translation>Příkazy zásuvného modulu selhaly kvůli vzájemnému zablokování, vypršení času zámku nebo ztracenému spojení.</translation>
    </message>
    <message>
        <source>What they were to write may be missing for good: force a synchronisation with the same export, then run mirovahrctl drift.</source>
        <translation>Co měly zapsat, může chybět natrvalo: vynuťte synchronizaci se stejným exportem a potom spusťte mirovahrctl drift.</translation>
    </message>
    <message>
        <source>The last admitted file, or the last trace of the plugin, is too old.</source>
        <translation>Naposledy přijatý soubor nebo poslední stopa zásuvného modulu je příliš stará.</translation>
    </message>
    <message>
        <source>Check the log of the attendance server and what HR delivers.</source>
        <translation>Zkontrolujte protokol docházkového serveru a to, co dodává personální oddělení.</translation>
    </message>
</context>
</TS>
