<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>The gate has refused the last file.</source>
        <translation>Brána posledný súbor odmietla.</translation>
    </message>
    <message>
        <source>Until a file is admitted nothing new reaches the plugin.</source>
        <translation>Kým sa neprijme niektorý súbor, k zásuvnému modulu sa nič nové nedostane.</translation>
    </message>
    <message>
        <source>Statements of the plugin failed through a deadlock, a lock&apos;s timeout or a lost connection.</source>
        <translation>Príkazy zásuvného modulu zlyhali pre vzájomné zablokovanie, vypršanie času zámku alebo stratené spojenie.</translation>
    </message>
    <message>
        <source>What they were to write may be missing for good: force a synchronisation with the same export, then run mirovahrctl drift.</source>
        <translation>Čo mali zapísať, môže chýbať natrvalo: vynúťte synchronizáciu s rovnakým exportom a potom spustite mirovahrctl drift.</translation>
    </message>
    <message>
        <source>The last admitted file, or the last trace of the plugin, is too old.</source>
        <translation>Naposledy prijatý súbor alebo posledná stopa zásuvného modulu je príliš stará.</translation>
    </message>
    <message>
        <source>Check the log of the attendance server and what HR delivers.</source>
        <translation>Skontrolujte protokol dochádzkového servera a to, čo dodáva personálne oddelenie.</translation>
    </message>
</context>
</TS>
